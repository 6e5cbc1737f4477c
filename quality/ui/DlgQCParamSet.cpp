#include "quality/ui/DlgQCParamSet.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 5;

} // namespace

DlgQCParamSet::DlgQCParamSet(QWidget* parent, IDictionary& parameters)
    : Dialog(parent), m_parameters(parameters), m_shown(parameters),
      m_grid(new PropertyGridCtrl(this))
{
    setWindowTitle(tr("Quality Specification"));
    setFixedSizeScaled(500, 550);
    setStyleSheet(QStringLiteral("DlgQualitySpecificate{background:white;}"));
    auto* const ok = new QPushButton(tr("OK"), this);
    connect(ok, &QPushButton::clicked, this, &DlgQCParamSet::onBtnClicked);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_grid, 1);
    const QString controlFile = QString::fromStdString(basalt::controlFile("QCParam"));
    if (m_grid->init(controlFile, parameters))
        setUpGrid();
    else
        layout->addWidget(makeProblem(controlFile), 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
}

void DlgQCParamSet::setUpGrid()
{
    m_grid->setResizeMode(PropertyGridCtrl::ResizeMode::ResizeToContents);
    m_grid->setHeaderVisible(false);
    m_grid->setDescriptionVisible(false);
    const auto show = [this](const QString& key, const QString& value) {
        m_shown.set(key.toStdString(), value.toStdString());
        writeNotes();
    };
    connect(m_grid, &PropertyGridCtrl::valueShown, this, show);
    connect(m_grid, &PropertyGridCtrl::valueChanged, this, show);
    writeNotes();
}

QWidget* DlgQCParamSet::makeProblem(const QString& controlFile)
{
    m_grid->hide();
    auto* const problem =
        new QLabel(tr("The limits cannot be shown, and stay as they are: the file \"%1\" cannot be "
                      "read (%2).")
                       .arg(controlFile, m_grid->initFault()),
                   this);
    problem->setTextFormat(Qt::PlainText);
    problem->setTextInteractionFlags(Qt::TextSelectableByMouse); // also breaks long paths
    problem->setWordWrap(true);
    problem->setAlignment(Qt::AlignTop);
    return problem;
}

void DlgQCParamSet::writeNotes()
{
    for (const QualityParameter& parameter : kQualityParameters)
        m_grid->setRowNote(QString::fromLatin1(parameter.key),
                           qualityParameterNote(m_shown, parameter.key));
}

void DlgQCParamSet::onBtnClicked()
{
    if (!m_grid->initFault().isEmpty()) {
        reject();
        return;
    }
    if (m_grid->hasFaults()) {
        m_grid->goToFault();
        return;
    }
    const basalt::Dictionary edited = m_grid->getData();
    const auto code = resurveyCode(std::string(qualityParameter(edited, kResurveyCode)));
    if (!code) {
        LumMessageBox::information(this, tr("提示"),
                                   tr("请确认输入的复测代码是不为' C '的单个字母"));
        return;
    }
    dictionary_copy(edited, m_parameters);
    m_parameters.set(kResurveyCode, *code);
    accept();
}

#include "quality/ui/DlgQCParamSet.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"
#include "quality/ui/ProblemLimitsPage.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 5;

} // namespace

DlgQCParamSet::DlgQCParamSet(QWidget* parent, IDictionary& parameters)
    : Dialog(parent), m_parameters(parameters), m_shown(parameters),
      m_grid(new PropertyGridCtrl(this)), m_problems(new ProblemLimitsPage(parameters, this)),
      m_pages(new QTabWidget(this))
{
    setWindowTitle(tr("Quality Specification"));
    setFixedSizeScaled(500, 550);
    setStyleSheet(QStringLiteral("DlgQualitySpecificate{background:white;}"));
    auto* const ok = new QPushButton(tr("OK"), this);
    connect(ok, &QPushButton::clicked, this, &DlgQCParamSet::onBtnClicked);
    m_pages->setDocumentMode(true);
    m_pages->addTab(makeChecksPage(), tr("Checks"));
    m_pages->addTab(m_problems, tr("Problems"));

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_pages, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
}

QWidget* DlgQCParamSet::makeChecksPage()
{
    const QString controlFile = QString::fromStdString(basalt::controlFile("QCParam"));
    if (!m_grid->init(controlFile, m_parameters))
        return makeProblem(controlFile);
    setUpGrid();
    return m_grid;
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

bool DlgQCParamSet::showFault()
{
    if (m_grid->hasFaults()) {
        m_pages->setCurrentWidget(m_grid);
        m_grid->goToFault();
        return true;
    }
    if (m_problems->hasFaults()) {
        m_pages->setCurrentWidget(m_problems);
        m_problems->goToFault();
        return true;
    }
    return false;
}

void DlgQCParamSet::onBtnClicked()
{
    if (!m_grid->initFault().isEmpty()) {
        reject();
        return;
    }
    if (showFault())
        return;
    const basalt::Dictionary edited = m_grid->getData();
    const auto code = resurveyCode(std::string(qualityParameter(edited, kResurveyCode)));
    if (!code) {
        m_pages->setCurrentWidget(m_grid);
        LumMessageBox::information(this, tr("提示"),
                                   tr("请确认输入的复测代码是不为' C '的单个字母"));
        return;
    }
    dictionary_copy(edited, m_parameters);
    m_parameters.set(kResurveyCode, *code);
    m_problems->store(m_parameters);
    accept();
}

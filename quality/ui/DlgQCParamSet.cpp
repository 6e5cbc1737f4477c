#include "quality/ui/DlgQCParamSet.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 5;

} // namespace

DlgQCParamSet::DlgQCParamSet(QWidget* parent, IDictionary& parameters)
    : Dialog(parent), m_parameters(parameters), m_grid(new PropertyGridCtrl(this))
{
    setWindowTitle(tr("Quality Specification"));
    setFixedSizeScaled(500, 550);
    setStyleSheet(QStringLiteral("DlgQualitySpecificate{background:white;}"));
    m_grid->init(QString::fromStdString(basalt::controlFile("QCParam")), parameters);
    m_grid->setResizeMode(PropertyGridCtrl::ResizeMode::ResizeToContents);
    m_grid->setHeaderVisible(false);
    m_grid->setDescriptionVisible(false);
    auto* const ok = new QPushButton(tr("OK"), this);
    connect(ok, &QPushButton::clicked, this, &DlgQCParamSet::onBtnClicked);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_grid, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
}

void DlgQCParamSet::onBtnClicked()
{
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

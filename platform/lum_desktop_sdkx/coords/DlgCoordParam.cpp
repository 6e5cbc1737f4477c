#include "lum_desktop_sdkx/coords/DlgCoordParam.h"

#include "lum_desktop_sdkx/coords/CoordSystemPanel.h"
#include "lum_sdk/DpiScale.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace {

constexpr int kLeastWidth = 420;
constexpr int kLeastHeight = 460;
constexpr int kWidth = 660;
constexpr int kHeight = 640;

} // namespace

DlgCoordParam::DlgCoordParam(QWidget* parent, const IDictionary& parameters)
    : Dialog(parent), m_panel(new CoordSystemPanel(this))
{
    setWindowTitle(tr("Coordinate System"));
    setMinimumSizeScaled(kLeastWidth, kLeastHeight);
    resize(dpi_scaled(kWidth), dpi_scaled(kHeight));
    rememberSize(QStringLiteral("DlgCoordParam"));
    m_panel->setParameters(parameters);

    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addWidget(m_panel, 1);
    layout->addWidget(buttons);
}

basalt::Dictionary DlgCoordParam::parameters()
{
    return m_panel->parameters();
}

void DlgCoordParam::accept()
{
    if (m_panel->hasFaults())
        m_panel->goToFault();
    else
        Dialog::accept();
}

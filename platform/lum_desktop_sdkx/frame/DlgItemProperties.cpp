#include "lum_desktop_sdkx/frame/DlgItemProperties.h"

#include "lum_sdk/DpiScale.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidth = 460;

} // namespace

DlgItemProperties::DlgItemProperties(QWidget* parent, const QString& name,
                                     const QVector<QPair<QString, QString>>& properties)
    : Dialog(parent)
{
    setWindowTitle(tr("Properties of %1").arg(name));
    setMinimumSizeScaled(kWidth, 0);
    auto* const rows = new QFormLayout;
    for (const auto& [caption, value] : properties) {
        auto* const label = new QLabel(value, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        rows->addRow(caption + QLatin1Char(':'), label);
    }
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(rows);
    layout->addStretch();
    layout->addWidget(buttons);
    const int width = std::max(dpi_scaled(kWidth), layout->totalMinimumSize().width());
    resize(width, layout->totalHeightForWidth(width)); // long values need several lines
}

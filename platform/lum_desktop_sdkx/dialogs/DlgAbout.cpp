#include "lum_desktop_sdkx/dialogs/DlgAbout.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"

#include <QDialogButtonBox>
#include <QFontInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kWidth = 480;
constexpr int kHeight = 250;
constexpr int kIconSize = 96;

QString configured(std::string_view key, std::string_view fallback)
{
    const std::string_view text = get_system_config_parameter().dictionary().text(key, fallback);
    return lum::toQString(text);
}

void scaleFont(QLabel& label, double factor)
{
    QFont font = label.font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    font.setBold(factor > 1);
    label.setFont(font);
}

} // namespace

DlgAbout::DlgAbout(QWidget* parent, const QString& description, const QStringList& libraries)
    : Dialog(parent)
{
    setWindowTitle(tr("About %1").arg(configured("name", "-")));
    setFixedSizeScaled(kWidth, kHeight);
    setModal(true);

    QStringList all(QStringLiteral("Qt %1").arg(QLatin1String(qVersion())));
    all += libraries;
    // No line break between a name and its version.
    all.replaceInStrings(QStringLiteral(" "), QString(QChar::Nbsp));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(makeHead(description), 1);
    QLabel* const builtWith = makeText(tr("Built with %1.").arg(all.join(QStringLiteral(", "))));
    scaleFont(*builtWith, 0.9);
    layout->addWidget(builtWith);
    layout->addWidget(buttons);
}

QLayout* DlgAbout::makeHead(const QString& description)
{
    auto* const icon = new QLabel(this);
    const int size = dpi_scaled(kIconSize);
    icon->setPixmap(QGuiApplication::windowIcon().pixmap(windowHandle(), QSize(size, size)));

    QLabel* const name = makeText(configured("name", "-"));
    scaleFont(*name, 1.9);
    auto* const words = new QVBoxLayout;
    words->setSpacing(dpi_scaled(6));
    words->addStretch();
    words->addWidget(name);
    words->addWidget(makeText(tr("Version %1").arg(configured("version", "-"))));
    words->addWidget(makeText(description));
    words->addStretch();

    auto* const head = new QHBoxLayout;
    head->setSpacing(dpi_scaled(20));
    head->addWidget(icon, 0, Qt::AlignVCenter);
    head->addLayout(words, 1);
    return head;
}

QLabel* DlgAbout::makeText(const QString& text)
{
    auto* const label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

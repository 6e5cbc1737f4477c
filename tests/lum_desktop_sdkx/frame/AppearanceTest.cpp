#include "lum_desktop_sdkx/frame/Appearance.h"

#include "tests/support/Literals.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestFolder.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>

namespace {

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1, no contrast, to 21, black on white.
double contrast(const QColor& a, const QColor& b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

/// How many pixels are near a colour.
int countOf(const QPixmap& pixmap, const QColor& color)
{
    const QImage picture = pixmap.toImage();
    return countPixels(picture, picture.rect(), [&](const QPoint& at) {
        const QColor pixel = picture.pixelColor(at);
        return std::abs(pixel.red() - color.red()) < 12 &&
               std::abs(pixel.green() - color.green()) < 12 &&
               std::abs(pixel.blue() - color.blue()) < 12;
    });
}

/// The best contrast to the ground of the first pixels from the left, in the middle row: where the
/// outline of a field or box is.
double outlineContrast(const QImage& picture, const QColor& ground)
{
    double best = 1;
    for (int x = 0; x < 4; ++x)
        best = std::max(best, contrast(picture.pixelColor(x, picture.height() / 2), ground));
    return best;
}

} // namespace

/// What can be seen in the light and in the dark theme.
class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAndBoxesHaveOutlinesAndShowTheFocus()
    {
        for (const char* theme : {"light", "dark"}) {
            desktop::applyAppearance(QString::fromUtf8(theme));
            QWidget window;
            auto* const layout = new QVBoxLayout(&window);
            auto* const tabs = new QTabBar;
            tabs->addTab("one"_q);
            auto* const tool = new QToolButton;
            tool->setText("tool"_q);
            const QList<QWidget*> outlined{new QCheckBox("a"_q), new QRadioButton("b"_q),
                                           new QLineEdit,        new QSpinBox,
                                           new QComboBox,        new QPushButton("c"_q)};
            const QList<QWidget*> others{new QListWidget,
                                         new QTableWidget,
                                         new QPlainTextEdit,
                                         new QCommandLinkButton("d"_q),
                                         tabs,
                                         tool};
            for (QWidget* widget : outlined + others) {
                widget->setFocusPolicy(Qt::StrongFocus);
                layout->addWidget(widget);
            }
            window.show();
            window.activateWindow();
            QTRY_VERIFY(window.isActiveWindow());
            const QColor ground = window.palette().color(QPalette::Window);
            const QColor mark = window.palette().color(QPalette::Highlight);
            for (QWidget* widget : outlined + others) {
                const char* const name = widget->metaObject()->className();
                window.setFocus();
                const QPixmap without = widget->grab();
                widget->setFocus();
                QVERIFY2(countOf(widget->grab(), mark) > countOf(without, mark) + 20, name);
                const double found = outlineContrast(without.toImage(), ground);
                QVERIFY2(found >= 2.5 || others.contains(widget),
                         qPrintable("%1 %2: %3"_q.arg(QLatin1String(theme))
                                        .arg(QLatin1String(name))
                                        .arg(found)));
            }
        }
    }

    void everyIconOfTheInstalledLayoutIsThere()
    {
        const QString xml = QString::fromUtf8(TestFolder::read(QStringLiteral(
            SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml")));
        static const QRegularExpression icon("icon=\"([^\"]+)\""_q);
        for (const QString& theme : {"light"_q, "dark"_q}) {
            desktop::applyAppearance(theme);
            QVERIFY(xml.contains(icon));
            for (auto match = icon.globalMatch(xml); match.hasNext();) {
                const QString name = match.next().captured(1);
                const QIcon shown = QIcon::fromTheme(name);
                QVERIFY2(!shown.pixmap(22, 22).isNull(), qPrintable(theme + name));
                // The theme's own, or a drawing of ours; not another one of a similar name.
                QVERIFY2(shown.name() == name || shown.name().isEmpty(), qPrintable(theme + name));
            }
        }
    }
};

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"

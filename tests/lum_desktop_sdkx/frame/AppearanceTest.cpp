#include "lum_desktop_sdkx/frame/Appearance.h"

#include "tests/support/Literals.h"

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
    const auto [dark, light] = std::minmax(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

/// Pixels near a colour.
int countOf(const QImage& picture, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += std::abs(pixel.red() - color.red()) < 12 &&
                             std::abs(pixel.green() - color.green()) < 12 &&
                             std::abs(pixel.blue() - color.blue()) < 12
                         ? 1
                         : 0;
        }
    }
    return count;
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

/// How many dark pixels a picture has.
int inkOf(const QPixmap& pixmap)
{
    const QImage picture = pixmap.toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += pixel.alpha() > 128 && pixel.value() < 100 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

/// What can be seen in the light and in the dark theme.
class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAndBoxesHaveOutlines()
    {
        for (const char* theme : {"light", "dark"}) {
            desktop::applyAppearance(QString::fromUtf8(theme));
            QWidget window;
            auto* const layout = new QVBoxLayout(&window);
            QWidget* const widgets[] = {new QCheckBox, new QRadioButton, new QLineEdit,
                                        new QSpinBox,  new QComboBox,    new QPushButton};
            for (QWidget* widget : widgets)
                layout->addWidget(widget);
            window.show();
            const QColor ground = window.palette().color(QPalette::Window);
            for (QWidget* widget : widgets) {
                const double found = outlineContrast(widget->grab().toImage(), ground);
                QVERIFY2(found >= 2.5,
                         qPrintable("%1 %2: %3"_q.arg(QLatin1String(theme))
                                        .arg(QLatin1String(widget->metaObject()->className()))
                                        .arg(found)));
            }
        }
    }

    void theFocusIsSeen()
    {
        for (const char* theme : {"light", "dark"}) {
            desktop::applyAppearance(QString::fromUtf8(theme));
            QWidget window;
            auto* const layout = new QVBoxLayout(&window);
            auto* const tabs = new QTabBar;
            tabs->addTab("one"_q);
            auto* const button = new QToolButton;
            button->setText("tool"_q);
            QWidget* const widgets[] = {new QCheckBox("a"_q),
                                        new QRadioButton("b"_q),
                                        new QLineEdit,
                                        new QSpinBox,
                                        new QComboBox,
                                        new QPushButton("c"_q),
                                        new QListWidget,
                                        new QTableWidget,
                                        new QPlainTextEdit,
                                        new QCommandLinkButton("d"_q),
                                        tabs,
                                        button};
            for (QWidget* widget : widgets) {
                widget->setFocusPolicy(Qt::StrongFocus);
                layout->addWidget(widget);
            }
            window.show();
            window.activateWindow();
            QTRY_VERIFY(window.isActiveWindow());
            const QColor mark = window.palette().color(QPalette::Highlight);
            for (QWidget* widget : widgets) {
                window.setFocus();
                const int without = countOf(widget->grab().toImage(), mark);
                widget->setFocus();
                const int with = countOf(widget->grab().toImage(), mark);
                QVERIFY2(with > without + 20, widget->metaObject()->className());
            }
        }
    }

    void iconsTurnLightOnASelection()
    {
        desktop::applyAppearance("light"_q);
        const QIcon icon = QIcon::fromTheme("document-new"_q);
        QVERIFY(inkOf(icon.pixmap(22, 22)) > 20);
        QCOMPARE(inkOf(icon.pixmap(QSize(22, 22), QIcon::Selected)), 0);

        QMenu menu;
        QAction* const entry = menu.addAction(icon, QString());
        menu.popup(QPoint(0, 0));
        const QRect row = menu.actionGeometry(entry);
        const auto inkOfRow = [&] { return inkOf(menu.grab(row.adjusted(2, 2, -2, -2))); };
        QVERIFY(inkOfRow() > 20);
        menu.setActiveAction(entry);
        QCOMPARE(inkOfRow(), 0);
    }

    void theArrowOfAShortToolBarIsSeen()
    {
        for (const char* theme : {"light", "dark"}) {
            desktop::applyAppearance(QString::fromUtf8(theme));
            QMainWindow window;
            QToolBar* const bar = window.addToolBar("tools"_q);
            for (int i = 0; i < 9; ++i)
                bar->addAction("a long caption"_q);
            window.resize(200, 100);
            window.show();
            auto* const arrow = bar->findChild<QToolButton*>("qt_toolbar_ext_button"_q);
            QVERIFY(arrow != nullptr);
            QTRY_VERIFY(arrow->isVisible());
            const QImage shown = arrow->grab().toImage();
            const QColor ground = window.palette().color(QPalette::Window);
            double best = 1;
            for (int x = 2; x < shown.width() - 2; ++x)
                best = std::max(best, contrast(shown.pixelColor(x, shown.height() / 2), ground));
            QVERIFY2(best >= 4, qPrintable("%1: %2"_q.arg(QLatin1String(theme)).arg(best)));
        }
    }
};

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"

#include "lum_desktop_sdkx/frame/GuideText.h"
#include "lum_desktop_sdkx/frame/GuideWindow.h"
#include "lum_desktop_sdkx/frame/ShortcutsWindow.h"
#include "tests/lum_desktop_sdkx/frame/ShownFrame.h"
#include "tests/support/TestFolder.h"

#include <QtWidgets>

namespace {

constexpr const char* kLayout = R"(<main_frame>
  <menu caption="&amp;Map">
    <menu caption="&amp;Deep"><command class="ExitCommand" name="Zoom In" caption="Zoom &amp;In..."
                                       shortcut="Ctrl++; Ctrl+="/></menu>
    <command class="ExitCommand" name="No Key"/>
  </menu>
  <menu caption="&amp;Help">
    <command class="GuideCommand" name="User Guide" shortcut="F1" file="Help/user-guide.md"/>
    <command class="GuideCommand" name="Lost Guide" file="Help/none.md"/>
    <command class="ShortcutsCommand" name="Shortcuts"/>
  </menu></main_frame>)";

} // namespace

class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerFrameComponents(); }

    void theInstalledGuideOpensOnceWithItsPictures()
    {
        DesktopHost host;
        MainFrame frame(host, layoutOf(kLayout));
        QVERIFY(host.commands().execute("User Guide"_q));
        QVERIFY(host.commands().execute("User Guide"_q));
        const auto guides = frame.findChildren<GuideWindow*>();
        QCOMPARE(guides.size(), 1);
        auto* const text = guides[0]->findChild<GuideText*>();
        QVERIFY(text->headings().size() > 5);
        QVERIFY(text->headings().size() ==
                static_cast<std::size_t>(guides[0]->findChild<QListWidget*>()->count()));

        int pictures = 0;
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
            QVERIFY2(!block.blockFormat().nonBreakableLines(), qPrintable(block.text()));
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (!format.isValid())
                    continue;
                const QUrl name = QUrl(format.name());
                const auto picture = text->document()->resource(QTextDocument::ImageResource, name);
                QVERIFY2(!picture.value<QImage>().isNull(), qPrintable(format.name()));
                QVERIFY(picture.value<QImage>().width() <= text->viewport()->width());
                ++pictures;
            }
        }
        QVERIFY(pictures >= 5);

        Boxes boxes;
        QVERIFY(host.commands().execute("Lost Guide"_q));
        QVERIFY2(boxes.last.text.contains("none.md"_q), qPrintable(boxes.last.text));
    }

    void findsWordsAndGoesRound()
    {
        const TestFolder folder;
        const QString file = folder.write(
            "guide.md", "# Points\n\nA point, two Points.\n\n## 限差\n\nNo more points.\n");
        auto* const guide = new GuideWindow(nullptr, "Guide"_q, file);
        guide->show();
        guide->activateWindow();
        QTRY_VERIFY(guide->isActiveWindow());
        QTest::keyClick(guide, Qt::Key_F, Qt::ControlModifier);
        auto* const field = guide->findChild<QLineEdit*>();
        QTRY_VERIFY(field->hasFocus());
        const auto placesShown = [&] {
            QString shown;
            for (const QLabel* label : guide->findChildren<QLabel*>())
                shown += label->text();
            return shown;
        };
        QTest::keyClicks(field, "point"_q);
        QCOMPARE(placesShown(), "1 of 4"_q);
        QTest::keyClick(field, Qt::Key_Return);
        QTest::keyClick(guide, Qt::Key_F3);
        QCOMPARE(placesShown(), "3 of 4"_q);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(guide, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(placesShown(), "4 of 4"_q);
        QTest::keyClicks(field, "less"_q);
        QCOMPARE(placesShown(), "not found"_q);

        auto* const headings = guide->findChild<QListWidget*>();
        QCOMPARE(headings->count(), 2);
        headings->setCurrentRow(1);
        QCOMPARE(guide->findChild<GuideText*>()->textCursor().block().text(), "限差"_q);
        const QPointer<GuideWindow> alive(guide);
        QTest::keyClick(guide, Qt::Key_Escape);
        QTRY_VERIFY(alive.isNull());
    }

    void theShortcutsAreThoseOfTheActions()
    {
        DesktopHost host;
        MainFrame frame(host, layoutOf(kLayout));
        host.commands().action("No Key"_q)->setShortcut(QKeySequence("Alt+7"_q)); // since the start
        QVERIFY(host.commands().execute("Shortcuts"_q));
        auto* const window = frame.findChild<ShortcutsWindow*>();
        window->findChild<QPushButton*>()->click(); // copies all
        const QString text = QGuiApplication::clipboard()->text().trimmed();
        QCOMPARE(text.split(QRegularExpression("\\s*\\n\\s*"_q)).join(QLatin1Char('|')),
                 "Map|Zoom In|Ctrl++, Ctrl+=|No Key|Alt+7|Help|User Guide|F1|"
                 "Without a menu entry|Go to the menus|F10|While the map has the focus|"
                 "Come nearer, step back|+, -|Move the map|Arrow keys; farther with Shift|"
                 "Show everything|Home"_q);
    }
};

QTEST_MAIN(HelpTest)
#include "HelpTest.moc"

#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/ui/BaseMapForm.h"
#include "map/ui/DlgBaseMaps.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

namespace {

using lum::BaseMap;
using lum::BaseMapKind;

/// The dialog, with the user's mouse and keyboard.
class OpenDialog
{
public:
    explicit OpenDialog(IDesktopHost& host) : dialog(host)
    {
        dialog.show();
        if (!QTest::qWaitForWindowActive(&dialog))
            qFatal("the dialog does not show");
    }

    [[nodiscard]] QTreeWidget& list() { return *dialog.findChild<QTreeWidget*>(); }
    [[nodiscard]] QStringList names()
    {
        QStringList all;
        for (int i = 0; i < list().topLevelItemCount(); ++i)
            all << list().topLevelItem(i)->text(0);
        return all;
    }
    void press(const char* text) { ::press(dialog, text); }
    void select(int row)
    {
        const QRect place = list().visualItemRect(list().topLevelItem(row));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          QPoint(place.right() - 5, place.center().y()));
    }
    /// Pastes into the field of this label, in place of what it holds.
    void type(const char* label, const QString& text)
    {
        for (const QLabel* const each : dialog.findChildren<QLabel*>()) {
            if (each->text() != QString::fromUtf8(label) || each->buddy() == nullptr)
                continue;
            auto* const edit = qobject_cast<QLineEdit*>(each->buddy());
            edit->setFocus();
            edit->selectAll();
            paste(text);
            return;
        }
        qFatal("no field %s", label);
    }
    /// Into the field that has the cursor.
    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(dialog.focusWidget(), QKeySequence::Paste);
    }
    DlgBaseMaps dialog;
};

} // namespace

class BaseMapDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        qputenv("XDG_CONFIG_HOME", m_folder->path().toUtf8());
        qputenv("XDG_CACHE_HOME", m_folder->path().toUtf8());
        m_project = std::make_unique<OpenProject>();
        lum::rereadUserBaseMaps();
        m_installed = lum::userBaseMaps().entries().size();
        QVERIFY(m_installed >= 3);
    }
    void cleanup()
    {
        m_project.reset();
        m_folder.reset();
    }

    void oneOfTheUsersOwnIsKeptOnceItIsComplete()
    {
        const EventLog log(m_project->host.events, "UPDATE_SYSTEM_STATUS_EVENT");
        OpenDialog open(m_project->host);
        open.press("Add");
        open.paste("站点 Site"_q);
        QCOMPARE(open.names().last(), "站点 Site"_q);
        open.press("OK");
        QVERIFY(open.dialog.isVisible());
        QCOMPARE(open.dialog.focusWidget()->toolTip(),
                 "The service learns which part of the world is looked at"_q); // the address
        open.type("A&ddress or file:", "https://tiles.example.org/{z}/{x}/{y}.png"_q);
        QVERIFY(says(open.dialog, "whose map"_q));
        open.press("OK");
        QVERIFY(open.dialog.isVisible());
        open.paste("© Example"_q);
        open.type("&Name:", "openstreetmap"_q);
        QVERIFY(says(open.dialog, "Another base map has this name."_q));
        open.press("OK");
        QVERIFY(open.dialog.isVisible());
        open.paste("站点 Site"_q);
        QVERIFY(log.events.empty());
        open.press("OK");
        QVERIFY(!open.dialog.isVisible());

        QCOMPARE(log.events.size(), 1U);
        lum::rereadUserBaseMaps();
        const BaseMap* const kept = lum::userBaseMaps().find("站点 Site"_q);
        QVERIFY(kept != nullptr);
        QCOMPARE(kept->address, "https://tiles.example.org/{z}/{x}/{y}.png"_q);
        QCOMPARE(kept->attribution, "© Example"_q);
    }

    void anInstalledOneIsHiddenChangedAndPutBackButNotRemoved()
    {
        const BaseMap first = lum::userBaseMaps().entries()[0].map;
        {
            OpenDialog open(m_project->host);
            open.select(0);
            QVERIFY(!buttonOf(open.dialog, "Remove").isEnabled());
            QVERIFY(!buttonOf(open.dialog, "Put Back").isEnabled());
            open.type("A&ddress or file:", "https://other.example/{z}/{x}/{y}"_q);
            QTest::keyClick(&open.list(), Qt::Key_Down);
            open.list().setFocus();
            QTest::keyClick(&open.list(), Qt::Key_Space); // the check mark of the second
            open.press("OK");
        }
        QCOMPARE(lum::userBaseMaps().find(first.name)->address,
                 "https://other.example/{z}/{x}/{y}"_q);
        QVERIFY(lum::userBaseMaps().entries()[1].isHidden);

        OpenDialog open(m_project->host);
        for (const int row : {0, 1}) {
            open.select(row);
            open.press("Put Back");
            QVERIFY(!buttonOf(open.dialog, "Put Back").isEnabled());
        }
        open.press("OK");
        lum::rereadUserBaseMaps();
        QCOMPARE(*lum::userBaseMaps().find(first.name), first);
        QVERIFY(!lum::userBaseMaps().entries()[1].isHidden);
    }

    void whatIsNotConfirmedChangesNothing()
    {
        OpenDialog open(m_project->host);
        open.press("Add");
        open.press("Add");
        QCOMPARE(open.names().mid(static_cast<int>(m_installed)),
                 (QStringList{"New base map"_q, "New base map 2"_q}));
        open.press("Remove");
        QCOMPARE(open.names().size(), static_cast<int>(m_installed) + 1);
        QTest::keyClick(&open.dialog, Qt::Key_Escape);
        QVERIFY(!open.dialog.isVisible());
        QCOMPARE(lum::userBaseMaps().entries().size(), m_installed);
    }

    void aFileThatIsNotThereNowDoesNotHoldUpTheOthers()
    {
        OpenDialog open(m_project->host);
        open.press("Add");
        open.type("A&ddress or file:", m_folder->path("外接 disk/a.mbtiles"));
        open.type("A&ttribution:", "a"_q);
        QVERIFY(says(open.dialog, "a.mbtiles"_q)); // that it is not there
        const auto zooms = open.dialog.findChildren<QSpinBox*>();
        QVERIFY(!zooms.front()->isEnabled()); // a file has its own levels
        open.press("OK");
        QVERIFY(!open.dialog.isVisible());
        QVERIFY(lum::userBaseMaps().find("New base map"_q) != nullptr);
    }

    void theTilesOnTheDiskAreCountedAndCleared()
    {
        const QString folder = "Tarvona/Skyquill/tiles/0/1/"_q;
        QVERIFY(QDir().mkpath(m_folder->path(folder)));
        const QString tile = m_folder->write(folder + "0123456789abcdef0123456789abcdef"_q,
                                             QByteArray(3 << 20, 'x'));
        QVERIFY(!tile.isEmpty());
        OpenDialog open(m_project->host);
        QVERIFY(says(open.dialog, "3.0 MB"_q));
        open.press("Clear");
        QVERIFY(says(open.dialog, "0.0 MB"_q));
        QVERIFY(!QFile::exists(tile));
    }

    void aListThatCannotBeWrittenIsTold()
    {
        QVERIFY(!m_folder->write("Tarvona", "a file in place of the folder").isEmpty());
        Boxes boxes;
        OpenDialog open(m_project->host);
        open.press("Add");
        open.type("A&ddress or file:", "https://tiles.example.org/{z}/{x}/{y}.png"_q);
        open.type("A&ttribution:", "a"_q);
        open.press("OK");
        QCOMPARE(
            boxes.told(),
            QStringList("Base Maps|The list cannot be saved. It holds until the program ends."_q));
        QVERIFY(lum::userBaseMaps().find("New base map"_q) != nullptr);
    }

private:
    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<OpenProject> m_project;
    std::size_t m_installed = 0;
};

QTEST_MAIN(BaseMapDialogTest)
#include "BaseMapDialogTest.moc"

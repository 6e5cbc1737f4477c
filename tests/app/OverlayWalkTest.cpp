#include "lum_desktop_sdkx/frame/LayerWindow.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectState.h"
#include "tests/app/FrameTest.h"
#include "tests/support/MadeRaster.h"

namespace {

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="DataProcess5"/>
  <menu caption="Project">
    <command class="OpenProjectCommand" name="Open Project"/>
    <command class="SaveProjectCommand" name="Save Project"/>
    <command class="CloseProjectCommand" name="Close Project"/>
    <command class="SetTifPathCommand" name="Overlay Image"/>
  </menu>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="LayerWindow" name="Layers" area="right" width="200" height="150"/>
</main_frame>)";

} // namespace

/// Overlay images from the menu or dropped, into the project's file and back, in a whole frame.
class OverlayWalkTest : public FrameTest
{
    Q_OBJECT

    [[nodiscard]] ProjectPlace place() const
    {
        return ProjectPlace::planned(m_folder->path(), "测区"_q);
    }
    [[nodiscard]] QByteArray projectFile() const { return TestFolder::read(place().file); }
    QString makeTiff(const char* name)
    {
        const QString path = m_folder->path(name);
        return plainRaster({100, 100}, Qt::red, {500000, 4400100}).write(path) ? path : QString();
    }
    /// The rows below the overlay layer in the list of layers, which is their order on the map.
    [[nodiscard]] QStringList listed() const
    {
        QCoreApplication::processEvents();
        const auto* const view = m_frame->findChild<LayerWindow*>()->findChild<QTreeView*>();
        const QAbstractItemModel& model = *view->model();
        const QModelIndex layer = model.index(1, 0);
        QStringList rows;
        for (int row = 0; row < model.rowCount(layer); ++row) {
            const QModelIndex item = model.index(row, 0, layer);
            const bool isShown = item.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            rows << (isShown ? QString() : "hidden "_q) + item.data().toString();
        }
        return rows;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto* const view = m_frame->findChild<LayerWindow*>()->findChild<QTreeView*>();
        view->setFocus();
        QTest::keyClick(view, key, modifiers);
    }

private Q_SLOTS:
    void init()
    {
        prepare();
        makeProject(place(), "32650");
        showProgram(layoutOf(kLayout));
        m_boxes->answer = Button::Yes;
        QVERIFY(m_frame->openFile(place().file));
    }
    void cleanup() { endProgram(); }

    void theListIsSavedWithTheProject()
    {
        run("Save Project");
        const QByteArray without = projectFile();
        m_chosenFile = makeTiff("河.tif") + QLatin1Char('\n') + makeTiff("村.tif");
        run("Overlay Image");
        QCOMPARE(listed(), QStringList({"河.tif"_q, "村.tif"_q}));
        QVERIFY(m_frame->isWindowModified());
        key(Qt::Key_Down, Qt::ControlModifier);
        key(Qt::Key_Space);
        QCOMPARE(listed(), QStringList({"村.tif"_q, "hidden 河.tif"_q}));
        run("Save Project");
        QVERIFY(projectFile().contains("\"../村.tif\""));

        run("Close Project");
        QCOMPARE(listed(), QStringList());
        QVERIFY(m_frame->openFile(place().file));
        QCOMPARE(listed(), QStringList({"村.tif"_q, "hidden 河.tif"_q}));
        QVERIFY(!m_frame->isWindowModified());

        key(Qt::Key_Delete);
        QVERIFY(m_frame->isWindowModified());
        key(Qt::Key_Down);
        key(Qt::Key_Delete);
        QCOMPARE(listed(), QStringList());
        run("Save Project");
        QCOMPARE(projectFile(), without);
    }
};

QTEST_MAIN(OverlayWalkTest)
#include "OverlayWalkTest.moc"

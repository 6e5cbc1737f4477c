#pragma once

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

#include <memory>

inline FrameLayout layoutOf(const QByteArray& xml)
{
    FrameLayout layout;
    if (!desktop::readFrameLayout(xml, layout).isEmpty())
        qFatal("the layout is broken");
    return layout;
}

/// Calls `act` with the next modal dialog of this class.
inline void whenDialog(const char* className, std::function<void(QDialog&)> act)
{
    whenDialog(*qApp, className, std::move(act));
}

/// A test of a whole frame in a home of its own. Boxes and file dialogs are answered.
class FrameTest : public QObject
{
protected:
    using Button = Boxes::Button;

    FrameTest()
    {
        registerFrameComponents();
        registerMapComponents();
    }

    void prepare()
    {
        m_folder = std::make_unique<TestFolder>();
        qputenv("HOME", m_folder->path().toUtf8());
        get_system_status_dictionary().clear();
        get_system_ini_parameter().dictionary().clear();
        m_boxes = std::make_unique<Boxes>();
        m_chosenFile.clear();
        m_filesAsked = 0;
        m_files = std::make_unique<FileDialog::Responder>([this](const auto&) {
            ++m_filesAsked;
            return m_chosenFile;
        });
    }
    void startProgram(const FrameLayout& layout)
    {
        m_host = std::make_unique<DesktopHost>();
        m_frame = std::make_unique<MainFrame>(*m_host, layout);
    }
    /// The same, shown and active.
    void showProgram(const FrameLayout& layout)
    {
        startProgram(layout);
        m_frame->resize(900, 600);
        m_frame->show();
        m_frame->activateWindow();
        QCoreApplication::processEvents(); // the first paint
        QTRY_VERIFY(m_frame->isActiveWindow());
    }
    /// A new project. \param system  its EPSG code; none when it is empty
    static void makeProject(const ProjectPlace& place, const char* system = "")
    {
        QVERIFY(QDir().mkpath(place.folder));
        basalt::Dictionary project;
        ProjectCreator::describe(place, project);
        QVERIFY(*system == '\0' || fillFromEpsg(system, project).empty());
        QVERIFY(ProjectCreator::create(place, project).isDone());
    }
    void endProgram()
    {
        m_files.reset();
        m_boxes.reset();
        m_frame.reset();
        m_host.reset();
    }
    void run(const char* command)
    {
        QVERIFY(m_host->commands().execute(QString::fromUtf8(command)));
    }
    /// The boxes since the last call, a line "title|text" each.
    void expectAsked(const QByteArray& boxes)
    {
        QCOMPARE(m_boxes->told().join(QLatin1Char('\n')), QString::fromUtf8(boxes));
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<DesktopHost> m_host;
    std::unique_ptr<MainFrame> m_frame;
    std::unique_ptr<Boxes> m_boxes;
    QString m_chosenFile;
    int m_filesAsked = 0;

private:
    std::unique_ptr<FileDialog::Responder> m_files;
};

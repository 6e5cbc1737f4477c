// Paints the pictures of the user guide: opens a project in the program and grabs its windows.
//   guide_pictures PROJECT.kelx FOLDER

#include "app/ProgramIcon.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/Applicationx.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/ISystemSettings.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/DlgProjectSet.h"
#include "protocol/ProductName.h"
#include "protocol/StatusKeys.h"
#include "quality/CheckKinds.h"
#include "quality/ui/DlgQCParamSet.h"
#include "quality/ui/DlgQCResult.h"

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

#include <cstdio>

namespace {

constexpr int kMargin = 20;
constexpr int kPaintMs = 1500; // longer than the map's worker needs

void letItPaint()
{
    QElapsedTimer timer;
    for (timer.start(); !timer.hasExpired(kPaintMs);)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

class Guide
{
public:
    Guide(MainFrame& frame, DesktopHost& host, QString folder)
        : m_frame(frame), m_host(host), m_folder(std::move(folder))
    {
    }

    void paintAll()
    {
        paintView("Design View", "guide-design");
        paintView("Survey View", "guide-survey");
        paintSystem();
        paintLimits();
        paintFaults();
    }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    void save(const QPixmap& picture, const char* name)
    {
        const QString file =
            m_folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png");
        m_isComplete = picture.save(file) && m_isComplete;
        std::printf("%s\n", qUtf8Printable(file));
    }

    void paintView(const char* command, const char* name)
    {
        m_host.commands().execute(QString::fromLatin1(command));
        letItPaint();
        save(m_frame.grab(), name);
    }

    void paintSystem()
    {
        basalt::Dictionary project(DataProcessDataManager::instance().project());
        DlgProjectSet dialog(m_host, project);
        dialog.resize(dialog.minimumSize());
        dialog.show();
        dialog.findChild<QListWidget*>()->setCurrentRow(1);
        QApplication::setActiveWindow(&dialog); // the list of found systems is there for typing
        auto* const field = dialog.findChild<QLineEdit*>();
        field->setFocus();
        field->setText(QStringLiteral("utm 50n"));
        letItPaint();
        save(dialog.grab(), "guide-coordinate-system");
    }

    void paintLimits()
    {
        DlgQCParamSet dialog(&m_frame, DataProcessDataManager::instance().qualityParameters());
        dialog.show();
        letItPaint();
        save(dialog.grab(), "guide-limits");
    }

    /// The list of faults over the map, which shows the result of the clicked row.
    void paintFaults()
    {
        DataProcessDataManager& manager = DataProcessDataManager::instance();
        manager.run(kQualityCheck);
        m_frame.resize(1560, 980);
        DlgQCResult list(m_host, manager.resultOf(kQualityCheck));
        list.setAttribute(Qt::WA_DeleteOnClose, false);
        list.resize(list.minimumSize());
        list.show();
        auto* const table = list.findChild<CustomTableWidget*>();
        table->selectRow(0);
        Q_EMIT table->clicked(table->model()->index(0, 0));
        letItPaint();
        QPixmap picture = m_frame.grab();
        QPainter painter(&picture);
        const QPoint place =
            m_frame.rect().bottomRight() - list.rect().bottomRight() - QPoint(kMargin, kMargin);
        painter.drawPixmap(place, list.grab());
        painter.setPen(list.palette().color(QPalette::WindowText)); // the edge of the window
        painter.drawRect(list.rect().translated(place).adjusted(-1, -1, 0, 0));
        painter.end();
        save(picture, "guide-faults");
    }

    MainFrame& m_frame;
    DesktopHost& m_host;
    QString m_folder;
    bool m_isComplete = true;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "guide_pictures PROJECT.kelx FOLDER\n");
        return 2;
    }
    const QString project = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    int count = 1;
    nameProduct();
    lum::setUpDatabase();
    Applicationx application(count, argv, kProductName, "/Tool/DataProcess5/data_process_5");
    QApplication::setWindowIcon(programIcon());
    const LumMessageBox::Responder responder([](const auto& message) {
        return message.buttons & LumMessageBox::Button::Yes ? LumMessageBox::Button::Yes
                                                            : LumMessageBox::Button::Ok;
    });
    get_system_ini_parameter().load(basalt::toolFolder() + "/data_process_5.sys");
    MainFrame& frame = application.mainFrame();
    frame.setTitle(QLatin1String(kProductName));
    frame.show();
    frame.resize(1280, 800);
    letItPaint();
    if (!frame.openFile(project))
        return 1;
    Guide guide(frame, application.host(), folder);
    guide.paintAll();
    return guide.isComplete() ? 0 : 1;
}

// Paints the pictures of the user guide: opens a project in the program and grabs its windows.
//   guide_pictures PROJECT.kelx FOLDER

#include "app/ProgramIcon.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/Applicationx.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/ILayerItems.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/ISystemSettings.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/DlgProjectSet.h"
#include "project/ui/DlgSurveyPoint.h"
#include "protocol/ProductName.h"
#include "protocol/StatusKeys.h"
#include "quality/CheckKinds.h"
#include "quality/ui/DlgQCParamSet.h"
#include "quality/ui/DlgQCResult.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/DlgSurveyColumns.h"
#include "views/tables/SurveyTableColumns.h"

#include <QAbstractTableModel>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTreeWidget>

#include <cstdio>

namespace {

constexpr int kMargin = 20;
constexpr int kSmallest = 0;   // the "quality" of the best compressed PNG
constexpr int kPaintMs = 1500; // longer than the map's worker needs
constexpr QSize kFrameSize{1440, 900};
const QRectF kRiverBank(510350, 4562830, 560, 330); // of the demo survey, and the village beside it

/// What the pictures show of the survey table, in this order.
const QStringList& shownColumns()
{
    static const QStringList keys = {
        QStringLiteral("line_num"),
        QStringLiteral("point_num"),
        QStringLiteral("solution_type"),
        QStringLiteral("horizontal_accuracy"),
        QStringLiteral("vertical_accuracy"),
        QStringLiteral("transversal_deviation"),
        QStringLiteral("longitudinal_deviation"),
        QStringLiteral("antenna_height"),
        QStringLiteral("satellite_number"),
        QStringLiteral("north"),
        QStringLiteral("east"),
        QStringLiteral("surveyor"),
        QStringLiteral("remarks"),
    };
    return keys;
}

void chooseColumns()
{
    ColumnChoice choice{shownColumns(), {}};
    for (const QString& key : surveyTableKeys()) {
        if (!shownColumns().contains(key)) {
            choice.order << key;
            choice.hidden << key;
        }
    }
    setColumnChoice(get_system_ini_parameter().dictionary(), choice);
}

/// Where the table has a column that the pictures show.
int columnOf(const char* key)
{
    return static_cast<int>(surveyTableKeys().indexOf(QLatin1String(key)));
}

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
        : m_frame(frame), m_host(host), m_folder(std::move(folder)),
          m_table(*m_host.windows()
                       .findAs<QWidget>(QStringLiteral("Survey Data List"))
                       ->findChild<CustomTableWidget*>())
    {
    }

    void paintAll()
    {
        paintGround();
        showImages(false); // the colours of the map alone
        m_host.commands().execute(QStringLiteral("Zoom to All"));
        paintMap("guide-design");
        paintSystem();
        paintLimits();
        DataProcessDataManager::instance().run(kQualityCheck);
        paintFaults();
        m_host.commands().execute(QStringLiteral("Survey View"));
        paintMap("guide-survey"); // near the fault; from afar it is a maze
        m_host.commands().execute(QStringLiteral("Design View"));
        paintProblems();
        m_host.windows().activate(QStringLiteral("Survey Data List"));
        m_host.commands().execute(QStringLiteral("Survey View"));
        paintColors();
        m_host.commands().execute(QStringLiteral("Design View"));
        paintStatistics();
        paintWorkingPlace();
        paintColumns();
        paintPoint();
    }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    void save(const QPixmap& picture, const char* name)
    {
        const QString file =
            m_folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png");
        m_isComplete = picture.save(file, "PNG", kSmallest) && m_isComplete;
        std::printf("%s\n", qUtf8Printable(file));
    }

    void paintMap(const char* name)
    {
        letItPaint();
        save(m_host.windows().findAs<QWidget>(QStringLiteral("DataMap"))->grab(), name);
    }

    [[nodiscard]] IMapWindow& map() const
    {
        return *m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    }

    void showImages(bool isShown)
    {
        auto* const images =
            dynamic_cast<ILayerItems*>(map().layers().find(QStringLiteral("TifLayer")));
        for (int i = 0; images != nullptr && i < images->itemCount(); ++i)
            images->showItem(i, isShown);
        map().redraw();
    }

    void paintGround()
    {
        m_host.commands().execute(QStringLiteral("Survey View"));
        map().zoomRect(kRiverBank.left(), kRiverBank.bottom(), kRiverBank.right(),
                       kRiverBank.top());
        paintMap("guide-ground");
        m_host.commands().execute(QStringLiteral("Design View"));
    }

    /// The whole survey by verdict.
    void paintColors()
    {
        for (const char* command : {"Colors Verdict", "Zoom to All"})
            m_host.commands().execute(QLatin1String(command));
        paintMap("guide-colors");
        m_host.commands().execute(QStringLiteral("Colors None"));
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
        show(dialog, "guide-limits");
    }

    /// The list of faults over the frame, which shows the result of the clicked row everywhere.
    void paintFaults()
    {
        DlgQCResult list(m_host, DataProcessDataManager::instance().resultOf(kQualityCheck));
        list.setAttribute(Qt::WA_DeleteOnClose, false);
        list.resize(list.minimumSize());
        list.show();
        auto* const table = list.findChild<CustomTableWidget*>();
        table->selectRow(0);
        Q_EMIT table->clicked(table->model()->index(0, 0));
        Q_EMIT table->doubleClicked(table->model()->index(0, 0));
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

    /// All problems, at a result with a wrong name.
    void paintProblems()
    {
        m_host.commands().execute(QStringLiteral("Zoom to All"));
        m_host.commands().execute(QStringLiteral("Find Problems"));
        const QWidget& window = *m_host.windows().findAs<QWidget>(QStringLiteral("Problems List"));
        auto* const kinds = window.findChild<QTreeWidget*>();
        auto* const table = window.findChild<CustomTableWidget*>();
        const QString wrongName = QCoreApplication::translate("ProblemKinds", "Wrong name");
        for (QTreeWidgetItem* const kind : kinds->findItems(wrongName, Qt::MatchExactly))
            kinds->setCurrentItem(kind);
        m_host.commands().execute(QStringLiteral("Next Problem"));
        kinds->setCurrentItem(kinds->topLevelItem(0));
        table->scrollTo(table->currentIndex(), QAbstractItemView::PositionAtCenter);
        letItPaint();
        save(m_frame.grab(), "guide-problems");
    }

    /// The days, and what is still left.
    void paintStatistics()
    {
        const QString name = QStringLiteral("Statistics");
        m_host.commands().execute(QStringLiteral("Zoom to All"));
        m_host.windows().activate(name);
        const QWidget& window = *m_host.windows().findAs<QWidget>(name);
        window.findChild<QComboBox*>(QStringLiteral("keys"))->setCurrentIndex(1);      // days
        window.findChild<QComboBox*>(QStringLiteral("plotKinds"))->setCurrentIndex(5); // progress
        letItPaint();
        save(m_frame.grab(), "guide-statistics");
        window.findChild<QComboBox*>(QStringLiteral("keys"))->setCurrentIndex(0);
        window.findChild<QComboBox*>(QStringLiteral("plotKinds"))->setCurrentIndex(0);
        m_host.windows().activate(QStringLiteral("Survey Data List"));
    }

    /// The float solutions of all lines, the least accurate first and selected.
    void paintWorkingPlace()
    {
        auto* const header = m_table.findChild<FilterHeader*>();
        Q_EMIT header->filterEdited(columnOf("solution_type"),
                                    QCoreApplication::translate("CodeTables", "float"));
        const int accuracy = columnOf("horizontal_accuracy");
        for (int click = 0; click < 2; ++click)
            Q_EMIT header->sectionClicked(accuracy);
        const QModelIndex worst = m_table.model()->index(0, accuracy);
        m_table.setCurrentIndex(worst);
        Q_EMIT m_table.clicked(worst);
        letItPaint();
        save(m_frame.grab(), "guide-working-place");
    }

    void paintColumns()
    {
        DlgSurveyColumns dialog(&m_frame, m_host.eventManager());
        show(dialog, "guide-columns");
    }

    /// The editor of the result in the first row, with another antenna height.
    void paintPoint()
    {
        const auto text = [this](const char* key) {
            return m_table.model()->index(0, columnOf(key)).data().toString().toStdString();
        };
        DlgSurveyPoint dialog(&m_frame, {text("line_num"), text("point_num")});
        dialog.findChildren<QLineEdit*>()[2]->setText(QStringLiteral("1.8"));
        show(dialog, "guide-point");
    }

    void show(QDialog& dialog, const char* name)
    {
        dialog.show();
        letItPaint();
        save(dialog.grab(), name);
    }

    MainFrame& m_frame;
    DesktopHost& m_host;
    QString m_folder;
    CustomTableWidget& m_table; ///< of the results
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
    chooseColumns();
    MainFrame& frame = application.mainFrame();
    frame.setTitle(QLatin1String(kProductName));
    frame.show();
    frame.resize(kFrameSize);
    letItPaint();
    if (!frame.openFile(project))
        return 1;
    Guide guide(frame, application.host(), folder);
    guide.paintAll();
    return guide.isComplete() ? 0 : 1;
}

#include "exchange/ui/FileImports.h"

#include "exchange/ui/DlgImportSummary.h"
#include "exchange/ui/ImportCommand.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/project/NotingWindow.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

namespace {

constexpr const char* kEvents = "REFRESH_DESIGN_LAYER,REFRESH_SURVEY_LAYER,ON_SURVEY_LINE_SWITCHED";
constexpr const char* kGoodDesign = "1,L,1,2,3,4,1,0\n2,L,1,2,3,4,1,0\n";

} // namespace

class FileImportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<OpenProject>();
        m_folder = std::make_unique<TestFolder>();
        m_boxes = std::make_unique<Boxes>();
        m_frame = std::make_unique<QWidget>();
        m_frame->resize(700, 500);
        m_frame->show();
        m_project->host.frame = m_frame.get();
    }
    void cleanup()
    {
        m_frame.reset();
        m_boxes.reset();
        m_project.reset();
    }

    void aCleanFileIsToldInASmallBox()
    {
        const EventLog log(m_project->host.events, kEvents);
        QVERIFY(FileImports::importDesignCsv(m_project->host, file(kGoodDesign)));
        QCOMPARE(m_boxes->told(), QStringList("Success|Import Success!"_q));
        QVERIFY2(m_boxes->last.details.contains("points added: 2"_q),
                 qPrintable(m_boxes->last.details));
        QVERIFY(list() == nullptr);
        QVERIFY(log.names() == std::vector<std::string>{"REFRESH_DESIGN_LAYER"});
        QVERIFY(m_project->manager->isChanged());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void surveyResultsAreAnnouncedWithTheirFirstLine()
    {
        NotingWindow tree;
        m_project->host.windowRegistry.windows.insert("Survey Lines"_q, &tree);
        m_project->results().set(surveyPoint("1", "")); // a line before those of the file
        const EventLog log(m_project->host.events, kEvents);
        QVERIFY(FileImports::importSurveyCsv(
            m_project->host, file("line num,point num,elevation\n9,1,640\n\"a,2,651.5\n")));
        QVERIFY((log.names() ==
                 std::vector<std::string>{"REFRESH_SURVEY_LAYER", "ON_SURVEY_LINE_SWITCHED"}));
        QCOMPARE(QByteArray::fromStdString(log.events[1].payload), payload::line("\"a"_q));
        QCOMPARE(tree.followed, QStringList("\"a"_q));
        QCOMPARE(m_project->host.windowRegistry.revealed,
                 QStringList("Survey Data List beside DataMap"_q));
        QCOMPARE(m_project->results().find("9", "1")->seaHeight, 640.0);
    }

    void whatCannotBeReadChangesNothing()
    {
        const EventLog log(m_project->host.events, kEvents);
        for (const QString& path : {m_folder->path(), m_folder->path("none.csv")}) {
            QVERIFY(!FileImports::importSurveyCsv(m_project->host, path));
            QCOMPARE(m_boxes->told(), QStringList("Error|Import Failed!"_q));
            QVERIFY2(m_boxes->last.details.contains(path), qPrintable(m_boxes->last.details));
        }
        QVERIFY(log.events.empty() && !m_project->manager->isChanged());
        // What holds no point is no failure, but is told as a finding.
        QVERIFY(!FileImports::importSurveyCsv(m_project->host, file(kGoodDesign)));
        QVERIFY(list() != nullptr);
        QVERIFY(list()->findChild<QPlainTextEdit*>()->toPlainText().contains("No line holds"_q));
        QVERIFY(!m_project->manager->isChanged());
    }

    void theCommandAsksForAFile()
    {
        QStringList asked;
        QString answer;
        const FileDialog::Responder files([&](const auto& request) {
            asked << request.title << request.filter;
            return answer;
        });
        ImportCommand command("kind=design-csv", &m_project->host);
        QVERIFY(command.isEnabled());
        command.execute();
        ImportCommand("kind=survey-db", &m_project->host).execute();
        QCOMPARE(asked, QStringList({"Choose Open File"_q, "csv file(*.csv)"_q,
                                     "Choose Open File"_q, "db file(*.db)"_q}));
        QVERIFY(m_boxes->told().isEmpty() && m_project->design().empty());
        answer = file(kGoodDesign);
        command.execute();
        QCOMPARE(m_project->design().pointCount(), std::size_t(2));
        m_project->tellProject("");
        QVERIFY(!command.isEnabled());
        FileImports::importFile(m_project->host, file("3,L,1,2,3,4,1,0\n")); // dropped
        QVERIFY(m_boxes->last.text.contains("Open or create the project first"_q));
        QCOMPARE(m_project->design().pointCount(), std::size_t(2));
    }

    void findingsAreListedAndLeadToTheirPoints()
    {
        NotingWindow points;
        points.lineThatIsMissing = "M"_q;
        m_project->host.windowRegistry.windows["Design Data List"_q] = &points;
        m_project->design().set({"L", "1", 0, 0, 0, 0, 0, 0});
        const QString path = file(QByteArray(kGoodDesign) + "3,M,1,2,3,4,x,0\nshort\n");
        QVERIFY(FileImports::importDesignCsv(m_project->host, path));
        QVERIFY(m_boxes->told().isEmpty());
        const DlgImportSummary& dialog = *list();
        QVERIFY(dialog.isVisible() && !dialog.isModal());
        QCOMPARE(dialog.windowTitle(), "Success"_q);
        QVERIFY(
            dialog.findChild<QPlainTextEdit*>()->toPlainText().startsWith("Import Success!\n"_q));
        auto* const table = dialog.findChild<CustomTableWidget*>();
        const auto* const place = dialog.findChild<QLabel*>("place"_q);
        QCOMPARE(table->model()->rowCount(), 3);
        const auto click = [&](int row) {
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                              table->visualRect(table->model()->index(row, 1)).center());
            return place->text();
        };
        QVERIFY2(click(0).startsWith("Line 3 of \"%1\": Field 7"_q.arg(path)),
                 qPrintable(place->text()));
        QVERIFY(place->text().endsWith("The project does not have the point."_q));
        QVERIFY(click(1).startsWith("Line 4 of"_q)); // names no point
        QVERIFY(click(2).startsWith("Line 1 of"_q));
        QCOMPARE(points.selected, QStringList({"M/3"_q, "L/1"_q}));
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(points.selected.last(), "L/1"_q);
        QCOMPARE(points.selected.size(), 3);
    }

    void theListCopiesAll()
    {
        const QString path = file("1,L,1,2,3,4,x,0\n");
        FileImports::importDesignCsv(m_project->host, path);
        press(*list(), "Copy All");
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith("Import Success!\n\"%1\": lines read: 1"_q.arg(path)) &&
                     copied.contains("\nSkipped line\t1\tL\t1\tField 7"_q),
                 qPrintable(copied));
    }

    void theListGoesWithItsProject()
    {
        FileImports::importDesignCsv(m_project->host, file("x\n"));
        const QPointer<DlgImportSummary> dialog = list();
        m_project->publish(events::kUpdateSystemStatus);
        QVERIFY(dialog->isVisible());
        m_project->tellProject("/b");
        QTRY_VERIFY(dialog == nullptr);
    }

    void anUnknownFileIsAskedAbout()
    {
        const struct
        {
            const char* button; ///< that is pressed; else a key
            Qt::Key key;
            const char* told; ///< by the list; none comes when it is empty
        } cases[] = {{"Design Points", {}, "There are fewer than"},
                     {"Survey Results", {}, "No line holds"},
                     {"Cancel", {}, ""},
                     {"", Qt::Key_Escape, ""},
                     {"", Qt::Key_Return, ""}};
        for (const auto& [button, key, told] : cases) {
            int questions = 0;
            whenDialog(*this, "DlgCsvKind", [&, button = button, key = key](QDialog& dialog) {
                ++questions;
                QVERIFY(QTest::qWaitForWindowActive(&dialog));
                QVERIFY(says(dialog, "测试 %1.csv"_q));
                if (*button == '\0')
                    QTest::keyClick(dialog.focusWidget(), key);
                else
                    press(dialog, button);
            });
            FileImports::importFile(m_project->host, file("1;L;1;2\n"));
            QCOMPARE(questions, 1);
            QCOMPARE(list() != nullptr, *told != '\0');
            if (list() == nullptr)
                continue;
            QTest::mouseClick(list()->findChildren<QPushButton*>().constFirst(), Qt::LeftButton);
            QString all = list()->findChild<QPlainTextEdit*>()->toPlainText();
            if (auto* const table = list()->findChild<CustomTableWidget*>())
                all += table->model()->index(0, 4).data().toString();
            QVERIFY2(all.contains(QLatin1String(told)), qPrintable(all));
            delete list();
        }
    }

private:
    QString file(const QByteArray& content) { return m_folder->write("测试 %1.csv", content); }
    DlgImportSummary* list() const { return m_frame->findChild<DlgImportSummary*>(); }

    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<Boxes> m_boxes;
};

QTEST_MAIN(FileImportsTest)
#include "FileImportsTest.moc"

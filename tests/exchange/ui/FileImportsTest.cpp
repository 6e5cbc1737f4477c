#include "exchange/ui/FileImports.h"

#include "exchange/ui/DlgImportSummary.h"
#include "exchange/ui/ImportCommand.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace {

constexpr const char* kEvents = "REFRESH_DESIGN_LAYER,REFRESH_SURVEY_LAYER,ON_SURVEY_LINE_SWITCHED";
constexpr const char* kGoodDesign = "1,L,1,2,3,4,1,0\n2,L,1,2,3,4,1,0\n";

/// A list of points that notes which ones it has to select. It knows those of line "L".
class NotingList final : public IWindow, public IPointList
{
public:
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& lineNumber, const QString& pointNumber) override
    {
        asked << lineNumber + QLatin1Char('/') + pointNumber;
        return lineNumber == "L"_q;
    }
    bool followPoint(const QString& /*lineNumber*/, const QString& /*pointNumber*/) override
    {
        return true;
    }
    void deselect() override {}
    QStringList asked;

private:
    basalt::Dictionary m_parameters;
};

/// A tree of lines that notes which ones it has to mark.
class NotingTree final : public IWindow, public ILineList
{
public:
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    void followLine(const QString& lineNumber) override { followed << lineNumber; }
    QStringList followed;

private:
    basalt::Dictionary m_parameters;
};

void setOpen(const char* folder)
{
    IDictionary& values = get_system_status_dictionary();
    values.clear();
    if (*folder != '\0') {
        values.set(status::kProjectOpen, "1");
        values.set(status::kProjectPath, folder);
    }
}

} // namespace

/// Opens files by the links of the desktop.
class FileOpener : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> opened;
public Q_SLOTS:
    void open(const QUrl& url) { opened << url; }
};

class FileImportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aCleanFileIsToldInASmallBox();
    void surveyResultsAreAnnouncedWithTheirFirstLine();
    void whatCannotBeReadChangesNothing();
    void theCommandAsksForAFile();
    void findingsAreListedAndLeadToTheirPoints();
    void theListCopiesAllAndOpensTheFile();
    void theListGoesWithItsProject();
    void aLongSummaryFitsOnTheScreen();
    void aFileThatTellsIsNotAskedAbout();
    void anUnknownFileIsAskedAbout_data();
    void anUnknownFileIsAskedAbout();
    void withoutAProjectNothingIsImported();

private:
    QString file(const QByteArray& content) { return m_folder->write("测试 %1.csv", content); }
    DlgImportSummary* list() const { return m_frame->findChild<DlgImportSummary*>(); }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
    std::unique_ptr<LumMessageBox::Responder> m_responder;
    QStringList m_told; ///< titles and texts of boxes
    QString m_details;  ///< of the last
};

void FileImportsTest::init()
{
    setOpen("/a");
    m_folder = std::make_unique<TestFolder>();
    m_host = std::make_unique<TestHost>();
    m_frame = std::make_unique<QWidget>();
    m_frame->resize(700, 500);
    m_frame->show();
    m_host->frame = m_frame.get();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    m_responder = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
        m_told << message.title << message.text;
        m_details = message.details;
        return LumMessageBox::Button::Ok;
    });
    m_told.clear();
}

void FileImportsTest::cleanup()
{
    m_responder.reset();
    m_frame.reset();
    m_manager.reset();
    m_host.reset();
}

void FileImportsTest::aCleanFileIsToldInASmallBox()
{
    const EventLog log(m_host->events, kEvents);
    QVERIFY(FileImports::importDesignCsv(*m_host, file(kGoodDesign)));
    QCOMPARE(m_told, QStringList({"Success"_q, "Import Success!"_q}));
    QVERIFY2(m_details.contains("points added: 2"_q), qPrintable(m_details));
    QVERIFY(list() == nullptr);
    QVERIFY(log.names() == std::vector<std::string>{"REFRESH_DESIGN_LAYER"});
    QVERIFY(m_manager->isChanged());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void FileImportsTest::surveyResultsAreAnnouncedWithTheirFirstLine()
{
    SurveyPoint point;
    NotingTree tree;
    m_host->windowRegistry.windows.insert("Survey Lines"_q, &tree);
    point.lineNumber = "1";
    m_manager->surveyPoints().set(point); // a line before those of the file
    const EventLog log(m_host->events, kEvents);
    QVERIFY(FileImports::importSurveyCsv(
        *m_host, file("line num,point num,elevation\n9,1,640\n\"a,2,651.5\n")));
    QVERIFY((log.names() ==
             std::vector<std::string>{"REFRESH_SURVEY_LAYER", "ON_SURVEY_LINE_SWITCHED"}));
    QCOMPARE(QByteArray::fromStdString(log.events[1].payload), payload::line("\"a"_q));
    QCOMPARE(tree.followed, QStringList("\"a"_q));
    QCOMPARE(m_host->windowRegistry.revealed, QStringList("Survey Data List beside DataMap"_q));
    QCOMPARE(m_manager->surveyPoints().find("9", "1")->seaHeight, 640.0);
}

void FileImportsTest::whatCannotBeReadChangesNothing()
{
    const EventLog log(m_host->events, kEvents);
    for (const QString& path : {m_folder->path(), m_folder->path("none.csv")}) {
        m_told.clear();
        QVERIFY(!FileImports::importSurveyCsv(*m_host, path));
        QCOMPARE(m_told, QStringList({"Error"_q, "Import Failed!"_q}));
        QVERIFY2(m_details.contains(path), qPrintable(m_details));
    }
    QVERIFY(log.events.empty() && !m_manager->isChanged());
    // What holds no point is no failure, but is told as a finding.
    QVERIFY(!FileImports::importSurveyCsv(*m_host, file(kGoodDesign)));
    QVERIFY(list() != nullptr);
    QVERIFY(list()->findChild<QPlainTextEdit*>()->toPlainText().contains("No line holds"_q));
    QVERIFY(!m_manager->isChanged());
}

void FileImportsTest::theCommandAsksForAFile()
{
    QStringList asked;
    QString answer;
    const FileDialog::Responder files([&](const auto& request) {
        asked << request.title << request.filter;
        return answer;
    });
    ImportCommand command("kind=design-csv", m_host.get());
    QVERIFY(command.isEnabled());
    command.execute();
    ImportCommand("kind=survey-db", m_host.get()).execute();
    QCOMPARE(asked, QStringList({"Choose Open File"_q, "csv file(*.csv)"_q, "Choose Open File"_q,
                                 "db file(*.db)"_q}));
    QVERIFY(m_told.isEmpty() && m_manager->designPoints().empty());
    answer = file(kGoodDesign);
    command.execute();
    QCOMPARE(m_manager->designPoints().pointCount(), std::size_t(2));
    setOpen("");
    QVERIFY(!command.isEnabled());
}

void FileImportsTest::findingsAreListedAndLeadToTheirPoints()
{
    NotingList points;
    m_host->windowRegistry.windows["Design Data List"_q] = &points;
    m_manager->designPoints().set({"L", "1", 0, 0, 0, 0, 0, 0});
    const QString path = file(QByteArray(kGoodDesign) + "3,M,1,2,3,4,x,0\nshort\n");
    QVERIFY(FileImports::importDesignCsv(*m_host, path));
    QVERIFY(m_told.isEmpty());
    DlgImportSummary& dialog = *list();
    QVERIFY(dialog.isVisible() && !dialog.isModal());
    QCOMPARE(dialog.windowTitle(), "Success"_q);
    QVERIFY(dialog.findChild<QPlainTextEdit*>()->toPlainText().startsWith("Import Success!\n"_q));
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
    QCOMPARE(points.asked, QStringList({"M/3"_q, "L/1"_q}));
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(points.asked.last(), "L/1"_q);
    QCOMPARE(points.asked.size(), 3);
}

void FileImportsTest::theListCopiesAllAndOpensTheFile()
{
    const QString path = file("1,L,1,2,3,4,x,0\n");
    FileImports::importDesignCsv(*m_host, path);
    const auto button = [&](const QString& text) {
        for (auto* const each : list()->findChildren<QPushButton*>()) {
            if (each->text() == text)
                return each;
        }
        return static_cast<QPushButton*>(nullptr);
    };
    QTest::mouseClick(button("Copy &All"_q), Qt::LeftButton);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY2(copied.startsWith("Import Success!\n\"%1\": lines read: 1"_q.arg(path)) &&
                 copied.contains("\nSkipped line\t1\tL\t1\tField 7"_q),
             qPrintable(copied));
    FileOpener opener;
    QDesktopServices::setUrlHandler("file"_q, &opener, "open");
    QTest::mouseClick(button("&Open the File"_q), Qt::LeftButton);
    QDesktopServices::unsetUrlHandler("file"_q);
    QCOMPARE(opener.opened, QList<QUrl>({QUrl::fromLocalFile(path)}));
}

void FileImportsTest::theListGoesWithItsProject()
{
    FileImports::importDesignCsv(*m_host, file("x\n"));
    const QPointer<DlgImportSummary> dialog = list();
    m_host->events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(dialog->isVisible());
    setOpen("/b");
    m_host->events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QTRY_VERIFY(dialog == nullptr);
}

void FileImportsTest::aLongSummaryFitsOnTheScreen()
{
    QByteArray text = "line num,point num,";
    for (int i = 0; i < 300; ++i)
        text += "a very long caption that no column has " + QByteArray::number(i) + ',';
    FileImports::importSurveyCsv(*m_host, file(text + "\n" + QByteArray("L,,\n").repeated(50000)));
    QVERIFY(QTest::qWaitForWindowExposed(list()));
    const QRect screen = list()->screen()->availableGeometry();
    QVERIFY(screen.contains(list()->frameGeometry()));
    const auto* const numbers = list()->findChild<QPlainTextEdit*>();
    QVERIFY(numbers->height() < screen.height() / 3);
    QCOMPARE(list()->findChild<CustomTableWidget*>()->model()->rowCount(), 1000);
    QVERIFY(list()->findChild<QLabel*>("place"_q)->text().contains("1,000"_q));
}

void FileImportsTest::aFileThatTellsIsNotAskedAbout()
{
    QVERIFY(FileImports::canImport("/a b/X.CSV"_q) && FileImports::canImport("x.db"_q));
    QVERIFY(!FileImports::canImport("/csv"_q) && !FileImports::canImport("/a.csv/x.txt"_q));
    FileImports::importFile(*m_host, file(kGoodDesign));
    QCOMPARE(m_manager->designPoints().pointCount(), std::size_t(2));
    FileImports::importFile(*m_host, file("point num,line num\n1,L\n"));
    QCOMPARE(m_manager->surveyPoints().pointCount(), std::size_t(1));
    m_told.clear();
    FileImports::importFile(*m_host, m_folder->path());
    QCOMPARE(m_told, QStringList({"Error"_q, "Import Failed!"_q}));
}

void FileImportsTest::anUnknownFileIsAskedAbout_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("told");
    QTest::newRow("design") << "&Design Points" << 0 << "There are fewer than";
    QTest::newRow("survey") << "&Survey Results" << 0 << "No line holds";
    QTest::newRow("cancel") << "Cancel" << 0 << "";
    QTest::newRow("escape") << "" << int(Qt::Key_Escape) << "";
    QTest::newRow("enter") << "" << int(Qt::Key_Return) << "";
}

void FileImportsTest::anUnknownFileIsAskedAbout()
{
    QFETCH(const QString, button);
    QFETCH(const int, key);
    QFETCH(const QString, told);
    int questions = 0;
    QTimer::singleShot(0, this, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr && dialog->objectName() == "DlgCsvKind"_q);
        ++questions;
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY(dialog->findChild<QLabel*>()->text().contains("测试 %1.csv"_q));
        if (key != 0)
            QTest::keyClick(dialog->focusWidget(), Qt::Key(key));
        for (auto* const each : dialog->findChildren<QPushButton*>()) {
            if (key == 0 && each->text().remove(QLatin1Char('&')) == QString(button).remove("&"_q))
                QTest::mouseClick(each, Qt::LeftButton);
        }
    });
    FileImports::importFile(*m_host, file("1;L;1;2\n"));
    QCOMPARE(questions, 1);
    QCOMPARE(list() != nullptr, !told.isEmpty());
    if (list() == nullptr)
        return;
    QTest::mouseClick(list()->findChildren<QPushButton*>().constFirst(), Qt::LeftButton);
    QString all = list()->findChild<QPlainTextEdit*>()->toPlainText();
    if (auto* const table = list()->findChild<CustomTableWidget*>())
        all += table->model()->index(0, 4).data().toString();
    QVERIFY2(all.contains(told), qPrintable(all));
}

void FileImportsTest::withoutAProjectNothingIsImported()
{
    setOpen("");
    FileImports::importFile(*m_host, file(kGoodDesign));
    QCOMPARE(m_told.size(), 2);
    QVERIFY(m_told[1].contains("Open or create the project first"_q));
    QVERIFY(m_manager->designPoints().empty());
}

QTEST_MAIN(FileImportsTest)
#include "FileImportsTest.moc"

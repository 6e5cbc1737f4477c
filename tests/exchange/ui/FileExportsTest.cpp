#include "exchange/ui/FileExports.h"

#include "exchange/ui/ExportCommands.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QDesktopServices>
#include <QDir>
#include <QtTest>

#include <memory>

using FileExports::Form;
using Button = LumMessageBox::Button;

class FileExportsTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteUrl(const QUrl& url) { m_opened << url; }

private Q_SLOTS:
    void init();
    void cleanup();
    void tellsHowMuchWasWritten();
    void whatCannotBeWrittenIsTold();
    void theDesktopOpensAnyPath();
    void theMenuExportsAllLines();

private:
    /// The boxes since the last call: title, text, and the first line of the details.
    QStringList told() { return std::exchange(m_told, {}); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<FileDialog::Responder> m_files;
    std::unique_ptr<LumMessageBox::Responder> m_boxes;
    QString m_path; ///< what the user chooses
    QStringList m_requests;
    QStringList m_told;
    Button m_answer = Button::No;
    QList<QUrl> m_opened;
};

void FileExportsTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    m_folder = std::make_unique<TestFolder>();
    m_path = m_folder->path("points.csv");
    m_requests.clear();
    m_answer = Button::No;
    m_files = std::make_unique<FileDialog::Responder>([this](const auto& request) {
        m_requests << request.title << request.filter;
        return m_path;
    });
    m_boxes = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
        if (message.title != "Success"_q && message.title != "Error"_q)
            return Button::Yes; // replaces a file
        m_told << message.title << message.text << message.details.section(QLatin1Char('\n'), 0, 0);
        return message.buttons == LumMessageBox::Buttons(Button::Ok) ? Button::Ok : m_answer;
    });
    for (const auto& [line, number, state] :
         {std::tuple("1001", "1", 1), {"1001", "2", 0}, {"1002", "1", 1}}) {
        DesignPoint design;
        design.lineNumber = line;
        design.pointNumber = number;
        design.status = state;
        m_manager->designPoints().set(design);
        SurveyPoint result;
        result.lineNumber = line;
        result.pointNumber = number;
        m_manager->surveyPoints().set(result);
    }
    get_system_status_dictionary().clear();
}

void FileExportsTest::cleanup()
{
    m_files.reset();
    m_boxes.reset();
    m_manager.reset();
}

void FileExportsTest::tellsHowMuchWasWritten()
{
    struct Case
    {
        QStringList lines;
        bool onlyUnsurveyed;
        QString amount;
    };
    for (const auto& [lines, onlyUnsurveyed, amount] :
         {Case{{"1001"_q, "1002"_q, "none"_q}, false, "Points: 3, lines: 2."_q},
          Case{{"1001"_q, "1002"_q}, true, "Points: 1, lines: 1."_q},
          Case{{"1002"_q}, true, "Points: 0, lines: 0."_q},
          Case{{}, false, "Points: 0, lines: 0."_q}}) {
        FileExports::exportDesign(*m_host, Form::Csv, lines, onlyUnsurveyed);
        QCOMPARE(told(), (QStringList{"Success"_q, "Export Succeed, Open it?"_q, amount}));
        QCOMPARE(TestFolder::read(m_path).count('\n'), 1 + amount.mid(8, 1).toInt());
    }
    QCOMPARE(m_requests.mid(0, 2), (QStringList{"Input Saving File Name"_q, "csv file(*.csv)"_q}));
    FileExports::exportSurvey(*m_host, Form::Csv, {"1001"_q});
    QCOMPARE(told().last(), "Points: 2, lines: 1."_q);
    m_manager->exportCaptions() = m_manager->surveyCaptions().mid(1, 3); // no line number
    FileExports::exportSurvey(*m_host, Form::Csv, {"1001"_q});
    QCOMPARE(told().last(), "Points: 0, lines: 0."_q);
    QCOMPARE(TestFolder::read(m_path).count('\n'), 1);
}

void FileExportsTest::whatCannotBeWrittenIsTold()
{
    m_path.clear(); // cancelled
    FileExports::exportDesign(*m_host, Form::Csv, {"1001"_q}, false);
    FileExports::exportSurvey(*m_host, Form::Csv, {"1001"_q});
    QCOMPARE(told(), QStringList());
    m_path = m_folder->path("missing/points.csv");
    FileExports::exportDesign(*m_host, Form::Csv, {"1001"_q}, false);
    QStringList failure = told();
    QCOMPARE(failure.mid(0, 2), (QStringList{"Error"_q, "Export Failed!"_q}));
    QVERIFY2(failure[2].contains(m_path), qPrintable(failure[2]));
    m_path = m_folder->path("folder.csv");
    QVERIFY(QDir().mkdir(m_path));
    FileExports::exportSurvey(*m_host, Form::Csv, {"1001"_q});
    QCOMPARE(told().mid(0, 2), (QStringList{"Error"_q, "Export Failed!"_q}));
    m_path = m_folder->write("points.csv", "before");
    const SmallFiles fullDisk(20);
    FileExports::exportSurvey(*m_host, Form::Csv, {"1001"_q});
    QCOMPARE(told().mid(0, 2), (QStringList{"Error"_q, "Export Failed!"_q}));
    QCOMPARE(TestFolder::read(m_path), "before");
}

void FileExportsTest::theDesktopOpensAnyPath()
{
    QDesktopServices::setUrlHandler("file"_q, this, "noteUrl");
    m_path = m_folder->path("a # 100%25 测线?.csv");
    m_answer = Button::Yes;
    FileExports::exportDesign(*m_host, Form::Csv, {"1001"_q}, false);
    QDesktopServices::unsetUrlHandler("file"_q);
    QCOMPARE(m_opened.size(), 1);
    QVERIFY(m_opened[0].toString().startsWith("file:///"_q));
    QCOMPARE(m_opened[0].toLocalFile(), m_path);
    QVERIFY(!m_opened[0].hasFragment() && !m_opened[0].hasQuery());

    qputenv("PATH", ""); // no program that could open it
    told();
    FileExports::offerToOpen(*m_host, m_path);
    QCOMPARE(
        told().mid(3, 2),
        (QStringList{"Error"_q, "The desktop has no program that opens \"%1\"."_q.arg(m_path)}));
}

void FileExportsTest::theMenuExportsAllLines()
{
    ExportDesignCommand unsurveyed("form=csv,unsurveyed=1", m_host.get());
    ExportSurveyCommand results("form=csv", m_host.get());
    QVERIFY(!unsurveyed.isEnabled() && !results.isEnabled());
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    QVERIFY(unsurveyed.isEnabled() && results.isEnabled());
    unsurveyed.execute();
    QCOMPARE(told().last(), "Points: 1, lines: 1."_q);
    results.execute();
    QCOMPARE(told().last(), "Points: 3, lines: 2."_q);
    m_path.clear();
    m_requests.clear();
    ExportDesignCommand("form=db", m_host.get()).execute();
    ExportDesignCommand("form=kml", m_host.get()).execute();
    ExportSurveyCommand("form=kml", m_host.get()).execute();
    QCOMPARE(m_requests.filter("("_q),
             (QStringList{"db file(*.db)"_q, "Kml file(*.kml)"_q, "Kml file(*.kml)"_q}));
}

QTEST_MAIN(FileExportsTest)
#include "FileExportsTest.moc"

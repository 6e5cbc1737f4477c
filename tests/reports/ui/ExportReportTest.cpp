#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "reports/ReportKinds.h"
#include "reports/ui/ExportReportCommand.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"
#include "tests/support/WorkbookReader.h"

#include <memory>

namespace {

using Button = LumMessageBox::Button;

constexpr std::int64_t kDayMs = 86400000;
constexpr std::int64_t kNoonMs = 1700020800000; // 2023/11/15 12:00 in UTC+8

template <class Widget>
Widget& child(QDialog& dialog, const char* name)
{
    auto* const widget = dialog.findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr)
        qFatal("no child %s", name);
    return *widget;
}

QString hint(QDialog& dialog)
{
    return child<QLabel>(dialog, "hint").text();
}

SurveyPoint result(int number, const char* surveyor, std::int64_t time)
{
    SurveyPoint point = surveyPoint("1001", std::to_string(number));
    point.surveyor = surveyor;
    point.dateTime = time;
    return point;
}

} // namespace

class ExportReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_project = std::make_unique<OpenProject>();
        m_frame = std::make_unique<QWidget>();
        m_project->host.frame = m_frame.get();
        m_frame->show();
        for (const auto& [number, surveyor, days] :
             {std::tuple(1, "Li", 0), {2, "Wu", 0}, {3, "Li", 1}, {4, "Wu", 1}, {5, "Wu", 1}})
            m_project->results().set(result(number, surveyor, kNoonMs + days * kDayMs));
        open("block 7");
    }

    void cleanup()
    {
        m_frame.reset();
        m_project.reset();
    }

    void whatWasChosenIsWrittenAndRemembered()
    {
        const QStringList texts = run([&](QDialog& dialog) {
            QCOMPARE(child<QLineEdit>(dialog, "survey-results").text(),
                     "block 7 survey-results.xlsx"_q);
            typeOver(child<QLineEdit>(dialog, "survey-results"), "block 7 final"_q);
            for (const ReportKind& kind : reportKinds()) {
                auto& isWanted = child<QCheckBox>(dialog, kind.name);
                if (kind.name != std::string("results"))
                    QTest::mouseClick(&isWanted, Qt::LeftButton, {}, {5, isWanted.height() / 2});
            }
            QTest::keyClick(&buttonOf(dialog, "This day:"), Qt::Key_Space);
            auto& crews = *dialog.findChild<QListWidget*>();
            QCOMPARE(crews.item(0)->text(), "Li (2)"_q);
            crews.setFocus();
            QTest::keyClick(&crews, Qt::Key_Space);
            QCOMPARE(hint(dialog), "Results in the reports: 2 of 5."_q);
            QTest::keyClick(&crews, Qt::Key_Return);
        });
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts[0].startsWith("block 7 final.xlsx\n"_q) && texts[0].contains(": 2"_q),
                 qPrintable(texts[0]));
        QCOMPARE(m_project->host.told, "Reports written: 1 of 1."_q);
        // The heading, and the results of Wu on the later day.
        QCOMPARE(WorkbookReader(file("block 7/block 7 final.xlsx")).rows("Results"_q).size(),
                 std::size_t(3));

        m_project->results().set(result(6, "Wu", kNoonMs + 2 * kDayMs));
        m_project->results().set(result(7, "Xu", kNoonMs + 2 * kDayMs));
        const auto look = [&](const char* name, const char* expected) {
            run([&](QDialog& dialog) {
                QCOMPARE(child<QLineEdit>(dialog, "survey-results").text(),
                         QString::fromUtf8(name));
                QVERIFY(hint(dialog).startsWith(QString::fromUtf8(expected)));
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            QVERIFY(QApplication::activeModalWidget() == nullptr);
        };
        // The day follows the results, and who is new is chosen.
        look("block 7 final", "Results in the reports: 2 of 7.");
        open("block 8");
        look("block 8 final", "Results in the reports: 7 of 7.");
    }

    void badNamesAreToldAtOnce()
    {
        QVERIFY(QDir().mkdir(file("block 7/folder.xlsx")));
        QVERIFY(QFile::link(file("block 7/block 7.kelx"), file("block 7/own.xlsx")));
        run([&](QDialog& dialog) {
            auto& name = child<QLineEdit>(dialog, "survey-results");
            const auto& exports = buttonOf(dialog, "Export");
            for (const auto& [typed, told] :
                 {std::pair(""_q, "Please enter a file name."_q),
                  {"a/b"_q, "A file name cannot contain \"/\"."_q},
                  {"?"_q, "A file name cannot contain \"?\"."_q},
                  {"a "_q, "A file name cannot begin or end"_q},
                  {"AUX.xlsx"_q, "Some systems cannot have"_q},
                  {QString(240, QLatin1Char('x')), "The file name is too long."_q},
                  {"folder"_q, "\"folder.xlsx\" is a folder."_q},
                  {"own"_q, "belongs to the open project"_q}}) {
                typeOver(name, typed);
                QVERIFY2(hint(dialog).contains(told), qPrintable(hint(dialog)));
                QVERIFY(!exports.isEnabled());
                QTest::keyClick(&name, Qt::Key_Return);
                QVERIFY(dialog.isVisible());
            }
            typeOver(name, "good"_q);
            QVERIFY(exports.isEnabled());
            auto& folder =
                child<QLineEdit>(dialog, "folder"); // its path is Chinese: no keys for it
            folder.setText(file("none"));
            QVERIFY(hint(dialog).contains("does not exist"_q) && !exports.isEnabled());
            folder.setText(file("block 7"));
            QTest::keyClick(&buttonOf(dialog, "From:"), Qt::Key_Space);
            child<QDateEdit>(dialog, "first").setDate({2030, 1, 1});
            QVERIFY(hint(dialog).contains("ends before it begins"_q) && !exports.isEnabled());
            QTest::keyClick(&buttonOf(dialog, "All results"), Qt::Key_Space);
            QTest::keyClick(&buttonOf(dialog, "All crews"), Qt::Key_Space);
            QVERIFY(!exports.isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(QDir(file("block 7")).entryList(QDir::Files | QDir::System),
                 QStringList("own.xlsx"_q));
    }

    void existingFilesAreAskedAboutOnce()
    {
        const int count = static_cast<int>(reportKinds().size());
        const QString kept = m_folder->write("block 7/block 7 survey-results.xlsx", "kept");
        QStringList asked;
        Button answer = Button::No;
        const LumMessageBox::Responder responder([&](const auto& message) {
            asked << message.text;
            return answer;
        });
        const QStringList texts = run([&](QDialog& dialog) {
            const QString told = count == 1
                                     ? "The file exists and will be replaced."_q
                                     : "1 of %1 files exist and will be replaced."_q.arg(count);
            QVERIFY2(hint(dialog).endsWith(told), qPrintable(hint(dialog)));
            QTest::keyClick(&dialog, Qt::Key_Return);
            QCOMPARE(asked, QStringList(told + " Go on?"_q));
            QVERIFY(dialog.isVisible());
            QCOMPARE(TestFolder::read(kept), "kept");
            answer = Button::Yes;
            QTest::mouseClick(&buttonOf(dialog, "Export"), Qt::LeftButton);
        });
        QCOMPARE(asked.size(), 2);
        QCOMPARE(texts.size(), count);
        QVERIFY(TestFolder::read(kept).startsWith("PK"));
    }

    void cancellingLeavesNothing()
    {
        for (int number = 100; number < 60000; ++number)
            m_project->results().set(result(number, "Li", kNoonMs));
        bool wasModal = false;
        whenDialog(*m_frame, "QProgressDialog", [&](QDialog& dialog) {
            wasModal = dialog.windowModality() == Qt::ApplicationModal;
            QTest::keyClick(&dialog, Qt::Key_Return); // as after a key held down
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.findChildren<QShortcut*>().size(), 1); // two of Escape cancel nothing
            QTest::mouseClick(&buttonOf(dialog, "Cancel"), Qt::LeftButton);
        });
        const QStringList texts =
            run([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        QVERIFY(wasModal);
        QVERIFY2(texts.last().contains("cancelled"_q), qPrintable(texts.last()));
        QCOMPARE(QDir(file("block 7")).entryList(QDir::Files), QStringList());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void aFailureIsNamedAndStopsNoOther()
    {
        const ReportKind& first = reportKinds().front();
        const QString path =
            m_folder->write("block 7/block 7 %1.xlsx"_q.arg(QLatin1String(first.fileName)), "");
        const LumMessageBox::Responder responder([&](const auto& /*message*/) {
            QFile::remove(path); // a folder comes in its place while the user is asked
            QDir().mkdir(path);
            return Button::Yes;
        });
        const QStringList texts =
            run([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        const auto count = static_cast<int>(reportKinds().size());
        QCOMPARE(m_project->host.told, "Reports written: %1 of %2."_q.arg(count - 1).arg(count));
        QVERIFY2(texts.first().section(QLatin1Char('\n'), 1).contains(QFileInfo(path).fileName()),
                 qPrintable(texts.first()));
        QCOMPARE(QDir(file("block 7")).entryList(QDir::Files).size(), count - 1);
    }

private:
    void open(const char* project);
    /// Runs the command; the last dialog is closed by Escape. \returns the texts of its reports
    QStringList run(std::function<void(QDialog&)> choose);
    [[nodiscard]] QString file(const char* name) const { return m_folder->path(name); }

    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<TestFolder> m_folder;
};

void ExportReportTest::open(const char* project)
{
    IDictionary& values = get_system_status_dictionary();
    values.set(status::kProjectOpen, "1");
    values.set(status::kProjectName, project);
    values.set(status::kProjectPath, file(project).toStdString());
    QVERIFY(QDir().mkpath(file(project)));
}

QStringList ExportReportTest::run(std::function<void(QDialog&)> choose)
{
    QStringList texts;
    QObject context;
    whenDialog(context, "DlgExportReport", std::move(choose));
    whenDialog(context, "DlgReportResults", [&](QDialog& dialog) {
        for (const ReportKind& kind : reportKinds()) {
            if (const auto* const label = dialog.findChild<QLabel*>(QLatin1String(kind.name)))
                texts << label->text();
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    ExportReportCommand("", &m_project->host).execute();
    return texts;
}

QTEST_MAIN(ExportReportTest)
#include "ExportReportTest.moc"

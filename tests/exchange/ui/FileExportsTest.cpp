#include "exchange/ui/FileExports.h"

#include "exchange/ui/ExportCommands.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QDesktopServices>
#include <QtTest>

namespace {

using FileExports::Form;

/// A project of three points, and a user who exports it.
struct Project : OpenProject
{
    Project()
    {
        for (const auto& [line, number, state] :
             {std::tuple("1001", "1", 1), {"1001", "2", 0}, {"1002", "1", 1}}) {
            design().set(designPoint(line, number, 0, state));
            results().set(surveyPoint(line, number));
        }
        const QString replace = "The file \"%1\" exists already. Replace it?"_q;
        boxes.answers[replace.arg(path)] = Boxes::Button::Yes;
    }
    /// What the last box tells: how much was written, or why nothing.
    [[nodiscard]] QString amount() const
    {
        return boxes.last.details.section(QLatin1Char('\n'), 0, 0);
    }

    TestFolder folder;
    QString path = folder.path("points.csv"); ///< what the user chooses
    QStringList requests;
    FileDialog::Responder files{[this](const auto& request) {
        requests << request.title + QLatin1Char('|') + request.filter;
        return path;
    }};
    Boxes boxes;
};

const QStringList kFailed{"Error|Export Failed!"_q};

} // namespace

class FileExportsTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteUrl(const QUrl& url) { m_opened << url; }

private Q_SLOTS:
    void tellsHowMuchWasWritten()
    {
        Project project;
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
            FileExports::exportDesign(project.host, Form::Csv, lines, onlyUnsurveyed);
            QCOMPARE(project.boxes.told().last(), "Success|Export Succeed, Open it?"_q);
            QCOMPARE(project.amount(), amount);
            QCOMPARE(TestFolder::read(project.path).count('\n'), 1 + amount.mid(8, 1).toInt());
        }
        QCOMPARE(project.requests[0], "Input Saving File Name|csv file(*.csv)"_q);
        FileExports::exportSurvey(project.host, Form::Csv, {"1001"_q});
        QCOMPARE(project.amount(), "Points: 2, lines: 1."_q);
        QStringList& captions = project.manager->exportCaptions();
        captions = project.manager->surveyCaptions().mid(1, 3); // no line number
        FileExports::exportSurvey(project.host, Form::Csv, {"1001"_q});
        QCOMPARE(project.amount(), "Points: 0, lines: 0."_q);
        QCOMPARE(TestFolder::read(project.path).count('\n'), 1);
    }

    void whatCannotBeWrittenIsTold()
    {
        Project project;
        const QString path = std::exchange(project.path, {}); // cancelled
        FileExports::exportDesign(project.host, Form::Csv, {"1001"_q}, false);
        FileExports::exportSurvey(project.host, Form::Csv, {"1001"_q});
        QCOMPARE(project.boxes.told(), QStringList());
        project.path = project.folder.path("missing/points.csv");
        FileExports::exportDesign(project.host, Form::Csv, {"1001"_q}, false);
        QCOMPARE(project.boxes.told(), kFailed);
        QVERIFY2(project.amount().contains(project.path), qPrintable(project.amount()));
        project.path = path;
        project.folder.write("points.csv", "before");
        const SmallFiles fullDisk(20);
        FileExports::exportSurvey(project.host, Form::Csv, {"1001"_q});
        QCOMPARE(project.boxes.told().mid(1), kFailed);
        QCOMPARE(TestFolder::read(path), "before");
    }

    void theDesktopOpensAnyPath()
    {
        Project project;
        QDesktopServices::setUrlHandler("file"_q, this, "noteUrl");
        project.path = project.folder.path("a # 100%25 测线?.csv");
        project.boxes.answer = Boxes::Button::Yes;
        FileExports::exportDesign(project.host, Form::Csv, {"1001"_q}, false);
        QDesktopServices::unsetUrlHandler("file"_q);
        QCOMPARE(m_opened.size(), 1);
        QVERIFY(m_opened[0].toString().startsWith("file:///"_q));
        QCOMPARE(m_opened[0].toLocalFile(), project.path);
        QVERIFY(!m_opened[0].hasFragment() && !m_opened[0].hasQuery());

        qputenv("PATH", ""); // no program that could open it
        project.boxes.told();
        FileExports::offerToOpen(project.host, project.path);
        QCOMPARE(project.boxes.told().last(),
                 "Error|The desktop has no program that opens \"%1\"."_q.arg(project.path));
    }

    void theMenuExportsAllLines()
    {
        Project project;
        ExportDesignCommand unsurveyed("form=csv,unsurveyed=1", &project.host);
        ExportSurveyCommand results("form=csv", &project.host);
        unsurveyed.execute();
        QCOMPARE(project.amount(), "Points: 1, lines: 1."_q);
        results.execute();
        QCOMPARE(project.amount(), "Points: 3, lines: 2."_q);
        project.path.clear();
        ExportDesignCommand("form=db", &project.host).execute();
        ExportDesignCommand("form=kml", &project.host).execute();
        ExportSurveyCommand("form=kml", &project.host).execute();
        QCOMPARE(project.requests.mid(2).replaceInStrings("Input Saving File Name|"_q, QString()),
                 (QStringList{"db file(*.db)"_q, "Kml file(*.kml)"_q, "Kml file(*.kml)"_q}));
        QVERIFY(unsurveyed.isEnabled() && results.isEnabled());
        project.tellProject("");
        QVERIFY(!unsurveyed.isEnabled() && !results.isEnabled());
    }

private:
    QList<QUrl> m_opened;
};

QTEST_MAIN(FileExportsTest)
#include "FileExportsTest.moc"

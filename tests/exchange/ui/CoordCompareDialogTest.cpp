#include "basalt_utilities/KeyList.h"
#include "exchange/ui/CoordParameterModel.h"
#include "exchange/ui/DlgCoordCompare.h"
#include "exchange/ui/FileImports.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "tests/project/OpenProject.h"
#include "tests/project/TestProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

#include <QAbstractItemModelTester>

namespace {

constexpr const char* kOwn = "ellipsoid_a=6378137,ellipsoid_f=298.257223563,project_type=1,"
                             "org_lon=117,false_east=500000,factor=1";
constexpr const char* kTheirs = "ellipsoid_a=6378137,ellipsoid_f=298.257223563,project_type=1,"
                                "org_lon=117,false_east=500100,factor=1,_4valid=0,geoid_valid=1,"
                                "geoid_file=/x.gtx";

basalt::Dictionary systemOf(const char* keys)
{
    basalt::Dictionary parameters;
    csa_to_dictionary(parameters, keys);
    return parameters;
}

/// On the central meridian; row 2 has no place.
std::vector<SurveyPoint> records()
{
    std::vector<SurveyPoint> all;
    for (int i = 0; i < 200; ++i) {
        SurveyPoint point = surveyPoint("L<1>", std::to_string(i));
        point.latitude = i == 2 ? 95 : i * 0.001;
        point.longitude = 117;
        point.altitude = 10;
        point.elevation = 10;
        get_project_coord_transform().transform(1, 1, 2, 4, point.latitude, 117, 10, &point.north,
                                                &point.east, &point.elevation);
        point.east += 100;
        all.push_back(point);
    }
    return all;
}

} // namespace

class CoordCompareDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_project = std::make_unique<OpenProject>();
        m_project->manager->setCoordSystem(systemOf(kOwn));
        OpenProject::status().set(status::kProjectPath, m_folder->path().toStdString());
        OpenProject::status().set(status::kProjectName, "own");
        m_asked.clear();
        m_boxes = std::make_unique<Boxes>();
        m_files = std::make_unique<FileDialog::Responder>([this](const auto& request) {
            m_asked << request.title << request.filter;
            return m_path;
        });
    }

    void cleanup()
    {
        m_files.reset();
        m_boxes.reset();
        m_project.reset();
    }

    void showsBothSystemsRowsAndFigures()
    {
        OpenProject::status().set(status::kDegreeFormat, "1");
        const auto shown = dialog();
        QVERIFY(shown->findChild<QLabel*>("head"_q)->text().contains(
            "\"theirs.db\": its coordinate system is not the project's. Parameters that differ: 2."_q));
        const auto* const parameters =
            shown->findChild<CustomTableWidget*>("parameters"_q)->model();
        const auto cell = [&](int row, int column) {
            return parameters->index(row, column).data().toString();
        };
        QCOMPARE(cell(0, 0) + cell(0, 1), "≠Projection: False easting"_q);
        QCOMPARE(cell(0, 2) + " / "_q + cell(0, 3), "500100 m / 500000 m"_q);
        QCOMPARE(cell(1, 0) + cell(1, 1), "≠Geoid: Use geoid"_q);
        QCOMPARE(cell(2, 0), QString());
        QVERIFY(parameters->index(0, 2).data(Qt::BackgroundRole).isValid() &&
                !parameters->index(2, 2).data(Qt::BackgroundRole).isValid());
        auto* const table = shown->findChild<CustomTableWidget*>("rows"_q);
        QCOMPARE(table->model()->rowCount(), 200);
        QCOMPARE(table->model()->index(1, 2).data().toString(), "0deg0min3.600sec"_q);
        QCOMPARE(table->model()->index(1, 12).data().toString(), "-100.000"_q);
        QCOMPARE(
            shown->findChild<QLabel*>("sentence"_q)->text(),
            "A constant shift on the plane: north 0.000 m, east -100.000 m; the heights are the "
            "same."_q);
        QVERIFY(shown->findChild<QLabel*>("exceptions"_q)
                    ->text()
                    .startsWith("Results that could not be compared: 1."_q));
        bool hasLink = false;
        for (auto* const label : shown->findChildren<QLabel*>()) {
            if (!label->text().startsWith("<a href=\"0\">L&lt;1&gt; / 0"_q))
                continue;
            hasLink = true;
            table->scrollToBottom();
            Q_EMIT label->linkActivated("0"_q);
            QCOMPARE(table->selectedRows(), std::vector<int>{0});
        }
        QVERIFY(hasLink);
        QTest::keyClick(shown.get(), Qt::Key_Escape);
        QVERIFY(!shown->isVisible());
    }

    void exportsWithTheTextsOfBothForms()
    {
        const auto shown = dialog();
        for (const auto& [button, suffix] :
             {std::pair("Export To Excel", ".xlsx"_q), {"Export To Csv", ".csv"_q}}) {
            const QString name = QString::fromUtf8(button);
            m_asked.clear();
            m_path = m_folder->path("对比 1"); // gets the suffix
            press(*shown, button);
            QCOMPARE(m_asked, QStringList({"Get Save File Name"_q, "*"_q + suffix}));
            QCOMPARE(m_boxes->told(), QStringList("Success|%1 Success!"_q.arg(name)));
            QVERIFY(TestFolder::read(m_path + suffix).size() > 5000);
            m_path = m_folder->path("none/x"_q + suffix);
            press(*shown, button);
            QCOMPARE(m_boxes->told(), QStringList("Fail|%1 Failed!"_q.arg(name)));
            QVERIFY(m_boxes->last.details.contains(m_path));
            m_path.clear();
            press(*shown, button);
            QVERIFY(m_boxes->told().isEmpty() && shown->isVisible());
        }
    }

    void filesThatAreInUseAreNotReplaced()
    {
        const auto shown = dialog();
        m_boxes->answer = Boxes::Button::Yes;
        for (const char* name : {"own.db", "theirs.db"}) {
            m_path = m_folder->write(name, "before");
            press(*shown, "Export To Csv");
            QCOMPARE(m_boxes->told().last(), "Fail|Export To Csv Failed!"_q);
            QCOMPARE(TestFolder::read(m_path), QByteArray("before"));
        }
    }

    /// From the menu to Escape: one dialog, no further box, nothing imported.
    void anImportOfAnotherSystemIsToldOnce()
    {
        const QString path = m_folder->path("theirs.db");
        QVERIFY(makeDatabase(path.toStdString()));
        TestProject theirs;
        theirs.coordParameters = systemOf(kTheirs);
        for (const SurveyPoint& record : records())
            theirs.survey.set(record);
        QVERIFY(theirs.save(path.toStdString()).isDone());
        m_project->manager->setOtherSystemHandler([this](const QString& file, SurveyRecords other) {
            DlgCoordCompare::tell(m_project->host, file, std::move(other));
        });
        int shown = 0;
        whenDialog(*this, "DlgCoordCompare", [&](QDialog& dialog) {
            ++shown;
            QVERIFY(QGuiApplication::overrideCursor() == nullptr);
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        });
        QVERIFY(!FileImports::importSurveyDatabase(m_project->host, path));
        QCOMPARE(shown, 1);
        QVERIFY(m_boxes->told().isEmpty() && m_project->results().empty() &&
                !m_project->manager->isChanged());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

private:
    std::unique_ptr<DlgCoordCompare> dialog()
    {
        auto made = std::make_unique<DlgCoordCompare>(m_project->host, m_folder->path("theirs.db"),
                                                      systemOf(kOwn),
                                                      SurveyRecords{systemOf(kTheirs), records()});
        QAbstractItemModelTester::FailureReportingMode mode =
            QAbstractItemModelTester::FailureReportingMode::QtTest;
        for (auto* const table : made->findChildren<CustomTableWidget*>())
            new QAbstractItemModelTester(table->model(), mode, table);
        made->show();
        return made;
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<Boxes> m_boxes;
    std::unique_ptr<FileDialog::Responder> m_files;
    QStringList m_asked;
    QString m_path; ///< what the user chooses
};

QTEST_MAIN(CoordCompareDialogTest)
#include "CoordCompareDialogTest.moc"

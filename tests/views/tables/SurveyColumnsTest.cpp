
#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "exchange/ExportColumns.h"
#include "tests/project/OpenProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Widgets.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/ColumnListModel.h"
#include "views/tables/DlgSurveyColumns.h"
#include "views/tables/SurveyTableColumns.h"
#include "views/tables/SurveyTableHideCommand.h"

#include <QAbstractItemModelTester>

namespace {

/// One of the dialog's two lists, with what stands around it.
struct Panel
{
    Panel(const QWidget& dialog, int index)
        : box(dialog.findChildren<QGroupBox*>()[index]), search(box->findChild<QLineEdit*>()),
          list(box->findChild<QListView*>())
    {
    }
    void press(const char* text) const { ::press(*box, text); }
    [[nodiscard]] QString said() const { return box->findChild<QLabel*>()->text(); }

    QGroupBox* box;
    QLineEdit* search;
    QListView* list;
};

} // namespace

class SurveyColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project.emplace(); }
    void settingsOfAnyKindGiveAChoice()
    {
        basalt::Dictionary values;
        QCOMPARE(columnChoice(values).order, surveyTableKeys());
        QVERIFY(columnChoice(values).hidden.isEmpty());

        values.set("survey_table_columns", " rms ,gone,line_num,rms,,RMS");
        values.set("survey_table_hidden", "north,gone,north, sat_detail");
        const ColumnChoice choice = columnChoice(values);
        QCOMPARE(choice.order.size(), 43);
        QCOMPARE(choice.order.mid(0, 4),
                 QStringList({"rms"_q, "line_num"_q, "point_num"_q, "point_mark"_q}));
        QCOMPARE(choice.hidden, QStringList({"north"_q, "sat_detail"_q}));

        basalt::Dictionary again;
        setColumnChoice(again, choice);
        QCOMPARE(columnChoice(again).order, choice.order);
        QCOMPARE(columnChoice(again).hidden, choice.hidden);

        setColumnChoice(again, {surveyTableKeys(), surveyTableKeys()});
        QCOMPARE(again.text("survey_table_columns"), std::string_view());
        QCOMPARE(columnChoice(again).hidden.size(), 42);
    }

    void okStoresBothLists()
    {
        const EventLog log(m_project->host.events, "ON_SURVEY_COLUMNS_CHANGED");
        settings().set("survey_table_hidden", "north");
        const auto dialog = show();
        const Panel table(*dialog, 0);
        const Panel exported(*dialog, 1);
        QCOMPARE(table.said(), "42 of 43 columns checked"_q);
        table.list->setFocus();
        QTest::keyClick(table.list, Qt::Key_Space); // line number
        exported.press("None");
        QCOMPARE(exported.said(), "2 of 50 columns checked"_q);
        exported.search->setFocus();
        QTest::keyClicks(exported.search, "RMS"_q);
        exported.press("All Shown");
        press(*dialog, "OK");
        QVERIFY(!dialog->isVisible());
        QCOMPARE(columnChoice(settings()).hidden, QStringList({"line_num"_q, "north"_q}));
        const QStringList keys{"line_num"_q, "point_num"_q, "rms"_q};
        QCOMPARE(exportColumns(settings()), keys);
        QCOMPARE(DataProcessDataManager::instance().exportCaptions(), exportCaptions(keys));
        QCOMPARE(log.events.size(), std::size_t(1));

        get_system_ini_parameter().load("/no such file");
        QVERIFY(QFile::exists(QString::fromStdString(basalt::settingsFolder() + "/settings.xml")));
    }

    void escapeChangesNothing()
    {
        const EventLog log(m_project->host.events, "ON_SURVEY_COLUMNS_CHANGED");
        const auto dialog = show();
        Panel(*dialog, 0).press("None");
        Panel(*dialog, 1).press("None");
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(settings().size(), std::size_t(0));
        QVERIFY(log.events.empty());
        QVERIFY(SurveyTableHideCommand("", &m_project->host).isEnabled());
    }

    void typingNarrowsWhatAllAndNoneConcern()
    {
        const auto dialog = show();
        const Panel table(*dialog, 0);
        QTest::keyClicks(table.search, "DOP"_q);
        QCOMPARE(table.said(), "43 of 43 columns checked; 3 shown"_q);
        QCOMPARE(table.list->currentIndex().data().toString(), "pdop"_q);
        table.press("None Shown");
        QCOMPARE(table.said(), "40 of 43 columns checked; 3 shown"_q);
        QTest::keyClick(table.search, Qt::Key_Return); // to the list, not out of the dialog
        QVERIFY(dialog->isVisible());
        QVERIFY(table.list->hasFocus());
        table.search->clear();
        table.press("None");
        QCOMPARE(table.said(), "1 of 43 columns checked"_q);
        table.list->setCurrentIndex(table.list->model()->index(0, 0));
        QTest::keyClick(table.list, Qt::Key_Space); // the last one stays
        QCOMPARE(table.said(), "1 of 43 columns checked"_q);
        table.press("Default");
        QCOMPARE(table.said(), "43 of 43 columns checked"_q);
    }

    /// As a drag moves them.
    void rowsAreMovedTogether()
    {
        ColumnListModel model({{"a"_q, "A"_q, true},
                               {"b"_q, "B"_q, false},
                               {"c"_q, "C"_q, false},
                               {"d"_q, "D"_q, false},
                               {"e"_q, "E"_q, false},
                               {"f"_q, "F"_q, false}});
        const QAbstractItemModelTester tester(&model);
        const auto order = [&] { return model.allKeys().join(QString()); };
        QVERIFY(model.moveRows({}, 1, 2, {}, 6)); // down
        QCOMPARE(order(), "adefbc"_q);
        QVERIFY(model.moveRows({}, 4, 2, {}, 1)); // up again
        QCOMPARE(order(), "abcdef"_q);
        for (const auto& [from, count, to] :
             {std::tuple(-1, 1, 3), std::tuple(5, 2, 0), std::tuple(3, 2, 4), std::tuple(3, 0, 5),
              std::tuple(3, 1, 7), std::tuple(6, 1, 0)})
            QVERIFY(!model.moveRows({}, from, count, {}, to));
        model.set({"e"_q, "gone"_q, "c"_q}, {"c"_q, "gone"_q, "d"_q});
        QCOMPARE(order(), "ecabdf"_q);
        QCOMPARE(model.checkedKeys().join(QString()), "cad"_q); // "a" is needed
    }

private:
    std::unique_ptr<DlgSurveyColumns> show()
    {
        auto dialog = std::make_unique<DlgSurveyColumns>(nullptr, m_project->host.events);
        dialog->show();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(dialog.get());
        return dialog;
    }
    [[nodiscard]] static IDictionary& settings() { return OpenProject::settings(); }

    std::optional<OpenProject> m_project;
};

QTEST_MAIN(SurveyColumnsTest)
#include "SurveyColumnsTest.moc"

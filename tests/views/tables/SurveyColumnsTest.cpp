#include "model/SurveyColumns.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "exchange/ExportColumns.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/DlgSurveyColumns.h"
#include "views/tables/SurveyTableColumns.h"
#include "views/tables/SurveyTableHideCommand.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace {

/// One of the dialog's two lists, with what stands around it.
struct Panel
{
    Panel(const QWidget& dialog, int index)
        : box(dialog.findChildren<QGroupBox*>()[index]), search(box->findChild<QLineEdit*>()),
          list(box->findChild<QListView*>())
    {
    }
    void press(const char* text) const
    {
        for (auto* const button : box->findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(text))
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QFAIL(text);
    }
    [[nodiscard]] QString said() const { return box->findChild<QLabel*>()->text(); }

    QGroupBox* box;
    QLineEdit* search;
    QListView* list;
};

void press(const QWidget& dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

} // namespace

class SurveyColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void settingsOfAnyKindGiveAChoice();
    void okStoresBothLists();
    void escapeChangesNothing();
    void typingNarrowsWhatAllAndNoneConcern();
    void theKeyboardOrders();
    void aLostSettingsFileIsTold();

private:
    std::unique_ptr<DlgSurveyColumns> show()
    {
        auto dialog = std::make_unique<DlgSurveyColumns>(nullptr, m_host->events);
        dialog->show();
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(dialog.get());
        return dialog;
    }
    [[nodiscard]] static IDictionary& settings() { return get_system_ini_parameter().dictionary(); }

    std::unique_ptr<TestHost> m_host;
};

void SurveyColumnsTest::init()
{
    m_host = std::make_unique<TestHost>();
    settings().clear();
}

void SurveyColumnsTest::settingsOfAnyKindGiveAChoice()
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

void SurveyColumnsTest::okStoresBothLists()
{
    const DataProcessDataManager manager(m_host.get());
    const EventLog log(m_host->events, "ON_SURVEY_COLUMNS_CHANGED");
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
    press(*dialog, QDialogButtonBox::Ok);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(columnChoice(settings()).hidden, QStringList({"line_num"_q, "north"_q}));
    const QStringList keys{"line_num"_q, "point_num"_q, "rms"_q};
    QCOMPARE(exportColumns(settings()), keys);
    QCOMPARE(DataProcessDataManager::instance().exportCaptions(), exportCaptions(keys));
    QCOMPARE(log.events.size(), std::size_t(1));

    get_system_ini_parameter().load("/no such file");
    QVERIFY(QFile::exists(QString::fromStdString(basalt::settingsFolder() + "/settings.xml")));
}

void SurveyColumnsTest::escapeChangesNothing()
{
    const EventLog log(m_host->events, "ON_SURVEY_COLUMNS_CHANGED");
    const auto dialog = show();
    Panel(*dialog, 0).press("None");
    Panel(*dialog, 1).press("None");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(settings().size(), std::size_t(0));
    QVERIFY(log.events.empty());
    QVERIFY(SurveyTableHideCommand("", m_host.get()).isEnabled());
}

void SurveyColumnsTest::typingNarrowsWhatAllAndNoneConcern()
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
    QTest::keyClick(table.list, Qt::Key_Space);
    QCOMPARE(table.said(), "41 of 43 columns checked; 3 shown"_q);
    QTest::keyClicks(table.search, "x"_q);
    QCOMPARE(table.said(), "No column has this name."_q);
    QTest::keyClick(table.search, Qt::Key_Up, Qt::AltModifier);
    table.search->clear();
    table.press("None");
    QCOMPARE(table.said(), "1 of 43 columns checked"_q);
    table.press("Default");
    QCOMPARE(table.said(), "43 of 43 columns checked"_q);
}

void SurveyColumnsTest::theKeyboardOrders()
{
    const auto dialog = show();
    const Panel table(*dialog, 0);
    const auto captionAt = [&](int row) { return table.list->model()->index(row, 0).data(); };
    table.list->setFocus();
    QTest::keyClick(table.list, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(table.list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(captionAt(2).toString(), "line num"_q);
    QCOMPARE(table.list->currentIndex().row(), 2);
    QTest::keyClick(table.list, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(captionAt(1).toString(), "line num"_q);
    QTest::keyClicks(table.search, "num"_q); // line, point, sat, epoch num
    QTest::keyClick(table.search, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(captionAt(18).toString(), "line num"_q); // behind the satellites
    press(*dialog, QDialogButtonBox::Ok);
    QCOMPARE(columnChoice(settings()).order.indexOf("line_num"_q), 18);
}

void SurveyColumnsTest::aLostSettingsFileIsTold()
{
    const QString file = QString::fromStdString(basalt::settingsFolder() + "/settings.xml");
    QFile::remove(file);
    QVERIFY(QDir().mkpath(file)); // a folder cannot be written
    QStringList told;
    const LumMessageBox::Responder responder([&](const auto& message) {
        told << message.text;
        return LumMessageBox::Button::Ok;
    });
    const auto dialog = show();
    press(*dialog, QDialogButtonBox::Ok);
    QVERIFY(QDir().rmdir(file));
    QCOMPARE(told.size(), 1);
    QVERIFY(told.first().contains("cannot be saved"_q));
    QVERIFY(!dialog->isVisible());
}

QTEST_MAIN(SurveyColumnsTest)
#include "SurveyColumnsTest.moc"

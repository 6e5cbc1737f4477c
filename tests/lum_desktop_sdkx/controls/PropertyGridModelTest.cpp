#include "lum_desktop_sdkx/controls/PropertyGridModel.h"

#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "tests/support/Literals.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace {

const QByteArray kGrid = "<property_grid>"
                         "<group caption='Limits'>"
                         "<row key='dist' caption='Distance' editor='number' min='0' max='10'"
                         " decimals='2' unit='m' default='3'/>"
                         "<row key='count' caption='Count' editor='integer'/></group>"
                         "<group caption='Empty'/>"
                         "<group caption='Other'>"
                         "<row key='on' caption='On' editor='flag'/>"
                         "<row key='path' caption='Path' read_only='1' editor='number' min='0'/>"
                         "</group></property_grid>";

PropertyGridLayout layout(const QByteArray& xml = kGrid)
{
    PropertyGridLayout result;
    const QString fault = readPropertyGridLayout(xml, result);
    Q_ASSERT_X(fault.isEmpty(), "layout", qPrintable(fault));
    return result;
}

QByteArray inGrid(const QByteArray& rows)
{
    return "<property_grid>\n<group caption=\"G\">\n" + rows + "\n</group>\n</property_grid>\n";
}

PropertyGridRow rowOf(const QByteArray& xml)
{
    return layout(inGrid(xml)).groups.front().rows.front();
}

/// A model of a grid with the values of a key list, whose rules are watched.
struct Model : PropertyGridModel
{
    explicit Model(const char* list = "", const QByteArray& xml = kGrid)
    {
        basalt::Dictionary values;
        csa_to_dictionary(values, list);
        setLayout(layout(xml));
        setValues(values);
    }
    [[nodiscard]] QModelIndex cell(const char* key) const
    {
        return indexOfKey(QString::fromUtf8(key));
    }
    bool type(const char* key, const char* text)
    {
        return setData(cell(key), QString::fromUtf8(text), Qt::EditRole);
    }

    QAbstractItemModelTester tester{this, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class PropertyGridModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German)); }

    void refusesWhatItCannotRead()
    {
        const auto check = [](const QByteArray& xml, const QByteArray& fault) {
            PropertyGridLayout layout;
            layout.groups.push_back({"before"_q, {}});
            const QString found = readPropertyGridLayout(xml, layout);
            QVERIFY2(found.startsWith(QString::fromUtf8(fault)), qPrintable(found));
            QCOMPARE(layout.groups.size(), std::size_t(1));
            QCOMPARE(layout.groups[0].caption, "before"_q);
        };
        check("", "line 1:");
        check("<property_grid>\n<group caption='G'>\n<row key='a' caption='A'", "line 3:");
        check("<property_grid>\n<group caption='G'></property_grid>", "line 2:");
        check("<property_grid/>\n<more/>", "line 2:");
        check("<dictionary/>", "line 1: <dictionary> where <property_grid> is wanted");
        check("<property_grid>\n<row key='a' caption='A'/></property_grid>",
              "line 2: <row> where <group> is wanted");
        check(inGrid("<row caption='A'/>"), "line 3: <row> without key");
        check(inGrid("<row key='a'/>"), "line 3: <row> without caption");
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"/>\n<row key='a' caption='B'/>", "the key \"a\" is given twice"},
            {"editor='slider'/>", "unknown editor \"slider\""},
            {"editor='number' mim='1'/>", "unknown attribute \"mim\" of <row>"},
            {"editor='number' min='0,5'/>", "min=\"0,5\" is no number"},
            {"editor='number' max='inf'/>", "max=\"inf\" is no number"},
            {"editor='number' min='2' max='1'/>", "min is above max"},
            {"editor='number' decimals='1.5'/>", "decimals=\"1.5\" is no count"},
            {"editor='number' letters='NS'/>", "letters=\"NS\" is neither NS nor EW of an angle"},
            {"max='1'/>", "limits on a row"},
            {"editor='choice'/>", "a choice row without <choice>"},
            {"><choice value='1' caption='x'/></row>", "<choice> in a row that is no choice"},
            {"read_only='yes'/>", "read_only=\"yes\" is neither 0 nor 1"}};
        for (const auto& [row, fault] : rows)
            check(inGrid("<row key='a' caption='A' " + row),
                  (row.contains('\n') ? "line 4: " : "line 3: ") + fault);
    }

    /// For each text, what is stored in German and in English; null when the text is refused.
    void judgesWhatIsTyped()
    {
        const auto check = [](const QByteArray& attributes, const char* typed,
                              const char* german = nullptr, const char* english = nullptr) {
            const PropertyGridRow row = rowOf("<row key='k' caption='K' " + attributes + "/>");
            const std::pair<QLocale, const char*> cases[] = {{QLocale(QLocale::German), german},
                                                             {QLocale(QLocale::English), english}};
            for (const auto& [locale, expected] : cases) {
                QLocale::setDefault(locale);
                const PropertyGridInput input =
                    readPropertyGridInput(row, QString::fromUtf8(typed));
                QVERIFY2(input.fault.isEmpty() == (expected != nullptr), typed);
                QVERIFY2(expected == nullptr || input.value == QString::fromUtf8(expected), typed);
            }
        };
        const QByteArray metres = "editor='number' min='0' max='100' decimals='3' unit='m'";
        check(metres, "0,5", "0.5", "0.5"); // no thousands: the comma is the point
        check("editor='number' min='0' max='5000'", "0,5", "0.5");
        check(metres, " 7 ", "7", "7");
        check(metres, "0", "0", "0");
        check(metres, "-0.001");
        check(metres, "100.000", "100.000", "100.000");
        check(metres, "100.001");
        check(metres, "0,125", "0.125", "0.125"); // as many decimals as allowed
        check(metres, "0.1250");                  // one decimal too many
        check(metres, "");
        check(metres, "5 m");
        check("editor='number'", "nan");
        check("editor='number'", "1e999");
        check("editor='number'", "1.234,5");
        check("editor='number'", "1,234,567"); // no grouped thousands
        check("editor='number'", "4401234.12345678901", "4401234.12345678901",
              "4401234.12345678901");
        check("editor='angle' min='-90'", "-89.999999999", "-89.999999999", "-89.999999999");
        check("editor='integer' min='-5'", "-5", "-5", "-5");
        check("editor='integer'", "6.0");
        check("editor='integer'", "99999999999999999999");
        check("editor='text'", " a, b ", " a, b ", " a, b ");
    }

    void keepsEveryByteThatCameIn()
    {
        basalt::Dictionary values;
        values.set("dist", "5.0000000000000001"); // more decimals than may be typed
        values.set("path", std::string_view("a\xff\0b", 4));
        values.set("no row", "\xe7\x82");
        values.set("count", "007");

        PropertyGridModel model;
        model.setLayout(layout());
        model.setValues(values);
        QVERIFY(!model.hasFaults());
        const QModelIndex count = model.indexOfKey("count"_q);
        QVERIFY(!model.setData(count, count.data(Qt::EditRole), Qt::EditRole));
        QVERIFY(model.setData(model.indexOfKey("on"_q), Qt::Checked, Qt::CheckStateRole));

        const basalt::Dictionary& after = model.values();
        QCOMPARE(after.size(), values.size() + 1);
        for (std::size_t i = 0; i < values.size(); ++i) {
            QVERIFY(after.keyAt(i) == values.keyAt(i));
            QVERIFY(after.valueAt(i) == values.valueAt(i));
        }
        QVERIFY(after.text("on") == "1");
    }

    void marksStoredFaultsThatTheUserCanMend()
    {
        // "path" is below its limit, but read-only; "count" was never filled in
        Model model("dist=-2.5,path=-1,count=");
        QCOMPARE(model.fault(model.cell("dist")), "Enter a number from 0 m to 10 m."_q);
        QVERIFY(model.fault(model.cell("path")).isEmpty());
        QVERIFY(model.fault(model.cell("count")).isEmpty());
        QVERIFY(model.values().text("dist") == "-2.5");
        model.setValue("dist"_q, "2.5"_q);
        QVERIFY(!model.hasFaults());
    }

    void showsAnExponentAsItIsTyped()
    {
        Model model("east=-2.5e+06,a3=1.5e-09,note=2e6",
                    inGrid("<row key='east' caption='East' editor='number' unit='m'/>"
                           "<row key='a3' caption='a3' editor='number'/>"
                           "<row key='note' caption='Note'/>"));
        const QModelIndex east = model.cell("east");
        QCOMPARE(east.data().toString(), "-2500000 m"_q);
        QVERIFY(!model.setData(east, east.data(Qt::EditRole), Qt::EditRole));
        QVERIFY(model.values().text("east") == "-2.5e+06");
        model.setUnit("east"_q, "ft"_q);
        QCOMPARE(east.data().toString(), "-2500000 ft"_q);
        QCOMPARE(model.cell("a3").data().toString(), "1.5e-09"_q);
        QCOMPARE(model.cell("note").data().toString(), "2e6"_q);
    }

    void readsAnglesWithMinutesAndSeconds()
    {
        const QByteArray grid =
            inGrid("<row key='lat' caption='Lat' editor='angle' letters='NS' min='-90' max='90'/>"
                   "<row key='lon' caption='Lon' editor='angle' letters='EW' min='-360' max='360'/>"
                   "<row key='turn' caption='Turn' editor='angle'/>"
                   "<row key='len' caption='Length' editor='number'/>");
        const struct
        {
            const char* row;
            const char* typed;
            const char* stored; ///< null: refused
        } cases[] = {{"lon", "117 30 00", "117.5"},
                     {"lon", " 117\u00b030'00\" ", "117.5"},
                     {"lon", "117\u00b030\u203236.00\u2033E", "117.51"},
                     {"lon", "117\u00b0 30\u2019 36\u201d", "117.51"}, // a Chinese keyboard's
                     {"lon", "W 117:30", "-117.5"},
                     {"lon", "\u2212117 30", "-117.5"}, // a printed minus
                     {"lon", "117.250e", "117.25"},
                     {"lon", "东经117度20分24秒", "117.34"},
                     {"lat", "0 0 36 S", "-0.01"},
                     {"lat", "南纬 40度", "-40"},
                     {"lat", "40N", "40"},
                     {"turn", "-0 30 00", "-0.5"},
                     {"lat", "90 00 01", nullptr},
                     {"lat", "40E", nullptr},
                     {"lon", "117 60 00", nullptr},
                     {"lon", "117 30 60", nullptr},
                     {"lon", "117.5 30", nullptr},
                     {"lon", "-117 30 W", nullptr},
                     {"lon", "W117E", nullptr},
                     {"lon", "117 30 00 00", nullptr},
                     {"lon", "30''", nullptr},
                     {"lon", "-", nullptr},
                     {"turn", "5N", nullptr},
                     {"len", "117 30", nullptr}};
        for (const auto& [row, typed, stored] : cases) {
            Model model("", grid);
            QVERIFY2(model.type(row, typed), typed);
            QCOMPARE(model.hasFaults(), stored == nullptr);
            QCOMPARE(QByteArray::fromStdString(std::string(model.values().text(row))),
                     QByteArray(stored == nullptr ? "" : stored));
        }
        Model model("", grid);
        QVERIFY(model.type("lat", "91"));
        QCOMPARE(model.fault(model.cell("lat")),
                 "Enter an angle from -90\u00b0 to 90\u00b0, such as 30.5 or 30 30 00."_q);
    }

    void tellsEditsButNotProgrammaticChanges()
    {
        Model model;
        QCOMPARE(model.cell("dist").data().toString(), "3 m"_q); // the default
        QVERIFY(!model.values().contains("dist"));
        const QSignalSpy edited(&model, &PropertyGridModel::valueEdited);
        model.setValue("dist"_q, "4"_q);
        QVERIFY(model.type("dist", "11"));
        QVERIFY(model.type("dist", "4")); // back to the good value
        QCOMPARE(edited.count(), 0);
        QVERIFY(!model.hasFaults());
        QVERIFY(model.type("dist", "5"));
        QCOMPARE(edited.count(), 1);
        QVERIFY(!model.type("path", "5"));
    }
};

QTEST_GUILESS_MAIN(PropertyGridModelTest)
#include "PropertyGridModelTest.moc"

#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "tests/support/Literals.h"

#include <QtTest>

namespace {

QByteArray inGrid(const QByteArray& rows)
{
    return "<property_grid>\n<group caption=\"G\">\n" + rows + "\n</group>\n</property_grid>\n";
}

PropertyGridRow rowOf(const QByteArray& xml)
{
    PropertyGridLayout layout;
    const QString fault = readPropertyGridLayout(inGrid(xml), layout);
    Q_ASSERT_X(fault.isEmpty(), "rowOf", qPrintable(fault));
    return layout.groups.front().rows.front();
}

} // namespace

class PropertyGridLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWhatItCannotRead()
    {
        const auto check = [](const QByteArray& xml, const char* fault) {
            PropertyGridLayout layout;
            layout.groups.push_back({"before"_q, {}});
            const QString found = readPropertyGridLayout(xml, layout);
            QVERIFY2(found.startsWith(QLatin1String(fault)), qPrintable(found));
            QCOMPARE(layout.groups.size(), std::size_t(1));
            QCOMPARE(layout.groups[0].caption, "before"_q);
        };
        const auto checkRow = [&](const QByteArray& row, const char* fault) {
            check(inGrid(row), fault);
        };
        check("", "line 1:");
        check("<property_grid>\n<group caption='G'>\n<row key='a' caption='A'", "line 3:");
        check("<property_grid>\n<group caption='G'></property_grid>", "line 2:");
        check("<property_grid/>\n<more/>", "line 2:");
        check("<dictionary/>", "line 1: <dictionary> where <property_grid> is wanted");
        check("<property_grid>\n<row key='a' caption='A'/></property_grid>",
              "line 2: <row> where <group> is wanted");
        checkRow("<row caption='A'/>", "line 3: <row> without key");
        checkRow("<row key='a'/>", "line 3: <row> without caption");
        checkRow("<row key='a' caption='A'/>\n<row key='a' caption='B'/>",
                 "line 4: the key \"a\" is given twice");
        checkRow("<row key='a' caption='A' editor='slider'/>", "line 3: unknown editor \"slider\"");
        checkRow("<row key='a' caption='A' editor='number' mim='1'/>",
                 "line 3: unknown attribute \"mim\" of <row>");
        checkRow("<row key='a' caption='A' editor='number' min='0,5'/>",
                 "line 3: min=\"0,5\" is no number");
        checkRow("<row key='a' caption='A' editor='number' max='inf'/>",
                 "line 3: max=\"inf\" is no number");
        checkRow("<row key='a' caption='A' editor='number' min='2' max='1'/>",
                 "line 3: min is above max");
        checkRow("<row key='a' caption='A' editor='number' decimals='1.5'/>",
                 "line 3: decimals=\"1.5\" is no count");
        checkRow("<row key='a' caption='A' editor='number' letters='NS'/>",
                 "line 3: letters=\"NS\" is neither NS nor EW of an angle");
        checkRow("<row key='a' caption='A' max='1'/>", "line 3: limits on a row");
        checkRow("<row key='a' caption='A' editor='choice'/>",
                 "line 3: a choice row without <choice>");
        checkRow("<row key='a' caption='A'><choice value='1' caption='x'/></row>",
                 "line 3: <choice> in a row that is no choice");
        checkRow("<row key='a' caption='A' read_only='yes'/>",
                 "line 3: read_only=\"yes\" is neither 0 nor 1");
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

    void showsValuesWithTheirDigitsAndUnit()
    {
        const auto shown = [](const QByteArray& attributes, const char* value) {
            return shownPropertyGridValue(rowOf("<row key='k' caption='K' " + attributes),
                                          QString::fromUtf8(value));
        };
        QCOMPARE(shown("editor='number' decimals='1' unit='m'/>", "0.5000"), "0.5000 m"_q);
        QCOMPARE(shown("editor='angle'/>", "-12.5"), "-12.5°"_q);
        QCOMPARE(shown("editor='number' unit='m'/>", ""), QString());
        const QByteArray choice = "editor='choice'><choice value='1' caption='Receiver'/></row>";
        QCOMPARE(shown(choice, "1"), "Receiver"_q);
        QCOMPARE(shown(choice, "9"), "9"_q);
    }
};

QTEST_GUILESS_MAIN(PropertyGridLayoutTest)
#include "PropertyGridLayoutTest.moc"

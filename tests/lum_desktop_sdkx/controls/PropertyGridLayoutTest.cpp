#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include "lum_desktop_sdkx/controls/PropertyGridInput.h"

#include <QTranslator>
#include <QtTest>

namespace {

class ControlXmlTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char* /*hint*/,
                                    int /*n*/) const override
    {
        const bool isOurs = qstrcmp(context, "ControlXml") == 0 && qstrcmp(source, "Height") == 0;
        return isOurs ? QStringLiteral("高程") : QString();
    }
};

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
    void readsGroupsRowsAndChoicesInOrder();
    void translatesCaptions();
    void refusesWhatItCannotRead_data();
    void refusesWhatItCannotRead();
    void judgesWhatIsTyped_data();
    void judgesWhatIsTyped();
    void showsValuesWithTheirDigitsAndUnit();
};

void PropertyGridLayoutTest::readsGroupsRowsAndChoicesInOrder()
{
    PropertyGridLayout layout;
    QCOMPARE(readPropertyGridLayout(
                 "<property_grid><!-- limits -->"
                 "<group caption='One'><row key='b' caption='B' editor='number' min='-1.5'"
                 " max='1e3' decimals='2' unit='m' default='7' description='why'/></group>"
                 "<group caption='Two'><row key='a' caption='A' editor='choice' read_only='1'>"
                 "<choice value='' caption='none'/><choice value='2' caption='two'/></row>"
                 "<row key='c' caption='C' editor='angle'/></group></property_grid>",
                 layout),
             QString());

    QCOMPARE(layout.groups.size(), std::size_t(2));
    const PropertyGridRow& number = layout.groups[0].rows.at(0);
    QCOMPARE(number.key, QStringLiteral("b"));
    QCOMPARE(number.minimum.value(), -1.5);
    QCOMPARE(number.maximum.value(), 1000.0);
    QCOMPARE(number.decimals.value(), 2);
    QCOMPARE(number.fallback, QStringLiteral("7"));
    QVERIFY(!number.readOnly);
    QCOMPARE(layout.groups[1].caption, QStringLiteral("Two"));
    const PropertyGridRow& choice = layout.groups[1].rows.at(0);
    QVERIFY(choice.readOnly);
    QCOMPARE(choice.choices.at(1).value, QStringLiteral("2"));
    QCOMPARE(layout.groups[1].rows.at(1).unit, QStringLiteral("°"));
}

void PropertyGridLayoutTest::translatesCaptions()
{
    ControlXmlTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(rowOf("<row key='h' caption='Height'/>").caption, QStringLiteral("高程"));
}

void PropertyGridLayoutTest::refusesWhatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char* name, const QByteArray& xml, const char* fault) {
        QTest::newRow(name) << xml << QString::fromUtf8(fault);
    };
    row("empty", "", "line 1:");
    row("not XML", "key=value", "line 1:");
    row("cut off", "<property_grid>\n<group caption='G'>\n<row key='a' caption='A'", "line 3:");
    row("crossed tags", "<property_grid>\n<group caption='G'></property_grid>", "line 2:");
    row("text after the end", "<property_grid/>\n<more/>", "line 2:");
    row("other root", "<dictionary/>", "line 1: <dictionary> where <property_grid> is wanted");
    row("row outside a group", "<property_grid>\n<row key='a' caption='A'/></property_grid>",
        "line 2: <row> where <group> is wanted");
    row("no key", inGrid("<row caption='A'/>"), "line 3: <row> without key");
    row("no caption", inGrid("<row key='a'/>"), "line 3: <row> without caption");
    row("key twice", inGrid("<row key='a' caption='A'/>\n<row key='a' caption='B'/>"),
        "line 4: the key \"a\" is given twice");
    row("unknown editor", inGrid("<row key='a' caption='A' editor='slider'/>"),
        "line 3: unknown editor \"slider\"");
    row("misspelt attribute", inGrid("<row key='a' caption='A' editor='number' mim='1'/>"),
        "line 3: unknown attribute \"mim\" of <row>");
    row("comma in a limit", inGrid("<row key='a' caption='A' editor='number' min='0,5'/>"),
        "line 3: min=\"0,5\" is no number");
    row("endless limit", inGrid("<row key='a' caption='A' editor='number' max='inf'/>"),
        "line 3: max=\"inf\" is no number");
    row("empty range", inGrid("<row key='a' caption='A' editor='number' min='2' max='1'/>"),
        "line 3: min is above max");
    row("half a decimal", inGrid("<row key='a' caption='A' editor='number' decimals='1.5'/>"),
        "line 3: decimals=\"1.5\" is no count");
    row("limit on text", inGrid("<row key='a' caption='A' max='1'/>"), "line 3: limits on a row");
    row("nothing to choose", inGrid("<row key='a' caption='A' editor='choice'/>"),
        "line 3: a choice row without <choice>");
    row("choice in a text",
        inGrid("<row key='a' caption='A'><choice value='1' caption='x'/></row>"),
        "line 3: <choice> in a row that is no choice");
    row("read_only=yes", inGrid("<row key='a' caption='A' read_only='yes'/>"),
        "line 3: read_only=\"yes\" is neither 0 nor 1");
}

void PropertyGridLayoutTest::refusesWhatItCannotRead()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, fault);
    PropertyGridLayout layout;
    layout.groups.push_back({QStringLiteral("before"), {}});

    const QString found = readPropertyGridLayout(xml, layout);

    QVERIFY2(found.startsWith(fault), qPrintable(found));
    QCOMPARE(layout.groups.size(), std::size_t(1));
    QCOMPARE(layout.groups[0].caption, QStringLiteral("before"));
}

void PropertyGridLayoutTest::judgesWhatIsTyped_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored"); ///< null when it is refused
    QTest::addColumn<QString>("inEnglish");

    const QByteArray metres = "editor='number' min='0' max='100' decimals='3' unit='m'";
    const auto row = [](const char* name, const QByteArray& attributes, const char* typed,
                        const char* german, const char* english) {
        QTest::newRow(name) << attributes << QString::fromUtf8(typed) << QString::fromUtf8(german)
                            << QString::fromUtf8(english);
    };
    row("point", metres, "0.5", "0.5", "0.5");
    row("comma", metres, "0,5", "0.5", nullptr);
    row("blanks around", metres, " 7 ", "7", "7");
    row("on the lower limit", metres, "0", "0", "0");
    row("below it", metres, "-0.001", nullptr, nullptr);
    row("on the upper limit", metres, "100.000", "100.000", "100.000");
    row("above it", metres, "100.001", nullptr, nullptr);
    row("as many decimals as may be", metres, "0,125", "0.125", nullptr);
    row("one too many", metres, "0.1250", nullptr, nullptr);
    row("nothing", metres, "", nullptr, nullptr);
    row("word", metres, "ten", nullptr, nullptr);
    row("number and unit", metres, "5 m", nullptr, nullptr);
    row("not a number", "editor='number'", "nan", nullptr, nullptr);
    row("too large for a double", "editor='number'", "1e999", nullptr, nullptr);
    row("point and comma", "editor='number'", "1.234,5", nullptr, nullptr);
    row("grouped thousands", "editor='number'", "1,234,567", nullptr, nullptr);
    row("every digit", "editor='number'", "4401234.12345678901", "4401234.12345678901",
        "4401234.12345678901");
    row("angle", "editor='angle' min='-90' max='90'", "-89.999999999", "-89.999999999",
        "-89.999999999");
    row("whole", "editor='integer' min='-5'", "-5", "-5", "-5");
    row("not whole", "editor='integer'", "6.0", nullptr, nullptr);
    row("whole beyond 64 bits", "editor='integer'", "99999999999999999999", nullptr, nullptr);
    row("text stays", "editor='text'", " a, b ", " a, b ", " a, b ");
}

void PropertyGridLayoutTest::judgesWhatIsTyped()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    QFETCH(QString, inEnglish);
    const PropertyGridRow row = rowOf("<row key='k' caption='K' " + attributes + "/>");

    const std::pair<QLocale, QString> cases[] = {{QLocale(QLocale::German), stored},
                                                 {QLocale(QLocale::English), inEnglish}};
    for (const auto& [locale, expected] : cases) {
        QLocale::setDefault(locale);
        const PropertyGridInput input = readPropertyGridInput(row, typed);
        QCOMPARE(input.fault.isEmpty(), !expected.isNull());
        if (!expected.isNull())
            QCOMPARE(input.value, expected);
    }
}

void PropertyGridLayoutTest::showsValuesWithTheirDigitsAndUnit()
{
    const auto shown = [](const QByteArray& attributes, const char* value) {
        return shownPropertyGridValue(rowOf("<row key='k' caption='K' " + attributes),
                                      QString::fromUtf8(value));
    };
    QCOMPARE(shown("editor='number' decimals='1' unit='m'/>", "0.5000"),
             QStringLiteral("0.5000 m"));
    QCOMPARE(shown("editor='angle'/>", "-12.5"), QStringLiteral("-12.5°"));
    QCOMPARE(shown("editor='number' unit='m'/>", ""), QString());
    const QByteArray choice = "editor='choice'><choice value='1' caption='Receiver'/></row>";
    QCOMPARE(shown(choice, "1"), QStringLiteral("Receiver"));
    QCOMPARE(shown(choice, "9"), QStringLiteral("9"));
}

QTEST_GUILESS_MAIN(PropertyGridLayoutTest)
#include "PropertyGridLayoutTest.moc"

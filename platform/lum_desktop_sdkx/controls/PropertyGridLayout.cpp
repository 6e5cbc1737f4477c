#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include <QCoreApplication>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace {

using Editor = PropertyGridRow::Editor;

struct EditorName
{
    const char* name;
    Editor editor;
};

constexpr EditorName kEditors[] = {
    {"text", Editor::Text},   {"number", Editor::Number}, {"integer", Editor::Integer},
    {"angle", Editor::Angle}, {"choice", Editor::Choice}, {"flag", Editor::Flag},
    {"file", Editor::File},
};

/// Reads one file. The XML reader stops at the first fault and keeps it.
class LayoutReader
{
public:
    explicit LayoutReader(const QByteArray& xml) : m_xml(xml) {}

    QString read(PropertyGridLayout& layout);

private:
    void readGroups(PropertyGridLayout& layout);
    PropertyGridGroup readGroup();
    PropertyGridRow readRow();
    void readEditor(PropertyGridRow& row);
    void readLimits(PropertyGridRow& row);
    void readChoices(PropertyGridRow& row);

    bool enter(const char* element);
    void allowAttributes(const QStringList& names);
    QString text(const char* attribute) const;
    QString wantedText(const char* attribute);
    QString translated(const char* attribute) const;
    bool flag(const char* attribute);
    std::optional<double> number(const char* attribute);
    void fail(const QString& reason);

    QXmlStreamReader m_xml;
    QSet<QString> m_keys;
};

QString LayoutReader::read(PropertyGridLayout& layout)
{
    PropertyGridLayout reading;
    if (enter("property_grid"))
        readGroups(reading);
    while (!m_xml.hasError() && !m_xml.atEnd())
        m_xml.readNext(); // also reads what follows the root, which must be well formed
    if (m_xml.hasError())
        return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
    layout = std::move(reading);
    return {};
}

/// Goes to the next child. It must have this name. \returns false at the end of the parent
bool LayoutReader::enter(const char* element)
{
    if (m_xml.hasError() || !m_xml.readNextStartElement())
        return false;
    if (m_xml.name() != QLatin1String(element))
        fail(QStringLiteral("<%1> where <%2> is wanted")
                 .arg(m_xml.name().toString(), QLatin1String(element)));
    return !m_xml.hasError();
}

void LayoutReader::readGroups(PropertyGridLayout& layout)
{
    allowAttributes({});
    while (enter("group"))
        layout.groups.push_back(readGroup());
}

PropertyGridGroup LayoutReader::readGroup()
{
    PropertyGridGroup group;
    allowAttributes({QStringLiteral("caption")});
    wantedText("caption");
    group.caption = translated("caption");
    while (enter("row"))
        group.rows.push_back(readRow());
    return group;
}

PropertyGridRow LayoutReader::readRow()
{
    static const QStringList attributes =
        QStringLiteral("key,caption,editor,unit,min,max,decimals,letters,default,filter,"
                       "read_only,description")
            .split(QLatin1Char(','));
    allowAttributes(attributes);
    PropertyGridRow row;
    row.key = wantedText("key");
    wantedText("caption");
    row.caption = translated("caption");
    row.description = translated("description");
    row.fallback = text("default");
    row.filter = text("filter");
    row.readOnly = flag("read_only");
    if (m_keys.contains(row.key))
        fail(QStringLiteral("the key \"%1\" is given twice").arg(row.key));
    m_keys.insert(row.key);
    readEditor(row);
    readLimits(row);
    readChoices(row);
    return row;
}

void LayoutReader::readEditor(PropertyGridRow& row)
{
    const QString name = text("editor");
    const auto* const found =
        std::find_if(std::begin(kEditors), std::end(kEditors), [&name](const EditorName& known) {
            return name == QLatin1String(known.name);
        });
    if (found != std::end(kEditors))
        row.editor = found->editor;
    else if (!name.isEmpty())
        fail(QStringLiteral("unknown editor \"%1\"").arg(name));
    row.unit = translated("unit");
    if (row.unit.isEmpty() && row.editor == Editor::Angle)
        row.unit = QStringLiteral("\u00b0");
    const QString letters = text("letters");
    if (letters == QLatin1String("NS"))
        row.letters = AngleLetters::NorthSouth;
    else if (letters == QLatin1String("EW"))
        row.letters = AngleLetters::EastWest;
    if (!letters.isEmpty() && (row.letters == AngleLetters::None || row.editor != Editor::Angle))
        fail(QStringLiteral("letters=\"%1\" is neither NS nor EW of an angle").arg(letters));
}

void LayoutReader::readLimits(PropertyGridRow& row)
{
    row.minimum = number("min");
    row.maximum = number("max");
    if (row.minimum && row.maximum && *row.minimum > *row.maximum)
        fail(QStringLiteral("min is above max"));
    if (const auto decimals = number("decimals")) {
        if (*decimals < 0 || *decimals != std::floor(*decimals))
            fail(QStringLiteral("decimals=\"%1\" is no count").arg(text("decimals")));
        row.decimals = static_cast<int>(std::clamp(*decimals, 0.0, 30.0));
    }
    const bool isNumeric = row.editor == Editor::Number || row.editor == Editor::Integer ||
                           row.editor == Editor::Angle;
    if (!isNumeric && (row.minimum || row.maximum || row.decimals))
        fail(QStringLiteral("limits on a row that is no number"));
}

void LayoutReader::readChoices(PropertyGridRow& row)
{
    while (enter("choice")) {
        allowAttributes({QStringLiteral("value"), QStringLiteral("caption")});
        if (!m_xml.attributes().hasAttribute(QLatin1String("value")))
            fail(QStringLiteral("<choice> without value"));
        wantedText("caption");
        row.choices.push_back({text("value"), translated("caption")});
        m_xml.skipCurrentElement();
    }
    if (row.choices.empty() == (row.editor == Editor::Choice))
        fail(row.choices.empty() ? QStringLiteral("a choice row without <choice>")
                                 : QStringLiteral("<choice> in a row that is no choice"));
}

void LayoutReader::allowAttributes(const QStringList& names)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (!names.contains(attribute.qualifiedName()))
            fail(QStringLiteral("unknown attribute \"%1\" of <%2>")
                     .arg(attribute.qualifiedName().toString(), m_xml.name().toString()));
    }
}

QString LayoutReader::text(const char* attribute) const
{
    return m_xml.attributes().value(QLatin1String(attribute)).toString();
}

QString LayoutReader::wantedText(const char* attribute)
{
    QString value = text(attribute);
    if (value.isEmpty())
        fail(QStringLiteral("<%1> without %2")
                 .arg(m_xml.name().toString(), QLatin1String(attribute)));
    return value;
}

QString LayoutReader::translated(const char* attribute) const
{
    const QByteArray source = text(attribute).toUtf8();
    return source.isEmpty() ? QString()
                            : QCoreApplication::translate("ControlXml", source.constData());
}

bool LayoutReader::flag(const char* attribute)
{
    const QString value = text(attribute);
    if (!value.isEmpty() && value != QLatin1String("0") && value != QLatin1String("1"))
        fail(QStringLiteral("%1=\"%2\" is neither 0 nor 1").arg(QLatin1String(attribute), value));
    return value == QLatin1String("1");
}

std::optional<double> LayoutReader::number(const char* attribute)
{
    const QString value = text(attribute);
    if (value.isEmpty())
        return {};
    bool isNumber = false;
    const double result = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(result))
        fail(QStringLiteral("%1=\"%2\" is no number").arg(QLatin1String(attribute), value));
    return result;
}

/// Sets the fault, unless there is one already.
void LayoutReader::fail(const QString& reason)
{
    if (!m_xml.hasError())
        m_xml.raiseError(reason);
}

} // namespace

QString readPropertyGridLayout(const QByteArray& xml, PropertyGridLayout& layout)
{
    return LayoutReader(xml).read(layout);
}

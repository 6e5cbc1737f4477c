#include "reports/ControlRows.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Numbers.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/Text.h"
#include "quality/problems/ProblemLimits.h"

#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

QString translated(const QXmlStreamAttributes& attributes, const char* name)
{
    const QByteArray source = attributes.value(QLatin1String(name)).toUtf8();
    return source.isEmpty() ? QString() : QCoreApplication::translate("ControlXml", source);
}

std::string plain(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toUtf8().toStdString();
}

void addElement(const QXmlStreamReader& xml, QString& group, std::vector<ControlRow>& rows)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    if (xml.name() == QLatin1String("group"))
        group = translated(attributes, "caption");
    else if (xml.name() == QLatin1String("row"))
        rows.push_back({group,
                        plain(attributes, "key"),
                        translated(attributes, "caption"),
                        translated(attributes, "unit"),
                        plain(attributes, "editor"),
                        plain(attributes, "default"),
                        {}});
    else if (xml.name() == QLatin1String("choice") && !rows.empty())
        rows.back().choices[plain(attributes, "value")] = translated(attributes, "caption");
}

} // namespace

QString ControlRow::textOf(std::string_view value) const
{
    const std::string text(value.empty() ? std::string_view(fallback) : value);
    if (const auto choice = choices.find(text); choice != choices.end())
        return choice->second;
    const bool isAngle = editor == "angle";
    if (!isAngle && editor != "number" && editor != "integer")
        return lum::toQString(text);
    QString number = lum::toQString(basalt::formatShortest(basalt::parseNumber(text)));
    if (isAngle)
        number += QChar(0xB0);
    else if (!unit.isEmpty())
        number += QLatin1Char(' ') + unit;
    return number;
}

std::vector<ControlRow> readControlRows(std::string_view page)
{
    const std::string path = basalt::controlFile(page);
    QFile file(lum::toQString(path));
    std::vector<ControlRow> rows;
    QXmlStreamReader xml;
    if (file.open(QIODevice::ReadOnly))
        xml.setDevice(&file);
    QString group;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement)
            addElement(xml, group, rows);
    }
    if (xml.hasError())
        basalt::logError("\"" + path + "\" cannot be read: " + xml.errorString().toStdString());
    return rows;
}

std::vector<ControlRow> problemLimitRows()
{
    const auto translated = [](const char* text) {
        return *text == 0 ? QString() : QCoreApplication::translate("ProblemLimits", text);
    };
    std::vector<ControlRow> rows;
    for (const ProblemLimitGroup& group : problemLimitGroups()) {
        for (const ProblemLimit& limit : group.limits) {
            ControlRow& row = rows.emplace_back();
            row = {translated(group.caption),
                   limit.key,
                   translated(limit.caption),
                   translated(limit.unit),
                   "number",
                   limit.fallback,
                   {}};
            for (const int choice : limit.choices) {
                if (choice != 0)
                    row.choices[std::to_string(choice)] = limit.choiceText(choice);
            }
        }
    }
    return rows;
}

const ControlRow* findControlRow(const std::vector<ControlRow>& rows, std::string_view key)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [key](const ControlRow& row) { return row.key == key; });
    return found == rows.end() ? nullptr : &*found;
}

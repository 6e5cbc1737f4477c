#include "tests/support/WorkbookReader.h"

#include <QXmlStreamReader>

#include <cpl_vsi.h>

#include <functional>
#include <stdexcept>

namespace {

/// Calls `visit` at the start of each element.
void walk(const QByteArray& part, const std::function<void(QXmlStreamReader&)>& visit)
{
    QXmlStreamReader xml(part);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement)
            visit(xml);
    }
    if (xml.hasError())
        throw std::runtime_error(xml.errorString().toStdString());
}

/// "BC12" is column 54.
int columnOf(const QString& cell)
{
    int column = 0;
    for (const QChar letter : cell) {
        if (!letter.isLetter())
            break;
        column = column * 26 + letter.unicode() - 'A' + 1;
    }
    return column - 1;
}

} // namespace

WorkbookReader::WorkbookReader(const QString& path) : m_path(path)
{
    walk(part(QStringLiteral("xl/workbook.xml")), [this](QXmlStreamReader& xml) {
        if (xml.name() == QLatin1String("sheet"))
            m_sheets << xml.attributes().value(QLatin1String("name")).toString();
    });
}

QByteArray WorkbookReader::part(const QString& name) const
{
    const QByteArray path = QStringLiteral("/vsizip/{%1}/%2").arg(m_path, name).toUtf8();
    VSILFILE* const file = VSIFOpenL(path.constData(), "rb");
    if (file == nullptr)
        throw std::runtime_error("no part " + path.toStdString());
    VSIFSeekL(file, 0, SEEK_END);
    QByteArray content(static_cast<int>(VSIFTellL(file)), '\0');
    VSIFSeekL(file, 0, SEEK_SET);
    const std::size_t size = VSIFReadL(content.data(), 1, std::size_t(content.size()), file);
    VSIFCloseL(file);
    content.truncate(static_cast<int>(size));
    return content;
}

QByteArray WorkbookReader::partOf(const QString& sheet) const
{
    return part(QStringLiteral("xl/worksheets/sheet%1.xml").arg(m_sheets.indexOf(sheet) + 1));
}

std::vector<QStringList> WorkbookReader::rows(const QString& sheet) const
{
    std::vector<QStringList> rows;
    int column = 0;
    walk(partOf(sheet), [&](QXmlStreamReader& xml) {
        if (xml.name() == QLatin1String("row")) {
            const int row = xml.attributes().value(QLatin1String("r")).toInt();
            rows.resize(static_cast<std::size_t>(row));
        } else if (xml.name() == QLatin1String("c")) {
            column = columnOf(xml.attributes().value(QLatin1String("r")).toString());
            while (rows.back().size() <= column)
                rows.back() << QString();
        } else if (xml.name() == QLatin1String("v") || xml.name() == QLatin1String("t")) {
            rows.back()[column] = xml.readElementText();
        }
    });
    return rows;
}

std::vector<double> WorkbookReader::widths(const QString& sheet) const
{
    std::vector<double> widths;
    walk(partOf(sheet), [&](QXmlStreamReader& xml) {
        if (xml.name() == QLatin1String("col"))
            widths.resize(xml.attributes().value(QLatin1String("max")).toUInt(),
                          xml.attributes().value(QLatin1String("width")).toDouble());
    });
    return widths;
}

QStringList WorkbookReader::attributes(const QString& sheet, const char* element,
                                       const char* attribute) const
{
    QStringList values;
    walk(partOf(sheet), [&](QXmlStreamReader& xml) {
        if (xml.name() == QLatin1String(element))
            values << xml.attributes().value(QLatin1String(attribute)).toString();
    });
    return values;
}

QStringList WorkbookReader::texts(const QString& sheet, const char* element) const
{
    QStringList texts;
    walk(partOf(sheet), [&](QXmlStreamReader& xml) {
        if (xml.name() == QLatin1String(element))
            texts << xml.readElementText();
    });
    return texts;
}

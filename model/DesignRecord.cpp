#include "model/DesignRecord.h"

#include "basalt_utilities/Numbers.h"
#include "model/RowNumbers.h"
#include "model/RowText.h"

namespace DesignRecord {

std::string columns()
{
    std::string list;
    for (const Column& column : kColumns) {
        list += list.empty() ? "" : ",";
        list += column.key;
    }
    return list;
}

void write(const DesignPoint& point, RecordTexts& texts)
{
    texts.clear();
    texts.add(point.lineNumber);
    texts.add(point.pointNumber);
    texts.addFixed(point.north, 4);
    texts.addFixed(point.east, 4);
    texts.addFixed(point.elevation, 4);
    texts.addFixed(point.azimuth, 6);
    texts.addInteger(point.type);
    texts.addInteger(point.status);
}

DesignPoint Reader::read(const IDictionary& row)
{
    if (!m_isReady) {
        for (std::size_t i = 0; i < kColumns.size(); ++i)
            m_places[i] = columnPlace(row, kColumns[i].key);
        m_isReady = true;
    }
    const auto text = [&](std::size_t column) {
        const std::size_t place = m_places[column];
        return place < row.size() ? row.valueAt(place) : std::string_view();
    };
    DesignPoint point;
    point.lineNumber = rowText(text(0));
    point.pointNumber = rowText(text(1));
    point.north = basalt::readDecimal(text(2));
    point.east = basalt::readDecimal(text(3));
    point.elevation = basalt::readDecimal(text(4));
    point.azimuth = basalt::readDecimal(text(5));
    point.type = basalt::parseInteger(text(6));
    point.status = basalt::parseInteger(text(7));
    return point;
}

} // namespace DesignRecord

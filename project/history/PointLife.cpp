#include "project/history/PointLife.h"

#include "basalt_utilities/IDictionary.h"
#include "model/RowNumbers.h"
#include "project/history/HistoryReader.h"
#include "project/history/HistoryRows.h"
#include "project/history/PointRecord.h"

namespace {

std::vector<std::string> columnsOf(const HistoryAction& action, const HistoryItem& item)
{
    return listedColumns(item.data == HistoryData::Design ? action.designColumns
                                                          : action.resultColumns);
}

} // namespace

void PointLife::setPresent(HistoryData data, const IDictionary& row)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        m_rows[data][lowerName(row.keyAt(i))] = row.valueAt(i);
}

void PointLife::tellNewTexts(const HistoryAction& action, std::vector<HistoryItem>& items)
{
    for (HistoryItem& item : items) {
        Row& row = m_rows[item.data];
        if (!item.field.empty()) {
            if (!row.empty())
                row[item.field] = item.oldText;
            continue;
        }
        const bool isKnown = !row.empty();
        Row before;
        std::vector<std::string_view> present;
        for (const HistoryField& field : fieldsOf(action, item))
            before[field.key] = field.oldText;
        for (const std::string& column : columnsOf(action, item))
            present.push_back(row[column]);
        if (item.change == HistoryChange::Changed && isKnown)
            item.newText = packedRow(present);
        const bool isRenamed = before["line_num"] != item.name.line || // nothing is known of what
                               before["point_num"] != item.name.point; // had the name before it
        row = isRenamed ? Row() : std::move(before);
    }
}

std::vector<HistoryField> fieldsOf(const HistoryAction& action, const HistoryItem& item)
{
    if (!item.field.empty())
        return {{item.field, item.oldText, item.newText}};
    if (item.change == HistoryChange::Came)
        return {};
    const std::vector<std::string> columns = columnsOf(action, item);
    std::vector<std::string> before = unpackedRow(item.oldText);
    std::vector<std::string> after = unpackedRow(item.newText);
    before.resize(columns.size());
    const bool isKnown = !item.newText.empty();
    after.resize(columns.size());
    std::vector<HistoryField> fields;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isVerdict = item.data == HistoryData::Design
                                   ? ::isVerdict<DesignPoints>(columns[i])
                                   : ::isVerdict<SurveyPoints>(columns[i]);
        if (!isKnown || (before[i] != after[i] && !isVerdict))
            fields.push_back({columns[i], before[i], after[i]});
    }
    return fields;
}

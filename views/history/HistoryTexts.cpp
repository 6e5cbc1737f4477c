#include "views/history/HistoryTexts.h"

#include "basalt_utilities/Numbers.h"
#include "design/DesignFields.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"
#include "model/DesignRecord.h"
#include "model/RowNumbers.h"
#include "model/SurveyColumns.h"
#include "project/edits/EditKinds.h"
#include "quality/problems/ProblemFinders.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("HistoryTexts", text);
}

const SurveyColumn* surveyColumn(const std::string& key)
{
    const auto columns = surveyColumns();
    const auto found =
        std::ranges::find_if(columns, [&](const SurveyColumn& each) { return key == each.key; });
    return found == columns.end() ? nullptr : &*found;
}

QString surveyText(const std::string& key, const std::string& text)
{
    const SurveyColumn* const column = surveyColumn(key);
    switch (column == nullptr ? CsvForm::Text : column->csv) {
    case CsvForm::Time: {
        const std::int64_t time = readInteger64(text);
        return time == 0 ? QString() : lum::toQString(shownTime(time));
    }
    case CsvForm::SolutionType:
        return solutionTypeText(basalt::parseInteger(text));
    case CsvForm::MeasureMode:
        return measureModeText(basalt::parseInteger(text));
    case CsvForm::PointMark:
        return text == "0" ? QStringLiteral("S") : QStringLiteral("R");
    default:
        return lum::toQString(text);
    }
}

QString designTableText(const char* text)
{
    return QCoreApplication::translate("DesignTable", text);
}

/// As the table of design points has it.
QString designText(const std::string& key, const std::string& text)
{
    if (key == "type" && !text.empty())
        return text == "0" ? QStringLiteral("S") : QStringLiteral("R");
    if (key == "status" && !text.empty())
        return designTableText(text == "1" ? "surveyed" : "not surveyed");
    return lum::toQString(text);
}

/// The table's captions are the keys with blanks.
QString designCaption(std::string key)
{
    std::ranges::replace(key, '_', ' ');
    return designTableText(key.c_str());
}

} // namespace

HistoryTexts::HistoryTexts()
    : m_limits(readControlRows("QCParam")), m_coordSystem(readControlRows("CoordSystem"))
{
    std::ranges::move(problemLimitRows(), std::back_inserter(m_limits));
}

QString HistoryTexts::nameOf(HistoryData data)
{
    switch (data) {
    case HistoryData::Results:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Result"));
    case HistoryData::Design:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Design point"));
    case HistoryData::QualityLimits:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Quality limit"));
    case HistoryData::DesignParameters:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Design parameter"));
    case HistoryData::CoordSystem:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Coordinate system"));
    case HistoryData::AcceptedProblems:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "Problem"));
    }
    return {};
}

QString HistoryTexts::changeOf(const HistoryItem& item)
{
    if (item.data == HistoryData::AcceptedProblems)
        return item.change == HistoryChange::Gone
                   ? translated(QT_TRANSLATE_NOOP("HistoryTexts", "open again"))
                   : translated(QT_TRANSLATE_NOOP("HistoryTexts", "accepted"));
    switch (item.change) {
    case HistoryChange::Came:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "new"));
    case HistoryChange::Gone:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "deleted"));
    case HistoryChange::Changed:
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "changed"));
    }
    return {};
}

QString HistoryTexts::nameOf(const PointName& point)
{
    return lum::toQString(point.line) + QLatin1Char('/') + lum::toQString(point.point);
}

QString HistoryTexts::kindName(const std::string& kind)
{
    const EditKind* const found = EditKinds::find(kind);
    return found == nullptr ? lum::toQString(kind) : found->pluralTitle();
}

QString HistoryTexts::stateOf(const HistoryAction& action, bool isSaved)
{
    if (action.state == HistoryState::Undone)
        return translated(QT_TRANSLATE_NOOP("HistoryTexts", "done and taken back"));
    const bool isTakenBack = action.state == HistoryState::TakenBack;
    if (isSaved)
        return isTakenBack ? translated(QT_TRANSLATE_NOOP("HistoryTexts", "taken back"))
                           : translated(QT_TRANSLATE_NOOP("HistoryTexts", "done"));
    return isTakenBack ? translated(QT_TRANSLATE_NOOP("HistoryTexts", "taken back, not saved yet"))
                       : translated(QT_TRANSLATE_NOOP("HistoryTexts", "not saved yet"));
}

QString HistoryTexts::timeOf(const HistoryAction& action)
{
    return action.time.toLocalTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}

const ControlRow* HistoryTexts::parameter(HistoryData data, const std::string& key) const
{
    if (data == HistoryData::QualityLimits)
        return findControlRow(m_limits, key);
    return data == HistoryData::CoordSystem ? findControlRow(m_coordSystem, key) : nullptr;
}

QString HistoryTexts::caption(HistoryData data, const std::string& key) const
{
    if (data == HistoryData::Design)
        return designCaption(key);
    if (data == HistoryData::Results) {
        const SurveyColumn* const column = surveyColumn(key);
        return column == nullptr ? lum::toQString(key)
                                 : QCoreApplication::translate("SurveyColumns", column->caption);
    }
    if (data == HistoryData::AcceptedProblems) {
        const ProblemKind* const kind = findProblemKind(key);
        return kind == nullptr ? lum::toQString(key) : kind->captionText();
    }
    if (const DesignParameter* const of =
            data == HistoryData::DesignParameters ? findDesignParameter(key) : nullptr)
        return of->name();
    const ControlRow* const row = parameter(data, key);
    return row == nullptr ? lum::toQString(key) : row->caption;
}

QString HistoryTexts::value(HistoryData data, const std::string& key, const std::string& text) const
{
    if (data == HistoryData::Results)
        return surveyText(key, text);
    if (data == HistoryData::Design)
        return designText(key, text);
    const ControlRow* const row = parameter(data, key);
    return row == nullptr || text.empty() ? lum::toQString(text) : row->textOf(text);
}

HistoryTexts::WholePoint HistoryTexts::wholePoint(const HistoryAction& action,
                                                  const HistoryItem& item) const
{
    WholePoint point;
    if (!item.field.empty() || item.change == HistoryChange::Came)
        return point;
    const auto add = [&](QStringList& values, const std::string& key, const std::string& text) {
        values << caption(item.data, key) + QLatin1Char(' ') + value(item.data, key, text);
    };
    for (const auto& [key, before, after] : fieldsOf(action, item)) {
        if ((key == "line_num" && before == item.name.line) ||
            (key == "point_num" && before == item.name.point))
            continue; // the row has it in columns of its own
        if (saysSomething(before) || saysSomething(after))
            add(point.before, key, before);
        if (!item.newText.empty())
            add(point.after, key, after);
    }
    return point;
}

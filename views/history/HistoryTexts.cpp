#include "views/history/HistoryTexts.h"

#include "basalt_utilities/Numbers.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"
#include "model/DesignRecord.h"
#include "model/RowNumbers.h"
#include "model/SurveyColumns.h"
#include "quality/problems/ProblemFinders.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

struct Kind
{
    std::string_view name;
    const char* text;
};

// Names of EditKinds.
constexpr auto kKinds = std::to_array<Kind>({
    {"import_design", QT_TRANSLATE_NOOP("HistoryTexts", "Imports of design points")},
    {"import_survey", QT_TRANSLATE_NOOP("HistoryTexts", "Imports of results")},
    {"delete_results", QT_TRANSLATE_NOOP("HistoryTexts", "Deletions of results")},
    {"correct_result", QT_TRANSLATE_NOOP("HistoryTexts", "Corrections of results")},
    {"correct_design", QT_TRANSLATE_NOOP("HistoryTexts", "Corrections of design points")},
    {"generate_design", QT_TRANSLATE_NOOP("HistoryTexts", "Generated designs")},
    {"quality_limits", QT_TRANSLATE_NOOP("HistoryTexts", "Quality limits")},
    {"design_parameters", QT_TRANSLATE_NOOP("HistoryTexts", "Design parameters")},
    {"coord_system", QT_TRANSLATE_NOOP("HistoryTexts", "Coordinate system")},
    {"restore", QT_TRANSLATE_NOOP("HistoryTexts", "Restored points")},
    {"accept_problems", QT_TRANSLATE_NOOP("HistoryTexts", "Accepted problems")},
    {"end_acceptances", QT_TRANSLATE_NOOP("HistoryTexts", "Problems listed again")},
});

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

/// Whether a stored text is more than nothing or 0.
bool saysSomething(const std::string& text)
{
    return text.find_first_not_of("-.0") != std::string::npos;
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
                   ? translated(QT_TRANSLATE_NOOP("HistoryTexts", "listed again"))
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
    const auto* const found =
        std::ranges::find_if(kKinds, [&](const Kind& each) { return each.name == kind; });
    return found == kKinds.end() ? lum::toQString(kind) : translated(found->text);
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
        return QCoreApplication::translate("DesignCsv", key.c_str());
    if (data == HistoryData::Results) {
        const SurveyColumn* const column = surveyColumn(key);
        return column == nullptr ? lum::toQString(key)
                                 : QCoreApplication::translate("SurveyColumns", column->caption);
    }
    if (data == HistoryData::AcceptedProblems) {
        const ProblemKind* const kind = findProblemKind(key);
        return kind == nullptr ? lum::toQString(key) : kind->captionText();
    }
    const ControlRow* const row = parameter(data, key);
    return row == nullptr ? lum::toQString(key) : row->caption;
}

QString HistoryTexts::value(HistoryData data, const std::string& key, const std::string& text) const
{
    if (data == HistoryData::Results)
        return surveyText(key, text);
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
        if (key == "line_num" || key == "point_num")
            continue;
        if (saysSomething(before) || saysSomething(after))
            add(point.before, key, before);
        if (!item.newText.empty())
            add(point.after, key, after);
    }
    return point;
}

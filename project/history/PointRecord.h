#pragma once

#include "model/DesignRecord.h"
#include "model/PointLines.h"
#include "model/PointNumber.h"
#include "model/SurveyRecord.h"
#include "project/history/History.h"
#include "quality/Verdicts.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What differs in the history between the two kinds of points.
template <class Points>
struct PointRecord;

template <>
struct PointRecord<DesignPoints>
{
    using Reader = DesignRecord::Reader;
    static constexpr HistoryData kData = HistoryData::Design;
    /// The columns that checks write: the history is about what people do.
    static constexpr auto& kVerdicts = kDesignVerdicts;

    static std::string columns() { return DesignRecord::columns(); }
    static void write(const DesignPoint& point, RecordTexts& texts)
    {
        DesignRecord::write(point, texts);
    }
    static PointName nameOf(const DesignPoint& point)
    {
        return {point.lineNumber, point.pointNumber};
    }
};

template <>
struct PointRecord<SurveyPoints>
{
    using Reader = SurveyRecord::Reader;
    static constexpr HistoryData kData = HistoryData::Results;
    static constexpr auto& kVerdicts = kSurveyVerdicts;

    static std::string columns() { return SurveyRecord::columns(); }
    static void write(const SurveyPoint& point, RecordTexts& texts)
    {
        SurveyRecord::write(point, texts);
    }
    static PointName nameOf(const SurveyPoint& point)
    {
        return {point.lineNumber, std::string(writtenPointNumber(point.pointNumber))};
    }
};

/// The names of a comma-separated list.
[[nodiscard]] std::vector<std::string> listedColumns(std::string_view columns);

/// Whether the checks write this column.
template <class Points>
[[nodiscard]] bool isVerdict(std::string_view column)
{
    constexpr auto& kVerdicts = PointRecord<Points>::kVerdicts;
    return std::ranges::find(kVerdicts, column) != kVerdicts.end();
}

/// Compares points by what is stored of them, but for the verdicts of the checks.
template <class Points>
class SameRecord
{
    using Record = PointRecord<Points>;

public:
    using Point = typename Points::Point;

    bool operator()(const Point& first, const Point& second)
    {
        Record::write(first, *m_first);
        Record::write(second, *m_second);
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            if (!isVerdict<Points>(m_columns[i]) && m_first->values()[i] != m_second->values()[i])
                return false;
        }
        return true;
    }

private:
    std::vector<std::string> m_columns = listedColumns(Record::columns());
    std::unique_ptr<RecordTexts> m_first = std::make_unique<RecordTexts>();
    std::unique_ptr<RecordTexts> m_second = std::make_unique<RecordTexts>();
};

/// What tells a result from others whatever it is called: when, where and with what it was
/// measured, as it is stored.
class MeasurementText
{
public:
    [[nodiscard]] std::string operator()(const SurveyPoint& point);

private:
    std::vector<std::string> m_columns = listedColumns(SurveyRecord::columns());
    std::unique_ptr<RecordTexts> m_texts = std::make_unique<RecordTexts>();
};

#include "quality/problems/Fingerprint.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/Numbers.h"
#include "model/PointNumber.h"
#include "model/SurveyColumns.h"
#include "quality/Verdicts.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cmath>

namespace {

/// Of texts one after the other, so that "ab", "c" differs from "a", "bc".
class Hash
{
public:
    void add(std::string_view text)
    {
        constexpr char kEnd = '\0';
        m_hash.addData(text.data(), static_cast<int>(text.size()));
        m_hash.addData(&kEnd, 1);
    }
    void add(std::int64_t value) { add(std::string_view(std::to_string(value))); }
    void add(double value, int decimals)
    {
        char text[basalt::kFixedSize];
        const char* const end = basalt::writeFixed(text, value, decimals);
        add({text, static_cast<std::size_t>(end - text)});
    }

    [[nodiscard]] std::string result() const
    {
        constexpr int kBytes = 8;
        return m_hash.result().left(kBytes).toHex().toStdString();
    }

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
};

void addField(Hash& hash, const SurveyPoint& point, const SurveyColumn& column)
{
    switch (column.stored) {
    case StoredForm::None:
        return;
    case StoredForm::Text:
        return hash.add(fieldOf<std::string>(point, column));
    case StoredForm::PointNumber:
        return hash.add(writtenPointNumber(point.pointNumber));
    case StoredForm::Integer:
        return hash.add(std::int64_t(fieldOf<std::int32_t>(point, column)));
    case StoredForm::LongInteger:
        return hash.add(fieldOf<std::int64_t>(point, column));
    case StoredForm::Decimals4:
        return hash.add(fieldOf<double>(point, column), 4);
    case StoredForm::Decimals8:
        return hash.add(fieldOf<double>(point, column), 8);
    case StoredForm::SixDigitsReadWhole: // a project that is read again has it without decimals
        return hash.add(std::trunc(fieldOf<double>(point, column)), 0);
    }
}

void add(Hash& hash, const SurveyPoint* point)
{
    if (point == nullptr)
        return;
    for (const SurveyColumn& column : surveyColumns()) {
        if (std::ranges::find(kSurveyVerdicts, std::string_view(column.key)) ==
            kSurveyVerdicts.end())
            addField(hash, *point, column);
    }
}

void add(Hash& hash, const DesignPoint* point)
{
    if (point == nullptr)
        return;
    hash.add(point->lineNumber);
    hash.add(point->pointNumber);
    hash.add(point->north, 4);
    hash.add(point->east, 4);
    hash.add(point->elevation, 4);
    hash.add(point->azimuth, 6);
    hash.add(std::int64_t(point->type));
}

void addGroup(Hash& hash, const Problem& problem)
{
    hash.add(problem.line);
    hash.add(problem.rover);
    hash.add(problem.surveyor);
    hash.add(problem.detail);
    hash.add(problem.value, problem.kind->decimals);
    hash.add(std::int64_t(problem.count));
    hash.add(problem.timeMs);
}

} // namespace

std::string fingerprintOf(const Problem& problem, const DesignPoints& design,
                          const SurveyPoints& survey)
{
    Hash hash;
    if (problem.point.empty())
        addGroup(hash, problem);
    else if (problem.isDesign)
        add(hash, design.find(problem.line, problem.point));
    else
        add(hash, survey.find(problem.line, problem.point));
    if (!problem.otherPoint.empty()) {
        const DesignPoint* const other = design.find(problem.otherLine, problem.otherPoint);
        add(hash, other);
        // What is wrong between design points stays so when the other one is staked.
        if (!problem.isDesign || other == nullptr)
            add(hash, survey.find(problem.otherLine, problem.otherPoint));
    }
    return hash.result();
}

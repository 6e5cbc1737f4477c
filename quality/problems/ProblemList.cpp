#include "quality/problems/ProblemList.h"

#include <utility>

void ProblemList::swap(ProblemList& other) noexcept
{
    std::swap(designRevision, other.designRevision);
    std::swap(surveyRevision, other.surveyRevision);
    std::swap(m_problems, other.m_problems);
    m_texts.swap(other.m_texts);
    std::swap(m_lastLine, other.m_lastLine);
    std::swap(m_lastRover, other.m_lastRover);
    std::swap(m_lastSurveyor, other.m_lastSurveyor);
}

Problem& ProblemList::add(const ProblemKind& kind, const SurveyPoint& point)
{
    Problem& problem = add(kind, point.lineNumber);
    problem.point = keep(point.pointNumber);
    problem.rover = again(m_lastRover, point.instrumentSerialNumber);
    problem.surveyor = again(m_lastSurveyor, point.surveyor);
    problem.timeMs = point.dateTime;
    return problem;
}

Problem& ProblemList::add(const ProblemKind& kind, const DesignPoint& point)
{
    Problem& problem = add(kind, point.lineNumber);
    problem.point = keep(point.pointNumber);
    problem.isDesign = true;
    return problem;
}

Problem& ProblemList::add(const ProblemKind& kind, std::string_view line)
{
    Problem& problem = m_problems.emplace_back();
    problem.kind = &kind;
    problem.line = again(m_lastLine, line);
    return problem;
}

void ProblemList::append(ProblemList&& other)
{
    m_problems.insert(m_problems.end(), other.m_problems.begin(), other.m_problems.end());
    m_texts.take(std::move(other.m_texts));
    other = ProblemList();
}

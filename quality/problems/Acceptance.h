#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <set>
#include <string>
#include <vector>

class ProblemList;
struct Problem;

/// A problem that somebody has accepted as it is. It comes back when a record that it is about
/// changes, since it has another fingerprint then.
struct Acceptance
{
    std::string kind; ///< name of the problem's kind
    bool isDesign = false;
    PointName name;          ///< as the database has it, a check point without counter
    std::string fingerprint; ///< of the records that it is about

    QString reason;
    QString person;
    QDateTime time; ///< UTC

    /// By kind and name, and then by what else makes a problem another one.
    struct Order
    {
        bool operator()(const Acceptance& first, const Acceptance& second) const;
    };
};

/// The accepted problems of a project, each once, in their order.
class Acceptances
{
    using Set = std::set<Acceptance, Acceptance::Order>;

public:
    using Iterator = Set::const_iterator;

    [[nodiscard]] Iterator begin() const { return m_all.begin(); }
    [[nodiscard]] Iterator end() const { return m_all.end(); }
    [[nodiscard]] bool empty() const { return m_all.empty(); }
    [[nodiscard]] std::size_t size() const { return m_all.size(); }

    /// That of the same problem; null when it is not accepted.
    [[nodiscard]] const Acceptance* find(const Acceptance& problem) const;
    /// Over that of the same problem.
    void set(Acceptance acceptance);
    void clear() { m_all.clear(); }

    /// Exchanges those of these problems with `other`, which has none of other problems. It takes
    /// no memory.
    void exchange(const std::vector<Acceptance>& problems, Acceptances& other) noexcept;

private:
    Set m_all;
};

/// What accepts a problem, without reason, person and time; nothing when its point is gone.
[[nodiscard]] std::optional<Acceptance>
acceptanceOf(const Problem& problem, const DesignPoints& design, const SurveyPoints& survey);

/// Says of each problem whether it is accepted.
void markAccepted(ProblemList& problems, const Acceptances& acceptances, const DesignPoints& design,
                  const SurveyPoints& survey);

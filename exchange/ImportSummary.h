#pragma once

#include <QString>

#include <vector>

/// What an import found in a file that it has read.
struct ImportSummary
{
    static constexpr std::size_t kMostFaults = 5;

    struct Fault
    {
        std::size_t line; ///< counted from 1
        QString reason;   ///< translated, a whole sentence
    };

    QString path;
    std::size_t linesRead = 0;
    std::size_t pointsNew = 0;
    std::size_t pointsReplaced = 0;   ///< points of the project that got a new value
    std::size_t pointsRepeated = 0;   ///< rows that a later row of the same point has replaced
    std::size_t linesSkipped = 0;     ///< empty lines and the heading do not count
    QString remark;                   ///< about the file as a whole; mostly empty
    std::vector<Fault> faults;        ///< the first skipped lines
    std::size_t fieldsMisread = 0;    ///< fields of points that cannot be read
    std::vector<Fault> misreadFields; ///< the first of these

    /// Counts the last line as skipped.
    /// \param reason `QString()`; called for the first few lines only
    template <class Reason>
    void skip(Reason reason)
    {
        if (++linesSkipped <= kMostFaults)
            faults.push_back({linesRead, reason()});
    }

    /// Counts a field of the last line that cannot be read.
    /// \param reason as for `skip`
    template <class Reason>
    void misread(Reason reason)
    {
        if (++fieldsMisread <= kMostFaults)
            misreadFields.push_back({linesRead, reason()});
    }

    /// A few translated lines, without an end of the last.
    [[nodiscard]] QString toText() const;
};

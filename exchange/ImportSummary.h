#pragma once

#include <QString>

#include <vector>

/// What became of a file that was read.
struct ImportSummary
{
    static constexpr std::size_t kMostFaults = 5;

    struct Fault
    {
        std::size_t line; ///< counted from 1
        QString reason;   ///< translated, a whole sentence
    };

    QString path;
    QString failure; ///< why nothing, or not all, was read; empty when the file was read to its end
    std::size_t linesRead = 0;
    std::size_t pointsNew = 0;
    std::size_t pointsReplaced = 0;   ///< of those that stood there before
    std::size_t pointsRepeated = 0;   ///< rows whose point stands in the file again, which holds
    std::size_t linesSkipped = 0;     ///< empty lines and the heading do not count
    QString remark;                   ///< about the file as a whole; mostly empty
    std::vector<Fault> faults;        ///< of the first lines that were skipped
    std::size_t fieldsMisread = 0;    ///< of points that were taken; they got the value for nothing
    std::vector<Fault> misreadFields; ///< the first of them

    /// Counts the line that was read last as skipped.
    /// \param reason `QString()`, asked for the first few only
    template <class Reason>
    void skip(Reason reason)
    {
        if (++linesSkipped <= kMostFaults)
            faults.push_back({linesRead, reason()});
    }

    /// Counts a field of the line that was read last.
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

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// What an import found in a file that it has read.
struct ImportSummary
{
    /// Lines or fields of one kind: how many, and the first of them.
    struct Findings
    {
        struct Place
        {
            std::size_t line; ///< counted from 1
            QString text;     ///< translated, a whole sentence
        };

        std::size_t mostPlaces = 5;
        std::size_t count = 0;
        std::vector<Place> first; ///< at most `mostPlaces`
    };

    QString path;
    bool isDatabase = false; ///< the lines are rows of its table of results
    QString encoding = QStringLiteral("UTF-8");
    std::size_t linesRead = 0;
    std::size_t pointsNew = 0;
    std::size_t pointsReplaced = 0;    ///< points of the project that got a new value
    std::size_t pointsRepeated = 0;    ///< rows that a later row of the same point has replaced
    std::size_t pointsWithoutLine = 0; ///< rows of results that name no line
    std::size_t decimalsDropped = 0;   ///< fields of columns that are read as whole numbers
    QStringList remarks;               ///< about the file as a whole; mostly none

    Findings skipped; ///< lines; empty ones and the heading do not count
    /// Fields with bytes that are no character. Each has to be mended by hand: all are named,
    /// unless the whole file has an unknown encoding.
    Findings undecoded{100, 0, {}};
    Findings misread; ///< fields of points that became 0
    Findings changed; ///< fields of points that became something else than they say
    Findings surplus; ///< lines of points, of which the last fields were cut off
    Findings shorter; ///< lines of points with fewer fields than the heading

    /// Counts a finding in the last line.
    /// \param text `QString()`; called for the first few only
    template <class Text>
    void note(Findings& findings, Text text)
    {
        if (++findings.count <= findings.mostPlaces)
            findings.first.push_back({linesRead, text()});
    }

    /// Whether the project has got points.
    [[nodiscard]] bool hasPoints() const { return pointsNew + pointsReplaced != 0; }

    /// A few translated lines, without an end of the last: numbers first, then the first places of
    /// each finding.
    [[nodiscard]] QString toText() const;
};

#pragma once

#include "model/PointName.h"

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// What an import found in a file that it has read.
struct ImportSummary
{
    /// Lines, fields or points of one kind: how many, and the first of them.
    struct Findings
    {
        static constexpr std::size_t kMostPlaces = 1000;

        struct Place
        {
            std::size_t line;     ///< counted from 1; 0 where it is not known
            QString text;         ///< translated, a whole sentence
            PointName point = {}; ///< as the project knows it; empty where there is none
        };

        std::size_t mostShown = 5; ///< in `toText`
        std::size_t count = 0;
        std::vector<Place> first; ///< at most `kMostPlaces`

        /// \param text `QString()`; called for the first ones only
        /// \returns whether it is one of the first
        template <class Text>
        bool add(std::size_t line, Text text, PointName point = {})
        {
            const bool isKept = ++count <= kMostPlaces;
            if (isKept)
                first.push_back({line, text(), std::move(point)});
            return isKept;
        }
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

    Findings repeated; ///< the later rows of points that stand in the file more than once
    Findings replaced; ///< points of the project, with the row whose values they have now

    std::string firstLine;  ///< of the points of the file, in the order of line numbers
    std::size_t places = 0; ///< how often `note` has kept a place

    /// Counts a finding in the last line. Without a name it gets that of the line's point, when the
    /// line gives one.
    /// \param text `QString()`; called for the first few only
    template <class Text>
    void note(Findings& findings, Text text, PointName point = {})
    {
        places += findings.add(linesRead, text, std::move(point)) ? 1U : 0U;
    }

    /// Whether the project has got points.
    [[nodiscard]] bool hasPoints() const { return pointsNew + pointsReplaced != 0; }

    /// What became of the file in numbers, a translated line each.
    [[nodiscard]] QStringList numbers() const;

    /// A few translated lines, without an end of the last: the numbers, then the first places of
    /// each finding.
    [[nodiscard]] QString toText() const;

    /// A kind of findings, as a list of them shows it.
    struct Kind
    {
        QString caption; ///< translated
        const Findings& findings;
    };
    /// All kinds with findings, the worst first.
    [[nodiscard]] std::vector<Kind> kinds() const;
};

#pragma once

#include "project/history/HistoryReader.h"
#include "reports/ControlRows.h"

#include <QStringList>

/// What the project's history holds, in the words of the user.
class HistoryTexts
{
public:
    HistoryTexts();

    [[nodiscard]] static QString nameOf(HistoryData data);
    [[nodiscard]] static QString changeOf(const HistoryItem& item);
    [[nodiscard]] static QString nameOf(const PointName& point); ///< "LINE/POINT"
    /// All actions of a kind; of one that this version does not know, the
    /// name in the database.
    [[nodiscard]] static QString kindName(const std::string& kind);
    [[nodiscard]] static QString stateOf(const HistoryAction& action, bool isSaved);
    /// On this computer's clock, by which days are filtered, too.
    [[nodiscard]] static QString timeOf(const HistoryAction& action);

    /// A field, a parameter or a kind of problem as the user knows it.
    [[nodiscard]] QString caption(HistoryData data, const std::string& key) const;
    /// A stored text as it is shown.
    [[nodiscard]] QString value(HistoryData data, const std::string& key,
                                const std::string& text) const;

    /// What a point was, and what it has become where that is known.
    struct WholePoint
    {
        QStringList before; ///< "caption value" of each that says something
        QStringList after;  ///< of each that is different
    };
    /// Of an item about a whole point.
    [[nodiscard]] WholePoint wholePoint(const HistoryAction& action, const HistoryItem& item) const;

private:
    [[nodiscard]] const ControlRow* parameter(HistoryData data, const std::string& key) const;

    std::vector<ControlRow> m_limits;
    std::vector<ControlRow> m_coordSystem;
};

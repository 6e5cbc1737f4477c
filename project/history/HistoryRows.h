#pragma once

#include "project/history/History.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

// How the history keeps whole points: the texts of their columns, as the database has them, in one
// text.

/// A tab stands between the texts; tabs, line feeds and backslashes in them are escaped.
[[nodiscard]] std::string packedRow(std::span<const std::string_view> texts);
[[nodiscard]] std::vector<std::string> unpackedRow(std::string_view row);

/// The points of one kind that a large action has touched, in one blob. Each line is compressed by
/// itself, so that one point is found without reading all of them.
class HistoryRows
{
public:
    HistoryRows() = default;
    explicit HistoryRows(const QByteArray& blob);

    /// \param row  the point as it was; empty when it has come
    void add(const PointName& name, HistoryChange change, const std::string& row);
    [[nodiscard]] bool isEmpty() const { return m_added.empty() && m_read.empty(); }
    [[nodiscard]] QByteArray blob() const;

    using Visitor =
        std::function<void(const PointName& name, HistoryChange change, std::string_view row)>;
    /// All rows, line by line. \returns false when the blob is damaged, so that rows are missing
    bool visit(const Visitor& visitor) const;
    /// The rows of one line of a blob, likewise.
    bool visitLine(const std::string& line, const Visitor& visitor) const;

private:
    std::map<std::string, std::string> m_added; ///< the rows by line
    std::map<std::string, QByteArray> m_read;   ///< those of a blob, compressed
    bool m_isWhole = true;                      ///< the blob
};

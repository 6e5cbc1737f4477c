#pragma once

#include "model/PointNumber.h"
#include "model/RecordTexts.h"

#include <future>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Some rows as text, ready to be inserted.
class RowBatch
{
public:
    struct LineEnd
    {
        std::size_t rows;      ///< of the batch before it
        std::size_t linesDone; ///< of all lines
    };

    void add(const RecordTexts& row)
    {
        m_columns = row.size();
        for (std::size_t i = 0; i < row.size(); ++i) {
            m_text.append(row.values()[i]);
            m_ends.push_back(m_text.size());
        }
    }
    void endLine(std::size_t linesDone) { m_lineEnds.push_back({size(), linesDone}); }
    [[nodiscard]] bool isEmpty() const { return size() == 0 && m_lineEnds.empty(); }

    [[nodiscard]] std::size_t size() const
    {
        return m_columns == 0 ? 0 : m_ends.size() / m_columns;
    }
    /// Of the lines that end in the batch.
    [[nodiscard]] const std::vector<LineEnd>& lineEnds() const { return m_lineEnds; }

    /// Puts the texts of one row into `values`, which has room for them.
    void copyRow(std::size_t row, std::string_view* values) const
    {
        for (std::size_t i = row * m_columns; i < (row + 1) * m_columns; ++i) {
            const std::size_t start = i == 0 ? 0 : m_ends[i - 1];
            *values++ = std::string_view(m_text).substr(start, m_ends[i] - start);
        }
    }

private:
    std::size_t m_columns = 0;
    std::string m_text;
    std::vector<std::size_t> m_ends; ///< of each cell in the text
    std::vector<LineEnd> m_lineEnds;
};

/// Writes points as text on a thread of its own, while the caller inserts the batch before: as
/// measured, formatting then costs a save no time. The points must not change meanwhile.
template <class Line, class Write>
class RowFormatter
{
    static constexpr std::size_t kBatchSize = 4096;

public:
    using Lines = std::vector<const Line*>; ///< null for a line that does not exist

    /// \param write `bool(point, texts)`; false leaves the point out
    RowFormatter(Lines lines, Write write) : m_lines(std::move(lines)), m_write(write)
    {
        startLine(0);
        startNext();
    }

    /// The batches in the order of the lines; an empty one after the last. Throws what the thread
    /// threw.
    RowBatch next()
    {
        RowBatch batch = m_coming.get();
        startNext();
        return batch;
    }

private:
    void startNext()
    {
        m_coming = std::async(std::launch::async, [this] { return formatBatch(); });
    }

    RowBatch formatBatch()
    {
        RowBatch batch;
        while (m_line < m_lines.size() && batch.size() < kBatchSize) {
            if (m_next < m_points.size() && m_write(*m_points[m_next], *m_texts))
                batch.add(*m_texts);
            if (++m_next < m_points.size())
                continue;
            batch.endLine(m_line + 1);
            startLine(m_line + 1);
        }
        return batch;
    }

    void startLine(std::size_t line)
    {
        while (line < m_lines.size() && m_lines[line] == nullptr)
            ++line;
        m_line = line;
        m_next = 0;
        if (m_line < m_lines.size())
            m_points = writtenOrder(*m_lines[m_line]);
    }

    Lines m_lines;
    std::size_t m_line = 0;
    decltype(writtenOrder(std::declval<const Line&>())) m_points; ///< of the line
    std::size_t m_next = 0;                                       ///< in `m_points`
    Write m_write;
    std::unique_ptr<RecordTexts> m_texts = std::make_unique<RecordTexts>();
    std::future<RowBatch> m_coming; // last, so that the thread ends before what it works with
};

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
    void add(const RecordTexts& row)
    {
        m_columns = row.size();
        for (std::size_t i = 0; i < row.size(); ++i) {
            m_text.append(row.values()[i]);
            m_ends.push_back(m_text.size());
        }
    }
    void endLine() { m_lineEnds.push_back(size()); }

    [[nodiscard]] std::size_t size() const
    {
        return m_columns == 0 ? 0 : m_ends.size() / m_columns;
    }
    /// For each line that ends in the batch: how many rows of the batch are done with it.
    [[nodiscard]] const std::vector<std::size_t>& lineEnds() const { return m_lineEnds; }

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
    std::vector<std::size_t> m_lineEnds;
};

/// Writes points as text on a thread of its own, while the caller inserts the batch before: as
/// measured, formatting then costs a save no time. The points must not change meanwhile.
template <class Points, class Write>
class RowFormatter
{
    static constexpr std::size_t kBatchSize = 4096;

public:
    RowFormatter(const Points& points, Write write)
        : m_line(points.begin()), m_end(points.end()), m_write(write)
    {
        startLine();
        startNext();
    }

    /// The batches in the order of the points; an empty one after the last. Throws what the thread
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
        while (m_line != m_end && batch.size() < kBatchSize) {
            m_write(*m_points[m_next], *m_texts);
            batch.add(*m_texts);
            if (++m_next != m_points.size())
                continue;
            batch.endLine();
            ++m_line;
            startLine();
        }
        return batch;
    }

    void startLine()
    {
        m_next = 0;
        if (m_line != m_end)
            m_points = writtenOrder(m_line->second);
    }

    decltype(std::declval<const Points&>().begin()) m_line;
    decltype(m_line) m_end;
    std::vector<const typename Points::Point*> m_points; ///< of the line, in the order of writing
    std::size_t m_next = 0;                              ///< in `m_points`
    Write m_write;
    std::unique_ptr<RecordTexts> m_texts = std::make_unique<RecordTexts>();
    std::future<RowBatch> m_coming; // last, so that the thread ends before what it works with
};

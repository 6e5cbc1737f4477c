#pragma once

#include "project/history/HistoryAuthor.h"
#include "project/history/UnsavedEdits.h"

#include <cstdint>

class IDBAdapter;
class ProgressReporter;

/// Writes edits into the history of a project's database, which is open and in a transaction.
class HistoryWriter
{
public:
    /// All of them must live until the history is written, and nothing may change meanwhile.
    HistoryWriter(const UnsavedEdits& edits, const EditedData& present, HistoryAuthor author)
        : m_edits(edits), m_present(present), m_author(std::move(author))
    {
    }

    /// Without a change nothing is written. A history of a newer version that this one cannot write
    /// stays as it is; the log says so.
    /// \returns whether it succeeded; the adapter says why it did not
    bool write(IDBAdapter& database, ProgressReporter& progress) const;

private:
    const UnsavedEdits& m_edits;
    EditedData m_present;
    HistoryAuthor m_author;
};

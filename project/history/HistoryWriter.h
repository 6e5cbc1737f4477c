#pragma once

#include "project/edits/Edit.h"
#include "project/history/HistoryAuthor.h"

#include <cstdint>

class IDBAdapter;
class ProgressReporter;

/// Writes edits into the history of a project's database, which is open and in a transaction.
class HistoryWriter
{
public:
    using Entries = std::vector<UnsavedEdits::Entry>;

    /// All of them must live until the history is written, and nothing may change meanwhile.
    HistoryWriter(const Entries& entries, const EditedData& present, HistoryAuthor author)
        : m_entries(entries), m_present(present), m_author(std::move(author))
    {
    }

    /// Without edits nothing is written. A history of a newer version that this one cannot write
    /// stays as it is; the log says so.
    /// \returns whether it succeeded; the adapter says why it did not
    bool write(IDBAdapter& database, ProgressReporter& progress) const;

private:
    const Entries& m_entries;
    EditedData m_present;
    HistoryAuthor m_author;
};

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
    /// stays as it is; the log says so. A history that takes no rows keeps nobody from saving the
    /// points: nothing is written then, and `notice` says so.
    /// \returns false when the transaction is lost
    bool write(IDBAdapter& database, ProgressReporter& progress);
    /// For the user, when it was not written; mostly empty.
    [[nodiscard]] const QString& notice() const { return m_notice; }

private:
    bool writeAll(IDBAdapter& database, ProgressReporter& progress) const;

    const UnsavedEdits& m_edits;
    EditedData m_present;
    HistoryAuthor m_author;
    QString m_notice;
};

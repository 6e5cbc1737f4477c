#pragma once

#include "protocol/Outcome.h"

#include <QByteArray>

#include <functional>
#include <string_view>

class QAbstractTableModel;

/// The result of a check as CSV, UTF-8: a line of captions, then a line for each row. A field with
/// a comma, a quote or a line break stands in quotes, its own quotes doubled.
enum class ResultCsv
{
    AsShown,   ///< as the list on the screen
    ForScripts ///< captions in English, and check points with their counters
};

/// A field of such a line, UTF-8.
[[nodiscard]] QByteArray csvField(const QString& text);

/// \param write is called with each line, its line feed included
void formatResultCsv(const QAbstractTableModel& result, ResultCsv kind,
                     const std::function<void(std::string_view line)>& write);

/// Writes the same into a file, in place of what stands there.
/// \returns when it fails: the detail names the file and the reason in English
Outcome writeResultCsv(const QString& file, const QAbstractTableModel& result, ResultCsv kind);

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

/// Is called with each line, its line feed included.
using CsvLineWriter = std::function<void(std::string_view line)>;

void formatResultCsv(const QAbstractTableModel& result, ResultCsv kind, const CsvLineWriter& write);

/// Writes the same into a file, in place of what stands there.
/// \returns when it fails: the detail names the file and the reason in English
Outcome writeResultCsv(const QString& file, const QAbstractTableModel& result, ResultCsv kind);

/// Writes what `format` gives line by line into a file, in place of what stands there.
/// \returns as `writeResultCsv`
Outcome writeCsvFile(const QString& file,
                     const std::function<void(const CsvLineWriter& write)>& format);

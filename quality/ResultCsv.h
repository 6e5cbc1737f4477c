#pragma once

#include "protocol/Outcome.h"

#include <functional>
#include <string_view>

class QAbstractTableModel;

/// The result of a check as CSV, UTF-8: a line of captions, then a line for each row. A field with
/// a comma or a quote stands in quotes, its own quotes doubled.
/// \param captionRole of the header: `Qt::DisplayRole`, or `result_role::kEnglish` for scripts
/// \param write       is called with each line, its line feed included
void formatResultCsv(const QAbstractTableModel& result, int captionRole,
                     const std::function<void(std::string_view line)>& write);

/// Writes the same into a file, in place of what stands there.
/// \returns when it fails: the detail names the file and the reason in English
Outcome writeResultCsv(const QString& file, const QAbstractTableModel& result, int captionRole);

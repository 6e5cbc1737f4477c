#pragma once

#include <QStringList>

class IDictionary;

// The columns of a survey export as the user chose them, in the user's order. The settings hold
// their keys, so that a change of language does not touch the choice.

/// The keys of the chosen columns; all of them when nothing was chosen. Unknown keys, and those
/// that stand there a second time, are passed over.
[[nodiscard]] QStringList exportColumns(const IDictionary& settings);

/// Puts the choice into `settings`; saving them is the caller's task.
void setExportColumns(IDictionary& settings, const QStringList& keys);

/// The translated captions of columns by their keys.
[[nodiscard]] QStringList exportCaptions(const QStringList& keys);

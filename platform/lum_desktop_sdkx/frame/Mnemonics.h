#pragma once

#include <QString>

namespace desktop {

/// A caption without the mark of its mnemonic: "Save &As..." becomes "Save As...", and
/// "另存为(&A)..." becomes "另存为...".
[[nodiscard]] QString withoutMnemonic(const QString& caption);

/// The letter that opens the entry in its menu, in upper case; null when there is none.
[[nodiscard]] QChar mnemonicOf(const QString& caption);

/// Gives a caption without a mnemonic this one: at the first place of the letter that begins a
/// word, else at its first place, else in brackets behind the words.
[[nodiscard]] QString withMnemonic(const QString& caption, QChar letter);

} // namespace desktop

#pragma once

class QString;

namespace lum {

/// Loads the program's and Qt's texts. A language without a catalogue gets the English texts: those
/// in the code, with a catalogue for the few that are not English there.
/// \param language such as "zh_CN"; empty takes the system's language
/// \param folder    where the program's ".qm" files are
/// \param catalogue what their names begin with, before the language
void loadTranslations(const QString& language, const QString& folder, const QString& catalogue);

/// Lets fonts without Chinese characters be helped out by Chinese ones when the program speaks
/// Chinese: by the locale "C" they would be Japanese, of other forms. Works before there is an
/// application object only.
/// \param language such as "zh_CN"; empty is the system's, which fonts follow by themselves
void chooseFontsFor(const QString& language);

} // namespace lum

#pragma once

class QString;

namespace lum {

/// Loads the program's and Qt's texts.
/// \param language such as "zh_CN"; empty takes the system's language
/// \param folder    where the program's ".qm" files are
/// \param catalogue what their names begin with, before the language
void loadTranslations(const QString& language, const QString& folder, const QString& catalogue);

} // namespace lum

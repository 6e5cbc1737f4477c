#include "lum_sdk/files/Translations.h"

#include "basalt_utilities/ILogger.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace lum {

namespace {

bool install(const QString& file, const QString& folder, const QLocale& locale)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, file, QStringLiteral("_"), folder)) {
        basalt::logDebug("No texts in " + locale.name().toStdString() + ": " +
                         (folder + QLatin1Char('/') + file).toStdString());
        return false;
    }
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator.release());
    return true;
}

} // namespace

void loadTranslations(const QString& language, const QString& folder, const QString& catalogue)
{
    const QLocale english(QLocale::English);
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    if (install(catalogue, folder, locale))
        install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath),
                locale);
    else if (!install(catalogue, folder, english))
        basalt::logWarning("Some texts are not in English: there is no catalogue in " +
                           folder.toStdString());
}

void chooseFontsFor(const QString& language)
{
    constexpr const char* kFontLanguage = "FC_LANG"; // goes before the locale for fontconfig
    if (language.startsWith(QLatin1String("zh")) && !qEnvironmentVariableIsSet(kFontLanguage))
        qputenv(kFontLanguage, language.toLatin1());
}

} // namespace lum

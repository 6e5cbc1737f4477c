#include "lum_sdk/files/Translations.h"

#include "basalt_utilities/ILogger.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lum {

namespace {

void install(const QString& file, const QString& folder, const QLocale& locale)
{
    auto* const translator = new QTranslator(qApp);
    if (translator->load(locale, file, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        basalt::logDebug("No texts in " + locale.name().toStdString() + ": " +
                         (folder + QLatin1Char('/') + file).toStdString());
}

} // namespace

void loadTranslations(const QString& language, const QString& folder, const QString& catalogue)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    if (locale.language() == QLocale::English)
        return; // the texts in the code
    install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath),
            locale);
    install(catalogue, folder, locale);
}

} // namespace lum

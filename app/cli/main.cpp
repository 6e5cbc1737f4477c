// skyquill-cli: the program's work without a window, for scripts and nightly checks.

#include "app/cli/CliCommands.h"
#include "basalt_utilities/ILogger.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/Translations.h"
#include "lum_sdk/QtMessages.h"
#include "lum_sdk/raster/TileThreads.h"
#include "lum_sdk/Text.h"
#include "protocol/ProductName.h"
#include "protocol/StatusKeys.h"

#include <QApplication>
#include <QTextCodec>

#include <cstdio>
#include <memory>

namespace {

/// Reads the settings that the program with the window has. \returns their language
QString readSettings()
{
    get_system_ini_parameter().load(basalt::toolFolder() + "/data_process_5.sys");
    return lum::toQString(get_system_ini_parameter().dictionary().text(settings::kLanguage));
}

/// Prints what "--help" and "--version" ask for. \returns whether one of them does
bool answer(const QStringList& arguments)
{
    const QString first = arguments.value(0);
    if (arguments.contains(QLatin1String("--help")) || first == QLatin1String("-h")) {
        std::printf("%s", qUtf8Printable(cliHelp()));
        return true;
    }
    if (first != QLatin1String("--version") && first != QLatin1String("-v"))
        return false;
    const std::string version(get_system_config_parameter().dictionary().text("version"));
    std::printf("skyquill-cli %s\n", version.c_str());
    return true;
}

/// A graphical application only for commands that need it; it never uses a display.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv,
                                                  const QStringList& arguments)
{
    const CliApplication wanted = cliApplication(arguments);
    if (wanted == CliApplication::Plain)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (wanted == CliApplication::Widgets)
        return std::make_unique<QApplication>(argc, argv);
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// Tells why nothing was done. \returns the exit status: this is the one place that chooses it
int report(const Outcome& outcome)
{
    constexpr int kFound = 3;
    if (outcome.isDone())
        return outcome.kind() == Outcome::Kind::Found ? kFound : 0;
    std::fprintf(stderr, "skyquill-cli: %s\n", qUtf8Printable(outcome.text()));
    return outcome.kind() == Outcome::Kind::Refused ? 2 : 1;
}

/// A full disk or a closed pipe loses what was printed.
bool isPrinted()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

/// \returns the exit status
int run(const QStringList& arguments)
{
    try {
        const int status = report(runCli(arguments));
        return isPrinted()
                   ? status
                   : report(Outcome::failed(QStringLiteral("the output cannot be written")));
    } catch (const std::exception& fault) {
        return report(Outcome::failed(QString::fromUtf8(fault.what())));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    nameProduct();
    lum::setUpDatabase();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // also in the locale "C"
    basalt::keepLogOffConsole(); // `report` tells the user in one line
    qInstallMessageHandler(lum::logQtMessage);
    get_system_config_parameter().load(basalt::toolFolder() + "/data_process_5.xml");
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (answer(arguments))
        return 0;
    const QString language = readSettings();
    lum::chooseFontsFor(language);
    std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv, arguments);
    QCoreApplication::setOrganizationName(QLatin1String(kOrganisation));
    QCoreApplication::setApplicationName(QLatin1String(kProductName));
    lum::loadTranslations(language, QString::fromStdString(basalt::configFolder() + "/Language"),
                          QCoreApplication::applicationName().toLower());
    const int status = run(arguments);
    application.reset();
    lum::exitProcess(status);
}

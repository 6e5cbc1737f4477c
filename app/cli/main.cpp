// skyquill-cli: the program's work without a window, for scripts and nightly checks.

#include "app/cli/CliCommands.h"
#include "basalt_utilities/ILogger.h"
#include "lum_sdk/database/SqliteSetUp.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/Translations.h"
#include "lum_sdk/Text.h"
#include "protocol/ProductName.h"
#include "protocol/StatusKeys.h"

#include <QGuiApplication>
#include <QTextCodec>

#include <cstdio>
#include <memory>

namespace {

/// The configuration and the settings that the program with the window has.
void readConfiguration()
{
    const std::string tool = basalt::toolFolder() + "/data_process_5";
    get_system_config_parameter().load(tool + ".xml");
    get_system_ini_parameter().load(tool + ".sys");
    const auto language = get_system_ini_parameter().dictionary().text(settings::kLanguage);
    lum::loadTranslations(lum::toQString(language),
                          QString::fromStdString(basalt::configFolder() + "/Language"),
                          QCoreApplication::applicationName().toLower());
}

/// A graphical application only for commands that need it; it never uses a display.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (!cliPaints(arguments))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// Tells why nothing was done. \returns the exit status: this is the one place that chooses it
int report(const Outcome& outcome)
{
    if (outcome.isDone())
        return 0;
    std::fprintf(stderr, "skyquill-cli: %s\n", qUtf8Printable(outcome.text()));
    return outcome.kind() == Outcome::Kind::Refused ? 2 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    nameProduct();
    lum::setUpDatabase();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // also in the locale "C"
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setOrganizationName(QLatin1String(kOrganisation));
    QCoreApplication::setApplicationName(QLatin1String(kProductName));
    basalt::keepLogOffConsole(); // `report` tells the user in one line
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("--help")) {
        std::printf("%s", qUtf8Printable(cliHelp()));
        return 0;
    }
    readConfiguration();
    try {
        return report(runCli(arguments));
    } catch (const std::exception& fault) {
        return report(Outcome::failed(QString::fromUtf8(fault.what())));
    }
}

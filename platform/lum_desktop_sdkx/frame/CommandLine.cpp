#include "lum_desktop_sdkx/frame/CommandLine.h"

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char* kTextOptions[] = {"-h", "--help", "-v", "--version", "--components"};

QString translated(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

template <class Factory>
void printKind(const char* kind, const Factory& factory)
{
    for (const auto& [name, caption] : factory.captions())
        std::printf("%-17s %-30s %s\n", kind, name.c_str(), caption.c_str());
}

void printComponents()
{
    printKind("IWindow", extensible_factory_IWindow());
    printKind("ILayerViewer", extensible_factory_ILayerViewer());
    printKind("IReactor", extensible_factory_IReactor());
    printKind("ICommandExecuterx", extensible_factory_ICommandExecuterx());
    printKind("IGuiAssistant", extensible_factory_IGuiAssistant());
}

QCommandLineOption option(const QStringList& names, const char* description,
                          const QString& value = {})
{
    return QCommandLineOption(names, translated(description), value);
}

} // namespace

bool CommandLine::asksForText(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + std::max(argc, 1), [](const char* argument) {
        return std::any_of(std::begin(kTextOptions), std::end(kTextOptions),
                           [=](const char* text) { return qstrcmp(argument, text) == 0; });
    });
}

CommandLine CommandLine::read(const QStringList& arguments)
{
    const auto help = option({QStringLiteral("h"), QStringLiteral("help")},
                             QT_TRANSLATE_NOOP("CommandLine", "Print this text."));
    const auto version = option({QStringLiteral("v"), QStringLiteral("version")},
                                QT_TRANSLATE_NOOP("CommandLine", "Print the version."));
    const auto startupTime = option(
        {QStringLiteral("startup-time")},
        QT_TRANSLATE_NOOP("CommandLine", "Print the CPU time to the shown window, and leave."));
    const auto screenshot = option(
        {QStringLiteral("screenshot")},
        QT_TRANSLATE_NOOP("CommandLine", "Write a picture of the window to <file>, and leave."),
        QStringLiteral("file"));
    const auto components =
        option({QStringLiteral("components")},
               QT_TRANSLATE_NOOP("CommandLine",
                                 "List the components that a window layout can name, and leave."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        lum::toQString(get_system_config_parameter().dictionary().text("description")));
    parser.addOptions({startupTime, screenshot, components, help, version});
    parser.addPositionalArgument(
        QStringLiteral("project"),
        translated(QT_TRANSLATE_NOOP("CommandLine", "The project file to open.")),
        QStringLiteral("[project]"));
    const bool isUnderstood = parser.parse(arguments);
    if (parser.isSet(help))
        parser.showHelp();
    if (parser.isSet(version))
        parser.showVersion();
    if (parser.isSet(components)) {
        printComponents();
        std::exit(0);
    }
    if (!isUnderstood) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(parser.errorText()));
        std::exit(1);
    }
    const QString file = parser.positionalArguments().value(0);
    return {parser.isSet(startupTime), parser.value(screenshot),
            file.isEmpty() ? QString() : QFileInfo(file).absoluteFilePath()};
}

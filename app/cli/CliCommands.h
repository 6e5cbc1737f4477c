#pragma once

#include "app/cli/CliArguments.h"
#include "protocol/Outcome.h"

/// The application object that a command needs.
enum class CliApplication
{
    Plain,
    Painting, ///< with fonts
    Widgets
};

/// One command of the tool.
struct CliCommand
{
    const char* name = nullptr;
    const char* usage = nullptr; ///< its arguments, as the help shows them; CHECK is a check's name
    const char* summary = nullptr; ///< half a sentence
    int fewestPlaces = 0;          ///< how many arguments it takes besides its options
    int mostPlaces = 0;
    const char* options = nullptr; ///< with a value, comma-separated
    const char* flags = nullptr;   ///< without one
    Outcome (*run)(const CliArguments& arguments) = nullptr;
    CliApplication application = CliApplication::Plain;
};

/// What this command line needs.
[[nodiscard]] CliApplication cliApplication(const QStringList& arguments);

/// Runs the command that the arguments name; refuses wrong usage.
[[nodiscard]] Outcome runCli(const QStringList& arguments);

/// The text of "--help".
[[nodiscard]] QString cliHelp();

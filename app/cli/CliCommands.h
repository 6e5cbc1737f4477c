#pragma once

#include "app/cli/CliArguments.h"

/// How a command ended: its exit status, and what the user has to know when it is not 0.
struct CliResult
{
    static constexpr int kDone = 0;
    static constexpr int kFailed = 1;
    static constexpr int kWrongUsage = 2;

    int status = kDone;
    QString message;

    [[nodiscard]] static CliResult failed(const QString& message) { return {kFailed, message}; }
    [[nodiscard]] static CliResult wrongUsage(const QString& message)
    {
        return {kWrongUsage, message};
    }
};

/// One command of the tool.
struct CliCommand
{
    const char* name = nullptr;
    const char* usage = nullptr;   ///< what stands behind the name; CHECK is any check's name
    const char* summary = nullptr; ///< half a sentence
    int fewestPlaces = 0;          ///< how many arguments it takes besides its options
    int mostPlaces = 0;
    const char* options = nullptr; ///< with a value, comma-separated
    const char* flags = nullptr;   ///< without one
    CliResult (*run)(const CliArguments& arguments) = nullptr;
    bool paints = false; ///< needs fonts, and so a graphical application
};

/// Whether this command line needs a graphical application.
[[nodiscard]] bool cliPaints(const QStringList& arguments);

/// Runs what the command line names.
[[nodiscard]] CliResult runCli(const QStringList& arguments);

/// The text of "--help".
[[nodiscard]] QString cliHelp();

#pragma once

#include <QString>
#include <QStringList>

/// What the command line of the program asks for: a file to open once the window is shown, and
/// these options:
/// - "--startup-time" prints the CPU time until the window is shown, and ends the program
/// - "--screenshot FILE" writes a picture of the window, and ends the program
/// - "--help", "--version", and "--components", which lists the registered components, print their
///   text and end the program
struct CommandLine
{
    bool printsStartupTime = false;
    QString screenshotFile;
    QString fileToOpen; ///< its whole path; empty without one

    /// Whether one of the options is there that print a text. They need no display, so the program
    /// reads them before it makes the graphical application.
    [[nodiscard]] static bool asksForText(int argc, char** argv);

    /// Reads what Qt has left of the arguments; the application object has its name and version.
    /// Ends the program when a text was printed, and with an error for wrong options.
    [[nodiscard]] static CommandLine read(const QStringList& arguments);
};

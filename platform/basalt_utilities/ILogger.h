#pragma once

#include <string_view>

/// The program's log. Writing to it never fails and never throws; any thread may write.
class ILogger
{
public:
    enum class Level
    {
        Debug,
        Info,
        Warning,
        Error
    };

    virtual ~ILogger() = default;
    virtual void write(Level level, std::string_view line) = 0;

    /// Waits until everything written so far is in the file.
    virtual void flush() = 0;
};

/// The one logger of the process, made at the first call: a rotating file
/// "<state folder>/<product in small letters>.log" (5 files of 2 MB; see Product.h), and warnings
/// and errors on standard error too. When the file cannot be opened, standard error says so and is
/// the only log. A line repeated within 5 seconds is counted, not written again.
[[nodiscard]] ILogger* rism_logger_get_instance();

namespace basalt {

void logDebug(std::string_view line);
void logInfo(std::string_view line);
void logWarning(std::string_view line);
void logError(std::string_view line);

/// Stops writing to standard error: command-line tools use it for their own messages.
void keepLogOffConsole();

/// Gets each line as it is written (for the message window, or a test), on the writing thread and
/// under a lock: it must not write to the log itself. Null removes the listener.
using LogListener = void (*)(void* context, ILogger::Level level, std::string_view line);
void setLogListener(LogListener listener, void* context);

} // namespace basalt

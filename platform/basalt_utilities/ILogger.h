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

    /// What was written so far is on the disk when this returns.
    virtual void flush() = 0;
};

/// The one logger of the process, made at the first call: a rotating file
/// "<state folder>/<product in small letters>.log" (5 files of 2 MB; see Product.h), and warnings
/// and errors on standard error too. When the file cannot be written, standard error says so and is
/// all there is. A line that is repeated at once is counted, not written again.
[[nodiscard]] ILogger* rism_logger_get_instance();

namespace basalt {

void logDebug(std::string_view line);
void logInfo(std::string_view line);
void logWarning(std::string_view line);
void logError(std::string_view line);

/// From here on the log is the file alone: for tools whose standard error is an answer.
void keepLogOffConsole();

/// Somebody who wants each line as it is written (the message window, a test). Called under a lock
/// from the writing thread; must not write to the log itself. Null takes it away.
using LogListener = void (*)(void* context, ILogger::Level level, std::string_view line);
void setLogListener(LogListener listener, void* context);

} // namespace basalt

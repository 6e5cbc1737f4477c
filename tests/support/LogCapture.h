#pragma once

#include "basalt_utilities/ILogger.h"

#include <mutex>
#include <string>
#include <vector>

/// What is written to the log while it lives; any thread may write.
class LogCapture
{
public:
    LogCapture()
    {
        basalt::setLogListener(
            [](void* self, ILogger::Level level, std::string_view line) {
                static_cast<LogCapture*>(self)->add(level, line);
            },
            this);
    }
    ~LogCapture() { basalt::setLogListener(nullptr, nullptr); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// The lines so far of a level or above.
    [[nodiscard]] std::vector<std::string> lines(ILogger::Level least = ILogger::Level::Debug) const
    {
        const std::lock_guard lock(m_mutex);
        std::vector<std::string> found;
        for (const auto& [level, line] : m_lines) {
            if (level >= least)
                found.push_back(line);
        }
        return found;
    }
    /// The same as one text, a line each.
    [[nodiscard]] std::string text(ILogger::Level least = ILogger::Level::Debug) const
    {
        std::string all;
        for (const std::string& line : lines(least))
            all += line + '\n';
        return all;
    }
    [[nodiscard]] bool holds(const std::string& part) const
    {
        return text().find(part) != std::string::npos;
    }

private:
    void add(ILogger::Level level, std::string_view line)
    {
        const std::lock_guard lock(m_mutex);
        m_lines.emplace_back(level, line);
    }

    mutable std::mutex m_mutex;
    std::vector<std::pair<ILogger::Level, std::string>> m_lines;
};

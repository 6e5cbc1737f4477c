#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"

#include <spdlog/sinks/dup_filter_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

#include <cstdio>
#include <mutex>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kFileBytes = std::size_t{2} * 1024 * 1024;
constexpr std::size_t kOldFiles = 4;
constexpr std::chrono::seconds kRepeatWindow{5};

spdlog::level::level_enum toSpdlog(ILogger::Level level)
{
    switch (level) {
    case ILogger::Level::Debug:
        return spdlog::level::debug;
    case ILogger::Level::Info:
        return spdlog::level::info;
    case ILogger::Level::Warning:
        return spdlog::level::warn;
    case ILogger::Level::Error:
        break;
    }
    return spdlog::level::err;
}

/// The product's name in small letters.
std::string logName()
{
    std::string name = basalt::product().name;
    for (char& c : name)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return name;
}

class Logger final : public ILogger
{
public:
    Logger()
    {
        const auto sinks = std::make_shared<spdlog::sinks::dup_filter_sink_mt>(kRepeatWindow);
        m_console->set_level(spdlog::level::warn);
        m_console->set_pattern("%l: %v");
        sinks->add_sink(m_console);
        std::string problem;
        try {
            const std::string path = basalt::stateFolder() + '/' + logName() + ".log";
            const auto file =
                std::make_shared<spdlog::sinks::rotating_file_sink_mt>(path, kFileBytes, kOldFiles);
            file->set_pattern("%Y-%m-%d %H:%M:%S.%e %l %v");
            sinks->add_sink(file);
        } catch (const std::exception& fault) { // the file cannot be opened
            problem = fault.what();
        }
        m_logger = std::make_unique<spdlog::logger>(logName(), sinks);
        m_logger->set_level(spdlog::level::debug);
        m_logger->flush_on(spdlog::level::info);                // so that a crash loses no line
        m_logger->set_error_handler([](const std::string&) {}); // no message a line on a full disk
        if (!problem.empty())
            write(Level::Warning, "No log file, writing to standard error only: " + problem);
    }

    void write(Level level, std::string_view line) override
    {
        m_logger->log(toSpdlog(level), spdlog::string_view_t(line.data(), line.size()));
        const std::lock_guard lock(m_listenerMutex);
        if (m_listener != nullptr)
            m_listener(m_listenerContext, level, line);
    }

    void flush() override { m_logger->flush(); }

    void keepOffConsole() { m_console->set_level(spdlog::level::off); }

    void setListener(basalt::LogListener listener, void* context)
    {
        const std::lock_guard lock(m_listenerMutex);
        m_listener = listener;
        m_listenerContext = context;
    }

private:
    std::shared_ptr<spdlog::sinks::stderr_sink_mt> m_console =
        std::make_shared<spdlog::sinks::stderr_sink_mt>();
    std::unique_ptr<spdlog::logger> m_logger;
    std::mutex m_listenerMutex;
    basalt::LogListener m_listener = nullptr;
    void* m_listenerContext = nullptr;
};

Logger& logger()
{
    // Never destroyed: objects that are destroyed at exit may still write to the log.
    static Logger& instance = *std::make_unique<Logger>().release();
    return instance;
}

} // namespace

ILogger* rism_logger_get_instance()
{
    return &logger();
}

namespace basalt {

void logDebug(std::string_view line)
{
    logger().write(ILogger::Level::Debug, line);
}

void logInfo(std::string_view line)
{
    logger().write(ILogger::Level::Info, line);
}

void logWarning(std::string_view line)
{
    logger().write(ILogger::Level::Warning, line);
}

void logError(std::string_view line)
{
    logger().write(ILogger::Level::Error, line);
}

void keepLogOffConsole()
{
    logger().keepOffConsole();
}

void setLogListener(LogListener listener, void* context)
{
    logger().setListener(listener, context);
}

} // namespace basalt

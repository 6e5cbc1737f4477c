#include "basalt_utilities/FatalReport.h"

#include "basalt_utilities/ILogger.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <stdexcept>

void fatal_report(const char* format, ...)
{
    std::array<char, 2040> message{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message.data(), message.size(), format, arguments);
    va_end(arguments);
    if (ILogger* logger = rism_logger_get_instance()) {
        logger->write(ILogger::Level::Error, message.data());
        logger->flush();
    }
    throw std::runtime_error(message.data());
}

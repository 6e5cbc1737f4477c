#pragma once

#include <QString>

/// `"text"_q` is a QString of UTF-8 text.
inline QString operator""_q(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

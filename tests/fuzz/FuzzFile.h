#pragma once

#include "Hold.h"

#include <QString>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <string>

/// A file in memory, for readers that want a path.
class FuzzFile
{
public:
    FuzzFile(const std::uint8_t* data, std::size_t size) : m_file(::memfd_create("fuzz", 0))
    {
        hold(::write(m_file, data, size) == static_cast<ssize_t>(size), "memory takes the file");
    }
    ~FuzzFile() { ::close(m_file); }
    FuzzFile(const FuzzFile&) = delete;
    FuzzFile& operator=(const FuzzFile&) = delete;

    [[nodiscard]] QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file); }

private:
    int m_file;
};

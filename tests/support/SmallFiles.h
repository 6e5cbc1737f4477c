#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file of this process grows beyond a size: as on a disk that is full.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_usual);
        const rlimit limit{bytes, m_usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_usual);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_usual{};
};

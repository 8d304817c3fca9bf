#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <csignal>
#include <sys/resource.h>

namespace ozm::test {

/// No file may grow past @p bytes while this lives, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before = {};
    void (*m_signal)(int);
};

} // namespace ozm::test

#endif

#pragma once

#include <QFile>
#include <QString>
#include <QtTest>

#ifdef Q_OS_LINUX

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ozm::test {

/// Looks at files as a user without rights, also when the tests run as root: the kernel then drops the
/// privileges over files of this thread, and of those it starts meanwhile, and gives them back at the end.
class WithoutRights
{
public:
    WithoutRights() { ::setfsuid(65534); }
    ~WithoutRights() { ::setfsuid(::geteuid()); }
    Q_DISABLE_COPY_MOVE(WithoutRights)
};

inline void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

} // namespace ozm::test

#endif

#include <ozm_widgets/WholeFile.h>

#include <QSaveFile>
#include <platform/Errors.h>

#include <cerrno>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace ozm {

namespace {

int syncOnce(int handle)
{
#ifdef Q_OS_WIN
    return ::_commit(handle);
#else
    return ::fsync(handle);
#endif
}

/// The error number of the system, or 0; some file systems cannot be asked, and are believed.
int syncError(int handle)
{
    while (syncOnce(handle) != 0) {
        if (errno == EINTR)
            continue;
        const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EBADF;
        return isUnknown ? 0 : errno;
    }
    return 0;
}

/// Goes on after a part was written, since only the next try says why it was not all.
bool writeAll(QSaveFile &file, const QByteArray &bytes)
{
    for (qint64 done = 0; done < bytes.size();) {
        const qint64 written = file.write(bytes.constData() + done, bytes.size() - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

} // namespace

Error writeWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes))
        return commitWhole(file);
    return Error(codes::FileAccess, file.errorString());
}

Error commitWhole(QSaveFile &file)
{
    if (!file.isOpen())
        return Error(codes::FileAccess, file.errorString());
    const bool isWritten = file.flush();
    const int error = isWritten ? syncError(file.handle()) : 0;
    if (isWritten && error == 0 && file.commit())
        return {};
    const QString reason =
        error == 0 ? file.errorString() : QString::fromLocal8Bit(std::system_category().message(error));
    file.cancelWriting();
    return Error(codes::FileAccess, reason);
}

} // namespace ozm

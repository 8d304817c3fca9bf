#include "FileSystems.h"

#include "../Texts.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <array>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// By the beginning of the name, so that "nfs4", "smb3" and "fuse.sshfs" are among them.
constexpr std::array<QByteArrayView, 17> kUntrusted{
    "nfs",    "cifs",  "smb", "9p",   "virtiofs", "fuse",   "osxfuse", "macfuse", "afp",
    "webdav", "davfs", "afs", "ceph", "gluster",  "lustre", "gfs",     "ocfs",
};
// A disk of this machine through a kernel's driver, in spite of its name.
constexpr std::array<QByteArrayView, 2> kTrusted{"fuseblk", "fusectl"};

#ifdef Q_OS_WIN
QByteArray typeOf(const QString &folder)
{
    const std::wstring root = QStorageInfo(folder).rootPath().toStdWString();
    const bool remote = folder.startsWith("//"_L1) || GetDriveTypeW(root.c_str()) == DRIVE_REMOTE;
    return remote ? QByteArray("smb") : QStorageInfo(folder).fileSystemType();
}
#else
QByteArray typeOf(const QString &folder)
{
    return QStorageInfo(folder).fileSystemType();
}
#endif

} // namespace

bool isUntrustedFileSystem(const QByteArray &type)
{
    const QByteArray name = type.toLower();
    const auto begins = [&name](QByteArrayView known) { return name.startsWith(known); };
    return std::ranges::any_of(kUntrusted, begins) && std::ranges::none_of(kTrusted, begins);
}

Error checkFileSystem(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QByteArray type = typeOf(folder);
    if (!isUntrustedFileSystem(type))
        return {};
    return Error(
               ErrorCode::NotAllowed,
               Texts::tr(
                   "The audit trail \"%1\" would be on a network or virtual file system (%2), where records "
                   "can be lost. Choose a folder on a disk of this computer, or share a trail through "
                   "PostgreSQL.")
                   .arg(QDir::toNativeSeparators(path), QString::fromLatin1(type)))
        .ecatch(OZM_HERE);
}

} // namespace ozm::audit

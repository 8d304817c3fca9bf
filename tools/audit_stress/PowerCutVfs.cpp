#include "PowerCutVfs.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace ozm::audit::stress {

namespace {

constexpr qint64 kSector = 512;

struct OpenFile
{
    sqlite3_file base;
    std::string *name;
    bool fresh; ///< Created and not yet synced: its first sync syncs the folder, as SQLite's own does.
};

OpenFile *fileOf(sqlite3_file *file)
{
    return reinterpret_cast<OpenFile *>(file);
}

void apply(Files &files, const DiskStep &step, qint64 from, qint64 to)
{
    const auto found = files.find(step.file);
    if (found == files.end())
        return;
    QByteArray &content = found->second;
    if (step.kind == DiskStep::Kind::Truncate) {
        if (content.size() > step.offset)
            content.truncate(step.offset);
        return;
    }
    if (content.size() < step.offset + to)
        content.append(step.offset + to - content.size(), '\0');
    std::memcpy(content.data() + step.offset + from, step.bytes.constData() + from, std::size_t(to - from));
}

void applyWhole(Files &files, const DiskStep &step)
{
    apply(files, step, 0, step.bytes.size());
}

void record(DiskStep::Kind kind, const std::string &file, qint64 offset = 0, const QByteArray &bytes = {})
{
    PowerCutDisk &disk = PowerCutDisk::instance();
    disk.steps.push_back({kind, file, offset, bytes});
    if (kind == DiskStep::Kind::Write || kind == DiskStep::Kind::Truncate)
        applyWhole(disk.files, disk.steps.back());
}

int closeFile(sqlite3_file *file)
{
    delete fileOf(file)->name;
    return SQLITE_OK;
}

int readFile(sqlite3_file *file, void *into, int count, sqlite3_int64 offset)
{
    const QByteArray &content = PowerCutDisk::instance().files[*fileOf(file)->name];
    const qint64 there = std::clamp<qint64>(content.size() - offset, 0, count);
    std::memcpy(into, content.constData() + (there > 0 ? offset : 0), std::size_t(there));
    std::memset(static_cast<char *>(into) + there, 0, std::size_t(count - there));
    return there == count ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
}

int writeFile(sqlite3_file *file, const void *bytes, int count, sqlite3_int64 offset)
{
    record(DiskStep::Kind::Write, *fileOf(file)->name, offset,
           QByteArray(static_cast<const char *>(bytes), count));
    return SQLITE_OK;
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    record(DiskStep::Kind::Truncate, *fileOf(file)->name, size);
    return SQLITE_OK;
}

int syncFile(sqlite3_file *file, int)
{
    if (PowerCutDisk::instance().losesSyncs)
        return SQLITE_OK;
    record(DiskStep::Kind::Sync, *fileOf(file)->name);
    if (fileOf(file)->fresh)
        record(DiskStep::Kind::SyncFolder, {});
    fileOf(file)->fresh = false;
    return SQLITE_OK;
}

int sizeOfFile(sqlite3_file *file, sqlite3_int64 *size)
{
    *size = PowerCutDisk::instance().files[*fileOf(file)->name].size();
    return SQLITE_OK;
}

int lockFile(sqlite3_file *, int)
{
    return SQLITE_OK;
}

int isReserved(sqlite3_file *, int *reserved)
{
    *reserved = 0;
    return SQLITE_OK;
}

int controlFile(sqlite3_file *, int, void *)
{
    return SQLITE_NOTFOUND;
}

int sectorSize(sqlite3_file *)
{
    return kSector;
}

int characteristics(sqlite3_file *)
{
    return SQLITE_IOCAP_POWERSAFE_OVERWRITE;
}

// Version 1: without shared memory, as on a store that one program has to itself.
const sqlite3_io_methods kMethods{
    1,        closeFile, readFile,   writeFile,   truncateFile, syncFile,        sizeOfFile,
    lockFile, lockFile,  isReserved, controlFile, sectorSize,   characteristics, nullptr,
    nullptr,  nullptr,   nullptr,    nullptr,     nullptr,
};

int openFile(sqlite3_vfs *, sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags)
{
    static int temporary = 0;
    PowerCutDisk &disk = PowerCutDisk::instance();
    const std::string path = name ? name : "temporary" + std::to_string(++temporary);
    const bool there = disk.files.contains(path);
    file->pMethods = nullptr;
    if (!there && (flags & SQLITE_OPEN_CREATE) == 0)
        return SQLITE_CANTOPEN;
    if (!there) {
        disk.files[path];
        record(DiskStep::Kind::Create, path);
    }
    fileOf(file)->name = new std::string(path);
    fileOf(file)->fresh = !there;
    file->pMethods = &kMethods;
    if (outFlags)
        *outFlags = flags;
    return SQLITE_OK;
}

int removeFile(sqlite3_vfs *, const char *name, int syncsFolder)
{
    PowerCutDisk &disk = PowerCutDisk::instance();
    if (disk.files.erase(name) == 0)
        return SQLITE_IOERR_DELETE_NOENT;
    record(DiskStep::Kind::Remove, name);
    if (syncsFolder != 0 && !disk.losesSyncs)
        record(DiskStep::Kind::SyncFolder, {});
    return SQLITE_OK;
}

int access(sqlite3_vfs *, const char *name, int, int *there)
{
    const auto found = PowerCutDisk::instance().files.find(name);
    *there = found != PowerCutDisk::instance().files.end() ? 1 : 0;
    return SQLITE_OK;
}

int fullPath(sqlite3_vfs *, const char *name, int size, char *into)
{
    sqlite3_snprintf(size, into, "%s", name);
    return SQLITE_OK;
}

void registerVfs()
{
    // All calls that have nothing to do with files go to the system.
    static sqlite3_vfs vfs = *sqlite3_vfs_find(nullptr);
    vfs.iVersion = 1;
    vfs.szOsFile = sizeof(OpenFile);
    vfs.zName = "powercut";
    vfs.xOpen = openFile;
    vfs.xDelete = removeFile;
    vfs.xAccess = access;
    vfs.xFullPathname = fullPath;
    sqlite3_vfs_register(&vfs, 0);
}

} // namespace

PowerCutDisk &PowerCutDisk::instance()
{
    static PowerCutDisk disk;
    static const bool registered = (registerVfs(), true);
    Q_UNUSED(registered)
    return disk;
}

void PowerCut::add(const DiskStep &step)
{
    using Kind = DiskStep::Kind;
    switch (step.kind) {
    case Kind::Write:
    case Kind::Truncate:
        m_pending.push_back(step);
        break;
    case Kind::Sync:
        for (const DiskStep &done : m_pending) {
            if (done.file == step.file)
                applyWhole(m_durable, done);
        }
        std::erase_if(m_pending, [&step](const DiskStep &done) { return done.file == step.file; });
        break;
    case Kind::Create:
        m_durable[step.file];
        m_names.push_back({step.file, true, {}});
        break;
    case Kind::Remove:
        m_names.push_back({step.file, false, m_durable[step.file]});
        m_durable.erase(step.file);
        std::erase_if(m_pending, [&step](const DiskStep &done) { return done.file == step.file; });
        break;
    case Kind::SyncFolder:
        m_names.clear();
        break;
    case Kind::Said:
        m_said = step.offset;
        break;
    }
}

Files PowerCut::after(Loss loss, std::mt19937 &random) const
{
    Files files = m_durable;
    for (const DiskStep &step : m_pending) {
        const bool last = &step == &m_pending.back();
        if (loss == Loss::Nothing || (loss == Loss::TornLast && !last)) {
            applyWhole(files, step);
        } else if (loss == Loss::TornLast) {
            const qint64 end = step.bytes.size();
            apply(files, step, 0, std::max<qint64>(0, end - kSector / 2));
        } else if (loss == Loss::Sectors) {
            for (qint64 at = 0; at < qMax<qint64>(1, step.bytes.size()); at += kSector) {
                if (random() % 2 == 0)
                    apply(files, step, at, qMin<qint64>(step.bytes.size(), at + kSector));
            }
        }
    }
    // Names that were not synced: the newest may be undone, and those before it stay or go, too.
    for (std::size_t i = m_names.size(); i-- > 0;) {
        const Name &name = m_names[i];
        if (loss == Loss::Nothing || loss == Loss::TornLast || (loss == Loss::Sectors && random() % 2 == 0))
            break;
        if (name.created)
            files.erase(name.file);
        else
            files[name.file] = name.before;
    }
    return files;
}

} // namespace ozm::audit::stress

#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/WholeFile.h>

#include "support/Logging.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr auto kCopy = ".autosave"_L1;
constexpr auto kLock = ".lock"_L1;
constexpr auto kDamaged = ".damaged"_L1;
// As QUuid::Id128 writes it.
constexpr qsizetype kIdLength = 32;

QString rescueFolder(const QString &directory)
{
    return directory.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                               : directory;
}

QString prefixOf(const QString &storageName)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(storageName)) + u'.';
}

/// The files of @p storageName, and not those of a name that this one is the beginning of.
QStringList copiesIn(const QDir &folder, const QString &storageName)
{
    const QString prefix = prefixOf(storageName);
    const qsizetype length = prefix.size() + kIdLength + kCopy.size();
    QStringList names = folder.entryList({u'*' + kCopy}, QDir::Files);
    names.removeIf([&](const QString &name) { return name.size() != length || !name.startsWith(prefix); });
    return names;
}

void prepare(QLockFile &lock)
{
    // Only a program that is gone leaves its lock behind, however long another has been working.
    lock.setStaleLockTime(0);
}

std::optional<TemplateAutosave::Rescued> readCopy(const QString &file)
{
    QFile copy(file);
    if (!copy.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(copy.readAll()).object();
    if (!object.value("content"_L1).isString())
        return std::nullopt;
    return TemplateAutosave::Rescued{
        object.value("path"_L1).toString(),
        object.value("content"_L1).toString(),
        QDateTime::fromString(object.value("when"_L1).toString(), Qt::ISODateWithMs),
        file,
        {}};
}

QByteArray copyOf(const QString &path, const QString &content)
{
    return QJsonDocument(QJsonObject{{"path"_L1, path},
                                     {"when"_L1, QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
                                     {"content"_L1, content}})
        .toJson();
}

bool writeCopy(const QString &name, const QByteArray &bytes)
{
    QSaveFile file(name);
    // The template may be confidential, and other users may look into the folder.
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
           file.write(bytes) == bytes.size() && !commitWhole(file).hasError();
}

} // namespace

class TemplateAutosave::Private
{
public:
    Private(const QString &storageName, const QString &directory)
        : folder(rescueFolder(directory))
        , base(folder + u'/' + prefixOf(storageName) + QUuid::createUuid().toString(QUuid::Id128))
        , lock(base + kCopy + kLock)
    {
        prepare(lock);
    }

    bool isReady() { return lock.isLocked() || (QDir().mkpath(folder) && lock.tryLock(0)); }

    const QString folder;
    const QString base;
    QLockFile lock;
};

TemplateAutosave::TemplateAutosave(const QString &storageName, const QString &directory)
    : d(std::make_unique<Private>(storageName, directory))
{}

TemplateAutosave::~TemplateAutosave()
{
    // While the lock is still held, so that nobody takes it for left behind.
    if (d->lock.isLocked())
        QFile::remove(d->base + kCopy);
}

bool TemplateAutosave::store(const QString &path, const QString &content)
{
    const bool stored = d->isReady() && writeCopy(d->base + kCopy, copyOf(path, content));
    if (!stored)
        OZM_WIDGETS_WARNING() << "Unsaved work cannot be copied to" << d->folder;
    return stored;
}

QList<TemplateAutosave::Rescued> TemplateAutosave::rescued(const QString &storageName,
                                                           const QString &directory)
{
    QList<Rescued> all;
    const QDir folder(rescueFolder(directory));
    const QStringList names = copiesIn(folder, storageName);
    for (const QString &name : names) {
        const QString file = folder.filePath(name);
        auto lock = std::make_shared<QLockFile>(file + kLock);
        prepare(*lock);
        if (!lock->tryLock(0))
            continue;
        if (std::optional<Rescued> copy = readCopy(file)) {
            copy->hold = std::move(lock);
            all.append(*copy);
        } else if (QFile::exists(file)) {
            OZM_WIDGETS_WARNING() << "A copy of unsaved work is damaged:" << file;
            QFile::rename(file, file + kDamaged);
        }
    }
    std::ranges::sort(all, {}, &Rescued::when);
    return all;
}

void TemplateAutosave::discard(const Rescued &rescued)
{
    QFile::remove(rescued.file);
}

QList<TemplateAutosave::Rescued> TemplateAutosave::takeRescued(const QString &storageName,
                                                               const QString &directory)
{
    QList<Rescued> all = rescued(storageName, directory);
    for (Rescued &each : all) {
        discard(each);
        each.hold.reset();
    }
    return all;
}

} // namespace ozm

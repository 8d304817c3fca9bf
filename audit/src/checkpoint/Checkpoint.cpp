#include "../Texts.h"

#include <ozm_audit/Checkpoint.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// A note is a few hundred bytes; a file far larger is something else.
constexpr qint64 kLargestNote = 1 << 20;

Error notACheckpoint()
{
    return Error(ErrorCode::BadParameter, Texts::tr("This is not a checkpoint of an audit trail."))
        .ecatch(OZM_HERE);
}

class FolderSink : public CheckpointSink
{
public:
    explicit FolderSink(const QString &folder)
        : m_folder(folder)
    {}

    Error write(const Checkpoint &checkpoint) override
    {
        QFile file(QDir(m_folder).filePath(
            u"%1-%2.checkpoint"_s.arg(checkpoint.origin).arg(checkpoint.size, 12, 10, '0'_L1)));
        // The file there says the same or is evidence: neither is written over.
        if (file.exists())
            return {};
        if (!QDir().mkpath(m_folder) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly) ||
            file.write(checkpoint.note) != checkpoint.note.size() || !file.flush()) {
            return Error(ErrorCode::FileAccess,
                         Texts::tr("The checkpoint \"%1\" cannot be written: %2")
                             .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()))
                .ecatch(OZM_HERE);
        }
        return {};
    }

private:
    const QString m_folder;
};

class CommandSink : public CheckpointSink
{
public:
    CommandSink(const QString &program, const QStringList &arguments)
        : m_program(program)
        , m_arguments(arguments)
    {}

    Error write(const Checkpoint &checkpoint) override
    {
        // A mail or a copy takes seconds; longer than this nobody waits for it.
        constexpr int kPatienceMs = 30'000;
        QProcess process;
        process.start(m_program, m_arguments);
        process.write(checkpoint.note);
        process.closeWriteChannel();
        if (process.waitForFinished(kPatienceMs) && process.exitStatus() == QProcess::NormalExit &&
            process.exitCode() == 0) {
            return {};
        }
        return Error(ErrorCode::Failed,
                     Texts::tr("The command \"%1\" did not take the checkpoint: %2")
                         .arg(m_program, QString::fromLocal8Bit(process.readAllStandardError())))
            .ecatch(OZM_HERE);
    }

private:
    const QString m_program;
    const QStringList m_arguments;
};

} // namespace

CheckpointSink::~CheckpointSink() = default;

std::unique_ptr<CheckpointSink> folderSink(const QString &folder)
{
    return std::make_unique<FolderSink>(folder);
}

std::unique_ptr<CheckpointSink> commandSink(const QString &program, const QStringList &arguments)
{
    return std::make_unique<CommandSink>(program, arguments);
}

Checkpoint Checkpoint::of(const QString &origin, qint64 size, const QByteArray &root)
{
    Checkpoint checkpoint{origin, size, root, {}};
    checkpoint.note = origin.toUtf8() + '\n' + QByteArray::number(size) + '\n' + root.toBase64() + "\n\n";
    return checkpoint;
}

Result<Checkpoint> Checkpoint::fromNote(const QByteArray &note)
{
    const QList<QByteArray> lines = note.split('\n');
    // Origin, size, root, perhaps more, and the empty line before the signatures.
    const qsizetype end = lines.indexOf(QByteArray());
    if (end < 3 || lines.constFirst().isEmpty() || end + 1 >= lines.size())
        return notACheckpoint();
    bool ok = false;
    Checkpoint checkpoint;
    checkpoint.origin = QString::fromUtf8(lines.at(0));
    checkpoint.size = lines.at(1).toLongLong(&ok);
    const auto root = QByteArray::fromBase64Encoding(lines.at(2), QByteArray::AbortOnBase64DecodingErrors);
    checkpoint.root = root.decoded;
    checkpoint.note = note;
    // In one way only: what reads the same must be the same bytes.
    if (!ok || checkpoint.size < 0 || QByteArray::number(checkpoint.size) != lines.at(1) || !root ||
        checkpoint.root.size() != 32 || checkpoint.root.toBase64() != lines.at(2)) {
        return notACheckpoint();
    }
    return checkpoint;
}

Result<QList<Checkpoint>> Checkpoint::inFolder(const QString &folder)
{
    if (!QDir(folder).exists()) {
        return Error(ErrorCode::FileAccess, Texts::tr("The folder of checkpoints \"%1\" cannot be found.")
                                                .arg(QDir::toNativeSeparators(folder)))
            .ecatch(OZM_HERE);
    }
    QList<Checkpoint> checkpoints;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (info.size() > kLargestNote || !file.open(QIODevice::ReadOnly))
            continue;
        if (auto checkpoint = fromNote(file.readAll()))
            checkpoints.append(std::move(checkpoint).value());
    }
    return checkpoints;
}

QByteArray Checkpoint::text() const
{
    return note.left(note.indexOf("\n\n") + 1);
}

} // namespace ozm::audit

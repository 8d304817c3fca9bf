#include "../Texts.h"
#include "../sqlite/SqliteBackend.h"
#include "../tree/MerkleTree.h"
#include "CopyFiles.h"
#include "ZipFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <ranges>

using namespace Qt::StringLiterals;

namespace ozm::audit {

Error copyCancelled()
{
    return Error(ErrorCode::Failed, Texts::tr("The copy was cancelled.")).ecatch(OZM_HERE);
}

namespace {

// Reading counts as half of the work, writing as the other.
constexpr qint64 kHalves = 2;

bool isWhole(const Query &query)
{
    const Query all;
    return query.user.isEmpty() && query.kinds.isEmpty() && query.fromMs == 0 && query.untilMs == 0 &&
           query.subjectType.isEmpty() && query.subjectKey.isEmpty() && query.attribute.isEmpty() &&
           query.outcome == all.outcome && query.text.isEmpty() && query.firstNumber <= 1 &&
           query.lastNumber == 0;
}

QByteArray recordOf(const CopyOptions &options, const QString &folder)
{
    QJsonObject json{{u"event"_s, options.archived ? u"archive"_s : u"export"_s},
                     {u"folder"_s, QDir(folder).absolutePath()},
                     {u"whole"_s, isWhole(options.query)}};
    const QList<std::pair<QString, QString>> filters{{u"user"_s, options.query.user},
                                                     {u"subjectType"_s, options.query.subjectType},
                                                     {u"subjectKey"_s, options.query.subjectKey},
                                                     {u"attribute"_s, options.query.attribute},
                                                     {u"text"_s, options.query.text}};
    for (const auto &[name, value] : filters) {
        if (!value.isEmpty())
            json.insert(name, value);
    }
    if (options.query.firstNumber != 0 || options.query.lastNumber != 0) {
        json.insert(u"first"_s, options.query.firstNumber);
        json.insert(u"last"_s, options.query.lastNumber);
    }
    if (options.query.fromMs != 0)
        json.insert(u"fromMs"_s, options.query.fromMs);
    if (options.query.untilMs != 0)
        json.insert(u"untilMs"_s, options.query.untilMs);
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

Result<QList<Entry>> entriesOf(const Store &store, const CopyOptions &options, qint64 last)
{
    QList<Entry> entries;
    if (isWhole(options.query)) {
        bool cancelled = false;
        Error error = store.forEach(1, last, [&](const Entry &entry) {
            entries.append(entry);
            cancelled = options.progress && !options.progress(entry.number, last * kHalves);
            return !cancelled;
        });
        if (error.hasError() || cancelled)
            return cancelled ? copyCancelled() : error;
        return entries;
    }
    Query query = options.query;
    query.pageSize = 1000;
    while (true) {
        const auto page = store.find(query);
        if (!page)
            return page.error();
        if (page.value().isEmpty())
            return entries;
        entries += page.value();
        query.after = entries.constLast().number;
        if (options.progress && !options.progress(qMin(last, query.after), last * kHalves))
            return copyCancelled();
    }
}

Error writeEntries(const QDir &folder, const QList<Entry> &entries)
{
    QByteArray lines;
    for (const Entry &entry : entries) {
        lines += "{\"number\":" + QByteArray::number(entry.number) + ",\"hash\":\"" +
                 toBytes(leafHash(entry.bytes)).toHex() + "\",\"bytes\":\"" + entry.bytes.toBase64() +
                 "\"}\n";
    }
    return writeCopyFile(folder, u"entries.ndjson"_s, lines);
}

Error writeProofs(const QDir &folder, const Store &store, const QList<Entry> &entries,
                  const Checkpoint &checkpoint, const Progress &progress)
{
    if (!folder.mkdir(u"proofs"_s))
        return Error(ErrorCode::FileAccess, Texts::tr("The folder for proofs cannot be made."))
            .ecatch(OZM_HERE);
    for (const Entry &entry : entries) {
        const auto proof = store.proof(entry.number, checkpoint);
        if (!proof)
            return proof.error();
        const QString name = u"proofs/%1.tlog-proof"_s.arg(entry.number, 12, 10, '0'_L1);
        if (Error error = writeCopyFile(folder, name, proof.value().toText()); error.hasError())
            return error;
        if (progress && !progress(entry.number, checkpoint.size))
            return copyCancelled();
    }
    return {};
}

Error writeCheckpoints(const QDir &folder, const Store &store, const Checkpoint &own, const SigningKey *key)
{
    const auto kept = store.keptCheckpoints();
    if (!kept)
        return kept.error();
    const auto sink = folderSink(folder.filePath(u"checkpoints"_s));
    for (const Checkpoint &checkpoint : kept.value()) {
        if (Error error = sink->write(checkpoint); error.hasError())
            return error;
    }
    if (Error error = sink->write(own); error.hasError() || !key)
        return error;
    Error error = writeCopyFile(folder, u"key.pub"_s, key->publicKey().toText().toUtf8() + '\n');
    return error.hasError() ? error : writeCopyFile(folder, u"key.pem"_s, key->publicKey().toPem());
}

Error copyVerifier(const QDir &folder, const QString &verifier)
{
    if (verifier.isEmpty() || QFile::copy(verifier, folder.filePath(u"ozm_audit_verify.py"_s)))
        return {};
    return Error(ErrorCode::FileAccess, Texts::tr("The verifier \"%1\" cannot be copied.").arg(verifier))
        .ecatch(OZM_HERE);
}

Error writeFiles(const QDir &folder, const Store &store, const QList<Entry> &entries,
                 const Checkpoint &checkpoint, const CopyOptions &options)
{
    const bool whole = isWhole(options.query);
    const QString title = Texts::tr("Audit trail %1, %2 of %3 entries, copied by %4 on %5")
                              .arg(store.trail())
                              .arg(entries.size())
                              .arg(checkpoint.size)
                              .arg(options.user.id, QDateTime::currentDateTime().toString(Qt::ISODate));
    const Progress progress = [&options](qint64 done, qint64 total) {
        return !options.progress || options.progress(total + done, total * kHalves);
    };
    const auto steps = {
        std::function([&] { return writeEntries(folder, entries); }),
        std::function([&] {
            return whole ? copyToSqlite(store, folder.filePath(u"trail.sqlite"_s), checkpoint.size, progress)
                         : writeProofs(folder, store, entries, checkpoint, progress);
        }),
        std::function([&] { return writeCheckpoints(folder, store, checkpoint, options.key); }),
        std::function([&] { return writeCopyCsv(folder, entries); }),
        std::function([&] { return writeCopyPdf(folder, entries, title, checkpoint); }),
        std::function([&] { return copyVerifier(folder, options.verifier); }),
        std::function([&] {
            return writeCopyFile(folder, u"README.txt"_s, copyReadme(checkpoint, entries.size(), whole));
        }),
    };
    for (const auto &step : steps) {
        if (Error error = step(); error.hasError())
            return error;
    }
    return {};
}

Error writeCopy(Store &store, const QDir &target, const CopyOptions &options)
{
    const auto checkpoint = store.makeCheckpoint(options.key);
    if (!checkpoint)
        return checkpoint.error();
    const auto entries = entriesOf(store, options, checkpoint.value().size);
    if (!entries)
        return entries.error();
    return writeFiles(target, store, entries.value(), checkpoint.value(), options);
}

Error isThere(const QString &path)
{
    return Error(ErrorCode::FileAccess, Texts::tr("The folder \"%1\" is there already or cannot be made.")
                                            .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

/// Written beside the file, so that there is room for the one where there is room for the other.
Error writeZip(Store &store, const QString &path, const CopyOptions &options)
{
    const QTemporaryDir beside(path + u"-XXXXXX"_s);
    if (!beside.isValid())
        return isThere(path);
    const QDir target(beside.path());
    Error error = writeCopy(store, target, options);
    return error.hasError() ? error : packFolder(target.path(), path);
}

} // namespace

Error writeInspectionCopy(Store &store, const QString &folder, const CopyOptions &options)
{
    const QDir target(folder);
    const bool zipped = folder.endsWith(".zip"_L1, Qt::CaseInsensitive);
    if (QFileInfo::exists(folder) || (!zipped && !QDir().mkpath(folder)))
        return isThere(folder);
    Draft draft;
    draft.kind = options.archived ? Kind::Archive : Kind::Export;
    draft.user = options.user;
    draft.reason = options.reason;
    draft.record = recordOf(options, folder);
    if (const auto number = store.append({draft}); !number)
        return number.error();
    Error error = zipped ? writeZip(store, folder, options) : writeCopy(store, target, options);
    if (!error.hasError())
        return {};
    QDir(folder).removeRecursively();
    draft.outcomeCode = int(error.errorCode());
    draft.outcomeText = error.errorMessage();
    (void)store.append({draft});
    return error;
}

} // namespace ozm::audit

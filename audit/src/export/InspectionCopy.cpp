#include "../Texts.h"
#include "../sqlite/SqliteBackend.h"
#include "CopyFiles.h"
#include "ZipFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::audit {

Error copyCancelled()
{
    return Error(ErrorCode::Failed, Texts::tr("The copy was cancelled.")).ecatch(OZM_HERE);
}

namespace {

// Of a whole trail, the files for people count as half of the work, the store as the other.
constexpr qint64 kHalves = 2;

// Read at a time, and then let go.
constexpr qint64 kPage = 1000;

bool isWhole(const CopyOptions &options)
{
    if (options.ranges)
        return false;
    const Query &query = options.query;
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
                     {u"whole"_s, isWhole(options)}};
    const QList<std::pair<QString, QString>> filters{{u"user"_s, options.query.user},
                                                     {u"subjectType"_s, options.query.subjectType},
                                                     {u"subjectKey"_s, options.query.subjectKey},
                                                     {u"attribute"_s, options.query.attribute},
                                                     {u"text"_s, options.query.text},
                                                     {u"choice"_s, options.choice}};
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

using ShowPage = std::function<Error(const QList<Entry> &)>;

Error showRange(const Store &store, Range range, const ShowPage &show)
{
    for (qint64 first = range.first; first <= range.last; first += kPage) {
        QList<Entry> page;
        Error error = store.forEach(first, qMin(range.last, first + kPage - 1), [&page](const Entry &entry) {
            page.append(entry);
            return true;
        });
        if (!error.hasError())
            error = show(page);
        if (error.hasError())
            return error;
    }
    return {};
}

Error showFound(const Store &store, Query query, const ShowPage &show)
{
    while (true) {
        const auto page = store.find(query);
        if (!page || page.value().isEmpty())
            return page ? Error() : page.error();
        if (Error error = show(page.value()); error.hasError())
            return error;
        query.after = page.value().constLast().number;
    }
}

/// The entries of a copy, of those that its checkpoint counts: others may append meanwhile.
class CopyChoice
{
public:
    CopyChoice(const Store &store, const CopyOptions &options, qint64 last)
        : m_store(store)
        , m_query(options.query)
        , m_ranges(options.ranges)
    {
        if (isWhole(options))
            m_ranges = QList<Range>{{1, last}};
        m_query.pageSize = int(kPage);
        m_query.order = Query::Order::OldestFirst;
        m_query.lastNumber = m_query.lastNumber == 0 ? last : qMin(last, m_query.lastNumber);
        if (!m_ranges)
            return;
        for (Range &range : *m_ranges)
            range.last = qMin(range.last, last);
    }

    [[nodiscard]] Result<qint64> count() const
    {
        qint64 count = 0;
        if (m_ranges) {
            for (const Range &range : *m_ranges)
                count += qMax<qint64>(0, range.last - range.first + 1);
            return count;
        }
        Query query = m_query;
        while (true) {
            const auto page = m_store.findNumbers(query);
            if (!page)
                return page.error();
            if (page.value().isEmpty())
                return count;
            count += page.value().size();
            query.after = page.value().constLast();
        }
    }

    [[nodiscard]] Error forEachPage(const ShowPage &show) const
    {
        if (!m_ranges)
            return showFound(m_store, m_query, show);
        for (const Range &range : *m_ranges) {
            if (Error error = showRange(m_store, range, show); error.hasError())
                return error;
        }
        return {};
    }

private:
    const Store &m_store;
    Query m_query;
    std::optional<QList<Range>> m_ranges;
};

Error writeProof(const QDir &folder, const Store &store, const Entry &entry, const Checkpoint &checkpoint)
{
    const auto proof = store.proof(entry.number, checkpoint);
    if (!proof)
        return proof.error();
    const QString name = u"proofs/%1.tlog-proof"_s.arg(entry.number, 12, 10, '0'_L1);
    return writeCopyFile(folder, name, proof.value().toText());
}

/// The files that have a line for each entry, and the proofs.
Error writeEntries(const QDir &folder, const Store &store, const CopyChoice &choice, qint64 count,
                   const Checkpoint &checkpoint, const CopyOptions &options)
{
    const bool whole = isWhole(options);
    if (!whole && !folder.mkdir(u"proofs"_s))
        return Error(ErrorCode::FileAccess, Texts::tr("The folder for proofs cannot be made."))
            .ecatch(OZM_HERE);
    const QString title = Texts::tr("Audit trail %1, %2 of %3 entries, copied by %4 on %5")
                              .arg(store.trail())
                              .arg(count)
                              .arg(checkpoint.size)
                              .arg(options.user.id, QDateTime::currentDateTime().toString(Qt::ISODate));
    CopyFiles files(folder, title, checkpoint, count);
    Error error = files.open();
    if (error.hasError())
        return error;
    qint64 done = 0;
    error = choice.forEachPage([&](const QList<Entry> &page) {
        for (const Entry &entry : page) {
            Error failed = files.add(entry);
            if (!failed.hasError() && !whole)
                failed = writeProof(folder, store, entry, checkpoint);
            if (failed.hasError())
                return failed;
            if (options.progress && !options.progress(++done, whole ? count * kHalves : count))
                return copyCancelled();
        }
        return Error();
    });
    return error.hasError() ? error : files.close();
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

Error writeFiles(const QDir &folder, const Store &store, const Checkpoint &checkpoint,
                 const CopyOptions &options)
{
    const bool whole = isWhole(options);
    const CopyChoice choice(store, options, checkpoint.size);
    const auto count = choice.count();
    if (!count)
        return count.error();
    const Progress progress = [&options](qint64 done, qint64 total) {
        return !options.progress || options.progress(total + done, total * kHalves);
    };
    const auto steps = {
        std::function(
            [&] { return writeEntries(folder, store, choice, count.value(), checkpoint, options); }),
        std::function([&] {
            return whole ? copyToSqlite(store, folder.filePath(u"trail.sqlite"_s), checkpoint.size, progress)
                         : Error();
        }),
        std::function([&] { return writeCheckpoints(folder, store, checkpoint, options.key); }),
        std::function([&] { return copyVerifier(folder, options.verifier); }),
        std::function([&] {
            return writeCopyFile(folder, u"README.txt"_s,
                                 copyReadme(checkpoint, count.value(), options.choice, whole));
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
    return checkpoint ? writeFiles(target, store, checkpoint.value(), options) : checkpoint.error();
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

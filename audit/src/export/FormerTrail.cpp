#include "../Texts.h"
#include "../entry/EntryForm.h"
#include "../sqlite/Database.h"
#include "../tree/MerkleTree.h"

#include <ozm_audit/InspectionCopy.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr const char *kRows =
    "SELECT sequence, kind, item, parent, time_ms, utc_offset_s, user, undo_context, "
    "outcome_code, outcome_text, record FROM audit_trail ORDER BY sequence";
/// The rows as drafts of one append, which begins with the entry that says where they came from.
class Importer
{
public:
    Importer(const Draft &origin, const QByteArray &hash)
        : m_hash(QString::fromLatin1(hash.first(12)))
        , m_drafts{origin}
    {}

    void take(const Statement &row)
    {
        Draft draft;
        draft.kind = kindFromString(QString::fromUtf8(row.text(1)));
        draft.timeMs = row.number(4);
        draft.utcOffset = int(row.number(5));
        draft.user.id = QString::fromUtf8(row.text(6));
        draft.context = QString::fromUtf8(row.text(7));
        draft.outcomeCode = int(row.number(8));
        draft.outcomeText = QString::fromUtf8(row.text(9));
        draft.record = row.text(10);
        draft.session = u"imported-%1-row-%2"_s.arg(m_hash).arg(row.number(0));
        takeSubject(draft);
        const bool isMark = draft.kind == Kind::Commit;
        draft.parent = placeOf(isMark ? row.number(2) : row.number(3));
        // Entries have no numbers yet, so that the rows have to do.
        if (isMark)
            draft.record = "{\"parentRow\":" + QByteArray::number(row.number(3)) + '}';
        else
            m_places.insert(row.number(2), Draft::below(m_drafts.size()));
        m_drafts.append(draft);
    }

    [[nodiscard]] const QList<Draft> &drafts() const { return m_drafts; }

private:
    static void takeSubject(Draft &draft)
    {
        const OperationLogItemData data(draft.record);
        if (!data.isValid())
            return;
        draft.attributes = data.attributes();
        draft.subjectType = data.subject().typeToString();
        const QJsonObject key = data.subject().toJsonObject().value("key"_L1).toObject();
        if (!key.isEmpty())
            draft.subjectKey = QString::fromUtf8(QJsonDocument(key).toJson(QJsonDocument::Compact));
    }

    [[nodiscard]] qint64 placeOf(qint64 item) const { return m_places.value(item); }

    const QString m_hash;
    QHash<qint64, qint64> m_places;
    QList<Draft> m_drafts;
};

Result<QByteArray> hashOfFile(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
        return Error(ErrorCode::FileAccess,
                     Texts::tr("\"%1\" cannot be read: %2").arg(path, file.errorString()))
            .ecatch(OZM_HERE);
    }
    return hash.result().toHex();
}

} // namespace

Result<qint64> importFormerTrail(Store &store, const QString &path, const Draft &importedBy)
{
    const auto hash = hashOfFile(path);
    if (!hash)
        return hash.error();
    auto database = Database::open(path, Database::Access::ReadOnly, 1000);
    if (!database)
        return database.error();
    const auto rows = database.value()->number("SELECT count(*) FROM audit_trail");
    if (!rows)
        return rows.error();
    Draft origin = importedBy;
    origin.kind = Kind::Event;
    origin.record = QJsonDocument(QJsonObject{{u"event"_s, u"import"_s},
                                              {u"file"_s, QFileInfo(path).absoluteFilePath()},
                                              {u"sha256"_s, QString::fromLatin1(hash.value())},
                                              {u"rows"_s, rows.value()}})
                        .toJson(QJsonDocument::Compact);
    Importer importer(origin, hash.value());
    Statement row(*database.value(), kRows);
    while (row.step())
        importer.take(row);
    if (row.error().hasError())
        return row.error();
    const auto first = store.append(importer.drafts());
    if (!first)
        return first.error();
    return importer.drafts().size() - 1;
}

} // namespace ozm::audit

#include "../Texts.h"
#include "../model/EntryTexts.h"

#include <ozm_audit_widgets/Signature.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// All of them are named in the signature's record, with their hashes.
constexpr qint64 kMostSigned = 10'000;
constexpr qsizetype kShownSubjects = 5;

/// The leaf of RFC 6962: SHA-256 over a zero byte and the entry.
QByteArray leafOf(const QByteArray &bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArrayView("\0", 1));
    hash.addData(bytes);
    return hash.result();
}

QByteArray digestOf(const QList<QByteArray> &leaves)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QByteArray &leaf : leaves)
        hash.addData(leaf);
    return hash.result();
}

Error notAllowed(const QString &text)
{
    return Error(ErrorCode::NotAllowed, text).ecatch(OZM_HERE);
}

QString subjectWords(const QString &subject)
{
    return subjectText(subject.section(u'\n', 0, 0), subject.section(u'\n', 1));
}

} // namespace

Result<SignedContent> SignedContent::of(const Store &store, const NumberSet &entries)
{
    if (entries.isEmpty())
        return notAllowed(WidgetTexts::tr("Select the entries to be signed."));
    if (entries.count() > kMostSigned) {
        return notAllowed(
            WidgetTexts::tr("One signature covers %L1 entries at most. Select fewer.").arg(kMostSigned));
    }
    SignedContent content;
    content.entries = entries;
    bool disposed = false;
    for (const NumberSet::Run &run : entries.runs()) {
        Error error = store.forEach(run.first, run.last, [&](const Entry &entry) {
            disposed = disposed || entry.isDisposed();
            content.leaves.append(leafOf(entry.bytes));
            const QString subject = entry.subjectType + u'\n' + entry.subjectKey;
            if (!entry.subjectKey.isEmpty() && !content.subjects.contains(subject))
                content.subjects.append(subject);
            return true;
        });
        if (error.hasError())
            return error;
    }
    if (disposed || content.leaves.size() != entries.count())
        return notAllowed(WidgetTexts::tr("An entry whose content is gone cannot be signed."));
    content.digest = digestOf(content.leaves);
    return content;
}

QString SignedContent::inWords() const
{
    QStringList about;
    for (const QString &subject : subjects.first(qMin(kShownSubjects, subjects.size())))
        about.append(subjectWords(subject));
    if (subjects.size() > kShownSubjects)
        about.append(WidgetTexts::tr("and %L1 more").arg(subjects.size() - kShownSubjects));
    const QString numbers = entries.toText().replace(u","_s, u", "_s);
    const QString first = entries.count() == 1
                              ? WidgetTexts::tr("Entry %1").arg(numbers)
                              : WidgetTexts::tr("%L1 entries: %2").arg(entries.count()).arg(numbers);
    return about.isEmpty() ? first : WidgetTexts::tr("%1, about %2").arg(first, about.join(u"; "_s));
}

Draft SignedContent::signature(const Person &signer, const QString &meaning,
                               const QStringList &components) const
{
    QJsonArray hashes;
    for (const QByteArray &leaf : leaves)
        hashes.append(QString::fromLatin1(leaf.toHex()));
    const QJsonObject record{{u"event"_s, u"signature"_s},
                             {u"meaning"_s, meaning},
                             {u"entries"_s, entries.toText()},
                             {u"subjects"_s, QJsonArray::fromStringList(subjects)},
                             {u"leaves"_s, hashes},
                             {u"digest"_s, QString::fromLatin1(digest.toHex())},
                             {u"components"_s, QJsonArray::fromStringList(components)}};
    Draft draft;
    draft.kind = Kind::Signature;
    draft.user = signer;
    draft.record = QJsonDocument(record).toJson(QJsonDocument::Compact);
    return draft;
}

Error checkSignature(const Store &store, const Entry &signature)
{
    const QJsonObject record = QJsonDocument::fromJson(signature.record).object();
    const auto entries = NumberSet::fromText(record.value("entries"_L1).toString());
    if (!entries)
        return entries.error();
    const auto content = SignedContent::of(store, entries.value());
    if (!content)
        return content.error();
    QJsonArray hashes;
    for (const QByteArray &leaf : content.value().leaves)
        hashes.append(QString::fromLatin1(leaf.toHex()));
    if (record.value("leaves"_L1).toArray() == hashes &&
        record.value("digest"_L1).toString() == QString::fromLatin1(content.value().digest.toHex()))
        return {};
    return Error(ErrorCode::Failed,
                 WidgetTexts::tr("The entries are not those that signature %1 was given for.")
                     .arg(signature.number))
        .ecatch(OZM_HERE);
}

QString signatureText(const Entry &signature)
{
    const QJsonObject record = QJsonDocument::fromJson(signature.record).object();
    return WidgetTexts::tr("%1: signed by %2 on %3 (entry %4)")
        .arg(record.value("meaning"_L1).toString(), personText(signature.user),
             (timeText(signature, TrailModel::Zone::Recorded) + u' ' + signature.zone).trimmed())
        .arg(signature.number);
}

Result<QList<Entry>> signaturesOf(const Store &store, const QString &subjectType, const QString &subjectKey)
{
    QList<Entry> signatures;
    Query query;
    query.kinds = {Kind::Signature};
    while (true) {
        const auto page = store.find(query);
        if (!page)
            return page.error();
        if (page.value().isEmpty())
            return signatures;
        for (const Entry &entry : page.value()) {
            const QJsonArray subjects =
                QJsonDocument::fromJson(entry.record).object().value("subjects"_L1).toArray();
            if (subjects.contains(subjectType + u'\n' + subjectKey))
                signatures.append(entry);
        }
        query.after = page.value().constLast().number;
    }
}

} // namespace ozm::audit

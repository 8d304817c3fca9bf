#include "../Texts.h"
#include "../tree/MerkleTree.h"

#include <ozm_audit/Proof.h>

namespace ozm::audit {

namespace {

constexpr auto kHeader = "c2sp.org/tlog-proof@v1";
constexpr QByteArrayView kIndex = "index ";

} // namespace

Result<Proof> Proof::fromText(const QByteArray &text)
{
    const auto fault = [] {
        return Error(ErrorCode::BadParameter,
                     Texts::tr("This is not a proof for an entry of an audit trail."))
            .ecatch(OZM_HERE);
    };
    const qsizetype end = text.indexOf("\n\n");
    if (end < 0)
        return fault();
    const QList<QByteArray> lines = text.left(end).split('\n');
    if (lines.size() < 2 || lines.at(0) != kHeader || !lines.at(1).startsWith(kIndex))
        return fault();
    bool ok = false;
    Proof proof;
    proof.number = lines.at(1).sliced(kIndex.size()).toLongLong(&ok) + 1;
    for (const QByteArray &line : lines.sliced(2))
        proof.hashes.append(QByteArray::fromBase64(line));
    auto checkpoint = Checkpoint::fromNote(text.sliced(end + 2));
    if (!ok || !checkpoint)
        return fault();
    proof.checkpoint = std::move(checkpoint).value();
    return proof;
}

QByteArray Proof::toText() const
{
    QByteArray text =
        QByteArray(kHeader) + '\n' + kIndex.toByteArray() + QByteArray::number(number - 1) + '\n';
    for (const QByteArray &hash : hashes)
        text += hash.toBase64() + '\n';
    return text + '\n' + checkpoint.note;
}

bool Proof::proves(const QByteArray &bytes) const
{
    return provesInclusion(hashes, number - 1, checkpoint.size, leafHash(bytes), checkpoint.root);
}

bool provesConsistency(const QList<QByteArray> &hashes, const Checkpoint &older, const Checkpoint &newer)
{
    return older.origin == newer.origin &&
           provesConsistency(hashes, older.size, newer.size, older.root, newer.root);
}

} // namespace ozm::audit

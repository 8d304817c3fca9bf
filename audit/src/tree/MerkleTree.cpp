#include "MerkleTree.h"

#include <openssl/evp.h>

#include <bit>
#include <memory>

namespace ozm::audit {

namespace {

constexpr unsigned char kLeafPrefix = 0;
constexpr unsigned char kNodePrefix = 1;

/// One context for each thread: looking the algorithm up costs more than hashing an entry.
EVP_MD_CTX *context()
{
    thread_local const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> made(EVP_MD_CTX_new(),
                                                                                    &EVP_MD_CTX_free);
    return made.get();
}

const EVP_MD *algorithm()
{
    static const EVP_MD *found = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    return found;
}

Hash digest(const unsigned char *prefix, QByteArrayView first, QByteArrayView second = {})
{
    Hash hash = {};
    EVP_MD_CTX *md = context();
    bool ok = EVP_DigestInit_ex2(md, algorithm(), nullptr) == 1;
    if (prefix)
        ok = ok && EVP_DigestUpdate(md, prefix, 1) == 1;
    ok = ok && EVP_DigestUpdate(md, first.data(), size_t(first.size())) == 1;
    if (!second.isEmpty())
        ok = ok && EVP_DigestUpdate(md, second.data(), size_t(second.size())) == 1;
    ok = ok && EVP_DigestFinal_ex(md, hash.data(), nullptr) == 1;
    if (!ok)
        qFatal("SHA-256 is not available from OpenSSL");
    return hash;
}

QByteArrayView viewOf(const Hash &hash)
{
    return {hash.data(), qsizetype(hash.size())};
}

/// The largest power of two below @p size, which is at least 2.
qint64 split(qint64 size)
{
    return qint64(std::bit_floor(quint64(size - 1)));
}

int levelOf(qint64 powerOfTwo)
{
    return std::countr_zero(quint64(powerOfTwo));
}

bool isPowerOfTwo(qint64 number)
{
    return std::has_single_bit(quint64(number));
}

} // namespace

QByteArray toBytes(const Hash &hash)
{
    return viewOf(hash).toByteArray();
}

std::optional<Hash> toHash(QByteArrayView bytes)
{
    Hash hash = {};
    if (bytes.size() != qsizetype(hash.size()))
        return {};
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(hash.data()));
    return hash;
}

Hash leafHash(QByteArrayView entry)
{
    return digest(&kLeafPrefix, entry);
}

Hash nodeHash(const Hash &left, const Hash &right)
{
    return digest(&kNodePrefix, viewOf(left), viewOf(right));
}

QByteArray sha256(QByteArrayView bytes)
{
    return toBytes(digest(nullptr, bytes));
}

Hash Frontier::root() const
{
    if (m_edge.empty())
        return digest(nullptr, {});
    Hash root = m_edge.back();
    for (std::size_t i = m_edge.size() - 1; i-- > 0;)
        root = nodeHash(m_edge[i], root);
    return root;
}

void Frontier::append(const Hash &leaf, std::vector<Subtree> *completed)
{
    Hash hash = leaf;
    int level = 0;
    for (qint64 rest = m_size; (rest & 1) != 0; rest >>= 1) {
        hash = nodeHash(m_edge.back(), hash);
        m_edge.pop_back();
        ++level;
        if (completed && level % kKeptLevels == 0)
            completed->push_back({level, m_size >> level, hash});
    }
    m_edge.push_back(hash);
    ++m_size;
}

QByteArray Frontier::toBytes() const
{
    QByteArray bytes;
    bytes.reserve(qsizetype(m_edge.size() * sizeof(Hash)));
    for (const Hash &hash : m_edge)
        bytes.append(viewOf(hash));
    return bytes;
}

std::optional<Frontier> Frontier::fromBytes(qint64 size, QByteArrayView bytes)
{
    constexpr auto kHashSize = qsizetype(sizeof(Hash));
    if (size < 0 || bytes.size() != qsizetype(std::popcount(quint64(size))) * kHashSize)
        return {};
    Frontier frontier;
    frontier.m_size = size;
    for (qsizetype at = 0; at < bytes.size(); at += kHashSize)
        frontier.m_edge.push_back(*toHash(bytes.sliced(at, kHashSize)));
    return frontier;
}

Result<Hash> ProofMaker::root(qint64 size) const
{
    return size == 0 ? Result<Hash>(Frontier().root()) : range(0, size);
}

Result<Hash> ProofMaker::full(int level, qint64 position) const
{
    const int above = level % kKeptLevels;
    const qint64 count = qint64(1) << above;
    auto read = m_source(level - above, position * count, count);
    if (!read)
        return read.error();
    std::vector<Hash> hashes = std::move(read).value();
    while (hashes.size() > 1) {
        for (std::size_t i = 0; i < hashes.size() / 2; ++i)
            hashes[i] = nodeHash(hashes[2 * i], hashes[2 * i + 1]);
        hashes.resize(hashes.size() / 2);
    }
    return hashes.front();
}

/// Ranges are those of the tree's own splits: they begin at a multiple of their rounded size.
Result<Hash> ProofMaker::range(qint64 begin, qint64 end) const
{
    const qint64 size = end - begin;
    if (isPowerOfTwo(size))
        return full(levelOf(size), begin / size);
    const qint64 middle = begin + split(size);
    const auto left = range(begin, middle);
    if (!left)
        return left;
    const auto right = range(middle, end);
    if (!right)
        return right;
    return nodeHash(left.value(), right.value());
}

Result<QList<QByteArray>> ProofMaker::inclusion(qint64 leaf, qint64 size) const
{
    QList<QByteArray> proof;
    qint64 begin = 0;
    qint64 end = size;
    while (end - begin > 1) {
        const qint64 middle = begin + split(end - begin);
        const bool left = leaf < middle;
        const auto sibling = left ? range(middle, end) : range(begin, middle);
        if (!sibling)
            return sibling.error();
        proof.prepend(ozm::audit::toBytes(sibling.value()));
        (left ? end : begin) = middle;
    }
    return proof;
}

Result<QList<QByteArray>> ProofMaker::consistency(qint64 older, qint64 newer) const
{
    QList<QByteArray> proof;
    if (older == newer || older == 0)
        return proof;
    qint64 begin = 0;
    qint64 end = newer;
    // The subtree that the older tree ends with is known to the reader when it is all of the older tree.
    while (older != end) {
        const qint64 middle = begin + split(end - begin);
        const bool left = older <= middle;
        const auto sibling = left ? range(middle, end) : range(begin, middle);
        if (!sibling)
            return sibling.error();
        proof.prepend(ozm::audit::toBytes(sibling.value()));
        (left ? end : begin) = middle;
    }
    if (begin != 0) {
        const auto own = range(begin, end);
        if (!own)
            return own.error();
        proof.prepend(ozm::audit::toBytes(own.value()));
    }
    return proof;
}

bool provesInclusion(const QList<QByteArray> &proof, qint64 leaf, qint64 size, const Hash &hash,
                     const QByteArray &root)
{
    if (leaf < 0 || leaf >= size)
        return false;
    Hash found = hash;
    qint64 node = leaf;
    qint64 last = size - 1;
    for (const QByteArray &bytes : proof) {
        const auto sibling = toHash(bytes);
        if (!sibling || last == 0)
            return false;
        if ((node & 1) != 0 || node == last) {
            found = nodeHash(*sibling, found);
            while ((node & 1) == 0 && node != 0) {
                node >>= 1;
                last >>= 1;
            }
        } else {
            found = nodeHash(found, *sibling);
        }
        node >>= 1;
        last >>= 1;
    }
    return last == 0 && toBytes(found) == root;
}

bool provesConsistency(const QList<QByteArray> &proof, qint64 older, qint64 newer,
                       const QByteArray &olderRoot, const QByteArray &newerRoot)
{
    if (older < 0 || older > newer)
        return false;
    if (older == newer)
        return proof.isEmpty() && olderRoot == newerRoot;
    if (older == 0)
        return proof.isEmpty() && olderRoot == toBytes(Frontier().root());

    QList<QByteArray> path = proof;
    if (isPowerOfTwo(older))
        path.prepend(olderRoot);
    qint64 node = older - 1;
    qint64 last = newer - 1;
    while ((node & 1) != 0) {
        node >>= 1;
        last >>= 1;
    }
    const auto first = path.isEmpty() ? std::nullopt : toHash(path.constFirst());
    if (!first)
        return false;
    Hash oldFound = *first;
    Hash newFound = *first;
    for (qsizetype i = 1; i < path.size(); ++i) {
        const auto sibling = toHash(path.at(i));
        if (!sibling || last == 0)
            return false;
        if ((node & 1) != 0 || node == last) {
            oldFound = nodeHash(*sibling, oldFound);
            newFound = nodeHash(*sibling, newFound);
            while ((node & 1) == 0 && node != 0) {
                node >>= 1;
                last >>= 1;
            }
        } else {
            newFound = nodeHash(newFound, *sibling);
        }
        node >>= 1;
        last >>= 1;
    }
    return last == 0 && toBytes(oldFound) == olderRoot && toBytes(newFound) == newerRoot;
}

} // namespace ozm::audit

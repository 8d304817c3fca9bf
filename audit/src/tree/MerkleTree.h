#pragma once

#include <ozm_audit/ozm_audit_export.h>
#include <ozm_common_stable/Result.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace ozm::audit {

/// SHA-256.
using Hash = std::array<unsigned char, 32>;

[[nodiscard]] QByteArray toBytes(const Hash &hash);
[[nodiscard]] OZM_AUDIT_EXPORT std::optional<Hash> toHash(QByteArrayView bytes);

// The hashes of RFC 6962: leaves and nodes carry different prefixes, so that neither can pass as the other.
[[nodiscard]] Hash leafHash(QByteArrayView entry);
[[nodiscard]] Hash nodeHash(const Hash &left, const Hash &right);
[[nodiscard]] QByteArray sha256(QByteArrayView bytes);

/// A full subtree whose hash is kept, so that proofs need not read every leaf.
struct Subtree
{
    int level = 0; ///< It has 2^level leaves; kept are the multiples of kKeptLevels.
    qint64 position = 0;
    Hash hash = {};
};
inline constexpr int kKeptLevels = 8;

/// The right edge of a tree: enough to append to it and to know its root, whatever its size.
class OZM_AUDIT_EXPORT Frontier
{
public:
    [[nodiscard]] qint64 size() const { return m_size; }
    [[nodiscard]] Hash root() const;

    /// Adds to @p completed, unless that is null, the subtrees to be kept that @p leaf completes.
    void append(const Hash &leaf, std::vector<Subtree> *completed = nullptr);

    [[nodiscard]] QByteArray toBytes() const;
    /// Nothing when @p bytes cannot be the edge of a tree of @p size leaves.
    [[nodiscard]] static std::optional<Frontier> fromBytes(qint64 size, QByteArrayView bytes);

    bool operator==(const Frontier &) const = default;

private:
    qint64 m_size = 0;
    // Of the full subtrees, the largest first.
    std::vector<Hash> m_edge;
};

/**
 * Proofs over the first @p size leaves of a tree whose kept hashes are read through a function.
 */
class ProofMaker
{
public:
    /// The hashes of the subtrees of a kept level (0 for leaves) from a position on; exactly that many.
    using Source = std::function<Result<std::vector<Hash>>(int level, qint64 first, qint64 count)>;

    explicit ProofMaker(Source source)
        : m_source(std::move(source))
    {}

    [[nodiscard]] Result<Hash> root(qint64 size) const;
    [[nodiscard]] Result<QList<QByteArray>> inclusion(qint64 leaf, qint64 size) const;
    [[nodiscard]] Result<QList<QByteArray>> consistency(qint64 older, qint64 newer) const;

private:
    [[nodiscard]] Result<Hash> range(qint64 begin, qint64 end) const;
    [[nodiscard]] Result<Hash> full(int level, qint64 position) const;

    Source m_source;
};

[[nodiscard]] bool provesInclusion(const QList<QByteArray> &proof, qint64 leaf, qint64 size, const Hash &hash,
                                   const QByteArray &root);
[[nodiscard]] bool provesConsistency(const QList<QByteArray> &proof, qint64 older, qint64 newer,
                                     const QByteArray &olderRoot, const QByteArray &newerRoot);

} // namespace ozm::audit

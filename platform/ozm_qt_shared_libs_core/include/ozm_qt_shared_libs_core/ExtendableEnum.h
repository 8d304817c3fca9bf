#pragma once

#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>

#include <deque>
#include <optional>
#include <utility>

template <typename Data>
class ExtendableEnum;

/**
 * A value of an enumeration that libraries extend: cheap to copy, compared by identity, valid for good.
 *
 * A default-constructed one is the enumeration's default value, which Data::defaultValue() names.
 */
template <typename Data>
class ExtendableEnumRef
{
public:
    ExtendableEnumRef()
        : ExtendableEnumRef(Data::defaultValue())
    {}

    /// The entry's name, unique in its enumeration.
    [[nodiscard]] const QString &name() const { return m_entry->first; }
    /// The data that the entry was added with.
    [[nodiscard]] const Data &data() const { return m_entry->second; }

    bool operator==(const ExtendableEnumRef &) const = default;
    friend size_t qHash(const ExtendableEnumRef &value, size_t seed = 0)
    {
        return qHash(static_cast<const void *>(value.m_entry), seed);
    }

private:
    friend class ExtendableEnum<Data>;
    using Entry = std::pair<QString, Data>;

    explicit ExtendableEnumRef(const Entry *entry)
        : m_entry(entry)
    {}

    const Entry *m_entry;
};

/**
 * The values of such an enumeration: each has a name and data, none is ever changed or removed.
 *
 * Its owner keeps the one object in a function that its library exports; a template's own static would be
 * another in every library. Safe from any thread.
 */
template <typename Data>
class ExtendableEnum
{
public:
    using Ref = ExtendableEnumRef<Data>; ///< One entry of the enumeration.

    ExtendableEnum() = default;
    Q_DISABLE_COPY_MOVE(ExtendableEnum)

    /// The new value @p name; the value that has the name already, with the data it has, when there is one.
    Ref add(const QString &name, Data data)
    {
        const QMutexLocker lock(&m_mutex);
        const auto known = m_byName.constFind(name);
        if (known != m_byName.cend())
            return Ref(*known);
        m_entries.emplace_back(name, std::move(data));
        m_byName.insert(name, &m_entries.back());
        return Ref(&m_entries.back());
    }

    /// The entry called @p name; none when there is no such entry.
    [[nodiscard]] std::optional<Ref> find(const QString &name) const
    {
        const QMutexLocker lock(&m_mutex);
        const auto known = m_byName.constFind(name);
        return known != m_byName.cend() ? std::optional(Ref(*known)) : std::nullopt;
    }

    /// All values in the order in which they were added.
    [[nodiscard]] QList<Ref> values() const
    {
        const QMutexLocker lock(&m_mutex);
        QList<Ref> all;
        for (const auto &entry : m_entries)
            all.append(Ref(&entry));
        return all;
    }

private:
    mutable QMutex m_mutex;
    std::deque<typename Ref::Entry> m_entries; // Never moves what it holds.
    QHash<QString, const typename Ref::Entry *> m_byName;
};

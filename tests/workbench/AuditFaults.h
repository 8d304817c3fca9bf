#pragma once

#include "audit/AuditDatabase.h"
#include "audit/SqlConnection.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

#include <functional>
#include <memory>

namespace ozm::test {

using namespace Qt::StringLiterals;

/// Runs @p sql behind the database's back, on its own connection.
inline bool runOn(const workbench::AuditDatabase &database, const QString &sql)
{
    return QSqlQuery(QSqlDatabase::database(database.connectionName(), false)).exec(sql);
}

inline bool overwrite(const QString &path, qint64 position, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.seek(position) && file.write(bytes) == bytes.size();
}

/**
 * Something that keeps an open audit trail from being written, from its making to its end.
 *
 * Some faults can be lifted, and the trail goes on; the others stay.
 */
class AuditFault
{
public:
    AuditFault(const QString &name, workbench::AuditDatabase &database)
        : m_database(database)
    {
        if (name == "locked"_L1)
            lock();
        else if (name == "read-only"_L1)
            m_made = set(u"PRAGMA query_only = 1"_s, u"PRAGMA query_only = 0"_s);
        else if (name == "full"_L1)
            m_made = set(u"PRAGMA max_page_count = 1"_s, u"PRAGMA max_page_count = 1000000"_s);
        else if (name == "damaged"_L1)
            m_made = runOn(database, u"PRAGMA wal_checkpoint(TRUNCATE)"_s) &&
                     overwrite(database.path(), 0, QByteArray(100, 'x'));
        else if (name == "deleted"_L1)
            m_made = QFile::remove(database.path());
        else if (name == "replaced"_L1)
            m_made = replace();
    }
    ~AuditFault() { lift(); }
    Q_DISABLE_COPY_MOVE(AuditFault)

    [[nodiscard]] static QStringList names()
    {
        return {u"locked"_s, u"read-only"_s, u"full"_s, u"damaged"_s, u"deleted"_s, u"replaced"_s};
    }
    /// Text that the message of a refused step must hold.
    [[nodiscard]] static QString messageOf(const QString &name)
    {
        const QMap<QString, QString> messages{{u"locked"_s, u"locked by another program"_s},
                                              {u"read-only"_s, u"is read-only"_s},
                                              {u"full"_s, u"is full. Nothing was changed. Make room"_s},
                                              {u"damaged"_s, u"is damaged"_s},
                                              {u"deleted"_s, u"cannot be opened"_s},
                                              {u"replaced"_s, u"was replaced while it was in use"_s}};
        return messages.value(name);
    }
    [[nodiscard]] static bool canBeLifted(const QString &name)
    {
        return name == "locked"_L1 || name == "read-only"_L1 || name == "full"_L1;
    }

    [[nodiscard]] bool isMade() const { return m_made; }
    void lift()
    {
        if (m_lift)
            m_lift();
        m_lift = {};
    }

private:
    bool set(const QString &on, const QString &off)
    {
        m_lift = [this, off] { runOn(m_database, off); };
        return runOn(m_database, on);
    }

    void lock()
    {
        auto other =
            workbench::SqlConnection::open(m_database.path(), workbench::SqlConnection::Mode::ReadWrite);
        if (!other)
            return;
        std::shared_ptr<workbench::SqlConnection> connection = std::move(other).value();
        m_made = !connection->run(u"BEGIN EXCLUSIVE"_s).hasError();
        m_lift = [connection] { connection->run(u"ROLLBACK"_s); };
    }

    /// Puts an empty trail in the file's place, as somebody who restores the wrong copy does.
    bool replace()
    {
        const QString copy = m_database.path() + ".copy"_L1;
        return workbench::AuditDatabase::open(copy) &&
               runOn(m_database, u"PRAGMA wal_checkpoint(TRUNCATE)"_s) && QFile::remove(m_database.path()) &&
               QFile::rename(copy, m_database.path());
    }

    workbench::AuditDatabase &m_database;
    bool m_made = false;
    std::function<void()> m_lift;
};

} // namespace ozm::test

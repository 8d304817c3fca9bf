#pragma once

#include "support/StrictTest.h"

#include <ozm_audit/Store.h>

#include <QTemporaryDir>

namespace ozm::test {

using namespace Qt::StringLiterals;
using namespace ozm::audit;

/// The kinds of stores that must all behave alike; a test takes each as a row.
class Stores
{
public:
    static void addRows()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("memory") << u"memory"_s;
        QTest::newRow("SQLite, one program") << u"sqlite"_s;
        QTest::newRow("SQLite, several programs") << u"shared"_s;
        if (!server().isEmpty())
            QTest::newRow("PostgreSQL") << u"postgresql"_s;
    }

    /// The address of a database on a server that the environment offers.
    static QString server() { return qEnvironmentVariable("OZM_AUDIT_POSTGRESQL"); }

    [[nodiscard]] QString address(const QString &kind) const
    {
        if (kind == "memory"_L1)
            return u"memory:"_s;
        if (kind == "postgresql"_L1)
            return server() + u"&trail="_s + m_name;
        return u"sqlite:"_s + path() + (kind == "shared"_L1 ? u"?sharing=processes"_s : QString());
    }
    [[nodiscard]] QString path() const { return m_folder.filePath(u"trail.sqlite"_s); }
    [[nodiscard]] QString file(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QString m_name = u"t%1"_s.arg(QRandomGenerator::system()->generate());
};

inline Draft draft(int i)
{
    Draft draft;
    draft.kind = i % 5 == 0 ? Kind::Event : Kind::Command;
    draft.timeMs = 1'700'000'000'000 + i * 1000;
    draft.user = {i % 2 == 0 ? u"jdoe"_s : u"mroe"_s, u"Jane \"J\" Doe\n\u00e4"_s, u"analyst"_s};
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"T%1\"}"_s.arg(i % 3);
    draft.attributes = {u"Charge"_s, i % 4 == 0 ? u"Mass"_s : u"Time"_s};
    draft.outcomeCode = i % 7 == 0 ? 1 : 0;
    draft.record = R"({"value":)" + QByteArray::number(i) + R"(,"note":"50% of \"all\""})";
    return draft;
}

inline QList<Draft> drafts(int first, int last)
{
    QList<Draft> list;
    for (int i = first; i <= last; ++i)
        list.append(draft(i));
    return list;
}

inline QList<qint64> numbers(const QList<Entry> &entries)
{
    QList<qint64> list;
    for (const Entry &entry : entries)
        list.append(entry.number);
    return list;
}

} // namespace ozm::test

/// Checks that a result has a value, and shows the error when it has none.
#define VERIFY_RESULT(result)                                                                                \
    do {                                                                                                     \
        const auto &verified_ = (result);                                                                    \
        QVERIFY2(verified_, verified_.hasError() ? qPrintable(verified_.error().errorMessage()) : "");       \
    } while (false)

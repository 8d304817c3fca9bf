// The promises of a store, for each kind of store.

#include "StoreFixture.h"

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

using namespace ozm::test;

namespace {

QByteArray sha(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// The tree's hash as RFC 6962 writes it down.
QByteArray treeHash(const QList<QByteArray> &leaves)
{
    if (leaves.isEmpty())
        return sha({});
    if (leaves.size() == 1)
        return sha('\0' + leaves.constFirst());
    qsizetype split = 1;
    while (split * 2 < leaves.size())
        split *= 2;
    return sha('\1' + treeHash(leaves.first(split)) + treeHash(leaves.sliced(split)));
}

// Not a raw text, which moc does not read to its end.
constexpr const char *kRecord =
    "{\"a\":[1,-2.5,1e3,true,null],\"\\u00e4 \\\\\":{\"b\":\"\\ud83d\\ude00\",\"c\":[]},\"d\":0}";
constexpr const char *kSyntax = "{}[]:,\"\\0-.eu \n";

} // namespace

class TestAuditStore : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyRecordLeavesJson()
    {
        const QByteArray sample = kRecord;
        auto store = Store::open(u"memory:"_s);
        QRandomGenerator random(7);
        QList<Draft> given;
        for (int i = 0; i < 20000; ++i) {
            Draft one = draft(i);
            one.record = sample;
            for (int change = 0; change < 1 + i % 2; ++change)
                one.record[random.bounded(int(sample.size()))] =
                    i % 3 == 0 ? char(random.bounded(256)) : kSyntax[random.bounded(16)];
            given.append(one);
        }
        VERIFY_RESULT(store.value()->append(given));
        for (qsizetype i = 0; i < given.size(); ++i) {
            const Entry entry = store.value()->entry(i + 1).value();
            QCOMPARE(entry.record, given.at(i).record);
            QVERIFY2(!QJsonDocument::fromJson(entry.bytes).isNull(), entry.bytes.constData());
        }
    }

    void keepsWhatItIsGiven_data() { Stores::addRows(); }
    void keepsWhatItIsGiven()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        Draft macro = draft(1);
        macro.kind = Kind::Macro;
        Draft odd = draft(2);
        odd.parent = Draft::below(0);
        odd.record = QByteArray("\xff not JSON\0", 11);
        odd.user.name = u"\u201cx\u201d \U0001F600 \u0001"_s;
        odd.utcOffset = -3600;
        odd.zone = u"Atlantic/Azores"_s;
        odd.counter = 1234567890123;
        odd.reason = u"a\\b"_s;
        odd.authoriser = u"boss"_s;
        odd.outcomeText = u"failed"_s;
        odd.outcomeCode = 3;
        QCOMPARE(store.value()->append({draft(0)}).value(), 1);
        QCOMPARE(store.value()->append({macro, odd}).value(), 2);
        const Entry entry = store.value()->entry(3).value();
        QCOMPARE(entry.parent, 2);
        QCOMPARE(entry.trail, store.value()->trail());
        QCOMPARE(entry.record, odd.record);
        QCOMPARE(entry.user.name, odd.user.name);
        QCOMPARE(entry.reason, odd.reason);
        QCOMPARE(entry.outcomeText, odd.outcomeText);
        QCOMPARE(entry.timeMs, odd.timeMs);
        QCOMPARE(entry.counter, odd.counter);
        QCOMPARE(entry.attributes, odd.attributes);
        QCOMPARE(entry.dateTime().offsetFromUtc(), -3600);
        QVERIFY(!QJsonDocument::fromJson(entry.bytes).isNull());
        QCOMPARE(store.value()->entry(2).value().record, macro.record);
        QVERIFY(store.value()->entry(4).hasError());
        if (kind == "memory"_L1)
            return;
        store.value().reset();
        auto again = Store::open(stores.address(kind), Store::Mode::Existing);
        VERIFY_RESULT(again);
        QCOMPARE(again.value()->entry(3).value().bytes, entry.bytes);
        QCOMPARE(again.value()->append({draft(4)}).value(), 4);
    }

    void findsByEachMember_data() { Stores::addRows(); }
    void findsByEachMember()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        // More than are given their columns at once, and a rest without.
        constexpr int kCount = 300;
        VERIFY_RESULT(store.value()->append(drafts(1, 280)));
        VERIFY_RESULT(store.value()->append(drafts(281, kCount)));
        using Wanted = std::function<bool(int)>;
        const auto check = [&](Query query, const Wanted &wanted) {
            QList<qint64> expected;
            for (int i = 1; i <= kCount; ++i) {
                if (wanted(i))
                    expected.append(i);
            }
            query.pageSize = 7;
            for (const auto order : {Query::Order::OldestFirst, Query::Order::NewestFirst}) {
                query.order = order;
                query.after = 0;
                QList<qint64> found;
                for (auto page = store.value()->find(query); page && !page.value().isEmpty();
                     page = store.value()->find(query)) {
                    found += numbers(page.value());
                    query.after = found.constLast();
                }
                query.after = 0;
                query.pageSize = kCount;
                const auto alone = store.value()->findNumbers(query);
                VERIFY_RESULT(alone);
                QCOMPARE(alone.value(), found);
                query.pageSize = 7;
                if (order == Query::Order::NewestFirst)
                    std::reverse(found.begin(), found.end());
                QCOMPARE(found, expected);
            }
        };
        check({}, [](int) { return true; });
        check({.user = u"mroe"_s}, [](int i) { return i % 2 == 1; });
        check({.user = u"mroe"_s, .firstNumber = 250, .lastNumber = 280},
              [](int i) { return i % 2 == 1 && i >= 250 && i <= 280; });
        check({.kinds = {Kind::Event, Kind::Review}}, [](int i) { return i % 5 == 0; });
        check({.fromMs = draft(10).timeMs, .untilMs = draft(295).timeMs},
              [](int i) { return i >= 10 && i < 295; });
        check({.subjectType = u"Label"_s, .subjectKey = u"{\"Name\":\"T1\"}"_s},
              [](int i) { return i % 3 == 1; });
        check({.subjectType = u"Label"_s}, [](int) { return true; });
        check({.subjectType = u"Lab"_s}, [](int) { return false; });
        check({.attribute = u"Mass"_s}, [](int i) { return i % 4 == 0; });
        check({.attribute = u"Mas_"_s}, [](int) { return false; });
        check({.outcome = Query::Outcome::Failed}, [](int i) { return i % 7 == 0; });
        check({.outcome = Query::Outcome::Succeeded}, [](int i) { return i % 7 != 0; });
        check({.text = u"\"value\":29"_s}, [](int i) { return i == 29 || i / 10 == 29; });
        check({.text = u"Jane \"j\" Doe"_s}, [](int) { return true; });
        check({.text = u"DOE\n"_s}, [](int) { return false; });
        check({.text = u"50% OF"_s}, [](int) { return true; });
        check({.text = u"50_ of"_s}, [](int) { return false; });
    }

    void provesEntriesAndGrowth_data() { Stores::addRows(); }
    void provesEntriesAndGrowth()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        // Past the first hash that is kept for a full subtree.
        constexpr int kCount = 600;
        QCOMPARE(store.value()->root(0).value(), treeHash({}));
        VERIFY_RESULT(store.value()->append(drafts(1, kCount)));
        QList<QByteArray> leaves;
        QVERIFY(!store.value()
                     ->forEach(1, kCount,
                               [&leaves](const Entry &entry) {
                                   leaves.append(entry.bytes);
                                   return true;
                               })
                     .hasError());
        QCOMPARE(store.value()->makeCheckpoint().value().root, treeHash(leaves));
        const QString trail = store.value()->trail();
        for (const qint64 size : {1, 2, 3, 7, 8, 255, 256, 257, 511, 513, 600}) {
            const auto root = store.value()->root(size);
            VERIFY_RESULT(root);
            QCOMPARE(root.value(), treeHash(leaves.first(size)));
            const Checkpoint newer = Checkpoint::of(trail, size, root.value());
            for (const qint64 number : {1, 2, 5, 254, 256, 257, 512, 513, 600}) {
                if (number > size)
                    continue;
                const auto proof = store.value()->proof(number, newer);
                VERIFY_RESULT(proof);
                const auto read = Proof::fromText(proof.value().toText());
                VERIFY_RESULT(read);
                QVERIFY(read.value().proves(leaves.at(number - 1)));
                QVERIFY(!read.value().proves(leaves.at(number % leaves.size())));
                const Checkpoint older = Checkpoint::of(trail, number, store.value()->root(number).value());
                const auto growth = store.value()->consistencyProof(number, size);
                VERIFY_RESULT(growth);
                QVERIFY(provesConsistency(growth.value(), older, newer));
                QVERIFY(number == size ||
                        !provesConsistency(growth.value(), Checkpoint::of(trail, number, sha("x")), newer));
            }
        }
    }

    void disposesOfBytesOnly_data() { Stores::addRows(); }
    void disposesOfBytesOnly()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        VERIFY_RESULT(store.value()->append(drafts(1, 20)));
        const Checkpoint before = store.value()->makeCheckpoint().value();
        Draft order = draft(0);
        order.reason = u"retention ended"_s;
        QVERIFY(store.value()->dispose({5, 9}, order).hasError());
        order.authoriser = order.user.id;
        QVERIFY(store.value()->dispose({5, 9}, order).hasError());
        order.authoriser = u"boss"_s;
        QVERIFY(store.value()->dispose({15, 21}, order).hasError());
        QCOMPARE(store.value()->dispose({5, 9}, order).value(), 21);
        QCOMPARE(store.value()->dispose({12, 12}, order).value(), 22);
        QVERIFY(store.value()->dispose({20, 21}, order).hasError());
        QVERIFY(store.value()->entry(7).value().isDisposed());
        QCOMPARE(store.value()->entry(22).value().kind, Kind::Redaction);
        QCOMPARE(numbers(store.value()->find({}).value()).size(), 16);
        const auto verified = store.value()->verify({before});
        VERIFY_RESULT(verified);
        QVERIFY2(verified.value().isWhole(), qPrintable(verified.value().toString()));
        QCOMPARE(verified.value().anchored, 20);
        QCOMPARE(verified.value().disposed.size(), 2);
        QVERIFY(store.value()->proof(12, before).value().hashes.size() > 3);
    }

    /// Two writers, a clock that is set back and a backup that is put back are no damage.
    void raisesNoFalseAlarm_data() { Stores::addRows(); }
    void raisesNoFalseAlarm()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        const bool many = kind == "shared"_L1 || kind == "postgresql"_L1;
        auto other = many ? Store::open(stores.address(kind)) : Store::open(u"memory:"_s);
        VERIFY_RESULT(other);
        Store &second = many ? *other.value() : *store.value();
        QCOMPARE(store.value()->verify().value().isWhole(), true);
        QList<Checkpoint> outside{store.value()->makeCheckpoint().value()};
        for (int i = 0; i < 300; i += 3) {
            VERIFY_RESULT(store.value()->append(drafts(i, i + 1)));
            VERIFY_RESULT(second.append({draft(1000 - i)}));
            if (i % 60 == 0)
                outside.append(second.makeCheckpoint().value());
        }
        auto verified = second.verify(outside);
        QVERIFY2(verified.value().isWhole(), qPrintable(verified.value().toString()));
        QCOMPARE(verified.value().anchored, outside.constLast().size);
        if (kind != "sqlite"_L1)
            return;
        store.value().reset();
        QVERIFY(QFile::copy(stores.path(), stores.file(u"backup"_s)));
        store = Store::open(stores.address(kind));
        VERIFY_RESULT(store.value()->append({draft(1)}));
        store.value().reset();
        QVERIFY(QFile::remove(stores.path()) && QFile::rename(stores.file(u"backup"_s), stores.path()));
        store = Store::open(stores.address(kind));
        VERIFY_RESULT(store.value()->append({draft(2)}));
        verified = store.value()->verify(outside);
        QVERIFY2(verified.value().isWhole(), qPrintable(verified.value().toString()));
    }

    /// A backup that is older than a checkpoint is a loss; once it is recorded, the trail goes on.
    void goesOnFromARecordedLoss_data() { Stores::addRows(); }
    void goesOnFromARecordedLoss()
    {
        QFETCH(QString, kind);
        const Stores stores;
        auto store = Store::open(stores.address(kind));
        VERIFY_RESULT(store);
        VERIFY_RESULT(store.value()->append(drafts(1, 10)));
        const Checkpoint lost = Checkpoint::of(store.value()->trail(), 14, QByteArray(32, 'x'));
        auto verified = store.value()->verify({lost});
        QCOMPARE(verified.value().findings.constFirst().damage, Damage::CutOff);
        QCOMPARE(verified.value().findings.constFirst().first, 11);
        Draft who = draft(0);
        QVERIFY(store.value()->reAnchor(verified.value(), who).hasError());
        who.reason = u"restored from the backup of Monday"_s;
        QCOMPARE(store.value()->reAnchor(verified.value(), who).value(), 11);
        QVERIFY(store.value()->verify({lost}).value().isWhole());
        // Later it is a root that differs, and still the same recorded loss.
        VERIFY_RESULT(store.value()->append(drafts(1, 10)));
        verified = store.value()->verify({lost});
        QCOMPARE(verified.value().findings.constFirst().acknowledgedBy, 11);
        QVERIFY(verified.value().isWhole());
        QVERIFY(!store.value()
                     ->verify({lost, Checkpoint::of(lost.origin, 13, QByteArray(32, 'y'))})
                     .value()
                     .isWhole());
    }

    void signsCheckpoints()
    {
        const Stores stores;
        const QString path = stores.file(u"key.pem"_s);
        const auto key = SigningKey::generate(u"lab3.example.org"_s);
        VERIFY_RESULT(key);
        QVERIFY(!key.value().save(path).hasError());
        QVERIFY(key.value().save(path).hasError());
        const auto loaded = SigningKey::load(path);
        VERIFY_RESULT(loaded);
        auto store = Store::open(u"memory:"_s);
        VERIFY_RESULT(store.value()->append(drafts(1, 3)));
        const Checkpoint checkpoint = store.value()->makeCheckpoint(&loaded.value()).value();
        const auto publicKey = PublicKey::fromText(key.value().publicKey().toText());
        VERIFY_RESULT(publicKey);
        QVERIFY(publicKey.value().verifies(checkpoint.note));
        QCOMPARE(store.value()->verify({checkpoint}, &publicKey.value()).value().anchored, 3);
        QByteArray forged = checkpoint.note;
        forged.replace("\n3\n", "\n2\n");
        QVERIFY(!publicKey.value().verifies(forged));
        const auto unsignedOne = store.value()->verify(
            {Checkpoint::of(store.value()->trail(), 3, checkpoint.root)}, &publicKey.value());
        QCOMPARE(unsignedOne.value().findings.constFirst().damage, Damage::NotTheTrail);

        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        QCOMPARE(SigningKey::load(path).error().errorCode(), ozm::ErrorCode::NotAllowed);
    }

    /// The line of the README, which needs no program of ours.
    void opensslChecksTheSignature()
    {
        QVERIFY2(!QStandardPaths::findExecutable(u"openssl"_s).isEmpty(), "the program openssl is missing");
        const QTemporaryDir folder;
        const auto key = SigningKey::generate(u"lab3"_s);
        Checkpoint checkpoint = Checkpoint::of(u"trail"_s, 5, QByteArray(32, 'r'));
        QVERIFY(!key.value().sign(checkpoint).hasError());
        const auto write = [&folder](const QString &name, const QByteArray &bytes) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        QVERIFY(write(u"note"_s, checkpoint.note) && write(u"key.pem"_s, key.value().publicKey().toPem()));
        const auto check = [&folder] {
            QProcess shell;
            shell.setWorkingDirectory(folder.path());
            shell.start(u"sh"_s,
                        {u"-c"_s,
                         u"sed '/^$/,$d' note >text; tail -n 1 note | cut -d' ' -f3 | base64 -d | "
                         "tail -c 64 >sig; openssl pkeyutl -verify -pubin -inkey key.pem -rawin -in text "
                         "-sigfile sig"_s});
            shell.waitForFinished();
            return shell.exitCode() == 0;
        };
        QVERIFY(check());
        QVERIFY(write(u"note"_s, checkpoint.note.replace("\n5\n", "\n6\n")));
        QVERIFY(!check());
    }

    void refusesWhatIsNoCheckpoint_data()
    {
        QTest::addColumn<QByteArray>("note");
        const QByteArray root = QByteArray(32, 'r').toBase64();
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no end") << "trail\n5\n" + root + '\n';
        QTest::newRow("leading zero") << "trail\n05\n" + root + "\n\n";
        QTest::newRow("negative") << "trail\n-5\n" + root + "\n\n";
        QTest::newRow("short root") << QByteArray("trail\n5\nYWJj\n\n");
        QTest::newRow("root with a blank") << "trail\n5\n " + root + "\n\n";
        QTest::newRow("no origin") << "\n5\n" + root + "\n\n";
    }
    void refusesWhatIsNoCheckpoint()
    {
        QFETCH(QByteArray, note);
        QVERIFY(Checkpoint::fromNote(note).hasError());
        QVERIFY(Proof::fromText("c2sp.org/tlog-proof@v1\nindex 1\n\n" + note).hasError());
    }
};

QTEST_GUILESS_MAIN(TestAuditStore)
#include "tst_auditstore.moc"

// The trail as rows: order, filters, marks, and what a growing trail does to them.

#include "StoreFixture.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/Review.h>
#include <ozm_audit_widgets/Signature.h>
#include <ozm_audit_widgets/TrailModel.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QAbstractItemModelTester>
#include <QJsonDocument>

using namespace ozm::test;

namespace {

using Mark = TrailModel::Mark;

/// A change of a sample's value, as an undo stack records it.
Draft change(const QString &sample, const QString &attribute, const QVariant &value, const QVariant &oldValue,
             const QString &context = u"New"_s)
{
    const ozm::OperationLogItemSubject subject(ozm::OperationLogItemSubject::Type::Label,
                                               {{u"Name"_s, sample}}, {});
    const ozm::OperationLogItemData data(ozm::OperationLogItemType::Set, subject, {attribute}, value,
                                         oldValue);
    Draft draft;
    draft.kind = Kind::Command;
    draft.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
    draft.session = u"s1"_s;
    draft.context = context;
    draft.timeMs = 1'700'000'000'000; // A Tuesday, 22:13 UTC.
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"%1\"}"_s.arg(sample);
    draft.attributes = {attribute};
    draft.record = data.toJson();
    return draft;
}

Draft with(Draft draft, const std::function<void(Draft &)> &edit)
{
    edit(draft);
    return draft;
}

Draft ofKind(Kind kind, const QByteArray &record)
{
    Draft draft = change(u"A"_s, u"Mass"_s, 0, 0);
    draft.kind = kind;
    draft.subjectKey.clear();
    draft.attributes.clear();
    draft.record = record;
    return draft;
}

QList<qint64> shown(const TrailModel &model)
{
    QList<qint64> numbers;
    for (int row = 0; row < model.rowCount(); ++row)
        numbers.append(model.entryAt(row).number);
    return numbers;
}

/// Everything that a reviewer looks for, once each.
QList<Draft> eventfulTrail()
{
    const auto at = [](int hour) { return [hour](Draft &d) { d.timeMs += (hour - 22) * 3'600'000; }; };
    const auto signature =
        QByteArray(R"({"meaning":"Approved","entries":"1","subjects":["Label\n{\"Name\":\"A\"}"]})");
    return {
        with(change(u"A"_s, u"Mass"_s, 2, 1), at(12)),                                          // 1
        with(change(u"A"_s, u"Mass"_s, 3, 2), at(12)),                                          // 2
        ofKind(Kind::Signature, signature),                                                     // 3
        with(change(u"A"_s, u"Mass"_s, 2, 3), at(12)),                                          // 4
        with(change(u"B"_s, u"Mass"_s, 1, 0), [](Draft &d) { d.outcomeCode = 3; }),             // 5
        with(ofKind(Kind::Event, "{}"), [](Draft &d) { d.attributes = {u"Saved samples"_s}; }), // 6
        with(change(u"A"_s, u"Mass"_s, 2, 3, u"Undo"_s), at(12)),                               // 7
        ofKind(Kind::Clock, R"({"event":"jump","milliseconds":5000})"),                         // 8
        with(change(u"C"_s, u"Mass"_s, 1, {}),
             [](Draft &d) { d.record.replace("\"Set\"", "\"Delete\""); }),                       // 9
        ofKind(Kind::Setting, R"({"setting":"tolerance"})"),                                     // 10
        with(change(u"D"_s, u"Name"_s, u"x"_s, u"y"_s), [](Draft &d) { d.reason = u"typo"_s; }), // 11
        ofKind(Kind::Macro, "{}"),                                                               // 12
    };
}

} // namespace

class TestAuditTrailModel : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsExceptions_data()
    {
        QTest::addColumn<ReviewPreset>("preset");
        QTest::addColumn<QList<qint64>>("expected");
        using Numbers = QList<qint64>;
        QTest::newRow("deletions") << ReviewPreset::Deletions << Numbers{9};
        QTest::newRow("after a signature") << ReviewPreset::ChangedAfterSignature << Numbers{4, 7};
        QTest::newRow("again or back") << ReviewPreset::ChangedAgain << Numbers{4, 7};
        QTest::newRow("refused") << ReviewPreset::Refused << Numbers{5};
        QTest::newRow("out of hours") << ReviewPreset::OutOfHours << Numbers{3, 5, 6, 8, 9, 10, 11, 12};
        QTest::newRow("clock") << ReviewPreset::ClockAndGaps << Numbers{8};
        QTest::newRow("undone after saving") << ReviewPreset::UndoneAfterSave << Numbers{7};
        QTest::newRow("settings") << ReviewPreset::SettingsAndRights << Numbers{10};
    }
    void findsExceptions()
    {
        QFETCH(ReviewPreset, preset);
        QFETCH(QList<qint64>, expected);
        auto store = Store::open(u"memory:"_s);
        VERIFY_RESULT(store.value()->append(eventfulTrail()));
        TrailModel model(*store.value());
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        TrailFilter filter;
        filter.preset = preset;
        // As it comes back from a file.
        model.setFilter(TrailFilter::fromJson(filter.toJson()).value());
        QTRY_VERIFY(!model.isSearching());
        QCOMPARE(shown(model), expected);
        QCOMPARE(model.hidden(), 12 - expected.size());
        // A later page is found by what was remembered; and the newest first is the same, reversed.
        VERIFY_RESULT(store.value()->append(eventfulTrail()));
        QTRY_COMPARE(model.total(), 24);
        QTRY_VERIFY(!model.isSearching());
        const QList<qint64> all = shown(model);
        QVERIFY(all.size() >= 2 * expected.size());
        model.sort(TrailModel::Time, Qt::DescendingOrder);
        QCOMPARE(shown(model), QList<qint64>(all.crbegin(), all.crend()));
        QCOMPARE(model.rowOf(all.constFirst()), int(all.size()) - 1);
    }

    void marksWhatLaterEntriesSay()
    {
        auto store = Store::open(u"memory:"_s);
        VERIFY_RESULT(store.value()->append(eventfulTrail()));
        TrailModel model(*store.value());
        QTRY_COMPARE(model.knownMarks(), 12);
        const auto marks = [&](qint64 number) { return model.marks(store.value()->entry(number).value()); };
        QCOMPARE(marks(1), TrailModel::Marks(Mark::Signed) | Mark::ChangedSinceSigned);
        QCOMPARE(marks(2), TrailModel::Marks());
        QCOMPARE(marks(4), TrailModel::Marks(Mark::Undone));
        QCOMPARE(marks(5), TrailModel::Marks(Mark::Refused));
        QCOMPARE(marks(12), TrailModel::Marks(Mark::Unfinished));
        QCOMPARE(model.changedLaterBy(store.value()->entry(1).value()), 7);
        Draft commit = ofKind(Kind::Commit, "{}");
        commit.parent = 12;
        Review review;
        review.entries = NumberSet::fromText(u"1-3, 11"_s).value();
        VERIFY_RESULT(store.value()->append({commit, review.toDraft()}));
        QTRY_COMPARE(model.knownMarks(), 14);
        QTRY_COMPARE(model.total(), 14);
        QCOMPARE(marks(12), TrailModel::Marks());
        QVERIFY(marks(11).testFlag(Mark::Reviewed) && !marks(10).testFlag(Mark::Reviewed));
        QCOMPARE(model.notReviewed(), 10);
        // By icon and text, never by colour alone.
        const QModelIndex state = model.index(0, TrailModel::State);
        QVERIFY(state.data().toString().contains(u"Signed"_s));
        QVERIFY(!state.data(Qt::DecorationRole).value<QIcon>().isNull());
    }

    /// Steps above the watermark stand at the newest end, and become rows like any other.
    void showsWhatIsNotYetOnDisk()
    {
        auto store = Store::open(u"memory:"_s);
        VERIFY_RESULT(store.value()->append(drafts(1, 2)));
        Logger logger(*store.value(), {.user = {u"jdoe"_s}, .queued = true});
        QVERIFY(logger.waitForDurable());
        // Keeps the writer from the store, and this thread not.
        auto lock = store.value()->locked();
        for (int i = 0; i < 3; ++i)
            QVERIFY(!logger.record(change(u"A"_s, u"Mass"_s, i + 1, i)).hasError());
        const int stored = int(store.value()->size().value());
        const int waiting = int(logger.handedOver() - logger.watermark());
        QVERIFY(waiting >= 3);
        TrailModel model(*store.value());
        const QAbstractItemModelTester tester(&model);
        model.setLogger(&logger);
        QCOMPARE(model.rowCount(), stored + waiting);
        const QModelIndex last = model.index(stored + waiting - 1, TrailModel::State);
        QCOMPARE(last.data().toString(), u"Not yet on disk"_s);
        QVERIFY(!last.data(Qt::DecorationRole).value<QIcon>().isNull());
        lock.unlock();
        QTRY_COMPARE(model.pending(), 0);
        QTRY_COMPARE(model.rowCount(), stored + waiting);
        QCOMPARE(model.entryAt(stored + waiting - 1).attributes, QStringList{u"Mass"_s});
    }

    /// Pages, sparse filters and sorting give what the store gives, however long the trail is.
    void showsWhatTheStoreHas()
    {
        const Stores stores;
        auto store = Store::open(stores.path());
        VERIFY_RESULT(store.value()->append(drafts(1, 3000)));
        TrailModel model(*store.value());
        QCOMPARE(model.rowCount(), 3000);
        QCOMPARE(model.entryAt(2999).number, 3000);
        TrailFilter filter;
        filter.query.user = u"mroe"_s;
        filter.query.subjectType = u"Label"_s;
        filter.query.subjectKey = draft(1).subjectKey;
        filter.query.outcome = Query::Outcome::Failed;
        model.setFilter(filter);
        QTRY_VERIFY(!model.isSearching());
        QList<qint64> expected;
        for (int i = 1; i <= 3000; ++i) {
            if (i % 2 == 1 && i % 3 == 1 && i % 7 == 0)
                expected.append(i);
        }
        QCOMPARE(shown(model), expected);
        model.sort(TrailModel::What, Qt::DescendingOrder);
        QTRY_VERIFY(shown(model) != expected);
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, TrailModel::What).data(Qt::ToolTipRole).toString());
        QVERIFY(std::is_sorted(texts.crbegin(), texts.crend(), [](const QString &a, const QString &b) {
            return a.localeAwareCompare(b) < 0;
        }));
        QCOMPARE(model.shownNumbers().value().count(), expected.size());
    }

    /// A signature is good for the entries that it was given for, and for no others.
    void bindsSignatures()
    {
        auto store = Store::open(u"memory:"_s);
        VERIFY_RESULT(store.value()->append(eventfulTrail()));
        const auto content = SignedContent::of(*store.value(), NumberSet::fromText(u"1,4"_s).value());
        VERIFY_RESULT(content);
        QCOMPARE(content.value().subjects, QStringList{u"Label\n{\"Name\":\"A\"}"_s});
        Draft good = content.value().signature({u"boss"_s}, u"Approved"_s, {u"id"_s});
        Draft moved = good;
        moved.record.replace("\"1,4\"", "\"1,2\"");
        VERIFY_RESULT(store.value()->append({good, moved}));
        QVERIFY(!checkSignature(*store.value(), store.value()->entry(13).value()).hasError());
        QVERIFY(checkSignature(*store.value(), store.value()->entry(14).value()).hasError());
        QVERIFY(SignedContent::of(*store.value(), NumberSet({1, 20'000})).hasError());
    }
};

QTEST_MAIN(TestAuditTrailModel)
#include "tst_audittrailmodel.moc"

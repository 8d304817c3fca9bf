// A reviewer's walk through a trail, with the widgets that a reviewer has, and what they leave in the trail.

#include "StoreFixture.h"

#include <ozm_audit/InspectionCopy.h>
#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/ReasonDialog.h>
#include <ozm_audit_widgets/ReviewDialog.h>
#include <ozm_audit_widgets/SignDialog.h>
#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_audit_widgets/TrailOutput.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTableView>
#include <QTimer>

using namespace ozm::test;

namespace {

const Person kAnalyst{u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
const Person kReviewer{u"mroe"_s, u"Mary Roe"_s, u"quality assurance"_s};

class People : public Authenticator
{
public:
    ozm::Result<Person> authenticate(const QString &id, const QString &secret) override
    {
        if (id == kReviewer.id && secret == "secret"_L1)
            return kReviewer;
        return ozm::Error(ozm::ErrorCode::NotAllowed, u"User id or password is wrong."_s);
    }
};

Draft change(int value, int oldValue, const QString &reason)
{
    const ozm::OperationLogItemSubject subject(ozm::OperationLogItemSubject::Type::Label,
                                               {{u"Name"_s, u"T12"_s}}, {});
    Draft draft;
    draft.kind = Kind::Command;
    draft.context = u"New"_s;
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"T12\"}"_s;
    draft.attributes = {u"Charge"_s};
    draft.record =
        ozm::OperationLogItemData(ozm::OperationLogItemType::Set, subject, {u"Charge"_s}, value, oldValue)
            .toJson();
    draft.reason = reason;
    return draft;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Reasons of the entries that are shown, from the first on.
QStringList reasons(const TrailModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.entryAt(row).reason);
    return texts;
}

} // namespace

class TestAuditReview : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Finds who changed a value again and why, signs, sees a later change flagged, reviews, prints, and has the
    /// copy verified by the program that shares no code with the library.
    void walksAsAReviewerDoes()
    {
        const Stores stores;
        auto store = Store::open(stores.path());
        VERIFY_RESULT(store);
        Logger logger(*store.value(), {.user = kAnalyst});
        const auto record = [&](const Draft &draft) { return !logger.record(draft).hasError(); };
        for (int i = 0; i < 200; ++i)
            QVERIFY(record(draft(i)));
        QVERIFY(record(change(3, 2, u"typing error"_s)));
        QVERIFY(record(change(2, 3, u"was right before"_s)));

        TrailView view;
        QVERIFY(!view.isEnabled());
        const qsizetype actions = view.findChildren<QAction *>().size();
        view.setStore(*store.value());
        QVERIFY(view.isEnabled());
        QCOMPARE(view.findChildren<QAction *>().size(), actions);
        view.setLogger(&logger, kReviewer);
        TrailModel &model = view.model();
        view.show();
        TrailFilter filter;
        filter.preset = ReviewPreset::ChangedAgain;
        filter.query.subjectType = u"Label"_s;
        filter.query.subjectKey = u"{\"Name\":\"T12\"}"_s;
        view.setFilter(filter);
        QTRY_VERIFY(!model.isSearching());
        QCOMPARE(reasons(model), QStringList{u"was right before"_s});
        QCOMPARE(model.entryAt(0).user.name, kAnalyst.name);
        QVERIFY(view.findChild<QLabel *>(u"trailStatus"_s)->text().contains(u"hidden"_s));

        // Signs it: a wrong password first, which is recorded.
        People people;
        SigningSession session(logger, people);
        view.findChild<QTableView *>(u"trailTable"_s)->selectRow(0);
        const qint64 signedNumber = view.currentEntry().number;
        QCOMPARE(view.selectedNumbers().toText(), QString::number(signedNumber));
        SignDialog sign(session, SignedContent::of(*store.value(), view.selectedNumbers()).value());
        sign.findChild<QLineEdit *>(u"signerId"_s)->setText(kReviewer.id);
        sign.findChild<QLineEdit *>(u"signerSecret"_s)->setText(u"guess"_s);
        sign.accept();
        QCOMPARE(sign.result(), 0);
        sign.findChild<QLineEdit *>(u"signerSecret"_s)->setText(u"secret"_s);
        sign.accept();
        QCOMPARE(sign.result(), int(QDialog::Accepted));
        const qint64 signature = store.value()->size().value();
        const Entry signatureEntry = store.value()->entry(signature).value();
        QCOMPARE(signatureEntry.user.name, kReviewer.name);
        QVERIFY(!checkSignature(*store.value(), signatureEntry).hasError());
        const auto failed =
            store.value()->find({.kinds = {Kind::Session}, .outcome = Query::Outcome::Failed});
        QCOMPARE(failed.value().size(), 1);

        // A later change is flagged, at the signed entry and by the preset.
        QVERIFY(record(change(4, 2, u"second thoughts"_s)));
        QTRY_VERIFY(model.marks(store.value()->entry(signedNumber).value())
                        .testFlag(TrailModel::Mark::ChangedSinceSigned));
        filter = {};
        filter.preset = ReviewPreset::ChangedAfterSignature;
        view.setFilter(filter);
        QTRY_COMPARE(reasons(model), QStringList{u"second thoughts"_s});

        // Reviews what is shown.
        QTRY_VERIFY(!model.isSearching());
        QCOMPARE(model.notReviewed(), 1);
        ReviewDialog review(model, logger, kReviewer, NumberSet::fromText(u"204"_s).value());
        QVERIFY2(!review.findChild<QLabel *>(u"reviewFlag"_s), "the reviewer changed nothing");
        QVERIFY(ReviewDialog(model, logger, kAnalyst).findChild<QLabel *>(u"reviewFlag"_s));
        review.findChild<QComboBox *>(u"reviewOutcome"_s)->setCurrentIndex(1);
        review.accept();
        QVERIFY2(review.result() == 0, "findings need a comment");
        review.findChild<QPlainTextEdit *>(u"reviewComment"_s)->setPlainText(u"asked, explained"_s);
        review.accept();
        QCOMPARE(review.result(), int(QDialog::Accepted));
        QTRY_COMPARE(model.notReviewed(), 0);

        // Verifies in the background, which is recorded.
        QString words;
        QTimer closer;
        connect(&closer, &QTimer::timeout, &closer, [&words] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                words = box->text();
                box->close();
            }
        });
        closer.start();
        view.action(TrailView::Action::Verify)->trigger();
        closer.stop();
        QVERIFY2(words.contains(u"The trail is whole."_s), qPrintable(words));
        QVERIFY(store.value()->entry(store.value()->size().value()).value().record.contains("\"verified\""));

        // Takes it away: paper, a table, and a copy that another program verifies.
        const TrailOutput output(model, kReviewer);
        QVERIFY(!output.writePdf(stores.file(u"trail.pdf"_s)).hasError());
        QVERIFY(contentOf(stores.file(u"trail.pdf"_s)).startsWith("%PDF"));
        QVERIFY(!output.writeCsv(stores.file(u"trail.csv"_s)).hasError());
        const QByteArray csv = contentOf(stores.file(u"trail.csv"_s));
        QVERIFY(csv.contains("second thoughts") && csv.contains("Changes after a signature"));
        QVERIFY(!csv.contains("was right before"));
        QVERIFY(!writeInspectionCopy(*store.value(), stores.file(u"copy"_s), {.user = kReviewer}).hasError());
        QProcess verifier;
        verifier.start(QStringLiteral(PYTHON), {QStringLiteral(VERIFIER), stores.file(u"copy/trail.sqlite"_s),
                                                u"--checkpoints"_s, stores.file(u"copy/checkpoints"_s)});
        QVERIFY(verifier.waitForFinished());
        QVERIFY2(verifier.exitCode() == 0,
                 qPrintable(QString::fromUtf8(verifier.readAll() + verifier.readAllStandardError())));
    }

    /// Three failures, or doing nothing, end a session; both components are then needed again.
    void endsSigningSessions()
    {
        auto store = Store::open(u"memory:"_s);
        Logger logger(*store.value(), {.user = kAnalyst});
        People people;
        SigningSession session(logger, people, std::chrono::milliseconds(50));
        QVERIFY(session.confirm(u"secret"_s).hasError());
        QVERIFY(!session.signIn(kReviewer.id, u"secret"_s).hasError());
        QVERIFY(!session.confirm(u"secret"_s).hasError());
        QTRY_VERIFY(session.needsBoth());
        QVERIFY(!session.signIn(kReviewer.id, u"secret"_s).hasError());
        for (int i = 0; i < 3; ++i)
            QVERIFY(session.confirm(u"guess"_s).hasError());
        QVERIFY(session.needsBoth());
        QCOMPARE(store.value()->find({.outcome = Query::Outcome::Failed}).value().size(), 3);
    }

    void showsAHistoryAndReasons()
    {
        auto store = Store::open(u"memory:"_s);
        Draft undo = change(4, 2, {});
        undo.context = u"Undo"_s;
        Draft refused = change(9, 2, {});
        refused.outcomeCode = 2;
        VERIFY_RESULT(
            store.value()->append({change(3, 1, {}), change(2, 3, {}), change(4, 2, {}), refused, undo}));
        const auto states = subjectStates(*store.value(), u"Label"_s, u"{\"Name\":\"T12\"}"_s);
        QList<int> values;
        for (const SubjectState &state : states.value())
            values.append(state.values.value(u"Charge"_s).toInt());
        QCOMPARE(values, (QList<int>{3, 2, 4, 2}));

        AskedReasons rules;
        rules.addRule(
            {.attribute = u"Charge"_s, .demand = ReasonPolicy::Demand::Required, .choices = {u"typo"_s}});
        const ozm::OperationLogItemData data(change(1, 2, {}).record);
        QCOMPARE(rules.demand(data), ReasonPolicy::Demand::Required);
        ReasonDialog dialog(data.toString(), rules.demand(data), rules.choices(data));
        QVERIFY2(dialog.reason().isEmpty(), "no reason is taken for granted");
    }
};

QTEST_MAIN(TestAuditReview)
#include "tst_auditreview.moc"

// Pictures of the trail's views and dialogs and of the workbench for people to look at, and a printed copy: audit_gallery <folder>
// [language]. Twice the size with QT_SCALE_FACTOR=2. Not a test: what looks wrong is for eyes to say.

#include "window/MainWindow.h"
#include "workbench/SampleFixture.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/ReasonDialog.h>
#include <ozm_audit_widgets/ReviewDialog.h>
#include <ozm_audit_widgets/SignDialog.h>
#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_audit_widgets/TrailOutput.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QStandardPaths>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace ozm::audit;

namespace {

const Person kAnalyst{u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
const Person kReviewer{u"mroe"_s, u"Mary Roe"_s, u"quality assurance"_s};

class OnePassword : public Authenticator
{
public:
    ozm::Result<Person> authenticate(const QString &id, const QString &secret) override
    {
        if (id == kReviewer.id && secret == "secret"_L1)
            return kReviewer;
        return ozm::Error(ozm::ErrorCode::NotAllowed, u"User id or password is wrong."_s);
    }
};

ozm::OperationLogItemData change(const QString &sample, const QString &attribute, const QVariant &value,
                                 const QVariant &oldValue)
{
    return {
        ozm::OperationLogItemType::Set,
        ozm::OperationLogItemSubject(ozm::OperationLogItemSubject::Type::Label, {{u"Name"_s, sample}}, {}),
        {attribute},
        value,
        oldValue};
}

Draft draftOf(const ozm::OperationLogItemData &data, const QString &sample, const QString &reason = {})
{
    Draft draft;
    draft.kind = Kind::Command;
    draft.context = u"New"_s;
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"%1\"}"_s.arg(sample);
    draft.attributes = data.attributes();
    draft.record = data.toJson();
    draft.reason = reason;
    return draft;
}

void fill(Logger &logger)
{
    const auto add = [&logger](const Draft &draft) {
        if (const ozm::Error error = logger.record(draft); error.hasError())
            qWarning("%s", qPrintable(error.errorMessage()));
    };
    for (int i = 1; i <= 30; ++i) {
        const QString sample = u"T%1"_s.arg(i % 7);
        add(draftOf(change(sample, i % 2 == 0 ? u"Charge"_s : u"Mass"_s, i, i - 1), sample));
    }
    const QString before = u"HeLa digest, 200 ng, measured in the morning"_s;
    const QString after = u"HeLa digest, 250 ng, measured in the evening"_s;
    add(draftOf(change(u"T12"_s, u"Comment"_s, after, before), u"T12"_s, u"Wrong amount in the worklist"_s));
    add(draftOf(change(u"T12"_s, u"Charge"_s, 3, 2), u"T12"_s, u"Typing error"_s));
    add(draftOf(change(u"T12"_s, u"Modifications"_s, QStringList{u"Oxidation"_s, u"Phospho"_s},
                       QStringList{u"Oxidation"_s, u"Acetyl"_s}),
                u"T12"_s, u"Repeated search"_s));
    Draft refused = draftOf(change(u"T3"_s, u"Charge"_s, -1, 2), u"T3"_s);
    refused.outcomeCode = 2;
    refused.outcomeText = u"A charge is at least 1."_s;
    add(refused);
    Draft macro = draftOf(change(u"T5"_s, u"Name"_s, u"* #"_s, {}), u"T5"_s);
    macro.kind = Kind::Macro;
    macro.subjectKey.clear();
    add(macro);
    for (int i = 0; i < 3; ++i) {
        Draft step = draftOf(change(u"T%1"_s.arg(i), u"Mass"_s, i + 40, i), u"T%1"_s.arg(i));
        step.parent = 36;
        add(step);
    }
    Draft undo = draftOf(change(u"T2"_s, u"Mass"_s, 42, 2), u"T2"_s);
    undo.context = u"Undo"_s;
    add(undo);
}

void settle(const TrailModel &model)
{
    (void)QTest::qWaitFor([&] { return !model.isSearching() && model.knownMarks() == model.total(); });
    QTest::qWait(50);
}

void save(QWidget &widget, const QDir &out, const QString &name)
{
    widget.show();
    (void)QTest::qWaitForWindowExposed(&widget);
    QTest::qWait(50);
    widget.grab().save(out.filePath(name));
}

void takeWorkbench(const QDir &out, const QString &suffix)
{
    const ozm::test::SampleFixture fixture;
    (void)fixture.editor->setCell(fixture.idAt(0), kCharge, u"3"_s);
    (void)fixture.editor->setCell(fixture.idAt(0), kCharge, u"x"_s);
    (void)fixture.editor->renameSamples({fixture.idAt(1), fixture.idAt(2)}, u"Day 1, #"_s);
    (void)fixture.editor->setCell(fixture.idAt(1), kComment, u"short, measured again"_s);
    (void)fixture.editor->undo();
    workbench::MainWindow window(*fixture.editor, fixture.trailPath());
    window.setMessagesShown(false);
    const auto *view = window.findChild<TrailView *>();
    settle(view->model());
    save(window, out, u"workbench-%1.png"_s.arg(suffix));
}

void takePictures(const QDir &out, const QString &suffix)
{
    auto store = Store::open(u"memory:"_s);
    Logger logger(*store.value(), {.user = kAnalyst});
    fill(logger);
    OnePassword people;
    SigningSession session(logger, people);
    const auto content = SignedContent::of(*store.value(), NumberSet({32, 34}));
    (void)logger.record(content.value().signature(kReviewer, u"Approved"_s, {u"id"_s, u"password"_s}));
    (void)logger.record(draftOf(change(u"T12"_s, u"Charge"_s, 2, 3), u"T12"_s, u"Back to the first value"_s));
    Review review;
    review.upTo = 20;
    review.entries = NumberSet({1, 20});
    Draft reviewed = review.toDraft();
    reviewed.user = kReviewer;
    (void)logger.record(reviewed);

    TrailView view(*store.value());
    view.setLogger(&logger, kReviewer);
    view.setSigningSession(&session);
    view.setSubjectHook([](const QString &, const QString &) {});
    view.resize(1280, 760);
    settle(view.model());
    view.showEntry(32);
    save(view, out, u"trail-%1.png"_s.arg(suffix));
    TrailFilter filter;
    filter.query.subjectType = u"Label"_s;
    filter.query.subjectKey = u"{\"Name\":\"T12\"}"_s;
    filter.query.user = kAnalyst.id;
    filter.preset = ReviewPreset::ChangedAfterSignature;
    view.setFilter(filter);
    settle(view.model());
    view.findChild<QTableView *>()->setCurrentIndex(view.model().index(0, 0));
    save(view, out, u"filtered-%1.png"_s.arg(suffix));

    SubjectHistory history(*store.value(), u"Label"_s, u"{\"Name\":\"T12\"}"_s);
    history.compare(0, 3);
    save(history, out, u"history-%1.png"_s.arg(suffix));
    SignDialog sign(session, content.value());
    save(sign, out, u"sign-%1.png"_s.arg(suffix));
    sign.accept(); // Without id and password.
    save(sign, out, u"sign-refused-%1.png"_s.arg(suffix));
    view.setFilter({});
    ReviewDialog reviewing(view.model(), logger, kAnalyst, NumberSet({35, 35}));
    save(reviewing, out, u"review-%1.png"_s.arg(suffix));
    ReasonDialog reason(change(u"T12"_s, u"Charge"_s, 4, 2).toString(), ReasonPolicy::Demand::Required,
                        {u"Typing error"_s, u"Repeated measurement"_s});
    save(reason, out, u"reason-%1.png"_s.arg(suffix));

    const TrailOutput output(view.model(), kReviewer);
    const ozm::Error printed = output.writePdf(out.filePath(u"trail-%1.pdf"_s.arg(suffix)));
    const ozm::Error table = output.writeCsv(out.filePath(u"trail-%1.csv"_s.arg(suffix)));
    if (printed.hasError() || table.hasError())
        qWarning("%s%s", qPrintable(printed.errorMessage()), qPrintable(table.errorMessage()));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QDir out(QApplication::arguments().value(1, u"."_s));
    out.mkpath(u"."_s);
    const QString language = QApplication::arguments().value(2, u"en"_s);
    QLocale::setDefault(QLocale(language));
    ozm::OzmCoreApplication::start();
    for (const QString &name : {u"ozm_widgets"_s, u"ozm_audit"_s, u"workbench"_s})
        ozm::OzmCoreApplication::loadTranslation(QLocale(language), name);
    OZMStyle::apply();
    for (const auto scheme : {OZMStyle::Scheme::Light, OZMStyle::Scheme::Dark}) {
        QApplication::setPalette(OZMStyle::palette(scheme));
        const QString suffix =
            u"%1-%2-%3x"_s.arg(scheme == OZMStyle::Scheme::Dark ? u"dark"_s : u"light"_s, language)
                .arg(application.devicePixelRatio());
        takePictures(out, suffix);
        takeWorkbench(out, suffix);
    }
    return 0;
}

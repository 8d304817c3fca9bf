#include "TrailView_p.h"

#include "../output/BackgroundWork.h"

#include <ozm_audit/InspectionCopy.h>
#include <ozm_audit_widgets/ReviewDialog.h>
#include <ozm_audit_widgets/SignDialog.h>
#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_audit_widgets/TrailOutput.h>
#include <ozm_widgets/OZMStyle.h>

#include <QFileDialog>
#include <QInputDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPrintDialog>
#include <QPrinter>

#include <optional>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

Draft eventDraft(const QString &event, const QString &text, const Person &user)
{
    Draft draft;
    draft.kind = Kind::Event;
    draft.user = user;
    draft.record =
        QJsonDocument(QJsonObject{{u"event"_s, event}, {u"text"_s, text}}).toJson(QJsonDocument::Compact);
    return draft;
}

} // namespace

void TrailView::Private::run(Action action)
{
    switch (action) {
    case Action::Sign:
        return sign();
    case Action::Review:
        return review();
    case Action::History:
        return history();
    case Action::ShowSubject:
        return goToSubject();
    case Action::GoTo:
        return goToNumber();
    case Action::Print:
        return print();
    case Action::SavePdf:
    case Action::SaveCsv:
        return save(action);
    case Action::Copy:
        return makeCopy();
    case Action::Verify:
        return verify();
    case Action::SaveFilter:
        return saveFilter();
    case Action::OpenFilter:
        return openFilter();
    case Action::Details:
        detailsChosen = true;
        return;
    }
}

void TrailView::Private::sign()
{
    const auto content = SignedContent::of(model.store(), q.selectedNumbers());
    if (!content)
        return show(content.error());
    SignDialog(*session, content.value(), {}, &q).exec();
}

void TrailView::Private::review()
{
    const NumberSet selected = q.selectedNumbers();
    ReviewDialog(model, *logger, user, selected, &q).exec();
}

void TrailView::Private::history()
{
    const Entry entry = q.currentEntry();
    auto *window = new SubjectHistory(model.store(), entry.subjectType, entry.subjectKey, &q);
    window->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(window, &SubjectHistory::entryRequested, &q, &TrailView::showEntry);
    window->open();
}

void TrailView::Private::goToSubject()
{
    const Entry entry = q.currentEntry();
    if (hook)
        hook(entry.subjectType, entry.subjectKey);
}

void TrailView::Private::goToNumber()
{
    bool chosen = false;
    const int last = int(qMin<qint64>(model.total(), std::numeric_limits<int>::max()));
    const int number = QInputDialog::getInt(&q, tr("Go to entry"), tr("&Number:"), qMax(1, last), 1,
                                            qMax(1, last), 1, &chosen);
    if (chosen)
        q.showEntry(number);
}

void TrailView::Private::print()
{
    const TrailOutput output(model, user);
    if (Error error = output.check(); error.hasError())
        return show(error);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, &q);
    if (dialog.exec() != QDialog::Accepted)
        return;
    recordOutput(tr("printed, %1").arg(model.filter().inWords()));
    output.print(printer);
}

void TrailView::Private::save(Action action)
{
    const bool pdf = action == Action::SavePdf;
    const QString path = QFileDialog::getSaveFileName(&q, actions.at(action)->text().remove(u'&'),
                                                      pdf ? u"trail.pdf"_s : u"trail.csv"_s,
                                                      pdf ? tr("PDF (*.pdf)") : tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    const TrailOutput output(model, user);
    Error error = pdf ? output.writePdf(path) : output.writeCsv(path);
    if (error.hasError())
        return show(error);
    recordOutput(tr("%1, %2").arg(QDir::toNativeSeparators(path), model.filter().inWords()));
}

void TrailView::Private::recordOutput(const QString &what)
{
    if (!logger)
        return;
    if (Error error = logger->record(eventDraft(u"printed"_s, what, user)); error.hasError())
        show(error);
}

void TrailView::Private::makeCopy()
{
    const TrailFilter filter = model.filter();
    CopyOptions options;
    options.query = filter.query;
    if (filter.needsEntries()) {
        const auto numbers = model.shownNumbers();
        if (!numbers)
            return show(numbers.error());
        options.ranges.emplace();
        for (const NumberSet::Run &run : numbers.value().runs())
            options.ranges->append({run.first, run.last});
    }
    if (!filter.isEmpty())
        options.choice = filter.inWords();
    const QString folder =
        QFileDialog::getSaveFileName(&q, tr("New folder for the inspection copy"), u"inspection-copy"_s);
    if (folder.isEmpty())
        return;
    options.user = user;
    options.verifier = verifier;
    Error error;
    runWithProgress(&q, tr("Making an inspection copy …"), [&](const Progress &progress) {
        options.progress = progress;
        error = writeInspectionCopy(model.store(), folder, options);
    });
    if (error.hasError())
        return show(error);
    OZMStyle::information(&q, {}, tr("Inspection copy"),
                          tr("The copy is in \"%1\".").arg(QDir::toNativeSeparators(folder)));
}

void TrailView::Private::verify()
{
    std::optional<Result<Verification>> result;
    runWithProgress(&q, tr("Verifying the trail …"), [&](const Progress &progress) {
        result.emplace(model.store().verify({}, nullptr, progress));
    });
    const Error failure = result->hasError() ? result->error() : Error();
    const QString words = failure.hasError() ? failure.errorMessage() : result->value().toString();
    if (logger) {
        Draft draft = eventDraft(u"verified"_s, words.simplified(), user);
        draft.outcomeCode = int(failure.errorCode());
        if (!failure.hasError() && !result->value().isWhole())
            draft.outcomeCode = int(ErrorCode::Failed);
        draft.outcomeText = draft.outcomeCode == 0 ? QString() : words.simplified();
        if (Error error = logger->record(draft); error.hasError())
            show(error);
    }
    if (!failure.hasError() && result->value().isWhole())
        OZMStyle::information(&q, {}, tr("Verification"), words);
    else
        OZMStyle::warning(&q, {}, tr("Verification"), words);
}

void TrailView::Private::saveFilter()
{
    const QString path = QFileDialog::getSaveFileName(&q, tr("Save filter"), u"trail.trailfilter"_s,
                                                      tr("Filters (*.trailfilter)"));
    if (path.isEmpty())
        return;
    if (Error error = model.filter().save(path); error.hasError())
        show(error);
}

void TrailView::Private::openFilter()
{
    const QString path =
        QFileDialog::getOpenFileName(&q, tr("Open filter"), {}, tr("Filters (*.trailfilter)"));
    if (path.isEmpty())
        return;
    const auto filter = TrailFilter::load(path);
    if (!filter)
        return show(filter.error());
    q.setFilter(filter.value());
}

} // namespace ozm::audit

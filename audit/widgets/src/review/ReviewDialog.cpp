#include "../Texts.h"
#include "../model/EntryTexts.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/ReviewDialog.h>
#include <ozm_widgets/OZMStyle.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr int kIconSize = 16;
// In characters of average width.
constexpr int kReviewWidth = 70;
constexpr int kFieldMargins = 3;

QLabel *wrapped(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

/// A line with the sign of a warning before it.
QWidget *flagged(const QString &text)
{
    auto *box = new QWidget;
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *icon = new QLabel;
    icon->setPixmap(OZMStyle::icon(u"dialog-warning"_s).pixmap(kIconSize, kIconSize));
    layout->addWidget(icon, 0, Qt::AlignTop);
    QLabel *label = wrapped(text);
    label->setObjectName(u"reviewFlag"_s);
    layout->addWidget(label, 1);
    return box;
}

} // namespace

class ReviewDialog::Private
{
public:
    [[nodiscard]] Error record();

    Logger &logger;
    const Person reviewer;
    Review review;
    Error unfit; ///< Why what is shown cannot be reviewed.
    QComboBox *outcome = nullptr;
    QPlainTextEdit *comment = nullptr;
    QLineEdit *discrepancies = nullptr;
    QLabel *problem = nullptr;
};

Error ReviewDialog::Private::record()
{
    const auto linked = NumberSet::fromText(discrepancies->text());
    if (!linked)
        return linked.error();
    review.discrepancies = linked.value();
    review.outcome = ReviewOutcome(outcome->currentData().toInt());
    review.comment = comment->toPlainText().trimmed();
    if (review.outcome != ReviewOutcome::NoFindings && review.comment.isEmpty())
        return Error(ErrorCode::NotAllowed, tr("Say in the comment what was found.")).ecatch(OZM_HERE);
    Draft draft = review.toDraft();
    draft.user = reviewer;
    return logger.record(draft);
}

ReviewDialog::ReviewDialog(const TrailModel &model, Logger &logger, const Person &reviewer,
                           const NumberSet &discrepancies, QWidget *parent)
    : QDialog(parent)
    , d(new Private{logger, reviewer, {}, {}})
{
    setWindowTitle(tr("Record a review"));
    setObjectName(u"reviewDialog"_s);
    setMinimumWidth(fontMetrics().averageCharWidth() * kReviewWidth);
    d->review.filter = model.filter();
    d->review.upTo = model.total();
    const auto shown = model.shownNumbers();
    if (shown)
        d->review.entries = shown.value();
    else
        d->unfit = shown.error();
    const auto acted = hasActed(model.store(), reviewer.id, d->review.entries);
    if (!acted)
        d->unfit = acted.error();
    d->review.reviewerActed = acted.valueOr(true);

    d->outcome = new QComboBox;
    d->outcome->setObjectName(u"reviewOutcome"_s);
    for (const auto outcome : {ReviewOutcome::NoFindings, ReviewOutcome::Findings, ReviewOutcome::Escalated})
        d->outcome->addItem(reviewOutcomeTitle(outcome), int(outcome));
    d->comment = new QPlainTextEdit;
    d->comment->setObjectName(u"reviewComment"_s);
    d->comment->setTabChangesFocus(true);
    d->discrepancies = new QLineEdit(discrepancies.toText());
    d->discrepancies->setObjectName(u"reviewDiscrepancies"_s);
    d->discrepancies->setPlaceholderText(tr("Numbers of entries, such as 3, 7-9"));
    const QFontMetrics metrics = d->discrepancies->fontMetrics();
    d->discrepancies->setMinimumWidth(metrics.horizontalAdvance(d->discrepancies->placeholderText()) +
                                      kFieldMargins * metrics.averageCharWidth());
    d->problem = wrapped(d->unfit.errorMessage());
    d->problem->setObjectName(u"reviewProblem"_s);
    d->problem->setVisible(d->unfit.hasError());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Record review"));
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!d->unfit.hasError() && !d->review.entries.isEmpty());

    auto *form = new QFormLayout(this);
    form->addRow(tr("Reviewer:"), wrapped(personText(reviewer)));
    form->addRow(tr("Filter:"), wrapped(d->review.filter.inWords()));
    form->addRow(tr("Entries:"), wrapped(tr("%L1 of %L2, up to entry %3; %L4 of them not reviewed before")
                                             .arg(d->review.entries.count())
                                             .arg(model.total())
                                             .arg(d->review.upTo)
                                             .arg(model.notReviewed())));
    if (d->review.reviewerActed) {
        form->addRow(flagged(tr("You made some of these entries yourself. The review is recorded as not "
                                "independent.")));
    }
    form->addRow(tr("&Outcome:"), d->outcome);
    form->addRow(tr("&Comment:"), d->comment);
    form->addRow(tr("&Discrepancies:"), d->discrepancies);
    form->addRow(d->problem);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ReviewDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ReviewDialog::reject);
}

ReviewDialog::~ReviewDialog() = default;

void ReviewDialog::accept()
{
    if (Error error = d->record(); error.hasError()) {
        d->problem->setText(error.errorMessage());
        d->problem->show();
        return;
    }
    QDialog::accept();
}

} // namespace ozm::audit

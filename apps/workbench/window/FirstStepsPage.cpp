#include "window/FirstStepsPage.h"

#include "samples/RoomyDelegate.h"

#include <ozm_widgets/OZMStyle.h>

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

constexpr int kPageWidth = 300;
// Large letters leave less beside them, for the table has to have room as well.
constexpr int kLeastPageWidth = 240;

QLabel *wrapped(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel *titled(const QString &text, QWidget *parent)
{
    auto *label = wrapped(text, parent);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QFrame *stepLine(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFrameShape(QFrame::HLine);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

} // namespace

FirstStepsPage::FirstStepsPage(const std::vector<FirstStep> &steps, QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(u"firstStepsPage"_s);
    setAccessibleName(tr("First steps"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The keys go to the buttons, and the page follows them.
    setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->addWidget(
        wrapped(tr("The samples, the data and the audit trail of this window are made up, and go "
                   "when the program ends. Nothing of yours is touched."),
                content));
    setWidget(content);
    for (const FirstStep &step : steps)
        addStep(step, column);
    column->addStretch();
    column->addWidget(stepLine(content));
    auto *own = new QPushButton(tr("Begin with own samples"), content);
    own->setObjectName(u"ownSamples"_s);
    connect(own, &QPushButton::clicked, this, &FirstStepsPage::ownSamplesAsked);
    column->addWidget(own);
    if (!m_rows.empty())
        setFocusProxy(m_rows.front().button);
}

void FirstStepsPage::addStep(const FirstStep &step, QVBoxLayout *column)
{
    QWidget *content = widget();
    const int index = static_cast<int>(m_rows.size());
    const QString title = tr("%1. %2").arg(QString::number(index + 1), step.title);
    Row row{titled(title, content), title, new QPushButton(step.button, content), wrapped({}, content)};
    row.button->setObjectName(step.name + u"Button"_s);
    row.outcome->setObjectName(step.name + u"Outcome"_s);
    row.outcome->hide();
    auto *text = wrapped(step.text, content);
    row.button->setAccessibleDescription(step.text);
    row.button->setToolTip(tr("In code: %1").arg(step.code));
    connect(row.button, &QPushButton::clicked, this, [this, index] { Q_EMIT asked(index); });
    column->addWidget(stepLine(content));
    for (QWidget *part : std::initializer_list<QWidget *>{row.title, text, row.button, row.outcome})
        column->addWidget(part);
    m_rows.push_back(row);
}

void FirstStepsPage::setOutcome(int step, const QString &text)
{
    const Row &row = m_rows.at(static_cast<std::size_t>(step));
    row.title->setText(tr("%1 - tried").arg(row.text));
    row.button->setIcon(OZMStyle::icon(u"dialog-ok"_s));
    row.outcome->setText(text);
    row.outcome->setVisible(!text.isEmpty());
}

void FirstStepsPage::setBusy(int step, bool busy)
{
    m_rows.at(static_cast<std::size_t>(step)).button->setDisabled(busy);
}

bool FirstStepsPage::viewportEvent(QEvent *event)
{
    // There is no bar to scroll sideways with.
    if (event->type() == QEvent::LayoutRequest)
        setMinimumWidth(widget()->minimumSizeHint().width() + 2 * frameWidth());
    return QScrollArea::viewportEvent(event);
}

QSize FirstStepsPage::sizeHint() const
{
    return {qMax(kPageWidth, forFontOf(*this, kLeastPageWidth)), QScrollArea::sizeHint().height()};
}

} // namespace workbench

#include "FilterBar.h"

#include "../model/EntryTexts.h"
#include "FlowLayout.h"
#include "TimeDialogs.h"

#include <ozm_widgets/OZMStyle.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// People stop typing for longer than this before they look at the result.
constexpr int kTypingMs = 300;
constexpr int kShownOfSession = 8;
constexpr int kPresetCharacters = 14;
// Of the frame, and of the button that empties the line, in characters.
constexpr int kSearchMargins = 5;
constexpr auto kKindCount = int(Kind::ReAnchor) + 1;

} // namespace

FilterBar::FilterBar(const TrailModel &model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_search(new QLineEdit)
    , m_preset(new QComboBox)
    , m_add(new QToolButton)
    , m_chips(new QWidget)
    , m_searchDelay(new QTimer(this))
{
    auto *searchLabel = new QLabel(tr("Sear&ch:"));
    searchLabel->setBuddy(m_search);
    m_search->setObjectName(u"trailSearch"_s);
    m_search->setClearButtonEnabled(true);
    m_search->setPlaceholderText(tr("Text in any part of an entry"));
    m_search->setMinimumWidth(m_search->fontMetrics().horizontalAdvance(m_search->placeholderText()) +
                              kSearchMargins * m_search->fontMetrics().averageCharWidth());
    auto *presetLabel = new QLabel(tr("&Look for:"));
    presetLabel->setBuddy(m_preset);
    m_preset->setObjectName(u"trailPreset"_s);
    m_preset->addItem(presetTitle(ReviewPreset::None), int(ReviewPreset::None));
    for (const ReviewPreset preset : reviewPresets())
        m_preset->addItem(presetTitle(preset), int(preset));
    // The longest of them is not to take the room of the search.
    m_preset->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_preset->setMinimumContentsLength(kPresetCharacters);
    m_preset->view()->setAccessibleName(presetLabel->text().remove(u'&'));
    m_add->setObjectName(u"trailFilter"_s);
    m_add->setText(tr("Filte&r"));
    m_add->setIcon(OZMStyle::icon(u"view-filter"_s));
    m_add->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_add->setPopupMode(QToolButton::InstantPopup);
    m_add->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new QMenu(m_add);
    m_add->setMenu(menu);
    new FlowLayout(m_chips);
    m_chips->setObjectName(u"trailChips"_s);

    auto *row = new QHBoxLayout;
    row->addWidget(searchLabel);
    row->addWidget(m_search, 2);
    row->addWidget(presetLabel);
    row->addWidget(m_preset, 1);
    row->addWidget(m_add);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_chips);
    m_chips->hide();

    m_searchDelay->setSingleShot(true);
    m_searchDelay->setInterval(kTypingMs);
    connect(m_search, &QLineEdit::textChanged, m_searchDelay, qOverload<>(&QTimer::start));
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        m_searchDelay->setInterval(0);
        m_searchDelay->start();
        m_searchDelay->setInterval(kTypingMs);
    });
    connect(m_searchDelay, &QTimer::timeout, this, [this] {
        TrailFilter filter = m_filter;
        filter.query.text = m_search->text();
        change(filter);
    });
    connect(m_preset, &QComboBox::activated, this, [this](int index) {
        TrailFilter filter = m_filter;
        filter.preset = ReviewPreset(m_preset->itemData(index).toInt());
        change(filter);
        if (filter.preset == ReviewPreset::OutOfHours)
            askHours();
    });
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillMenu(*menu); });
}

void FilterBar::setFilter(const TrailFilter &filter)
{
    m_filter = filter;
    showFilter();
}

void FilterBar::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void FilterBar::change(const TrailFilter &filter)
{
    if (filter.toJson() == m_filter.toJson())
        return;
    setFilter(filter);
    Q_EMIT filterChanged(m_filter);
}

void FilterBar::showFilter()
{
    m_searchDelay->stop();
    const QSignalBlocker quiet(m_search);
    m_search->setText(m_filter.query.text);
    m_preset->setCurrentIndex(m_preset->findData(int(m_filter.preset)));
    showChips();
}

void FilterBar::showChips()
{
    // Later: a chip that was clicked is among them.
    const auto old = m_chips->findChildren<QToolButton *>(Qt::FindDirectChildrenOnly);
    for (QToolButton *chip : old) {
        m_chips->layout()->removeWidget(chip);
        chip->hide();
        chip->deleteLater();
    }
    const QStringList conditions = m_filter.conditions();
    for (qsizetype i = 0; i < conditions.size(); ++i) {
        auto *chip = new QToolButton(m_chips);
        chip->setText(conditions.at(i));
        chip->setIcon(OZMStyle::icon(u"window-close"_s));
        chip->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        chip->setFocusPolicy(Qt::StrongFocus);
        chip->setToolTip(tr("Take this condition away"));
        chip->setAccessibleName(tr("Take away: %1").arg(conditions.at(i)));
        connect(chip, &QToolButton::clicked, this, [this, i] { change(m_filter.without(i)); });
        m_chips->layout()->addWidget(chip);
        chip->show();
    }
    m_chips->setVisible(!conditions.isEmpty());
}

void FilterBar::fillMenu(QMenu &menu)
{
    menu.clear();
    addChoices(menu, tr("User"), TrailModel::Choice::User, &Query::user);
    QMenu *kinds = menu.addMenu(tr("Kind"));
    for (int i = 0; i < kKindCount; ++i) {
        QAction *action = kinds->addAction(kindTitle(Kind(i)));
        action->setCheckable(true);
        action->setChecked(m_filter.query.kinds.contains(Kind(i)));
        connect(action, &QAction::toggled, this, [this, i](bool on) {
            TrailFilter filter = m_filter;
            filter.query.kinds.removeAll(Kind(i));
            if (on)
                filter.query.kinds.append(Kind(i));
            change(filter);
        });
    }
    addChoices(menu, tr("Kind of subject"), TrailModel::Choice::SubjectType, &Query::subjectType);
    addChoices(menu, tr("Attribute"), TrailModel::Choice::Attribute, &Query::attribute);
    addTimes(menu);
    QMenu *outcomes = menu.addMenu(tr("Outcome"));
    const auto addOutcome = [this, outcomes](const QString &text, Query::Outcome outcome) {
        connect(outcomes->addAction(text), &QAction::triggered, this, [this, outcome] {
            TrailFilter filter = m_filter;
            filter.query.outcome = outcome;
            change(filter);
        });
    };
    addOutcome(tr("Succeeded"), Query::Outcome::Succeeded);
    addOutcome(tr("Refused or failed"), Query::Outcome::Failed);
    QMenu *sessions = menu.addMenu(tr("Session"));
    for (const QString &session : m_model.choices(TrailModel::Choice::Session)) {
        connect(sessions->addAction(session.left(kShownOfSession)), &QAction::triggered, this,
                [this, session] {
                    TrailFilter filter = m_filter;
                    filter.session = session;
                    change(filter);
                });
    }
    connect(menu.addAction(tr("Without a reason")), &QAction::triggered, this, [this] {
        TrailFilter filter = m_filter;
        filter.withoutReason = true;
        change(filter);
    });
    menu.addSeparator();
    QAction *all = menu.addAction(tr("Show everything"));
    all->setEnabled(!m_filter.isEmpty());
    connect(all, &QAction::triggered, this, [this] { change({}); });
}

void FilterBar::addChoices(QMenu &menu, const QString &title, TrailModel::Choice choice,
                           QString Query::*member)
{
    QMenu *below = menu.addMenu(title);
    const QStringList texts = m_model.choices(choice);
    below->setEnabled(!texts.isEmpty());
    for (const QString &text : texts) {
        QAction *action = below->addAction(QString(text).replace(u'&', u"&&"_s));
        connect(action, &QAction::triggered, this, [this, member, text] {
            TrailFilter filter = m_filter;
            filter.query.*member = text;
            if (member == &Query::subjectType)
                filter.query.subjectKey.clear();
            change(filter);
        });
    }
}

void FilterBar::addTimes(QMenu &menu)
{
    QMenu *times = menu.addMenu(tr("Time"));
    const auto addDays = [this, times](const QString &text, int days) {
        connect(times->addAction(text), &QAction::triggered, this, [this, days] {
            TrailFilter filter = m_filter;
            filter.query.fromMs = QDate::currentDate().addDays(1 - days).startOfDay().toMSecsSinceEpoch();
            filter.query.untilMs = 0;
            change(filter);
        });
    };
    addDays(tr("Today"), 1);
    addDays(tr("The last 7 days"), 7);
    addDays(tr("The last 30 days"), 30);
    connect(times->addAction(tr("From … until …")), &QAction::triggered, this, &FilterBar::askRange);
}

void FilterBar::askRange()
{
    TrailFilter filter = m_filter;
    if (askTimeRange(this, filter.query.fromMs, filter.query.untilMs))
        change(filter);
}

void FilterBar::askHours()
{
    TrailFilter filter = m_filter;
    if (askWorkingHours(this, filter.hours))
        change(filter);
}

} // namespace ozm::audit

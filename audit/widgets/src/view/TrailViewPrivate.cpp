#include "TrailView_p.h"

#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

using Action = TrailView::Action;

struct ActionRow
{
    Action action;
    const char *text;
    QLatin1StringView icon;
};

constexpr std::array kActions{
    ActionRow{Action::Sign, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "S&ign …"), "signature"_L1},
    ActionRow{Action::Review, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "&Review …"), "dialog-ok"_L1},
    ActionRow{Action::History, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "&History of the subject …"),
              "history"_L1},
    ActionRow{Action::ShowSubject, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Show the &object"),
              "go-next"_L1},
    ActionRow{Action::Details, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "D&etails"), "view-list"_L1},
    ActionRow{Action::GoTo, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "&Go to entry …"), "edit-find"_L1},
    ActionRow{Action::Print, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "&Print …"), "document-print"_L1},
    ActionRow{Action::SavePdf, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Save as P&DF …"),
              "document-pdf"_L1},
    ActionRow{Action::SaveCsv, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Save as CS&V …"),
              "document-export"_L1},
    ActionRow{Action::Copy, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Inspection &copy …"), "edit-copy"_L1},
    ActionRow{Action::Verify, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Verif&y …"), "audit-trail"_L1},
    ActionRow{Action::SaveFilter, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Save &filter …"),
              "document-save-as"_L1},
    ActionRow{Action::OpenFilter, QT_TRANSLATE_NOOP("ozm::audit::TrailView", "Open fi&lter …"),
              "document-open"_L1},
};
// Beside the table; the rest is in the menu.
constexpr std::array kInBar{Action::Sign, Action::Review, Action::History, Action::Verify, Action::Details};

// The widths below fit a font of this height.
constexpr int kUsualFontHeight = 15;
constexpr std::array kWidths{60, 205, 190, 130, 330, 130, 110, 110, 130, 130};
static_assert(kWidths.size() == TrailModel::ColumnCount);
constexpr int kRoom = 8;
// Below it, the entries need the room themselves.
constexpr int kHeightForDetails = 450;
// Rows beyond this are selected by mistake.
constexpr int kMostCopied = 10'000;

} // namespace

TrailView::Private::Private(TrailView &view, Store &store)
    : q(view)
    , model(store)
    , bar(model)
    , details(model)
{}

TrailView::Private::Private(TrailView &view, std::unique_ptr<Store> emptyStore)
    : q(view)
    , empty(std::move(emptyStore))
    , model(*empty)
    , bar(model)
    , details(model)
{}

void TrailView::Private::start()
{
    build();
    connectAll();
    updateActions();
    updateStatus();
    q.showNewest();
}

void TrailView::Private::build()
{
    auto *tools = new QToolBar;
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int icon = tools->style()->pixelMetric(QStyle::PM_SmallIconSize);
    tools->setIconSize({icon, icon});
    addActions(*tools);
    addZones(*tools);

    table.setObjectName(u"trailTable"_s);
    table.setAccessibleName(tr("Entries of the audit trail"));
    // Before the model: each of these goes over all rows.
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kRoom);
    table.setModel(&model);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.setWordWrap(false);
    table.setShowGrid(false);
    table.setTabKeyNavigation(false);
    table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setSortIndicator(TrailModel::Number, Qt::AscendingOrder);
    table.horizontalHeader()->setSortIndicatorShown(true);
    table.horizontalHeader()->setSectionsClickable(true);
    // With the style's margins, which a header else gets when it is shown.
    table.horizontalHeader()->ensurePolished();
    for (int column = 0; column < TrailModel::ColumnCount; ++column) {
        const int width = kWidths.at(std::size_t(column)) *
                          qMax(kUsualFontHeight, table.fontMetrics().height()) / kUsualFontHeight;
        table.setColumnWidth(column, qMax(width, table.horizontalHeader()->sectionSizeHint(column)));
    }
    table.horizontalHeader()->setAccessibleName(tr("Columns"));
    table.setContextMenuPolicy(Qt::CustomContextMenu);
    table.installEventFilter(&q);

    status.setObjectName(u"trailStatus"_s);
    status.setWordWrap(true);
    status.setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(&table);
    splitter->addWidget(&details);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setCollapsible(0, false);
    auto *layout = new QVBoxLayout(&q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tools);
    layout->addWidget(&bar);
    layout->addWidget(splitter, 1);
    layout->addWidget(&status);
}

void TrailView::Private::addZones(QToolBar &tools)
{
    auto *label = new QLabel(tr("T&ime:"));
    label->setBuddy(&zones);
    label->setContentsMargins(kRoom, 0, kRoom / 2, 0);
    zones.setObjectName(u"trailZone"_s);
    zones.addItem(tr("here"), int(TrailModel::Zone::Local));
    zones.addItem(tr("UTC"), int(TrailModel::Zone::Utc));
    zones.addItem(tr("as recorded"), int(TrailModel::Zone::Recorded));
    tools.addWidget(label);
    tools.addWidget(&zones);
}

void TrailView::Private::addActions(QToolBar &tools)
{
    auto *menu = new QMenu(&q);
    for (const ActionRow &row : kActions) {
        auto *action = new QAction(OZMStyle::icon(row.icon), tr(row.text), &q);
        actions.emplace(row.action, action);
        QObject::connect(action, &QAction::triggered, &q, [this, which = row.action] { run(which); });
        const bool inBar = std::ranges::find(kInBar, row.action) != kInBar.end();
        if (inBar)
            tools.addAction(action);
        else
            menu->addAction(action);
    }
    actions.at(Action::Details)->setCheckable(true);
    QObject::connect(actions.at(Action::Details), &QAction::toggled, &details, &QWidget::setVisible);
    actions.at(Action::GoTo)->setShortcut(QKeySequence(u"Ctrl+G"_s));
    actions.at(Action::GoTo)->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    q.addAction(actions.at(Action::GoTo));
    QAction *more = menu->menuAction();
    more->setText(tr("&More"));
    tools.addAction(more);
    for (QWidget *button : tools.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        button->setFocusPolicy(Qt::StrongFocus);
        if (button == tools.widgetForAction(more))
            button->setProperty("popupMode", 2);
    }
}

void TrailView::Private::connectAll()
{
    QObject::connect(&bar, &FilterBar::filterChanged, &q,
                     [this](const TrailFilter &filter) { model.setFilter(filter); });
    QObject::connect(&zones, &QComboBox::activated, &q,
                     [this](int index) { model.setZone(TrailModel::Zone(zones.itemData(index).toInt())); });
    QObject::connect(table.horizontalHeader(), &QHeaderView::sortIndicatorChanged, &q,
                     [this](int column, Qt::SortOrder order) { model.sort(column, order); });
    QObject::connect(table.selectionModel(), &QItemSelectionModel::currentChanged, &q,
                     [this] { showCurrent(); });
    QObject::connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, &q,
                     [this] { updateActions(); });
    QObject::connect(&table, &QWidget::customContextMenuRequested, &q,
                     [this](const QPoint &position) { showContextMenu(position); });
    QObject::connect(table.verticalScrollBar(), &QScrollBar::actionTriggered, &q, [this] {
        QMetaObject::invokeMethod(
            &model, [this] { follows = isAtNewest(); }, Qt::QueuedConnection);
    });
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &q, [this] { follow(); });
    QObject::connect(&model, &QAbstractItemModel::modelReset, &q, [this] {
        follows = model.filter().isEmpty();
        details.clear();
        updateActions();
        follow();
    });
    QObject::connect(&model, &TrailModel::countsChanged, &q, [this] { updateStatus(); });
    QObject::connect(&model, &TrailModel::sortRefused, &q, [this](const QString &text) {
        table.horizontalHeader()->setSortIndicator(model.sortColumn(), model.sortOrder());
        status.setText(text);
    });
    QObject::connect(&model, &TrailModel::failed, &q,
                     [this](const Error &error) { status.setText(error.errorMessage()); });
    QObject::connect(&details, &EntryDetails::entryRequested, &q,
                     [this](qint64 number) { q.showEntry(number); });
}

void TrailView::Private::fitDetails()
{
    if (!detailsChosen)
        actions.at(Action::Details)->setChecked(q.height() >= kHeightForDetails);
    details.setVisible(actions.at(Action::Details)->isChecked());
}

void TrailView::Private::updateActions()
{
    const bool selected = table.selectionModel()->hasSelection();
    const Entry current = q.currentEntry();
    actions.at(Action::Sign)->setEnabled(selected && session);
    actions.at(Action::Review)->setEnabled(logger);
    actions.at(Action::History)->setEnabled(!current.subjectKey.isEmpty());
    actions.at(Action::ShowSubject)->setEnabled(hook && !current.subjectType.isEmpty());
}

void TrailView::Private::updateStatus()
{
    QStringList parts{model.hidden() == 0 && !model.isSearching()
                          ? tr("%L1 of %L2 entries shown, none hidden.").arg(model.shown()).arg(model.total())
                          : tr("%L1 of %L2 entries shown, %L3 hidden by the filter.")
                                .arg(model.shown())
                                .arg(model.total())
                                .arg(model.hidden())};
    if (model.isSearching())
        parts.append(tr("Searching …"));
    parts.append(tr("Not reviewed: %L1.").arg(model.notReviewed()));
    if (model.pending() > 0)
        parts.append(tr("Not yet on disk: %L1.").arg(model.pending()));
    if (model.knownMarks() < model.total())
        parts.append(tr("States are known up to entry %L1.").arg(model.knownMarks()));
    status.setText(parts.join(u' '));
}

void TrailView::Private::showCurrent()
{
    const Entry entry = q.currentEntry();
    if (entry.number == 0)
        details.clear();
    else
        details.show(entry);
    updateActions();
}

bool TrailView::Private::isAtNewest() const
{
    const QScrollBar &scroll = *table.verticalScrollBar();
    return model.sortOrder() == Qt::AscendingOrder ? scroll.value() == scroll.maximum()
                                                   : scroll.value() == scroll.minimum();
}

void TrailView::Private::follow()
{
    if (!follows)
        return;
    if (model.sortOrder() == Qt::AscendingOrder)
        table.scrollToBottom();
    else
        table.scrollToTop();
}

void TrailView::Private::copyRows() const
{
    QModelIndexList rows = table.selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QStringList lines;
    for (const QModelIndex &row : rows.first(qMin<qsizetype>(rows.size(), kMostCopied))) {
        QStringList cells;
        for (int column = 0; column < TrailModel::ColumnCount; ++column)
            cells.append(row.siblingAtColumn(column).data(Qt::ToolTipRole).toString().simplified());
        lines.append(cells.join(u'\t'));
    }
    QApplication::clipboard()->setText(lines.join(u'\n'));
}

void TrailView::Private::show(const Error &error)
{
    OZMStyle::warning(&q, {}, tr("Audit trail"), error.errorMessage());
}

void TrailView::Private::showContextMenu(const QPoint &position)
{
    const Entry entry = q.currentEntry();
    QMenu menu(&q);
    menu.addAction(actions.at(Action::ShowSubject));
    menu.addAction(actions.at(Action::History));
    menu.addAction(actions.at(Action::Sign));
    menu.addSeparator();
    const auto addOnly = [this, &menu](const QString &text, bool enabled, const auto &change) {
        QAction *action = menu.addAction(text);
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, &q, [this, change] {
            TrailFilter filter = model.filter();
            change(filter);
            q.setFilter(filter);
        });
    };
    addOnly(tr("Only this user"), !entry.user.id.isEmpty(),
            [id = entry.user.id](TrailFilter &filter) { filter.query.user = id; });
    addOnly(tr("Only this subject"), !entry.subjectType.isEmpty(),
            [type = entry.subjectType, key = entry.subjectKey](TrailFilter &filter) {
                filter.query.subjectType = type;
                filter.query.subjectKey = key;
            });
    addOnly(tr("Only this session"), !entry.session.isEmpty(),
            [session = entry.session](TrailFilter &filter) { filter.session = session; });
    menu.exec(table.viewport()->mapToGlobal(position));
}

} // namespace ozm::audit

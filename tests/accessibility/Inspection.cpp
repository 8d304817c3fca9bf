#include "Inspection.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ozm::test {

namespace {

QString told(const QObject &object)
{
    QString path;
    for (const QObject *part = &object; part; part = part->parent())
        path = u'/' +
               (part->objectName().isEmpty() ? QString::fromLatin1(part->metaObject()->className())
                                             : part->objectName()) +
               path;
    return path;
}

/// Cells, items and scroll bars are told by the view that they belong to, and the buttons in a line by the line.
bool isClosed(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::List:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::ScrollBar:
    case QAccessible::EditableText:
        return true;
    default:
        return false;
    }
}

bool isAnotherWindow(QAccessibleInterface &place)
{
    const auto *widget = qobject_cast<QWidget *>(place.object());
    return widget && widget->isWindow();
}

void inspectTree(QAccessibleInterface &place, Inspection &found)
{
    const QAccessible::State state = place.state();
    if (state.invisible || !place.object())
        return;
    const auto *widget = qobject_cast<QWidget *>(place.object());
    // Where there is no room for a tool bar, the toolkit adds a button of its own.
    if (widget && widget->objectName() == "qt_toolbar_ext_button"_L1)
        return;
    const bool isButton = qobject_cast<const QAbstractButton *>(place.object());
    if (widget && (widget->focusPolicy() != Qt::NoFocus || isButton) && (state.focusable || isButton)) {
        ++found.controls;
        if (place.text(QAccessible::Name).trimmed().isEmpty())
            found.findings += told(*widget) + u" has no name"_s;
        if (place.role() == QAccessible::NoRole)
            found.findings += told(*widget) + u" has no role"_s;
    }
    for (int i = 0; !isClosed(place.role()) && i < place.childCount(); ++i) {
        if (QAccessibleInterface *child = place.child(i); child && !isAnotherWindow(*child))
            inspectTree(*child, found);
    }
}

/// Keys that stand for something, and those that have more than one meaning at once.
class Keys
{
public:
    void add(const QKeySequence &key, const QObject &owner, const QString &what)
    {
        if (key.isEmpty())
            return;
        const auto known = m_owners.constFind(key.toString());
        if (known != m_owners.cend() && *known != &owner)
            found += u"%1 stands for %2 and for %3"_s.arg(key.toString(), m_told.value(key.toString()), what);
        m_owners.insert(key.toString(), &owner);
        m_told.insert(key.toString(), what);
    }

    QStringList found;

private:
    QHash<QString, const QObject *> m_owners;
    QHash<QString, QString> m_told;
};

void inspectMenu(const QMenu &menu, QStringList &findings)
{
    Keys keys;
    for (QAction *action : menu.actions()) {
        if (!action->isSeparator())
            keys.add(QKeySequence::mnemonic(action->text()), *action, u"the menu item "_s + action->text());
        if (action->menu())
            inspectMenu(*action->menu(), findings);
    }
    findings += keys.found;
}

void inspectKeys(QWidget &window, QStringList &findings)
{
    Keys keys;
    const auto mnemonic = [&](QWidget &widget, const QString &text) {
        if (widget.isVisibleTo(&window))
            keys.add(QKeySequence::mnemonic(text), widget, told(widget));
    };
    for (auto *button : window.findChildren<QAbstractButton *>())
        mnemonic(*button, button->text());
    for (auto *label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            mnemonic(*label, label->text());
        else if (!QKeySequence::mnemonic(label->text()).isEmpty() && label->isVisibleTo(&window))
            findings += told(*label) + u" has a key, and no field that it leads to"_s;
    }
    for (auto *bar : window.findChildren<QMenuBar *>()) {
        for (QAction *action : bar->actions()) {
            keys.add(QKeySequence::mnemonic(action->text()), *action, u"the menu "_s + action->text());
            if (action->menu())
                inspectMenu(*action->menu(), findings);
        }
    }
    for (auto *action : window.findChildren<QAction *>()) {
        if (action->shortcutContext() != Qt::WindowShortcut &&
            action->shortcutContext() != Qt::ApplicationShortcut)
            continue;
        for (const QKeySequence &key : action->shortcuts())
            keys.add(key, *action, u"the action "_s + action->text());
    }
    for (auto *shortcut : window.findChildren<QShortcut *>()) {
        const auto *place = qobject_cast<QWidget *>(shortcut->parent());
        if (shortcut->context() == Qt::WindowShortcut && (!place || place->isVisibleTo(&window)))
            keys.add(shortcut->key(), *shortcut, told(*shortcut));
    }
    findings += keys.found;
}

void inspectToolBars(const QWidget &window, QStringList &findings)
{
    for (const auto *button : window.findChildren<QToolButton *>()) {
        const QAction *action = button->defaultAction();
        if (!button->isVisibleTo(&window) || !action || button->focusPolicy() != Qt::NoFocus)
            continue;
        // That which empties a line: the keys of the line do it as well.
        if (qobject_cast<const QLineEdit *>(button->parent()))
            continue;
        bool inMenu = false;
        for (const QObject *place : action->associatedObjects())
            inMenu |= qobject_cast<const QMenu *>(place) != nullptr;
        if (!inMenu && action->shortcuts().isEmpty())
            findings += told(*button) + u" (%1) is for the mouse alone"_s.arg(action->text());
    }
}

/// Each action has keys of its own, is in a menu, or is a button that takes the focus.
void inspectActions(const QWidget &window, QStringList &findings)
{
    const auto reaches = [](const QObject *place) {
        const auto *button = qobject_cast<const QToolButton *>(place);
        // The toolkit's own dialogs choose their columns by the header, and show all of them without.
        return qobject_cast<const QMenu *>(place) || qobject_cast<const QMenuBar *>(place) ||
               qobject_cast<const QHeaderView *>(place) || (button && button->focusPolicy() & Qt::TabFocus);
    };
    for (const auto *action : window.findChildren<QAction *>()) {
        // Those without a place are switched by other ways, and those in a line empty it.
        const QObjectList places = action->associatedObjects();
        if (action->isSeparator() || action->text().isEmpty() || places.isEmpty() ||
            qobject_cast<const QLineEdit *>(action->parent()) || !action->shortcuts().isEmpty())
            continue;
        if (std::ranges::none_of(places, reaches))
            findings += u"the action %1 (%2) has no keys"_s.arg(action->text(), told(*action));
    }
}

void inspectHeaders(const QWidget &window, QStringList &findings)
{
    for (const auto *header : window.findChildren<QHeaderView *>()) {
        if (!header->isVisibleTo(&window) || !header->model() || header->orientation() != Qt::Horizontal)
            continue;
        for (int column = 0; column < header->count(); ++column)
            if (!header->isSectionHidden(column) &&
                header->model()->headerData(column, Qt::Horizontal).toString().isEmpty())
                findings += u"%1: column %2 has no header"_s.arg(told(*header)).arg(column);
    }
}

double luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double c = part / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// The highest contrast of any pixel in @p area to the colour that fills most of it: the edges of letters are blended
/// with the ground, their middle is not.
double contrastIn(const QImage &image, const QRect &area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.rect().contains(x, y))
                ++counts[image.pixel(x, y)];
    if (counts.size() < 2)
        return 21;
    QRgb ground = 0;
    int most = 0;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        if (each.value() > most) {
            ground = each.key();
            most = each.value();
        }
    }
    double highest = 1;
    const double behind = luminance(ground) + 0.05;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        const double before = luminance(each.key()) + 0.05;
        highest = qMax(highest, qMax(before, behind) / qMin(before, behind));
    }
    return highest;
}

// Of a box to choose from, with the margins of its text.
constexpr int kArrow = 24;

bool isLetter(QChar character)
{
    return character.isLetter();
}

void inspectPixels(QWidget &window, Inspection &found)
{
    constexpr double kReadable = 4.5;
    constexpr double kVisible = 3.0;
    const QImage image = window.grab().toImage();
    const auto look = [&](const QWidget &widget, bool isText) {
        // Scrolled out of sight, its place shows something else.
        if (widget.visibleRegion().boundingRect().height() < widget.height())
            return;
        const QRect area(widget.mapTo(&window, QPoint()), widget.size());
        // Without the frame, which may be the part that is seen best.
        const double ratio = contrastIn(image, area.adjusted(4, 4, -4, -4) & window.rect());
        double &lowest = isText ? found.textContrast : found.iconContrast;
        lowest = qMin(lowest, ratio);
        if (ratio < (isText ? kReadable : kVisible))
            found.findings += u"%1 is drawn at %2 to 1"_s.arg(told(widget)).arg(ratio, 0, 'f', 1);
    };
    for (const auto *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->visibleRegion().isEmpty())
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && !label->text().isEmpty())
            look(*widget, true);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            // Dots are too small to be measured by their pixels.
            if (std::ranges::any_of(button->text(), &isLetter) || !button->icon().isNull())
                look(*widget, !qobject_cast<const QToolButton *>(widget));
    }
}

/// The room that @p widget gives its text, less than nothing where some of it is cut off.
int spareRoom(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    const auto textWidth = [&metrics](const QString &text) {
        return metrics.size(Qt::TextShowMnemonic, text).width();
    };
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        if (label->text().isEmpty())
            return 0;
        // A label that may be narrower leaves out what it has no room for by itself.
        if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            return label->height() - metrics.height();
        const int height =
            label->hasHeightForWidth() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        return qMin(label->height() - height,
                    label->wordWrap() ? 0 : label->width() - label->sizeHint().width());
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        if (button->text().isEmpty())
            return 0;
        const auto *tool = qobject_cast<const QToolButton *>(button);
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
            return 0;
        const int icon =
            button->icon().isNull() || (tool && tool->toolButtonStyle() == Qt::ToolButtonTextUnderIcon)
                ? 0
                : button->iconSize().width();
        // The text of a push button is not to touch its outline.
        const int edges = qobject_cast<const QPushButton *>(button) ? metrics.height() / 3 : 0;
        return qMin(button->width() - textWidth(button->text()) - icon - edges,
                    button->height() - metrics.height());
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return qMin(box->isEditable() ? 0 : box->width() - textWidth(box->currentText()) - kArrow,
                    box->height() - metrics.height());
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget))
        return qMin(line->height() - metrics.height(),
                    line->text().isEmpty() ? line->width() - textWidth(line->placeholderText()) : 0);
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return group->width() - textWidth(group->title());
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget)) {
        int spare = 0;
        for (QAction *action : bar->actions())
            if (action->isVisible())
                spare = qMin(spare, bar->width() - bar->actionGeometry(action).right());
        return spare;
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        int spare = 0;
        for (int tab = 0; tab < tabs->count(); ++tab)
            spare = qMin(spare, tabs->tabRect(tab).width() - textWidth(tabs->tabText(tab)));
        return spare;
    }
    return 0;
}

/// Texts that stand beside each other without a gap that grows with their letters read as one.
void inspectStatus(const QWidget &window, QStringList &findings)
{
    for (const auto *bar : window.findChildren<QStatusBar *>()) {
        const auto texts = bar->findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
        for (const QLabel *one : texts)
            for (const QLabel *other : texts) {
                const int gap = other->geometry().left() + other->contentsRect().left() -
                                one->geometry().left() - one->contentsRect().right();
                const bool isBehind = other->x() > one->x() && one->isVisible() && other->isVisible();
                if (isBehind && gap < one->fontMetrics().horizontalAdvance(u"xx"_s))
                    findings += u"%1 stands too close to %2"_s.arg(told(*one), told(*other));
            }
    }
}

void inspectRoom(const QWidget &window, QStringList &findings)
{
    for (const auto *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (const int spare = spareRoom(*widget); spare < 0 && !widget->visibleRegion().isEmpty())
            findings += u"%1 lacks %2 pixels for its text"_s.arg(told(*widget)).arg(-spare);
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        const bool isText =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
        if (isText && (place.left() < 0 || place.right() > window.width()))
            findings += told(*widget) + u" is cut off by the window"_s;
        const auto *header = qobject_cast<const QHeaderView *>(widget);
        if (!header || header->orientation() != Qt::Horizontal)
            continue;
        for (int column = 0; column < header->count(); ++column) {
            const int lacking = header->sectionSizeHint(column) - header->sectionSize(column);
            if (!header->isSectionHidden(column) && lacking > 0)
                findings += u"%1: column %2 lacks %3 pixels"_s.arg(told(*header)).arg(column).arg(lacking);
        }
    }
}

} // namespace

Inspection inspect(QWidget &window)
{
    Inspection found;
    if (QAccessibleInterface *top = QAccessible::queryAccessibleInterface(&window))
        inspectTree(*top, found);
    else
        found.findings += u"The window tells nothing."_s;
    inspectKeys(window, found.findings);
    inspectToolBars(window, found.findings);
    inspectActions(window, found.findings);
    inspectHeaders(window, found.findings);
    inspectPixels(window, found);
    inspectRoom(window, found.findings);
    inspectStatus(window, found.findings);
    found.findings.removeDuplicates();
    return found;
}

} // namespace ozm::test

#include "editor/CodePanel.h"

#include "editor/CodeModel.h"

#include <ozm_widgets/OZMStyle.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kGap = 12;

/// The name, and behind it, in a weaker colour, the code as it stands in the source.
class CodeDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const QString code = index.data(CodeModel::CodeRole).toString();
        const int taken = option.fontMetrics.horizontalAdvance(index.data().toString()) + kGap;
        const QRect rest =
            QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(taken, 0, -kGap / 2, 0));
        if (option.fontMetrics.horizontalAdvance(code) > rest.width())
            return;
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        QColor color = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        color.setAlphaF(0.6F);
        painter->save();
        painter->setPen(color);
        painter->drawText(rest, Qt::AlignRight | Qt::AlignVCenter, code);
        painter->restore();
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 6);
    }
};

} // namespace

CodePanel::CodePanel(CodeModel *codes, QWidget *parent)
    : QWidget(parent)
    , m_filtered(new QSortFilterProxyModel(this))
    , m_search(new QLineEdit(this))
    , m_list(new QListView(this))
{
    m_filtered->setSourceModel(codes);
    m_filtered->setFilterRole(CodeModel::SearchRole);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_search->setObjectName(u"codeSearch"_s);
    m_search->setAccessibleName(tr("Search codes"));
    m_search->setPlaceholderText(tr("Search codes"));
    m_search->setClearButtonEnabled(true);
    m_search->addAction(OZMStyle::icon(u"edit-find"_s), QLineEdit::LeadingPosition);
    m_search->installEventFilter(this);
    m_list->setObjectName(u"codeList"_s);
    m_list->setAccessibleName(tr("Codes"));
    m_list->setModel(m_filtered);
    m_list->setItemDelegate(new CodeDelegate(m_list));
    m_list->setDragEnabled(true);
    m_list->setDragDropMode(QAbstractItemView::DragOnly);
    m_list->setDefaultDropAction(Qt::CopyAction);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    m_list->installEventFilter(this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    connect(m_search, &QLineEdit::textChanged, this, &CodePanel::filter);
    connect(m_list, &QListView::doubleClicked, this, &CodePanel::chooseCurrent);
}

void CodePanel::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_list->setDragEnabled(!readOnly);
}

void CodePanel::search()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void CodePanel::filter(const QString &text)
{
    m_filtered->setFilterFixedString(text.trimmed());
    m_list->setCurrentIndex(m_filtered->index(0, 0));
}

void CodePanel::chooseCurrent()
{
    const QModelIndex current = m_list->currentIndex();
    if (current.isValid() && !m_isReadOnly)
        Q_EMIT chosen(current.data(CodeModel::CodeRole).toString());
}

bool CodePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        chooseCurrent();
        return true;
    }
    if (watched == m_search && (key == Qt::Key_Down || key == Qt::Key_Up)) {
        m_list->setFocus(Qt::TabFocusReason);
        if (!m_list->currentIndex().isValid())
            m_list->setCurrentIndex(m_filtered->index(0, 0));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ozm::editor

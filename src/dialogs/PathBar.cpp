#include "dialogs/PathBar.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

QString nameOfFolder(const QString &folder)
{
    const QString name = QFileInfo(folder).fileName();
    return name.isEmpty() ? QDir::toNativeSeparators(folder) : name;
}

QStringList withFoldersAbove(const QString &path)
{
    QStringList folders;
    for (QString folder = path; !folder.isEmpty(); folder = QFileInfo(folder).path()) {
        if (!folders.isEmpty() && folders.constFirst() == folder)
            break;
        folders.prepend(folder);
    }
    return folders;
}

} // namespace

PathBar::PathBar(QWidget *parent)
    : QWidget(parent)
    , m_more(new QToolButton(this))
{
    setObjectName(u"pathBar"_s);
    setAccessibleName(tr("Folders above"));
    // As wide as there is room, however long the path is.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    m_more->setText(u"…"_s);
    m_more->setAccessibleName(tr("Folders further above"));
    m_more->setAutoRaise(true);
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setMenu(new QMenu(m_more));
    layout->addWidget(m_more);
    layout->addStretch();
}

void PathBar::setPath(const QString &path)
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_folders = withFoldersAbove(QDir::cleanPath(path));
    for (const QString &folder : std::as_const(m_folders)) {
        QToolButton *button = addButton(nameOfFolder(folder));
        // Not from within its own click, which ends with the deletion of the button.
        connect(
            button, &QToolButton::clicked, this, [this, folder] { Q_EMIT chosen(folder); },
            Qt::QueuedConnection);
    }
    fit();
}

QToolButton *PathBar::addButton(const QString &text)
{
    auto *button = new QToolButton(this);
    // In the name of a folder it is no mnemonic.
    button->setText(QString(text).replace(u'&', "&&"_L1));
    button->setAutoRaise(true);
    static_cast<QHBoxLayout *>(layout())->insertWidget(int(m_buttons.size()) + 1, button);
    m_buttons.append(button);
    return button;
}

QSize PathBar::minimumSizeHint() const
{
    return {0, m_more->sizeHint().height()};
}

void PathBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

void PathBar::fit()
{
    // From the shown folder up, which is the one that matters most.
    int room = width() - m_more->sizeHint().width();
    qsizetype first = m_buttons.size();
    while (first > 0 && (room -= m_buttons.at(first - 1)->sizeHint().width()) >= 0)
        --first;
    first = qMin(first, m_buttons.size() - 1);
    m_more->menu()->clear();
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        m_buttons.at(i)->setVisible(i >= first);
        if (i >= first)
            continue;
        const QString folder = m_folders.at(i);
        m_more->menu()->addAction(m_buttons.at(i)->text(), this, [this, folder] { Q_EMIT chosen(folder); });
    }
    m_more->setVisible(first > 0);
}

} // namespace ozm

#include "dialogs/DialogParts.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// "Open data format mzML" has room.
constexpr int kTypeCharacters = 20;
constexpr int kNameCharacters = 10;
// As wide as a size is written.
constexpr qint64 kWideSize = 1023LL * 1024 * 1024;
constexpr int kCellMargin = 8;

} // namespace

QLineEdit *nameBox(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
}

QPushButton *openButton(const QFileDialog &dialog)
{
    const auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
    return buttons ? buttons->button(QDialogButtonBox::Open) : nullptr;
}

QItemSelectionModel *selectionModel(const QFileDialog &dialog)
{
    const auto *view = dialog.findChild<QListView *>(u"listView"_s);
    return view ? view->selectionModel() : nullptr;
}

void widenColumns(const QFileDialog &dialog)
{
    const auto *view = dialog.findChild<QTreeView *>(u"treeView"_s);
    if (!view)
        return;
    const auto room = [view](const QString &text) {
        return view->fontMetrics().horizontalAdvance(text) + 2 * kCellMargin;
    };
    QHeaderView *header = view->header();
    header->ensurePolished();
    const auto widen = [header, &room](int column, const QString &text) {
        header->resizeSection(column, qMax(room(text), header->sectionSizeHint(column)));
    };
    // A day and a month whose names are among the long ones.
    const QDateTime late(QDate(2028, 9, 27), QTime(22, 58, 58));
    // Where there is no room for all of them, the columns are scrolled.
    header->setMinimumSectionSize(room(QString(kNameCharacters, u'n')));
    header->setStretchLastSection(false);
    header->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
    widen(kSizeColumn, QLocale::system().formattedDataSize(kWideSize));
    widen(kTypeColumn, QString(kTypeCharacters, u'n'));
    // As the toolkit's model writes it.
    widen(kDateColumn, QLocale::system().toString(late, QLocale::ShortFormat));
}

void addToFileDialog(QFileDialog &dialog, QWidget *widget)
{
    if (auto *grid = qobject_cast<QGridLayout *>(dialog.layout()))
        grid->addWidget(widget, grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace ozm

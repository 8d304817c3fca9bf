#include "dialogs/DialogParts.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QListView>

using namespace Qt::StringLiterals;

namespace ozm {

QLineEdit *nameBox(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
}

QItemSelectionModel *selectionModel(const QFileDialog &dialog)
{
    const auto *view = dialog.findChild<QListView *>(u"listView"_s);
    return view ? view->selectionModel() : nullptr;
}

void addToFileDialog(QFileDialog &dialog, QWidget *widget)
{
    if (auto *grid = qobject_cast<QGridLayout *>(dialog.layout()))
        grid->addWidget(widget, grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace ozm

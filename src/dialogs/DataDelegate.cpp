#include "dialogs/DataDelegate.h"

#include "dialogs/DialogParts.h"
#include "dialogs/SeenEntries.h"

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QFileSystemModel>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

/// Ordinary folders are not looked into: their trees may be deep.
bool mayBeData(const QString &path, bool isFolder)
{
    return !isFolder || SpectrumFileDialog::isVendorRawFolder(path, false);
}

} // namespace

DataDelegate::DataDelegate(const std::shared_ptr<SeenEntries> &seen, QObject *parent)
    : QStyledItemDelegate(parent)
{
    m_look.setRecognition([seen](const QString &path) { return seen->sampleAt(path); });
    connect(&m_look, &msreader::MsDataLook::seen, this, [this](const msreader::MsSample &sample) {
        m_formats.insert(sample.path, sample.isData() ? sample.description : u""_s);
        Q_EMIT looked();
    });
}

void DataDelegate::clear()
{
    m_look.cancel();
    m_formats.clear();
    m_asked.clear();
}

QString DataDelegate::formatOf(const QString &path) const
{
    return m_formats.value(path);
}

void DataDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QModelIndex entry = index.siblingAtColumn(0);
    const QString path = entry.data(QFileSystemModel::FilePathRole).toString();
    const bool isFolder = entry.model() && entry.model()->hasChildren(entry);
    if (path.isEmpty() || !mayBeData(path, isFolder))
        return;
    const auto known = m_formats.constFind(path);
    if (known == m_formats.constEnd()) {
        if (m_asked.contains(path))
            return;
        m_asked.insert(path);
        m_look.look({path});
        return;
    }
    if (index.column() == kTypeColumn && !known->isEmpty())
        option->text = *known;
    else if (index.column() == kTypeColumn && isFolder)
        option->text = tr("no data");
    else if (index.column() == 0 && !known->isEmpty())
        option->icon = OZMStyle::icon(isFolder ? u"folder-data"_s : u"file-data"_s);
}

} // namespace ozm

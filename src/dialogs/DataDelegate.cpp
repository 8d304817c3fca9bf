#include "dialogs/DataDelegate.h"

#include <FormatDetection.h>
#include <MsFileInfo.h>

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QFileSystemModel>
#include <QMutex>
#include <QThreadPool>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using msreader::VendorDataFormat;

// As QFileSystemModel orders its columns: name, size, type, date.
constexpr int kTypeColumn = 2;

/// Of their own, so that a share which does not answer holds up nobody else's work.
QThreadPool &lookupThreads()
{
    static QThreadPool pool;
    return pool;
}

/// Empty, but not null, for an entry that holds no data.
QString formatOnDisk(const QString &path)
{
    const VendorDataFormat format = msreader::nearestFormat(path);
    return format == VendorDataFormat::Unknown ? u""_s : msreader::MsFileInfo::formatDescription(format);
}

/// Ordinary folders are not looked into: their trees may be deep.
bool mayBeData(const QString &path, bool isFolder)
{
    return !isFolder || SpectrumFileDialog::isVendorRawFolder(path, false);
}

} // namespace

/// Outlives the delegate as long as a thread looks at an entry for it.
class DataDelegate::Lookup
{
public:
    explicit Lookup(DataDelegate *delegate)
        : m_delegate(delegate)
    {}

    void end()
    {
        const QMutexLocker lock(&m_mutex);
        m_delegate = nullptr;
    }

    void answer(const QString &path, const QString &format)
    {
        const QMutexLocker lock(&m_mutex);
        if (m_delegate)
            QMetaObject::invokeMethod(
                m_delegate, [this, path, format] { m_delegate->take(path, format); }, Qt::QueuedConnection);
    }

    [[nodiscard]] bool isEnded()
    {
        const QMutexLocker lock(&m_mutex);
        return !m_delegate;
    }

private:
    QMutex m_mutex;
    DataDelegate *m_delegate;
};

DataDelegate::DataDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_lookup(std::make_shared<Lookup>(this))
{}

DataDelegate::~DataDelegate()
{
    m_lookup->end();
}

void DataDelegate::clear()
{
    m_formats.clear();
    m_asked.clear();
}

QString DataDelegate::formatOf(const QString &path) const
{
    return m_formats.value(path);
}

void DataDelegate::take(const QString &path, const QString &format)
{
    m_formats.insert(path, format);
    Q_EMIT looked();
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
        lookupThreads().start([lookup = m_lookup, path] {
            if (!lookup->isEnded())
                lookup->answer(path, formatOnDisk(path));
        });
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

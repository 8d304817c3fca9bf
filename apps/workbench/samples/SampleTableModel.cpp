#include "samples/SampleTableModel.h"

#include "data/DataColumns.h"

#include "samples/SampleEditor.h"
#include "samples/SampleRules.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

/// Columns that the suite's own list of names does not have, or has in English only.
struct Heading
{
    const QString *column;
    const char *text;
    const char *toolTip;
};

constexpr std::array kHeadings{
    Heading{&kName, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Name"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Name given by the user")},
    Heading{&kSequence, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Sequence"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Amino acids in one-letter code")},
    Heading{&kCharge, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Charge"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Charge state")},
    Heading{&kMass, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Mass (Da)"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Neutral monoisotopic mass in dalton")},
    Heading{&kComment, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Comment"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Free remark")},
    Heading{&kFormat, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Format"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Format of the data, as projects name it")},
    Heading{&kDescription, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Description"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "What the format is called")},
    Heading{&kKind, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Kind"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Whether the data is a file or a folder")},
    Heading{&kSize, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Size"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "What the data takes on the disk")},
    Heading{&kPath, QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Path"),
            QT_TRANSLATE_NOOP("workbench::SampleTableModel", "Where the data is")},
};

const Heading *headingOf(const QString &column)
{
    const auto *found =
        std::ranges::find_if(kHeadings, [&column](const Heading &row) { return *row.column == column; });
    return found == kHeadings.end() ? nullptr : found;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("workbench::SampleTableModel", text);
}

QString columnAt(int section)
{
    return SampleTable::columns().value(section);
}

bool isNumber(int section)
{
    const QString column = columnAt(section);
    return column == kCharge || column == kMass || column == kSize;
}

int alignmentOf(int section)
{
    // Units stand below units in every language.
    const Qt::Alignment side = isNumber(section) ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft;
    return static_cast<int>(side | Qt::AlignVCenter);
}

QString kindName(const QString &kind)
{
    if (kind == kFileKind)
        return SampleTableModel::tr("File");
    return kind == kFolderKind ? SampleTableModel::tr("Folder") : QString();
}

QString shownText(const QString &column, const QVariant &value)
{
    if (column == kSize && value.isValid())
        return QLocale().formattedDataSize(value.toLongLong());
    if (column == kKind)
        return kindName(value.toString());
    if (column == kPath)
        return QDir::toNativeSeparators(value.toString());
    const auto known = ColumnFriendlyName::getColumnFriendlyNames().constFind(column);
    if (known == ColumnFriendlyName::getColumnFriendlyNames().constEnd() || !value.isValid())
        return rules::toText(value);
    return known->valueToString(value);
}

/// All of it, where the cell shows a part.
QString toolTip(const QString &column, const QVariant &value)
{
    if (column == kSize && value.isValid())
        return SampleTableModel::tr("%1 bytes").arg(QLocale().toString(value.toLongLong()));
    return column == kPath ? shownText(column, value) : rules::toText(value);
}

} // namespace

SampleTableModel::SampleTableModel(SampleEditor &editor, QObject *parent)
    : QAbstractTableModel(parent)
    , m_editor(editor)
{
    const SampleTable *samples = &table();
    connect(samples, &SampleTable::aboutToInsert, this, [this](int row) { beginInsertRows({}, row, row); });
    connect(samples, &SampleTable::inserted, this, [this] { endInsertRows(); });
    connect(samples, &SampleTable::aboutToRemove, this, [this](int row) { beginRemoveRows({}, row, row); });
    connect(samples, &SampleTable::removed, this, [this] { endRemoveRows(); });
    connect(samples, &SampleTable::aboutToReset, this, [this] { beginResetModel(); });
    connect(samples, &SampleTable::wasReset, this, [this] { endResetModel(); });
    connect(samples, &SampleTable::changed, this, [this](int row, const QString &column) {
        const QModelIndex cell = index(row, static_cast<int>(SampleTable::columns().indexOf(column)));
        Q_EMIT dataChanged(cell, cell);
    });
}

int SampleTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : table().rowCount();
}

int SampleTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(SampleTable::columns().size());
}

QVariant SampleTableModel::data(const QModelIndex &index, int role) const
{
    const RowNode *row = table().row(index.row());
    if (!row)
        return {};
    const QVariant value = row->getDataAt(columnAt(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return shownText(columnAt(index.column()), value);
    case Qt::EditRole:
        return rules::toText(value);
    case Qt::ToolTipRole:
        return toolTip(columnAt(index.column()), value);
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    default:
        return {};
    }
}

bool SampleTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    // A cell that is left as it was is not an edit.
    if (role != Qt::EditRole || value.toString() == data(index, Qt::EditRole).toString())
        return false;
    return !m_editor.setCell(idAt(index.row()), columnAt(index.column()), value.toString()).hasError();
}

QVariant SampleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(section);
    if (role == Qt::DisplayRole)
        return headingText(columnAt(section));
    if (role != Qt::ToolTipRole)
        return {};
    const Heading *heading = headingOf(columnAt(section));
    return heading ? translated(heading->toolTip) : ColumnFriendlyName::toolTip(columnAt(section));
}

QString SampleTableModel::headingText(const QString &column)
{
    const Heading *heading = headingOf(column);
    return heading ? translated(heading->text) : ColumnFriendlyName::friendlyName(column);
}

Qt::ItemFlags SampleTableModel::flags(const QModelIndex &index) const
{
    const bool isEditable =
        index.isValid() && SampleTable::annotationColumns().contains(columnAt(index.column()));
    return QAbstractTableModel::flags(index) | (isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

qint64 SampleTableModel::idAt(int row) const
{
    const RowNode *node = table().row(row);
    return node ? SampleTable::idOf(*node) : 0;
}

const SampleTable &SampleTableModel::table() const
{
    return m_editor.table();
}

} // namespace workbench

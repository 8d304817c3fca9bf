#include "data/DataSamples.h"

#include "data/DataColumns.h"
#include "samples/SampleTable.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/CsvWriter.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::msreader::MsSample;

namespace workbench {

namespace {

/// Without the extension, which the format says already.
QString nameFor(const QString &path)
{
    const QString fileName = QFileInfo(path).fileName();
    const auto twofold = ".data.cut"_L1;
    const QString base = fileName.endsWith(twofold, Qt::CaseInsensitive) ? fileName.chopped(twofold.size())
                                                                         : QFileInfo(path).completeBaseName();
    // A file may be called ".mgf", but a sample needs a name.
    return base.trimmed().isEmpty() ? fileName.trimmed() : base.trimmed();
}

/// Gives out names that nobody has.
class Names
{
public:
    explicit Names(const SampleTable &table)
        : m_table(table)
    {}

    QString take(const QString &wanted)
    {
        QString name = wanted;
        // Going on from the last number keeps a thousand files of one name quick.
        int &number = m_numbers[wanted];
        while (m_taken.contains(name) || m_table.hasName(name)) {
            number = qMax(number, 1) + 1;
            name = u"%1 (%2)"_s.arg(wanted).arg(number);
        }
        m_taken.insert(name);
        return name;
    }

private:
    const SampleTable &m_table;
    QSet<QString> m_taken;
    QHash<QString, int> m_numbers;
};

QSet<QString> pathsIn(const SampleTable &table)
{
    QSet<QString> paths;
    for (int index = 0; index < table.rowCount(); ++index)
        paths.insert(table.row(index)->getDataAt(kPath).toString());
    return paths;
}

QString sizeText(qint64 size)
{
    return size < 0 ? QString() : QString::number(size);
}

} // namespace

QString kindText(ozm::EntryKind kind)
{
    switch (kind) {
    case ozm::EntryKind::File:
        return kFileKind;
    case ozm::EntryKind::Folder:
        return kFolderKind;
    case ozm::EntryKind::Missing:
    case ozm::EntryKind::Other:
        break;
    }
    return {};
}

QList<QMap<QString, QString>> samplesOf(const QList<MsSample> &found, const SampleTable &table)
{
    QList<QMap<QString, QString>> samples;
    QSet<QString> known = pathsIn(table);
    Names names(table);
    for (const MsSample &info : found) {
        if (known.contains(info.path))
            continue;
        known.insert(info.path);
        samples.append({{kName, names.take(nameFor(info.path))},
                        {kFormat, info.formatName},
                        {kDescription, info.description},
                        {kKind, kindText(info.kind)},
                        {kSize, sizeText(info.size)},
                        {kPath, info.path}});
    }
    return samples;
}

QList<MsSample> sortedBelow(const QString &folder, QList<MsSample> found)
{
    const QDir root(folder);
    std::ranges::stable_sort(found, {},
                             [&root](const MsSample &info) { return root.relativeFilePath(info.path); });
    return found;
}

Error writeFormats(const QList<MsSample> &found, const QString &folder, const QString &path)
{
    QList<QList<QString>> lines{{kPath, kFormat, kDescription, kKind, kSize}};
    for (const MsSample &info : sortedBelow(folder, found)) {
        lines.append({QDir(folder).relativeFilePath(info.path), info.formatName, info.description,
                      kindText(info.kind), sizeText(info.size)});
    }
    if (ozm::CsvWriter::writeFile(path, lines))
        return {};
    return Error(ErrorCode::FileAccess,
                 QCoreApplication::translate("DataSamples", "\"%1\" cannot be written.")
                     .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace workbench

#include "samples/SampleFile.h"

#include "samples/CsvReader.h"
#include "samples/SampleRules.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/CsvWriter.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench::samplefile {

namespace {

using Samples = std::vector<RowNode>;

QString tr(const char *text)
{
    return QCoreApplication::translate("workbench::samplefile", text);
}

Error bad(const QString &text)
{
    return Error(ErrorCode::BadParameter, text).ecatch(OZM_HERE);
}

Error atLine(int line, const QString &text)
{
    return bad(tr("Line %1: %2").arg(line).arg(text));
}

/// The table's column that a heading means; empty when it means none.
QString columnOf(const QString &heading)
{
    for (const QString &column : SampleTable::columns())
        if (column.compare(heading.trimmed(), Qt::CaseInsensitive) == 0)
            return column;
    return {};
}

ozm::Result<QStringList> readHeader(const CsvRow &header)
{
    QStringList columns;
    for (const QString &heading : header.cells) {
        const QString column = columnOf(heading);
        if (column.isEmpty()) {
            return atLine(header.line, tr("The column \"%1\" is not known; known are %2.")
                                           .arg(heading, SampleTable::columns().join(", "_L1)));
        }
        if (columns.contains(column))
            return atLine(header.line, tr("The column \"%1\" is there twice.").arg(heading));
        columns.append(column);
    }
    for (const QString &needed : {kName, kMass})
        if (!columns.contains(needed))
            return atLine(header.line, tr("The column \"%1\" is missing.").arg(needed));
    return columns;
}

ozm::Result<RowNode> readSample(const CsvRow &line, const QStringList &columns)
{
    if (line.cells.size() != columns.size()) {
        return atLine(line.line,
                      tr("There are %1 cells, but %2 columns.").arg(line.cells.size()).arg(columns.size()));
    }
    RowNode row = SampleTable::emptyRow();
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const auto value = rules::parse(columns.at(i), line.cells.at(i));
        if (!value)
            return atLine(line.line, value.error().errorMessage());
        row.setDataAt(columns.at(i), value.value());
    }
    if (const Error error = rules::checkRow(row); error.hasError())
        return atLine(line.line, error.errorMessage());
    return row;
}

ozm::Result<Samples> readSamples(const QList<CsvRow> &lines, const QStringList &columns)
{
    Samples samples;
    QHash<QString, int> lineOfName;
    for (const CsvRow &line : lines.sliced(1)) {
        const auto sample = readSample(line, columns);
        if (!sample)
            return sample.error();
        const QString name = sample.value().getDataAt(kName).toString();
        if (lineOfName.contains(name)) {
            return atLine(
                line.line,
                tr("The name \"%1\" is there already, on line %2.").arg(name).arg(lineOfName.value(name)));
        }
        lineOfName.insert(name, line.line);
        samples.push_back(sample.value());
    }
    return samples;
}

ozm::Result<Samples> parse(const QByteArray &bytes)
{
    const auto lines = readCsv(bytes);
    if (!lines)
        return lines.error();
    if (lines.value().isEmpty())
        return atLine(1, tr("The file is empty; it needs a line of column names."));
    const auto columns = readHeader(lines.value().constFirst());
    if (!columns)
        return columns.error();
    return readSamples(lines.value(), columns.value());
}

} // namespace

ozm::Result<Samples> read(const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const QFileInfo info(path);
    QFile file(path);
    QString reason;
    // A pipe that nobody writes to would never end.
    if (info.exists() && !info.isFile())
        reason = info.isDir() ? tr("it is a folder") : tr("it is not a file");
    else if (!file.open(QIODevice::ReadOnly))
        reason = file.errorString();
    if (!reason.isEmpty())
        return Error(ErrorCode::FileAccess, tr("\"%1\" cannot be read: %2.").arg(shown, reason))
            .ecatch(OZM_HERE);
    auto samples = parse(file.readAll());
    if (!samples)
        return bad(tr("\"%1\" holds no table of samples. %2").arg(shown, samples.error().errorMessage()));
    return samples;
}

Error write(const SampleTable &table, const QString &path)
{
    const QStringList &columns =
        table.dataCount() > 0 ? SampleTable::columns() : SampleTable::annotationColumns();
    QList<QList<QString>> lines{columns};
    for (int index = 0; index < table.rowCount(); ++index) {
        QStringList line;
        for (const QString &column : columns)
            line.append(rules::toText(table.row(index)->getDataAt(column)));
        lines.append(line);
    }
    if (ozm::CsvWriter::writeFile(path, lines))
        return {};
    return Error(ErrorCode::FileAccess, tr("\"%1\" cannot be written. Check that its folder exists, that you "
                                           "may write there and that the disk is not full.")
                                            .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace workbench::samplefile

#include <ozm_common_core_mini/CsvWriter.h>

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace {

// The bytes that are gathered before they go to the disk: large enough to make the writes few, small enough to stay
// in the processor's cache.
constexpr qsizetype kChunk = qsizetype{256} * 1024;

bool needsQualifier(const QString &cell, QChar qualifier, QChar separator)
{
    if (cell.isEmpty())
        return false;
    const auto special = [=](QChar c) {
        return c == separator || c == qualifier || c == u'\n' || c == u'\r';
    };
    return cell.front().isSpace() || cell.back().isSpace() || std::ranges::any_of(cell, special);
}

void appendCell(QString &line, const QString &cell, QChar qualifier, QChar separator)
{
    if (!needsQualifier(cell, qualifier, separator)) {
        line += cell;
        return;
    }
    line += qualifier;
    for (const QChar c : cell) {
        if (c == qualifier)
            line += qualifier;
        line += c;
    }
    line += qualifier;
}

void appendRow(QString &line, const QList<QString> &row, QChar qualifier, QChar separator)
{
    for (qsizetype i = 0; i < row.size(); ++i) {
        if (i > 0)
            line += separator;
        appendCell(line, row.at(i), qualifier, separator);
    }
    line += u"\r\n";
}

bool flush(QSaveFile &file, QString &text)
{
    const QByteArray bytes = text.toUtf8();
    text.clear();
    return file.write(bytes) == bytes.size();
}

} // namespace

namespace ozm {

bool CsvWriter::writeFile(const QString &path, const QList<QList<QString>> &rows, const QString &text,
                          const QChar &separator)
{
    // A device or a pipe would be replaced by a file of its name.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return false;

    const QChar qualifier = text.isEmpty() ? QChar(u'"') : text.front();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;

    // Without the mark, common spreadsheets take the file for the system's own 8-bit text.
    QString pending = QChar(QChar::ByteOrderMark);
    for (const QList<QString> &row : rows) {
        appendRow(pending, row, qualifier, separator);
        if (pending.size() >= kChunk && !flush(file, pending))
            return false;
    }
    return flush(file, pending) && file.commit();
}

} // namespace ozm

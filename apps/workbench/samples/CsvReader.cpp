#include "samples/CsvReader.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <utility>

using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

constexpr QChar kQuote = u'"';
constexpr QChar kSeparator = u',';

Error lineError(int line, const char *text)
{
    return Error(ErrorCode::BadParameter, QCoreApplication::translate("CsvReader", "Line %1: %2")
                                              .arg(line)
                                              .arg(QCoreApplication::translate("CsvReader", text)))
        .ecatch(OZM_HERE);
}

/// Takes the text apart, a cell at a time.
class Scanner
{
public:
    explicit Scanner(const QString &text)
        : m_text(text)
    {}

    [[nodiscard]] bool atEnd() const { return m_position >= m_text.size(); }

    Error readRow(CsvRow &row)
    {
        row.line = m_line;
        do {
            QString cell;
            if (Error error = readCell(cell); error.hasError())
                return error;
            row.cells.append(cell);
        } while (take(kSeparator));
        takeLineEnd();
        return {};
    }

private:
    [[nodiscard]] QChar current() const { return atEnd() ? QChar() : m_text.at(m_position); }
    [[nodiscard]] bool atLineEnd() const { return current() == u'\n' || current() == u'\r'; }

    bool take(QChar c)
    {
        if (atEnd() || current() != c)
            return false;
        ++m_position;
        return true;
    }

    bool takeLineEnd()
    {
        const bool carriageReturn = take(u'\r');
        if (!take(u'\n') && !carriageReturn)
            return false;
        ++m_line;
        return true;
    }

    Error readCell(QString &cell)
    {
        if (take(kQuote))
            return readQuoted(cell);
        while (!atEnd() && !atLineEnd() && current() != kSeparator)
            cell += m_text.at(m_position++);
        return {};
    }

    Error readQuoted(QString &cell)
    {
        const int begin = m_line;
        while (!atEnd()) {
            if (!take(kQuote)) {
                takeInto(cell);
                continue;
            }
            if (!take(kQuote))
                return checkCellEnd();
            cell += kQuote;
        }
        return lineError(begin,
                         QT_TRANSLATE_NOOP("CsvReader", "the quote that begins here is never closed."));
    }

    /// One character, or one line break of any kind, which is kept as a line feed.
    void takeInto(QString &cell)
    {
        if (takeLineEnd())
            cell += u'\n';
        else
            cell += m_text.at(m_position++);
    }

    [[nodiscard]] Error checkCellEnd() const
    {
        if (atEnd() || atLineEnd() || current() == kSeparator)
            return {};
        return lineError(m_line, QT_TRANSLATE_NOOP("CsvReader", "there is text after a closing quote."));
    }

    const QString &m_text;
    qsizetype m_position = 0;
    int m_line = 1;
};

int lineOf(const QByteArray &bytes, qsizetype position)
{
    return 1 + static_cast<int>(bytes.left(position).count('\n'));
}

/// The line on which the bytes stop being UTF-8.
int firstBadLine(const QByteArray &bytes)
{
    qsizetype end = 0;
    while (end < bytes.size()) {
        const qsizetype lineEnd = bytes.indexOf('\n', end);
        const qsizetype next = lineEnd < 0 ? bytes.size() : lineEnd + 1;
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString line = decoder(bytes.sliced(end, next - end));
        if (decoder.hasError())
            break;
        end = next;
    }
    return lineOf(bytes, end);
}

} // namespace

ozm::Result<QList<CsvRow>> readCsv(const QByteArray &bytes)
{
    // The decoder takes the byte-order mark away.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return lineError(firstBadLine(bytes), QT_TRANSLATE_NOOP("CsvReader", "the text is not UTF-8."));

    QList<CsvRow> rows;
    Scanner scanner(text);
    while (!scanner.atEnd()) {
        CsvRow row;
        if (Error error = scanner.readRow(row); error.hasError())
            return error;
        if (row.cells.size() > 1 || !row.cells.constFirst().isEmpty())
            rows.append(row);
    }
    return rows;
}

} // namespace workbench

#include "Difference.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>
#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// A table of common parts takes the product of both lengths; beyond this only beginning and end are compared.
constexpr qsizetype kMostCells = 4'000'000;

QString itemText(const QVariant &value)
{
    const QJsonValue json = QJsonValue::fromVariant(value);
    if (json.isObject() || json.isArray()) {
        return QString::fromUtf8(
            (json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject()))
                .toJson(QJsonDocument::Compact));
    }
    return value.toString();
}

/// The pieces that are compared as wholes, and make up the text when they are joined.
QStringList piecesOf(const QVariant &value)
{
    QStringList pieces;
    if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant &item : value.toList())
            pieces.append(itemText(item) + u'\n');
        return pieces;
    }
    static const QRegularExpression kPiece(u"\\w+|\\s|[^\\w\\s]"_s,
                                           QRegularExpression::UseUnicodePropertiesOption);
    auto match = kPiece.globalMatch(itemText(value));
    while (match.hasNext())
        pieces.append(match.next().captured());
    return pieces;
}

QString escaped(const QString &text)
{
    QString html = text.toHtmlEscaped();
    return html.replace(u'\n', u"<br/>"_s);
}

QString marked(const QString &text, bool old)
{
    // Dark text on light in either scheme: the colours do not follow a palette.
    return u"<span style=\"color:#000000; background-color:%1; text-decoration:%2;\">%3</span>"_s.arg(
        old ? u"#f6c7c0"_s : u"#bfe8c8"_s, old ? u"line-through"_s : u"underline"_s, escaped(text));
}

/// Joins the pieces of one side, those that differ marked as one stretch each.
class Side
{
public:
    explicit Side(bool old)
        : m_old(old)
    {}

    void add(const QString &piece, bool differs)
    {
        if (differs != m_differs)
            flush();
        m_differs = differs;
        m_stretch += piece;
    }

    [[nodiscard]] QString take()
    {
        flush();
        return m_html;
    }

private:
    void flush()
    {
        if (!m_stretch.isEmpty())
            m_html += m_differs ? marked(m_stretch, m_old) : escaped(m_stretch);
        m_stretch.clear();
    }

    const bool m_old;
    bool m_differs = false;
    QString m_stretch;
    QString m_html;
};

/// Compares what lies between the common beginning and end.
void addMiddle(const QStringList &a, const QStringList &b, Side &oldSide, Side &newSide)
{
    const qsizetype rows = a.size();
    const qsizetype columns = b.size();
    const bool compare = rows * columns <= kMostCells;
    // Lengths of the longest common part of the rest of both.
    std::vector<int> longest(std::size_t(compare ? (rows + 1) * (columns + 1) : 0));
    const auto at = [columns](qsizetype i, qsizetype j) { return std::size_t(i * (columns + 1) + j); };
    for (qsizetype i = rows - 1; compare && i >= 0; --i) {
        for (qsizetype j = columns - 1; j >= 0; --j) {
            longest[at(i, j)] = a.at(i) == b.at(j) ? longest[at(i + 1, j + 1)] + 1
                                                   : qMax(longest[at(i + 1, j)], longest[at(i, j + 1)]);
        }
    }
    qsizetype i = 0;
    qsizetype j = 0;
    while (compare && i < rows && j < columns) {
        if (a.at(i) == b.at(j)) {
            oldSide.add(a.at(i++), false);
            newSide.add(b.at(j++), false);
        } else if (longest[at(i + 1, j)] >= longest[at(i, j + 1)]) {
            oldSide.add(a.at(i++), true);
        } else {
            newSide.add(b.at(j++), true);
        }
    }
    while (i < rows)
        oldSide.add(a.at(i++), true);
    while (j < columns)
        newSide.add(b.at(j++), true);
}

} // namespace

Difference Difference::between(const QVariant &oldValue, const QVariant &newValue)
{
    const QStringList a = piecesOf(oldValue);
    const QStringList b = piecesOf(newValue);
    Side oldSide(true);
    Side newSide(false);
    const qsizetype shorter = qMin(a.size(), b.size());
    qsizetype begin = 0;
    for (; begin < shorter && a.at(begin) == b.at(begin); ++begin) {
        oldSide.add(a.at(begin), false);
        newSide.add(b.at(begin), false);
    }
    qsizetype end = 0;
    while (end < shorter - begin && a.at(a.size() - 1 - end) == b.at(b.size() - 1 - end))
        ++end;
    addMiddle(a.mid(begin, a.size() - begin - end), b.mid(begin, b.size() - begin - end), oldSide, newSide);
    for (qsizetype i = a.size() - end; i < a.size(); ++i)
        oldSide.add(a.at(i), false);
    for (qsizetype i = b.size() - end; i < b.size(); ++i)
        newSide.add(b.at(i), false);
    return {oldSide.take(), newSide.take()};
}

} // namespace ozm::audit

#include "templates/paper/PdfUpdate.h"

#include <QIODevice>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::paper {

namespace {

// Room for the last lines of a file, the place of its table of objects among them.
constexpr qint64 kTail = 2048;
constexpr qsizetype kTableRow = 20;

/// A text as PDF has it in any language.
QByteArray pdfText(const QString &text)
{
    QByteArray hex = "<FEFF";
    for (const QChar c : text)
        hex += QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
    return hex + '>';
}

/// The objects of a PDF with one table of objects, as it is found at the end of the file.
class PdfObjects
{
public:
    explicit PdfObjects(QIODevice &pdf)
        : m_pdf(pdf)
    {
        m_pdf.seek(std::max<qint64>(0, m_pdf.size() - kTail));
        const QByteArray tail = m_pdf.readAll();
        const qsizetype start = tail.lastIndexOf("startxref");
        tableStart = start < 0 ? -1 : tail.sliced(start).split('\n').value(1).trimmed().toLongLong();
        if (tableStart <= 0 || !m_pdf.seek(tableStart) || m_pdf.readLine().trimmed() != "xref")
            return;
        const QList<QByteArray> range = m_pdf.readLine().trimmed().split(' ');
        const qint64 count = range.value(1).toLongLong();
        if (range.value(0) != "0" || count <= 0 || count > m_pdf.size() / kTableRow)
            return;
        m_table = m_pdf.read(count * kTableRow);
        trailer = m_pdf.readAll();
    }

    [[nodiscard]] int count() const { return int(m_table.size() / kTableRow); }

    /// The lines of an object; empty where there is none.
    [[nodiscard]] QByteArray object(int number) const
    {
        bool ok = number > 0 && number < count();
        const qint64 place = ok ? m_table.mid(number * kTableRow, 10).toLongLong(&ok) : 0;
        if (!ok || !m_pdf.seek(place) || !m_pdf.readLine().startsWith(QByteArray::number(number) + " 0 obj"))
            return {};
        QByteArray text;
        while (!m_pdf.atEnd()) {
            const QByteArray line = m_pdf.readLine();
            if (line.startsWith("endobj"))
                return text;
            text += line;
        }
        return {};
    }

    /// An object that is a dictionary, or nothing.
    [[nodiscard]] QByteArray dictionary(int number) const
    {
        const QByteArray text = object(number);
        return text.contains(">>") ? text : QByteArray();
    }

    qint64 tableStart = -1;
    QByteArray trailer;

private:
    QIODevice &m_pdf;
    QByteArray m_table;
};

/// The number of the object that @p key refers to; 0 where it refers to none.
int reference(const QByteArray &dictionary, const QString &key)
{
    const QRegularExpression pattern(u'/' + key + u"\\s+(\\d+)\\s+0\\s+R"_s);
    return pattern.match(QString::fromLatin1(dictionary)).captured(1).toInt();
}

QList<int> sheetsIn(const QByteArray &pages)
{
    static const QRegularExpression list(u"/Kids\\s*\\[([^\\]]*)\\]"_s);
    static const QRegularExpression each(u"(\\d+)\\s+0\\s+R"_s);
    QList<int> sheets;
    const QString numbers = list.match(QString::fromLatin1(pages)).captured(1);
    for (auto found = each.globalMatch(numbers); found.hasNext();)
        sheets.append(found.next().captured(1).toInt());
    return sheets;
}

/// The entries of one bookmark among the others. Each is an index of a bookmark, or -1.
struct Links
{
    qsizetype parent = -1;
    qsizetype previous = -1;
    qsizetype next = -1;
    qsizetype first = -1;
    qsizetype last = -1;
    int children = 0;
};

/// The links of @p bookmarks, and behind them those of the root of all.
QList<Links> linksOf(const QList<Bookmark> &bookmarks)
{
    const qsizetype root = bookmarks.size();
    QList<Links> links(root + 1);
    QList<qsizetype> around;
    for (qsizetype index = 0; index < root; ++index) {
        while (!around.isEmpty() && bookmarks.at(around.constLast()).depth >= bookmarks.at(index).depth)
            around.removeLast();
        const qsizetype parent = around.isEmpty() ? root : around.constLast();
        links[index].parent = parent;
        links[index].previous = links.at(parent).last;
        if (links.at(parent).last >= 0)
            links[links.at(parent).last].next = index;
        else
            links[parent].first = index;
        links[parent].last = index;
        ++links[parent].children;
        around.append(index);
    }
    return links;
}

QByteArray withEntries(const QByteArray &dictionary, const QByteArray &entries)
{
    QByteArray result = dictionary;
    return result.insert(result.lastIndexOf(">>"), entries);
}

QByteArray destination(const Bookmark &place, const QList<int> &sheets)
{
    return "/Dest [" + QByteArray::number(sheets.at(place.sheet)) + " 0 R /XYZ null " +
           QByteArray::number(place.sheetHeight - place.distance, 'f', 2) + " null]\n";
}

/// Objects to be written, by their numbers.
using NewObjects = QMap<int, QByteArray>;

void addBookmarks(const QList<Bookmark> &bookmarks, const QList<int> &sheets, int firstNumber,
                  NewObjects &objects)
{
    const QList<Links> links = linksOf(bookmarks);
    const auto number = [firstNumber](qsizetype index) { return firstNumber + int(index); };
    for (qsizetype index = 0; index < links.size(); ++index) {
        const Links &own = links.at(index);
        QByteArray text = "<<\n";
        const auto addLink = [&](const char *name, qsizetype to) {
            if (to >= 0)
                text += '/' + QByteArray(name) + ' ' + QByteArray::number(number(to)) + " 0 R\n";
        };
        addLink("Parent", own.parent);
        addLink("Prev", own.previous);
        addLink("Next", own.next);
        addLink("First", own.first);
        addLink("Last", own.last);
        const bool isRoot = index == bookmarks.size();
        // Below zero, those under it are shown only when they are asked for.
        if (own.children > 0)
            text += "/Count " + QByteArray::number(isRoot ? own.children : -own.children) + '\n';
        if (!isRoot) {
            const Bookmark &bookmark = bookmarks.at(index);
            text += "/Title " + pdfText(bookmark.text) + '\n' + destination(bookmark, sheets);
        }
        objects.insert(number(index), text + ">>\n");
    }
}

QByteArray linkText(const PdfLink &link, const QList<int> &sheets)
{
    QByteArray area;
    const double height = link.to.sheetHeight;
    for (const double edge :
         {link.area.left(), height - link.area.bottom(), link.area.right(), height - link.area.top()})
        area += QByteArray::number(edge, 'f', 2) + ' ';
    // The flag lets it be printed, as archives of documents demand.
    return "<<\n/Type /Annot\n/Subtype /Link\n/F 4\n/Border [0 0 0]\n/Rect [" + area + "]\n/Contents " +
           pdfText(link.to.text) + '\n' + destination(link.to, sheets) + ">>\n";
}

/// False where a sheet has no list that they could come into.
bool addLinks(const QList<PdfLink> &links, const QList<int> &sheets, const PdfObjects &present,
              int firstNumber, NewObjects &objects)
{
    for (qsizetype index = 0; index < links.size(); ++index) {
        const PdfLink &link = links.at(index);
        const int number = firstNumber + int(index);
        const int list = reference(present.dictionary(sheets.at(link.sheet)), u"Annots"_s);
        QByteArray text = objects.value(list, present.object(list));
        const qsizetype end = text.lastIndexOf(']');
        if (end < 0)
            return false;
        objects.insert(list, text.insert(end, ' ' + QByteArray::number(number) + " 0 R"));
        objects.insert(number, linkText(link, sheets));
    }
    return true;
}

QByteArray remarksText(const PdfRemarks &remarks)
{
    QByteArray text;
    const auto add = [&text](const char *name, const QString &value) {
        if (!value.isEmpty())
            text += '/' + QByteArray(name) + ' ' + pdfText(value) + '\n';
    };
    add("Author", remarks.author);
    add("Subject", remarks.subject);
    add("Keywords", remarks.keywords.join(", "_L1));
    return text;
}

/// The objects and their table, as they stand behind the bytes that end at @p start.
QByteArray written(const NewObjects &objects, qint64 start, const QByteArray &trailer)
{
    QByteArray text = "\n";
    QByteArray table = "xref\n";
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        table += QByteArray::number(object.key()) + " 1\n" +
                 QByteArray::number(start + text.size()).rightJustified(10, '0') + " 00000 n \n";
        text += QByteArray::number(object.key()) + " 0 obj\n" + object.value() + "endobj\n";
    }
    const qint64 tableStart = start + text.size();
    return text + table + trailer + "startxref\n" + QByteArray::number(tableStart) + "\n%%EOF\n";
}

} // namespace

std::optional<QByteArray> pdfUpdate(QIODevice &pdf, const QList<Bookmark> &bookmarks,
                                    const QList<PdfLink> &links, const PdfRemarks &remarks)
{
    const PdfObjects present(pdf);
    const int root = reference(present.trailer, u"Root"_s);
    const int info = reference(present.trailer, u"Info"_s);
    const QByteArray catalog = present.dictionary(root);
    const QByteArray about = present.dictionary(info);
    const QList<int> sheets = sheetsIn(present.dictionary(reference(catalog, u"Pages"_s)));
    const auto isSheet = [&sheets](int sheet) { return sheet >= 0 && sheet < sheets.size(); };
    const bool isKnown = !catalog.isEmpty() && !about.isEmpty() && !catalog.contains("/Outlines") &&
                         std::ranges::all_of(bookmarks, isSheet, &Bookmark::sheet) &&
                         std::ranges::all_of(links, [&isSheet](const PdfLink &link) {
                             return isSheet(link.sheet) && isSheet(link.to.sheet);
                         });
    const qsizetype end = present.trailer.lastIndexOf(">>");
    const qsizetype begin = present.trailer.indexOf("<<");
    if (!isKnown || begin < 0 || end < begin)
        return std::nullopt;

    NewObjects objects;
    int size = present.count();
    objects.insert(info, withEntries(about, remarksText(remarks)));
    if (!bookmarks.isEmpty()) {
        addBookmarks(bookmarks, sheets, size, objects);
        size += int(bookmarks.size()) + 1;
        objects.insert(root, withEntries(catalog, "/PageMode /UseOutlines\n/Outlines " +
                                                      QByteArray::number(size - 1) + " 0 R\n"));
    }
    if (!addLinks(links, sheets, present, size, objects))
        return std::nullopt;
    size += int(links.size());
    static const QRegularExpression count(u"/Size\\s+\\d+"_s);
    const QString kept = QString::fromLatin1(present.trailer.sliced(begin, end - begin))
                             .replace(count, u"/Size %1"_s.arg(size));
    return written(objects, pdf.size(),
                   "trailer\n" + kept.toLatin1() + "/Prev " + QByteArray::number(present.tableStart) +
                       "\n>>\n");
}

} // namespace ozm::paper

#include "templates/syntax/Codes.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::syntax {

namespace {

qsizetype findCodeEnd(QStringView text, qsizetype from)
{
    while (from < text.size() && text[from] != u']' && text[from] != u'\n')
        ++from;
    return from;
}

/// From @p from on; its end is 0 where there is none.
CodeRange nextCode(QStringView text, qsizetype from)
{
    for (qsizetype open = text.indexOf(u'[', from); open >= 0;) {
        qsizetype at = open + 1;
        while (at < text.size() && text[at] != u'[' && text[at] != u']' && text[at] != u'\r' &&
               text[at] != u'\n')
            ++at;
        if (at == text.size())
            break;
        if (text[at] == u']' && at > open + 1)
            return {open, at + 1};
        open = text.indexOf(u'[', at);
    }
    return {0, 0};
}

class Marker
{
public:
    explicit Marker(QStringView text)
        : m_text(text)
    {}

    MarkedText all()
    {
        for (qsizetype at = nextBracket(0); at >= 0; at = nextBracket(at + 1))
            take(at);
        if (m_open >= 0)
            m_result.marks.append({m_open, Mark::Opening});
        return std::move(m_result);
    }

private:
    [[nodiscard]] qsizetype nextBracket(qsizetype from)
    {
        // Both searches are quick only when each place is looked at once.
        if (m_nextOpening >= 0 && m_nextOpening < from)
            m_nextOpening = m_text.indexOf(u'[', from);
        if (m_nextClosing >= 0 && m_nextClosing < from)
            m_nextClosing = m_text.indexOf(u']', from);
        if (m_nextOpening < 0 || m_nextClosing < 0)
            return std::max(m_nextOpening, m_nextClosing);
        return std::min(m_nextOpening, m_nextClosing);
    }

    void take(qsizetype at)
    {
        if (m_text[at] == u'[') {
            if (m_open >= 0)
                m_result.marks.append({m_open, Mark::Opening});
            m_open = at;
        } else if (m_open < 0) {
            m_result.marks.append({at, Mark::Closing});
        } else {
            m_result.marks.append({m_open, nameIndex(m_text.sliced(m_open, at + 1 - m_open))});
            m_open = -1;
        }
    }

    [[nodiscard]] int nameIndex(QStringView name)
    {
        const auto known = m_indexes.constFind(name);
        if (known != m_indexes.constEnd())
            return *known;
        const int index = static_cast<int>(m_result.names.size());
        m_result.names.append(name.toString());
        m_indexes.insert(name, index);
        return index;
    }

    const QStringView m_text;
    qsizetype m_nextOpening = m_text.indexOf(u'[');
    qsizetype m_nextClosing = m_text.indexOf(u']');
    qsizetype m_open = -1;
    QHash<QStringView, int> m_indexes;
    MarkedText m_result;
};

} // namespace

QList<CodeRange> codeRanges(QStringView text)
{
    QList<CodeRange> codes;
    for (CodeRange code = nextCode(text, 0); code.end > 0; code = nextCode(text, code.end))
        codes.append(code);
    return codes;
}

bool hasCode(QStringView text)
{
    return nextCode(text, 0).end > 0;
}

bool isCode(QStringView text)
{
    const CodeRange code = nextCode(text, 0);
    return code.start == 0 && code.end > 0 && code.end == text.size();
}

QList<QString> codesIn(const QString &text, bool withBrackets)
{
    // The matches of \[(.*?)\], found without starting anew at each of many brackets left open.
    QList<QString> codes;
    for (qsizetype open = text.indexOf(u'['); open >= 0;) {
        const qsizetype end = findCodeEnd(text, open + 1);
        if (end == text.size())
            break;
        if (text.at(end) == u']') {
            const QStringView inner = QStringView(text).sliced(open + 1, end - open - 1);
            if (withBrackets)
                codes.append(text.sliced(open, end - open + 1));
            else
                codes.append(inner.sliced(inner.lastIndexOf(u'[') + 1).toString());
        }
        open = text.indexOf(u'[', end + 1);
    }
    return codes;
}

MarkedText marked(QStringView text)
{
    return Marker(text).all();
}

} // namespace ozm::syntax

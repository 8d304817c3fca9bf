#include "JsonCursor.h"

#include <QString>

#include <charconv>
#include <cstring>

namespace ozm::audit {

namespace {

void appendUtf8(QByteArray &text, char32_t code)
{
    text.append(QString::fromUcs4(&code, 1).toUtf8());
}

bool isPlainEnd(char c)
{
    return c == ',' || c == '}' || c == ']';
}

} // namespace

JsonCursor::JsonCursor(QByteArrayView bytes)
    : m_at(bytes.data())
    , m_end(bytes.data() + bytes.size())
{}

bool JsonCursor::fail()
{
    m_good = false;
    return false;
}

bool JsonCursor::take(char c)
{
    if (!m_good || m_at == m_end || *m_at != c)
        return fail();
    ++m_at;
    return true;
}

bool JsonCursor::begin(char open, char close)
{
    if (!take(open) || m_at == m_end)
        return fail();
    if (*m_at != close)
        return true;
    ++m_at;
    return false;
}

bool JsonCursor::more(char close)
{
    if (!m_good || m_at == m_end)
        return fail();
    if (*m_at == ',') {
        ++m_at;
        return true;
    }
    take(close) || fail();
    return false;
}

bool JsonCursor::beginObject()
{
    return begin('{', '}');
}

bool JsonCursor::beginArray()
{
    return begin('[', ']');
}

void JsonCursor::key(QByteArray &key)
{
    string(key);
    if (!take(':'))
        fail();
}

bool JsonCursor::endMember()
{
    return more('}');
}

bool JsonCursor::endItem()
{
    return more(']');
}

void JsonCursor::string(QByteArray &text)
{
    const char *begin = m_at + 1;
    skipString();
    if (!m_good) {
        text.clear();
        return;
    }
    const char *end = m_at - 1;
    if (std::memchr(begin, '\\', std::size_t(end - begin)))
        unescape(begin, end, text);
    else
        text = QByteArray::fromRawData(begin, end - begin);
}

void JsonCursor::skipString()
{
    if (!take('"'))
        return;
    while (m_at < m_end && *m_at != '"')
        m_at += *m_at == '\\' ? 2 : 1;
    if (m_at >= m_end) {
        m_at = m_end;
        fail();
        return;
    }
    ++m_at;
}

int JsonCursor::hex4(const char *at, const char *end)
{
    int code = 0;
    const char *last = at + 4;
    if (last > end || std::from_chars(at, last, code, 16).ptr != last)
        fail();
    return code;
}

void JsonCursor::unescape(const char *begin, const char *end, QByteArray &text)
{
    static constexpr char kEscapes[] = "\"\"\\\\//b\bf\fn\nr\rt\t";
    text = QByteArray();
    text.reserve(end - begin);
    for (const char *at = begin; at < end && m_good; ++at) {
        if (*at != '\\') {
            text.append(*at);
            continue;
        }
        ++at;
        if (*at == 'u') {
            char32_t code = char32_t(hex4(at + 1, end));
            at += 4;
            if (code >= 0xD800 && code < 0xDC00 && at + 6 < end + 1 && at[1] == '\\' && at[2] == 'u') {
                code = 0x10000 + ((code - 0xD800) << 10) + (char32_t(hex4(at + 3, end)) - 0xDC00);
                at += 6;
            }
            appendUtf8(text, code);
            continue;
        }
        const char *found = kEscapes;
        while (*found != '\0' && *found != *at)
            found += 2;
        if (*found == '\0')
            fail();
        else
            text.append(found[1]);
    }
}

void JsonCursor::integer(qint64 &number)
{
    number = 0;
    if (!m_good)
        return;
    const auto read = std::from_chars(m_at, m_end, number);
    if (read.ec != std::errc() || read.ptr == m_end || !isPlainEnd(*read.ptr))
        fail();
    else
        m_at = read.ptr;
}

QByteArrayView JsonCursor::skip()
{
    const char *begin = m_at;
    int depth = 0;
    while (m_good) {
        if (m_at == m_end) {
            fail();
        } else if (*m_at == '"') {
            skipString();
        } else if (*m_at == '{' || *m_at == '[') {
            ++depth;
            ++m_at;
        } else if (depth > 0 && (*m_at == '}' || *m_at == ']')) {
            --depth;
            ++m_at;
        } else if (depth == 0 && isPlainEnd(*m_at)) {
            break;
        } else {
            ++m_at;
        }
    }
    return {begin, m_at - begin};
}

} // namespace ozm::audit

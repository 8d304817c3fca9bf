#include "JsonWriter.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ozm::audit {

namespace {

// Deeper than any record; no reader refuses it.
constexpr int kDepth = 32;
// Numbers of more digits, or with exponents, are for a parser to judge.
constexpr int kDigits = 15;

bool isPlain(char16_t c)
{
    return c >= 0x20 && c < 0x80 && c != '"' && c != '\\';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Passes over one JSON value at a time; every function is false on a fault.
class PlainJson
{
public:
    explicit PlainJson(QByteArrayView bytes)
        : m_at(bytes.begin())
        , m_end(bytes.end())
    {}

    [[nodiscard]] bool atEnd() const { return m_at == m_end; }
    [[nodiscard]] bool object(int depth = 0) { return members('{', '}', depth); }

private:
    [[nodiscard]] bool take(char c)
    {
        if (m_at == m_end || *m_at != c)
            return false;
        ++m_at;
        return true;
    }
    void blanks()
    {
        while (m_at < m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t'))
            ++m_at;
    }
    [[nodiscard]] bool members(char open, char close, int depth)
    {
        if (depth > kDepth || !take(open))
            return false;
        blanks();
        if (take(close))
            return true;
        while (true) {
            blanks();
            if (open == '{' && !(string() && (blanks(), take(':'))))
                return false;
            blanks();
            if (!value(depth))
                return false;
            blanks();
            if (take(close))
                return true;
            if (!take(','))
                return false;
        }
    }
    [[nodiscard]] bool value(int depth)
    {
        if (m_at == m_end)
            return false;
        switch (*m_at) {
        case '"':
            return string();
        case '{':
            return object(depth + 1);
        case '[':
            return members('[', ']', depth + 1);
        case 't':
            return word("true");
        case 'f':
            return word("false");
        case 'n':
            return word("null");
        default:
            return number();
        }
    }
    [[nodiscard]] bool word(QByteArrayView word)
    {
        return std::ranges::all_of(word, [this](char c) { return take(c); });
    }
    [[nodiscard]] bool string()
    {
        if (!take('"'))
            return false;
        while (m_at < m_end && *m_at != '"') {
            if (static_cast<unsigned char>(*m_at) < 0x20)
                return false;
            // Escaped by number: a parser knows which of them stand alone.
            if (*m_at++ == '\\' && (m_at == m_end || !QByteArrayView("\"\\/bfnrt").contains(*m_at++)))
                return false;
        }
        return take('"');
    }
    [[nodiscard]] int digits()
    {
        const auto begin = m_at;
        while (m_at < m_end && isDigit(*m_at))
            ++m_at;
        return int(m_at - begin);
    }
    [[nodiscard]] bool number()
    {
        (void)take('-');
        const bool zero = m_at < m_end && *m_at == '0';
        const int whole = digits();
        if (whole == 0 || (zero && whole > 1))
            return false;
        int fraction = 0;
        if (take('.')) {
            fraction = digits();
            if (fraction == 0)
                return false;
        }
        return whole + fraction <= kDigits && !(m_at < m_end && (*m_at == 'e' || *m_at == 'E'));
    }

    QByteArrayView::const_iterator m_at;
    QByteArrayView::const_iterator m_end;
};

} // namespace

JsonWriter::JsonWriter(std::string_view start, qsizetype size)
{
    m_json.reserve(std::size_t(size));
    m_json.append(start);
}

void JsonWriter::name(std::string_view name)
{
    if (m_inside == 0 || m_json.size() > m_inside)
        m_json.push_back(',');
    m_json.push_back('"');
    m_json.append(name);
    m_json.append("\":");
}

void JsonWriter::text(std::string_view name, QByteArrayView utf8)
{
    if (utf8.isEmpty())
        return;
    this->name(name);
    string(utf8);
}

void JsonWriter::text(std::string_view name, QStringView text)
{
    if (text.isEmpty())
        return;
    this->name(name);
    string(text);
}

void JsonWriter::number(std::string_view name, qint64 number)
{
    if (number == 0)
        return;
    this->name(name);
    std::array<char, 24> digits = {};
    m_json.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

void JsonWriter::raw(std::string_view name, QByteArrayView json)
{
    this->name(name);
    m_json.append(json.data(), std::size_t(json.size()));
}

void JsonWriter::begin(std::string_view name, char bracket)
{
    m_before = m_json.size();
    this->name(name);
    m_json.push_back(bracket);
    m_inside = m_json.size();
}

void JsonWriter::end(char bracket)
{
    if (m_json.size() > m_inside)
        m_json.push_back(bracket);
    else
        m_json.resize(m_before);
    m_inside = 0;
}

void JsonWriter::item(QStringView text)
{
    if (m_json.size() > m_inside)
        m_json.push_back(',');
    string(text);
}

void JsonWriter::string(QStringView text)
{
    const bool plain = std::ranges::all_of(text, [](QChar c) { return isPlain(c.unicode()); });
    if (!plain)
        return string(text.toUtf8());
    m_json.push_back('"');
    for (const QChar c : text)
        m_json.push_back(static_cast<char>(c.unicode()));
    m_json.push_back('"');
}

void JsonWriter::string(QByteArrayView utf8)
{
    static constexpr char kHex[] = "0123456789abcdef";
    m_json.push_back('"');
    const char *plain = utf8.begin();
    for (const char *at = utf8.begin(); at < utf8.end(); ++at) {
        const auto c = static_cast<unsigned char>(*at);
        if (c >= 0x20 && c != '"' && c != '\\')
            continue;
        m_json.append(plain, at);
        plain = at + 1;
        m_json.push_back('\\');
        if (c == '"' || c == '\\')
            m_json.push_back(*at);
        else if (c == '\n')
            m_json.push_back('n');
        else
            m_json.append("u00").append({kHex[c >> 4], kHex[c & 15]});
    }
    m_json.append(plain, utf8.end());
    m_json.push_back('"');
}

bool isPlainJsonObject(QByteArrayView bytes)
{
    PlainJson json(bytes);
    return json.object() && json.atEnd() && bytes.isValidUtf8();
}

} // namespace ozm::audit

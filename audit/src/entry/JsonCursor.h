#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace ozm::audit {

/**
 * Reads JSON in one pass, without building a document: verification reads every entry of a trail.
 *
 *     JsonCursor json(bytes);
 *     QByteArray key;
 *     for (bool more = json.beginObject(); more; more = json.endMember()) {
 *         json.key(key);
 *         ...one of string(), integer(), skip(), or another object or array
 *     }
 *     if (!json.isGood())
 *         ...
 *
 * After the first fault nothing is read any more and every answer is empty. The bytes must outlive what is
 * read from them: texts without escapes point into them.
 */
class JsonCursor
{
public:
    explicit JsonCursor(QByteArrayView bytes);

    [[nodiscard]] bool isGood() const { return m_good; }
    [[nodiscard]] bool atEnd() const { return m_good && m_at == m_end; }

    /// False for an empty object, and on a fault.
    bool beginObject();
    bool beginArray();
    /// Reads the key and the colon.
    void key(QByteArray &key);
    /// True when another member follows; false at the end of the object, which is then passed.
    bool endMember();
    bool endItem();

    void string(QByteArray &text);
    void integer(qint64 &number);
    /// Passes one value and returns its bytes.
    QByteArrayView skip();

private:
    [[nodiscard]] bool take(char c);
    [[nodiscard]] bool begin(char open, char close);
    [[nodiscard]] bool more(char close);
    bool fail();
    void skipString();
    void unescape(const char *begin, const char *end, QByteArray &text);
    [[nodiscard]] int hex4(const char *at, const char *end);

    const char *m_at;
    const char *m_end;
    bool m_good = true;
};

} // namespace ozm::audit

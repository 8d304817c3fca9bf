#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <string>

namespace ozm::audit {

/**
 * Writes the members of one JSON object, without blanks; empty members are left out.
 *
 * Every entry is written here, so it makes one buffer and no texts in between.
 */
class JsonWriter
{
public:
    /// Begins with @p start.
    JsonWriter(std::string_view start, qsizetype size);

    void text(std::string_view name, QByteArrayView utf8);
    void text(std::string_view name, QStringView text);
    void number(std::string_view name, qint64 number);
    /// Bytes that are JSON already.
    void raw(std::string_view name, QByteArrayView json);

    /// To be ended by end() with the same bracket; nothing is left of one that stayed empty.
    void begin(std::string_view name, char bracket);
    void end(char bracket);
    /// An item of an array.
    void item(QStringView text);
    void close() { m_json.push_back('}'); }

    [[nodiscard]] QByteArray bytes() const { return {m_json.data(), qsizetype(m_json.size())}; }

private:
    void name(std::string_view name);
    void string(QByteArrayView utf8);
    void string(QStringView text);

    std::string m_json;
    std::size_t m_inside = 0;
    std::size_t m_before = 0;
};

/// True for a JSON object that any reader takes; false also for some that not every reader does.
[[nodiscard]] bool isPlainJsonObject(QByteArrayView bytes);

} // namespace ozm::audit

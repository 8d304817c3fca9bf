#include "EntryForm.h"

#include "JsonCursor.h"
#include "JsonWriter.h"

#include <QJsonDocument>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <functional>

namespace ozm::audit {

namespace {

void writePerson(JsonWriter &json, const Person &person)
{
    json.begin("user", '{');
    json.text("id", person.id);
    json.text("name", person.name);
    json.text("role", person.role);
    json.end('}');
}

void writeOutcome(JsonWriter &json, const Draft &draft)
{
    if (draft.outcomeCode == 0)
        return;
    json.begin("outcome", '{');
    json.number("code", draft.outcomeCode);
    json.text("text", draft.outcomeText);
    json.end('}');
}

void writeSubject(JsonWriter &json, const Draft &draft)
{
    json.begin("subject", '{');
    json.text("type", draft.subjectType);
    json.text("key", draft.subjectKey);
    json.end('}');
    json.begin("attributes", '[');
    for (const QString &attribute : draft.attributes)
        json.item(attribute);
    json.end(']');
}

/// Last, and as it is, so that its bytes can be found again without reading JSON.
void writeRecord(JsonWriter &json, const QByteArray &record)
{
    if (record.isEmpty())
        return;
    const bool isObject = record.startsWith('{') && record.endsWith('}');
    if (isPlainJsonObject(record) || (isObject && !QJsonDocument::fromJson(record).isNull()))
        json.raw("record", record);
    else
        json.text("record64", record.toBase64());
}

void readObject(JsonCursor &json, std::initializer_list<std::pair<QByteArrayView, QByteArray *>> texts,
                qint64 *code = nullptr)
{
    QByteArray key;
    for (bool more = json.beginObject(); more; more = json.endMember()) {
        json.key(key);
        const auto *found =
            std::find_if(texts.begin(), texts.end(), [&key](const auto &text) { return text.first == key; });
        if (found != texts.end())
            json.string(*found->second);
        else if (code && key == "code")
            json.integer(*code);
        else
            json.skip();
    }
}

void readAttributes(JsonCursor &json, QByteArray &attributes)
{
    QByteArray attribute;
    bool first = true;
    for (bool more = json.beginArray(); more; more = json.endItem()) {
        json.string(attribute);
        if (!first)
            attributes.append('\n');
        // Deep: the text may point into the bytes.
        attributes.append(attribute.constData(), attribute.size());
        first = false;
    }
}

struct TextMember
{
    QByteArrayView name;
    QByteArray EntryMembers::*text;
};
constexpr std::array kTexts{
    TextMember{"trail", &EntryMembers::trail},       TextMember{"id", &EntryMembers::id},
    TextMember{"time", &EntryMembers::time},         TextMember{"zone", &EntryMembers::zone},
    TextMember{"kind", &EntryMembers::kind},         TextMember{"session", &EntryMembers::session},
    TextMember{"host", &EntryMembers::host},         TextMember{"program", &EntryMembers::program},
    TextMember{"version", &EntryMembers::version},   TextMember{"context", &EntryMembers::context},
    TextMember{"reason", &EntryMembers::reason},     TextMember{"authoriser", &EntryMembers::authoriser},
    TextMember{"record64", &EntryMembers::record64},
};

struct NumberMember
{
    QByteArrayView name;
    qint64 EntryMembers::*number;
};
constexpr std::array kNumbers{
    NumberMember{"form", &EntryMembers::form},       NumberMember{"number", &EntryMembers::number},
    NumberMember{"parent", &EntryMembers::parent},   NumberMember{"offset", &EntryMembers::utcOffset},
    NumberMember{"counter", &EntryMembers::counter},
};

void readMember(JsonCursor &json, const QByteArray &key, EntryMembers &into)
{
    for (const TextMember &member : kTexts) {
        if (member.name == key)
            return json.string(into.*member.text);
    }
    for (const NumberMember &member : kNumbers) {
        if (member.name == key)
            return json.integer(into.*member.number);
    }
    if (key == "record") {
        const QByteArrayView record = json.skip();
        into.record = QByteArray::fromRawData(record.data(), record.size());
    } else if (key == "user") {
        readObject(json, {{"id", &into.userId}, {"name", &into.userName}, {"role", &into.userRole}});
    } else if (key == "subject") {
        readObject(json, {{"type", &into.subjectType}, {"key", &into.subjectKey}});
    } else if (key == "outcome") {
        readObject(json, {{"text", &into.outcomeText}}, &into.outcomeCode);
    } else if (key == "attributes") {
        readAttributes(json, into.attributes);
    } else if (key == "stored") {
        readObject(json,
                   {{"time", &into.serverTime}, {"user", &into.serverUser}, {"client", &into.serverClient}});
    } else {
        json.skip();
    }
}

int digits(QByteArrayView text, qsizetype at, qsizetype count)
{
    int number = -1;
    const char *end = text.data() + at + count;
    return std::from_chars(text.data() + at, end, number).ptr == end ? number : -1;
}

} // namespace

QByteArray claimsOf(const Draft &draft)
{
    constexpr qsizetype kUsualSize = 640;
    JsonWriter json({}, kUsualSize + draft.record.size());
    json.text("id", draft.id);
    json.text("time", utcText(draft.timeMs));
    json.number("offset", draft.utcOffset);
    json.text("zone", draft.zone);
    json.number("counter", draft.counter);
    json.text("kind", kindToString(draft.kind));
    writePerson(json, draft.user);
    json.text("session", draft.session);
    json.text("host", draft.host);
    json.text("program", draft.program);
    json.text("version", draft.version);
    json.text("context", draft.context);
    writeOutcome(json, draft);
    json.text("reason", draft.reason);
    json.text("authoriser", draft.authoriser);
    writeSubject(json, draft);
    writeRecord(json, draft.record);
    json.close();
    return json.bytes();
}

QByteArray storePart(const QByteArray &trail, qint64 number, qint64 parent)
{
    constexpr qsizetype kUsualSize = 128;
    JsonWriter json("{\"form\":1", kUsualSize);
    static_assert(kEntryForm == 1);
    json.text("trail", trail);
    json.number("number", number);
    json.number("parent", parent);
    return json.bytes();
}

bool EntryMembers::read(QByteArrayView bytes)
{
    JsonCursor json(bytes);
    QByteArray key;
    for (bool more = json.beginObject(); more; more = json.endMember()) {
        json.key(key);
        readMember(json, key, *this);
    }
    return json.atEnd() && form >= 1 && form <= kEntryForm;
}

qint64 EntryMembers::timeMs() const
{
    return utcFromText(time);
}

IndexRow IndexRow::of(const EntryMembers &members)
{
    return {members.timeMs(),    members.kind,   members.userId,
            members.outcomeCode, members.parent, subjectIndex(members.subjectType, members.subjectKey),
            members.attributes};
}

QByteArray subjectIndex(QByteArrayView type, QByteArrayView key)
{
    if (type.isEmpty() && key.isEmpty())
        return {};
    QByteArray subject;
    subject.reserve(type.size() + key.size() + 1);
    return subject.append(type).append('\n').append(key);
}

QByteArray utcText(qint64 ms)
{
    using namespace std::chrono;
    const sys_time<milliseconds> time{milliseconds(ms)};
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    std::array<char, 40> text = {};
    const int length = std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
                                     int(date.year()), unsigned(date.month()), unsigned(date.day()),
                                     int(clock.hours().count()), int(clock.minutes().count()),
                                     int(clock.seconds().count()), int(clock.subseconds().count()));
    return {text.data(), length};
}

qint64 utcFromText(QByteArrayView text)
{
    using namespace std::chrono;
    if (text.size() != 24 || text.back() != 'Z')
        return -1;
    const year_month_day date(year(digits(text, 0, 4)), month(unsigned(digits(text, 5, 2))),
                              day(unsigned(digits(text, 8, 2))));
    if (!date.ok())
        return -1;
    const auto ms = sys_days(date).time_since_epoch() + hours(digits(text, 11, 2)) +
                    minutes(digits(text, 14, 2)) + seconds(digits(text, 17, 2)) +
                    milliseconds(digits(text, 20, 3));
    return duration_cast<milliseconds>(ms).count();
}

} // namespace ozm::audit

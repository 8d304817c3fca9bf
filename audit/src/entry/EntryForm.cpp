#include "EntryForm.h"

#include "JsonCursor.h"

#include <QJsonDocument>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <functional>

namespace ozm::audit {

namespace {

void addText(QByteArray &json, const char *name, const QByteArray &text)
{
    if (text.isEmpty())
        return;
    json.append(",\"").append(name).append("\":");
    appendJsonString(json, text);
}

void addText(QByteArray &json, const char *name, const QString &text)
{
    if (!text.isEmpty())
        addText(json, name, text.toUtf8());
}

void addNumber(QByteArray &json, const char *name, qint64 number)
{
    if (number != 0)
        json.append(",\"").append(name).append("\":").append(QByteArray::number(number));
}

struct Text
{
    const char *name;
    QString text;
};

void addObject(QByteArray &json, const char *name, std::initializer_list<Text> members)
{
    QByteArray inside;
    for (const Text &member : members)
        addText(inside, member.name, member.text);
    if (!inside.isEmpty())
        json.append(",\"").append(name).append("\":{").append(inside.sliced(1)).append('}');
}

void addOutcome(QByteArray &json, const Draft &draft)
{
    if (draft.outcomeCode == 0)
        return;
    json.append(",\"outcome\":{\"code\":").append(QByteArray::number(draft.outcomeCode));
    addText(json, "text", draft.outcomeText);
    json.append('}');
}

void addAttributes(QByteArray &json, const QStringList &attributes)
{
    if (attributes.isEmpty())
        return;
    json.append(",\"attributes\":[");
    for (const QString &attribute : attributes) {
        appendJsonString(json, attribute.toUtf8());
        json.append(',');
    }
    json.back() = ']';
}

/// Last, and as it is, so that its bytes can be found again without reading JSON.
void addRecord(QByteArray &json, const QByteArray &record)
{
    if (record.isEmpty())
        return;
    const bool isObject = record.startsWith('{') && record.endsWith('}');
    if (isObject && !QJsonDocument::fromJson(record).isNull())
        json.append(",\"record\":").append(record);
    else
        addText(json, "record64", record.toBase64());
}

using Reader = std::function<void(JsonCursor &, EntryMembers &)>;

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
    QByteArray json;
    json.reserve(512 + draft.record.size());
    addText(json, "id", draft.id);
    addText(json, "time", utcText(draft.timeMs));
    addNumber(json, "offset", draft.utcOffset);
    addText(json, "zone", draft.zone);
    addNumber(json, "counter", draft.counter);
    addText(json, "kind", kindToString(draft.kind));
    addObject(json, "user", {{"id", draft.user.id}, {"name", draft.user.name}, {"role", draft.user.role}});
    addText(json, "session", draft.session);
    addText(json, "host", draft.host);
    addText(json, "program", draft.program);
    addText(json, "version", draft.version);
    addText(json, "context", draft.context);
    addOutcome(json, draft);
    addText(json, "reason", draft.reason);
    addText(json, "authoriser", draft.authoriser);
    addObject(json, "subject", {{"type", draft.subjectType}, {"key", draft.subjectKey}});
    addAttributes(json, draft.attributes);
    addRecord(json, draft.record);
    json.append('}');
    return json;
}

QByteArray storePart(const QByteArray &trail, qint64 number, qint64 parent)
{
    QByteArray json = "{\"form\":" + QByteArray::number(kEntryForm) + ",\"trail\":";
    appendJsonString(json, trail);
    addNumber(json, "number", number);
    addNumber(json, "parent", parent);
    return json;
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

#include "Commands.h"

#include <QElapsedTimer>
#include <QFile>

using namespace Qt::StringLiterals;

namespace ozm::audit::tool {

namespace {

QString lineOf(const Entry &entry)
{
    if (entry.isDisposed())
        return QString::number(entry.number) + u"  (disposed of)"_s;
    QStringList parts{QString::number(entry.number), entry.dateTime().toString(Qt::ISODateWithMs),
                      entry.user.id, kindToString(entry.kind), entry.text()};
    if (!entry.reason.isEmpty())
        parts.append(u"reason: "_s + entry.reason);
    if (entry.outcomeCode != 0)
        parts.append(u"FAILED: "_s + entry.outcomeText);
    return parts.join(u"  "_s).simplified();
}

int showEntry(const Options &options, const Entry &entry)
{
    return print(options.has(u"json"_s) ? QString::fromUtf8(entry.bytes) : lineOf(entry));
}

} // namespace

int init(const Options &options)
{
    const auto store = options.open(Store::Mode::Create);
    if (!store)
        return complain(store.error());
    if (options.has(u"key"_s)) {
        const auto key = SigningKey::generate(store.value()->trail());
        Error error = key ? key.value().save(options.value(u"key"_s)) : key.error();
        if (error.hasError())
            return complain(error);
        print(u"public key: "_s + key.value().publicKey().toText());
    }
    return print(u"trail: "_s + store.value()->trail());
}

int append(const Options &options)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return complain(Error(ErrorCode::FileAccess, u"The standard input cannot be read."_s));
    Draft draft = options.draft();
    draft.kind = options.has(u"kind"_s) ? kindFromString(options.value(u"kind"_s)) : Kind::Event;
    draft.subjectType = options.value(u"subject"_s);
    draft.subjectKey = options.value(u"subject-key"_s);
    // Each line is a record, and durable before the next is read.
    for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine()) {
        draft.record = line.trimmed();
        const auto number = store.value()->append({draft});
        if (!number)
            return complain(number.error());
        print(QString::number(number.value()));
    }
    return Good;
}

int show(const Options &options)
{
    const auto store = options.open(Store::Mode::ReadOnly);
    if (!store)
        return complain(store.error());
    if (options.has(u"range"_s)) {
        const Range range = options.range();
        const Error error =
            store.value()->forEach(range.first, qMax(range.first, range.last),
                                   [&](const Entry &entry) { return showEntry(options, entry) == Good; });
        return error.hasError() ? complain(error) : Good;
    }
    const auto page = store.value()->find(options.query());
    if (!page)
        return complain(page.error());
    for (const Entry &entry : page.value())
        showEntry(options, entry);
    return Good;
}

int watch(const Options &options)
{
    const auto store = options.open(Store::Mode::ReadOnly);
    if (!store)
        return complain(store.error());
    const qint64 end = options.value(u"seconds"_s).toLongLong() * 1000;
    QElapsedTimer time;
    time.start();
    Query query = options.query();
    const auto size = store.value()->size();
    query.after = size ? qMax<qint64>(0, size.value() - 10) : 0;
    query.order = Query::Order::OldestFirst;
    while (end == 0 || time.elapsed() < end) {
        const auto page = store.value()->find(query);
        if (!page)
            return complain(page.error());
        for (const Entry &entry : page.value()) {
            showEntry(options, entry);
            query.after = entry.number;
        }
        if (page.value().isEmpty())
            (void)store.value()->waitForEntries(store.value()->size().valueOr(0), QDeadlineTimer(1000));
    }
    return Good;
}

int importFormer(const Options &options)
{
    auto store = options.open(Store::Mode::Use);
    if (!store)
        return complain(store.error());
    const auto count = importFormerTrail(*store.value(), options.argument(1), options.draft());
    return count ? print(u"%1 entries imported"_s.arg(count.value())) : complain(count.error());
}

} // namespace ozm::audit::tool

#include "Options.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace ozm::audit::tool {

Options::Options()
{
    m_parser.addOptions({
        {u"user"_s, u"Who acts; the account's name by default."_s, u"id"_s},
        {u"name"_s, u"The person's name."_s, u"name"_s},
        {u"reason"_s, u"Why."_s, u"text"_s},
        {u"authoriser"_s, u"A second person, for a disposal."_s, u"id"_s},
        {u"key"_s, u"The key that signs checkpoints."_s, u"file"_s},
        {u"public-key"_s, u"The text of the key that checks signatures."_s, u"text"_s},
        {u"checkpoints"_s, u"A folder outside the store, for checkpoints."_s, u"folder"_s},
        {u"subject"_s, u"Only entries of this kind of subject."_s, u"type"_s},
        {u"subject-key"_s, u"Only entries of this subject."_s, u"text"_s},
        {u"attribute"_s, u"Only entries of this attribute."_s, u"name"_s},
        {u"kind"_s, u"Only entries of this kind, or the kind to append."_s, u"kind"_s},
        {u"by"_s, u"Only entries of this user."_s, u"id"_s},
        {u"text"_s, u"Only entries with this text."_s, u"text"_s},
        {u"from"_s, u"Only entries from this time on (ISO 8601)."_s, u"time"_s},
        {u"until"_s, u"Only entries before this time (ISO 8601)."_s, u"time"_s},
        {u"failed"_s, u"Only steps that did not succeed."_s},
        {u"newest"_s, u"The newest first."_s},
        {u"limit"_s, u"No more than so many."_s, u"n"_s, u"100"_s},
        {u"json"_s, u"The entries' own bytes, one a line."_s},
        {u"range"_s, u"Entries by number, as in 1-5000."_s, u"from-to"_s},
        {u"seconds"_s, u"Stop after so long."_s, u"n"_s, u"0"_s},
    });
    m_parser.addHelpOption();
    m_parser.addPositionalArgument(u"trail"_s, u"A file, or the address of a trail."_s);
}

bool Options::parse(const QStringList &arguments)
{
    return m_parser.parse(arguments) && !m_parser.positionalArguments().isEmpty() &&
           !m_parser.isSet(u"help"_s);
}

Result<std::unique_ptr<Store>> Options::open(Store::Mode mode) const
{
    return Store::open(argument(0), mode);
}

Draft Options::draft() const
{
    Draft draft;
    const QString account = qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME", u"unknown"_s));
    draft.user = {has(u"user"_s) ? value(u"user"_s) : account, value(u"name"_s), {}};
    draft.reason = value(u"reason"_s);
    draft.authoriser = value(u"authoriser"_s);
    draft.program = u"ozm-audit"_s;
    return draft;
}

Query Options::query() const
{
    Query query;
    query.user = value(u"by"_s);
    if (has(u"kind"_s))
        query.kinds = {kindFromString(value(u"kind"_s))};
    query.subjectType = value(u"subject"_s);
    query.subjectKey = value(u"subject-key"_s);
    query.attribute = value(u"attribute"_s);
    query.text = value(u"text"_s);
    if (has(u"from"_s))
        query.fromMs = QDateTime::fromString(value(u"from"_s), Qt::ISODate).toMSecsSinceEpoch();
    if (has(u"until"_s))
        query.untilMs = QDateTime::fromString(value(u"until"_s), Qt::ISODate).toMSecsSinceEpoch();
    if (has(u"failed"_s))
        query.outcome = Query::Outcome::Failed;
    if (has(u"newest"_s))
        query.order = Query::Order::NewestFirst;
    const Range numbers = range();
    query.firstNumber = numbers.first;
    query.lastNumber = has(u"range"_s) ? qMax(numbers.first, numbers.last) : 0;
    query.pageSize = qMax(1, value(u"limit"_s).toInt());
    return query;
}

Result<std::optional<SigningKey>> Options::key() const
{
    if (!has(u"key"_s))
        return std::optional<SigningKey>();
    auto key = SigningKey::load(value(u"key"_s));
    if (!key)
        return key.error();
    return std::optional<SigningKey>(std::move(key).value());
}

Range Options::range() const
{
    const QString text = value(u"range"_s);
    return {text.section(u'-', 0, 0).toLongLong(), text.section(u'-', 1, 1).toLongLong()};
}

int print(const QString &text)
{
    QTextStream(stdout) << text << Qt::endl;
    return Good;
}

int complain(const Error &error)
{
    QTextStream(stderr) << "ozm-audit: " << error.errorMessage() << Qt::endl;
    return Failed;
}

} // namespace ozm::audit::tool

#include <ozm_references/ResourceReference.h>

#include <ozm_references/LocalResourceReference.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using Scheme = ResourceReference::Scheme;

struct SchemeRow
{
    Scheme scheme;
    QLatin1StringView name;
};

constexpr std::array kSchemes{
    SchemeRow{Scheme::Database, "database"_L1},
    SchemeRow{Scheme::Server, "server"_L1},
    SchemeRow{Scheme::LocalFile, "file"_L1},
};

QLatin1StringView nameOf(Scheme scheme)
{
    const auto row = std::ranges::find(kSchemes, scheme, &SchemeRow::scheme);
    return row != kSchemes.end() ? row->name : QLatin1StringView();
}

Scheme schemeOf(QStringView name)
{
    const auto row = std::ranges::find_if(kSchemes, [name](const SchemeRow &known) {
        return name.compare(known.name, Qt::CaseInsensitive) == 0;
    });
    return row != kSchemes.end() ? row->scheme : Scheme::None;
}

bool needsEscape(QChar c)
{
    return c.unicode() < 0x20 || c == u'%';
}

// Not the percent encoding of URLs: that goes through UTF-8, which file names need not be valid for.
QString escaped(const QString &location)
{
    QString text;
    text.reserve(location.size());
    for (const QChar c : location) {
        if (needsEscape(c))
            text += u'%' + QString::number(c.unicode(), 16).rightJustified(2, u'0').toUpper();
        else
            text += c;
    }
    return text;
}

QString unescaped(QStringView text)
{
    QString location;
    location.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool isNumber = false;
        const QStringView digits =
            text[i] == u'%' && i + 2 < text.size() ? text.sliced(i + 1, 2) : QStringView();
        const QChar c(digits.toUShort(&isNumber, 16));
        location += isNumber ? c : text[i];
        i += isNumber ? 2 : 0;
    }
    return location;
}

Result<QSharedPointer<ResourceReference>> localReference(const QString &path)
{
    auto reference = QSharedPointer<LocalResourceReference>::create();
    if (Error error = reference->setPath(path); error.hasError())
        return error;
    return QSharedPointer<ResourceReference>(reference);
}

} // namespace

ResourceReference::ResourceReference(Scheme scheme, const QString &location)
    : m_scheme(scheme)
    , m_location(location)
{}

ResourceReference::~ResourceReference() = default;

Result<QSharedPointer<ResourceReference>> ResourceReference::fromString(const QString &text)
{
    const qsizetype colon = text.indexOf(u':');
    const Scheme scheme = schemeOf(QStringView(text).first(qMax<qsizetype>(colon, 0)));
    const QString location = unescaped(QStringView(text).sliced(colon + 1));
    if (scheme == Scheme::None || location.isEmpty())
        return Error(ErrorCode::BadParameter, u"\"%1\" does not refer to a resource."_s.arg(text));
    if (scheme == Scheme::LocalFile)
        return localReference(location);
    return QSharedPointer<ResourceReference>::create(scheme, location);
}

QString ResourceReference::toString() const
{
    return m_location.isEmpty() ? QString() : nameOf(m_scheme) + u':' + escaped(m_location);
}

} // namespace ozm

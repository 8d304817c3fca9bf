#include <ozm_widgets/ShortCodes.h>

#include "ShortCodes_p.h"
#include "support/Logging.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/Envelope.h"

#include <ozm_widgets/TECWrapper.h>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

ShortCodeImplementation::ShortCodeImplementation(QObject *parent)
    : QObject(parent)
{}

ShortCodeImplementation::~ShortCodeImplementation() = default;

bool ShortCodeImplementation::beforeGetDisplayName(ShortCode * /*shortCode*/,
                                                   const QMap<QString, QVariant> & /*parameters*/)
{
    return true;
}

bool ShortCodeImplementation::beforeRemove()
{
    return true;
}

void ShortCodeImplementation::init(ShortCode * /*shortCode*/) {}

QString ShortCodeImplementation::displayName(const QString &name)
{
    return name;
}

ShortCode::Private::Private(ShortCode *owner, const QSharedPointer<ShortCodeImplementation> &shared)
    : implementation(shared ? shared : QSharedPointer<ShortCodeImplementation>(new ShortCodeImplementation))
    , qptr(owner)
{}

bool ShortCode::Private::copyParameters(const ShortCode &other)
{
    if (!qptr) {
        qCCritical(lcOzmWidgets, "qptr is invalid");
        return false;
    }
    implementation = other.d ? other.d->implementation
                             : QSharedPointer<ShortCodeImplementation>(new ShortCodeImplementation);
    qptr->code = other.code;
    qptr->name = other.name;
    qptr->toolTip = other.toolTip;
    qptr->extraText = other.extraText;
    return true;
}

ShortCode::ShortCode()
    : d(std::make_unique<Private>(this))
{}

ShortCode::ShortCode(const QString &codeText, const QString &nameText, const QString &toolTipText,
                     const QString &extra)
    : code(codeText)
    , name(nameText)
    , toolTip(toolTipText)
    , extraText(extra)
    , d(std::make_unique<Private>(this))
{}

ShortCode::ShortCode(const ShortCode &other)
    : code(other.code)
    , name(other.name)
    , toolTip(other.toolTip)
    , extraText(other.extraText)
    , d(std::make_unique<Private>(this, other.d ? other.d->implementation : nullptr))
{}

ShortCode::ShortCode(ShortCode &&other) noexcept
    : code(std::move(other.code))
    , name(std::move(other.name))
    , toolTip(std::move(other.toolTip))
    , extraText(std::move(other.extraText))
    , d(std::move(other.d))
{
    if (d)
        d->qptr = this;
}

ShortCode &ShortCode::operator=(const ShortCode &other)
{
    if (this != &other)
        part()->copyParameters(other);
    return *this;
}

ShortCode &ShortCode::operator=(ShortCode &&other) noexcept
{
    if (this == &other)
        return *this;
    code = std::move(other.code);
    name = std::move(other.name);
    toolTip = std::move(other.toolTip);
    extraText = std::move(other.extraText);
    d = std::move(other.d);
    if (d)
        d->qptr = this;
    return *this;
}

ShortCode::~ShortCode() = default;

ShortCode::Private *ShortCode::part()
{
    if (!d)
        d = std::make_unique<Private>(this);
    return d.get();
}

bool ShortCode::operator==(const ShortCode &other) const
{
    return code == other.code && name == other.name && toolTip == other.toolTip &&
           extraText == other.extraText;
}

QString ShortCode::displayName()
{
    return part()->implementation->displayName(name);
}

bool ShortCode::beforeGetDisplayName(const QMap<QString, QVariant> &parameters)
{
    return part()->implementation && part()->implementation->beforeGetDisplayName(this, parameters);
}

bool ShortCode::beforeRemove() const
{
    return !d || d->implementation->beforeRemove();
}

QSharedPointer<ShortCodeImplementation> ShortCode::implementation()
{
    return part()->implementation;
}

void ShortCode::setImplementation(ShortCodeImplementation *implementation)
{
    if (!implementation) {
        qCWarning(lcOzmWidgets) << "A short code cannot be without an implementation:" << code;
        return;
    }
    part()->implementation.reset(implementation);
    part()->implementation->init(this);
}

namespace ShortCodeUtils {

bool keyExist(const QString &key, const QList<ShortCode> &codes)
{
    return std::ranges::any_of(codes, [&key](const ShortCode &each) { return each.code == key; });
}

ShortCode findValue(const QString &key, const QList<ShortCode> &codes)
{
    const auto found =
        std::ranges::find_if(codes, [&key](const ShortCode &each) { return each.code == key; });
    return found != codes.end() ? *found : ShortCode();
}

} // namespace ShortCodeUtils

namespace {

// Columns once named after oligonucleotides are now named after the protein; old templates use the old names.
constexpr std::array kLegacyNames{"OligoAliasName"_L1, "OligoAccessionName"_L1};

void renameLegacyCodes(QList<QString> &codes)
{
    for (const QLatin1StringView legacy : kLegacyNames) {
        // Only the first: templates in use rely on later ones being left alone.
        const auto found = std::ranges::find(codes, legacy);
        if (found != codes.end())
            found->replace("Oligo"_L1, "Protein"_L1);
    }
}

} // namespace

QList<QString> getCodes(const QString &text, bool withBrackets)
{
    QList<QString> codes = ozm::syntax::codesIn(text, withBrackets);
    renameLegacyCodes(codes);
    return codes;
}

QString TECWrapper::wrapTEC(const QString &content)
{
    return ozm::syntax::wrappedBySubstitution(content);
}

QString TECWrapper::unwrapTEC(const QString &text, bool *ok)
{
    auto content = ozm::syntax::unwrapped(text);
    if (ok)
        *ok = content.has_value();
    return content ? std::move(content->text) : QString();
}

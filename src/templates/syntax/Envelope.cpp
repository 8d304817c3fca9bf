#include "templates/syntax/Envelope.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace ozm::syntax {

namespace {

constexpr auto kTag = "ozm_template"_L1;
constexpr auto kOpeningTag = "<ozm_template"_L1;
constexpr auto kVersionAttribute = "version"_L1;
constexpr auto kVersion = "1.0"_L1;

const QRegularExpression &envelopePattern()
{
    static const QRegularExpression pattern(
        u"<%1 %2=\"(\\d.\\d)\">(.*)</%3>"_s.arg(kTag, kVersionAttribute, kTag),
        QRegularExpression::DotMatchesEverythingOption);
    return pattern;
}

} // namespace

std::optional<EnvelopeContent> unwrapped(const QString &text)
{
    const QRegularExpressionMatch match = envelopePattern().match(text);
    if (!match.hasMatch() || match.capturedView(1) != kVersion)
        return std::nullopt;
    return EnvelopeContent{match.captured(2), match.capturedStart(2)};
}

QString wrapped(const QString &content)
{
    QString envelope = wrappedBySubstitution({});
    return envelope.insert(envelope.indexOf(u'>') + 1, content);
}

QString wrappedBySubstitution(const QString &content)
{
    // One argument at a time: stored templates rely on markers in the content taking part.
    return u"<%1 %2=\"%3\">%4</%5>"_s.arg(kTag).arg(kVersionAttribute).arg(kVersion).arg(content).arg(kTag);
}

bool mentionsEnvelope(QStringView text)
{
    return text.contains(kOpeningTag);
}

bool mentionsEnvelope(const QByteArray &text)
{
    return text.contains(QByteArrayView(kOpeningTag.data(), kOpeningTag.size()));
}

} // namespace ozm::syntax

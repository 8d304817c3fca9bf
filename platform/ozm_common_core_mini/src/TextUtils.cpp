#include <ozm_common_core_mini/TextUtils.h>

using namespace Qt::StringLiterals;

const QString SQUARE_BRACKETS_PATTERN = u"[%1]"_s;

namespace {

template <typename Change>
QString withFirstChar(const QString &text, Change change)
{
    // A character outside the basic plane takes two places.
    const qsizetype length = text.size() > 1 && text.at(0).isHighSurrogate() ? 2 : 1;
    return change(text.left(length)) + text.sliced(qMin(length, text.size()));
}

} // namespace

namespace ozm {

QString TextUtils::toUpperFirstChar(const QString &text)
{
    return withFirstChar(text, [](const QString &first) { return first.toUpper(); });
}

QString TextUtils::toLowerFirstChar(const QString &text)
{
    return withFirstChar(text, [](const QString &first) { return first.toLower(); });
}

} // namespace ozm

#include "NamePattern.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>

#include <algorithm>

namespace ozm {

namespace {

bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return character == u'_' || (character.unicode() < 128 && character.isLetterOrNumber());
    });
}

} // namespace

NamePattern::NamePattern(const QString &pattern)
{
    if (isPlain(pattern)) {
        m_literal = pattern.isNull() ? QStringLiteral("") : pattern;
        return;
    }
    // By itself first: what is invalid may become valid within the parentheses that anchor it.
    m_usable = QRegularExpression(pattern).isValid();
    if (m_usable) {
        m_expression = QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                          QRegularExpression::CaseInsensitiveOption);
        m_usable = m_expression.isValid();
    }
}

bool NamePattern::matches(const QString &name) const
{
    if (!m_literal.isNull())
        return name.compare(m_literal, Qt::CaseInsensitive) == 0;
    return m_usable && m_expression.match(name).hasMatch();
}

QString columnMatching(const QString &name)
{
    const NamePattern pattern(name);
    const auto &columns = ColumnFriendlyName::getColumnFriendlyNames();
    const auto found = std::find_if(columns.keyBegin(), columns.keyEnd(),
                                    [&pattern](const QString &column) { return pattern.matches(column); });
    return found != columns.keyEnd() ? *found : QString();
}

} // namespace ozm

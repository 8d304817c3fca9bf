#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringView>

namespace ozm {

/**
 * A code used as a pattern for names: a regular expression over the whole name, in any letter case.
 *
 * An invalid one matches nothing, silently; one of letters and digits only is compared without being
 * compiled.
 */
class NamePattern
{
public:
    explicit NamePattern(const QString &pattern);

    [[nodiscard]] bool matches(const QString &name) const;

private:
    QString m_literal; ///< Null when the pattern is more than a text.
    QRegularExpression m_expression;
    bool m_usable = true;
};

/// The column whose name @p name matches as a pattern, spelled as columns are; null when there is none.
[[nodiscard]] QString columnMatching(const QString &name);

} // namespace ozm

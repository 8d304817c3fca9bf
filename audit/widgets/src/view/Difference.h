#pragma once

#include <QString>
#include <QVariant>

namespace ozm::audit {

/// Two values as HTML, side by side: what only the old one has is struck out, what only the new one has is
/// underlined, and both have a background of their own. Lists are compared item by item, texts word by word.
struct Difference
{
    QString oldHtml;
    QString newHtml;

    [[nodiscard]] static Difference between(const QVariant &oldValue, const QVariant &newValue);
};

} // namespace ozm::audit

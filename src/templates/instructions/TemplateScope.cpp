#include "templates/instructions/TemplateScope.h"

using namespace Qt::StringLiterals;

namespace ozm::instructions {

namespace {

constexpr auto kRowNumber = "RowNumber"_L1;
constexpr auto kRowCount = "RowCount"_L1;

} // namespace

std::optional<TemplateField> TemplateScope::find(const QString &name) const
{
    if (!row)
        return fieldOf(name, *extraData);
    if (!outer)
        return fieldOf(name, *row, *extraData);
    // A column of the application's own by these names comes first.
    if (auto field = fieldOf(name, *row))
        return field;
    if (name == kRowNumber)
        return TemplateField{number, number};
    if (name == kRowCount)
        return TemplateField{count, count};
    return outer->find(name);
}

} // namespace ozm::instructions

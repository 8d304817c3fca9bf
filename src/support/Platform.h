#pragma once

#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Result.h>

#include <QStringList>

/**
 * All that this library asks of the suite's other libraries beyond their promise.
 *
 * Each function uses an operation where the library at hand has it, and does what can be done without it
 * otherwise: the sources compile against either, and need no change.
 */
namespace ozm::platform {

template <typename T>
[[nodiscard]] T valueOr(const Result<T> &result, const T &fallback)
{
    return result.hasError() ? fallback : result.value();
}

/// The code as text, for an error without a message.
template <typename AnyError>
[[nodiscard]] QString codeText(const AnyError &error)
{
    if constexpr (requires { error.errorString(); })
        return error.errorString();
    else
        return QString::number(static_cast<int>(error.errorCode()));
}

/// Without a way to add warnings, the message tells.
template <typename AnyError>
[[nodiscard]] AnyError withWarning(AnyError error, const QString &warning)
{
    if constexpr (requires { error.addWarning(warning); })
        return error.addWarning(warning);
    else
        return AnyError(error.errorCode(), error.errorMessage() + QLatin1Char(' ') + warning);
}

/// @p error with a warning where there is a way to add one. Its message is promised, and stays as it is.
template <typename AnyError>
[[nodiscard]] AnyError withHint(AnyError error, const QString &hint)
{
    if constexpr (requires { error.addWarning(hint); })
        error.addWarning(hint);
    return error;
}

/// False where all purposes share one folder.
template <typename Settings = FileSystemSettings>
[[nodiscard]] constexpr bool hasOwnLocations()
{
    return requires
    {
        Settings::addLocation(QString());
    };
}

/// A purpose whose last folder is remembered by itself; all purposes share one where there is no way to add.
template <typename Settings = FileSystemSettings>
[[nodiscard]] ExtendableEnumRef<FileSystemSettings::DirLocationData> dirLocation(const QString &name)
{
    if constexpr (requires { Settings::addLocation(name); })
        return Settings::addLocation(name);
    else
        return {};
}

/// The name of a column on screen.
template <typename Columns = ColumnFriendlyName>
[[nodiscard]] QString displayName(const QString &column)
{
    if constexpr (requires { Columns::friendlyName(column); })
        return Columns::friendlyName(column);
    else
        return column;
}

/// The columns of a row; those that have a name on screen where a row does not tell.
template <typename Row>
[[nodiscard]] QStringList columnsOf(const Row &row)
{
    if constexpr (requires { row.columnNames(); }) {
        return row.columnNames();
    } else {
        QStringList columns;
        for (const QString &column : ColumnFriendlyName::getColumnFriendlyNames().keys()) {
            bool found = false;
            std::ignore = row.getDataAt(column, &found, false);
            if (found)
                columns.append(column);
        }
        return columns;
    }
}

[[nodiscard]] inline const RowNode *rootOf(const RowNode *row)
{
    while (row->parent())
        row = row->parent();
    return row;
}

} // namespace ozm::platform

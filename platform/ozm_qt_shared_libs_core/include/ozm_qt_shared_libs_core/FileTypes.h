#pragma once

#include <ozm_qt_shared_libs_core/ExtendableEnum.h>
#include <ozm_qt_shared_libs_core/ozm_qt_shared_libs_core_export.h>

#include <QStringList>

/**
 * The file types that the suite's libraries know, each with its extensions.
 *
 *     const auto csv = FileTypes::add(u"CSV"_s, {u"csv"_s});
 *     if (FileTypes::fileMatchesAnyType(path, {csv}))
 *         import(path);
 *
 * Libraries add theirs when they are loaded. Looks at names only, never at the disk. Safe from any thread.
 */
class OZM_QT_SHARED_LIBS_CORE_EXPORT FileTypes
{
public:
    /// How a type of files is called, and which extensions it has.
    struct OZM_QT_SHARED_LIBS_CORE_EXPORT FileTypeData
    {
        QStringList extensions; ///< Without dots.

        /// The type that has no extensions.
        [[nodiscard]] static ExtendableEnumRef<FileTypeData> defaultValue();
    };
    using Ref = ExtendableEnumRef<FileTypeData>; ///< One type of files.

    /// The type @p name; one that is known already keeps its extensions.
    static Ref add(const QString &name, const QStringList &extensions);
    /// The type called @p name, such as "MS"; none when nothing is called so.
    [[nodiscard]] static std::optional<Ref> find(const QString &name);

    /// True when the name at the end of @p path, which may have a slash after it, carries an extension of any
    /// of @p types, in any letter case.
    [[nodiscard]] static bool fileMatchesAnyType(const QString &path, const QList<Ref> &types);
};

#pragma once

#include <ozm_qt_shared_libs_core/ExtendableEnum.h>

#include <QStringList>

class FileTypes
{
public:
    struct FileTypeData;

    static ExtendableEnumRef<FileTypeData> add(const QString &name, const QStringList &extensions);
    [[nodiscard]] static bool fileMatchesAnyType(const QString &path,
                                                 const QList<ExtendableEnumRef<FileTypeData>> &types);
};

#pragma once

#include <ozm_qt_shared_libs_core/FileTypes.h>

#include <QString>

class FileExtensionsNameFilter
{
public:
    FileExtensionsNameFilter();
    explicit FileExtensionsNameFilter(const QString &filterText);

    [[nodiscard]] QString toFilterString() const;
    [[nodiscard]] bool containsType(const ExtendableEnumRef<FileTypes::FileTypeData> &type) const;
};

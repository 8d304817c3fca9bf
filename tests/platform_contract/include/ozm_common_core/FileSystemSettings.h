#pragma once

#include <ozm_qt_shared_libs_core/ExtendableEnum.h>

#include <QString>

class FileSystemSettings
{
public:
    struct DirLocationData;

    [[nodiscard]] static FileSystemSettings &Instance();
    [[nodiscard]] QString fileLocation(const ExtendableEnumRef<DirLocationData> &location) const;
    void setFileLocation(const ExtendableEnumRef<DirLocationData> &location, const QString &folder);
};

#pragma once

#include <QStringView>

class QString;

namespace ozm {

class PathUtils
{
public:
    [[nodiscard]] static bool isExistingFile(const QString &path);
    [[nodiscard]] static bool isExistingDir(const QString &path);
    [[nodiscard]] static bool isDirectory(const QString &path);
    [[nodiscard]] static bool hasExtension(QStringView path, QStringView extension);
};

} // namespace ozm

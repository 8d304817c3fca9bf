#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QStringView>

class QString;

namespace ozm {

/**
 * Questions about a path on the local file system.
 *
 * Links are followed. No answer throws, blocks on a pipe or writes to the log: what cannot be looked at, for
 * whatever reason, is not there. Each question about the disk costs one system call at most.
 *
 *     if (ozm::PathUtils::hasExtension(path, u"csv") && ozm::PathUtils::isExistingFile(path))
 *         load(path);
 *
 * Resource paths (":/...") and URLs are not looked up. Safe from any thread.
 */
class OZM_COMMON_CORE_MINI_EXPORT PathUtils
{
public:
    /// The kinds of entry that a path may lead to.
    enum class Kind
    {
        Missing,
        File,
        Folder,
        Other ///< A device, a pipe or a socket.
    };

    /// All that the predicates below know, for callers who need more than one of them.
    [[nodiscard]] static Kind kind(const QString &path);

    /// True when a file or a folder is at @p path.
    [[nodiscard]] static bool exists(const QString &path);
    /// True when a file is at @p path.
    [[nodiscard]] static bool isExistingFile(const QString &path);
    /// True when a folder is at @p path.
    [[nodiscard]] static bool isExistingDir(const QString &path);
    /// The same as isExistingDir().
    [[nodiscard]] static bool isDirectory(const QString &path);

    /// True when what follows the last dot of the path's last component is @p extension (given without a dot),
    /// in any letter case. Looks at the text only; the empty extension is that of a name without a dot, or
    /// with one at its end.
    [[nodiscard]] static bool hasExtension(QStringView path, QStringView extension);
};

} // namespace ozm

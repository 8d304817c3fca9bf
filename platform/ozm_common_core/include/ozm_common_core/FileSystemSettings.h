#pragma once

#include <ozm_common_core/ozm_common_core_export.h>
#include <ozm_qt_shared_libs_core/ExtendableEnum.h>

#include <QString>

#include <memory>

/**
 * Remembers, for each purpose that folders are asked for, the folder in which the user was last.
 *
 *     static const auto kReports = FileSystemSettings::addLocation(u"reports"_s);
 *     dialog.setDirectory(FileSystemSettings::Instance().fileLocation(kReports));
 *
 * Lasts from one run to the next in the settings of the user, by organization and application (an application
 * without an organization is its own). Tests put a Store in its place. GUI thread only.
 */
class OZM_COMMON_CORE_EXPORT FileSystemSettings
{
public:
    /// A purpose; its name is what the folder is kept under.
    struct OZM_COMMON_CORE_EXPORT DirLocationData
    {
        /// The purpose of callers that name none.
        [[nodiscard]] static ExtendableEnumRef<DirLocationData> defaultValue();
    };
    using DirLocation = ExtendableEnumRef<DirLocationData>; ///< A purpose for which a folder is remembered.

    /// Where the folders are kept.
    class OZM_COMMON_CORE_EXPORT Store
    {
    public:
        Store() = default;
        virtual ~Store();
        Q_DISABLE_COPY_MOVE(Store)

        /// The folder remembered for @p purpose; empty when there is none.
        [[nodiscard]] virtual QString folder(const QString &purpose) const = 0;
        /// An empty @p folder forgets.
        virtual void setFolder(const QString &purpose, const QString &folder) = 0;
    };

    /// A store that forgets everything with the process.
    [[nodiscard]] static std::unique_ptr<Store> memoryStore();

    /// The one object of the process.
    [[nodiscard]] static FileSystemSettings &Instance();
    /// A further purpose, called @p name; the same one each time it is asked for.
    static DirLocation addLocation(const QString &name);

    /// The folder remembered for @p location; empty when there is none.
    [[nodiscard]] QString fileLocation(const DirLocation &location) const;
    /// Remembers @p folder for @p location.
    void setFileLocation(const DirLocation &location, const QString &folder);

    /// Replaces the store and returns the one before; null stands for the settings of the user.
    std::unique_ptr<Store> setStore(std::unique_ptr<Store> store);

private:
    FileSystemSettings();
    ~FileSystemSettings();
    Q_DISABLE_COPY_MOVE(FileSystemSettings)

    [[nodiscard]] Store &store() const;

    std::unique_ptr<Store> m_store;
};

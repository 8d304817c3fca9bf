#include <ozm_common_core/FileSystemSettings.h>

#include <QCoreApplication>
#include <QHash>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

using Locations = ExtendableEnum<FileSystemSettings::DirLocationData>;

Locations &locations()
{
    static Locations only;
    return only;
}

class MemoryStore : public FileSystemSettings::Store
{
public:
    [[nodiscard]] QString folder(const QString &purpose) const override { return m_folders.value(purpose); }
    void setFolder(const QString &purpose, const QString &folder) override
    {
        m_folders.insert(purpose, folder);
    }

private:
    QHash<QString, QString> m_folders;
};

// Opened anew each time, as the names of organization and application may be set after the first question.
class UserStore : public FileSystemSettings::Store
{
public:
    [[nodiscard]] QString folder(const QString &purpose) const override
    {
        return QSettings(organization(), application()).value(key(purpose)).toString();
    }
    void setFolder(const QString &purpose, const QString &folder) override
    {
        QSettings settings(organization(), application());
        if (folder.isEmpty())
            settings.remove(key(purpose));
        else
            settings.setValue(key(purpose), folder);
    }

private:
    static QString key(const QString &purpose) { return "FileLocations/"_L1 + purpose; }
    static QString application() { return QCoreApplication::applicationName(); }
    static QString organization()
    {
        const QString name = QCoreApplication::organizationName();
        return name.isEmpty() ? application() : name;
    }
};

} // namespace

FileSystemSettings::Store::~Store() = default;
FileSystemSettings::FileSystemSettings() = default;
FileSystemSettings::~FileSystemSettings() = default;

FileSystemSettings::DirLocation FileSystemSettings::DirLocationData::defaultValue()
{
    static const DirLocation value = locations().add(u"default"_s, {});
    return value;
}

std::unique_ptr<FileSystemSettings::Store> FileSystemSettings::memoryStore()
{
    return std::make_unique<MemoryStore>();
}

FileSystemSettings &FileSystemSettings::Instance()
{
    static FileSystemSettings only;
    return only;
}

FileSystemSettings::DirLocation FileSystemSettings::addLocation(const QString &name)
{
    return locations().add(name, {});
}

QString FileSystemSettings::fileLocation(const DirLocation &location) const
{
    return store().folder(location.name());
}

void FileSystemSettings::setFileLocation(const DirLocation &location, const QString &folder)
{
    store().setFolder(location.name(), folder);
}

std::unique_ptr<FileSystemSettings::Store> FileSystemSettings::setStore(std::unique_ptr<Store> store)
{
    return std::exchange(m_store, std::move(store));
}

FileSystemSettings::Store &FileSystemSettings::store() const
{
    static UserStore user;
    return m_store ? *m_store : user;
}

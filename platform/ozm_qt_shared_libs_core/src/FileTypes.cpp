#include <ozm_qt_shared_libs_core/FileTypes.h>

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Registry = ExtendableEnum<FileTypes::FileTypeData>;

Registry &registry()
{
    static Registry only;
    return only;
}

bool isSeparator(QChar c)
{
    return c == u'/' || c == QDir::separator();
}

QStringView withoutSeparatorsAtEnd(QStringView path)
{
    while (!path.isEmpty() && isSeparator(path.back()))
        path.chop(1);
    return path;
}

bool hasExtension(QStringView path, const QString &extension)
{
    return path.size() > extension.size() && path.chopped(extension.size()).endsWith(u'.') &&
           path.endsWith(extension, Qt::CaseInsensitive);
}

} // namespace

FileTypes::Ref FileTypes::FileTypeData::defaultValue()
{
    static const Ref none = registry().add({}, {});
    return none;
}

FileTypes::Ref FileTypes::add(const QString &name, const QStringList &extensions)
{
    return registry().add(name, {extensions});
}

std::optional<FileTypes::Ref> FileTypes::find(const QString &name)
{
    return registry().find(name);
}

bool FileTypes::fileMatchesAnyType(const QString &path, const QList<Ref> &types)
{
    const QStringView name = withoutSeparatorsAtEnd(path);
    return std::ranges::any_of(types, [name](const Ref &type) {
        return std::ranges::any_of(type.data().extensions, [name](const QString &extension) {
            return hasExtension(name, extension);
        });
    });
}

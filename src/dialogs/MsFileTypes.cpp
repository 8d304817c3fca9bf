#include "dialogs/MsFileTypes.h"

#include <MsFileInfo.h>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

struct MsFileTypes
{
    FileTypeRef any;
    FileTypeRef file;
    FileTypeRef folder;
};

/// In an order that is the same in every process.
QStringList sorted(const QSet<QString> &extensions)
{
    QStringList list = extensions.values();
    list.sort();
    return list;
}

const MsFileTypes &types()
{
    static const QStringList files = sorted(msreader::MsFileInfo::fileExtensions());
    static const QStringList folders = sorted(msreader::MsFileInfo::folderExtensions());
    static const MsFileTypes registered{FileTypes::add(u"MS"_s, files + folders),
                                        FileTypes::add(u"MS_FILE"_s, files),
                                        FileTypes::add(u"MS_DIR"_s, folders)};
    return registered;
}

// Applications look the types up by name, before they ask this library for anything.
[[maybe_unused]] const MsFileTypes &registeredAtLoad = types();

} // namespace

FileTypeRef msFileType()
{
    return types().any;
}

FileTypeRef msFolderType()
{
    return types().folder;
}

} // namespace ozm

#include "ZipFile.h"

#include "../Texts.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#ifdef OZM_AUDIT_WITH_ZIP
#include <zip.h>
#endif

namespace ozm::audit {

namespace {

Error notPacked(const QString &path, const QString &detail)
{
    return Error(ErrorCode::FileAccess,
                 Texts::tr("\"%1\" cannot be written: %2").arg(QDir::toNativeSeparators(path), detail))
        .ecatch(OZM_HERE);
}

} // namespace

#ifdef OZM_AUDIT_WITH_ZIP

Error packFolder(const QString &folder, const QString &path)
{
    int code = 0;
    zip_t *archive = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_EXCL, &code);
    if (!archive) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const QString detail = QString::fromUtf8(zip_error_strerror(&error));
        zip_error_fini(&error);
        return notPacked(path, detail);
    }
    const QString top = QFileInfo(path).completeBaseName() + u'/';
    const QDir base(folder);
    bool good = true;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (good && files.hasNext()) {
        const QString file = files.next();
        // The source belongs to the archive once it is added.
        zip_source_t *source = zip_source_file(archive, file.toUtf8().constData(), 0, -1);
        const QByteArray name = (top + base.relativeFilePath(file)).toUtf8();
        good = source && zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8) >= 0;
        if (!good)
            zip_source_free(source);
    }
    if (good && zip_close(archive) == 0)
        return {};
    Error error = notPacked(path, QString::fromUtf8(zip_strerror(archive)));
    zip_discard(archive);
    return error;
}

#else

Error packFolder(const QString &, const QString &path)
{
    return notPacked(path, Texts::tr("this program was built without zip files. Choose a folder."));
}

#endif

} // namespace ozm::audit

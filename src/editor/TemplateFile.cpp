#include "editor/TemplateFile.h"

#include <ozm_widgets/TECWrapper.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace ozm {

Result<TemplateFile::Loaded> TemplateFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error(ErrorCode::FileAccess, u"\"%1\" cannot be read."_s.arg(path));
    bool ok = false;
    const QString content = TECWrapper::unwrapTEC(QString::fromUtf8(file.readAll()), &ok);
    if (!ok)
        return Error(ErrorCode::BadParameter, u"Wrong template editor content format."_s);
    return Loaded{content, "UTF-8", false};
}

Error TemplateFile::write(const QString &path, const QString &content)
{
    const QByteArray bytes =
        (u"<ozm_template version=\"1.0\">"_s + content + u"</ozm_template>"_s).toUtf8();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return Error(ErrorCode::FileAccess, u"\"%1\" cannot be written: %2"_s.arg(path, file.errorString()));
}

void TemplateFile::opened(const QString &path)
{
    m_path = path;
    m_when = QFileInfo(path).lastModified();
    m_size = QFileInfo(path).size();
}

bool TemplateFile::changedOnDisk() const
{
    const QFileInfo info(m_path);
    return !m_path.isEmpty() && (info.lastModified() != m_when || info.size() != m_size);
}

} // namespace ozm

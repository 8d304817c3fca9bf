#include <ozm_widgets/TemplateEditorJSFileReader.h>

#include "support/Logging.h"

#include <QFile>

TemplateEditorJSFileReader::TemplateEditorJSFileReader(const QString &path)
    : m_path(path)
{}

bool TemplateEditorJSFileReader::readJSFile()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qCWarning(lcOzmWidgets) << "Can't read file" << m_path;
        return false;
    }
    m_content = QString::fromUtf8(file.readAll());
    if (m_content.isEmpty()) {
        qCWarning(lcOzmWidgets) << "File content is empty!" << m_path;
        return false;
    }
    return true;
}

#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QString>

/// Reads the script library of the report templates, a UTF-8 file.
class OZM_WIDGETS_EXPORT TemplateEditorJSFileReader
{
public:
    explicit TemplateEditorJSFileReader(const QString &path);

    /// The text that the last successful readJSFile() read.
    [[nodiscard]] QString fileContent() const { return m_content; }

    /// False, with a warning, when the file cannot be opened or is empty.
    [[nodiscard]] bool readJSFile();

private:
    QString m_path;
    QString m_content;
};

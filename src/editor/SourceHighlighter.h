#pragma once

#include <QSyntaxHighlighter>

namespace ozm::editor {

class CodeModel;

/// Colours the source of a template: tags, comments, scripts, and codes, of which unknown ones are marked.
class SourceHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    enum class Language
    {
        Template,
        Script
    };

    SourceHighlighter(QTextDocument *document, const CodeModel *codes, Language language);

protected:
    void highlightBlock(const QString &text) override;

private:
    void highlightTags(const QString &text);
    void highlightScript(const QString &text, qsizetype from, qsizetype to);
    void highlightCodes(const QString &text);

    const CodeModel *m_codes;
    const Language m_language;
};

} // namespace ozm::editor

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
    /// Colours the markup that begins at or after @p from; returns its end, or -1 when there is none.
    qsizetype beginMarkup(const QString &text, qsizetype from, int &state);
    /// Colours up to the end of the markup that @p state is in; returns the place after it.
    qsizetype endMarkup(const QString &text, qsizetype from, int &state);
    void highlightScript(const QString &text, qsizetype from, qsizetype to);
    void highlightCodes(const QString &text);

    const CodeModel *m_codes;
    const Language m_language;
};

} // namespace ozm::editor

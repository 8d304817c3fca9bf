#pragma once

#include <QHash>
#include <QSyntaxHighlighter>

namespace ozm::editor {

/// Shows paragraphs of named styles with the letters that paper gives them. Only for the eye: the document is not
/// changed, and formats of its own stand above the style's. Begins with the first paragraph that has a style: looking at
/// each of a long text takes its time.
class ParagraphLooks : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    ParagraphLooks(QTextDocument *document, const QString &styleSheet);

    void setStyleSheet(const QString &styleSheet);

protected:
    void highlightBlock(const QString &text) override;

private:
    /// Where a paragraph from @p position on, of the next @p length characters, has a style.
    void beginIfStyled(int position, int length);

    QTextDocument &m_text;
    QString m_styleSheet;
    QHash<QString, QTextCharFormat> m_looks; ///< By class.
};

} // namespace ozm::editor

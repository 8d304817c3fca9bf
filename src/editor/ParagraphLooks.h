#pragma once

#include <QHash>
#include <QSyntaxHighlighter>

namespace ozm::editor {

/// Shows paragraphs of named styles with the letters that paper gives them. Only for the eye: the document is not
/// changed, and formats of its own stand above the style's.
class ParagraphLooks : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    ParagraphLooks(QTextDocument *document, const QString &styleSheet);

    void setStyleSheet(const QString &styleSheet);

protected:
    void highlightBlock(const QString &text) override;

private:
    QString m_styleSheet;
    QHash<QString, QTextCharFormat> m_looks; ///< By class.
};

} // namespace ozm::editor

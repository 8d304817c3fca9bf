#include "editor/ParagraphLooks.h"

#include "templates/document/ParagraphClass.h"
#include "templates/paper/ParagraphStyles.h"

#include <QTextBlock>

#include <utility>

namespace ozm::editor {

ParagraphLooks::ParagraphLooks(QTextDocument *document, const QString &styleSheet)
    : QSyntaxHighlighter(static_cast<QObject *>(document))
    , m_text(*document)
    , m_styleSheet(styleSheet)
{
    connect(document, &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) { beginIfStyled(position, added); });
    beginIfStyled(0, document->characterCount());
}

void ParagraphLooks::beginIfStyled(int position, int length)
{
    if (document())
        return;
    for (QTextBlock block = m_text.findBlock(position);
         block.isValid() && block.position() <= position + length; block = block.next()) {
        if (paragraphClass(block).isEmpty())
            continue;
        setDocument(&m_text);
        rehighlight();
        return;
    }
}

void ParagraphLooks::setStyleSheet(const QString &styleSheet)
{
    if (std::exchange(m_styleSheet, styleSheet) == styleSheet)
        return;
    m_looks.clear();
    rehighlight();
}

void ParagraphLooks::highlightBlock(const QString & /*text*/)
{
    const QTextBlock block = currentBlock();
    const QString name = paragraphClass(block);
    if (name.isEmpty())
        return;
    auto look = m_looks.constFind(name);
    if (look == m_looks.constEnd())
        look = m_looks.insert(name, lookOfClass(name, m_styleSheet));
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        QTextCharFormat shown = *look;
        const auto own = fragment.charFormat().properties();
        for (auto each = own.cbegin(); each != own.cend(); ++each)
            shown.clearProperty(each.key());
        setFormat(fragment.position() - block.position(), fragment.length(), shown);
    }
}

} // namespace ozm::editor

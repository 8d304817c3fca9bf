#include "editor/EditorViews.h"

#include "editor/CodeEdit.h"
#include "editor/CodeModel.h"
#include "editor/EditorHistory.h"
#include "editor/RichTextView.h"
#include "editor/SourceHighlighter.h"

#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace ozm::editor {

EditorViews::EditorViews(CodeModel *codes, QWidget *window)
    : QObject(window)
    , m_codes(codes)
    , m_stack(new QStackedWidget(window))
    , m_rich(new RichTextView(codes, window))
    , m_plain(new CodeEdit(window))
    , m_formattedView(std::make_unique<FormattedView>(m_rich))
    , m_sourceView(std::make_unique<SourceView>(m_plain))
{
    m_stack->setObjectName(u"views"_s);
    m_rich->setObjectName(u"richView"_s);
    m_rich->setAccessibleName(tr("Formatted template"));
    m_plain->setObjectName(u"plainView"_s);
    m_plain->setAccessibleName(tr("Source of the template"));
    m_plain->setUndoneOutside(true);
    m_plain->setCompletion(codes);
    m_stack->addWidget(m_rich);
    m_stack->addWidget(m_plain);
}

EditorViews::~EditorViews() = default;

EditorView &EditorViews::current() const
{
    return m_stack->currentWidget() == m_rich ? *m_formattedView : *m_sourceView;
}

void EditorViews::show(const EditorSession &session)
{
    TemplateDocument *formatted = session.richDocument();
    if (formatted)
        formatted->setDisplayNames(m_codes->displayNames());
    m_rich->showDocument(formatted);
    m_plain->showDocument(formatted ? nullptr : session.document());
    if (!formatted && !session.isLarge() && !session.document()->findChild<SourceHighlighter *>())
        new SourceHighlighter(session.document(), m_codes, SourceHighlighter::Language::Template);
    m_stack->setCurrentWidget(formatted ? static_cast<QWidget *>(m_rich) : m_plain);
    current().widget()->setFocus();
}

void EditorViews::showNothing()
{
    m_rich->showDocument(nullptr);
    m_plain->showDocument(nullptr);
}

void EditorViews::refresh(const EditorSession &session)
{
    if (TemplateDocument *formatted = session.richDocument()) {
        formatted->setDisplayNames(m_codes->displayNames());
        m_rich->viewport()->update();
    } else if (auto *highlighter = session.document()->findChild<SourceHighlighter *>()) {
        highlighter->rehighlight();
    }
}

void EditorViews::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_formattedView->setReadOnly(readOnly);
    m_sourceView->setReadOnly(readOnly);
}

} // namespace ozm::editor

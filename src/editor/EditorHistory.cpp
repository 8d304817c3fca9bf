#include "editor/EditorHistory.h"

#include <QPlainTextDocumentLayout>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr qreal kMargin = 14;

std::unique_ptr<QTextDocument> makeDocument(EditorSession::Mode mode, const QString &source)
{
    if (mode == EditorSession::Mode::Rich) {
        auto document = std::make_unique<TemplateDocument>();
        document->setDocumentMargin(kMargin);
        // The view lays it out when it shows it, for its own width.
        document->setPageSize({0, 0});
        document->setSource(source);
        return document;
    }
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentLayout(new QPlainTextDocumentLayout(document.get()));
    document->setPlainText(source);
    document->setModified(false);
    return document;
}

/// The places in @p source where lines end, as the toolkit parts them.
QList<QStringView> lineEndsIn(const QString &source)
{
    static const QRegularExpression end(u"\r\n|[\n\r\u2029]"_s);
    QList<QStringView> ends;
    for (auto all = end.globalMatch(source); all.hasNext();)
        ends.append(all.next().capturedView());
    return ends;
}

/// The lines of @p source without their ends.
QStringList linesIn(QString source)
{
    source.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    return source.split(u'\n');
}

/// @p text, which @p source was edited to, with the line ends of it: the toolkit has the same for all.
QString withLineEndsOf(const QString &source, const QString &text)
{
    const QList<QStringView> ends = lineEndsIn(source);
    if (ends.isEmpty())
        return text;
    const QStringList before = linesIn(source);
    const QStringList now = text.split(u'\n');
    const auto firstChanged = std::ranges::mismatch(before, now).in1 - before.cbegin();
    const qsizetype more = now.size() - before.size();
    QString result = now.constFirst();
    for (qsizetype line = 1; line < now.size(); ++line) {
        // Behind the first change, lines are counted from the end.
        const qsizetype end = line <= firstChanged || more == 0 ? line - 1 : line - 1 - more;
        result += ends.at(qBound(qsizetype(0), end, ends.size() - 1));
        result += now.at(line);
    }
    return result;
}

} // namespace

EditorSession::EditorSession(Mode mode, const QString &source)
    : m_mode(mode)
    , m_isLarge(source.size() > kLargestRich)
    , m_plainSource(mode == Mode::Rich ? QString() : source)
    , m_document(makeDocument(mode, source))
{}

EditorSession::~EditorSession() = default;

TemplateDocument *EditorSession::richDocument() const
{
    return qobject_cast<TemplateDocument *>(m_document.get());
}

QString EditorSession::source() const
{
    if (isEdited())
        return documentSource();
    const TemplateDocument *rich = richDocument();
    return rich ? rich->originalSource() : m_plainSource;
}

bool EditorSession::prepareSource() const
{
    TemplateDocument *rich = richDocument();
    if (!rich || rich->isSourceReady())
        return false;
    rich->prepareSource();
    return true;
}

QString EditorSession::documentSource() const
{
    if (const TemplateDocument *rich = richDocument())
        return rich->source();
    // The toolkit's own text would have blanks for no-break spaces.
    QString text = m_document->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return m_plainSource.contains(u'\r') ? withLineEndsOf(m_plainSource, text) : text;
}

/// One step of the history of a session's document, which has done it already when this is made.
class EditorHistory::EditStep : public QUndoCommand
{
public:
    EditStep(EditorHistory &history, SessionPointer session)
        : QUndoCommand(EditorHistory::tr("Editing"))
        , m_history(history)
        , m_session(std::move(session))
    {}

    void undo() override { go(&QTextDocument::undo); }
    void redo() override
    {
        if (!std::exchange(m_isNew, false))
            go(&QTextDocument::redo);
    }

private:
    void go(void (QTextDocument::*step)(QTextCursor *))
    {
        QTextCursor cursor(m_session->document());
        (m_session->document()->*step)(&cursor);
        Q_EMIT m_history.went(cursor);
    }

    EditorHistory &m_history;
    const SessionPointer m_session;
    bool m_isNew = true;
};

class EditorHistory::ModeStep : public QUndoCommand
{
public:
    ModeStep(EditorHistory &history, SessionPointer from, SessionPointer to)
        : QUndoCommand(EditorHistory::tr("Change of mode"))
        , m_history(history)
        , m_from(std::move(from))
        , m_to(std::move(to))
    {}

    void undo() override { m_history.show(m_from); }
    void redo() override { m_history.show(m_to); }

private:
    EditorHistory &m_history;
    const SessionPointer m_from;
    const SessionPointer m_to;
};

EditorHistory::EditorHistory(QObject *parent)
    : QObject(parent)
    , m_session(newSession(Mode::Rich, {}))
{}

EditorHistory::~EditorHistory() = default;

EditorHistory::SessionPointer EditorHistory::newSession(Mode mode, const QString &source)
{
    auto session = std::make_shared<EditorSession>(mode, source);
    const std::weak_ptr<EditorSession> weak = session;
    connect(session->document(), &QTextDocument::undoCommandAdded, this, [this, weak] {
        if (!m_going)
            m_stack.push(new EditStep(*this, weak.lock()));
    });
    connect(session->document(), &QTextDocument::contentsChanged, this, &EditorHistory::edited);
    return session;
}

void EditorHistory::show(const SessionPointer &session)
{
    // The one before must not go while views still show it.
    const SessionPointer before = std::exchange(m_session, session);
    Q_EMIT sessionChanged();
    Q_EMIT edited();
}

bool EditorHistory::isModified() const
{
    if (m_stack.cleanIndex() < 0)
        return true;
    const int last = qMax(m_stack.cleanIndex(), m_stack.index());
    for (int step = qMin(m_stack.cleanIndex(), m_stack.index()); step < last; ++step)
        if (dynamic_cast<const EditStep *>(m_stack.command(step)))
            return true;
    return false;
}

void EditorHistory::start(Mode mode, const QString &source)
{
    show(newSession(mode, source));
    m_stack.clear();
}

void EditorHistory::switchTo(Mode mode)
{
    if (mode == m_session->mode())
        return;
    endStep();
    m_stack.push(new ModeStep(*this, m_session, newSession(mode, m_session->source())));
}

void EditorHistory::go(void (QUndoStack::*step)())
{
    m_going = true;
    (m_stack.*step)();
    m_going = false;
    endStep();
}

void EditorHistory::undo()
{
    go(&QUndoStack::undo);
}

void EditorHistory::redo()
{
    go(&QUndoStack::redo);
}

void EditorHistory::setClean()
{
    endStep();
    m_stack.setClean();
}

void EditorHistory::endStep()
{
    // A document merges what is typed into its last step, unless that is where it counts as unmodified.
    m_session->document()->setModified(false);
}

} // namespace ozm::editor

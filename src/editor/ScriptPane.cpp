#include "editor/ScriptPane.h"

#include "editor/CodeEdit.h"
#include "editor/SourceHighlighter.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMStyle.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

QPushButton *makeButton(const char *name, const QString &icon, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(OZMStyle::icon(icon), text, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

ScriptPane::ScriptPane(CodeModel *codes, const Decode &decode, QWidget *parent)
    : QWidget(parent)
    , m_decode(decode)
    , m_code(new CodeEdit(this))
    , m_error(new QLabel(this))
    , m_result(new QPlainTextEdit(this))
    , m_new(makeButton("scriptNew", u"document-new"_s, tr("&New"), this))
    , m_run(makeButton("scriptRun", u"run"_s, tr("&Run"), this))
    , m_apply(makeButton("scriptApply", u"dialog-ok"_s, tr("Inser&t"), this))
{
    m_code->setObjectName(u"scriptCode"_s);
    m_code->setAccessibleName(tr("Script"));
    m_code->setPlaceholderText(tr("templateEditorCore.number(inputParameters[\"[Mass]\"], 2)"));
    m_code->setCompletion(codes);
    new SourceHighlighter(m_code->document(), codes, SourceHighlighter::Language::Script);
    m_error->setObjectName(u"scriptError"_s);
    m_error->setAccessibleName(tr("Error of the script"));
    m_error->setWordWrap(true);
    m_error->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_result->setObjectName(u"scriptResult"_s);
    m_result->setAccessibleName(tr("Result of the script"));
    m_result->setPlaceholderText(tr("What the script gives"));
    m_result->setReadOnly(true);
    m_run->setToolTip(tr("Run the script with the data of the preview"));
    m_new->setToolTip(tr("Begin a new script"));

    auto *splitter = new BlackSplitter(Qt::Horizontal, this);
    splitter->addWidget(m_code);
    splitter->addWidget(m_result);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_new);
    buttons->addWidget(m_run);
    buttons->addWidget(m_error, 1);
    buttons->addWidget(m_apply);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(splitter, 1);
    layout->addLayout(buttons);
    connect(m_new, &QPushButton::clicked, this, &ScriptPane::newRequested);
    connect(m_run, &QPushButton::clicked, this, &ScriptPane::run);
    connect(m_apply, &QPushButton::clicked, this, [this] { Q_EMIT applied(script()); });
}

void ScriptPane::edit(const QString &script, bool isNew)
{
    m_code->setPlainText(syntax::codeOf(script));
    m_apply->setText(isNew ? tr("Inser&t") : tr("&Apply"));
    m_apply->setToolTip(isNew ? tr("Insert the script at the cursor")
                              : tr("Put the script back where it stands"));
    m_code->markLine(0);
    m_error->clear();
    m_result->clear();
    m_code->setFocus(Qt::OtherFocusReason);
}

QString ScriptPane::script() const
{
    return syntax::scriptOf(m_code->toPlainText());
}

void ScriptPane::setReadOnly(bool readOnly)
{
    m_code->setReadOnly(readOnly);
    m_new->setDisabled(readOnly);
    m_apply->setDisabled(readOnly);
}

void ScriptPane::insertCode(const QString &code)
{
    m_code->insertAtCursor(u"inputParameters[\"%1\"]"_s.arg(code));
}

void ScriptPane::run()
{
    showOutcome(m_decode(script()));
}

void ScriptPane::showOutcome(const TemplateReport &report)
{
    const bool failed = !report.failed.isEmpty();
    m_code->markLine(failed ? report.failed.constFirst().line : 0);
    m_error->setText(
        failed
            ? tr("Line %1: %2").arg(report.failed.constFirst().line).arg(report.failed.constFirst().message)
            : tr("Ran without an error."));
    m_result->setPlainText(failed ? QString() : syntax::withoutScriptTags(report.text));
}

} // namespace ozm::editor

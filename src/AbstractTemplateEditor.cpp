#include <ozm_widgets/AbstractTemplateEditor.h>

#include "editor/TemplateEditorPrivate.h"
#include "templates/syntax/Envelope.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/RowNode.h>

#include <QCloseEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

AbstractTemplateEditor::AbstractTemplateEditor(QWidget *parent)
    : QMainWindow(parent)
    , d(std::make_unique<Private>(this))
{
    setObjectName(u"templateEditor"_s);
}

AbstractTemplateEditor::~AbstractTemplateEditor() = default;

QList<RowNode *> AbstractTemplateEditor::previewRows() const
{
    return {};
}

QString AbstractTemplateEditor::previewName(const RowNode &row) const
{
    const QStringList columns = ozm::platform::columnsOf(row);
    return columns.isEmpty() ? QString() : row.getDataAt(columns.constFirst(), nullptr, false).toString();
}

QList<DecodeTecExtraData> AbstractTemplateEditor::extraData(const RowNode *row) const
{
    Q_UNUSED(row);
    return {};
}

ozm::ReportPaperOptions AbstractTemplateEditor::paperOptions() const
{
    return {};
}

QMap<QString, QList<RowNode *>> AbstractTemplateEditor::rowLists(const RowNode *row) const
{
    Q_UNUSED(row);
    return {};
}

QString AbstractTemplateEditor::storageDirectory() const
{
    return {};
}

QString AbstractTemplateEditor::sourceText() const
{
    return ozm::syntax::wrapped(d->content());
}

AbstractTemplateEditor::Mode AbstractTemplateEditor::mode() const
{
    return d->mode();
}

bool AbstractTemplateEditor::isReadOnly() const
{
    return d->isReadOnly();
}

bool AbstractTemplateEditor::isModified() const
{
    return d->isModified();
}

QString AbstractTemplateEditor::filePath() const
{
    return d->files().path();
}

bool AbstractTemplateEditor::setSourceText(const QString &wrapped)
{
    const auto content = ozm::syntax::unwrapped(wrapped);
    if (!content) {
        ozm::editor::tellWrongFormat(this);
        return false;
    }
    d->show(content->text);
    d->files().setNoFile();
    return true;
}

bool AbstractTemplateEditor::openFile(const QString &path)
{
    return d->files().open(path);
}

void AbstractTemplateEditor::setMode(Mode mode)
{
    d->setMode(mode);
}

void AbstractTemplateEditor::setReadOnly(bool readOnly)
{
    d->setReadOnly(readOnly);
}

void AbstractTemplateEditor::refresh()
{
    d->refresh();
}

void AbstractTemplateEditor::closeEvent(QCloseEvent *event)
{
    event->setAccepted(d->files().mayDiscard());
    if (event->isAccepted())
        d->files().giveUp();
}

void AbstractTemplateEditor::setVisible(bool visible)
{
    // Before the text is laid out, as the names of codes are in its lines.
    if (visible)
        d->fill();
    QMainWindow::setVisible(visible);
}

void AbstractTemplateEditor::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // A window within another one is shown with it.
    d->fill();
    if (!d->isFirstShowing())
        return;
    // Once the window is on screen, so that the questions come up over it.
    QTimer::singleShot(0, this, [this] { d->files().offerRescued(); });
}

void AbstractTemplateEditor::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        QTimer::singleShot(0, this, [this] { d->files().checkDisk(); });
}

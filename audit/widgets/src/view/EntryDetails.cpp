#include "EntryDetails.h"

#include "../model/EntryTexts.h"
#include "Difference.h"

#include <ozm_audit_widgets/Signature.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

QTextBrowser *browser(const QString &name)
{
    auto *made = new QTextBrowser;
    made->setObjectName(name);
    made->setOpenLinks(false);
    return made;
}

/// A text below its label, which is also the name that a screen reader says.
QWidget *labelled(const QString &label, QTextBrowser *text)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *head = new QLabel(label);
    head->setBuddy(text);
    QString plain = label;
    text->setAccessibleName(plain.remove(u'&'));
    layout->addWidget(head);
    layout->addWidget(text);
    return box;
}

void addFact(QString &html, const QString &name, const QString &value)
{
    if (value.isEmpty())
        return;
    // The columns of a table in a document stay where they are, whatever the direction of the language.
    const QString row = QGuiApplication::isRightToLeft()
                            ? u"<tr><td align=\"right\" style=\"padding-right:12px;\">%2</td>"
                              "<td align=\"right\" style=\"white-space:nowrap;\"><b>%1</b></td></tr>"_s
                            : u"<tr><td style=\"padding-right:12px;\"><b>%1</b></td><td>%2</td></tr>"_s;
    html += row.arg(name.toHtmlEscaped(), value.toHtmlEscaped().replace(u'\n', u"<br/>"_s));
}

} // namespace

EntryDetails::EntryDetails(const TrailModel &model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_facts(browser(u"entryFacts"_s))
    , m_old(browser(u"oldValue"_s))
    , m_new(browser(u"newValue"_s))
{
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(labelled(tr("&Entry"), m_facts));
    splitter->addWidget(labelled(tr("Old &value"), m_old));
    splitter->addWidget(labelled(tr("Ne&w value"), m_new));
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 1);
    splitter->setStretchFactor(2, 1);
    splitter->setChildrenCollapsible(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
    connect(m_facts, &QTextBrowser::anchorClicked, this,
            [this](const QUrl &url) { Q_EMIT entryRequested(url.path().toLongLong()); });
}

void EntryDetails::show(const Entry &entry)
{
    m_facts->setHtml(factsOf(entry));
    bool parsed = false;
    const OperationLogItemData content(entry.record, &parsed);
    if (!parsed || !content.isValid()) {
        m_old->clear();
        m_new->setPlainText(QString::fromUtf8(entry.record));
        return;
    }
    const Difference difference = Difference::between(content.oldValue(), content.value());
    m_old->setHtml(difference.oldHtml);
    m_new->setHtml(difference.newHtml);
}

void EntryDetails::clear()
{
    m_facts->clear();
    m_old->clear();
    m_new->clear();
}

QString EntryDetails::factsOf(const Entry &entry) const
{
    const EntryTexts texts = EntryTexts::of(entry);
    QString html = u"<p><b>%1</b></p><table align=\"%2\">"_s.arg(texts.what.toHtmlEscaped(),
                                                                 isRightToLeft() ? u"right"_s : u"left"_s);
    addFact(html, tr("Number"), QString::number(entry.number));
    addFact(html, tr("Kind"), kindTitle(entry.kind));
    addFact(html, tr("State"), TrailModel::marksText(m_model.marks(entry)));
    addFact(html, tr("As recorded"),
            timeText(entry, TrailModel::Zone::Recorded) +
                (entry.zone.isEmpty() ? QString() : u' ' + entry.zone));
    addFact(html, tr("In UTC"), timeText(entry, TrailModel::Zone::Utc));
    addFact(html, tr("Who"), personText(entry.user));
    addFact(html, tr("Role"), entry.user.role);
    addFact(html, tr("Authorised by"), entry.authoriser);
    addFact(html, tr("Subject"), texts.subject);
    addFact(html, tr("Attributes"), entry.attributes.join(u", "_s));
    addFact(html, tr("Reason"), entry.reason);
    addFact(html, tr("Outcome"), texts.outcome);
    addFact(html, tr("Step"), entry.context);
    addFact(html, tr("Program"), u"%1 %2"_s.arg(entry.program, entry.version).simplified());
    addFact(html, tr("Host"), entry.host);
    addFact(html, tr("Session"), entry.session);
    html += u"</table>"_s;
    const auto link = [](qint64 number, const QString &text) {
        return u"<p><a href=\"entry:%1\">%2</a></p>"_s.arg(number).arg(text.toHtmlEscaped());
    };
    if (entry.parent != 0)
        html += link(entry.parent, tr("Belongs to the group of entry %1").arg(entry.parent));
    if (const qint64 later = m_model.changedLaterBy(entry); later != 0)
        html += link(later, tr("The value was changed later, last by entry %1").arg(later));
    const QList<qint64> signatures = m_model.signaturesOf(entry.number);
    for (const qint64 number : signatures) {
        const auto signature = m_model.store().entry(number);
        if (signature)
            html += link(number, signatureText(signature.value()));
    }
    return html;
}

} // namespace ozm::audit

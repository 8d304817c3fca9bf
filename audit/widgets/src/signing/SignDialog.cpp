#include "../Texts.h"
#include "../model/EntryTexts.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit_widgets/SignDialog.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr int kContentLines = 4;
constexpr qsizetype kDigestBlock = 8;
constexpr qsizetype kBlocksInLine = 4;
// In characters of average width.
constexpr int kSignWidth = 80;

/// Digits in blocks, so that two people can compare them.
QString blocks(const QByteArray &hex)
{
    QString lines;
    for (qsizetype i = 0; i < hex.size(); i += kDigestBlock) {
        if (i > 0)
            lines += i % (kBlocksInLine * kDigestBlock) == 0 ? u'\n' : u' ';
        lines += QString::fromLatin1(hex.mid(i, kDigestBlock));
    }
    return lines;
}

} // namespace

class SignDialog::Private
{
public:
    void show();

    SigningSession &session;
    const SignedContent content;
    QLabel *signer = nullptr;
    QLabel *idLabel = nullptr;
    QLineEdit *id = nullptr;
    QLineEdit *secret = nullptr;
    QComboBox *meaning = nullptr;
    QLabel *problem = nullptr;
};

/// Fits the fields to what the session still needs.
void SignDialog::Private::show()
{
    const bool both = session.needsBoth();
    id->setVisible(both);
    idLabel->setVisible(both);
    signer->setVisible(!both);
    signer->setText(tr("Signing as %1. The password confirms it.").arg(personText(session.signer())));
    (both ? id : secret)->setFocus();
}

SignDialog::SignDialog(SigningSession &session, const SignedContent &content, const QStringList &meanings,
                       QWidget *parent)
    : QDialog(parent)
    , d(new Private{session, content})
{
    setWindowTitle(tr("Sign"));
    setObjectName(u"signDialog"_s);
    setMinimumWidth(fontMetrics().averageCharWidth() * kSignWidth);
    auto *words = new QPlainTextEdit(content.inWords());
    words->setObjectName(u"signedContent"_s);
    words->setReadOnly(true);
    words->setTabChangesFocus(true);
    words->setFixedHeight(words->fontMetrics().lineSpacing() * (kContentLines + 1));
    auto *digest = new QLabel(blocks(content.digest.toHex()));
    digest->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    digest->setAccessibleName(tr("Digest of what is signed"));
    d->meaning = new QComboBox;
    d->meaning->setObjectName(u"signatureMeaning"_s);
    d->meaning->addItems(meanings.isEmpty()
                             ? QStringList{tr("Approved"), tr("Reviewed"), tr("Responsible for the content")}
                             : meanings);
    d->signer = new QLabel;
    d->id = new QLineEdit;
    d->id->setObjectName(u"signerId"_s);
    d->secret = new QLineEdit;
    d->secret->setObjectName(u"signerSecret"_s);
    d->secret->setEchoMode(QLineEdit::Password);
    d->problem = new QLabel;
    d->problem->setObjectName(u"signProblem"_s);
    d->problem->setWordWrap(true);
    QFont bold = d->problem->font();
    bold.setBold(true);
    d->problem->setFont(bold);
    d->problem->hide();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Sign"));

    auto *form = new QFormLayout(this);
    form->addRow(tr("&What is signed:"), words);
    form->addRow(tr("Digest (SHA-256):"), digest);
    form->addRow(tr("&Meaning:"), d->meaning);
    form->addRow(d->signer);
    form->addRow(tr("&User id:"), d->id);
    d->idLabel = qobject_cast<QLabel *>(form->labelForField(d->id));
    form->addRow(tr("&Password:"), d->secret);
    form->addRow(d->problem);
    auto *warning = new QLabel(tr("A signature stands for your name, and cannot be taken back."));
    warning->setWordWrap(true);
    form->addRow(warning);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SignDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SignDialog::reject);
    connect(&session, &SigningSession::locked, this, [this] { d->show(); });
    d->show();
}

SignDialog::~SignDialog() = default;

void SignDialog::accept()
{
    const bool both = d->session.needsBoth();
    Error error =
        both ? d->session.signIn(d->id->text(), d->secret->text()) : d->session.confirm(d->secret->text());
    d->secret->clear();
    if (!error.hasError()) {
        const QStringList components =
            both ? QStringList{u"id"_s, u"password"_s} : QStringList{u"password"_s};
        error = d->session.logger().record(
            d->content.signature(d->session.signer(), d->meaning->currentText(), components));
    }
    if (!error.hasError()) {
        QDialog::accept();
        return;
    }
    d->problem->setText(error.errorMessage());
    d->problem->show();
    d->show();
}

} // namespace ozm::audit

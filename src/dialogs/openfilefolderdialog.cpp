#include <ozm_widgets/openfilefolderdialog.h>

#include <ozm_common_core_mini/AutomationStore.h>

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr double kUsualFontHeight = 15;

bool mayShow()
{
    return as::value(kFileExplorerAllowed, true).toBool();
}

void openUrl(const QString &path)
{
    QDesktopServices::openUrl(QUrl("file:///"_L1 + path, QUrl::TolerantMode));
}

QPushButton *makeButton(const QString &name, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    return button;
}

} // namespace

bool openfilefolderdialog::s_autoClose = false;

struct openfilefolderdialog::Form
{
    explicit Form(openfilefolderdialog *dialog);

    QVBoxLayout *verticalLayout;
    QPlainTextEdit *plainTextEdit_message;
    QGridLayout *gridLayout;
    QPushButton *openFileButton;
    QPushButton *openFolderButton;
    QPushButton *closeButton;
};

openfilefolderdialog::Form::Form(openfilefolderdialog *dialog)
    : verticalLayout(new QVBoxLayout(dialog))
    , plainTextEdit_message(new QPlainTextEdit(dialog))
    , gridLayout(new QGridLayout)
    , openFileButton(makeButton(u"openFileButton"_s, tr("Open &file"), dialog))
    , openFolderButton(makeButton(u"openFolderButton"_s, tr("Open f&older"), dialog))
    , closeButton(makeButton(u"closeButton"_s, tr("&Close"), dialog))
{
    dialog->setObjectName(u"openfilefolderdialog"_s);
    // Twice the type needs twice the room.
    const int scale = qMax(1, qRound(dialog->fontMetrics().height() / kUsualFontHeight));
    dialog->resize(400 * scale, 152 * scale);
    dialog->setWindowTitle(tr("Open file or folder"));

    plainTextEdit_message->setObjectName(u"plainTextEdit_message"_s);
    plainTextEdit_message->setAccessibleName(openfilefolderdialog::tr("Message"));
    plainTextEdit_message->setReadOnly(true);
    plainTextEdit_message->setStyleSheet(u"background-color: #EEEEEE"_s);
    // The text is to be read on that background under a dark style, too.
    QPalette colors = plainTextEdit_message->palette();
    colors.setColor(QPalette::Text, Qt::black);
    plainTextEdit_message->setPalette(colors);

    gridLayout->setObjectName(u"gridLayout"_s);
    gridLayout->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum), 0, 0);
    gridLayout->addWidget(openFileButton, 0, 1);
    gridLayout->addWidget(openFolderButton, 0, 2);
    gridLayout->addWidget(closeButton, 0, 3);
    // Enter, pressed without looking, must not start another program.
    closeButton->setDefault(true);
    closeButton->setFocus();

    verticalLayout->setObjectName(u"verticalLayout"_s);
    verticalLayout->addWidget(plainTextEdit_message);
    verticalLayout->addLayout(gridLayout);
    QMetaObject::connectSlotsByName(dialog);
}

// By value, as in the suite's other libraries, which are built against it.
// NOLINTBEGIN(performance-unnecessary-value-param)
openfilefolderdialog::openfilefolderdialog(QWidget *parent, QString errorMessage, QString path,
                                           QString message, bool enableOpenFile, bool enableOpenFolder)
    : QDialog(parent)
    , ui(std::make_unique<Form>(this))
    , filePath(std::move(path))
{
    ui->openFileButton->setEnabled(enableOpenFile);
    ui->openFolderButton->setEnabled(enableOpenFolder);
    ui->plainTextEdit_message->setPlainText(chooseText(errorMessage, message));
}
// NOLINTEND(performance-unnecessary-value-param)

openfilefolderdialog::~openfilefolderdialog() = default;

QString openfilefolderdialog::chooseText(const QString &errorMessage, const QString &message)
{
    if (!errorMessage.isEmpty()) {
        setWindowTitle(tr("Error"));
        ui->openFileButton->setEnabled(false);
        return errorMessage;
    }
    if (!message.isEmpty())
        return message;
    if (QFile::exists(filePath))
        return tr("File saved.  Would you like to open the file or folder?\n%1").arg(filePath);
    ui->openFileButton->setEnabled(false);
    return tr("File not created. There appears to be an issue with the given file.\n%1\n"
              "You may still open the given folder.")
        .arg(filePath);
}

int openfilefolderdialog::exec()
{
    return mayShow() ? QDialog::exec() : int(Rejected);
}

void openfilefolderdialog::showEvent(QShowEvent *event)
{
    // Shown in another way than by exec(), it closes as soon as it is up.
    if (!mayShow())
        QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
    QDialog::showEvent(event);
}

void openfilefolderdialog::on_openFileButton_clicked()
{
    if (QFile::exists(filePath))
        openUrl(filePath);
    accept();
}

void openfilefolderdialog::on_openFolderButton_clicked()
{
    const QFileInfo info(filePath);
    const QString folder = filePath.isEmpty() ? QString() : (info.isDir() ? filePath : info.absolutePath());
    if (!folder.isEmpty() && QDir(folder).exists())
        openUrl(folder);
    accept();
}

void openfilefolderdialog::on_closeButton_clicked()
{
    // Accepts, as all buttons do: only the window's own close rejects.
    accept();
}

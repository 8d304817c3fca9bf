#include "dialogs/FileCrawlerForm.h"

#include <ozm_widgets/FileCrawlerDialog.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// The longest status fits into it.
constexpr int kWidthInCharacters = 80;
constexpr int kPassedOverHeight = 90;

template <typename Widget>
Widget *make(const QString &name, QDialog *dialog)
{
    auto *widget = new Widget(dialog);
    widget->setObjectName(name);
    return widget;
}

} // namespace

FileCrawlerForm::FileCrawlerForm(QDialog *dialog)
    : enableRecursiveSearch(make<QCheckBox>(u"enableRecursiveSearch"_s, dialog))
    , crawlPathLine(make<QLineEdit>(u"crawlPathLine"_s, dialog))
    , crawlPathButton(make<QPushButton>(u"crawlPathButton"_s, dialog))
    , cancelSearchButton(make<QPushButton>(u"cancelSearchButton"_s, dialog))
    , buttonBox(make<QDialogButtonBox>(u"buttonBox"_s, dialog))
    , m_label(make<QLabel>(u"label"_s, dialog))
    , m_progress(make<QProgressBar>(u"searchProgress"_s, dialog))
    , m_status(make<QLabel>(u"searchStatus"_s, dialog))
    , m_passedOver(make<QPlainTextEdit>(u"passedOverFolders"_s, dialog))
{
    dialog->setObjectName(u"FileCrawlerDialog"_s);
    dialog->setWindowTitle(FileCrawlerDialog::tr("MS data path finder"));
    enableRecursiveSearch->setText(FileCrawlerDialog::tr("Enable recursive search"));
    m_label->setText(FileCrawlerDialog::tr("Path:"));
    m_label->setBuddy(crawlPathLine);
    crawlPathLine->setPlaceholderText(FileCrawlerDialog::tr("Folder path to start searching..."));
    crawlPathButton->setText(FileCrawlerDialog::tr("..."));
    crawlPathButton->setAccessibleName(FileCrawlerDialog::tr("Choose the folder"));
    crawlPathButton->setAutoDefault(false);
    crawlPathButton->setMaximumWidth(crawlPathButton->fontMetrics().averageCharWidth() * 8);
    cancelSearchButton->setText(FileCrawlerDialog::tr("Cancel search"));
    cancelSearchButton->setAutoDefault(false);
    buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    // How much there is to search is known at its end only.
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_status->setWordWrap(true);
    m_passedOver->setReadOnly(true);
    m_passedOver->setMaximumHeight(kPassedOverHeight);
    m_passedOver->hide();

    auto *gridLayout = new QGridLayout;
    gridLayout->setObjectName(u"gridLayout"_s);
    gridLayout->addWidget(enableRecursiveSearch, 0, 0, 1, 3);
    gridLayout->addWidget(m_label, 1, 0);
    gridLayout->addWidget(crawlPathLine, 1, 1);
    gridLayout->addWidget(crawlPathButton, 1, 2);
    auto *progressRow = new QHBoxLayout;
    progressRow->addWidget(m_progress, 1);
    progressRow->addWidget(cancelSearchButton);
    auto *verticalLayout = new QVBoxLayout(dialog);
    verticalLayout->setObjectName(u"verticalLayout"_s);
    verticalLayout->addLayout(gridLayout);
    verticalLayout->addLayout(progressRow);
    verticalLayout->addWidget(m_status);
    verticalLayout->addWidget(m_passedOver);
    verticalLayout->addStretch();
    verticalLayout->addWidget(buttonBox);
    // Hidden widgets keep their room, so that the buttons stay under the mouse.
    for (QWidget *widget : {static_cast<QWidget *>(m_progress), static_cast<QWidget *>(cancelSearchButton)}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    setSearching(false);
    dialog->resize(dialog->fontMetrics().averageCharWidth() * kWidthInCharacters,
                   dialog->sizeHint().height());
    QMetaObject::connectSlotsByName(dialog);
}

void FileCrawlerForm::setSearching(bool isSearching)
{
    for (QWidget *input : {static_cast<QWidget *>(enableRecursiveSearch),
                           static_cast<QWidget *>(crawlPathLine), static_cast<QWidget *>(crawlPathButton),
                           static_cast<QWidget *>(buttonBox->button(QDialogButtonBox::Ok))})
        input->setDisabled(isSearching);
    m_progress->setVisible(isSearching);
    cancelSearchButton->setVisible(isSearching);
    if (isSearching) {
        cancelSearchButton->setFocus();
        showPassedOver({});
        showProgress(0, 0);
    } else {
        m_status->clear();
        crawlPathLine->setFocus();
    }
}

void FileCrawlerForm::showProgress(int foldersSearched, int found)
{
    m_status->setText(
        FileCrawlerDialog::tr("Folders searched: %1. Data found: %2.").arg(foldersSearched).arg(found));
}

void FileCrawlerForm::showCanceled(int foldersSearched, int found)
{
    m_status->setText(FileCrawlerDialog::tr("Canceled. Folders searched: %1. Data found: %2.")
                          .arg(foldersSearched)
                          .arg(found));
}

void FileCrawlerForm::showFound(int found)
{
    m_status->setText(FileCrawlerDialog::tr("Data found: %1.").arg(found));
}

void FileCrawlerForm::showPassedOver(const QStringList &folders)
{
    m_passedOver->setPlainText(FileCrawlerDialog::tr("Passed over:\n%1").arg(folders.join(u'\n')));
    m_passedOver->setVisible(!folders.isEmpty());
}

} // namespace ozm

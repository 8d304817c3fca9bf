#pragma once

#include <QStringList>

class QCheckBox;
class QDialog;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace ozm {

/// The widgets of FileCrawlerDialog. They belong to the dialog.
class FileCrawlerForm
{
public:
    explicit FileCrawlerForm(QDialog *dialog);

    /// Lets nothing but canceling be done while a search runs.
    void setSearching(bool isSearching);
    void showProgress(int foldersSearched, int found);
    void showCanceled(int foldersSearched, int found);
    void showFound(int found);
    void showPassedOver(const QStringList &folders);

    QCheckBox *enableRecursiveSearch;
    QLineEdit *crawlPathLine;
    QPushButton *crawlPathButton;
    QPushButton *cancelSearchButton;
    QDialogButtonBox *buttonBox;

private:
    QLabel *m_label;
    QProgressBar *m_progress;
    QLabel *m_status;
    QPlainTextEdit *m_passedOver;
};

} // namespace ozm

#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QDialog>

#include <memory>

/**
 * Offers, after a file was written, to open it or the folder it is in; or tells that it was not written.
 *
 *     openfilefolderdialog prompt(this, {}, path, {}, true, true);
 *     prompt.exec();
 *
 * An @p errorMessage is shown as such; else @p message, else a text of its own, by whether the file exists.
 * Every button accepts. Where the automation store forbids the file explorer (kFileExplorerAllowed), exec()
 * returns 0 at once and nothing is shown.
 *
 * Files are opened by the URL "file:///" followed by the path as it stands, which is what the suite's
 * programs expect. Names that mean something else in a URL cannot be opened that way: those with "#" or "?",
 * and those with "%" before two hexadecimal digits. GUI thread only.
 */
class OZM_WIDGETS_EXPORT openfilefolderdialog : public QDialog
{
    Q_OBJECT

public:
    openfilefolderdialog(QWidget *parent, QString errorMessage, QString filePath, QString message,
                         bool enableOpenFile, bool enableOpenFolder);
    ~openfilefolderdialog() override;

    int exec() override;

    /// For callers, who may have the prompt closed by itself; nothing in this library reads it.
    static bool s_autoClose;

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void on_openFileButton_clicked();
    void on_openFolderButton_clicked();
    void on_closeButton_clicked();

private:
    struct Form;

    [[nodiscard]] QString chooseText(const QString &errorMessage, const QString &message);

    const std::unique_ptr<Form> ui;
    const QString filePath;
};

#pragma once

#include <ozm_common_widgets/RestrictedFileDialog.h>
#include <ozm_widgets/ozm_widgets_export.h>

/**
 * A file dialog drawn by the toolkit, whatever the system has, which makes sure before it closes that a file
 * can be saved where the user wants it.
 *
 * A bare name gets the extension of the chosen filter, and the file is opened for writing once, without a
 * trace; when that fails the user is told why and can choose another name. A notice beneath the name says
 * when a file would be replaced, as no question is asked about it, and why the button of a question that opens is
 * off: a folder is highlighted where a file is asked for, or there is no folder of the name. The Enter key in the name
 * box answers all the same.
 *
 *     const QString path = FileDialog::getSaveFileName(this, tr("Save table"), folder, tr("CSV (*.csv)"));
 *
 * An empty answer means canceled, also when the parent is deleted meanwhile. GUI thread only.
 */
class OZM_WIDGETS_EXPORT FileDialog : public ozm::RestrictedFileDialog
{
    Q_OBJECT

public:
    explicit FileDialog(QWidget *parent = nullptr, const QString &caption = {}, const QString &directory = {},
                        const QString &filter = {});
    ~FileDialog() override;

    /// Takes the name of a file that does not exist, too. @p selectedFilter and @p options are not used.
    [[nodiscard]] static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = {},
                                                 const QString &dir = {}, const QString &filter = {},
                                                 QString *selectedFilter = nullptr,
                                                 QFileDialog::Options options = {});
    /// @p selectedFilter and @p options are not used.
    [[nodiscard]] static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = {},
                                                 const QString &dir = {}, const QString &filter = {},
                                                 QString *selectedFilter = nullptr,
                                                 QFileDialog::Options options = {});
    /// Asks for a folder that is there.
    [[nodiscard]] static QString
    getExistingDirectory(QWidget *parent = nullptr, const QString &caption = {}, const QString &dir = {},
                         QFileDialog::Options options = QFileDialog::ShowDirsOnly);

    /// True when the file at @p path can be written; if not, tells the user, over @p parent, what to do about
    /// it. Nothing on the disk is changed by asking.
    [[nodiscard]] static bool checkIfFileCanBeOpenToWrite(QWidget *parent, const QString &path);

    /// @p fileName with the first extension of the name filter @p filter added, unless it has that already:
    /// "out" becomes "out.csv" under "Tables (*.csv *.tsv)". Filters that do not end with an extension add
    /// none. Only the last part of a name is compared, so an extension of two parts is added to any name:
    /// "out.data.cut" becomes "out.data.cut.data.cut" under "Data (*.data.cut *.csv)".
    [[nodiscard]] static QString fileNameWithExtension(const QString &fileName, const QString &filter);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void accept() override;

    void acceptSave();
    void enterFolder(const QString &folder);
    [[nodiscard]] QString noticeText() const;
    [[nodiscard]] QString pathToSave() const;
    void updateNotice();
};

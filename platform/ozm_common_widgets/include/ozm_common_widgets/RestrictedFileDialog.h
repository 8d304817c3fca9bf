#pragma once

#include <ozm_common_widgets/ozm_common_widgets_export.h>

#include <QDir>
#include <QFileDialog>

namespace ozm {

/**
 * The suite's file dialog: asks for what is on the disks of this computer, and for nothing else.
 *
 * The static functions show the system's own dialog where there is one; their arguments and answers are those
 * of QFileDialog. A parent that is deleted while they run ends them as canceled. Derived dialogs are drawn by
 * the toolkit: once QFileDialog::DontUseNativeDialog is set, it stays, whatever options are set later.
 */
class OZM_COMMON_WIDGETS_EXPORT RestrictedFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    explicit RestrictedFileDialog(QWidget *parent = nullptr, const QString &caption = {},
                                  const QString &directory = {}, const QString &filter = {});
    ~RestrictedFileDialog() override;

    /// Shows the folder @p directory.
    void setDirectory(const QString &directory) { QFileDialog::setDirectory(directory); }
    void setDirectory(const QDir &directory) { QFileDialog::setDirectory(directory); }

    /// As in QFileDialog, but keeps the dialog from turning native.
    void setOptions(QFileDialog::Options options);

    void setVisible(bool visible) override;

    /// As QFileDialog's function of this name, on the disks of this computer.
    [[nodiscard]] static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = {},
                                                 const QString &dir = {}, const QString &filter = {},
                                                 QString *selectedFilter = nullptr,
                                                 QFileDialog::Options options = {});
    /// As QFileDialog's function of this name, on the disks of this computer.
    [[nodiscard]] static QStringList getOpenFileNames(QWidget *parent = nullptr, const QString &caption = {},
                                                      const QString &dir = {}, const QString &filter = {},
                                                      QString *selectedFilter = nullptr,
                                                      QFileDialog::Options options = {});
    /// As QFileDialog's function of this name, on the disks of this computer.
    [[nodiscard]] static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = {},
                                                 const QString &dir = {}, const QString &filter = {},
                                                 QString *selectedFilter = nullptr,
                                                 QFileDialog::Options options = {});
    /// As QFileDialog's function of this name, on the disks of this computer.
    [[nodiscard]] static QString
    getExistingDirectory(QWidget *parent = nullptr, const QString &caption = {}, const QString &dir = {},
                         QFileDialog::Options options = QFileDialog::ShowDirsOnly);
};

} // namespace ozm

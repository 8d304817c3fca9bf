#pragma once

#include <ozm_common_widgets/RestrictedFileDialog.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <functional>
#include <memory>

namespace ozm {
class DialogNavigation;
class PickRecognition;
class SeenEntries;
} // namespace ozm

/**
 * A file dialog in which mass-spectrometry data is picked, files and vendors' raw folders together.
 *
 * A folder that is named as a raw folder is chosen, not shown from inside: by the Open button, by a double
 * click, by the Enter key in the list or in the name box. Any other folder is entered. Beneath the list
 * stands what each highlighted entry is recognised as, or why it holds no data: what holds none is left out
 * of the answer. Above the list are the folders above as buttons and a filter by name; dropped files are picked.
 *
 *     const QList<QString> data = SpectrumFileDialog::getSpectrumFileList(this, tr("Open data"), folder,
 * filter);
 *
 * Drawn by the toolkit whatever the system has. Relies on the toolkit's English text of its Open button;
 * where that is translated it is a plain dialog for several files, which shows the formats in its list. GUI thread only; entries are looked at in
 * another, and those that have not changed once only.
 */
class OZM_WIDGETS_EXPORT SpectrumFileDialog : public ozm::RestrictedFileDialog
{
    Q_OBJECT

public:
    explicit SpectrumFileDialog(QWidget *parent = nullptr);
    ~SpectrumFileDialog() override;

    /// The data that the user picked, in the dialog's order; empty when canceled, also by the parent's
    /// deletion. Begins with the filter that @p selectedFilter names, and leaves that as it is.
    [[nodiscard]] static QList<QString>
    getSpectrumFileList(QWidget *parent = nullptr, const QString &caption = {}, const QString &dir = {},
                        const QString &filter = {}, QString *selectedFilter = nullptr,
                        QFileDialog::Options options = {});

    /// Called with the data that the user picked; empty when canceled.
    using Answered = std::function<void(const QList<QString> &data)>;

    /// Asks for one acquisition, a file or a raw folder; empty when canceled.
    [[nodiscard]] static QString getSpectrumFile(QWidget *parent = nullptr, const QString &caption = {},
                                                 const QString &dir = {}, const QString &filter = {});

    /// Opens the dialog over its parent and does not wait: @p answered is called once with what
    /// getSpectrumFileList() would have returned, and not at all when @p context is deleted before.
    static void openSpectrumFileList(QWidget *parent, const QString &caption, const QString &dir,
                                     const QString &filter, QObject *context, const Answered &answered);

    /// True when @p path is named as a vendor's raw folder, and, with @p checkExistingDir, is a folder.
    [[nodiscard]] static bool isVendorRawFolder(QString path, bool checkExistingDir);

protected:
    void accept() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void currentChanged_custom(const QString &path);
    void directoryEntered_custom(const QString &path);
    void openButton_clicked();

private:
    [[nodiscard]] static QList<QString> _internalGetOpenFunction(QWidget *parent, const QString &caption,
                                                                 const QString &dir, const QString &filter,
                                                                 QString *selectedFilter,
                                                                 QFileDialog::Options options,
                                                                 std::shared_ptr<ozm::SeenEntries> *seen);
    [[nodiscard]] static SpectrumFileDialog *create(QWidget *parent, const QString &caption,
                                                    const QString &dir, const QString &filter,
                                                    QString *selectedFilter, QFileDialog::Options options);
    void rewire(QWidget *openButton);
    void showFormats();
    void addRecognition();
    void tellMissing(const QString &path);
    void openOne(const QString &path);
    void openSeveral(const QStringList &paths);
    void enter(const QString &folder);
    void finish();
    void showPicks();
    void recognise();
    [[nodiscard]] bool isPicked(const QString &path) const;

    const std::shared_ptr<ozm::SeenEntries> m_seen;
    ozm::DialogNavigation *m_navigation;
    // Null in the plain dialog.
    ozm::PickRecognition *m_recognition = nullptr;
    QString m_folder; ///< The one shown last, to tell the way up from the way down.
};

#pragma once

#include <QFileDialog>
#include <QObject>

namespace ozm {

class EntryFilter;
class PathBar;

/**
 * Ways to get about in a file dialog that the toolkit draws: the folders above as buttons, a filter for the list, the
 * user's places and the folders that data was opened from last, and dropped files. Keeps the size of the dialog.
 *
 * A child of its dialog, to be deleted in the destructor of the derived dialog: the toolkit would keep the places for
 * all programs otherwise.
 */
class DialogNavigation : public QObject
{
    Q_OBJECT

public:
    enum class RawFolders
    {
        Entered,
        Picked
    };

    DialogNavigation(QFileDialog &dialog, RawFolders rawFolders);
    ~DialogNavigation() override;

    /// Puts @p folder before the folders that data was opened from.
    static void addRecent(const QString &folder);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Emitted when the dialog is to show @p folder.
    void chosen(const QString &folder);

private:
    void addBar();
    void addPlaces();
    void addPlaces(const QStringList &folders);
    void takeDropped(const QStringList &paths);
    [[nodiscard]] QString sizeKey() const;

    QFileDialog &m_dialog;
    const RawFolders m_rawFolders;
    QList<QUrl> m_added; ///< Of the places.
    QSize m_shownSize;   ///< When the dialog came up.
};

} // namespace ozm

#pragma once

#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/NumberSet.h>
#include <ozm_audit_widgets/TrailFilter.h>

#include <QAbstractTableModel>

#include <memory>

namespace ozm::audit {

class Logger;

/**
 * The entries of a store as the rows of a table, all of them or those that a filter shows.
 *
 *     ozm::audit::TrailModel model(*store);
 *     model.setFilter(filter);
 *     table->setModel(&model);
 *
 * Without a filter, row and number of an entry follow from each other, and only the pages in sight are read:
 * ten million entries take no more memory than a thousand. With one, the trail is searched on a thread of
 * its own; rows come as they are found, and each takes about a byte. The model follows the store as it grows,
 * whoever writes it.
 *
 * The table is flat, in the order in which things happened, because that order is the evidence: entries of
 * several people stand between each other, and a filter may show a step without its group. A step of a group
 * is indented, and names its group in GroupRole.
 *
 * Marks follow from later entries, for which the whole trail is read once in the background: knownMarks() says
 * how far. GUI thread; the store must outlive the model, and so must the logger.
 */
class OZM_AUDIT_WIDGETS_EXPORT TrailModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns, from left to right.
    enum Column
    {
        Number,
        Time,
        State,
        Who,
        What,
        Subject,
        OldValue,
        NewValue,
        Reason,
        Outcome,
        ColumnCount,
    };
    /// Data beside that of Qt's own roles.
    enum Role
    {
        NumberRole = Qt::UserRole,
        GroupRole, ///< Number of the entry of the group; 0 for none.
        MarksRole, ///< As an integer of Marks.
    };
    /// Facts about an entry that later entries tell.
    enum class Mark
    {
        Pending = 1, ///< Handed to a queued logger, not yet on disk.
        Refused = 2, ///< Refused, or failed.
        ChangedSinceSigned = 4,
        Unfinished = 8,
        Undone = 16,
        Disposed = 32,
        Signed = 64,
        Reviewed = 128,
    };
    Q_DECLARE_FLAGS(Marks, Mark)
    /// Where the times of the column are read off.
    enum class Zone
    {
        Utc,
        Local,
        Recorded,
    };
    /// Columns whose values a filter offers to choose from.
    enum class Choice
    {
        User,
        Session,
        SubjectType,
        Attribute,
    };

    explicit TrailModel(Store &store, QObject *parent = nullptr);
    ~TrailModel() override;

    /// The store whose trail it shows.
    [[nodiscard]] Store &store() const;
    /// Rows that a queued @p logger has not written yet then stand at the newest end of an unfiltered trail.
    void setLogger(const Logger *logger);

    /// The filter in force.
    [[nodiscard]] TrailFilter filter() const;
    /// Shows what @p filter lets through. Rows come as the trail is read.
    void setFilter(const TrailFilter &filter);
    /// The clock by which times are shown.
    [[nodiscard]] Zone zone() const;
    /// Shows all times by @p zone.
    void setZone(Zone zone);

    /// True while the trail is searched for more rows.
    [[nodiscard]] bool isSearching() const;
    /// Entries of the trail, shown or not.
    [[nodiscard]] qint64 total() const;
    /// Entries that the filter shows.
    [[nodiscard]] qint64 shown() const;
    /// Entries read so far that the filter does not show.
    [[nodiscard]] qint64 hidden() const;
    /// Records that a queued logger has not written yet.
    [[nodiscard]] qint64 pending() const;
    /// Entries that the filter shows and nobody has reviewed.
    [[nodiscard]] qint64 notReviewed() const;
    /// Entries whose marks are known by now; total() once all are.
    [[nodiscard]] qint64 knownMarks() const;

    /// The entry at @p row; number 0 for one that is pending.
    [[nodiscard]] Entry entryAt(int row) const;
    /// -1 when the filter does not show the entry.
    [[nodiscard]] int rowOf(qint64 number) const;
    /// All that the filter shows. NotAllowed while it is searched for, or when it is in too many pieces.
    [[nodiscard]] Result<NumberSet> shownNumbers() const;
    /// The marks that are known by now.
    [[nodiscard]] Marks marks(const Entry &entry) const;
    /// The marks in words, for the screen.
    [[nodiscard]] static QString marksText(Marks marks);
    /// Numbers of the signatures over the entry.
    [[nodiscard]] QList<qint64> signaturesOf(qint64 number) const;
    /// The last later change of the value that @p entry changes, 0 when there is none.
    [[nodiscard]] qint64 changedLaterBy(const Entry &entry) const;
    /// Values that occur in the trail, as far as it was read.
    [[nodiscard]] QStringList choices(Choice choice) const;

    /**
     * By number or time in the order of the store, at once. By any other column once no more rows are shown than
     * sortLimit(): the store has no index for the order of those columns, and a sort of all would have to read
     * all. Emits sortRefused() beyond that.
     */
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    /// The most rows that are sorted by a column without an index.
    [[nodiscard]] static int sortLimit();
    /// The column in whose order the rows are.
    [[nodiscard]] int sortColumn() const;
    /// The direction of that order.
    [[nodiscard]] Qt::SortOrder sortOrder() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /// Looks the row up once, where a view asks for each cell in several roles.
    void multiData(const QModelIndex &index, QModelRoleDataSpan roleDataSpan) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// Any of the counts, or isSearching(), may have changed.
    void countsChanged();
    /// There are too many rows to sort; @p text says so for the screen.
    void sortRefused(const QString &text);
    /// The trail cannot be read.
    void failed(const ozm::Error &error);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TrailModel::Marks)

} // namespace ozm::audit

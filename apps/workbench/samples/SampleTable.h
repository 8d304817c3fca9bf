#pragma once

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Error.h>

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

namespace workbench {

/**
 * The samples and their annotations: rows below one RowNode, each with an id that stays with it.
 *
 * Everybody may look; only commands change it, and what they ask for they have checked before: values that
 * break a rule are a mistake in the program here. Views follow the signals. GUI thread.
 */
class SampleTable : public QObject
{
    Q_OBJECT

public:
    explicit SampleTable(QObject *parent = nullptr);
    ~SampleTable() override;

    /// The columns that people see, in the order of files and views.
    [[nodiscard]] static const QStringList &columns();
    /// Those that people fill in.
    [[nodiscard]] static const QStringList &annotationColumns();
    /// Those that say what data was found for a sample; empty for a sample without.
    [[nodiscard]] static const QStringList &dataColumns();
    /// The columns that matter for @p row.
    [[nodiscard]] static const QStringList &columnsOf(const RowNode &row);
    [[nodiscard]] static bool hasData(const RowNode &row);
    /// An empty row that fits the table; it has no id yet.
    [[nodiscard]] static RowNode emptyRow();
    [[nodiscard]] static qint64 idOf(const RowNode &row);

    [[nodiscard]] int rowCount() const;
    /// How many samples have data.
    [[nodiscard]] int dataCount() const { return m_dataCount; }
    /// Null when @p index is out of range.
    [[nodiscard]] const RowNode *row(int index) const;
    /// Null when there is none.
    [[nodiscard]] const RowNode *rowOf(qint64 id) const;
    /// -1 when there is none.
    [[nodiscard]] int indexOf(qint64 id) const;

    [[nodiscard]] bool hasName(const QString &name) const { return m_names.contains(name); }
    /// Refuses @p name for the sample @p id when another one has it.
    [[nodiscard]] ozm::Error checkName(const QString &name, qint64 id) const;

    /// A table of the same rows, to try steps on.
    [[nodiscard]] std::unique_ptr<SampleTable> copy() const;

    /// An id that no row has or had.
    [[nodiscard]] qint64 takeId() { return m_nextId++; }
    void set(qint64 id, const QString &column, const QVariant &value);
    void insert(int index, const RowNode &row);
    void remove(qint64 id);
    /// Puts @p rows in the place of all there are, and gives them ids.
    void replaceAll(const std::vector<RowNode> &rows);

Q_SIGNALS:
    void aboutToInsert(int index);
    void inserted();
    void aboutToRemove(int index);
    void removed();
    void changed(int index, const QString &column);
    void aboutToReset();
    void wasReset();

private:
    void add(int index, std::unique_ptr<RowNode> row);

    std::unique_ptr<RowNode> m_root;
    QHash<qint64, RowNode *> m_rows;
    QHash<QString, qint64> m_names;
    int m_dataCount = 0;
    qint64 m_nextId = 1;
};

} // namespace workbench

#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

/**
 * A row of named values in a tree of rows, as proteins hold peptides and peptides hold spectra.
 *
 * All rows of a tree share one list of columns. A parent owns its children; a row that is taken out of a
 * tree, or copied, carries its own columns with it and goes on working. A value that was never set is
 * invalid.
 *
 *     RowNode root({kName, kCharge});
 *     RowNode *row = root.addNewChildMatchRootDataSize();
 *     row->setDataAt(kName, u"T12"_s);
 *     bool found = false;
 *     const QVariant charge = row->getDataAt(kCharge, &found); // found, and invalid: not set yet
 *
 * Not for several threads at once. Destruction takes no stack, however deep the tree.
 */
class OZM_COMMON_CORE_MINI_EXPORT RowNode
{
public:
    RowNode();
    explicit RowNode(const QStringList &columnNames);

    /// Copies the row's columns and values. The copy stands alone: no parent, no children.
    RowNode(const RowNode &other);

    /// Takes over the other row's values by column name; the place in the tree and the children stay.
    RowNode &operator=(const RowNode &other);
    ~RowNode();

    /// A copy of the row with all that is below it; the copy has no parent.
    [[nodiscard]] std::unique_ptr<RowNode> copyTree() const;

    /// In the order of the columns.
    [[nodiscard]] QStringList columnNames() const;
    /// The same for all rows of a tree.
    [[nodiscard]] int columnCount() const;
    /// The column's index, or -1.
    [[nodiscard]] int columnIndex(const QString &name) const;
    /// Adds a column to the whole tree unless it is there, and returns its index.
    int addColumn(const QString &name);

    /**
     * The row's value in the column @p name; invalid, with @p found false, when the tree has no such column.
     *
     * With @p searchParents, a row without a value of its own answers with that of the nearest row above.
     */
    [[nodiscard]] QVariant getDataAt(const QString &name, bool *found = nullptr,
                                     bool searchParents = false) const;
    [[nodiscard]] QVariant getDataAt(int column) const;
    /// False, and nothing set, when the tree has no such column.
    bool setDataAt(const QString &name, const QVariant &value);
    bool setDataAt(int column, const QVariant &value);

    /// Null at the top.
    [[nodiscard]] RowNode *parent() const { return m_parent; }
    /// The row at the top, which may be this one.
    [[nodiscard]] const RowNode *root() const;
    /// How many rows are directly below this one.
    [[nodiscard]] int childCount() const { return static_cast<int>(m_children.size()); }
    /// Null when @p index is out of range.
    [[nodiscard]] RowNode *child(int index) const;
    /// The index of @p child among the children, or -1.
    [[nodiscard]] int indexOf(const RowNode *child) const;

    /// Adds an empty row with a value for each column of the tree.
    RowNode *addNewChildMatchRootDataSize();

    /**
     * Adds @p child and takes ownership; null, and no ownership taken, when @p child is null, has a parent,
     * or is this row or one above it.
     *
     * With @p matchRootColumns, columns that only the child knows are added to the tree; without, their
     * values are dropped.
     */
    RowNode *addChild(RowNode *child, bool matchRootColumns);

    /// As addChild() with matching columns, at @p index (clipped to the range). Refused as there.
    RowNode *insertChild(int index, std::unique_ptr<RowNode> child);

    /// Takes the child out of the tree with all that is below it; null when @p index is out of range.
    [[nodiscard]] std::unique_ptr<RowNode> takeChild(int index);

private:
    class Columns;

    [[nodiscard]] bool accepts(const RowNode *child) const;
    void adoptColumns(const std::shared_ptr<Columns> &columns, bool addMissing);
    void adoptColumnsBelow(const std::shared_ptr<Columns> &columns, bool addMissing);

    std::shared_ptr<Columns> m_columns;
    QVariantList m_values;
    RowNode *m_parent = nullptr;
    std::vector<std::unique_ptr<RowNode>> m_children;
};

#pragma once

#include <QAbstractTableModel>

namespace workbench {

class SampleEditor;
class SampleTable;

/**
 * Shows the samples as a table; what is typed into a cell goes through the editor.
 *
 * The editor must outlive the model.
 */
class SampleTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SampleTableModel(SampleEditor &editor, QObject *parent = nullptr);

    /// The name of @p column in the user's language.
    [[nodiscard]] static QString headingText(const QString &column);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /// False when nothing was changed; the editor's signal then says why.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    [[nodiscard]] qint64 idAt(int row) const;

private:
    [[nodiscard]] const SampleTable &table() const;

    SampleEditor &m_editor;
};

} // namespace workbench

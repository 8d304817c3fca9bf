#pragma once

#include <QAbstractItemModel>

namespace workbench {

class AuditTrail;
struct AuditEntry;

/**
 * Shows an audit trail as a tree of time, user, text and error, and follows it as it grows.
 *
 * Read-only. The trail must outlive the model.
 */
class AuditTrailModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        User,
        Text,
        ErrorText,
        ColumnCount,
    };

    explicit AuditTrailModel(const AuditTrail &trail, QObject *parent = nullptr);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] const std::vector<AuditEntry *> &below(const QModelIndex &parent) const;

    const AuditTrail &m_trail;
};

} // namespace workbench

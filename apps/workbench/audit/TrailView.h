#pragma once

#include <QTreeView>

namespace workbench {

class AuditTrailModel;

/// The audit trail; opens new entries with what is below them, and keeps them in sight.
class TrailView : public QTreeView
{
    Q_OBJECT

public:
    explicit TrailView(AuditTrailModel *model, QWidget *parent = nullptr);

private:
    void showNew(int first, int last);
};

} // namespace workbench

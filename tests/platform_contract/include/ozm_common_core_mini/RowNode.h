#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class RowNode
{
public:
    RowNode();
    RowNode(const RowNode &other);
    RowNode &operator=(const RowNode &other);
    ~RowNode();

    [[nodiscard]] QVariant getDataAt(const QString &name, bool *found, bool searchParents) const;
    [[nodiscard]] RowNode *parent() const;

    RowNode *addNewChildMatchRootDataSize();
    RowNode *addChild(RowNode *child, bool matchRootColumns);
};

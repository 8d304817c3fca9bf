#include <ozm_common_core_mini/RowNode.h>

#include <QHash>

#include <algorithm>
#include <utility>

class RowNode::Columns
{
public:
    explicit Columns(const QStringList &columnNames)
    {
        for (const QString &name : columnNames)
            add(name);
    }

    int add(const QString &name)
    {
        const auto known = m_index.constFind(name);
        if (known != m_index.constEnd())
            return *known;
        m_index.insert(name, static_cast<int>(m_names.size()));
        m_names.append(name);
        return static_cast<int>(m_names.size()) - 1;
    }

    [[nodiscard]] int indexOf(const QString &name) const { return m_index.value(name, -1); }
    [[nodiscard]] const QStringList &names() const { return m_names; }

private:
    QStringList m_names;
    QHash<QString, int> m_index;
};

RowNode::RowNode()
    : RowNode(QStringList())
{}

RowNode::RowNode(const QStringList &columnNames)
    : m_columns(std::make_shared<Columns>(columnNames))
{}

RowNode::RowNode(const RowNode &other)
    : m_columns(std::make_shared<Columns>(*other.m_columns))
    , m_values(other.m_values)
{}

RowNode &RowNode::operator=(const RowNode &other)
{
    if (this == &other)
        return *this;
    const QStringList names = other.columnNames();
    m_values.clear();
    for (int column = 0; column < names.size(); ++column)
        setDataAt(addColumn(names.at(column)), other.getDataAt(column));
    return *this;
}

RowNode::~RowNode()
{
    // Flattened into one list, so that a deep tree does not become a deep recursion.
    std::vector<std::unique_ptr<RowNode>> doomed = std::move(m_children);
    while (!doomed.empty()) {
        const std::unique_ptr<RowNode> last = std::move(doomed.back());
        doomed.pop_back();
        std::ranges::move(last->m_children, std::back_inserter(doomed));
        last->m_children.clear();
    }
}

std::unique_ptr<RowNode> RowNode::copyTree() const
{
    auto copy = std::make_unique<RowNode>(*this);
    std::vector<std::pair<const RowNode *, RowNode *>> open{{this, copy.get()}};
    while (!open.empty()) {
        const auto [from, to] = open.back();
        open.pop_back();
        for (const std::unique_ptr<RowNode> &child : from->m_children) {
            RowNode *added = to->addNewChildMatchRootDataSize();
            added->m_values = child->m_values;
            open.emplace_back(child.get(), added);
        }
    }
    return copy;
}

QStringList RowNode::columnNames() const
{
    return m_columns->names();
}

int RowNode::columnCount() const
{
    return static_cast<int>(m_columns->names().size());
}

int RowNode::columnIndex(const QString &name) const
{
    return m_columns->indexOf(name);
}

int RowNode::addColumn(const QString &name)
{
    return m_columns->add(name);
}

QVariant RowNode::getDataAt(const QString &name, bool *found, bool searchParents) const
{
    const int column = columnIndex(name);
    if (found)
        *found = column >= 0;
    QVariant value = getDataAt(column);
    if (!searchParents)
        return value;
    for (const RowNode *row = m_parent; row && !value.isValid(); row = row->m_parent)
        value = row->getDataAt(column);
    return value;
}

QVariant RowNode::getDataAt(int column) const
{
    // value(), not at(): columns added later reach a row only when something is set in it.
    return m_values.value(column);
}

bool RowNode::setDataAt(const QString &name, const QVariant &value)
{
    return setDataAt(columnIndex(name), value);
}

bool RowNode::setDataAt(int column, const QVariant &value)
{
    if (column < 0 || column >= columnCount())
        return false;
    if (m_values.size() <= column)
        m_values.resize(columnCount());
    m_values[column] = value;
    return true;
}

const RowNode *RowNode::root() const
{
    const RowNode *row = this;
    while (row->m_parent)
        row = row->m_parent;
    return row;
}

RowNode *RowNode::child(int index) const
{
    return index >= 0 && index < childCount() ? m_children[static_cast<std::size_t>(index)].get() : nullptr;
}

int RowNode::indexOf(const RowNode *child) const
{
    const auto found = std::ranges::find(m_children, child, &std::unique_ptr<RowNode>::get);
    return found != m_children.end() ? static_cast<int>(found - m_children.begin()) : -1;
}

RowNode *RowNode::addNewChildMatchRootDataSize()
{
    auto child = std::make_unique<RowNode>();
    child->m_columns = m_columns;
    child->m_values.resize(columnCount());
    child->m_parent = this;
    m_children.push_back(std::move(child));
    return m_children.back().get();
}

RowNode *RowNode::addChild(RowNode *child, bool matchRootColumns)
{
    if (!accepts(child))
        return nullptr;
    child->adoptColumnsBelow(m_columns, matchRootColumns);
    child->m_parent = this;
    m_children.emplace_back(child);
    return child;
}

RowNode *RowNode::insertChild(int index, std::unique_ptr<RowNode> child)
{
    RowNode *added = addChild(child.get(), true);
    if (!added)
        return nullptr;
    (void)child.release();
    const auto place = m_children.begin() + std::clamp(index, 0, childCount() - 1);
    std::rotate(place, m_children.end() - 1, m_children.end());
    return added;
}

std::unique_ptr<RowNode> RowNode::takeChild(int index)
{
    if (!child(index))
        return nullptr;
    const auto place = m_children.begin() + index;
    std::unique_ptr<RowNode> taken = std::move(*place);
    m_children.erase(place);
    taken->m_parent = nullptr;
    taken->adoptColumnsBelow(std::make_shared<Columns>(*m_columns), true);
    return taken;
}

bool RowNode::accepts(const RowNode *child) const
{
    return child && !child->m_parent && root() != child;
}

void RowNode::adoptColumns(const std::shared_ptr<Columns> &columns, bool addMissing)
{
    QVariantList values;
    values.resize(columns->names().size());
    for (qsizetype from = 0; from < m_values.size(); ++from) {
        const QString &name = m_columns->names().at(from);
        const int to = addMissing ? columns->add(name) : columns->indexOf(name);
        if (to < 0)
            continue;
        if (to >= values.size())
            values.resize(to + 1);
        values[to] = m_values.at(from);
    }
    m_values = std::move(values);
    m_columns = columns;
}

void RowNode::adoptColumnsBelow(const std::shared_ptr<Columns> &columns, bool addMissing)
{
    std::vector<RowNode *> open{this};
    while (!open.empty()) {
        RowNode *row = open.back();
        open.pop_back();
        row->adoptColumns(columns, addMissing);
        for (const std::unique_ptr<RowNode> &child : row->m_children)
            open.push_back(child.get());
    }
}

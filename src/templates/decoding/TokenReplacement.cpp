#include "templates/decoding/TokenReplacement.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::tokens {

namespace {

bool isBracket(QChar character)
{
    return character == u'[' || character == u']';
}

bool hasBracket(QStringView text)
{
    return text.contains(u'[') || text.contains(u']');
}

/// A bracket at either end and none between: two such keys can neither overlap nor hold one another.
bool isBracketed(QStringView key)
{
    return key.size() >= 2 && key.front() == u'[' && key.back() == u']' &&
           !hasBracket(key.sliced(1, key.size() - 2));
}

/// The replacement for a name of the text, if its key has a value.
struct Replacement
{
    bool known = false;
    bool brackets = false;
    QString text;
};

std::vector<Replacement> replacements(const QList<QString> &names, const QMap<QString, QVariant> &values)
{
    std::vector<Replacement> all;
    all.reserve(static_cast<std::size_t>(names.size()));
    for (const QString &name : names) {
        const auto value = values.constFind(name);
        Replacement &replacement = all.emplace_back();
        if (value == values.constEnd())
            continue;
        replacement.known = true;
        replacement.text = textOf(*value);
        replacement.brackets = hasBracket(replacement.text);
    }
    return all;
}

/**
 * All keys replaced at once, unless the outcome holds a key.
 *
 * Where it holds none, turn by turn gives the same text: a key that arises in some turn has nothing but
 * settled text between its brackets, and its brackets are settled, too, since those of a key still to be
 * replaced belong together. So the first that arose would stand in the outcome still.
 */
class SinglePass
{
public:
    SinglePass(QStringView text, const syntax::MarkedText &marks, const QMap<QString, QVariant> &values)
        : m_text(text)
        , m_marks(marks)
        , m_values(values)
        , m_replacements(replacements(marks.names, values))
    {}

    std::optional<QString> run()
    {
        m_out.reserve(outcomeSize());
        for (const syntax::Mark &mark : m_marks.marks) {
            if (mark.name >= 0)
                takePair(mark);
            else if (!takeBracket(mark))
                return std::nullopt;
            if (m_keyArose)
                return std::nullopt;
        }
        settle(m_text.size());
        return std::move(m_out);
    }

    /// The keys in the outcome that come later than those whose values they are made of.
    QList<BroughtInCode> arisen()
    {
        m_collects = true;
        (void)run();
        return m_arisen;
    }

private:
    [[nodiscard]] qsizetype outcomeSize() const
    {
        qsizetype size = m_text.size();
        for (const syntax::Mark &mark : m_marks.marks)
            if (mark.name >= 0 && at(mark.name).known)
                size += at(mark.name).text.size() - m_marks.names.at(mark.name).size();
        return size;
    }

    [[nodiscard]] const Replacement &at(int name) const
    {
        return m_replacements[static_cast<std::size_t>(name)];
    }

    void settle(qsizetype end)
    {
        m_out.append(m_text.sliced(m_settled, end - m_settled));
        m_settled = end;
    }

    void takePair(const syntax::Mark &mark)
    {
        const Replacement &replacement = at(mark.name);
        if (!replacement.known) {
            m_open = -1;
            return;
        }
        m_by = &mark;
        settle(mark.position);
        m_settled = mark.position + m_marks.names.at(mark.name).size();
        const qsizetype start = m_out.size();
        m_out.append(replacement.text);
        if (!replacement.brackets)
            return;
        for (qsizetype each = start; each < m_out.size() && !m_keyArose; ++each)
            if (isBracket(m_out.at(each)))
                noteBracket(each);
    }

    bool takeBracket(const syntax::Mark &mark)
    {
        settle(mark.position + 1);
        noteBracket(m_out.size() - 1);
        return !m_keyArose;
    }

    void noteBracket(qsizetype position)
    {
        if (m_out.at(position) == u'[') {
            m_open = position;
            m_openedBy = m_by;
        } else if (m_open >= 0) {
            const QString key = m_out.sliced(m_open, position + 1 - m_open);
            m_keyArose = m_values.contains(key);
            m_open = -1;
            if (m_collects && std::exchange(m_keyArose, false))
                collect(key);
        }
    }

    void collect(const QString &key)
    {
        const auto isLater = [this, &key](const syntax::Mark *by) {
            return !by || m_marks.names.at(by->name) < key;
        };
        if (m_by && isLater(m_by) && isLater(m_openedBy))
            m_arisen.append({key, m_marks.names.at(m_by->name), m_by->position});
    }

    const QStringView m_text;
    const syntax::MarkedText &m_marks;
    const QMap<QString, QVariant> &m_values;
    const std::vector<Replacement> m_replacements;
    QString m_out;
    qsizetype m_settled = 0; ///< Up to where the text is in the outcome, or replaced there.
    qsizetype m_open = -1;   ///< The last bracket of the outcome, if it is an opening one.
    bool m_keyArose = false;
    bool m_collects = false;
    const syntax::Mark *m_by = nullptr; ///< The last code that was replaced.
    const syntax::Mark *m_openedBy = nullptr;
    QList<BroughtInCode> m_arisen;
};

} // namespace

QString textOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join("; "_L1) : value.toString();
}

QString replaceInTurn(const QString &text, const QMap<QString, QVariant> &values)
{
    QString result = text;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        result.replace(value.key(), textOf(*value));
    return result;
}

QList<BroughtInCode> broughtIn(const QString &text, const syntax::MarkedText &marks,
                               const QMap<QString, QVariant> &values)
{
    return SinglePass(text, marks, values).arisen();
}

QString replace(const QString &text, const syntax::MarkedText &marks, const QMap<QString, QVariant> &values)
{
    if (values.isEmpty())
        return text;
    const bool bracketed =
        std::all_of(values.keyBegin(), values.keyEnd(), [](const QString &key) { return isBracketed(key); });
    if (bracketed) {
        if (auto outcome = SinglePass(text, marks, values).run())
            return *std::move(outcome);
    }
    return replaceInTurn(text, values);
}

} // namespace ozm::tokens

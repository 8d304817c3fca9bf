#pragma once

#include "templates/decoding/TokenReplacement.h"

#include <QCache>
#include <QList>
#include <QString>

#include <memory>

namespace ozm {

struct ScriptPiece
{
    qint32 start; ///< In the template, just after the tag.
    QString code;
    bool contained;       ///< Leaves nothing behind in the engine: see isContainedScript().
    bool readsParameters; ///< May look at them; false only when that is certain.
};

/// What can be known of a template before there is data for it.
class TemplateText
{
public:
    explicit TemplateText(const QString &text);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] const QList<ScriptPiece> &pieces() const { return m_pieces; }
    /// Whether all pieces are.
    [[nodiscard]] bool isContained() const { return m_contained; }
    [[nodiscard]] const tokens::MarkedText &marks() const { return m_marks; }

    /// The different names that getCodes() finds, in order of their first appearance...
    [[nodiscard]] const QList<QString> &names() const { return m_names; }
    /// ... and which of them stand in the text one after the other.
    [[nodiscard]] const QList<int> &sequence() const { return m_sequence; }

    /// How many characters this holds, or as many as would take the room that it takes.
    [[nodiscard]] qsizetype cost() const;

private:
    void collectNames();

    QString m_text;
    QList<ScriptPiece> m_pieces;
    bool m_contained = true;
    tokens::MarkedText m_marks;
    QList<QString> m_names;
    QList<int> m_sequence;
};

/// The templates parsed last, up to a bound on what they cost together.
class TemplateCache
{
public:
    TemplateCache();

    [[nodiscard]] std::shared_ptr<const TemplateText> parsed(const QString &text);

private:
    struct Key
    {
        QString text;

        bool operator==(const Key &other) const;
        friend size_t qHash(const Key &key, size_t seed) { return key.hash(seed); }
        [[nodiscard]] size_t hash(size_t seed) const;
    };

    QCache<Key, std::shared_ptr<const TemplateText>> m_templates;
};

/// A tag that begins or ends a piece of script, found in any letter case.
struct ScriptTag
{
    qsizetype position;
    qsizetype length;
    bool opening;
};

[[nodiscard]] QList<ScriptTag> scriptTags(QStringView text);

} // namespace ozm

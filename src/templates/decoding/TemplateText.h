#pragma once

#include "templates/syntax/Codes.h"

#include <QCache>
#include <QList>
#include <QSet>
#include <QString>

#include <memory>

namespace ozm {

struct ScriptPiece
{
    qint32 start; ///< In the template, just after the tag.
    QString code;
    bool mayChangeParameters; ///< False only when it is certain that it does not.
    QString function;         ///< See ScriptReading.
    bool leavesVariables;
};

/// A template parsed as far as that is possible without data.
class TemplateText
{
public:
    explicit TemplateText(const QString &text);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] const QList<ScriptPiece> &pieces() const { return m_pieces; }
    /// True when no piece leaves anything behind in the engine, or sees what another has left.
    [[nodiscard]] bool isContained() const { return m_contained; }
    /// The global variables of the pieces, when one of them calls the library: it might ask for them.
    [[nodiscard]] const QSet<QString> &variables() const { return m_variables; }
    [[nodiscard]] const syntax::MarkedText &marks() const { return m_marks; }

    /// The different names that getCodes() finds, in order of their first appearance.
    [[nodiscard]] const QList<QString> &names() const { return m_names; }
    /// The names in the order of the text, each as its index in names().
    [[nodiscard]] const QList<int> &sequence() const { return m_sequence; }

    /// How many characters this holds, or as many as would take the room that it takes.
    [[nodiscard]] qsizetype cost() const;

private:
    void collectPieces();
    void collectNames();

    QString m_text;
    QList<ScriptPiece> m_pieces;
    bool m_contained = true;
    QSet<QString> m_variables;
    syntax::MarkedText m_marks;
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

} // namespace ozm

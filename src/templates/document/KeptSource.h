#pragma once

#include "templates/document/PackedText.h"
#include "templates/document/TemplateParts.h"
#include "templates/document/TemplateSourceWriter.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

class QTextDocument;

namespace ozm::editor {

/**
 * The source that a document was read from, into which its edits are written.
 *
 * A rich document holds less than a source says: classes, borders of cells, line ends. So an edited document is
 * not written anew. Sections that nobody touched stay as they are, to the letter; in the others, the edited
 * lines are replaced, in tags that stay. Whatever comes out is read once more: where it is not the document,
 * the section is written anew after all.
 *
 * Of a source only its text and its sections are kept: where lines begin in one, and in which elements they stand, is found
 * again once it is edited.
 */
class KeptSource
{
public:
    KeptSource() = default;
    /// @p split is @p source taken apart.
    KeptSource(const QString &source, const SplitTemplate &split);

    [[nodiscard]] bool hasSource() const { return m_hasSource; }
    [[nodiscard]] QString source() const { return m_text.sliced(0, m_text.size()); }

    /// Finds out how @p document, which was read from the source and is as it was then, is @p written. May be left until
    /// there are edits, unless hasOtherLines().
    void learn(QTextDocument &document, WrittenSource written);
    [[nodiscard]] bool isLearned() const { return m_isLearned; }
    /// True when @p document, which was just read, has lines that come from none of the source: they are marked by learn(),
    /// as new ones could not be told from them later.
    [[nodiscard]] static bool hasOtherLines(const QTextDocument &document);

    /// The source with the edits of @p document, which are in @p written; nothing when the document has too little in
    /// common with it.
    [[nodiscard]] std::optional<QString> write(const QTextDocument &document,
                                               const WrittenSource &written) const;

private:
    struct KeptSection
    {
        qsizetype start = 0; ///< In the packed text.
        int firstRun = 0;
        bool endsOutside = false; ///< Its last line stands in no element.
    };
    struct Section
    {
        QList<const WrittenItem *> items; ///< Those with lines of the section.
        QString before;                   ///< New ones, written.
        QString after;
    };
    class Patch;

    void joinSections(const WrittenSource &written);
    void rememberOtherLines(WrittenSource &written, QTextDocument &document) const;
    [[nodiscard]] int sectionOf(int run) const;
    [[nodiscard]] std::optional<QList<Section>> sectionsOf(const WrittenSource &written) const;
    [[nodiscard]] QList<bool> changedSections(const QList<Section> &sections, const WrittenSource &written,
                                              bool withNeighbours) const;
    [[nodiscard]] size_t fingerprint(const WrittenSource &written,
                                     const QList<const WrittenItem *> &items) const;
    [[nodiscard]] QString sectionText(int index) const;
    [[nodiscard]] int runsOf(int index) const;
    [[nodiscard]] QString withLineEnds(QString text) const;
    /// New lines behind those of the source that they were parted from.
    [[nodiscard]] QString newItem(const WrittenSource &written, const WrittenItem &item) const;
    [[nodiscard]] QString edited(int index, const QTextDocument &document, const WrittenSource &written,
                                 const Section &section, bool anew) const;
    [[nodiscard]] QString joined(const QList<Section> &sections, const QTextDocument &document,
                                 const WrittenSource &written, bool anew) const;

    PackedText m_text;
    bool m_hasSource = false;
    bool m_endsWithReturns = false; ///< Each line does. Of a mixture, parts that are kept have others.
    QString m_around;
    QList<KeptSection> m_sections;
    int m_runs = 0;
    QList<size_t> m_fingerprints; ///< Of the sections as they were read.
    size_t m_fingerprint = 0;     ///< Of the whole.
    bool m_isLearned = false;
    bool m_isMapped = false; ///< Each line has its own run, and each item its section.
};

} // namespace ozm::editor

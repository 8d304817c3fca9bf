#include <ozm_widgets/TemplateFilling.h>

#include "templates/decoding/TemplateDecoder.h"
#include "templates/instructions/CodeFormatting.h"
#include "templates/instructions/InstructionTree.h"
#include "templates/instructions/RowOrder.h"
#include "templates/instructions/TemplateScope.h"
#include "templates/syntax/Codes.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QElapsedTimer>
#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using namespace instructions;

// A report of ten thousand pages is far below; a program that runs out of memory is lost with all that is in it.
constexpr qsizetype kMostCharacters = 100'000'000;
// Parts within parts that repeat can be empty, and still be a million million.
constexpr qsizetype kMostCopies = 1'000'000;

// Codes that no text has: what a repeated part or a format gives stands between them until all else is decoded.
constexpr char16_t kFirstNoncharacter = 0xFDD0;
constexpr char16_t kLastNoncharacter = 0xFDEF;

/// A text made of pieces of the template and of results that are not decoded any more.
struct Composed
{
    struct Piece
    {
        qsizetype position; ///< In the text.
        qsizetype source;   ///< In the template.
    };

    explicit Composed(const QString &all)
        : source(all)
    {
        takeMarkers();
    }

    /// Characters that the template does not have; false when there are no more.
    bool takeMarkers()
    {
        const QChar formerOpen = open;
        const QChar formerClose = close;
        const auto next = [this] {
            while (++marker <= kLastNoncharacter && source.contains(QChar(marker))) {
            }
            return QChar(marker);
        };
        open = next();
        close = next();
        text.replace(formerOpen, open).replace(formerClose, close);
        return marker <= kLastNoncharacter;
    }

    void addResult(const QString &result)
    {
        text += open + QString::number(results.size()) + close;
        results.append(result);
    }

    /// @p decoded with the results in their places; nothing when it does not have each place just once.
    [[nodiscard]] std::optional<QString> withResults(const QString &decoded) const
    {
        QString result;
        qsizetype at = 0;
        qsizetype number = 0;
        for (qsizetype start = decoded.indexOf(open); start >= 0; start = decoded.indexOf(open, at)) {
            const qsizetype end = decoded.indexOf(close, start);
            if (end < 0 || number >= results.size() ||
                QStringView(decoded).sliced(start + 1, end - start - 1) != QString::number(number))
                return std::nullopt;
            result += QStringView(decoded).sliced(at, start - at);
            result += results.at(number++);
            at = end + 1;
        }
        if (number != results.size())
            return std::nullopt;
        return result.append(QStringView(decoded).sliced(at));
    }

    [[nodiscard]] qsizetype sourceOf(qsizetype position) const
    {
        const auto after = std::ranges::upper_bound(pieces, position, {}, &Piece::position);
        if (after == pieces.begin())
            return position;
        return (after - 1)->source + position - (after - 1)->position;
    }

    const QString &source;
    QString text;
    QList<Piece> pieces;
    QStringList results;
    char16_t marker = kFirstNoncharacter - 1;
    QChar open;
    QChar close;
};

class Filling
{
public:
    Filling(const QString &content, const ReportData &data)
        : m_content(content)
        , m_data(data)
        , m_tree(instructionsOf(content))
        , m_isHtml(isHtml(content))
    {
        m_report.faulty = m_tree.faulty;
        m_rows = data.rows;
        m_rows.removeAll(nullptr);
    }

    TemplateReport run()
    {
        if (m_tree.parts.isEmpty()) {
            TemplateReport report = decodeWhole(m_content);
            report.faulty = m_report.faulty;
            return report;
        }
        if (m_rows.size() > 1)
            m_summary.emplace(m_rows);
        TemplateScope scope;
        scope.row = m_summary ? &m_summary->row() : m_rows.value(0);
        scope.extraData = &m_data.extraData;
        m_report.text = filled({0, m_content.size()}, m_tree.roots, scope);
        putInOrder();
        return std::move(m_report);
    }

private:
    [[nodiscard]] TemplateReport decodeWhole(const QString &text) const
    {
        return m_rows.isEmpty() ? decodeContent(text, m_data.extraData)
                                : AbstractTemplateEditor::decodeTECReport(text, m_rows, m_data.extraData);
    }

    [[nodiscard]] TemplateReport decode(const QString &text, const TemplateScope &scope)
    {
        if (!scope.row)
            return decodeContent(text, m_data.extraData);
        TemplateReport report;
        TemplateDecoder decoder = rowDecoder();
        if (!scope.outer) {
            (void)decoder.decode(text, *scope.row, m_data.extraData, &report);
            return report;
        }
        // The scripts of all copies have one deadline, as those of a template have.
        const auto deadline = TemplateEditorJSEngine::deadline();
        decoder.setRunsScripts(deadline.count() <= 0 || m_scriptTime < deadline.count());
        QElapsedTimer clock;
        clock.start();
        const auto valueOf = [&scope](const QString &name) {
            const auto field = scope.find(name);
            return field ? std::optional(field->shown) : std::nullopt;
        };
        (void)decoder.decode(text, valueOf, &report);
        if (syntax::hasScript(text))
            m_scriptTime += clock.elapsed();
        return report;
    }

    /// The part of the template in @p range, decoded, with the results of @p children in their places.
    QString filled(const SourceRange &range, const QList<int> &children, const TemplateScope &scope)
    {
        Composed composed = m_blank;
        compose(range, children, scope, composed);
        for (;;) {
            const TemplateReport report = decode(composed.text, scope);
            const auto text = composed.withResults(report.text);
            // A value that has the very markers in it would be taken for a place.
            if (text || !composed.takeMarkers()) {
                take(report, composed);
                return text.value_or(report.text);
            }
        }
    }

    void compose(const SourceRange &range, const QList<int> &children, const TemplateScope &scope,
                 Composed &composed)
    {
        qsizetype at = range.start;
        for (const int index : children) {
            const InstructedPart &part = m_tree.parts.at(index);
            addSource({at, part.range.start}, composed);
            at = part.range.end;
            if (const auto *condition = std::get_if<Condition>(&part.instruction)) {
                const bool isHeld = holds(*condition, conditionField(*condition, part, scope));
                const SourceRange &shown = isHeld ? part.held : part.otherwise;
                compose(shown, childrenIn(shown, part), scope, composed);
                continue;
            }
            composed.addResult(resultOf(part, scope));
        }
        addSource({at, range.end}, composed);
    }

    [[nodiscard]] QList<int> childrenIn(const SourceRange &range, const InstructedPart &part) const
    {
        QList<int> children;
        for (const int index : part.children)
            if (range.holds(m_tree.parts.at(index).range))
                children.append(index);
        return children;
    }

    void addSource(SourceRange range, Composed &composed)
    {
        auto cut = std::ranges::lower_bound(m_tree.cuts, range.start, {}, &SourceRange::end);
        while (range.start < range.end) {
            const bool isLast = cut == m_tree.cuts.end() || cut->start >= range.end;
            const qsizetype end = isLast ? range.end : std::max(cut->start, range.start);
            if (end > range.start) {
                composed.pieces.append({composed.text.size(), range.start});
                composed.text += QStringView(m_content).sliced(range.start, end - range.start);
            }
            range.start = isLast ? range.end : std::max((cut++)->end, range.start);
        }
    }

    QString resultOf(const InstructedPart &part, const TemplateScope &scope)
    {
        if (const auto *repeat = std::get_if<Repeat>(&part.instruction))
            return repeated(*repeat, part, scope);
        if (const auto *page = std::get_if<Page>(&part.instruction))
            return pageText(*page, part, scope);
        if (const auto *contents = std::get_if<Contents>(&part.instruction))
            return instructions::sourceOf(Contents{contents->levels, lineText(contents->title, part, scope)});
        return formattedCode(std::get<CodeFormat>(part.instruction), part, scope);
    }

    QString pageText(Page page, const InstructedPart &part, const TemplateScope &scope)
    {
        for (QString *line : {&page.header, &page.footer, &page.name, &page.version})
            *line = lineText(*line, part, scope);
        return instructions::sourceOf(page);
    }

    QString sourceOf(const SourceRange &range) const
    {
        return m_content.sliced(range.start, range.end - range.start);
    }

    /// Tells that the part cannot be filled, and gives it as it stands.
    QString refuse(const InstructedPart &part, const QString &message)
    {
        if (!m_refused.contains(part.mark.start)) {
            m_refused.insert(part.mark.start);
            m_report.faulty.append({sourceOf(part.mark), part.mark.start, message});
        }
        return sourceOf(part.range);
    }

    void missing(const QString &code, qsizetype position)
    {
        addOnce(m_report.unresolved, {u'[' + code + u']', position});
    }

    std::optional<TemplateField> conditionField(const Condition &condition, const InstructedPart &part,
                                                const TemplateScope &scope)
    {
        auto field = scope.find(condition.code);
        const bool compares = condition.test != Test::Present && condition.test != Test::Absent;
        if (!field && compares)
            missing(condition.code, part.mark.start);
        return field;
    }

    [[nodiscard]] std::optional<QList<RowNode *>> rowsOf(const QString &list) const
    {
        if (list.isEmpty())
            return m_rows;
        const auto found = m_data.lists.constFind(list);
        if (found == m_data.lists.constEnd())
            return std::nullopt;
        QList<RowNode *> rows = *found;
        rows.removeAll(nullptr);
        return rows;
    }

    QString repeated(const Repeat &repeat, const InstructedPart &part, const TemplateScope &scope)
    {
        auto rows = rowsOf(repeat.of);
        if (!rows)
            return refuse(part, Texts::tr("The list of rows \"%1\" does not exist.").arg(repeat.of));
        if (rows->isEmpty())
            return part.otherwise.isEmpty() ? withoutRows(repeat, part)
                                            : filled(part.otherwise, childrenIn(part.otherwise, part), scope);
        if (!repeat.sort.isEmpty())
            rows = sorted(*rows, repeat.sort);
        const QList<int> children = childrenIn(part.held, part);
        QString text;
        qsizetype number = 0;
        for (const RowNode *row : std::as_const(*rows)) {
            if (++m_copies > kMostCopies || m_characters > kMostCharacters)
                return refuse(part, Texts::tr("The part becomes too long."));
            const TemplateScope own{row, nullptr, &scope, ++number, rows->size()};
            const QString copy = filled(part.held, children, own);
            m_characters += copy.size();
            text += copy;
        }
        return text;
    }

    [[nodiscard]] QString withoutRows(const Repeat &repeat, const InstructedPart &part) const
    {
        if (repeat.empty.isEmpty())
            return {};
        const QString text = m_isHtml ? repeat.empty.toHtmlEscaped() : repeat.empty;
        if (repeat.extent == Extent::Row)
            return rowWithText(m_content, part.range, text);
        // Lines of their own around the section leave a line of its own for the text.
        if (part.range.start < part.mark.start)
            return "<p>"_L1 + text + "</p>"_L1;
        return sourceOf(part.range).endsWith(u'\n') ? text + u'\n' : text;
    }

    /// The text of a header or footer, with values in the places of codes.
    QString lineText(const QString &text, const InstructedPart &part, const TemplateScope &scope)
    {
        QString line;
        qsizetype at = 0;
        for (const auto &[start, end] : syntax::codeRanges(text)) {
            const QString code = text.sliced(start, end - start);
            const QString name = code.sliced(1).chopped(1);
            const auto field = scope.find(name);
            if (!field)
                missing(name, part.mark.start);
            line += text.sliced(at, start - at) + (field ? textOf(*field) : code);
            at = end;
        }
        return line + text.sliced(at);
    }

    QString formattedCode(const CodeFormat &format, const InstructedPart &part, const TemplateScope &scope)
    {
        const auto field = format.total == Total::None ? scope.find(format.code) : total(format, part);
        if (m_refused.contains(part.mark.start))
            return sourceOf(part.range);
        if (!field && format.empty.isEmpty()) {
            missing(format.code, part.range.start + sourceOf(part.range).lastIndexOf(u'['));
            return sourceOf(part.range);
        }
        return formatted(format, field, m_isHtml);
    }

    std::optional<TemplateField> total(const CodeFormat &format, const InstructedPart &part)
    {
        const auto rows = rowsOf(format.of);
        if (!rows) {
            refuse(part, Texts::tr("The list of rows \"%1\" does not exist.").arg(format.of));
            return std::nullopt;
        }
        QList<TemplateField> fields;
        bool isKnown = rows->isEmpty();
        for (const RowNode *row : *rows) {
            const auto field = fieldOf(format.code, *row);
            isKnown = isKnown || field;
            if (field)
                fields.append(*field);
        }
        if (!isKnown)
            return std::nullopt;
        QString error;
        auto result = totalOf(format.total, fields, &error);
        if (!result)
            refuse(part, error);
        return result;
    }

    /// Copies of a part tell the same of the same place.
    template <typename Entry>
    void addOnce(QList<Entry> &entries, const Entry &entry)
    {
        QString key = QString::number(qintptr(&entries)) + u':' + QString::number(entry.position) + u':';
        if constexpr (requires { entry.by; })
            key += entry.by;
        key += u':' + entry.code;
        if (m_told.contains(key))
            return;
        m_told.insert(key);
        entries.append(entry);
    }

    void take(const TemplateReport &report, const Composed &composed)
    {
        const auto add = [&](auto &all, auto entry) {
            entry.position = composed.sourceOf(entry.position);
            addOnce(all, entry);
        };
        for (const UnresolvedCode &code : report.unresolved)
            add(m_report.unresolved, code);
        for (const FailedScript &script : report.failed)
            add(m_report.failed, script);
        for (const BroughtInCode &code : report.broughtIn)
            add(m_report.broughtIn, code);
        if (!m_report.scriptError.hasError())
            m_report.scriptError = report.scriptError;
    }

    void putInOrder()
    {
        std::ranges::stable_sort(m_report.unresolved, {}, &UnresolvedCode::position);
        std::ranges::stable_sort(m_report.failed, {}, &FailedScript::position);
        std::ranges::stable_sort(m_report.broughtIn, {}, &BroughtInCode::position);
        std::ranges::stable_sort(m_report.faulty, {}, &FaultyInstruction::position);
    }

    const QString &m_content;
    const ReportData &m_data;
    const InstructionTree m_tree;
    const Composed m_blank{m_content}; ///< Looking for its markers takes a walk through the template.
    const bool m_isHtml;
    QList<RowNode *> m_rows;
    std::optional<SummaryRow> m_summary;
    TemplateReport m_report;
    QSet<qsizetype> m_refused;
    QSet<QString> m_told;
    qsizetype m_copies = 0;
    qsizetype m_characters = 0;
    qint64 m_scriptTime = 0; ///< In milliseconds.
};

} // namespace

TemplateReport fillTemplate(const QString &content, const ReportData &data)
{
    return Filling(content, data).run();
}

} // namespace ozm

#pragma once

#include "templates/decoding/TemplateText.h"

#include <ozm_widgets/DecodeTecExtraData.h>
#include <ozm_widgets/TemplateDiagnostics.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

class RowNode;
class TemplateEditorJSCodeReader;

namespace ozm {

/// The value of a code, and what the code shows without a format.
struct TemplateField
{
    QVariant value;
    QVariant shown;
};

/// The value that the decoding of one row finds for the code @p name, without a warning where there is none.
[[nodiscard]] std::optional<TemplateField> fieldOf(const QString &name, const RowNode &row,
                                                   const QList<DecodeTecExtraData> &extraData);
/// The value that the decoding of @p extraData by themselves finds.
[[nodiscard]] std::optional<TemplateField> fieldOf(const QString &name,
                                                   const QList<DecodeTecExtraData> &extraData);
/// The value that the row itself has in any column, named on screen or not.
[[nodiscard]] std::optional<TemplateField> fieldOf(const QString &name, const RowNode &row);

} // namespace ozm

/// Fills templates with data: finds a value for each code, and has the script reader put them in.
class TemplateDecoder
{
public:
    explicit TemplateDecoder(TemplateEditorJSCodeReader &reader)
        : m_reader(reader)
    {}

    /// The texts are without envelope here; without @p report, nothing is done for it.
    [[nodiscard]] QString decode(const QString &content, const QList<DecodeTecExtraData> &extraData,
                                 ozm::TemplateReport *report);
    [[nodiscard]] QString decode(const QString &text, const RowNode &row,
                                 const QList<DecodeTecExtraData> &extraData, ozm::TemplateReport *report);

    /// Decodes against any values: @p valueOf gives that of a name.
    using ValueOf = std::function<std::optional<QVariant>(const QString &name)>;
    [[nodiscard]] QString decode(const QString &text, const ValueOf &valueOf, ozm::TemplateReport *report);

    /// Without, all scripts fail as they do past their deadline.
    void setRunsScripts(bool runs) { m_runsScripts = runs; }

private:
    [[nodiscard]] QString read(const ozm::TemplateText &parsed, const QMap<QString, QVariant> &parameters,
                               ozm::TemplateReport *report);

    TemplateEditorJSCodeReader &m_reader;
    bool m_runsScripts = true;
};

/// Several rows made one by a GroupSummary, in a tree of its own below a copy of their top row.
class SummaryRow
{
public:
    explicit SummaryRow(const QList<RowNode *> &rows);
    ~SummaryRow();
    SummaryRow(const SummaryRow &) = delete;
    SummaryRow &operator=(const SummaryRow &) = delete;

    [[nodiscard]] const RowNode &row() const { return *m_row; }

private:
    std::unique_ptr<RowNode> m_root;
    RowNode *m_row;
};

/// The decoders of AbstractTemplateEditor's functions.
[[nodiscard]] TemplateDecoder rowDecoder();
[[nodiscard]] TemplateDecoder extraDataDecoder();

namespace ozm {

/// Decodes a content without its envelope as AbstractTemplateEditor::decodeTEC() decodes one with it.
/// Positions count from the content's first character.
[[nodiscard]] TemplateReport decodeContent(const QString &content,
                                           const QList<DecodeTecExtraData> &extraData);

} // namespace ozm

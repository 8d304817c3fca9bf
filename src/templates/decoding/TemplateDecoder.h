#pragma once

#include "templates/decoding/TemplateText.h"

#include <ozm_widgets/DecodeTecExtraData.h>
#include <ozm_widgets/TemplateDiagnostics.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

class RowNode;
class TemplateEditorJSCodeReader;

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

private:
    [[nodiscard]] QString read(const ozm::TemplateText &parsed, const QMap<QString, QVariant> &parameters,
                               ozm::TemplateReport *report);

    TemplateEditorJSCodeReader &m_reader;
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

namespace ozm {

/// Decodes a content without its envelope as AbstractTemplateEditor::decodeTEC() decodes one with it.
/// Positions count from the content's first character.
[[nodiscard]] TemplateReport decodeContent(const QString &content,
                                           const QList<DecodeTecExtraData> &extraData);

} // namespace ozm

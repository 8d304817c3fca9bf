#pragma once

#include <ozm_widgets/DecodeTecExtraData.h>
#include <ozm_widgets/TemplateDiagnostics.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QMap>
#include <QString>

class RowNode;

namespace ozm {

/// The data of one report. Owns nothing: all of it must outlive the filling.
struct ReportData
{
    /// One row fills the codes; several do as a group. Parts that repeat, and name no list, go through them.
    QList<RowNode *> rows;
    /// For codes that the rows do not know.
    QList<DecodeTecExtraData> extraData;
    /// Further rows for parts that repeat, by the name that the template asks for them.
    QMap<QString, QList<RowNode *>> lists = {};
};

/**
 * Fills a template that has instructions in it: parts that repeat for each row, parts that stand under a
 * condition, and codes with a format.
 *
 * Instructions are comments and spans, so that decodeTEC(), which does not know them, leaves a readable text.
 * All else comes out as decodeTEC() gives it, to the letter; a template without instructions does as a whole.
 *
 *     ozm::ReportData data{{&row}, {}};
 *     data.lists.insert(u"Samples"_s, m_rows);
 *     const ozm::TemplateReport filled =
 *         ozm::fillTemplate(u"<ul><li><!--ozm:repeat-row of=\"Samples\"-->[Name]</li></ul>"_s, data);
 *
 * Takes content without envelope. An instruction that cannot be followed stays in the text as it is, with the part
 * that it is about; the report names it. Values that repeated parts and formats put in are not searched for codes.
 * docs/report-templates.md has all instructions. GUI thread.
 */
[[nodiscard]] OZM_WIDGETS_EXPORT TemplateReport fillTemplate(const QString &content, const ReportData &data);

} // namespace ozm

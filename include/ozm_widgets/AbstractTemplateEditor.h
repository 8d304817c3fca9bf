#pragma once

#include <ozm_widgets/DecodeTecExtraData.h>
#include <ozm_widgets/ShortCodes.h>
#include <ozm_widgets/TemplateDiagnostics.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QMainWindow>
#include <QMetaObject>
#include <QString>

class RowNode;

/**
 * Report templates: texts with short codes such as "[Name]" and with pieces of script, filled with data.
 *
 *     const QString line = AbstractTemplateEditor::decodeTEC(u"[Sequence], [Charge]+"_s, &row, {});
 *
 * Codes without a value stay in the text, and so does the code of a script that fails; decodeTECReport()
 * says which, and gives the very text that decodeTEC() gives. Script tags stay, too: a text for readers
 * goes through withoutScriptTags(). Decoding is for the GUI thread.
 */
class OZM_WIDGETS_EXPORT AbstractTemplateEditor : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * Decodes a template in its envelope against the properties of @p extraData. Codes are patterns here: the
     * first property of its own (not inherited) that the code matches as a regular expression, in any letter
     * case, fills it. Numbers are shown as their column shows them, or with three digits after the point.
     */
    [[nodiscard]] static QString decodeTEC(const QString &text, const QList<DecodeTecExtraData> &extraData);

    /**
     * Decodes a template without envelope against @p row, and against @p extraData where the row has no
     * value: the property of the code's name with a small first letter fills it, unchanged. Empty when
     * @p row is null. Warns of codes that are known columns and have no value.
     */
    [[nodiscard]] static QString decodeTEC(const QString &text, const RowNode *row,
                                           const QList<DecodeTecExtraData> &extraData);

    /// Decodes against the summary of @p rows, as ozm::rn::GroupSummary makes it; against the row itself when
    /// it is the only one. Null rows are passed over; empty when there are no others.
    [[nodiscard]] static QString decodeTEC(const QString &text, const QList<RowNode *> &rows,
                                           const QList<DecodeTecExtraData> &extraData);

    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text,
                                                             const QList<DecodeTecExtraData> &extraData);
    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text, const RowNode *row,
                                                             const QList<DecodeTecExtraData> &extraData);
    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text,
                                                             const QList<RowNode *> &rows,
                                                             const QList<DecodeTecExtraData> &extraData);

    /// @p decodedText without its script tags; what stands between them stays.
    [[nodiscard]] static QString withoutScriptTags(const QString &decodedText);

    /// The codes that decoding understands for extra data of these types; a code that two types share is
    /// listed twice.
    [[nodiscard]] static QList<ShortCode> extraDataShortCodes(const QList<QMetaObject> &metaObjects);
};

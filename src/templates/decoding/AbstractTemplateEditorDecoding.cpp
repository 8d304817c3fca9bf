#include <ozm_widgets/AbstractTemplateEditor.h>

#include "support/Logging.h"
#include "templates/decoding/TemplateDecoder.h"
#include "templates/syntax/Envelope.h"
#include "templates/syntax/NamePattern.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_core_mini/TextUtils.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>
#include <platform/Errors.h>

#include <QCoreApplication>
#include <QMetaProperty>

#include <memory>

using namespace Qt::StringLiterals;

DecodeTecExtraData::DecodeTecExtraData(const QMetaObject &type, const QObject *source)
    : metaObject(type)
    , object(source)
{}

DecodeTecExtraData::DecodeTecExtraData(const QMetaObject &type, const void *source)
    : metaObject(type)
    , gadget(source)
{}

QVariant DecodeTecExtraData::read(int index) const
{
    const QMetaProperty property = metaObject.property(index);
    return object ? property.read(object) : property.readOnGadget(gadget);
}

namespace {

using KeptReader = std::unique_ptr<TemplateEditorJSCodeReader>;

/// The decoder whose reader @p kept holds from its first use to the end of the application object, which
/// engines must not outlive. A later application in the same process begins anew.
template <KeptReader &(*kept)()>
TemplateDecoder keptDecoder()
{
    if (!kept()) {
        kept() = std::make_unique<TemplateEditorJSCodeReader>();
        qAddPostRoutine([] { kept().reset(); });
    }
    return TemplateDecoder(*kept());
}

KeptReader &rowReader()
{
    static KeptReader reader;
    return reader;
}

KeptReader &extraDataReader()
{
    static KeptReader reader;
    return reader;
}

} // namespace

TemplateDecoder rowDecoder()
{
    return keptDecoder<rowReader>();
}

TemplateDecoder extraDataDecoder()
{
    return keptDecoder<extraDataReader>();
}

namespace {

/// Codes are found in the content, but their places are wanted in the text that holds it.
void movePositions(ozm::TemplateReport &report, qsizetype by)
{
    for (ozm::UnresolvedCode &code : report.unresolved)
        code.position += by;
    for (ozm::FailedScript &script : report.failed)
        script.position += by;
    for (ozm::BroughtInCode &code : report.broughtIn)
        code.position += by;
}

void refuse(ozm::TemplateReport *report, const QString &text)
{
    if (report)
        report->error = ozm::Error(ozm::codes::BadParameter, text).ecatch(OZM_PLACE);
}

QString decodeWrapped(const QString &text, const QList<DecodeTecExtraData> &extraData,
                      ozm::TemplateReport *report)
{
    const auto content = ozm::syntax::unwrapped(text);
    if (!content) {
        qCWarning(lcOzmWidgets) << "Cannot decode template " << QString();
        refuse(report, AbstractTemplateEditor::tr("Wrong template editor content format."));
        return {};
    }
    QString decoded = extraDataDecoder().decode(content->text, extraData, report);
    if (report)
        movePositions(*report, content->position);
    return decoded;
}

QString decodeRow(const QString &text, const RowNode *row, const QList<DecodeTecExtraData> &extraData,
                  ozm::TemplateReport *report)
{
    if (row)
        return rowDecoder().decode(text, *row, extraData, report);
    refuse(report, AbstractTemplateEditor::tr("No data row was given to fill the template with."));
    return {};
}

QString decodeRows(const QString &text, QList<RowNode *> rows, const QList<DecodeTecExtraData> &extraData,
                   ozm::TemplateReport *report)
{
    rows.removeAll(nullptr);
    if (rows.size() <= 1)
        return decodeRow(text, rows.value(0), extraData, report);
    const SummaryRow summary(rows);
    return decodeRow(text, &summary.row(), extraData, report);
}

} // namespace

ozm::TemplateReport ozm::decodeContent(const QString &content, const QList<DecodeTecExtraData> &extraData)
{
    TemplateReport report;
    (void)extraDataDecoder().decode(content, extraData, &report);
    return report;
}

QString AbstractTemplateEditor::decodeTEC(const QString &text, const QList<DecodeTecExtraData> &extraData)
{
    return decodeWrapped(text, extraData, nullptr);
}

QString AbstractTemplateEditor::decodeTEC(const QString &text, const RowNode *row,
                                          const QList<DecodeTecExtraData> &extraData)
{
    return decodeRow(text, row, extraData, nullptr);
}

QString AbstractTemplateEditor::decodeTEC(const QString &text, const QList<RowNode *> &rows,
                                          const QList<DecodeTecExtraData> &extraData)
{
    return decodeRows(text, rows, extraData, nullptr);
}

ozm::TemplateReport AbstractTemplateEditor::decodeTECReport(const QString &text,
                                                            const QList<DecodeTecExtraData> &extraData)
{
    ozm::TemplateReport report;
    (void)decodeWrapped(text, extraData, &report);
    return report;
}

ozm::TemplateReport AbstractTemplateEditor::decodeTECReport(const QString &text, const RowNode *row,
                                                            const QList<DecodeTecExtraData> &extraData)
{
    ozm::TemplateReport report;
    (void)decodeRow(text, row, extraData, &report);
    return report;
}

ozm::TemplateReport AbstractTemplateEditor::decodeTECReport(const QString &text, const QList<RowNode *> &rows,
                                                            const QList<DecodeTecExtraData> &extraData)
{
    ozm::TemplateReport report;
    (void)decodeRows(text, rows, extraData, &report);
    return report;
}

QString AbstractTemplateEditor::withoutScriptTags(const QString &decodedText)
{
    return ozm::syntax::withoutScriptTags(decodedText);
}

QList<ShortCode> AbstractTemplateEditor::extraDataShortCodes(const QList<QMetaObject> &metaObjects)
{
    QList<ShortCode> codes;
    for (const QMetaObject &type : metaObjects) {
        for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
            const QMetaProperty property = type.property(index);
            if (!property.isDesignable())
                continue;
            const QString own = QString::fromLatin1(property.name());
            const QString column = ozm::columnMatching(own);
            const QString name = column.isNull() ? ozm::TextUtils::toUpperFirstChar(own) : column;
            codes.append(
                {SQUARE_BRACKETS_PATTERN.arg(name), name, ColumnFriendlyName::toolTip(name), QString()});
        }
    }
    return codes;
}

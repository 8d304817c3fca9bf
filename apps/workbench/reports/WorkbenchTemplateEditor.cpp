#include "reports/WorkbenchTemplateEditor.h"

#include "samples/SampleTable.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>

using namespace Qt::StringLiterals;

namespace workbench {

WorkbenchTemplateEditor::WorkbenchTemplateEditor(std::vector<RowNode> rows, const ReportContext &context,
                                                 QWidget *parent)
    : AbstractTemplateEditor(parent)
    , m_rows(std::move(rows))
    , m_context(context)
    , m_current(context)
    , m_lists(m_rows)
{
    setObjectName(u"workbenchTemplateEditor"_s);
    setAttribute(Qt::WA_DeleteOnClose);
}

WorkbenchTemplateEditor::~WorkbenchTemplateEditor() = default;

QList<ShortCode> WorkbenchTemplateEditor::shortCodes() const
{
    QList<ShortCode> codes;
    for (const QString &column : SampleTable::annotationColumns())
        codes.append({u'[' + column + u']',
                      ColumnFriendlyName::friendlyName(column),
                      ColumnFriendlyName::toolTip(column),
                      {}});
    return codes + extraDataShortCodes({ReportContext::staticMetaObject});
}

QList<RowNode *> WorkbenchTemplateEditor::previewRows() const
{
    QList<RowNode *> rows;
    // Decoding reads them, and asks for them like this.
    for (const RowNode &row : m_rows)
        rows.append(const_cast<RowNode *>(&row));
    return rows;
}

QString WorkbenchTemplateEditor::previewName(const RowNode &row) const
{
    return row.getDataAt(kName).toString();
}

QList<DecodeTecExtraData> WorkbenchTemplateEditor::extraData(const RowNode *row) const
{
    m_current = row ? m_context.about(*row) : m_context;
    return {{ReportContext::staticMetaObject, &m_current}};
}

QMap<QString, QList<RowNode *>> WorkbenchTemplateEditor::rowLists(const RowNode *row) const
{
    return m_lists.about(row);
}

} // namespace workbench

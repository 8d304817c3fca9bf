#include "reports/WorkbenchTemplateEditor.h"

#include "reports/Report.h"
#include "reports/ReportSheets.h"
#include "samples/SampleTable.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TECWrapper.h>
#include <ozm_widgets/TemplateFile.h>

#include <QMenu>
#include <QMenuBar>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

struct MadeUpSample
{
    QLatin1StringView name;
    QLatin1StringView sequence;
    int charge;
    double mass;
    QLatin1StringView comment;
};

constexpr std::array kMadeUpSamples{
    MadeUpSample{"HC-T01"_L1, "EVQLVESGGGLVQPGGSLR"_L1, 2, 1880.9956, "Made-up sample"_L1},
    MadeUpSample{"HC-T02"_L1, "LSCAASGFTFSSYAMSWVR"_L1, 2, 2069.9339, ""_L1},
    MadeUpSample{"HC-T03"_L1, "QAPGK"_L1, 1, 499.2754, "Made-up sample with a remark"_L1},
    MadeUpSample{"HC"_L1, "EVQLVESGGGLVQPGGSLRLSCAASGFTFSSYAMSWVRQAPGKGLEWVSAISGSGGSTYYADSVKGR"_L1, 7,
                 6842.3497, ""_L1}};

std::vector<RowNode> orMadeUp(std::vector<RowNode> rows)
{
    if (!rows.empty())
        return rows;
    for (const MadeUpSample &each : kMadeUpSamples) {
        RowNode row = SampleTable::emptyRow();
        row.setDataAt(kName, QString(each.name));
        row.setDataAt(kSequence, QString(each.sequence));
        row.setDataAt(kCharge, each.charge);
        row.setDataAt(kMass, each.mass);
        row.setDataAt(kComment, QString(each.comment));
        rows.push_back(row);
    }
    return rows;
}

ReportContext contextOf(const ReportContext &given, const std::vector<RowNode> &rows)
{
    const bool isMadeUp = given.samples.isEmpty() && !rows.empty();
    return isMadeUp ? ReportContext(given.user, WorkbenchTemplateEditor::tr("made-up samples"), rows) : given;
}

} // namespace

WorkbenchTemplateEditor::WorkbenchTemplateEditor(std::vector<RowNode> rows, const ReportContext &context,
                                                 QWidget *parent)
    : AbstractTemplateEditor(parent)
    , m_rows(orMadeUp(std::move(rows)))
    , m_context(contextOf(context, m_rows))
    , m_current(m_context)
    , m_lists(m_rows)
{
    setObjectName(u"workbenchTemplateEditor"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    addGallery();
}

void WorkbenchTemplateEditor::addGallery()
{
    QMenu *menu = menuBar()->addMenu(tr("&Gallery"));
    menu->setObjectName(u"galleryMenu"_s);
    menu->setToolTipsVisible(true);
    for (const ReportTemplate &each : reportTemplates()) {
        QAction *action = menu->addAction(each.title, this, [this, path = each.path] { startFrom(path); });
        action->setToolTip(
            tr("Shows a copy of this template, in a window of its own unless this one is empty"));
    }
}

/// The template in this window stays: it may not be saved.
void WorkbenchTemplateEditor::startFrom(const QString &templatePath)
{
    const auto content = reportTemplateContent(templatePath);
    if (!content) {
        OZMStyle::critical(this, ozm::OzmMessageBoxSignal::FileNotReadable, windowTitle(),
                           content.error().errorMessage());
        return;
    }
    const bool isFree = !isModified() && filePath().isEmpty() && sourceText() == TECWrapper::wrapTEC({});
    auto *editor = isFree ? this : new WorkbenchTemplateEditor(m_rows, m_context);
    editor->setSourceText(TECWrapper::wrapTEC(content.value()));
    editor->show();
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
    codes.append(
        {u"[RowNumber]"_s, tr("Number of the row"), tr("In a part that repeats, counted from 1"), {}});
    codes.append({u"[RowCount]"_s, tr("Number of all rows"), tr("In a part that repeats"), {}});
    for (const QString &column : {kPrecursorMz, kStartPoint, kEndPoint, kCalcMr, u"Covered"_s, u"Coverage"_s})
        codes.append({u'[' + column + u']',
                      ColumnFriendlyName::friendlyName(column),
                      tr("In a part that repeats for the ions or the coverage of one sample"),
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

ozm::ReportPaperOptions WorkbenchTemplateEditor::paperOptions() const
{
    return reportPaperOptions();
}

} // namespace workbench

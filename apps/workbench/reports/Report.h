#pragma once

#include "reports/ReportContext.h"
#include "reports/ReportLists.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Error.h>
#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace workbench {

/// A template of the workbench's own.
struct ReportTemplate
{
    QString title;
    QString path;
    bool forGroup; ///< Made for all samples together, rather than for each.
};

/// A filled template.
struct ReportPage
{
    QString name; ///< Of the sample that it is about.
    QString html;
};

/// The content of a report: pages that stand by themselves, and what could not be filled in.
struct ReportPages
{
    QList<ReportPage> pages;
    QStringList troubles;

    void append(const ReportPages &other);
};

[[nodiscard]] const QList<ReportTemplate> &reportTemplates();
/// The content of the template in the file @p path, without its envelope.
[[nodiscard]] ozm::Result<QString> reportTemplateContent(const QString &path);

/// Fills one template with samples, a report at a time. The rows must outlive it.
class ReportFiller
{
public:
    /// Reads the template in the file @p path, to be filled with each of @p rows or, as a group, with all of them.
    [[nodiscard]] static ozm::Result<ReportFiller>
    of(const QString &path, bool asGroup, const std::vector<RowNode> &rows, const ReportContext &context);

    /// How many reports there are.
    [[nodiscard]] int count() const;
    /// The name of the sample that the report at @p index is about, and of its file: with its number in front.
    [[nodiscard]] QString name(int index) const;
    [[nodiscard]] QString fileName(int index) const;
    [[nodiscard]] const ReportContext &context() const { return m_context; }

    /// Fills the report at @p index.
    [[nodiscard]] ReportPages filled(int index);

private:
    ReportFiller(QString content, bool asGroup, const std::vector<RowNode> &rows, ReportContext context);

    QString m_content;
    bool m_asGroup;
    const std::vector<RowNode> *m_rows;
    ReportContext m_context;
    ReportLists m_lists;
};

/// All reports of a template at once; for few rows.
[[nodiscard]] ozm::Result<ReportPages>
fillReport(const QString &path, bool asGroup, const std::vector<RowNode> &rows, const ReportContext &context);

/// The pages as one HTML document, in which each begins on a new sheet.
[[nodiscard]] QString reportHtml(const ReportPages &report);

[[nodiscard]] ozm::Error saveReportHtml(const ReportPages &report, const QString &path);
/// On A4 unless the template says otherwise, each page with its own numbers of sheets and its bookmark.
[[nodiscard]] ozm::Error saveReportPdf(const ReportPages &report, const QString &path,
                                       const ReportContext &context);

} // namespace workbench

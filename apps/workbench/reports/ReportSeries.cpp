#include "reports/ReportSeries.h"

#include "reports/ReportSheets.h"

#include <ozm_widgets/ReportBook.h>
#include <ozm_widgets/ReportPaper.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

QString seriesText(const char *text)
{
    return QCoreApplication::translate("workbench::ReportSeries", text);
}

/// Fills the reports one by one and hands each to @p take, until that fails or the user has enough.
template <typename Take>
ozm::Result<ReportSeries> eachReport(ReportFiller &reports, const ReportProgress &progress, Take take)
{
    ReportPages told;
    ReportSeries series;
    for (int index = 0; index < reports.count() && !series.isCanceled; ++index) {
        series.isCanceled = !progress(index, reports.count(), reports.name(index));
        if (series.isCanceled)
            break;
        ReportPages filled = reports.filled(index);
        if (Error error = take(index, filled); error.hasError())
            return error;
        filled.pages.clear();
        told.append(filled);
    }
    if (!series.isCanceled)
        series.isCanceled = !progress(reports.count(), reports.count(), {});
    series.troubles = told.troubles;
    return series;
}

ozm::Result<ReportSeries> writeHtml(ReportFiller &reports, const QString &path,
                                    const ReportProgress &progress)
{
    ReportPages all;
    auto series = eachReport(reports, progress, [&all](int /*index*/, const ReportPages &filled) {
        all.append(filled);
        return Error();
    });
    if (!series || series.value().isCanceled)
        return series;
    if (Error error = saveReportHtml(all, path); error.hasError())
        return error;
    ReportSeries written = series.value();
    written.files = 1;
    return written;
}

} // namespace

ozm::Result<ReportSeries> writeReportsToFile(ReportFiller &reports, const QString &path,
                                             const ReportProgress &progress)
{
    if (QFileInfo(path).suffix().compare("html"_L1, Qt::CaseInsensitive) == 0)
        return writeHtml(reports, path, progress);
    ozm::ReportBook book(path, bookOptions(reports.context()));
    auto series = eachReport(reports, progress, [&book](int /*index*/, const ReportPages &filled) {
        return addSheets(filled, book);
    });
    if (!series || series.value().isCanceled)
        return series;
    if (Error error = book.finish(); error.hasError())
        return error;
    ReportSeries written = series.value();
    written.files = 1;
    return written;
}

ozm::Result<ReportSeries> writeReportsToFolder(ReportFiller &reports, const QString &folder,
                                               const ReportProgress &progress)
{
    const QDir directory(folder);
    if (!directory.mkpath(u"."_s))
        return Error(ErrorCode::FileAccess,
                     seriesText(QT_TRANSLATE_NOOP("workbench::ReportSeries",
                                                  "The folder \"%1\" cannot be written to."))
                         .arg(QDir::toNativeSeparators(folder)))
            .ecatch(OZM_HERE);
    int files = 0;
    auto series = eachReport(reports, progress, [&](int index, const ReportPages &filled) {
        ozm::ReportBook book(directory.filePath(reports.fileName(index)), bookOptions(reports.context()));
        Error error = addSheets(filled, book);
        if (!error.hasError())
            error = book.finish();
        files += error.hasError() ? 0 : 1;
        return error;
    });
    if (!series)
        return series;
    ReportSeries written = series.value();
    written.files = files;
    return written;
}

} // namespace workbench

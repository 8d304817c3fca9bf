#include "Report.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

const QMarginsF kMarginsMm(20, 16, 18, 14);
constexpr double kFooterMm = 9.0;
constexpr int kDotsPerInch = 300;
constexpr int kFooterPoints = 7;

QString tr(const char *text)
{
    return QCoreApplication::translate("Report", text);
}

void preparePaper(QPdfWriter &writer)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(kMarginsMm, QPageLayout::Millimeter);
    writer.setTitle(tr("Report"));
    writer.setCreator(QCoreApplication::applicationName());
}

void drawFooter(QPainter &painter, const QRectF &area, int page, int pages)
{
    painter.setFont(QFont(u"DejaVu Sans"_s, kFooterPoints));
    painter.setPen(QColor(0x51, 0x60, 0x6d));
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, tr("Page %1 of %2").arg(page).arg(pages));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom, tr("Made by the workbench"));
}

void drawPages(QTextDocument &document, QPdfWriter &writer)
{
    const double footer = kFooterMm * kDotsPerInch / 25.4;
    const QRectF sheet(0, 0, writer.width(), writer.height());
    const QSizeF body(sheet.width(), sheet.height() - footer);
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(body);

    QPainter painter(&writer);
    const int pages = document.pageCount();
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        const QRectF part(0, page * body.height(), body.width(), body.height());
        painter.save();
        painter.translate(0, -part.top());
        painter.setClipRect(part);
        document.drawContents(&painter, part);
        painter.restore();
        drawFooter(painter, sheet, page + 1, pages);
    }
}

} // namespace

Error saveReportPdf(const ReportPages &report, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        QTextDocument document;
        document.setDocumentMargin(0);
        document.setDefaultFont(QFont(u"DejaVu Sans"_s, 9));
        document.setHtml(reportHtml(report));
        QPdfWriter writer(&file);
        preparePaper(writer);
        drawPages(document, writer);
    }
    if (file.commit())
        return {};
    return Error(ErrorCode::FileAccess, tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace workbench

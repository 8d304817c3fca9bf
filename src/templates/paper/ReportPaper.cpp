#include <ozm_widgets/ReportPaper.h>

#include "templates/paper/ReportPaperPrivate.h"

#include <ozm_widgets/ReportBook.h>

#include <QPagedPaintDevice>
#include <QPainter>

#include <utility>

namespace ozm {

void ReportPaper::Private::setUp(QPagedPaintDevice &device) const
{
    const QPageLayout asked = layout.pageLayout(device.pageLayout());
    if (asked != device.pageLayout())
        device.setPageLayout(asked);
}

ReportPaper::Private::Drawn ReportPaper::Private::draw(QPainter &painter, QPagedPaintDevice &device)
{
    const double dots = double(device.logicalDpiX()) / paper::kDotsPerInch;
    layout.layOut(QSizeF(device.width(), device.height()) / dots);
    const QPageRanges wanted = device.pageRanges();
    painter.save();
    painter.scale(dots, dots);
    bool isFirst = true;
    for (int sheet = 0; sheet < layout.pageCount(); ++sheet) {
        if (!wanted.isEmpty() && !wanted.contains(sheet + 1))
            continue;
        if (!std::exchange(isFirst, false))
            device.newPage();
        layout.draw(painter, sheet);
    }
    painter.restore();
    const QList<paper::Bookmark> headings = layout.headings(device.pageLayout());
    return {layout.pageCount(), headings, layout.links(device.pageLayout(), headings)};
}

ReportPaper::ReportPaper(const QString &decoded, const ReportPaperOptions &options)
    : d(std::make_unique<Private>(decoded, options))
{}

ReportPaper::~ReportPaper() = default;

int ReportPaper::print(QPagedPaintDevice &device) const
{
    d->setUp(device);
    QPainter painter(&device);
    return d->draw(painter, device).sheets;
}

Error ReportPaper::writePdf(const QString &path) const
{
    ReportBook book(path, {d->options.title.isEmpty() ? d->options.document : d->options.title});
    book.add(*this);
    return book.finish();
}

} // namespace ozm

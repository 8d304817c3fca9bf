#include "reports/StickPlot.h"

#include "reports/ReportLists.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// In units of the page; each has as many dots as a good printer shows of it.
constexpr int kWidth = 560;
constexpr int kHeight = 130;
constexpr int kScale = 4;
constexpr int kEdge = 24;
constexpr int kFontSize = 9;
const QColor kAxis(0x51, 0x60, 0x6d);
const QColor kChosen(0x24, 0x50, 0x6f);
const QColor kOther(0xa0, 0xb0, 0xbc);

} // namespace

QImage stickPlot(double mass, int charge)
{
    if (!(mass > 0))
        return {};
    QImage image(kWidth * kScale, kHeight * kScale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kScale, kScale);
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(kFontSize);
    painter.setFont(font);
    const double highest = mzOf(mass, 1) * 1.05;
    const int floor = kHeight - kEdge;
    painter.setPen(QPen(kAxis, 1));
    painter.drawLine(kEdge, floor, kWidth - kEdge, floor);
    painter.drawText(QRect(0, floor, kWidth - 2, kEdge), Qt::AlignRight | Qt::AlignBottom, u"m/z"_s);
    for (int each = 1; each <= highestCharge(charge); ++each) {
        const double x = kEdge + mzOf(mass, each) / highest * (kWidth - 2 * kEdge);
        const bool isChosen = each == charge;
        const int top = isChosen ? kEdge : (kEdge + floor) / 2;
        painter.setPen(QPen(isChosen ? kChosen : kOther, 2));
        painter.drawLine(QPointF(x, floor), QPointF(x, top));
        painter.setPen(isChosen ? kChosen : kAxis);
        painter.drawText(QRectF(x - kEdge, top - kEdge, 2 * kEdge, kEdge - 2),
                         Qt::AlignHCenter | Qt::AlignBottom, u"%1+"_s.arg(each));
    }
    return image;
}

} // namespace workbench

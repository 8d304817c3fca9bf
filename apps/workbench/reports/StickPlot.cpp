#include "reports/StickPlot.h"

#include "reports/ReportLists.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// In units of the page.
constexpr int kWidth = 560;
constexpr int kHeight = 130;
constexpr int kEdge = 24;
constexpr int kGap = 5;
constexpr auto kAxis = "#51606d"_L1;
constexpr auto kChosen = "#24506f"_L1;
constexpr auto kOther = "#a0b0bc"_L1;

QString svgNumber(double value)
{
    return QString::number(value, 'f', 2);
}

QString svgLine(double x1, double y1, double x2, double y2, int width, QLatin1StringView color)
{
    return u"<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\" stroke-width=\"%6\"/>"_s.arg(
        svgNumber(x1), svgNumber(y1), svgNumber(x2), svgNumber(y2), color, QString::number(width));
}

QString svgLabel(double x, double y, QLatin1StringView anchor, QLatin1StringView color, const QString &text)
{
    return u"<text x=\"%1\" y=\"%2\" text-anchor=\"%3\" fill=\"%4\">%5</text>"_s.arg(
        svgNumber(x), svgNumber(y), anchor, color, text);
}

} // namespace

QByteArray stickPlot(double mass, int charge)
{
    if (!(mass > 0))
        return {};
    const double highest = mzOf(mass, 1) * 1.05;
    const int floor = kHeight - kEdge;
    QString svg =
        u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\" "
        "font-family=\"DejaVu Sans\" font-size=\"9\">"_s.arg(kWidth)
            .arg(kHeight);
    svg += svgLine(kEdge, floor, kWidth - kEdge, floor, 1, kAxis);
    svg += svgLabel(kWidth - 2, kHeight - kGap, "end"_L1, kAxis, u"m/z"_s);
    for (int each = 1; each <= highestCharge(charge); ++each) {
        const double x = kEdge + mzOf(mass, each) / highest * (kWidth - 2 * kEdge);
        const bool isChosen = each == charge;
        const int top = isChosen ? kEdge : (kEdge + floor) / 2;
        svg += svgLine(x, floor, x, top, 2, isChosen ? kChosen : kOther);
        svg += svgLabel(x, top - kGap, "middle"_L1, isChosen ? kChosen : kAxis, u"%1+"_s.arg(each));
    }
    return (svg + "</svg>"_L1).toUtf8();
}

} // namespace workbench

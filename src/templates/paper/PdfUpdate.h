#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

namespace ozm::paper {

/// A place in a PDF that its reader can go to. Lengths are in points.
struct Bookmark
{
    QString text;
    int depth = 0;       ///< Those of a greater depth stand under the last one of a smaller depth.
    int sheet = 0;       ///< Counted from 0.
    double distance = 0; ///< From the upper edge of the sheet.
    double sheetHeight = 0;
};

/// An area of a sheet that leads to a place in the same PDF.
struct PdfLink
{
    int sheet = 0; ///< Counted from 0.
    QRectF area;   ///< In points from the upper left corner of the sheet, as high as that of the place.
    Bookmark to;
};

/// The facts that a PDF carries about itself beside its title.
struct PdfRemarks
{
    QString author;
    QString subject;
    QStringList keywords;
};

/**
 * The bytes that, behind those of a PDF made by QPdfWriter, give it bookmarks, links and remarks: the writer itself
 * knows none of them. Nothing where the PDF is not built as the writer builds it.
 */
[[nodiscard]] std::optional<QByteArray> pdfUpdate(QIODevice &pdf, const QList<Bookmark> &bookmarks,
                                                  const QList<PdfLink> &links, const PdfRemarks &remarks);

} // namespace ozm::paper

#pragma once

#include <QByteArray>
#include <QList>
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

/// The facts that a PDF carries about itself beside its title.
struct PdfRemarks
{
    QString author;
    QString subject;
    QStringList keywords;
};

/**
 * The bytes that, behind those of a PDF made by QPdfWriter, give it bookmarks and remarks: the writer itself knows
 * neither. Nothing where the PDF is not built as the writer builds it.
 */
[[nodiscard]] std::optional<QByteArray> pdfUpdate(QIODevice &pdf, const QList<Bookmark> &bookmarks,
                                                  const PdfRemarks &remarks);

} // namespace ozm::paper

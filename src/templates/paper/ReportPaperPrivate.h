#pragma once

#include "templates/instructions/InstructionSyntax.h"
#include "templates/paper/PdfUpdate.h"

#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QPainter;

namespace ozm {

class ReportPaper::Private
{
public:
    /// What was drawn.
    struct Drawn
    {
        int sheets = 0;
        QList<paper::Bookmark> headings; ///< With sheets counted from the first one of the report.
    };

    Private(const QString &decoded, const ReportPaperOptions &given);

    /// Sets the sheets of @p device up as the template asks for them.
    void setUp(QPagedPaintDevice &device) const;
    /// The painter draws on @p device, which has a sheet.
    [[nodiscard]] Drawn draw(QPainter &painter, QPagedPaintDevice &device) const;

    QString text;
    ReportPaperOptions options;
    const std::optional<instructions::Page> page;

private:
    [[nodiscard]] QPageLayout laidOut(QPageLayout layout) const;
    [[nodiscard]] std::unique_ptr<TemplateDocument> document() const;
    [[nodiscard]] QString foot() const;
    void drawEdges(QPainter &painter, const QRectF &area, int number, int sheets) const;
};

} // namespace ozm

#pragma once

#include "templates/paper/PaperLayout.h"
#include "templates/paper/PdfUpdate.h"

#include <ozm_widgets/ReportPaper.h>

#include <QList>
#include <QString>

class QPainter;

namespace ozm {

class ReportPaper::Private
{
public:
    /// The part that was drawn.
    struct Drawn
    {
        int sheets = 0;
        QList<paper::Bookmark> headings; ///< With sheets counted from the first one of the report.
        QList<paper::PdfLink> links;     ///< To the headings, with sheets counted as theirs.
    };

    Private(const QString &decoded, const ReportPaperOptions &given)
        : layout(decoded, given)
        , options(layout.options())
    {}

    /// Sets the sheets of @p device up as the template asks for them.
    void setUp(QPagedPaintDevice &device) const;
    /// The painter draws on @p device, which has a sheet.
    [[nodiscard]] Drawn draw(QPainter &painter, QPagedPaintDevice &device);

    paper::PaperLayout layout;
    const ReportPaperOptions &options;
};

} // namespace ozm

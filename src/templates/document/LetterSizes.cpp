#include "templates/document/LetterSizes.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace ozm::editor {

namespace {

constexpr double kPointsInInch = 72;

} // namespace

void sizeLettersInPoints(QTextDocument &document)
{
    const auto hasPixels = [](const QTextFormat &format) {
        return format.intProperty(QTextFormat::FontPixelSize) > 0;
    };
    if (std::ranges::none_of(document.allFormats(), hasPixels))
        return;
    QTextCursor part(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        // Fragments are not what they were once one of them is changed.
        QList<std::pair<int, int>> found;
        for (auto at = block.begin(); !at.atEnd(); ++at)
            if (at.fragment().charFormat().intProperty(QTextFormat::FontPixelSize) > 0)
                found.append({at.fragment().position(), at.fragment().position() + at.fragment().length()});
        for (const auto &[start, end] : std::as_const(found)) {
            part.setPosition(start);
            part.setPosition(end, QTextCursor::KeepAnchor);
            QTextCharFormat format = part.charFormat();
            const int pixels = format.intProperty(QTextFormat::FontPixelSize);
            format.clearProperty(QTextFormat::FontPixelSize);
            format.setFontPointSize(pixels * kPointsInInch / kPixelsPerInch);
            part.setCharFormat(format);
        }
    }
}

} // namespace ozm::editor

#pragma once

#include <QStringList>
#include <QTextBlockFormat>
#include <QTextCharFormat>

class QTextBlock;

namespace ozm::editor {

/// The formats that the rich-text reader gives to a tag without attributes.
struct TagDefaults
{
    QTextBlockFormat block;
    QTextCharFormat text;
};

[[nodiscard]] const TagDefaults &headingDefaults(int level);
[[nodiscard]] const TagDefaults &paragraphDefaults();

/// Formats that the surrounding cell already gives to its blocks.
struct Surroundings
{
    QTextCharFormat text;
    Qt::Alignment alignment = Qt::AlignLeft;
    qreal leftMargin = 0;
    qreal rightMargin = 0;
    bool isColoured = false; ///< An item, which hands its colour down.
};

[[nodiscard]] QString px(qreal value);

/// The style of the line @p block, as far as it differs from that of what is around it.
[[nodiscard]] QStringList blockDeclarations(const QTextBlock &block, const Surroundings &around);

} // namespace ozm::editor

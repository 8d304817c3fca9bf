#pragma once

#include "templates/document/ChipPictures.h"
#include "templates/document/TemplateParts.h"

#include <QHash>
#include <QObject>
#include <QPen>
#include <QTextCharFormat>
#include <QTextObjectInterface>

#include <unordered_map>
#include <vector>

namespace ozm::editor {

/// The one character that stands in a document for a whole part.
inline constexpr int kChipObject = QTextFormat::UserObject + 1;

/// Set on the format of an empty block that somebody wrote, which some others are not: a document needs
/// blocks at the edges of a table.
inline constexpr int kWrittenLine = QTextFormat::UserProperty + 3;

/// Set on the format of a block that was read: the index of its run in the source.
inline constexpr int kSourceRun = QTextFormat::UserProperty + 4;

/// @p base with what makes one object replacement character the chip of @p part.
[[nodiscard]] QTextCharFormat chipFormat(const TemplatePart &part, const QTextCharFormat &base);

[[nodiscard]] bool isChip(const QTextFormat &format);

/// The part of a chip; of any other format an empty one.
[[nodiscard]] TemplatePart chipPart(const QTextFormat &format);

/// The code that a part shows, with or without a format; empty for any other part.
[[nodiscard]] QString codeOf(const TemplatePart &part);

/// @p format for the text around a chip: its look, without being one.
[[nodiscard]] QTextCharFormat withoutChip(QTextCharFormat format);

/// Paints chips: codes by their display names, scripts by their first line, markup by its first tag.
class ChipPainter : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

    [[nodiscard]] bool isKnown(const QString &code) const;
    [[nodiscard]] QString label(const TemplatePart &part) const;

    /// @p names are by code; while there is none at all, no code counts as unknown. Captions of instructions get the
    /// language of the application. True when a chip of @p document is another one now.
    bool setDisplayNames(const QHash<QString, QString> &names, const QTextDocument &document);

private:
    /// How chips of one format look. Each key has all of them on the screen measured and drawn again.
    struct Face
    {
        QTextFormat format;
        QFont font;
        QSizeF size; ///< Unscaled.
        QPen frame;
        QColor fill;
        QColor text;
        ChipLabel label;
    };

    [[nodiscard]] Face makeFace(const QTextDocument &document, const QTextFormat &format) const;
    [[nodiscard]] Face &faceOf(const QTextDocument &document, const QTextFormat &format);

    QHash<QString, QString> m_displayNames;
    std::unordered_map<QString, std::vector<Face>> m_faces; ///< By the source of the part.
    int m_faceCount = 0;
    QFont m_defaultFont; ///< Of the document, for which the faces are.
    ChipFrames m_frames;
};

} // namespace ozm::editor

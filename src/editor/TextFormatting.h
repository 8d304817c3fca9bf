#pragma once

#include "templates/paper/ParagraphStyles.h"

#include <QObject>
#include <QTextCharFormat>
#include <QTextListFormat>

class QAction;
class QComboBox;
class QFontComboBox;
class QTextCursor;
class QToolBar;

namespace ozm::editor {

class RichTextView;

/// Fonts, colours, paragraphs and lists of the formatted text. Everything is merged into what is there, so
/// that codes and scripts come through.
class TextFormatting : public QObject
{
    Q_OBJECT

public:
    explicit TextFormatting(RichTextView *view);

    /// The choices of paragraph, font and size, at the beginning of @p bar.
    void addChoices(QToolBar *bar);

    void setBold(bool on);
    void setItalic(bool on);
    void setUnderline(bool on);
    void setStrikeOut(bool on);
    void setVerticalAlignment(QTextCharFormat::VerticalAlignment alignment, bool on);
    void clearFormat();
    void askTextColor();
    void askHighlight();
    void setAlignment(Qt::Alignment alignment);
    /// Makes the chosen paragraphs a list, or plain paragraphs again when they are one already.
    void toggleList(QTextListFormat::Style style);
    void indent(int by);
    /// 0 for a paragraph, 1 to 6 for headings.
    void setHeading(int level);
    /// Gives the paragraphs the style of the class @p className.
    void setStyle(const QString &className);
    /// Offers the classes of @p styleSheet, too.
    void setStyleSheet(const QString &styleSheet);
    [[nodiscard]] const QList<ParagraphStyle> &styles() const { return m_styles; }

    /// The format at the cursor.
    [[nodiscard]] QTextCharFormat format() const;
    [[nodiscard]] Qt::Alignment alignment() const;
    [[nodiscard]] QTextListFormat::Style listStyle() const;

private:
    void setFamily(const QString &family);
    void setSize(const QString &points);
    void askColor(const QString &title, QTextFormat::Property property);
    void showChoices();
    void fillParagraphs();
    void setParagraph(int level, const QString &className);
    void mergeLook(const QTextCursor &cursor, int level);

    RichTextView *m_view;
    QList<ParagraphStyle> m_styles;
    QComboBox *m_paragraph = nullptr; ///< Its data: the level of a heading, or a class.
    QFontComboBox *m_family = nullptr;
    QComboBox *m_size = nullptr;
};

} // namespace ozm::editor

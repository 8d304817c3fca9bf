#pragma once

#include <QObject>
#include <QTextCharFormat>
#include <QTextListFormat>

class QAction;
class QComboBox;
class QFontComboBox;
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

    /// The format at the cursor.
    [[nodiscard]] QTextCharFormat format() const;
    [[nodiscard]] Qt::Alignment alignment() const;
    [[nodiscard]] QTextListFormat::Style listStyle() const;

private:
    void setFamily(const QString &family);
    void setSize(const QString &points);
    void askColor(const QString &title, QTextFormat::Property property);
    void showChoices();

    RichTextView *m_view;
    QComboBox *m_paragraph = nullptr;
    QFontComboBox *m_family = nullptr;
    QComboBox *m_size = nullptr;
};

} // namespace ozm::editor

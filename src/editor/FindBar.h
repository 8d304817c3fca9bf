#pragma once

#include <QTextDocument>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace ozm::editor {

class EditorViews;

/// Finds and replaces in the view that is shown: text, and the text of chips.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    FindBar(EditorViews &views, QWidget *parent);

    /// Looks for the present selection, if it lies within one line.
    void open(bool replacing);
    void findNext();
    void findPrevious();
    void replace();
    void replaceAll();

Q_SIGNALS:
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct ChipSearch;

    [[nodiscard]] QTextDocument::FindFlags flags() const;
    [[nodiscard]] QTextCursor found(const QTextCursor &from, bool backward) const;
    void find(bool backward);
    [[nodiscard]] ChipSearch chipSearch() const;
    [[nodiscard]] static QTextCursor findChip(QTextDocument *document, int from, bool backward,
                                              const ChipSearch &search);
    [[nodiscard]] bool isReplaceable(const QTextCursor &match) const;
    void replaceAt(QTextCursor &cursor) const;
    [[nodiscard]] QToolButton *makeButton(const char *name, const char *icon, const QString &text,
                                          void (FindBar::*slot)());
    [[nodiscard]] QLineEdit *makeField(const char *name, const QString &text);
    void arrange();

    EditorViews &m_views;
    QLineEdit *m_text;
    QLineEdit *m_replacement;
    QCheckBox *m_case;
    QCheckBox *m_words;
    QLabel *m_outcome;
    QWidget *m_replaceRow;
};

} // namespace ozm::editor

#pragma once

#include "editor/EditorView.h"

#include <QFont>
#include <QImage>
#include <QObject>

#include <memory>

class QStackedWidget;

namespace ozm::editor {

class CodeModel;
class EditorSession;

/// Both views of the window, of which one is shown.
class EditorViews : public QObject
{
    Q_OBJECT

public:
    EditorViews(CodeModel *codes, QWidget *window);
    ~EditorViews() override;

    [[nodiscard]] EditorView &current() const;
    [[nodiscard]] QStackedWidget *widget() const { return m_stack; }
    [[nodiscard]] RichTextView *rich() const { return m_rich; }
    [[nodiscard]] CodeEdit *plain() const { return m_plain; }

    void show(const EditorSession &session);
    /// Before the documents that they show are destroyed.
    void showNothing();
    /// Shows what @p session holds anew, as codes may be called otherwise now.
    void refresh(const EditorSession &session);
    /// That of paper, by which paragraphs of named styles are shown.
    void setStyleSheet(const QString &styleSheet) { m_styleSheet = styleSheet; }

    /// Of both views; 1 is the usual size.
    [[nodiscard]] double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();

    [[nodiscard]] bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    void zoomChanged(double zoom);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyZoom();
    void layOutOnceShown();

    CodeModel *m_codes;
    QStackedWidget *m_stack;
    RichTextView *m_rich;
    CodeEdit *m_plain;
    const std::unique_ptr<EditorView> m_formattedView;
    const std::unique_ptr<EditorView> m_sourceView;
    /// The resolution that the formatted text is laid out for; null for that of the screen.
    std::unique_ptr<QImage> m_device;
    QFont m_plainFont;
    QString m_styleSheet;
    double m_zoom = 1;
    bool m_isReadOnly = false;
};

} // namespace ozm::editor

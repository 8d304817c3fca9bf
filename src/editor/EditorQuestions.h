#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace ozm::editor {

class EditorViews;
class TemplatePrinting;

/// The insertions and exports that first ask for something: an image, a link, the place for a PDF.
class EditorQuestions : public QObject
{
    Q_OBJECT

public:
    /// @p decoded gives the filled template as it goes to paper, @p name what it is called.
    struct Report
    {
        std::function<QString()> decoded;
        std::function<QString()> name;
    };

    EditorQuestions(EditorViews &views, TemplatePrinting &printing, const Report &report, QWidget *window);

    void askImage();
    void askLink();
    void askPdf();

Q_SIGNALS:
    void told(const QString &text);

private:
    EditorViews &m_views;
    TemplatePrinting &m_printing;
    const Report m_report;
    QWidget *m_window;
};

} // namespace ozm::editor

#pragma once

#include <ozm_widgets/TemplateComparison.h>
#include <ozm_widgets/TemplateDocument.h>

#include <QDialog>
#include <QList>
#include <QString>

#include <array>

class QBoxLayout;
class QListWidget;
class QTextEdit;

namespace ozm::editor {

/// A template by its name on screen.
struct ComparedTemplate
{
    QString name;
    QString content;
};

/// Shows the differences of two templates as a list, and both side by side with what differs marked.
class ComparisonDialog : public QDialog
{
    Q_OBJECT

public:
    ComparisonDialog(const ComparedTemplate &before, const ComparedTemplate &after, QWidget *parent);

private:
    [[nodiscard]] QWidget *makeSide(std::size_t side, const QString &caption, const ComparedTemplate &shown);
    void fillList();
    void mark();
    void goTo(int difference);
    [[nodiscard]] static int positionOf(const TemplateDifference &difference, std::size_t side);

    const QList<TemplateDifference> m_differences;
    std::array<TemplateDocument, 2> m_documents;
    std::array<QTextEdit *, 2> m_views = {};
    QListWidget *m_list;
};

} // namespace ozm::editor

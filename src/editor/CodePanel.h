#pragma once

#include <QWidget>

class QLineEdit;
class QListView;
class QMenu;
class QSortFilterProxyModel;

namespace ozm::editor {

class CodeModel;

/// The list of codes, with a field to search it. A double click or Enter chooses one; codes can be dragged.
class CodePanel : public QWidget
{
    Q_OBJECT

public:
    CodePanel(CodeModel *codes, QWidget *parent);

    void setReadOnly(bool readOnly);
    /// Puts the keyboard into the search field.
    void search();

Q_SIGNALS:
    void chosen(const QString &code);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void filter(const QString &text);
    void chooseCurrent();

    QSortFilterProxyModel *m_filtered;
    QLineEdit *m_search;
    QListView *m_list;
    bool m_isReadOnly = false;
};

} // namespace ozm::editor

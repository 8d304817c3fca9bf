#pragma once

#include <ozm_audit_widgets/TrailModel.h>

#include <QWidget>

class QComboBox;
class QLineEdit;
class QMenu;
class QTimer;
class QToolButton;

namespace ozm::audit {

/// The search text and the filter, each condition as a chip that takes it away.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(const TrailModel &model, QWidget *parent = nullptr);

    [[nodiscard]] const TrailFilter &filter() const { return m_filter; }
    void setFilter(const TrailFilter &filter);
    void focusSearch();
    /// Lets the user add a condition.
    [[nodiscard]] QToolButton *button() const { return m_add; }

Q_SIGNALS:
    void filterChanged(const ozm::audit::TrailFilter &filter);

private:
    void change(const TrailFilter &filter);
    void showFilter();
    void showChips();
    void fillMenu(QMenu &menu);
    void addChoices(QMenu &menu, const QString &title, TrailModel::Choice choice, QString Query::*member);
    void addTimes(QMenu &menu);
    void askRange();
    void askHours();

    const TrailModel &m_model;
    TrailFilter m_filter;
    QLineEdit *const m_search;
    QComboBox *const m_preset;
    QToolButton *const m_add;
    QWidget *const m_chips;
    QTimer *const m_searchDelay;
};

} // namespace ozm::audit

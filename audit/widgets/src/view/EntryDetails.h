#pragma once

#include <ozm_audit_widgets/TrailModel.h>

#include <QWidget>

class QTextBrowser;

namespace ozm::audit {

/// One entry with all that it says: facts, old and new value side by side, signatures over it.
class EntryDetails : public QWidget
{
    Q_OBJECT

public:
    explicit EntryDetails(const TrailModel &model, QWidget *parent = nullptr);

    void show(const Entry &entry);
    void clear();

Q_SIGNALS:
    /// The user wants to see another entry.
    void entryRequested(qint64 number);

private:
    [[nodiscard]] QString factsOf(const Entry &entry) const;

    const TrailModel &m_model;
    QTextBrowser *const m_facts;
    QTextBrowser *const m_old;
    QTextBrowser *const m_new;
};

} // namespace ozm::audit

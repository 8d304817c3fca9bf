#pragma once

#include "../view/EntryDetails.h"
#include "../view/FilterBar.h"

#include <ozm_audit/Logger.h>
#include <ozm_audit/Store.h>
#include <ozm_audit_widgets/TrailView.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QTableView>

#include <map>
#include <memory>

class QToolBar;

namespace ozm::audit {

class TrailView::Private
{
public:
    Private(TrailView &view, Store &store);
    /// Shows @p empty, a trail without entries, and keeps it.
    Private(TrailView &view, std::unique_ptr<Store> empty);

    /// Fills the view.
    void start();
    void build();
    void addZones(QToolBar &bar);
    void connectAll();
    void addActions(QToolBar &bar);
    void updateActions();
    void updateStatus();
    void showCurrent();
    void follow();
    [[nodiscard]] bool isAtNewest() const;
    void copyRows() const;
    void show(const Error &error);
    void showContextMenu(const QPoint &position);

    // Called by the actions.
    void run(Action action);
    void sign();
    void review();
    void history();
    void goToSubject();
    void goToNumber();
    void print();
    void save(Action action);
    void makeCopy();
    void verify();
    void saveFilter();
    void openFilter();
    void recordOutput(const QString &what);

    TrailView &q;
    const std::unique_ptr<Store> empty; ///< Before the parts that read it.
    TrailModel model;
    FilterBar bar;
    QTableView table;
    EntryDetails details;
    QLabel status;
    QComboBox zones;
    std::map<Action, QAction *> actions;

    Logger *logger = nullptr;
    Person user;
    SigningSession *session = nullptr;
    SubjectHook hook;
    QString verifier;
    void fitDetails();

    bool follows = true;
    bool detailsChosen = false; ///< By the user; otherwise by the height of the view.
};

} // namespace ozm::audit

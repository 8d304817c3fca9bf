#pragma once

#include <ozm_common_stable/Error.h>

#include <QMainWindow>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QDockWidget;
class QLabel;
class QStackedWidget;
class RowNode;

namespace ozm::audit {
class TrailView;
}

namespace workbench {

class DemonstrationAuthenticator;
class DataImport;
class MainActions;
class ReportContext;
class SampleEditor;
class SampleTableModel;
class SampleTableView;

/**
 * The workbench's window: the samples, what was done to them (the history), and what is recorded of it (the
 * audit trail).
 *
 * Shows the editor's troubles in the status bar, and as a message that does not stop the program. The editor
 * must outlive the window.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @p trailPath is where the audit trail is kept, to be shown.
    MainWindow(SampleEditor &editor, const QString &trailPath, QWidget *parent = nullptr);
    ~MainWindow() override;

    void open(const QString &path);
    /// Gives the files that the user opens to @p opener, in place of this window.
    void setOpener(std::function<void(const QString &path)> opener) { m_opener = std::move(opener); }
    /// Adds a part that can be closed, and that the menu brings back.
    QDockWidget *addDock(const QString &name, const QString &title, QWidget *content,
                         Qt::DockWidgetArea area);
    /// Asks what shall become of samples that are not saved; false when they are to stay.
    [[nodiscard]] bool mayDiscard();
    /// Finds mass-spectrometry data for the table.
    [[nodiscard]] DataImport &dataImport() const { return *m_import; }
    /// True when troubles come up as messages; without, they are in the status bar only.
    void setMessagesShown(bool shown) { m_showMessages = shown; }

Q_SIGNALS:
    void firstStepsAsked();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectActions();
    void createTable();
    void createDocks();
    [[nodiscard]] ozm::audit::TrailView *createTrail();
    void createStatusBar(const QString &trailPath);
    void follow();

    void askOpen();
    bool askSave();
    void askExport();
    void askRename();
    void showReport();
    void editTemplate();
    [[nodiscard]] std::vector<RowNode> reportedRows() const;
    [[nodiscard]] ReportContext reportContext(const std::vector<RowNode> &rows) const;
    void deleteSelected();
    void showTrouble(const ozm::Error &error);
    void showImport(const QString &summary, const QStringList &refusals);
    void showMessage(const QString &title, const QString &text);
    void refresh();
    void setFile(const QString &path);
    void selectSample(const QString &subjectKey);
    [[nodiscard]] QList<qint64> selectedIds() const;

    SampleEditor &m_editor;
    SampleTableModel *m_samples = nullptr;
    MainActions *m_actions = nullptr;
    DataImport *m_import = nullptr;
    QStackedWidget *m_pages = nullptr;
    SampleTableView *m_table = nullptr;
    std::unique_ptr<DemonstrationAuthenticator> m_signers;
    ozm::audit::TrailView *m_trail = nullptr;
    QLabel *m_count = nullptr;
    std::function<void(const QString &path)> m_opener;
    QString m_file;
    bool m_showMessages = true;
};

} // namespace workbench

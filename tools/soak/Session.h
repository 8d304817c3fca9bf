#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <random>

class QAction;
class QDialog;
class QTableView;

namespace ozm::audit {
class Store;
class TrailView;
} // namespace ozm::audit

namespace workbench {
class MainWindow;
class SampleEditor;
} // namespace workbench

namespace soak {

class Dialogs;

/**
 * One window of the workbench on a trail of its own, and a user who does one random thing after another in it. The
 * same seed does the same things.
 */
class Session
{
public:
    /// @p file answers questions for files; see WidgetCreator.
    Session(unsigned seed, Dialogs &dialogs, QString &file);
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    /// Why there is no window, if there is none.
    [[nodiscard]] const ozm::Error &error() const { return m_error; }
    [[nodiscard]] qint64 entries() const;

    /// Chooses what to do next, @p only this if it is not empty, and returns its name.
    [[nodiscard]] QString choose(const QString &only);
    [[nodiscard]] static bool has(const QString &action);
    void act();
    /// Empty, or what is wrong: undoing and redoing all gives other samples, or the trail is damaged.
    [[nodiscard]] QString check();

private:
    struct Action
    {
        const char *name;
        int weight;
        void (Session::*run)();
    };
    static const std::vector<Action> &actions();

    void editCell();
    void refusedEdit();
    void addSample();
    void deleteSamples();
    void renameSamples();
    void undo();
    void redo();
    void goThroughHistory();
    void open();
    void save();
    void exportTrail();
    void fillTemplates();
    void findData();
    void boxesFromThreads();

    // Windows beside the samples, in a source of their own.
    void showReport();
    void editTemplate();
    void listData();
    void chooseData();
    void useTrail();
    void showStyles();
    void takeFirstSteps();
    void changeColours();
    void reopenWindow();

    [[nodiscard]] int below(int bound);
    [[nodiscard]] QString word(int letters);
    [[nodiscard]] QTableView &table() const;
    [[nodiscard]] QAction &action(const char *name) const;
    [[nodiscard]] QString samples() const;
    /// Triggers an action of the window with @p file as the answer to its questions for one.
    void trigger(const char *name, const QString &file = {});
    void type(int row, int column, const QString &text);
    void selectSome(int count);
    void makeFiles();
    void makeWindow();

    std::mt19937 m_random;
    Dialogs &m_dialogs;
    QString &m_file;
    const QTemporaryDir m_folder;
    ozm::Error m_error;
    const Action *m_next = nullptr;
    std::unique_ptr<ozm::audit::Store> m_store;
    std::unique_ptr<workbench::SampleEditor> m_editor;
    std::unique_ptr<workbench::MainWindow> m_window;
};

} // namespace soak

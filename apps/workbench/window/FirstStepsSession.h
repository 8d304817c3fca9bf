#pragma once

#include <ozm_common_stable/Result.h>

#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <span>

namespace ozm::audit {
class Store;
}

namespace workbench {

class FirstStepsPage;
class MainWindow;
class SampleEditor;

/**
 * A window on made-up samples, with a page of first steps that do something in it.
 *
 * Samples, data and audit trail are in a folder of their own, which goes with the session: neither files nor trail
 * of the user are touched. The trail already has edits, a macro, a step that was undone and one that was refused.
 *
 *     auto session = FirstStepsSession::make(u"jdoe"_s);
 *     if (!session)
 *         return show(session.error());
 *     session.value()->window().show();
 *
 * GUI thread.
 */
class FirstStepsSession : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static ozm::Result<std::unique_ptr<FirstStepsSession>> make(const QString &user);
    ~FirstStepsSession() override;

    [[nodiscard]] MainWindow &window() const { return *m_window; }
    [[nodiscard]] SampleEditor &editor() const { return *m_editor; }
    [[nodiscard]] FirstStepsPage &page() const { return *m_page; }
    /// The folder that holds all of it, with a slash at its end.
    [[nodiscard]] QString folder() const { return m_folder.path() + u'/'; }
    /// The folder with data of several vendors.
    [[nodiscard]] QString dataFolder() const { return m_folder.filePath(QStringLiteral("data")); }

private:
    FirstStepsSession();

    ozm::Error open(const QString &user);
    ozm::Error edit();
    void createWindow();
    void run(int step);
    void undoStep(int step);
    void findData(int step);
    void chooseData(int step);
    void askFromThread(int step);
    void previewReport(int step);
    void tellOfImport(const QString &summary);

    struct Act;
    [[nodiscard]] static std::span<const Act> acts();

    QTemporaryDir m_folder;
    std::unique_ptr<ozm::audit::Store> m_store;
    std::unique_ptr<SampleEditor> m_editor;
    std::unique_ptr<MainWindow> m_window;
    FirstStepsPage *m_page = nullptr;
    int m_importing = -1; ///< The step that waits for what a search brings.
};

} // namespace workbench

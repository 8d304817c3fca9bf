#pragma once

#include "data/DataFinder.h"

#include <QObject>

#include <functional>

class QMimeData;
class QWidget;

namespace workbench {

class DataProgress;
class SampleEditor;

/**
 * Brings mass-spectrometry data into the sample table: from a folder that is searched, or dropped on a
 * widget.
 *
 * The search runs beside the user's work. What it found is added as one step; canceled, or when other samples
 * are opened meanwhile, nothing is. The editor must outlive it.
 */
class DataImport : public QObject
{
    Q_OBJECT

public:
    /// Answers with the folder to search, or with nothing.
    using FolderQuestion = std::function<QString()>;

    DataImport(SampleEditor &editor, FolderQuestion question, QObject *parent = nullptr);
    ~DataImport() override;

    /// Shown while a search runs. Belongs to its parent widget, once it has one.
    [[nodiscard]] QWidget *progress() const;
    [[nodiscard]] bool isRunning() const { return m_finder.isRunning(); }

    void setFolderQuestion(FolderQuestion question) { m_question = std::move(question); }
    /// Takes what is dropped on @p widget.
    void acceptDropsOn(QWidget *widget);
    void ask();
    /// Takes the data in @p folder and all below it.
    void search(const QString &folder);
    /// Takes the data at @p paths.
    void inspect(const QStringList &paths);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void runningChanged(bool running);
    /// There are new samples at the end of the table.
    void added();
    /// A line on what became of a search, and what was left out of it.
    void reported(const QString &summary, const QStringList &refusals);

private:
    void start(bool started);
    void drop(const QMimeData &data);
    void add(const DataFindings &findings);

    SampleEditor &m_editor;
    FolderQuestion m_question;
    DataFinder m_finder;
    QStringList m_notLocal; ///< Dropped, but on no disk.
    DataProgress *m_progress = nullptr;
};

} // namespace workbench

#pragma once

// The names that snippets take for granted. They stand for what an application has, and are never run.

#include <ozm_audit/Checkpoint.h>
#include <ozm_audit/Store.h>
#include <ozm_common_core/FileExtensionsNameFilter.h>
#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Result.h>
#include <ozm_qt_shared_libs_core/FileTypes.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/DisplayString.h>
#include <ozm_widgets/IFileAccessor.h>
#include <ozm_widgets/MsSample.h>
#include <ozm_widgets/OzmMessageBoxSignal.h>
#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QApplication>
#include <QDateTime>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QMainWindow>
#include <QSaveFile>
#include <QSettings>
#include <QTableView>
#include <QTextCursor>

using namespace Qt::StringLiterals;

/// The result of any function, and all that one may return.
struct Anything
{
    Anything() = default;
    template <typename T>
    Anything(T &&)
    {}
    operator bool() const { return true; }
};

struct Run
{
    Q_GADGET
    Q_PROPERTY(int number MEMBER number)
public:
    int number = 0;
};

inline const QString kCharge = u"Charge"_s;
inline const QString kName = u"Name"_s;
inline const QString kCalcMr = u"Calc_Mr"_s;
inline const QString kModificationsNameList = u"ModificationsNameList"_s;
inline QList<RowNode *> m_rows;
extern QTableView *view;
extern AbstractTemplateEditor *editor;
QList<ShortCode> sampleCodes();

template <typename... T>
Anything store(T &&...);
template <typename... T>
Anything journal(T &&...);

struct SetCharge : ozm::UndoCommand
{
    SetCharge(RowNode *row, int charge);
    ozm::Error doRedo() override;
    ozm::Error doUndo() override;
};

struct Document
{
    ozm::Error save(const QString &path);
};

struct AutomationWindow : QMainWindow
{
    void save();
};

struct SampleModel : QObject
{
    void add(const ozm::msreader::MsSample &sample);
    void append(const QList<ozm::msreader::MsSample> &samples);
};

struct Window : QMainWindow
{
    template <typename... T>
    Anything show(T &&...);
    template <typename... T>
    Anything accept(T &&...);
    template <typename... T>
    Anything load(T &&...);
    template <typename... T>
    Anything report(T &&...);
    template <typename... T>
    Anything use(T &&...);
    template <typename... T>
    Anything import(T &&...);
    template <typename... T>
    Anything open(T &&...);
    template <typename... T>
    Anything remove(T &&...);
    template <typename... T>
    Anything stopEditing(T &&...);
    template <typename... T>
    Anything addSample(T &&...);
    template <typename... T>
    Anything showStatus(T &&...);
    bool openAsModified(const ozm::TemplateAutosave::Rescued &);
    bool userWantsToOverwrite();
    ozm::Result<QStringList> readNames(const QString &);
    void exportTo(const QStringList &paths);
    void showSummary(const ozm::Error &, bool);
    Run currentRun();

    RowNode *row;
    RowNode root{QList<QString>{kName, kCharge}};
    QLabel *label;
    QDockWidget *dock;
    QAction *action;
    QLabel *header;
    QFileDialog dialog;
    QSettings settings;
    QTextCursor cursor;
    SampleModel *model;
    QString path, folder, title, text, content, key, droppedPath;
    QStringList droppedPaths;
    FileExtensionsNameFilter filter, csvFilter;
    QList<QList<QString>> rows;
    ozm::Error error;
    ozm::OzmMessageBoxSignal signal;
    ozm::IFileAccessor::DirLocation kData;
    FileTypes::Ref csv;
    ozm::TemplateFile file;
    Document document;
    AutomationWindow window;
    ozm::UndoStack *stack;
    Run run;
    int argc;
    char **argv;
};

struct AbstractTemplateEditorNames : Window
{
    QString stored;
    RowNode row{QList<QString>{kName}};
};
using ReportPaperNames = AbstractTemplateEditorNames;
using ReportViewNames = AbstractTemplateEditorNames;
using TemplateFillingNames = AbstractTemplateEditorNames;
using VariantItemsNames = AbstractTemplateEditorNames;

struct DisplayStringNames : Window
{
    DisplayString text;
};

struct ReportBookNames : Window
{
    QList<const RowNode *> rows;
    QString filled(const RowNode &row);
    QString nameOf(const RowNode &row);
};

struct StoreNames : Window
{
    std::unique_ptr<ozm::audit::Store> store;
    ozm::UndoStack stack;
    RowNode *row;
    ozm::audit::PublicKey key;
    QByteArray bytes;
};
using EntryNames = StoreNames;
using LoggerNames = StoreNames;

struct ProofNames : StoreNames
{
    QByteArray text;
};
using QueryNames = StoreNames;

struct WholeFileNames : Window
{
    QByteArray bytes;
    ozm::Error notWritten(const QString &why);
};

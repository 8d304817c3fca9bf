#include "PictureRun.h"

#include "data/DataImport.h"
#include "reports/ReportDialog.h"
#include "reports/WorkbenchTemplateEditor.h"
#include "samples/AddSampleDialog.h"
#include "samples/SampleEditor.h"
#include "window/FirstStepsPage.h"
#include "window/FirstStepsSession.h"
#include "window/MainWindow.h"
#include "window/StyleDialog.h"

#include <ozm_audit_widgets/SubjectHistory.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/ReportView.h>
#include <ozm_widgets/WholeFile.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QEventLoop>
#include <QFile>
#include <QPixmap>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

// Previews and marks come after a moment, and all of them within this.
constexpr int kSettleMs = 250;
constexpr int kLongestWaitMs = 10000;
constexpr int kLookMs = 20;
constexpr QSize kWorkbench(1280, 760);
constexpr QSize kFirstSteps(1440, 860);

Error notWritten(const QString &path)
{
    return Error(ErrorCode::FileAccess, u"\"%1\" cannot be written."_s.arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

// Enough for the edges of letters; some of the pictures are in the documentation, and are to be small.
constexpr qsizetype kMostColors = 192;

/// With the most frequent colours only.
QImage packed(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QList<QRgb> colors = counts.keys();
    std::ranges::sort(colors, [&counts](QRgb a, QRgb b) {
        return std::pair(counts.value(a), a) > std::pair(counts.value(b), b);
    });
    colors.resize(qMin(colors.size(), kMostColors));
    return image.convertToFormat(QImage::Format_Indexed8, colors);
}

struct PictureRow
{
    const char *name;
    const char *title;
    const char *words;
};

// In English whatever the language, as all that batch runs leave.
enum Picture
{
    FirstStepsPicture,
    WorkbenchPicture,
    NewSamplePicture,
    FindDataPicture,
    OpenDataPicture,
    MessagePicture,
    ReportPicture,
    TemplateEditorPicture,
    SampleHistoryPicture,
    StylePicture,
    PictureCount,
};

constexpr std::array<PictureRow, PictureCount> kPictures{{
    {"first-steps", "First steps",
     "The window of somebody new: samples, data and a trail that are made up, and "
     "a page with five things to try. Two of them were tried: a step was undone, "
     "and the data in a folder of several vendors was found and added."},
    {"workbench", "The workbench",
     "Samples, the details of one, the history of steps, and the audit trail: an "
     "edit, a macro with its steps, a step that was undone, and one that was "
     "refused."},
    {"new-sample", "A new sample", "It is checked, recorded, and then made."},
    {"find-data", "Finding data", "The dialog that lists the data in a folder and all below it."},
    {"open-data", "Opening data", "Files and raw folders in one dialog, which says what each holds."},
    {"message", "A message from another thread", "The thread asked in one line, and waits for the answer."},
    {"report", "A report", "A template with codes and scripts, filled with a sample."},
    {"template-editor", "The template editor",
     "Codes, the formatted template, and the preview with two faults listed: a code "
     "that nothing fills, and a script that fails."},
    {"sample-history", "The history of a sample",
     "All that the trail says about one sample, and two states side by side."},
    {"style", "Style", "Every icon and every kind of message, in light and in dark."},
}};

/// Their pages are laid out beside the event loop.
bool areReportsShown(const QWidget &window)
{
    const auto views = window.findChildren<ozm::ReportView *>();
    return std::all_of(views.begin(), views.end(), [](const ozm::ReportView *view) {
        return !view->isVisible() || view->pageCount() > 0;
    });
}

/// All pictures of one scheme: a function for each window.
class Photographer
{
public:
    Photographer(FirstStepsSession &session, const QDir &out, const QString &suffix)
        : m_session(session)
        , m_out(out)
        , m_suffix(suffix)
    {}

    Error all()
    {
        m_session.window().setMessagesShown(false);
        for (const auto take :
             {&Photographer::takeWindow, &Photographer::takeFirstSteps, &Photographer::takeDialogs,
              &Photographer::takeMessage, &Photographer::takeReport, &Photographer::takeHistory})
            (this->*take)();
        return m_error;
    }

private:
    void take(QWidget &window, Picture picture)
    {
        window.show();
        waitFor(kSettleMs);
        waitUntil([&window] { return areReportsShown(window); });
        const QString path =
            m_out.filePath(QString::fromLatin1(kPictures.at(picture).name) + m_suffix + u".png"_s);
        if (!packed(window.grab().toImage()).save(path, "PNG", 0) && !m_error.hasError())
            m_error = notWritten(path);
    }

    /// The modal dialog that @p button brings up, on this thread or another.
    void takeModal(Picture picture, const QString &button)
    {
        QTimer look;
        bool isTaken = false;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || isTaken)
                return;
            isTaken = true;
            // A dialog speaks of the files that are chosen.
            if (auto *files = dialog->findChild<QTreeView *>(u"treeView"_s))
                files->selectAll();
            take(*dialog, picture);
            dialog->close();
        });
        look.start(kLookMs);
        click(button);
        waitUntil([&] { return isTaken; });
        waitFor(kLookMs);
    }

    void click(const QString &button) const { m_session.window().findChild<QPushButton *>(button)->click(); }

    void waitUntil(const std::function<bool()> &isSo)
    {
        for (int waited = 0; !isSo() && waited < kLongestWaitMs; waited += kLookMs)
            waitFor(kLookMs);
        if (!isSo() && !m_error.hasError())
            m_error = Error(ErrorCode::Failed, u"A window did not come up."_s).ecatch(OZM_HERE);
    }

    [[nodiscard]] std::vector<RowNode> rows() const
    {
        std::vector<RowNode> all;
        all.reserve(static_cast<std::size_t>(m_session.editor().table().rowCount()));
        for (int index = 0; index < m_session.editor().table().rowCount(); ++index)
            all.push_back(*m_session.editor().table().row(index));
        return all;
    }

    void takeWindow()
    {
        MainWindow window(m_session.editor(), m_session.folder() + u"trail.sqlite"_s);
        window.resize(kWorkbench);
        auto *table = window.findChild<QTableView *>(u"sampleTable"_s);
        table->selectRow(0);
        table->setFocus();
        take(window, WorkbenchPicture);
    }

    void takeFirstSteps()
    {
        MainWindow &window = m_session.window();
        // The window fits itself to a screen, of which a run without one has any size.
        window.resize(kFirstSteps);
        window.show();
        click(u"undoButton"_s);
        click(u"findButton"_s);
        waitUntil([&window] { return !window.dataImport().isRunning(); });
        take(window, FirstStepsPicture);
    }

    void takeDialogs()
    {
        AddSampleDialog sample(m_session.editor());
        take(sample, NewSamplePicture);
        FileCrawlerDialog finder;
        finder.setCrawlFolderReference(m_session.dataFolder());
        take(finder, FindDataPicture);
        StyleDialog style;
        take(style, StylePicture);
        takeModal(OpenDataPicture, u"chooseButton"_s);
    }

    void takeMessage() { takeModal(MessagePicture, u"askButton"_s); }

    void takeReport()
    {
        const std::vector<RowNode> all = rows();
        const ReportContext context(m_session.editor().user(), u"samples.csv"_s, all);
        ReportDialog report({all.front()}, context);
        take(report, ReportPicture);
        WorkbenchTemplateEditor editor(all, context);
        editor.setAttribute(Qt::WA_DeleteOnClose, false);
        QFile letter(u":/pictures/pictures-letter.html"_s);
        if (!letter.open(QIODevice::ReadOnly) || !editor.setSourceText(QString::fromUtf8(letter.readAll())))
            m_error = Error(ErrorCode::Failed, u"The template editor takes no template."_s).ecatch(OZM_HERE);
        editor.show();
        waitFor(kSettleMs);
        auto *rich = editor.findChild<QTextEdit *>(u"richView"_s);
        rich->setTextCursor(rich->document()->find(u"Check"_s));
        rich->moveCursor(QTextCursor::EndOfBlock);
        editor.findChild<QAction *>(u"editScriptAction"_s)->trigger();
        editor.findChild<QPushButton *>(u"scriptRun"_s)->click();
        take(editor, TemplateEditorPicture);
    }

    void takeHistory()
    {
        const SampleTable &table = m_session.editor().table();
        const QString name = table.row(3)->getDataAt(kName).toString();
        ozm::audit::SubjectHistory history(m_session.editor().logger().store(), u"Label"_s,
                                           u"{\"Name\":\"%1\"}"_s.arg(name));
        history.compare(0, 1);
        take(history, SampleHistoryPicture);
    }

    FirstStepsSession &m_session;
    const QDir m_out;
    const QString m_suffix;
    Error m_error;
};

constexpr auto kPicturesPage = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>%1</title>
<meta name="viewport" content="width=device-width">
<style>
:root { color-scheme: light dark; }
body { font: 16px/1.5 sans-serif; max-width: 1480px; margin: 2em auto; padding: 0 1em; }
figure { margin: 0 0 3em; }
figcaption { max-width: 70ch; margin-bottom: 1em; }
div { display: flex; flex-wrap: wrap; gap: 1em; align-items: flex-start; }
img { max-width: 100%; height: auto; border: 1px solid #8888; }
</style></head><body>
<h1>%1</h1>
<p>%2</p>
%3%4
</body></html>
)";

QString figureOf(const PictureRow &row)
{
    const QString title = QString::fromLatin1(row.title).toHtmlEscaped();
    QString images;
    for (const auto &scheme : {u"light"_s, u"dark"_s})
        images += u"<img loading=\"lazy\" src=\"pictures/%1-%2.png\" alt=\"%3, %2\">\n"_s.arg(
            QString::fromLatin1(row.name), scheme, title);
    return u"<figure><h2>%1</h2><figcaption>%2</figcaption>\n<div>\n%3</div></figure>\n"_s.arg(
        title, QString::fromLatin1(row.words).toHtmlEscaped(), images);
}

/// Links to what batch runs left in the folder.
QString resultsIn(const QDir &folder)
{
    QString links;
    for (const auto &run : {u"peptides"_s, u"data"_s})
        for (const auto &name : {u"report.html"_s, u"report.pdf"_s, u"samples.csv"_s, u"formats.csv"_s,
                                 u"audit.json"_s, u"window.png"_s})
            if (const QString path = run + u'/' + name; folder.exists(path))
                links += u"<li><a href=\"%1\">%1</a></li>\n"_s.arg(path);
    if (links.isEmpty())
        return {};
    return u"<h2>%1</h2>\n<ul>\n%2</ul>"_s.arg(u"The results of the batch runs"_s.toHtmlEscaped(), links);
}

Error writePage(const QDir &folder)
{
    QString figures;
    for (const PictureRow &row : kPictures)
        figures += figureOf(row);
    const QString page =
        QString::fromLatin1(kPicturesPage)
            .arg(u"The workbench in pictures"_s,
                 u"Each window on the sample data of the first steps. With a display, <code>workbench "
                 "--first-steps</code> opens the first of them."_s,
                 figures, resultsIn(folder));
    const QString path = folder.filePath(u"index.html"_s);
    return ozm::writeWhole(path, page.toUtf8()).hasError() ? notWritten(path) : Error();
}

} // namespace

Error takePictures(const QString &folder)
{
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QStandardPaths::setTestModeEnabled(true);
    const QDir out(folder);
    if (!out.mkpath(u"pictures"_s))
        return notWritten(out.filePath(u"pictures"_s));
    const QPalette before = QApplication::palette();
    for (const auto &[scheme, suffix] :
         {std::pair(OZMStyle::Scheme::Light, u"-light"_s), std::pair(OZMStyle::Scheme::Dark, u"-dark"_s)}) {
        QApplication::setPalette(OZMStyle::palette(scheme));
        const auto session = FirstStepsSession::make(u"jdoe"_s);
        if (!session)
            return session.error();
        const QDir pictures(out.filePath(u"pictures"_s));
        if (Error error = Photographer(*session.value(), pictures, suffix).all(); error.hasError())
            return error;
    }
    QApplication::setPalette(before);
    return writePage(out);
}

} // namespace workbench

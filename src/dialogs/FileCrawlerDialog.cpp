#include <ozm_widgets/FileCrawlerDialog.h>

#include "dialogs/FileCrawlerForm.h"
#include "dialogs/GuardedDialog.h"
#include "dialogs/SaveProbe.h"

#include "support/Platform.h"
#include <ozm_common_core/CustomFieldsStringConstants.h>
#include <ozm_common_core_mini/CsvWriter.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/MsDataSearch.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/openfilefolderdialog.h>
#include <platform/Errors.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using ozm::DefaultWidgetCreator;
using ozm::Error;
using ozm::GuardedDialog;
using ozm::msreader::MsDataSearch;
using ozm::msreader::MsSample;

namespace {

using Rows = QList<QList<QString>>;

// More than that nobody reads in a message.
constexpr qsizetype kMostPassedOverShown = 10;

ExtendableEnumRef<FileSystemSettings::DirLocationData> crawlLocation()
{
    static const auto location = ozm::platform::dirLocation(u"msDataSearch"_s);
    return location;
}

ExtendableEnumRef<FileSystemSettings::DirLocationData> csvLocation()
{
    static const auto location = ozm::platform::dirLocation(u"msDataPathsCsv"_s);
    return location;
}

const QStringList &templateLines()
{
    static const QStringList lines{
        u"%1,%2,ExampleSampleName1,ExampleName2,ExampleMassName,ExampleMassName2"_s.arg(
            u"ColumnName"_s, CustomFieldsStringConstants::COL_FILEPATH),
        u"Expectation,,,,Desired,Undesired"_s,
        u"ColumnType,,SampleName,SampleName,Mass,Mass"_s,
    };
    return lines;
}

Rows csvRows(const QList<QString> &paths)
{
    Rows rows;
    for (const QString &line : templateLines())
        rows.append(line.split(u','));
    const qsizetype columns = rows.constFirst().size();
    for (const QString &path : paths) {
        QList<QString> row(columns);
        row[1] = path;
        rows.append(row);
    }
    return rows;
}

Error writeCsv(const QString &path, const Rows &rows)
{
    if (ozm::CsvWriter::writeFile(path, rows, {}, u','))
        return {};
    return ozm::platform::withWarning(Error(ozm::codes::Failed, u"Writing to csv file failed"_s),
                                      ozm::notWrittenText(path))
        .ecatch(OZM_PLACE);
}

/// A path as people write it: with blanks around it, or beginning at their home. A folder that is really
/// called so comes first.
QString meantFolder(const QString &typed)
{
    if (QFileInfo(typed).isDir())
        return typed;
    QString path = typed.trimmed();
    if (path == "~"_L1 || path.startsWith("~/"_L1))
        return QDir::homePath() + path.sliced(1);
    return path;
}

QString passedOverText(const QStringList &folders)
{
    QString text = FileCrawlerDialog::tr("These folders could not be searched:\n%1")
                       .arg(folders.first(qMin(folders.size(), kMostPassedOverShown)).join(u'\n'));
    if (folders.size() > kMostPassedOverShown)
        text += FileCrawlerDialog::tr("\nand %1 more").arg(folders.size() - kMostPassedOverShown);
    return text;
}

bool hasFolder(const FileCrawlerDialog::DestinationFileLocation &destination)
{
    return !destination.reference->isScheme(ozm::ResourceReference::Scheme::LocalFile) ||
           QFileInfo(destination.toString()).absoluteDir().exists();
}

} // namespace

class FileCrawlerDialog::Private
{
public:
    explicit Private(FileCrawlerDialog *dialog)
        : qptr(dialog)
        , form(dialog)
    {}

    /// Runs the search beside the event loop; the answer of a dialog that is gone means nothing.
    [[nodiscard]] ozm::Result<QList<QString>> search(const QString &folder);
    void follow(MsDataSearch *search);
    void showError(const QString &text) const;
    [[nodiscard]] bool askDestination();

    FileCrawlerDialog *const qptr;
    ozm::FileCrawlerForm form;
    QPointer<MsDataSearch> running;
    QList<QString> references;
    QStringList passedOver;
    DestinationFileLocation destination;
    int foldersSearched = 0;
    bool asksForDestination = false;
    bool isAccepting = false;
    bool wasCanceled = false;
};

ozm::Result<QList<QString>> FileCrawlerDialog::Private::search(const QString &folder)
{
    const QPointer<FileCrawlerDialog> dialog(qptr);
    // On the heap, and ending itself: a share that does not answer holds it up, but not the dialog.
    auto *search = new MsDataSearch;
    QEventLoop loop;
    Error failure;
    connect(search, &MsDataSearch::finished, &loop, [&](const Error &error) {
        failure = error;
        loop.quit();
    });
    connect(search, &MsDataSearch::finished, search, &QObject::deleteLater);
    connect(qptr, &QObject::destroyed, &loop, &QEventLoop::quit);
    connect(form.cancelSearchButton, &QPushButton::clicked, &loop, &QEventLoop::quit);
    follow(search);

    ozm::msreader::MsDataSearchOptions options;
    options.recursive = qptr->recursiveSearch();
    options.measureFiles = false;
    form.setSearching(true);
    search->start(folder, options);
    loop.exec();
    if (!dialog)
        return QList<QString>();
    form.setSearching(false);
    form.showPassedOver(passedOver);
    if (wasCanceled)
        form.showCanceled(foldersSearched, static_cast<int>(references.size()));
    if (failure.hasError())
        return failure.ecatch(OZM_PLACE);
    return references;
}

void FileCrawlerDialog::Private::follow(MsDataSearch *search)
{
    running = search;
    references.clear();
    passedOver.clear();
    foldersSearched = 0;
    wasCanceled = false;
    connect(search, &MsDataSearch::found, qptr, [this](const QList<MsSample> &samples) {
        for (const MsSample &sample : samples)
            references.append(sample.path);
    });
    connect(search, &MsDataSearch::passedOver, qptr, [this](const QString &folder, const QString &reason) {
        passedOver.append(u"%1: %2"_s.arg(QDir::toNativeSeparators(folder), reason));
    });
    connect(search, &MsDataSearch::progressed, qptr, [this](int folders, int found) {
        foldersSearched = folders;
        form.showProgress(folders, found);
    });
    connect(qptr, &QObject::destroyed, search, &MsDataSearch::cancel);
    connect(form.cancelSearchButton, &QPushButton::clicked, search, [this, search] {
        wasCanceled = true;
        search->cancel();
        // Results that still arrive belong to a canceled search.
        search->disconnect(qptr);
    });
}

void FileCrawlerDialog::Private::showError(const QString &text) const
{
    OZMStyle::critical(qptr, ozm::OzmMessageBoxSignal::PathInvalid, tr("Error"), text, QMessageBox::Ok);
}

bool FileCrawlerDialog::Private::askDestination()
{
    const QPointer<FileCrawlerDialog> dialog(qptr);
    const DestinationFileLocation chosen = DefaultWidgetCreator::fileAccessor()->getSaveFileName(
        qptr, tr("Save CSV file"), {}, FileExtensionsNameFilter(tr("CSV files (*.csv)")), csvLocation());
    if (!dialog || chosen.isCanceled())
        return false;
    if (!hasFolder(chosen)) {
        showError(tr("CSV path does not exist"));
        return false;
    }
    destination = chosen;
    return true;
}

FileCrawlerDialog::FileCrawlerDialog(QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>(this))
{
    connect(d->form.buttonBox, &QDialogButtonBox::accepted, this, &FileCrawlerDialog::accept);
    connect(d->form.buttonBox, &QDialogButtonBox::rejected, this, &FileCrawlerDialog::reject);
    connect(d->form.crawlPathLine, &QLineEdit::textChanged, this,
            &FileCrawlerDialog::crawlFolderReferenceChanged);
    connect(d->form.enableRecursiveSearch, &QCheckBox::toggled, this,
            &FileCrawlerDialog::recursiveSearchChanged);
}

FileCrawlerDialog::~FileCrawlerDialog() = default;

QString FileCrawlerDialog::crawlFolderReference() const
{
    return d->form.crawlPathLine->text();
}

void FileCrawlerDialog::setCrawlFolderReference(const QString &folder)
{
    d->form.crawlPathLine->setText(folder);
}

bool FileCrawlerDialog::recursiveSearch() const
{
    return d->form.enableRecursiveSearch->isChecked();
}

QList<QString> FileCrawlerDialog::msFileReferences() const
{
    return d->references;
}

QStringList FileCrawlerDialog::passedOverFolders() const
{
    return d->passedOver;
}

void FileCrawlerDialog::setAskForDestinationPath(bool ask)
{
    d->asksForDestination = ask;
}

FileCrawlerDialog::DestinationFileLocation FileCrawlerDialog::destinationFile() const
{
    return d->destination;
}

int FileCrawlerDialog::exec()
{
    d->form.buttonBox->button(QDialogButtonBox::Ok)->setText(tr("Save..."));
    return QDialog::exec();
}

void FileCrawlerDialog::accept()
{
    // A second search beside the first would list everything twice.
    if (d->isAccepting)
        return;
    const QPointer<FileCrawlerDialog> self(this);
    d->isAccepting = true;
    acceptFound();
    if (self)
        d->isAccepting = false;
}

void FileCrawlerDialog::acceptFound()
{
    // Every step may run an event loop, in which the dialog's parent may go.
    const QPointer<FileCrawlerDialog> self(this);
    // A derived dialog may search in its own way, which knows nothing of an earlier cancel.
    d->wasCanceled = false;
    const auto found = retrieveMsReferences();
    if (!self || d->wasCanceled)
        return;
    if (!found) {
        d->showError(found.error().errorMessage());
        return;
    }
    if (found.value().isEmpty()) {
        d->showError(tr("The folder \"%1\" does not contain any MS data.").arg(crawlFolderReference()));
        return;
    }
    d->references = found.value();
    d->form.showFound(static_cast<int>(d->references.size()));
    if (!d->passedOver.isEmpty()) {
        OZMStyle::information(this, ozm::OzmMessageBoxSignal::FileNotReadable, tr("Information"),
                              passedOverText(d->passedOver));
    }
    if (self && (!d->asksForDestination || d->askDestination()) && self)
        QDialog::accept();
}

void FileCrawlerDialog::reject()
{
    if (d->form.cancelSearchButton->isVisible())
        d->form.cancelSearchButton->click();
    else
        QDialog::reject();
}

ozm::Result<QList<QString>> FileCrawlerDialog::retrieveMsReferences()
{
    const QString folder = meantFolder(crawlFolderReference());
    d->passedOver.clear();
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return Error(ozm::codes::Failed, u"Search path does not exist"_s).ecatch(OZM_PLACE);
    return d->search(folder);
}

void FileCrawlerDialog::on_crawlPathButton_clicked()
{
    const QPointer<FileCrawlerDialog> self(this);
    const QString folder = DefaultWidgetCreator::fileAccessor()->getExistingDirectory(
        this, tr("Crawl path"), crawlFolderReference(), QFileDialog::ShowDirsOnly, crawlLocation());
    if (self && !folder.isEmpty())
        d->form.crawlPathLine->setText(folder);
}

QList<QString> FileCrawlerDialog::generateMSDataPaths()
{
    const QPointer<FileCrawlerDialog> self(this);
    const bool isAccepted = exec() == Accepted;
    return isAccepted && self ? d->references : QList<QString>();
}

void FileCrawlerDialog::generateMSDataPathsCsv()
{
    const QPointer<FileCrawlerDialog> self(this);
    if (exec() != Accepted || !self)
        return;
    const Rows rows = csvRows(d->references);
    const Error error =
        DefaultWidgetCreator::fileAccessor(ozm::IFileAccessor::FileAccessorType::Default)
            ->saveFile(d->destination, [rows](const QString &path) { return writeCsv(path, rows); });
    QWidget *owner = parentWidget();
    if (error.hasError()) {
        (void)OZMStyle::ask(owner, {.icon = QMessageBox::Information,
                                    .signal = ozm::OzmMessageBoxSignal::FileNotWritable,
                                    .title = tr("Error"),
                                    .text = error.errorMessage(),
                                    .detailedText = error.warnings().join(u'\n')});
        return;
    }
    const bool isLocal = !d->destination.isNull() &&
                         d->destination.reference->isScheme(ozm::ResourceReference::Scheme::LocalFile);
    if (d->asksForDestination && isLocal) {
        const QString path = d->destination.toString();
        GuardedDialog prompt(new openfilefolderdialog(
            owner, {}, path, tr("\"%1\" successfully saved.").arg(path), true, true));
        (void)prompt.exec();
        return;
    }
    OZMStyle::information(owner, ozm::OzmMessageBoxSignal::Unspecified, tr("Information"),
                          tr("CSV file successfully saved."));
}

QList<QString> FileCrawlerDialog::generateMSDataPaths(QWidget *parent)
{
    const QPointer<FileCrawlerDialog> dialog(DefaultWidgetCreator::fileCrawler(parent));
    QList<QString> paths = dialog->generateMSDataPaths();
    delete dialog.data();
    return paths;
}

void FileCrawlerDialog::generateMSDataPathsCsv(QWidget *parent)
{
    const QPointer<FileCrawlerDialog> dialog(DefaultWidgetCreator::fileCrawler(parent));
    dialog->setAskForDestinationPath(true);
    dialog->generateMSDataPathsCsv();
    delete dialog.data();
}

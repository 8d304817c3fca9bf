#include <ozm_widgets/ReportBook.h>

#include "templates/paper/ReportPaperPrivate.h"

#include <ozm_widgets/WholeFile.h>
#include <platform/Errors.h>

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr int kPdfDotsPerInch = 300;
constexpr qint64 kCopiedAtOnce = qint64(1) << 20;

QString bookText(const char *text)
{
    return QCoreApplication::translate("ozm::ReportBook", text);
}

bool copyBytes(QIODevice &from, QIODevice &to)
{
    if (!from.seek(0))
        return false;
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(kCopiedAtOnce);
        if (bytes.isEmpty() || to.write(bytes) != bytes.size())
            return false;
    }
    return true;
}

} // namespace

class ReportBook::Private
{
public:
    Private(const QString &filePath, const ReportBookOptions &given)
        : path(filePath)
        , options(given)
        , target(filePath)
    {}

    Error cannotWrite(const QString &reason)
    {
        const QString text = bookText(QT_TRANSLATE_NOOP("ozm::ReportBook", "\"%1\" cannot be written. %2"));
        error = Error(codes::FileAccess, text.arg(QDir::toNativeSeparators(path), reason).trimmed())
                    .ecatch(OZM_PLACE);
        return error;
    }

    /// Where nothing can be written, it is said before hundreds of reports are made.
    Error begin(const ReportPaper::Private &report)
    {
        if (!target.open(QIODevice::WriteOnly))
            return cannotWrite(target.errorString());
        if (!pages.open())
            return cannotWrite(pages.errorString());
        writer = std::make_unique<QPdfWriter>(&pages);
        writer->setResolution(kPdfDotsPerInch);
        writer->setTitle(options.title);
        writer->setCreator(QCoreApplication::applicationName());
        writer->setPageLayout(report.options.layout);
        report.setUp(*writer);
        return painter.begin(writer.get()) ? Error() : cannotWrite({});
    }

    void addBookmarks(const QList<paper::Bookmark> &headings, const QString &bookmark)
    {
        if (!bookmark.isEmpty())
            bookmarks.append(
                {bookmark, 0, sheets, 0, writer->pageLayout().fullRect(QPageLayout::Point).height()});
        // The title of a report often is the bookmark once more.
        const bool isRepeated = !headings.isEmpty() && headings.constFirst().text == bookmark;
        for (paper::Bookmark heading : headings.sliced(isRepeated ? 1 : 0)) {
            heading.sheet += sheets;
            bookmarks.append(heading);
        }
    }

    void addLinks(const QList<paper::PdfLink> &added)
    {
        for (paper::PdfLink link : added) {
            link.sheet += sheets;
            link.to.sheet += sheets;
            links.append(link);
        }
    }

    Error close()
    {
        // The rest of the PDF is written only now.
        painter.end();
        if (!pages.flush() || pages.error() != QFileDevice::NoError)
            return cannotWrite(pages.errorString());
        const auto update =
            paper::pdfUpdate(pages, bookmarks, links, {options.author, options.subject, options.keywords});
        if (!update)
            return cannotWrite(
                bookText(QT_TRANSLATE_NOOP("ozm::ReportBook", "Bookmarks cannot be added to it.")));
        if (!copyBytes(pages, target) || target.write(*update) != update->size())
            return cannotWrite(target.errorString());
        const Error stored = commitWhole(target);
        return stored.hasError() ? cannotWrite(stored.errorMessage()) : Error();
    }

    const QString path;
    const ReportBookOptions options;
    QSaveFile target;
    QTemporaryFile pages; ///< QSaveFile cannot read what it has written.
    std::unique_ptr<QPdfWriter> writer;
    QPainter painter;
    QList<paper::Bookmark> bookmarks;
    QList<paper::PdfLink> links;
    int sheets = 0;
    bool isFinished = false;
    Error error;
};

ReportBook::ReportBook(const QString &path, const ReportBookOptions &options)
    : d(std::make_unique<Private>(path, options))
{}

ReportBook::~ReportBook() = default;

int ReportBook::sheetCount() const
{
    return d->sheets;
}

Error ReportBook::add(const ReportPaper &report, const QString &bookmark)
{
    if (d->error.hasError())
        return d->error;
    if (!d->writer) {
        if (Error error = d->begin(*report.d); error.hasError())
            return error;
    } else {
        d->writer->setPageLayout(report.d->options.layout);
        report.d->setUp(*d->writer);
        d->writer->newPage();
    }
    const ReportPaper::Private::Drawn drawn = report.d->draw(d->painter, *d->writer);
    d->addBookmarks(drawn.headings, bookmark);
    d->addLinks(drawn.links);
    d->sheets += drawn.sheets;
    return d->pages.error() == QFileDevice::NoError ? Error() : d->cannotWrite(d->pages.errorString());
}

Error ReportBook::finish()
{
    if (d->error.hasError())
        return d->error;
    if (!d->writer || std::exchange(d->isFinished, true))
        return Error(codes::BadParameter,
                     bookText(QT_TRANSLATE_NOOP("ozm::ReportBook", "The book has no report.")))
            .ecatch(OZM_PLACE);
    return d->close();
}

} // namespace ozm

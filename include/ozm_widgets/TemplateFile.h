#pragma once

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

namespace ozm {

/**
 * Report templates on disk: reading, writing, and noticing that somebody else wrote.
 *
 *     const auto loaded = ozm::TemplateFile::read(path);
 *     if (!loaded)
 *         return loaded.error();
 *     file.opened(path, loaded.value().digest);
 *     show(loaded.value().content);
 *     ...
 *     if (file.changedOnDisk() && !userWantsToOverwrite())
 *         return {};
 *     ozm::Error error = ozm::TemplateFile::write(path, content);
 *
 * A template in its envelope, plain text and pieces of HTML are read as they stand. Of a whole HTML page the
 * body is kept, in the page's declared character set; that takes the web reader, which is loaded the first
 * time a page is read. Scripts of a page are never run, and nothing is fetched. While it works, timers and
 * events run on, but for those of the user's mouse and keyboard.
 *
 * Reading pages is for the GUI thread, everything else for any thread; one object is not for several at once.
 */
class OZM_WIDGETS_EXPORT TemplateFile
{
    Q_DECLARE_TR_FUNCTIONS(ozm::TemplateFile)

public:
    /// A file as it was read.
    struct Loaded
    {
        QString content;        ///< The template, without envelope.
        QByteArray charset;     ///< The character set in which the file is written, and stays.
        bool converted = false; ///< The body of a page from elsewhere.
        QByteArray digest;      ///< What opened() takes.
    };

    /// How a whole HTML page is read: its body is kept, or all of its text stays as it is.
    enum class Page
    {
        Body,
        AsText
    };

    /// Larger files, in bytes, are neither read nor written.
    static constexpr qint64 kLargest = qint64(64) * 1024 * 1024;

    TemplateFile();
    ~TemplateFile();

    /// Error code 4 when the file cannot be read or is too large. Code 2 when it holds no template: "Wrong
    /// template editor content format." for an envelope that is cut short or of another version, and for
    /// what is not text, with the details as a warning; or that the declared character set does not fit.
    /// For pages also code 3 when the web reader is not there (Page::AsText opens them all the same), and
    /// code 1 when it failed.
    [[nodiscard]] static Result<Loaded> read(const QString &path, Page page = Page::Body);

    /// Puts @p content into its envelope, in UTF-8. All of it is written or the old file stays: code 4. Any
    /// content is read back as it was, markers such as "%1" included; what cannot be (a zero character, half
    /// of a character pair, too much of it) is refused with code 2, before anything is touched.
    static Error write(const QString &path, const QString &content);

    /// True when the file is gone, or other than it was when it was opened. False before opened().
    [[nodiscard]] bool changedOnDisk() const;
    /// The file that opened() was told of last.
    [[nodiscard]] QString path() const;

    /// Remembers the file as it is now; or, with the @p digest from reading, as it was then.
    void opened(const QString &path, const QByteArray &digest = {});

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm

#include "CopyFiles.h"

#include "../Texts.h"
#include "../tree/MerkleTree.h"

#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

QString csvField(QString text)
{
    // A spreadsheet takes a text that begins like this for a formula.
    if (!text.isEmpty() && u"=+-@"_s.contains(text.front()))
        text.prepend(u'\'');
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QStringList fieldsOf(const Entry &entry)
{
    return {QString::number(entry.number),
            entry.dateTime().toString(Qt::ISODateWithMs),
            entry.zone,
            entry.user.id,
            entry.user.name,
            entry.user.role,
            kindToString(entry.kind),
            entry.context,
            entry.isDisposed() ? Texts::tr("(disposed of)") : entry.text(),
            entry.reason,
            entry.outcomeCode == 0 ? QString() : entry.outcomeText};
}

/// Lines of an entry, of no more than @p width of the printer's units.
QString shortened(const QFontMetrics &metrics, const QString &text, int width)
{
    return metrics.elidedText(text, Qt::ElideRight, width);
}

Error notWritten(const QFile &file)
{
    return Error(ErrorCode::FileAccess,
                 Texts::tr("\"%1\" cannot be written: %2")
                     .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()))
        .ecatch(OZM_HERE);
}

Error write(QFile &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() ? Error() : notWritten(file);
}

} // namespace

/// Draws pages of lines, each with the trail, the checkpoint and its number.
class CopyFiles::Pages
{
public:
    Pages(QFile &file, const QString &title, const Checkpoint &checkpoint, qint64 lines)
        : m_writer(&file)
        , m_title(title)
        , m_foot(Texts::tr("Checkpoint: %1 entries, root %2")
                     .arg(checkpoint.size)
                     .arg(QString::fromLatin1(checkpoint.root.toBase64())))
    {
        m_writer.setPageSize(QPageSize(QPageSize::A4));
        m_writer.setPageOrientation(QPageLayout::Landscape);
        m_writer.setResolution(300);
        m_writer.setTitle(title);
        m_painter.begin(&m_writer);
        m_painter.setFont(QFont(u"DejaVu Sans"_s, 7));
        m_line = m_painter.fontMetrics().lineSpacing();
        m_perPage = qMax(1, m_writer.height() / m_line - 5);
        m_pages = qMax<qint64>(1, (lines + m_perPage - 1) / m_perPage);
        frame();
    }

    void add(const QString &text)
    {
        if (m_at == m_perPage) {
            m_writer.newPage();
            ++m_page;
            m_at = 0;
            frame();
        }
        draw(m_at++ + 2, text);
    }

private:
    void frame()
    {
        draw(0, m_title);
        draw(m_perPage + 3, m_foot);
        draw(m_perPage + 4, Texts::tr("Page %1 of %2").arg(m_page).arg(m_pages));
    }

    void draw(int line, const QString &text)
    {
        m_painter.drawText(0, (line + 1) * m_line,
                           shortened(m_painter.fontMetrics(), text, m_writer.width()));
    }

    QPdfWriter m_writer;
    const QString m_title;
    const QString m_foot;
    QPainter m_painter;
    int m_line = 0;
    int m_perPage = 0;
    qint64 m_pages = 0;
    qint64 m_page = 1;
    int m_at = 0;
};

Error writeCopyFile(const QDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(bytes) == bytes.size() &&
        file.flush())
        return {};
    return notWritten(file);
}

CopyFiles::CopyFiles(const QDir &folder, const QString &title, const Checkpoint &checkpoint, qint64 count)
    : m_title(title)
    , m_checkpoint(checkpoint)
    , m_count(count)
    , m_entries(folder.filePath(u"entries.ndjson"_s))
    , m_csv(folder.filePath(u"trail.csv"_s))
    , m_pdf(folder.filePath(u"trail.pdf"_s))
{}

CopyFiles::~CopyFiles() = default;

Error CopyFiles::open()
{
    for (QFile *file : {&m_entries, &m_csv}) {
        if (!file->open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return notWritten(*file);
    }
    // There are no fonts without it.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        if (!m_pdf.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return notWritten(m_pdf);
        m_pages = std::make_unique<Pages>(m_pdf, m_title, m_checkpoint, m_count);
    }
    return write(m_csv, "number,time,zone,user,name,role,kind,context,text,reason,outcome\n");
}

Error CopyFiles::add(const Entry &entry)
{
    Error error = write(m_entries, "{\"number\":" + QByteArray::number(entry.number) + ",\"hash\":\"" +
                                       toBytes(leafHash(entry.bytes)).toHex() + "\",\"bytes\":\"" +
                                       entry.bytes.toBase64() + "\"}\n");
    if (error.hasError())
        return error;
    const QStringList facts = fieldsOf(entry);
    if (m_pages) {
        QStringList words = facts;
        words.removeAll(QString());
        m_pages->add(words.join(u"  "_s).simplified());
    }
    QStringList fields = facts;
    std::ranges::transform(fields, fields.begin(), csvField);
    return write(m_csv, fields.join(u',').toUtf8() + '\n');
}

Error CopyFiles::close()
{
    // Ends the document, whose writer itself tells of no error.
    m_pages.reset();
    for (QFile *file : {&m_entries, &m_csv, &m_pdf}) {
        if (file->isOpen() && (!file->flush() || file->error() != QFile::NoError))
            return notWritten(*file);
        file->close();
    }
    return {};
}

QByteArray copyReadme(const Checkpoint &checkpoint, qint64 entries, const QString &choice, bool whole)
{
    QByteArray text = "Inspection copy of the audit trail " + checkpoint.origin.toUtf8() + "\n\n" +
                      QByteArray::number(entries) + " of " + QByteArray::number(checkpoint.size) +
                      " entries.\n\n";
    if (!choice.isEmpty())
        text += "Chosen: " + choice.toUtf8() + "\n\n";
    if (whole) {
        text += "Check the trail, with Python and nothing else:\n\n"
                "    python3 ozm_audit_verify.py trail.sqlite --checkpoints checkpoints\n\n"
                "Checkpoints of your own, taken earlier or from another place, tell more: put them into the "
                "folder.\n\n";
    } else {
        text +=
            "Each entry has a proof in proofs/ (tlog-proof) that it is in the trail of the checkpoint.\n\n";
    }
    text += "entries.ndjson has the exact bytes of each entry in Base64; its hash is SHA-256 over a zero "
            "byte and them.\n\n"
            "Check the signature of a checkpoint, when it has one, with openssl:\n\n"
            "    sed '/^$/,$d' checkpoint.txt > text\n"
            "    tail -n 1 checkpoint.txt | cut -d' ' -f3 | base64 -d | tail -c 64 > sig\n"
            "    openssl pkeyutl -verify -pubin -inkey key.pem -rawin -in text -sigfile sig\n";
    return text;
}

} // namespace ozm::audit

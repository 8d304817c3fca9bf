#include "Fuzz.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QGuiApplication>
#include <QTextCursor>

using namespace ozm;

namespace {

QString writtenAnew(const QString &source)
{
    TemplateDocument document;
    QTextCursor cursor(&document);
    document.insertSource(cursor, source);
    return document.source();
}

} // namespace

// The system's list of fonts is never given back.
extern "C" const char *
__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
{
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QString source = fuzz::textOf(data, size);
    // Files that hold it are refused before they come here.
    source.remove(QChar::Null);
    TemplateDocument document;
    document.setSource(source);
    fuzz::require(document.source() == source, "a document that nobody edited is its source");

    // A letter that comes and goes leaves the rest as it was.
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("x"));
    (void)document.source();
    document.undo();
    fuzz::require(document.source() == source, "an edit that is undone leaves nothing behind");

    const QString second = writtenAnew(source);
    fuzz::require(writtenAnew(second) == second, "what was read and written is read and written alike");
    return 0;
}

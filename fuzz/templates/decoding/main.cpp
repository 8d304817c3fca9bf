#include "Fuzz.h"

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>

#include <QCoreApplication>

using namespace ozm;

// The engine keeps its values where the sanitizer does not look for what points to others.
extern "C" const char *
__asan_default_options() // NOLINT(bugprone-reserved-identifier, cert-dcl37-c, cert-dcl51-cpp)
{
    return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

// The first line is the value of a code, the rest is the template.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString input = fuzz::textOf(data, size);
    const qsizetype end = input.indexOf(u'\n');
    RowNode row({QStringLiteral("Name"), QStringLiteral("Charge")});
    row.setDataAt(0, input.left(qMax<qsizetype>(0, end)));
    row.setDataAt(1, 2);
    const QString text = input.sliced(end + 1);

    const TemplateReport report = AbstractTemplateEditor::decodeTECReport(text, &row, {});
    fuzz::require(report.text == AbstractTemplateEditor::decodeTEC(text, &row, {}),
                  "the report has the text");
    for (const UnresolvedCode &code : report.unresolved)
        fuzz::require(text.sliced(code.position).startsWith(code.code),
                      "an unresolved code is where it is said");
    (void)AbstractTemplateEditor::withoutScriptTags(report.text);
    (void)AbstractTemplateEditor::decodeTEC(text, QList<DecodeTecExtraData>{});
    return 0;
}

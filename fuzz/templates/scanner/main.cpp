#include "Fuzz.h"
#include "templates/syntax/HtmlScanner.h"

using namespace ozm;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString source = fuzz::textOf(data, size);
    const QList<editor::HtmlToken> tokens = editor::scanHtml(source);
    qsizetype end = 0;
    for (const editor::HtmlToken &token : tokens) {
        fuzz::require(token.start == end && token.end > token.start,
                      "tokens follow each other without a gap");
        end = token.end;
    }
    fuzz::require(end == source.size(), "tokens cover the source");
    if (!tokens.isEmpty())
        (void)editor::missingEnd(source, tokens.constLast());

    const editor::HtmlTree tree = editor::treeOf(tokens);
    fuzz::require(tree.innermost.size() == tokens.size(), "each token has its place in the tree");
    for (qsizetype i = 0; i < tree.elements.size(); ++i) {
        const editor::HtmlElement &element = tree.elements.at(i);
        fuzz::require(element.parent < int(i), "a parent begins before its children");
        fuzz::require(element.start <= element.startTagEnd && element.startTagEnd <= element.end,
                      "an element begins before it ends");
    }
    return 0;
}

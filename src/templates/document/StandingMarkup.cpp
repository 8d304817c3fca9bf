#include "templates/document/StandingMarkup.h"

#include "templates/document/TemplateElements.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::editor {

QString standingMarkup(const QString &source, const QList<HtmlToken> &tokens, const HtmlTree &tree,
                       qsizetype first, qsizetype end)
{
    QString result;
    qsizetype at = first;
    for (; at < tokens.size() && tokens.at(at).end <= end; ++at) {
        const HtmlToken &token = tokens.at(at);
        const QString text = source.sliced(token.start, token.end - token.start);
        const bool closesNothing =
            token.kind == HtmlTokenKind::EndTag && tree.innermost.at(at) == tree.innermost.value(at - 1, -1);
        if (token.kind == HtmlTokenKind::Text)
            result += QString(text).replace(halfTag(), u"&lt;"_s);
        else if (!closesNothing)
            result += text + missingEnd(source, token);
    }
    const HtmlToken &root = tokens.at(first);
    for (int open = tree.innermost.value(at - 1, -1); open >= 0 && tree.elements.at(open).start >= root.start;
         open = tree.elements.at(open).parent)
        result += "</"_L1 + tree.elements.at(open).name + u'>';
    const bool isTablePart = std::ranges::find(kTableParts, root.name) != kTableParts.end();
    const QLatin1StringView around = isTablePart ? "table"_L1 : root.name == "li"_L1 ? "ul"_L1 : ""_L1;
    return around.isEmpty() ? result : u'<' + around + u'>' + result + "</"_L1 + around + u'>';
}

} // namespace ozm::editor

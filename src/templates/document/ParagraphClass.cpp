#include "templates/document/ParagraphClass.h"

#include "templates/document/LinePatch.h"

#include <QRegularExpression>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

const QRegularExpression &classPattern()
{
    static const QRegularExpression pattern(u"\\sclass\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>/]+))"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

} // namespace

QString paragraphClass(const QTextBlock &block)
{
    return block.blockFormat().stringProperty(kParagraphClass);
}

QString classOf(const QString &tag)
{
    // Most tags have none, which is seen at once.
    if (!tag.contains("class"_L1, Qt::CaseInsensitive))
        return {};
    static const QRegularExpression names(u"^[A-Za-z_][\\w-]*(?: [A-Za-z_][\\w-]*)*$"_s);
    const QRegularExpressionMatch match = classPattern().match(tag);
    const QString name = (match.captured(1) + match.captured(2) + match.captured(3)).simplified();
    return name.contains(names) ? name : QString();
}

QString classAttribute(const QString &name)
{
    return name.isEmpty() ? QString() : u" class=\"%1\""_s.arg(name);
}

QString withClass(QString tag, const QString &name)
{
    tag.remove(classPattern());
    return tag.insert(1 + tagName(tag).size(), classAttribute(name));
}

} // namespace ozm::editor

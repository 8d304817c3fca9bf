#include "templates/syntax/ScriptTags.h"

namespace ozm::syntax {

std::optional<ScriptTag> scriptTagAt(QStringView text, qsizetype position)
{
    const QStringView rest = text.sliced(position);
    for (const QLatin1StringView tag : {kScriptOpen, kScriptClose})
        // Of the many tags that are asked about, hardly one ends where a script's would.
        if (rest.size() >= tag.size() && rest[tag.size() - 1] == u'>' &&
            rest.startsWith(tag, Qt::CaseInsensitive))
            return ScriptTag{position, tag.size(), tag == kScriptOpen};
    return std::nullopt;
}

QList<ScriptTag> scriptTags(QStringView text)
{
    QList<ScriptTag> tags;
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at + 1))
        if (const auto tag = scriptTagAt(text, at))
            tags.append(*tag);
    return tags;
}

QList<ScriptRange> scriptPieces(QStringView text)
{
    const QList<ScriptTag> tags = scriptTags(text);
    QList<ScriptRange> pieces;
    int depth = 0;
    for (qsizetype index = 0; index + 1 < tags.size(); ++index) {
        const ScriptTag &tag = tags.at(index);
        if (!tag.opening && depth < 1)
            continue;
        depth += tag.opening ? 1 : -1;
        const ScriptRange piece{tag.position + tag.length, tags.at(index + 1).position};
        if (depth >= 1 && piece.end > piece.start)
            pieces.append(piece);
    }
    return pieces;
}

ScriptRange scriptFrom(QStringView text, qsizetype position)
{
    int depth = 0;
    ScriptRange range{position, position};
    for (qsizetype at = position; at >= 0; at = text.indexOf(u'<', at + 1)) {
        const auto tag = scriptTagAt(text, at);
        if (!tag)
            continue;
        depth += tag->opening ? 1 : -1;
        range.end = at + tag->length;
        if (depth == 0)
            break;
    }
    return range;
}

std::optional<ScriptRange> scriptAround(const QString &text, qsizetype position)
{
    const qsizetype start = text.lastIndexOf(kScriptOpen, position, Qt::CaseInsensitive);
    const qsizetype close = start < 0 ? -1 : text.indexOf(kScriptClose, start, Qt::CaseInsensitive);
    if (close < 0 || close + kScriptClose.size() < position)
        return std::nullopt;
    return ScriptRange{start, close + kScriptClose.size()};
}

bool isScript(QStringView text)
{
    return beginsWithScript(text) && text.endsWith(kScriptClose, Qt::CaseInsensitive);
}

bool beginsWithScript(QStringView text)
{
    return text.startsWith(kScriptOpen, Qt::CaseInsensitive);
}

bool hasScript(QStringView text)
{
    return text.contains(kScriptOpen, Qt::CaseInsensitive);
}

QString scriptOf(const QString &code)
{
    return kScriptOpen + code + kScriptClose;
}

QString codeOf(const QString &script)
{
    QString code = script;
    if (code.startsWith(kScriptOpen, Qt::CaseInsensitive))
        code = code.mid(kScriptOpen.size());
    if (code.endsWith(kScriptClose, Qt::CaseInsensitive))
        code.chop(kScriptClose.size());
    return code;
}

QString withoutScriptTags(const QString &text)
{
    QString result;
    qsizetype settled = 0;
    for (const ScriptTag &tag : scriptTags(text)) {
        result.append(QStringView(text).sliced(settled, tag.position - settled));
        settled = tag.position + tag.length;
    }
    return result.append(QStringView(text).sliced(settled));
}

} // namespace ozm::syntax

#include "editor/PreviewPlace.h"

#include <QString>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

// Shorter ones stand in too many places.
constexpr qsizetype kShortestWords = 3;
// Tags, scripts and codes before the caret, of which the report shows nothing.
constexpr int kMostTries = 60;

/// Between these, a report may show something else than its template.
bool endsWords(QChar character)
{
    return u"<>[]&\n\uFFFC\u2028\u2029"_s.contains(character);
}

qsizetype occurrences(QStringView text, QStringView words, qsizetype before)
{
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(words); at >= 0 && at < before;
         at = text.indexOf(words, at + words.size()))
        ++count;
    return count;
}

qsizetype placeOf(QStringView text, QStringView words, qsizetype number)
{
    qsizetype at = text.indexOf(words);
    for (; number > 0 && at >= 0; --number)
        at = text.indexOf(words, at + words.size());
    return at;
}

} // namespace

qsizetype placeInReport(QStringView text, qsizetype caret, QStringView report)
{
    qsizetype end = std::clamp<qsizetype>(caret, 0, text.size());
    while (end < text.size() && !endsWords(text.at(end)))
        ++end;
    for (int tries = 0; tries < kMostTries && end > 0; ++tries) {
        qsizetype start = end;
        while (start > 0 && !endsWords(text.at(start - 1)))
            --start;
        const QStringView words = text.sliced(start, end - start).trimmed();
        const qsizetype inReport =
            words.size() < kShortestWords ? 0 : occurrences(report, words, report.size());
        if (inReport > 0) {
            const qsizetype place = text.indexOf(words, start);
            const qsizetype number = occurrences(text, words, place);
            const qsizetype inText = occurrences(text, words, text.size());
            return placeOf(report, words, number * inReport / std::max<qsizetype>(inText, 1)) +
                   std::clamp<qsizetype>(caret - place, 0, words.size());
        }
        end = start - 1;
    }
    return text.isEmpty() ? 0 : caret * report.size() / text.size();
}

} // namespace ozm::editor

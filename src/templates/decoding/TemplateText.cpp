#include "templates/decoding/TemplateText.h"

#include "templates/scripts/ScriptContainment.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/ShortCodes.h>

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// Some 30 MB with what is kept beside the text: the templates of a suite of applications many times over.
constexpr qsizetype kCachedCharacters = 8'000'000;
// The cost of an entry beside its text, so that many small entries are bounded, too.
constexpr qsizetype kEntryCost = 200;

const QString kLibraryName = u"templateEditorCore"_s;
const QString kParametersName = u"inputParameters"_s;

/// @p text in a buffer that lives as long as it is wanted: one from QString::fromRawData() is somebody else's.
QString owned(const QString &text)
{
    return text.data_ptr().isMutable() ? text : QString(text.constData(), text.size());
}

bool areVariablesOwn(const QList<ScriptReading> &readings)
{
    QHash<QString, int> uses;
    for (const ScriptReading &reading : readings)
        for (const QString &name : reading.names)
            ++uses[name];
    return std::ranges::all_of(readings, [&uses](const ScriptReading &reading) {
        return std::ranges::all_of(reading.variables,
                                   [&uses](const QString &name) { return uses.value(name) == 1; });
    });
}

} // namespace

TemplateText::TemplateText(const QString &text)
    : m_text(text)
    , m_marks(syntax::marked(text))
{
    collectPieces();
    collectNames();
}

void TemplateText::collectPieces()
{
    QList<ScriptReading> readings;
    bool callLibrary = false;
    for (const syntax::ScriptRange &range : syntax::scriptPieces(m_text)) {
        const QString code = m_text.sliced(range.start, range.end - range.start);
        const ScriptReading read = readScript(code);
        const bool callsLibrary = read.names.contains(kLibraryName);
        const bool mayChange = !read.isContained || callsLibrary || read.names.contains(kParametersName);
        m_pieces.append(
            {static_cast<qint32>(range.start), code, mayChange, read.function, !read.variables.isEmpty()});
        m_contained = m_contained && read.isContained;
        m_variables.unite(read.variables);
        callLibrary = callLibrary || callsLibrary;
        readings.append(read);
    }
    if (!callLibrary)
        m_variables.clear();
    m_contained = m_contained && areVariablesOwn(readings);
}

void TemplateText::collectNames()
{
    const QList<QString> codes = getCodes(m_text, false);
    QHash<QString, int> indexes;
    m_sequence.reserve(codes.size());
    for (const QString &code : codes) {
        const auto known = indexes.constFind(code);
        if (known != indexes.constEnd()) {
            m_sequence.append(*known);
            continue;
        }
        const int index = static_cast<int>(m_names.size());
        indexes.insert(code, index);
        m_names.append(code);
        m_sequence.append(index);
    }
}

qsizetype TemplateText::cost() const
{
    qsizetype characters = kEntryCost + m_text.size();
    characters += m_marks.marks.size() * static_cast<qsizetype>(sizeof(syntax::Mark) / sizeof(QChar));
    characters += m_sequence.size() * static_cast<qsizetype>(sizeof(int) / sizeof(QChar));
    for (const QList<QString> *names : {&m_marks.names, &m_names})
        for (const QString &name : *names)
            characters += name.size() + 20;
    for (const ScriptPiece &piece : m_pieces)
        characters += piece.code.size() + piece.function.size() + 20;
    return characters;
}

TemplateCache::TemplateCache()
    : m_templates(kCachedCharacters)
{}

std::shared_ptr<const TemplateText> TemplateCache::parsed(const QString &text)
{
    if (const auto *known = m_templates.object({text}))
        return *known;
    const QString own = owned(text);
    auto fresh = std::make_shared<const TemplateText>(own);
    // One that is larger than the bound by itself is not kept.
    m_templates.insert({own}, new std::shared_ptr<const TemplateText>(fresh), fresh->cost());
    return fresh;
}

bool TemplateCache::Key::operator==(const Key &other) const
{
    // The same data, as when a template is decoded over and over, needs no comparison of a million letters.
    return text.constData() == other.text.constData() ? text.size() == other.text.size() : text == other.text;
}

size_t TemplateCache::Key::hash(size_t seed) const
{
    // A sample of a long text is enough, as the cache holds few long ones.
    constexpr qsizetype kSamples = 8;
    constexpr qsizetype kSampleSize = 64;
    if (text.size() <= kSamples * kSampleSize)
        return ::qHash(text, seed);
    size_t hash = qHashMulti(seed, text.size());
    const qsizetype step = (text.size() - kSampleSize) / (kSamples - 1);
    for (qsizetype sample = 0; sample < kSamples; ++sample)
        hash = ::qHash(QStringView(text).sliced(sample * step, kSampleSize), hash);
    return hash;
}

} // namespace ozm

#include <ozm_widgets/TemplateEditorJSEngine.h>

#include "TemplateEditorJSEngine_p.h"
#include "support/Logging.h"
#include "templates/decoding/TokenReplacement.h"

#include <ozm_widgets/TemplateEditorJSFileReader.h>
#include <platform/Errors.h>

#include <QCoreApplication>
#include <QMutex>
#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Long for a report, short for a person who waits.
constexpr std::chrono::milliseconds kDefaultDeadline{5000};

std::atomic<std::chrono::milliseconds> s_deadline{kDefaultDeadline};
std::atomic<TemplateEditorJSEngine::ObjectAccess> s_objectAccess{TemplateEditorJSEngine::ObjectAccess::Full};

// More than the scripts of reports take by far, and little enough for any computer.
constexpr qint64 kDefaultHelperMemory = 1024LL * 1024 * 1024;

std::atomic<TemplateEditorJSEngine::ScriptPlace> s_scriptPlace{
    TemplateEditorJSEngine::ScriptPlace::InProgram};
std::atomic<qint64> s_helperMemory{kDefaultHelperMemory};

struct HelperProgram
{
    QMutex mutex;
    QString path;
};

HelperProgram &wantedHelper()
{
    static HelperProgram helper;
    return helper;
}

/// True when nothing of @p value lives on in an engine that has seen it, and nothing of it can be called.
bool isPlain(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
        return true;
    default:
        return false;
    }
}

QList<ozm::ScriptOutcome> piecesPastDeadline(const ozm::TemplateText &parsed)
{
    QList<ozm::ScriptOutcome> failed;
    for (const ozm::ScriptPiece &piece : parsed.pieces())
        failed.append({piece.code, true, 1, u"The scripts before took all the time that there is."_s});
    return failed;
}

QString withResults(const ozm::TemplateText &parsed, const QList<ozm::ScriptOutcome> &outcomes)
{
    QString result;
    qsizetype settled = 0;
    auto outcome = outcomes.cbegin();
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        result.append(QStringView(parsed.text()).sliced(settled, piece.start - settled));
        result.append((outcome++)->text);
        settled = piece.start + piece.code.size();
    }
    return result.append(QStringView(parsed.text()).sliced(settled));
}

QList<ozm::FailedScript> failedScripts(const ozm::TemplateText &parsed,
                                       const QList<ozm::ScriptOutcome> &outcomes)
{
    QList<ozm::FailedScript> failed;
    auto outcome = outcomes.cbegin();
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        if (outcome->failed)
            failed.append({piece.start, outcome->line, outcome->message, piece.code});
        ++outcome;
    }
    return failed;
}

ozm::Error scriptError(const QList<ozm::ScriptOutcome> &outcomes)
{
    // Pieces run from the last to the first.
    const auto first = std::find_if(outcomes.crbegin(), outcomes.crend(),
                                    [](const ozm::ScriptOutcome &outcome) { return outcome.isUnserved; });
    if (first == outcomes.crend())
        return {};
    return ozm::Error(ozm::codes::Failed, first->message).ecatch(OZM_PLACE);
}

/// @p codes, whose places are those in the text with results, at their places in the template.
QList<ozm::BroughtInCode> inPlace(const ozm::TemplateText &parsed, const QList<ozm::ScriptOutcome> &outcomes,
                                  QList<ozm::BroughtInCode> codes)
{
    qsizetype grown = 0;
    auto code = codes.begin();
    auto outcome = outcomes.cbegin();
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        for (; code != codes.end() && code->position < piece.start + grown; ++code)
            code->position -= grown;
        for (; code != codes.end() && code->position < piece.start + grown + outcome->text.size(); ++code)
            *code = {code->code, {}, piece.start};
        grown += (outcome++)->text.size() - piece.code.size();
    }
    for (; code != codes.end(); ++code)
        code->position -= grown;
    return codes;
}

/// The codes with a value in the results of pieces that do not spell them themselves.
QList<ozm::BroughtInCode> inResults(const ozm::TemplateText &parsed,
                                    const QList<ozm::ScriptOutcome> &outcomes,
                                    const QMap<QString, QVariant> &parameters)
{
    QList<ozm::BroughtInCode> codes;
    auto outcome = outcomes.cbegin();
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        for (const QString &code : ozm::syntax::marked((outcome++)->text).names) {
            if (parameters.contains(code) && !piece.code.contains(code))
                codes.append({code, {}, piece.start});
        }
    }
    return codes;
}

QSet<QString> namesIn(const QString &code)
{
    static const QRegularExpression name(u"[\\w$]+"_s);
    QSet<QString> names;
    for (const QRegularExpressionMatch &match : name.globalMatch(code))
        names.insert(match.captured());
    return names;
}

QString defaultLibraryPath()
{
    return QCoreApplication::applicationDirPath() + u"/templateEditorJSLib/TemplateEditorJSUtils.js"_s;
}

} // namespace

void TemplateEditorJSEnginePrivate::initJSEngine(const QString &path)
{
    TemplateEditorJSFileReader reader(path);
    const bool read = reader.readJSFile();
    if (read)
        m_library = {path, reader.fileContent()};
    m_libraryNames = namesIn(m_library.content);
    QString trouble;
    m_realm = ozm::ScriptRealm::create(m_library, &trouble);
    m_valid = read && trouble.isNull() && m_realm->isServed();
    if (trouble.isNull())
        return;
    // Not to be tried again for each template.
    m_library = {};
    if (read)
        qCWarning(lcOzmWidgets) << "File content not valid. Js Engine will no be used! Details:" << trouble;
}

ozm::ScriptRealm &TemplateEditorJSEnginePrivate::realm()
{
    if (std::exchange(m_place, TemplateEditorJSEngine::scriptPlace()) != m_place)
        m_realm = freshRealm();
    return *m_realm;
}

std::unique_ptr<ozm::ScriptRealm> TemplateEditorJSEnginePrivate::freshRealm() const
{
    return ozm::ScriptRealm::create(m_library, nullptr);
}

TemplateEditorJSEngine::TemplateEditorJSEngine(QObject *parent)
    : TemplateEditorJSEngine(defaultLibraryPath(), parent)
{}

TemplateEditorJSEngine::TemplateEditorJSEngine(const QString &path, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<TemplateEditorJSEnginePrivate>())
{
    d->initJSEngine(path);
}

TemplateEditorJSEngine::~TemplateEditorJSEngine() = default;

bool TemplateEditorJSEngine::isValid() const
{
    return d->isValid();
}

QString TemplateEditorJSEngine::evaluateJS(const QString &code, const QMap<QString, QVariant> &parameters)
{
    return d->realm().run({{code}}, parameters).constFirst().text;
}

void TemplateEditorJSEngine::setDeadline(std::chrono::milliseconds deadline)
{
    s_deadline = deadline;
}

std::chrono::milliseconds TemplateEditorJSEngine::deadline()
{
    return s_deadline;
}

void TemplateEditorJSEngine::setObjectAccess(ObjectAccess access)
{
    s_objectAccess = access;
}

TemplateEditorJSEngine::ObjectAccess TemplateEditorJSEngine::objectAccess()
{
    return s_objectAccess;
}

void TemplateEditorJSEngine::setScriptPlace(ScriptPlace place)
{
    s_scriptPlace = place;
}

TemplateEditorJSEngine::ScriptPlace TemplateEditorJSEngine::scriptPlace()
{
    return s_scriptPlace;
}

void TemplateEditorJSEngine::setHelperMemory(qint64 bytes)
{
    s_helperMemory = bytes;
}

qint64 TemplateEditorJSEngine::helperMemory()
{
    return s_helperMemory;
}

void TemplateEditorJSEngine::setHelperProgram(const QString &path)
{
    const QMutexLocker lock(&wantedHelper().mutex);
    wantedHelper().path = path;
}

QString TemplateEditorJSEngine::helperProgram()
{
    const QMutexLocker lock(&wantedHelper().mutex);
    return wantedHelper().path;
}

std::shared_ptr<const ozm::TemplateText> TemplateEditorJSCodeReader::Private::parsed(const QString &text)
{
    return m_cache.parsed(text);
}

QString TemplateEditorJSCodeReader::Private::read(const ozm::TemplateText &parsed,
                                                  const QMap<QString, QVariant> &parameters,
                                                  ozm::TemplateReport *report, bool runsScripts)
{
    if (parsed.pieces().isEmpty()) {
        if (report)
            report->broughtIn = ozm::tokens::broughtIn(parsed.text(), parsed.marks(), parameters);
        return ozm::tokens::replace(parsed.text(), parsed.marks(), parameters);
    }
    const QList<ozm::ScriptOutcome> outcomes =
        runsScripts ? runPieces(parsed, parameters) : piecesPastDeadline(parsed);
    const QString text = withResults(parsed, outcomes);
    const ozm::syntax::MarkedText marks = ozm::syntax::marked(text);
    if (report) {
        report->failed = failedScripts(parsed, outcomes);
        report->scriptError = scriptError(outcomes);
        report->broughtIn = inPlace(parsed, outcomes, ozm::tokens::broughtIn(text, marks, parameters)) +
                            inResults(parsed, outcomes, parameters);
        std::ranges::stable_sort(report->broughtIn, {}, &ozm::BroughtInCode::position);
    }
    return ozm::tokens::replace(text, marks, parameters);
}

QList<ozm::ScriptOutcome>
TemplateEditorJSCodeReader::Private::runPieces(const ozm::TemplateText &parsed,
                                               const QMap<QString, QVariant> &parameters)
{
    std::unique_ptr<ozm::ScriptRealm> own;
    if (!parsed.isContained() || engine.d->doesLibraryName(parsed.variables()) ||
        !std::ranges::all_of(parameters, isPlain))
        own = engine.d->freshRealm();
    ozm::ScriptRealm &realm = own ? *own : engine.d->realm();

    QList<ozm::ScriptTask> tasks;
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        tasks.prepend({piece.code, piece.mayChangeParameters});
        if (!own) {
            tasks.front().function = piece.function;
            tasks.front().leavesVariables = piece.leavesVariables;
        }
    }
    QList<ozm::ScriptOutcome> outcomes = realm.run(tasks, parameters);
    std::ranges::reverse(outcomes);
    return outcomes;
}

TemplateEditorJSCodeReader::TemplateEditorJSCodeReader(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

TemplateEditorJSCodeReader::~TemplateEditorJSCodeReader() = default;

bool TemplateEditorJSCodeReader::isValid() const
{
    return d->engine.isValid();
}

QList<QString> TemplateEditorJSCodeReader::createAndReturnAllScriptElements(const QString &text)
{
    QList<QString> codes;
    const auto parsed = d->parsed(text);
    for (const ozm::ScriptPiece &piece : parsed->pieces())
        codes.append(piece.code);
    return codes;
}

QString TemplateEditorJSCodeReader::readAsString(const QString &text,
                                                 const QMap<QString, QVariant> &parameters)
{
    return d->read(*d->parsed(text), parameters, nullptr);
}

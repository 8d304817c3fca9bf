#include <ozm_widgets/TemplateEditorJSEngine.h>

#include "TemplateEditorJSEngine_p.h"
#include "support/Logging.h"
#include "templates/decoding/TokenReplacement.h"

#include <ozm_widgets/TemplateEditorJSFileReader.h>

#include <QCoreApplication>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

// Long for a report, short for a person who waits.
constexpr std::chrono::milliseconds kDefaultDeadline{5000};

std::atomic<std::chrono::milliseconds> s_deadline{kDefaultDeadline};

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
    QString trouble;
    m_realm = ozm::ScriptRealm::create(m_library, &trouble);
    m_valid = read && trouble.isNull();
    if (m_valid)
        return;
    // Not to be tried again for each template.
    m_library = {};
    if (read)
        qCWarning(lcOzmWidgets) << "File content not valid. Js Engine will no be used! Details:" << trouble;
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
    return d->realm().run(code, parameters).text;
}

void TemplateEditorJSEngine::setDeadline(std::chrono::milliseconds deadline)
{
    s_deadline = deadline;
}

std::chrono::milliseconds TemplateEditorJSEngine::deadline()
{
    return s_deadline;
}

std::shared_ptr<const ozm::TemplateText> TemplateEditorJSCodeReader::Private::parsed(const QString &text)
{
    return m_cache.parsed(text);
}

QString TemplateEditorJSCodeReader::Private::read(const ozm::TemplateText &parsed,
                                                  const QMap<QString, QVariant> &parameters,
                                                  QList<ozm::FailedScript> *failed)
{
    if (parsed.pieces().isEmpty())
        return ozm::tokens::replace(parsed.text(), parsed.marks(), parameters);
    const QString text = runPieces(parsed, parameters, failed);
    return ozm::tokens::replace(text, ozm::syntax::marked(text), parameters);
}

QString TemplateEditorJSCodeReader::Private::runPieces(const ozm::TemplateText &parsed,
                                                       const QMap<QString, QVariant> &parameters,
                                                       QList<ozm::FailedScript> *failed)
{
    std::unique_ptr<ozm::ScriptRealm> own;
    if (!parsed.isContained() || !std::ranges::all_of(parameters, isPlain))
        own = engine.d->freshRealm();
    ozm::ScriptRealm &realm = own ? *own : engine.d->realm();

    QList<QString> texts;
    const QList<ozm::ScriptPiece> &pieces = parsed.pieces();
    for (qsizetype i = pieces.size() - 1; i >= 0; --i) {
        const ozm::ScriptPiece &piece = pieces.at(i);
        const ozm::ScriptOutcome outcome =
            piece.readsParameters ? realm.run(piece.code, parameters) : realm.run(piece.code);
        texts.append(outcome.text);
        if (failed && outcome.failed)
            failed->prepend({piece.start, outcome.line, outcome.message, piece.code});
    }

    QString result;
    qsizetype settled = 0;
    for (const ozm::ScriptPiece &piece : parsed.pieces()) {
        result.append(QStringView(parsed.text()).sliced(settled, piece.start - settled));
        result.append(texts.takeLast());
        settled = piece.start + piece.code.size();
    }
    return result.append(QStringView(parsed.text()).sliced(settled));
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

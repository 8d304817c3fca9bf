#include "Operations.h"

#include <ozm_audit/Store.h>
#include <ozm_widgets/DefaultFileAccessor.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/TemplateAutosave.h>
#include <ozm_widgets/TemplateFile.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace ozm::faults {

namespace {

// More than one buffer of the toolkit's files, which hold 16 kB.
constexpr int kWords = 9000;

QString oldText()
{
    return u"what was there before "_s.repeated(kWords / 3);
}

QString newText()
{
    return u"replaced by [Name] "_s.repeated(kWords);
}

QList<QList<QString>> rowsOf(const QString &text)
{
    return {{u"Name"_s, text}, {u"T12"_s, text}};
}

QByteArray bytesIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void putBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The folder of the trial cannot be written.");
}

State stateOf(const QByteArray &now, const QByteArray &before, const QByteArray &after)
{
    if (now == before)
        return State::Old;
    return now == after ? State::New : State::Neither;
}

QString textOf(const Error &error)
{
    return error.hasError() ? error.errorMessage() : QString();
}

IFileAccessor::DestinationFileLocation locationOf(const QString &path)
{
    return IFileAccessor::DestinationFileLocation(u"file:"_s + path);
}

QString fileIn(const QString &folder)
{
    return folder + u"/file"_s;
}

void prepareBytes(const QString &folder)
{
    putBytes(fileIn(folder), oldText().toUtf8());
}

QString saveBytes(const QString &folder)
{
    return textOf(DefaultFileAccessor().saveFile(locationOf(fileIn(folder)), newText().toUtf8()));
}

State lookAtBytes(const QString &folder)
{
    return stateOf(bytesIn(fileIn(folder)), oldText().toUtf8(), newText().toUtf8());
}

void prepareTemplate(const QString &folder)
{
    if (TemplateFile::write(fileIn(folder), oldText()).hasError())
        qFatal("The folder of the trial cannot be written.");
}

QString saveTemplate(const QString &folder)
{
    return textOf(TemplateFile::write(fileIn(folder), newText()));
}

State lookAtTemplate(const QString &folder)
{
    const Result<TemplateFile::Loaded> loaded = TemplateFile::read(fileIn(folder));
    return loaded ? stateOf(loaded.value().content.toUtf8(), oldText().toUtf8(), newText().toUtf8())
                  : State::Neither;
}

void prepareCsv(const QString &folder)
{
    if (DefaultFileAccessor().saveCsvFile(locationOf(fileIn(folder)), rowsOf(oldText())).hasError())
        qFatal("The folder of the trial cannot be written.");
}

/// A second name of the same file, so that it has to be written over.
void prepareLinkedCsv(const QString &folder)
{
    prepareCsv(folder);
    QFile::remove(fileIn(folder) + u"2"_s);
    if (::link(QFile::encodeName(fileIn(folder)).constData(),
               QFile::encodeName(fileIn(folder) + u"2"_s).constData()) != 0)
        qFatal("The folder of the trial has no links.");
}

QString saveCsv(const QString &folder)
{
    return textOf(DefaultFileAccessor().saveCsvFile(locationOf(fileIn(folder)), rowsOf(newText())));
}

State lookAtCsv(const QString &folder)
{
    const auto expected = [](const QString &text) {
        return u"\uFEFFName,%1\r\nT12,%1\r\n"_s.arg(text.endsWith(u' ') ? u'"' + text + u'"' : text).toUtf8();
    };
    return stateOf(bytesIn(fileIn(folder)), expected(oldText()), expected(newText()));
}

// The autosaved copy is found by others only after its program ended, so that what is there before and what
// comes after are made by one.
void prepareNothing(const QString & /*folder*/) {}

QString autosave(const QString &folder)
{
    // Never destroyed, as after a crash.
    auto *copies = new TemplateAutosave(u"trial"_s, folder); // NOLINT(cppcoreguidelines-owning-memory)
    return copies->store(u"old"_s, oldText()) && copies->store(u"new"_s, newText()) ? QString()
                                                                                    : u"It says no."_s;
}

State lookAtAutosave(const QString &folder)
{
    const QList<TemplateAutosave::Rescued> copies = TemplateAutosave::rescued(u"trial"_s, folder);
    if (copies.isEmpty())
        return QDir(folder).entryList({u"*.damaged"_s}, QDir::Files).isEmpty() ? State::Old : State::Neither;
    const QString content = copies.constFirst().content;
    return stateOf(content.toUtf8(), oldText().toUtf8(), newText().toUtf8());
}

audit::Draft draftOf(const QString &text)
{
    audit::Draft draft;
    draft.kind = audit::Kind::Event;
    draft.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
    draft.record = QJsonDocument(QJsonObject{{"text"_L1, text}}).toJson(QJsonDocument::Compact);
    return draft;
}

QString trailIn(const QString &folder, QLatin1StringView sharing)
{
    return u"sqlite:"_s + folder + u"/trail.sqlite"_s + sharing;
}

QString appendTo(const QString &address, const QString &text)
{
    const auto store = audit::Store::open(address);
    if (!store)
        return textOf(store.error());
    const Result<qint64> number = store.value()->append({draftOf(text)});
    return number ? QString() : textOf(number.error());
}

void prepareTrail(const QString &folder)
{
    if (!appendTo(trailIn(folder, {}), oldText()).isEmpty())
        qFatal("The folder of the trial cannot be written.");
}

QString append(const QString &folder)
{
    return appendTo(trailIn(folder, {}), newText());
}

QString appendShared(const QString &folder)
{
    return appendTo(trailIn(folder, "?sharing=processes"_L1), newText());
}

State lookAtTrail(const QString &folder)
{
    const auto store = audit::Store::open(trailIn(folder, {}), audit::Store::Mode::Existing);
    if (!store)
        return State::Neither;
    const Result<audit::Verification> verification = store.value()->verify();
    if (!verification || !verification.value().isWhole())
        return State::Neither;
    constexpr qint64 kAfter = 2;
    const qint64 size = verification.value().size;
    return size == 1 ? State::Old : size == kAfter ? State::New : State::Neither;
}

QString printPdf(const QString &folder)
{
    return textOf(ReportPaper(u"<p>"_s + newText(), {u"Trial"_s, {}}).writePdf(fileIn(folder)));
}

State lookAtPdf(const QString &folder)
{
    const QByteArray now = bytesIn(fileIn(folder));
    if (now == oldText().toUtf8())
        return State::Old;
    return now.startsWith("%PDF") && now.trimmed().endsWith("%%EOF") ? State::New : State::Neither;
}

} // namespace

std::span<const Operation> operations()
{
    static constexpr std::array kOperations{
        Operation{"save a file"_L1, prepareBytes, saveBytes, lookAtBytes, "file"_L1, true},
        Operation{"save CSV"_L1, prepareCsv, saveCsv, lookAtCsv, "file"_L1},
        Operation{"save CSV, two names"_L1, prepareLinkedCsv, saveCsv, lookAtCsv, "file"_L1},
        Operation{"save a template"_L1, prepareTemplate, saveTemplate, lookAtTemplate, "file"_L1},
        Operation{"save a PDF"_L1, prepareBytes, printPdf, lookAtPdf, "file"_L1},
        Operation{"autosave"_L1, prepareNothing, autosave, lookAtAutosave, "autosave"_L1},
        Operation{"append to a trail"_L1, prepareTrail, append, lookAtTrail, "trail.sqlite"_L1},
        Operation{"append, shared trail"_L1, prepareTrail, appendShared, lookAtTrail, "trail.sqlite"_L1},
    };
    return kOperations;
}

} // namespace ozm::faults

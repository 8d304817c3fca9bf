#include "Commands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm::audit::tool {

namespace {

/// Against the checkpoints and the key that the options name.
Result<Verification> verified(const Store &store, const Options &options)
{
    QList<Checkpoint> outside;
    if (options.has(u"checkpoints"_s)) {
        auto read = Checkpoint::inFolder(options.value(u"checkpoints"_s));
        if (!read)
            return read.error();
        outside = std::move(read).value();
    }
    if (!options.has(u"public-key"_s))
        return store.verify(outside);
    const auto key = PublicKey::fromText(options.value(u"public-key"_s));
    if (!key)
        return key.error();
    return store.verify(outside, &key.value());
}

/// Beside the program, installed or not. Empty when it was left out.
QString verifierFile()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    const QString file = folder.absoluteFilePath(u"../share/ozm_audit/ozm_audit_verify.py"_s);
    return QFile::exists(file) ? file : QString();
}

int copy(const Options &options, bool archived)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    const auto key = options.key();
    if (!key)
        return complain(key.error());
    CopyOptions copy;
    copy.query = options.query();
    copy.user = options.draft().user;
    copy.reason = options.draft().reason;
    copy.key = key.value() ? &*key.value() : nullptr;
    copy.archived = archived;
    copy.verifier = verifierFile();
    const Error error = writeInspectionCopy(*store.value(), options.argument(1), copy);
    return error.hasError() ? complain(error) : print(u"copied to "_s + options.argument(1));
}

} // namespace

int verify(const Options &options)
{
    const auto store = options.open(Store::Mode::ReadOnly);
    if (!store)
        return complain(store.error());
    const auto verification = verified(*store.value(), options);
    if (!verification)
        return complain(verification.error());
    print(verification.value().toString());
    return verification.value().isWhole() ? Good : Damaged;
}

int reAnchor(const Options &options)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    const auto verification = verified(*store.value(), options);
    if (!verification)
        return complain(verification.error());
    const auto number = store.value()->reAnchor(verification.value(), options.draft());
    return number ? print(u"the damage is recorded by entry %1"_s.arg(number.value()))
                  : complain(number.error());
}

int checkpoint(const Options &options)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    const auto key = options.key();
    if (!key)
        return complain(key.error());
    const auto made = store.value()->makeCheckpoint(key.value() ? &*key.value() : nullptr);
    if (!made)
        return complain(made.error());
    if (options.has(u"checkpoints"_s)) {
        if (const Error error = folderSink(options.value(u"checkpoints"_s))->write(made.value());
            error.hasError())
            return complain(error);
    }
    return print(QString::fromUtf8(made.value().note).chopped(1));
}

int prove(const Options &options)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    const auto key = options.key();
    if (!key)
        return complain(key.error());
    if (const Range range = options.range(); range.last > 0) {
        const auto growth = store.value()->consistencyProof(range.first, range.last);
        if (!growth)
            return complain(growth.error());
        for (const QByteArray &hash : growth.value())
            print(QString::fromLatin1(hash.toBase64()));
        return Good;
    }
    const auto made = store.value()->makeCheckpoint(key.value() ? &*key.value() : nullptr);
    if (!made)
        return complain(made.error());
    const auto proof = store.value()->proof(options.range().first, made.value());
    return proof ? print(QString::fromUtf8(proof.value().toText()).chopped(1)) : complain(proof.error());
}

int exportCopy(const Options &options)
{
    return copy(options, false);
}

int archive(const Options &options)
{
    return copy(options, true);
}

int dispose(const Options &options)
{
    auto store = options.open(Store::Mode::Existing);
    if (!store)
        return complain(store.error());
    const auto number = store.value()->dispose(options.range(), options.draft());
    return number ? print(u"recorded by entry %1"_s.arg(number.value())) : complain(number.error());
}

} // namespace ozm::audit::tool

#include "Fuzz.h"

#include <ozm_audit/InspectionCopy.h>
#include <ozm_common_stable/Result.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

using namespace ozm;

namespace {

audit::Draft draft(const QByteArray &record)
{
    audit::Draft draft;
    draft.timeMs = 1'700'000'000'000;
    draft.user = {QStringLiteral("jdoe"), QStringLiteral("Jane Doe"), QStringLiteral("analyst")};
    draft.record = record;
    return draft;
}

/// A trail as it was written, and what its reader has from elsewhere.
struct Trail
{
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("trail.sqlite"));
    QByteArray file;
    QList<audit::Checkpoint> outside;

    Trail()
    {
        {
            const auto store = audit::Store::open(path);
            fuzz::require(bool(store), "a new trail is made");
            QList<audit::Draft> drafts;
            for (int i = 0; i < 20; ++i)
                drafts.append(draft(R"({"value":)" + QByteArray::number(i) + '}'));
            fuzz::require(bool(store.value()->append(drafts)), "entries are appended");
            outside.append(store.value()->makeCheckpoint().value());
        }
        QFile written(path);
        fuzz::require(written.open(QIODevice::ReadOnly), "the trail is a file");
        file = written.readAll();
    }

    void write(const QByteArray &bytes) const
    {
        QFile to(path);
        fuzz::require(to.open(QIODevice::WriteOnly) && to.write(bytes) == bytes.size(),
                      "the file is written");
    }
};

const Trail &trail()
{
    static const Trail one;
    return one;
}

/// Three bytes each: where in the file, and the byte that is there from then on.
QByteArray damaged(QByteArray file, const QByteArray &input)
{
    for (qsizetype at = 0; at + 2 < input.size(); at += 3) {
        const int place = quint8(input.at(at)) * 256 + quint8(input.at(at + 1));
        file[place % file.size()] = input.at(at + 2);
    }
    return file;
}

void read(audit::Store::Mode mode)
{
    const auto store = audit::Store::open(trail().path, mode);
    if (!store)
        return;
    (void)store.value()->find({});
    (void)store.value()->keptCheckpoints();
    const audit::Checkpoint &outside = trail().outside.first();
    const auto verified = store.value()->verify({outside});
    const auto root = store.value()->root(outside.size);
    fuzz::require(!verified || !verified.value().isWhole() || (root && root.value() == outside.root),
                  "a trail that is said to be whole is the one that the checkpoint states");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

// Damage to a trail or to the copy of one, and files of others in their place: an error or a finding, and it ends.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input = fuzz::bytesOf(data, size);
    trail().write(damaged(trail().file, input));
    read(audit::Store::Mode::ReadOnly);
    trail().write(input);
    read(audit::Store::Mode::Existing);

    const auto store = audit::Store::open(QStringLiteral("memory:"));
    (void)audit::importFormerTrail(*store.value(), trail().path, draft("{}"));
    return 0;
}

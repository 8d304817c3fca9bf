#pragma once

#include "disk/DiskEntry.h"

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/MsDataSearchOptions.h>

#include <QList>
#include <QSet>
#include <QString>

namespace ozm::disk {
class FolderReader;
}

namespace ozm::msreader {

/**
 * One search through folders, in the order and with the limits that MsDataSearch promises.
 *
 * Two queues make the order: real entries are taken off a stack, so that a folder's entries follow it at
 * once; links wait until no real entry is left, so that data goes by its own name where it has one.
 */
class FolderSearch
{
public:
    FolderSearch(const MsDataSearchOptions &options, const MsDataSearchCallbacks &callbacks);

    [[nodiscard]] Error search(const QString &folder);

private:
    struct Item
    {
        QString path;
        QString realPath; ///< Without links, so that the same thing is known again.
        EntryKind kind = EntryKind::Missing;
        qint64 size = -1;
    };

    /// An entry of the folder that is being read.
    struct Entry
    {
        QString name;
        EntryKind kind = EntryKind::Missing;
        qint64 size = -1;
        bool isLink = false;
    };

    [[nodiscard]] static Error checkStart(const QString &folder);
    void searchWaiting();
    void visit(const Item &item);
    void visitLink(const QString &path);
    [[nodiscard]] bool isInsideSample(const QString &realPath) const;
    [[nodiscard]] bool listIfData(const Item &item);
    /// The reason why not all of its entries could be read.
    [[nodiscard]] disk::Obstacle readFolder(const Item &folder);
    [[nodiscard]] Entry entryAt(const disk::FolderReader &reader) const;
    [[nodiscard]] bool isWorthAVisit(const Entry &entry) const;
    void queueEntries(const Item &folder, QList<Entry> entries);
    void passOver(const QString &path, const QString &reason) const;
    void reportProgress(const QString &folder) const;
    [[nodiscard]] bool isCanceled() const;

    const MsDataSearchOptions m_options;
    const MsDataSearchCallbacks &m_callbacks;
    QString m_realStart;
    QList<Item> m_stack;
    QList<QString> m_links;
    QSet<QString> m_readFolders;
    QSet<QString> m_samples;
};

} // namespace ozm::msreader

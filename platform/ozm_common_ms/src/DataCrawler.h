#pragma once

#include <ozm_common_ms/MsDataSearchOptions.h>
#include <ozm_common_stable/Error.h>

#include <QList>
#include <QSet>
#include <QString>

namespace ozm::msreader {

namespace internal {
class FolderReader;
}

/**
 * One search through folders, in the order and with the limits that MsDataFileUtils promises.
 *
 * Two queues make the order: real entries are taken off a stack, so that a folder's entries follow it at
 * once; links wait until no real entry is left, so that data goes by its own name where it has one.
 */
class DataCrawler
{
public:
    DataCrawler(const MsDataSearchOptions &options, const MsDataSearchCallbacks &callbacks);

    [[nodiscard]] Error search(const QString &folder);

private:
    struct Item
    {
        QString path;
        QString realPath; ///< Without links, so that the same thing is known again.
        MsDataFileInfo::Kind kind;
        bool isLink = false;
    };

    void searchWaiting();
    void visit(const Item &item);
    void visitLink(const QString &path);
    [[nodiscard]] bool isInsideSample(const QString &realPath) const;
    [[nodiscard]] bool listIfData(const Item &item);
    /// False when not all of its entries could be read.
    [[nodiscard]] bool readFolder(const Item &folder);
    [[nodiscard]] static Item entryOf(const Item &folder, const internal::FolderReader &reader);
    void queueEntries(QList<Item> entries);
    void passOver(const QString &folder);
    void reportProgress(const QString &folder);
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

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <stdexcept>

namespace ozm::test {

/**
 * Folders and files made for one test row and removed with it.
 *
 *     SampleTree tree;
 *     tree.make({u"Run.d/AcqData/"_s, u"Run.d/notes.txt"_s, u"link.d -> Run.d"_s});
 *
 * A name with a slash at its end is a folder, one with an arrow a link to what follows it, as written; any
 * other is a file. The folders above are made as needed. Lives in memory where the system offers that: there
 * the order of entries is that of their making, so that a test can choose it.
 */
class SampleTree
{
public:
    SampleTree()
        : m_dir(root() + QStringLiteral("/ozm-XXXXXX"))
    {
        if (!m_dir.isValid())
            throw std::runtime_error("no folder for the test");
    }

    [[nodiscard]] QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_dir.path() : m_dir.path() + u'/' + name;
    }

    void make(const QStringList &entries) const
    {
        for (const QString &entry : entries)
            makeOne(entry);
    }

    void makeOne(const QString &entry) const
    {
        const qsizetype arrow = entry.indexOf(QStringLiteral(" -> "));
        const QString target = path(arrow < 0 ? entry : entry.first(arrow));
        if (target.endsWith(u'/')) {
            check(QDir().mkpath(target), entry);
            return;
        }
        check(QDir().mkpath(QFileInfo(target).path()), entry);
        if (arrow >= 0) {
            check(QFile::link(entry.sliced(arrow + 4), target), entry);
            return;
        }
        QFile file(target);
        check(file.open(QIODevice::WriteOnly), entry);
    }

private:
    static QString root()
    {
        const QString inMemory = QStringLiteral("/dev/shm");
        return QFileInfo(inMemory).isWritable() ? inMemory : QDir::tempPath();
    }

    static void check(bool made, const QString &entry)
    {
        if (!made)
            throw std::runtime_error("cannot make " + entry.toStdString());
    }

    QTemporaryDir m_dir;
};

} // namespace ozm::test

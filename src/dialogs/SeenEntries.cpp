#include "dialogs/SeenEntries.h"

#include <ozm_widgets/MsDataSearch.h>

#include <QFileInfo>

namespace ozm {

using msreader::MsSample;

SeenEntries::Stamp SeenEntries::stampOf(const QString &path)
{
    const QFileInfo entry(path);
    return {entry.lastModified(), entry.metadataChangeTime(), entry.size()};
}

MsSample SeenEntries::sampleAt(const QString &path)
{
    // Before it is looked at: what changes meanwhile is seen the next time.
    const Stamp stamp = stampOf(path);
    {
        const QMutexLocker lock(&m_mutex);
        const auto known = m_entries.constFind(path);
        if (known != m_entries.constEnd() && known->stamp == stamp)
            return known->sample;
    }
    MsSample sample = msreader::MsDataSearch::sampleAt(path);
    // A missing entry has no times to tell it by.
    if (stamp.written.isValid()) {
        const QMutexLocker lock(&m_mutex);
        m_entries.insert(path, {stamp, sample});
    }
    return sample;
}

} // namespace ozm

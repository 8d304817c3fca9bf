#pragma once

#include <ozm_common_ms/MsDataFileInfo.h>

#include <functional>

namespace ozm::msreader {

struct MsDataSearchOptions
{
    bool recursive = true;
    MsDataFileInfo::CheckLevel checkLevel = MsDataFileInfo::CheckLevel::Content;
    bool measureFolders = false; ///< Add up the files of data folders, which takes a question for each.
};

/// What a search tells while it runs. Any of them may be left empty; none may throw.
struct MsDataSearchCallbacks
{
    /// A sample, as soon as it is found.
    std::function<void(const MsDataFileInfo &sample)> found;

    /// A folder that could not be read, and why; the search goes on without it.
    std::function<void(const QString &folder, const QString &reason)> passedOver;

    /// Before each folder: how many were searched, how many samples were found, and which is next.
    std::function<void(int foldersSearched, int samplesFound, const QString &folder)> progressed;

    /// Asked before every entry; the search ends soon after true.
    std::function<bool()> isCanceled;
};

} // namespace ozm::msreader

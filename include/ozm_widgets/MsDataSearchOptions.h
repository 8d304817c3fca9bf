#pragma once

#include <ozm_widgets/MsSample.h>

#include <functional>

namespace ozm::msreader {

/// How far a search goes.
struct MsDataSearchOptions
{
    bool recursive = true;       ///< False looks into the folder itself only.
    bool byNameOnly = false;     ///< Take the right name on a file or a folder for data, and look no further.
    bool measureFiles = true;    ///< Tell the size of files, which takes a question for each.
    bool measureFolders = false; ///< Add up the files of data folders, which takes a question for each.
};

/// The calls that a search makes while it runs. Any of them may be left empty; none may throw.
struct MsDataSearchCallbacks
{
    /// A sample, as soon as it is found.
    std::function<void(const MsSample &sample)> found;

    /// An entry that could not be searched, and why; the search goes on without it. Most are folders that
    /// cannot be read; a name that is not valid text is shown with replacement characters.
    std::function<void(const QString &path, const QString &reason)> passedOver;

    /// Before each folder: how many were searched, how many samples were found, and which is next.
    std::function<void(int foldersSearched, int samplesFound, const QString &folder)> progressed;

    /// Asked before every entry; the search ends soon after true.
    std::function<bool()> isCanceled;
};

} // namespace ozm::msreader

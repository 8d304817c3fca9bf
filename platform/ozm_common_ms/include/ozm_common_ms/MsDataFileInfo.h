#pragma once

namespace ozm::msreader {

/// How a path is looked at as mass-spectrometry data.
struct MsDataFileInfo
{
    /// How much is asked of the disk before a path counts as data.
    enum class CheckLevel : bool
    {
        Name = false,  ///< The right name on a file or a folder, whichever the format is.
        Content = true ///< The rules of the format, which look into folders and for companion files.
    };
};

} // namespace ozm::msreader

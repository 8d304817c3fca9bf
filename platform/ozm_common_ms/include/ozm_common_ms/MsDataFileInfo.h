#pragma once

#include <QMetaType>
#include <QString>

namespace ozm::msreader {

/// A path seen as mass-spectrometry data: what it is, or why it is none.
struct MsDataFileInfo
{
    /// How much is asked of the disk before a path counts as data.
    enum class CheckLevel : bool
    {
        Name = false,  ///< The right name on a file or a folder, whichever the format is.
        Content = true ///< The rules of the format, which look into folders and for companion files.
    };

    enum class Kind
    {
        None,
        File,
        Folder
    };

    QString path;
    QString formatName;  ///< As in settings and projects: "BrukerTims". Empty when the path is refused.
    QString description; ///< For people: "Bruker Tims". Empty when the path is refused.
    Kind kind = Kind::None;
    qint64 size = -1; ///< In bytes; -1 for a folder that was not measured.
    QString refusal;  ///< Why the path is no data, as a sentence for the user; empty when it is.

    [[nodiscard]] bool isData() const { return !formatName.isEmpty(); }

    bool operator==(const MsDataFileInfo &) const = default;
};

} // namespace ozm::msreader

Q_DECLARE_METATYPE(ozm::msreader::MsDataFileInfo)

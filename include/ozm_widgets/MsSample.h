#pragma once

#include <ozm_widgets/EntryKind.h>

#include <QMetaType>
#include <QString>

namespace ozm::msreader {

/// The mass-spectrometry data at a path, or the reason why a path is refused.
struct MsSample
{
    QString path;        ///< As it was asked for, or found.
    QString formatName;  ///< As in settings and projects: "BrukerTims". Empty when the path is refused.
    QString description; ///< For people: "Bruker Tims". Empty when the path is refused.
    EntryKind kind = EntryKind::Missing; ///< A file or a folder; Missing when there is neither.
    qint64 size = -1;                    ///< In bytes; -1 for a folder that was not measured.
    QString refusal; ///< Why the path is refused, as a sentence for the user; empty for data.

    /// False when the path holds no data; then there is a reason.
    [[nodiscard]] bool isData() const { return !formatName.isEmpty(); }

    bool operator==(const MsSample &) const = default;
};

} // namespace ozm::msreader

Q_DECLARE_METATYPE(ozm::msreader::MsSample)

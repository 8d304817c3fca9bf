#pragma once

#include <QString>

// Names of the columns that say what data a sample has, in files and records.
namespace workbench {

inline const QString kFormat = QStringLiteral("Format"); ///< As projects name it: "BrukerTims".
inline const QString kDescription = QStringLiteral("Description");
inline const QString kKind = QStringLiteral("Kind"); ///< kFileKind or kFolderKind.
inline const QString kSize = QStringLiteral("Size"); ///< In bytes; nothing when it is not known.
inline const QString kPath = QStringLiteral("Path");

inline const QString kFileKind = QStringLiteral("file");
inline const QString kFolderKind = QStringLiteral("folder");

} // namespace workbench

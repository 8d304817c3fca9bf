#include "search/RefusalReason.h"

#include "FormatDetection.h"
#include "disk/FolderReader.h"
#include "internal/FormatTable.h"
#include "search/LetterCase.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

using disk::Obstacle;

class RefusalText
{
    Q_DECLARE_TR_FUNCTIONS(ozm::msreader::RefusalReason)
};

/// A part that is missing in data of the right name and kind.
struct MissingPart
{
    QLatin1StringView extension;
    EntryKind kind;
    const char *text;
};

constexpr std::array kMissingParts{
    MissingPart{
        ".d"_L1, EntryKind::Folder,
        QT_TRANSLATE_NOOP("ozm::msreader::RefusalReason",
                          "The folder holds neither an \"AcqData\" folder (Agilent) nor \"fid\" files or a "
                          "complete set of \"analysis\" files (Bruker).")},
    MissingPart{".raw"_L1, EntryKind::Folder,
                QT_TRANSLATE_NOOP("ozm::msreader::RefusalReason",
                                  "The folder holds no \"_FUNC001.DAT\" file (Waters).")},
    MissingPart{".wiff"_L1, EntryKind::File,
                QT_TRANSLATE_NOOP("ozm::msreader::RefusalReason",
                                  "The \".wiff.scan\" file that belongs to it is missing.")},
    MissingPart{".wiff2"_L1, EntryKind::File,
                QT_TRANSLATE_NOOP("ozm::msreader::RefusalReason",
                                  "The \".wiff.scan\" file that belongs to it is missing.")},
};

bool hasExtension(const QString &path, QLatin1StringView extension)
{
    return path.endsWith(extension, Qt::CaseInsensitive);
}

QString missingText(const QString &path, EntryKind kind)
{
    const auto part = std::ranges::find_if(kMissingParts, [&](const MissingPart &row) {
        return row.kind == kind && hasExtension(path, row.extension);
    });
    return part != kMissingParts.end() ? RefusalText::tr(part->text)
                                       : RefusalText::tr("It changed while it was looked at.");
}

/// Nothing unless letter case is all that is wrong.
QString letterCaseText(const WrongCase &wrong)
{
    if (wrong.found.isEmpty())
        return {};
    return RefusalText::tr("\"%1\" would have to be called \"%2\": here, capital and small letters count.")
        .arg(wrong.found, wrong.wanted);
}

/// The half of a pair of Bruker files that is there, and the one that is not.
QString halfPairText(const QStringList &names)
{
    for (const auto &index : {u"analysis.tdf"_s, u"analysis.tsf"_s}) {
        const QString data = index + "_bin"_L1;
        const bool hasIndex = names.contains(index, Qt::CaseInsensitive);
        if (hasIndex != names.contains(data, Qt::CaseInsensitive)) {
            return RefusalText::tr("The folder holds \"%1\", but not \"%2\", which belongs to it (Bruker).")
                .arg(hasIndex ? index : data, hasIndex ? data : index);
        }
    }
    return {};
}

QString folderText(const QString &path)
{
    QStringList names;
    disk::FolderReader reader(path);
    while (reader.nextNamed())
        names.append(reader.name());
    if (!reader.isComplete())
        return folderReason(reader.obstacle());
    QString text;
    if (hasExtension(path, ".raw"_L1))
        text = letterCaseText(wrongCase(names, u"_FUNC001.DAT"_s));
    else if (internal::isNamedD(path))
        text = letterCaseText(wrongCaseInBruker(path, names));
    if (text.isEmpty() && internal::isNamedD(path))
        text = halfPairText(names);
    return text.isEmpty() ? missingText(path, EntryKind::Folder) : text;
}

QString fileText(const QString &path)
{
    const bool isWiff = hasExtension(path, ".wiff"_L1);
    if (!isWiff && !hasExtension(path, ".wiff2"_L1))
        return missingText(path, EntryKind::File);
    const QFileInfo info(path);
    const QString scan = (isWiff ? info.fileName() : info.fileName().chopped(1)) + ".scan"_L1;
    const QString text = letterCaseText(wrongCaseIn(info.path(), scan));
    return text.isEmpty() ? missingText(path, EntryKind::File) : text;
}

QString descriptionsOf(const QSet<VendorDataFormat> &formats)
{
    QStringList descriptions;
    for (const VendorDataFormat format : formats)
        descriptions.append(internal::formatRow(format)->description);
    descriptions.sort();
    descriptions.removeDuplicates();
    return descriptions.join(", "_L1);
}

QString kindText(const QSet<VendorDataFormat> &named, EntryKind kind)
{
    const QString text = kind == EntryKind::Folder
                             ? RefusalText::tr("Data with this name (%1) is a file, but this is a folder.")
                             : RefusalText::tr("Data with this name (%1) is a folder, but this is a file.");
    return text.arg(descriptionsOf(named));
}

/// The obstacles that are told in the same way for every kind of entry; null for the others.
QString obstacleText(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::TooLong:
        return RefusalText::tr("The path is too long for this system.");
    case Obstacle::LinkLoop:
        return RefusalText::tr("The link leads back to itself.");
    case Obstacle::NotText:
        return nameReason();
    case Obstacle::TooManyOpen:
        return RefusalText::tr("Too many files are open. Close some windows and try again.");
    case Obstacle::None:
    case Obstacle::Missing:
    case Obstacle::Closed:
    case Obstacle::NotAnswering:
        break;
    }
    return {};
}

QString noEntryText(const QString &path, Obstacle obstacle)
{
    if (QString text = obstacleText(obstacle); !text.isNull())
        return text;
    if (obstacle == Obstacle::Closed)
        return RefusalText::tr("A folder above it does not allow access.");
    if (obstacle == Obstacle::NotAnswering)
        return RefusalText::tr("The disk or the share does not answer.");
    return QFileInfo(path).isSymLink() ? RefusalText::tr("The link leads to nothing.")
                                       : RefusalText::tr("No such file or folder.");
}

} // namespace

QString refusalReason(const QString &path, const disk::DiskEntry &entry)
{
    if (entry.kind == EntryKind::Missing)
        return noEntryText(path, entry.obstacle);
    if (entry.kind == EntryKind::Other)
        return RefusalText::tr("This is neither a file nor a folder.");
    const QSet<VendorDataFormat> named = detectFormats(DataSourceLocation::fromLocalPath(path), true, false);
    if (named.isEmpty())
        return RefusalText::tr("The name has none of the extensions of mass-spectrometry data.");
    if (formatByName(path, entry.kind) == VendorDataFormat::Unknown)
        return kindText(named, entry.kind);
    return entry.kind == EntryKind::Folder ? folderText(path) : fileText(path);
}

QString folderReason(Obstacle obstacle)
{
    if (QString text = obstacleText(obstacle); !text.isNull())
        return text;
    if (obstacle == Obstacle::Missing)
        return RefusalText::tr("The folder does not exist any more.");
    if (obstacle == Obstacle::Closed)
        return RefusalText::tr("The folder cannot be read. Access is not allowed.");
    return RefusalText::tr("The folder cannot be read. The disk or the share does not answer.");
}

QString nameReason()
{
    return RefusalText::tr("The name is not valid text. Rename it to use the data.");
}

} // namespace ozm::msreader

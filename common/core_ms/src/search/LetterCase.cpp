#include "search/LetterCase.h"

#include "disk/FolderListing.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

// A copy that lost its letter case lost it everywhere: the first spots show it.
constexpr qsizetype kMostSpots = 16;

/// As instruments write them; the second spelling of a file is the one that is accepted beside it.
struct DataFile
{
    QLatin1StringView name;
    QLatin1StringView also;
};

constexpr std::array kDataFiles{
    DataFile{"Analysis.yep"_L1, {}},
    DataFile{"Analysis.baf"_L1, {}},
    DataFile{"analysis.tdf"_L1, "Analysis.tdf"_L1},
    DataFile{"analysis.tdf_bin"_L1, "Analysis.tdf_bin"_L1},
    DataFile{"analysis.tsf"_L1, "Analysis.tsf"_L1},
    DataFile{"analysis.tsf_bin"_L1, "Analysis.tsf_bin"_L1},
    DataFile{"fid"_L1, {}},
};

constexpr std::array kSpectra{"1SRef"_L1, "1SLin"_L1, "1Ref"_L1, "1Lin"_L1};

QStringList namesIn(const QString &folder)
{
    QStringList names;
    disk::FolderReader reader(folder);
    while (reader.nextNamed())
        names.append(reader.name());
    return names;
}

/// Follows @p wanted, a path below @p folder, in any letter case.
WrongCase wrongCaseBelow(const QString &folder, const QString &wanted)
{
    QString found;
    const QStringList steps = wanted.split(u'/');
    for (const QString &step : steps) {
        const QStringList names = namesIn(folder + u'/' + found);
        const auto name = std::ranges::find_if(
            names, [&step](const QString &each) { return each.compare(step, Qt::CaseInsensitive) == 0; });
        if (name == names.cend())
            return {};
        found += found.isEmpty() ? *name : u'/' + *name;
    }
    return found == wanted ? WrongCase() : WrongCase{found, wanted};
}

WrongCase wrongCaseInSpot(const QString &folder, const QString &spot)
{
    for (const QLatin1StringView spectrum : kSpectra) {
        for (const auto &above : {u"/1/"_s, u"/"_s}) {
            WrongCase wrong = wrongCaseBelow(folder, spot + above + spectrum + "/fid"_L1);
            if (!wrong.found.isEmpty())
                return wrong;
        }
    }
    return {};
}

} // namespace

WrongCase wrongCase(const QStringList &names, const QString &wanted)
{
    if (names.contains(wanted))
        return {};
    const auto name = std::ranges::find_if(
        names, [&wanted](const QString &each) { return each.compare(wanted, Qt::CaseInsensitive) == 0; });
    return name != names.cend() ? WrongCase{*name, wanted} : WrongCase();
}

WrongCase wrongCaseIn(const QString &folder, const QString &wanted)
{
    return wrongCase(namesIn(folder), wanted);
}

WrongCase wrongCaseInBruker(const QString &folder, const QStringList &names)
{
    for (const DataFile &file : kDataFiles) {
        if (!file.also.isEmpty() && names.contains(file.also))
            continue;
        if (WrongCase wrong = wrongCase(names, file.name); !wrong.found.isEmpty())
            return wrong;
    }
    const QString folderName = QFileInfo(folder).fileName();
    const QString companion = folderName.chopped(2) + ".u2"_L1;
    if (WrongCase wrong = wrongCase(names, companion); !wrong.found.isEmpty())
        return wrong;
    // The name of this file is made from the folder's, in which the capital letter is not replaced.
    if (folderName.endsWith(".D"_L1) && names.contains(companion))
        return {folderName, folderName.chopped(1) + u'd'};
    const disk::FolderListing listing = disk::listFoldersIn(folder);
    for (const disk::FolderListing::Entry &entry :
         listing.folders.first(qMin(listing.folders.size(), kMostSpots))) {
        if (WrongCase wrong = wrongCaseInSpot(folder, entry.name); !wrong.found.isEmpty())
            return wrong;
    }
    return {};
}

} // namespace ozm::msreader

#include <ozm_common_stable/VendorPaths.h>

#include <QDir>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kDataFiles{
    "analysis.baf"_L1,     "analysis.yep"_L1, "analysis.tdf"_L1,
    "analysis.tdf_bin"_L1, "analysis.tsf"_L1, "analysis.tsf_bin"_L1,
};

constexpr std::array kSpectrumFolders{"1SRef"_L1, "1SLin"_L1, "1Ref"_L1, "1Lin"_L1};

bool equal(QStringView a, QLatin1StringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

template <typename Names>
bool contains(const Names &names, QStringView name)
{
    return std::ranges::any_of(names, [name](QLatin1StringView known) { return equal(name, known); });
}

qsizetype lastSeparator(QStringView path)
{
    for (qsizetype i = path.size(); i-- > 0;) {
        if (path[i] == u'/' || path[i] == QDir::separator())
            return i;
    }
    return -1;
}

QStringView parentOf(QStringView path)
{
    return path.first(qMax<qsizetype>(lastSeparator(path), 0));
}

QStringView nameOf(QStringView path)
{
    return path.sliced(lastSeparator(path) + 1);
}

bool isRawFolder(QStringView folder)
{
    return folder.endsWith(".d"_L1, Qt::CaseInsensitive);
}

bool isOwnU2File(QStringView name, QStringView folder)
{
    const QStringView folderName = nameOf(folder);
    return isRawFolder(folderName) && name.endsWith(".u2"_L1, Qt::CaseInsensitive) &&
           name.chopped(3).compare(folderName.chopped(2), Qt::CaseInsensitive) == 0;
}

/// The folder three or four levels above a "fid" file; empty when the levels are not a spot's.
QStringView folderOfFid(QStringView fid)
{
    const QStringView spectrum = parentOf(fid);
    if (!contains(kSpectrumFolders, nameOf(spectrum)))
        return {};
    const QStringView above = parentOf(spectrum);
    if (nameOf(above) == u"1" && isRawFolder(parentOf(parentOf(above))))
        return parentOf(parentOf(above));
    return isRawFolder(parentOf(above)) ? parentOf(above) : QStringView();
}

QStringView rawFolderOf(QStringView path)
{
    const QStringView name = nameOf(path);
    if (equal(name, "fid"_L1))
        return folderOfFid(path);
    const QStringView folder = parentOf(path);
    const bool isData = contains(kDataFiles, name) || isOwnU2File(name, folder);
    return isData && isRawFolder(folder) ? folder : QStringView();
}

} // namespace

namespace ozm {

QString adjustBrukerFilenPathToFolderPath(const QString &path, bool *changed)
{
    const QStringView folder = rawFolderOf(path);
    if (folder.isEmpty())
        return path;
    if (changed)
        *changed = true;
    return folder.toString();
}

} // namespace ozm

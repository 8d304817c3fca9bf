#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace ozm::bench {

/// One sample as an instrument leaves it.
struct Layout
{
    const char *name;    ///< For reports; begins with the vendor, or "none:".
    QString path;        ///< Of the sample, below the folder it is made in.
    QStringList entries; ///< Files and, with a slash at the end, folders.
    QStringList asked;   ///< What a detector that knew the answer would ask for to prove it.
};

[[nodiscard]] std::vector<Layout> layouts();

/// The layouts that are data, those of one vendor together.
[[nodiscard]] std::vector<std::vector<Layout>> layoutsByVendor();

/// Makes @p entries below @p folder.
void make(const QString &folder, const QStringList &entries);

/// A ".d" folder of about @p files files: FID spectra of four files each, and an Agilent acquisition.
[[nodiscard]] QStringList largeFidFolder(const QString &name, int files);
[[nodiscard]] QStringList largeAgilentFolder(const QString &name, int files);
/// A TDF folder with @p files other files in it.
[[nodiscard]] QStringList largeTdfFolder(const QString &name, int files);

} // namespace ozm::bench

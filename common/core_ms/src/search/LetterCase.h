#pragma once

#include <QString>
#include <QStringList>

namespace ozm::msreader {

/// A name that would count if its letters were capital and small as they should be; empty when there is none.
struct WrongCase
{
    QString found;
    QString wanted;
};

/// Looks for @p wanted among @p names.
[[nodiscard]] WrongCase wrongCase(const QStringList &names, const QString &wanted);

/// Looks for @p wanted among the entries of @p folder.
[[nodiscard]] WrongCase wrongCaseIn(const QString &folder, const QString &wanted);

/// Looks for the data files of Bruker in @p folder, whose entries are @p names: the files that lie in it, and
/// the FID spectra further down.
[[nodiscard]] WrongCase wrongCaseInBruker(const QString &folder, const QStringList &names);

} // namespace ozm::msreader

#pragma once

#include <QList>
#include <QString>

namespace ozm {

class CsvWriter
{
public:
    [[nodiscard]] static bool writeFile(const QString &path, const QList<QList<QString>> &rows,
                                        const QString &text, const QChar &separator);
};

} // namespace ozm

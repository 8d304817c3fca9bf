#include "Fuzz.h"
#include "samples/CsvReader.h"

// Cells put between quotes are read as they were.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ozm;
    const auto rows = workbench::readCsv(fuzz::bytesOf(data, size));
    if (!rows)
        return 0;
    QByteArray written;
    for (const workbench::CsvRow &row : rows.value()) {
        for (qsizetype i = 0; i < row.cells.size(); ++i) {
            QByteArray cell = row.cells.at(i).toUtf8();
            written += (i > 0 ? ",\"" : "\"") + cell.replace('"', "\"\"") + '"';
        }
        written += "\r\n";
    }
    const auto again = workbench::readCsv(written);
    fuzz::require(again && again.value().size() == rows.value().size(), "each row is read again");
    for (qsizetype i = 0; i < again.value().size(); ++i)
        fuzz::require(again.value().at(i).cells == rows.value().at(i).cells, "each cell is read again");
    return 0;
}

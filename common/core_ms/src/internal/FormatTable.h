#pragma once

#include "MsDataFormat.h"

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <string_view>

namespace ozm::msreader::internal {

using namespace Qt::StringLiterals;

/// The form of a format's data on disk.
enum class Storage
{
    None,
    File,
    Folder,
    FileOrFolder
};

/// All that is fixed about one format.
struct FormatRow
{
    VendorDataFormat format;
    QLatin1StringView name;
    QLatin1StringView extension; ///< With its dot; empty when the name tells nothing.
    QLatin1StringView description;
    Storage storage;
};

// clang-format off
inline constexpr std::array kFormats{
    FormatRow{VendorDataFormat::Unknown, "Unknown"_L1, ""_L1, ""_L1, Storage::None},
    FormatRow{VendorDataFormat::Testing, "Testing"_L1, ""_L1, "Testing"_L1, Storage::File},
    FormatRow{VendorDataFormat::Zuspec2, "Zuspec2"_L1, ".zuspec2"_L1, "Zuspec v2"_L1, Storage::File},
    FormatRow{VendorDataFormat::BrukerFID, "BrukerFID"_L1, ".d"_L1, "Bruker"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerYEP, "BrukerYEP"_L1, ".d"_L1, "Bruker"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerBAF, "BrukerBAF"_L1, ".d"_L1, "Bruker"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerU2, "BrukerU2"_L1, ".d"_L1, "Bruker"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerBAF_and_U2, "BrukerBAF_and_U2"_L1, ".d"_L1, "Bruker"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerTims, "BrukerTims"_L1, ".d"_L1, "Bruker Tims"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::BrukerTsf, "BrukerTsf"_L1, ".d"_L1, "Bruker Tsf"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::AgilentAcqData, "AgilentAcqData"_L1, ".d"_L1, "Agilent"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::Mobilion, "Mobilion"_L1, ".mbi"_L1, "MOBILion"_L1, Storage::File},
    FormatRow{VendorDataFormat::Waters, "Waters"_L1, ".raw"_L1, "Waters"_L1, Storage::Folder},
    FormatRow{VendorDataFormat::Shimadzu, "Shimadzu"_L1, ".lcd"_L1, "Shimadzu"_L1, Storage::File},
    FormatRow{VendorDataFormat::SciexWiff, "SciexWiff"_L1, ".wiff"_L1, "Sciex wiff"_L1, Storage::File},
    FormatRow{VendorDataFormat::SciexWiff2, "SciexWiff2"_L1, ".wiff2"_L1, "Sciex wiff2"_L1, Storage::File},
    FormatRow{VendorDataFormat::MsFaux, "MsFaux"_L1, ".msfaux"_L1, "Simulated msfaux"_L1, Storage::File},
    FormatRow{VendorDataFormat::MsFaux2, "MsFaux2"_L1, ".msfaux2"_L1, "Simulated msfaux2"_L1, Storage::File},
    FormatRow{VendorDataFormat::Thermo, "Thermo"_L1, ".raw"_L1, "Thermo"_L1, Storage::File},
    FormatRow{VendorDataFormat::Mgf, "Mgf"_L1, ".mgf"_L1, "Mascot generic format (mgf)"_L1, Storage::File},
    FormatRow{VendorDataFormat::Mzml, "Mzml"_L1, ".mzml"_L1, "Open data format mzml"_L1, Storage::File},
    FormatRow{VendorDataFormat::Mzxml, "Mzxml"_L1, ".mzxml"_L1, "Open data format mzxml"_L1, Storage::File},
    FormatRow{VendorDataFormat::Vacq, "Vacq"_L1, ".vacq"_L1, "Veltrano Acquisition file"_L1, Storage::FileOrFolder},
    FormatRow{VendorDataFormat::DataCut, "DataCut"_L1, ".data.cut"_L1, "Data Cut"_L1, Storage::File},
    FormatRow{VendorDataFormat::DataCutEmbedded, "DataCutEmbedded"_L1, ""_L1, "Data Cut Embedded"_L1, Storage::File},
    FormatRow{VendorDataFormat::Csv2d, "Csv2d"_L1, ".csv2d"_L1, "Csv2D"_L1, Storage::File},
};
// clang-format on

/// True when an enumerator has @p Value: compilers spell a value without one as a cast, "(Type)26".
template <VendorDataFormat Value>
consteval bool hasEnumerator()
{
#ifdef _MSC_VER
    constexpr std::string_view spelled = __FUNCSIG__;
    constexpr std::string_view before = "hasEnumerator<";
#else
    constexpr std::string_view spelled = __PRETTY_FUNCTION__;
    constexpr std::string_view before = "Value = ";
#endif
    return spelled.at(spelled.find(before) + before.size()) != '(';
}

consteval bool rowsAreInOrder()
{
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
        if (static_cast<std::size_t>(kFormats[i].format) != i)
            return false;
    }
    return true;
}

static_assert(rowsAreInOrder(), "a format is found by its value: rows stand in the enumeration's order");
static_assert(hasEnumerator<VendorDataFormat{25}>() &&
                  !hasEnumerator<static_cast<VendorDataFormat>(kFormats.size())>(),
              "every format needs a row");

/// Returns true for the name of a folder that Agilent and Bruker data share.
[[nodiscard]] inline bool isNamedD(QStringView name)
{
    return name.endsWith(".d"_L1, Qt::CaseInsensitive);
}

/// Null for a value without an enumerator.
[[nodiscard]] const FormatRow *formatRow(VendorDataFormat format);

} // namespace ozm::msreader::internal

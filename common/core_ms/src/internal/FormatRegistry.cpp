#include "internal/FormatRegistry.h"

#include "internal/FormatDetectorAgilent.h"
#include "internal/FormatDetectorBruker.h"
#include "internal/FormatDetectorDataCut.h"
#include "internal/FormatDetectorSciex.h"
#include "internal/FormatDetectorTesting.h"
#include "internal/FormatDetectorVacq.h"
#include "internal/FormatDetectorWaters.h"
#include "internal/FormatTable.h"

#include <map>
#include <stdexcept>

namespace ozm::msreader::internal {

namespace {

class ListBuilder
{
public:
    template <typename Detector>
    void add()
    {
        m_list.push_back(std::make_unique<const Detector>());
    }

    void addSimple(VendorDataFormat format)
    {
        m_list.push_back(std::make_unique<const FormatDetectorSimple>(*formatRow(format)));
    }

    DetectorList take() { return std::move(m_list); }

private:
    DetectorList m_list;
};

// The order decides which format goes first where several fit: Agilent before Bruker, Thermo before Waters.
DetectorList makeDetectors()
{
    ListBuilder list;
    list.add<FormatDetectorAgilent>();
    list.add<FormatDetectorBruker>();
    list.addSimple(VendorDataFormat::Zuspec2);
    list.addSimple(VendorDataFormat::Csv2d);
    list.add<FormatDetectorDataCut>();
    list.add<FormatDetectorDataCutEmbedded>();
    list.addSimple(VendorDataFormat::MsFaux);
    list.addSimple(VendorDataFormat::MsFaux2);
    list.addSimple(VendorDataFormat::Mgf);
    list.addSimple(VendorDataFormat::Mzml);
    list.addSimple(VendorDataFormat::Mzxml);
    list.add<FormatDetectorVacq>();
    list.addSimple(VendorDataFormat::Mobilion);
    list.add<FormatDetectorSciexWiff>();
    list.add<FormatDetectorSciexWiff2>();
    list.addSimple(VendorDataFormat::Shimadzu);
    list.addSimple(VendorDataFormat::Thermo);
    list.add<FormatDetectorTesting>();
    list.add<FormatDetectorWaters>();
    return list.take();
}

DetectorList makeCheckedDetectors()
{
    DetectorList list = makeDetectors();
    throwOnOverlap(list);
    return list;
}

using FormatMap = std::map<VendorDataFormat, std::size_t>;

FormatMap mapFormats(const DetectorList &list)
{
    FormatMap positions;
    for (std::size_t position = 0; position < list.size(); ++position) {
        for (const VendorDataFormat format : list[position]->supportedFormats())
            positions.emplace(format, position);
    }
    return positions;
}

} // namespace

const DetectorList &detectors()
{
    static const DetectorList list = makeCheckedDetectors();
    return list;
}

const FormatDetectorBase *detectorOf(VendorDataFormat format)
{
    static const FormatMap positions = mapFormats(detectors());
    const auto position = positions.find(format);
    return position != positions.end() ? detectors()[position->second].get() : nullptr;
}

void throwOnOverlap(const DetectorList &list)
{
    QSet<VendorDataFormat> claimed;
    for (const auto &detector : list) {
        const QSet<VendorDataFormat> formats = detector->supportedFormats();
        if (claimed.intersects(formats))
            throw std::runtime_error("Developer's exception: format intersection detected.");
        claimed.unite(formats);
    }
}

} // namespace ozm::msreader::internal

#pragma once

#include <ozm_common_stable/Result.h>

#include <QObject>
#include <QString>

namespace ozm::msreader {

/**
 * Carries the enumeration of vendor data formats to Qt's meta-objects, and does nothing else.
 *
 * The names are what projects, settings and logs hold: neither they nor the values ever change.
 */
class OZM_QEnumsMsDataFormat
{
    Q_GADGET

public:
    enum VendorDataFormat : qint32
    {
        Unknown = 0,
        Testing = 1,
        Zuspec2 = 2,
        BrukerFID = 3,
        BrukerYEP = 4,
        BrukerBAF = 5,
        BrukerU2 = 6,
        BrukerBAF_and_U2 = 7,
        BrukerTims = 8,
        BrukerTsf = 9,
        AgilentAcqData = 10,
        Mobilion = 11,
        Waters = 12,
        Shimadzu = 13,
        SciexWiff = 14,
        SciexWiff2 = 15,
        MsFaux = 16,
        MsFaux2 = 17,
        Thermo = 18,
        Mgf = 19,
        Mzml = 20,
        Mzxml = 21,
        Vacq = 22,
        DataCut = 23,
        DataCutEmbedded = 24,
        Csv2d = 25,
    };
    Q_ENUM(VendorDataFormat)
};

using VendorDataFormat = OZM_QEnumsMsDataFormat::VendorDataFormat;

/// Formats as text, in settings, logs and projects.
class MsDataFormat
{
public:
    /// The enumerator's name; the decimal number of a value that has none.
    [[nodiscard]] static QString toString(VendorDataFormat format);

    /// The format of that name, in any letter case; an error with code 2 when there is none.
    [[nodiscard]] static Result<VendorDataFormat> fromString(const QString &text);
};

} // namespace ozm::msreader

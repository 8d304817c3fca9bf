#!/bin/sh
# Lays out a folder as laboratories have them: data of several vendors in nested studies, and what is easily
# taken for data. The mzML and MGF files are small but valid; vendor files are zeros, which is
# enough to be recognised.
#
#     examples/sample_data/make_sample_folder.sh out/samples

set -eu

top=${1:?the folder to make}
mkdir -p "$top"
cd "$top"

blocks=0
vendor() { # file...
    for file in "$@"; do
        mkdir -p "$(dirname "$file")"
        blocks=$((blocks + 1))
        dd if=/dev/zero of="$file" bs=4096 count=$blocks 2>/dev/null
    done
}

mgf() { # file title
    mkdir -p "$(dirname "$1")"
    cat > "$1" <<END
BEGIN IONS
TITLE=$2
PEPMASS=421.7584 1520.0
CHARGE=2+
RTINSECONDS=612.4
175.1190 120.0
288.2030 310.5
401.2871 95.2
END IONS
END
}

# Two numbers as 64-bit floating point, little endian: 100.0 and 200.0, and 10.0 and 20.0.
mz='AAAAAAAAWUAAAAAAAABpQA=='
intensity='AAAAAAAAJEAAAAAAAAA0QA=='

array() { # values accession name unit
    cat <<END
          <binaryDataArray encodedLength="${#1}">
            <cvParam cvRef="MS" accession="MS:1000523" name="64-bit float"/>
            <cvParam cvRef="MS" accession="MS:1000576" name="no compression"/>
            <cvParam cvRef="MS" accession="$2" name="$3" unitCvRef="MS" $4/>
            <binary>$1</binary>
          </binaryDataArray>
END
}

mzml() { # file id
    mkdir -p "$(dirname "$1")"
    {
        cat <<END
<?xml version="1.0" encoding="UTF-8"?>
<mzML xmlns="http://psi.hupo.org/ms/mzml" version="1.1.0" id="$2">
  <cvList count="1">
    <cv id="MS" fullName="Proteomics Standards Initiative Mass Spectrometry Ontology" version="4.1.0"
        URI="https://raw.githubusercontent.com/HUPO-PSI/psi-ms-CV/master/psi-ms.obo"/>
  </cvList>
  <fileDescription>
    <fileContent><cvParam cvRef="MS" accession="MS:1000579" name="MS1 spectrum"/></fileContent>
  </fileDescription>
  <softwareList count="1">
    <software id="script" version="1">
      <cvParam cvRef="MS" accession="MS:1000799" name="custom unreleased software tool" value="sample data"/>
    </software>
  </softwareList>
  <instrumentConfigurationList count="1">
    <instrumentConfiguration id="IC1">
      <cvParam cvRef="MS" accession="MS:1000031" name="instrument model"/>
    </instrumentConfiguration>
  </instrumentConfigurationList>
  <dataProcessingList count="1">
    <dataProcessing id="DP1">
      <processingMethod order="0" softwareRef="script">
        <cvParam cvRef="MS" accession="MS:1000544" name="Conversion to mzML"/>
      </processingMethod>
    </dataProcessing>
  </dataProcessingList>
  <run id="$2" defaultInstrumentConfigurationRef="IC1">
    <spectrumList count="1" defaultDataProcessingRef="DP1">
      <spectrum index="0" id="scan=1" defaultArrayLength="2">
        <cvParam cvRef="MS" accession="MS:1000511" name="ms level" value="1"/>
        <cvParam cvRef="MS" accession="MS:1000579" name="MS1 spectrum"/>
        <cvParam cvRef="MS" accession="MS:1000127" name="centroid spectrum"/>
        <binaryDataArrayList count="2">
END
        array "$mz" MS:1000514 'm/z array' 'unitAccession="MS:1000040" unitName="m/z"'
        array "$intensity" MS:1000515 'intensity array' \
            'unitAccession="MS:1000131" unitName="number of detector counts"'
        cat <<END
        </binaryDataArrayList>
      </spectrum>
    </spectrumList>
  </run>
</mzML>
END
    } > "$1"
}

# Studies with data.
mzml 'Antibody stability/week 0/mAb-01.mzML' mAb-01
mzml 'Antibody stability/week 0/mAb-02.MZML' mAb-02
mgf 'Antibody stability/search/mAb-01.mgf' 'mAb-01 scan 612'
vendor 'Antibody stability/week 4/mAb-01.d/AcqData/MSScan.bin' \
       'Antibody stability/week 4/mAb-01.d/AcqData/MSPeak.bin' \
       'Antibody stability/week 4/mAb-02.D/acqdata/msprofile.bin' \
       'Peptide mapping/digest 1.raw' \
       'Peptide mapping/digest 2.RAW' \
       'Peptide mapping/TOF/digest 1.raw/_FUNC001.DAT' \
       'Peptide mapping/TOF/digest 1.raw/_HEADER.TXT' \
       'Peptide mapping/ion mobility/digest 3.d/analysis.tdf' \
       'Peptide mapping/ion mobility/digest 3.d/analysis.tdf_bin' \
       'Peptide mapping/ion mobility/digest 3.d/4711.m/method.xml' \
       'Peptide mapping/ion mobility/digest 4.d/analysis.tsf' \
       'Peptide mapping/ion mobility/digest 4.d/analysis.tsf_bin' \
       'Peptide mapping/ion mobility/digest 5.mbi' \
       'Glycans/Übersicht/плазма 1.d/Analysis.baf' \
       'Glycans/Übersicht/плазма 1.d/плазма 1.u2' \
       'Glycans/trap/run 7.d/Analysis.yep' \
       'Glycans/MALDI/plate.d/0_A1/1/1SRef/fid' \
       'Glycans/MALDI/plate.d/0_A2/1/1SRef/fid' \
       'Metabolites/pos.wiff' 'Metabolites/pos.wiff.scan' \
       'Metabolites/neg.wiff2' 'Metabolites/neg.wiff.scan' \
       'Metabolites/blank.lcd' \
       'Metabolites/acquisition.vacq' 'Metabolites/long acquisition.vacq/part1' \
       'Simulated/spectra.msfaux' 'Simulated/spectra.msfaux2' 'Simulated/region.data.cut' \
       'Simulated/map.csv2d' 'Simulated/archive.zuspec2'

# What only looks like data: each is refused, or searched for what lies in it.
vendor 'Confusable/settings.d/10-local.conf' \
       'Confusable/main.d' \
       'Confusable/photos.raw/IMG_0001.CR2' \
       'Confusable/lone.wiff' \
       'Confusable/lone2.wiff2' \
       'Confusable/lower case.d/analysis.baf' \
       'Confusable/half.d/analysis.tdf' \
       'Confusable/report.mzML.pdf'
mkdir -p 'Confusable/folder.mzML'
mgf 'Confusable/photos.raw/real data.mgf' 'found in an ordinary folder'
ln -sf 'nowhere.mzML' 'Confusable/dangling.mzML'
ln -sfn '..' 'Confusable/up'
echo 'Bring the wiff.scan files along when you copy data.' > 'Confusable/notes.txt'

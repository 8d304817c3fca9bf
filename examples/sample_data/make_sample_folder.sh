#!/bin/sh
# Lays out a folder such as a laboratory keeps: studies with data of several vendors, nested and flat, and
# among them folders and files that only look like data. The two open-format files are small but valid.
#
#     make_sample_folder.sh FOLDER
set -eu

[ $# -eq 1 ] || { echo "usage: $0 FOLDER" >&2; exit 2; }
mkdir -p "$1"
cd "$1"

# file PATH...: files with a little in them, and the folders they need.
file() {
    for path in "$@"; do
        mkdir -p "$(dirname "$path")"
        printf 'sample data\n' >"$path"
    done
}

mzml() {
    mkdir -p "$(dirname "$1")"
    cat >"$1" <<'XML'
<?xml version="1.0" encoding="UTF-8"?>
<mzML xmlns="http://psi.hupo.org/ms/mzml" version="1.1.0" id="blank">
  <cvList count="2">
    <cv id="MS" fullName="Mass spectrometry ontology" version="4.1.30" URI="psi-ms.obo"/>
    <cv id="UO" fullName="Unit Ontology" version="09:04:2014" URI="unit.obo"/>
  </cvList>
  <fileDescription>
    <fileContent>
      <cvParam cvRef="MS" accession="MS:1000579" name="MS1 spectrum"/>
    </fileContent>
  </fileDescription>
  <softwareList count="1">
    <software id="made_by_hand" version="1">
      <cvParam cvRef="MS" accession="MS:1000799" name="custom unreleased software tool" value="made by hand"/>
    </software>
  </softwareList>
  <instrumentConfigurationList count="1">
    <instrumentConfiguration id="instrument">
      <cvParam cvRef="MS" accession="MS:1000031" name="instrument model"/>
    </instrumentConfiguration>
  </instrumentConfigurationList>
  <dataProcessingList count="1">
    <dataProcessing id="conversion">
      <processingMethod order="0" softwareRef="made_by_hand">
        <cvParam cvRef="MS" accession="MS:1000544" name="Conversion to mzML"/>
      </processingMethod>
    </dataProcessing>
  </dataProcessingList>
  <run id="run" defaultInstrumentConfigurationRef="instrument">
    <spectrumList count="1" defaultDataProcessingRef="conversion">
      <spectrum index="0" id="scan=1" defaultArrayLength="2">
        <cvParam cvRef="MS" accession="MS:1000579" name="MS1 spectrum"/>
        <cvParam cvRef="MS" accession="MS:1000511" name="ms level" value="1"/>
        <cvParam cvRef="MS" accession="MS:1000127" name="centroid spectrum"/>
        <binaryDataArrayList count="2">
          <binaryDataArray encodedLength="24">
            <cvParam cvRef="MS" accession="MS:1000523" name="64-bit float"/>
            <cvParam cvRef="MS" accession="MS:1000576" name="no compression"/>
            <cvParam cvRef="MS" accession="MS:1000514" name="m/z array" unitCvRef="MS" unitAccession="MS:1000040" unitName="m/z"/>
            <binary>AAAAAAAAeUAAAAAAAMiJQA==</binary>
          </binaryDataArray>
          <binaryDataArray encodedLength="24">
            <cvParam cvRef="MS" accession="MS:1000523" name="64-bit float"/>
            <cvParam cvRef="MS" accession="MS:1000576" name="no compression"/>
            <cvParam cvRef="MS" accession="MS:1000515" name="intensity array" unitCvRef="MS" unitAccession="MS:1000131" unitName="number of detector counts"/>
            <binary>AAAAAABAj0AAAAAAAECPQA==</binary>
          </binaryDataArray>
        </binaryDataArrayList>
      </spectrum>
    </spectrumList>
  </run>
</mzML>
XML
}

mgf() {
    mkdir -p "$(dirname "$1")"
    cat >"$1" <<'TEXT'
BEGIN IONS
TITLE=HC-T20 scan 1824
PEPMASS=418.2208 152340
CHARGE=2+
RTINSECONDS=911.4
175.1190 8200
288.2030 12100
419.2435 9900
506.2755 4100
END IONS
TEXT
}

# A stability study, by instrument.
for day in 01 07 28; do
    file "Stability 2026/Q-TOF/Day $day.d/AcqData/MSScan.bin" "Stability 2026/Q-TOF/Day $day.d/AcqData/Contents.xml"
done
for day in 01 07; do
    file "Stability 2026/timsTOF/Day $day.d/analysis.tdf" "Stability 2026/timsTOF/Day $day.d/analysis.tdf_bin"
    file "Stability 2026/Orbitrap/Day $day.raw"
done
file "Stability 2026/Orbitrap/Day 01.raw.sha256" "Stability 2026/protocol.txt"

# Released batches, nested by year and month.
file "Release/2026/03/Batch 17.raw/_FUNC001.DAT" "Release/2026/03/Batch 17.raw/_HEADER.TXT"
file "Release/2026/03/Batch 18.wiff" "Release/2026/03/Batch 18.wiff.scan"
file "Release/2026/04/Batch 19.wiff2" "Release/2026/04/Batch 19.wiff.scan"
file "Release/2026/04/Batch 20.d/Analysis.baf" "Release/2026/04/Batch 20.d/Batch 20.u2"
file "Release/2026/04/Batch 21.D/analysis.tsf" "Release/2026/04/Batch 21.D/analysis.tsf_bin"
file "Release/2026/04/Spot A1.d/0_A1/1/1SRef/fid"
file "Release/2026/04/Batch 22.lcd" "Release/2026/04/Batch 23.MZXML"

# Converted and in-house data, with names in several scripts.
mzml "Converted/blank.mzML"
mgf "Converted/HC-T20.mgf"
mzml "Converted/質量分析/試料 1.mzml"
file "Converted/Überprüfung µg.vacq" "In house/Run 5.vacq/trace" "In house/Simulated.msfaux2" "In house/Peaks.csv2d"
file "In house/Region.data.cut" "In house/Mobility.mbi"

# What only looks like data: configuration and empty folders, a scan file that did not come along, a reference
# that was copied without its folder.
file "Confusing/conf.d/settings.ini" "Confusing/Scans.raw/readme.txt" "Confusing/Lost scan.wiff"
file "Confusing/notes.mzml.txt" "Confusing/analysis.tdf" "Confusing/lower case.d/analysis.baf"
mkdir -p "Confusing/Empty.d" "Confusing/Empty.raw" "Confusing/Folder.mzML"

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>FileCrawlerDialog</name>
    <message>
        <source>These folders could not be searched:
%1</source>
        <translation>Diese Ordner konnten nicht durchsucht werden:
%1</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
und %1 weitere</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Save CSV file</source>
        <translation>CSV-Datei speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>CSV path does not exist</source>
        <translation>Der CSV-Pfad ist nicht vorhanden</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not contain any MS data.</source>
        <translation>Der Ordner „%1“ enthält keine MS-Daten.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Crawl path</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; successfully saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>CSV file successfully saved.</source>
        <translation>Die CSV-Datei wurde gespeichert.</translation>
    </message>
    <message>
        <source>MS data path finder</source>
        <translation>MS-Daten-Pfade finden</translation>
    </message>
    <message>
        <source>Enable recursive search</source>
        <translation>Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Folder path to start searching...</source>
        <translation>Ordner, in dem die Suche beginnt …</translation>
    </message>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Den Ordner wählen</translation>
    </message>
    <message>
        <source>Cancel search</source>
        <translation>Suche abbrechen</translation>
    </message>
    <message>
        <source>Folders searched: %1. Data found: %2.</source>
        <translation>Durchsuchte Ordner: %1. Gefundene Daten: %2.</translation>
    </message>
    <message>
        <source>Canceled. Folders searched: %1. Data found: %2.</source>
        <translation>Abgebrochen. Durchsuchte Ordner: %1. Gefundene Daten: %2.</translation>
    </message>
    <message>
        <source>Passed over:
%1</source>
        <translation>Übergangen:
%1</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The file is locked and cannot be overwritten, which is likely opened by another application. Please close the other application or choose a different file name.</source>
        <translation>Die Datei ist gesperrt und kann nicht überschrieben werden; vermutlich ist sie in einer anderen Anwendung geöffnet. Bitte schließen Sie die andere Anwendung oder wählen Sie einen anderen Dateinamen.</translation>
    </message>
    <message>
        <source>The file cannot be created at this location (no permission). Please choose a different file path.</source>
        <translation>Die Datei kann an diesem Ort nicht angelegt werden (keine Berechtigung). Bitte wählen Sie einen anderen Dateipfad.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists and will be replaced.</source>
        <translation>„%1“ ist vorhanden und wird ersetzt.</translation>
    </message>
</context>
<context>
    <name>OZMDockWidgetTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>Andocken</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Ablösen</translation>
    </message>
    <message>
        <source>Dock %1</source>
        <translation>%1 andocken</translation>
    </message>
    <message>
        <source>Float %1</source>
        <translation>%1 ablösen</translation>
    </message>
</context>
<context>
    <name>OZMFileDialog</name>
    <message>
        <source>The selected path has been changed to its parent folder.
Certain MS data are read from the parent folder (e.g. &apos;folder.d&apos;) instead of the embedded file (e.g. &apos;analysis.baf&apos;).
Corrected path is:
%1</source>
        <translation>Der gewählte Pfad wurde auf den übergeordneten Ordner geändert.
Manche MS-Daten werden aus dem übergeordneten Ordner gelesen (z. B. „folder.d“) statt aus der darin liegenden Datei (z. B. „analysis.baf“).
Der berichtigte Pfad ist:
%1</translation>
    </message>
    <message>
        <source>File path correction</source>
        <translation>Berichtigung des Dateipfads</translation>
    </message>
</context>
<context>
    <name>OZMStyle</name>
    <message>
        <source>%1 Error code: %2</source>
        <translation>%1 Fehlercode: %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>openfilefolderdialog</name>
    <message>
        <source>Open &amp;file</source>
        <translation>&amp;Datei öffnen</translation>
    </message>
    <message>
        <source>Open f&amp;older</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Open file or folder</source>
        <translation>Datei oder Ordner öffnen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>File saved.  Would you like to open the file or folder?
%1</source>
        <translation>Datei gespeichert. Möchten Sie die Datei oder den Ordner öffnen?
%1</translation>
    </message>
    <message>
        <source>File not created. There appears to be an issue with the given file.
%1
You may still open the given folder.</source>
        <translation>Die Datei wurde nicht angelegt. Mit der angegebenen Datei scheint etwas nicht zu stimmen.
%1
Den angegebenen Ordner können Sie trotzdem öffnen.</translation>
    </message>
</context>
<context>
    <name>ozm::BlackSplitterHandle</name>
    <message>
        <source>Divider</source>
        <translation>Trennlinie</translation>
    </message>
</context>
<context>
    <name>ozm::PickRecognition</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: a folder to look into</source>
        <translation>%1: ein Ordner zum Hineinsehen</translation>
    </message>
    <message>
        <source>%1: no data, left out. %2</source>
        <translation>%1: keine Daten, ausgelassen. %2</translation>
    </message>
    <message>
        <source>%1 of %2 hold data</source>
        <translation>%1 von %2 enthalten Daten</translation>
    </message>
    <message>
        <source>What is highlighted</source>
        <translation>Was hervorgehoben ist</translation>
    </message>
</context>
<context>
    <name>ozm::UndoStack</name>
    <message>
        <source>A new edit cannot be made while another is being undone or redone.</source>
        <translation>Solange eine Änderung rückgängig gemacht oder wiederholt wird, ist keine neue möglich.</translation>
    </message>
</context>
</TS>

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
    <name>SpectrumFileDialog</name>
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
    <name>ozm::EngineWebReader</name>
    <message>
        <source>This file is a whole web page. The web engine that reads its body does not run for the system&apos;s administrator. The file can be opened as plain text instead.</source>
        <translation>Diese Datei ist eine ganze Webseite. Die Web-Engine, die ihren Inhalt liest, läuft nicht für den Administrator des Systems. Die Datei kann stattdessen als reiner Text geöffnet werden.</translation>
    </message>
    <message>
        <source>The web engine failed on the page.</source>
        <translation>Die Web-Engine ist an der Seite gescheitert.</translation>
    </message>
    <message>
        <source>The web engine found no body in the page.</source>
        <translation>Die Web-Engine hat in der Seite keinen Inhalt gefunden.</translation>
    </message>
    <message>
        <source>The web engine did not read the page in time.</source>
        <translation>Die Web-Engine hat die Seite nicht rechtzeitig gelesen.</translation>
    </message>
    <message>
        <source>The program ended while the web engine read the page.</source>
        <translation>Das Programm wurde beendet, während die Web-Engine die Seite las.</translation>
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
    <name>ozm::TemplateFile</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Der Inhalt ist größer als %1 MB.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file begins as a template, but is cut short or of another version.</source>
        <translation>Die Datei beginnt als Vorlage, ist aber abgeschnitten oder von einer anderen Version.</translation>
    </message>
    <message>
        <source>The template cannot be saved.</source>
        <translation>Die Vorlage kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The template holds a zero character, which cannot be saved. Remove it.</source>
        <translation>Die Vorlage enthält ein Nullzeichen, das nicht gespeichert werden kann. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>The template holds half of a character pair, which cannot be saved. Remove what is shown as a question mark or an empty box.</source>
        <translation>Die Vorlage enthält ein halbes Zeichenpaar, das nicht gespeichert werden kann. Entfernen Sie, was als Fragezeichen oder leerer Kasten erscheint.</translation>
    </message>
    <message>
        <source>The template could not be read back once saved, so it was not.</source>
        <translation>Die Vorlage wurde nicht gespeichert, weil sie danach nicht mehr lesbar wäre.</translation>
    </message>
    <message>
        <source>The page says that it is written in the character set &quot;%1&quot;, which is not known here.</source>
        <translation>Die Seite gibt als Zeichensatz „%1“ an, der hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>The page says that it is written in the character set &quot;%1&quot;, but it holds bytes that mean nothing in it.</source>
        <translation>Die Seite gibt als Zeichensatz „%1“ an, enthält aber Bytes, die darin nichts bedeuten.</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Falsches Format des Vorlageninhalts.</translation>
    </message>
    <message>
        <source>The file holds zero bytes, as programs and pictures do, and no text.</source>
        <translation>Die Datei enthält Nullbytes wie Programme und Bilder und keinen Text.</translation>
    </message>
    <message>
        <source>The file is not written in the character set of its byte-order mark.</source>
        <translation>Die Datei ist nicht im Zeichensatz ihrer Bytereihenfolge-Marke geschrieben.</translation>
    </message>
    <message>
        <source>The file holds bytes that are no UTF-8 text.</source>
        <translation>Die Datei enthält Bytes, die kein UTF-8-Text sind.</translation>
    </message>
    <message>
        <source>This file is a whole web page. Its body is read by the plug-in &quot;ozm_webreader&quot;, which is not installed here (looked for in %1). The file can be opened as plain text instead.</source>
        <translation>Diese Datei ist eine ganze Webseite. Ihren Inhalt liest das Plug-in „ozm_webreader“, das hier nicht installiert ist (gesucht in %1). Die Datei kann stattdessen als reiner Text geöffnet werden.</translation>
    </message>
    <message>
        <source>This file is a whole web page. This program was built without the part that reads the body of web pages. The file can be opened as plain text instead.</source>
        <translation>Diese Datei ist eine ganze Webseite. Dieses Programm wurde ohne den Teil gebaut, der den Inhalt von Webseiten liest. Die Datei kann stattdessen als reiner Text geöffnet werden.</translation>
    </message>
    <message>
        <source>The body of a web page can only be read on the main thread of a program with windows.</source>
        <translation>Der Inhalt einer Webseite kann nur im Hauptthread eines Programms mit Fenstern gelesen werden.</translation>
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

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AbstractTemplateEditor</name>
    <message>
        <source>report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>%1 may not be removed from this template.</source>
        <translation>%1 darf aus dieser Vorlage nicht entfernt werden.</translation>
    </message>
    <message>
        <source>This place was removed from the template.</source>
        <translation>Diese Stelle gibt es in der Vorlage nicht mehr.</translation>
    </message>
    <message>
        <source>The template is large, and shown as its source.</source>
        <translation>Die Vorlage ist groß und wird als Quelltext gezeigt.</translation>
    </message>
    <message>
        <source>The template is too large to be shown as formatted text.</source>
        <translation>Die Vorlage ist zu groß, um als formatierter Text gezeigt zu werden.</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Neue Vorlage</translation>
    </message>
    <message>
        <source>%1[*] (read only) - Template editor</source>
        <translation>%1[*] (schreibgeschützt) - Vorlagen</translation>
    </message>
    <message>
        <source>%1[*] - Template editor</source>
        <translation>%1[*] - Vorlagen</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Falsches Format des Vorlageninhalts.</translation>
    </message>
    <message>
        <source>No data row was given to fill the template with.</source>
        <translation>Es gibt keine Datenzeile, mit der die Vorlage gefüllt werden kann.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom of the template (Ctrl and the wheel)</source>
        <translation>Zoom der Vorlage (Strg und Mausrad)</translation>
    </message>
</context>
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
    <message>
        <source>Data found: %1.</source>
        <translation>Gefundene Daten: %1.</translation>
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
    <message>
        <source>The folder &quot;%1&quot; does not exist here.</source>
        <translation>Hier gibt es keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Double-click it to look inside.</source>
        <translation>„%1“ ist ein Ordner. Ein Doppelklick zeigt, was darin ist.</translation>
    </message>
</context>
<context>
    <name>FormWidgets</name>
    <message>
        <source>A splitter whose dividers are thin lines and wide enough to grab</source>
        <translation>Ein Splitter, dessen Trenner schmale Linien und doch breit genug zum Greifen sind</translation>
    </message>
    <message>
        <source>A dock whose title bar is in the style of the suite</source>
        <translation>Ein Andockfenster, dessen Titelleiste dem Stil der Programmfamilie folgt</translation>
    </message>
    <message>
        <source>A report on its pages, as it is printed</source>
        <translation>Ein Bericht auf seinen Seiten, wie er gedruckt wird</translation>
    </message>
    <message>
        <source>An audit trail to be read, filtered, reviewed and signed; setStore() fills it</source>
        <translation>Ein Audit-Trail zum Lesen, Filtern, Prüfen und Unterschreiben; setStore() füllt ihn</translation>
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
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
</context>
<context>
    <name>PickCheck</name>
    <message>
        <source>Opening data</source>
        <translation>Daten öffnen</translation>
    </message>
    <message>
        <source>The disk takes long to answer. Looking for data …</source>
        <translation>Der Datenträger antwortet langsam. Daten werden gesucht …</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Details anzeigen …</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Widersprüchliche Duplex-Einstellungen</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Ungültige Seitenangabe</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Die Duplex-Einstellungen widersprechen sich. Sollen sie berichtigt werden?</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Doppelseitiger Druck</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Bindung an der langen Seite</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Bindung an der kurzen Seite</translation>
    </message>
</context>
<context>
    <name>SaveProbe</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>SpectrumFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datei nicht gefunden.
Bitte prüfen Sie, ob der Dateiname stimmt.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) and folder(s)</source>
        <translation>
            <numerusform>%n Datei oder Ordner</numerusform>
            <numerusform>%n Dateien und Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>Look &amp;inside</source>
        <translation>&amp;Hineinsehen</translation>
    </message>
    <message>
        <source>Shows the contents of a folder that is named as data and holds none</source>
        <translation>Zeigt den Inhalt eines Ordners, der wie Messdaten heißt und keine enthält</translation>
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
        <translation>S&amp;chließen</translation>
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
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
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
    <name>ozm::DataDelegate</name>
    <message>
        <source>no data</source>
        <translation>keine Daten</translation>
    </message>
</context>
<context>
    <name>ozm::EngineWebReader</name>
    <message>
        <source>This file is a whole web page. The web engine that reads its body does not run for the system&apos;s administrator. The file can be opened as plain text instead.</source>
        <translation>Diese Datei ist eine ganze Webseite. Die Webkomponente, die ihren Inhalt liest, läuft nicht für den Systemverwalter. Die Datei kann stattdessen als einfacher Text geöffnet werden.</translation>
    </message>
    <message>
        <source>The web engine failed on the page.</source>
        <translation>Die Webkomponente scheiterte an der Seite.</translation>
    </message>
    <message>
        <source>The web engine found no body in the page.</source>
        <translation>Die Webkomponente fand in der Seite keinen Inhalt.</translation>
    </message>
    <message>
        <source>The web engine did not read the page in time.</source>
        <translation>Die Webkomponente hat die Seite nicht rechtzeitig gelesen.</translation>
    </message>
    <message>
        <source>The program ended while the web engine read the page.</source>
        <translation>Das Programm endete, während die Webkomponente die Seite las.</translation>
    </message>
</context>
<context>
    <name>ozm::EntryFilter</name>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>Shows only entries whose names contain this text (%1)</source>
        <translation>Zeigt nur Einträge, deren Namen diesen Text enthalten (%1)</translation>
    </message>
</context>
<context>
    <name>ozm::HelperScriptRealm</name>
    <message>
        <source>The values are too large for scripts in a process of their own.</source>
        <translation>Die Werte sind zu groß für Skripte in einem eigenen Prozess.</translation>
    </message>
    <message>
        <source>The process that runs scripts had ended before this script.</source>
        <translation>Der Prozess, der Skripte ausführt, war vor diesem Skript schon beendet.</translation>
    </message>
</context>
<context>
    <name>ozm::OperationLogItemData</name>
    <message>
        <source>The record cannot be read from byte %1 on: %2.</source>
        <translation>Der Eintrag ist ab Byte %1 nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The record has no known operation, subject, attributes or undo context.</source>
        <translation>Der Eintrag nennt keinen bekannten Vorgang, Gegenstand, keine Attribute oder keinen bekannten Zusammenhang.</translation>
    </message>
</context>
<context>
    <name>ozm::PathBar</name>
    <message>
        <source>Folders above</source>
        <translation>Übergeordnete Ordner</translation>
    </message>
    <message>
        <source>Folders further above</source>
        <translation>Weitere übergeordnete Ordner</translation>
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
    <message>
        <source>Highlight files and folders to see what data they hold.</source>
        <translation>Wählen Sie Dateien und Ordner, um zu sehen, welche Daten sie enthalten.</translation>
    </message>
    <message>
        <source>Looking at %1 …</source>
        <translation>%1 wird angesehen …</translation>
    </message>
</context>
<context>
    <name>ozm::ReportBook</name>
    <message>
        <source>&quot;%1&quot; cannot be written. %2</source>
        <translation>„%1“ kann nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>Bookmarks cannot be added to it.</source>
        <translation>Lesezeichen können ihm nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The book has no report.</source>
        <translation>Es gibt keinen Bericht zu schreiben.</translation>
    </message>
</context>
<context>
    <name>ozm::ReportPaper</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>ozm::ReportView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Verkl&amp;einern</translation>
    </message>
    <message>
        <source>&amp;Fit the width</source>
        <translation>An &amp;Breite anpassen</translation>
    </message>
</context>
<context>
    <name>ozm::ScriptHelper</name>
    <message>
        <source>The program &quot;%1&quot;, which runs scripts, cannot be started: %2</source>
        <translation>Das Programm „%1“, das Skripte ausführt, kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The program that runs scripts was not found. It should be here: %1</source>
        <translation>Das Programm, das Skripte ausführt, wurde nicht gefunden. Es müsste hier sein: %1</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot; was started to run scripts, and does not answer.</source>
        <translation>Das Programm „%1“ wurde gestartet, um Skripte auszuführen, und antwortet nicht.</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot;, which runs scripts, is of another version: %2 instead of %3.</source>
        <translation>Das Programm „%1“, das Skripte ausführt, hat eine andere Version: %2 statt %3.</translation>
    </message>
    <message>
        <source>The process that runs scripts has ended. It may take up to %1 MiB of memory.</source>
        <translation>Der Prozess, der Skripte ausführt, hat sich beendet. Er darf bis zu %1 MiB Speicher belegen.</translation>
    </message>
    <message>
        <source>The process that runs scripts has ended.</source>
        <translation>Der Prozess, der Skripte ausführt, hat sich beendet.</translation>
    </message>
</context>
<context>
    <name>ozm::ScriptRealm</name>
    <message>
        <source>The script engine &quot;ozm_scripts&quot; is not installed.</source>
        <translation>Die Skript-Engine „ozm_scripts“ ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>ozm::TemplateDifference</name>
    <message>
        <source>Text added in %2: &quot;%1&quot;</source>
        <translation>Text hinzugefügt in %2: „%1“</translation>
    </message>
    <message>
        <source>Text removed from %2: &quot;%1&quot;</source>
        <translation>Text entfernt aus %2: „%1“</translation>
    </message>
    <message>
        <source>Text changed in %2: &quot;%1&quot; is now &quot;%3&quot;</source>
        <translation>Text geändert in %2: „%1“ ist jetzt „%3“</translation>
    </message>
    <message>
        <source>Added: %2, &quot;%1&quot;</source>
        <translation>Hinzugefügt: %2, „%1“</translation>
    </message>
    <message>
        <source>Removed: %2, &quot;%1&quot;</source>
        <translation>Entfernt: %2, „%1“</translation>
    </message>
    <message>
        <source>Code %1 added in %2</source>
        <translation>Code %1 hinzugefügt in %2</translation>
    </message>
    <message>
        <source>Code %1 removed from %2</source>
        <translation>Code %1 entfernt aus %2</translation>
    </message>
    <message>
        <source>Code %1 replaced by %3 in %2</source>
        <translation>Code %1 ersetzt durch %3 in %2</translation>
    </message>
    <message>
        <source>Script added in %2: %1</source>
        <translation>Skript hinzugefügt in %2: %1</translation>
    </message>
    <message>
        <source>Script removed from %2: %1</source>
        <translation>Skript entfernt aus %2: %1</translation>
    </message>
    <message>
        <source>Script changed in %2: %1 is now %3</source>
        <translation>Skript geändert in %2: %1 ist jetzt %3</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; added in %2</source>
        <translation>Anweisung „%1“ hinzugefügt in %2</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; removed from %2</source>
        <translation>Anweisung „%1“ entfernt aus %2</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; changed to &quot;%3&quot; in %2</source>
        <translation>Anweisung „%1“ geändert in „%3“ in %2</translation>
    </message>
    <message>
        <source>Image added in %2</source>
        <translation>Bild hinzugefügt in %2</translation>
    </message>
    <message>
        <source>Image removed from %2</source>
        <translation>Bild entfernt aus %2</translation>
    </message>
    <message>
        <source>Image replaced in %2</source>
        <translation>Bild ersetzt in %2</translation>
    </message>
    <message>
        <source>Markup added in %2: %1</source>
        <translation>Auszeichnung hinzugefügt in %2: %1</translation>
    </message>
    <message>
        <source>Markup removed from %2: %1</source>
        <translation>Auszeichnung entfernt aus %2: %1</translation>
    </message>
    <message>
        <source>Markup changed in %2: %1 is now %3</source>
        <translation>Auszeichnung geändert in %2: %1 ist jetzt %3</translation>
    </message>
    <message>
        <source>Formatting changed in %2: &quot;%1&quot;</source>
        <translation>Formatierung geändert in %2: „%1“</translation>
    </message>
    <message>
        <source>Only markup that formatted text does not show has changed.</source>
        <translation>Nur Auszeichnung, die formatierter Text nicht zeigt, hat sich geändert.</translation>
    </message>
    <message>
        <source>Settings of &quot;%1&quot; changed in %2</source>
        <translation>Einstellungen von „%1“ geändert in %2</translation>
    </message>
    <message>
        <source>image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>row %1 of table %2</source>
        <translation>Zeile %1 von Tabelle %2</translation>
    </message>
    <message>
        <source>item %1 of list %2</source>
        <translation>Punkt %1 von Liste %2</translation>
    </message>
    <message>
        <source>paragraph %1</source>
        <translation>Absatz %1</translation>
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
    <message>
        <source>This is not a file.</source>
        <translation>Dies ist keine Datei.</translation>
    </message>
    <message>
        <source>The file holds bytes that are not UTF-8 text.</source>
        <translation>Die Datei enthält Bytes, die kein UTF-8-Text sind.</translation>
    </message>
</context>
<context>
    <name>ozm::UndoStack</name>
    <message>
        <source>A new edit cannot be made while another is being undone or redone.</source>
        <translation>Solange eine Änderung rückgängig gemacht oder wiederholt wird, ist keine neue möglich.</translation>
    </message>
</context>
<context>
    <name>ozm::WithheldValue</name>
    <message>
        <source>A value of the type &quot;%1&quot; cannot be used by scripts in a process of their own.</source>
        <translation>Ein Wert vom Typ „%1“ kann von Skripten in einem eigenen Prozess nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::CodeModel</name>
    <message>
        <source>No value is known for the code %1.</source>
        <translation>Für den Code %1 ist kein Wert bekannt.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::CodePanel</name>
    <message>
        <source>Search codes</source>
        <translation>Platzhalter suchen</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Platzhalter</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ColumnDragging</name>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ColumnWidthDialog</name>
    <message>
        <source>As its text needs</source>
        <translation>So breit wie ihr Text</translation>
    </message>
    <message>
        <source>Share of the table in percent</source>
        <translation>Anteil an der Tabelle in Prozent</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>&amp;Measured as:</source>
        <translation>&amp;Gemessen als:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ComparisonDialog</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, Version %2</translation>
    </message>
    <message>
        <source>Differences between templates</source>
        <translation>Unterschiede zwischen Vorlagen</translation>
    </message>
    <message>
        <source>The templates are the same.</source>
        <translation>Die Vorlagen sind gleich.</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n Unterschied</numerusform>
            <numerusform>%n Unterschiede</numerusform>
        </translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Vorher: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ConditionDialog</name>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Zeigen:</translation>
    </message>
    <message>
        <source>&amp;If the code:</source>
        <translation>&amp;Wenn der Platzhalter:</translation>
    </message>
    <message>
        <source>&amp;Test:</source>
        <translation>&amp;Prüfung:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>Wer&amp;t:</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>No value in the preview</source>
        <translation>Kein Wert in der Vorschau</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Wird gezeigt</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>Wird nicht gezeigt</translation>
    </message>
    <message>
        <source>&amp;Otherwise, show another part</source>
        <translation>&amp;Sonst einen anderen Teil zeigen</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ContentsDialog</name>
    <message>
        <source>Table of contents</source>
        <translation>Inhaltsverzeichnis</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>&amp;Levels of headings:</source>
        <translation>&amp;Ebenen der Überschriften:</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Page set&amp;up…</source>
        <translation>Seite ein&amp;richten…</translation>
    </message>
    <message>
        <source>Print pre&amp;view…</source>
        <translation>Druck&amp;vorschau…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Als &amp;PDF speichern…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste as p&amp;lain text</source>
        <translation>Als reinen &amp;Text einfügen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Erset&amp;zen…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Weitersuc&amp;hen</translation>
    </message>
    <message>
        <source>Find pre&amp;vious</source>
        <translation>Rü&amp;ckwärts suchen</translation>
    </message>
    <message>
        <source>&amp;Code from the list…</source>
        <translation>&amp;Platzhalter aus der Liste…</translation>
    </message>
    <message>
        <source>&amp;Script…</source>
        <translation>&amp;Skript…</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>B&amp;ild…</translation>
    </message>
    <message>
        <source>&amp;Link…</source>
        <translation>&amp;Verweis…</translation>
    </message>
    <message>
        <source>&amp;Table…</source>
        <translation>&amp;Tabelle…</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>Stri&amp;ke through</source>
        <translation>&amp;Durchgestrichen</translation>
    </message>
    <message>
        <source>Su&amp;perscript</source>
        <translation>&amp;Hochgestellt</translation>
    </message>
    <message>
        <source>&amp;Subscript</source>
        <translation>&amp;Tiefgestellt</translation>
    </message>
    <message>
        <source>&amp;Colour of the text…</source>
        <translation>F&amp;arbe des Textes…</translation>
    </message>
    <message>
        <source>Colour be&amp;hind the text…</source>
        <translation>Farbe hinter de&amp;m Text…</translation>
    </message>
    <message>
        <source>Cle&amp;ar formats</source>
        <translation>Formate &amp;entfernen</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Heading &amp;1</source>
        <translation>Überschrift &amp;1</translation>
    </message>
    <message>
        <source>Heading &amp;2</source>
        <translation>Überschrift &amp;2</translation>
    </message>
    <message>
        <source>Heading &amp;3</source>
        <translation>Überschrift &amp;3</translation>
    </message>
    <message>
        <source>Align le&amp;ft</source>
        <translation>&amp;Linksbündig</translation>
    </message>
    <message>
        <source>Ce&amp;ntre</source>
        <translation>&amp;Zentriert</translation>
    </message>
    <message>
        <source>Align &amp;right</source>
        <translation>&amp;Rechtsbündig</translation>
    </message>
    <message>
        <source>&amp;Justify</source>
        <translation>&amp;Blocksatz</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>L&amp;iste</translation>
    </message>
    <message>
        <source>Nu&amp;mbered list</source>
        <translation>&amp;Nummerierte Liste</translation>
    </message>
    <message>
        <source>In&amp;dent less</source>
        <translation>Einzug &amp;verkleinern</translation>
    </message>
    <message>
        <source>Ind&amp;ent more</source>
        <translation>Einzug ver&amp;größern</translation>
    </message>
    <message>
        <source>Insert row &amp;above</source>
        <translation>Zeile &amp;darüber einfügen</translation>
    </message>
    <message>
        <source>Insert row &amp;below</source>
        <translation>Zeile d&amp;arunter einfügen</translation>
    </message>
    <message>
        <source>Insert column be&amp;fore</source>
        <translation>Spalte da&amp;vor einfügen</translation>
    </message>
    <message>
        <source>Insert column af&amp;ter</source>
        <translation>Spalte da&amp;nach einfügen</translation>
    </message>
    <message>
        <source>Delete &amp;rows</source>
        <translation>&amp;Zeilen löschen</translation>
    </message>
    <message>
        <source>Delete &amp;columns</source>
        <translation>&amp;Spalten löschen</translation>
    </message>
    <message>
        <source>&amp;Merge cells</source>
        <translation>Zellen ver&amp;binden</translation>
    </message>
    <message>
        <source>&amp;Split cell</source>
        <translation>Zelle &amp;teilen</translation>
    </message>
    <message>
        <source>&amp;Formatted text</source>
        <translation>&amp;Formatierter Text</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Quelltext</translation>
    </message>
    <message>
        <source>&amp;Refresh preview</source>
        <translation>&amp;Vorschau auffrischen</translation>
    </message>
    <message>
        <source>R&amp;un the script</source>
        <translation>Skript &amp;ausführen</translation>
    </message>
    <message>
        <source>Recent &amp;files</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>C&amp;ode</source>
        <translation>Platz&amp;halter</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Edit what is at the cursor</source>
        <translation>Am Cursor b&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Repeat for each row…</source>
        <translation>Für jede Zeile &amp;wiederholen…</translation>
    </message>
    <message>
        <source>Co&amp;ndition…</source>
        <translation>Bedin&amp;gung…</translation>
    </message>
    <message>
        <source>&amp;Format of a code…</source>
        <translation>&amp;Format eines Platzhalters…</translation>
    </message>
    <message>
        <source>Page set-up of the te&amp;mplate…</source>
        <translation>Seiten der Vor&amp;lage…</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Heading on each page</source>
        <translation>Tabellen&amp;kopf auf jeder Seite</translation>
    </message>
    <message>
        <source>Other &amp;part of the section</source>
        <translation>&amp;Anderer Teil des Abschnitts</translation>
    </message>
    <message>
        <source>Column &amp;width…</source>
        <translation>Spaltenb&amp;reite…</translation>
    </message>
    <message>
        <source>Compar&amp;e with saved…</source>
        <translation>Mit g&amp;espeicherter vergleichen…</translation>
    </message>
    <message>
        <source>Compare wi&amp;th…</source>
        <translation>Ver&amp;gleichen mit…</translation>
    </message>
    <message>
        <source>Paragraph st&amp;yle</source>
        <translation>Ab&amp;satzstil</translation>
    </message>
    <message>
        <source>Ta&amp;ble of contents…</source>
        <translation>I&amp;nhaltsverzeichnis…</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorFiles</name>
    <message>
        <source>Templates and pages (*.ozt *.html *.htm *.txt);;All files (*)</source>
        <translation>Vorlagen und Seiten (*.ozt *.html *.htm *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Templates (*.ozt);;Templates as HTML (*.html)</source>
        <translation>Vorlagen (*.ozt);;Vorlagen als HTML (*.html)</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Falsches Format des Vorlageninhalts.</translation>
    </message>
    <message>
        <source>Open template</source>
        <translation>Vorlage öffnen</translation>
    </message>
    <message>
        <source>Page without its reader</source>
        <translation>Seite ohne Leseprogramm</translation>
    </message>
    <message>
        <source>%1

Open all of its text as it stands?</source>
        <translation>%1

Den ganzen Text öffnen, wie er dasteht?</translation>
    </message>
    <message>
        <source>Template not opened</source>
        <translation>Vorlage nicht geöffnet</translation>
    </message>
    <message>
        <source>The body of the page was taken over as a new template.</source>
        <translation>Der Inhalt der Seite wurde als neue Vorlage übernommen.</translation>
    </message>
    <message>
        <source>template.ozt</source>
        <translation>Vorlage.ozt</translation>
    </message>
    <message>
        <source>Save template</source>
        <translation>Vorlage speichern</translation>
    </message>
    <message>
        <source>Template not saved</source>
        <translation>Vorlage nicht gespeichert</translation>
    </message>
    <message>
        <source>The template could not be saved. It is unchanged in the window.</source>
        <translation>Die Vorlage konnte nicht gespeichert werden. Sie steht unverändert im Fenster.</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Gespeichert unter %1</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Replace it by what is in the window?</source>
        <translation>„%1“ wurde von einem anderen Programm geändert. Durch den Inhalt des Fensters ersetzen?</translation>
    </message>
    <message>
        <source>Unsaved template</source>
        <translation>Vorlage nicht gespeichert</translation>
    </message>
    <message>
        <source>The template has changed. Save it first?</source>
        <translation>Die Vorlage wurde geändert. Zuerst speichern?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more. The template is kept in the window.</source>
        <translation>„%1“ ist nicht mehr da. Die Vorlage bleibt im Fenster erhalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Read it again, and lose your own changes?</source>
        <translation>„%1“ wurde von einem anderen Programm geändert. Neu lesen und die eigenen Änderungen verlieren?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Read it again?</source>
        <translation>„%1“ wurde von einem anderen Programm geändert. Neu lesen?</translation>
    </message>
    <message>
        <source>a new template</source>
        <translation>eine neue Vorlage</translation>
    </message>
    <message>
        <source>Rescued template</source>
        <translation>Gerettete Vorlage</translation>
    </message>
    <message>
        <source>The program ended while %1 was not saved. Open what was kept of it at %2?</source>
        <translation>Das Programm endete, während %1 nicht gespeichert war. Den Stand von %2 öffnen?</translation>
    </message>
    <message>
        <source>It takes the place of the template that is open in this window.</source>
        <translation>Sie tritt an die Stelle der Vorlage, die in diesem Fenster offen ist.</translation>
    </message>
    <message>
        <source>Compare with template</source>
        <translation>Mit Vorlage vergleichen</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>dieses Fenster</translation>
    </message>
    <message>
        <source>The template is too large to be compared.</source>
        <translation>Die Vorlage ist zu groß, um verglichen zu werden.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorHistory</name>
    <message>
        <source>Editing</source>
        <translation>Bearbeitung</translation>
    </message>
    <message>
        <source>Change of mode</source>
        <translation>Wechsel der Ansicht</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorInstructions</name>
    <message>
        <source>The cursor is not in a section. Select lines, and give them a condition first.</source>
        <translation>Der Cursor steht in keinem Abschnitt. Wählen Sie Zeilen aus, und geben Sie ihnen zuerst eine Bedingung.</translation>
    </message>
    <message>
        <source>The section has a text for no rows already.</source>
        <translation>Der Abschnitt hat schon einen Text für den Fall, dass es keine Zeilen gibt.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorQuestions</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a template.</source>
        <translation>„%1“ ist zu groß für eine Vorlage.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an image that can be shown.</source>
        <translation>„%1“ ist kein Bild, das gezeigt werden kann.</translation>
    </message>
    <message>
        <source>Insert image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;All files (*)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Image not inserted</source>
        <translation>Bild nicht eingefügt</translation>
    </message>
    <message>
        <source>Insert link</source>
        <translation>Verweis einfügen</translation>
    </message>
    <message>
        <source>As selected</source>
        <translation>Wie ausgewählt</translation>
    </message>
    <message>
        <source>As the address</source>
        <translation>Wie die Adresse</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>PDF not saved</source>
        <translation>PDF nicht gespeichert</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Gespeichert unter %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorScripts</name>
    <message>
        <source>The cursor is not in a script.</source>
        <translation>An der Schreibmarke steht kein Skript.</translation>
    </message>
    <message>
        <source>The script is in the template.</source>
        <translation>Das Skript steht in der Vorlage.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorViews</name>
    <message>
        <source>Formatted template</source>
        <translation>Formatierte Vorlage</translation>
    </message>
    <message>
        <source>Source of the template</source>
        <translation>Quelltext der Vorlage</translation>
    </message>
</context>
<context>
    <name>ozm::editor::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace by</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>&amp;Groß/klein beachten</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>Ganze &amp;Wörter</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Went on from the other end</source>
        <translation>Vom anderen Ende aus fortgesetzt</translation>
    </message>
    <message>
        <source>1 replaced</source>
        <translation>1 ersetzt</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ForeignPage</name>
    <message>
        <source>scripts</source>
        <translation>Skripte</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>loaded objects</source>
        <translation>geladene Objekte</translation>
    </message>
    <message>
        <source>Left out of what was pasted: %1</source>
        <translation>Beim Einfügen weggelassen: %1</translation>
    </message>
    <message>
        <source>images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>links</source>
        <translation>Verweise</translation>
    </message>
    <message>
        <source>films and sounds</source>
        <translation>Filme und Töne</translation>
    </message>
    <message>
        <source>form fields</source>
        <translation>Formularfelder</translation>
    </message>
</context>
<context>
    <name>ozm::editor::FormatDialog</name>
    <message>
        <source>Format of a code</source>
        <translation>Format eines Platzhalters</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Platzhalter:</translation>
    </message>
    <message>
        <source>&amp;Show as:</source>
        <translation>&amp;Zeigen als:</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>Bu&amp;chstaben:</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Wie sie sind</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>GROSS</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>klein</translation>
    </message>
    <message>
        <source>&amp;Digits after the point:</source>
        <translation>Nachkomma&amp;stellen:</translation>
    </message>
    <message>
        <source>As many as there are</source>
        <translation>So viele wie vorhanden</translation>
    </message>
    <message>
        <source>T&amp;housands:</source>
        <translation>&amp;Tausender:</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Ohne Trennung</translation>
    </message>
    <message>
        <source>Thin space</source>
        <translation>Schmales Leerzeichen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Apostroph</translation>
    </message>
    <message>
        <source>Dec&amp;imal sign:</source>
        <translation>&amp;Dezimalzeichen:</translation>
    </message>
    <message>
        <source>&amp;Multiplied by:</source>
        <translation>&amp;Mal:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>&amp;Total:</source>
        <translation>&amp;Gesamtwert:</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>&amp;Über:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>&amp;Width in pixels:</source>
        <translation>&amp;Breite in Pixeln:</translation>
    </message>
    <message>
        <source>That of the image</source>
        <translation>Die des Bilds</translation>
    </message>
    <message>
        <source>&amp;Alternative text:</source>
        <translation>&amp;Ersatztext:</translation>
    </message>
    <message>
        <source>Ma&amp;rkup in it:</source>
        <translation>&amp;HTML darin:</translation>
    </message>
    <message>
        <source>Shown to the letter</source>
        <translation>Wörtlich zeigen</translation>
    </message>
    <message>
        <source>Taken as HTML</source>
        <translation>Als HTML übernehmen</translation>
    </message>
    <message>
        <source>Without a &amp;value:</source>
        <translation>Ohne &amp;Wert:</translation>
    </message>
    <message>
        <source>Reported as missing</source>
        <translation>Als fehlend melden</translation>
    </message>
    <message>
        <source>No value in the preview</source>
        <translation>Kein Wert in der Vorschau</translation>
    </message>
</context>
<context>
    <name>ozm::editor::InstructionDialog</name>
    <message>
        <source>The table &amp;row or list item at the cursor</source>
        <translation>Die &amp;Tabellenzeile oder der Listenpunkt am Cursor</translation>
    </message>
    <message>
        <source>The selected &amp;lines</source>
        <translation>Die ausgewählten &amp;Absätze</translation>
    </message>
    <message>
        <source>The rows of the report</source>
        <translation>Die Zeilen des Berichts</translation>
    </message>
    <message>
        <source>With the data of the preview</source>
        <translation>Mit den Daten der Vorschau</translation>
    </message>
</context>
<context>
    <name>ozm::editor::PageDialog</name>
    <message>
        <source>Page set-up of the template</source>
        <translation>Seiten der Vorlage</translation>
    </message>
    <message>
        <source>As the printer has it</source>
        <translation>Wie der Drucker sie hat</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Ausrichtung:</translation>
    </message>
    <message>
        <source>Margin at the &amp;top:</source>
        <translation>Rand &amp;oben:</translation>
    </message>
    <message>
        <source>Margin at the &amp;right:</source>
        <translation>Rand &amp;rechts:</translation>
    </message>
    <message>
        <source>Margin at the &amp;bottom:</source>
        <translation>Rand &amp;unten:</translation>
    </message>
    <message>
        <source>Margin at the &amp;left:</source>
        <translation>Rand &amp;links:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Header:</source>
        <translation>&amp;Kopfzeile:</translation>
    </message>
    <message>
        <source>Text and codes</source>
        <translation>Text und Platzhalter</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>&amp;Fußzeile:</translation>
    </message>
    <message>
        <source>Text and codes, beside the page number</source>
        <translation>Text und Platzhalter, neben der Seitenzahl</translation>
    </message>
    <message>
        <source>Name of the &amp;document:</source>
        <translation>Name des &amp;Dokuments:</translation>
    </message>
    <message>
        <source>Text and codes, at the foot and in the file</source>
        <translation>Text und Platzhalter, unten und in der Datei</translation>
    </message>
    <message>
        <source>&amp;Version:</source>
        <translation>&amp;Version:</translation>
    </message>
    <message>
        <source>Beside the name of the document</source>
        <translation>Neben dem Namen des Dokuments</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ParagraphStyles</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Table heading</source>
        <translation>Tabellenkopf</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Anmerkung</translation>
    </message>
</context>
<context>
    <name>ozm::editor::PreviewPane</name>
    <message>
        <source>Data of the preview</source>
        <translation>Daten der Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>What could not be filled</source>
        <translation>Was nicht gefüllt werden konnte</translation>
    </message>
    <message>
        <source>&amp;Data:</source>
        <translation>Date&amp;n:</translation>
    </message>
    <message>
        <source>All %1 as a group</source>
        <translation>Alle %1 als Gruppe</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>The template is large: refresh the preview to see it.</source>
        <translation>Die Vorlage ist groß: Frischen Sie die Vorschau auf, um sie zu sehen.</translation>
    </message>
    <message>
        <source>%1 has no value.</source>
        <translation>%1 hat keinen Wert.</translation>
    </message>
    <message>
        <source>A script failed in its line %1: %2</source>
        <translation>Ein Skript ist in seiner Zeile %1 gescheitert: %2</translation>
    </message>
    <message>
        <source>Everything was filled.</source>
        <translation>Alles wurde gefüllt.</translation>
    </message>
    <message>
        <source>1 place could not be filled:</source>
        <translation>1 Stelle konnte nicht gefüllt werden:</translation>
    </message>
    <message>
        <source>%1 places could not be filled:</source>
        <translation>%1 Stellen konnten nicht gefüllt werden:</translation>
    </message>
    <message>
        <source>Go to this place in the template</source>
        <translation>Zu dieser Stelle der Vorlage gehen</translation>
    </message>
    <message>
        <source>%1 came in with the value of %2.</source>
        <translation>%1 kam mit dem Wert von %2 hinein.</translation>
    </message>
    <message>
        <source>%1 came in with the result of a script.</source>
        <translation>%1 kam mit dem Ergebnis eines Skripts hinein.</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl and the wheel)</source>
        <translation>Verkleinern (Strg und Mausrad)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl and the wheel)</source>
        <translation>Vergrößern (Strg und Mausrad)</translation>
    </message>
    <message>
        <source>Zoom of the preview</source>
        <translation>Zoom der Vorschau</translation>
    </message>
    <message>
        <source>&amp;Fit the width</source>
        <translation>An Breite an&amp;passen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom: %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::RepeatDialog</name>
    <message>
        <source>Repeat for each row</source>
        <translation>Für jede Zeile wiederholen</translation>
    </message>
    <message>
        <source>Repeat:</source>
        <translation>Wiederholen:</translation>
    </message>
    <message>
        <source>&amp;For each of:</source>
        <translation>&amp;Für jede von:</translation>
    </message>
    <message>
        <source>&amp;Sorted by:</source>
        <translation>&amp;Sortiert nach:</translation>
    </message>
    <message>
        <source>As they come</source>
        <translation>In ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>The &amp;highest first</source>
        <translation>Die &amp;höchsten zuerst</translation>
    </message>
    <message>
        <source>&amp;Without any:</source>
        <translation>&amp;Ohne Zeilen:</translation>
    </message>
    <message>
        <source>Nothing is shown</source>
        <translation>Nichts wird gezeigt</translation>
    </message>
    <message>
        <source>&amp;Then by:</source>
        <translation>&amp;Dann nach:</translation>
    </message>
    <message>
        <source>The h&amp;ighest first</source>
        <translation>Die hö&amp;chsten zuerst</translation>
    </message>
</context>
<context>
    <name>ozm::editor::RichTextView</name>
    <message>
        <source>Double-click to edit this script.</source>
        <translation>Doppelklick bearbeitet dieses Skript.</translation>
    </message>
    <message>
        <source>Kept as it is; change it in the source.</source>
        <translation>Bleibt, wie es ist; im Quelltext zu ändern.</translation>
    </message>
    <message>
        <source>Double-click to change it.</source>
        <translation>Zum Ändern doppelklicken.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ScriptPane</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>Inser&amp;t</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>templateEditorCore.number(inputParameters[&quot;[Mass]&quot;], 2)</source>
        <translation>templateEditorCore.number(inputParameters[&quot;[Mass]&quot;], 2)</translation>
    </message>
    <message>
        <source>Error of the script</source>
        <translation>Fehler des Skripts</translation>
    </message>
    <message>
        <source>Result of the script</source>
        <translation>Ergebnis des Skripts</translation>
    </message>
    <message>
        <source>What the script gives</source>
        <translation>Was das Skript ergibt</translation>
    </message>
    <message>
        <source>Run the script with the data of the preview</source>
        <translation>Das Skript mit den Daten der Vorschau ausführen</translation>
    </message>
    <message>
        <source>Begin a new script</source>
        <translation>Ein neues Skript beginnen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Insert the script at the cursor</source>
        <translation>Das Skript an der Schreibmarke einfügen</translation>
    </message>
    <message>
        <source>Put the script back where it stands</source>
        <translation>Das Skript dorthin zurücklegen, wo es steht</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Ran without an error.</source>
        <translation>Ohne Fehler ausgeführt.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::TableEditing</name>
    <message>
        <source>Insert table</source>
        <translation>Tabelle einfügen</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Zeilen:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>The first row is the &amp;heading, on each page</source>
        <translation>Die erste Zeile ist der Tabellen&amp;kopf, auf jeder Seite</translation>
    </message>
    <message numerus="yes">
        <source>Width of %n column(s)</source>
        <translation>
            <numerusform>Breite von %n Spalte</numerusform>
            <numerusform>Breite von %n Spalten</numerusform>
        </translation>
    </message>
    <message>
        <source>Width of column %1</source>
        <translation>Breite der Spalte %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::TextFormatting</name>
    <message>
        <source>Kind of paragraph</source>
        <translation>Art des Absatzes</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Heading %1</source>
        <translation>Überschrift %1</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation>Größe in Punkt</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Farbe des Textes</translation>
    </message>
    <message>
        <source>Colour behind the text</source>
        <translation>Farbe hinter dem Text</translation>
    </message>
</context>
<context>
    <name>ozm::instructions</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>has a value</source>
        <translation>hat einen Wert</translation>
    </message>
    <message>
        <source>has no value</source>
        <translation>hat keinen Wert</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>ist gleich</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>ist nicht gleich</translation>
    </message>
    <message>
        <source>is above</source>
        <translation>ist größer als</translation>
    </message>
    <message>
        <source>is below</source>
        <translation>ist kleiner als</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>smallest</source>
        <translation>kleinster Wert</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>größter Wert</translation>
    </message>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>The comment does not end.</source>
        <translation>Der Kommentar endet nicht.</translation>
    </message>
    <message>
        <source>The instruction &quot;%1&quot; does not exist.</source>
        <translation>Es gibt keine Anweisung „%1“.</translation>
    </message>
    <message>
        <source>A format is for one code.</source>
        <translation>Ein Format gilt für einen Platzhalter.</translation>
    </message>
    <message>
        <source>For each row</source>
        <translation>Für jede Zeile</translation>
    </message>
    <message>
        <source>For each of %1</source>
        <translation>Für jede von %1</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, nach %1</translation>
    </message>
    <message>
        <source>If %1 %2 %3</source>
        <translation>Wenn %1 %2 %3</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>%1 as text</source>
        <translation>%1 als Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an attribute.</source>
        <translation>„%1“ ist kein Attribut.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>Das Attribut „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is not known here.</source>
        <translation>Das Attribut „%1“ ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; cannot be &quot;%2&quot;.</source>
        <translation>Das Attribut „%1“ kann nicht „%2“ sein.</translation>
    </message>
    <message>
        <source>The section has no end.</source>
        <translation>Der Abschnitt hat kein Ende.</translation>
    </message>
    <message>
        <source>No section ends here.</source>
        <translation>Es gibt keinen Abschnitt, der hier endet.</translation>
    </message>
    <message>
        <source>The section ends in another element than it begins in.</source>
        <translation>Der Abschnitt endet in einem anderen Element, als er beginnt.</translation>
    </message>
    <message>
        <source>This is neither in a table row nor in a list item.</source>
        <translation>Darum steht keine Tabellenzeile und kein Listenpunkt.</translation>
    </message>
    <message>
        <source>This row repeats already.</source>
        <translation>Diese Zeile wird schon wiederholt.</translation>
    </message>
    <message>
        <source>The section crosses another one.</source>
        <translation>Der Abschnitt überschneidet einen anderen.</translation>
    </message>
    <message>
        <source>There are too many sections within one another.</source>
        <translation>Es sind zu viele Abschnitte ineinander.</translation>
    </message>
    <message>
        <source>The list of rows &quot;%1&quot; does not exist.</source>
        <translation>Es gibt keine Zeilenliste „%1“.</translation>
    </message>
    <message>
        <source>The part becomes too long.</source>
        <translation>Der Teil wird zu lang.</translation>
    </message>
    <message>
        <source>Page set-up</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Page set-up, %1</source>
        <translation>Seite, %1</translation>
    </message>
    <message>
        <source>The pages are set up already.</source>
        <translation>Die Seiten sind schon eingerichtet.</translation>
    </message>
    <message>
        <source>Else</source>
        <translation>Sonst</translation>
    </message>
    <message>
        <source>No section has another part here.</source>
        <translation>Es gibt hier keinen Abschnitt, der einen anderen Teil hat.</translation>
    </message>
    <message>
        <source>The section has another part already.</source>
        <translation>Der Abschnitt hat schon einen anderen Teil.</translation>
    </message>
    <message>
        <source>The other part begins in another element than the section.</source>
        <translation>Der andere Teil beginnt in einem anderen Element als der Abschnitt.</translation>
    </message>
    <message>
        <source>The section has a text for no rows already.</source>
        <translation>Der Abschnitt hat schon einen Text für den Fall ohne Zeilen.</translation>
    </message>
    <message>
        <source>The section cannot be followed for its other part.</source>
        <translation>Der Abschnitt kann wegen seines anderen Teils nicht befolgt werden.</translation>
    </message>
    <message>
        <source>Table of contents</source>
        <translation>Inhaltsverzeichnis</translation>
    </message>
</context>
<context>
    <name>ozm::msreader::FolderSearch</name>
    <message>
        <source>The search path is a file, not a folder: %1</source>
        <translation>Der Suchpfad ist eine Datei, kein Ordner: %1</translation>
    </message>
    <message>
        <source>Search path does not exist</source>
        <translation>Der Suchpfad existiert nicht</translation>
    </message>
    <message>
        <source>The search path cannot be read: %1</source>
        <translation>Der Suchpfad kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>ozm::msreader::RefusalReason</name>
    <message>
        <source>The folder holds neither an &quot;AcqData&quot; folder (Agilent) nor &quot;fid&quot; files or a complete set of &quot;analysis&quot; files (Bruker).</source>
        <translation>Der Ordner enthält weder einen Ordner „AcqData“ (Agilent) noch „fid“-Dateien oder einen vollständigen Satz „analysis“-Dateien (Bruker).</translation>
    </message>
    <message>
        <source>The folder holds no &quot;_FUNC001.DAT&quot; file (Waters).</source>
        <translation>Der Ordner enthält keine Datei „_FUNC001.DAT“ (Waters).</translation>
    </message>
    <message>
        <source>The &quot;.wiff.scan&quot; file that belongs to it is missing.</source>
        <translation>Die zugehörige Datei „.wiff.scan“ fehlt.</translation>
    </message>
    <message>
        <source>It changed while it was looked at.</source>
        <translation>Der Inhalt hat sich währenddessen geändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would have to be called &quot;%2&quot;: here, capital and small letters count.</source>
        <translation>„%1“ müsste „%2“ heißen: Hier zählen Groß- und Kleinbuchstaben.</translation>
    </message>
    <message>
        <source>The folder holds &quot;%1&quot;, but not &quot;%2&quot;, which belongs to it (Bruker).</source>
        <translation>Der Ordner enthält „%1“, aber nicht das zugehörige „%2“ (Bruker).</translation>
    </message>
    <message>
        <source>Data with this name (%1) is a file, but this is a folder.</source>
        <translation>Daten mit diesem Namen (%1) sind eine Datei, dies ist aber ein Ordner.</translation>
    </message>
    <message>
        <source>Data with this name (%1) is a folder, but this is a file.</source>
        <translation>Daten mit diesem Namen (%1) sind ein Ordner, dies ist aber eine Datei.</translation>
    </message>
    <message>
        <source>A folder above it does not allow access.</source>
        <translation>Ein übergeordneter Ordner erlaubt keinen Zugriff.</translation>
    </message>
    <message>
        <source>The path is too long for this system.</source>
        <translation>Der Pfad ist zu lang für dieses System.</translation>
    </message>
    <message>
        <source>The link leads back to itself.</source>
        <translation>Die Verknüpfung führt zu sich selbst zurück.</translation>
    </message>
    <message>
        <source>Too many files are open. Close some windows and try again.</source>
        <translation>Es sind zu viele Dateien geöffnet. Schließen Sie einige Fenster und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disk or the share does not answer.</source>
        <translation>Der Datenträger oder die Freigabe antwortet nicht.</translation>
    </message>
    <message>
        <source>The link leads to nothing.</source>
        <translation>Die Verknüpfung führt ins Leere.</translation>
    </message>
    <message>
        <source>No such file or folder.</source>
        <translation>Eine solche Datei oder einen solchen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder.</source>
        <translation>Dies ist weder eine Datei noch ein Ordner.</translation>
    </message>
    <message>
        <source>The name has none of the extensions of mass-spectrometry data.</source>
        <translation>Der Name hat keine der Endungen von Massenspektrometrie-Daten.</translation>
    </message>
    <message>
        <source>The folder does not exist any more.</source>
        <translation>Der Ordner ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The folder cannot be read. Access is not allowed.</source>
        <translation>Der Ordner kann nicht gelesen werden. Der Zugriff ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>The folder cannot be read. The disk or the share does not answer.</source>
        <translation>Der Ordner kann nicht gelesen werden. Der Datenträger oder die Freigabe antwortet nicht.</translation>
    </message>
    <message>
        <source>The name is not valid text. Rename it to use the data.</source>
        <translation>Der Name ist kein gültiger Text. Benennen Sie den Eintrag um, damit die Daten verwendet werden können.</translation>
    </message>
</context>
</TS>

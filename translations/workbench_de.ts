<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AddSampleCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
</context>
<context>
    <name>AuditTrailCsv</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>AuditTrailJson</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>the quote that begins here is never closed.</source>
        <translation>das Anführungszeichen, das hier beginnt, wird nie geschlossen.</translation>
    </message>
    <message>
        <source>there is text after a closing quote.</source>
        <translation>nach einem schließenden Anführungszeichen steht Text.</translation>
    </message>
    <message>
        <source>the text is not UTF-8.</source>
        <translation>der Text ist nicht UTF-8.</translation>
    </message>
</context>
<context>
    <name>DataSamples</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>DeleteSampleCommand</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>FirstStepsData</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>SampleCommand</name>
    <message>
        <source>The sample was removed from the table.</source>
        <translation>Die Probe ist nicht mehr in der Tabelle.</translation>
    </message>
</context>
<context>
    <name>SampleRules</name>
    <message>
        <source>The name must not be empty.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The sequence may hold letters only, not &quot;%1&quot;.</source>
        <translation>Die Sequenz darf nur aus Buchstaben bestehen, nicht „%1“.</translation>
    </message>
    <message>
        <source>The charge must be a whole number from 1 to 200, or empty, not &quot;%1&quot;.</source>
        <translation>Die Ladung muss eine ganze Zahl von 1 bis 200 sein oder leer, nicht „%1“.</translation>
    </message>
    <message>
        <source>The mass must be a positive number, not &quot;%1&quot;.</source>
        <translation>Die Masse muss eine positive Zahl sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>The kind must be &quot;file&quot;, &quot;folder&quot; or empty, not &quot;%1&quot;.</source>
        <translation>Die Art muss „file“, „folder“ oder leer sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>The size must be a number of bytes, or empty, not &quot;%1&quot;.</source>
        <translation>Die Größe muss eine Anzahl von Bytes sein oder leer, nicht „%1“.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; does not exist.</source>
        <translation>Eine Spalte „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>A sample with data needs its &quot;%1&quot;.</source>
        <translation>Eine Probe mit Daten braucht „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is for samples with a data format only.</source>
        <translation>„%1“ ist nur für Proben mit einem Datenformat.</translation>
    </message>
</context>
<context>
    <name>SetCellCommand</name>
    <message>
        <source>Set %1 of %2</source>
        <translation>%1 von %2 setzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what was found on the disk, and cannot be typed.</source>
        <translation>„%1“ wurde auf dem Datenträger gefunden und kann nicht eingegeben werden.</translation>
    </message>
</context>
<context>
    <name>TrailStore</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Work on &lt;input&gt;, a CSV file, MS data or a folder of MS data, without a user, then end.</source>
        <translation>&lt;input&gt;, eine CSV-Datei, MS-Daten oder einen Ordner mit MS-Daten, ohne Benutzer bearbeiten, dann enden.</translation>
    </message>
    <message>
        <source>Folder for a batch run&apos;s results.</source>
        <translation>Ordner für die Ergebnisse eines Stapellaufs.</translation>
    </message>
    <message>
        <source>Name to record; by default that of the login.</source>
        <translation>Aufzuzeichnender Name; sonst der der Anmeldung.</translation>
    </message>
    <message>
        <source>--steps needs a number.</source>
        <translation>--steps braucht eine Zahl.</translation>
    </message>
    <message>
        <source>--batch needs --out, the folder for its results.</source>
        <translation>--batch braucht --out, den Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Werkbank</translation>
    </message>
    <message>
        <source>Edits samples and their annotations, every step recorded.</source>
        <translation>Bearbeitet Proben und ihre Annotationen; jeder Schritt wird aufgezeichnet.</translation>
    </message>
    <message>
        <source>CSV file of samples to open.</source>
        <translation>CSV-Datei mit Proben, die geöffnet werden soll.</translation>
    </message>
    <message>
        <source>File that holds the audit trail, or its address.</source>
        <translation>Datei mit dem Audit-Trail, oder seine Adresse.</translation>
    </message>
    <message>
        <source>Leave pictures of the windows, on sample data, in &lt;folder&gt;, then end.</source>
        <translation>Bilder der Fenster mit Beispieldaten in &lt;folder&gt; ablegen, dann enden.</translation>
    </message>
    <message>
        <source>Begin with the first steps, on sample data.</source>
        <translation>Mit den ersten Schritten beginnen, mit Beispieldaten.</translation>
    </message>
    <message>
        <source>A batch run&apos;s report on each sample: all in &quot;one&quot; file certificates.pdf, or a file for &quot;each&quot; in a folder certificates.</source>
        <translation>Berichte eines Stapellaufs über jede Probe: alle in einer Datei certificates.pdf („one“) oder je eine Datei im Ordner certificates („each“).</translation>
    </message>
    <message>
        <source>Template for --reports; by default the sample certificate.</source>
        <translation>Vorlage für --reports; sonst das Probenzertifikat.</translation>
    </message>
    <message>
        <source>--reports needs &quot;one&quot; or &quot;each&quot;.</source>
        <translation>--reports braucht „one“ oder „each“.</translation>
    </message>
</context>
<context>
    <name>ozm</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Made by the workbench</source>
        <translation>Von der Werkbank erstellt</translation>
    </message>
</context>
<context>
    <name>workbench</name>
    <message>
        <source>recorded %1: </source>
        <translation>aufgezeichnet %1: </translation>
    </message>
    <message>
        <source> - refused: </source>
        <translation> - abgelehnt: </translation>
    </message>
    <message>
        <source>size unknown</source>
        <translation>Größe unbekannt</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>found %1: %2 (%3), %4, %5</source>
        <translation>gefunden %1: %2 (%3), %4, %5</translation>
    </message>
    <message>
        <source>passed over %1: %2</source>
        <translation>übergangen %1: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to. Choose another with --out.</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden. Wählen Sie mit --out einen anderen.</translation>
    </message>
    <message>
        <source>%1 has no value.</source>
        <translation>%1 hat keinen Wert.</translation>
    </message>
    <message>
        <source>A script failed in its line %1: %2</source>
        <translation>Ein Skript schlug in seiner Zeile %1 fehl: %2</translation>
    </message>
    <message>
        <source>Sample certificate</source>
        <translation>Probenzertifikat</translation>
    </message>
    <message>
        <source>Sample list</source>
        <translation>Probenliste</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 came in with a value.</source>
        <translation>%1 kam mit einem Wert hinein.</translation>
    </message>
    <message>
        <source>%1 cannot be followed. %2</source>
        <translation>%1 kann nicht befolgt werden. %2</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>Batch summary</source>
        <translation>Serienübersicht</translation>
    </message>
    <message>
        <source>Sequence coverage</source>
        <translation>Sequenzabdeckung</translation>
    </message>
</context>
<context>
    <name>workbench::AddSampleDialog</name>
    <message>
        <source>Add sample</source>
        <translation>Probe hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>workbench::AuditTrail</name>
    <message>
        <source>Unknown record, kept as stored: %1</source>
        <translation>Unbekannter Eintrag, behalten wie gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>workbench::DataFinder</name>
    <message>
        <source>&quot;%1&quot; was passed over: %2</source>
        <translation>„%1“ wurde übergangen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
</context>
<context>
    <name>workbench::DataImport</name>
    <message>
        <source>&quot;%1&quot;: It is not on a disk of this computer.</source>
        <translation>„%1“: Es liegt nicht auf einem Datenträger dieses Rechners.</translation>
    </message>
    <message>
        <source>Nothing was added, because a search for data is running.</source>
        <translation>Nichts wurde hinzugefügt, weil gerade nach Daten gesucht wird.</translation>
    </message>
    <message>
        <source>The search was canceled; nothing was added.</source>
        <translation>Die Suche wurde abgebrochen; nichts wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>Nichts wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>1 sample with data was added</source>
        <translation>1 Probe mit Daten wurde hinzugefügt</translation>
    </message>
    <message>
        <source>%1 samples with data were added</source>
        <translation>%1 Proben mit Daten wurden hinzugefügt</translation>
    </message>
    <message>
        <source>, %1 are in the table already</source>
        <translation>, %1 sind schon in der Tabelle</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
</context>
<context>
    <name>workbench::DataProgress</name>
    <message>
        <source>Search for data is running</source>
        <translation>Nach Daten wird gesucht</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>End the search; nothing is added</source>
        <translation>Die Suche beenden; nichts wird hinzugefügt</translation>
    </message>
    <message>
        <source>Looking for data: %1 searched, %2 found</source>
        <translation>Suche nach Daten: %1 durchsucht, %2 gefunden</translation>
    </message>
</context>
<context>
    <name>workbench::DemonstrationAuthenticator</name>
    <message>
        <source>User id or password is wrong.</source>
        <translation>Benutzerkennung oder Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>The demonstration&apos;s signers cannot be read from &quot;%1&quot;: %2</source>
        <translation>Die Unterzeichner der Vorführung können nicht aus „%1“ gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>workbench::FirstStepsPage</name>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>The samples, the data and the audit trail of this window are made up, and go when the program ends. Nothing of yours is touched.</source>
        <translation>Die Proben, die Daten und der Audit-Trail dieses Fensters sind erfunden und verschwinden mit dem Ende des Programms. Von Ihren eigenen wird nichts angetastet.</translation>
    </message>
    <message>
        <source>Begin with own samples</source>
        <translation>Mit eigenen Proben beginnen</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>In code: %1</source>
        <translation>Im Code: %1</translation>
    </message>
    <message>
        <source>%1 - tried</source>
        <translation>%1 - ausprobiert</translation>
    </message>
</context>
<context>
    <name>workbench::FirstStepsSession</name>
    <message>
        <source>Undo, and a trail of it</source>
        <translation>Rückgängig machen, mit Audit-Trail</translation>
    </message>
    <message>
        <source>Each step is in the audit trail before it is made: edits, several in one, undo, and what was refused.</source>
        <translation>Jeder Schritt steht im Audit-Trail, bevor er ausgeführt wird: Änderungen, mehrere in einer, das Rückgängigmachen und was abgelehnt wurde.</translation>
    </message>
    <message>
        <source>Undo a step</source>
        <translation>Einen Schritt rückgängig machen</translation>
    </message>
    <message>
        <source>Data of instruments</source>
        <translation>Daten von Geräten</translation>
    </message>
    <message>
        <source>Files and folders of many vendors are told apart in a handful of system calls, on a thread of their own.</source>
        <translation>Dateien und Ordner vieler Hersteller werden mit wenigen Systemaufrufen unterschieden, in einem eigenen Thread.</translation>
    </message>
    <message>
        <source>Find the data in a folder</source>
        <translation>Die Daten eines Ordners suchen</translation>
    </message>
    <message>
        <source>Files and dialogs</source>
        <translation>Dateien und Dialoge</translation>
    </message>
    <message>
        <source>One dialog picks data files and raw folders together, and says beforehand what each holds.</source>
        <translation>Ein Dialog wählt Datendateien und Rohdatenordner zusammen und sagt vorher, was sie enthalten.</translation>
    </message>
    <message>
        <source>Choose data…</source>
        <translation>Daten wählen …</translation>
    </message>
    <message>
        <source>Messages from any thread</source>
        <translation>Meldungen aus jedem Thread</translation>
    </message>
    <message>
        <source>A thread that has a question asks it in one line, and waits for the answer.</source>
        <translation>Ein Thread, der eine Frage hat, stellt sie in einer Zeile und wartet auf die Antwort.</translation>
    </message>
    <message>
        <source>Ask from another thread</source>
        <translation>Aus einem anderen Thread fragen</translation>
    </message>
    <message>
        <source>Reports from templates</source>
        <translation>Berichte aus Vorlagen</translation>
    </message>
    <message>
        <source>Texts with codes such as [Name] and pieces of JavaScript, filled with the chosen samples. &quot;Edit report template…&quot; opens the editor for them.</source>
        <translation>Texte mit Platzhaltern wie [Name] und Stücken von JavaScript, gefüllt mit den gewählten Proben. „Berichtsvorlage bearbeiten…“ öffnet den Editor dafür.</translation>
    </message>
    <message>
        <source>Preview a report</source>
        <translation>Einen Bericht ansehen</translation>
    </message>
    <message>
        <source>A folder for the sample data could not be made: %1</source>
        <translation>Ein Ordner für die Beispieldaten ließ sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>CDR-H2, isomers of Asp seen</source>
        <translation>CDR-H2, Asp-Isomere gesehen</translation>
    </message>
    <message>
        <source>* (week 0)</source>
        <translation>* (Woche 0)</translation>
    </message>
    <message>
        <source>Co-elutes with HC-T23</source>
        <translation>Koeluiert mit HC-T23</translation>
    </message>
    <message>
        <source>First steps[*] - Workbench</source>
        <translation>Erste Schritte[*] - Werkbank</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Redone: %1. The last entry of the trail says so.</source>
        <translation>Wiederholt: %1. Der letzte Eintrag des Audit-Trails sagt es.</translation>
    </message>
    <message>
        <source>Undone: %1. The last entry of the trail says so.</source>
        <translation>Rückgängig gemacht: %1. Der letzte Eintrag des Audit-Trails sagt es.</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>Nichts wurde gewählt.</translation>
    </message>
    <message>
        <source>Another thread asks</source>
        <translation>Ein anderer Thread fragt</translation>
    </message>
    <message>
        <source>Shall the measurement go on?</source>
        <translation>Soll die Messung weitergehen?</translation>
    </message>
    <message>
        <source>The thread was told to go on.</source>
        <translation>Der Thread soll weitermachen.</translation>
    </message>
    <message>
        <source>The thread was told to stop.</source>
        <translation>Der Thread soll anhalten.</translation>
    </message>
    <message>
        <source>It can be saved as PDF and as HTML.</source>
        <translation>Er kann als PDF und als HTML gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryModel</name>
    <message>
        <source>No edits yet</source>
        <translation>Noch keine Änderungen</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>Wie geöffnet</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryView</name>
    <message>
        <source>History of edits</source>
        <translation>Verlauf der Änderungen</translation>
    </message>
    <message>
        <source>Double-click a state to go there</source>
        <translation>Doppelklick auf einen Stand führt dorthin</translation>
    </message>
</context>
<context>
    <name>workbench::MainActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Samples</source>
        <translation>&amp;Proben</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Edit report template…</source>
        <translation>Berichtsvorlage bearbeiten…</translation>
    </message>
    <message>
        <source>Write the template of a report, with the chosen samples as its preview</source>
        <translation>Die Vorlage eines Berichts schreiben, mit den gewählten Proben als Vorschau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open samples from a CSV file</source>
        <translation>Proben aus einer CSV-Datei öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the samples to a CSV file</source>
        <translation>Die Proben in eine CSV-Datei speichern</translation>
    </message>
    <message>
        <source>Find MS data…</source>
        <translation>MS-Daten suchen …</translation>
    </message>
    <message>
        <source>Find the mass-spectrometry data in a folder, and add it as samples</source>
        <translation>Die Massenspektrometrie-Daten eines Ordners suchen und als Proben hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a sample</source>
        <translation>Eine Probe hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the chosen samples</source>
        <translation>Die gewählten Proben löschen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Rename the chosen samples in one step</source>
        <translation>Die gewählten Proben in einem Schritt umbenennen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Export trail</source>
        <translation>Trail exportieren</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Look at icons and messages, in light and dark</source>
        <translation>Symbole und Meldungen ansehen, hell und dunkel</translation>
    </message>
    <message>
        <source>Edit samples</source>
        <translation>Proben bearbeiten</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Nichts zu wiederholen</translation>
    </message>
    <message>
        <source>Open MS data…</source>
        <translation>MS-Daten öffnen …</translation>
    </message>
    <message>
        <source>Choose mass-spectrometry data, files and folders, and add it as samples</source>
        <translation>Massenspektrometrie-Daten, Dateien und Ordner, wählen und als Proben hinzufügen</translation>
    </message>
    <message>
        <source>List MS data…</source>
        <translation>MS-Daten auflisten …</translation>
    </message>
    <message>
        <source>Save a CSV file that lists the mass-spectrometry data in a folder</source>
        <translation>Eine CSV-Datei speichern, die die Massenspektrometrie-Daten eines Ordners auflistet</translation>
    </message>
    <message>
        <source>Export the audit trail as JSON or CSV</source>
        <translation>Den Audit-Trail als JSON oder CSV exportieren</translation>
    </message>
    <message>
        <source>Report…</source>
        <translation>Bericht …</translation>
    </message>
    <message>
        <source>Make a report on the chosen samples, or on all when none is chosen</source>
        <translation>Einen Bericht über die gewählten Proben erstellen, oder über alle, wenn keine gewählt ist</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Open a window on made-up samples that leads through what can be done</source>
        <translation>Ein Fenster mit erfundenen Proben öffnen, das durch die Möglichkeiten führt</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>No samples yet.

Open a CSV file, find MS data, drop data here, or add a sample.</source>
        <translation>Noch keine Proben.

Öffnen Sie eine CSV-Datei, suchen Sie MS-Daten, legen Sie Daten hier ab oder fügen Sie eine Probe hinzu.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Audit trail</source>
        <translation>Audit-Trail</translation>
    </message>
    <message>
        <source>Recorded in %1</source>
        <translation>Aufgezeichnet in %1</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Gespeichert in %1</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>Rename samples</source>
        <translation>Proben umbenennen</translation>
    </message>
    <message>
        <source>New name of the %1 chosen samples.
* stands for the old name, # for a number.</source>
        <translation>Neuer Name der %1 gewählten Proben.
* steht für den alten Namen, # für eine Zahl.</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nicht ausgeführt</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>Bitte beachten</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>1 Probe</translation>
    </message>
    <message>
        <source>%1 samples</source>
        <translation>%1 Proben</translation>
    </message>
    <message>
        <source>Workbench[*]</source>
        <translation>Werkbank[*]</translation>
    </message>
    <message>
        <source>%1[*] - Workbench</source>
        <translation>%1[*] - Werkbank</translation>
    </message>
    <message>
        <source>Unsaved samples</source>
        <translation>Nicht gespeicherte Proben</translation>
    </message>
    <message>
        <source>The samples have changed. Save them first?</source>
        <translation>Die Proben wurden geändert. Zuerst speichern?</translation>
    </message>
    <message>
        <source>the open table</source>
        <translation>die geöffnete Tabelle</translation>
    </message>
    <message>
        <source>The table has no sample &quot;%1&quot; now.</source>
        <translation>In der Tabelle gibt es jetzt keine Probe „%1“.</translation>
    </message>
</context>
<context>
    <name>workbench::ReportDialog</name>
    <message>
        <source>&amp;One by one</source>
        <translation>&amp;Einzeln</translation>
    </message>
    <message>
        <source>As a &amp;group</source>
        <translation>Als &amp;Gruppe</translation>
    </message>
    <message>
        <source>Report on 1 sample</source>
        <translation>Bericht über 1 Probe</translation>
    </message>
    <message>
        <source>Report on %1 samples</source>
        <translation>Bericht über %1 Proben</translation>
    </message>
    <message>
        <source>&amp;Template:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Gespeichert in %1</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translation>&amp;Andere …</translation>
    </message>
    <message>
        <source>Takes a template that was saved in the template editor</source>
        <translation>Nimmt eine Vorlage, die im Vorlageneditor gespeichert wurde</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>A &amp;file for each</source>
        <translation>Je eine &amp;Datei</translation>
    </message>
    <message>
        <source>Report %1 of %2: %3</source>
        <translation>Bericht %1 von %2: %3</translation>
    </message>
    <message>
        <source>Canceled. Nothing was saved.</source>
        <translation>Abgebrochen. Nichts wurde gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the files are in this folder already. Replace them?</source>
        <translation>
            <numerusform>%n der Dateien ist schon in diesem Ordner. Ersetzen?</numerusform>
            <numerusform>%n der Dateien sind schon in diesem Ordner. Ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) saved to %1</source>
        <translation>
            <numerusform>%n Datei in %1 gespeichert</numerusform>
            <numerusform>%n Dateien in %1 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>&amp;Bericht:</translation>
    </message>
    <message>
        <source>The first %1 of %2 reports were looked through for what is missing.</source>
        <translation>Die ersten %1 von %2 Berichten wurden auf Fehlendes durchgesehen.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>workbench::ReportFiller</name>
    <message>
        <source>All samples</source>
        <translation>Alle Proben</translation>
    </message>
</context>
<context>
    <name>workbench::ReportSeries</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to.</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>workbench::Run</name>
    <message>
        <source>&quot;%1&quot; holds no samples.</source>
        <translation>„%1“ enthält keine Proben.</translation>
    </message>
    <message>
        <source>Checked by the batch run</source>
        <translation>Vom Stapellauf geprüft</translation>
    </message>
    <message>
        <source>Charge checked against the isotope pattern</source>
        <translation>Ladung am Isotopenmuster geprüft</translation>
    </message>
    <message>
        <source>Batch control</source>
        <translation>Stapelkontrolle</translation>
    </message>
    <message>
        <source>Batch control %1</source>
        <translation>Stapelkontrolle %1</translation>
    </message>
    <message>
        <source>Added by the batch run</source>
        <translation>Vom Stapellauf hinzugefügt</translation>
    </message>
    <message>
        <source>* (checked)</source>
        <translation>* (geprüft)</translation>
    </message>
    <message>
        <source>An invalid charge was taken.</source>
        <translation>Eine ungültige Ladung wurde angenommen.</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Schritt %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>report: </source>
        <translation>Bericht: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as data. %2</source>
        <translation>„%1“ kann nicht als Messdaten verwendet werden. %2</translation>
    </message>
    <message>
        <source>report %1 of %2: %3</source>
        <translation>Bericht %1 von %2: %3</translation>
    </message>
    <message>
        <source>reports: %1 file(s) written</source>
        <translation>Berichte: %1 Datei(en) geschrieben</translation>
    </message>
    <message>
        <source>The reports were interrupted.</source>
        <translation>Die Berichte wurden unterbrochen.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleDetails</name>
    <message>
        <source>Details of the sample</source>
        <translation>Einzelheiten der Probe</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>workbench::SampleEditor</name>
    <message>
        <source>Add data of 1 sample</source>
        <translation>Daten von 1 Probe hinzufügen</translation>
    </message>
    <message>
        <source>Add data of %1 samples</source>
        <translation>Daten von %1 Proben hinzufügen</translation>
    </message>
    <message>
        <source>Delete %1 samples</source>
        <translation>%1 Proben löschen</translation>
    </message>
    <message>
        <source>Rename to %1</source>
        <translation>In %1 umbenennen</translation>
    </message>
    <message>
        <source>The step is recorded, but could not be marked as finished yet.</source>
        <translation>Der Schritt ist aufgezeichnet, konnte aber noch nicht als beendet markiert werden.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleTable</name>
    <message>
        <source>Another sample is called &quot;%1&quot; already; names must be unique.</source>
        <translation>Eine andere Probe heißt schon „%1“; Namen müssen eindeutig sein.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleTableModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name given by the user</source>
        <translation>Vom Benutzer vergebener Name</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>Amino acids in one-letter code</source>
        <translation>Aminosäuren im Einbuchstabencode</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladung</translation>
    </message>
    <message>
        <source>Charge state</source>
        <translation>Ladungszustand</translation>
    </message>
    <message>
        <source>Mass (Da)</source>
        <translation>Masse (Da)</translation>
    </message>
    <message>
        <source>Neutral monoisotopic mass in dalton</source>
        <translation>Neutrale monoisotopische Masse in Dalton</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Free remark</source>
        <translation>Freie Bemerkung</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format of the data, as projects name it</source>
        <translation>Format der Daten, wie Projekte es nennen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>What the format is called</source>
        <translation>Wie das Format heißt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Whether the data is a file or a folder</source>
        <translation>Ob die Daten eine Datei oder ein Ordner sind</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>What the data takes on the disk</source>
        <translation>Was die Daten auf dem Datenträger belegen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Where the data is</source>
        <translation>Wo die Daten sind</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
</context>
<context>
    <name>workbench::SampleTableView</name>
    <message>
        <source>Samples</source>
        <translation>Proben</translation>
    </message>
</context>
<context>
    <name>workbench::StyleDialog</name>
    <message>
        <source>Run not saved</source>
        <translation>Lauf nicht gespeichert</translation>
    </message>
    <message>
        <source>The run could not be saved. Nothing was changed.</source>
        <translation>Der Lauf konnte nicht gespeichert werden. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>The disk has 12 MB left; the run needs 1.4 GB.</source>
        <translation>Auf dem Datenträger sind noch 12 MB frei; der Lauf braucht 1,4 GB.</translation>
    </message>
    <message>
        <source>&lt;b&gt;3 samples&lt;/b&gt; have no sequence.&lt;br&gt;They are left out of the report.</source>
        <translation>&lt;b&gt;3 Proben&lt;/b&gt; haben keine Sequenz.&lt;br&gt;Sie fehlen im Bericht.</translation>
    </message>
    <message>
        <source>12 samples were added.</source>
        <translation>12 Proben wurden hinzugefügt.</translation>
    </message>
    <message>
        <source>Delete samples</source>
        <translation>Proben löschen</translation>
    </message>
    <message>
        <source>Delete the 3 chosen samples?</source>
        <translation>Die 3 gewählten Proben löschen?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>About the workbench</source>
        <translation>Über die Werkbank</translation>
    </message>
    <message>
        <source>&lt;b&gt;Workbench&lt;/b&gt; %1&lt;br&gt;Samples and their annotations, every step recorded.&lt;br&gt;&lt;a href=&quot;https://www.qt.io&quot;&gt;Made with Qt&lt;/a&gt;</source>
        <translation>&lt;b&gt;Werkbank&lt;/b&gt; %1&lt;br&gt;Proben und ihre Annotationen, jeder Schritt aufgezeichnet.&lt;br&gt;&lt;a href=&quot;https://www.qt.io&quot;&gt;Mit Qt gemacht&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
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
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Dateidialoge</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Die des Systems</translation>
    </message>
    <message>
        <source>Those of the toolkit</source>
        <translation>Die des Toolkits</translation>
    </message>
</context>
<context>
    <name>workbench::WorkbenchTemplateEditor</name>
    <message>
        <source>made-up samples</source>
        <translation>erfundene Proben</translation>
    </message>
    <message>
        <source>&amp;Gallery</source>
        <translation>&amp;Galerie</translation>
    </message>
    <message>
        <source>Shows a copy of this template, in a window of its own unless this one is empty</source>
        <translation>Zeigt eine Kopie dieser Vorlage, in einem eigenen Fenster, wenn dieses nicht leer ist</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>Nummer der Zeile</translation>
    </message>
    <message>
        <source>In a part that repeats, counted from 1</source>
        <translation>In einem wiederholten Teil, ab 1 gezählt</translation>
    </message>
    <message>
        <source>Number of all rows</source>
        <translation>Anzahl aller Zeilen</translation>
    </message>
    <message>
        <source>In a part that repeats</source>
        <translation>In einem wiederholten Teil</translation>
    </message>
    <message>
        <source>In a part that repeats for the ions or the coverage of one sample</source>
        <translation>In einem Teil, der sich für die Ionen oder die Abdeckung einer Probe wiederholt</translation>
    </message>
</context>
<context>
    <name>workbench::files</name>
    <message>
        <source>Samples (*.csv)</source>
        <translation>Proben (*.csv)</translation>
    </message>
    <message>
        <source>MS data</source>
        <translation>MS-Daten</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open samples</source>
        <translation>Proben öffnen</translation>
    </message>
    <message>
        <source>Open MS data</source>
        <translation>MS-Daten öffnen</translation>
    </message>
    <message>
        <source>Find MS data</source>
        <translation>MS-Daten suchen</translation>
    </message>
    <message>
        <source>Save samples</source>
        <translation>Proben speichern</translation>
    </message>
    <message>
        <source>Export audit trail</source>
        <translation>Audit-Trail exportieren</translation>
    </message>
    <message>
        <source>JSON (*.json);;Table (*.csv)</source>
        <translation>JSON (*.json);;Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;HTML (*.html)</source>
        <translation>PDF (*.pdf);;HTML (*.html)</translation>
    </message>
    <message>
        <source>Choose template</source>
        <translation>Vorlage wählen</translation>
    </message>
    <message>
        <source>Templates (*.ozt *.html *.txt)</source>
        <translation>Vorlagen (*.ozt *.html *.txt)</translation>
    </message>
    <message>
        <source>Save reports in folder</source>
        <translation>Berichte im Ordner speichern</translation>
    </message>
</context>
<context>
    <name>workbench::samplefile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is not known; known are %2.</source>
        <translation>Die Spalte „%1“ ist nicht bekannt; bekannt sind %2.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is there twice.</source>
        <translation>Die Spalte „%1“ ist zweimal da.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is missing.</source>
        <translation>Die Spalte „%1“ fehlt.</translation>
    </message>
    <message>
        <source>There are %1 cells, but %2 columns.</source>
        <translation>Es sind %1 Zellen, aber %2 Spalten.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is there already, on line %2.</source>
        <translation>Den Namen „%1“ gibt es schon, in Zeile %2.</translation>
    </message>
    <message>
        <source>The file is empty; it needs a line of column names.</source>
        <translation>Die Datei ist leer; sie braucht eine Zeile mit Spaltennamen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no table of samples. %2</source>
        <translation>„%1“ enthält keine Tabelle von Proben. %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written. Check that its folder exists, that you may write there and that the disk is not full.</source>
        <translation>„%1“ kann nicht geschrieben werden. Prüfen Sie, ob der Ordner vorhanden ist, Sie dort schreiben dürfen und der Datenträger nicht voll ist.</translation>
    </message>
</context>
</TS>

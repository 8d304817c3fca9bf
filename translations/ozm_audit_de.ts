<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ozm::audit</name>
    <message>
        <source>This is not a checkpoint of an audit trail.</source>
        <translation>Dies ist kein Prüfpunkt eines Audit-Trails.</translation>
    </message>
    <message>
        <source>The checkpoint &quot;%1&quot; cannot be written: %2</source>
        <translation>Der Prüfpunkt „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; did not take the checkpoint: %2</source>
        <translation>Der Befehl „%1“ hat den Prüfpunkt nicht angenommen: %2</translation>
    </message>
    <message>
        <source>The folder of checkpoints &quot;%1&quot; cannot be found.</source>
        <translation>Der Ordner der Prüfpunkte „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>This is not the public key of a signer of checkpoints.</source>
        <translation>Dies ist kein öffentlicher Schlüssel, der Prüfpunkte prüft.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot name a key: use letters, digits and points.</source>
        <translation>„%1“ kann kein Name eines Schlüssels sein: Verwenden Sie Buchstaben, Ziffern und Punkte.</translation>
    </message>
    <message>
        <source>No key could be made.</source>
        <translation>Es konnte kein Schlüssel erzeugt werden.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; cannot be read: %2</source>
        <translation>Der Schlüssel „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; can be read or written by others than its owner. Take their rights away (chmod 600), and consider making a new key.</source>
        <translation>Der Schlüssel „%1“ kann von anderen als seinem Eigentümer gelesen oder geschrieben werden. Entziehen Sie ihnen die Rechte (chmod 600), und erwägen Sie einen neuen Schlüssel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that signs checkpoints.</source>
        <translation>„%1“ ist kein Schlüssel, der Prüfpunkte signiert.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; cannot be written: %2</source>
        <translation>Der Schlüssel „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The checkpoint could not be signed.</source>
        <translation>Der Prüfpunkt konnte nicht signiert werden.</translation>
    </message>
    <message>
        <source>This is not an entry of a form that this version knows.</source>
        <translation>Dies ist kein Eintrag in einer Form, die diese Version kennt.</translation>
    </message>
    <message>
        <source>(disposed of)</source>
        <translation>(vernichtet)</translation>
    </message>
    <message>
        <source>Checkpoint: %1 entries, root %2</source>
        <translation>Prüfpunkt: %1 Einträge, Wurzel %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>Die Kopie wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The folder for proofs cannot be made.</source>
        <translation>Der Ordner für die Nachweise kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The verifier &quot;%1&quot; cannot be copied.</source>
        <translation>Das Prüfprogramm „%1“ kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Audit trail %1, %2 of %3 entries, copied by %4 on %5</source>
        <translation>Audit-Trail %1, %2 von %3 Einträgen, kopiert von %4 am %5</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is there already or cannot be made.</source>
        <translation>Der Ordner „%1“ ist schon da oder kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The step was recorded, but not carried out.</source>
        <translation>Der Schritt wurde aufgezeichnet, aber nicht ausgeführt.</translation>
    </message>
    <message>
        <source>This step needs a reason. It was not made.</source>
        <translation>Dieser Schritt braucht eine Begründung. Er wurde nicht ausgeführt.</translation>
    </message>
    <message>
        <source>The reason &quot;%1&quot; is not in the list. The step was not made.</source>
        <translation>Die Begründung „%1“ steht nicht in der Liste. Der Schritt wurde nicht ausgeführt.</translation>
    </message>
    <message>
        <source>The server of the audit trail &quot;%1&quot; cannot be reached. Nothing was changed. Check the network, then try again. (%2)</source>
        <translation>Der Server des Audit-Trails „%1“ ist nicht erreichbar. Es wurde nichts geändert. Prüfen Sie das Netz und versuchen Sie es noch einmal. (%2)</translation>
    </message>
    <message>
        <source>You may not do this with the audit trail &quot;%1&quot;. Nothing was changed. Ask the keeper of the server for the role ozm_audit_writer, ozm_audit_reader or ozm_audit_keeper. (%2)</source>
        <translation>Das dürfen Sie mit dem Audit-Trail „%1“ nicht tun. Es wurde nichts geändert. Bitten Sie den Betreuer des Servers um die Rolle ozm_audit_writer, ozm_audit_reader oder ozm_audit_keeper. (%2)</translation>
    </message>
    <message>
        <source>The server of the audit trail &quot;%1&quot; has no room left. Nothing was changed. Tell its keeper. (%2)</source>
        <translation>Der Server des Audit-Trails „%1“ hat keinen Platz mehr. Es wurde nichts geändert. Sagen Sie es seinem Betreuer. (%2)</translation>
    </message>
    <message>
        <source>The server refuses to work on the audit trail &quot;%1&quot;. Nothing was changed. (%2)</source>
        <translation>Der Server verweigert die Arbeit am Audit-Trail „%1“. Es wurde nichts geändert. (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a trail: add ?trail= and small letters and digits.</source>
        <translation>„%1“ nennt keinen Audit-Trail: Ergänzen Sie ?trail= und Kleinbuchstaben und Ziffern.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; was made by a newer version of this program. Use the newer version.</source>
        <translation>Der Audit-Trail „%1“ stammt von einer neueren Version dieses Programms. Verwenden Sie die neuere Version.</translation>
    </message>
    <message>
        <source>There is a trail &quot;%1&quot; already.</source>
        <translation>Es gibt schon einen Audit-Trail „%1“.</translation>
    </message>
    <message>
        <source>The trail &quot;%1&quot; does not exist.</source>
        <translation>Es gibt keinen Audit-Trail „%1“.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is damaged, or this is not an audit trail. Nothing was changed. Keep the file as it is and restore a copy, or start another trail.</source>
        <translation>Der Audit-Trail „%1“ ist beschädigt, oder dies ist kein Audit-Trail. Es wurde nichts geändert. Heben Sie die Datei auf, wie sie ist, und spielen Sie eine Kopie zurück, oder beginnen Sie einen anderen Audit-Trail.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is locked by another program. Nothing was changed. Wait a moment or close the other program, then try again.</source>
        <translation>Der Audit-Trail „%1“ ist von einem anderen Programm gesperrt. Es wurde nichts geändert. Warten Sie einen Moment oder schließen Sie das andere Programm, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is being read. Nothing was changed. Try again.</source>
        <translation>Der Audit-Trail „%1“ wird gerade gelesen. Es wurde nichts geändert. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is read-only, so nothing can be recorded. Nothing was changed. Make the file and its folder writable, or start another trail.</source>
        <translation>Der Audit-Trail „%1“ ist schreibgeschützt, es kann also nichts aufgezeichnet werden. Es wurde nichts geändert. Machen Sie die Datei und ihren Ordner beschreibbar, oder beginnen Sie einen anderen Audit-Trail.</translation>
    </message>
    <message>
        <source>The disk that holds the audit trail &quot;%1&quot; is full. Nothing was changed. Make room on the disk, then try again.</source>
        <translation>Der Datenträger mit dem Audit-Trail „%1“ ist voll. Es wurde nichts geändert. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; cannot be opened. Nothing was changed. Check that its folder exists and that you may write there.</source>
        <translation>Der Audit-Trail „%1“ kann nicht geöffnet werden. Es wurde nichts geändert. Prüfen Sie, ob es seinen Ordner gibt und Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; cannot be used. Nothing was changed. Check the disk that it is on.</source>
        <translation>Der Audit-Trail „%1“ kann nicht benutzt werden. Es wurde nichts geändert. Prüfen Sie den Datenträger, auf dem er liegt.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; would be on a network or virtual file system (%2), where records can be lost. Choose a folder on a disk of this computer, or share a trail through PostgreSQL.</source>
        <translation>Der Audit-Trail „%1“ läge auf einem Netz- oder virtuellen Dateisystem (%2), auf dem Aufzeichnungen verloren gehen können. Wählen Sie einen Ordner auf einem Datenträger dieses Rechners, oder teilen Sie einen Audit-Trail über PostgreSQL.</translation>
    </message>
    <message>
        <source>the file was deleted or replaced while it was in use</source>
        <translation>die Datei wurde gelöscht oder ersetzt, während sie benutzt wurde</translation>
    </message>
    <message>
        <source>its head was changed while it was in use</source>
        <translation>ihr Kopf wurde geändert, während sie benutzt wurde</translation>
    </message>
    <message>
        <source>its journal is of another kind and in use</source>
        <translation>ihr Journal ist von anderer Art und wird benutzt</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>There is a file &quot;%1&quot; already.</source>
        <translation>Es gibt schon eine Datei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an audit trail in the form of earlier versions. Import it into a new trail: ozm-audit import TRAIL FILE.</source>
        <translation>„%1“ ist ein Audit-Trail in der Form früherer Versionen. Importieren Sie ihn in einen neuen: ozm-audit import TRAIL DATEI.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of something else. Choose another file.</source>
        <translation>„%1“ ist eine Datenbank von etwas anderem. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; was written by a newer version of this program (form %2; this version knows form %3). Use the newer version.</source>
        <translation>Der Audit-Trail „%1“ wurde von einer neueren Version dieses Programms geschrieben (Form %2; diese Version kennt Form %3). Verwenden Sie die neuere Version.</translation>
    </message>
    <message>
        <source>its guards against changes were taken away</source>
        <translation>ihr Schutz gegen Änderungen wurde entfernt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the address of an audit trail.</source>
        <translation>„%1“ ist keine Adresse eines Audit-Trails.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: the plug-in &quot;ozm_audit_%2&quot; was not found in %3.</source>
        <translation>„%1“ kann nicht geöffnet werden: Das Plug-in „ozm_audit_%2“ wurde in %3 nicht gefunden.</translation>
    </message>
    <message>
        <source>This is not a proof for an entry of an audit trail.</source>
        <translation>Dies ist kein Nachweis für einen Eintrag eines Audit-Trails.</translation>
    </message>
    <message>
        <source>The head of the audit trail is damaged.</source>
        <translation>Der Kopf des Audit-Trails ist beschädigt.</translation>
    </message>
    <message>
        <source>The audit trail has no hash for each entry that was asked for.</source>
        <translation>Der Audit-Trail hat nicht für jeden gefragten Eintrag einen Hash.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is damaged: its last entries and its head do not fit together. Nothing is recorded in it until it was verified and the damage is recorded.</source>
        <translation>Der Audit-Trail „%1“ ist beschädigt: Seine letzten Einträge und sein Kopf passen nicht zusammen. Es wird nichts aufgezeichnet, bis er geprüft und der Schaden aufgezeichnet ist.</translation>
    </message>
    <message>
        <source>There is nothing to be recorded.</source>
        <translation>Es gibt nichts aufzuzeichnen.</translation>
    </message>
    <message>
        <source>The audit trail has no entry %1.</source>
        <translation>Der Audit-Trail hat keinen Eintrag %1.</translation>
    </message>
    <message>
        <source>The audit trail is whole: there is nothing to be recorded.</source>
        <translation>Der Audit-Trail ist unversehrt: Es gibt nichts aufzuzeichnen.</translation>
    </message>
    <message>
        <source>Say who records the damage, and why the trail goes on.</source>
        <translation>Sagen Sie, wer den Schaden aufzeichnet, und warum der Audit-Trail weitergeht.</translation>
    </message>
    <message>
        <source>Head and entries are both damaged. Restore a copy of the trail.</source>
        <translation>Kopf und Einträge sind beide beschädigt. Spielen Sie eine Kopie des Audit-Trails zurück.</translation>
    </message>
    <message>
        <source>The checkpoint does not count entry %1.</source>
        <translation>Der Prüfpunkt zählt Eintrag %1 nicht mit.</translation>
    </message>
    <message>
        <source>The older checkpoint must count fewer entries.</source>
        <translation>Der ältere Prüfpunkt muss weniger Einträge zählen.</translation>
    </message>
    <message>
        <source>Two different people must be named: who disposes, and who authorises it.</source>
        <translation>Es müssen zwei verschiedene Personen genannt werden: wer vernichtet, und wer es genehmigt.</translation>
    </message>
    <message>
        <source>Say why the entries are disposed of.</source>
        <translation>Sagen Sie, warum die Einträge vernichtet werden.</translation>
    </message>
    <message>
        <source>There are no such entries to be disposed of.</source>
        <translation>Es gibt keine solchen Einträge, die vernichtet werden könnten.</translation>
    </message>
    <message>
        <source>Entries that record disposals, archives and damages stay.</source>
        <translation>Einträge, die Vernichtungen, Archive und Schäden aufzeichnen, bleiben.</translation>
    </message>
    <message numerus="yes">
        <source>Trail %1: %n entries</source>
        <translation>
            <numerusform>Audit-Trail %1: %n Eintrag</numerusform>
            <numerusform>Audit-Trail %1: %n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>Entries 1 to %1 are vouched for by a checkpoint from outside.</source>
        <translation>Für die Einträge 1 bis %1 bürgt ein Prüfpunkt von außen.</translation>
    </message>
    <message>
        <source>No checkpoint from outside vouches for any entry.</source>
        <translation>Kein Prüfpunkt von außen bürgt für einen Eintrag.</translation>
    </message>
    <message>
        <source>Entries %1 to %2 are consistent only in themselves.</source>
        <translation>Die Einträge %1 bis %2 sind nur in sich stimmig.</translation>
    </message>
    <message>
        <source>Entries %1 to %2: disposed of, hashes kept.</source>
        <translation>Einträge %1 bis %2: vernichtet, Hashes aufbewahrt.</translation>
    </message>
    <message>
        <source>Recorded by entry %1.</source>
        <translation>Aufgezeichnet durch Eintrag %1.</translation>
    </message>
    <message>
        <source>The trail is whole.</source>
        <translation>Der Audit-Trail ist unversehrt.</translation>
    </message>
    <message>
        <source>THE TRAIL IS DAMAGED.</source>
        <translation>DER AUDIT-TRAIL IST BESCHÄDIGT.</translation>
    </message>
    <message>
        <source>A checkpoint belongs to the trail &quot;%1&quot;, not to this one.</source>
        <translation>Ein Prüfpunkt gehört zum Audit-Trail „%1“, nicht zu diesem.</translation>
    </message>
    <message>
        <source>The checkpoint at entry %1 is not signed by the key &quot;%2&quot;.</source>
        <translation>Der Prüfpunkt bei Eintrag %1 ist nicht vom Schlüssel „%2“ signiert.</translation>
    </message>
    <message>
        <source>The verification was cancelled.</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Entry %1 is missing.</source>
        <translation>Eintrag %1 fehlt.</translation>
    </message>
    <message>
        <source>The entries %1 to %2 are missing.</source>
        <translation>Die Einträge %1 bis %2 fehlen.</translation>
    </message>
    <message>
        <source>Entry %1 stands in the place of entry %2.</source>
        <translation>Eintrag %1 steht an der Stelle von Eintrag %2.</translation>
    </message>
    <message>
        <source>Entry %1 was changed.</source>
        <translation>Eintrag %1 wurde verändert.</translation>
    </message>
    <message>
        <source>The columns beside entry %1 are not what the entry says.</source>
        <translation>Die Spalten neben Eintrag %1 sagen nicht, was der Eintrag sagt.</translation>
    </message>
    <message>
        <source>The hash kept for the entries %1 to %2 is not theirs.</source>
        <translation>Der für die Einträge %1 bis %2 aufbewahrte Hash ist nicht ihrer.</translation>
    </message>
    <message>
        <source>The head counts %1 entries, but there are %2.</source>
        <translation>Der Kopf zählt %1 Einträge, es sind aber %2.</translation>
    </message>
    <message>
        <source>The entries from %1 on are cut off; the head counts %2.</source>
        <translation>Die Einträge ab %1 sind abgeschnitten; der Kopf zählt %2.</translation>
    </message>
    <message>
        <source>The entries from %1 on are cut off; a checkpoint counts %2.</source>
        <translation>Die Einträge ab %1 sind abgeschnitten; ein Prüfpunkt zählt %2.</translation>
    </message>
    <message>
        <source>The entries %1 to %2 are not those of the checkpoint at entry %2.</source>
        <translation>Die Einträge %1 bis %2 sind nicht die des Prüfpunkts bei Eintrag %2.</translation>
    </message>
    <message>
        <source>The head&apos;s root is not that of the entries up to %1.</source>
        <translation>Die Wurzel des Kopfs ist nicht die der Einträge bis %1.</translation>
    </message>
    <message>
        <source>The bytes of entry %1 are gone, and no disposal is recorded.</source>
        <translation>Der Inhalt von Eintrag %1 ist weg, und es ist keine Vernichtung aufgezeichnet.</translation>
    </message>
    <message>
        <source>this program was built without zip files. Choose a folder.</source>
        <translation>dieses Programm wurde ohne Zip-Dateien gebaut. Wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>The entry is in the audit trail &quot;%1&quot;, but the disk did not confirm it. Check the disk, and what was to be recorded.</source>
        <translation>Der Eintrag steht im Audit-Trail „%1“, aber der Datenträger hat ihn nicht bestätigt. Prüfen Sie den Datenträger und was aufgezeichnet werden sollte.</translation>
    </message>
    <message>
        <source>Entry %1 is there, but is not found by its number.</source>
        <translation>Eintrag %1 ist da, wird unter seiner Nummer aber nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::EntryDetails</name>
    <message>
        <source>&amp;Entry</source>
        <translation>&amp;Eintrag</translation>
    </message>
    <message>
        <source>Old &amp;value</source>
        <translation>Alter &amp;Wert</translation>
    </message>
    <message>
        <source>Ne&amp;w value</source>
        <translation>&amp;Neuer Wert</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>As recorded</source>
        <translation>Wie aufgezeichnet</translation>
    </message>
    <message>
        <source>In UTC</source>
        <translation>In UTC</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Wer</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Authorised by</source>
        <translation>Genehmigt von</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Gegenstand</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Begründung</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Belongs to the group of entry %1</source>
        <translation>Gehört zur Gruppe von Eintrag %1</translation>
    </message>
    <message>
        <source>The value was changed later, last by entry %1</source>
        <translation>Der Wert wurde später geändert, zuletzt durch Eintrag %1</translation>
    </message>
</context>
<context>
    <name>ozm::audit::FilterBar</name>
    <message>
        <source>Sear&amp;ch:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Text in any part of an entry</source>
        <translation>Text in einem beliebigen Teil eines Eintrags</translation>
    </message>
    <message>
        <source>&amp;Look for:</source>
        <translation>P&amp;rüfen auf:</translation>
    </message>
    <message>
        <source>Filte&amp;r</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Take this condition away</source>
        <translation>Diese Bedingung wegnehmen</translation>
    </message>
    <message>
        <source>Take away: %1</source>
        <translation>Wegnehmen: %1</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Kind of subject</source>
        <translation>Art des Gegenstands</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Gelungen</translation>
    </message>
    <message>
        <source>Refused or failed</source>
        <translation>Verweigert oder misslungen</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Without a reason</source>
        <translation>Ohne Begründung</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>The last 7 days</source>
        <translation>Die letzten 7 Tage</translation>
    </message>
    <message>
        <source>The last 30 days</source>
        <translation>Die letzten 30 Tage</translation>
    </message>
    <message>
        <source>From … until …</source>
        <translation>Von … bis …</translation>
    </message>
</context>
<context>
    <name>ozm::audit::ReasonDialog</name>
    <message>
        <source>Reason for the change</source>
        <translation>Begründung der Änderung</translation>
    </message>
    <message>
        <source>&amp;Reason (if any):</source>
        <translation>&amp;Begründung (falls es eine gibt):</translation>
    </message>
    <message>
        <source>&amp;Reason:</source>
        <translation>&amp;Begründung:</translation>
    </message>
</context>
<context>
    <name>ozm::audit::ReviewDialog</name>
    <message>
        <source>Say in the comment what was found.</source>
        <translation>Sagen Sie im Kommentar, was gefunden wurde.</translation>
    </message>
    <message>
        <source>Record a review</source>
        <translation>Durchsicht aufzeichnen</translation>
    </message>
    <message>
        <source>Numbers of entries, such as 3, 7-9</source>
        <translation>Nummern von Einträgen, zum Beispiel 3, 7-9</translation>
    </message>
    <message>
        <source>&amp;Record review</source>
        <translation>Durchsicht &amp;aufzeichnen</translation>
    </message>
    <message>
        <source>Reviewer:</source>
        <translation>Durchgesehen von:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Entries:</source>
        <translation>Einträge:</translation>
    </message>
    <message>
        <source>%L1 of %L2, up to entry %3; %L4 of them not reviewed before</source>
        <translation>%L1 von %L2, bis Eintrag %3; %L4 davon vorher nicht durchgesehen</translation>
    </message>
    <message>
        <source>You made some of these entries yourself. The review is recorded as not independent.</source>
        <translation>Einige dieser Einträge stammen von Ihnen selbst. Die Durchsicht wird als nicht unabhängig aufgezeichnet.</translation>
    </message>
    <message>
        <source>&amp;Outcome:</source>
        <translation>&amp;Ergebnis:</translation>
    </message>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Kommentar:</translation>
    </message>
    <message>
        <source>&amp;Discrepancies:</source>
        <translation>A&amp;bweichungen:</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SignDialog</name>
    <message>
        <source>Signing as %1. The password confirms it.</source>
        <translation>Unterschrift als %1. Das Kennwort bestätigt sie.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Unterschreiben</translation>
    </message>
    <message>
        <source>Digest of what is signed</source>
        <translation>Prüfsumme dessen, was unterschrieben wird</translation>
    </message>
    <message>
        <source>Approved</source>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Durchgesehen</translation>
    </message>
    <message>
        <source>Responsible for the content</source>
        <translation>Für den Inhalt verantwortlich</translation>
    </message>
    <message>
        <source>&amp;Sign</source>
        <translation>&amp;Unterschreiben</translation>
    </message>
    <message>
        <source>&amp;What is signed:</source>
        <translation>&amp;Was unterschrieben wird:</translation>
    </message>
    <message>
        <source>Digest (SHA-256):</source>
        <translation>Prüfsumme (SHA-256):</translation>
    </message>
    <message>
        <source>&amp;Meaning:</source>
        <translation>&amp;Bedeutung:</translation>
    </message>
    <message>
        <source>&amp;User id:</source>
        <translation>Benutzer&amp;kennung:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Kennwor&amp;t:</translation>
    </message>
    <message>
        <source>A signature stands for your name, and cannot be taken back.</source>
        <translation>Eine Unterschrift steht für Ihren Namen und kann nicht zurückgenommen werden.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SigningSession</name>
    <message>
        <source>This is another person.</source>
        <translation>Dies ist eine andere Person.</translation>
    </message>
    <message>
        <source>Say who signs.</source>
        <translation>Sagen Sie, wer unterschreibt.</translation>
    </message>
    <message>
        <source>The session has ended: id and password are both needed.</source>
        <translation>Die Sitzung ist beendet: Kennung und Kennwort sind beide nötig.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SubjectHistory</name>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Wer</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Begründung</translation>
    </message>
    <message>
        <source>Select two rows to compare their states.</source>
        <translation>Wählen Sie zwei Zeilen, um ihre Zustände zu vergleichen.</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>Geschichte von %1</translation>
    </message>
    <message>
        <source>States of the subject, oldest first</source>
        <translation>Zustände des Gegenstands, der älteste zuerst</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>After entry %1</source>
        <translation>Nach Eintrag %1</translation>
    </message>
    <message>
        <source>The states after entries %1 and %2 are the same.</source>
        <translation>Die Zustände nach den Einträgen %1 und %2 sind gleich.</translation>
    </message>
    <message>
        <source>The states after entries %1 and %2 differ in %3 of %4 attributes.</source>
        <translation>Die Zustände nach den Einträgen %1 und %2 unterscheiden sich in %3 von %4 Attributen.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::TrailModel</name>
    <message>
        <source>The trail is still being searched.</source>
        <translation>Der Audit-Trail wird noch durchsucht.</translation>
    </message>
    <message>
        <source>The filter shows too many separate entries. Narrow it, by time for instance.</source>
        <translation>Der Filter zeigt zu viele einzelne Einträge. Engen Sie ihn ein, zum Beispiel nach der Zeit.</translation>
    </message>
    <message>
        <source>Sorting by &quot;%1&quot; would have to read all %L2 entries: the store keeps them in order of time. Narrow the filter to %L3 entries or fewer.</source>
        <translation>Nach „%1“ zu sortieren hieße, alle %L2 Einträge zu lesen: Sie sind nach der Zeit geordnet abgelegt. Engen Sie den Filter auf höchstens %L3 Einträge ein.</translation>
    </message>
    <message>
        <source>Sorted by this column when %L1 entries or fewer are shown.</source>
        <translation>Nach dieser Spalte wird sortiert, wenn höchstens %L1 Einträge gezeigt werden.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::TrailView</name>
    <message>
        <source>Audit trail</source>
        <translation>Audit-Trail</translation>
    </message>
    <message>
        <source>Go to entry</source>
        <translation>Zum Eintrag gehen</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nummer:</translation>
    </message>
    <message>
        <source>printed, %1</source>
        <translation>gedruckt, %1</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>New folder for the inspection copy</source>
        <translation>Neuer Ordner für die Inspektionskopie</translation>
    </message>
    <message>
        <source>Making an inspection copy …</source>
        <translation>Die Inspektionskopie wird gemacht …</translation>
    </message>
    <message>
        <source>Inspection copy</source>
        <translation>Inspektionskopie</translation>
    </message>
    <message>
        <source>The copy is in &quot;%1&quot;.</source>
        <translation>Die Kopie liegt in „%1“.</translation>
    </message>
    <message>
        <source>Verifying the trail …</source>
        <translation>Der Audit-Trail wird geprüft …</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Save filter</source>
        <translation>Filter speichern</translation>
    </message>
    <message>
        <source>Filters (*.trailfilter)</source>
        <translation>Filter (*.trailfilter)</translation>
    </message>
    <message>
        <source>Open filter</source>
        <translation>Filter öffnen</translation>
    </message>
    <message>
        <source>S&amp;ign …</source>
        <translation>&amp;Unterschreiben …</translation>
    </message>
    <message>
        <source>&amp;Review …</source>
        <translation>&amp;Durchsicht …</translation>
    </message>
    <message>
        <source>&amp;History of the subject …</source>
        <translation>&amp;Geschichte des Gegenstands …</translation>
    </message>
    <message>
        <source>Show the &amp;object</source>
        <translation>&amp;Objekt zeigen</translation>
    </message>
    <message>
        <source>&amp;Go to entry …</source>
        <translation>Zum &amp;Eintrag gehen …</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>D&amp;rucken …</translation>
    </message>
    <message>
        <source>Save as P&amp;DF …</source>
        <translation>Als &amp;PDF speichern …</translation>
    </message>
    <message>
        <source>Save as CS&amp;V …</source>
        <translation>Als &amp;CSV speichern …</translation>
    </message>
    <message>
        <source>Inspection &amp;copy …</source>
        <translation>&amp;Inspektionskopie …</translation>
    </message>
    <message>
        <source>Verif&amp;y …</source>
        <translation>Prü&amp;fen …</translation>
    </message>
    <message>
        <source>Save &amp;filter …</source>
        <translation>Fi&amp;lter speichern …</translation>
    </message>
    <message>
        <source>Open fi&amp;lter …</source>
        <translation>Filter öff&amp;nen …</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>&amp;Einzelheiten</translation>
    </message>
    <message>
        <source>Entries of the audit trail</source>
        <translation>Einträge des Audit-Trails</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>&amp;Zeit:</translation>
    </message>
    <message>
        <source>here</source>
        <translation>hiesig</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>as recorded</source>
        <translation>wie aufgezeichnet</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>%L1 of %L2 entries shown, none hidden.</source>
        <translation>%L1 von %L2 Einträgen gezeigt, keiner verborgen.</translation>
    </message>
    <message>
        <source>%L1 of %L2 entries shown, %L3 hidden by the filter.</source>
        <translation>%L1 von %L2 Einträgen gezeigt, %L3 vom Filter verborgen.</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Wird durchsucht …</translation>
    </message>
    <message>
        <source>Not reviewed: %L1.</source>
        <translation>Nicht durchgesehen: %L1.</translation>
    </message>
    <message>
        <source>Not yet on disk: %L1.</source>
        <translation>Noch nicht gespeichert: %L1.</translation>
    </message>
    <message>
        <source>States are known up to entry %L1.</source>
        <translation>Zustände sind bis Eintrag %L1 bekannt.</translation>
    </message>
    <message>
        <source>Only this user</source>
        <translation>Nur dieser Benutzer</translation>
    </message>
    <message>
        <source>Only this subject</source>
        <translation>Nur dieser Gegenstand</translation>
    </message>
    <message>
        <source>Only this session</source>
        <translation>Nur diese Sitzung</translation>
    </message>
</context>
<context>
    <name>ozm::audit::WidgetTexts</name>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Deletions</source>
        <translation>Löschungen</translation>
    </message>
    <message>
        <source>Changes after a signature</source>
        <translation>Änderungen nach einer Unterschrift</translation>
    </message>
    <message>
        <source>Changed again and again, or back</source>
        <translation>Immer wieder oder zurück geändert</translation>
    </message>
    <message>
        <source>Refused or failed steps</source>
        <translation>Verweigerte oder misslungene Schritte</translation>
    </message>
    <message>
        <source>Out of hours</source>
        <translation>Außerhalb der Arbeitszeit</translation>
    </message>
    <message>
        <source>Clock jumps, gaps and damages</source>
        <translation>Uhrsprünge, Lücken und Schäden</translation>
    </message>
    <message>
        <source>Undone after saving</source>
        <translation>Nach dem Speichern zurückgenommen</translation>
    </message>
    <message>
        <source>Settings and rights</source>
        <translation>Einstellungen und Rechte</translation>
    </message>
    <message>
        <source>Out of hours (%1 to %2)</source>
        <translation>Außerhalb der Arbeitszeit (%1 bis %2)</translation>
    </message>
    <message>
        <source>Kind: %1</source>
        <translation>Art: %1</translation>
    </message>
    <message>
        <source>Subject: %1</source>
        <translation>Gegenstand: %1</translation>
    </message>
    <message>
        <source>Outcome: succeeded</source>
        <translation>Ergebnis: gelungen</translation>
    </message>
    <message>
        <source>Outcome: refused or failed</source>
        <translation>Ergebnis: verweigert oder misslungen</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Benutzer: %1</translation>
    </message>
    <message>
        <source>Attribute: %1</source>
        <translation>Attribut: %1</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Von %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>Without a reason</source>
        <translation>Ohne Begründung</translation>
    </message>
    <message>
        <source>Session: %1</source>
        <translation>Sitzung: %1</translation>
    </message>
    <message>
        <source>Text: &quot;%1&quot;</source>
        <translation>Text: „%1“</translation>
    </message>
    <message>
        <source>This is not a filter of an audit trail.</source>
        <translation>Dies ist kein Filter eines Audit-Trails.</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
    <message>
        <source>The filter cannot be saved as &quot;%1&quot;: %2</source>
        <translation>Der Filter kann nicht als „%1“ gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The filter &quot;%1&quot; cannot be read: %2</source>
        <translation>Der Filter „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Group of changes</source>
        <translation>Gruppe von Änderungen</translation>
    </message>
    <message>
        <source>End of a group</source>
        <translation>Ende einer Gruppe</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Setting or right</source>
        <translation>Einstellung oder Recht</translation>
    </message>
    <message>
        <source>Reason given later</source>
        <translation>Nachgereichte Begründung</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Durchsicht</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Disposal</source>
        <translation>Vernichtung</translation>
    </message>
    <message>
        <source>Redaction</source>
        <translation>Schwärzung</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Recorded damage</source>
        <translation>Aufgezeichneter Schaden</translation>
    </message>
    <message>
        <source>A session began</source>
        <translation>Eine Sitzung begann</translation>
    </message>
    <message>
        <source>The session ended</source>
        <translation>Die Sitzung endete</translation>
    </message>
    <message>
        <source>The clock jumped</source>
        <translation>Die Uhr sprang</translation>
    </message>
    <message>
        <source>A copy of the trail was made</source>
        <translation>Eine Kopie des Audit-Trails wurde gemacht</translation>
    </message>
    <message>
        <source>An archive of the trail was made</source>
        <translation>Ein Archiv des Audit-Trails wurde gemacht</translation>
    </message>
    <message>
        <source>A former trail was imported</source>
        <translation>Ein früherer Audit-Trail wurde importiert</translation>
    </message>
    <message>
        <source>A signer signed in</source>
        <translation>Ein Unterzeichner hat sich angemeldet</translation>
    </message>
    <message>
        <source>A sign-in failed</source>
        <translation>Eine Anmeldung ist misslungen</translation>
    </message>
    <message>
        <source>Signing was locked</source>
        <translation>Das Unterschreiben wurde gesperrt</translation>
    </message>
    <message>
        <source>The trail was verified</source>
        <translation>Der Audit-Trail wurde geprüft</translation>
    </message>
    <message>
        <source>The trail was printed or exported</source>
        <translation>Der Audit-Trail wurde gedruckt oder exportiert</translation>
    </message>
    <message>
        <source>Signed entries %1: %2</source>
        <translation>Einträge %1 unterschrieben: %2</translation>
    </message>
    <message>
        <source>Reviewed up to entry %1 (%2): %3</source>
        <translation>Bis Eintrag %1 durchgesehen (%2): %3</translation>
    </message>
    <message>
        <source>Disposed of the content of entries %1 to %2</source>
        <translation>Inhalt der Einträge %1 bis %2 vernichtet</translation>
    </message>
    <message>
        <source>by %1 s</source>
        <translation>um %1 s</translation>
    </message>
    <message>
        <source>The group of entry %1 is complete</source>
        <translation>Die Gruppe von Eintrag %1 ist vollständig</translation>
    </message>
    <message>
        <source>Something may be missing: %1</source>
        <translation>Etwas könnte fehlen: %1</translation>
    </message>
    <message>
        <source>A damage was found and recorded</source>
        <translation>Ein Schaden wurde gefunden und aufgezeichnet</translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>(The content was disposed of.)</source>
        <translation>(Der Inhalt wurde vernichtet.)</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Zeit (UTC)</translation>
    </message>
    <message>
        <source>Time (here: %1)</source>
        <translation>Zeit (hiesig: %1)</translation>
    </message>
    <message>
        <source>Time (as recorded)</source>
        <translation>Zeit (wie aufgezeichnet)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list of entry numbers, such as &quot;3, 7-9&quot;.</source>
        <translation>„%1“ ist keine Liste von Nummern wie „3, 7-9“.</translation>
    </message>
    <message>
        <source>Not yet on disk</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Refused or failed</source>
        <translation>Verweigert oder misslungen</translation>
    </message>
    <message>
        <source>Changed since signed</source>
        <translation>Seit der Unterschrift geändert</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Zurückgenommen</translation>
    </message>
    <message>
        <source>Disposed of</source>
        <translation>Vernichtet</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Unterschrieben</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Durchgesehen</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Wer</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Gegenstand</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Begründung</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Changed since this entry, last by entry %1</source>
        <translation>Seit diesem Eintrag geändert, zuletzt durch Eintrag %1</translation>
    </message>
    <message>
        <source>The trail is still being searched.</source>
        <translation>Der Audit-Trail wird noch durchsucht.</translation>
    </message>
    <message>
        <source>%L1 entries are too many for paper. Narrow the filter to %L2, or make an inspection copy.</source>
        <translation>%L1 Einträge sind zu viele für Papier. Engen Sie den Filter auf %L2 ein, oder machen Sie eine Inspektionskopie.</translation>
    </message>
    <message>
        <source>Trail</source>
        <translation>Audit-Trail</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>entries %1 to %2</source>
        <translation>Einträge %1 bis %2</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Erstellt von</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Checkpoint: %1 entries, root %2</source>
        <translation>Prüfpunkt: %1 Einträge, Wurzel %2</translation>
    </message>
    <message>
        <source>Audit trail</source>
        <translation>Audit-Trail</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Checkpoint</source>
        <translation>Prüfpunkt</translation>
    </message>
    <message>
        <source>No findings</source>
        <translation>Keine Befunde</translation>
    </message>
    <message>
        <source>Findings, dealt with</source>
        <translation>Befunde, erledigt</translation>
    </message>
    <message>
        <source>Findings, handed on</source>
        <translation>Befunde, weitergegeben</translation>
    </message>
    <message>
        <source>Select the entries to be signed.</source>
        <translation>Wählen Sie die Einträge, die unterschrieben werden sollen.</translation>
    </message>
    <message>
        <source>One signature covers %L1 entries at most. Select fewer.</source>
        <translation>Eine Unterschrift gilt für höchstens %L1 Einträge. Wählen Sie weniger.</translation>
    </message>
    <message>
        <source>An entry whose content is gone cannot be signed.</source>
        <translation>Ein Eintrag, dessen Inhalt weg ist, kann nicht unterschrieben werden.</translation>
    </message>
    <message>
        <source>and %L1 more</source>
        <translation>und %L1 weitere</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Eintrag %1</translation>
    </message>
    <message>
        <source>%L1 entries: %2</source>
        <translation>%L1 Einträge: %2</translation>
    </message>
    <message>
        <source>%1, about %2</source>
        <translation>%1, über %2</translation>
    </message>
    <message>
        <source>The entries are not those that signature %1 was given for.</source>
        <translation>Die Einträge sind nicht die, für die Unterschrift %1 gegeben wurde.</translation>
    </message>
    <message>
        <source>%1: signed by %2 on %3 (entry %4)</source>
        <translation>%1: unterschrieben von %2 am %3 (Eintrag %4)</translation>
    </message>
    <message>
        <source>Range of time</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>Working hours, Monday to Friday</source>
        <translation>Arbeitszeit, Montag bis Freitag</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>ozm::audit</name>
    <message>
        <source>This is not a checkpoint of an audit trail.</source>
        <translation>Ceci n’est pas un point de contrôle d’une piste d’audit.</translation>
    </message>
    <message>
        <source>The checkpoint &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire le point de contrôle «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; did not take the checkpoint: %2</source>
        <translation>La commande «&#x202f;%1&#x202f;» n’a pas accepté le point de contrôle&#x202f;: %2</translation>
    </message>
    <message>
        <source>The folder of checkpoints &quot;%1&quot; cannot be found.</source>
        <translation>Le dossier des points de contrôle «&#x202f;%1&#x202f;» est introuvable.</translation>
    </message>
    <message>
        <source>This is not the public key of a signer of checkpoints.</source>
        <translation>Ceci n’est pas la clé publique d’un signataire de points de contrôle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot name a key: use letters, digits and points.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être le nom d’une clé&#x202f;: utilisez des lettres, des chiffres et des points.</translation>
    </message>
    <message>
        <source>No key could be made.</source>
        <translation>Aucune clé n’a pu être créée.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; cannot be read: %2</source>
        <translation>Impossible de lire la clé «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; can be read or written by others than its owner. Take their rights away (chmod 600), and consider making a new key.</source>
        <translation>La clé «&#x202f;%1&#x202f;» peut être lue ou écrite par d’autres que son propriétaire. Retirez-leur ces droits (chmod&#xa0;600) et envisagez de créer une nouvelle clé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that signs checkpoints.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une clé qui signe des points de contrôle.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire la clé «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>The checkpoint could not be signed.</source>
        <translation>Le point de contrôle n’a pas pu être signé.</translation>
    </message>
    <message>
        <source>This is not an entry of a form that this version knows.</source>
        <translation>Ceci n’est pas une entrée dans une forme que cette version connaît.</translation>
    </message>
    <message>
        <source>(disposed of)</source>
        <translation>(détruit)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>Checkpoint: %1 entries, root %2</source>
        <translation>Point de contrôle (entrées&#x202f;: %1), racine %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>Impossible de lire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>La copie a été annulée.</translation>
    </message>
    <message>
        <source>The folder for proofs cannot be made.</source>
        <translation>Le dossier des preuves ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Audit trail %1, %2 of %3 entries, copied by %4 on %5</source>
        <translation>Piste d’audit %1, entrées&#x202f;: %2 sur %3, copiées par %4 le %5</translation>
    </message>
    <message>
        <source>The verifier &quot;%1&quot; cannot be copied.</source>
        <translation>Le programme de vérification «&#x202f;%1&#x202f;» ne peut pas être copié.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is there already or cannot be made.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» existe déjà ou ne peut pas être créé.</translation>
    </message>
    <message>
        <source>this program was built without zip files. Choose a folder.</source>
        <translation>ce programme a été compilé sans fichiers zip. Choisissez un dossier.</translation>
    </message>
    <message>
        <source>The step was recorded, but not carried out.</source>
        <translation>L’opération a été consignée, mais pas exécutée.</translation>
    </message>
    <message>
        <source>This step needs a reason. It was not made.</source>
        <translation>Cette opération exige un motif. Elle n’a pas été exécutée.</translation>
    </message>
    <message>
        <source>The reason &quot;%1&quot; is not in the list. The step was not made.</source>
        <translation>Le motif «&#x202f;%1&#x202f;» ne figure pas dans la liste. L’opération n’a pas été exécutée.</translation>
    </message>
    <message>
        <source>The server of the audit trail &quot;%1&quot; cannot be reached. Nothing was changed. Check the network, then try again. (%2)</source>
        <translation>Le serveur de la piste d’audit «&#x202f;%1&#x202f;» est injoignable. Rien n’a été modifié. Vérifiez le réseau, puis réessayez. (%2)</translation>
    </message>
    <message>
        <source>You may not do this with the audit trail &quot;%1&quot;. Nothing was changed. Ask the keeper of the server for the role ozm_audit_writer, ozm_audit_reader or ozm_audit_keeper. (%2)</source>
        <translation>Vous n’avez pas le droit de faire cela avec la piste d’audit «&#x202f;%1&#x202f;». Rien n’a été modifié. Demandez à l’administrateur du serveur le rôle ozm_audit_writer, ozm_audit_reader ou ozm_audit_keeper. (%2)</translation>
    </message>
    <message>
        <source>The server of the audit trail &quot;%1&quot; has no room left. Nothing was changed. Tell its keeper. (%2)</source>
        <translation>Le serveur de la piste d’audit «&#x202f;%1&#x202f;» n’a plus de place. Rien n’a été modifié. Prévenez son administrateur. (%2)</translation>
    </message>
    <message>
        <source>The server refuses to work on the audit trail &quot;%1&quot;. Nothing was changed. (%2)</source>
        <translation>Le serveur refuse de travailler sur la piste d’audit «&#x202f;%1&#x202f;». Rien n’a été modifié. (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a trail: add ?trail= and small letters and digits.</source>
        <translation>«&#x202f;%1&#x202f;» ne désigne pas une piste d’audit&#x202f;: ajoutez&#x202f;?trail= suivi de lettres minuscules et de chiffres.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; was made by a newer version of this program. Use the newer version.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» a été créée par une version plus récente de ce programme. Utilisez cette version.</translation>
    </message>
    <message>
        <source>There is a trail &quot;%1&quot; already.</source>
        <translation>Il existe déjà une piste d’audit «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The trail &quot;%1&quot; does not exist.</source>
        <translation>Il n’y a pas de piste d’audit «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is damaged, or this is not an audit trail. Nothing was changed. Keep the file as it is and restore a copy, or start another trail.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est endommagée, ou ce n’en est pas une. Rien n’a été modifié. Gardez le fichier tel quel et restaurez une copie, ou commencez une autre piste.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is locked by another program. Nothing was changed. Wait a moment or close the other program, then try again.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est verrouillée par un autre programme. Rien n’a été modifié. Attendez un instant ou fermez l’autre programme, puis réessayez.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is being read. Nothing was changed. Try again.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est en cours de lecture. Rien n’a été modifié. Réessayez.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is read-only, so nothing can be recorded. Nothing was changed. Make the file and its folder writable, or start another trail.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est en lecture seule&#x202f;: rien ne peut y être consigné. Rien n’a été modifié. Rendez le fichier et son dossier accessibles en écriture, ou commencez une autre piste.</translation>
    </message>
    <message>
        <source>The disk that holds the audit trail &quot;%1&quot; is full. Nothing was changed. Make room on the disk, then try again.</source>
        <translation>Le disque qui contient la piste d’audit «&#x202f;%1&#x202f;» est plein. Rien n’a été modifié. Libérez de la place sur le disque, puis réessayez.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; cannot be opened. Nothing was changed. Check that its folder exists and that you may write there.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» ne peut pas être ouverte. Rien n’a été modifié. Vérifiez que son dossier existe et que vous avez le droit d’y écrire.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; cannot be used. Nothing was changed. Check the disk that it is on.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est inutilisable. Rien n’a été modifié. Vérifiez le disque où elle se trouve.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; would be on a network or virtual file system (%2), where records can be lost. Choose a folder on a disk of this computer, or share a trail through PostgreSQL.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» se trouverait sur un système de fichiers réseau ou virtuel (%2), où des enregistrements peuvent se perdre. Choisissez un dossier sur un disque de cet ordinateur, ou partagez une piste par PostgreSQL.</translation>
    </message>
    <message>
        <source>the file was deleted or replaced while it was in use</source>
        <translation>le fichier a été supprimé ou remplacé pendant son utilisation</translation>
    </message>
    <message>
        <source>its head was changed while it was in use</source>
        <translation>sa tête a été modifiée pendant son utilisation</translation>
    </message>
    <message>
        <source>its journal is of another kind and in use</source>
        <translation>son journal est d’un autre type et en cours d’utilisation</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>elle est vide</translation>
    </message>
    <message>
        <source>There is a file &quot;%1&quot; already.</source>
        <translation>Il existe déjà un fichier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an audit trail in the form of earlier versions. Import it into a new trail: ozm-audit import TRAIL FILE.</source>
        <translation>«&#x202f;%1&#x202f;» est une piste d’audit dans la forme de versions antérieures. Importez-la dans une nouvelle piste&#x202f;: ozm-audit import PISTE FICHIER.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of something else. Choose another file.</source>
        <translation>«&#x202f;%1&#x202f;» est une base de données d’autre chose. Choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; was written by a newer version of this program (form %2; this version knows form %3). Use the newer version.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» a été écrite par une version plus récente de ce programme (forme %2&#x202f;; cette version connaît la forme %3). Utilisez cette version plus récente.</translation>
    </message>
    <message>
        <source>its guards against changes were taken away</source>
        <translation>ses protections contre les modifications ont été retirées</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the address of an audit trail.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas l’adresse d’une piste d’audit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: the plug-in &quot;ozm_audit_%2&quot; was not found in %3.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être ouvert&#x202f;: le module «&#x202f;ozm_audit_%2&#x202f;» est introuvable dans %3.</translation>
    </message>
    <message>
        <source>This is not a proof for an entry of an audit trail.</source>
        <translation>Ceci n’est pas une preuve pour une entrée d’une piste d’audit.</translation>
    </message>
    <message>
        <source>The head of the audit trail is damaged.</source>
        <translation>La tête de la piste d’audit est endommagée.</translation>
    </message>
    <message>
        <source>The audit trail has no hash for each entry that was asked for.</source>
        <translation>La piste d’audit n’a pas d’empreinte pour chacune des entrées demandées.</translation>
    </message>
    <message>
        <source>The audit trail &quot;%1&quot; is damaged: its last entries and its head do not fit together. Nothing is recorded in it until it was verified and the damage is recorded.</source>
        <translation>La piste d’audit «&#x202f;%1&#x202f;» est endommagée&#x202f;: ses dernières entrées et sa tête ne concordent pas. Rien n’y est consigné tant qu’elle n’a pas été vérifiée et que le dommage n’est pas consigné.</translation>
    </message>
    <message>
        <source>There is nothing to be recorded.</source>
        <translation>Il n’y a rien à consigner.</translation>
    </message>
    <message>
        <source>The audit trail has no entry %1.</source>
        <translation>La piste d’audit n’a pas d’entrée %1.</translation>
    </message>
    <message>
        <source>The audit trail is whole: there is nothing to be recorded.</source>
        <translation>La piste d’audit est intacte&#x202f;: il n’y a rien à consigner.</translation>
    </message>
    <message>
        <source>Say who records the damage, and why the trail goes on.</source>
        <translation>Indiquez qui consigne le dommage et pourquoi la piste d’audit continue.</translation>
    </message>
    <message>
        <source>Head and entries are both damaged. Restore a copy of the trail.</source>
        <translation>La tête et les entrées sont toutes deux endommagées. Restaurez une copie de la piste d’audit.</translation>
    </message>
    <message>
        <source>The checkpoint does not count entry %1.</source>
        <translation>Le point de contrôle ne compte pas l’entrée %1.</translation>
    </message>
    <message>
        <source>The older checkpoint must count fewer entries.</source>
        <translation>Le point de contrôle le plus ancien doit compter moins d’entrées.</translation>
    </message>
    <message>
        <source>Two different people must be named: who disposes, and who authorises it.</source>
        <translation>Deux personnes différentes doivent être nommées&#x202f;: celle qui détruit et celle qui l’autorise.</translation>
    </message>
    <message>
        <source>Say why the entries are disposed of.</source>
        <translation>Indiquez pourquoi les entrées sont détruites.</translation>
    </message>
    <message>
        <source>There are no such entries to be disposed of.</source>
        <translation>Il n’y a pas de telles entrées à détruire.</translation>
    </message>
    <message>
        <source>Entries that record disposals, archives and damages stay.</source>
        <translation>Les entrées qui consignent des destructions, des archives et des dommages sont conservées.</translation>
    </message>
    <message numerus="yes">
        <source>Trail %1: %n entries</source>
        <translation>
            <numerusform>Piste d’audit %1&#x202f;: %n&#xa0;entrée</numerusform>
            <numerusform>Piste d’audit %1&#x202f;: %n&#xa0;entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>Entries 1 to %1 are vouched for by a checkpoint from outside.</source>
        <translation>Les entrées 1 à %1 sont garanties par un point de contrôle externe.</translation>
    </message>
    <message>
        <source>No checkpoint from outside vouches for any entry.</source>
        <translation>Aucun point de contrôle externe ne garantit d’entrée.</translation>
    </message>
    <message>
        <source>Entries %1 to %2 are consistent only in themselves.</source>
        <translation>Les entrées %1 à %2 ne sont cohérentes qu’entre elles.</translation>
    </message>
    <message>
        <source>Entries %1 to %2: disposed of, hashes kept.</source>
        <translation>Entrées %1 à %2&#x202f;: détruites, empreintes conservées.</translation>
    </message>
    <message>
        <source>Recorded by entry %1.</source>
        <translation>Consigné par l’entrée %1.</translation>
    </message>
    <message>
        <source>The trail is whole.</source>
        <translation>La piste d’audit est intacte.</translation>
    </message>
    <message>
        <source>THE TRAIL IS DAMAGED.</source>
        <translation>LA PISTE D’AUDIT EST ENDOMMAGÉE.</translation>
    </message>
    <message>
        <source>A checkpoint belongs to the trail &quot;%1&quot;, not to this one.</source>
        <translation>Un point de contrôle appartient à la piste d’audit «&#x202f;%1&#x202f;», et non à celle-ci.</translation>
    </message>
    <message>
        <source>The checkpoint at entry %1 is not signed by the key &quot;%2&quot;.</source>
        <translation>Le point de contrôle à l’entrée %1 n’est pas signé par la clé «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>The verification was cancelled.</source>
        <translation>La vérification a été annulée.</translation>
    </message>
    <message>
        <source>Entry %1 is missing.</source>
        <translation>L’entrée %1 manque.</translation>
    </message>
    <message>
        <source>The entries %1 to %2 are missing.</source>
        <translation>Les entrées %1 à %2 manquent.</translation>
    </message>
    <message>
        <source>Entry %1 stands in the place of entry %2.</source>
        <translation>L’entrée %1 est à la place de l’entrée %2.</translation>
    </message>
    <message>
        <source>Entry %1 was changed.</source>
        <translation>L’entrée %1 a été modifiée.</translation>
    </message>
    <message>
        <source>The columns beside entry %1 are not what the entry says.</source>
        <translation>Les colonnes à côté de l’entrée %1 ne disent pas ce que dit l’entrée.</translation>
    </message>
    <message>
        <source>The hash kept for the entries %1 to %2 is not theirs.</source>
        <translation>L’empreinte conservée pour les entrées %1 à %2 n’est pas la leur.</translation>
    </message>
    <message>
        <source>The head counts %1 entries, but there are %2.</source>
        <translation>La tête compte %1 entrées, mais il y en a %2.</translation>
    </message>
    <message>
        <source>The entries from %1 on are cut off; the head counts %2.</source>
        <translation>Les entrées à partir de %1 sont tronquées&#x202f;; la tête en compte %2.</translation>
    </message>
    <message>
        <source>The entries from %1 on are cut off; a checkpoint counts %2.</source>
        <translation>Les entrées à partir de %1 sont tronquées&#x202f;; un point de contrôle en compte %2.</translation>
    </message>
    <message>
        <source>The entries %1 to %2 are not those of the checkpoint at entry %2.</source>
        <translation>Les entrées %1 à %2 ne sont pas celles du point de contrôle à l’entrée %2.</translation>
    </message>
    <message>
        <source>The head&apos;s root is not that of the entries up to %1.</source>
        <translation>La racine de la tête n’est pas celle des entrées jusqu’à %1.</translation>
    </message>
    <message>
        <source>The bytes of entry %1 are gone, and no disposal is recorded.</source>
        <translation>Le contenu de l’entrée %1 a disparu, et aucune destruction n’est consignée.</translation>
    </message>
    <message>
        <source>The entry is in the audit trail &quot;%1&quot;, but the disk did not confirm it. Check the disk, and what was to be recorded.</source>
        <translation>L’entrée est dans la piste d’audit «&#x202f;%1&#x202f;», mais le disque ne l’a pas confirmée. Vérifiez le disque et ce qui devait être consigné.</translation>
    </message>
    <message>
        <source>Entry %1 is there, but is not found by its number.</source>
        <translation>L’entrée %1 est là, mais n’est pas trouvée par son numéro.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::EntryDetails</name>
    <message>
        <source>&amp;Entry</source>
        <translation>&amp;Entrée</translation>
    </message>
    <message>
        <source>Old &amp;value</source>
        <translation>A&amp;ncienne valeur</translation>
    </message>
    <message>
        <source>Ne&amp;w value</source>
        <translation>Nou&amp;velle valeur</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>As recorded</source>
        <translation>Heure consignée</translation>
    </message>
    <message>
        <source>In UTC</source>
        <translation>Heure UTC</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Authorised by</source>
        <translation>Autorisé par</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Belongs to the group of entry %1</source>
        <translation>Appartient au groupe de l’entrée %1</translation>
    </message>
    <message>
        <source>The value was changed later, last by entry %1</source>
        <translation>La valeur a été modifiée ensuite, en dernier par l’entrée %1</translation>
    </message>
</context>
<context>
    <name>ozm::audit::FilterBar</name>
    <message>
        <source>Sear&amp;ch:</source>
        <translation>Re&amp;chercher&#x202f;:</translation>
    </message>
    <message>
        <source>Text in any part of an entry</source>
        <translation>Texte dans n’importe quelle partie d’une entrée</translation>
    </message>
    <message>
        <source>&amp;Look for:</source>
        <translation>E&amp;xaminer&#x202f;:</translation>
    </message>
    <message>
        <source>Filte&amp;r</source>
        <translation>Fi&amp;ltre</translation>
    </message>
    <message>
        <source>Take this condition away</source>
        <translation>Retirer cette condition</translation>
    </message>
    <message>
        <source>Take away: %1</source>
        <translation>Retirer&#x202f;: %1</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Kind of subject</source>
        <translation>Type d’objet</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>Refused or failed</source>
        <translation>Refus ou échec</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Without a reason</source>
        <translation>Sans motif</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>The last 7 days</source>
        <translation>Les 7 derniers jours</translation>
    </message>
    <message>
        <source>The last 30 days</source>
        <translation>Les 30 derniers jours</translation>
    </message>
    <message>
        <source>From … until …</source>
        <translation>Du … au …</translation>
    </message>
</context>
<context>
    <name>ozm::audit::ReasonDialog</name>
    <message>
        <source>Reason for the change</source>
        <translation>Motif de la modification</translation>
    </message>
    <message>
        <source>&amp;Reason (if any):</source>
        <translation>&amp;Motif (facultatif)&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Reason:</source>
        <translation>&amp;Motif&#x202f;:</translation>
    </message>
</context>
<context>
    <name>ozm::audit::ReviewDialog</name>
    <message>
        <source>Say in the comment what was found.</source>
        <translation>Indiquez dans le commentaire ce qui a été constaté.</translation>
    </message>
    <message>
        <source>Record a review</source>
        <translation>Consigner une revue</translation>
    </message>
    <message>
        <source>Numbers of entries, such as 3, 7-9</source>
        <translation>Numéros d’entrées, par exemple 3, 7-9</translation>
    </message>
    <message>
        <source>&amp;Record review</source>
        <translation>&amp;Consigner la revue</translation>
    </message>
    <message>
        <source>Reviewer:</source>
        <translation>Revue par&#x202f;:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre&#x202f;:</translation>
    </message>
    <message>
        <source>Entries:</source>
        <translation>Entrées&#x202f;:</translation>
    </message>
    <message>
        <source>%L1 of %L2, up to entry %3; %L4 of them not reviewed before</source>
        <translation>%L1 sur %L2, jusqu’à l’entrée %3&#x202f;; %L4 d’entre elles pas encore revues</translation>
    </message>
    <message>
        <source>You made some of these entries yourself. The review is recorded as not independent.</source>
        <translation>Vous êtes l’auteur de certaines de ces entrées. La revue est consignée comme non indépendante.</translation>
    </message>
    <message>
        <source>&amp;Outcome:</source>
        <translation>&amp;Résultat&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Comment:</source>
        <translation>Co&amp;mmentaire&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Discrepancies:</source>
        <translation>Écar&amp;ts&#x202f;:</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SignDialog</name>
    <message>
        <source>Signing as %1. The password confirms it.</source>
        <translation>Signature en tant que %1. Le mot de passe la confirme.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Signer</translation>
    </message>
    <message>
        <source>Digest of what is signed</source>
        <translation>Empreinte de ce qui est signé</translation>
    </message>
    <message>
        <source>Approved</source>
        <translation>Approbation</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Revue</translation>
    </message>
    <message>
        <source>Responsible for the content</source>
        <translation>Responsabilité du contenu</translation>
    </message>
    <message>
        <source>&amp;Sign</source>
        <translation>&amp;Signer</translation>
    </message>
    <message>
        <source>&amp;What is signed:</source>
        <translation>&amp;Contenu signé&#x202f;:</translation>
    </message>
    <message>
        <source>Digest (SHA-256):</source>
        <translation>Empreinte (SHA-256)&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Meaning:</source>
        <translation>Si&amp;gnification&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;User id:</source>
        <translation>&amp;Identifiant&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#x202f;:</translation>
    </message>
    <message>
        <source>A signature stands for your name, and cannot be taken back.</source>
        <translation>Une signature engage votre nom et ne peut pas être retirée.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SigningSession</name>
    <message>
        <source>This is another person.</source>
        <translation>C’est une autre personne.</translation>
    </message>
    <message>
        <source>Say who signs.</source>
        <translation>Indiquez qui signe.</translation>
    </message>
    <message>
        <source>The session has ended: id and password are both needed.</source>
        <translation>La session est terminée&#x202f;: l’identifiant et le mot de passe sont tous deux requis.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::SubjectHistory</name>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifié</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Select two rows to compare their states.</source>
        <translation>Sélectionnez deux lignes pour comparer leurs états.</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>Historique de %1</translation>
    </message>
    <message>
        <source>States of the subject, oldest first</source>
        <translation>États de l’objet, du plus ancien au plus récent</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>After entry %1</source>
        <translation>Après l’entrée %1</translation>
    </message>
    <message>
        <source>The states after entries %1 and %2 are the same.</source>
        <translation>Les états après les entrées %1 et %2 sont identiques.</translation>
    </message>
    <message>
        <source>The states after entries %1 and %2 differ in %3 of %4 attributes.</source>
        <translation>Attributs qui diffèrent entre les états après les entrées %1 et %2&#x202f;: %3 sur %4.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::TrailModel</name>
    <message>
        <source>The trail is still being searched.</source>
        <translation>La recherche dans la piste d’audit n’est pas terminée.</translation>
    </message>
    <message>
        <source>The filter shows too many separate entries. Narrow it, by time for instance.</source>
        <translation>Le filtre laisse trop d’entrées éparses. Restreignez-le, par exemple par l’heure.</translation>
    </message>
    <message>
        <source>Sorting by &quot;%1&quot; would have to read all %L2 entries: the store keeps them in order of time. Narrow the filter to %L3 entries or fewer.</source>
        <translation>Pour trier par «&#x202f;%1&#x202f;», il faudrait lire les %L2 entrées&#x202f;: elles sont conservées dans l’ordre chronologique. Restreignez le filtre à %L3 entrées au plus.</translation>
    </message>
    <message>
        <source>Sorted by this column when %L1 entries or fewer are shown.</source>
        <translation>Le tri par cette colonne se fait lorsque %L1 entrées au plus sont affichées.</translation>
    </message>
</context>
<context>
    <name>ozm::audit::TrailView</name>
    <message>
        <source>Audit trail</source>
        <translation>Piste d’audit</translation>
    </message>
    <message>
        <source>Go to entry</source>
        <translation>Aller à l’entrée</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numéro&#x202f;:</translation>
    </message>
    <message>
        <source>printed, %1</source>
        <translation>imprimé, %1</translation>
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
        <translation>Nouveau dossier pour la copie d’inspection</translation>
    </message>
    <message>
        <source>Making an inspection copy …</source>
        <translation>Création d’une copie d’inspection…</translation>
    </message>
    <message>
        <source>Inspection copy</source>
        <translation>Copie d’inspection</translation>
    </message>
    <message>
        <source>The copy is in &quot;%1&quot;.</source>
        <translation>La copie est dans «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Verifying the trail …</source>
        <translation>Vérification de la piste d’audit…</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Save filter</source>
        <translation>Enregistrer le filtre</translation>
    </message>
    <message>
        <source>Filters (*.trailfilter)</source>
        <translation>Filtres (*.trailfilter)</translation>
    </message>
    <message>
        <source>Open filter</source>
        <translation>Ouvrir un filtre</translation>
    </message>
    <message>
        <source>S&amp;ign …</source>
        <translation>&amp;Signer…</translation>
    </message>
    <message>
        <source>&amp;Review …</source>
        <translation>&amp;Revue…</translation>
    </message>
    <message>
        <source>&amp;History of the subject …</source>
        <translation>Histori&amp;que de l’objet…</translation>
    </message>
    <message>
        <source>Show the &amp;object</source>
        <translation>Afficher l’o&amp;bjet</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>Dé&amp;tails</translation>
    </message>
    <message>
        <source>&amp;Go to entry …</source>
        <translation>&amp;Aller à l’entrée…</translation>
    </message>
    <message>
        <source>&amp;Print …</source>
        <translation>Im&amp;primer…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF …</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>Save as CS&amp;V …</source>
        <translation>Enregistrer en CS&amp;V…</translation>
    </message>
    <message>
        <source>Inspection &amp;copy …</source>
        <translation>&amp;Copie d’inspection…</translation>
    </message>
    <message>
        <source>Verif&amp;y …</source>
        <translation>Vér&amp;ifier…</translation>
    </message>
    <message>
        <source>Save &amp;filter …</source>
        <translation>Enregistrer le &amp;filtre…</translation>
    </message>
    <message>
        <source>Open fi&amp;lter …</source>
        <translation>&amp;Ouvrir un filtre…</translation>
    </message>
    <message>
        <source>Entries of the audit trail</source>
        <translation>Entrées de la piste d’audit</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>He&amp;ure&#x202f;:</translation>
    </message>
    <message>
        <source>here</source>
        <translation>locale</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>as recorded</source>
        <translation>telle que consignée</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Plus</translation>
    </message>
    <message>
        <source>%L1 of %L2 entries shown, none hidden.</source>
        <translation>Entrées affichées&#x202f;: %L1 sur %L2, aucune masquée.</translation>
    </message>
    <message>
        <source>%L1 of %L2 entries shown, %L3 hidden by the filter.</source>
        <translation>Entrées affichées&#x202f;: %L1 sur %L2, masquées par le filtre&#x202f;: %L3.</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Not reviewed: %L1.</source>
        <translation>Non revues&#x202f;: %L1.</translation>
    </message>
    <message>
        <source>Not yet on disk: %L1.</source>
        <translation>Pas encore sur disque&#x202f;: %L1.</translation>
    </message>
    <message>
        <source>States are known up to entry %L1.</source>
        <translation>Les états sont connus jusqu’à l’entrée %L1.</translation>
    </message>
    <message>
        <source>Only this user</source>
        <translation>Cet utilisateur seulement</translation>
    </message>
    <message>
        <source>Only this subject</source>
        <translation>Cet objet seulement</translation>
    </message>
    <message>
        <source>Only this session</source>
        <translation>Cette session seulement</translation>
    </message>
</context>
<context>
    <name>ozm::audit::WidgetTexts</name>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Deletions</source>
        <translation>Suppressions</translation>
    </message>
    <message>
        <source>Changes after a signature</source>
        <translation>Modifications après une signature</translation>
    </message>
    <message>
        <source>Changed again and again, or back</source>
        <translation>Valeurs modifiées à répétition ou rétablies</translation>
    </message>
    <message>
        <source>Refused or failed steps</source>
        <translation>Opérations refusées ou échouées</translation>
    </message>
    <message>
        <source>Out of hours</source>
        <translation>Hors horaires de travail</translation>
    </message>
    <message>
        <source>Clock jumps, gaps and damages</source>
        <translation>Sauts d’horloge, lacunes et dommages</translation>
    </message>
    <message>
        <source>Undone after saving</source>
        <translation>Annulations après enregistrement</translation>
    </message>
    <message>
        <source>Settings and rights</source>
        <translation>Paramètres et droits</translation>
    </message>
    <message>
        <source>Out of hours (%1 to %2)</source>
        <translation>Hors horaires de travail (%1 à %2)</translation>
    </message>
    <message>
        <source>Kind: %1</source>
        <translation>Type&#x202f;: %1</translation>
    </message>
    <message>
        <source>Subject: %1</source>
        <translation>Objet&#x202f;: %1</translation>
    </message>
    <message>
        <source>Outcome: succeeded</source>
        <translation>Résultat&#x202f;: succès</translation>
    </message>
    <message>
        <source>Outcome: refused or failed</source>
        <translation>Résultat&#x202f;: refus ou échec</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Utilisateur&#x202f;: %1</translation>
    </message>
    <message>
        <source>Attribute: %1</source>
        <translation>Attribut&#x202f;: %1</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>À partir de %1</translation>
    </message>
    <message>
        <source>Until %1</source>
        <translation>Jusqu’à %1</translation>
    </message>
    <message>
        <source>Without a reason</source>
        <translation>Sans motif</translation>
    </message>
    <message>
        <source>Session: %1</source>
        <translation>Session&#x202f;: %1</translation>
    </message>
    <message>
        <source>Text: &quot;%1&quot;</source>
        <translation>Texte&#x202f;: «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>This is not a filter of an audit trail.</source>
        <translation>Ceci n’est pas un filtre d’une piste d’audit.</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
    <message>
        <source>The filter cannot be saved as &quot;%1&quot;: %2</source>
        <translation>Le filtre ne peut pas être enregistré sous «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>The filter &quot;%1&quot; cannot be read: %2</source>
        <translation>Impossible de lire le filtre «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Group of changes</source>
        <translation>Groupe de modifications</translation>
    </message>
    <message>
        <source>End of a group</source>
        <translation>Fin d’un groupe</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Setting or right</source>
        <translation>Paramètre ou droit</translation>
    </message>
    <message>
        <source>Reason given later</source>
        <translation>Motif donné après coup</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Revue</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Disposal</source>
        <translation>Destruction</translation>
    </message>
    <message>
        <source>Redaction</source>
        <translation>Caviardage</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lacune</translation>
    </message>
    <message>
        <source>Recorded damage</source>
        <translation>Dommage consigné</translation>
    </message>
    <message>
        <source>A session began</source>
        <translation>Une session a commencé</translation>
    </message>
    <message>
        <source>The session ended</source>
        <translation>La session est terminée</translation>
    </message>
    <message>
        <source>The clock jumped</source>
        <translation>L’horloge a sauté</translation>
    </message>
    <message>
        <source>A copy of the trail was made</source>
        <translation>Une copie de la piste d’audit a été créée</translation>
    </message>
    <message>
        <source>An archive of the trail was made</source>
        <translation>Une archive de la piste d’audit a été créée</translation>
    </message>
    <message>
        <source>A former trail was imported</source>
        <translation>Une ancienne piste d’audit a été importée</translation>
    </message>
    <message>
        <source>A signer signed in</source>
        <translation>Un signataire s’est identifié</translation>
    </message>
    <message>
        <source>A sign-in failed</source>
        <translation>Une identification a échoué</translation>
    </message>
    <message>
        <source>Signing was locked</source>
        <translation>La signature a été verrouillée</translation>
    </message>
    <message>
        <source>The trail was verified</source>
        <translation>La piste d’audit a été vérifiée</translation>
    </message>
    <message>
        <source>The trail was printed or exported</source>
        <translation>La piste d’audit a été imprimée ou exportée</translation>
    </message>
    <message>
        <source>Signed entries %1: %2</source>
        <translation>Entrées %1 signées&#x202f;: %2</translation>
    </message>
    <message>
        <source>Reviewed up to entry %1 (%2): %3</source>
        <translation>Revue jusqu’à l’entrée %1 (%2)&#x202f;: %3</translation>
    </message>
    <message>
        <source>Disposed of the content of entries %1 to %2</source>
        <translation>Contenu des entrées %1 à %2 détruit</translation>
    </message>
    <message>
        <source>by %1 s</source>
        <translation>de %1&#xa0;s</translation>
    </message>
    <message>
        <source>The group of entry %1 is complete</source>
        <translation>Le groupe de l’entrée %1 est complet</translation>
    </message>
    <message>
        <source>Something may be missing: %1</source>
        <translation>Il manque peut-être quelque chose&#x202f;: %1</translation>
    </message>
    <message>
        <source>A damage was found and recorded</source>
        <translation>Un dommage a été constaté et consigné</translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation>Erreur %1</translation>
    </message>
    <message>
        <source>(The content was disposed of.)</source>
        <translation>(Le contenu a été détruit.)</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Heure (UTC)</translation>
    </message>
    <message>
        <source>Time (here: %1)</source>
        <translation>Heure (locale&#x202f;: %1)</translation>
    </message>
    <message>
        <source>Time (as recorded)</source>
        <translation>Heure (telle que consignée)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list of entry numbers, such as &quot;3, 7-9&quot;.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une liste de numéros d’entrées telle que «&#x202f;3, 7-9&#x202f;».</translation>
    </message>
    <message>
        <source>Not yet on disk</source>
        <translation>Pas encore sur disque</translation>
    </message>
    <message>
        <source>Refused or failed</source>
        <translation>Refus ou échec</translation>
    </message>
    <message>
        <source>Changed since signed</source>
        <translation>Modifiée depuis la signature</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Inachevée</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>Disposed of</source>
        <translation>Détruite</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signée</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Revue</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Ancienne valeur</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Nouvelle valeur</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Changed since this entry, last by entry %1</source>
        <translation>Modifiée depuis cette entrée, en dernier par l’entrée %1</translation>
    </message>
    <message>
        <source>The trail is still being searched.</source>
        <translation>La recherche dans la piste d’audit n’est pas terminée.</translation>
    </message>
    <message>
        <source>%L1 entries are too many for paper. Narrow the filter to %L2, or make an inspection copy.</source>
        <translation>%L1 entrées, c’est trop pour du papier. Restreignez le filtre à %L2, ou créez une copie d’inspection.</translation>
    </message>
    <message>
        <source>Trail</source>
        <translation>Piste d’audit</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>entries %1 to %2</source>
        <translation>entrées %1 à %2</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Établi par</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Établi le</translation>
    </message>
    <message>
        <source>Checkpoint: %1 entries, root %2</source>
        <translation>Point de contrôle (entrées&#x202f;: %1), racine %2</translation>
    </message>
    <message>
        <source>Audit trail</source>
        <translation>Piste d’audit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>Checkpoint</source>
        <translation>Point de contrôle</translation>
    </message>
    <message>
        <source>No findings</source>
        <translation>Aucun constat</translation>
    </message>
    <message>
        <source>Findings, dealt with</source>
        <translation>Constats, traités</translation>
    </message>
    <message>
        <source>Findings, handed on</source>
        <translation>Constats, transmis</translation>
    </message>
    <message>
        <source>Select the entries to be signed.</source>
        <translation>Sélectionnez les entrées à signer.</translation>
    </message>
    <message>
        <source>One signature covers %L1 entries at most. Select fewer.</source>
        <translation>Une signature couvre au plus %L1 entrées. Sélectionnez-en moins.</translation>
    </message>
    <message>
        <source>An entry whose content is gone cannot be signed.</source>
        <translation>Une entrée dont le contenu a disparu ne peut pas être signée.</translation>
    </message>
    <message>
        <source>and %L1 more</source>
        <translation>et %L1 de plus</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Entrée %1</translation>
    </message>
    <message>
        <source>%L1 entries: %2</source>
        <translation>%L1 entrées&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1, about %2</source>
        <translation>%1, concernant %2</translation>
    </message>
    <message>
        <source>The entries are not those that signature %1 was given for.</source>
        <translation>Les entrées ne sont pas celles pour lesquelles la signature %1 a été donnée.</translation>
    </message>
    <message>
        <source>%1: signed by %2 on %3 (entry %4)</source>
        <translation>%1&#x202f;: signé par %2 le %3 (entrée %4)</translation>
    </message>
    <message>
        <source>Range of time</source>
        <translation>Intervalle de temps</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Début&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Until:</source>
        <translation>&amp;Fin&#x202f;:</translation>
    </message>
    <message>
        <source>Working hours, Monday to Friday</source>
        <translation>Horaires de travail, du lundi au vendredi</translation>
    </message>
</context>
</TS>

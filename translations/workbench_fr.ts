<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AddSampleCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
</context>
<context>
    <name>AuditTrailCsv</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>AuditTrailJson</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>the quote that begins here is never closed.</source>
        <translation>le guillemet ouvert ici n’est jamais refermé.</translation>
    </message>
    <message>
        <source>there is text after a closing quote.</source>
        <translation>du texte suit un guillemet fermant.</translation>
    </message>
    <message>
        <source>the text is not UTF-8.</source>
        <translation>le texte n’est pas en UTF-8.</translation>
    </message>
</context>
<context>
    <name>DataSamples</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>DeleteSampleCommand</name>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>FirstStepsData</name>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>SampleCommand</name>
    <message>
        <source>The sample was removed from the table.</source>
        <translation>L’échantillon n’est plus dans le tableau.</translation>
    </message>
</context>
<context>
    <name>SampleRules</name>
    <message>
        <source>The name must not be empty.</source>
        <translation>Le nom ne doit pas être vide.</translation>
    </message>
    <message>
        <source>The sequence may hold letters only, not &quot;%1&quot;.</source>
        <translation>La séquence ne peut contenir que des lettres, pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The charge must be a whole number from 1 to 200, or empty, not &quot;%1&quot;.</source>
        <translation>La charge doit être un nombre entier de 1 à 200, ou vide, pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The mass must be a positive number, not &quot;%1&quot;.</source>
        <translation>La masse doit être un nombre positif, pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The kind must be &quot;file&quot;, &quot;folder&quot; or empty, not &quot;%1&quot;.</source>
        <translation>Le type doit être «&#x202f;file&#x202f;», «&#x202f;folder&#x202f;» ou vide, pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The size must be a number of bytes, or empty, not &quot;%1&quot;.</source>
        <translation>La taille doit être un nombre d’octets, ou vide, pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; does not exist.</source>
        <translation>Il n’y a pas de colonne «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>A sample with data needs its &quot;%1&quot;.</source>
        <translation>Un échantillon avec des données doit avoir «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is for samples with a data format only.</source>
        <translation>«&#x202f;%1&#x202f;» est réservé aux échantillons qui ont un format de données.</translation>
    </message>
</context>
<context>
    <name>SetCellCommand</name>
    <message>
        <source>Set %1 of %2</source>
        <translation>Modifier %1 de %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what was found on the disk, and cannot be typed.</source>
        <translation>«&#x202f;%1&#x202f;» a été relevé sur le disque et ne peut pas être saisi.</translation>
    </message>
</context>
<context>
    <name>TrailStore</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Work on &lt;input&gt;, a CSV file, MS data or a folder of MS data, without a user, then end.</source>
        <translation>Traiter &lt;input&gt;, un fichier CSV, des données MS ou un dossier de données MS, sans utilisateur, puis quitter.</translation>
    </message>
    <message>
        <source>Folder for a batch run&apos;s results.</source>
        <translation>Dossier des résultats d’un traitement par lots.</translation>
    </message>
    <message>
        <source>File that holds the audit trail, or its address.</source>
        <translation>Fichier qui contient la piste d’audit, ou son adresse.</translation>
    </message>
    <message>
        <source>Name to record; by default that of the login.</source>
        <translation>Nom à consigner&#x202f;; à défaut, celui de la session du système.</translation>
    </message>
    <message>
        <source>--steps needs a number.</source>
        <translation>--steps demande un nombre.</translation>
    </message>
    <message>
        <source>--batch needs --out, the folder for its results.</source>
        <translation>--batch demande --out, le dossier de ses résultats.</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Atelier</translation>
    </message>
    <message>
        <source>Edits samples and their annotations, every step recorded.</source>
        <translation>Modifie des échantillons et leurs annotations&#x202f;; chaque opération est consignée.</translation>
    </message>
    <message>
        <source>CSV file of samples to open.</source>
        <translation>Fichier CSV d’échantillons à ouvrir.</translation>
    </message>
    <message>
        <source>Leave pictures of the windows, on sample data, in &lt;folder&gt;, then end.</source>
        <translation>Laisser des images des fenêtres, avec des données d’exemple, dans &lt;folder&gt;, puis quitter.</translation>
    </message>
    <message>
        <source>Begin with the first steps, on sample data.</source>
        <translation>Commencer par les premiers pas, avec des données d’exemple.</translation>
    </message>
    <message>
        <source>A batch run&apos;s report on each sample: all in &quot;one&quot; file certificates.pdf, or a file for &quot;each&quot; in a folder certificates.</source>
        <translation>Rapports d’un traitement par lots sur chaque échantillon&#x202f;: tous dans un seul fichier certificates.pdf («&#x202f;one&#x202f;»), ou un fichier pour chacun dans un dossier certificates («&#x202f;each&#x202f;»).</translation>
    </message>
    <message>
        <source>Template for --reports; by default the sample certificate.</source>
        <translation>Modèle pour --reports&#x202f;; par défaut, le certificat d’échantillon.</translation>
    </message>
    <message>
        <source>--reports needs &quot;one&quot; or &quot;each&quot;.</source>
        <translation>--reports demande «&#x202f;one&#x202f;» ou «&#x202f;each&#x202f;».</translation>
    </message>
</context>
<context>
    <name>ozm</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Made by the workbench</source>
        <translation>Produit par l’atelier</translation>
    </message>
</context>
<context>
    <name>workbench</name>
    <message>
        <source>recorded %1: </source>
        <translation>consigné %1&#x202f;: </translation>
    </message>
    <message>
        <source> - refused: </source>
        <translation> - refusé&#x202f;: </translation>
    </message>
    <message>
        <source>size unknown</source>
        <translation>taille inconnue</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1&#xa0;octets</translation>
    </message>
    <message>
        <source>found %1: %2 (%3), %4, %5</source>
        <translation>trouvé %1&#x202f;: %2 (%3), %4, %5</translation>
    </message>
    <message>
        <source>passed over %1: %2</source>
        <translation>ignoré %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to. Choose another with --out.</source>
        <translation>Impossible d’écrire dans le dossier «&#x202f;%1&#x202f;». Choisissez-en un autre avec --out.</translation>
    </message>
    <message>
        <source>%1 has no value.</source>
        <translation>%1 n’a pas de valeur.</translation>
    </message>
    <message>
        <source>A script failed in its line %1: %2</source>
        <translation>Un script a échoué à sa ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 came in with a value.</source>
        <translation>%1 vient d’une valeur.</translation>
    </message>
    <message>
        <source>%1 cannot be followed. %2</source>
        <translation>%1 ne peut pas être appliqué. %2</translation>
    </message>
    <message>
        <source>Sample certificate</source>
        <translation>Certificat d’échantillon</translation>
    </message>
    <message>
        <source>Sample list</source>
        <translation>Liste d’échantillons</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Batch summary</source>
        <translation>Synthèse de lot</translation>
    </message>
    <message>
        <source>Sequence coverage</source>
        <translation>Couverture de la séquence</translation>
    </message>
</context>
<context>
    <name>workbench::AddSampleDialog</name>
    <message>
        <source>Add sample</source>
        <translation>Ajouter un échantillon</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>workbench::AuditTrail</name>
    <message>
        <source>Unknown record, kept as stored: %1</source>
        <translation>Enregistrement inconnu, conservé tel quel&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>workbench::DataFinder</name>
    <message>
        <source>&quot;%1&quot; was passed over: %2</source>
        <translation>«&#x202f;%1&#x202f;» a été ignoré&#x202f;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>«&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>workbench::DataImport</name>
    <message>
        <source>&quot;%1&quot;: It is not on a disk of this computer.</source>
        <translation>«&#x202f;%1&#x202f;»&#x202f;: ne se trouve pas sur un disque de cet ordinateur.</translation>
    </message>
    <message>
        <source>Nothing was added, because a search for data is running.</source>
        <translation>Rien n’a été ajouté, car une recherche de données est en cours.</translation>
    </message>
    <message>
        <source>The search was canceled; nothing was added.</source>
        <translation>La recherche a été annulée&#x202f;; rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>Rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2</source>
        <translation>«&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>1 sample with data was added</source>
        <translation>Échantillons avec données ajoutés&#x202f;: 1</translation>
    </message>
    <message>
        <source>%1 samples with data were added</source>
        <translation>Échantillons avec données ajoutés&#x202f;: %1</translation>
    </message>
    <message>
        <source>, %1 are in the table already</source>
        <translation>, déjà présents dans le tableau&#x202f;: %1</translation>
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
        <translation>Recherche de données en cours</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>End the search; nothing is added</source>
        <translation>Arrêter la recherche&#x202f;; rien n’est ajouté</translation>
    </message>
    <message>
        <source>Looking for data: %1 searched, %2 found</source>
        <translation>Recherche de données&#x202f;: %1 examinés, %2 trouvés</translation>
    </message>
</context>
<context>
    <name>workbench::DemonstrationAuthenticator</name>
    <message>
        <source>User id or password is wrong.</source>
        <translation>L’identifiant ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>The demonstration&apos;s signers cannot be read from &quot;%1&quot;: %2</source>
        <translation>Impossible de lire les signataires de la démonstration dans «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>workbench::FirstStepsPage</name>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>The samples, the data and the audit trail of this window are made up, and go when the program ends. Nothing of yours is touched.</source>
        <translation>Les échantillons, les données et la piste d’audit de cette fenêtre sont inventés et disparaissent à la fin du programme. Rien de ce qui est à vous n’est touché.</translation>
    </message>
    <message>
        <source>Begin with own samples</source>
        <translation>Commencer avec vos échantillons</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>In code: %1</source>
        <translation>Dans le code&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 - tried</source>
        <translation>%1 - essayé</translation>
    </message>
</context>
<context>
    <name>workbench::FirstStepsSession</name>
    <message>
        <source>Undo, and a trail of it</source>
        <translation>Annuler, avec une piste d’audit</translation>
    </message>
    <message>
        <source>Each step is in the audit trail before it is made: edits, several in one, undo, and what was refused.</source>
        <translation>Chaque opération figure dans la piste d’audit avant d’être exécutée&#x202f;: modifications, groupées ou non, annulations et refus.</translation>
    </message>
    <message>
        <source>Undo a step</source>
        <translation>Annuler une opération</translation>
    </message>
    <message>
        <source>Data of instruments</source>
        <translation>Données d’instruments</translation>
    </message>
    <message>
        <source>Files and folders of many vendors are told apart in a handful of system calls, on a thread of their own.</source>
        <translation>Les fichiers et dossiers de nombreux fabricants sont reconnus en quelques appels système, dans un fil d’exécution à part.</translation>
    </message>
    <message>
        <source>Find the data in a folder</source>
        <translation>Rechercher les données d’un dossier</translation>
    </message>
    <message>
        <source>Files and dialogs</source>
        <translation>Fichiers et boîtes de dialogue</translation>
    </message>
    <message>
        <source>One dialog picks data files and raw folders together, and says beforehand what each holds.</source>
        <translation>Une seule boîte de dialogue choisit ensemble fichiers de données et dossiers de données brutes, et dit d’avance ce que chacun contient.</translation>
    </message>
    <message>
        <source>Choose data…</source>
        <translation>Choisir des données…</translation>
    </message>
    <message>
        <source>Messages from any thread</source>
        <translation>Messages de n’importe quel fil d’exécution</translation>
    </message>
    <message>
        <source>A thread that has a question asks it in one line, and waits for the answer.</source>
        <translation>Un fil d’exécution qui a une question la pose en une ligne et attend la réponse.</translation>
    </message>
    <message>
        <source>Ask from another thread</source>
        <translation>Demander depuis un autre fil d’exécution</translation>
    </message>
    <message>
        <source>Reports from templates</source>
        <translation>Rapports à partir de modèles</translation>
    </message>
    <message>
        <source>Texts with codes such as [Name] and pieces of JavaScript, filled with the chosen samples. &quot;Edit report template…&quot; opens the editor for them.</source>
        <translation>Des textes avec des champs tels que [Name] et des fragments de JavaScript, remplis avec les échantillons choisis. «&#x202f;Modifier le modèle de rapport…&#x202f;» ouvre leur éditeur.</translation>
    </message>
    <message>
        <source>Preview a report</source>
        <translation>Voir un rapport</translation>
    </message>
    <message>
        <source>A folder for the sample data could not be made: %1</source>
        <translation>Impossible de créer un dossier pour les données d’exemple&#x202f;: %1</translation>
    </message>
    <message>
        <source>CDR-H2, isomers of Asp seen</source>
        <translation>CDR-H2, isomères d’Asp observés</translation>
    </message>
    <message>
        <source>* (week 0)</source>
        <translation>* (semaine 0)</translation>
    </message>
    <message>
        <source>Co-elutes with HC-T23</source>
        <translation>Coélue avec HC-T23</translation>
    </message>
    <message>
        <source>First steps[*] - Workbench</source>
        <translation>Premiers pas[*] - Atelier</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Redone: %1. The last entry of the trail says so.</source>
        <translation>Rétabli&#x202f;: %1. La dernière entrée de la piste d’audit le dit.</translation>
    </message>
    <message>
        <source>Undone: %1. The last entry of the trail says so.</source>
        <translation>Annulé&#x202f;: %1. La dernière entrée de la piste d’audit le dit.</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>Rien n’a été choisi.</translation>
    </message>
    <message>
        <source>Another thread asks</source>
        <translation>Un autre fil d’exécution demande</translation>
    </message>
    <message>
        <source>Shall the measurement go on?</source>
        <translation>Faut-il poursuivre la mesure&#x202f;?</translation>
    </message>
    <message>
        <source>The thread was told to go on.</source>
        <translation>Le fil d’exécution a reçu l’ordre de continuer.</translation>
    </message>
    <message>
        <source>The thread was told to stop.</source>
        <translation>Le fil d’exécution a reçu l’ordre de s’arrêter.</translation>
    </message>
    <message>
        <source>It can be saved as PDF and as HTML.</source>
        <translation>Il peut être enregistré en PDF et en HTML.</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryModel</name>
    <message>
        <source>No edits yet</source>
        <translation>Aucune modification</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>État à l’ouverture</translation>
    </message>
</context>
<context>
    <name>workbench::HistoryView</name>
    <message>
        <source>History of edits</source>
        <translation>Historique des modifications</translation>
    </message>
    <message>
        <source>Double-click a state to go there</source>
        <translation>Double-cliquez sur un état pour y revenir</translation>
    </message>
</context>
<context>
    <name>workbench::MainActions</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open samples from a CSV file</source>
        <translation>Ouvrir des échantillons d’un fichier CSV</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the samples to a CSV file</source>
        <translation>Enregistrer les échantillons dans un fichier CSV</translation>
    </message>
    <message>
        <source>Open MS data…</source>
        <translation>Ouvrir des données MS…</translation>
    </message>
    <message>
        <source>Choose mass-spectrometry data, files and folders, and add it as samples</source>
        <translation>Choisir des données de spectrométrie de masse, fichiers et dossiers, et les ajouter comme échantillons</translation>
    </message>
    <message>
        <source>Find MS data…</source>
        <translation>Rechercher des données MS…</translation>
    </message>
    <message>
        <source>Find the mass-spectrometry data in a folder, and add it as samples</source>
        <translation>Rechercher les données de spectrométrie de masse d’un dossier et les ajouter comme échantillons</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add a sample</source>
        <translation>Ajouter un échantillon</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete the chosen samples</source>
        <translation>Supprimer les échantillons choisis</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Rename the chosen samples in one step</source>
        <translation>Renommer les échantillons choisis en une seule opération</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>List MS data…</source>
        <translation>Lister les données MS…</translation>
    </message>
    <message>
        <source>Save a CSV file that lists the mass-spectrometry data in a folder</source>
        <translation>Enregistrer un fichier CSV qui énumère les données de spectrométrie de masse d’un dossier</translation>
    </message>
    <message>
        <source>Export trail</source>
        <translation>Exporter la piste</translation>
    </message>
    <message>
        <source>Export the audit trail as JSON or CSV</source>
        <translation>Exporter la piste d’audit en JSON ou en CSV</translation>
    </message>
    <message>
        <source>Report…</source>
        <translation>Rapport…</translation>
    </message>
    <message>
        <source>Make a report on the chosen samples, or on all when none is chosen</source>
        <translation>Établir un rapport sur les échantillons choisis, ou sur tous si aucun n’est choisi</translation>
    </message>
    <message>
        <source>Edit report template…</source>
        <translation>Modifier le modèle de rapport…</translation>
    </message>
    <message>
        <source>Write the template of a report, with the chosen samples as its preview</source>
        <translation>Écrire le modèle d’un rapport, avec les échantillons choisis en aperçu</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Look at icons and messages, in light and dark</source>
        <translation>Voir les icônes et les messages, en clair et en sombre</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Samples</source>
        <translation>Éc&amp;hantillons</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Edit samples</source>
        <translation>Modifier les échantillons</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler&#x202f;: %1</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Rien à annuler</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir&#x202f;: %1</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Rien à rétablir</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Open a window on made-up samples that leads through what can be done</source>
        <translation>Ouvrir une fenêtre sur des échantillons inventés, qui guide à travers ce qu’il est possible de faire</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Afficha&amp;ge</translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>No samples yet.

Open a CSV file, find MS data, drop data here, or add a sample.</source>
        <translation>Aucun échantillon.

Ouvrez un fichier CSV, recherchez des données MS, déposez des données ici ou ajoutez un échantillon.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Audit trail</source>
        <translation>Piste d’audit</translation>
    </message>
    <message>
        <source>The table has no sample &quot;%1&quot; now.</source>
        <translation>Il n’y a plus d’échantillon «&#x202f;%1&#x202f;» dans le tableau.</translation>
    </message>
    <message>
        <source>Recorded in %1</source>
        <translation>Consigné dans %1</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporté dans %1</translation>
    </message>
    <message>
        <source>Rename samples</source>
        <translation>Renommer les échantillons</translation>
    </message>
    <message>
        <source>New name of the %1 chosen samples.
* stands for the old name, # for a number.</source>
        <translation>Nouveau nom des %1 échantillons choisis.
* remplace l’ancien nom, # un numéro.</translation>
    </message>
    <message>
        <source>the open table</source>
        <translation>le tableau ouvert</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Non exécuté</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>À noter</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>Échantillons&#x202f;: 1</translation>
    </message>
    <message>
        <source>%1 samples</source>
        <translation>Échantillons&#x202f;: %1</translation>
    </message>
    <message>
        <source>Workbench[*]</source>
        <translation>Atelier[*]</translation>
    </message>
    <message>
        <source>%1[*] - Workbench</source>
        <translation>%1[*] - Atelier</translation>
    </message>
    <message>
        <source>Unsaved samples</source>
        <translation>Échantillons non enregistrés</translation>
    </message>
    <message>
        <source>The samples have changed. Save them first?</source>
        <translation>Les échantillons ont été modifiés. Les enregistrer d’abord&#x202f;?</translation>
    </message>
</context>
<context>
    <name>workbench::ReportDialog</name>
    <message>
        <source>&amp;One by one</source>
        <translation>&amp;Un par un</translation>
    </message>
    <message>
        <source>As a &amp;group</source>
        <translation>En &amp;groupe</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>Report on 1 sample</source>
        <translation>Rapport sur 1&#xa0;échantillon</translation>
    </message>
    <message>
        <source>Report on %1 samples</source>
        <translation>Rapport sur %1&#xa0;échantillons</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Template:</source>
        <translation>&amp;Modèle&#x202f;:</translation>
    </message>
    <message>
        <source>Ot&amp;her…</source>
        <translation>&amp;Autre…</translation>
    </message>
    <message>
        <source>Takes a template that was saved in the template editor</source>
        <translation>Utilise un modèle enregistré dans l’éditeur de modèles</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>A &amp;file for each</source>
        <translation>Un &amp;fichier pour chacun</translation>
    </message>
    <message>
        <source>Report %1 of %2: %3</source>
        <translation>Rapport %1 sur %2&#x202f;: %3</translation>
    </message>
    <message>
        <source>Canceled. Nothing was saved.</source>
        <translation>Annulé. Rien n’a été enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the files are in this folder already. Replace them?</source>
        <translation>
            <numerusform>%n&#xa0;des fichiers existe déjà dans ce dossier. Le remplacer&#x202f;?</numerusform>
            <numerusform>%n&#xa0;des fichiers existent déjà dans ce dossier. Les remplacer&#x202f;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) saved to %1</source>
        <translation>
            <numerusform>%n&#xa0;fichier enregistré dans %1</numerusform>
            <numerusform>%n&#xa0;fichiers enregistrés dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>&amp;Report:</source>
        <translation>&amp;Rapport&#x202f;:</translation>
    </message>
    <message>
        <source>The first %1 of %2 reports were looked through for what is missing.</source>
        <translation>Les %1 premiers rapports sur %2 ont été examinés pour y chercher ce qui manque.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>workbench::ReportFiller</name>
    <message>
        <source>All samples</source>
        <translation>Tous les échantillons</translation>
    </message>
</context>
<context>
    <name>workbench::ReportSeries</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be written to.</source>
        <translation>Impossible d’écrire dans le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>workbench::Run</name>
    <message>
        <source>&quot;%1&quot; cannot be used as data. %2</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas servir de données. %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no samples.</source>
        <translation>«&#x202f;%1&#x202f;» ne contient aucun échantillon.</translation>
    </message>
    <message>
        <source>Checked by the batch run</source>
        <translation>Vérifié par le traitement par lots</translation>
    </message>
    <message>
        <source>Charge checked against the isotope pattern</source>
        <translation>Charge vérifiée d’après le massif isotopique</translation>
    </message>
    <message>
        <source>Batch control</source>
        <translation>Contrôle de lot</translation>
    </message>
    <message>
        <source>Batch control %1</source>
        <translation>Contrôle de lot %1</translation>
    </message>
    <message>
        <source>Added by the batch run</source>
        <translation>Ajouté par le traitement par lots</translation>
    </message>
    <message>
        <source>* (checked)</source>
        <translation>* (vérifié)</translation>
    </message>
    <message>
        <source>An invalid charge was taken.</source>
        <translation>Une charge non valide a été acceptée.</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Étape %1</translation>
    </message>
    <message>
        <source>report: </source>
        <translation>rapport&#x202f;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>report %1 of %2: %3</source>
        <translation>rapport %1 sur %2&#x202f;: %3</translation>
    </message>
    <message>
        <source>reports: %1 file(s) written</source>
        <translation>rapports&#x202f;: %1&#xa0;fichier(s) écrit(s)</translation>
    </message>
    <message>
        <source>The reports were interrupted.</source>
        <translation>Les rapports ont été interrompus.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleDetails</name>
    <message>
        <source>Details of the sample</source>
        <translation>Détails de l’échantillon</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>workbench::SampleEditor</name>
    <message>
        <source>Add data of 1 sample</source>
        <translation>Ajouter les données de 1&#xa0;échantillon</translation>
    </message>
    <message>
        <source>Add data of %1 samples</source>
        <translation>Ajouter les données de %1&#xa0;échantillons</translation>
    </message>
    <message>
        <source>Delete %1 samples</source>
        <translation>Supprimer %1&#xa0;échantillons</translation>
    </message>
    <message>
        <source>Rename to %1</source>
        <translation>Renommer en %1</translation>
    </message>
    <message>
        <source>The step is recorded, but could not be marked as finished yet.</source>
        <translation>L’opération est consignée, mais n’a pas encore pu être marquée comme terminée.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleTable</name>
    <message>
        <source>Another sample is called &quot;%1&quot; already; names must be unique.</source>
        <translation>Un autre échantillon s’appelle déjà «&#x202f;%1&#x202f;»&#x202f;; les noms doivent être uniques.</translation>
    </message>
</context>
<context>
    <name>workbench::SampleTableModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name given by the user</source>
        <translation>Nom donné par l’utilisateur</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Séquence</translation>
    </message>
    <message>
        <source>Amino acids in one-letter code</source>
        <translation>Acides aminés en code à une lettre</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Charge state</source>
        <translation>État de charge</translation>
    </message>
    <message>
        <source>Mass (Da)</source>
        <translation>Masse (Da)</translation>
    </message>
    <message>
        <source>Neutral monoisotopic mass in dalton</source>
        <translation>Masse monoisotopique neutre, en daltons</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Free remark</source>
        <translation>Remarque libre</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format of the data, as projects name it</source>
        <translation>Format des données, tel que les projets le nomment</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>What the format is called</source>
        <translation>Nom complet du format</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Whether the data is a file or a folder</source>
        <translation>Indique si les données sont un fichier ou un dossier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>What the data takes on the disk</source>
        <translation>Place occupée par les données sur le disque</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Where the data is</source>
        <translation>Emplacement des données</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1&#xa0;octets</translation>
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
        <translation>Échantillons</translation>
    </message>
</context>
<context>
    <name>workbench::StyleDialog</name>
    <message>
        <source>Run not saved</source>
        <translation>Acquisition non enregistrée</translation>
    </message>
    <message>
        <source>The run could not be saved. Nothing was changed.</source>
        <translation>L’acquisition n’a pas pu être enregistrée. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The disk has 12 MB left; the run needs 1.4 GB.</source>
        <translation>Il reste 12&#xa0;Mo sur le disque&#x202f;; l’acquisition demande 1,4&#xa0;Go.</translation>
    </message>
    <message>
        <source>&lt;b&gt;3 samples&lt;/b&gt; have no sequence.&lt;br&gt;They are left out of the report.</source>
        <translation>&lt;b&gt;3&#xa0;échantillons&lt;/b&gt; n’ont pas de séquence.&lt;br&gt;Ils ne figurent pas dans le rapport.</translation>
    </message>
    <message>
        <source>12 samples were added.</source>
        <translation>12&#xa0;échantillons ont été ajoutés.</translation>
    </message>
    <message>
        <source>Delete samples</source>
        <translation>Supprimer les échantillons</translation>
    </message>
    <message>
        <source>Delete the 3 chosen samples?</source>
        <translation>Supprimer les 3&#xa0;échantillons choisis&#x202f;?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>About the workbench</source>
        <translation>À propos de l’atelier</translation>
    </message>
    <message>
        <source>&lt;b&gt;Workbench&lt;/b&gt; %1&lt;br&gt;Samples and their annotations, every step recorded.&lt;br&gt;&lt;a href=&quot;https://www.qt.io&quot;&gt;Made with Qt&lt;/a&gt;</source>
        <translation>&lt;b&gt;Atelier&lt;/b&gt; %1&lt;br&gt;Des échantillons et leurs annotations&#x202f;; chaque opération est consignée.&lt;br&gt;&lt;a href=&quot;https://www.qt.io&quot;&gt;Réalisé avec Qt&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Erreur critique</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>Boîtes de dialogue de fichiers</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Celles du système</translation>
    </message>
    <message>
        <source>Those of the toolkit</source>
        <translation>Celles de Qt</translation>
    </message>
</context>
<context>
    <name>workbench::WorkbenchTemplateEditor</name>
    <message>
        <source>made-up samples</source>
        <translation>échantillons inventés</translation>
    </message>
    <message>
        <source>&amp;Gallery</source>
        <translation>&amp;Galerie</translation>
    </message>
    <message>
        <source>Shows a copy of this template, in a window of its own unless this one is empty</source>
        <translation>Affiche une copie de ce modèle, dans une autre fenêtre si celle-ci n’est pas vide</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>Numéro de la ligne</translation>
    </message>
    <message>
        <source>In a part that repeats, counted from 1</source>
        <translation>Dans une partie répétée, à partir de 1</translation>
    </message>
    <message>
        <source>Number of all rows</source>
        <translation>Nombre de lignes</translation>
    </message>
    <message>
        <source>In a part that repeats</source>
        <translation>Dans une partie répétée</translation>
    </message>
    <message>
        <source>In a part that repeats for the ions or the coverage of one sample</source>
        <translation>Dans une partie répétée pour les ions ou la couverture d’un échantillon</translation>
    </message>
</context>
<context>
    <name>workbench::files</name>
    <message>
        <source>Samples (*.csv)</source>
        <translation>Échantillons (*.csv)</translation>
    </message>
    <message>
        <source>MS data</source>
        <translation>Données MS</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open samples</source>
        <translation>Ouvrir des échantillons</translation>
    </message>
    <message>
        <source>Open MS data</source>
        <translation>Ouvrir des données MS</translation>
    </message>
    <message>
        <source>Find MS data</source>
        <translation>Rechercher des données MS</translation>
    </message>
    <message>
        <source>Save samples</source>
        <translation>Enregistrer les échantillons</translation>
    </message>
    <message>
        <source>Export audit trail</source>
        <translation>Exporter la piste d’audit</translation>
    </message>
    <message>
        <source>JSON (*.json);;Table (*.csv)</source>
        <translation>JSON (*.json);;Tableau (*.csv)</translation>
    </message>
    <message>
        <source>Choose template</source>
        <translation>Choisir un modèle</translation>
    </message>
    <message>
        <source>Templates (*.ozt *.html *.txt)</source>
        <translation>Modèles (*.ozt *.html *.txt)</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;HTML (*.html)</source>
        <translation>PDF (*.pdf);;HTML (*.html)</translation>
    </message>
    <message>
        <source>Save reports in folder</source>
        <translation>Enregistrer les rapports dans un dossier</translation>
    </message>
</context>
<context>
    <name>workbench::samplefile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is not known; known are %2.</source>
        <translation>La colonne «&#x202f;%1&#x202f;» est inconnue&#x202f;; les colonnes connues sont %2.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is there twice.</source>
        <translation>La colonne «&#x202f;%1&#x202f;» figure deux fois.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; is missing.</source>
        <translation>La colonne «&#x202f;%1&#x202f;» manque.</translation>
    </message>
    <message>
        <source>There are %1 cells, but %2 columns.</source>
        <translation>Il y a %1 cellules, mais %2 colonnes.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is there already, on line %2.</source>
        <translation>Le nom «&#x202f;%1&#x202f;» existe déjà, à la ligne %2.</translation>
    </message>
    <message>
        <source>The file is empty; it needs a line of column names.</source>
        <translation>Le fichier est vide&#x202f;; il lui faut une ligne de noms de colonnes.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>Impossible de lire «&#x202f;%1&#x202f;»&#x202f;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no table of samples. %2</source>
        <translation>«&#x202f;%1&#x202f;» ne contient pas de tableau d’échantillons. %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written. Check that its folder exists, that you may write there and that the disk is not full.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;». Vérifiez que son dossier existe, que vous avez le droit d’y écrire et que le disque n’est pas plein.</translation>
    </message>
</context>
</TS>

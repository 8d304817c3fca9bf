<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AbstractTemplateEditor</name>
    <message>
        <source>Codes</source>
        <translation>Champs</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>%1 may not be removed from this template.</source>
        <translation>%1 ne peut pas être retiré de ce modèle.</translation>
    </message>
    <message>
        <source>report</source>
        <translation>rapport</translation>
    </message>
    <message>
        <source>This place was removed from the template.</source>
        <translation>Cet endroit n’existe plus dans le modèle.</translation>
    </message>
    <message>
        <source>The template is large, and shown as its source.</source>
        <translation>Le modèle est volumineux&#x202f;; il est affiché sous forme de texte source.</translation>
    </message>
    <message>
        <source>The template is too large to be shown as formatted text.</source>
        <translation>Le modèle est trop volumineux pour être affiché mis en forme.</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <source>%1[*] (read only) - Template editor</source>
        <translation>%1[*] (lecture seule) - Éditeur de modèles</translation>
    </message>
    <message>
        <source>%1[*] - Template editor</source>
        <translation>%1[*] - Éditeur de modèles</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Format incorrect du contenu du modèle.</translation>
    </message>
    <message>
        <source>No data row was given to fill the template with.</source>
        <translation>Il n’y a pas de ligne de données pour remplir le modèle.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Zoom of the template (Ctrl and the wheel)</source>
        <translation>Zoom du modèle (Ctrl et la molette)</translation>
    </message>
</context>
<context>
    <name>FileCrawlerDialog</name>
    <message>
        <source>These folders could not be searched:
%1</source>
        <translation>Ces dossiers n’ont pas pu être parcourus&#x202f;:
%1</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
et %1 de plus</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Save CSV file</source>
        <translation>Enregistrer le fichier CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message>
        <source>CSV path does not exist</source>
        <translation>Le chemin du fichier CSV n’existe pas</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not contain any MS data.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» ne contient pas de données MS.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Crawl path</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; successfully saved.</source>
        <translation>«&#x202f;%1&#x202f;» a été enregistré.</translation>
    </message>
    <message>
        <source>CSV file successfully saved.</source>
        <translation>Le fichier CSV a été enregistré.</translation>
    </message>
    <message>
        <source>MS data path finder</source>
        <translation>Recherche de chemins de données MS</translation>
    </message>
    <message>
        <source>Enable recursive search</source>
        <translation>Parcourir les sous-dossiers</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Chemin&#x202f;:</translation>
    </message>
    <message>
        <source>Folder path to start searching...</source>
        <translation>Dossier où commencer la recherche…</translation>
    </message>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>Cancel search</source>
        <translation>Annuler la recherche</translation>
    </message>
    <message>
        <source>Folders searched: %1. Data found: %2.</source>
        <translation>Dossiers parcourus&#x202f;: %1. Données trouvées&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Canceled. Folders searched: %1. Data found: %2.</source>
        <translation>Annulé. Dossiers parcourus&#x202f;: %1. Données trouvées&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Data found: %1.</source>
        <translation>Données trouvées&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Passed over:
%1</source>
        <translation>Ignorés&#x202f;:
%1</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The file is locked and cannot be overwritten, which is likely opened by another application. Please close the other application or choose a different file name.</source>
        <translation>Le fichier est verrouillé et ne peut pas être remplacé&#x202f;; il est sans doute ouvert dans une autre application. Fermez l’autre application ou choisissez un autre nom de fichier.</translation>
    </message>
    <message>
        <source>The file cannot be created at this location (no permission). Please choose a different file path.</source>
        <translation>Le fichier ne peut pas être créé à cet emplacement (droits insuffisants). Choisissez un autre chemin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists and will be replaced.</source>
        <translation>«&#x202f;%1&#x202f;» existe et sera remplacé.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist here.</source>
        <translation>Il n’y a pas de dossier «&#x202f;%1&#x202f;» ici.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Double-click it to look inside.</source>
        <translation>«&#x202f;%1&#x202f;» est un dossier. Double-cliquez dessus pour en voir le contenu.</translation>
    </message>
</context>
<context>
    <name>FormWidgets</name>
    <message>
        <source>A splitter whose dividers are thin lines and wide enough to grab</source>
        <translation>Un séparateur aux poignées fines comme un trait, mais assez larges pour être saisies</translation>
    </message>
    <message>
        <source>A dock whose title bar is in the style of the suite</source>
        <translation>Un panneau ancrable dont la barre de titre suit le style de la suite</translation>
    </message>
    <message>
        <source>A report on its pages, as it is printed</source>
        <translation>Un rapport sur ses pages, tel qu’il est imprimé</translation>
    </message>
    <message>
        <source>An audit trail to be read, filtered, reviewed and signed; setStore() fills it</source>
        <translation>Une piste d’audit à lire, filtrer, réviser et signer ; setStore() la remplit</translation>
    </message>
</context>
<context>
    <name>OZMDockWidgetTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
    <message>
        <source>Dock</source>
        <translation>Ancrer</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Dock %1</source>
        <translation>Ancrer %1</translation>
    </message>
    <message>
        <source>Float %1</source>
        <translation>Détacher %1</translation>
    </message>
</context>
<context>
    <name>OZMFileDialog</name>
    <message>
        <source>The selected path has been changed to its parent folder.
Certain MS data are read from the parent folder (e.g. &apos;folder.d&apos;) instead of the embedded file (e.g. &apos;analysis.baf&apos;).
Corrected path is:
%1</source>
        <translation>Le chemin choisi a été remplacé par celui du dossier parent.
Certaines données MS se lisent depuis le dossier parent (p.&#xa0;ex. «&#x202f;folder.d&#x202f;») et non depuis le fichier qu’il contient (p.&#xa0;ex. «&#x202f;analysis.baf&#x202f;»).
Le chemin corrigé est&#x202f;:
%1</translation>
    </message>
    <message>
        <source>File path correction</source>
        <translation>Correction du chemin</translation>
    </message>
</context>
<context>
    <name>OZMStyle</name>
    <message>
        <source>%1 Error code: %2</source>
        <translation>%1 Code d’erreur&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>PickCheck</name>
    <message>
        <source>Opening data</source>
        <translation>Ouverture des données</translation>
    </message>
    <message>
        <source>The disk takes long to answer. Looking for data …</source>
        <translation>Le disque met longtemps à répondre. Recherche de données…</translation>
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
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Dossier de fichiers</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Afficher les détails…</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Conflit entre les réglages recto verso</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Définition des pages non valide</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Les réglages recto verso se contredisent. Voulez-vous les corriger&#x202f;?</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Reliure sur le grand côté</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Reliure sur le petit côté</translation>
    </message>
</context>
<context>
    <name>SaveProbe</name>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>SpectrumFileDialog</name>
    <message>
        <source>Look &amp;inside</source>
        <translation>Voir le &amp;contenu</translation>
    </message>
    <message>
        <source>Shows the contents of a folder that is named as data and holds none</source>
        <translation>Affiche le contenu d’un dossier dont le nom annonce des données et qui n’en contient pas</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Vérifiez que le nom de fichier est correct.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) and folder(s)</source>
        <translation>
            <numerusform>%n&#xa0;fichier ou dossier</numerusform>
            <numerusform>%n&#xa0;fichiers et dossiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>openfilefolderdialog</name>
    <message>
        <source>Open &amp;file</source>
        <translation>Ouvrir le &amp;fichier</translation>
    </message>
    <message>
        <source>Open f&amp;older</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fe&amp;rmer</translation>
    </message>
    <message>
        <source>Open file or folder</source>
        <translation>Ouvrir le fichier ou le dossier</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>File saved.  Would you like to open the file or folder?
%1</source>
        <translation>Fichier enregistré. Voulez-vous ouvrir le fichier ou le dossier&#x202f;?
%1</translation>
    </message>
    <message>
        <source>File not created. There appears to be an issue with the given file.
%1
You may still open the given folder.</source>
        <translation>Le fichier n’a pas été créé. Le fichier indiqué semble poser problème.
%1
Vous pouvez tout de même ouvrir le dossier indiqué.</translation>
    </message>
</context>
<context>
    <name>ozm::BlackSplitterHandle</name>
    <message>
        <source>Divider</source>
        <translation>Séparateur</translation>
    </message>
</context>
<context>
    <name>ozm::DataDelegate</name>
    <message>
        <source>no data</source>
        <translation>pas de données</translation>
    </message>
</context>
<context>
    <name>ozm::EngineWebReader</name>
    <message>
        <source>This file is a whole web page. The web engine that reads its body does not run for the system&apos;s administrator. The file can be opened as plain text instead.</source>
        <translation>Ce fichier est une page web entière. Le moteur web qui en lit le corps ne fonctionne pas pour l’administrateur du système. Le fichier peut être ouvert comme texte brut.</translation>
    </message>
    <message>
        <source>The web engine failed on the page.</source>
        <translation>Le moteur web a échoué sur la page.</translation>
    </message>
    <message>
        <source>The web engine found no body in the page.</source>
        <translation>Le moteur web n’a pas trouvé de corps dans la page.</translation>
    </message>
    <message>
        <source>The web engine did not read the page in time.</source>
        <translation>Le moteur web n’a pas lu la page à temps.</translation>
    </message>
    <message>
        <source>The program ended while the web engine read the page.</source>
        <translation>Le programme s’est terminé pendant que le moteur web lisait la page.</translation>
    </message>
</context>
<context>
    <name>ozm::EntryFilter</name>
    <message>
        <source>Filter by name</source>
        <translation>Filtrer par nom</translation>
    </message>
    <message>
        <source>Shows only entries whose names contain this text (%1)</source>
        <translation>N’affiche que les éléments dont le nom contient ce texte (%1)</translation>
    </message>
</context>
<context>
    <name>ozm::HelperScriptRealm</name>
    <message>
        <source>The values are too large for scripts in a process of their own.</source>
        <translation>Les valeurs sont trop volumineuses pour des scripts dans un processus séparé.</translation>
    </message>
    <message>
        <source>The process that runs scripts had ended before this script.</source>
        <translation>Le processus qui exécute les scripts s’était arrêté avant ce script.</translation>
    </message>
</context>
<context>
    <name>ozm::OperationLogItemData</name>
    <message>
        <source>The record cannot be read from byte %1 on: %2.</source>
        <translation>L’enregistrement est illisible à partir de l’octet %1&#x202f;: %2.</translation>
    </message>
    <message>
        <source>The record has no known operation, subject, attributes or undo context.</source>
        <translation>L’enregistrement n’indique pas d’opération, d’objet, d’attributs ou de contexte d’annulation connus.</translation>
    </message>
</context>
<context>
    <name>ozm::PathBar</name>
    <message>
        <source>Folders above</source>
        <translation>Dossiers parents</translation>
    </message>
    <message>
        <source>Folders further above</source>
        <translation>Autres dossiers parents</translation>
    </message>
</context>
<context>
    <name>ozm::PickRecognition</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1: a folder to look into</source>
        <translation>%1&#x202f;: un dossier à parcourir</translation>
    </message>
    <message>
        <source>%1: no data, left out. %2</source>
        <translation>%1&#x202f;: pas de données, laissé de côté. %2</translation>
    </message>
    <message>
        <source>What is highlighted</source>
        <translation>Éléments en surbrillance</translation>
    </message>
    <message>
        <source>Looking at %1 …</source>
        <translation>Examen de %1…</translation>
    </message>
    <message>
        <source>%1 of %2 hold data</source>
        <translation>%1 sur %2 contiennent des données</translation>
    </message>
    <message>
        <source>Highlight files and folders to see what data they hold.</source>
        <translation>Sélectionnez des fichiers et des dossiers pour voir les données qu’ils contiennent.</translation>
    </message>
</context>
<context>
    <name>ozm::ReportBook</name>
    <message>
        <source>&quot;%1&quot; cannot be written. %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;». %2</translation>
    </message>
    <message>
        <source>Bookmarks cannot be added to it.</source>
        <translation>Des signets ne peuvent pas y être ajoutés.</translation>
    </message>
    <message>
        <source>The book has no report.</source>
        <translation>Il n’y a pas de rapport à écrire.</translation>
    </message>
</context>
<context>
    <name>ozm::ReportPaper</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
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
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Fit the width</source>
        <translation>Ajuster à la &amp;largeur</translation>
    </message>
</context>
<context>
    <name>ozm::ScriptHelper</name>
    <message>
        <source>The program &quot;%1&quot;, which runs scripts, cannot be started: %2</source>
        <translation>Le programme « %1 », qui exécute les scripts, ne peut pas être démarré : %2</translation>
    </message>
    <message>
        <source>The program that runs scripts was not found. It should be here: %1</source>
        <translation>Le programme qui exécute les scripts est introuvable. Il devrait être ici : %1</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot; was started to run scripts, and does not answer.</source>
        <translation>Le programme « %1 » a été démarré pour exécuter les scripts et ne répond pas.</translation>
    </message>
    <message>
        <source>The program &quot;%1&quot;, which runs scripts, is of another version: %2 instead of %3.</source>
        <translation>Le programme « %1 », qui exécute les scripts, est d’une autre version : %2 au lieu de %3.</translation>
    </message>
    <message>
        <source>The process that runs scripts has ended. It may take up to %1 MiB of memory.</source>
        <translation>Le processus qui exécute les scripts s’est arrêté. Il peut occuper jusqu’à %1 Mio de mémoire.</translation>
    </message>
    <message>
        <source>The process that runs scripts has ended.</source>
        <translation>Le processus qui exécute les scripts s’est arrêté.</translation>
    </message>
</context>
<context>
    <name>ozm::ScriptRealm</name>
    <message>
        <source>The script engine &quot;ozm_scripts&quot; is not installed.</source>
        <translation>Le moteur de scripts « ozm_scripts » n’est pas installé.</translation>
    </message>
</context>
<context>
    <name>ozm::TemplateDifference</name>
    <message>
        <source>Text added in %2: &quot;%1&quot;</source>
        <translation>Texte ajouté dans %2 : « %1 »</translation>
    </message>
    <message>
        <source>Text removed from %2: &quot;%1&quot;</source>
        <translation>Texte supprimé de %2 : « %1 »</translation>
    </message>
    <message>
        <source>Text changed in %2: &quot;%1&quot; is now &quot;%3&quot;</source>
        <translation>Texte modifié dans %2 : « %1 » devient « %3 »</translation>
    </message>
    <message>
        <source>Added: %2, &quot;%1&quot;</source>
        <translation>Ajouté : %2, « %1 »</translation>
    </message>
    <message>
        <source>Removed: %2, &quot;%1&quot;</source>
        <translation>Supprimé : %2, « %1 »</translation>
    </message>
    <message>
        <source>Code %1 added in %2</source>
        <translation>Code %1 ajouté dans %2</translation>
    </message>
    <message>
        <source>Code %1 removed from %2</source>
        <translation>Code %1 supprimé de %2</translation>
    </message>
    <message>
        <source>Code %1 replaced by %3 in %2</source>
        <translation>Code %1 remplacé par %3 dans %2</translation>
    </message>
    <message>
        <source>Script added in %2: %1</source>
        <translation>Script ajouté dans %2 : %1</translation>
    </message>
    <message>
        <source>Script removed from %2: %1</source>
        <translation>Script supprimé de %2 : %1</translation>
    </message>
    <message>
        <source>Script changed in %2: %1 is now %3</source>
        <translation>Script modifié dans %2 : %1 devient %3</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; added in %2</source>
        <translation>Instruction « %1 » ajoutée dans %2</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; removed from %2</source>
        <translation>Instruction « %1 » supprimée de %2</translation>
    </message>
    <message>
        <source>Instruction &quot;%1&quot; changed to &quot;%3&quot; in %2</source>
        <translation>Instruction « %1 » changée en « %3 » dans %2</translation>
    </message>
    <message>
        <source>Image added in %2</source>
        <translation>Image ajoutée dans %2</translation>
    </message>
    <message>
        <source>Image removed from %2</source>
        <translation>Image supprimée de %2</translation>
    </message>
    <message>
        <source>Image replaced in %2</source>
        <translation>Image remplacée dans %2</translation>
    </message>
    <message>
        <source>Markup added in %2: %1</source>
        <translation>Balisage ajouté dans %2 : %1</translation>
    </message>
    <message>
        <source>Markup removed from %2: %1</source>
        <translation>Balisage supprimé de %2 : %1</translation>
    </message>
    <message>
        <source>Markup changed in %2: %1 is now %3</source>
        <translation>Balisage modifié dans %2 : %1 devient %3</translation>
    </message>
    <message>
        <source>Formatting changed in %2: &quot;%1&quot;</source>
        <translation>Mise en forme modifiée dans %2 : « %1 »</translation>
    </message>
    <message>
        <source>Only markup that formatted text does not show has changed.</source>
        <translation>Seul du balisage que le texte mis en forme ne montre pas a changé.</translation>
    </message>
    <message>
        <source>Settings of &quot;%1&quot; changed in %2</source>
        <translation>Réglages de « %1 » modifiés dans %2</translation>
    </message>
    <message>
        <source>image</source>
        <translation>image</translation>
    </message>
    <message>
        <source>row %1 of table %2</source>
        <translation>ligne %1 du tableau %2</translation>
    </message>
    <message>
        <source>item %1 of list %2</source>
        <translation>élément %1 de la liste %2</translation>
    </message>
    <message>
        <source>paragraph %1</source>
        <translation>paragraphe %1</translation>
    </message>
</context>
<context>
    <name>ozm::TemplateFile</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>Impossible de lire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MB.</source>
        <translation>Le contenu dépasse %1&#xa0;Mo.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The file begins as a template, but is cut short or of another version.</source>
        <translation>Le fichier commence comme un modèle, mais il est tronqué ou d’une autre version.</translation>
    </message>
    <message>
        <source>The template cannot be saved.</source>
        <translation>Le modèle ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>The template holds a zero character, which cannot be saved. Remove it.</source>
        <translation>Le modèle contient un caractère nul, qui ne peut pas être enregistré. Supprimez-le.</translation>
    </message>
    <message>
        <source>The template holds half of a character pair, which cannot be saved. Remove what is shown as a question mark or an empty box.</source>
        <translation>Le modèle contient la moitié d’une paire de caractères, qui ne peut pas être enregistrée. Supprimez ce qui apparaît comme un point d’interrogation ou une case vide.</translation>
    </message>
    <message>
        <source>The template could not be read back once saved, so it was not.</source>
        <translation>Le modèle n’a pas été enregistré, car il n’aurait pas pu être relu ensuite.</translation>
    </message>
    <message>
        <source>The page says that it is written in the character set &quot;%1&quot;, which is not known here.</source>
        <translation>La page annonce le jeu de caractères «&#x202f;%1&#x202f;», qui est inconnu ici.</translation>
    </message>
    <message>
        <source>The page says that it is written in the character set &quot;%1&quot;, but it holds bytes that mean nothing in it.</source>
        <translation>La page annonce le jeu de caractères «&#x202f;%1&#x202f;», mais contient des octets qui n’y ont pas de sens.</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Format incorrect du contenu du modèle.</translation>
    </message>
    <message>
        <source>The file holds zero bytes, as programs and pictures do, and no text.</source>
        <translation>Le fichier contient des octets nuls, comme un programme ou une image, et non du texte.</translation>
    </message>
    <message>
        <source>The file is not written in the character set of its byte-order mark.</source>
        <translation>Le fichier n’est pas écrit dans le jeu de caractères de son indicateur d’ordre des octets.</translation>
    </message>
    <message>
        <source>The file holds bytes that are not UTF-8 text.</source>
        <translation>Le fichier contient des octets qui ne sont pas du texte UTF-8.</translation>
    </message>
    <message>
        <source>This file is a whole web page. Its body is read by the plug-in &quot;ozm_webreader&quot;, which is not installed here (looked for in %1). The file can be opened as plain text instead.</source>
        <translation>Ce fichier est une page web entière. Son corps est lu par le module «&#x202f;ozm_webreader&#x202f;», qui n’est pas installé ici (cherché dans %1). Le fichier peut être ouvert comme texte brut.</translation>
    </message>
    <message>
        <source>This file is a whole web page. This program was built without the part that reads the body of web pages. The file can be opened as plain text instead.</source>
        <translation>Ce fichier est une page web entière. Ce programme a été compilé sans la partie qui lit le corps des pages web. Le fichier peut être ouvert comme texte brut.</translation>
    </message>
    <message>
        <source>The body of a web page can only be read on the main thread of a program with windows.</source>
        <translation>Le corps d’une page web ne peut être lu que dans le fil d’exécution principal d’un programme à fenêtres.</translation>
    </message>
</context>
<context>
    <name>ozm::UndoStack</name>
    <message>
        <source>A new edit cannot be made while another is being undone or redone.</source>
        <translation>Aucune nouvelle modification n’est possible pendant l’annulation ou le rétablissement d’une autre.</translation>
    </message>
</context>
<context>
    <name>ozm::WithheldValue</name>
    <message>
        <source>A value of the type &quot;%1&quot; cannot be used by scripts in a process of their own.</source>
        <translation>Une valeur du type « %1 » ne peut pas être utilisée par les scripts dans un processus séparé.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::CodeModel</name>
    <message>
        <source>No value is known for the code %1.</source>
        <translation>Aucune valeur n’est connue pour le champ %1.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::CodePanel</name>
    <message>
        <source>Search codes</source>
        <translation>Rechercher un champ</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Champs</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ColumnDragging</name>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ColumnWidthDialog</name>
    <message>
        <source>As its text needs</source>
        <translation>Selon son texte</translation>
    </message>
    <message>
        <source>Share of the table in percent</source>
        <translation>Part du tableau en pour cent</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>&amp;Measured as:</source>
        <translation>&amp;Mesurée en&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#x202f;:</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ComparisonDialog</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, version %2</translation>
    </message>
    <message>
        <source>Differences between templates</source>
        <translation>Différences entre modèles</translation>
    </message>
    <message>
        <source>The templates are the same.</source>
        <translation>Les modèles sont identiques.</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n différence</numerusform>
            <numerusform>%n différences</numerusform>
        </translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Avant : %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Maintenant : %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ConditionDialog</name>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Afficher&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;If the code:</source>
        <translation>&amp;Si le champ&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Test:</source>
        <translation>&amp;Test&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur&#x202f;:</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu&#x202f;:</translation>
    </message>
    <message>
        <source>No value in the preview</source>
        <translation>Aucune valeur dans l’aperçu</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affiché</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>Non affiché</translation>
    </message>
    <message>
        <source>&amp;Otherwise, show another part</source>
        <translation>Sinon, montrer une &amp;autre partie</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ContentsDialog</name>
    <message>
        <source>Table of contents</source>
        <translation>Table des matières</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#x202f;:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>&amp;Levels of headings:</source>
        <translation>&amp;Niveaux de titres&#x202f;:</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertion</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>For&amp;mat</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tableau</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Page set&amp;up…</source>
        <translation>Mise en &amp;page…</translation>
    </message>
    <message>
        <source>Page set-up of the te&amp;mplate…</source>
        <translation>Mise en page du &amp;modèle…</translation>
    </message>
    <message>
        <source>Print pre&amp;view…</source>
        <translation>&amp;Aperçu avant impression…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Paste as p&amp;lain text</source>
        <translation>Coller en te&amp;xte brut</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Re&amp;mplacer…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find pre&amp;vious</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Code from the list…</source>
        <translation>&amp;Champ de la liste…</translation>
    </message>
    <message>
        <source>&amp;Script…</source>
        <translation>&amp;Script…</translation>
    </message>
    <message>
        <source>&amp;Edit what is at the cursor</source>
        <translation>&amp;Modifier l’élément au curseur</translation>
    </message>
    <message>
        <source>&amp;Repeat for each row…</source>
        <translation>Répéter pour cha&amp;que ligne…</translation>
    </message>
    <message>
        <source>Co&amp;ndition…</source>
        <translation>Co&amp;ndition…</translation>
    </message>
    <message>
        <source>&amp;Format of a code…</source>
        <translation>Format d’un c&amp;hamp…</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Image…</translation>
    </message>
    <message>
        <source>&amp;Link…</source>
        <translation>&amp;Lien…</translation>
    </message>
    <message>
        <source>&amp;Table…</source>
        <translation>&amp;Tableau…</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Souligné</translation>
    </message>
    <message>
        <source>Stri&amp;ke through</source>
        <translation>&amp;Barré</translation>
    </message>
    <message>
        <source>Su&amp;perscript</source>
        <translation>E&amp;xposant</translation>
    </message>
    <message>
        <source>&amp;Subscript</source>
        <translation>In&amp;dice</translation>
    </message>
    <message>
        <source>&amp;Colour of the text…</source>
        <translation>&amp;Couleur du texte…</translation>
    </message>
    <message>
        <source>Colour be&amp;hind the text…</source>
        <translation>Couleur de &amp;fond du texte…</translation>
    </message>
    <message>
        <source>Cle&amp;ar formats</source>
        <translation>&amp;Effacer la mise en forme</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>Heading &amp;1</source>
        <translation>Titre &amp;1</translation>
    </message>
    <message>
        <source>Heading &amp;2</source>
        <translation>Titre &amp;2</translation>
    </message>
    <message>
        <source>Heading &amp;3</source>
        <translation>Titre &amp;3</translation>
    </message>
    <message>
        <source>Align le&amp;ft</source>
        <translation>A&amp;ligner à gauche</translation>
    </message>
    <message>
        <source>Ce&amp;ntre</source>
        <translation>Ce&amp;ntrer</translation>
    </message>
    <message>
        <source>Align &amp;right</source>
        <translation>Aligner à d&amp;roite</translation>
    </message>
    <message>
        <source>&amp;Justify</source>
        <translation>&amp;Justifier</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>Liste à &amp;puces</translation>
    </message>
    <message>
        <source>Nu&amp;mbered list</source>
        <translation>Liste nu&amp;mérotée</translation>
    </message>
    <message>
        <source>In&amp;dent less</source>
        <translation>Diminuer le retr&amp;ait</translation>
    </message>
    <message>
        <source>Ind&amp;ent more</source>
        <translation>A&amp;ugmenter le retrait</translation>
    </message>
    <message>
        <source>Insert row &amp;above</source>
        <translation>Insérer une ligne au-&amp;dessus</translation>
    </message>
    <message>
        <source>Insert row &amp;below</source>
        <translation>Insérer une li&amp;gne au-dessous</translation>
    </message>
    <message>
        <source>Insert column be&amp;fore</source>
        <translation>Insérer une colonne a&amp;vant</translation>
    </message>
    <message>
        <source>Insert column af&amp;ter</source>
        <translation>Insérer une co&amp;lonne après</translation>
    </message>
    <message>
        <source>Delete &amp;rows</source>
        <translation>Supprimer les lign&amp;es</translation>
    </message>
    <message>
        <source>Delete &amp;columns</source>
        <translation>Suppr&amp;imer les colonnes</translation>
    </message>
    <message>
        <source>&amp;Merge cells</source>
        <translation>Fu&amp;sionner les cellules</translation>
    </message>
    <message>
        <source>&amp;Split cell</source>
        <translation>&amp;Fractionner la cellule</translation>
    </message>
    <message>
        <source>&amp;Formatted text</source>
        <translation>Texte &amp;mis en forme</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>Texte &amp;source</translation>
    </message>
    <message>
        <source>&amp;Refresh preview</source>
        <translation>&amp;Actualiser l’aperçu</translation>
    </message>
    <message>
        <source>R&amp;un the script</source>
        <translation>E&amp;xécuter le script</translation>
    </message>
    <message>
        <source>Recent &amp;files</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>C&amp;ode</source>
        <translation>Cham&amp;p</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Mise en forme</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>&amp;Taille normale</translation>
    </message>
    <message>
        <source>&amp;Heading on each page</source>
        <translation>En-&amp;tête sur chaque page</translation>
    </message>
    <message>
        <source>Other &amp;part of the section</source>
        <translation>&amp;Autre partie de la section</translation>
    </message>
    <message>
        <source>Column &amp;width…</source>
        <translation>Large&amp;ur de la colonne…</translation>
    </message>
    <message>
        <source>Compar&amp;e with saved…</source>
        <translation>Comparer avec l’enre&amp;gistré…</translation>
    </message>
    <message>
        <source>Compare wi&amp;th…</source>
        <translation>&amp;Comparer avec…</translation>
    </message>
    <message>
        <source>Paragraph st&amp;yle</source>
        <translation>St&amp;yle de paragraphe</translation>
    </message>
    <message>
        <source>Ta&amp;ble of contents…</source>
        <translation>Ta&amp;ble des matières…</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorFiles</name>
    <message>
        <source>Templates and pages (*.ozt *.html *.htm *.txt);;All files (*)</source>
        <translation>Modèles et pages (*.ozt *.html *.htm *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Templates (*.ozt);;Templates as HTML (*.html)</source>
        <translation>Modèles (*.ozt);;Modèles en HTML (*.html)</translation>
    </message>
    <message>
        <source>Wrong template editor content format.</source>
        <translation>Format incorrect du contenu du modèle.</translation>
    </message>
    <message>
        <source>Open template</source>
        <translation>Ouvrir un modèle</translation>
    </message>
    <message>
        <source>Page without its reader</source>
        <translation>Page sans son lecteur</translation>
    </message>
    <message>
        <source>%1

Open all of its text as it stands?</source>
        <translation>%1

Ouvrir tout son texte tel quel&#x202f;?</translation>
    </message>
    <message>
        <source>Template not opened</source>
        <translation>Modèle non ouvert</translation>
    </message>
    <message>
        <source>The body of the page was taken over as a new template.</source>
        <translation>Le corps de la page a été repris comme nouveau modèle.</translation>
    </message>
    <message>
        <source>template.ozt</source>
        <translation>modele.ozt</translation>
    </message>
    <message>
        <source>Save template</source>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message>
        <source>Template not saved</source>
        <translation>Modèle non enregistré</translation>
    </message>
    <message>
        <source>The template could not be saved. It is unchanged in the window.</source>
        <translation>Le modèle n’a pas pu être enregistré. Il reste inchangé dans la fenêtre.</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Fichier modifié</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Replace it by what is in the window?</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié par un autre programme. Le remplacer par le contenu de la fenêtre&#x202f;?</translation>
    </message>
    <message>
        <source>Unsaved template</source>
        <translation>Modèle non enregistré</translation>
    </message>
    <message>
        <source>The template has changed. Save it first?</source>
        <translation>Le modèle a été modifié. L’enregistrer d’abord&#x202f;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more. The template is kept in the window.</source>
        <translation>«&#x202f;%1&#x202f;» n’existe plus. Le modèle est conservé dans la fenêtre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Read it again, and lose your own changes?</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié par un autre programme. Le relire et perdre vos propres modifications&#x202f;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Read it again?</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié par un autre programme. Le relire&#x202f;?</translation>
    </message>
    <message>
        <source>a new template</source>
        <translation>un nouveau modèle</translation>
    </message>
    <message>
        <source>The program ended while %1 was not saved. Open what was kept of it at %2?</source>
        <translation>Le programme s’est terminé alors que %1 n’était pas enregistré. Ouvrir ce qui en a été conservé à %2&#x202f;?</translation>
    </message>
    <message>
        <source>It takes the place of the template that is open in this window.</source>
        <translation>Il prend la place du modèle ouvert dans cette fenêtre.</translation>
    </message>
    <message>
        <source>Rescued template</source>
        <translation>Modèle récupéré</translation>
    </message>
    <message>
        <source>Compare with template</source>
        <translation>Comparer avec un modèle</translation>
    </message>
    <message>
        <source>this window</source>
        <translation>cette fenêtre</translation>
    </message>
    <message>
        <source>The template is too large to be compared.</source>
        <translation>Le modèle est trop volumineux pour être comparé.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorHistory</name>
    <message>
        <source>Editing</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Change of mode</source>
        <translation>Changement de mode</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorInstructions</name>
    <message>
        <source>The cursor is not in a section. Select lines, and give them a condition first.</source>
        <translation>Le curseur n’est pas dans une section. Sélectionnez des lignes et donnez-leur d’abord une condition.</translation>
    </message>
    <message>
        <source>The section has a text for no rows already.</source>
        <translation>La section a déjà un texte pour le cas où il n’y a aucune ligne.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorQuestions</name>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>Impossible de lire «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a template.</source>
        <translation>«&#x202f;%1&#x202f;» est trop volumineux pour un modèle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an image that can be shown.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une image affichable.</translation>
    </message>
    <message>
        <source>Insert image</source>
        <translation>Insérer une image</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;All files (*)</source>
        <translation>Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Image not inserted</source>
        <translation>Image non insérée</translation>
    </message>
    <message>
        <source>Insert link</source>
        <translation>Insérer un lien</translation>
    </message>
    <message>
        <source>As selected</source>
        <translation>Comme la sélection</translation>
    </message>
    <message>
        <source>As the address</source>
        <translation>Comme l’adresse</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte&#x202f;:</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>PDF not saved</source>
        <translation>PDF non enregistré</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorScripts</name>
    <message>
        <source>The cursor is not in a script.</source>
        <translation>Il n’y a pas de script au curseur.</translation>
    </message>
    <message>
        <source>The script is in the template.</source>
        <translation>Le script est dans le modèle.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::EditorViews</name>
    <message>
        <source>Formatted template</source>
        <translation>Modèle mis en forme</translation>
    </message>
    <message>
        <source>Source of the template</source>
        <translation>Texte source du modèle</translation>
    </message>
</context>
<context>
    <name>ozm::editor::FindBar</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace by</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>Respecter la &amp;casse</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>Mots &amp;entiers</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Went on from the other end</source>
        <translation>Recherche reprise à l’autre bout</translation>
    </message>
    <message>
        <source>1 replaced</source>
        <translation>Remplacements&#x202f;: 1</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>Remplacements&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ForeignPage</name>
    <message>
        <source>scripts</source>
        <translation>scripts</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>cadres</translation>
    </message>
    <message>
        <source>loaded objects</source>
        <translation>objets chargés</translation>
    </message>
    <message>
        <source>Left out of what was pasted: %1</source>
        <translation>Laissé de côté lors du collage&#x202f;: %1</translation>
    </message>
    <message>
        <source>images</source>
        <translation>images</translation>
    </message>
    <message>
        <source>links</source>
        <translation>liens</translation>
    </message>
    <message>
        <source>films and sounds</source>
        <translation>films et sons</translation>
    </message>
    <message>
        <source>form fields</source>
        <translation>champs de formulaire</translation>
    </message>
</context>
<context>
    <name>ozm::editor::FormatDialog</name>
    <message>
        <source>Format of a code</source>
        <translation>Format d’un champ</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Champ&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Show as:</source>
        <translation>&amp;Afficher comme&#x202f;:</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Lettres&#x202f;:</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>Telles quelles</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minuscules</translation>
    </message>
    <message>
        <source>&amp;Digits after the point:</source>
        <translation>&amp;Décimales&#x202f;:</translation>
    </message>
    <message>
        <source>As many as there are</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>T&amp;housands:</source>
        <translation>&amp;Milliers&#x202f;:</translation>
    </message>
    <message>
        <source>Together</source>
        <translation>Sans séparateur</translation>
    </message>
    <message>
        <source>Thin space</source>
        <translation>Espace fine</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Apostrophe</translation>
    </message>
    <message>
        <source>Dec&amp;imal sign:</source>
        <translation>&amp;Séparateur décimal&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Multiplied by:</source>
        <translation>M&amp;ultiplié par&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>Uni&amp;té&#x202f;:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>&amp;Total:</source>
        <translation>T&amp;otal&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>Su&amp;r&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Format&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Width in pixels:</source>
        <translation>Lar&amp;geur en pixels&#x202f;:</translation>
    </message>
    <message>
        <source>That of the image</source>
        <translation>Celle de l’image</translation>
    </message>
    <message>
        <source>&amp;Alternative text:</source>
        <translation>Te&amp;xte de remplacement&#x202f;:</translation>
    </message>
    <message>
        <source>Ma&amp;rkup in it:</source>
        <translation>&amp;Balisage HTML&#x202f;:</translation>
    </message>
    <message>
        <source>Shown to the letter</source>
        <translation>Affiché tel quel</translation>
    </message>
    <message>
        <source>Taken as HTML</source>
        <translation>Interprété comme HTML</translation>
    </message>
    <message>
        <source>Without a &amp;value:</source>
        <translation>Sans &amp;valeur&#x202f;:</translation>
    </message>
    <message>
        <source>Reported as missing</source>
        <translation>Signalé comme manquant</translation>
    </message>
    <message>
        <source>No value in the preview</source>
        <translation>Aucune valeur dans l’aperçu</translation>
    </message>
</context>
<context>
    <name>ozm::editor::InstructionDialog</name>
    <message>
        <source>The table &amp;row or list item at the cursor</source>
        <translation>La &amp;ligne de tableau ou l’élément de liste au curseur</translation>
    </message>
    <message>
        <source>The selected &amp;lines</source>
        <translation>Les para&amp;graphes sélectionnés</translation>
    </message>
    <message>
        <source>The rows of the report</source>
        <translation>Les lignes du rapport</translation>
    </message>
    <message>
        <source>With the data of the preview</source>
        <translation>Avec les données de l’aperçu</translation>
    </message>
</context>
<context>
    <name>ozm::editor::PageDialog</name>
    <message>
        <source>Page set-up of the template</source>
        <translation>Mise en page du modèle</translation>
    </message>
    <message>
        <source>As the printer has it</source>
        <translation>Celui de l’imprimante</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Format&#x202f;:</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientation&#x202f;:</translation>
    </message>
    <message>
        <source>Margin at the &amp;top:</source>
        <translation>Marge &amp;haute&#x202f;:</translation>
    </message>
    <message>
        <source>Margin at the &amp;right:</source>
        <translation>Marge &amp;droite&#x202f;:</translation>
    </message>
    <message>
        <source>Margin at the &amp;bottom:</source>
        <translation>Marge &amp;basse&#x202f;:</translation>
    </message>
    <message>
        <source>Margin at the &amp;left:</source>
        <translation>Marge &amp;gauche&#x202f;:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation>&#xa0;mm</translation>
    </message>
    <message>
        <source>&amp;Header:</source>
        <translation>&amp;En-tête&#x202f;:</translation>
    </message>
    <message>
        <source>Text and codes</source>
        <translation>Texte et champs</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>&amp;Pied de page&#x202f;:</translation>
    </message>
    <message>
        <source>Text and codes, beside the page number</source>
        <translation>Texte et champs, à côté du numéro de page</translation>
    </message>
    <message>
        <source>Name of the &amp;document:</source>
        <translation>&amp;Nom du document&#x202f;:</translation>
    </message>
    <message>
        <source>Text and codes, at the foot and in the file</source>
        <translation>Texte et champs, en pied de page et dans le fichier</translation>
    </message>
    <message>
        <source>&amp;Version:</source>
        <translation>&amp;Version&#x202f;:</translation>
    </message>
    <message>
        <source>Beside the name of the document</source>
        <translation>À côté du nom du document</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ParagraphStyles</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Table heading</source>
        <translation>En-tête de tableau</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>ozm::editor::PreviewPane</name>
    <message>
        <source>Data of the preview</source>
        <translation>Données de l’aperçu</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>What could not be filled</source>
        <translation>Ce qui n’a pas pu être rempli</translation>
    </message>
    <message>
        <source>&amp;Data:</source>
        <translation>D&amp;onnées&#x202f;:</translation>
    </message>
    <message>
        <source>All %1 as a group</source>
        <translation>Les %1 en groupe</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>The template is large: refresh the preview to see it.</source>
        <translation>Le modèle est volumineux&#x202f;: actualisez l’aperçu pour le voir.</translation>
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
        <source>%1 came in with the result of a script.</source>
        <translation>%1 vient du résultat d’un script.</translation>
    </message>
    <message>
        <source>%1 came in with the value of %2.</source>
        <translation>%1 vient de la valeur de %2.</translation>
    </message>
    <message>
        <source>Everything was filled.</source>
        <translation>Tout a été rempli.</translation>
    </message>
    <message>
        <source>1 place could not be filled:</source>
        <translation>Endroits qui n’ont pas pu être remplis&#x202f;: 1</translation>
    </message>
    <message>
        <source>%1 places could not be filled:</source>
        <translation>Endroits qui n’ont pas pu être remplis&#x202f;: %1</translation>
    </message>
    <message>
        <source>Go to this place in the template</source>
        <translation>Aller à cet endroit du modèle</translation>
    </message>
    <message>
        <source>Zoom out (Ctrl and the wheel)</source>
        <translation>Réduire (Ctrl et la molette)</translation>
    </message>
    <message>
        <source>Zoom in (Ctrl and the wheel)</source>
        <translation>Agrandir (Ctrl et la molette)</translation>
    </message>
    <message>
        <source>Zoom of the preview</source>
        <translation>Zoom de l’aperçu</translation>
    </message>
    <message>
        <source>&amp;Fit the width</source>
        <translation>Ajuster à la lar&amp;geur</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::RepeatDialog</name>
    <message>
        <source>Repeat for each row</source>
        <translation>Répéter pour chaque ligne</translation>
    </message>
    <message>
        <source>Repeat:</source>
        <translation>Répéter&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;For each of:</source>
        <translation>&amp;Pour chaque ligne de&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Sorted by:</source>
        <translation>&amp;Trié par&#x202f;:</translation>
    </message>
    <message>
        <source>As they come</source>
        <translation>Dans leur ordre</translation>
    </message>
    <message>
        <source>The &amp;highest first</source>
        <translation>Ordre &amp;décroissant</translation>
    </message>
    <message>
        <source>&amp;Without any:</source>
        <translation>En l’&amp;absence de lignes&#x202f;:</translation>
    </message>
    <message>
        <source>Nothing is shown</source>
        <translation>Rien n’est affiché</translation>
    </message>
    <message>
        <source>&amp;Then by:</source>
        <translation>Pu&amp;is par&#x202f;:</translation>
    </message>
    <message>
        <source>The h&amp;ighest first</source>
        <translation>Ordre déc&amp;roissant</translation>
    </message>
</context>
<context>
    <name>ozm::editor::RichTextView</name>
    <message>
        <source>Double-click to change it.</source>
        <translation>Double-cliquez pour le modifier.</translation>
    </message>
    <message>
        <source>Double-click to edit this script.</source>
        <translation>Double-cliquez pour modifier ce script.</translation>
    </message>
    <message>
        <source>Kept as it is; change it in the source.</source>
        <translation>Conservé tel quel&#x202f;; à modifier dans le texte source.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::ScriptPane</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;xécuter</translation>
    </message>
    <message>
        <source>Inser&amp;t</source>
        <translation>Insé&amp;rer</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>templateEditorCore.number(inputParameters[&quot;[Mass]&quot;], 2)</source>
        <translation>templateEditorCore.number(inputParameters[&quot;[Mass]&quot;], 2)</translation>
    </message>
    <message>
        <source>Error of the script</source>
        <translation>Erreur du script</translation>
    </message>
    <message>
        <source>Result of the script</source>
        <translation>Résultat du script</translation>
    </message>
    <message>
        <source>What the script gives</source>
        <translation>Ce que donne le script</translation>
    </message>
    <message>
        <source>Run the script with the data of the preview</source>
        <translation>Exécuter le script avec les données de l’aperçu</translation>
    </message>
    <message>
        <source>Begin a new script</source>
        <translation>Commencer un nouveau script</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>App&amp;liquer</translation>
    </message>
    <message>
        <source>Insert the script at the cursor</source>
        <translation>Insérer le script au curseur</translation>
    </message>
    <message>
        <source>Put the script back where it stands</source>
        <translation>Remettre le script à sa place</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>Ran without an error.</source>
        <translation>Exécuté sans erreur.</translation>
    </message>
</context>
<context>
    <name>ozm::editor::TableEditing</name>
    <message>
        <source>Insert table</source>
        <translation>Insérer un tableau</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Lignes&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes&#x202f;:</translation>
    </message>
    <message>
        <source>The first row is the &amp;heading, on each page</source>
        <translation>La première ligne est l’en-&amp;tête, sur chaque page</translation>
    </message>
    <message numerus="yes">
        <source>Width of %n column(s)</source>
        <translation>
            <numerusform>Largeur de %n colonne</numerusform>
            <numerusform>Largeur de %n colonnes</numerusform>
        </translation>
    </message>
    <message>
        <source>Width of column %1</source>
        <translation>Largeur de la colonne %1</translation>
    </message>
</context>
<context>
    <name>ozm::editor::TextFormatting</name>
    <message>
        <source>Kind of paragraph</source>
        <translation>Type de paragraphe</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Heading %1</source>
        <translation>Titre %1</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation>Taille en points</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Colour behind the text</source>
        <translation>Couleur de fond du texte</translation>
    </message>
</context>
<context>
    <name>ozm::instructions</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>has a value</source>
        <translation>a une valeur</translation>
    </message>
    <message>
        <source>has no value</source>
        <translation>n’a pas de valeur</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>est égal à</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>n’est pas égal à</translation>
    </message>
    <message>
        <source>is above</source>
        <translation>est supérieur à</translation>
    </message>
    <message>
        <source>is below</source>
        <translation>est inférieur à</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>sum</source>
        <translation>somme</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>smallest</source>
        <translation>minimum</translation>
    </message>
    <message>
        <source>largest</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>count</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>For each row</source>
        <translation>Pour chaque ligne</translation>
    </message>
    <message>
        <source>For each of %1</source>
        <translation>Pour chaque ligne de %1</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, par %1</translation>
    </message>
    <message>
        <source>If %1 %2 %3</source>
        <translation>Si %1 %2 %3</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page set-up</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Page set-up, %1</source>
        <translation>Mise en page, %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>%1 as text</source>
        <translation>%1 comme texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an attribute.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un attribut.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>L’attribut «&#x202f;%1&#x202f;» manque.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is not known here.</source>
        <translation>L’attribut «&#x202f;%1&#x202f;» est inconnu ici.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; cannot be &quot;%2&quot;.</source>
        <translation>L’attribut «&#x202f;%1&#x202f;» ne peut pas être «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>The comment does not end.</source>
        <translation>Le commentaire n’a pas de fin.</translation>
    </message>
    <message>
        <source>The instruction &quot;%1&quot; does not exist.</source>
        <translation>Il n’y a pas d’instruction «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>A format is for one code.</source>
        <translation>Un format s’applique à un seul champ.</translation>
    </message>
    <message>
        <source>The section has no end.</source>
        <translation>La section n’a pas de fin.</translation>
    </message>
    <message>
        <source>No section ends here.</source>
        <translation>Aucune section ne se termine ici.</translation>
    </message>
    <message>
        <source>The section ends in another element than it begins in.</source>
        <translation>La section se termine dans un autre élément que celui où elle commence.</translation>
    </message>
    <message>
        <source>The pages are set up already.</source>
        <translation>La mise en page est déjà définie.</translation>
    </message>
    <message>
        <source>This is neither in a table row nor in a list item.</source>
        <translation>Il n’y a ni ligne de tableau ni élément de liste autour.</translation>
    </message>
    <message>
        <source>This row repeats already.</source>
        <translation>Cette ligne est déjà répétée.</translation>
    </message>
    <message>
        <source>The section crosses another one.</source>
        <translation>La section en chevauche une autre.</translation>
    </message>
    <message>
        <source>There are too many sections within one another.</source>
        <translation>Trop de sections sont imbriquées.</translation>
    </message>
    <message>
        <source>The list of rows &quot;%1&quot; does not exist.</source>
        <translation>Il n’y a pas de liste de lignes «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The part becomes too long.</source>
        <translation>La partie devient trop longue.</translation>
    </message>
    <message>
        <source>Else</source>
        <translation>Sinon</translation>
    </message>
    <message>
        <source>No section has another part here.</source>
        <translation>Il n’y a pas ici de section qui ait une autre partie.</translation>
    </message>
    <message>
        <source>The section has another part already.</source>
        <translation>La section a déjà une autre partie.</translation>
    </message>
    <message>
        <source>The other part begins in another element than the section.</source>
        <translation>L’autre partie commence dans un autre élément que la section.</translation>
    </message>
    <message>
        <source>The section has a text for no rows already.</source>
        <translation>La section a déjà un texte pour l’absence de lignes.</translation>
    </message>
    <message>
        <source>The section cannot be followed for its other part.</source>
        <translation>La section ne peut pas être appliquée à cause de son autre partie.</translation>
    </message>
    <message>
        <source>Table of contents</source>
        <translation>Table des matières</translation>
    </message>
</context>
<context>
    <name>ozm::msreader::FolderSearch</name>
    <message>
        <source>The search path is a file, not a folder: %1</source>
        <translation>Le chemin de recherche est un fichier, et non un dossier&#x202f;: %1</translation>
    </message>
    <message>
        <source>Search path does not exist</source>
        <translation>Le chemin de recherche n’existe pas</translation>
    </message>
    <message>
        <source>The search path cannot be read: %1</source>
        <translation>Impossible de lire le chemin de recherche&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>ozm::msreader::RefusalReason</name>
    <message>
        <source>The folder holds neither an &quot;AcqData&quot; folder (Agilent) nor &quot;fid&quot; files or a complete set of &quot;analysis&quot; files (Bruker).</source>
        <translation>Le dossier ne contient ni dossier «&#x202f;AcqData&#x202f;» (Agilent), ni fichiers «&#x202f;fid&#x202f;», ni jeu complet de fichiers «&#x202f;analysis&#x202f;» (Bruker).</translation>
    </message>
    <message>
        <source>The folder holds no &quot;_FUNC001.DAT&quot; file (Waters).</source>
        <translation>Le dossier ne contient pas de fichier «&#x202f;_FUNC001.DAT&#x202f;» (Waters).</translation>
    </message>
    <message>
        <source>The &quot;.wiff.scan&quot; file that belongs to it is missing.</source>
        <translation>Le fichier «&#x202f;.wiff.scan&#x202f;» associé manque.</translation>
    </message>
    <message>
        <source>It changed while it was looked at.</source>
        <translation>Le contenu a changé pendant qu’il était examiné.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would have to be called &quot;%2&quot;: here, capital and small letters count.</source>
        <translation>«&#x202f;%1&#x202f;» devrait s’appeler «&#x202f;%2&#x202f;»&#x202f;: ici, les majuscules et les minuscules comptent.</translation>
    </message>
    <message>
        <source>The folder holds &quot;%1&quot;, but not &quot;%2&quot;, which belongs to it (Bruker).</source>
        <translation>Le dossier contient «&#x202f;%1&#x202f;», mais pas «&#x202f;%2&#x202f;», qui va avec (Bruker).</translation>
    </message>
    <message>
        <source>Data with this name (%1) is a file, but this is a folder.</source>
        <translation>Les données de ce nom (%1) sont un fichier, mais ceci est un dossier.</translation>
    </message>
    <message>
        <source>Data with this name (%1) is a folder, but this is a file.</source>
        <translation>Les données de ce nom (%1) sont un dossier, mais ceci est un fichier.</translation>
    </message>
    <message>
        <source>The path is too long for this system.</source>
        <translation>Le chemin est trop long pour ce système.</translation>
    </message>
    <message>
        <source>The link leads back to itself.</source>
        <translation>Le lien ramène à lui-même.</translation>
    </message>
    <message>
        <source>Too many files are open. Close some windows and try again.</source>
        <translation>Trop de fichiers sont ouverts. Fermez quelques fenêtres et réessayez.</translation>
    </message>
    <message>
        <source>A folder above it does not allow access.</source>
        <translation>Un dossier parent ne permet pas l’accès.</translation>
    </message>
    <message>
        <source>The disk or the share does not answer.</source>
        <translation>Le disque ou le partage ne répond pas.</translation>
    </message>
    <message>
        <source>The link leads to nothing.</source>
        <translation>Le lien ne mène nulle part.</translation>
    </message>
    <message>
        <source>No such file or folder.</source>
        <translation>Il n’y a pas de fichier ni de dossier de ce nom.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder.</source>
        <translation>Ce n’est ni un fichier ni un dossier.</translation>
    </message>
    <message>
        <source>The name has none of the extensions of mass-spectrometry data.</source>
        <translation>Le nom n’a aucune des extensions des données de spectrométrie de masse.</translation>
    </message>
    <message>
        <source>The folder does not exist any more.</source>
        <translation>Le dossier n’existe plus.</translation>
    </message>
    <message>
        <source>The folder cannot be read. Access is not allowed.</source>
        <translation>Impossible de lire le dossier. L’accès n’est pas autorisé.</translation>
    </message>
    <message>
        <source>The folder cannot be read. The disk or the share does not answer.</source>
        <translation>Impossible de lire le dossier. Le disque ou le partage ne répond pas.</translation>
    </message>
    <message>
        <source>The name is not valid text. Rename it to use the data.</source>
        <translation>Le nom n’est pas un texte valide. Renommez l’élément pour utiliser les données.</translation>
    </message>
</context>
</TS>

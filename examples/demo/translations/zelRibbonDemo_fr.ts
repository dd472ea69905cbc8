<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>DocumentInfoPane</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Document information</source>
        <translation>Informations sur le document</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Characters (no spaces)</source>
        <translation>Caractères (espaces non compris)</translation>
    </message>
    <message>
        <source>Characters (with spaces)</source>
        <translation>Caractères (espaces compris)</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>Titres</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Pas encore enregistré</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
    <message>
        <source>Not set (File › Options)</source>
        <translation>Non défini (Fichier › Options)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>Aucune modification non enregistrée</translation>
    </message>
</context>
<context>
    <name>EditorDemo</name>
    <message>
        <source>Document%1</source>
        <translation>Document%1</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A small rich-text editor built on the zelRibbon library: every command of its ribbon works on the document.</source>
        <translation>Un petit éditeur de texte enrichi bâti sur la bibliothèque zelRibbon : chaque commande de son ruban agit sur le document.</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste (Ctrl+V)</source>
        <translation>Coller (Ctrl+V)</translation>
    </message>
    <message>
        <source>Paste as Text</source>
        <translation>Coller en texte</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <source>Grow Font</source>
        <translation>Agrandir la police</translation>
    </message>
    <message>
        <source>Shrink Font</source>
        <translation>Réduire la police</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Barré</translation>
    </message>
    <message>
        <source>Bold (Ctrl+B)</source>
        <translation>Gras (Ctrl+B)</translation>
    </message>
    <message>
        <source>Italic (Ctrl+I)</source>
        <translation>Italique (Ctrl+I)</translation>
    </message>
    <message>
        <source>Underline (Ctrl+U)</source>
        <translation>Souligné (Ctrl+U)</translation>
    </message>
    <message>
        <source>Clear Formatting</source>
        <translation>Effacer la mise en forme</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Paragraphe</translation>
    </message>
    <message>
        <source>Bullets</source>
        <translation>Puces</translation>
    </message>
    <message>
        <source>Numbering</source>
        <translation>Numérotation</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Aligner à droite</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Justifier</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find text in the document</source>
        <translation>Rechercher du texte dans le document</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>« %1 » est introuvable.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertion</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>Insérer un tableau</translation>
    </message>
    <message>
        <source>%1 × %2 Table</source>
        <translation>Tableau %1 × %2</translation>
    </message>
    <message>
        <source>Insert a table</source>
        <translation>Insérer un tableau</translation>
    </message>
    <message>
        <source>Illustrations</source>
        <translation>Illustrations</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Insert a generated chart picture</source>
        <translation>Insérer une image de graphique générée</translation>
    </message>
    <message>
        <source>Horizontal Line</source>
        <translation>Ligne horizontale</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Short Date</source>
        <translation>Date courte</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Date longue</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Zoom to 100%</source>
        <translation>Zoom à 100 %</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Minimise Ribbon</source>
        <translation>Réduire le ruban</translation>
    </message>
    <message>
        <source>Show only the tab names (Ctrl+F1)</source>
        <translation>N’afficher que les noms des onglets (Ctrl+F1)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Navigation Pane</source>
        <translation>Volet de navigation</translation>
    </message>
    <message>
        <source>Show the headings of the document at the left</source>
        <translation>Afficher les titres du document à gauche</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Show the ribbon in its dark palette</source>
        <translation>Afficher le ruban dans sa palette sombre</translation>
    </message>
    <message>
        <source>Table Tools</source>
        <translation>Outils de tableau</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Rows &amp; Columns</source>
        <translation>Lignes et colonnes</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Insert Above</source>
        <translation>Insérer au-dessus</translation>
    </message>
    <message>
        <source>Insert Below</source>
        <translation>Insérer en dessous</translation>
    </message>
    <message>
        <source>Insert Left</source>
        <translation>Insérer à gauche</translation>
    </message>
    <message>
        <source>Insert Right</source>
        <translation>Insérer à droite</translation>
    </message>
    <message>
        <source>Delete Rows</source>
        <translation>Supprimer les lignes</translation>
    </message>
    <message>
        <source>Delete Columns</source>
        <translation>Supprimer les colonnes</translation>
    </message>
    <message>
        <source>Delete Table</source>
        <translation>Supprimer le tableau</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Création</translation>
    </message>
    <message>
        <source>Table Style</source>
        <translation>Style de tableau</translation>
    </message>
    <message>
        <source>Grid Lines</source>
        <translation>Quadrillage</translation>
    </message>
    <message>
        <source>Header Row</source>
        <translation>Ligne d’en-tête</translation>
    </message>
    <message>
        <source>Shade Row</source>
        <translation>Ombrer la ligne</translation>
    </message>
    <message>
        <source>Clear Shading</source>
        <translation>Effacer l’ombrage</translation>
    </message>
    <message>
        <source>Picture Tools</source>
        <translation>Outils Image</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Taille d’origine</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organiser</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Place the picture&apos;s paragraph: %1</source>
        <translation>Placer le paragraphe de l’image : %1</translation>
    </message>
    <message>
        <source>Page 1 of 1</source>
        <translation>Page 1 sur 1</translation>
    </message>
    <message>
        <source>Go to Beginning</source>
        <translation>Aller au début</translation>
    </message>
    <message>
        <source>Go to End</source>
        <translation>Aller à la fin</translation>
    </message>
    <message>
        <source>0 words</source>
        <translation>0 mot</translation>
    </message>
    <message>
        <source>Word Count...</source>
        <translation>Statistiques...</translation>
    </message>
    <message>
        <source>Word Count</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Words: %1
Characters: %2
Paragraphs: %3</source>
        <translation>Mots : %1
Caractères : %2
Paragraphes : %3</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Blank document</source>
        <translation>Document vierge</translation>
    </message>
    <message>
        <source>Sample document</source>
        <translation>Document d’exemple</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Documents récents</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Lettre</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dear reader,&lt;/p&gt;&lt;p&gt;&lt;/p&gt;&lt;p&gt;Kind regards,&lt;/p&gt;</source>
        <translation>&lt;p&gt;Chère lectrice, cher lecteur,&lt;/p&gt;&lt;p&gt;&lt;/p&gt;&lt;p&gt;Cordialement,&lt;/p&gt;</translation>
    </message>
    <message>
        <source>1 word</source>
        <translation>1 mot</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 mots</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nouveau document</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ouvrir un document</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>Enregistrer le document</translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation>Fermer le document</translation>
    </message>
    <message>
        <source>Next document</source>
        <translation>Document suivant</translation>
    </message>
    <message>
        <source>Previous document</source>
        <translation>Document précédent</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Minimise or restore the ribbon</source>
        <translation>Réduire ou rétablir le ruban</translation>
    </message>
    <message>
        <source>Leave the File page</source>
        <translation>Quitter la page Fichier</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>Cannot open %1:
%2</source>
        <translation>Impossible d’ouvrir %1 :
%2</translation>
    </message>
    <message>
        <source>Cannot save %1:
%2</source>
        <translation>Impossible d’enregistrer %1 :
%2</translation>
    </message>
    <message>
        <source>Document%1.html</source>
        <translation>Document%1.html</translation>
    </message>
    <message>
        <source>HTML documents (*.html *.htm);;Plain text (*.txt)</source>
        <translation>Documents HTML (*.html *.htm);;Texte brut (*.txt)</translation>
    </message>
    <message>
        <source>Documents (*.html *.htm *.txt);;All files (*)</source>
        <translation>Documents (*.html *.htm *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&lt;h1 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Harbour Renewal Project&lt;/h1&gt;&lt;p style=&apos;color:#666666&apos;&gt;&lt;i&gt;Quarterly report — prepared for the steering group&lt;/i&gt;&lt;/p&gt;&lt;p&gt;The second quarter brought the &lt;b&gt;new quay wall&lt;/b&gt; to completion and the dredging works close to their final depth. Costs remain &lt;u&gt;within the approved budget&lt;/u&gt;, while the schedule gained two weeks thanks to the mild winter.&lt;/p&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Highlights&lt;/h2&gt;&lt;ul&gt;&lt;li&gt;Quay wall finished and inspected&lt;/li&gt;&lt;li&gt;Dredging at &lt;b&gt;92 %&lt;/b&gt; of the planned volume&lt;/li&gt;&lt;li&gt;Public walkway opened one month early&lt;/li&gt;&lt;/ul&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Budget overview&lt;/h2&gt;</source>
        <translation>&lt;h1 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Projet de rénovation du port&lt;/h1&gt;&lt;p style=&apos;color:#666666&apos;&gt;&lt;i&gt;Rapport trimestriel — préparé pour le comité de pilotage&lt;/i&gt;&lt;/p&gt;&lt;p&gt;Le deuxième trimestre a vu l’achèvement du &lt;b&gt;nouveau mur de quai&lt;/b&gt; et les travaux de dragage approchent de leur profondeur finale. Les coûts restent &lt;u&gt;dans le budget approuvé&lt;/u&gt;, et le calendrier a gagné deux semaines grâce à l’hiver doux.&lt;/p&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Faits marquants&lt;/h2&gt;&lt;ul&gt;&lt;li&gt;Mur de quai terminé et contrôlé&lt;/li&gt;&lt;li&gt;Dragage à &lt;b&gt;92 %&lt;/b&gt; du volume prévu&lt;/li&gt;&lt;li&gt;Promenade publique ouverte avec un mois d’avance&lt;/li&gt;&lt;/ul&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Aperçu du budget&lt;/h2&gt;</translation>
    </message>
    <message>
        <source>Work package</source>
        <translation>Lot de travaux</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>Spent</source>
        <translation>Dépensé</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Quay wall</source>
        <translation>Mur de quai</translation>
    </message>
    <message>
        <source>4.2 M</source>
        <translation>4,2 M</translation>
    </message>
    <message>
        <source>4.0 M</source>
        <translation>4,0 M</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Dredging</source>
        <translation>Dragage</translation>
    </message>
    <message>
        <source>2.8 M</source>
        <translation>2,8 M</translation>
    </message>
    <message>
        <source>2.5 M</source>
        <translation>2,5 M</translation>
    </message>
    <message>
        <source>On track</source>
        <translation>Dans les temps</translation>
    </message>
    <message>
        <source>Walkway</source>
        <translation>Promenade</translation>
    </message>
    <message>
        <source>0.9 M</source>
        <translation>0,9 M</translation>
    </message>
    <message>
        <source>0.6 M</source>
        <translation>0,6 M</translation>
    </message>
    <message>
        <source>Progress of the dredging works per month:</source>
        <translation>Avancement des travaux de dragage par mois :</translation>
    </message>
    <message>
        <source>The next report follows at the end of the third quarter.</source>
        <translation>Le prochain rapport suivra à la fin du troisième trimestre.</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>status of a work package</comment>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>EditorGalleries</name>
    <message>
        <source>Format the paragraph as %1</source>
        <translation>Mettre le paragraphe en forme comme %1</translation>
    </message>
    <message>
        <source>Zoom to %1%</source>
        <translation>Zoom à %1 %</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Heading 1</source>
        <translation>Titre 1</translation>
    </message>
    <message>
        <source>Heading 2</source>
        <translation>Titre 2</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Citation</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Paragraph styles</source>
        <translation>Styles de paragraphe</translation>
    </message>
    <message>
        <source>Clear Formatting</source>
        <translation>Effacer la mise en forme</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Page layout and zoom</source>
        <translation>Mise en page et zoom</translation>
    </message>
    <message>
        <source>Print Layout</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Web Layout</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>The text as a page of fixed width</source>
        <translation>Le texte sous forme de page de largeur fixe</translation>
    </message>
    <message>
        <source>The text fills the window</source>
        <translation>Le texte remplit la fenêtre</translation>
    </message>
    <message>
        <source>Custom Zoom...</source>
        <translation>Zoom personnalisé...</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom (%):</source>
        <translation>Zoom (%) :</translation>
    </message>
</context>
<context>
    <name>EditorOptions</name>
    <message>
        <source>Writer Options</source>
        <translation>Options de Writer</translation>
    </message>
</context>
<context>
    <name>EditorPickers</name>
    <message>
        <source>Font Color</source>
        <translation>Couleur de police</translation>
    </message>
    <message>
        <source>Text Highlight Color</source>
        <translation>Couleur de surbrillance</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Insert a symbol</source>
        <translation>Insérer un symbole</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Registered</source>
        <translation>Marque déposée</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Euro</source>
        <translation>Euro</translation>
    </message>
    <message>
        <source>Pound</source>
        <translation>Livre</translation>
    </message>
    <message>
        <source>Yen</source>
        <translation>Yen</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Degré</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Plus ou moins</translation>
    </message>
    <message>
        <source>Multiplication</source>
        <translation>Multiplication</translation>
    </message>
    <message>
        <source>Division</source>
        <translation>Division</translation>
    </message>
    <message>
        <source>Not equal</source>
        <translation>Différent</translation>
    </message>
    <message>
        <source>Almost equal</source>
        <translation>Presque égal</translation>
    </message>
    <message>
        <source>Less or equal</source>
        <translation>Inférieur ou égal</translation>
    </message>
    <message>
        <source>Greater or equal</source>
        <translation>Supérieur ou égal</translation>
    </message>
    <message>
        <source>Infinity</source>
        <translation>Infini</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Omega</source>
        <translation>Oméga</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Paragraphe (signe)</translation>
    </message>
    <message>
        <source>Pilcrow</source>
        <translation>Pied-de-mouche</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>Puce</translation>
    </message>
    <message>
        <source>Ellipsis</source>
        <translation>Points de suspension</translation>
    </message>
    <message>
        <source>Em dash</source>
        <translation>Tiret cadratin</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Flèche droite</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <source>Up arrow</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <source>Down arrow</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <source>One half</source>
        <translation>Un demi</translation>
    </message>
    <message>
        <source>One quarter</source>
        <translation>Un quart</translation>
    </message>
    <message>
        <source>Check mark</source>
        <translation>Coche</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>General options for working with the editor</source>
        <translation>Options générales pour travailler avec l’éditeur</translation>
    </message>
    <message>
        <source>Your name, shown in the document information</source>
        <translation>Votre nom, affiché dans les informations du document</translation>
    </message>
    <message>
        <source>&amp;Author name:</source>
        <translation>Nom de l’&amp;auteur :</translation>
    </message>
    <message>
        <source> documents</source>
        <translation> documents</translation>
    </message>
    <message>
        <source>&amp;Recent documents list:</source>
        <translation>Liste des documents &amp;récents :</translation>
    </message>
</context>
<context>
    <name>NavigationPane</name>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Click a heading to go there</source>
        <translation>Cliquez sur un titre pour y aller</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>How the editor looks when it starts</source>
        <translation>L’aspect de l’éditeur au démarrage</translation>
    </message>
    <message>
        <source>Start with the ribbon &amp;minimised</source>
        <translation>Démarrer avec le ruban &amp;réduit</translation>
    </message>
    <message>
        <source>Default &amp;zoom:</source>
        <translation>&amp;Zoom par défaut :</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>zelRibbon demo host</source>
        <translation>Application de démonstration de zelRibbon</translation>
    </message>
    <message>
        <source>Render every screen to a PNG file in &lt;dir&gt; and exit.</source>
        <translation>Enregistrer chaque écran en PNG dans &lt;dossier&gt; et quitter.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Show the individual demo screens instead of the editor.</source>
        <translation>Afficher les écrans de démonstration au lieu de l’éditeur.</translation>
    </message>
    <message>
        <source>Show the editor, grab the screen into &lt;file&gt; and check that the ribbon is on it (exit code 0 when it is).</source>
        <translation>Afficher l’éditeur, capturer l’écran dans &lt;fichier&gt; et vérifier que le ruban y figure (code de sortie 0 si oui).</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>files</source>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>Documents to open; a running editor opens them, except .txt files, which get an editor of their own.</source>
        <translation>Documents à ouvrir ; un éditeur déjà lancé les ouvre, sauf les fichiers .txt, qui ont leur propre éditeur.</translation>
    </message>
    <message>
        <source>[files...]</source>
        <translation>[fichiers...]</translation>
    </message>
    <message>
        <source>zelRibbon demo</source>
        <translation>Démo zelRibbon</translation>
    </message>
</context>
</TS>

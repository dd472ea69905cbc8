<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>RibbonColorPickerPopup</name>
    <message>
        <source>More colors...</source>
        <translation>Autres couleurs...</translation>
    </message>
</context>
<context>
    <name>RibbonMenuBar</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>RibbonOptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RibbonQuickAccessBar</name>
    <message>
        <source>Minimize the Ribbon</source>
        <translation>Réduire le ruban</translation>
    </message>
</context>
<context>
    <name>zel::BackstageView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>zel::BackstageWelcomeScreen</name>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Documents you open recently appear here.</source>
        <translation>Les documents que vous avez ouverts récemment apparaissent ici.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Blank document</source>
        <translation>Document vierge</translation>
    </message>
</context>
<context>
    <name>zel::RibbonColorPickerPopup</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
</context>
<context>
    <name>zel::RibbonMainWindow</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>Mi&amp;nimize</source>
        <translation>Réd&amp;uire</translation>
    </message>
    <message>
        <source>Ma&amp;ximize</source>
        <translation>Ag&amp;randir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>System menu</source>
        <translation>Menu système</translation>
    </message>
</context>
<context>
    <name>zel::RibbonMenuBar</name>
    <message>
        <source>Collapse the Ribbon</source>
        <translation>Masquer le ruban</translation>
    </message>
    <message>
        <source>Pin the Ribbon</source>
        <translation>Épingler le ruban</translation>
    </message>
    <message>
        <source>Ribbon Tabs</source>
        <translation>Onglets du ruban</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Ruban</translation>
    </message>
</context>
<context>
    <name>zel::RibbonPercWidget</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>zel::RibbonQuickAccessBar</name>
    <message>
        <source>Customize Quick Access Toolbar</source>
        <translation>Personnaliser la barre d’outils Accès rapide</translation>
    </message>
    <message>
        <source>Quick Access Toolbar</source>
        <translation>Barre d&apos;outils Accès rapide</translation>
    </message>
    <message>
        <source>Remove from Quick Access Toolbar</source>
        <translation>Supprimer de la barre d&apos;outils Accès rapide</translation>
    </message>
    <message>
        <source>Add to Quick Access Toolbar</source>
        <translation>Ajouter à la barre d&apos;outils Accès rapide</translation>
    </message>
</context>
<context>
    <name>zel::RibbonStatusBar</name>
    <message>
        <source>Status Bar</source>
        <translation>Barre d&apos;état</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>RibbonColorPickerPopup</name>
    <message>
        <source>More colors...</source>
        <translation>Weitere Farben...</translation>
    </message>
</context>
<context>
    <name>RibbonMenuBar</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>RibbonOptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RibbonQuickAccessBar</name>
    <message>
        <source>Minimize the Ribbon</source>
        <translation>Menüband minimieren</translation>
    </message>
</context>
<context>
    <name>zel::BackstageView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>zel::BackstageWelcomeScreen</name>
    <message>
        <source>Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Documents you open recently appear here.</source>
        <translation>Hier erscheinen die Dokumente, die Sie zuletzt geöffnet haben.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Blank document</source>
        <translation>Leeres Dokument</translation>
    </message>
</context>
<context>
    <name>zel::RibbonColorPickerPopup</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
</context>
<context>
    <name>zel::RibbonMainWindow</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe ändern</translation>
    </message>
    <message>
        <source>Mi&amp;nimize</source>
        <translation>Mi&amp;nimieren</translation>
    </message>
    <message>
        <source>Ma&amp;ximize</source>
        <translation>Ma&amp;ximieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>System menu</source>
        <translation>Systemmenü</translation>
    </message>
</context>
<context>
    <name>zel::RibbonMenuBar</name>
    <message>
        <source>Collapse the Ribbon</source>
        <translation>Menüband reduzieren</translation>
    </message>
    <message>
        <source>Pin the Ribbon</source>
        <translation>Menüband anheften</translation>
    </message>
    <message>
        <source>Ribbon Tabs</source>
        <translation>Registerkarten des Menübands</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Menüband</translation>
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
        <translation>Symbolleiste für den Schnellzugriff anpassen</translation>
    </message>
    <message>
        <source>Quick Access Toolbar</source>
        <translation>Symbolleiste für den Schnellzugriff</translation>
    </message>
    <message>
        <source>Remove from Quick Access Toolbar</source>
        <translation>Aus Symbolleiste für den Schnellzugriff entfernen</translation>
    </message>
    <message>
        <source>Add to Quick Access Toolbar</source>
        <translation>Zu Symbolleiste für den Schnellzugriff hinzufügen</translation>
    </message>
</context>
<context>
    <name>zel::RibbonStatusBar</name>
    <message>
        <source>Status Bar</source>
        <translation>Statusleiste</translation>
    </message>
</context>
</TS>

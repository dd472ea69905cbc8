<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DocumentInfoPane</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Last saved</source>
        <translation>Zuletzt gespeichert</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Document information</source>
        <translation>Dokumentinformationen</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Characters (no spaces)</source>
        <translation>Zeichen (ohne Leerzeichen)</translation>
    </message>
    <message>
        <source>Characters (with spaces)</source>
        <translation>Zeichen (mit Leerzeichen)</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Absätze</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>Überschriften</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkombinationen</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
    <message>
        <source>Not set (File › Options)</source>
        <translation>Nicht festgelegt (Datei › Optionen)</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>Keine ungespeicherten Änderungen</translation>
    </message>
</context>
<context>
    <name>EditorDemo</name>
    <message>
        <source>Document%1</source>
        <translation>Dokument%1</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>A small rich-text editor built on the zelRibbon library: every command of its ribbon works on the document.</source>
        <translation>Ein kleiner Editor für formatierten Text auf Grundlage der Bibliothek zelRibbon: Jeder Befehl seines Menübands wirkt auf das Dokument.</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste (Ctrl+V)</source>
        <translation>Einfügen (Strg+V)</translation>
    </message>
    <message>
        <source>Paste as Text</source>
        <translation>Als Text einfügen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles markieren</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgrad</translation>
    </message>
    <message>
        <source>Grow Font</source>
        <translation>Schrift vergrößern</translation>
    </message>
    <message>
        <source>Shrink Font</source>
        <translation>Schrift verkleinern</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Bold (Ctrl+B)</source>
        <translation>Fett (Strg+B)</translation>
    </message>
    <message>
        <source>Italic (Ctrl+I)</source>
        <translation>Kursiv (Strg+I)</translation>
    </message>
    <message>
        <source>Underline (Ctrl+U)</source>
        <translation>Unterstrichen (Strg+U)</translation>
    </message>
    <message>
        <source>Clear Formatting</source>
        <translation>Formatierung löschen</translation>
    </message>
    <message>
        <source>Paragraph</source>
        <translation>Absatz</translation>
    </message>
    <message>
        <source>Bullets</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Numbering</source>
        <translation>Nummerierung</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Linksbündig</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Rechtsbündig</translation>
    </message>
    <message>
        <source>Justify</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find text in the document</source>
        <translation>Text im Dokument suchen</translation>
    </message>
    <message>
        <source>Find what:</source>
        <translation>Suchen nach:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>„%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>Tabelle einfügen</translation>
    </message>
    <message>
        <source>%1 × %2 Table</source>
        <translation>Tabelle %1 × %2</translation>
    </message>
    <message>
        <source>Insert a table</source>
        <translation>Eine Tabelle einfügen</translation>
    </message>
    <message>
        <source>Illustrations</source>
        <translation>Illustrationen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Insert a generated chart picture</source>
        <translation>Ein erzeugtes Diagrammbild einfügen</translation>
    </message>
    <message>
        <source>Horizontal Line</source>
        <translation>Horizontale Linie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Short Date</source>
        <translation>Kurzes Datum</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Langes Datum</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Zoom to 100%</source>
        <translation>Auf 100% zoomen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Minimise Ribbon</source>
        <translation>Menüband minimieren</translation>
    </message>
    <message>
        <source>Show only the tab names (Ctrl+F1)</source>
        <translation>Nur die Registerkartennamen anzeigen (Strg+F1)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Navigation Pane</source>
        <translation>Navigationsbereich</translation>
    </message>
    <message>
        <source>Show the headings of the document at the left</source>
        <translation>Die Überschriften des Dokuments links anzeigen</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Show the ribbon in its dark palette</source>
        <translation>Das Menüband in seiner dunklen Farbpalette anzeigen</translation>
    </message>
    <message>
        <source>Table Tools</source>
        <translation>Tabellentools</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Rows &amp; Columns</source>
        <translation>Zeilen und Spalten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Insert Above</source>
        <translation>Oberhalb einfügen</translation>
    </message>
    <message>
        <source>Insert Below</source>
        <translation>Unterhalb einfügen</translation>
    </message>
    <message>
        <source>Insert Left</source>
        <translation>Links einfügen</translation>
    </message>
    <message>
        <source>Insert Right</source>
        <translation>Rechts einfügen</translation>
    </message>
    <message>
        <source>Delete Rows</source>
        <translation>Zeilen löschen</translation>
    </message>
    <message>
        <source>Delete Columns</source>
        <translation>Spalten löschen</translation>
    </message>
    <message>
        <source>Delete Table</source>
        <translation>Tabelle löschen</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Table Style</source>
        <translation>Tabellenformat</translation>
    </message>
    <message>
        <source>Grid Lines</source>
        <translation>Gitternetzlinien</translation>
    </message>
    <message>
        <source>Header Row</source>
        <translation>Kopfzeile</translation>
    </message>
    <message>
        <source>Shade Row</source>
        <translation>Zeile schattieren</translation>
    </message>
    <message>
        <source>Clear Shading</source>
        <translation>Schattierung entfernen</translation>
    </message>
    <message>
        <source>Picture Tools</source>
        <translation>Bildtools</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Place the picture&apos;s paragraph: %1</source>
        <translation>Den Absatz des Bildes ausrichten: %1</translation>
    </message>
    <message>
        <source>Page 1 of 1</source>
        <translation>Seite 1 von 1</translation>
    </message>
    <message>
        <source>Go to Beginning</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Go to End</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <source>0 words</source>
        <translation>0 Wörter</translation>
    </message>
    <message>
        <source>Word Count...</source>
        <translation>Wörter zählen...</translation>
    </message>
    <message>
        <source>Word Count</source>
        <translation>Wörter zählen</translation>
    </message>
    <message>
        <source>Words: %1
Characters: %2
Paragraphs: %3</source>
        <translation>Wörter: %1
Zeichen: %2
Absätze: %3</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Blank document</source>
        <translation>Leeres Dokument</translation>
    </message>
    <message>
        <source>Sample document</source>
        <translation>Beispieldokument</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Recent Documents</source>
        <translation>Zuletzt verwendete Dokumente</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Brief</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dear reader,&lt;/p&gt;&lt;p&gt;&lt;/p&gt;&lt;p&gt;Kind regards,&lt;/p&gt;</source>
        <translation>&lt;p&gt;Liebe Leserin, lieber Leser,&lt;/p&gt;&lt;p&gt;&lt;/p&gt;&lt;p&gt;Mit freundlichen Grüßen&lt;/p&gt;</translation>
    </message>
    <message>
        <source>1 word</source>
        <translation>1 Wort</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 Wörter</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Neues Dokument</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ein Dokument öffnen</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>Das Dokument speichern</translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation>Das Dokument schließen</translation>
    </message>
    <message>
        <source>Next document</source>
        <translation>Nächstes Dokument</translation>
    </message>
    <message>
        <source>Previous document</source>
        <translation>Vorheriges Dokument</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles markieren</translation>
    </message>
    <message>
        <source>Minimise or restore the ribbon</source>
        <translation>Das Menüband minimieren oder wiederherstellen</translation>
    </message>
    <message>
        <source>Leave the File page</source>
        <translation>Die Seite „Datei“ verlassen</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Die Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>Cannot open %1:
%2</source>
        <translation>%1 kann nicht geöffnet werden:
%2</translation>
    </message>
    <message>
        <source>Cannot save %1:
%2</source>
        <translation>%1 kann nicht gespeichert werden:
%2</translation>
    </message>
    <message>
        <source>Document%1.html</source>
        <translation>Dokument%1.html</translation>
    </message>
    <message>
        <source>HTML documents (*.html *.htm);;Plain text (*.txt)</source>
        <translation>HTML-Dokumente (*.html *.htm);;Nur Text (*.txt)</translation>
    </message>
    <message>
        <source>Documents (*.html *.htm *.txt);;All files (*)</source>
        <translation>Dokumente (*.html *.htm *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&lt;h1 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Harbour Renewal Project&lt;/h1&gt;&lt;p style=&apos;color:#666666&apos;&gt;&lt;i&gt;Quarterly report — prepared for the steering group&lt;/i&gt;&lt;/p&gt;&lt;p&gt;The second quarter brought the &lt;b&gt;new quay wall&lt;/b&gt; to completion and the dredging works close to their final depth. Costs remain &lt;u&gt;within the approved budget&lt;/u&gt;, while the schedule gained two weeks thanks to the mild winter.&lt;/p&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Highlights&lt;/h2&gt;&lt;ul&gt;&lt;li&gt;Quay wall finished and inspected&lt;/li&gt;&lt;li&gt;Dredging at &lt;b&gt;92 %&lt;/b&gt; of the planned volume&lt;/li&gt;&lt;li&gt;Public walkway opened one month early&lt;/li&gt;&lt;/ul&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Budget overview&lt;/h2&gt;</source>
        <translation>&lt;h1 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Projekt Hafenerneuerung&lt;/h1&gt;&lt;p style=&apos;color:#666666&apos;&gt;&lt;i&gt;Quartalsbericht — für den Lenkungsausschuss&lt;/i&gt;&lt;/p&gt;&lt;p&gt;Im zweiten Quartal wurde die &lt;b&gt;neue Kaimauer&lt;/b&gt; fertiggestellt, und die Baggerarbeiten haben fast ihre endgültige Tiefe erreicht. Die Kosten bleiben &lt;u&gt;im genehmigten Budget&lt;/u&gt;, und dank des milden Winters hat der Zeitplan zwei Wochen gewonnen.&lt;/p&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Höhepunkte&lt;/h2&gt;&lt;ul&gt;&lt;li&gt;Kaimauer fertiggestellt und abgenommen&lt;/li&gt;&lt;li&gt;Baggerarbeiten bei &lt;b&gt;92 %&lt;/b&gt; des geplanten Volumens&lt;/li&gt;&lt;li&gt;Öffentliche Promenade einen Monat früher eröffnet&lt;/li&gt;&lt;/ul&gt;&lt;h2 style=&apos;color:#2B579A; font-weight:normal&apos;&gt;Budgetübersicht&lt;/h2&gt;</translation>
    </message>
    <message>
        <source>Work package</source>
        <translation>Arbeitspaket</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>Spent</source>
        <translation>Ausgegeben</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Quay wall</source>
        <translation>Kaimauer</translation>
    </message>
    <message>
        <source>4.2 M</source>
        <translation>4,2 Mio.</translation>
    </message>
    <message>
        <source>4.0 M</source>
        <translation>4,0 Mio.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Dredging</source>
        <translation>Baggerarbeiten</translation>
    </message>
    <message>
        <source>2.8 M</source>
        <translation>2,8 Mio.</translation>
    </message>
    <message>
        <source>2.5 M</source>
        <translation>2,5 Mio.</translation>
    </message>
    <message>
        <source>On track</source>
        <translation>Im Plan</translation>
    </message>
    <message>
        <source>Walkway</source>
        <translation>Promenade</translation>
    </message>
    <message>
        <source>0.9 M</source>
        <translation>0,9 Mio.</translation>
    </message>
    <message>
        <source>0.6 M</source>
        <translation>0,6 Mio.</translation>
    </message>
    <message>
        <source>Progress of the dredging works per month:</source>
        <translation>Fortschritt der Baggerarbeiten pro Monat:</translation>
    </message>
    <message>
        <source>The next report follows at the end of the third quarter.</source>
        <translation>Der nächste Bericht folgt am Ende des dritten Quartals.</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>status of a work package</comment>
        <translation>Offen</translation>
    </message>
</context>
<context>
    <name>EditorGalleries</name>
    <message>
        <source>Format the paragraph as %1</source>
        <translation>Den Absatz als %1 formatieren</translation>
    </message>
    <message>
        <source>Zoom to %1%</source>
        <translation>Auf %1% zoomen</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Heading 1</source>
        <translation>Überschrift 1</translation>
    </message>
    <message>
        <source>Heading 2</source>
        <translation>Überschrift 2</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Zitat</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Formatvorlagen</translation>
    </message>
    <message>
        <source>Paragraph styles</source>
        <translation>Absatzformate</translation>
    </message>
    <message>
        <source>Clear Formatting</source>
        <translation>Formatierung löschen</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Page layout and zoom</source>
        <translation>Seitenlayout und Zoom</translation>
    </message>
    <message>
        <source>Print Layout</source>
        <translation>Drucklayout</translation>
    </message>
    <message>
        <source>Web Layout</source>
        <translation>Weblayout</translation>
    </message>
    <message>
        <source>The text as a page of fixed width</source>
        <translation>Der Text als Seite fester Breite</translation>
    </message>
    <message>
        <source>The text fills the window</source>
        <translation>Der Text füllt das Fenster</translation>
    </message>
    <message>
        <source>Custom Zoom...</source>
        <translation>Benutzerdefinierter Zoom...</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom (%):</source>
        <translation>Zoom (%):</translation>
    </message>
</context>
<context>
    <name>EditorOptions</name>
    <message>
        <source>Writer Options</source>
        <translation>Writer-Optionen</translation>
    </message>
</context>
<context>
    <name>EditorPickers</name>
    <message>
        <source>Font Color</source>
        <translation>Schriftfarbe</translation>
    </message>
    <message>
        <source>Text Highlight Color</source>
        <translation>Texthervorhebungsfarbe</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Insert a symbol</source>
        <translation>Ein Symbol einfügen</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Registered</source>
        <translation>Eingetragen</translation>
    </message>
    <message>
        <source>Trade mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Euro</source>
        <translation>Euro</translation>
    </message>
    <message>
        <source>Pound</source>
        <translation>Pfund</translation>
    </message>
    <message>
        <source>Yen</source>
        <translation>Yen</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Plus-Minus</translation>
    </message>
    <message>
        <source>Multiplication</source>
        <translation>Multiplikation</translation>
    </message>
    <message>
        <source>Division</source>
        <translation>Division</translation>
    </message>
    <message>
        <source>Not equal</source>
        <translation>Ungleich</translation>
    </message>
    <message>
        <source>Almost equal</source>
        <translation>Ungefähr gleich</translation>
    </message>
    <message>
        <source>Less or equal</source>
        <translation>Kleiner oder gleich</translation>
    </message>
    <message>
        <source>Greater or equal</source>
        <translation>Größer oder gleich</translation>
    </message>
    <message>
        <source>Infinity</source>
        <translation>Unendlich</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Omega</source>
        <translation>Omega</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Mikro</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Paragraf</translation>
    </message>
    <message>
        <source>Pilcrow</source>
        <translation>Absatzmarke</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>Aufzählungspunkt</translation>
    </message>
    <message>
        <source>Ellipsis</source>
        <translation>Auslassungspunkte</translation>
    </message>
    <message>
        <source>Em dash</source>
        <translation>Geviertstrich</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Pfeil nach rechts</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Pfeil nach links</translation>
    </message>
    <message>
        <source>Up arrow</source>
        <translation>Pfeil nach oben</translation>
    </message>
    <message>
        <source>Down arrow</source>
        <translation>Pfeil nach unten</translation>
    </message>
    <message>
        <source>One half</source>
        <translation>Ein Halb</translation>
    </message>
    <message>
        <source>One quarter</source>
        <translation>Ein Viertel</translation>
    </message>
    <message>
        <source>Check mark</source>
        <translation>Häkchen</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>General options for working with the editor</source>
        <translation>Allgemeine Optionen für die Arbeit mit dem Editor</translation>
    </message>
    <message>
        <source>Your name, shown in the document information</source>
        <translation>Ihr Name, angezeigt in den Dokumentinformationen</translation>
    </message>
    <message>
        <source>&amp;Author name:</source>
        <translation>&amp;Autorname:</translation>
    </message>
    <message>
        <source> documents</source>
        <translation> Dokumente</translation>
    </message>
    <message>
        <source>&amp;Recent documents list:</source>
        <translation>Liste &amp;zuletzt verwendeter Dokumente:</translation>
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
        <translation>Klicken Sie auf eine Überschrift, um dorthin zu springen</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>How the editor looks when it starts</source>
        <translation>Wie der Editor beim Start aussieht</translation>
    </message>
    <message>
        <source>Start with the ribbon &amp;minimised</source>
        <translation>Mit &amp;minimiertem Menüband starten</translation>
    </message>
    <message>
        <source>Default &amp;zoom:</source>
        <translation>Standard-&amp;Zoom:</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>zelRibbon demo host</source>
        <translation>Beispielanwendung für zelRibbon</translation>
    </message>
    <message>
        <source>Render every screen to a PNG file in &lt;dir&gt; and exit.</source>
        <translation>Jede Ansicht als PNG-Datei in &lt;Verzeichnis&gt; speichern und beenden.</translation>
    </message>
    <message>
        <source>dir</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Show the individual demo screens instead of the editor.</source>
        <translation>Die einzelnen Demo-Ansichten statt des Editors zeigen.</translation>
    </message>
    <message>
        <source>Show the editor, grab the screen into &lt;file&gt; and check that the ribbon is on it (exit code 0 when it is).</source>
        <translation>Den Editor zeigen, den Bildschirm in &lt;Datei&gt; aufnehmen und prüfen, ob das Menüband darauf ist (Rückgabewert 0, wenn ja).</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Documents to open; a running editor opens them, except .txt files, which get an editor of their own.</source>
        <translation>Zu öffnende Dokumente; ein laufender Editor öffnet sie, außer .txt-Dateien, die einen eigenen Editor erhalten.</translation>
    </message>
    <message>
        <source>[files...]</source>
        <translation>[Dateien...]</translation>
    </message>
    <message>
        <source>zelRibbon demo</source>
        <translation>zelRibbon-Demo</translation>
    </message>
</context>
</TS>

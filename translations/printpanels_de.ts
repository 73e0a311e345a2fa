<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>MultiPagePrintDialog</name>
    <message>
        <source>Preview and Print</source>
        <comment>Window title</comment>
        <translation>Vorschau und Druck</translation>
    </message>
</context>
<context>
    <name>MultiPagePrintWidget</name>
    <message>
        <source>PRINT SETTINGS</source>
        <comment>Title for print settings.</comment>
        <translation>DRUCKEINSTELLUNGEN</translation>
    </message>
    <message>
        <source>Copies:</source>
        <comment>Label next to the display of the number of copies.</comment>
        <translation>Kopien:</translation>
    </message>
    <message>
        <source>Print 180 Orientation</source>
        <translation>180° gedreht drucken</translation>
    </message>
    <message>
        <source>Print Only Form Fill Text</source>
        <translation>Nur Formulartext drucken</translation>
    </message>
    <message>
        <source>Fit To Page </source>
        <translation>Einpassen </translation>
    </message>
    <message>
        <source>       Print       </source>
        <comment>Button for initiating a print.</comment>
        <translation>       Drucken       </translation>
    </message>
    <message>
        <source>Page Range:</source>
        <comment>Page range label text.</comment>
        <translation>Seitenbereich:</translation>
    </message>
    <message>
        <source>Current Page</source>
        <comment>Current page radio button text.</comment>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>All Pages</source>
        <comment>All pages radio button text.</comment>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Selection:  </source>
        <comment>Select page range radio button text.</comment>
        <translation>Auswahl:  </translation>
    </message>
    <message>
        <source>Enter a list of record numbers and/or ranges, separated by comma.</source>
        <comment>Tool tip text for record list entry.</comment>
        <translation>Nummern und/oder Bereiche von Datensätzen eingeben, durch Komma getrennt.</translation>
    </message>
    <message>
        <source>Example:</source>
        <comment>An example of a possible entry</comment>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <comment>Label showing printer name.</comment>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>List of Pages</source>
        <comment>Name of the page list entry for screen readers.</comment>
        <translation>Liste der Seiten</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Preview</source>
        <comment>Name of the picture of a label or page for screen readers.</comment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>No picture</source>
        <comment>Description of an empty preview for screen readers.</comment>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, shown at %3%</source>
        <comment>Description of the preview for screen readers: width, height and scale.</comment>
        <translation>%1 x %2 Pixel, angezeigt mit %3%</translation>
    </message>
</context>
<context>
    <name>PrintPanels</name>
    <message>
        <source>Preferences</source>
        <comment>Name of the button beside the printer for screen readers.</comment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The list is complete.</source>
        <comment>State of a record or page list for screen readers.</comment>
        <translation>Die Liste ist vollständig.</translation>
    </message>
    <message>
        <source>The list is not complete yet.</source>
        <comment>State of a record or page list for screen readers.</comment>
        <translation>Die Liste ist noch nicht vollständig.</translation>
    </message>
    <message>
        <source>More Copies</source>
        <comment>Name of the plus button for screen readers.</comment>
        <translation>Mehr Kopien</translation>
    </message>
    <message>
        <source>Fewer Copies</source>
        <comment>Name of the minus button for screen readers.</comment>
        <translation>Weniger Kopien</translation>
    </message>
</context>
<context>
    <name>PrintPreviewDialog</name>
    <message>
        <source>Print</source>
        <comment>Button to initiate print.</comment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button to close print preview.</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Print Preview (%1%2 X %3%2)</source>
        <comment>Dialog title with label size.</comment>
        <translation>Druckvorschau (%1%2 X %3%2)</translation>
    </message>
    <message>
        <source>Print Preview (Design: %1%2 X %3%2  Printed: %4%2 X %5%2)</source>
        <comment>Dialog title with label size.</comment>
        <translation>Druckvorschau (Entwurf: %1%2 X %3%2  Gedruckt: %4%2 X %5%2)</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <comment>Name of the button for screen readers.</comment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <comment>Name of the button for screen readers.</comment>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <comment>Name of the button that shows the whole label for screen readers.</comment>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Portrait</source>
        <comment>Name of the orientation button for screen readers.</comment>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <comment>Name of the orientation button for screen readers.</comment>
        <translation>Querformat</translation>
    </message>
</context>
<context>
    <name>PrintWidget</name>
    <message>
        <source>Online</source>
        <comment>Printer status</comment>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Offline</source>
        <comment>Printer status</comment>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Remote</source>
        <comment>Printer status</comment>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>, Unavailable</source>
        <comment>Printer status</comment>
        <translation>, nicht verfügbar</translation>
    </message>
    <message>
        <source>PRINT SETTINGS</source>
        <comment>Title for print settings.</comment>
        <translation>DRUCKEINSTELLUNGEN</translation>
    </message>
    <message>
        <source>Print User Background</source>
        <comment>Checkbox to print or not the user background layer</comment>
        <translation>Benutzerhintergrund drucken</translation>
    </message>
    <message>
        <source>Item To Print:</source>
        <comment>Which item to print label text</comment>
        <translation>Zu druckendes Element:</translation>
    </message>
    <message>
        <source>Label</source>
        <comment>The option to print the label</comment>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>High Pressure Tag</source>
        <comment>The option to print the high pressure tag</comment>
        <translation>Anhänger Hochdruck</translation>
    </message>
    <message>
        <source>Low Pressure Tag</source>
        <comment>The option to print the low pressure tag</comment>
        <translation>Anhänger Niederdruck</translation>
    </message>
    <message>
        <source>Vapor State Tag</source>
        <comment>The option to print the vapor state tag</comment>
        <translation>Anhänger dampfförmig</translation>
    </message>
    <message>
        <source>Liquid State Tag</source>
        <comment>The option to print the liquid state tag</comment>
        <translation>Anhänger flüssig</translation>
    </message>
    <message>
        <source>Copies:</source>
        <comment>Label next to the display of the number of copies.</comment>
        <translation>Kopien:</translation>
    </message>
    <message>
        <source> Print </source>
        <comment>Button for initiating a print.</comment>
        <translation> Drucken </translation>
    </message>
    <message>
        <source>Print Preview</source>
        <comment>Button for showing a print preview.</comment>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>N-up replicating: Select to print identical labels on a single page.</source>
        <comment>N-up print checkbox tool tip text.</comment>
        <translation>N-fach wiederholend: gleiche Etiketten auf einer Seite drucken.</translation>
    </message>
    <message>
        <source>N-up sequencing: Select to print multiple labels from the sequence on a single page.</source>
        <comment>N-up print checkbox tool tip text.</comment>
        <translation>N-fach fortlaufend: aufeinanderfolgende Etiketten auf einer Seite drucken.</translation>
    </message>
    <message>
        <source>N-up replicating option is disabled when dynamic length option is on.</source>
        <comment>N-up print checkbox tool tip text.</comment>
        <translation>Bei dynamischer Länge ist die N-fach-Auswahl nicht möglich.</translation>
    </message>
    <message>
        <source>N-up replicating option is enabled only for multiple records.</source>
        <comment>N-up print checkbox tool tip text.</comment>
        <translation>Die N-fach-Auswahl ist nur bei mehreren Datensätzen möglich.</translation>
    </message>
    <message>
        <source>N-up replicating or sequencing:</source>
        <comment>N-up print options title.</comment>
        <translation>N-fach wiederholend oder fortlaufend:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <comment>Label showing printer name.</comment>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Location:</source>
        <comment>Label next to the printer physical location.</comment>
        <translation>Standort:</translation>
    </message>
    <message>
        <source>Status:</source>
        <comment>Label next to the printer status.</comment>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Records to Print:</source>
        <comment>Records range label text.</comment>
        <translation>Zu druckende Datensätze:</translation>
    </message>
    <message>
        <source>Current Record</source>
        <comment>Current record radio button text.</comment>
        <translation>Aktueller Datensatz</translation>
    </message>
    <message>
        <source>All Records</source>
        <comment>All records radio button text.</comment>
        <translation>Alle Datensätze</translation>
    </message>
    <message>
        <source>Range or List of Records:</source>
        <comment>Custom record list radio button text.</comment>
        <translation>Bereich oder Liste:</translation>
    </message>
    <message>
        <source>Enter a list of record numbers and/or ranges, separated by comma.</source>
        <comment>Tool tip text for record list entry.</comment>
        <translation>Nummern und/oder Bereiche von Datensätzen eingeben, durch Komma getrennt.</translation>
    </message>
    <message>
        <source>Example:</source>
        <comment>An example of a possible entry</comment>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Loaded Supply:</source>
        <comment>Title for Supply Color Frame</comment>
        <translation>Eingelegtes Material:</translation>
    </message>
    <message>
        <source>0.2&quot; Ladder Shrink Tube</source>
        <translation>0,2&quot;-Schrumpfschlauch (Leiter)</translation>
    </message>
    <message>
        <source>Tape Width:</source>
        <comment>Label for Supply Tape Width.</comment>
        <translation>Bandbreite:</translation>
    </message>
    <message>
        <source>Select loaded color.</source>
        <comment>ToolTip for color selection.</comment>
        <translation>Eingelegte Farbe wählen.</translation>
    </message>
    <message>
        <source>Supply</source>
        <comment>Label for the supply color.</comment>
        <translation>Material</translation>
    </message>
    <message>
        <source>Print to file:
&quot; guest / logs / printTest_iii . prn &quot;</source>
        <comment>Option to print to a file.</comment>
        <translation>In Datei drucken:
&quot; guest / logs / printTest_iii . prn &quot;</translation>
    </message>
    <message>
        <source>Error number: </source>
        <comment>Label for testing the errors.</comment>
        <translation>Fehlernummer: </translation>
    </message>
    <message>
        <source>Show</source>
        <comment>Button for testing the errors.</comment>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Ribbon%1</source>
        <comment>Label for the ribbon color.</comment>
        <translation>Farbband %1</translation>
    </message>
    <message>
        <source>Blank Ribbon%1</source>
        <comment>Label for the ribbon color.</comment>
        <translation>Leeres Farbband %1</translation>
    </message>
    <message>
        <source>List of Records</source>
        <comment>Name of the record list entry for screen readers.</comment>
        <translation>Liste der Datensätze</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <comment>Unit of the tape width for screen readers.</comment>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Inches</source>
        <comment>Unit of the tape width for screen readers.</comment>
        <translation>Zoll</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source> pt</source>
        <comment>Abbreviation for Points</comment>
        <translation> pt</translation>
    </message>
    <message>
        <source> in</source>
        <comment>Abbreviation for Inches</comment>
        <translation> in</translation>
    </message>
    <message>
        <source>&quot;</source>
        <comment>Abbreviation for Inches</comment>
        <translation>&quot;</translation>
    </message>
    <message>
        <source> mm</source>
        <comment>Abbreviation for Millimeters</comment>
        <translation> mm</translation>
    </message>
    <message>
        <source>OSHA</source>
        <comment>OSHA Authority Abbreviaton. OSHA stands for: Occupational Safety and Health Adminstration.</comment>
        <translation>OSHA</translation>
    </message>
    <message>
        <source>EU</source>
        <comment>EU Authority Abbreviaton</comment>
        <translation>EU</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <comment>CUSTOM Authority</comment>
        <translation>EIGENE</translation>
    </message>
    <message>
        <source>US/OSHA HazCom 2012</source>
        <comment>Option for selecting label type. OSHA stands for: Occupational Safety and Health Adminstration.</comment>
        <translation>US/OSHA HazCom 2012</translation>
    </message>
    <message>
        <source>UN/GHS Rev. 7</source>
        <comment>Option for selecting label type. Stands for: United Nations/Globally Harmonized System.</comment>
        <translation>UN/GHS Rev. 7</translation>
    </message>
    <message>
        <source>Custom</source>
        <comment>Option for selecting label type. The user selects to create a custom GHS label.</comment>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Switch Print Orientation</source>
        <comment>The text on the tooltip to switch print orientation.</comment>
        <translation>Druckausrichtung wechseln</translation>
    </message>
</context>
<context>
    <name>QuickPrintWidget</name>
    <message>
        <source>Current printer:</source>
        <comment>The label next to the current printer name</comment>
        <translation>Aktueller Drucker:</translation>
    </message>
    <message>
        <source>       Resize       </source>
        <comment>The text on the button to resize the label.</comment>
        <translation>       Ändern       </translation>
    </message>
    <message>
        <source>Length:  </source>
        <comment>The text next to the label length edit box.</comment>
        <translation>Länge:  </translation>
    </message>
    <message>
        <source>Width:  </source>
        <comment>The text next to the label width edit box.</comment>
        <translation>Breite:  </translation>
    </message>
    <message>
        <source>Copies:</source>
        <comment>The label next to the number of copies.</comment>
        <translation>Kopien:</translation>
    </message>
    <message>
        <source>       Print       </source>
        <comment>The text on the button to start printing.</comment>
        <translation>       Drucken       </translation>
    </message>
    <message>
        <source> Open in Editor </source>
        <comment>The text on the button to open the label in the Label Editor program.</comment>
        <translation> Im Editor öffnen </translation>
    </message>
</context>
</TS>

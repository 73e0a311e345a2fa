<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CatalogDesign</name>
    <message>
        <source>There is no catalogue item %1.</source>
        <translation>Es gibt keinen Katalogartikel %1.</translation>
    </message>
</context>
<context>
    <name>CatalogRun</name>
    <message>
        <source>There is no catalogue item &quot;%1&quot;. There are: %2.</source>
        <translation>Es gibt keinen Katalogartikel „%1“. Es gibt: %2.</translation>
    </message>
    <message>
        <source>The panel takes no size.</source>
        <translation>Das Bedienfeld nimmt keine Größe an.</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>ChemicalDesign</name>
    <message>
        <source>no data source</source>
        <translation>keine Datenquelle</translation>
    </message>
</context>
<context>
    <name>CommandRun</name>
    <message>
        <source>The panel does not take %1 copies.</source>
        <translation>Das Bedienfeld nimmt %1 Exemplare nicht an.</translation>
    </message>
    <message>
        <source>The panel&apos;s Print button cannot be pressed.</source>
        <translation>Die Schaltfläche „Drucken“ des Bedienfelds ist nicht bedienbar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a file. Write a name such as labels.pdf.</source>
        <translation>„%1“ ist kein Dateiname. Schreiben Sie einen Namen wie etiketten.pdf.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Choose one that the panel lists.</source>
        <translation>Es gibt keinen Drucker „%1“. Wählen Sie einen, den das Bedienfeld auflistet.</translation>
    </message>
    <message>
        <source>The list is empty. Write numbers and ranges such as 1,4-5. Nothing is printed.</source>
        <translation>Die Liste ist leer. Schreiben Sie Nummern und Bereiche wie 1,4-5. Nichts wird gedruckt.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; is too long: the panel takes no more than &quot;%2&quot; of it. Nothing is printed.</source>
        <translation>Die Liste „%1“ ist zu lang: Das Bedienfeld nimmt davon nur „%2“ an. Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>DocumentRun</name>
    <message>
        <source>There is no document.</source>
        <translation>Es gibt kein Dokument.</translation>
    </message>
    <message>
        <source>The panel offers no choice of pages.</source>
        <translation>Das Bedienfeld bietet keine Auswahl der Seiten an.</translation>
    </message>
    <message>
        <source>The panel does not offer this.</source>
        <translation>Das Bedienfeld bietet das nicht an.</translation>
    </message>
    <message>
        <source>The document cannot be printed: %1.</source>
        <translation>Das Dokument kann nicht gedruckt werden: %1.</translation>
    </message>
    <message>
        <source>There is no page %1; the last one is %2. Nothing is printed.</source>
        <translation>Es gibt keine Seite %1; die letzte ist %2. Nichts wird gedruckt.</translation>
    </message>
    <message>
        <source>The document has no form fields. Print it without --form-fill. Nothing is printed.</source>
        <translation>Das Dokument hat keine Formularfelder. Drucken Sie es ohne --form-fill. Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>LabelRun</name>
    <message>
        <source>The panel cannot print to a file.</source>
        <translation>Das Bedienfeld kann nicht in eine Datei drucken.</translation>
    </message>
    <message>
        <source>There are no records. Nothing is printed.</source>
        <translation>Es gibt keine Datensätze. Nichts wird gedruckt.</translation>
    </message>
    <message>
        <source>The panel offers no N-up choice for this request; --%1 has no effect.</source>
        <translation>Das Bedienfeld bietet hier keine Auswahl für mehrere Etiketten je Bogen; --%1 hat keine Wirkung.</translation>
    </message>
    <message>
        <source>The preview cannot be shown.</source>
        <translation>Die Vorschau kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>The preview&apos;s Print button cannot be pressed.</source>
        <translation>Die Schaltfläche „Drucken“ der Vorschau ist nicht bedienbar.</translation>
    </message>
    <message>
        <source>There is no record %1; the last one is %2. Nothing is printed.</source>
        <translation>Es gibt keinen Datensatz %1; der letzte ist %2. Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>the system reserves this name</source>
        <translation>das System reserviert diesen Namen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is not open</source>
        <translation>die Datei ist nicht geöffnet</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2.</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another folder.</source>
        <translation>Der Ordner „%1“ existiert nicht. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists by now and is kept. Choose another file.</source>
        <translation>Die Datei „%1“ gibt es inzwischen, sie bleibt erhalten. Wählen Sie eine andere Datei.</translation>
    </message>
</context>
<context>
    <name>PaintedWork</name>
    <message>
        <source>There is nothing to print.</source>
        <translation>Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>Printing to %1 cannot be started.</source>
        <translation>Das Drucken auf %1 kann nicht begonnen werden.</translation>
    </message>
    <message>
        <source>Page %1 cannot be started.</source>
        <translation>Seite %1 kann nicht begonnen werden.</translation>
    </message>
</context>
<context>
    <name>PdfDocument</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty. Open another file.</source>
        <translation>Die Datei „%1“ ist leer. Öffnen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is protected by a password. Open a copy without one.</source>
        <translation>Die Datei „%1“ ist durch ein Kennwort geschützt. Öffnen Sie eine Kopie ohne Kennwort.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is encrypted in a way that is not supported. Open a copy that is not encrypted.</source>
        <translation>Die Datei „%1“ ist auf eine Weise verschlüsselt, die nicht unterstützt wird. Öffnen Sie eine unverschlüsselte Kopie.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; has no pages. Open another file.</source>
        <translation>Die Datei „%1“ hat keine Seiten. Öffnen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged. Open another file.</source>
        <translation>Die Datei „%1“ ist beschädigt. Öffnen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not a PDF document, or it is damaged. Open another file.</source>
        <translation>Die Datei „%1“ ist kein PDF-Dokument oder beschädigt. Öffnen Sie eine andere Datei.</translation>
    </message>
</context>
<context>
    <name>PdfPagePlan</name>
    <message>
        <source>There is no such page. Nothing is printed.</source>
        <translation>Diese Seite gibt es nicht. Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>PdfSheets</name>
    <message>
        <source>No document is open. Nothing is printed.</source>
        <translation>Kein Dokument ist geöffnet. Nichts wird gedruckt.</translation>
    </message>
    <message>
        <source>The author of the document does not allow it to be printed.</source>
        <translation>Der Verfasser des Dokuments erlaubt das Drucken nicht.</translation>
    </message>
    <message>
        <source>The file of the document was changed. Open it again to print it.</source>
        <translation>Die Datei des Dokuments wurde geändert. Öffnen Sie sie zum Drucken erneut.</translation>
    </message>
    <message>
        <source>Page %1 of the document is damaged and cannot be printed.</source>
        <translation>Seite %1 des Dokuments ist beschädigt und kann nicht gedruckt werden.</translation>
    </message>
</context>
<context>
    <name>PipeDesign</name>
    <message>
        <source>There is no pipe marker %1.</source>
        <translation>Es gibt keine Rohrkennzeichnung %1.</translation>
    </message>
</context>
<context>
    <name>PrintQueue</name>
    <message>
        <source>The printer &quot;%1&quot; did not take the job: %2</source>
        <translation>Der Drucker „%1“ hat den Auftrag nicht angenommen: %2</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not answer. Check that it is switched on and connected.</source>
        <translation>Der Drucker „%1“ antwortet nicht. Prüfen Sie, ob er eingeschaltet und angeschlossen ist.</translation>
    </message>
</context>
<context>
    <name>PrinterDirectory</name>
    <message>
        <source>PDF file</source>
        <translation>PDF-Datei</translation>
    </message>
</context>
<context>
    <name>PrinterTarget</name>
    <message>
        <source>The job cannot be stored: %1.</source>
        <translation>Der Auftrag kann nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>printer &quot;%1&quot;</source>
        <translation>Drucker „%1“</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is not known to the system. Choose another printer.</source>
        <translation>Der Drucker „%1“ ist dem System nicht bekannt. Wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs. Choose another printer.</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an. Wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; stopped the job. Check it and print again.</source>
        <translation>Der Drucker „%1“ hat den Auftrag abgebrochen. Prüfen Sie ihn, und drucken Sie erneut.</translation>
    </message>
    <message>
        <source>The job cannot be stored: there is no room in %1. Make room there and print again.</source>
        <translation>Der Auftrag kann nicht gespeichert werden: In %1 ist kein Platz. Schaffen Sie dort Platz, und drucken Sie erneut.</translation>
    </message>
</context>
<context>
    <name>SampleHost::CatalogPage</name>
    <message>
        <source>Catalogue item</source>
        <translation>Katalogartikel</translation>
    </message>
    <message>
        <source>Catalogue items</source>
        <translation>Katalogartikel</translation>
    </message>
    <message>
        <source>Pre-cut labels</source>
        <translation>Vorgestanzte Etiketten</translation>
    </message>
    <message>
        <source>The loaded labels have the listed size, so it is fixed</source>
        <translation>Die eingelegten Etiketten haben die Kataloggröße, deshalb steht sie fest</translation>
    </message>
    <message>
        <source>Listed Size</source>
        <translation>Kataloggröße</translation>
    </message>
    <message>
        <source>Back to the size in which the item is listed</source>
        <translation>Zurück zu der Größe, mit der der Artikel im Katalog steht</translation>
    </message>
    <message>
        <source>Printed as shown, %1. Press Resize to use the size in the fields.</source>
        <translation>Gedruckt wie angezeigt, %1. Die Größe in den Feldern gilt erst nach einem Klick auf die Schaltfläche darunter.</translation>
    </message>
</context>
<context>
    <name>SampleHost::CatalogSize</name>
    <message>
        <source>The length has to be a number greater than 0.</source>
        <translation>Die Länge muss eine Zahl größer als 0 sein.</translation>
    </message>
    <message>
        <source>A length of %1 is too short to be printed; the least is %2.</source>
        <translation>Eine Länge von %1 ist zum Drucken zu kurz; die kleinste ist %2.</translation>
    </message>
    <message>
        <source>A length of %1 is too long to be printed; the greatest is %2.</source>
        <translation>Eine Länge von %1 ist zum Drucken zu lang; die größte ist %2.</translation>
    </message>
    <message>
        <source>The width has to be a number greater than 0.</source>
        <translation>Die Breite muss eine Zahl größer als 0 sein.</translation>
    </message>
    <message>
        <source>A width of %1 is too narrow to be printed; the least is %2.</source>
        <translation>Eine Breite von %1 ist zum Drucken zu schmal; die kleinste ist %2.</translation>
    </message>
    <message>
        <source>A width of %1 is too wide to be printed; the greatest is %2.</source>
        <translation>Eine Breite von %1 ist zum Drucken zu groß; die größte ist %2.</translation>
    </message>
</context>
<context>
    <name>SampleHost::CommandLine</name>
    <message>
        <source>--%1 needs a number from %2 to %3, not &quot;%4&quot;.</source>
        <translation>--%1 braucht eine Zahl von %2 bis %3, nicht „%4“.</translation>
    </message>
    <message>
        <source>Only one of %1 and %2 can be used.</source>
        <translation>Nur eines von %1 und %2 kann verwendet werden.</translation>
    </message>
    <message>
        <source>--%1 needs a file name.</source>
        <translation>--%1 braucht einen Dateinamen.</translation>
    </message>
    <message>
        <source>--%1 needs %2.</source>
        <translation>--%1 braucht %2.</translation>
    </message>
    <message>
        <source>--%1 cannot be used: this build has no PDF documents.</source>
        <translation>--%1 kann nicht verwendet werden: Diese Version kennt keine PDF-Dokumente.</translation>
    </message>
    <message>
        <source>--catalog needs the name of an item.</source>
        <translation>--catalog braucht den Namen eines Artikels.</translation>
    </message>
    <message>
        <source>--%1 cannot be used with --catalog.</source>
        <translation>--%1 kann nicht mit --catalog verwendet werden.</translation>
    </message>
    <message>
        <source>--size needs length x width such as 10x7, not &quot;%1&quot;.</source>
        <translation>--size braucht Länge x Breite wie 10x7, nicht „%1“.</translation>
    </message>
    <message>
        <source>--print, --all and --current are for labels; use --pages, --all-pages or --page with --document.</source>
        <translation>--print, --all und --current gelten für Etiketten; verwenden Sie mit --document --pages, --all-pages oder --page.</translation>
    </message>
    <message>
        <source>--nup needs rows x columns such as 2x3, not &quot;%1&quot;.</source>
        <translation>--nup braucht Zeilen x Spalten wie 2x3, nicht „%1“.</translation>
    </message>
    <message>
        <source>--paper needs label, a4 or letter, not &quot;%1&quot;.</source>
        <translation>--paper braucht label, a4 oder letter, nicht „%1“.</translation>
    </message>
    <message>
        <source>--portrait and --landscape need --preview.</source>
        <translation>--portrait und --landscape brauchen --preview.</translation>
    </message>
    <message>
        <source>--preview needs --print, --all or --current.</source>
        <translation>--preview braucht --print, --all oder --current.</translation>
    </message>
    <message>
        <source>--language needs one of %1, not &quot;%2&quot;.</source>
        <translation>--language braucht eines von %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>--state needs one of %1, not &quot;%2&quot;.</source>
        <translation>--state braucht eines von %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>The state &quot;%1&quot; cannot be shown: this build has no PDF documents.</source>
        <translation>Der Zustand „%1“ kann nicht gezeigt werden: Diese Version kennt keine PDF-Dokumente.</translation>
    </message>
    <message>
        <source>Where to? Add --output FILE.pdf or --printer NAME.</source>
        <translation>Wohin? Ergänzen Sie --output DATEI.pdf oder --printer NAME.</translation>
    </message>
    <message>
        <source>Prints labels and documents through the print panels.</source>
        <translation>Druckt Etiketten und Dokumente mit den Druckbedienfeldern.</translation>
    </message>
    <message>
        <source>Prints labels through the print panels.</source>
        <translation>Druckt Etiketten mit den Druckbedienfeldern.</translation>
    </message>
    <message>
        <source>This build has no PDF documents.</source>
        <translation>Diese Version kennt keine PDF-Dokumente.</translation>
    </message>
    <message>
        <source>This build has no print queues of CUPS: the system&apos;s own printing is used.</source>
        <translation>Diese Version kennt keine Druckwarteschlangen von CUPS: Es wird mit den Mitteln des Systems gedruckt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option. --help lists the options.</source>
        <translation>„%1“ ist keine Option. --help listet die Optionen auf.</translation>
    </message>
    <message>
        <source>--screenshot and --output need different files.</source>
        <translation>--screenshot und --output brauchen verschiedene Dateien.</translation>
    </message>
    <message>
        <source>--help lists the options.</source>
        <translation>--help listet die Optionen auf.</translation>
    </message>
</context>
<context>
    <name>SampleHost::EventLog</name>
    <message>
        <source>Panel events</source>
        <translation>Ereignisse der Bedienfelder</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>SampleHost::HeadlessRun</name>
    <message>
        <source>The picture of the window cannot be made.</source>
        <translation>Das Bild des Fensters kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The state &quot;%1&quot; cannot be shown.</source>
        <translation>Der Zustand „%1“ kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Saved a picture of the window to %1</source>
        <translation>Ein Bild des Fensters wurde gespeichert in %1</translation>
    </message>
</context>
<context>
    <name>SampleHost::HelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>To print labels:</source>
        <translation>So drucken Sie Etiketten:</translation>
    </message>
    <message>
        <source>1. Choose a record with the buttons below the label.</source>
        <translation>1. Wählen Sie mit den Schaltflächen unter dem Etikett einen Datensatz.</translation>
    </message>
    <message>
        <source>2. Choose in the panel which records are printed: the current one, all, or a list such as 1,4-5.</source>
        <translation>2. Wählen Sie im Bedienfeld, welche Datensätze gedruckt werden: der aktuelle, alle oder eine Liste wie 1,4-5.</translation>
    </message>
    <message>
        <source>3. Choose the printer and the number of copies. &quot;PDF file&quot; is no printer: it writes a file, which the preferences name.</source>
        <translation>3. Wählen Sie den Drucker und die Zahl der Exemplare. „PDF-Datei“ ist kein Drucker: Damit wird eine Datei geschrieben, die die Einstellungen nennen.</translation>
    </message>
    <message>
        <source>4. Press Print Preview. The popup shows the first sheet, and you can print from there, too.</source>
        <translation>4. Klicken Sie auf Druckvorschau. Sie zeigt den ersten Bogen, und Sie können auch von dort drucken.</translation>
    </message>
    <message>
        <source>5. Press Print.</source>
        <translation>5. Klicken Sie auf Drucken.</translation>
    </message>
    <message>
        <source>The other tabs have pipe markers and ready-made signs, which are printed likewise.</source>
        <translation>Die anderen Register enthalten Rohrkennzeichnungen und fertige Schilder, die ebenso gedruckt werden.</translation>
    </message>
    <message>
        <source>To print a PDF document, open it in the tab Documents and press Preview and Print.</source>
        <translation>Um ein PDF-Dokument zu drucken, öffnen Sie es im Register Dokumente und klicken Sie auf Vorschau und Druck.</translation>
    </message>
    <message>
        <source>The preferences in the menu File have the folder and the name of the PDF file, the paper, and how many labels are on a sheet.</source>
        <translation>Die Einstellungen im Menü Datei nennen den Ordner und den Namen der PDF-Datei, das Papier und wie viele Etiketten auf einem Bogen stehen.</translation>
    </message>
    <message>
        <source>The menu View shows a simulated label printer, which reports the loaded supply, and the list of all signals of the panels.</source>
        <translation>Das Menü Ansicht zeigt einen simulierten Etikettendrucker, der das eingelegte Material meldet, und die Liste aller Signale der Bedienfelder.</translation>
    </message>
    <message>
        <source>print</source>
        <translation>drucken</translation>
    </message>
    <message>
        <source>print preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>print the current record or page</source>
        <translation>den aktuellen Datensatz oder die aktuelle Seite drucken</translation>
    </message>
    <message>
        <source>print all records or pages</source>
        <translation>alle Datensätze oder Seiten drucken</translation>
    </message>
    <message>
        <source>type a range or list</source>
        <translation>einen Bereich oder eine Liste eingeben</translation>
    </message>
    <message>
        <source>choose the printer</source>
        <translation>den Drucker wählen</translation>
    </message>
    <message>
        <source>read the records again</source>
        <translation>die Datensätze neu lesen</translation>
    </message>
    <message>
        <source>full screen, and back</source>
        <translation>Vollbild und zurück</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>diese Hilfe</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>beenden</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Tasten:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>Key and what it does</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SampleHost::HostSettings</name>
    <message>
        <source>As large as the labels</source>
        <translation>So groß wie die Etiketten</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot; would replace the database of the labels. Choose another file.</source>
        <translation>Das Schreiben von „%1“ würde die Datenbank der Etiketten ersetzen. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>Printing to &quot;%1&quot; would replace the document itself. Choose another PDF file in the preferences.</source>
        <translation>Das Drucken in „%1“ würde das Dokument selbst ersetzen. Wählen Sie in den Einstellungen eine andere PDF-Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; exists already. Choose another file, or add --overwrite to replace it.</source>
        <translation>Die Datei „%1“ gibt es schon. Wählen Sie eine andere Datei, oder ergänzen Sie --overwrite, um sie zu ersetzen.</translation>
    </message>
</context>
<context>
    <name>SampleHost::JobController</name>
    <message>
        <source>Printed 1 page to %1</source>
        <translation>1 Seite gedruckt auf %1</translation>
    </message>
    <message>
        <source>Printed %1 pages to %2</source>
        <translation>%1 Seiten gedruckt auf %2</translation>
    </message>
    <message>
        <source>Printing was cancelled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>SampleHost::LabelPage</name>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
</context>
<context>
    <name>SampleHost::LabelPreview</name>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
</context>
<context>
    <name>SampleHost::LabelTypeBar</name>
    <message>
        <source>Sheet:</source>
        <translation>Bogen:</translation>
    </message>
    <message>
        <source>How many labels are printed on one sheet</source>
        <translation>Wie viele Etiketten auf einen Bogen gedruckt werden</translation>
    </message>
    <message>
        <source>Dynamic length</source>
        <translation>Dynamische Länge</translation>
    </message>
    <message>
        <source>Labels of this type vary in length, so a sheet can only repeat one label</source>
        <translation>Etiketten dieser Art sind verschieden lang, deshalb kann ein Bogen nur ein Etikett wiederholen</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>The label takes its contents from the records</source>
        <translation>Das Etikett bezieht seinen Inhalt aus den Datensätzen</translation>
    </message>
    <message>
        <source>Background layer</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The user has put a background under the label</source>
        <translation>Der Benutzer hat einen Hintergrund unter das Etikett gelegt</translation>
    </message>
</context>
<context>
    <name>SampleHost::LaminatorSimulator</name>
    <message>
        <source>Film</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Laminating film</source>
        <translation>Laminierfolie</translation>
    </message>
</context>
<context>
    <name>SampleHost::ListProblem</name>
    <message>
        <source>There are no records.</source>
        <translation>Es gibt keine Datensätze.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a record number.</source>
        <translation>„%1“ ist keine Datensatznummer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a range of records.</source>
        <translation>„%1“ ist kein Bereich von Datensätzen.</translation>
    </message>
    <message>
        <source>a record number is missing beside a comma.</source>
        <translation>neben einem Komma fehlt eine Datensatznummer.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; does not name the only record:</source>
        <translation>Die Liste „%1“ nennt den einzigen Datensatz nicht:</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; names none of the %2 records:</source>
        <translation>Die Liste „%1“ nennt keinen der %2 Datensätze:</translation>
    </message>
    <message>
        <source>there is no record %1.</source>
        <translation>es gibt keinen Datensatz %1.</translation>
    </message>
    <message>
        <source>There are no pages.</source>
        <translation>Es gibt keine Seiten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a page number.</source>
        <translation>„%1“ ist keine Seitenzahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a range of pages.</source>
        <translation>„%1“ ist kein Bereich von Seiten.</translation>
    </message>
    <message>
        <source>a page number is missing beside a comma.</source>
        <translation>neben einem Komma fehlt eine Seitenzahl.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; does not name the only page:</source>
        <translation>Die Liste „%1“ nennt die einzige Seite nicht:</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; names none of the %2 pages:</source>
        <translation>Die Liste „%1“ nennt keine der %2 Seiten:</translation>
    </message>
    <message>
        <source>there is no page %1.</source>
        <translation>es gibt keine Seite %1.</translation>
    </message>
    <message>
        <source>Write 1.</source>
        <translation>Schreiben Sie 1.</translation>
    </message>
    <message>
        <source>Write numbers from 1 to %1.</source>
        <translation>Schreiben Sie Nummern von 1 bis %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; runs backwards. Write %2.</source>
        <translation>„%1“ läuft rückwärts. Schreiben Sie %2.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; cannot be read:</source>
        <translation>Die Liste „%1“ ist nicht lesbar:</translation>
    </message>
    <message>
        <source>Write numbers and ranges such as 1,4-5.</source>
        <translation>Schreiben Sie Nummern und Bereiche wie 1,4-5.</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>SampleHost::MainWindow</name>
    <message>
        <source>Sample Host</source>
        <translation>Beispielprogramm</translation>
    </message>
    <message>
        <source>Loaded Supply Simulator</source>
        <translation>Simulator des eingelegten Materials</translation>
    </message>
    <message>
        <source>Panel Events</source>
        <translation>Ereignisse der Bedienfelder</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Count Pages</source>
        <translation>Seiten &amp;zählen</translation>
    </message>
    <message>
        <source>&amp;Add Printer...</source>
        <translation>Drucker &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Re&amp;load Data</source>
        <translation>Daten &amp;neu laden</translation>
    </message>
    <message>
        <source>P&amp;references...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>D&amp;atensätze</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>1 page would be printed.</source>
        <translation>1 Seite würde gedruckt.</translation>
    </message>
    <message>
        <source>%1 pages would be printed.</source>
        <translation>%1 Seiten würden gedruckt.</translation>
    </message>
    <message>
        <source>Printing to %1</source>
        <translation>Drucken auf %1</translation>
    </message>
    <message>
        <source>Host: %1</source>
        <translation>Programm: %1</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Error %1</source>
        <translation>Druckfehler %1</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 geöffnet</translation>
    </message>
    <message>
        <source>&amp;First Steps and Keys</source>
        <translation>&amp;Erste Schritte und Tasten</translation>
    </message>
    <message>
        <source>&amp;About Sample Host</source>
        <translation>Ü&amp;ber das Beispielprogramm</translation>
    </message>
    <message>
        <source>Sample Host
PrintPanels %1, Qt %2

Shows the print panels at work: labels from a data source, printed to PDF files and printers.</source>
        <translation>Beispielprogramm
PrintPanels %1, Qt %2

Zeigt die Druckbedienfelder bei der Arbeit: Etiketten aus einer Datenquelle, gedruckt in PDF-Dateien und auf Drucker.</translation>
    </message>
    <message>
        <source>About Sample Host</source>
        <translation>Über das Beispielprogramm</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>S&amp;ystem</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Die Sprache wechselt beim nächsten Start.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Chemical Labels</source>
        <translation>Chemikalienetiketten</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Pipe Markers</source>
        <translation>Rohrkennzeichnungen</translation>
    </message>
    <message>
        <source>Pipes</source>
        <translation>Rohre</translation>
    </message>
    <message>
        <source>%1 preview</source>
        <translation>%1: Vorschau</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Add Printer</source>
        <translation>Drucker hinzufügen</translation>
    </message>
    <message>
        <source>Name of the printer:</source>
        <translation>Name des Druckers:</translation>
    </message>
    <message>
        <source>Save PDF &amp;As...</source>
        <translation>PDF speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Sizes in &amp;Millimetres</source>
        <translation>Größen in &amp;Millimetern</translation>
    </message>
    <message>
        <source>Wait until the current job has ended, or cancel it.</source>
        <translation>Warten Sie, bis der laufende Auftrag beendet ist, oder brechen Sie ihn ab.</translation>
    </message>
    <message>
        <source>Enter the name of the printer.</source>
        <translation>Geben Sie den Namen des Druckers ein.</translation>
    </message>
    <message>
        <source>There is already a printer &quot;%1&quot;. Choose it in the panel.</source>
        <translation>Es gibt schon einen Drucker „%1“. Wählen Sie ihn im Bedienfeld.</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next start. Check that your settings folder can be written.</source>
        <translation>Die Einstellungen können nicht für den nächsten Start aufbewahrt werden. Prüfen Sie, ob Ihr Einstellungsordner beschreibbar ist.</translation>
    </message>
    <message>
        <source>More Buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
</context>
<context>
    <name>SampleHost::NupCombo</name>
    <message>
        <source>One label a page</source>
        <translation>Ein Etikett je Seite</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 Spalten</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <comment>rows and columns of a sheet</comment>
        <translation>%1 x %2</translation>
    </message>
</context>
<context>
    <name>SampleHost::OutputQuestions</name>
    <message>
        <source>The file &quot;%1&quot; exists already. Replace it?</source>
        <translation>Die Datei „%1“ gibt es schon. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save PDF As</source>
        <translation>PDF speichern unter</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf);;All files (*)</source>
        <translation>PDF-Dokumente (*.pdf);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>SampleHost::PageActions</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Print Pre&amp;view</source>
        <translation>Druck&amp;vorschau</translation>
    </message>
    <message>
        <source>&amp;Current Record or Page</source>
        <translation>Aktueller &amp;Datensatz oder aktuelle Seite</translation>
    </message>
    <message>
        <source>&amp;All Records or Pages</source>
        <translation>&amp;Alle Datensätze oder Seiten</translation>
    </message>
    <message>
        <source>&amp;Range or List</source>
        <translation>&amp;Bereich oder Liste</translation>
    </message>
    <message>
        <source>&amp;Printer</source>
        <translation>D&amp;rucker</translation>
    </message>
</context>
<context>
    <name>SampleHost::PanelScroller</name>
    <message>
        <source>Print settings</source>
        <translation>Druckeinstellungen</translation>
    </message>
</context>
<context>
    <name>SampleHost::PdfPage</name>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Preview and Print...</source>
        <translation>Vorschau und Druck...</translation>
    </message>
    <message>
        <source>Open a PDF document, or drop one here.</source>
        <translation>Öffnen Sie ein PDF-Dokument, oder ziehen Sie eines hierher.</translation>
    </message>
    <message>
        <source>Page of the document</source>
        <translation>Seite des Dokuments</translation>
    </message>
    <message>
        <source>&amp;Open Document...</source>
        <translation>Dokument ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent Document</source>
        <translation>&amp;Letztes Dokument öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Recent: %1</source>
        <translation>&amp;Letztes öffnen: %1</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Dokument öffnen</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf);;All files (*)</source>
        <translation>PDF-Dokumente (*.pdf);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>SampleHost::PdfPreview</name>
    <message>
        <source>no document is open</source>
        <translation>kein Dokument ist geöffnet</translation>
    </message>
    <message>
        <source>the author of the document does not allow it</source>
        <translation>der Verfasser des Dokuments erlaubt es nicht</translation>
    </message>
    <message>
        <source>the list names none of the %1 pages</source>
        <translation>die Liste nennt keine der %1 Seiten</translation>
    </message>
    <message>
        <source>%1 - page %2 of %3</source>
        <translation>%1 - Seite %2 von %3</translation>
    </message>
    <message>
        <source>%1 - cannot be printed: %2</source>
        <translation>%1 - kann nicht gedruckt werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be printed: %2.</source>
        <translation>%1 kann nicht gedruckt werden: %2.</translation>
    </message>
    <message>
        <source>%1 (unavailable)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
</context>
<context>
    <name>SampleHost::PipePage</name>
    <message>
        <source>Pipe markers</source>
        <translation>Rohrkennzeichnungen</translation>
    </message>
    <message>
        <source>Pipe marker</source>
        <translation>Rohrkennzeichnung</translation>
    </message>
</context>
<context>
    <name>SampleHost::PreferencesDialog</name>
    <message>
        <source>Print Preferences</source>
        <translation>Druckeinstellungen</translation>
    </message>
    <message>
        <source>PDF file:</source>
        <translation>PDF-Datei:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>Sheet:</source>
        <translation>Bogen:</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Sizes in:</source>
        <translation>Größen in:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Ausgabeordner:</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Enter a file name without a folder.</source>
        <translation>Geben Sie einen Dateinamen ohne Ordner ein.</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>This folder does not exist. Choose another one.</source>
        <translation>Diesen Ordner gibt es nicht. Wählen Sie einen anderen.</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintController</name>
    <message>
        <source>There is no such record. Choose another one, or reload the data. Nothing is printed.</source>
        <translation>Diesen Datensatz gibt es nicht. Wählen Sie einen anderen, oder laden Sie die Daten neu. Nichts wird gedruckt.</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintError</name>
    <message>
        <source>No error.</source>
        <translation>Kein Fehler.</translation>
    </message>
    <message>
        <source>The printer does not answer. Check that it is switched on and connected.</source>
        <translation>Der Drucker antwortet nicht. Prüfen Sie, ob er eingeschaltet und angeschlossen ist.</translation>
    </message>
    <message>
        <source>The cover is open. Close the cover.</source>
        <translation>Der Deckel ist offen. Schließen Sie den Deckel.</translation>
    </message>
    <message>
        <source>The supply has run out. Load a new roll.</source>
        <translation>Das Material ist aufgebraucht. Legen Sie eine neue Rolle ein.</translation>
    </message>
    <message>
        <source>The ribbon has run out. Load a new ribbon.</source>
        <translation>Das Farbband ist aufgebraucht. Legen Sie ein neues Farbband ein.</translation>
    </message>
    <message>
        <source>The supply is jammed. Open the cover and remove the jammed labels.</source>
        <translation>Das Material hat sich gestaut. Öffnen Sie den Deckel, und entfernen Sie die gestauten Etiketten.</translation>
    </message>
    <message>
        <source>The ribbon is torn. Join its ends with tape or load a new ribbon.</source>
        <translation>Das Farbband ist gerissen. Verbinden Sie die Enden mit Klebeband, oder legen Sie ein neues Farbband ein.</translation>
    </message>
    <message>
        <source>The ribbon wrinkles. Tighten it by turning the take-up spool.</source>
        <translation>Das Farbband wirft Falten. Spannen Sie es, indem Sie die Aufwickelspule drehen.</translation>
    </message>
    <message>
        <source>The print head is open. Press it down until it locks.</source>
        <translation>Der Druckkopf ist offen. Drücken Sie ihn herunter, bis er einrastet.</translation>
    </message>
    <message>
        <source>The print head is too hot. Wait until it has cooled down.</source>
        <translation>Der Druckkopf ist zu heiß. Warten Sie, bis er abgekühlt ist.</translation>
    </message>
    <message>
        <source>The print head is too cold. Let the printer warm up.</source>
        <translation>Der Druckkopf ist zu kalt. Lassen Sie den Drucker warm werden.</translation>
    </message>
    <message>
        <source>The print head is worn. Clean it, and replace it if that does not help.</source>
        <translation>Der Druckkopf ist abgenutzt. Reinigen Sie ihn, und ersetzen Sie ihn, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The cutter is jammed. Switch the printer off and clear the cutter.</source>
        <translation>Die Schneide klemmt. Schalten Sie den Drucker aus, und räumen Sie die Schneide frei.</translation>
    </message>
    <message>
        <source>The cutter is missing. Install it or print without cutting.</source>
        <translation>Die Schneide fehlt. Bauen Sie sie ein, oder drucken Sie ohne Schneiden.</translation>
    </message>
    <message>
        <source>The gap between two labels was not found. Calibrate the supply sensor.</source>
        <translation>Die Lücke zwischen zwei Etiketten wurde nicht gefunden. Kalibrieren Sie den Materialsensor.</translation>
    </message>
    <message>
        <source>The label is wider than the loaded supply. Load a wider supply.</source>
        <translation>Das Etikett ist breiter als das eingelegte Material. Legen Sie breiteres Material ein.</translation>
    </message>
    <message>
        <source>The label is longer than the printer can print. Shorten the label.</source>
        <translation>Das Etikett ist länger, als der Drucker drucken kann. Kürzen Sie das Etikett.</translation>
    </message>
    <message>
        <source>The loaded ribbon has another colour than the label. Load that colour.</source>
        <translation>Das eingelegte Farbband hat eine andere Farbe als das Etikett. Legen Sie diese Farbe ein.</translation>
    </message>
    <message>
        <source>The loaded supply has another colour than the label. Load that colour.</source>
        <translation>Das eingelegte Material hat eine andere Farbe als das Etikett. Legen Sie diese Farbe ein.</translation>
    </message>
    <message>
        <source>The ribbon does not suit the supply. Load a ribbon made for it.</source>
        <translation>Das Farbband passt nicht zum Material. Legen Sie ein dafür bestimmtes Farbband ein.</translation>
    </message>
    <message>
        <source>The supply cannot be recognised. Enter its width and colour.</source>
        <translation>Das Material wird nicht erkannt. Geben Sie seine Breite und Farbe ein.</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full. Print fewer labels at a time.</source>
        <translation>Der Speicher des Druckers ist voll. Drucken Sie weniger Etiketten auf einmal.</translation>
    </message>
    <message>
        <source>The printer is busy with another job. Wait until it has ended.</source>
        <translation>Der Drucker bearbeitet einen anderen Auftrag. Warten Sie, bis er beendet ist.</translation>
    </message>
    <message>
        <source>The connection broke while printing. Print the missing labels again.</source>
        <translation>Die Verbindung brach beim Drucken ab. Drucken Sie die fehlenden Etiketten erneut.</translation>
    </message>
    <message>
        <source>The printer&apos;s software is out of date. Install its update.</source>
        <translation>Die Software des Druckers ist veraltet. Installieren Sie die Aktualisierung.</translation>
    </message>
    <message>
        <source>The job was cancelled at the printer. Print it again if that was a mistake.</source>
        <translation>Der Auftrag wurde am Drucker abgebrochen. Drucken Sie ihn erneut, wenn das ein Versehen war.</translation>
    </message>
    <message>
        <source>There is no print error %1.</source>
        <translation>Es gibt keinen Druckfehler %1.</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintJob</name>
    <message>
        <source>The pages that %1 already has may still come out.</source>
        <translation>Die Seiten, die %1 schon hat, kommen vielleicht noch heraus.</translation>
    </message>
    <message>
        <source>There is nothing to print.</source>
        <translation>Es gibt nichts zu drucken.</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintProgressDialog</name>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 of %2 pages printed</source>
        <translation>%1 von %2 Seiten gedruckt</translation>
    </message>
    <message>
        <source>%1 of 1 page printed</source>
        <translation>%1 von 1 Seite gedruckt</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintToFile</name>
    <message>
        <source>The folder &quot;%1&quot; is full of test prints; remove some.</source>
        <translation>Der Ordner „%1“ ist voller Testdrucke; entfernen Sie einige.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made. Choose another output folder.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden. Wählen Sie einen anderen Ausgabeordner.</translation>
    </message>
</context>
<context>
    <name>SampleHost::PrintedFileBar</name>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The system has no program that opens &quot;%1&quot;. Install a viewer for PDF documents.</source>
        <translation>Das System hat kein Programm, das „%1“ öffnet. Installieren Sie ein Anzeigeprogramm für PDF-Dokumente.</translation>
    </message>
    <message>
        <source>The system cannot show the folder &quot;%1&quot;. Open it in a file manager.</source>
        <translation>Das System kann den Ordner „%1“ nicht zeigen. Öffnen Sie ihn in einem Dateimanager.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was moved or removed. Print it again.</source>
        <translation>„%1“ wurde verschoben oder gelöscht. Drucken Sie erneut.</translation>
    </message>
</context>
<context>
    <name>SampleHost::RecordNavigator</name>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Previous record</source>
        <translation>Vorheriger Datensatz</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>SampleHost::SupplySimulator</name>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>One ribbon</source>
        <translation>Ein Farbband</translation>
    </message>
    <message>
        <source>Two ribbons</source>
        <translation>Zwei Farbbänder</translation>
    </message>
    <message>
        <source>Loaded:</source>
        <translation>Eingelegt:</translation>
    </message>
    <message>
        <source>Ribbon 1:</source>
        <translation>Farbband 1:</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Ribbon 2:</source>
        <translation>Farbband 2:</translation>
    </message>
    <message>
        <source>Supply:</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>klar</translation>
    </message>
    <message>
        <source>Can hold 0.2&quot; ladder tube</source>
        <translation>Fasst 0,2&quot;-Leiterschlauch</translation>
    </message>
    <message>
        <source>Safety colours only</source>
        <translation>Nur Sicherheitsfarben</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Used as:</source>
        <translation>Verwendet als:</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Unit of the width</source>
        <translation>Einheit der Breite</translation>
    </message>
    <message>
        <source>Fit Laminator</source>
        <translation>Laminierer einbauen</translation>
    </message>
    <message>
        <source>Adds the colour of the film to the panels</source>
        <translation>Fügt den Bedienfeldern die Farbe der Folie hinzu</translation>
    </message>
    <message>
        <source>Ladder shrink tube</source>
        <translation>Leiter-Schrumpfschlauch</translation>
    </message>
</context>
<context>
    <name>SheetPages</name>
    <message>
        <source>There is not enough memory to print page %1. Close other programs and print again.</source>
        <translation>Der Speicher reicht nicht, um Seite %1 zu drucken. Schließen Sie andere Programme, und drucken Sie erneut.</translation>
    </message>
</context>
</TS>

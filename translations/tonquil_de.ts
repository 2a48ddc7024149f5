<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Launch at login is more reliable when the Tonquil is located in the Applications folder.</source>
        <translation>Der Start bei der Anmeldung ist zuverlässiger, wenn Tonquil im Ordner „Applications“ liegt.</translation>
    </message>
    <message>
        <source>If the app is not launching at next login, try moving it to the Applications folder.</source>
        <translation>Falls das Programm bei der nächsten Anmeldung nicht startet, verschieben Sie es in den Ordner „Applications“.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot enable remote configuration</source>
        <translation>Die Fernkonfiguration kann nicht eingeschaltet werden</translation>
    </message>
    <message>
        <source>Network broadcast does not appear to work. Please check that only one instance of Tonquil is running on this computer and that UDP ports 44188 and 48184 are not blocked by a firewall.</source>
        <translation>Rundsendungen im Netzwerk scheinen nicht zu funktionieren. Bitte prüfen Sie, ob Tonquil auf diesem Computer nur einmal läuft und ob keine Firewall die UDP-Ports 44188 und 48184 sperrt.</translation>
    </message>
</context>
<context>
    <name>CurvePlot</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Output at input 0, 0.5 and 1.</source>
        <translation>Ausgabe bei Eingabe 0, 0.5 und 1.</translation>
    </message>
    <message>
        <source>The correction is off.</source>
        <translation>Die Korrektur ist aus.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Settings of one display (*.tonquil)</source>
        <translation>Einstellungen eines Bildschirms (*.tonquil)</translation>
    </message>
    <message>
        <source>Settings of all displays (*.tonquil-screens)</source>
        <translation>Einstellungen aller Bildschirme (*.tonquil-screens)</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>ICC profile of one display (*.icc)</source>
        <translation>ICC-Profil eines Bildschirms (*.icc)</translation>
    </message>
    <message>
        <source>Calibration of one display (*.cal)</source>
        <translation>Kalibrierung eines Bildschirms (*.cal)</translation>
    </message>
    <message>
        <source>Settings, profiles and tables (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</source>
        <translation>Einstellungen, Profile und Tabellen (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Name der Vorlage:</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>KVAboutBox</name>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Über Tonquil</translation>
    </message>
    <message>
        <source>:/about/Credits.html</source>
        <translation>:/about/Credits_de.html</translation>
    </message>
</context>
<context>
    <name>KVFluxCheck</name>
    <message>
        <source>%@ is present on this computer.</source>
        <translation>%@ ist auf diesem Computer vorhanden.</translation>
    </message>
    <message>
        <source>[%1$@ installed, might interfer %2$@.]</source>
        <translation>%2$@ ändert dieselben Farbtabellen wie %1$@, und jedes der beiden kann überschreiben, was das andere gesetzt hat. Beenden Sie %2$@ oder schalten Sie es aus, solange Sie %1$@ verwenden.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Apply correction</source>
        <translation>Korrektur anwenden</translation>
    </message>
    <message>
        <source>Show panel</source>
        <translation>Bedienfeld anzeigen</translation>
    </message>
    <message>
        <source>Show targets</source>
        <translation>Testbilder anzeigen</translation>
    </message>
    <message>
        <source>Open settings…</source>
        <translation>Einstellungen öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Save settings…</source>
        <translation>Einstellungen speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Remote configuration is on</source>
        <translation>Fernkonfiguration ist eingeschaltet</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Voreinstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Tonquil on the web</source>
        <translation>Tonquil im Web</translation>
    </message>
    <message>
        <source>About calibration targets</source>
        <translation>Über Testbilder zur Kalibrierung</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Über Tonquil</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Focused value</source>
        <translation>Ausgewählter Wert</translation>
    </message>
    <message>
        <source>Channel strip</source>
        <translation>Kanalleiste</translation>
    </message>
    <message>
        <source>Stands for the slider of the focused control; its picker moves the focus.</source>
        <translation>Steht für den Regler des ausgewählten Bedienelements; die Kanalwahl versetzt die Auswahl.</translation>
    </message>
    <message>
        <source>Tonquil</source>
        <translation>Tonquil</translation>
    </message>
    <message>
        <source>Which point of the curve the sliders move.</source>
        <translation>Welchen Punkt der Kurve die Regler bewegen.</translation>
    </message>
    <message>
        <source>Transfer curves</source>
        <translation>Übertragungskurven</translation>
    </message>
    <message>
        <source>Whether the displays show their curves or their own calibration.</source>
        <translation>Ob die Bildschirme ihre Kurven oder ihre eigene Kalibrierung zeigen.</translation>
    </message>
    <message>
        <source>Reset to calibration</source>
        <translation>Zurück zur Kalibrierung</translation>
    </message>
    <message>
        <source>Gives every display its own calibration back and makes the curves neutral.</source>
        <translation>Gibt jedem Bildschirm seine eigene Kalibrierung zurück und macht die Kurven neutral.</translation>
    </message>
    <message>
        <source>Opens the window of test patterns to look at while the sliders move.</source>
        <translation>Öffnet das Fenster mit Testbildern, die man beim Bewegen der Regler betrachtet.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Überlagerung</translation>
    </message>
    <message>
        <source>Over calibration</source>
        <translation>Auf der Kalibrierung</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolut</translation>
    </message>
    <message>
        <source>Whether the curve is laid over the display&apos;s calibration or replaces it.</source>
        <translation>Ob die Kurve auf die Kalibrierung des Bildschirms gelegt wird oder sie ersetzt.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Zuletzt benutzte öffnen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Advanced panel</source>
        <translation>Erweitertes Bedienfeld</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Dunkles Design</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>%1, %2 point</source>
        <translation>%1, Punkt %2</translation>
    </message>
    <message>
        <source>Close the panel</source>
        <translation>Bedienfeld schließen</translation>
    </message>
    <message>
        <source>Companions on the network may change the displays</source>
        <translation>Begleitprogramme im Netzwerk dürfen die Bildschirme ändern</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Choose which displays are edited</source>
        <translation>Wählen, welche Bildschirme bearbeitet werden</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Bearbeitet: %1</translation>
    </message>
    <message>
        <source>Changes are not saved at the moment. Tonquil keeps trying.</source>
        <translation>Änderungen werden zurzeit nicht gespeichert. Tonquil versucht es weiter.</translation>
    </message>
    <message>
        <source>All displays: an edit replaces the curve of each</source>
        <translation>Alle Bildschirme: Eine Änderung ersetzt die Kurve von jedem</translation>
    </message>
    <message>
        <source>Identify displays</source>
        <translation>Bildschirme kennzeichnen</translation>
    </message>
    <message>
        <source>Hide the sliders of the colours</source>
        <translation>Die Regler der Farben ausblenden</translation>
    </message>
    <message>
        <source>Show the sliders of the colours</source>
        <translation>Die Regler der Farben anzeigen</translation>
    </message>
    <message>
        <source>Hold to compare with the uncorrected display</source>
        <translation>Gedrückt halten, um mit dem unkorrigierten Bildschirm zu vergleichen</translation>
    </message>
    <message>
        <source>Corrects this display. Show targets and move the slider until stripes look plain.</source>
        <translation>Korrigiert den Bildschirm: Testbilder zeigen, Regler bewegen, bis Streifen glatt wirken.</translation>
    </message>
    <message>
        <source>Drag it, or turn the wheel over it or its number.</source>
        <translation>Ziehen, oder das Rad über dem Regler oder seiner Zahl drehen.</translation>
    </message>
    <message>
        <source>With Ctrl a drag is four times as fine.</source>
        <translation>Mit Strg ist das Ziehen viermal so fein.</translation>
    </message>
    <message>
        <source>With Shift the other colours follow.</source>
        <translation>Mit der Umschalttaste folgen die anderen Farben.</translation>
    </message>
    <message>
        <source>A double-click makes it neutral.</source>
        <translation>Ein Doppelklick stellt den neutralen Wert ein.</translation>
    </message>
    <message>
        <source>An edit replaces the curve of each display</source>
        <translation>Eine Änderung ersetzt die Kurve jedes Bildschirms</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Als Vorlage speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Make editable</source>
        <translation>Bearbeitbar machen</translation>
    </message>
    <message>
        <source>Tonquil: correction on</source>
        <translation>Tonquil: Korrektur ein</translation>
    </message>
    <message>
        <source>Tonquil: correction off</source>
        <translation>Tonquil: Korrektur aus</translation>
    </message>
</context>
<context>
    <name>PanelSubject</name>
    <message>
        <source>No display</source>
        <translation>Kein Bildschirm</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Alle Bildschirme</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Show the panel when Tonquil starts</source>
        <translation>Bedienfeld beim Start von Tonquil anzeigen</translation>
    </message>
    <message>
        <source>Start Tonquil at login</source>
        <translation>Tonquil bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Correct the displays as soon as Tonquil starts</source>
        <translation>Bildschirme gleich beim Start von Tonquil korrigieren</translation>
    </message>
    <message>
        <source>Apply the curves again every few seconds</source>
        <translation>Kurven alle paar Sekunden erneut anwenden</translation>
    </message>
    <message>
        <source>Show sliders for the single channels</source>
        <translation>Regler für die einzelnen Kanäle anzeigen</translation>
    </message>
    <message>
        <source>Show the channel strip</source>
        <translation>Kanalleiste anzeigen</translation>
    </message>
    <message>
        <source>Show hints under targets</source>
        <translation>Hinweise unter Testbildern anzeigen</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Dunkles Design</translation>
    </message>
    <message>
        <source>The display under the panel</source>
        <translation>Den Bildschirm unter dem Bedienfeld</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Alle Bildschirme</translation>
    </message>
    <message>
        <source>Shows the panel</source>
        <translation>Zeigt das Bedienfeld</translation>
    </message>
    <message>
        <source>Switches the correction on or off</source>
        <translation>Schaltet die Korrektur ein oder aus</translation>
    </message>
    <message>
        <source>Show Tonquil in:</source>
        <translation>Tonquil zeigen in:</translation>
    </message>
    <message>
        <source>The task bar</source>
        <translation>Taskleiste</translation>
    </message>
    <message>
        <source>The status area</source>
        <translation>Statusbereich</translation>
    </message>
    <message>
        <source>Switch the correction on or off</source>
        <translation>Korrektur ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Show the panel under the pointer</source>
        <translation>Bedienfeld unter dem Mauszeiger anzeigen</translation>
    </message>
    <message>
        <source>Let companions on the local network read and set the curves</source>
        <translation>Begleitprogramme im lokalen Netzwerk die Kurven lesen und ändern lassen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Edits change:</source>
        <translation>Änderungen gelten für:</translation>
    </message>
    <message>
        <source>Starting Tonquil again:</source>
        <translation>Erneuter Start von Tonquil:</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Fernsteuerung</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Bedienfeld anzeigen</translation>
    </message>
    <message>
        <source>Not needed here: no correction is lost unnoticed.</source>
        <translation>Hier nicht nötig: Keine Korrektur geht unbemerkt verloren.</translation>
    </message>
    <message>
        <source>Change in desktop…</source>
        <translation>Im Desktop ändern…</translation>
    </message>
    <message>
        <source>This desktop leaves hot keys to its own settings. Bind these commands to keys there:</source>
        <translation>Dieser Desktop überlässt Tastenkürzel seinen eigenen Einstellungen. Legen Sie dort diese Befehle auf Tasten:</translation>
    </message>
    <message>
        <source>No keys given yet</source>
        <translation>Noch keine Tasten vergeben</translation>
    </message>
    <message>
        <source>Keep night light</source>
        <translation>Nachtlicht beibehalten</translation>
    </message>
    <message>
        <source>There is no password: any computer there can do this.</source>
        <translation>Es gibt kein Passwort: Jeder Rechner dort kann das.</translation>
    </message>
</context>
<context>
    <name>Problem</name>
    <message>
        <source>UDP port 44188 cannot be used. Another program may have it. It is tried again every 5 seconds.</source>
        <translation>Der UDP-Port 44188 kann nicht benutzt werden. Vielleicht hat ihn ein anderes Programm. Alle 5 Sekunden folgt ein neuer Versuch.</translation>
    </message>
    <message>
        <source>The panel is on no display. Move it onto one.</source>
        <translation>Das Bedienfeld ist auf keinem Bildschirm. Ziehen Sie es auf einen.</translation>
    </message>
    <message>
        <source>There is no display that could be corrected.</source>
        <translation>Es gibt keinen Bildschirm, der korrigiert werden könnte.</translation>
    </message>
    <message>
        <source>No such display</source>
        <translation>Diesen Bildschirm gibt es nicht</translation>
    </message>
    <message>
        <source>No display with the reference ID %@ is attached. tonquilctl displays lists them.</source>
        <translation>Es ist kein Bildschirm mit der Referenz-ID %@ angeschlossen. „tonquilctl displays“ listet sie auf.</translation>
    </message>
    <message>
        <source>The file was not opened</source>
        <translation>Die Datei wurde nicht geöffnet</translation>
    </message>
    <message>
        <source>No Matching Screens</source>
        <translation>Keine passenden Bildschirme</translation>
    </message>
    <message>
        <source>Settings from this file apply to different screens than those available on this computer.</source>
        <translation>Die Einstellungen in dieser Datei gelten für andere Bildschirme als die an diesem Computer.</translation>
    </message>
    <message>
        <source>It holds neither settings nor a whole table of 768 bytes. Nothing has been changed.</source>
        <translation>Sie enthält weder Einstellungen noch eine ganze Tabelle von 768 Byte. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Saving failed</source>
        <translation>Das Speichern ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not save settings at this location.</source>
        <translation>Die Einstellungen konnten an diesem Ort nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The file name is empty or has a NUL in it.</source>
        <translation>Der Dateiname ist leer oder enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>This key combination already does something else in Tonquil.</source>
        <translation>Dieses Tastenkürzel hat in Tonquil schon eine andere Aufgabe.</translation>
    </message>
    <message>
        <source>Key combinations for all programs are not available on this desktop.</source>
        <translation>Programmübergreifende Tastenkürzel sind auf diesem Desktop nicht verfügbar.</translation>
    </message>
    <message>
        <source>This display has no gamma ramp.</source>
        <translation>Dieser Bildschirm hat keine Gammatabelle.</translation>
    </message>
    <message>
        <source>There is no X server to talk to: DISPLAY is not set.</source>
        <translation>Es ist kein X-Server erreichbar: DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>The X server has no screen.</source>
        <translation>Der X-Server hat keinen Bildschirm.</translation>
    </message>
    <message>
        <source>The X server has no RandR extension, so its displays cannot be corrected.</source>
        <translation>Der X-Server hat keine RandR-Erweiterung; seine Bildschirme können daher nicht korrigiert werden.</translation>
    </message>
    <message>
        <source>The X server&apos;s RandR extension is older than 1.3, so its displays cannot be corrected.</source>
        <translation>Die RandR-Erweiterung des X-Servers ist älter als 1.3; seine Bildschirme können daher nicht korrigiert werden.</translation>
    </message>
    <message>
        <source>This X server only draws into a Wayland desktop: setting its gamma ramps changes nothing.</source>
        <translation>Dieser X-Server zeichnet nur in einen Wayland-Desktop: Seine Gammatabellen zu setzen bewirkt nichts.</translation>
    </message>
    <message>
        <source>This key cannot be part of a key combination for all programs.</source>
        <translation>Diese Taste kann nicht Teil eines programmübergreifenden Tastenkürzels sein.</translation>
    </message>
    <message>
        <source>The keyboard has no such modifier key for a key combination.</source>
        <translation>Die Tastatur hat keine solche Sondertaste für ein Tastenkürzel.</translation>
    </message>
    <message>
        <source>Tonquil itself already uses this key combination.</source>
        <translation>Tonquil selbst verwendet dieses Tastenkürzel schon.</translation>
    </message>
    <message>
        <source>The X server keeps this key combination for switching terminals.</source>
        <translation>Der X-Server behält dieses Tastenkürzel für den Wechsel zwischen Terminals.</translation>
    </message>
    <message>
        <source>Another program already uses this key combination.</source>
        <translation>Ein anderes Programm verwendet dieses Tastenkürzel schon.</translation>
    </message>
    <message>
        <source>The X server has no such key, so it cannot be part of a key combination.</source>
        <translation>Der X-Server kennt diese Taste nicht; sie kann daher nicht Teil eines Tastenkürzels sein.</translation>
    </message>
    <message>
        <source>The X server refuses this key combination.</source>
        <translation>Der X-Server lehnt dieses Tastenkürzel ab.</translation>
    </message>
    <message>
        <source>The X server has gone, so no key combination can be set.</source>
        <translation>Der X-Server ist nicht mehr da; es kann kein Tastenkürzel gesetzt werden.</translation>
    </message>
    <message>
        <source>The property list is damaged.</source>
        <translation>Die Eigenschaftsliste ist beschädigt.</translation>
    </message>
    <message>
        <source>The property list is too large or too deeply nested.</source>
        <translation>Die Eigenschaftsliste ist zu groß oder zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>This is not a property list.</source>
        <translation>Dies ist keine Eigenschaftsliste.</translation>
    </message>
    <message>
        <source>The property list is too large.</source>
        <translation>Die Eigenschaftsliste ist zu groß.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the property list.</source>
        <translation>Der Speicher reicht nicht aus, um die Eigenschaftsliste zu lesen.</translation>
    </message>
    <message>
        <source>There is no room for the curves of so many more displays.</source>
        <translation>Für die Kurven so vieler weiterer Bildschirme ist kein Platz.</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>Ihr Anteil am Datenträger ist aufgebraucht</translation>
    </message>
    <message>
        <source>the file would be larger than is allowed</source>
        <translation>die Datei würde größer als erlaubt</translation>
    </message>
    <message>
        <source>you may not write there</source>
        <translation>Sie dürfen dort nicht schreiben</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>ihr Ordner ist nicht vorhanden</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>ein Teil des Pfads ist kein Ordner</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>ihr Name ist zu lang</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>ihre symbolischen Links führen im Kreis</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>another program is saving it right now</source>
        <translation>ein anderes Programm speichert sie gerade</translation>
    </message>
    <message>
        <source>The file could not be saved: its name is empty or has a NUL in it.</source>
        <translation>Die Datei konnte nicht gespeichert werden: Ihr Name ist leer oder enthält ein NUL-Zeichen.</translation>
    </message>
    <message>
        <source>%@ was saved, but the disk may not have kept it: %@.</source>
        <translation>%@ wurde gespeichert, ist aber vielleicht nicht auf dem Datenträger angekommen: %@.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@. The older file was kept.</source>
        <translation>%@ konnte nicht gespeichert werden: %@. Die ältere Datei blieb erhalten.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@.</source>
        <translation>%@ konnte nicht gespeichert werden: %@.</translation>
    </message>
    <message>
        <source>%@ is not a regular file.</source>
        <translation>%@ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%@ could not be read: %@.</source>
        <translation>%@ konnte nicht gelesen werden: %@.</translation>
    </message>
    <message>
        <source>No such file: %@.</source>
        <translation>Diese Datei gibt es nicht: %@.</translation>
    </message>
    <message>
        <source>%@ is not readable by you.</source>
        <translation>Sie dürfen %@ nicht lesen.</translation>
    </message>
    <message>
        <source>%@ is a symbolic link that leads in a circle.</source>
        <translation>%@ ist ein symbolischer Link, der im Kreis führt.</translation>
    </message>
    <message>
        <source>The file name is too long: %@.</source>
        <translation>Der Dateiname ist zu lang: %@.</translation>
    </message>
    <message>
        <source>%@ could not be opened: %@.</source>
        <translation>%@ konnte nicht geöffnet werden: %@.</translation>
    </message>
    <message>
        <source>%@ is a folder, not a file.</source>
        <translation>%@ ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>%@ is larger than %@.</source>
        <translation>%@ ist größer als %@.</translation>
    </message>
    <message>
        <source>The folder %@ could not be made: %@.</source>
        <translation>Der Ordner %@ konnte nicht angelegt werden: %@.</translation>
    </message>
    <message>
        <source>%@ is damaged and cannot be moved aside: %@.</source>
        <translation>%@ ist beschädigt und kann nicht beiseitegelegt werden: %@.</translation>
    </message>
    <message>
        <source>The file has curves for more than %@ displays.</source>
        <translation>Die Datei enthält Kurven für mehr als %@ Bildschirme.</translation>
    </message>
    <message>
        <source>There is no Wayland compositor to talk to: WAYLAND_DISPLAY is not set.</source>
        <translation>Es gibt keinen Wayland-Compositor, mit dem man sprechen könnte: WAYLAND_DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>Der Wayland-Compositor antwortet nicht.</translation>
    </message>
    <message>
        <source>This Wayland desktop does not let programs correct its displays.</source>
        <translation>Dieser Wayland-Desktop lässt Programme seine Bildschirme nicht korrigieren.</translation>
    </message>
    <message>
        <source>The compositor gives an impossible size for this display&apos;s gamma ramp.</source>
        <translation>Der Compositor nennt für die Gammatabelle dieses Bildschirms eine unmögliche Größe.</translation>
    </message>
    <message>
        <source>Another program, such as a night light, holds this display&apos;s gamma ramp, or it has none.</source>
        <translation>Ein anderes Programm, etwa ein Nachtmodus, hält die Gammatabelle dieses Bildschirms, oder er hat keine.</translation>
    </message>
    <message>
        <source>The table can be edited now</source>
        <translation>Die Tabelle kann jetzt bearbeitet werden</translation>
    </message>
    <message>
        <source>A curve has taken its place that differs from it by %@ % of full level at most. Undo brings the table back.</source>
        <translation>An ihre Stelle ist eine Kurve getreten, die höchstens %@ % des vollen Pegels von ihr abweicht. „Rückgängig“ bringt die Tabelle zurück.</translation>
    </message>
    <message>
        <source>The calibration is not for a display.</source>
        <translation>Die Kalibrierung ist nicht für einen Bildschirm.</translation>
    </message>
    <message>
        <source>The calibration file is damaged.</source>
        <translation>Die Kalibrierungsdatei ist beschädigt.</translation>
    </message>
    <message>
        <source>There is no display whose table could be saved.</source>
        <translation>Es gibt keinen Bildschirm, dessen Tabelle gespeichert werden könnte.</translation>
    </message>
    <message>
        <source>The profile&apos;s calibration is damaged.</source>
        <translation>Die Kalibrierung des Profils ist beschädigt.</translation>
    </message>
    <message>
        <source>The profile is too large.</source>
        <translation>Das Profil ist zu groß.</translation>
    </message>
    <message>
        <source>The colour profile is damaged.</source>
        <translation>Das Farbprofil ist beschädigt.</translation>
    </message>
    <message>
        <source>The colour profile holds no calibration that could be put on a display.</source>
        <translation>Das Farbprofil enthält keine Kalibrierung, die ein Bildschirm bekommen könnte.</translation>
    </message>
    <message>
        <source>The colour profile could not be made.</source>
        <translation>Das Farbprofil konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>It holds no settings.</source>
        <translation>Sie enthält keine Einstellungen.</translation>
    </message>
    <message>
        <source>There is no preset called &quot;%@&quot;.</source>
        <translation>Es gibt keine Vorlage namens „%@“.</translation>
    </message>
    <message>
        <source>There is a preset called &quot;%@&quot; already. Nothing was saved.</source>
        <translation>Eine Vorlage namens „%@“ gibt es schon. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>There is no display whose curve could be saved.</source>
        <translation>Es gibt keinen Bildschirm, dessen Kurve gesichert werden könnte.</translation>
    </message>
    <message>
        <source>A preset&apos;s name has up to 50 characters, no slash, and no dot in front. Nothing was saved.</source>
        <translation>Der Name einer Vorlage hat bis zu 50 Zeichen, keinen Schrägstrich und keinen Punkt am Anfang. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The folder of presets could not be made.</source>
        <translation>Der Ordner für Vorlagen konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Switch off the desktop&apos;s night light, or end whatever else corrects this display. Tonquil then takes it over within seconds.</source>
        <translation>Schalten Sie das Nachtlicht des Desktops aus, oder beenden Sie, was diesen Bildschirm sonst korrigiert. Tonquil übernimmt ihn dann innerhalb von Sekunden.</translation>
    </message>
    <message>
        <source>The colour profile with the correction cannot be saved.</source>
        <translation>Das Farbprofil mit der Korrektur lässt sich nicht sichern.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display while HDR is on.</source>
        <translation>Der Compositor nimmt für diesen Bildschirm kein Farbprofil an, solange HDR eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The compositor refuses the colour profile for this display.</source>
        <translation>Der Compositor lehnt das Farbprofil für diesen Bildschirm ab.</translation>
    </message>
    <message>
        <source>This is not a KDE Plasma desktop.</source>
        <translation>Das ist kein KDE-Plasma-Desktop.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display.</source>
        <translation>Der Compositor nimmt für diesen Bildschirm kein Farbprofil an.</translation>
    </message>
    <message>
        <source>Another program is calibrating this display.</source>
        <translation>Ein anderes Programm kalibriert diesen Bildschirm gerade.</translation>
    </message>
    <message>
        <source>The compositor refuses to have this display corrected.</source>
        <translation>Der Compositor lässt nicht zu, dass dieser Bildschirm korrigiert wird.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>Der Sitzungsbus antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>Targets</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>Testbilder</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <source>From a little way off, the striped quarters of each coloured square should look as bright as the plain ones.</source>
        <translation>Aus etwas Abstand sollten die gestreiften Viertel jedes farbigen Quadrats so hell wirken wie die einfarbigen.</translation>
    </message>
    <message>
        <source>Every step should stand out from the next, down to black and up to white, and no grey should look tinted.</source>
        <translation>Jede Stufe sollte sich bis hinab zum Schwarz und hinauf zum Weiß von der nächsten abheben, und kein Grau sollte farbstichig wirken.</translation>
    </message>
</context>
<context>
    <name>tonquil::DDHotKeyTextField</name>
    <message>
        <source>Type a shortcut</source>
        <translation>Tastenkürzel drücken</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
</context>
<context>
    <name>tonquil::HotKeyClearButton</name>
    <message>
        <source>Clear shortcut</source>
        <translation>Tastenkürzel löschen</translation>
    </message>
</context>
</TS>

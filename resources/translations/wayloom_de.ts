<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Wayloom</name>
    <message>
        <source>%1 added, %2 were there before</source>
        <translation>%1 hinzugefügt, %2 waren schon da</translation>
    </message>
    <message>
        <source>%1 exported</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>%1 exported, %2 without a position left out</source>
        <translation>%1 exportiert, %2 ohne Position ausgelassen</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 is damaged and counts as empty</source>
        <translation>%1 ist beschädigt und gilt als leer</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>%1 von %2 markiert</translation>
    </message>
    <message>
        <source>Add To →</source>
        <translation>Merken →</translation>
    </message>
    <message>
        <source>Added to favorites: %1</source>
        <translation>Zu den Favoriten hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Address is loading, please wait</source>
        <translation>Die Adresse wird noch gesucht, bitte warten</translation>
    </message>
    <message>
        <source>Applications that are installed on this device appear here.</source>
        <translation>Hier erscheinen die Anwendungen, die auf diesem Gerät installiert sind.</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Angekommen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Both are on: turn the position or the drive off</source>
        <translation>Beide sind ein: Schalten Sie Position oder Fahrt aus</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Contact Author</source>
        <translation>Autor anschreiben</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy coordinates</source>
        <translation>Koordinaten kopieren</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deleted “%1”</source>
        <translation>„%1“ gelöscht</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Drift speed</source>
        <translation>Geschwindigkeit des Umherwanderns</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>Drive: %1, %2</source>
        <translation>Fahrt: %1, %2</translation>
    </message>
    <message>
        <source>Drive: %1, %2; you gave %3, %4</source>
        <translation>Fahrt: %1, %2; gewählt %3, %4</translation>
    </message>
    <message>
        <source>Driving: %1 %, %2 left, arrives %3</source>
        <translation>Unterwegs: %1 %, noch %2, Ankunft %3</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Hier enden</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ankunft</translation>
    </message>
    <message>
        <source>End Time must later than Start Time</source>
        <translation>Die Ankunft muss nach der Abfahrt liegen</translation>
    </message>
    <message>
        <source>Enter Address Here</source>
        <translation>Adresse eingeben</translation>
    </message>
    <message>
        <source>Export favorites to a file</source>
        <translation>Favoriten in eine Datei exportieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>App suchen</translation>
    </message>
    <message>
        <source>Fixed location</source>
        <translation>Fester Standort</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen:</translation>
    </message>
    <message>
        <source>Forget recent searches</source>
        <translation>Letzte Suchen vergessen</translation>
    </message>
    <message>
        <source>Hide the choices</source>
        <translation>Auswahl ausblenden</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>Import favorites from a file</source>
        <translation>Favoriten aus einer Datei importieren</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>It was changed elsewhere meanwhile</source>
        <translation>Es wurde inzwischen anderswo geändert</translation>
    </message>
    <message>
        <source>Keep the ticks as they are under a name, and take them back later.</source>
        <translation>Die Häkchen unter einem Namen aufheben und später wieder herstellen.</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Moved “%1”</source>
        <translation>„%1“ verschoben</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>Mein Standort</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>Name des Satzes</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Keine Anwendungen gefunden</translation>
    </message>
    <message>
        <source>No favorites yet</source>
        <translation>Noch keine Favoriten</translation>
    </message>
    <message>
        <source>No roads lead from %1 to %2</source>
        <translation>Keine Straße führt von %1 nach %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Nothing found for %1: the position is off</source>
        <translation>Nichts gefunden für %1: Der Standort ist aus</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>On at %1</source>
        <translation>Ein: %1</translation>
    </message>
    <message>
        <source>On at a position that is not on the globe</source>
        <translation>Ein an einer Position, die nicht auf der Erde liegt</translation>
    </message>
    <message>
        <source>Path planning failure, rechoose Start/End please</source>
        <translation>Keine Strecke gefunden, bitte Start oder Ziel neu wählen</translation>
    </message>
    <message>
        <source>Pick a place on the map and press “Add To →”.</source>
        <translation>Einen Ort auf der Karte wählen und „Merken →“ drücken.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort von Interesse</translation>
    </message>
    <message>
        <source>Please Enter Favorites Name</source>
        <translation>Name des Favoriten</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>Bitte wählen</translation>
    </message>
    <message>
        <source>Please choose End</source>
        <translation>Bitte das Ziel wählen</translation>
    </message>
    <message>
        <source>Please choose End Time</source>
        <translation>Bitte die Ankunftszeit wählen</translation>
    </message>
    <message>
        <source>Please choose Start</source>
        <translation>Bitte den Start wählen</translation>
    </message>
    <message>
        <source>Please choose Start Time</source>
        <translation>Bitte die Abfahrtszeit wählen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>Provinz</translation>
    </message>
    <message>
        <source>Put the pin here</source>
        <translation>Nadel hierher setzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save as favorite</source>
        <translation>Als Favorit sichern</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search Failed</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Show the choices</source>
        <translation>Auswahl einblenden</translation>
    </message>
    <message>
        <source>Spotloom is working,please turn off the Spotloom first!</source>
        <translation>Der feste Standort ist eingeschaltet. Bitte erst ausschalten!</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Hier starten</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Abfahrt</translation>
    </message>
    <message>
        <source>Starts %1, arrives %2</source>
        <translation>Abfahrt %1, Ankunft %2</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Straße</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Switch mode</source>
        <translation>Modus wechseln</translation>
    </message>
    <message>
        <source>The drive ends before it starts</source>
        <translation>Die Fahrt endet, bevor sie beginnt</translation>
    </message>
    <message>
        <source>The drive has no path</source>
        <translation>Die Fahrt hat keine Strecke</translation>
    </message>
    <message>
        <source>Ticked only</source>
        <translation>Nur markierte</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Touch again: there was no settings file yet</source>
        <translation>Nochmals berühren: Es gab noch keine Einstellungsdatei</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Turn on the switch will change your coordinate automatic in a range</source>
        <translation>Eingeschaltet wandert die Position von selbst in der Umgebung umher</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Unknow</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Visit Quorvil</source>
        <translation>Quorvil besuchen</translation>
    </message>
    <message>
        <source>Wayloom</source>
        <translation>Wayloom</translation>
    </message>
    <message>
        <source>Wayloom is working</source>
        <translation>Wayloom läuft</translation>
    </message>
    <message>
        <source>Wayloom is working,please turn off the Wayloom first!</source>
        <translation>Die Fahrt läuft. Bitte erst ausschalten!</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>Weiße Liste</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>schnell</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>langsam</translation>
    </message>
    <message>
        <source>定位服务未开启</source>
        <translation>Die Ortungsdienste sind ausgeschaltet</translation>
    </message>
    <message>
        <source>定位失败</source>
        <translation>Ortung fehlgeschlagen</translation>
    </message>
    <message>
        <source>请开启定位以保证程序正常运行</source>
        <translation>Bitte den Zugriff auf den Standort erlauben, damit die Anwendung arbeiten kann</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>ddd d. MMM</translation>
    </message>
</context>
</TS>

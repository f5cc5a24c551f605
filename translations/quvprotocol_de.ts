<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QuvProtocol</name>
    <message>
        <source>About %1 hours, %2 minutes and %3 seconds remaining...</source>
        <translation>Noch etwa %1 Stunden, %2 Minuten und %3 Sekunden …</translation>
    </message>
    <message>
        <source>About %1 seconds remaining...</source>
        <translation>Noch etwa %1 Sekunden …</translation>
    </message>
    <message>
        <source>Created...</source>
        <translation>Angelegt …</translation>
    </message>
    <message>
        <source>Queued...</source>
        <translation>In der Warteschlange …</translation>
    </message>
    <message>
        <source>Executing...</source>
        <translation>Wird ausgeführt …</translation>
    </message>
    <message>
        <source>Done successfully!</source>
        <translation>Erfolgreich erledigt!</translation>
    </message>
    <message>
        <source>Errors in command execution!</source>
        <translation>Fehler beim Ausführen des Befehls!</translation>
    </message>
    <message>
        <source>Interrupted!</source>
        <translation>Unterbrochen!</translation>
    </message>
    <message>
        <source>Timeout elapsed!</source>
        <translation>Zeit abgelaufen!</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Retrieving calibration profiles</source>
        <translation>Kalibrierprofile werden gelesen</translation>
    </message>
    <message>
        <source>Searching for hardware errors</source>
        <translation>Hardwarefehler werden gesucht</translation>
    </message>
    <message>
        <source>Retrieving application settings</source>
        <translation>Einstellungen des Programms werden gelesen</translation>
    </message>
    <message>
        <source>Retrieving application info</source>
        <translation>Angaben zum Programm werden gelesen</translation>
    </message>
    <message>
        <source>Reading scale configuration</source>
        <translation>Einstellungen der Waage werden gelesen</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Air purge in progress</source>
        <translation>Entlüftung läuft</translation>
    </message>
    <message>
        <source>Air purge in progress on position %1</source>
        <translation>Entlüftung läuft an Position %1</translation>
    </message>
    <message>
        <source>%1 with formula: %2</source>
        <translation>%1 mit Rezeptur: %2</translation>
    </message>
    <message>
        <source>%1 in progress</source>
        <translation>%1 läuft</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>dosing</source>
        <translation>Dosierung</translation>
    </message>
    <message>
        <source>Checking levels for formula</source>
        <translation>Füllstände werden für die Rezeptur geprüft</translation>
    </message>
    <message>
        <source>Checking levels for %1formula: %2</source>
        <translation>Füllstände werden geprüft für %1Rezeptur: %2</translation>
    </message>
    <message>
        <source>purge </source>
        <translation>Spül-</translation>
    </message>
    <message>
        <source>Checking levels for purge formula: %1</source>
        <translation>Füllstände werden geprüft für Spülrezeptur: %1</translation>
    </message>
    <message>
        <source>Pack in progress</source>
        <translation>Verdichten läuft</translation>
    </message>
    <message>
        <source>Pack in progress on positions %1</source>
        <translation>Verdichten läuft an den Positionen %1</translation>
    </message>
    <message>
        <source>Pump pack</source>
        <translation>Pumpe verdichten</translation>
    </message>
    <message>
        <source>Pump unpack</source>
        <translation>Pumpe entspannen</translation>
    </message>
    <message>
        <source>Priming in progress</source>
        <translation>Befüllen der Pumpen läuft</translation>
    </message>
    <message>
        <source>Priming in progress on positions %1</source>
        <translation>Befüllen der Pumpen läuft an den Positionen %1</translation>
    </message>
    <message>
        <source>Purge in progress</source>
        <translation>Spülen läuft</translation>
    </message>
    <message>
        <source>Purge of formula: %1</source>
        <translation>Spülen mit Rezeptur: %1</translation>
    </message>
    <message>
        <source>Updating levels</source>
        <translation>Füllstände werden aktualisiert</translation>
    </message>
    <message>
        <source>Updating levels with the %1formula%2: %3 (%4)</source>
        <translation>Füllstände werden aktualisiert mit der %1Rezeptur%2: %3 (%4)</translation>
    </message>
    <message>
        <source>delta </source>
        <translation>Differenz-</translation>
    </message>
    <message>
        <source> (refill)</source>
        <translation> (Nachfüllen)</translation>
    </message>
    <message>
        <source>Dispensing in progress</source>
        <translation>Dosierung läuft</translation>
    </message>
    <message>
        <source>Firmware versions scan</source>
        <translation>Firmwareversionen werden ermittelt</translation>
    </message>
    <message>
        <source>Updating firmware</source>
        <translation>Firmware wird aktualisiert</translation>
    </message>
    <message>
        <source>Reading firmware version</source>
        <translation>Firmwareversion wird gelesen</translation>
    </message>
    <message>
        <source>Reading firmware version from module %1</source>
        <translation>Firmwareversion von Modul %1 wird gelesen</translation>
    </message>
    <message>
        <source>Generic resource file</source>
        <translation>Allgemeine Ressourcendatei</translation>
    </message>
    <message>
        <source>Configuration file</source>
        <translation>Konfigurationsdatei</translation>
    </message>
    <message>
        <source>Message file</source>
        <translation>Meldungsdatei</translation>
    </message>
    <message>
        <source>Dump file</source>
        <translation>Speicherabzug</translation>
    </message>
    <message>
        <source>File corrupted</source>
        <translation>Datei beschädigt</translation>
    </message>
    <message>
        <source>Deleting resource file</source>
        <translation>Ressourcendatei wird gelöscht</translation>
    </message>
    <message>
        <source>Reading canister levels</source>
        <translation>Füllstände der Kanister werden gelesen</translation>
    </message>
    <message>
        <source>Reading resource files list</source>
        <translation>Liste der Ressourcendateien wird gelesen</translation>
    </message>
    <message>
        <source>Reading resource file</source>
        <translation>Ressourcendatei wird gelesen</translation>
    </message>
    <message>
        <source>Sending resource file</source>
        <translation>Ressourcendatei wird übertragen</translation>
    </message>
    <message>
        <source>Running autotest</source>
        <translation>Selbsttest läuft</translation>
    </message>
    <message>
        <source>Reading protocol commands</source>
        <translation>Befehle des Protokolls werden gelesen</translation>
    </message>
    <message>
        <source>Closing cap</source>
        <translation>Kappe wird geschlossen</translation>
    </message>
    <message>
        <source>Opening cap</source>
        <translation>Kappe wird geöffnet</translation>
    </message>
    <message>
        <source>Moving cap</source>
        <translation>Kappe wird bewegt</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Reinigung</translation>
    </message>
    <message>
        <source>Cleaning STOP for circuit position %1</source>
        <translation>Reinigung wird angehalten für Kreis an Position %1</translation>
    </message>
    <message>
        <source>Cleaning circuit position %1 for %2 seconds at speed %3</source>
        <translation>Kreis an Position %1 wird %2 Sekunden lang mit Drehzahl %3 gereinigt</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>belegt</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>wartend</translation>
    </message>
    <message>
        <source>Level sensor read</source>
        <translation>Füllstandsensor wird gelesen</translation>
    </message>
    <message>
        <source>Level sensor read for positions %1</source>
        <translation>Füllstandsensoren der Positionen %1 werden gelesen</translation>
    </message>
    <message>
        <source>Reading shelf position</source>
        <translation>Position des Bords wird gelesen</translation>
    </message>
    <message>
        <source>Mix in progress</source>
        <translation>Mischen läuft</translation>
    </message>
    <message>
        <source>Mixer plates movement in progress</source>
        <translation>Platten des Mischers werden bewegt</translation>
    </message>
    <message>
        <source>Activating motor running on circuit position %1</source>
        <translation>Motor des Kreises an Position %1 wird eingeschaltet</translation>
    </message>
    <message>
        <source>Nozzle clean</source>
        <translation>Düsenreinigung</translation>
    </message>
    <message>
        <source>Nozzle clean of circuit position %1</source>
        <translation>Düsenreinigung des Kreises an Position %1</translation>
    </message>
    <message>
        <source>Recirculating</source>
        <translation>Umwälzung</translation>
    </message>
    <message>
        <source>Recirculation STOP for circuit position %1</source>
        <translation>Umwälzung wird angehalten für Kreis an Position %1</translation>
    </message>
    <message>
        <source>Recirculating circuit position %1 for %2 strokes at speed %3 (%4 execution)</source>
        <translation>Kreis an Position %1 wird %2 Hübe lang mit Drehzahl %3 umgewälzt (Ausführung: %4)</translation>
    </message>
    <message>
        <source>Recirculating circuit position %1 for %2 seconds at speed %3 (%4 execution)</source>
        <translation>Kreis an Position %1 wird %2 Sekunden lang mit Drehzahl %3 umgewälzt (Ausführung: %4)</translation>
    </message>
    <message>
        <source>Reset in progress</source>
        <translation>Zurücksetzen läuft</translation>
    </message>
    <message>
        <source>Resetting all dispenser modules</source>
        <translation>Alle Module des Dosierers werden zurückgesetzt</translation>
    </message>
    <message>
        <source>Resetting module %1</source>
        <translation>Modul %1 wird zurückgesetzt</translation>
    </message>
    <message>
        <source>Opening electrovalve</source>
        <translation>Magnetventil wird geöffnet</translation>
    </message>
    <message>
        <source>Closing electrovalve</source>
        <translation>Magnetventil wird geschlossen</translation>
    </message>
    <message>
        <source>Turning Bung Hole Locator ON</source>
        <translation>Spundlochsucher wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning Bung Hole Locator OFF</source>
        <translation>Spundlochsucher wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning Nozzle Light ON</source>
        <translation>Düsenlicht wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning Nozzle Light OFF</source>
        <translation>Düsenlicht wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brake ON</source>
        <translation>Bremse des Drehtellers wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brake OFF</source>
        <translation>Bremse des Drehtellers wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brush ON</source>
        <translation>Bürste des Drehtellers wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brush OFF</source>
        <translation>Bürste des Drehtellers wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brush 2 ON</source>
        <translation>Bürste 2 des Drehtellers wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning turntable brush 2 OFF</source>
        <translation>Bürste 2 des Drehtellers wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning heater ON</source>
        <translation>Heizung wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning heater OFF</source>
        <translation>Heizung wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Opening nozzle valve</source>
        <translation>Düsenventil wird geöffnet</translation>
    </message>
    <message>
        <source>Closing nozzle valve</source>
        <translation>Düsenventil wird geschlossen</translation>
    </message>
    <message>
        <source>Turning VELTO Connect ON</source>
        <translation>VELTO Connect wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning VELTO Connect OFF</source>
        <translation>VELTO Connect wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning humidifier pump ON</source>
        <translation>Pumpe des Befeuchters wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning humidifier pump OFF</source>
        <translation>Pumpe des Befeuchters wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning humidifier resistance ON</source>
        <translation>Heizwiderstand des Befeuchters wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning humidifier resistance OFF</source>
        <translation>Heizwiderstand des Befeuchters wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Locking rollbar</source>
        <translation>Rollbügel wird verriegelt</translation>
    </message>
    <message>
        <source>Unlocking rollbar</source>
        <translation>Rollbügel wird entriegelt</translation>
    </message>
    <message>
        <source>Moving cap to home position</source>
        <translation>Kappe fährt in die Grundstellung</translation>
    </message>
    <message>
        <source>Opening main door</source>
        <translation>Haupttür wird geöffnet</translation>
    </message>
    <message>
        <source>Closing main door</source>
        <translation>Haupttür wird geschlossen</translation>
    </message>
    <message>
        <source>Turning main stirring motor ON</source>
        <translation>Hauptrührmotor wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning main stirring motor OFF</source>
        <translation>Hauptrührmotor wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Turning secondary stirring motor ON</source>
        <translation>Zweiter Rührmotor wird eingeschaltet</translation>
    </message>
    <message>
        <source>Turning secondary stirring motor OFF</source>
        <translation>Zweiter Rührmotor wird ausgeschaltet</translation>
    </message>
    <message>
        <source>Switching led status</source>
        <translation>Zustand der LED wird umgeschaltet</translation>
    </message>
    <message>
        <source>Moving shelf to can position</source>
        <translation>Bord fährt auf Dosenhöhe</translation>
    </message>
    <message>
        <source>Moving shelf to can position (height %1 mm)</source>
        <translation>Bord fährt auf Dosenhöhe (Höhe %1 mm)</translation>
    </message>
    <message>
        <source>Moving shelf to low position</source>
        <translation>Bord fährt nach unten</translation>
    </message>
    <message>
        <source>Moving shelf to low position (height %1 mm)</source>
        <translation>Bord fährt nach unten (Höhe %1 mm)</translation>
    </message>
    <message>
        <source>Stirring all circuits</source>
        <translation>Alle Kreise werden gerührt</translation>
    </message>
    <message>
        <source>Stirring</source>
        <translation>Rühren</translation>
    </message>
    <message>
        <source>Stirring circuit position %1 for %2 seconds (%3 execution)</source>
        <translation>Kreis an Position %1 wird %2 Sekunden lang gerührt (Ausführung: %3)</translation>
    </message>
    <message>
        <source>Stop in progress</source>
        <translation>Anhalten läuft</translation>
    </message>
    <message>
        <source>recirculation</source>
        <translation>Umwälzung</translation>
    </message>
    <message>
        <source>stirring</source>
        <translation>Rühren</translation>
    </message>
    <message>
        <source>humidifier</source>
        <translation>Befeuchter</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>Reinigung</translation>
    </message>
    <message>
        <source>Enabling all timed processes</source>
        <translation>Alle zeitgesteuerten Vorgänge werden eingeschaltet</translation>
    </message>
    <message>
        <source>Disabling all timed processes</source>
        <translation>Alle zeitgesteuerten Vorgänge werden ausgeschaltet</translation>
    </message>
    <message>
        <source>Disabling timed processes (%1)</source>
        <translation>Zeitgesteuerte Vorgänge werden ausgeschaltet (%1)</translation>
    </message>
    <message>
        <source>Moving turntable to reference position</source>
        <translation>Drehteller fährt in die Bezugsstellung</translation>
    </message>
    <message>
        <source>Moving turntable to circuit %1</source>
        <translation>Drehteller fährt zu Kreis %1</translation>
    </message>
    <message>
        <source>Moving turntable to circuit %1 (no rollbar unlock)</source>
        <translation>Drehteller fährt zu Kreis %1 (Rollbügel bleibt verriegelt)</translation>
    </message>
    <message>
        <source>Moving turntable by %1 steps</source>
        <translation>Drehteller fährt %1 Schritte weit</translation>
    </message>
    <message>
        <source>Moving turntable by %1 steps - direction : %1 - speed : %1</source>
        <translation>Drehteller fährt %1 Schritte weit – Richtung: %1 – Drehzahl: %1</translation>
    </message>
    <message>
        <source>Moving turntable to refill position</source>
        <translation>Drehteller fährt in die Nachfüllstellung</translation>
    </message>
    <message>
        <source>Running full cleaning process</source>
        <translation>Vollständige Reinigung läuft</translation>
    </message>
    <message>
        <source>Running emptying process</source>
        <translation>Entleeren läuft</translation>
    </message>
    <message>
        <source>Running filling process</source>
        <translation>Befüllen läuft</translation>
    </message>
    <message>
        <source>Running clean process</source>
        <translation>Reinigung läuft</translation>
    </message>
    <message>
        <source>for %1 seconds</source>
        <translation>%1 Sekunden lang</translation>
    </message>
    <message>
        <source>Gearmotor calibration</source>
        <translation>Kalibrierung des Getriebemotors</translation>
    </message>
    <message>
        <source>Reading bluetooth settings</source>
        <translation>Bluetooth-Einstellungen werden gelesen</translation>
    </message>
    <message>
        <source>Scanning available dispenser connections</source>
        <translation>Verfügbare Verbindungen zum Dosierer werden gesucht</translation>
    </message>
    <message>
        <source>Updating bluetooth settings</source>
        <translation>Bluetooth-Einstellungen werden geändert</translation>
    </message>
    <message>
        <source>Updating application settings</source>
        <translation>Einstellungen des Programms werden geändert</translation>
    </message>
    <message>
        <source>Cleaning hardware errors</source>
        <translation>Hardwarefehler werden gelöscht</translation>
    </message>
    <message>
        <source>One or more fields contain values out of range</source>
        <translation>Werte eines oder mehrerer Felder liegen außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>ETX not present</source>
        <translation>ETX fehlt</translation>
    </message>
    <message>
        <source>Bad checksum</source>
        <translation>Falsche Prüfsumme</translation>
    </message>
    <message>
        <source>Unknown command code</source>
        <translation>Unbekannter Befehlscode</translation>
    </message>
    <message>
        <source>Wrong position ID</source>
        <translation>Falsche Position</translation>
    </message>
    <message>
        <source>Bad command parameters</source>
        <translation>Falsche Parameter des Befehls</translation>
    </message>
    <message>
        <source>Command refused because of errors</source>
        <translation>Befehl wegen Fehlern abgelehnt</translation>
    </message>
    <message>
        <source>Configuration writing error</source>
        <translation>Fehler beim Schreiben der Konfiguration</translation>
    </message>
    <message>
        <source>Configuration row writing error</source>
        <translation>Fehler beim Schreiben einer Konfigurationszeile</translation>
    </message>
    <message>
        <source>Machine not available</source>
        <translation>Maschine nicht erreichbar</translation>
    </message>
    <message>
        <source>Bad working mode</source>
        <translation>Falsche Betriebsart</translation>
    </message>
    <message>
        <source>Tinting in progress</source>
        <translation>Dosierung läuft</translation>
    </message>
    <message>
        <source>Recirculation in progress</source>
        <translation>Umwälzung läuft</translation>
    </message>
    <message>
        <source>Stirring in progress</source>
        <translation>Rühren läuft</translation>
    </message>
    <message>
        <source>At least one valve ON</source>
        <translation>Mindestens ein Ventil ist eingeschaltet</translation>
    </message>
    <message>
        <source>Autocap opened</source>
        <translation>Automatische Kappe geöffnet</translation>
    </message>
    <message>
        <source>Bellows up</source>
        <translation>Faltenbalg oben</translation>
    </message>
    <message>
        <source>24V absent</source>
        <translation>24 V fehlen</translation>
    </message>
    <message>
        <source>48V absent</source>
        <translation>48 V fehlen</translation>
    </message>
    <message>
        <source>Punching in progress</source>
        <translation>Lochen läuft</translation>
    </message>
    <message>
        <source>Slave scan in progress</source>
        <translation>Suche nach Modulen läuft</translation>
    </message>
    <message>
        <source>Post dispensing in progress</source>
        <translation>Nachdosierung läuft</translation>
    </message>
    <message>
        <source>Turntable moving</source>
        <translation>Drehteller bewegt sich</translation>
    </message>
    <message>
        <source>Cleaning in progress</source>
        <translation>Reinigung läuft</translation>
    </message>
    <message>
        <source>Formula interrupted present</source>
        <translation>Es gibt eine unterbrochene Rezeptur</translation>
    </message>
    <message>
        <source>Nozzle valve in working position</source>
        <translation>Düsenventil in Arbeitsstellung</translation>
    </message>
    <message>
        <source>Head 1 ready to dispense</source>
        <translation>Kopf 1 bereit zur Dosierung</translation>
    </message>
    <message>
        <source>Head 2 ready to dispense</source>
        <translation>Kopf 2 bereit zur Dosierung</translation>
    </message>
    <message>
        <source>Nozzle valve open (precise)</source>
        <translation>Düsenventil offen (fein)</translation>
    </message>
    <message>
        <source>One or more canister under critical level</source>
        <translation>Ein oder mehrere Kanister unter dem kritischen Füllstand</translation>
    </message>
    <message>
        <source>New cleaning stats available</source>
        <translation>Neue Reinigungsstatistik liegt vor</translation>
    </message>
    <message>
        <source>Stall low</source>
        <translation>Unterer Anschlag</translation>
    </message>
    <message>
        <source>Stall high</source>
        <translation>Oberer Anschlag</translation>
    </message>
    <message>
        <source>Check level in progress</source>
        <translation>Füllstandsprüfung läuft</translation>
    </message>
    <message>
        <source>Speed reduced in recirculation</source>
        <translation>Drehzahl bei der Umwälzung verringert</translation>
    </message>
    <message>
        <source>Ready to dispense</source>
        <translation>Bereit zur Dosierung</translation>
    </message>
    <message>
        <source>Emergency button pressed</source>
        <translation>Not-Aus gedrückt</translation>
    </message>
    <message>
        <source>Offline button pressed</source>
        <translation>Offline-Taste gedrückt</translation>
    </message>
    <message>
        <source>Mixer offline</source>
        <translation>Mischer offline</translation>
    </message>
    <message>
        <source>Board not initialized</source>
        <translation>Platine nicht initialisiert</translation>
    </message>
    <message>
        <source>Startup in progress</source>
        <translation>Start läuft</translation>
    </message>
    <message>
        <source>Boot loader is active</source>
        <translation>Bootloader ist aktiv</translation>
    </message>
    <message>
        <source>Boot loader memory reset</source>
        <translation>Speicher wird vom Bootloader gelöscht</translation>
    </message>
    <message>
        <source>Boot loader firmware update</source>
        <translation>Firmware wird vom Bootloader aktualisiert</translation>
    </message>
    <message>
        <source>Configuration writing</source>
        <translation>Konfiguration wird geschrieben</translation>
    </message>
    <message>
        <source>Hardware error present</source>
        <translation>Hardwarefehler liegt vor</translation>
    </message>
    <message>
        <source>Configuration error present</source>
        <translation>Konfigurationsfehler liegt vor</translation>
    </message>
    <message>
        <source>Can is present</source>
        <translation>Dose steht bereit</translation>
    </message>
    <message>
        <source>Shelf moving up</source>
        <translation>Bord fährt nach oben</translation>
    </message>
    <message>
        <source>Upper plate moving up</source>
        <translation>Obere Platte fährt nach oben</translation>
    </message>
    <message>
        <source>Shelf moving down</source>
        <translation>Bord fährt nach unten</translation>
    </message>
    <message>
        <source>Upper plate moving down</source>
        <translation>Obere Platte fährt nach unten</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Tür offen</translation>
    </message>
    <message>
        <source>Machine turned off while working</source>
        <translation>Maschine während der Arbeit ausgeschaltet</translation>
    </message>
    <message>
        <source>Machine unlocked</source>
        <translation>Maschine entriegelt</translation>
    </message>
    <message>
        <source>Process error</source>
        <translation>Fehler im Ablauf</translation>
    </message>
    <message>
        <source>Process interrupted</source>
        <translation>Ablauf unterbrochen</translation>
    </message>
    <message>
        <source>New error present</source>
        <translation>Neuer Fehler liegt vor</translation>
    </message>
    <message>
        <source>Dispenser not available</source>
        <translation>Dosierer nicht erreichbar</translation>
    </message>
    <message>
        <source>Mixer not available</source>
        <translation>Mischer nicht erreichbar</translation>
    </message>
    <message>
        <source>Running normal mode</source>
        <translation>Normalbetrieb</translation>
    </message>
    <message>
        <source>Repositioning in progress</source>
        <translation>Neupositionierung läuft</translation>
    </message>
    <message>
        <source>Plates movement in progress</source>
        <translation>Platten werden bewegt</translation>
    </message>
    <message>
        <source>Mixing in progress</source>
        <translation>Mischen läuft</translation>
    </message>
    <message>
        <source>Cycle in progress</source>
        <translation>Zyklus läuft</translation>
    </message>
    <message>
        <source>Plates partially opened</source>
        <translation>Platten teilweise geöffnet</translation>
    </message>
    <message>
        <source>Plates not locked in vertical position</source>
        <translation>Platten nicht senkrecht verriegelt</translation>
    </message>
    <message>
        <source>Ready for next cycle</source>
        <translation>Bereit für den nächsten Zyklus</translation>
    </message>
    <message>
        <source>Cycle on hold, waiting start</source>
        <translation>Zyklus angehalten, wartet auf Start</translation>
    </message>
    <message>
        <source>Input power supply absent</source>
        <translation>Netzspannung fehlt</translation>
    </message>
    <message>
        <source>Lower plate extracted</source>
        <translation>Untere Platte ausgezogen</translation>
    </message>
    <message>
        <source>Can clamped between plates</source>
        <translation>Dose zwischen den Platten eingespannt</translation>
    </message>
    <message>
        <source>Door opening</source>
        <translation>Tür öffnet sich</translation>
    </message>
    <message>
        <source>Door closing</source>
        <translation>Tür schließt sich</translation>
    </message>
    <message>
        <source>Automatic door reset in progress</source>
        <translation>Automatische Tür wird zurückgesetzt</translation>
    </message>
    <message>
        <source>Cycle interrupted</source>
        <translation>Zyklus unterbrochen</translation>
    </message>
    <message>
        <source>Door locked</source>
        <translation>Tür verriegelt</translation>
    </message>
    <message>
        <source>Repositioning needed</source>
        <translation>Neupositionierung nötig</translation>
    </message>
    <message>
        <source>Door unlocked</source>
        <translation>Tür entriegelt</translation>
    </message>
    <message>
        <source>Changing dispenser ID to %1</source>
        <translation>Die ID des Dosierers wird auf %1 geändert</translation>
    </message>
    <message>
        <source>Changing dispenser ID from %1 to %2</source>
        <translation>Die ID des Dosierers wird von %1 auf %2 geändert</translation>
    </message>
    <message>
        <source>Cloning dispenser configuration</source>
        <translation>Konfiguration des Dosierers wird kopiert</translation>
    </message>
    <message>
        <source>Cloning machine configuration</source>
        <translation>Konfiguration der Maschine wird kopiert</translation>
    </message>
    <message>
        <source>Deleting dispenser configuration</source>
        <translation>Konfiguration des Dosierers wird gelöscht</translation>
    </message>
    <message>
        <source>Deleting machine configuration</source>
        <translation>Konfiguration der Maschine wird gelöscht</translation>
    </message>
    <message>
        <source>Retrieving configuration</source>
        <translation>Konfiguration wird abgerufen</translation>
    </message>
    <message>
        <source>Updating dispenser configurations</source>
        <translation>Konfigurationen der Dosierer werden aktualisiert</translation>
    </message>
    <message>
        <source>Updating dispenser configuration</source>
        <translation>Konfiguration des Dosierers wird aktualisiert</translation>
    </message>
    <message>
        <source>Updating machine configuration</source>
        <translation>Konfiguration der Maschine wird aktualisiert</translation>
    </message>
    <message>
        <source>Activating configuration of dispenser %1</source>
        <translation>Konfiguration von Dosierer %1 wird aktiviert</translation>
    </message>
    <message>
        <source>Activating configuration of dispenser %1 from dispenser %2</source>
        <translation>Konfiguration von Dosierer %1 wird von Dosierer %2 aus aktiviert</translation>
    </message>
    <message>
        <source>Activating configuration %1</source>
        <translation>Konfiguration %1 wird aktiviert</translation>
    </message>
    <message>
        <source>Activating configuration %1 from %2</source>
        <translation>Konfiguration %1 wird von %2 aus aktiviert</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Updating calibration profiles</source>
        <translation>Kalibrierprofile werden aktualisiert</translation>
    </message>
    <message>
        <source>Reading gravimetric settings</source>
        <translation>Gravimetrische Einstellungen werden gelesen</translation>
    </message>
    <message>
        <source>Updating gravimetric settings</source>
        <translation>Gravimetrische Einstellungen werden geändert</translation>
    </message>
    <message>
        <source>Retrieving scale configuration</source>
        <translation>Einstellungen der Waage werden gelesen</translation>
    </message>
    <message>
        <source>Taring</source>
        <translation>Die Waage wird tariert</translation>
    </message>
    <message>
        <source>Weighing</source>
        <translation>Es wird gewogen</translation>
    </message>
    <message>
        <source>Adding stats errors</source>
        <translation>Fehler werden in die Statistik eingetragen</translation>
    </message>
    <message>
        <source>Reading errors history</source>
        <translation>Fehlerverlauf wird gelesen</translation>
    </message>
</context>
</TS>

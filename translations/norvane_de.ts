<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddInertialSensorDlg</name>
    <message>
        <source>default channels</source>
        <translation>Standardkanäle</translation>
    </message>
    <message>
        <source>single channel</source>
        <translation>einzelner Kanal</translation>
    </message>
    <message>
        <source>all channels</source>
        <translation>alle Kanäle</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>This sensor is already added</source>
        <translation>Dieser Sensor ist bereits hinzugefügt</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Please select a channel to scan</source>
        <translation>Bitte wählen Sie einen Kanal zum Suchen</translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, could not get informations of dongle 1</source>
        <translation>Kanalsuche abgebrochen, die Informationen zu Transceiver 1 konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted</source>
        <translation>Kanalsuche abgebrochen</translation>
    </message>
    <message>
        <source>Scanning channel: </source>
        <translation>Suche auf Kanal: </translation>
    </message>
    <message>
        <source>Scanning USB...</source>
        <translation>USB wird durchsucht...</translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, error detected</source>
        <translation>Kanalsuche abgebrochen, Fehler erkannt</translation>
    </message>
    <message>
        <source>Scanning channel(s) aborted, timeout of scanning</source>
        <translation>Kanalsuche abgebrochen, Zeitüberschreitung bei der Suche</translation>
    </message>
    <message>
        <source>Scanning channel </source>
        <translation>Suche auf Kanal </translation>
    </message>
    <message>
        <source>Scanning USB aborted</source>
        <translation>USB-Suche abgebrochen</translation>
    </message>
    <message>
        <source>Scanning USB done</source>
        <translation>USB-Suche beendet</translation>
    </message>
    <message>
        <source>Scanning channel aborted</source>
        <translation>Kanalsuche abgebrochen</translation>
    </message>
    <message>
        <source>Scanning channel done</source>
        <translation>Kanalsuche beendet</translation>
    </message>
    <message>
        <source>Scanning channels aborted</source>
        <translation>Suche auf den Kanälen abgebrochen</translation>
    </message>
    <message>
        <source>Scanning channels done</source>
        <translation>Suche auf den Kanälen beendet</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Could not add sensor </source>
        <translation>Sensor konnte nicht hinzugefügt werden </translation>
    </message>
    <message>
        <source>Sensor adding failed</source>
        <translation>Hinzufügen der Sensoren fehlgeschlagen</translation>
    </message>
    <message>
        <source>Following sensors are not added:
</source>
        <translation>Folgende Sensoren wurden nicht hinzugefügt:
</translation>
    </message>
    <message>
        <source>

 because the maximum number of bodies is reached.</source>
        <translation>

 weil die höchste Anzahl an Körpern erreicht ist.</translation>
    </message>
</context>
<context>
    <name>AddSenorDialog</name>
    <message>
        <source>Add Sensor(s)</source>
        <translation>Sensor(en) hinzufügen</translation>
    </message>
    <message>
        <source>Adds sensors to your system</source>
        <translation>Fügt Ihrem System Sensoren hinzu</translation>
    </message>
    <message>
        <source>scan &amp;mode</source>
        <translation>Such&amp;modus</translation>
    </message>
    <message>
        <source>Choose the scan mode</source>
        <translation>Wählen Sie den Suchmodus</translation>
    </message>
    <message>
        <source>Select a channel to scan, only available if scan mode is set to single</source>
        <translation>Wählen Sie einen Kanal zum Suchen; nur im Suchmodus „einzelner Kanal“ verfügbar</translation>
    </message>
    <message>
        <source>Accept all identified targets</source>
        <translation>Alle gefundenen Sensoren übernehmen</translation>
    </message>
    <message>
        <source>accept a&amp;ll</source>
        <translation>a&amp;lle übernehmen</translation>
    </message>
    <message>
        <source>scanning channels %p%</source>
        <translation>Kanäle werden durchsucht %p%</translation>
    </message>
    <message>
        <source>Start the scanning progress</source>
        <translation>Suche starten</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Stops the scanning process</source>
        <translation>Hält die Suche an</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Accept all identified and selected body geometries</source>
        <translation>Alle gefundenen und ausgewählten Körpergeometrien übernehmen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation>Änderungen verwerfen und den Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>BodyAssignmentPage</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Cal.</source>
        <translation>Kal.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Vendor-Model-Serial</source>
        <translation>Hersteller-Modell-Seriennummer</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Error: Unable to get number of inertial sensors</source>
        <translation>Fehler: Die Anzahl der Inertialsensoren kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get serial number of inertial sensor</source>
        <translation>Fehler: Die Seriennummer des Inertialsensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get maximum number of bodies</source>
        <translation>Fehler: Die maximale Anzahl der Körper kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set number of bodies to %1</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht auf %1 gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set number of bodies</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Max. number of bodies is reached!</source>
        <translation>Die maximale Anzahl der Körper ist erreicht!</translation>
    </message>
    <message>
        <source>Error: Unable to get info whether body is active</source>
        <translation>Fehler: Es kann nicht gelesen werden, ob der Körper aktiv ist</translation>
    </message>
    <message>
        <source>Error: Unable to get calibration info of body</source>
        <translation>Fehler: Die Kalibrierinformationen des Körpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter info of body</source>
        <translation>Fehler: Die Filterinformationen des Körpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter preset info of body</source>
        <translation>Fehler: Die Filtervoreinstellung des Körpers kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter preset description</source>
        <translation>Fehler: Die Beschreibung der Filtervoreinstellung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>hybrid</source>
        <translation>hybrid</translation>
    </message>
    <message>
        <source>Error: Unable to get inertial info of body</source>
        <translation>Fehler: Die Inertialinformationen des Körpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to assgin sensor to body. No body is selected</source>
        <translation>Fehler: Der Sensor kann keinem Körper zugeordnet werden. Es ist kein Körper ausgewählt</translation>
    </message>
    <message>
        <source>Error: Unable to assgin sensor to body. No sensor is selected</source>
        <translation>Fehler: Der Sensor kann keinem Körper zugeordnet werden. Es ist kein Sensor ausgewählt</translation>
    </message>
    <message>
        <source>Error: Unable to delete assignment of body</source>
        <translation>Fehler: Die Zuordnung des Körpers kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Error: Unable to assgin sensor to body. No sensor info.</source>
        <translation>Fehler: Der Sensor kann keinem Körper zugeordnet werden. Keine Sensorinformationen.</translation>
    </message>
    <message>
        <source>Error: Unable to set assignment of body</source>
        <translation>Fehler: Die Zuordnung des Körpers kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to delete assignment of body. No body is selected</source>
        <translation>Fehler: Die Zuordnung des Körpers kann nicht gelöscht werden. Es ist kein Körper ausgewählt</translation>
    </message>
    <message>
        <source>Error: Unable to get info of assignment of body.</source>
        <translation>Fehler: Die Zuordnung des Körpers kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Error: Unable to set body description %1</source>
        <translation>Fehler: Die Beschreibung von Körper %1 kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>CalibrationProgressDialog</name>
    <message>
        <source>Calibration Progress</source>
        <translation>Kalibrierfortschritt</translation>
    </message>
    <message>
        <source>all</source>
        <translation>gesamt</translation>
    </message>
    <message>
        <source>step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>remaining time: </source>
        <translation>Restzeit: </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CalibrationProgressDlg</name>
    <message>
        <source>cannot start calibration, waiting for sync signal</source>
        <translation>Kalibrierung kann nicht starten, warte auf das Sync-Signal</translation>
    </message>
    <message>
        <source> is a %1 step calibration.</source>
        <translation> ist eine Kalibrierung mit %1 Schritten.</translation>
    </message>
    <message>
        <source>
Currently this calibration cannot be interrupted!</source>
        <translation>
Diese Kalibrierung kann zurzeit nicht unterbrochen werden!</translation>
    </message>
    <message>
        <source>calculating...</source>
        <translation>wird berechnet...</translation>
    </message>
    <message>
        <source>remaining time: %1 seconds</source>
        <translation>Restzeit: %1 Sekunden</translation>
    </message>
    <message>
        <source>Calibration Error</source>
        <translation>Kalibrierfehler</translation>
    </message>
</context>
<context>
    <name>ChannelComboBox</name>
    <message>
        <source>Suggested channel, busy</source>
        <translation>Empfohlener Kanal, belegt</translation>
    </message>
    <message>
        <source>Suggested channel</source>
        <translation>Empfohlener Kanal</translation>
    </message>
    <message>
        <source>Busy channel</source>
        <translation>Belegter Kanal</translation>
    </message>
</context>
<context>
    <name>ControllerChecks</name>
    <message>
        <source>Could not get warmup status</source>
        <translation>Der Aufwärmstatus konnte nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ControllerLink</name>
    <message>
        <source>the controller refused the request (%1)</source>
        <translation>der Controller hat die Anfrage abgelehnt (%1)</translation>
    </message>
    <message>
        <source>the controller refused the request (error %1)</source>
        <translation>der Controller hat die Anfrage abgelehnt (Fehler %1)</translation>
    </message>
    <message>
        <source>the controller refused the request (error %1: %2)</source>
        <translation>der Controller hat die Anfrage abgelehnt (Fehler %1: %2)</translation>
    </message>
    <message>
        <source>expected a number, got %1</source>
        <translation>Zahl erwartet, erhalten: %1</translation>
    </message>
    <message>
        <source>expected %1 numbers, got %2</source>
        <translation>%1 Zahlen erwartet, erhalten: %2</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>Cannot write the trace file %1: %2</source>
        <translation>Die Protokolldatei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>empty request</source>
        <translation>leere Anfrage</translation>
    </message>
    <message>
        <source>request of %1 bytes is too long</source>
        <translation>Anfrage mit %1 Bytes ist zu lang</translation>
    </message>
    <message>
        <source>request holds a line break</source>
        <translation>Anfrage enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>reply abandoned: nobody waited for its completion</source>
        <translation>Antwort verworfen: niemand wartete auf ihren Abschluss</translation>
    </message>
    <message>
        <source>(no reply)</source>
        <translation>(keine Antwort)</translation>
    </message>
    <message>
        <source>reply of %1 characters does not fit the %2-byte buffer</source>
        <translation>Antwort mit %1 Zeichen passt nicht in den Puffer von %2 Bytes</translation>
    </message>
    <message>
        <source>expected &quot;%1 ...&quot;</source>
        <translation>erwartet: „%1 ...“</translation>
    </message>
    <message>
        <source>cannot read %1 values at once</source>
        <translation>%1 Werte können nicht auf einmal gelesen werden</translation>
    </message>
    <message>
        <source>a command starts with &quot;norvane&quot;</source>
        <translation>ein Befehl beginnt mit „norvane“</translation>
    </message>
    <message>
        <source>no command awaits its completion</source>
        <translation>kein Befehl wartet auf seinen Abschluss</translation>
    </message>
    <message>
        <source>%1 is neither yes nor no</source>
        <translation>%1 ist weder yes noch no</translation>
    </message>
    <message>
        <source>expected &quot;norvane ok&quot;</source>
        <translation>erwartet: „norvane ok“</translation>
    </message>
    <message>
        <source>the controller closed the connection</source>
        <translation>der Controller hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>The %1 is not answering since %2 (%3).</source>
        <translation>%1 antwortet seit %2 nicht (%3).</translation>
    </message>
    <message>
        <source>not answering since %1</source>
        <translation>antwortet seit %1 nicht</translation>
    </message>
    <message>
        <source>The %1 is answering again.</source>
        <translation>%1 antwortet wieder.</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>the controller is not answering since %1</source>
        <translation>der Controller antwortet seit %1 nicht</translation>
    </message>
    <message>
        <source>The controller sent a reply that does not fit: %1.</source>
        <translation>Der Controller hat eine Antwort gesendet, die nicht passt: %1.</translation>
    </message>
    <message>
        <source>The controller sent something that is not its language: %1.</source>
        <translation>Der Controller hat etwas gesendet, das nicht seine Sprache ist: %1.</translation>
    </message>
    <message>
        <source>reply holds the byte 0x%1 at %2, which is not printable ASCII</source>
        <translation>die Antwort enthält an Stelle %2 das Byte 0x%1, das kein druckbares ASCII ist</translation>
    </message>
    <message>
        <source>a count of %1 is beyond the plausible 0 to %2</source>
        <translation>eine Anzahl von %1 liegt außerhalb des plausiblen Bereichs 0 bis %2</translation>
    </message>
</context>
<context>
    <name>CountdownDialog</name>
    <message>
        <source>Waiting</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter Settings</source>
        <translation>Filtereinstellungen</translation>
    </message>
    <message>
        <source>6DOF filter settings</source>
        <translation>Einstellungen des 6DOF-Filters</translation>
    </message>
    <message>
        <source>&amp;body</source>
        <translation>&amp;Körper</translation>
    </message>
    <message>
        <source>Select body to adjust the 6DOF filter</source>
        <translation>Körper wählen, dessen 6DOF-Filter eingestellt wird</translation>
    </message>
    <message>
        <source>Switch the 6DOF filter of the body on or off</source>
        <translation>Den 6DOF-Filter des Körpers ein- oder ausschalten</translation>
    </message>
    <message>
        <source>&amp;active</source>
        <translation>&amp;aktiv</translation>
    </message>
    <message>
        <source>&amp;preset</source>
        <translation>&amp;Voreinstellung</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Select a 6DOF filter preset, or &lt;b&gt;custom&lt;/b&gt; to make your own settings.&lt;/p&gt;&lt;p&gt;A preset is a predefined set of strength, prediction and mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Wählen Sie eine Voreinstellung des 6DOF-Filters oder &lt;b&gt;benutzerdefiniert&lt;/b&gt; für eigene Einstellungen.&lt;/p&gt;&lt;p&gt;Eine Voreinstellung legt Stärke, Vorhersage und Modus gemeinsam fest.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;strength</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter strength. Min. = 0.01, max. = 0.99</source>
        <translation>Stärke des 6DOF-Filters einstellen. Min. = 0,01, max. = 0,99</translation>
    </message>
    <message>
        <source>pre&amp;diction [ms]</source>
        <translation>Vorhersa&amp;ge [ms]</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter prediction in milliseconds; negative values smooth at the cost of latency</source>
        <translation>Vorhersage des 6DOF-Filters in Millisekunden einstellen; negative Werte glätten auf Kosten der Latenz</translation>
    </message>
    <message>
        <source>&amp;mode</source>
        <translation>&amp;Modus</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter mode</source>
        <translation>Modus des 6DOF-Filters einstellen</translation>
    </message>
    <message>
        <source>Explain strength, prediction and mode</source>
        <translation>Stärke, Vorhersage und Modus erklären</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation>Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d presets</source>
        <translation>Fehler: Die Anzahl der 6DOF-Filter-Voreinstellungen kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id</source>
        <translation>Fehler: Die ID der 6DOF-Filter-Voreinstellung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset id available</source>
        <translation>Fehler: Die Verfügbarkeit der 6DOF-Filter-Voreinstellung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset description</source>
        <translation>Fehler: Die Beschreibung der 6DOF-Filter-Voreinstellung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d preset for body %1</source>
        <translation>Fehler: Die 6DOF-Filter-Voreinstellung von Körper %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d preset for body %1</source>
        <translation>Fehler: Die 6DOF-Filter-Voreinstellung von Körper %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of filter 6d modes</source>
        <translation>Fehler: Die Anzahl der 6DOF-Filtermodi kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id</source>
        <translation>Fehler: Die ID des 6DOF-Filtermodus kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode id available</source>
        <translation>Fehler: Die Verfügbarkeit des 6DOF-Filtermodus kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode description</source>
        <translation>Fehler: Die Beschreibung des 6DOF-Filtermodus kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d mode for body %1</source>
        <translation>Fehler: Der 6DOF-Filtermodus von Körper %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d mode for body %1</source>
        <translation>Fehler: Der 6DOF-Filtermodus von Körper %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>No wand is calibrated</source>
        <translation>Kein Wand ist kalibriert</translation>
    </message>
    <message>
        <source>No standard body is calibrated</source>
        <translation>Kein Standardkörper ist kalibriert</translation>
    </message>
    <message>
        <source>6DOF filter for standard bodies not available</source>
        <translation>6DOF-Filter für Standardkörper nicht verfügbar</translation>
    </message>
    <message>
        <source>6DOF filter for wands not available</source>
        <translation>6DOF-Filter für Wands nicht verfügbar</translation>
    </message>
    <message>
        <source>6DOF filter not available</source>
        <translation>6DOF-Filter nicht verfügbar</translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get calibration info of body</source>
        <translation>Fehler: Die Kalibrierinformationen des Körpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Wand body %1</source>
        <translation>Wand-Körper %1</translation>
    </message>
    <message>
        <source>standard body %1</source>
        <translation>Standardkörper %1</translation>
    </message>
    <message>
        <source>Error: Unable to get filter info of body</source>
        <translation>Fehler: Die Filterinformationen des Körpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to activate/deactivate filter 6d for body %1</source>
        <translation>Fehler: Der 6DOF-Filter von Körper %1 kann nicht ein- oder ausgeschaltet werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d strength for body %1</source>
        <translation>Fehler: Die 6DOF-Filterstärke von Körper %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d strength for body %1</source>
        <translation>Fehler: Die 6DOF-Filterstärke von Körper %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get filter 6d prediction for body %1</source>
        <translation>Fehler: Die 6DOF-Filtervorhersage von Körper %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set filter 6d prediction for body %1</source>
        <translation>Fehler: Die 6DOF-Filtervorhersage von Körper %1 kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>FilterHelpClass</name>
    <message>
        <source>Help Filter</source>
        <translation>Hilfe zum Filter</translation>
    </message>
    <message>
        <source>Help for filter settings</source>
        <translation>Hilfe zu den Filtereinstellungen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;
&lt;h3&gt;6DOF filter&lt;/h3&gt;
&lt;p&gt;The filter smooths the position and orientation that the controller reports for a body. A &lt;b&gt;preset&lt;/b&gt; sets strength, prediction and mode in one go; choose a custom preset to set them yourself. Every change takes effect at once.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Strength&lt;/b&gt; decides how much the filter smooths. Low values smooth little: the output follows every movement at once but keeps more jitter. High values smooth much: the output is calm but follows quick movements later.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Prediction&lt;/b&gt; extrapolates the output the given time ahead, to make up for the latency of tracking and rendering. Large positive values add jitter and cost precision. Negative values smooth the output further, at the price of more latency.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Mode&lt;/b&gt; is the elementary behaviour of the filter. The controller offers several; the hybrid ones only for a body that carries an inertial sensor.&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;
&lt;h3&gt;6DOF-Filter&lt;/h3&gt;
&lt;p&gt;Der Filter glättet Position und Orientierung, die der Controller für einen Körper ausgibt. Eine &lt;b&gt;Voreinstellung&lt;/b&gt; legt Stärke, Vorhersage und Modus auf einmal fest; wählen Sie eine benutzerdefinierte Voreinstellung, um sie selbst einzustellen. Jede Änderung wirkt sofort.&lt;/p&gt;
&lt;p&gt;Die &lt;b&gt;Stärke&lt;/b&gt; bestimmt, wie stark der Filter glättet. Kleine Werte glätten wenig: die Ausgabe folgt jeder Bewegung sofort, behält aber mehr Zittern. Große Werte glätten stark: die Ausgabe ist ruhig, folgt schnellen Bewegungen aber später.&lt;/p&gt;
&lt;p&gt;Die &lt;b&gt;Vorhersage&lt;/b&gt; extrapoliert die Ausgabe um die angegebene Zeit in die Zukunft, um die Latenz von Tracking und Darstellung auszugleichen. Große positive Werte bringen Zittern und kosten Genauigkeit. Negative Werte glätten die Ausgabe weiter, um den Preis höherer Latenz.&lt;/p&gt;
&lt;p&gt;Der &lt;b&gt;Modus&lt;/b&gt; ist das grundlegende Verhalten des Filters. Der Controller bietet mehrere an; die hybriden nur für einen Körper, der einen Inertialsensor trägt.&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Close the help</source>
        <translation>Hilfe schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>HostOptions</name>
    <message>
        <source>Desktop front end of the Norvane tracking controller. Without --controller it runs a simulated controller in its own process.</source>
        <translation>Desktop-Oberfläche des Norvane Tracking-Controllers. Ohne --controller betreibt sie einen simulierten Controller im eigenen Prozess.</translation>
    </message>
    <message>
        <source>Use the controller at &lt;host:port&gt; over TCP.</source>
        <translation>Den Controller unter &lt;Rechner:Port&gt; über TCP verwenden.</translation>
    </message>
    <message>
        <source>host:port</source>
        <translation>Rechner:Port</translation>
    </message>
    <message>
        <source>Start the embedded simulator on the scenario &lt;file&gt; (JSON).</source>
        <translation>Den eingebetteten Simulator mit dem Szenario &lt;Datei&gt; (JSON) starten.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Run the embedded simulator&apos;s clock &lt;factor&gt; times as fast.</source>
        <translation>Die Uhr des eingebetteten Simulators &lt;Faktor&gt;-mal so schnell laufen lassen.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Load modules from &lt;folder&gt; (default: next to the program and its installed plug-in folder).</source>
        <translation>Module aus &lt;Ordner&gt; laden (Vorgabe: neben dem Programm und in seinem installierten Plug-in-Ordner).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Append every exchange with the controller to &lt;file&gt;.</source>
        <translation>Jeden Austausch mit dem Controller an &lt;Datei&gt; anhängen.</translation>
    </message>
    <message>
        <source>Open every module menu entry in turn, save a picture of each dialog and of the window into &lt;folder&gt;, and quit. Runs offscreen when there is no display.</source>
        <translation>Jeden Menüeintrag der Module nacheinander öffnen, ein Bild jedes Dialogs und des Fensters in &lt;Ordner&gt; speichern und beenden. Läuft ohne Bildschirm, wenn keine Anzeige vorhanden ist.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>--controller wants host:port (for example 127.0.0.1:4000), not &quot;%1&quot;</source>
        <translation>--controller erwartet Rechner:Port (zum Beispiel 127.0.0.1:4000), nicht „%1“</translation>
    </message>
    <message>
        <source>--scenario and --speed are for the embedded simulator; a controller reached with --controller has its own</source>
        <translation>--scenario und --speed gelten für den eingebetteten Simulator; ein über --controller erreichter Controller hat seine eigenen</translation>
    </message>
    <message>
        <source>--speed wants a factor above 0 and up to %1, not &quot;%2&quot;</source>
        <translation>--speed erwartet einen Faktor über 0 und bis %1, nicht „%2“</translation>
    </message>
    <message>
        <source>--%1 wants a value</source>
        <translation>--%1 erwartet einen Wert</translation>
    </message>
</context>
<context>
    <name>HybridBodyCalibrationDlg</name>
    <message>
        <source>Could not get calibration information</source>
        <translation>Die Kalibrierinformationen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation>Dieser Controller unterstützt keine Hybridsensoren – bitte aktualisieren Sie Ihren Controller</translation>
    </message>
    <message>
        <source>Hybrid Tracking is not available</source>
        <translation>Hybrid-Tracking ist nicht verfügbar</translation>
    </message>
    <message>
        <source>No hybrid body is available</source>
        <translation>Kein Hybridkörper ist verfügbar</translation>
    </message>
    <message>
        <source>Tracking is not available</source>
        <translation>Tracking ist nicht verfügbar</translation>
    </message>
    <message>
        <source>No valid room calibration</source>
        <translation>Keine gültige Raumkalibrierung</translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get information of sensor: </source>
        <translation>Die Informationen des Sensors konnten nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Error: Unable to info inertial sensor is present</source>
        <translation>Fehler: Es kann nicht festgestellt werden, ob der Inertialsensor vorhanden ist</translation>
    </message>
    <message>
        <source>Could not get active status of body: </source>
        <translation>Der Aktivstatus des Körpers konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not get calibration status of body: </source>
        <translation>Der Kalibrierstatus des Körpers konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not get description of sensor: </source>
        <translation>Die Beschreibung des Sensors konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>%1 body %2</source>
        <translation>%1 Körper %2</translation>
    </message>
    <message>
        <source>Body is not optical calibrated</source>
        <translation>Der Körper ist nicht optisch kalibriert</translation>
    </message>
    <message>
        <source>Could not set hybrid calibration of sensor: </source>
        <translation>Die Hybridkalibrierung des Sensors konnte nicht gesetzt werden: </translation>
    </message>
    <message>
        <source>Could not set body settings: </source>
        <translation>Die Körpereinstellungen konnten nicht gesetzt werden: </translation>
    </message>
    <message>
        <source>Error: Cannot start hybrid calibration</source>
        <translation>Fehler: Die Hybridkalibrierung kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Error: Cannot start hybrid calibration. Maybe camera is disconnected</source>
        <translation>Fehler: Die Hybridkalibrierung kann nicht gestartet werden. Ist vielleicht eine Kamera nicht verbunden?</translation>
    </message>
    <message>
        <source>Error: Cannot activate hybrid calibration</source>
        <translation>Fehler: Die Hybridkalibrierung kann nicht aktiviert werden</translation>
    </message>
    <message>
        <source>Could not restore body settings: </source>
        <translation>Die Körpereinstellungen konnten nicht wiederhergestellt werden: </translation>
    </message>
    <message>
        <source>Could not reset hybrid calibration status of sensor: </source>
        <translation>Der Hybridkalibrierstatus des Sensors konnte nicht zurückgesetzt werden: </translation>
    </message>
    <message>
        <source>Could not stop tracking</source>
        <translation>Das Tracking konnte nicht angehalten werden</translation>
    </message>
    <message>
        <source>Could not start tracking</source>
        <translation>Das Tracking konnte nicht gestartet werden</translation>
    </message>
</context>
<context>
    <name>HybridBodyCheck</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Could not get informations of sensor %1</source>
        <translation>Die Informationen von Sensor %1 konnten nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>HybridBodyDialog</name>
    <message>
        <source>Hybrid Body Calibration</source>
        <translation>Hybridkörperkalibrierung</translation>
    </message>
    <message>
        <source>Select body (standard bodies with inertial sensor)</source>
        <translation>Körper wählen (Standardkörper mit Inertialsensor)</translation>
    </message>
    <message>
        <source>&amp;name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Serial number of the selected body</source>
        <translation>Seriennummer des ausgewählten Körpers</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Vendor of the selected inertial sensor</source>
        <translation>Hersteller des ausgewählten Inertialsensors</translation>
    </message>
    <message>
        <source>vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model of the selected inertial sensor</source>
        <translation>Modell des ausgewählten Inertialsensors</translation>
    </message>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>During the Hybrid Body Calibration move the target as shown in the picture</source>
        <translation>Bewegen Sie das Target während der Hybridkörperkalibrierung wie im Bild gezeigt</translation>
    </message>
    <message>
        <source>Open help dialog</source>
        <translation>Hilfedialog öffnen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Start the hybrid calibration</source>
        <translation>Die Hybridkalibrierung starten</translation>
    </message>
    <message>
        <source>&amp;Calibrate</source>
        <translation>&amp;Kalibrieren</translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation>Änderungen verwerfen und den Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>HybridBodyHelpDialog</name>
    <message>
        <source>Hybrid Body Calibration Help</source>
        <translation>Hilfe zur Hybridkörperkalibrierung</translation>
    </message>
    <message>
        <source>The hybrid body calibration determines the relative orientation between</source>
        <translation>Die Hybridkörperkalibrierung bestimmt die relative Orientierung zwischen</translation>
    </message>
    <message>
        <source>the body calibration and the inertial sensor attached.</source>
        <translation>der Körperkalibrierung und dem angebrachten Inertialsensor.</translation>
    </message>
    <message>
        <source>How to do a hybrid body calibration?</source>
        <translation>Wie wird ein Hybridkörper kalibriert?</translation>
    </message>
    <message>
        <source>- move the body inside of the tracking volume</source>
        <translation>- den Körper im Trackingvolumen bewegen</translation>
    </message>
    <message>
        <source>- rotate the body during the whole calibration</source>
        <translation>- den Körper während der ganzen Kalibrierung drehen,</translation>
    </message>
    <message>
        <source>     as shown in the picture</source>
        <translation>     wie im Bild gezeigt</translation>
    </message>
    <message>
        <source>Requirements</source>
        <translation>Voraussetzungen</translation>
    </message>
    <message>
        <source>- a valid room calibration</source>
        <translation>- eine gültige Raumkalibrierung</translation>
    </message>
    <message>
        <source>- a body calibration</source>
        <translation>- eine Körperkalibrierung</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>HybridBodyResultCalibrationDlg</name>
    <message>
        <source>Error: Unable to get hybrid body sensor information</source>
        <translation>Fehler: Die Sensorinformationen des Hybridkörpers können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get sensor hybrid calibration result</source>
        <translation>Fehler: Das Ergebnis der Hybridkalibrierung des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>&amp;Details ausblenden</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details einblenden</translation>
    </message>
    <message>
        <source>Error: Unable to set hybrid body calibration</source>
        <translation>Fehler: Die Hybridkörperkalibrierung kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>InProcessLink</name>
    <message>
        <source>simulated controller (default scenario)</source>
        <translation>simulierter Controller (Standardszenario)</translation>
    </message>
    <message>
        <source>simulated controller (%1)</source>
        <translation>simulierter Controller (%1)</translation>
    </message>
    <message>
        <source>no request awaits a reply</source>
        <translation>keine Anfrage wartet auf eine Antwort</translation>
    </message>
    <message>
        <source>no reply within the time-out</source>
        <translation>keine Antwort innerhalb der Wartezeit</translation>
    </message>
    <message>
        <source>reply %1 ms late, beyond the time-out</source>
        <translation>Antwort %1 ms verspätet, nach Ablauf der Wartezeit</translation>
    </message>
    <message>
        <source>the controller closed the connection in the middle of a reply</source>
        <translation>der Controller hat die Verbindung mitten in einer Antwort geschlossen</translation>
    </message>
    <message>
        <source>reply longer than %1 bytes</source>
        <translation>Antwort länger als %1 Bytes</translation>
    </message>
    <message>
        <source>no answer to &quot;%1&quot;</source>
        <translation>keine Antwort auf „%1“</translation>
    </message>
</context>
<context>
    <name>InertialCalibrationDialog</name>
    <message>
        <source>Inertial Sensor Calibration</source>
        <translation>Inertialsensorkalibrierung</translation>
    </message>
    <message>
        <source>Warmup is running %p% ...</source>
        <translation>Aufwärmen läuft %p% ...</translation>
    </message>
    <message>
        <source>Calibrate all sensors</source>
        <translation>Alle Sensoren kalibrieren</translation>
    </message>
    <message>
        <source>calibrate all</source>
        <translation>alle kalibrieren</translation>
    </message>
    <message>
        <source>Accept all identified targets</source>
        <translation>Alle gefundenen Sensoren übernehmen</translation>
    </message>
    <message>
        <source>accept a&amp;ll</source>
        <translation>a&amp;lle übernehmen</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Residual [deg]</source>
        <translation>Restfehler [Grad]</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Kalibr.</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Übern.</translation>
    </message>
    <message>
        <source>Calibrating %p%...</source>
        <translation>Kalibrierung %p%...</translation>
    </message>
    <message>
        <source>Start the calibration</source>
        <translation>Die Kalibrierung starten</translation>
    </message>
    <message>
        <source>&amp;Calibrate</source>
        <translation>&amp;Kalibrieren</translation>
    </message>
    <message>
        <source>Stop the calibration</source>
        <translation>Die Kalibrierung anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Accept all identified and selected body geometries</source>
        <translation>Alle gefundenen und ausgewählten Körpergeometrien übernehmen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Open a help dialog</source>
        <translation>Einen Hilfedialog öffnen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation>Änderungen verwerfen und den Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>InertialCalibrationDlg</name>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation>Dieser Controller unterstützt keine Hybridsensoren – bitte aktualisieren Sie Ihren Controller</translation>
    </message>
    <message>
        <source>Hybrid tracking is not available</source>
        <translation>Hybrid-Tracking ist nicht verfügbar</translation>
    </message>
    <message>
        <source>No hybrid body is available</source>
        <translation>Kein Hybridkörper ist verfügbar</translation>
    </message>
    <message>
        <source>Could not get calibration information</source>
        <translation>Die Kalibrierinformationen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>No valid room calibration</source>
        <translation>Keine gültige Raumkalibrierung</translation>
    </message>
    <message>
        <source>No active body with hybrid calibration found</source>
        <translation>Kein aktiver Körper mit Hybridkalibrierung gefunden</translation>
    </message>
    <message>
        <source>Not all sensors have been warmed up, to get a valid calibration please start the warmup!</source>
        <translation>Nicht alle Sensoren sind aufgewärmt; für eine gültige Kalibrierung starten Sie bitte das Aufwärmen!</translation>
    </message>
    <message>
        <source>Could not get warmup status</source>
        <translation>Der Aufwärmstatus konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error ln751: Unable to get informations of sensor</source>
        <translation>Fehler ln751: Die Informationen des Sensors können nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 body %2</source>
        <translation>%1 Körper %2</translation>
    </message>
    <message>
        <source>Could not get information body %1 is active</source>
        <translation>Es konnte nicht gelesen werden, ob Körper %1 aktiv ist</translation>
    </message>
    <message>
        <source>Could not get sensor of body: </source>
        <translation>Der Sensor des Körpers konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not get description of body: </source>
        <translation>Die Beschreibung des Körpers konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not get hybrid calibration of sensor: </source>
        <translation>Die Hybridkalibrierung des Sensors konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not start calibration of sensor</source>
        <translation>Die Kalibrierung des Sensors konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not get progress of calibration of sensor: </source>
        <translation>Der Kalibrierfortschritt des Sensors konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not set get new residual of sensor: </source>
        <translation>Der neue Restfehler des Sensors konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not get progress of calibration</source>
        <translation>Der Kalibrierfortschritt konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not stop calibration</source>
        <translation>Die Kalibrierung konnte nicht angehalten werden</translation>
    </message>
    <message>
        <source>Could not accept new calirabtion of sensor: </source>
        <translation>Die neue Kalibrierung des Sensors konnte nicht übernommen werden: </translation>
    </message>
    <message>
        <source>Error: Unable to get warmup status</source>
        <translation>Fehler: Der Aufwärmstatus kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not set calibration of sensor: </source>
        <translation>Die Kalibrierung des Sensors konnte nicht gesetzt werden: </translation>
    </message>
</context>
<context>
    <name>InertialCalibrationHelpDlgClass</name>
    <message>
        <source>Inertial Sensor Calibration Help</source>
        <translation>Hilfe zur Inertialsensorkalibrierung</translation>
    </message>
    <message>
        <source>The inertial sensor calibration improves the sensor performance.</source>
        <translation>Die Inertialsensorkalibrierung verbessert die Leistung des Sensors.</translation>
    </message>
    <message>
        <source>It determines internal parameters of the sensor to avoid drifts.</source>
        <translation>Sie bestimmt innere Parameter des Sensors, um Drift zu vermeiden.</translation>
    </message>
    <message>
        <source>How to do a inertial sensor calibration?</source>
        <translation>Wie wird ein Inertialsensor kalibriert?</translation>
    </message>
    <message>
        <source>- put the bodies in the tracking volume</source>
        <translation>- die Körper ins Trackingvolumen legen</translation>
    </message>
    <message>
        <source>- reduce the movement to a minimum</source>
        <translation>- die Bewegung auf ein Minimum beschränken</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>InertialCalibrationResultDlgClass</name>
    <message>
        <source>Calibration successful</source>
        <translation>Kalibrierung erfolgreich</translation>
    </message>
    <message>
        <source>Inertial sensor calibration result</source>
        <translation>Ergebnis der Inertialsensorkalibrierung</translation>
    </message>
    <message>
        <source>The following sensors have been successfully calibrated:</source>
        <translation>Die folgenden Sensoren wurden erfolgreich kalibriert:</translation>
    </message>
    <message>
        <source>Calibrated inertial sensors with attached bodies</source>
        <translation>Kalibrierte Inertialsensoren mit zugeordneten Körpern</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation>Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>InertialSettingsDlg</name>
    <message>
        <source>Inertial Sensor Settings</source>
        <translation>Inertialsensor-Einstellungen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Inertial Sensor Settings&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Keys for the navigation:&lt;/p&gt;&lt;table&gt;&lt;tr&gt;&lt;td&gt;- next/previous page:&lt;/td&gt;&lt;td&gt;F3&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;or:&lt;/td&gt;&lt;td/&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Settings:&lt;/td&gt;&lt;td&gt;1&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Hybrid Bodies:&lt;/td&gt;&lt;td&gt;2&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- page Tracking Frequency&lt;/td&gt;&lt;td&gt;3&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Inertialsensor-Einstellungen&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Tasten zur Navigation:&lt;/p&gt;&lt;table&gt;&lt;tr&gt;&lt;td&gt;- nächste/vorige Seite:&lt;/td&gt;&lt;td&gt;F3&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;oder:&lt;/td&gt;&lt;td/&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- Seite Einstellungen:&lt;/td&gt;&lt;td&gt;1&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- Seite Hybridkörper:&lt;/td&gt;&lt;td&gt;2&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;- Seite Trackingfrequenz&lt;/td&gt;&lt;td&gt;3&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Add sensors to your system</source>
        <translation>Ihrem System Sensoren hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add sensor</source>
        <translation>Sensor &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Sets the wakeup mode for all connected sensors</source>
        <translation>Setzt den Aufwachmodus aller verbundenen Sensoren</translation>
    </message>
    <message>
        <source>&amp;wakeup Mode</source>
        <translation>Auf&amp;wachmodus</translation>
    </message>
    <message>
        <source>Sets the frequency in Hz of the inertial sensors</source>
        <translation>Setzt die Frequenz der Inertialsensoren in Hz</translation>
    </message>
    <message>
        <source>&amp;frequency</source>
        <translation>&amp;Frequenz</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>(maximum; can be lower for specific sensor)</source>
        <translation>(Höchstwert; für einzelne Sensoren kann sie niedriger sein)</translation>
    </message>
    <message>
        <source>changing Channel...</source>
        <translation>Kanal wird gewechselt...</translation>
    </message>
    <message>
        <source>Scans and checks all channels</source>
        <translation>Durchsucht und prüft alle Kanäle</translation>
    </message>
    <message>
        <source>&amp;Scan available channels</source>
        <translation>Verfügbare Kanäle &amp;durchsuchen</translation>
    </message>
    <message>
        <source>Starts or stops the warmup process</source>
        <translation>Startet oder beendet das Aufwärmen</translation>
    </message>
    <message>
        <source>&amp;Warmup start</source>
        <translation>Aufwärmen &amp;starten</translation>
    </message>
    <message>
        <source>Hybrid Bodies</source>
        <translation>Hybridkörper</translation>
    </message>
    <message>
        <source>Set number of standard bodies</source>
        <translation>Anzahl der Standardkörper setzen</translation>
    </message>
    <message>
        <source>&amp;number of bodies</source>
        <translation>&amp;Anzahl der Körper</translation>
    </message>
    <message>
        <source>Available standard bodies</source>
        <translation>Verfügbare Standardkörper</translation>
    </message>
    <message>
        <source>selected bodies</source>
        <translation>ausgewählte Körper</translation>
    </message>
    <message>
        <source>Available sensors</source>
        <translation>Verfügbare Sensoren</translation>
    </message>
    <message>
        <source>available inertial sensors</source>
        <translation>verfügbare Inertialsensoren</translation>
    </message>
    <message>
        <source>Assign sensor to body</source>
        <translation>Sensor dem Körper zuordnen</translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Select    </source>
        <translation>&lt;&lt; &amp;Zuordnen    </translation>
    </message>
    <message>
        <source>Delete assignment sensor of body</source>
        <translation>Zuordnung des Sensors zum Körper löschen</translation>
    </message>
    <message>
        <source>&gt;&gt; &amp;Deselect</source>
        <translation>&gt;&gt; &amp;Lösen</translation>
    </message>
    <message>
        <source>Adjust 6DOF filter for bodies</source>
        <translation>6DOF-Filter der Körper einstellen</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>Calibrate selected body</source>
        <translation>Ausgewählten Körper kalibrieren</translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation>&amp;Kalibrierung</translation>
    </message>
    <message>
        <source>Open inertial sensor calibration</source>
        <translation>Inertialsensorkalibrierung öffnen</translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor Calibration</source>
        <translation>In&amp;ertialsensorkalibrierung</translation>
    </message>
    <message>
        <source>Calibrate hybrid body</source>
        <translation>Hybridkörper kalibrieren</translation>
    </message>
    <message>
        <source>&amp;Hybrid Body Calibration</source>
        <translation>&amp;Hybridkörperkalibrierung</translation>
    </message>
    <message>
        <source>Tracking Frequency</source>
        <translation>Trackingfrequenz</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Settings for tracking frequency:&lt;/span&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;as cameras: the output frequency is synchronous to the camera frequency (see the sync card settings)&lt;/li&gt;&lt;li&gt;as inertial sensor: the output frequency is synchronous to the frequency of the selected inertial sensor&lt;/li&gt;&lt;li&gt;custom frequency: the output frequency is set here&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Caution:&lt;/span&gt; avoid a tracking frequency higher than the measurement frequency of the available devices.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Einstellungen der Trackingfrequenz:&lt;/span&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;wie Kameras: die Ausgabefrequenz ist synchron zur Kamerafrequenz (siehe Einstellungen der Sync-Karte)&lt;/li&gt;&lt;li&gt;wie Inertialsensor: die Ausgabefrequenz ist synchron zur Frequenz des ausgewählten Inertialsensors&lt;/li&gt;&lt;li&gt;benutzerdefinierte Frequenz: die Ausgabefrequenz wird hier eingestellt&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Achtung:&lt;/span&gt; vermeiden Sie eine Trackingfrequenz über der Messfrequenz der vorhandenen Geräte.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;as VEK cameras (see Synccard Settings)</source>
        <translation>wie VEK-K&amp;ameras (siehe Einstellungen der Sync-Karte)</translation>
    </message>
    <message>
        <source>as &amp;inertial sensor</source>
        <translation>wie &amp;Inertialsensor</translation>
    </message>
    <message>
        <source>custom &amp;frequency (independent of cameras or sensors)</source>
        <translation>benutzerdefinierte &amp;Frequenz (unabhängig von Kameras und Sensoren)</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Close dialog</source>
        <translation>Dialog schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>not present</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>Warmup start</source>
        <translation>Aufwärmen starten</translation>
    </message>
    <message>
        <source>This controller does not support hybrid sensors - please update your controller</source>
        <translation>Dieser Controller unterstützt keine Hybridsensoren – bitte aktualisieren Sie Ihren Controller</translation>
    </message>
    <message>
        <source>Hybrid tracking is not available!</source>
        <translation>Hybrid-Tracking ist nicht verfügbar!</translation>
    </message>
    <message>
        <source>Warmup stop</source>
        <translation>Aufwärmen beenden</translation>
    </message>
    <message>
        <source>Error: Unable to set body description %1</source>
        <translation>Fehler: Die Beschreibung von Körper %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Wakeup Mode</source>
        <translation>Aufwachmodus</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Cal.</source>
        <translation>Kal.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Please scan available channels</source>
        <translation>Bitte durchsuchen Sie die verfügbaren Kanäle</translation>
    </message>
    <message>
        <source>Error: Unable to get number of dongles</source>
        <translation>Fehler: Die Anzahl der Transceiver kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get informations of dongle %1</source>
        <translation>Fehler: Die Informationen von Transceiver %1 können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get firmware version of dongle %1</source>
        <translation>Fehler: Die Firmwareversion von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get vendor description of dongle %1</source>
        <translation>Fehler: Der Hersteller von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get model description of dongle %1</source>
        <translation>Fehler: Das Modell von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get present status of dongle %1</source>
        <translation>Fehler: Es kann nicht gelesen werden, ob Transceiver %1 vorhanden ist</translation>
    </message>
    <message>
        <source>Error: Unable to get number of available channels of dongle %1</source>
        <translation>Fehler: Die Anzahl der verfügbaren Kanäle von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of dongle %1</source>
        <translation>Fehler: Der Funkkanal von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get suggested radio channel of dongle %1</source>
        <translation>Fehler: Der empfohlene Funkkanal von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get available channel of dongle %1</source>
        <translation>Fehler: Ein verfügbarer Kanal von Transceiver %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>cable connected:</source>
        <translation>per Kabel verbunden:</translation>
    </message>
    <message>
        <source>Could not get number of sensors</source>
        <translation>Die Anzahl der Sensoren konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get informations of sensor %1</source>
        <translation>Die Informationen von Sensor %1 konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get vendor model of inertial sensor</source>
        <translation>Fehler: Hersteller und Modell des Inertialsensors können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get body of sensor %1</source>
        <translation>Der Körper von Sensor %1 konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get associated transciever of sensor %1, transciever not connected?</source>
        <translation>Der zugehörige Transceiver von Sensor %1 konnte nicht gelesen werden; ist der Transceiver nicht verbunden?</translation>
    </message>
    <message>
        <source>Error: Unable to get vendor description of sensor %1</source>
        <translation>Fehler: Der Hersteller von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get model description of sensor %1</source>
        <translation>Fehler: Das Modell von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get body description of body %1</source>
        <translation>Die Beschreibung von Körper %1 konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get informations of sensor %1</source>
        <translation>Fehler: Die Informationen von Sensor %1 können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get firmware version of sensor</source>
        <translation>Fehler: Die Firmwareversion des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get sensor channel</source>
        <translation>Fehler: Der Kanal des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Error: Unable to get battery status of sensor</source>
        <translation>Fehler: Der Batteriestand des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get temperature status of sensor %1</source>
        <translation>Fehler: Die Temperatur von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get calibration status of sensor</source>
        <translation>Fehler: Der Kalibrierstatus des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of bodies</source>
        <translation>Fehler: Die Anzahl der Körper kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get present status of sensor %1</source>
        <translation>Fehler: Es kann nicht gelesen werden, ob Sensor %1 vorhanden ist</translation>
    </message>
    <message>
        <source>Error: Unable to get number of wakeup modes of inertial system</source>
        <translation>Fehler: Die Anzahl der Aufwachmodi des Inertialsystems kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup modes of inertial system</source>
        <translation>Fehler: Die Aufwachmodi des Inertialsystems können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup description of inertial system</source>
        <translation>Fehler: Die Beschreibung des Aufwachmodus des Inertialsystems kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get available wakeup mode of sensor %1</source>
        <translation>Fehler: Die verfügbaren Aufwachmodi von Sensor %1 können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get wakeup mode of sensor %1</source>
        <translation>Fehler: Der Aufwachmodus von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get available wakeup mode of sensor </source>
        <translation>Fehler: Die verfügbaren Aufwachmodi können nicht gelesen werden von Sensor </translation>
    </message>
    <message>
        <source>Error: Unable to get informations of sensor</source>
        <translation>Fehler: Die Informationen des Sensors können nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(gemischt)</translation>
    </message>
    <message>
        <source>Error: Unable to reach sensor</source>
        <translation>Fehler: Der Sensor ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Error: Unable to reach sensor </source>
        <translation>Fehler: Nicht erreichbar ist Sensor </translation>
    </message>
    <message>
        <source>Error: Unable to get wakeupmode of sensor %1</source>
        <translation>Fehler: Der Aufwachmodus von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set wakeup mode of sensor</source>
        <translation>Fehler: Der Aufwachmodus des Sensors kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set sleep timeout of sensor</source>
        <translation>Fehler: Die Ruhezeit des Sensors kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get minimum maximum range of the inertial frequency</source>
        <translation>Fehler: Der Bereich der Inertialfrequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get the inertial frequency</source>
        <translation>Fehler: Die Inertialfrequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get hybrid frequency</source>
        <translation>Fehler: Die Hybridfrequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set frequency of inertial system</source>
        <translation>Fehler: Die Frequenz des Inertialsystems kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get frequency of sensor %1</source>
        <translation>Fehler: Die Frequenz von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of sensor</source>
        <translation>Fehler: Der Funkkanal des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of dongle %1</source>
        <translation>Fehler: Der Funkkanal von Transceiver %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of sensor %1</source>
        <translation>Fehler: Der Funkkanal von Sensor %1 kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get radio channel of sensor %1</source>
        <translation>Fehler: Der Funkkanal von Sensor %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>There are several sensors not available:
</source>
        <translation>Mehrere Sensoren sind nicht erreichbar:
</translation>
    </message>
    <message>
        <source>Sensor: </source>
        <translation>Sensor: </translation>
    </message>
    <message>
        <source>of body: </source>
        <translation>von Körper: </translation>
    </message>
    <message>
        <source>Press Retry if you want to try again to change the channel of the sensors.</source>
        <translation>Wählen Sie Wiederholen, um den Kanal der Sensoren erneut zu wechseln.</translation>
    </message>
    <message>
        <source>Changing Sensor Channel failed</source>
        <translation>Wechsel des Sensorkanals fehlgeschlagen</translation>
    </message>
    <message>
        <source>Scanning available channels %p%</source>
        <translation>Verfügbare Kanäle werden durchsucht %p%</translation>
    </message>
    <message>
        <source>Error: Unable to execute scan transceiver channel</source>
        <translation>Fehler: Die Kanalsuche des Transceivers kann nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of available dongle channels</source>
        <translation>Fehler: Die Anzahl der verfügbaren Transceiver-Kanäle kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get activity of dongle: </source>
        <translation>Die Kanalbelegung des Transceivers konnte nicht gelesen werden: </translation>
    </message>
    <message>
        <source>Could not start warmup of sensors</source>
        <translation>Das Aufwärmen der Sensoren konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not stop warmup of sensors</source>
        <translation>Das Aufwärmen der Sensoren konnte nicht beendet werden</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Delete sensor %1?</source>
        <translation>Sensor %1 löschen?</translation>
    </message>
    <message>
        <source>Could not set body of sensor: </source>
        <translation>Der Körper des Sensors konnte nicht gesetzt werden: </translation>
    </message>
    <message>
        <source>Could not set standard number of bodies </source>
        <translation>Die Anzahl der Standardkörper konnte nicht gesetzt werden </translation>
    </message>
    <message>
        <source>Could not delete sensor </source>
        <translation>Der Sensor konnte nicht gelöscht werden </translation>
    </message>
    <message>
        <source>Error: Unable to get assignment of sensor</source>
        <translation>Fehler: Die Zuordnung des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to delete assignment of sensor</source>
        <translation>Fehler: Die Zuordnung des Sensors kann nicht gelöscht werden</translation>
    </message>
</context>
<context>
    <name>InertialStatusBar</name>
    <message>
        <source>VEK InertialSensor Status</source>
        <translation>Status der VEK-Inertialsensoren</translation>
    </message>
    <message>
        <source>Displays whether VEK InertialSensor is available and the warming up status</source>
        <translation>Zeigt, ob VEK-Inertialsensoren verfügbar sind, und den Stand des Aufwärmens</translation>
    </message>
    <message>
        <source>Warmup start</source>
        <translation>Aufwärmen starten</translation>
    </message>
    <message>
        <source>Could not get number of sensors</source>
        <translation>Die Anzahl der Sensoren konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not get warmup status</source>
        <translation>Der Aufwärmstatus konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Warmup is running %p%...</source>
        <translation>Aufwärmen läuft %p%...</translation>
    </message>
    <message>
        <source>Error: Unable to get warmup status</source>
        <translation>Fehler: Der Aufwärmstatus kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not start warmup of sensors</source>
        <translation>Das Aufwärmen der Sensoren konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not stop warmup of sensors</source>
        <translation>Das Aufwärmen der Sensoren konnte nicht beendet werden</translation>
    </message>
    <message>
        <source>Warmup stop</source>
        <translation>Aufwärmen beenden</translation>
    </message>
</context>
<context>
    <name>InertialTrackingModule</name>
    <message>
        <source>GUI Inertial Tracking</source>
        <translation>GUI Inertial-Tracking</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor</source>
        <translation>In&amp;ertialsensor</translation>
    </message>
    <message>
        <source>Change the Inertial Sensor settings</source>
        <translation>Die Einstellungen der Inertialsensoren ändern</translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation>&amp;Kalibrierung</translation>
    </message>
    <message>
        <source>&amp;Hybrid Body</source>
        <translation>&amp;Hybridkörper</translation>
    </message>
    <message>
        <source>Calibrate a Hybrid Body</source>
        <translation>Einen Hybridkörper kalibrieren</translation>
    </message>
    <message>
        <source>In&amp;ertial Sensor Calibration</source>
        <translation>In&amp;ertialsensorkalibrierung</translation>
    </message>
    <message>
        <source>Calibrate a inertial sensor</source>
        <translation>Einen Inertialsensor kalibrieren</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>  (%1 times)</source>
        <translation>  (%1-mal)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Norvane Tracking Controller</source>
        <translation>Norvane Tracking-Controller</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Controller</translation>
    </message>
    <message>
        <source>Link:</source>
        <translation>Verbindung:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Verbindungsstatus:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Softwareversion:</translation>
    </message>
    <message>
        <source>System type:</source>
        <translation>Systemtyp:</translation>
    </message>
    <message>
        <source>Firmware version:</source>
        <translation>Firmwareversion:</translation>
    </message>
    <message>
        <source>Round trips:</source>
        <translation>Anfragen:</translation>
    </message>
    <message>
        <source>Modules</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Controller traffic</source>
        <translation>Controller-Verkehr</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Calibration</source>
        <translation>&amp;Kalibrierung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the window and the modules</source>
        <translation>Das Fenster und die Module schließen</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;About Norvane Host</source>
        <translation>&amp;Über Norvane Host</translation>
    </message>
    <message>
        <source>Show the versions of the host, the controller and the modules</source>
        <translation>Die Versionen von Host, Controller und Modulen zeigen</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Connected to the %1: software %2, system type %3, firmware %4.%5.%6.</source>
        <translation>Verbunden – %1: Software %2, Systemtyp %3, Firmware %4.%5.%6.</translation>
    </message>
    <message>
        <source>Features that need a newer controller stay off until its version is known.</source>
        <translation>Funktionen, die einen neueren Controller brauchen, bleiben aus, bis seine Version bekannt ist.</translation>
    </message>
    <message>
        <source>No module found in %1.</source>
        <translation>Kein Modul in %1 gefunden.</translation>
    </message>
    <message>
        <source>Loaded %1 %2 from %3.</source>
        <translation>%1 %2 aus %3 geladen.</translation>
    </message>
    <message>
        <source>%1 handed out an empty element; skipped.</source>
        <translation>%1 hat ein leeres Element übergeben; übersprungen.</translation>
    </message>
    <message>
        <source>%1 handed out a menu entry without action or menu; skipped.</source>
        <translation>%1 hat einen Menüeintrag ohne Aktion oder Menü übergeben; übersprungen.</translation>
    </message>
    <message>
        <source>%1 handed out a status element without widget; skipped.</source>
        <translation>%1 hat ein Statuselement ohne Widget übergeben; übersprungen.</translation>
    </message>
    <message>
        <source>%1 handed out an element of unknown type %2; skipped.</source>
        <translation>%1 hat ein Element des unbekannten Typs %2 übergeben; übersprungen.</translation>
    </message>
    <message>
        <source>Still registered at shutdown: %1</source>
        <translation>Beim Beenden noch angemeldet: %1</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>&lt;p&gt;No modules loaded.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Keine Module geladen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Norvane Host</source>
        <translation>Über Norvane Host</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Norvane Host %1.%2.%3&lt;/h3&gt;&lt;p&gt;The desktop front end of the Norvane tracking controller.&lt;/p&gt;&lt;p&gt;Controller: %4, software %5&lt;/p&gt;&lt;p&gt;Modules:&lt;/p&gt;%6</source>
        <translation>&lt;h3&gt;Norvane Host %1.%2.%3&lt;/h3&gt;&lt;p&gt;Die Desktop-Oberfläche des Norvane Tracking-Controllers.&lt;/p&gt;&lt;p&gt;Controller: %4, Software %5&lt;/p&gt;&lt;p&gt;Module:&lt;/p&gt;%6</translation>
    </message>
</context>
<context>
    <name>MessageHub</name>
    <message>
        <source>Ignored the registration of a message receiver without name or object.</source>
        <translation>Die Anmeldung eines Nachrichtenempfängers ohne Namen oder Objekt wurde ignoriert.</translation>
    </message>
    <message>
        <source>The message receiver &quot;%1&quot; was registered again; the newer one gets its messages.</source>
        <translation>Der Nachrichtenempfänger „%1“ wurde erneut angemeldet; der neuere erhält seine Nachrichten.</translation>
    </message>
    <message>
        <source>No receiver &quot;%1&quot; for the message from %2: %3</source>
        <translation>Kein Empfänger „%1“ für die Nachricht von %2: %3</translation>
    </message>
    <message>
        <source>(unnamed)</source>
        <translation>(ohne Namen)</translation>
    </message>
</context>
<context>
    <name>ModuleLoader</name>
    <message>
        <source>The plug-in folder %1 does not exist.</source>
        <translation>Der Plug-in-Ordner %1 existiert nicht.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>%1 is not a module of this host: it offers &quot;%2&quot;, not &quot;%3&quot;</source>
        <translation>%1 ist kein Modul dieses Hosts: es bietet „%2“, nicht „%3“</translation>
    </message>
    <message>
        <source>Loaded %1 %2 from %3</source>
        <translation>%1 %2 aus %3 geladen</translation>
    </message>
</context>
<context>
    <name>SensorChannelCombo</name>
    <message>
        <source>Error: Unable to get radio channel of sensor</source>
        <translation>Fehler: Der Funkkanal des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set radio channel of sensor</source>
        <translation>Fehler: Der Funkkanal des Sensors kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>TcpLink</name>
    <message>
        <source>controller at %1</source>
        <translation>Controller unter %1</translation>
    </message>
    <message>
        <source>no answer within the time-out</source>
        <translation>keine Antwort innerhalb der Wartezeit</translation>
    </message>
    <message>
        <source>cannot connect to the controller at %1: %2</source>
        <translation>keine Verbindung zum Controller unter %1 möglich: %2</translation>
    </message>
    <message>
        <source>cannot send to the controller: %1</source>
        <translation>an den Controller kann nicht gesendet werden: %1</translation>
    </message>
    <message>
        <source>cannot send to the controller within the time-out</source>
        <translation>an den Controller kann innerhalb der Wartezeit nicht gesendet werden</translation>
    </message>
    <message>
        <source>reply longer than %1 bytes without a line end</source>
        <translation>Antwort länger als %1 Bytes ohne Zeilenende</translation>
    </message>
    <message>
        <source>the controller closed the connection</source>
        <translation>der Controller hat die Verbindung geschlossen</translation>
    </message>
    <message>
        <source>the controller closed the connection in the middle of a reply</source>
        <translation>der Controller hat die Verbindung mitten in einer Antwort geschlossen</translation>
    </message>
    <message>
        <source>no reply within %1 ms</source>
        <translation>keine Antwort innerhalb von %1 ms</translation>
    </message>
    <message>
        <source>reply incomplete after %1 ms</source>
        <translation>Antwort nach %1 ms unvollständig</translation>
    </message>
    <message>
        <source>cannot read from the controller: %1</source>
        <translation>vom Controller kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>no answer within %1 ms</source>
        <translation>keine Antwort innerhalb von %1 ms</translation>
    </message>
    <message>
        <source>no reply of the controller&apos;s language</source>
        <translation>keine Antwort in der Sprache des Controllers</translation>
    </message>
    <message>
        <source>reply longer than %1 bytes</source>
        <translation>Antwort länger als %1 Bytes</translation>
    </message>
</context>
<context>
    <name>TourRunner</name>
    <message>
        <source>Cannot create the folder %1.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>No module offers a menu entry.</source>
        <translation>Kein Modul bietet einen Menüeintrag.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; opened no window.</source>
        <translation>„%1“ hat kein Fenster geöffnet.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 hat kein %2.</translation>
    </message>
    <message>
        <source>%1: %2 is disabled.</source>
        <translation>%1: %2 ist gesperrt.</translation>
    </message>
    <message>
        <source>%1: %2 cannot be pressed.</source>
        <translation>%1: %2 lässt sich nicht drücken.</translation>
    </message>
    <message>
        <source>%1 did not finish within %2 s.</source>
        <translation>%1 ist nicht innerhalb von %2 s fertig geworden.</translation>
    </message>
    <message>
        <source>%1: %2 opened no window.</source>
        <translation>%1: %2 hat kein Fenster geöffnet.</translation>
    </message>
</context>
<context>
    <name>TrackingPulsePage</name>
    <message>
        <source>Error: Unable to info of tracking frequency type</source>
        <translation>Fehler: Die Art der Tracking-Frequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get inertial frequency</source>
        <translation>Fehler: Die Inertialfrequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get number of inertial sensors</source>
        <translation>Fehler: Die Anzahl der Inertialsensoren kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get serial number of inertial sensor</source>
        <translation>Fehler: Die Seriennummer des Inertialsensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get vendor model of inertial sensor</source>
        <translation>Fehler: Hersteller und Modell des Inertialsensors können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to get body of sensor sensor</source>
        <translation>Fehler: Der Körper des Sensors kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to info of frequency type</source>
        <translation>Fehler: Die Art der Frequenz kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Error: Unable to set inertial tracking settings</source>
        <translation>Fehler: Die Einstellungen des Inertialtrackings können nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set inertial tracking synchronous to cameras</source>
        <translation>Fehler: Das Inertialtracking kann nicht synchron zu den Kameras gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set inertial tracking to sensor</source>
        <translation>Fehler: Das Inertialtracking kann nicht auf den Sensor gesetzt werden</translation>
    </message>
    <message>
        <source>Error: Unable to set inertial tracking frequency</source>
        <translation>Fehler: Die Frequenz des Inertialtrackings kann nicht gesetzt werden</translation>
    </message>
</context>
<context>
    <name>VersionProbe</name>
    <message>
        <source>no reason given</source>
        <translation>kein Grund angegeben</translation>
    </message>
    <message>
        <source>Could not read the controller&apos;s %1: %2</source>
        <translation>Vom Controller konnte „%1“ nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The controller&apos;s %1 &quot;%2&quot; is not of the form 1.21.0</source>
        <translation>%1 des Controllers: „%2“ hat nicht die Form 1.21.0</translation>
    </message>
    <message>
        <source>software version</source>
        <translation>Softwareversion</translation>
    </message>
    <message>
        <source>system type</source>
        <translation>Systemtyp</translation>
    </message>
    <message>
        <source>firmware version</source>
        <translation>Firmwareversion</translation>
    </message>
</context>
<context>
    <name>hybridBodyResultCalibrationDialog</name>
    <message>
        <source>Hybrid Body Calibration Result</source>
        <translation>Ergebnis der Hybridkörperkalibrierung</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>residual [deg]</source>
        <translation>Restfehler [Grad]</translation>
    </message>
    <message>
        <source>sensor delay [ms]</source>
        <translation>Sensorverzögerung [ms]</translation>
    </message>
    <message>
        <source>new hybrid rotation matrix:</source>
        <translation>neue Hybrid-Rotationsmatrix:</translation>
    </message>
    <message>
        <source>Shows the new hybrid rotation matrix</source>
        <translation>Zeigt die neue Hybrid-Rotationsmatrix</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>&amp;Details einblenden</translation>
    </message>
    <message>
        <source>Accept changes and close the dialog</source>
        <translation>Änderungen übernehmen und den Dialog schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Discard changes and close the dialog</source>
        <translation>Änderungen verwerfen und den Dialog schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>

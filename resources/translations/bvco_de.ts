<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>Farboptionen</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>Erweiterte Farboptionen</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>Erweiterte Optionen ausblenden</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>Profile verwalten…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>Download-Manager</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>Schnellauswahl Farbe</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>Schnellauswahl Farbe:</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>Helligkeit</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>Helligkeit:</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>Farbe als Graustufen</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>Farbauszüge</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>Tonersparmodus</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>Kantenstärke</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>Kantenstärke:</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>Automatisches Überfüllen</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>Schwarz überdrucken</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>Schwarz überdrucken:</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>Bild</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>Text</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>Grafik</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>RGB-Quelle:</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>RGB-Wiedergabe:</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>RGB-Graubehandlung:</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>Zielprofil:</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>Raster:</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>Kantenverstärkung:</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>Simulationsprofil:</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>Papierfarbe nachbilden:</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>CMYK-Graubehandlung:</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>Bild - RGB-Quelle</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>Bild - RGB-Wiedergabe</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>Bild - RGB-Graubehandlung</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>Bild - Zielprofil</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>Bild - Raster</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>Bild - Kantenverstärkung</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>Text - RGB-Quelle</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>Text - RGB-Wiedergabe</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>Text - RGB-Graubehandlung</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>Text - Zielprofil</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>Text - Raster</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>Text - Kantenverstärkung</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>Grafik - RGB-Quelle</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>Grafik - RGB-Wiedergabe</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>Grafik - RGB-Graubehandlung</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>Grafik - Zielprofil</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>Grafik - Raster</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>Grafik - Kantenverstärkung</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>Simulationsprofil</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>Papierfarbe nachbilden</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>CMYK-Graubehandlung</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>Festplatte</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>Karte</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>Profilverwaltung</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>Nicht verfügbar, solange „%1“ eingeschaltet ist. Schalten Sie die Option aus, um diese Einstellung zu verwenden.</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>Nur verfügbar, wenn „%1“ auf „%2“ steht. Wählen Sie das dort aus, um diese Einstellung zu verwenden.</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>Nicht verfügbar, solange „%1“ auf „%2“ steht. Wählen Sie dort etwas anderes, um diese Einstellung zu verwenden.</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>Profile können nur von der Systemverwaltung bearbeitet werden.</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>„%1“ ist eingeschaltet: Eine Einstellung wird nicht verwendet.</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>„%1“ ist eingeschaltet: %2 Einstellungen werden nicht verwendet.</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>Ausschalten</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>„%1“ ausschalten</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Allgemeine Einstellungen</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>RGB-Quelle</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>Ziel</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>Profilkla&amp;sse:</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>&amp;Profile:</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>&amp;Hinzufügen</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>&amp;Bearbeiten</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>Eintrag</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>&amp;Dateiname:</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>D&amp;urchsuchen…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>Profil&amp;name:</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>Speicher&amp;ort:</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>&amp;Eintrag übernehmen</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>Eintrag &amp;verwerfen</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>O&amp;K</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>Abbre&amp;chen</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>Im Drucker</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>Dateiname</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>Profilname</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>Speicherort</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>Im Menü</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>Im Drucker vorhanden</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>Nicht im Drucker vorhanden</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>In den Menüs angezeigt</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>Nicht in den Menüs angezeigt</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>Ein im Drucker vorhandenes Profil kann nicht gelöscht werden</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>Profil auswählen</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NAME.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>Der Name, den die Menüs anzeigen</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>Dateiname: bis zu 27 Zeichen, ein Punkt und bis zu 3 weitere; keine Leerzeichen und keines von " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profilname: bis zu 30 Buchstaben, Ziffern, Sonder- und Leerzeichen, ohne Umlaute, ß und Akzente.</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>Noch keine Profile. Die eines Netzwerkdruckers erscheinen, sobald er abgefragt wurde. Mit „Hinzufügen“ geben Sie eines von Hand ein.</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>Eintrag, noch nicht übernommen</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>Eintrag, verworfen</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>Eintrag: Diese Datei ist schon in der Liste</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>Eintrag: Die Liste ist voll</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>Wählen Sie zuerst ein Profil aus.</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>Übernehmen oder verwerfen Sie zuerst den Eintrag.</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>Klicken Sie auf „Hinzufügen“, oder wählen Sie ein Profil aus und klicken Sie auf „Bearbeiten“.</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>Geben Sie zuerst einen Dateinamen ein. Er darf nicht mit einem Punkt beginnen.</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>Den Namen dieser Datei gibt der Drucker vor. Nur der Profilname kann geändert werden.</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>Der Eintrag ist noch nicht übernommen: „OK“ lässt ihn weg, „Eintrag übernehmen“ nimmt ihn auf.</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>Der Drucker hat dieses Profil bei der letzten Abfrage gemeldet.</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>Der Drucker hat dieses Profil bei der letzten Abfrage nicht gemeldet.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>Von Hand eingegeben.</translation>
        </message>
    </context>
</TS>

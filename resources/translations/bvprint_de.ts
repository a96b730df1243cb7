<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1 „%2“</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>%1 und %2 passen nicht zusammen.</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>, </translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>%1 auf „%2“ ändern</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>„%1“ einschalten</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>„%1“ ausschalten</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>Dokument</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>Das Dokument kommt nicht vollständig an.</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>Die Seiten des Dokuments konnten nicht rechtzeitig gezählt werden.</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>Der Auftrag %1 ist nicht angehalten: Er wartet, bis er an der Reihe ist, und wird unverändert gedruckt.</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>Der Auftrag %1 wird bereits gedruckt.</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>Der Druck des Auftrags %1 hat begonnen und wurde gestoppt. Starten Sie ihn in den Druckereinstellungen des Systems wieder.</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>Der Auftrag %1 wurde abgebrochen. Drucken Sie das Dokument noch einmal.</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>Der Auftrag %1 ist fehlgeschlagen. Drucken Sie das Dokument noch einmal.</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>Der Auftrag %1 wurde bereits gedruckt.</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>Andere Einstellungen bestimmen dies gerade.</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>Das Bild %1 kann nicht geschrieben werden.</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>Kein Druckserver: Aufträge werden in %1 gespeichert</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>Auf dem Druckserver gibt es den Drucker %1 nicht mehr. Wählen Sie einen anderen.</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>Der Drucker %1 kann %2 nicht drucken, weil er dieses Format nicht annimmt. Speichern Sie es als PDF und drucken Sie die PDF-Datei.</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>Der Drucker %1 nimmt zurzeit keine Aufträge an. Wählen Sie einen anderen oder wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>Sie dürfen auf dem Drucker %1 nicht drucken. Wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>Sie dürfen auf dem Drucker %1 nur nach Anmeldung beim Druckserver drucken. Wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>kein Papier mehr: bitte Papier nachlegen</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>braucht Papier: bitte Papier nachlegen</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>nur noch wenig Papier</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>Papierstau: bitte das festsitzende Papier entfernen</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>kein Toner mehr: bitte die Kartusche wechseln</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>nur noch wenig Toner</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>Toner oder Tinte aufgebraucht: bitte die Kartusche wechseln</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>nur noch wenig Toner oder Tinte</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>der Resttonerbehälter ist voll: bitte wechseln</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>der Resttonerbehälter ist fast voll</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>der Entwickler ist verbraucht: bitte wechseln</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>der Entwickler ist fast verbraucht</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>die Bildtrommel ist verbraucht: bitte wechseln</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>die Bildtrommel ist fast verbraucht</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>zu heiß: bitte abkühlen lassen</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>eine Tür ist offen: bitte schließen</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>eine Abdeckung ist offen: bitte schließen</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>eine Kassette fehlt: bitte einschieben</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>das Ausgabefach fehlt: bitte einsetzen</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>das Ausgabefach ist voll: bitte leeren</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>das Ausgabefach ist fast voll</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>kein Platz für weitere Aufträge: bitte warten, bis andere gedruckt sind</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>ausgeschaltet oder nicht verbunden: bitte einschalten</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>ausgeschaltet: bitte einschalten</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>antwortet nicht: Ist er eingeschaltet und verbunden?</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>der Treiber ist unvollständig: bitte an die Systemverwaltung wenden</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>Die Aufträge auf dem Druckserver konnten nicht abgefragt werden: %1.</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1: In Ihrer Liste gibt es kein solches Profil.</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>Die Standardausgabe kann nicht geschrieben werden.</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>Die Auswahl ist noch nicht vollständig.</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>Auftragsnummer ist %1-%2 (%3 Datei(en))</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>Ohne Druckserver wird nichts gesendet. Der Auftrag hätte diese Optionen:</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>Standard des Druckers.</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>Auf der Befehlszeile angegeben.</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>Ergibt sich aus einer anderen Einstellung.</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>Geändert</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>Unverändert</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1 (Standard)</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>Dieser Auftrag</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Kopien</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>Zu druckende Seiten</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>Sie haben keine Standardwerte namens „%1“; mit lpoptions legen Sie welche an.</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>Aus der Voreinstellung „%1“.</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>„%1“ ist keine Option. Schreiben Sie KEYWORD=CHOICE.</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>Der Druckdialog öffnet sich nicht mehr von selbst für Ihre wartenden Aufträge.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>Der Druckdialog öffnet sich ab jetzt und in späteren Sitzungen für Ihre Aufträge, die auf dem Druckserver angehalten sind.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>Der Druckdialog öffnet sich ab Ihrer nächsten Sitzung für Ihre Aufträge, die auf dem Druckserver angehalten sind.
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>Der Hintergrunddienst läuft in dieser Sitzung bereits.</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>Die Datei %1 kann nicht entfernt werden: %2.</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>Der Auftrag %1 ist in einem Zustand, den dieser Dialog nicht kennt.</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>Auf dem Druckserver %1 gibt es keinen Auftrag %2. Vielleicht wurde er schon vor längerer Zeit gedruckt.</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>Der Druckserver gibt keine Auskunft über den Auftrag %1: %2.</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>Der Auftrag %1 wurde an den Drucker „%2“ gesendet, nicht an „%3“.</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>Der Auftrag %1 gehört einer anderen Person. Nur sie kann ihn drucken.</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>Der Auftrag %1 wird noch gesendet. Versuchen Sie es gleich noch einmal.</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>„%1“ ist kein Auftrag. Geben Sie die Nummer an, die lpstat -o anzeigt.</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>Die Optionen --queue und --job nennen verschiedene Drucker.</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>Dokument %1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>Keine Vorschau: Die Dokumente können nicht zwischengespeichert werden.</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>Keine Vorschau: Der Druckserver gibt das Dokument nicht heraus.</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>Keine Vorschau: %1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>Der Druckserver lehnt es ab, den Auftrag %1 zu ändern: %2. Der Auftrag bleibt angehalten.</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1 Der Auftrag %2 bleibt angehalten.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>Der Druckserver hat nicht bestätigt, dass der Auftrag %1 abgebrochen wurde. Sehen Sie in den Aufträgen des Druckers nach.</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>Der Auftrag %1 konnte nicht abgebrochen werden: %2.</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>%1 ist keine Datei auf diesem Computer. Speichern Sie das Dokument zuerst hier.</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>%1 kann nicht geschrieben werden: %2.</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>Das Dokument %1 kann nicht nach %2 kopiert werden: %3.</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>Der Auftrag wurde abgebrochen. Es wurde nichts gedruckt.</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>Der Druckserver kann eine Option namens „%1“ nicht übermitteln.</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>Der Druckserver kann den Wert %1 der Option %2 nicht übermitteln. Wählen Sie einen anderen.</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>„%1“ ist keine Seite und kein Seitenbereich. Schreiben Sie zum Beispiel 1-3, 8.</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>Die Seitenzählung beginnt bei 1.</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>Der Bereich %1 läuft rückwärts. Schreiben Sie %2-%3.</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>Geben Sie die Seiten ein, die gedruckt werden sollen, zum Beispiel 1-3, 8.</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>Es gibt kein Dokument zum Drucken.</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>Das Dokument %1 ist nicht vorhanden.</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>%1 ist kein Dokument, sondern ein Ordner oder ein Gerät.</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>Das Dokument %1 kann nicht gelesen werden: %2.</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>Das Dokument %1 ist leer.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>Ein Seitenbereich gilt nur für ein einzelnes Dokument. Drucken Sie die Dokumente einzeln oder jeweils alle Seiten.</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>%1 hat nur 1 Seite. Eine Seite %2 gibt es nicht.</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>%1 hat nur %2 Seiten. Eine Seite %3 gibt es nicht.</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>Die Optionen können nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>Mit diesen Optionen kann der Auftrag nicht gedruckt werden.</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>Der Drucker %1 hat den Auftrag abgelehnt: %2.</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>das Dokument</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>Es wurde nichts gedruckt.</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>Der Druckserver hat dem Auftrag keine Nummer gegeben.</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>Prüfen Sie vor dem erneuten Drucken, ob der Auftrag schon gedruckt wurde.</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>Der Auftrag wurde gestoppt, aber der Druckserver hat den Abbruch nicht bestätigt.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>Die Verbindung zum Druckserver brach ab, bevor %1 vollständig gesendet war.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>Die Verbindung zum Druckserver brach ab, und %1 wurde nicht gedruckt. Drucken Sie bitte noch einmal.</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>Der Druckserver hat das Dokument angenommen, aber nicht bestätigt.</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>Der Auftrag wurde abgebrochen. Drucken Sie bitte noch einmal.</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>Der Druckserver hat den Auftrag nicht bestätigt. Prüfen Sie vor dem erneuten Drucken, ob er schon gedruckt wurde.</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>Das Dokument ist größer als %1.</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>Das Dokument kann nicht in %1 gespeichert werden: %2.</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>Was das Programm drucken möchte, ist keine Datei.</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>Das Dokument kann nicht gelesen werden: %1.</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>Das Dokument ist leer.</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>Eine Voreinstellung braucht einen Namen.</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>Der Name einer Voreinstellung darf höchstens %1 Zeichen lang sein.</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>Der Name einer Voreinstellung muss aus einer einzigen Zeile bestehen.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>%1 kann nicht verwendet werden: %2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>Die Datei enthält kein JSON-Objekt und ist deshalb keine Voreinstellung.</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>Das ist keine Voreinstellung dieses Dialogs.</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>Sie stammt aus einer neueren Version dieses Dialogs. Lassen Sie diese installieren, um sie zu verwenden.</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>Der Name oder die Optionen fehlen.</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>Die Voreinstellung %1</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Name:</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>Prüfen Sie, ob Sie in den Ordner schreiben dürfen und auf dem Datenträger Platz ist.</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1: Diese Einstellung gibt es bei diesem Drucker nicht.</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1: Dieser Drucker bietet „%2“ nicht an.</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1: Die gespeicherte Auswahl gibt es nicht mehr.</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>Das Dokument ist durch ein Passwort geschützt.</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>Die Darstellung dauert zu lange.</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>Das Dokument kann nicht gelesen werden und ist vielleicht beschädigt.</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1, %2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>Für Dokumente dieser Art gibt es keine Vorschau.</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>Keine Vorschau</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>nimmt keine Aufträge an: bitte einen anderen Drucker wählen</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>gestoppt: Aufträge warten, bis ihn jemand wieder startet</translation>
        </message>
        <message>
            <source> · </source>
            <translation> · </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>Dieser Drucker nimmt zurzeit keine Aufträge an. Wählen Sie einen anderen oder wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>Dieser Drucker nimmt zurzeit keine Aufträge an (%1). Wählen Sie einen anderen oder wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>%1 kann nicht gelesen werden: %2.</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>%1 ist größer als %2.</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 MB</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>%1 ist keine Datei.</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>%1 ist beschädigt oder unvollständig.</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>ein Wert in Anführungszeichen</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>Die Drucker des Druckservers konnten nicht abgefragt werden: %1. Versuchen Sie es später noch einmal.</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>Der Druckserver %1 antwortet nicht. Prüfen Sie, ob er läuft.</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>Die Datei mit Ihren Standardeinstellungen, %1, kann nicht gelesen werden.</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>Ihre Standardeinstellungen konnten nicht geschrieben werden: %1: %2.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Kopieren</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>%1 sagt, was im Drucker eingebaut ist; kein Auftrag kann das wählen.</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>%1 kann nicht „%2“ sein; möglich ist %3.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>Dieser Drucker hat keine Option „%1“. bvprint --list zeigt alle.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>Dieser Drucker hat keine Option „%1“. Meinten Sie %2? bvprint --list zeigt alle.</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>bvprint --list zeigt alle Werte.</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>Wählen Sie eines von: %1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>und %1 weitere.</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>Behoben.</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>&amp;Mein Standard</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>Die aktuelle Auswahl auch für andere Programme und spätere Aufträge verwenden</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>Für &amp;alle Ausdrucke verwenden</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>Unter einem &amp;Namen speichern…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>&amp;Rückgängig</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>Ihre Programme drucken jetzt auf „%1“ mit dieser Auswahl, sofern dort nichts anderes gewählt wird.</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>Unter einem Namen speichern</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>&amp;Name, zum Beispiel „Entwurf“:</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>Diese Auswahl steht jetzt als „%1“ in diesem Dialog und in anderen Programmen zur Verfügung.</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>Ihre Standardeinstellungen für „%1“ sind wieder wie zuvor. Die hier angezeigte Auswahl bleibt.</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>Warten auf Antwort von „%1“…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>&amp;Überspringen</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>Der Drucker hat nicht geantwortet. Seine Profile sind nicht bekannt.</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>Der Drucker hat nicht geantwortet. Stand der angezeigten Profile: %1, %2.</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>d. MMMM</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>Die Standardeingabe kann hier kein Dokument sein, weil die Befehle von dort kommen.</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>Die Standardeingabe kann nur einmal gedruckt werden.</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>Standardeingabe</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>Die Standardeingabe kann nicht in %1 gespeichert werden: %2.</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>Die Standardeingabe kann nicht gelesen werden: %1.</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>Dateien hier ablegen oder „Hinzufügen“ wählen.</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>„%1“ wurde nicht gefunden.</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>„%1“ ist ein Ordner. Fügen Sie die Dateien darin hinzu.</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>„%1“ kann nicht gelesen werden. Bitten Sie die Person, der die Datei gehört, um Leserechte.</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>&amp;Hinzufügen…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>&amp;Entfernen</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>Dokumente</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>Alt+Pfeil auf und Alt+Pfeil ab verschieben die ausgewählten Dokumente, Entf nimmt sie aus der Liste</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>Dateien zum Drucken auswählen (Strg+O)</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>„%1“ ist schon in der Liste.</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>Nur Dateien auf diesem Computer können gedruckt werden. Speichern Sie das Dokument zuerst hier.</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>Dokumente hinzufügen</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>Dokume&amp;nte (%1, %2):</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>Dokume&amp;nte:</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>Die ausgewählten Dokumente aus dem Auftrag nehmen; die Dateien selbst bleiben erhalten</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>Zuerst die Dokumente auswählen, die entfernt werden sollen</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>Das Dokument %1</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>Das Dokument %1 wurde während des Sendens kürzer.</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>Der Auftrag wurde in %1 gespeichert.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>Ein Seitenbereich gilt nur für ein einzelnes Dokument, und dieser Auftrag enthält %1. Drucken Sie jeweils alle Seiten.</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>Es wurde nichts gedruckt. Der Auftrag %1 bleibt angehalten.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>Der Druckserver hat nicht bestätigt, dass der Auftrag %1 freigegeben wurde. Sehen Sie in den Aufträgen des Druckers nach, bevor Sie noch einmal drucken.</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>Auftrag %1: %2</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>%1 Dokumente</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>Gesendet: %1. Der Auftrag bleibt angehalten, bis Sie ihn drucken oder abbrechen.</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>Auftrag abbreche&amp;n</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>Drucken – %1</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>Dokument in der Vorschau</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>Den Auftrag vom Drucker entfernen, ohne ihn zu drucken</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>Später &amp;entscheiden</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>Dieses Fenster schließen. Der Auftrag bleibt angehalten, bis Sie ihn drucken oder abbrechen.</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>A&amp;lle Seiten</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>&amp;Seiten:</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>1-3, 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>&amp;Kopien:</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>Seiten und Bereiche, durch Kommas getrennt, zum Beispiel 1-3, 8, 12-</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>Die Dokumente können nicht gelesen werden: Der Datenträger antwortet nicht.</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>Schaffen Sie Platz auf dem Datenträger oder fragen Sie die Systemverwaltung, ob Sie die Listen noch schreiben dürfen</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>Ihre Änderungen an den Profilen wurden nicht gespeichert, weil die Profilliste nicht geschrieben werden konnte. %1. Nehmen Sie die Änderungen danach noch einmal vor.</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>Die Angaben des Druckers zu seinen Profilen wurden nicht gespeichert, weil die Profilliste nicht geschrieben werden konnte. Die Profile werden im bisherigen Stand angezeigt. %1. Öffnen Sie dieses Fenster danach noch einmal.</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>Eine andere Einstellung lässt das nicht zu.</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>Diese Meldung schließen</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>Alles anzeigen</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>Weniger anzeigen</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>und %1 weitere</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>Weitere Optionen – %1</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1:</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>Z&amp;urücksetzen</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>Vorschau (&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>Bild auf und Bild ab blättern um, Pos1 und Ende springen zur ersten und zur letzten Seite.</translation>
        </message>
        <message>
            <source>Previous page</source>
            <translation>Vorherige Seite</translation>
        </message>
        <message>
            <source>Next page</source>
            <translation>Nächste Seite</translation>
        </message>
        <message>
            <source>Page in the preview</source>
            <translation>Seite in der Vorschau</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>Se&amp;ite</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>Fügen Sie ein Dokument hinzu, um seine Seiten zu sehen.</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>Keine der gewählten Seiten ist in diesem Dokument.</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>Dies ist die erste Seite.</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>Dies ist die letzte Seite.</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>Es gibt keine Seiten zur Auswahl.</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>von %1</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>Die Seiten anzeigen, die gedruckt werden</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>Die Vorschau einklappen</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>%1 von %2</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>Vorschau von %1</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>Vorschau von %1: %2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>Vorschau, Seite %1 von %2, %3</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>Die Optionen dieses Druckers können nicht angezeigt werden, weil sein Plug-in keine Ansicht liefert. Installieren Sie es neu.</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>Ein Teil der Auswahl konnte nicht wiederhergestellt werden. Prüfen Sie bitte die Einstellungen.</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>%1 ist schon vorhanden, stammt aber nicht von diesem Programm. Entfernen Sie die Datei und versuchen Sie es dann noch einmal.</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>Das Portal dieses Systems richtet sich nach Dateien wie %1. Kopieren Sie die Datei für Ihre Arbeitsumgebung nach ~/.config/xdg-desktop-portal und fügen Sie in ihrem Abschnitt [preferred] diese Zeile hinzu:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>Das Desktop-Portal ist nicht installiert. Installieren Sie das Paket xdg-desktop-portal.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>Programme, die über das Portal drucken, zeigen ab Ihrer nächsten Anmeldung diesen Dialog.</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>Das ist bereits ausgeschaltet.</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>%1 kann nicht entfernt werden.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>Programme, die über das Portal drucken, zeigen ab Ihrer nächsten Anmeldung den Dialog der Arbeitsumgebung.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>%1 kann nicht verwendet werden: %2, Zeile %3.</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>%1 ist unvollständig: %2 ist nicht abgeschlossen.</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>Papier&amp;format:</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>Papierformat</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>Medien&amp;typ:</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>Medientyp</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>Papier&amp;zufuhr:</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>Papierzufuhr</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>&amp;Beidseitiger Druck:</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>Beidseitiger Druck</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>Aufl&amp;ösung:</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Auflösung</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Allgemeine Einstellungen</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>Weitere O&amp;ptionen…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>Weitere O&amp;ptionen (%1 geändert)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>Alle anderen Optionen dieses Druckers</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>Die PPD-Datei %1</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>Standard des Druckers</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>Voreinstellungen (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>„%1“</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>Standard des &amp;Druckers</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>Wie beim &amp;letzten Mal</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>Als &amp;Voreinstellung speichern…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Umbenennen</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>Lö&amp;schen</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>E&amp;xportieren</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>&amp;Importieren…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>Wie beim letzten Mal</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>Wie in Ihrem letzten Auftrag.</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1: Alle Einstellungen waren bereits so gewählt.</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1: Eine Einstellung wurde geändert.</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1: %2 Einstellungen wurden geändert.</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>Nicht verwendet:</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>und %1 weitere.</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>&amp;Voreinstellung: %1, geändert</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>&amp;Voreinstellung: %1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>Mit dem Standard des Druckers, dem letzten Auftrag oder einer gespeicherten Auswahl beginnen</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>Als Voreinstellung speichern</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>Es gibt schon eine Voreinstellung „%1“. Soll sie ersetzt werden?</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>&amp;Ersetzen</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>Die Auswahl ist für den Drucker „%2“ als „%1“ gespeichert. Kopien und Seiten gelten nur für den jeweiligen Auftrag.</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>Voreinstellung umbenennen</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>Die Voreinstellung „%1“ heißt jetzt „%2“.</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>Voreinstellung löschen</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>Die Voreinstellung „%1“ für „%2“ löschen? Die aktuelle Auswahl bleibt.</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>Auswahl aus „%1“</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>Die Voreinstellung „%1“ ist gelöscht.</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>Voreinstellung exportieren</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>Die Voreinstellung „%1“ ist nach %2 exportiert.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>Die Voreinstellung „%1“ konnte nicht exportiert werden: %2: %3. Wählen Sie einen Ordner, in den Sie schreiben dürfen.</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>Voreinstellung importieren</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;Alle Dateien (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>Wählen Sie eine Datei, die als Voreinstellung exportiert wurde.</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>%1 ist importiert und wird verwendet</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>%1 ist importiert und wird als %2 verwendet, weil es den Namen schon gibt</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>Für den Drucker „%2“ gibt es keine Voreinstellung „%1“.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>Die Voreinstellung „%1“ konnte nicht gespeichert werden: %2: %3. %4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>Es gibt schon eine Voreinstellung „%1“. Wählen Sie einen anderen Namen oder löschen Sie zuerst die vorhandene.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>Die Voreinstellung „%1“ konnte nicht umbenannt werden: %2: %3. %4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>Die Voreinstellung „%1“ konnte nicht gelöscht werden: %2: %3. %4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>Drucker werden gesucht…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>Es gibt keinen Drucker. Fügen Sie in den Druckereinstellungen des Systems einen hinzu und suchen Sie dann noch einmal.</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>Erneu&amp;t suchen</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>Es gibt keinen Drucker „%1“. Wählen Sie einen aus der Liste.</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>Die Optionen von „%1“ werden vorbereitet…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>Erneu&amp;t versuchen</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>Dieser Drucker ist gestoppt. Sie können trotzdem drucken: Der Auftrag wartet und wird gedruckt, sobald der Drucker wieder startet.</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>Drucken – %1 Dokumente</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>Der Auftrag wird gesendet…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>Die Optionen des Druckers werden vorbereitet…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>Wählen Sie zuerst einen Drucker.</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>Dieser Drucker kann nicht verwendet werden. Wählen Sie einen anderen.</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>Diesen Drucker gibt es nicht mehr. Wählen Sie einen anderen.</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>Fügen Sie ein Dokument zum Drucken hinzu.</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>Einige Einstellungen passen nicht zusammen, und der Drucker würde nicht alle berücksichtigen:

%1

Brechen Sie ab und beheben Sie das mit den Schaltflächen über „Drucken“, oder drucken Sie trotzdem.</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>&amp;Trotzdem drucken</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>Der Auftrag wird abgebrochen…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>Wie vorgegeben</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>Mein Standard</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>Wie gesendet</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>Aus den vorgegebenen Druckeinstellungen.</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>Ihr eigener Standard.</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>Wie beim Senden des Auftrags.</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>Sie haben keine Standardeinstellungen mit dem Namen „%1“. Angezeigt werden die des Druckers.</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>Zusammenfassun&amp;g</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>Alle Einstellungen des Druckers auf die vom Treiber vorgesehenen Werte zurücksetzen</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>Abbre&amp;chen</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;Drucken</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>Die Dokumente mit diesen Einstellungen drucken</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>Es gibt keinen Standarddrucker. Nennen Sie einen mit --queue.</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>Auf dem Druckserver gibt es keinen Drucker %1.</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>Der Treiber des Druckers %1</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>Der Drucker %1 hat keinen Treiber. Fügen Sie ihn in den Druckereinstellungen des Systems mit seinem Treiber neu hinzu.</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>%1 kann nicht abgerufen werden: %2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>Drucker</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>Nach Name, Beschreibung oder Ort suchen</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>Einen Drucker nach Name, Beschreibung oder Ort suchen</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>Kein Drucker hat „%1“ im Namen, in der Beschreibung oder im Ort. Versuchen Sie es mit weniger Buchstaben.</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Drucker</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>D&amp;rucker:</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>Kein Drucker</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1: keine Farboptionen</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>„%1“ hat keine Farboptionen: Sein Treiber bietet keine an, die dieser Dialog kennt. Mit den anderen Einstellungen können Sie drucken.</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>„%1“ hat keine Farboptionen: Das Plug-in bietet keine an. Installieren Sie es neu, um sie zu erhalten.</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>Die Auswahl für „%1“ konnte nicht gespeichert werden.</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>&amp;Auftrag abbrechen</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>Fortschritt beim Senden</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>Das Senden des Auftrags abbrechen; der Dialog bleibt, wie er ist</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>Senden: %1 von %2</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>Senden…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>Der Druckserver %1 hat seine Antwort abgebrochen.</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>Das Dokument ist zu groß.</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>Die Antwort des Druckservers %1 ist nicht lesbar.</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>Der Druckserver %1 gewährt Ihnen keinen Zugriff. Wenden Sie sich an die Systemverwaltung.</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>Der Druckserver %1 verweigert die Antwort: %2.</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>Die Seite wird gezeichnet…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Ja</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Nein</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>Zusammenfassung</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>Einstellung</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>Auswahl</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>Es gibt nichts zusammenzufassen.</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>Alles wie vom Drucker vorgesehen.</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>„%1“ ist kein möglicher Name für Standardeinstellungen: Verwenden Sie nur Buchstaben, Ziffern, „-“, „_“ und „.“.</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>Ihre bisherigen Standardeinstellungen konnten nicht aufbewahrt werden und wurden deshalb nicht ersetzt.</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>Es gibt keine früheren Standardeinstellungen für „%1“.</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>&amp;Warum ausgegraut?</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>Zeigt, welche Bedienelemente jetzt nicht verfügbar sind und wie sie verfügbar werden</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>Jetzt nicht verfügbare Bedienelemente</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1: %2</translation>
        </message>
    </context>
</TS>

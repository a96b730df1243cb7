<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1 « %2 »</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>%1 et %2 sont incompatibles.</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>, </translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>Régler « %1 » sur « %2 »</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>Activer « %1 »</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>Désactiver « %1 »</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>Document</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>Le document n’arrive pas en entier.</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>Les pages du document n’ont pas pu être comptées à temps.</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>La tâche %1 n’est pas retenue : elle attend son tour et sera imprimée telle quelle.</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>La tâche %1 est déjà en cours d’impression.</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>L’impression de la tâche %1 a commencé, puis s’est arrêtée. Reprenez-la dans les paramètres d’impression du système.</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>La tâche %1 a été annulée. Imprimez à nouveau le document.</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>La tâche %1 a échoué. Imprimez à nouveau le document.</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>La tâche %1 a déjà été imprimée.</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>D’autres choix en décident actuellement.</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>Impossible d’écrire l’image %1.</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>Aucun serveur d’impression : les tâches sont enregistrées dans %1</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>Le serveur d’impression n’a plus d’imprimante %1 ; choisissez-en une autre.</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>L’imprimante %1 ne peut pas imprimer %2 : elle n’accepte pas ce format de document. Enregistrez-le en PDF et imprimez ce fichier.</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>L’imprimante %1 n’accepte aucune tâche pour le moment ; choisissez-en une autre ou adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>Vous n’avez pas le droit d’imprimer sur l’imprimante %1 ; adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>Vous ne pouvez pas imprimer sur l’imprimante %1 sans vous identifier auprès du serveur d’impression ; adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>plus de papier : remplissez un bac</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>papier demandé : remplissez un bac</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>bientôt plus de papier</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>bourrage papier : retirez le papier coincé</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>plus de toner : remplacez la cartouche</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>bientôt plus de toner</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>plus de toner ou d’encre : remplacez la cartouche</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>bientôt plus de toner ou d’encre</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>bac de récupération du toner plein : remplacez-le</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>bac de récupération du toner presque plein</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>développeur épuisé : remplacez-le</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>développeur presque épuisé</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>tambour usé : remplacez-le</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>tambour presque usé</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>surchauffe : laissez-la refroidir</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>porte ouverte : fermez-la</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>capot ouvert : fermez-le</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>bac manquant : remettez-le en place</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>bac de sortie manquant : remettez-le en place</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>bac de sortie plein : videz-le</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>bac de sortie presque plein</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>plus de place pour d’autres tâches : attendez que les précédentes soient imprimées</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>éteinte ou non connectée : allumez-la</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>éteinte : allumez-la</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>ne répond pas : est-elle allumée et connectée ?</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>pilote incomplet : adressez-vous à la personne qui s’en occupe</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>Le serveur d’impression ne communique pas ses tâches : %1.</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1 : il n’y a pas de tel profil dans votre liste.</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>Impossible d’écrire sur la sortie standard.</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>Les choix ne sont pas encore complets.</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>l’identifiant de la demande est %1-%2 (%3 fichier(s))</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>Rien n’est envoyé sans serveur d’impression. La tâche aurait ces options :</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>Réglage par défaut de l’imprimante.</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>Indiqué sur la ligne de commande.</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>Découle d’un autre choix.</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>Modifiés</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>Inchangés</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1 (par défaut)</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>Cette tâche</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Copies</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>Pages à imprimer</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>Vous n’avez pas de réglages par défaut appelés « %1 » ; lpoptions en enregistre.</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>D’après le préréglage « %1 ».</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>« %1 » n’est pas une option. Écrivez KEYWORD=CHOICE.</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>La fenêtre d’impression ne s’ouvre plus d’elle-même pour vos tâches en attente.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>La fenêtre d’impression s’ouvre pour vos tâches retenues par le serveur d’impression, dès maintenant et dans les prochaines sessions.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>La fenêtre d’impression s’ouvrira pour vos tâches retenues par le serveur d’impression, à partir de votre prochaine session.
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>L’agent fonctionne déjà dans cette session.</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>Impossible d’écrire le fichier %1 : %2.</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>Impossible de supprimer le fichier %1 : %2.</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>La tâche %1 est dans un état inconnu de ce programme.</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>Le serveur d’impression %1 n’a pas de tâche %2. Elle a peut-être été imprimée il y a longtemps.</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>Le serveur d’impression ne renseigne pas sur la tâche %1 : %2.</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>La tâche %1 a été envoyée à l’imprimante « %2 », pas à « %3 ».</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>La tâche %1 appartient à quelqu’un d’autre. Seul son propriétaire peut l’imprimer.</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>La tâche %1 est encore en cours d’envoi. Réessayez dans un instant.</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>« %1 » n’est pas une tâche. Indiquez son numéro, tel que l’affiche lpstat -o.</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>Les options --queue et --job désignent des imprimantes différentes.</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>Document %1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>Pas d’aperçu : les documents ne peuvent pas être conservés.</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>Pas d’aperçu : le serveur d’impression ne fournit pas le document.</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>Pas d’aperçu : %1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>Le serveur d’impression refuse de modifier la tâche %1, qui reste retenue : %2.</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1 La tâche %2 reste retenue.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>Le serveur d’impression n’a pas confirmé l’annulation de la tâche %1. Vérifiez les tâches de l’imprimante.</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>La tâche %1 n’a pas pu être annulée : %2.</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>%1 n’est pas un fichier de cet ordinateur ; enregistrez d’abord le document ici.</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>Impossible d’écrire %1 : %2.</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>Impossible de copier le document %1 dans %2 : %3.</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>La tâche a été annulée. Rien n’a été imprimé.</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>Le serveur d’impression ne peut pas transmettre d’option nommée « %1 ».</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>Le serveur d’impression ne peut pas transmettre la valeur %1 de l’option %2 ; choisissez-en une autre.</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>« %1 » n’est ni une page ni une plage de pages. Écrivez par exemple 1-3, 8.</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>Les pages se comptent à partir de 1.</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>La plage %1 est à l’envers. Écrivez %2-%3.</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>Indiquez les pages à imprimer, par exemple 1-3, 8.</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>Il n’y a aucun document à imprimer.</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>Le document %1 est introuvable.</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>%1 n’est pas un document, mais un dossier ou un périphérique.</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>Impossible de lire le document %1 : %2.</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>Le document %1 est vide.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>Une plage de pages ne vaut que pour un seul document. Imprimez les documents un par un, ou toutes leurs pages.</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>%1 n’a qu’une page ; il n’y a pas de page %2.</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>%1 a %2 pages ; il n’y a pas de page %3.</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>Impossible de conserver les options.</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>Les options ne permettent pas d’imprimer cette tâche.</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>L’imprimante %1 a refusé la tâche : %2.</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>le document</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>Rien n’a été imprimé.</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>Le serveur d’impression n’a pas donné de numéro à la tâche.</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>Vérifiez si l’impression a eu lieu avant de la relancer.</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>La tâche a été arrêtée, mais le serveur d’impression n’a pas confirmé son annulation.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>La connexion au serveur d’impression a été perdue avant que %1 soit entièrement envoyé.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>La connexion au serveur d’impression a été perdue et %1 n’a pas été imprimé ; relancez l’impression.</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>Le serveur d’impression a reçu le document, mais n’en a pas confirmé la réception.</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>La tâche a été annulée ; relancez l’impression.</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>Le serveur d’impression n’a pas confirmé la tâche. Vérifiez si l’impression a eu lieu avant de la relancer.</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>Le document dépasse %1.</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>Impossible de conserver le document dans %1 : %2.</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>Ce que le programme veut imprimer n’est pas un fichier.</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>Impossible de lire le document : %1.</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>Le document est vide.</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>Un préréglage doit avoir un nom.</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>Le nom d’un préréglage compte au plus %1 caractères.</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>Le nom d’un préréglage tient sur une seule ligne.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>%1 ne peut pas être utilisé : %2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>Ce n’est pas un objet JSON comme le sont les préréglages.</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>Ce n’est pas un préréglage de ce programme.</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>Il a été créé par une version plus récente de ce programme. Faites installer cette version pour l’utiliser.</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>Son nom ou ses options manquent.</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>Le préréglage %1</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nom :</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>Vérifiez que son dossier est accessible en écriture et qu’il reste de la place sur le disque.</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1 : cette imprimante n’a pas ce réglage.</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1 : cette imprimante ne propose pas « %2 ».</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1 : le choix enregistré n’existe plus.</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>Il est protégé par un mot de passe.</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>Il faut trop de temps pour l’afficher.</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>Il est illisible, peut-être endommagé.</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1, %2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>Pas d’aperçu pour ce type de document.</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>Pas d’aperçu</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>n’accepte aucune tâche : choisissez une autre imprimante</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>arrêtée : les tâches attendent que quelqu’un la remette en service</translation>
        </message>
        <message>
            <source> · </source>
            <translation> · </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>Cette imprimante n’accepte aucune tâche pour le moment. Choisissez-en une autre ou adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>Cette imprimante n’accepte aucune tâche pour le moment (%1). Choisissez-en une autre ou adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>%1 ne peut pas être lu : %2.</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>%1 dépasse %2.</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 Mo</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>%1 n’est pas un fichier.</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>%1 est endommagé ou incomplet.</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>une valeur entre guillemets</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>Le serveur d’impression ne communique pas ses imprimantes : %1. Réessayez plus tard.</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>Le serveur d’impression %1 ne répond pas ; vérifiez qu’il fonctionne.</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>Le fichier de vos réglages par défaut, %1, est illisible.</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>Impossible d’enregistrer vos réglages par défaut : %1 : %2.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copier</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>%1 indique ce dont l’imprimante est équipée ; aucune tâche ne peut le choisir.</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>%1 ne peut pas être « %2 » ; valeurs admises : %3.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>Cette imprimante n’a pas d’option « %1 ». bvprint --list les affiche toutes.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>Cette imprimante n’a pas d’option « %1 ». Vouliez-vous dire %2 ? bvprint --list les affiche toutes.</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>bvprint --list affiche tous les choix.</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>Choisissez parmi : %1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>et %1 de plus.</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>Résolu.</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>&amp;Mes réglages par défaut</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>Utiliser aussi les choix actuels pour les autres programmes et les prochaines tâches</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>&amp;Appliquer à toutes mes impressions</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>Enregistrer sous un &amp;nom…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>&amp;Revenir aux précédents</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>Vos programmes impriment désormais sur « %1 » avec ces choix, sauf s’ils en décident autrement.</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>Enregistrer sous un nom</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>&amp;Nom, par exemple « Brouillon » :</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>Ces choix sont désormais utilisables sous le nom « %1 », dans cette fenêtre et dans les autres programmes.</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>Vos réglages par défaut pour « %1 » sont redevenus ce qu’ils étaient. Les choix affichés ici ne changent pas.</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>En attente d’une réponse de « %1 »…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>P&amp;asser</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>L’imprimante n’a pas répondu. Aucun de ses profils n’est connu.</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>L’imprimante n’a pas répondu. Ses profils sont affichés dans leur état du %1, %2.</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>d MMMM</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>L’entrée standard n’est pas un document ici : elle fournit les commandes.</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>L’entrée standard ne peut être imprimée qu’une seule fois.</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>entrée standard</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>Impossible de conserver l’entrée standard dans %1 : %2.</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>Impossible de lire l’entrée standard : %1.</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>Déposez des fichiers ici ou cliquez sur Ajouter.</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>« %1 » est introuvable.</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>« %1 » est un dossier. Ajoutez les fichiers qu’il contient.</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>« %1 » ne peut pas être lu. Demandez à son propriétaire le droit de le lire.</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>A&amp;jouter…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>Re&amp;tirer</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>Documents</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>Alt+Haut et Alt+Bas déplacent les documents sélectionnés, Suppr les retire</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>Choisir les fichiers à imprimer (Ctrl+O)</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>« %1 » est déjà dans la liste.</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>Seuls les fichiers de cet ordinateur peuvent être imprimés. Enregistrez d’abord le document ici.</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>Ajouter des documents</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>&amp;Documents (%1, %2) :</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>&amp;Documents :</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>Retirer de la tâche les documents sélectionnés ; les fichiers eux-mêmes ne sont pas supprimés</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>Sélectionnez d’abord les documents à retirer</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>Le document %1</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>Le document %1 a été raccourci pendant son envoi.</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>Impossible de créer le dossier %1.</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>La tâche a été enregistrée dans %1.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>Une plage de pages ne vaut que pour un seul document, et cette tâche en a %1. Imprimez toutes leurs pages.</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>Rien n’a été imprimé. La tâche %1 reste retenue.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>Le serveur d’impression n’a pas confirmé que la tâche %1 est libérée. Vérifiez les tâches de l’imprimante avant de relancer l’impression.</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>Tâche %1 : %2</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>%1 documents</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>Envoyée le %1. Elle est retenue jusqu’à ce que vous l’imprimiez ou l’annuliez.</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>Annuler la tâc&amp;he</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>Imprimer – %1</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>Document affiché dans l’aperçu</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>Supprimer la tâche de l’imprimante sans l’imprimer</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>Décider plus &amp;tard</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>Fermer cette fenêtre. La tâche reste retenue jusqu’à ce que vous l’imprimiez ou l’annuliez.</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>T&amp;outes les pages</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>Page&amp;s :</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>1-3, 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>Cop&amp;ies :</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>Pages et plages séparées par des virgules, par exemple 1-3, 8, 12-</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>Impossible de lire les documents : leur disque ne répond pas.</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>Libérez de l’espace sur le disque ou demandez à votre administrateur si vous avez encore le droit de modifier les listes</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>Vos modifications des profils n’ont pas été enregistrées : leur liste n’a pas pu être écrite. %1 ; refaites ensuite les modifications.</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>Les informations de l’imprimante sur ses profils n’ont pas été enregistrées : leur liste n’a pas pu être écrite. Les profils sont affichés tels qu’ils étaient. %1 ; rouvrez ensuite cette fenêtre.</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>Un autre choix ne le permet pas.</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>Fermer ce message</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>Tout afficher</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>Afficher moins</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>et %1 de plus</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>Plus d’options – %1</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1 :</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>Réiniti&amp;aliser</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>Aperçu (&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>Les touches Page préc. et Page suiv. tournent les pages, Début et Fin mènent à la première et à la dernière.</translation>
        </message>
        <message>
            <source>Previous page</source>
            <translation>Page précédente</translation>
        </message>
        <message>
            <source>Next page</source>
            <translation>Page suivante</translation>
        </message>
        <message>
            <source>Page in the preview</source>
            <translation>Page affichée dans l’aperçu</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>Pa&amp;ge</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>Ajoutez un document pour voir ses pages.</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>Aucune des pages choisies n’est dans ce document.</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>C’est la première page.</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>C’est la dernière page.</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>Il n’y a aucune page à choisir.</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>sur %1</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>Afficher les pages qui seront imprimées</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>Replier l’aperçu</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>%1 sur %2</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>Aperçu de « %1 »</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>Aperçu de « %1 » : %2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>Aperçu, page %1 sur %2 de « %3 »</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>Les options de cette imprimante ne peuvent pas être affichées : le module n’a rien à montrer. Réinstallez-le.</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>Certains choix n’ont pas pu être rétablis. Vérifiez-les.</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>%1 existe déjà et ne provient pas de ce programme. Supprimez-le, puis réessayez.</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>Le portail de ce système se règle par des fichiers comme %1. Copiez celui de votre bureau dans ~/.config/xdg-desktop-portal et ajoutez cette ligne à sa section [preferred] :
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>Le portail de bureau n’est pas installé. Installez le paquet xdg-desktop-portal.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>Les programmes qui impriment par le portail afficheront cette fenêtre à partir de votre prochaine connexion.</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>Déjà désactivé.</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>Impossible de supprimer %1.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>Les programmes qui impriment par le portail afficheront la fenêtre d’impression du bureau à partir de votre prochaine connexion.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>%1 ne peut pas être utilisé : %2, ligne %3.</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>%1 est tronqué : %2 n’est pas fermé.</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>&amp;Format du papier :</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>Format du papier</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>T&amp;ype de support :</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>Type de support</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>&amp;Bac :</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>Bac</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>Recto &amp;verso :</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>Recto verso</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>Réso&amp;lution :</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Résolution</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Réglages généraux</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>&amp;Plus d’options…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>&amp;Plus d’options (modifiées : %1)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>Toutes les autres options de cette imprimante</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>Le fichier PPD %1</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>Réglages de l’imprimante</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>Préréglages (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>« %1 »</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>Réglages par &amp;défaut de l’imprimante</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>Comme &amp;la dernière fois</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>&amp;Enregistrer comme préréglage…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Renommer</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>&amp;Supprimer</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>E&amp;xporter</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>&amp;Importer…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>Comme la dernière fois</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>Comme dans votre dernière tâche.</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1 : tous les réglages étaient déjà ainsi.</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1 : un réglage modifié.</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1 : %2 réglages modifiés.</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>Non utilisés :</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>et %1 de plus.</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>P&amp;réréglage : %1, modifié</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>P&amp;réréglage : %1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>Partir des réglages par défaut de l’imprimante, de la dernière tâche ou de choix que vous avez enregistrés</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>Enregistrer comme préréglage</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>Il existe déjà un préréglage « %1 ». Le remplacer ?</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>&amp;Remplacer</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>Les choix sont enregistrés sous « %1 », pour l’imprimante « %2 ». Les copies et les pages se choisissent à chaque tâche.</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>Renommer le préréglage</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>Le préréglage « %1 » s’appelle maintenant « %2 ».</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>Supprimer le préréglage</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>Supprimer le préréglage « %1 » de « %2 » ? Les choix actuels sont conservés.</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Supprimer</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>Choix de « %1 »</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>Le préréglage « %1 » est supprimé.</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>Exporter le préréglage</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>Le préréglage « %1 » est exporté vers %2.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>Le préréglage « %1 » n’a pas pu être exporté : %2 : %3. Exportez-le dans un dossier où vous pouvez écrire.</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>Importer un préréglage</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>Choisissez un fichier exporté comme préréglage.</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>%1 est importé et utilisé</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>%1 est importé et utilisé sous le nom %2, car le sien est déjà pris</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>Il n’y a pas de préréglage « %1 » pour l’imprimante « %2 ».</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>Le préréglage « %1 » n’a pas pu être enregistré : %2 : %3. %4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>Il existe déjà un préréglage « %1 ». Choisissez un autre nom ou supprimez-le d’abord.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>Le préréglage « %1 » n’a pas pu être renommé : %2 : %3. %4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>Le préréglage « %1 » n’a pas pu être supprimé : %2 : %3. %4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>Recherche d’imprimantes…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>Il n’y a aucune imprimante. Ajoutez-en une dans les paramètres d’impression du système, puis relancez la recherche.</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>Rec&amp;hercher</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>Il n’y a pas d’imprimante « %1 ». Choisissez-en une dans la liste.</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>Préparation des options de « %1 »…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>Réessa&amp;yer</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>Cette imprimante est arrêtée. Vous pouvez imprimer quand même : elle garde la tâche et l’imprimera une fois remise en service.</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>Imprimer – %1 documents</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>Envoi de la tâche…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>Préparation des options de l’imprimante…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>Choisissez d’abord une imprimante.</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>Cette imprimante n’est pas utilisable. Choisissez-en une autre.</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>Cette imprimante n’est plus là. Choisissez-en une autre.</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>Ajoutez un document à imprimer.</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>Certains choix sont incompatibles, et l’imprimante ne les suivrait pas tous :

%1

Annulez pour régler cela avec les boutons situés au-dessus de « Imprimer », ou imprimez quand même.</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>Imprimer &amp;quand même</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>Annulation de la tâche…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>Choix fournis</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>Mes réglages par défaut</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>Comme à l’envoi</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>D’après le ticket fourni.</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>Votre propre réglage par défaut.</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>Comme à l’envoi de la tâche.</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>Vous n’avez pas de réglages par défaut nommés « %1 ». Ceux de l’imprimante sont affichés.</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>Rés&amp;umé</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>Rétablir tous les réglages de l’imprimante tels que son pilote les propose</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>A&amp;nnuler</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;Imprimer</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>Imprimer les documents avec ces réglages</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>Il n’y a pas d’imprimante par défaut ; indiquez-en une avec --queue.</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>Le serveur d’impression n’a pas d’imprimante %1.</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>Le pilote de l’imprimante %1</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>L’imprimante %1 n’a pas de pilote. Ajoutez-la de nouveau, avec son pilote, dans les paramètres d’impression du système.</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>%1 ne peut pas être obtenu : %2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>Imprimantes</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>Chercher par nom, description ou lieu</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>Chercher une imprimante par nom, description ou lieu</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>Aucune imprimante n’a « %1 » dans son nom, sa description ou son lieu. Essayez avec moins de lettres.</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Imprimante</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>I&amp;mprimante :</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>Aucune imprimante</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1 : pas d’options de couleur</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>« %1 » n’a pas d’options de couleur : son pilote n’en propose aucune que ce programme reconnaisse. Vous pouvez imprimer avec ses autres réglages.</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>« %1 » n’a pas d’options de couleur : le module n’en propose aucune. Réinstallez-le pour les obtenir.</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>Les choix de « %1 » n’ont pas pu être conservés.</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>Annuler la tâc&amp;he</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>Progression de l’envoi</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>Arrêter l’envoi de la tâche ; la fenêtre reste telle quelle</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>Envoi : %1 sur %2</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>Envoi…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>Le serveur d’impression %1 a interrompu sa réponse.</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>Le document est trop volumineux.</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>Le serveur d’impression %1 a donné une réponse illisible.</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>Le serveur d’impression %1 vous refuse l’accès ; adressez-vous à la personne qui s’en occupe.</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>Le serveur d’impression %1 refuse de répondre : %2.</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>Affichage de la page…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Oui</translation>
        </message>
        <message>
            <source>No</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>Résumé</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>Réglage</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>Choix</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>Il n’y a rien à résumer.</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>Tout est comme l’imprimante le propose.</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>« %1 » ne convient pas comme nom de réglages par défaut : n’utilisez que des lettres, des chiffres, « - », « _ » et « . ».</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>Vos réglages par défaut actuels n’ont pas pu être conservés et n’ont donc pas été remplacés.</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>Il n’y a pas de réglages par défaut antérieurs pour « %1 ».</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>Pour&amp;quoi est-ce grisé ?</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>Énumère les éléments indisponibles pour le moment et ce qui les rend disponibles</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>Éléments indisponibles pour le moment</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1 : %2</translation>
        </message>
    </context>
</TS>

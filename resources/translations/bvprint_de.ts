<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Document</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>little paper left</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>little toner left</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Document %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No preview: %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>the document</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document is empty.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It was made by a newer version of this dialog.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1, %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No preview</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source> · </source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 MB</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>a quoted value</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Copy</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Store under a Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Waiting for the printer at %1…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>standard input</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Documents</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Documents</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 documents</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print – %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Document in the preview</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Copies</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pages to print</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>1-3, 8</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Copies:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Close this message</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Show All</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>and %1 more</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>More Options – %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>P&amp;review</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Previous page</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Next page</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Page in the preview</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This is the first page.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This is the last page.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Preview</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Preview of %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It is off already.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Paper size</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Paper type</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Tray</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Two-sided</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Resolution</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The PPD %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Rename %1…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>D&amp;elete %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>E&amp;xport %1…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As last time</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As in your last job.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not used:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>and %1 more.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Save as Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Rename Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Delete Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? The present choices stay.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Export Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Import Preset</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Presets (*.json);;All files (*)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There are no color options to sum up.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As given</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>My defaults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As sent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your own default.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Print</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Printers</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: no color options</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer's default.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Progress of sending</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Sending…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The document is too large.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Yes</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Summary</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Setting</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Changed</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unchanged</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Why Is It Gray?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation type="unfinished" />
        </message>
    </context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1 «%2»</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>No se pueden combinar: %1, %2.</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>, </translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>Cambiar %1 a %2</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>Activar %1</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>Desactivar %1</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>Documento</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>El documento no llega a su fin.</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>No se pudieron contar a tiempo las páginas del documento.</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>El trabajo %1 no está retenido: espera su turno y se imprimirá tal como está.</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>El trabajo %1 ya se está imprimiendo.</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>El trabajo %1 empezó a imprimirse y se detuvo. Reanúdelo en la configuración de impresoras del sistema.</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>El trabajo %1 se canceló. Vuelva a imprimir el documento.</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>El trabajo %1 ha fallado. Vuelva a imprimir el documento.</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>El trabajo %1 ya se ha impreso.</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>Ahora lo deciden otras opciones.</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>No se puede escribir la imagen %1.</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>Sin servidor de impresión: los trabajos se guardan en %1</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>El servidor de impresión ya no tiene la impresora %1; elija otra.</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>La impresora %1 no puede imprimir %2: no admite documentos de ese formato. Guárdelo como PDF e imprima ese archivo.</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>La impresora %1 no acepta trabajos en este momento; elija otra o consulte a quien se encarga de ella.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>No tiene permiso para imprimir en la impresora %1; consulte a quien se encarga de ella.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>No puede imprimir en la impresora %1 sin identificarse en el servidor de impresión; consulte a quien se encarga de ella.</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>sin papel: llene una bandeja</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>necesita papel: llene una bandeja</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>queda poco papel</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>atasco de papel: retire el papel atascado</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>sin tóner: cambie el cartucho</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>queda poco tóner</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>sin tóner o tinta: cambie el cartucho</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>queda poco tóner o poca tinta</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>el depósito de tóner residual está lleno: cámbielo</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>el depósito de tóner residual está casi lleno</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>el revelador está agotado: cámbielo</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>el revelador está casi agotado</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>el tambor está agotado: cámbielo</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>el tambor está casi agotado</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>demasiado caliente: deje que se enfríe</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>hay una puerta abierta: ciérrela</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>hay una tapa abierta: ciérrela</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>falta una bandeja: introdúzcala</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>falta la bandeja de salida: colóquela</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>la bandeja de salida está llena: vacíela</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>la bandeja de salida está casi llena</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>no caben más trabajos: espere a que se impriman otros</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>apagada o sin conexión: enciéndala</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>apagada: enciéndala</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>no responde: ¿está encendida y conectada?</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>su controlador está incompleto: consulte a la persona encargada</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>El servidor de impresión no informa de sus trabajos: %1.</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1: no hay ningún perfil así en su lista.</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>No se puede escribir en la salida estándar.</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>Aún falta completar los ajustes.</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>el identificador de la petición es %1-%2 (%3 archivo(s))</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>No se envía nada sin un servidor de impresión. Estas serían las opciones del trabajo:</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>Valor predeterminado de la impresora.</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>Indicado en la línea de órdenes.</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>Se deriva de otra opción.</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>Con cambios</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>Sin cambios</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1 (predeterminado)</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>Este trabajo</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Copias</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>Páginas para imprimir</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>No tiene valores predeterminados llamados «%1»; lpoptions los guarda.</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>Del preajuste «%1».</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>«%1» no es una opción. Escriba KEYWORD=CHOICE.</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>El diálogo de impresión ya no se abrirá automáticamente para sus trabajos en espera.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>El diálogo de impresión se abrirá cuando el servidor de impresión retenga trabajos suyos, desde ahora y en las próximas sesiones.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>El diálogo de impresión se abrirá cuando el servidor de impresión retenga trabajos suyos, a partir de su próxima sesión.
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>El agente ya se está ejecutando en esta sesión.</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>No se puede escribir el archivo %1: %2.</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>No se puede eliminar el archivo %1: %2.</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>El trabajo %1 está en un estado que este diálogo no reconoce.</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>El servidor de impresión %1 no tiene el trabajo %2. Puede que se imprimiera hace tiempo.</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>El servidor de impresión no informa del trabajo %1: %2.</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>El trabajo %1 se envió a la impresora «%2», no a «%3».</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>El trabajo %1 es de otra persona. Solo puede imprimirlo su propietario.</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>El trabajo %1 todavía se está enviando. Inténtelo de nuevo en un momento.</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>«%1» no es un trabajo. Indique su número, tal como lo muestra lpstat -o.</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>Las opciones --queue y --job indican impresoras distintas.</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>Documento %1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>Sin vista previa: no se pueden guardar los documentos.</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>Sin vista previa: el servidor de impresión no entrega el documento.</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>Sin vista previa: %1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>El servidor de impresión no permite modificar el trabajo %1, que sigue retenido: %2.</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1 El trabajo %2 sigue retenido.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>El servidor de impresión no confirmó la cancelación del trabajo %1. Revise los trabajos de la impresora.</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>No se pudo cancelar el trabajo %1: %2.</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>%1 no es un archivo de este equipo; guarde antes el documento aquí.</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>No se puede escribir %1: %2.</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>No se puede copiar el documento %1 en %2: %3.</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>El trabajo se canceló. No se imprimió nada.</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>El servidor de impresión no admite una opción con el nombre «%1».</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>El servidor de impresión no admite el valor %1 de la opción %2; elija otro.</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>«%1» no es una página ni un intervalo de páginas. Escriba, por ejemplo, 1-3, 8.</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>Las páginas se cuentan desde la 1.</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>El intervalo %1 está al revés. Escriba %2-%3.</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>Escriba las páginas que quiera imprimir; por ejemplo: 1-3, 8.</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>No hay ningún documento que imprimir.</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>El documento %1 no existe.</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>%1 no es un documento, sino una carpeta o un dispositivo.</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>No se puede leer el documento %1: %2.</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>El documento %1 está vacío.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>Un intervalo de páginas solo vale para un documento. Imprima los documentos uno a uno o imprima todas sus páginas.</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>%1 tiene 1 página; la página %2 no existe.</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>%1 tiene %2 páginas; la página %3 no existe.</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>No se pueden guardar las opciones.</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>Las opciones elegidas no permiten imprimir este trabajo.</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>La impresora %1 rechazó el trabajo: %2.</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>el documento</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>No se imprimió nada.</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>El servidor de impresión no asignó ningún número al trabajo.</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>Compruebe si se imprimió antes de volver a imprimir.</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>El trabajo se detuvo, pero el servidor de impresión no confirmó su cancelación.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>Se perdió la conexión con el servidor de impresión antes de enviar %1 por completo.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>Se perdió la conexión con el servidor de impresión y no se imprimió %1; vuelva a imprimir.</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>El servidor de impresión recibió el documento, pero no lo confirmó.</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>El trabajo se canceló; vuelva a imprimir.</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>El servidor de impresión no confirmó el trabajo. Compruebe si se imprimió antes de volver a imprimir.</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>El documento ocupa más de %1.</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>No se puede guardar el documento en %1: %2.</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>Lo que el programa quiere imprimir no es un archivo.</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>No se puede leer el documento: %1.</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>El documento está vacío.</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>El preajuste necesita un nombre.</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>El nombre de un preajuste puede tener como máximo %1 caracteres.</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>El nombre de un preajuste debe ocupar una sola línea.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>%1 no se puede usar: %2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>No es un objeto JSON, y los preajustes deben serlo.</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>No es un preajuste de este diálogo.</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>Se creó con una versión más reciente de este diálogo. Pida que la instalen para poder usarlo.</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>Faltan su nombre o sus opciones.</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>El preajuste %1</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nombre:</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>Compruebe que se puede escribir en su carpeta y que queda espacio en el disco.</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1: esta impresora no tiene ese ajuste.</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1: esta impresora no ofrece «%2».</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1: el valor guardado ya no existe.</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>Está protegido con contraseña.</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>Tarda demasiado en dibujarse.</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>No se puede leer; puede que esté dañado.</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1, %2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>No hay vista previa para este tipo de documentos.</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>Sin vista previa</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>no acepta trabajos: elija otra impresora</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>detenida: los trabajos esperan a que alguien la reanude</translation>
        </message>
        <message>
            <source> · </source>
            <translation> · </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>Esta impresora no acepta trabajos en este momento. Elija otra o consulte a la persona encargada.</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>Esta impresora no acepta trabajos en este momento (%1). Elija otra o consulte a la persona encargada.</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>%1 no se puede leer: %2.</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>%1 ocupa más de %2.</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 MB</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>%1 no es un archivo.</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>%1 está dañado o incompleto.</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>un valor entre comillas</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>El servidor de impresión no informa de sus impresoras: %1. Inténtelo más tarde.</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>El servidor de impresión %1 no responde; compruebe que esté en marcha.</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>No se puede leer el archivo de sus valores predeterminados, %1.</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>No se pudieron guardar sus valores predeterminados: %1: %2.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Copiar</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>%1 indica qué tiene instalado la impresora; ningún trabajo puede elegirlo.</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>%1 no puede ser «%2»; admite %3.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>Esta impresora no tiene la opción «%1». bvprint --list las muestra todas.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>Esta impresora no tiene la opción «%1». ¿Quería decir %2? bvprint --list las muestra todas.</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>bvprint --list muestra todas las opciones.</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>Elija entre: %1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>y %1 más.</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>Resuelto.</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>&amp;Mis predeterminados</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>Usar los ajustes actuales también en otros programas y en los próximos trabajos</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>Usar en &amp;todas mis impresiones</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>Guardar con un &amp;nombre…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>&amp;Deshacer</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>A partir de ahora, sus programas imprimirán en «%1» con estos ajustes, salvo que indiquen otros.</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>Guardar con un nombre</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>&amp;Nombre; por ejemplo, «Borrador»:</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>Estos ajustes ya se pueden usar como «%1» en este diálogo y en otros programas.</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>Los valores predeterminados de «%1» vuelven a ser los de antes. Los ajustes que se muestran aquí no cambian.</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>Esperando la respuesta de «%1»…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>&amp;Omitir</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>La impresora no respondió. No se conoce ninguno de sus perfiles.</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>La impresora no respondió. Sus perfiles se muestran tal como estaban el %1 (%2).</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>d 'de' MMMM</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>La entrada estándar no sirve aquí como documento: de ella se leen las órdenes.</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>La entrada estándar solo se puede imprimir una vez.</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>entrada estándar</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>No se puede guardar la entrada estándar en %1: %2.</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>No se puede leer la entrada estándar: %1.</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>Arrastre archivos aquí o pulse «Añadir».</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>No se encontró «%1».</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>«%1» es una carpeta. Añada los archivos que contiene.</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>No se puede leer «%1». Pida permiso de lectura a su propietario.</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>&amp;Añadir…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>&amp;Quitar</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>Documentos</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>Alt+Arriba y Alt+Abajo mueven los documentos seleccionados; Supr los quita</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>Elegir los archivos que se van a imprimir (Ctrl+O)</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>«%1» ya está en la lista.</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>Solo se pueden imprimir archivos de este equipo. Guarde antes el documento aquí.</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>Añadir documentos</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>&amp;Documentos (%1, %2):</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>&amp;Documentos:</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>Quitar del trabajo los documentos seleccionados; los archivos se conservan</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>Seleccione primero los documentos que quiera quitar</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>El documento %1</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>El documento %1 se acortó mientras se enviaba.</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>No se puede crear la carpeta %1.</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>El trabajo se guardó en %1.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>Un intervalo de páginas solo vale para un documento, y este trabajo tiene %1. Imprima todas sus páginas.</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>No se imprimió nada. El trabajo %1 sigue retenido.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>El servidor de impresión no confirmó que se liberara el trabajo %1. Revise los trabajos de la impresora antes de volver a imprimir.</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>Trabajo %1: %2</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>%1 documentos</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>Enviado: %1. Queda retenido hasta que usted lo imprima o lo cancele.</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>Cancelar tra&amp;bajo</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>Imprimir – %1</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>Documento en la vista previa</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>Quitar el trabajo de la impresora sin imprimirlo</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>&amp;Decidir después</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>Cerrar esta ventana. El trabajo queda retenido hasta que usted lo imprima o lo cancele.</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>&amp;Todas las páginas</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>Pá&amp;ginas:</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>1-3, 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>Co&amp;pias:</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>Páginas e intervalos separados por comas; por ejemplo: 1-3, 8, 12-</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>No se pueden leer los documentos: su disco no responde.</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>Libere espacio en el disco o pregunte al administrador si aún tiene permiso para escribir las listas</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>Sus cambios en los perfiles no se guardaron: no se pudo escribir la lista. %1; después, repita los cambios.</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>Lo que la impresora indica sobre sus perfiles no se guardó: no se pudo escribir la lista. Los perfiles se muestran como estaban. %1; después, vuelva a abrir esta ventana.</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>Otra opción no lo permite.</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>Cerrar este mensaje</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>Mostrar todo</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>Mostrar menos</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>y %1 más</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>Más opciones – %1</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1:</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>Restablecer &amp;valores</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>Vista previa (&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>Re Pág y Av Pág pasan las páginas; Inicio y Fin llevan a la primera y a la última.</translation>
        </message>
        <message>
            <source>Previous page</source>
            <translation>Página anterior</translation>
        </message>
        <message>
            <source>Next page</source>
            <translation>Página siguiente</translation>
        </message>
        <message>
            <source>Page in the preview</source>
            <translation>Página en la vista previa</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>Pági&amp;na</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>Añada un documento para ver sus páginas.</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>Ninguna de las páginas elegidas está en este documento.</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>Esta es la primera página.</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>Esta es la última página.</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>No hay páginas entre las que elegir.</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>de %1</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>Mostrar las páginas que se van a imprimir</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>Ocultar la vista previa</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>%1 de %2</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vista previa</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>Vista previa de %1</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>Vista previa de %1: %2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>Vista previa de %3, página %1 de %2</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>No se pueden mostrar las opciones de esta impresora: el complemento no ofrece ninguna vista. Reinstálelo.</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>No se pudieron recuperar todos los ajustes. Revíselos.</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>%1 ya existe y no pertenece a este programa. Elimínelo e inténtelo de nuevo.</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>El portal de este sistema se guía por archivos como %1. Copie el de su escritorio en ~/.config/xdg-desktop-portal y añada esta línea a su sección [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>El portal de escritorio no está instalado. Instale el paquete xdg-desktop-portal.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>Los programas que imprimen a través del portal mostrarán este diálogo a partir de su próximo inicio de sesión.</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>Ya está desactivado.</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>No se puede eliminar %1.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>Los programas que imprimen a través del portal mostrarán el diálogo propio del escritorio a partir de su próximo inicio de sesión.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>%1 no se puede usar: %2, línea %3.</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>%1 está incompleto: falta cerrar %2.</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>Tama&amp;ño de papel:</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>Tamaño de papel</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>Tipo de pape&amp;l:</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>Tipo de papel</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>&amp;Bandeja:</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>Bandeja</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>D&amp;oble cara:</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>Doble cara</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>Resol&amp;ución:</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>Resolución</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Ajustes generales</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>Má&amp;s opciones…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>Má&amp;s opciones (cambios: %1)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>Todas las demás opciones de esta impresora</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>El PPD %1</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>Predeterminados de la impresora</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>Preajustes (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>«%1»</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>Pre&amp;determinados de la impresora</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>Como la ú&amp;ltima vez</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>&amp;Guardar como preajuste…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Renombrar</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>&amp;Eliminar</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>E&amp;xportar</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>&amp;Importar…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>Como la última vez</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>Como en su último trabajo.</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1: todos los ajustes ya estaban así.</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1: se cambió un ajuste.</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1: se cambiaron %2 ajustes.</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>No se usaron:</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>y %1 más.</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>Prea&amp;juste: %1, con cambios</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>Prea&amp;juste: %1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>Partir de los valores predeterminados de la impresora, del último trabajo o de ajustes guardados</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>Guardar como preajuste</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>Ya existe un preajuste «%1». ¿Reemplazarlo?</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>&amp;Reemplazar</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>Los ajustes se guardaron como «%1» para la impresora «%2». Las copias y las páginas se eligen en cada trabajo.</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>Renombrar preajuste</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>El preajuste «%1» se llama ahora «%2».</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>Eliminar preajuste</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>¿Eliminar el preajuste «%1» de «%2»? Los ajustes actuales no cambian.</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Eliminar</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>Ajustes de «%1»</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>El preajuste «%1» se eliminó.</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>Exportar preajuste</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>El preajuste «%1» se exportó a %2.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>No se pudo exportar el preajuste «%1»: %2: %3. Expórtelo a una carpeta en la que pueda escribir.</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>Importar preajuste</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;Todos los archivos (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>Elija un archivo que se haya exportado como preajuste.</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>%1 se importó y se usa</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>%1 se importó y se usa como %2, porque ya hay uno con ese nombre</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>No hay ningún preajuste «%1» para la impresora «%2».</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>No se pudo guardar el preajuste «%1»: %2: %3. %4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>Ya existe un preajuste «%1». Elija otro nombre o elimínelo antes.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>No se pudo renombrar el preajuste «%1»: %2: %3. %4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>No se pudo eliminar el preajuste «%1»: %2: %3. %4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>Buscando impresoras…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>No hay ninguna impresora. Añada una en la configuración de impresoras del sistema y vuelva a buscar.</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>&amp;Buscar de nuevo</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>No existe la impresora «%1». Elija una de la lista.</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>Se están preparando las opciones de «%1»…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>Rein&amp;tentar</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>Esta impresora está detenida. Puede imprimir igualmente: guardará el trabajo y lo imprimirá cuando se reanude.</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>Imprimir – %1 documentos</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>Se está enviando el trabajo…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>Se están preparando las opciones de la impresora…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>Elija primero una impresora.</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>Esta impresora no se puede usar. Elija otra.</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>Esta impresora ya no está disponible. Elija otra.</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>Añada un documento para imprimir.</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>Algunos ajustes no se pueden combinar, y la impresora no podría respetarlos todos:

%1

Cancele y resuélvalo con los botones situados sobre «Imprimir», o imprima de todos modos.</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>Imprimir de &amp;todos modos</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>Se está cancelando el trabajo…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>Ajustes recibidos</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>Mis predeterminados</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>Como se envió</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>De los ajustes recibidos.</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>Su propio valor predeterminado.</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>Como se envió el trabajo.</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>No tiene valores predeterminados con el nombre «%1». Se muestran los de la impresora.</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>Resum&amp;en</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>Restablecer todos los ajustes de la impresora a los valores que propone su controlador</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Cancelar</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;Imprimir</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>Imprimir los documentos con estos ajustes</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>No hay impresora predeterminada; indique una con --queue.</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>El servidor de impresión no tiene ninguna impresora %1.</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>El controlador de la impresora %1</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>La impresora %1 no tiene controlador. Añádala de nuevo, con su controlador, en la configuración de impresoras del sistema.</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>%1 no se puede obtener: %2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>Impresoras</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>Buscar por nombre, descripción o ubicación</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>Buscar una impresora por nombre, descripción o ubicación</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>Ninguna impresora tiene «%1» en su nombre, descripción o ubicación. Pruebe con menos letras.</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Impresora</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>Imp&amp;resora:</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>Ninguna impresora</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1: sin opciones de color</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>«%1» no tiene opciones de color: su controlador no ofrece ninguna que este diálogo conozca. Puede imprimir con los demás ajustes.</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>«%1» no tiene opciones de color: el complemento no ofrece ninguna. Reinstálelo para disponer de ellas.</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>No se pudieron conservar los ajustes de «%1».</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>Cancelar &amp;trabajo</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>Progreso del envío</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>Detener el envío del trabajo; el diálogo queda como está</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>Enviando: %1 de %2</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>Enviando…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>El servidor de impresión %1 interrumpió su respuesta.</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>El documento es demasiado grande.</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>El servidor de impresión %1 dio una respuesta que no se puede leer.</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>El servidor de impresión %1 no le permite el acceso; consulte a la persona encargada.</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>El servidor de impresión %1 se niega a responder: %2.</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>Dibujando la página…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>Sí</translation>
        </message>
        <message>
            <source>No</source>
            <translation>No</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>Resumen</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>Ajuste</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>Valor</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>No hay nada que resumir.</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>Todo tal como lo propone la impresora.</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>«%1» no sirve como nombre de valores predeterminados: use solo letras, cifras, «-», «_» y «.».</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>No se pudieron conservar sus valores predeterminados actuales, así que no se reemplazaron.</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>No hay valores predeterminados anteriores de «%1».</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>¿Por &amp;qué está en gris?</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>Muestra los controles que ahora no se pueden usar y qué hace falta para poder usarlos</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>Controles que ahora no se pueden usar</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1: %2</translation>
        </message>
    </context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>Opciones de color</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>Opciones de color avanzadas</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>Ocultar opciones avanzadas</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>Gestionar perfiles…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>Gestor de descargas</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>Color rápido</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>Color rápido:</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>Brillo</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>Brillo:</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>Color en escala de grises</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>Separación de colores</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>Impresión económica</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>Intensidad de bordes</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>Intensidad de bordes:</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>Reventado automático</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>Sobreimpresión de negro</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>Sobreimpresión de negro:</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>Imagen</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>Texto</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>Gráficos</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>Simulación</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>Origen RGB:</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>Propósito RGB:</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>Tratamiento de grises RGB:</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>Perfil de destino:</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>Trama:</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>Realce de bordes:</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>Perfil de simulación:</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>Simular color del papel:</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>Tratamiento de grises CMYK:</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>Origen RGB de imagen</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>Propósito RGB de imagen</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>Tratamiento de grises RGB de imagen</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>Perfil de destino de imagen</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>Trama de imagen</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>Realce de bordes de imagen</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>Origen RGB de texto</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>Propósito RGB de texto</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>Tratamiento de grises RGB de texto</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>Perfil de destino de texto</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>Trama de texto</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>Realce de bordes de texto</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>Origen RGB de gráficos</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>Propósito RGB de gráficos</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>Tratamiento de grises RGB de gráficos</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>Perfil de destino de gráficos</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>Trama de gráficos</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>Realce de bordes de gráficos</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>Perfil de simulación</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>Simular color del papel</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>Tratamiento de grises CMYK</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>Disco</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>Tarjeta</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>Gestión de perfiles</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>No disponible mientras «%1» esté activado. Desactívelo para usar este ajuste.</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>Disponible solo cuando «%1» es «%2». Elija ese valor para usar este ajuste.</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>No disponible cuando «%1» es «%2». Elija otro valor para usar este ajuste.</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>Solo los administradores del sistema de impresión pueden gestionar perfiles.</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>«%1» está activado: hay un ajuste que no se usa.</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>«%1» está activado: hay %2 ajustes que no se usan.</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>Desactivar</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>Desactivar %1</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Ajustes generales</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>Origen RGB</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>Simulación</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>Destino</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>Cla&amp;se de perfil:</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>&amp;Perfiles:</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>&amp;Añadir</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>&amp;Editar</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>E&amp;liminar</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>Entrada</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>Nombre de arc&amp;hivo:</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>E&amp;xaminar…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>&amp;Nombre de perfil:</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>&amp;Ubicación:</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>&amp;Confirmar entrada</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>&amp;Descartar entrada</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>Acep&amp;tar</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>Cancela&amp;r</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>En impresora</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>Nombre de archivo</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>Nombre de perfil</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>Ubicación</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>En menú</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>En la impresora</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>No está en la impresora</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>Se muestra en los menús</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>No se muestra en los menús</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>No se puede eliminar un perfil que está en la impresora</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>Elegir un perfil</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NOMBRE.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>El nombre que muestran los menús</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>Nombre de archivo: hasta 27 caracteres, un punto y hasta 3 más; sin espacios ni ninguno de estos signos: " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Nombre de perfil: hasta 30 letras, cifras, signos y espacios, sin tildes ni eñes.</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>Aún no hay perfiles. Los de una impresora de red aparecen después de consultarla; con «Añadir» se introduce uno a mano.</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>Entrada, aún sin confirmar</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>Entrada, descartada</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>Entrada: este archivo ya está en la lista</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>Entrada: la lista está llena</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>Seleccione primero un perfil.</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>Confirme o descarte primero la entrada.</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>Pulse «Añadir», o seleccione un perfil y pulse «Editar».</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>Escriba primero un nombre de archivo; no puede empezar por un punto.</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>El nombre de este archivo lo pone la impresora; solo se puede cambiar el nombre de perfil.</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>La entrada no está confirmada: «Aceptar» la omite, «Confirmar entrada» la incorpora.</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>La impresora comunicó este perfil la última vez que se la consultó.</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>La impresora no comunicó este perfil la última vez que se la consultó.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>Introducido a mano.</translation>
        </message>
    </context>
</TS>

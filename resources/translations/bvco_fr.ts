<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>Options de couleur</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>Options de couleur avancées</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>Masquer les options avancées</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>Gérer les profils…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>Gestionnaire de téléchargement</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>Couleur rapide</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>Couleur rapide :</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>Luminosité</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>Luminosité :</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>Couleur en niveaux de gris</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>Séparation des couleurs</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>Impression économique</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>Intensité des contours</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>Intensité des contours :</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>Recouvrement automatique</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>Surimpression du noir</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>Surimpression du noir :</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>Image</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>Texte</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>Graphiques</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>Source RVB :</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>Rendu RVB :</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>Traitement des gris RVB :</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>Profil de destination :</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>Trame :</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>Accentuation des contours :</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>Profil de simulation :</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>Reproduire la teinte du papier :</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>Traitement des gris CMJN :</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>Image - Source RVB</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>Image - Rendu RVB</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>Image - Traitement des gris RVB</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>Image - Profil de destination</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>Image - Trame</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>Image - Accentuation des contours</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>Texte - Source RVB</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>Texte - Rendu RVB</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>Texte - Traitement des gris RVB</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>Texte - Profil de destination</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>Texte - Trame</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>Texte - Accentuation des contours</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>Graphiques - Source RVB</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>Graphiques - Rendu RVB</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>Graphiques - Traitement des gris RVB</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>Graphiques - Profil de destination</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>Graphiques - Trame</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>Graphiques - Accentuation des contours</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>Profil de simulation</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>Reproduire la teinte du papier</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>Traitement des gris CMJN</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>Disque</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>Carte</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>Gestion des profils</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>Indisponible tant que l’option « %1 » est activée. Désactivez-la pour utiliser ce réglage.</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>Disponible uniquement quand l’option « %1 » est réglée sur « %2 ». Choisissez cette valeur pour utiliser ce réglage.</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>Indisponible tant que l’option « %1 » est réglée sur « %2 ». Choisissez une autre valeur pour utiliser ce réglage.</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>Seuls les administrateurs du système d’impression peuvent gérer les profils.</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>L’option « %1 » est activée : un réglage n’est pas utilisé.</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>L’option « %1 » est activée : %2 réglages ne sont pas utilisés.</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>Désactiver</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>Désactiver « %1 »</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>Réglages généraux</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>Source RVB</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>Destination</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>Classe de p&amp;rofil :</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>Prof&amp;ils :</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>&amp;Ajouter</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>&amp;Modifier</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>&amp;Supprimer</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>Saisie</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>Nom du &amp;fichier :</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>&amp;Parcourir…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>&amp;Nom du profil :</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>&amp;Emplacement :</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>&amp;Confirmer la saisie</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>Aban&amp;donner la saisie</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>O&amp;K</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>Annu&amp;ler</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>Sur l’imprimante</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>Nom du fichier</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>Nom du profil</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>Emplacement</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>Dans le menu</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>Présent sur l’imprimante</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>Absent de l’imprimante</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>Affiché dans les menus</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>Non affiché dans les menus</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>Un profil présent sur l’imprimante ne peut pas être supprimé</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>Choisir un profil</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NOM.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>Le nom affiché dans les menus</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>Nom du fichier : jusqu’à 27 caractères, un point et jusqu’à 3 autres ; sans espace ni aucun des signes " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Nom du profil : jusqu’à 30 lettres, chiffres, signes et espaces, sans accents.</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>Aucun profil pour le moment. Ceux d’une imprimante réseau apparaissent dès qu’elle a été interrogée ; Ajouter permet d’en saisir un.</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>Saisie pas encore confirmée</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>Saisie abandonnée</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>Saisie : ce fichier est déjà dans la liste</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>Saisie : la liste est pleine</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>Sélectionnez d’abord un profil.</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>Confirmez ou abandonnez d’abord la saisie.</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>Cliquez sur Ajouter, ou sélectionnez un profil et cliquez sur Modifier.</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>Tapez d’abord un nom de fichier ; il ne peut pas commencer par un point.</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>C’est l’imprimante qui nomme ce fichier ; seul le nom du profil peut être modifié.</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>La saisie n’est pas confirmée : OK l’ignore, Confirmer la saisie la prend en compte.</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>L’imprimante a signalé ce profil la dernière fois qu’elle a été interrogée.</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>L’imprimante n’a pas signalé ce profil la dernière fois qu’elle a été interrogée.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>Saisi à la main.</translation>
        </message>
    </context>
</TS>

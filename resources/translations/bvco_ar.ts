<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download Manager</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Quick Color</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Quick Color:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Brightness</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Brightness:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Color Separation</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Simulation</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>RGB Source:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Halftone:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image Halftone</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text Halftone</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Disk</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Card</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Turn Off</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Turn off %1</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>General settings</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entry</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>On Printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>File Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Profile Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Location</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>In Menu</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>On the printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not on the printer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation type="unfinished" />
        </message>
    </context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <!-- The two panes and the profile menus: KEY, a tab, the words that people read. Every key is listed, also where it reads the same. -->
        <message>
            <source>Color Options</source>
            <translation>Color Options</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>Advanced Color Options</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>Hide Advanced Options</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <translation>Manage Profiles…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>Download Manager</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>Quick Color</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>Quick Color:</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>Brightness</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>Brightness:</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>Color as Grayscale</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>Color Separation</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <translation>Economy Print</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <translation>Edge Strength</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <translation>Edge Strength:</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <translation>Auto Trapping</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <translation>Black Overprint</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <translation>Black Overprint:</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>Image</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>Text</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>Graphics</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>RGB Source:</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>RGB Intent:</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>RGB Gray Treatment:</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>Destination Profile:</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>Halftone:</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <translation>Edge Enhancement:</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>Simulation Profile:</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>Match Paper Color:</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>CMYK Gray Treatment:</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>Image RGB Source</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>Image RGB Intent</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>Image RGB Gray Treatment</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>Image Destination Profile</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>Image Halftone</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <translation>Image Edge Enhancement</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>Text RGB Source</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>Text RGB Intent</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>Text RGB Gray Treatment</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>Text Destination Profile</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>Text Halftone</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <translation>Text Edge Enhancement</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>Graphics RGB Source</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>Graphics RGB Intent</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>Graphics RGB Gray Treatment</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>Graphics Destination Profile</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>Graphics Halftone</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <translation>Graphics Edge Enhancement</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>Simulation Profile</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>Match Paper Color</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>CMYK Gray Treatment</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>Disk</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>Card</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <translation>Profile Management</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>Not available while %1 is on. Turn it off to use this setting.</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>Available only while %1 is set to %2. Choose that to use this setting.</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>Not available while %1 is set to %2. Choose another to use this setting.</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>Only administrators of the print system can manage profiles.</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>%1 is on: one setting is not used.</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>%1 is on: %2 settings are not used.</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>Turn Off</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>Turn off %1</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>General settings</translation>
        </message>
        <!-- The profile management window. -->
        <message>
            <source>RGB</source>
            <translation>RGB Source</translation>
        </message>
        <message>
            <source>SIM</source>
            <translation>Simulation</translation>
        </message>
        <message>
            <source>DST</source>
            <translation>Destination</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <translation>Profile Cla&amp;ss:</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <translation>&amp;Profiles:</translation>
        </message>
        <message>
            <source>Add</source>
            <translation>&amp;Add</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>&amp;Edit</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>&amp;Delete</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>Entry</translation>
        </message>
        <message>
            <source>File Name:</source>
            <translation>&amp;File Name:</translation>
        </message>
        <message>
            <source>Browse...</source>
            <translation>&amp;Browse…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <translation>Profile &amp;Name:</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>L&amp;ocation:</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <translation>&amp;Confirm Entry</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <translation>D&amp;iscard Entry</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>O&amp;K</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cance&amp;l</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>On Printer</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>File Name</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>Profile Name</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>Location</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>In Menu</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>On the printer</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>Not on the printer</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>Shown in the menus</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>Not shown in the menus</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>A profile that is on the printer cannot be deleted</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>Choose a Profile</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NAME.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>The name that the menus show</translation>
        </message>
        <message>
            <source>NameRule</source>
            <translation>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>Entry, not confirmed yet</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>Entry, discarded</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>Entry: this file is in the list already</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>Entry: the list is full</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <translation>Select a profile first.</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <translation>Confirm or discard the entry first.</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <translation>Press Add, or select a profile and press Edit.</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <translation>Type a file name first; it cannot begin with a dot.</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <translation>The printer names this file; only the profile name can be changed.</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <translation>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <translation>The printer reported this profile when it was last asked.</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <translation>The printer did not report this profile when it was last asked.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <translation>Entered by hand.</translation>
        </message>
    </context>
</TS>

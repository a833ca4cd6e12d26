<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Help</name>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder of this computer that appears as a disk inside the emulated Macintosh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as a path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. &quot;Maximum&quot; takes all the room there is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as type/width/height, in pixels, 0 for the maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device or program that the modem port is connected to. Leave it empty for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device or program that the printer port is connected to. Leave it empty for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the Macintosh reaches the network: &quot;slirp&quot; needs no set-up, or the name of a network device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends network packets to other emulators on the local network through UDP.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The UDP port of the tunnel. All emulators that are to meet need the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as a number from 1 to 65535</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with the ROM of a Macintosh. The emulator cannot start without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive that the Macintosh tries to start from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as 0 for any drive, or 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The memory of the Macintosh in megabytes. Old systems may not start with very much of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often the Macintosh screen is drawn. Lower rates leave more time for the processor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as frames per drawing, 0 for dynamic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model that the Macintosh says it is. Mac OS 8 needs the Quadra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as a model number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The processor of the Macintosh, with or without floating-point unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with fpu, as the last digits of 680x0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the processor has a floating-point unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the CD-ROM drive out of the Macintosh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the Macintosh silent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translates the Macintosh&apos;s programs for this computer&apos;s processor as they run. Much faster; needs a 68020 or later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translates floating-point instructions, too. Faster, a little less exact.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The memory for translated programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Throws translated programs away only when they are really no longer valid. Faster.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translates across jumps that always lead to the same place. Faster.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with the table of key codes. Used only with raw key codes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which keys a turn of the mouse wheel presses inside the Macintosh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as 0 for pages, 1 for the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many lines one step of the mouse wheel scrolls.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device that sound goes to. Leave it empty for the usual one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device that sets the loudness. Leave it empty for the usual one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the Macintosh go on when a program reaches for memory that is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rests while the Macintosh has nothing to do and saves this computer&apos;s energy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Items</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page up / page down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor up / down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>68020 with FPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>68030 with FPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCSI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound &amp; Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JIT</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Read the local l&amp;ist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For finding faults in this program: the table shows the second of two equal lists. You see no difference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tr&amp;y the save panel…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For finding faults in this program: shows a panel and writes the chosen place to standard output. Nothing is made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk images of the Macintosh, in their order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk i&amp;mages:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds image files to the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the selected image off the list. The file stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Blank Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes an empty disk image. It is not added to the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shared fol&amp;der:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the shared folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SCSI &amp;ID 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;ROM file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the ROM file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Boot drive:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RA&amp;M size (MB):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M&amp;odel:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor (CP&amp;U):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disable the CD-ROM drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen &amp;mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh r&amp;ate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disable sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Output device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mixer device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use raw &amp;key codes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ke&amp;y code file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the key code file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse &amp;wheel:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;ines to scroll:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Modem port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rinter port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network &amp;device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tunnel the net&amp;work over UDP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;UDP port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Just-in-time compiler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable the &amp;JIT compiler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compile floating-point instr&amp;uctions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache si&amp;ze (KB):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flush the cache lazil&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inline &amp;blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor emulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore &amp;memory faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rest while the Macintosh is &amp;idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Default (empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Default (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If unsure, leave it empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If unsure, leave it at &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::AgreementSheet</name>
    <message>
        <source>Beta Agreement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;This program is a beta version. It changes three things on this computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon&apos;s preferences file, when you press Save or Start;&lt;/li&gt;&lt;li&gt;its own settings, when you press Done in its preferences;&lt;/li&gt;&lt;li&gt;the disk images that you ask it to make.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Keep a copy of what you cannot do without. Disagree ends the program at once, without saving.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disagree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the program at once, without saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Agree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes this sheet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::CreateSheet</name>
    <message>
        <source>New Blank Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the image file, without &quot;.dsk&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size in megabytes. 100 if this is no whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in megabytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size (MB):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the image, and then closes this sheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only moves the bar; making an image does not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a word of a setting&apos;s name, its key or its help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::HelpLine</name>
    <message>
        <source>Move to a setting to read here what it does.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::PreferencesWindow</name>
    <message>
        <source>Quillon Settings Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start is disabled until a place is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beside this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon.app in the folder of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Somewhere else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The place named below. &quot;Quillon&quot; must be part of the name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts what the location names, unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies and stores the choices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the SCS&amp;I tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the settings window has a tab for SCSI. It shows up with Done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit after Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends this program once Quillon has been started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The application that Start launches. &quot;Quillon&quot; must be part of the name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the application.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::SettingsWindow</name>
    <message>
        <source>Quillon Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences file that Save and Start write. Type another place to save to before the first save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences fi&amp;le:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the preferences file of your home folder to the place named here, if there is none yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where Quillon is, and how this program behaves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the preferences file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the program without saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the preferences file and starts Quillon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Blank Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Volume…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beta Agreement…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Quillon Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Quillon Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Quillon Settings %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sets up Quillon, an emulator of 68k Macintosh computers, and starts it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::VolumeModel</name>
    <message>
        <source>Disk image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>desktop::VolumeView</name>
    <message>
        <source>No disk images yet. Press Insert or the button &quot;Add…&quot; to add one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

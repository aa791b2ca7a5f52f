<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>QOLColorDialog</name>
    <message>
        <source>Choose Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QOLColorManipulator</name>
    <message>
        <source>Choose Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olAbout</name>
    <message>
        <source>It uses these libraries, all of them linked dynamically, so that they can be replaced:&lt;ul&gt;&lt;li&gt;OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception&lt;/li&gt;&lt;li&gt;Qt %2: LGPL 3&lt;/li&gt;&lt;li&gt;SQLite: public domain&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd: LGPL 2.1 or later&lt;/li&gt;&lt;li&gt;libspnav: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;Boost: Boost Software License 1.0&lt;/li&gt;&lt;/ul&gt;Their notices are in &lt;i&gt;third-party.md&lt;/i&gt;, beside the documents of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About ORLO</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olBatch</name>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model %1 cannot be drawn: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olChangesView</name>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skipped:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take &amp;All Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2): %3 -&gt; %4
</source>
        <comment>place, key, old and new value</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olExport</name>
    <message>
        <source>%1 is opaque in the file; IGES knows no opacity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands twice in the same place; it is written once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a mesh, which this format cannot hold; it is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>groups of parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 knows no %2; they are not written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> and no </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the writer failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing that this format can hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the writer failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFieldGuard</name>
    <message>
        <source>Only %1 can be entered here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFoldHeader</name>
    <message>
        <source>Folded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFoundSettings</name>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olGivenSettings</name>
    <message>
        <source>&quot;%1&quot; is no setting: expected &quot;KEY=VALUE&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set where somebody can be asked: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olHistoryView</name>
    <message>
        <source>&amp;Go Back...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Going back takes back the save that is chosen and all later ones. What that changes is shown first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <comment>setting, old and new value</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olHostStatePanel</name>
    <message>
        <source>%1 (only recorded)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the host state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olImport</name>
    <message>
        <source>the system ended its reader, probably for want of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged in a way that makes its reader crash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its reader cannot be started (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its reader %1 cannot be started (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it made no progress for %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: this is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has faulty surfaces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the faces of %2 cannot be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaps of %1 up to %2 mm are closed; %3 would distort it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The faces of %1 are not joined; that would distort it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: it has triangles without their points, or points beyond all measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the import options leave nothing of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texture %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texture %1 is too large, with %2 by %3 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The texture %1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part without a name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olImportDialog</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Center to Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place Objects on the Ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &gt; Preferences &gt; FileIO decides over these, format by format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome of the import</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olImportSummary</name>
    <message>
        <source>%1: none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>chords within %1 mm, normals within %2°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fineness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stitching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gaps up to %1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidied up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>meshes merged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty groups removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normals unified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>geometry verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>faults repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>beside the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>beside the model, and in %1 directories</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olInnerParts</name>
    <message>
        <source>%1, %2</source>
        <comment>control, part of it</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olJournalPanel</name>
    <message>
        <source>Host calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olJoystickLink</name>
    <message>
        <source>There is no joystick %1: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joystick %1 is in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joystick %1 has gone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olJsonObject</name>
    <message>
        <source>here or just before, this is no JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object is expected, as {&quot;key&quot;: {&quot;value&quot;: 1}}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here a second time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olLibraryFault</name>
    <message>
        <source>it is no library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMainWindow</name>
    <message>
        <source>ORLO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &gt; Preferences changes what you see here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL. The preferences work without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zoom To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brings what is selected near</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stereo for &amp;Red and Cyan Glasses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trace Ra&amp;ys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the &amp;Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About ORLO</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMessageLine</name>
    <message>
        <source>Close the message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olModelFiles</name>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORLO</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olModelFormat</name>
    <message>
        <source>files without a suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read %1: there is no reader for %2. These can be read: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: there is no writer for %2. These can be written: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olModuleTree</name>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has changes that are not applied yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olNumberText</name>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number up to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olOSGWidget</name>
    <message>
        <source>The clipping planes %1 and %2 are refused: expected two numbers above 0, the far one greater than the near one. Nothing is clipped.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olOutsideLine</name>
    <message>
        <source>%1 set %2 to %3.</source>
        <comment>program, setting and value</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more settings were changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your change to %1 is pending.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPageIndex</name>
    <message>
        <source>%1 controls answer to &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no control &quot;%1&quot;; there is: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPluginLoader</name>
    <message>
        <source>Cannot load the preferences plug-in: there is neither %1 nor %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no entry function %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a module could not be built: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a module could not be built, and does not say why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot load the preferences plug-in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPreferencesDialog</name>
    <message>
        <source>No Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Chan&amp;ge...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Chan&amp;ges...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore &amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search all settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds settings by label, group, tooltip, choice and key (Ctrl+F).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the settings that differ from their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Profile %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore All Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the defaults of this page. Nothing changes before OK or Apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists what OK and Apply will change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is locked: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This change is not applied yet and would be lost:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These %1 changes are not applied yet and would be lost:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All settings have their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All pages show their defaults. OK or Apply makes them count, Cancel takes them back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every setting has its default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>module and setting</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These settings get new values. They stay pending until OK or Apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>preferences.json</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences were written to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences in force were written to %1, without the pending changes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPreferencesFile</name>
    <message>
        <source>It is no file of preferences: it names no format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no file of preferences: its format is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was written by a newer version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no type or no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is of the unknown type &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not %1, as its type %2 asks for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It lists no settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the preferences to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read the preferences from %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot import %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPreferencesSession</name>
    <message>
        <source> All settings of this run were then saved into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1 were changed. That counts from the next start of the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is locked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not known</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPreferencesStore</name>
    <message>
        <source>Cannot read the preferences %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Use that version. If there is none, the file is damaged: move it away to start with defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, or rename its copy %1 to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences file %1 is damaged: %2. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy of %1 was loaded; what was changed after that is not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no copy of it yet, so all settings are at their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its copy cannot be read either (%1), so all settings are at their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences file %1 is damaged: %2. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its folder is read-only, or another program keeps it busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is now kept as %1. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be set aside: %1. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot save the preferences to %1: %2. What it held before is unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olProfiles</name>
    <message>
        <source>&quot;%1&quot; is no name for a profile: it must not be empty, have a slash in it or begin with a dot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; is the site&apos;s and cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete the profile %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olProfilesMenu</name>
    <message>
        <source>&amp;Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (site)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings in force were saved as profile &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olReason</name>
    <message>
        <source>this is no 3MF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no COLLADA file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is cut off or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged or of another format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file %1 that it refers to cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file %1 that it refers to is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it requires the extension %1, which is not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: a node refers to one that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its groups are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: a part of it lies beyond its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: it announces more than it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no glTF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no IGES file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged in line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its content cannot be taken over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point lacks a coordinate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a face has fewer than three corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a face refers to a point that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no OBJ file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is cut off or damaged: in line %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is cut off or damaged: it ends within its points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model ends with points that no face uses; the file may be cut off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The materials file %1 is not there; the model has no colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no OFF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no PLY file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: #%1 refers to #%2, which is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: its parentheses are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no STEP file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes behind its end were passed over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no STL file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of its numbers are words, which count as 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The solid %1 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no VRML file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: line %1 cannot be understood (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of its shapes are lines, points or texts, which are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a group in it holds itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: a face refers to a point that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 that it refers to was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it refers to itself through %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of its meshes are lines or points, which are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large for this machine: %1 GB with %2 GB of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large: %1 GB, of which 2 can be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olRgbFields</name>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <comment>red</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G</source>
        <comment>green</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <comment>blue</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSandbox</name>
    <message>
        <source>The system has no Landlock; models are read without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system takes no seccomp filter; models are read without it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSceneLoaders</name>
    <message>
        <source>OpenSG could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenSG has no loader for %1; options for it are not kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSceneTree</name>
    <message>
        <source>Level %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unnamed group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unnamed part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity: %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSceneView</name>
    <message>
        <source>The 3D view needs an X display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The OpenGL context of this display cannot be used for the 3D view.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSettingDescription</name>
    <message>
        <source>one of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three numbers from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is of the type %1, not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be %1: expected %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSettingMarks</name>
    <message>
        <source>Differs from its default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differs from its default. %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSettingMenu</name>
    <message>
        <source>Set by the site, and locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed, not applied yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set by the site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is only recorded by this host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset to Default: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as &amp;JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Why Is This Locked?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSettingsLock</name>
    <message>
        <source>The settings file %1 is busy: %2 (process %3) holds its lock. What is to be kept there waits for it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSiteDefaults</name>
    <message>
        <source>it cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only root may own and write the file and its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has neither a &quot;value&quot; nor a lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes true or false for &quot;locked&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes a text for &quot;reason&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, where only &quot;value&quot;, &quot;locked&quot; and &quot;reason&quot; can stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This setting is fixed for your site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, line %2: no module has a setting &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1 are ignored: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1, line %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSpacemouseLink</name>
    <message>
        <source>Cannot look for a 3D mouse: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no 3D mouse: its daemon, spacenavd, is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to the daemon of the 3D mouse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daemon of the 3D mouse has gone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olSqlite</name>
    <message>
        <source>no space left on the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it or its folder is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input or output failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its content is no database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row is not what it was</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olStartFault</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preferences cannot be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is left as it is. With the defaults nothing of this run is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another &amp;Store...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Defaults for This Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences (*.db);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in with the preferences cannot be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another &amp;Plug-In...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Plug-In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins (*.so);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olStoreFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no preferences file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its folder cannot be created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is another program&apos;s database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was written by a newer version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its format is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header is not what it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its tables are not what they were</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows were changed or are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its history was changed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olTesselationSettings</name>
    <message>
        <source>T&amp;essellation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chord &amp;Deviation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ma&amp;x Chord Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>St&amp;itching Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets chord deviation, normal tolerance and max chord length together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olToolError</name>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot check %1: there is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be entered: expected %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text or a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a button is not edited but pressed, by click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true, as another one must be chosen instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an item by its number or its text: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the item &quot;%1&quot; is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field is only to be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the field&apos;s validator lets through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 with at most %2 decimals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three numbers from 0 to 1, as [1, 0.5, 0]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text is only to be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a table or tree is not edited; select in it and press its buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a control of its kind is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is neither a table nor a tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing can be selected in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no row %1: it has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1: it has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read the standard input: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot import the standard input. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped: &quot;%1&quot; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 saves cannot be taken back: there are only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left: &quot;%1&quot; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some settings were left as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the button &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 opened, but the answer queued for it is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the box &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the box &quot;%1&quot; has no button &quot;%2&quot;; it has %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a colour dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the directory chooser &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command is missing: %1; see --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command %1, only %2; see --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no edition %1, only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no option %1%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: orlo-prefs [OPTIONS] %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set with --yes: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot make a directory for scratch settings: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read the script %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quote stands within the word %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a blank is missing behind &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VALUE is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no JSON value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; usage: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no type %1, only %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no value of type %2: expected %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number counted from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command %1%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>behind the module only keep may follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is neither put nor get</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no column goes with none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no fact %1%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not fit the fact %2: expected %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no variable can be called %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;; there is: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the library is unloaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a value of a type that settings do not have</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olUndo</name>
    <message>
        <source>is locked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was changed since</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olValue</name>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from -2147483648 to 2147483647</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of texts, as [&quot;a&quot;, &quot;b&quot;]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of numbers, as [1, 0.5]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three numbers, as [1, 0.5, 0]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of colours, as [[0, 0, 0], [1, 1, 1]]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olValueText</name>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olViewport</name>
    <message>
        <source>3D view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The 3D view: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The renderer of the 3D view cannot be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frame of the 3D view could not be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebAccess</name>
    <message>
        <source>The web server does not answer %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebPages</name>
    <message>
        <source>The answer would be too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The application is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State of the host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be changed here; ask with GET.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This host is not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebServer</name>
    <message>
        <source>it is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>others than its owner can read it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The web server cannot use %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ports are numbered 1 to 65535</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>port %1 with %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The web server does not listen on %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orlo</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs --render</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set needs --render or --save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 does not go with --render</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs a window, which --render and --save do without</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--render needs --output PICTURE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--save needs either a model or --sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not go with --render</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only one model can be opened at a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no edition %1; there are essentials, design, professional and enterprise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no page has the setting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

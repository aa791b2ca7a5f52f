<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>olBackgroundTable</name>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical opening angle of the camera, in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Field of View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field of View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance between the two eyes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Eye Separation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eye Separation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance at which both eyes see the same picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zero Parallax Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zero Parallax Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Powerwall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the projected picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection &amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the projected picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection &amp;Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance from the viewer to the projected picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection &amp;Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection Distance</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUII</name>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olDevicesPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joystick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigates with a joystick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;Joystick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of the joystick; the first is 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jo&amp;ystick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t forget to enable the analog mode!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches for a 3D mouse and navigates with it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &amp;3D Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the 3D mouse moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the 3D mouse turns around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rotation Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Object/Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the horizon level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &amp;Two-Axis Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves up and down only where the device is lifted or pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Helicopter Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of the camera above the ground while a fixed height is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;eight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the camera at one height above the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;Fixed Height</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUI</name>
    <message>
        <source>FileIO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Verify Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimi&amp;ze Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the maximum number of import tasks. Changing this value increases memory usage. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ma&amp;x Parallel Processes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Parallel Processes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is used for file conversions, should be writable. If you leave this empty a system tmp path will be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Temporary Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temporary Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tmpPath</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;enter to Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place O&amp;bjects on the Ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Dialog on successful &amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture Compression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Memory &amp;Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Memory Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Megabyte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture Search Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>searchPaths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUIW</name>
    <message>
        <source>Select Texture Search Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path already inserted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUI</name>
    <message>
        <source>Import Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the surfaces beside their triangles, so that they can be tessellated anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Surface Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the parts of each layer into a group of their own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Groups &amp;for Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove groups that hold nothing after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Empty Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give every place that uses a part a copy of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uns&amp;hare Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the transformations to the geometries and remove them from the scene graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flush &amp;Transformations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the normals of adjoining surfaces point to the same side.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge geometries of the same material into one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge Geometries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;urfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves and Polygon Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessellation and Stitching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Specific Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import variants instead of excluding them. (Only Contura wire files)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp;Variants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import empty layers instead of excluding them. (Only Contura wire files)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Empty Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import template geometries instead of excluding them. (Only Contura wire files)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Template Geometries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import lights instead of excluding them. (Only Contura wire files)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Lights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import associative mesh data instead of excluding it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Associative Meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import cameras instead of excluding them. (Only Contura wire files)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import parts referenced by an assembly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Referenced Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import coordinate systems from Catia files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Coordinate Systems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Mesh LODs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import invisible instance nodes instead of excluding them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Invisi&amp;ble Instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legacy Loader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If enabled the legacy jt loader is used for importing jt-files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use legacy &amp;JT loader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Active Layerfilter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breps Handling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tesselate All Breps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load JT Breps Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load XT Breps Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load All Breps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rhino</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If enabled the legacy rhino loader is used for importing 3dm files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use legacy Rhino loader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Nurbs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STL Export Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ascii</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KBX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Vertex Colors</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUIW</name>
    <message>
        <source>KBX 2016/2017</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KBX 2014/2015</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KBX 2013</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KBX 2012</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KBX 2011</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the help comes from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help &amp;Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marvane Knowledge Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path to Installed Help. If help is installed on intranet, change file:// for http://</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop&amp;up Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Popup Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolclips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simple Toolclips</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUII</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUIW</name>
    <message>
        <source>Controls are explained by a short text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls are explained by text and pictures, with the way to the help.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To see any effect while changing this option you need to restart the app!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Toolbutton Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows how many pictures are drawn in a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;FPS in Statusbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing this setting requires a restart of ORLO.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Rendering Log Messages in Terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How opaque the main window is; 1 lets nothing shine through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps panels from being docked to the main window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable &amp;Docking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User &amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUII</name>
    <message>
        <source>MainWindow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language Preferences Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please restart ORLO so that your language changes can take effect.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUI</name>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a scale factor for the marks at the corners of the bounding box of a selection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Visual Si&amp;ze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Visual Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a wireframe on the nodes that would be selected when hovering over the render window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show Preselection Highlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the color of the preselection highlight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;reselection Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preselection Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection Modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the whole group of levels of detail instead of the level that is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;LOD Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scrolls the scene graph to the node that was selected in the render window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Scroll to Selected &amp;Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables the selection of objects with a 100% transparent material in the render window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select 100% &amp;Transparent Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows selected objects with a wireframe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable Wireframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the wireframe over the objects that hide it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always in &amp;Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the color of the wireframe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wireframe Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wireframe Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the wireframe in the color that is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUII</name>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUI</name>
    <message>
        <source>Mirra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directory in which Mirra is installed. Leave it empty to do without.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirra &amp;Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirra Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Mirra Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads the shadow textures of a scene as shades of grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Force Grayscale Shadow Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes materials from the library on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Local &amp;Material Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit that a scene is brought to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit that the lengths of a file are given in; &apos;ignore&apos; takes them as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Units</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUIW</name>
    <message>
        <source>Set Mirra Location</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUI</name>
    <message>
        <source>Navigator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets what dragging the mouse does to the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Navigation Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigation Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets whose mouse handling the navigation imitates. Choosing one presets the matching settings of this page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interaction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interaction Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the navigation speed mode for Two-Axis and Trackball navigation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Speed Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unconstrained</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centers the navigation on the selected objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Au&amp;to Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a scale factor for the dolly speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolly Sp&amp;eed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolly Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the mouse move direction for dolly operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do&amp;lly Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolly Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal and Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverts the Y-Axis for the dolly operations. The X-Axis remains unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert Dolly A&amp;xis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverts dolly direction when using the scroll wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert &amp;Wheel Dolly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the dolly operation to dolly towards the pivot instead of the screen center.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Doll&amp;y To Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bases the panning speed on the distance to the pivot instead of using the click position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pi&amp;vot Based Panning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a scale factor for the panning speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panning Spee&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panning Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbits around the point under the mouse when it rests there before it is dragged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbit &amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets how far the mouse may move, in pixels, and still count as resting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or&amp;bit Detection Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbit Detection Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets how long the mouse has to rest, in milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;rbit Detection Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orbit Detection Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animates the camera change when using Zoom To and Show All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animate camera c&amp;hange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the animated camera change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUII</name>
    <message>
        <source>Navigator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUIW</name>
    <message>
        <source>Trackball</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TwoAxis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olOsbPreferencesGUI</name>
    <message>
        <source>OSB / OPB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The native format has nothing to set.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olPlainText</name>
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
    <name>olPreferences</name>
    <message>
        <source>FileIO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tesselation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUI</name>
    <message>
        <source>Render Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visualization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the realtime antialiasing quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing &amp;Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;nable Postprocess Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable &amp;Realtime Antialiasing on Camera movement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &amp;Stillframe Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows clipping plane and transform handles during interactive stillframe antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Au&amp;xiliary Nodes during antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interactive &amp;Material Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interactive Material Preview: Use OpenGL for Interactive Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use OpenGL for &amp;Interactive Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still&amp;frame AA After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stillframe AA After, in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antialiasing Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Quality Antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Camera &amp;Visualizations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Light Visualizations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Joint Visualizations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Transparent Sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Z Write Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raytracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &amp;Downscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do&amp;wnscale Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downscale Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Render Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If activated ORLO uses a fixed rendering windows resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use Fixed Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel R&amp;esolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Resolution Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Resolution Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables rendering to a 10bit buffer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;10 Bit RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables rendering to a 16bit float buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use 1&amp;6 Bit Float RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Enables single pass stereo rendering on GPUs supporting the required extensions in order to improve performance.&lt;/p&gt;&lt;p&gt;Single Pass Stereo is not available when Multicast Stereo is active.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Single Pass Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables occlusion culling by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Occl&amp;usion Culling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Occlusion Culling Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the occlusion culling mode. Accurate always renders all visible objects while Fast takes the visibility information from the previous frame. Note that the Fast option may cause wrong rendering when there are huge changes between frames.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accurate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renders the whole scene once with all LOD&apos;s and disabled frustum culling to get rid of jerky rendering.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cac&amp;he Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;By default the ORLO process will go to sleep if less than 1 millisecond has passed between two frames to save power. If this option is activated the ORLO process will run in a busy loop and not go to sleep.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable &amp;Main Thread Sleep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Force a glFinish call directly after swap buffers to avoid lag. Enabling reduces performance and scalability for systems running in Alternate Frame SLI mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force G&amp;LFinish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable SLI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the SLI mode to use. Alternate Frame only works correctly for mono rendering by rendering a frame on one GPU and the next on the second GPU. This works best for mono rendering and does not work for virtual reality headsets. Multicast Stereo only works for stereo rendering by using one GPU for each eye and therefore is also compatible with virtual reality headsets.&lt;/p&gt;&lt;p&gt;Changing this option requires a restart of ORLO.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLI Mo&amp;de</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLI Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multicast Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visualization Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;imit Near and Far Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Near Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Near Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Far Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Far Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Realtime Antialiasing Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Quality Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the multisampling factor for opengl realtime antialiasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multisampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Quality Multisampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Quality Raytracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables the use of a pixelfilter to improve multisampling quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Pixelfilter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enables 2x supersampling additional to multisampling. This can greatly increase quality but is also very slow to render.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Supersampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium Quality Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium Quality Multisampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium Quality Raytracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Quality Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Quality Multisampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High Quality Raytracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultra Quality Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultra Quality Multisampling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ultra Quality Raytracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>backgroundTable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hoose Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Headlight &amp;Behaviour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Headlight Behaviour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use Point Headlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigation Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Coo&amp;rdinate System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Navigation Cube</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &amp;Z-Up Coordinate System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress Cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the progress wheel during anti-aliasing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the progress wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If enabled, the progress wheel is placed in the lower left corner of the render view. Otherwise it is attached to the cursor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tatic Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUII</name>
    <message>
        <source>Render Options</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUIW</name>
    <message>
        <source>1 Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8 Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16 Samples</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUI</name>
    <message>
        <source>Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tesselation Topology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance up to which edges count as joined, in millimetres</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the optimizer takes the topology of a model from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Topolog&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Topology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reuse Existing (If Any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Topology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scales the offset between tessellated surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset &amp;Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns faces that point the wrong way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check O&amp;rientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tesselation Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerances to choose from, in millimetres. Double-click one to change it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>qualities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUIW</name>
    <message>
        <source>Tesselation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only positive non zero values are allowed!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teleport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ground &amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ground Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On Ground Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets how to render controllers when starting a session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default &amp;Visualization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Visualization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates collision objects for touch sensors and WebEngines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cr&amp;eate Collision Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Tooltips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>StarVR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch between foveated rendering (with eye-tracked high resolution area) and non-foveated rendering mode (viewports are fixed and not eye-tracked).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Render &amp;Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Render Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foveated Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non-Foveated Rendering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defines percentage of the whole FOV per eye that is used for the high resolution area (e.g. FOV factor 0.35 = 35% of whole eye FOV used for eye tracked viewport)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foveated FO&amp;V Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foveated FOV Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution scale factor for high-resolution (foveated) area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fov&amp;eated Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foveated Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution scale for low-resolution (full FOV, non-tracked) area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Non-Foveated Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Non-Foveated Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution scale for front viewports in non-foveated rendering mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Front View Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front View Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution Scale for side viewports in non-foveated rendering mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side View &amp;Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side View Resolution Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use only one texture per eye in non-foveated rendering mode (instead of the two textures “front” and “side”).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Single Texture per Eye</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUII</name>
    <message>
        <source>Virtual Reality</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Enable Web Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Po&amp;rt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;SSL Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSL Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting the application is mandatory after modifying the localhost only option!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow request from &amp;localhost only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allowed &amp;hosts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names or addresses of the hosts whose requests are answered, one a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &amp;Debug Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restricted python functionality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure P&amp;ython</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUII</name>
    <message>
        <source>WebInterface</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUIW</name>
    <message>
        <source>Enable Web Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you really want to enable the Web Server?
The Web Server allows the execution of Python commands from remote locations!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choosing &quot;Enable&quot; enables the Web Server.
You are advised to set up a local firewall to protect yourself from unauthorized access.

Choosing &quot;Do Not Enable&quot; leaves the Web Server disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do Not Enable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>olWrlPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAD system that the loader takes a file to come from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Op&amp;timization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pro Engineer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes textures into the file instead of beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inline &amp;Textures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

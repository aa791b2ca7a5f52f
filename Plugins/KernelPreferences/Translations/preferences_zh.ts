<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>olBackgroundTable</name>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>窗体1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Vertical opening angle of the camera, in degrees</source>
        <translation>相机的垂直视角，以度为单位</translation>
    </message>
    <message>
        <source>&amp;Field of View</source>
        <translation>视野(&amp;F)</translation>
    </message>
    <message>
        <source>Field of View</source>
        <translation>视野</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>立体</translation>
    </message>
    <message>
        <source>Distance between the two eyes</source>
        <translation>两眼之间的距离</translation>
    </message>
    <message>
        <source>&amp;Eye Separation</source>
        <translation>双眼间距(&amp;E)</translation>
    </message>
    <message>
        <source>Eye Separation</source>
        <translation>双眼间距</translation>
    </message>
    <message>
        <source>Distance at which both eyes see the same picture</source>
        <translation>两眼所见画面重合处的距离</translation>
    </message>
    <message>
        <source>&amp;Zero Parallax Distance</source>
        <translation>零视差距离(&amp;Z)</translation>
    </message>
    <message>
        <source>Zero Parallax Distance</source>
        <translation>零视差距离</translation>
    </message>
    <message>
        <source>Powerwall</source>
        <translation>投影墙</translation>
    </message>
    <message>
        <source>Width of the projected picture</source>
        <translation>投影画面的宽度</translation>
    </message>
    <message>
        <source>Projection &amp;Width</source>
        <translation>投影宽度(&amp;W)</translation>
    </message>
    <message>
        <source>Projection Width</source>
        <translation>投影宽度</translation>
    </message>
    <message>
        <source>Height of the projected picture</source>
        <translation>投影画面的高度</translation>
    </message>
    <message>
        <source>Projection &amp;Height</source>
        <translation>投影高度(&amp;H)</translation>
    </message>
    <message>
        <source>Projection Height</source>
        <translation>投影高度</translation>
    </message>
    <message>
        <source>Distance from the viewer to the projected picture</source>
        <translation>观看者到投影画面的距离</translation>
    </message>
    <message>
        <source>Projection &amp;Distance</source>
        <translation>投影距离(&amp;D)</translation>
    </message>
    <message>
        <source>Projection Distance</source>
        <translation>投影距离</translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUII</name>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
</context>
<context>
    <name>olDevicesPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>窗体1</translation>
    </message>
    <message>
        <source>Joystick</source>
        <translation>操纵杆</translation>
    </message>
    <message>
        <source>Navigates with a joystick</source>
        <translation>使用操纵杆导航</translation>
    </message>
    <message>
        <source>Use &amp;Joystick</source>
        <translation>使用操纵杆(&amp;J)</translation>
    </message>
    <message>
        <source>Number of the joystick; the first is 0</source>
        <translation>操纵杆的编号；第一个为 0</translation>
    </message>
    <message>
        <source>Jo&amp;ystick</source>
        <translation>操纵杆(&amp;Y)</translation>
    </message>
    <message>
        <source>Don&apos;t forget to enable the analog mode!</source>
        <translation>别忘了启用模拟模式！</translation>
    </message>
    <message>
        <source>Space Mouse</source>
        <translation>3D 鼠标</translation>
    </message>
    <message>
        <source>Searches for a 3D mouse and navigates with it</source>
        <translation>查找 3D 鼠标并用它导航</translation>
    </message>
    <message>
        <source>Enable &amp;3D Mouse</source>
        <translation>启用 3D 鼠标(&amp;3)</translation>
    </message>
    <message>
        <source>What the 3D mouse moves</source>
        <translation>3D 鼠标所移动的内容</translation>
    </message>
    <message>
        <source>&amp;View Mode</source>
        <translation>视图模式(&amp;V)</translation>
    </message>
    <message>
        <source>View Mode</source>
        <translation>视图模式</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>What the 3D mouse turns around</source>
        <translation>3D 鼠标旋转时所围绕的点</translation>
    </message>
    <message>
        <source>&amp;Rotation Pivot</source>
        <translation>旋转枢轴点(&amp;R)</translation>
    </message>
    <message>
        <source>Rotation Pivot</source>
        <translation>旋转枢轴点</translation>
    </message>
    <message>
        <source>Selected Object/Origin</source>
        <translation>所选对象/原点</translation>
    </message>
    <message>
        <source>Focus Distance</source>
        <translation>对焦距离</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Keeps the horizon level</source>
        <translation>保持地平线水平</translation>
    </message>
    <message>
        <source>Enable &amp;Two-Axis Mode</source>
        <translation>启用双轴模式(&amp;T)</translation>
    </message>
    <message>
        <source>Moves up and down only where the device is lifted or pressed</source>
        <translation>仅在提起或按下设备时上下移动</translation>
    </message>
    <message>
        <source>&amp;Helicopter Mode</source>
        <translation>直升机模式(&amp;H)</translation>
    </message>
    <message>
        <source>Height of the camera above the ground while a fixed height is used</source>
        <translation>使用固定高度时相机距地面的高度</translation>
    </message>
    <message>
        <source>H&amp;eight</source>
        <translation>高度(&amp;E)</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Keeps the camera at one height above the ground</source>
        <translation>使相机保持在距地面的同一高度</translation>
    </message>
    <message>
        <source>Use &amp;Fixed Height</source>
        <translation>使用固定高度(&amp;F)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUI</name>
    <message>
        <source>FileIO</source>
        <translation>文件 I/O</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>&amp;Verify Geometry</source>
        <translation>验证几何体(&amp;V)</translation>
    </message>
    <message>
        <source>Optimi&amp;ze Geometry</source>
        <translation>优化几何体(&amp;Z)</translation>
    </message>
    <message>
        <source>Sets the maximum number of import tasks. Changing this value increases memory usage. </source>
        <translation>设置导入任务的最大数量。更改此值会增加内存占用。 </translation>
    </message>
    <message>
        <source>Ma&amp;x Parallel Processes</source>
        <translation>最大并行进程数(&amp;X)</translation>
    </message>
    <message>
        <source>Max Parallel Processes</source>
        <translation>最大并行进程数</translation>
    </message>
    <message>
        <source>This is used for file conversions, should be writable. If you leave this empty a system tmp path will be used.</source>
        <translation>用于文件转换，应可写入。如果留空，则使用系统临时路径。</translation>
    </message>
    <message>
        <source>&amp;Temporary Path</source>
        <translation>临时路径(&amp;T)</translation>
    </message>
    <message>
        <source>Temporary Path</source>
        <translation>临时路径</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>选择临时文件路径</translation>
    </message>
    <message>
        <source>Import Dialog</source>
        <translation>导入对话框</translation>
    </message>
    <message>
        <source>C&amp;enter to Origin</source>
        <translation>居中到原点(&amp;E)</translation>
    </message>
    <message>
        <source>Place O&amp;bjects on the Ground</source>
        <translation>将对象置于地面(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Show Dialog</source>
        <translation>显示对话框(&amp;S)</translation>
    </message>
    <message>
        <source>Close Dialog on successful &amp;Import</source>
        <translation>导入成功后关闭对话框(&amp;I)</translation>
    </message>
    <message>
        <source>Texture Compression</source>
        <translation>纹理压缩</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>模式(&amp;M)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Video Memory &amp;Limit</source>
        <translation>显存限制(&amp;L)</translation>
    </message>
    <message>
        <source>Video Memory Limit</source>
        <translation>显存限制</translation>
    </message>
    <message>
        <source>Megabyte</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>Texture Search Paths</source>
        <translation>纹理搜索路径</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>删除(&amp;E)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUIW</name>
    <message>
        <source>Select Texture Search Directory</source>
        <translation>选择纹理搜索目录</translation>
    </message>
    <message>
        <source>Path already inserted!</source>
        <translation>该路径已存在！</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>选择临时文件路径</translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUI</name>
    <message>
        <source>Import Options</source>
        <translation>导入选项</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>常规选项</translation>
    </message>
    <message>
        <source>Keep the surfaces beside their triangles, so that they can be tessellated anew.</source>
        <translation>在三角形之外保留曲面，以便重新镶嵌。</translation>
    </message>
    <message>
        <source>&amp;Keep Surface Data</source>
        <translation>保留曲面数据(&amp;K)</translation>
    </message>
    <message>
        <source>Put the parts of each layer into a group of their own.</source>
        <translation>将每个图层的零件放入单独的组。</translation>
    </message>
    <message>
        <source>Create Groups &amp;for Layers</source>
        <translation>为图层创建组(&amp;F)</translation>
    </message>
    <message>
        <source>Remove groups that hold nothing after the import.</source>
        <translation>导入后移除不含任何内容的组。</translation>
    </message>
    <message>
        <source>&amp;Remove Empty Groups</source>
        <translation>移除空组(&amp;R)</translation>
    </message>
    <message>
        <source>Give every place that uses a part a copy of its own.</source>
        <translation>为每个使用零件的位置提供各自的副本。</translation>
    </message>
    <message>
        <source>Uns&amp;hare Nodes</source>
        <translation>取消共享节点(&amp;H)</translation>
    </message>
    <message>
        <source>Apply the transformations to the geometries and remove them from the scene graph.</source>
        <translation>将变换应用于几何体，并将其从场景图中移除。</translation>
    </message>
    <message>
        <source>Flush &amp;Transformations</source>
        <translation>应用变换(&amp;T)</translation>
    </message>
    <message>
        <source>Let the normals of adjoining surfaces point to the same side.</source>
        <translation>使相邻曲面的法线指向同一侧。</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>统一曲面法线(&amp;Y)</translation>
    </message>
    <message>
        <source>Merge geometries of the same material into one.</source>
        <translation>将相同材质的几何体合并为一个。</translation>
    </message>
    <message>
        <source>Merge Geometries</source>
        <translation>合并几何体</translation>
    </message>
    <message>
        <source>S&amp;urfaces</source>
        <translation>曲面(&amp;U)</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>曲面</translation>
    </message>
    <message>
        <source>Import none</source>
        <translation>不导入</translation>
    </message>
    <message>
        <source>Import visible</source>
        <translation>导入可见项</translation>
    </message>
    <message>
        <source>Import all</source>
        <translation>导入全部</translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation>曲线和多段线(&amp;L)</translation>
    </message>
    <message>
        <source>Curves and Polygon Lines</source>
        <translation>曲线和多段线</translation>
    </message>
    <message>
        <source>&amp;Meshes</source>
        <translation>网格(&amp;M)</translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Tessellation and Stitching</source>
        <translation>镶嵌和缝合</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>File Specific Options</source>
        <translation>文件特定选项</translation>
    </message>
    <message>
        <source>Import variants instead of excluding them. (Only Contura wire files)</source>
        <translation>导入变型，而不是将其排除。（仅 Contura wire 文件）</translation>
    </message>
    <message>
        <source>Import &amp;Variants</source>
        <translation>导入变型(&amp;V)</translation>
    </message>
    <message>
        <source>Import empty layers instead of excluding them. (Only Contura wire files)</source>
        <translation>导入空图层，而不是将其排除。（仅 Contura wire 文件）</translation>
    </message>
    <message>
        <source>Import Empty Layers</source>
        <translation>导入空图层</translation>
    </message>
    <message>
        <source>Import template geometries instead of excluding them. (Only Contura wire files)</source>
        <translation>导入模板几何体，而不是将其排除。（仅 Contura wire 文件）</translation>
    </message>
    <message>
        <source>Import Template Geometries</source>
        <translation>导入模板几何体</translation>
    </message>
    <message>
        <source>Import lights instead of excluding them. (Only Contura wire files)</source>
        <translation>导入光源，而不是将其排除。（仅 Contura wire 文件）</translation>
    </message>
    <message>
        <source>Import Lights</source>
        <translation>导入光源</translation>
    </message>
    <message>
        <source>Import associative mesh data instead of excluding it.</source>
        <translation>导入关联网格数据，而不是将其排除。</translation>
    </message>
    <message>
        <source>Import Associative Meshes</source>
        <translation>导入关联网格</translation>
    </message>
    <message>
        <source>Import cameras instead of excluding them. (Only Contura wire files)</source>
        <translation>导入相机，而不是将其排除。（仅 Contura wire 文件）</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>导入相机</translation>
    </message>
    <message>
        <source>Import parts referenced by an assembly.</source>
        <translation>导入装配体引用的零件。</translation>
    </message>
    <message>
        <source>Import Referenced Files</source>
        <translation>导入引用的文件</translation>
    </message>
    <message>
        <source>Import coordinate systems from Catia files.</source>
        <translation>从 Catia 文件导入坐标系。</translation>
    </message>
    <message>
        <source>Import Coordinate Systems</source>
        <translation>导入坐标系</translation>
    </message>
    <message>
        <source>Import Mesh LODs</source>
        <translation>导入网格 LOD</translation>
    </message>
    <message>
        <source>Import invisible instance nodes instead of excluding them.</source>
        <translation>导入不可见的实例节点，而不是将其排除。</translation>
    </message>
    <message>
        <source>Import Invisi&amp;ble Instances</source>
        <translation>导入不可见实例(&amp;B)</translation>
    </message>
    <message>
        <source>Legacy Loader</source>
        <translation>旧版加载器</translation>
    </message>
    <message>
        <source>If enabled the legacy jt loader is used for importing jt-files.</source>
        <translation>启用后，使用旧版 JT 加载器导入 JT 文件。</translation>
    </message>
    <message>
        <source>Use legacy &amp;JT loader</source>
        <translation>使用旧版 JT 加载器(&amp;J)</translation>
    </message>
    <message>
        <source>Use Active Layerfilter</source>
        <translation>使用活动图层过滤器</translation>
    </message>
    <message>
        <source>Breps Handling</source>
        <translation>B-rep 处理</translation>
    </message>
    <message>
        <source>Tesselate All Breps</source>
        <translation>镶嵌所有 B-rep</translation>
    </message>
    <message>
        <source>Load JT Breps Only</source>
        <translation>仅加载 JT B-rep</translation>
    </message>
    <message>
        <source>Load XT Breps Only</source>
        <translation>仅加载 XT B-rep</translation>
    </message>
    <message>
        <source>Load All Breps</source>
        <translation>加载所有 B-rep</translation>
    </message>
    <message>
        <source>Rhino</source>
        <translation>Rhino</translation>
    </message>
    <message>
        <source>If enabled the legacy rhino loader is used for importing 3dm files.</source>
        <translation>启用后，使用旧版 Rhino 加载器导入 3dm 文件。</translation>
    </message>
    <message>
        <source>Use legacy Rhino loader</source>
        <translation>使用旧版 Rhino 加载器</translation>
    </message>
    <message>
        <source>Import Nurbs</source>
        <translation>导入 NURBS</translation>
    </message>
    <message>
        <source>STL Export Format</source>
        <translation>STL 导出格式</translation>
    </message>
    <message>
        <source>Ascii</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>二进制</translation>
    </message>
    <message>
        <source>KBX</source>
        <translation>KBX</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>版本(&amp;V)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>格式(&amp;F)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>&amp;Export Vertex Colors</source>
        <translation>导出顶点颜色(&amp;E)</translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUIW</name>
    <message>
        <source>KBX 2016/2017</source>
        <translation>KBX 2016/2017</translation>
    </message>
    <message>
        <source>KBX 2014/2015</source>
        <translation>KBX 2014/2015</translation>
    </message>
    <message>
        <source>KBX 2013</source>
        <translation>KBX 2013</translation>
    </message>
    <message>
        <source>KBX 2012</source>
        <translation>KBX 2012</translation>
    </message>
    <message>
        <source>KBX 2011</source>
        <translation>KBX 2011</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Where the help comes from</source>
        <translation>帮助的来源</translation>
    </message>
    <message>
        <source>Help &amp;Location</source>
        <translation>帮助位置(&amp;L)</translation>
    </message>
    <message>
        <source>Help Location</source>
        <translation>帮助位置</translation>
    </message>
    <message>
        <source>Marvane Knowledge Network</source>
        <translation>Marvane Knowledge Network</translation>
    </message>
    <message>
        <source>Installed Help</source>
        <translation>已安装的帮助</translation>
    </message>
    <message>
        <source>Path to Installed Help. If help is installed on intranet, change file:// for http://</source>
        <translation>已安装帮助的路径。如果帮助安装在内网中，请将 file:// 改为 http://</translation>
    </message>
    <message>
        <source>&amp;Help Path</source>
        <translation>帮助路径(&amp;H)</translation>
    </message>
    <message>
        <source>Help Path</source>
        <translation>帮助路径</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Pop&amp;up Help</source>
        <translation>弹出式帮助(&amp;U)</translation>
    </message>
    <message>
        <source>Popup Help</source>
        <translation>弹出式帮助</translation>
    </message>
    <message>
        <source>Toolclips</source>
        <translation>图文提示</translation>
    </message>
    <message>
        <source>Simple Toolclips</source>
        <translation>简单提示</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUII</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUIW</name>
    <message>
        <source>Controls are explained by a short text.</source>
        <translation>用简短文字说明控件。</translation>
    </message>
    <message>
        <source>Controls are explained by text and pictures, with the way to the help.</source>
        <translation>用文字和图片说明控件，并指出如何打开帮助。</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>窗体1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>To see any effect while changing this option you need to restart the app!</source>
        <translation>更改此选项后，需要重新启动应用程序才能生效！</translation>
    </message>
    <message>
        <source>Show &amp;Toolbutton Text</source>
        <translation>显示工具按钮文本(&amp;T)</translation>
    </message>
    <message>
        <source>Shows how many pictures are drawn in a second</source>
        <translation>显示每秒绘制的画面数</translation>
    </message>
    <message>
        <source>Show &amp;FPS in Statusbar</source>
        <translation>在状态栏显示 FPS(&amp;F)</translation>
    </message>
    <message>
        <source>Changing this setting requires a restart of ORLO.</source>
        <translation>更改此设置需要重新启动 ORLO。</translation>
    </message>
    <message>
        <source>Show &amp;Rendering Log Messages in Terminal</source>
        <translation>在终端显示渲染日志消息(&amp;R)</translation>
    </message>
    <message>
        <source>How opaque the main window is; 1 lets nothing shine through</source>
        <translation>主窗口的不透明程度；1 表示完全不透明</translation>
    </message>
    <message>
        <source>&amp;Window Opacity</source>
        <translation>窗口不透明度(&amp;W)</translation>
    </message>
    <message>
        <source>Window Opacity</source>
        <translation>窗口不透明度</translation>
    </message>
    <message>
        <source>Keeps panels from being docked to the main window</source>
        <translation>禁止将面板停靠到主窗口</translation>
    </message>
    <message>
        <source>Disable &amp;Docking</source>
        <translation>禁用停靠(&amp;D)</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>下次启动时生效</translation>
    </message>
    <message>
        <source>User &amp;Language</source>
        <translation>用户语言(&amp;L)</translation>
    </message>
    <message>
        <source>User Language</source>
        <translation>用户语言</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUII</name>
    <message>
        <source>MainWindow</source>
        <translation>主窗口</translation>
    </message>
    <message>
        <source>Language Preferences Change</source>
        <translation>语言首选项更改</translation>
    </message>
    <message>
        <source>Please restart ORLO so that your language changes can take effect.</source>
        <translation>请重新启动 ORLO，使语言更改生效。</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUI</name>
    <message>
        <source>Selection</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Sets a scale factor for the marks at the corners of the bounding box of a selection.</source>
        <translation>设置所选对象包围盒各角标记的缩放系数。</translation>
    </message>
    <message>
        <source>Bounding Box Visual Si&amp;ze</source>
        <translation>包围盒显示大小(&amp;Z)</translation>
    </message>
    <message>
        <source>Bounding Box Visual Size</source>
        <translation>包围盒显示大小</translation>
    </message>
    <message>
        <source>Shows a wireframe on the nodes that would be selected when hovering over the render window.</source>
        <translation>鼠标悬停在渲染窗口上时，用线框显示将被选中的节点。</translation>
    </message>
    <message>
        <source>&amp;Show Preselection Highlight</source>
        <translation>显示预选高亮(&amp;S)</translation>
    </message>
    <message>
        <source>Sets the color of the preselection highlight.</source>
        <translation>设置预选高亮的颜色。</translation>
    </message>
    <message>
        <source>P&amp;reselection Color</source>
        <translation>预选颜色(&amp;R)</translation>
    </message>
    <message>
        <source>Preselection Color</source>
        <translation>预选颜色</translation>
    </message>
    <message>
        <source>Selection Modes</source>
        <translation>选择模式</translation>
    </message>
    <message>
        <source>Selects the whole group of levels of detail instead of the level that is shown.</source>
        <translation>选择整组细节层次，而不是当前显示的层次。</translation>
    </message>
    <message>
        <source>&amp;LOD Selection</source>
        <translation>LOD 选择(&amp;L)</translation>
    </message>
    <message>
        <source>Scrolls the scene graph to the node that was selected in the render window.</source>
        <translation>将场景图滚动到在渲染窗口中选中的节点。</translation>
    </message>
    <message>
        <source>Auto Scroll to Selected &amp;Node</source>
        <translation>自动滚动到所选节点(&amp;N)</translation>
    </message>
    <message>
        <source>Enables the selection of objects with a 100% transparent material in the render window.</source>
        <translation>允许在渲染窗口中选择材质为 100% 透明的对象。</translation>
    </message>
    <message>
        <source>Select 100% &amp;Transparent Objects</source>
        <translation>选择 100% 透明的对象(&amp;T)</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>线框</translation>
    </message>
    <message>
        <source>Shows selected objects with a wireframe.</source>
        <translation>用线框显示所选对象。</translation>
    </message>
    <message>
        <source>&amp;Enable Wireframe</source>
        <translation>启用线框(&amp;E)</translation>
    </message>
    <message>
        <source>Draws the wireframe over the objects that hide it.</source>
        <translation>将线框绘制在遮挡它的对象之上。</translation>
    </message>
    <message>
        <source>Always in &amp;Front</source>
        <translation>始终在最前(&amp;F)</translation>
    </message>
    <message>
        <source>Sets the color of the wireframe.</source>
        <translation>设置线框的颜色。</translation>
    </message>
    <message>
        <source>&amp;Wireframe Color</source>
        <translation>线框颜色(&amp;W)</translation>
    </message>
    <message>
        <source>Wireframe Color</source>
        <translation>线框颜色</translation>
    </message>
    <message>
        <source>Shows the wireframe in the color that is chosen.</source>
        <translation>以所选颜色显示线框。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUII</name>
    <message>
        <source>Selection</source>
        <translation>选择</translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUI</name>
    <message>
        <source>Mirra</source>
        <translation>Mirra</translation>
    </message>
    <message>
        <source>Loader</source>
        <translation>加载器</translation>
    </message>
    <message>
        <source>Directory in which Mirra is installed. Leave it empty to do without.</source>
        <translation>Mirra 的安装目录。留空则不使用。</translation>
    </message>
    <message>
        <source>Mirra &amp;Location</source>
        <translation>Mirra 位置(&amp;L)</translation>
    </message>
    <message>
        <source>Mirra Location</source>
        <translation>Mirra 位置</translation>
    </message>
    <message>
        <source>Set Mirra Location</source>
        <translation>设置 Mirra 位置</translation>
    </message>
    <message>
        <source>Reads the shadow textures of a scene as shades of grey</source>
        <translation>将场景的阴影纹理读取为灰度</translation>
    </message>
    <message>
        <source>&amp;Force Grayscale Shadow Texture</source>
        <translation>强制使用灰度阴影纹理(&amp;F)</translation>
    </message>
    <message>
        <source>Takes materials from the library on this computer</source>
        <translation>使用本机库中的材质</translation>
    </message>
    <message>
        <source>Use Local &amp;Material Library</source>
        <translation>使用本地材质库(&amp;M)</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Unit that a scene is brought to</source>
        <translation>场景要转换成的单位</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>单位(&amp;U)</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Unit that the lengths of a file are given in; &apos;ignore&apos; takes them as they are</source>
        <translation>文件中长度所用的单位；“ignore”表示按原值读取</translation>
    </message>
    <message>
        <source>&amp;Import Units</source>
        <translation>导入单位(&amp;I)</translation>
    </message>
    <message>
        <source>Import Units</source>
        <translation>导入单位</translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUIW</name>
    <message>
        <source>Set Mirra Location</source>
        <translation>设置 Mirra 位置</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUI</name>
    <message>
        <source>Navigator</source>
        <translation>导航器</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>Sets what dragging the mouse does to the camera</source>
        <translation>设置拖动鼠标时相机的动作</translation>
    </message>
    <message>
        <source>&amp;Navigation Mode</source>
        <translation>导航模式(&amp;N)</translation>
    </message>
    <message>
        <source>Navigation Mode</source>
        <translation>导航模式</translation>
    </message>
    <message>
        <source>Sets whose mouse handling the navigation imitates. Choosing one presets the matching settings of this page.</source>
        <translation>设置导航模仿哪种程序的鼠标操作。选择后，本页的相应设置会预设为匹配的值。</translation>
    </message>
    <message>
        <source>&amp;Interaction Mode</source>
        <translation>交互模式(&amp;I)</translation>
    </message>
    <message>
        <source>Interaction Mode</source>
        <translation>交互模式</translation>
    </message>
    <message>
        <source>Set the navigation speed mode for Two-Axis and Trackball navigation</source>
        <translation>设置双轴和轨迹球导航的速度模式</translation>
    </message>
    <message>
        <source>&amp;Speed Mode</source>
        <translation>速度模式(&amp;S)</translation>
    </message>
    <message>
        <source>Speed Mode</source>
        <translation>速度模式</translation>
    </message>
    <message>
        <source>Unconstrained</source>
        <translation>不限制</translation>
    </message>
    <message>
        <source>Limited</source>
        <translation>有限制</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Centers the navigation on the selected objects</source>
        <translation>以所选对象为导航中心</translation>
    </message>
    <message>
        <source>Au&amp;to Center</source>
        <translation>自动居中(&amp;T)</translation>
    </message>
    <message>
        <source>Dolly</source>
        <translation>推拉</translation>
    </message>
    <message>
        <source>Sets a scale factor for the dolly speed.</source>
        <translation>设置推拉速度的缩放系数。</translation>
    </message>
    <message>
        <source>Dolly Sp&amp;eed</source>
        <translation>推拉速度(&amp;E)</translation>
    </message>
    <message>
        <source>Dolly Speed</source>
        <translation>推拉速度</translation>
    </message>
    <message>
        <source>Sets the mouse move direction for dolly operations</source>
        <translation>设置推拉操作的鼠标移动方向</translation>
    </message>
    <message>
        <source>Do&amp;lly Axis</source>
        <translation>推拉轴(&amp;L)</translation>
    </message>
    <message>
        <source>Dolly Axis</source>
        <translation>推拉轴</translation>
    </message>
    <message>
        <source>Vertical Only</source>
        <translation>仅垂直</translation>
    </message>
    <message>
        <source>Horizontal Only</source>
        <translation>仅水平</translation>
    </message>
    <message>
        <source>Horizontal and Vertical</source>
        <translation>水平和垂直</translation>
    </message>
    <message>
        <source>Inverts the Y-Axis for the dolly operations. The X-Axis remains unchanged</source>
        <translation>反转推拉操作的 Y 轴。X 轴保持不变</translation>
    </message>
    <message>
        <source>Invert Dolly A&amp;xis</source>
        <translation>反转推拉轴(&amp;X)</translation>
    </message>
    <message>
        <source>Inverts dolly direction when using the scroll wheel</source>
        <translation>反转使用滚轮时的推拉方向</translation>
    </message>
    <message>
        <source>Invert &amp;Wheel Dolly</source>
        <translation>反转滚轮推拉(&amp;W)</translation>
    </message>
    <message>
        <source>Sets the dolly operation to dolly towards the pivot instead of the screen center.</source>
        <translation>使推拉操作朝向枢轴点，而不是屏幕中心。</translation>
    </message>
    <message>
        <source>Doll&amp;y To Pivot</source>
        <translation>朝枢轴点推拉(&amp;Y)</translation>
    </message>
    <message>
        <source>Panning</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Bases the panning speed on the distance to the pivot instead of using the click position</source>
        <translation>根据到枢轴点的距离确定平移速度，而不是根据单击位置</translation>
    </message>
    <message>
        <source>Pi&amp;vot Based Panning</source>
        <translation>基于枢轴点的平移(&amp;V)</translation>
    </message>
    <message>
        <source>Sets a scale factor for the panning speed.</source>
        <translation>设置平移速度的缩放系数。</translation>
    </message>
    <message>
        <source>Panning Spee&amp;d</source>
        <translation>平移速度(&amp;D)</translation>
    </message>
    <message>
        <source>Panning Speed</source>
        <translation>平移速度</translation>
    </message>
    <message>
        <source>Orbit</source>
        <translation>环绕</translation>
    </message>
    <message>
        <source>Orbits around the point under the mouse when it rests there before it is dragged</source>
        <translation>如果鼠标在拖动前停留，则绕鼠标所在的点环绕</translation>
    </message>
    <message>
        <source>Orbit &amp;Mode</source>
        <translation>环绕模式(&amp;M)</translation>
    </message>
    <message>
        <source>Sets how far the mouse may move, in pixels, and still count as resting</source>
        <translation>设置鼠标移动多少像素以内仍视为停留</translation>
    </message>
    <message>
        <source>Or&amp;bit Detection Area</source>
        <translation>环绕检测区域(&amp;B)</translation>
    </message>
    <message>
        <source>Orbit Detection Area</source>
        <translation>环绕检测区域</translation>
    </message>
    <message>
        <source>Sets how long the mouse has to rest, in milliseconds</source>
        <translation>设置鼠标需要停留多久，以毫秒为单位</translation>
    </message>
    <message>
        <source>O&amp;rbit Detection Time</source>
        <translation>环绕检测时间(&amp;R)</translation>
    </message>
    <message>
        <source>Orbit Detection Time</source>
        <translation>环绕检测时间</translation>
    </message>
    <message>
        <source>Camera Animation</source>
        <translation>相机动画</translation>
    </message>
    <message>
        <source>Animates the camera change when using Zoom To and Show All</source>
        <translation>使用“缩放至”和“显示全部”时，以动画显示相机变化</translation>
    </message>
    <message>
        <source>Animate camera c&amp;hange</source>
        <translation>以动画显示相机变化(&amp;H)</translation>
    </message>
    <message>
        <source>Length of the animated camera change</source>
        <translation>相机变化动画的时长</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>时长(&amp;U)</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUII</name>
    <message>
        <source>Navigator</source>
        <translation>导航器</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUIW</name>
    <message>
        <source>Trackball</source>
        <translation>轨迹球</translation>
    </message>
    <message>
        <source>TwoAxis</source>
        <translation>双轴</translation>
    </message>
    <message>
        <source>Fly</source>
        <translation>飞行</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
</context>
<context>
    <name>olOsbPreferencesGUI</name>
    <message>
        <source>OSB / OPB</source>
        <translation>OSB / OPB</translation>
    </message>
    <message>
        <source>The native format has nothing to set.</source>
        <translation>原生格式没有可设置的内容。</translation>
    </message>
</context>
<context>
    <name>olPlainText</name>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>one value of a list, and the next</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>olPreferences</name>
    <message>
        <source>FileIO</source>
        <translation>文件 I/O</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Tesselation</source>
        <translation>镶嵌</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUI</name>
    <message>
        <source>Render Options</source>
        <translation>渲染选项</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>渲染</translation>
    </message>
    <message>
        <source>Visualization</source>
        <translation>可视化</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>抗锯齿</translation>
    </message>
    <message>
        <source>Sets the realtime antialiasing quality</source>
        <translation>设置实时抗锯齿的质量</translation>
    </message>
    <message>
        <source>Antialiasing &amp;Quality</source>
        <translation>抗锯齿质量(&amp;Q)</translation>
    </message>
    <message>
        <source>Antialiasing Quality</source>
        <translation>抗锯齿质量</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>2x</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>4x</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>8x</source>
        <translation>8x</translation>
    </message>
    <message>
        <source>16x</source>
        <translation>16x</translation>
    </message>
    <message>
        <source>E&amp;nable Postprocess Antialiasing</source>
        <translation>启用后处理抗锯齿(&amp;N)</translation>
    </message>
    <message>
        <source>Disable &amp;Realtime Antialiasing on Camera movement</source>
        <translation>相机移动时禁用实时抗锯齿(&amp;R)</translation>
    </message>
    <message>
        <source>Enable &amp;Stillframe Antialiasing</source>
        <translation>启用静止帧抗锯齿(&amp;S)</translation>
    </message>
    <message>
        <source>Shows clipping plane and transform handles during interactive stillframe antialiasing</source>
        <translation>在交互式静止帧抗锯齿期间显示裁剪平面和变换手柄</translation>
    </message>
    <message>
        <source>Show Au&amp;xiliary Nodes during antialiasing</source>
        <translation>抗锯齿期间显示辅助节点(&amp;X)</translation>
    </message>
    <message>
        <source>Interactive &amp;Material Preview</source>
        <translation>交互式材质预览(&amp;M)</translation>
    </message>
    <message>
        <source>Interactive Material Preview: Use OpenGL for Interactive Rendering</source>
        <translation>交互式材质预览：使用 OpenGL 进行交互式渲染</translation>
    </message>
    <message>
        <source>Use OpenGL for &amp;Interactive Rendering</source>
        <translation>使用 OpenGL 进行交互式渲染(&amp;I)</translation>
    </message>
    <message>
        <source>Still&amp;frame AA After</source>
        <translation>静止帧抗锯齿延迟(&amp;F)</translation>
    </message>
    <message>
        <source>Stillframe AA After, in seconds</source>
        <translation>静止帧抗锯齿延迟，以秒为单位</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Antialiasing Distance</source>
        <translation>抗锯齿距离</translation>
    </message>
    <message>
        <source>Antialiasing Scale</source>
        <translation>抗锯齿比例</translation>
    </message>
    <message>
        <source>High Quality Antialiasing</source>
        <translation>高质量抗锯齿</translation>
    </message>
    <message>
        <source>Show Camera &amp;Visualizations</source>
        <translation>显示相机可视化(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Light Visualizations</source>
        <translation>显示光源可视化(&amp;L)</translation>
    </message>
    <message>
        <source>Show &amp;Joint Visualizations</source>
        <translation>显示关节可视化(&amp;J)</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>&amp;Transparent Sorting</source>
        <translation>透明对象排序(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Z Write Transparency</source>
        <translation>透明对象写入 Z 缓冲(&amp;Z)</translation>
    </message>
    <message>
        <source>Raytracing</source>
        <translation>光线追踪</translation>
    </message>
    <message>
        <source>Enable &amp;Downscale</source>
        <translation>启用分辨率缩减(&amp;D)</translation>
    </message>
    <message>
        <source>Do&amp;wnscale Quality</source>
        <translation>分辨率缩减质量(&amp;W)</translation>
    </message>
    <message>
        <source>Downscale Quality</source>
        <translation>分辨率缩减质量</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Render Window</source>
        <translation>渲染窗口</translation>
    </message>
    <message>
        <source>If activated ORLO uses a fixed rendering windows resolution</source>
        <translation>启用后，ORLO 使用固定的渲染窗口分辨率</translation>
    </message>
    <message>
        <source>&amp;Use Fixed Resolution</source>
        <translation>使用固定分辨率(&amp;U)</translation>
    </message>
    <message>
        <source>Pixel R&amp;esolution</source>
        <translation>像素分辨率(&amp;E)</translation>
    </message>
    <message>
        <source>Pixel Resolution Width</source>
        <translation>像素分辨率宽度</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Pixel Resolution Height</source>
        <translation>像素分辨率高度</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Advanced Rendering</source>
        <translation>高级渲染</translation>
    </message>
    <message>
        <source>Enables rendering to a 10bit buffer.</source>
        <translation>启用渲染到 10 位缓冲区。</translation>
    </message>
    <message>
        <source>Use &amp;10 Bit RGB</source>
        <translation>使用 10 位 RGB(&amp;1)</translation>
    </message>
    <message>
        <source>Enables rendering to a 16bit float buffer</source>
        <translation>启用渲染到 16 位浮点缓冲区</translation>
    </message>
    <message>
        <source>Use 1&amp;6 Bit Float RGB</source>
        <translation>使用 16 位浮点 RGB(&amp;6)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Enables single pass stereo rendering on GPUs supporting the required extensions in order to improve performance.&lt;/p&gt;&lt;p&gt;Single Pass Stereo is not available when Multicast Stereo is active.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;在支持所需扩展的 GPU 上启用单通道立体渲染，以提高性能。&lt;/p&gt;&lt;p&gt;多播立体启用时，单通道立体不可用。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Single Pass Stereo</source>
        <translation>单通道立体(&amp;S)</translation>
    </message>
    <message>
        <source>Enables occlusion culling by default</source>
        <translation>默认启用遮挡剔除</translation>
    </message>
    <message>
        <source>Occl&amp;usion Culling</source>
        <translation>遮挡剔除(&amp;U)</translation>
    </message>
    <message>
        <source>Occlusion Culling Mode</source>
        <translation>遮挡剔除模式</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the occlusion culling mode. Accurate always renders all visible objects while Fast takes the visibility information from the previous frame. Note that the Fast option may cause wrong rendering when there are huge changes between frames.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;设置遮挡剔除模式。“精确”始终渲染所有可见对象，“快速”则使用上一帧的可见性信息。请注意，如果帧与帧之间变化很大，“快速”选项可能导致渲染错误。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Accurate</source>
        <translation>精确</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Renders the whole scene once with all LOD&apos;s and disabled frustum culling to get rid of jerky rendering.</source>
        <translation>在禁用视锥剔除的情况下，以所有 LOD 将整个场景渲染一次，以避免渲染卡顿。</translation>
    </message>
    <message>
        <source>Cac&amp;he Geometry</source>
        <translation>缓存几何体(&amp;H)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;By default the ORLO process will go to sleep if less than 1 millisecond has passed between two frames to save power. If this option is activated the ORLO process will run in a busy loop and not go to sleep.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;默认情况下，如果两帧间隔不到 1 毫秒，ORLO 进程会进入休眠以节省电能。启用此选项后，ORLO 进程将持续循环运行而不休眠。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Disable &amp;Main Thread Sleep</source>
        <translation>禁用主线程休眠(&amp;M)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Force a glFinish call directly after swap buffers to avoid lag. Enabling reduces performance and scalability for systems running in Alternate Frame SLI mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;在交换缓冲区之后立即强制调用 glFinish，以避免延迟。启用后，以交替帧 SLI 模式运行的系统的性能和可扩展性会降低。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Force G&amp;LFinish</source>
        <translation>强制调用 GLFinish(&amp;L)</translation>
    </message>
    <message>
        <source>SLI</source>
        <translation>SLI</translation>
    </message>
    <message>
        <source>&amp;Enable SLI</source>
        <translation>启用 SLI(&amp;E)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the SLI mode to use. Alternate Frame only works correctly for mono rendering by rendering a frame on one GPU and the next on the second GPU. This works best for mono rendering and does not work for virtual reality headsets. Multicast Stereo only works for stereo rendering by using one GPU for each eye and therefore is also compatible with virtual reality headsets.&lt;/p&gt;&lt;p&gt;Changing this option requires a restart of ORLO.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;设置要使用的 SLI 模式。“交替帧”只能正确用于单目渲染：一帧在一个 GPU 上渲染，下一帧在第二个 GPU 上渲染。它最适合单目渲染，不适用于虚拟现实头戴设备。“多播立体”只能用于立体渲染，每只眼睛使用一个 GPU，因此也兼容虚拟现实头戴设备。&lt;/p&gt;&lt;p&gt;更改此选项需要重新启动 ORLO。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>SLI Mo&amp;de</source>
        <translation>SLI 模式(&amp;D)</translation>
    </message>
    <message>
        <source>SLI Mode</source>
        <translation>SLI 模式</translation>
    </message>
    <message>
        <source>Alternate Frame</source>
        <translation>交替帧</translation>
    </message>
    <message>
        <source>Multicast Stereo</source>
        <translation>多播立体</translation>
    </message>
    <message>
        <source>Visualization Advanced</source>
        <translation>高级可视化</translation>
    </message>
    <message>
        <source>L&amp;imit Near and Far Clipping Plane</source>
        <translation>限制近裁剪平面和远裁剪平面(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Near Clipping Plane</source>
        <translation>近裁剪平面(&amp;N)</translation>
    </message>
    <message>
        <source>Near Clipping Plane</source>
        <translation>近裁剪平面</translation>
    </message>
    <message>
        <source>&amp;Far Clipping Plane</source>
        <translation>远裁剪平面(&amp;F)</translation>
    </message>
    <message>
        <source>Far Clipping Plane</source>
        <translation>远裁剪平面</translation>
    </message>
    <message>
        <source>Realtime Antialiasing Presets</source>
        <translation>实时抗锯齿预设</translation>
    </message>
    <message>
        <source>Low Quality Settings</source>
        <translation>低质量设置</translation>
    </message>
    <message>
        <source>Sets the multisampling factor for opengl realtime antialiasing</source>
        <translation>设置 OpenGL 实时抗锯齿的多重采样系数</translation>
    </message>
    <message>
        <source>Multisampling</source>
        <translation>多重采样</translation>
    </message>
    <message>
        <source>Low Quality Multisampling</source>
        <translation>低质量多重采样</translation>
    </message>
    <message>
        <source>Low Quality Raytracing</source>
        <translation>低质量光线追踪</translation>
    </message>
    <message>
        <source>Enables the use of a pixelfilter to improve multisampling quality</source>
        <translation>启用像素滤波以提高多重采样质量</translation>
    </message>
    <message>
        <source>Enable Pixelfilter</source>
        <translation>启用像素滤波</translation>
    </message>
    <message>
        <source>Enables 2x supersampling additional to multisampling. This can greatly increase quality but is also very slow to render.</source>
        <translation>在多重采样之外再启用 2x 超采样。这可以大幅提高质量，但渲染也非常慢。</translation>
    </message>
    <message>
        <source>Enable Supersampling</source>
        <translation>启用超采样</translation>
    </message>
    <message>
        <source>Medium Quality Settings</source>
        <translation>中等质量设置</translation>
    </message>
    <message>
        <source>Medium Quality Multisampling</source>
        <translation>中等质量多重采样</translation>
    </message>
    <message>
        <source>Medium Quality Raytracing</source>
        <translation>中等质量光线追踪</translation>
    </message>
    <message>
        <source>High Quality Settings</source>
        <translation>高质量设置</translation>
    </message>
    <message>
        <source>High Quality Multisampling</source>
        <translation>高质量多重采样</translation>
    </message>
    <message>
        <source>High Quality Raytracing</source>
        <translation>高质量光线追踪</translation>
    </message>
    <message>
        <source>Ultra Quality Settings</source>
        <translation>超高质量设置</translation>
    </message>
    <message>
        <source>Ultra Quality Multisampling</source>
        <translation>超高质量多重采样</translation>
    </message>
    <message>
        <source>Ultra Quality Raytracing</source>
        <translation>超高质量光线追踪</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>视口</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>删除(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;hoose Color</source>
        <translation>选择颜色(&amp;H)</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>光照</translation>
    </message>
    <message>
        <source>Headlight &amp;Behaviour</source>
        <translation>头灯行为(&amp;B)</translation>
    </message>
    <message>
        <source>Headlight Behaviour</source>
        <translation>头灯行为</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Always On</source>
        <translation>始终开启</translation>
    </message>
    <message>
        <source>Always Off</source>
        <translation>始终关闭</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>&amp;Use Point Headlight</source>
        <translation>使用点光源头灯(&amp;U)</translation>
    </message>
    <message>
        <source>Navigation Help</source>
        <translation>导航辅助</translation>
    </message>
    <message>
        <source>Show Coo&amp;rdinate System</source>
        <translation>显示坐标系(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;Navigation Cube</source>
        <translation>显示导航立方体(&amp;N)</translation>
    </message>
    <message>
        <source>Use &amp;Z-Up Coordinate System</source>
        <translation>使用 Z 轴向上的坐标系(&amp;Z)</translation>
    </message>
    <message>
        <source>Progress Cursor</source>
        <translation>进度光标</translation>
    </message>
    <message>
        <source>Shows the progress wheel during anti-aliasing.</source>
        <translation>在抗锯齿期间显示进度轮。</translation>
    </message>
    <message>
        <source>Sho&amp;w Progress</source>
        <translation>显示进度(&amp;W)</translation>
    </message>
    <message>
        <source>Size of the progress wheel</source>
        <translation>进度轮的大小</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>大小(&amp;S)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>If enabled, the progress wheel is placed in the lower left corner of the render view. Otherwise it is attached to the cursor.</source>
        <translation>启用后，进度轮位于渲染视图的左下角。否则跟随光标。</translation>
    </message>
    <message>
        <source>S&amp;tatic Position</source>
        <translation>固定位置(&amp;T)</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUII</name>
    <message>
        <source>Render Options</source>
        <translation>渲染选项</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUIW</name>
    <message>
        <source>1 Sample</source>
        <translation>1 次采样</translation>
    </message>
    <message>
        <source>2 Samples</source>
        <translation>2 次采样</translation>
    </message>
    <message>
        <source>4 Samples</source>
        <translation>4 次采样</translation>
    </message>
    <message>
        <source>8 Samples</source>
        <translation>8 次采样</translation>
    </message>
    <message>
        <source>16 Samples</source>
        <translation>16 次采样</translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUI</name>
    <message>
        <source>Tolerance</source>
        <translation>公差</translation>
    </message>
    <message>
        <source>Tesselation Topology</source>
        <translation>镶嵌拓扑</translation>
    </message>
    <message>
        <source>Distance up to which edges count as joined, in millimetres</source>
        <translation>视为相连的边之间的最大距离，以毫米为单位</translation>
    </message>
    <message>
        <source>&amp;Tolerance</source>
        <translation>公差(&amp;T)</translation>
    </message>
    <message>
        <source>Where the optimizer takes the topology of a model from</source>
        <translation>优化器从何处获取模型的拓扑</translation>
    </message>
    <message>
        <source>Topolog&amp;y</source>
        <translation>拓扑(&amp;Y)</translation>
    </message>
    <message>
        <source>Topology</source>
        <translation>拓扑</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Reuse Existing (If Any)</source>
        <translation>重用现有拓扑（如有）</translation>
    </message>
    <message>
        <source>No Topology</source>
        <translation>无拓扑</translation>
    </message>
    <message>
        <source>Scales the offset between tessellated surfaces</source>
        <translation>缩放镶嵌曲面之间的偏移</translation>
    </message>
    <message>
        <source>Offset &amp;Factor</source>
        <translation>偏移系数(&amp;F)</translation>
    </message>
    <message>
        <source>Offset Factor</source>
        <translation>偏移系数</translation>
    </message>
    <message>
        <source>Turns faces that point the wrong way</source>
        <translation>翻转朝向错误的面</translation>
    </message>
    <message>
        <source>Check O&amp;rientation</source>
        <translation>检查方向(&amp;R)</translation>
    </message>
    <message>
        <source>Tesselation Quality</source>
        <translation>镶嵌质量</translation>
    </message>
    <message>
        <source>Tolerances to choose from, in millimetres. Double-click one to change it.</source>
        <translation>可供选择的公差，以毫米为单位。双击可更改。</translation>
    </message>
    <message>
        <source>Tolerance (mm)</source>
        <translation>公差 (mm)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>移除(&amp;E)</translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUIW</name>
    <message>
        <source>Tesselation</source>
        <translation>镶嵌</translation>
    </message>
    <message>
        <source>Only positive non zero values are allowed!</source>
        <translation>只允许非零的正值！</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Teleport</source>
        <translation>传送</translation>
    </message>
    <message>
        <source>Ground &amp;Mode</source>
        <translation>地面模式(&amp;M)</translation>
    </message>
    <message>
        <source>Ground Mode</source>
        <translation>地面模式</translation>
    </message>
    <message>
        <source>On Geometry</source>
        <translation>在几何体上</translation>
    </message>
    <message>
        <source>On Ground Plane</source>
        <translation>在地平面上</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>范围(&amp;R)</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Sets how to render controllers when starting a session</source>
        <translation>设置会话开始时如何渲染控制器</translation>
    </message>
    <message>
        <source>Default &amp;Visualization</source>
        <translation>默认可视化(&amp;V)</translation>
    </message>
    <message>
        <source>Default Visualization</source>
        <translation>默认可视化</translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>手</translation>
    </message>
    <message>
        <source>Creates collision objects for touch sensors and WebEngines</source>
        <translation>为触摸传感器和 WebEngine 创建碰撞对象</translation>
    </message>
    <message>
        <source>Cr&amp;eate Collision Objects</source>
        <translation>创建碰撞对象(&amp;E)</translation>
    </message>
    <message>
        <source>Show &amp;Tooltips</source>
        <translation>显示工具提示(&amp;T)</translation>
    </message>
    <message>
        <source>StarVR</source>
        <translation>StarVR</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>渲染</translation>
    </message>
    <message>
        <source>Switch between foveated rendering (with eye-tracked high resolution area) and non-foveated rendering mode (viewports are fixed and not eye-tracked).</source>
        <translation>在注视点渲染（高分辨率区域随眼动追踪）和非注视点渲染模式（视口固定，不随眼动追踪）之间切换。</translation>
    </message>
    <message>
        <source>Render &amp;Mode</source>
        <translation>渲染模式(&amp;M)</translation>
    </message>
    <message>
        <source>Render Mode</source>
        <translation>渲染模式</translation>
    </message>
    <message>
        <source>Foveated Rendering</source>
        <translation>注视点渲染</translation>
    </message>
    <message>
        <source>Non-Foveated Rendering</source>
        <translation>非注视点渲染</translation>
    </message>
    <message>
        <source>Defines percentage of the whole FOV per eye that is used for the high resolution area (e.g. FOV factor 0.35 = 35% of whole eye FOV used for eye tracked viewport)</source>
        <translation>定义每只眼睛的整个视野中用作高分辨率区域的百分比（例如视野系数 0.35 = 每只眼睛整个视野的 35% 用于眼动追踪视口）</translation>
    </message>
    <message>
        <source>Foveated FO&amp;V Factor</source>
        <translation>注视点视野系数(&amp;V)</translation>
    </message>
    <message>
        <source>Foveated FOV Factor</source>
        <translation>注视点视野系数</translation>
    </message>
    <message>
        <source>Resolution scale factor for high-resolution (foveated) area.</source>
        <translation>高分辨率（注视点）区域的分辨率缩放系数。</translation>
    </message>
    <message>
        <source>Fov&amp;eated Resolution Scale</source>
        <translation>注视点分辨率比例(&amp;E)</translation>
    </message>
    <message>
        <source>Foveated Resolution Scale</source>
        <translation>注视点分辨率比例</translation>
    </message>
    <message>
        <source>Resolution scale for low-resolution (full FOV, non-tracked) area.</source>
        <translation>低分辨率（整个视野，非追踪）区域的分辨率比例。</translation>
    </message>
    <message>
        <source>&amp;Non-Foveated Resolution Scale</source>
        <translation>非注视点分辨率比例(&amp;N)</translation>
    </message>
    <message>
        <source>Non-Foveated Resolution Scale</source>
        <translation>非注视点分辨率比例</translation>
    </message>
    <message>
        <source>Resolution scale for front viewports in non-foveated rendering mode.</source>
        <translation>非注视点渲染模式下正面视口的分辨率比例。</translation>
    </message>
    <message>
        <source>&amp;Front View Resolution Scale</source>
        <translation>正面视图分辨率比例(&amp;F)</translation>
    </message>
    <message>
        <source>Front View Resolution Scale</source>
        <translation>正面视图分辨率比例</translation>
    </message>
    <message>
        <source>Resolution Scale for side viewports in non-foveated rendering mode.</source>
        <translation>非注视点渲染模式下侧面视口的分辨率比例。</translation>
    </message>
    <message>
        <source>Side View &amp;Resolution Scale</source>
        <translation>侧面视图分辨率比例(&amp;R)</translation>
    </message>
    <message>
        <source>Side View Resolution Scale</source>
        <translation>侧面视图分辨率比例</translation>
    </message>
    <message>
        <source>Use only one texture per eye in non-foveated rendering mode (instead of the two textures “front” and “side”).</source>
        <translation>在非注视点渲染模式下每只眼睛只使用一个纹理（而不是“正面”和“侧面”两个纹理）。</translation>
    </message>
    <message>
        <source>&amp;Single Texture per Eye</source>
        <translation>每只眼睛使用单个纹理(&amp;S)</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUII</name>
    <message>
        <source>Virtual Reality</source>
        <translation>虚拟现实</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>&amp;Enable Web Server</source>
        <translation>启用 Web 服务器(&amp;E)</translation>
    </message>
    <message>
        <source>Po&amp;rt</source>
        <translation>端口(&amp;R)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>&amp;SSL Port</source>
        <translation>SSL 端口(&amp;S)</translation>
    </message>
    <message>
        <source>SSL Port</source>
        <translation>SSL 端口</translation>
    </message>
    <message>
        <source>Restarting the application is mandatory after modifying the localhost only option!</source>
        <translation>更改“仅允许来自 localhost 的请求”选项后，必须重新启动应用程序！</translation>
    </message>
    <message>
        <source>Allow request from &amp;localhost only</source>
        <translation>仅允许来自 localhost 的请求(&amp;L)</translation>
    </message>
    <message>
        <source>Allowed &amp;hosts</source>
        <translation>允许的主机(&amp;H)</translation>
    </message>
    <message>
        <source>Names or addresses of the hosts whose requests are answered, one a line</source>
        <translation>可响应其请求的主机的名称或地址，每行一个</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>白名单</translation>
    </message>
    <message>
        <source>Enable &amp;Debug Mode</source>
        <translation>启用调试模式(&amp;D)</translation>
    </message>
    <message>
        <source>Restricted python functionality</source>
        <translation>限制可用的 Python 功能</translation>
    </message>
    <message>
        <source>Secure P&amp;ython</source>
        <translation>安全 Python(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUII</name>
    <message>
        <source>WebInterface</source>
        <translation>Web 界面</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUIW</name>
    <message>
        <source>Enable Web Server</source>
        <translation>启用 Web 服务器</translation>
    </message>
    <message>
        <source>Do you really want to enable the Web Server?
The Web Server allows the execution of Python commands from remote locations!</source>
        <translation>确定要启用 Web 服务器吗？
Web 服务器允许从远程位置执行 Python 命令！</translation>
    </message>
    <message>
        <source>Choosing &quot;Enable&quot; enables the Web Server.
You are advised to set up a local firewall to protect yourself from unauthorized access.

Choosing &quot;Do Not Enable&quot; leaves the Web Server disabled.</source>
        <translation>选择“启用”将启用 Web 服务器。
建议设置本地防火墙，以防止未经授权的访问。

选择“不启用”则 Web 服务器保持禁用。</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Do Not Enable</source>
        <translation>不启用</translation>
    </message>
</context>
<context>
    <name>olWrlPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Loader</source>
        <translation>加载器</translation>
    </message>
    <message>
        <source>CAD system that the loader takes a file to come from</source>
        <translation>加载器假定文件来自哪个 CAD 系统</translation>
    </message>
    <message>
        <source>Op&amp;timization</source>
        <translation>优化(&amp;T)</translation>
    </message>
    <message>
        <source>Optimization</source>
        <translation>优化</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Catia</source>
        <translation>Catia</translation>
    </message>
    <message>
        <source>Pro Engineer</source>
        <translation>Pro Engineer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Writer</source>
        <translation>写入器</translation>
    </message>
    <message>
        <source>Writes textures into the file instead of beside it</source>
        <translation>将纹理写入文件内，而不是放在文件旁边</translation>
    </message>
    <message>
        <source>Inline &amp;Textures</source>
        <translation>内嵌纹理(&amp;T)</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>显示命令行选项的帮助。</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>显示帮助，包括 Qt 特有的选项。</translation>
    </message>
</context>
<context>
    <name>QOLColorDialog</name>
    <message>
        <source>Choose Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>QOLColorManipulator</name>
    <message>
        <source>Choose Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>olAbout</name>
    <message>
        <source>About ORLO</source>
        <translation>关于 ORLO</translation>
    </message>
    <message>
        <source>A desktop application to view, render and review CAD models in 3D.</source>
        <translation>用于以 3D 方式查看、渲染和评审 CAD 模型的桌面应用程序。</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>声明(&amp;N)</translation>
    </message>
    <message>
        <source>It uses these libraries, all of them linked dynamically, so that they can be replaced:&lt;ul&gt;&lt;li&gt;OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception&lt;/li&gt;&lt;li&gt;Qt %2: LGPL 3&lt;/li&gt;&lt;li&gt;SQLite: public domain&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd: LGPL 2.1 or later&lt;/li&gt;&lt;li&gt;libspnav: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;Boost: Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;minizip: zlib licence&lt;/li&gt;&lt;li&gt;Coin: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;libseccomp: LGPL 2.1&lt;/li&gt;&lt;/ul&gt;Their notices are in &lt;i&gt;third-party.md&lt;/i&gt;, beside the documents of this program.</source>
        <translation>它使用以下库，均为动态链接，因此可以替换：&lt;ul&gt;&lt;li&gt;OpenCASCADE %1：LGPL 2.1（附 Open CASCADE 例外条款）&lt;/li&gt;&lt;li&gt;Qt %2：LGPL 3&lt;/li&gt;&lt;li&gt;SQLite：公有领域&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd：LGPL 2.1 或更高版本&lt;/li&gt;&lt;li&gt;libspnav：BSD 三条款&lt;/li&gt;&lt;li&gt;Boost：Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp：BSD 三条款&lt;/li&gt;&lt;li&gt;minizip：zlib 许可证&lt;/li&gt;&lt;li&gt;Coin：BSD 三条款&lt;/li&gt;&lt;li&gt;libseccomp：LGPL 2.1&lt;/li&gt;&lt;/ul&gt;其声明见 &lt;i&gt;third-party.md&lt;/i&gt;，与本程序的文档在一起。</translation>
    </message>
</context>
<context>
    <name>olBatch</name>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL.</source>
        <translation>3D 视图需要支持 OpenGL 的 X 显示或 XWayland。</translation>
    </message>
    <message>
        <source>The model %1 cannot be drawn: %2</source>
        <translation>无法绘制模型 %1：%2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>olChangesView</name>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Old Value</source>
        <translation>旧值</translation>
    </message>
    <message>
        <source>New Value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>&amp;Skipped:</source>
        <translation>已跳过(&amp;S)：</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>撤回(&amp;T)</translation>
    </message>
    <message>
        <source>Take &amp;All Back</source>
        <translation>全部撤回(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>复制为文本(&amp;C)</translation>
    </message>
    <message>
        <source>%1 (%2): %3 -&gt; %4
</source>
        <comment>place, key, old and new value</comment>
        <translation>%1 (%2)：%3 -&gt; %4
</translation>
    </message>
</context>
<context>
    <name>olEffectText</name>
    <message>
        <source>only recorded</source>
        <translation>仅记录</translation>
    </message>
    <message>
        <source>Is only recorded by this host</source>
        <translation>此主机仅作记录</translation>
    </message>
    <message>
        <source>This host only records these settings: no reader or other part of it goes by them.</source>
        <translation>此主机仅记录这些设置：其中没有使用这些设置的组件，例如该格式的读取程序。</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>下次导入</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>下次导入时生效</translation>
    </message>
    <message>
        <source>These settings take effect at the next import.</source>
        <translation>这些设置在下次导入时生效。</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>下次启动</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>下次启动时生效</translation>
    </message>
    <message>
        <source>These settings take effect at the next start.</source>
        <translation>这些设置在下次启动时生效。</translation>
    </message>
</context>
<context>
    <name>olExport</name>
    <message>
        <source>%1 stands twice in the same place; it is written once.</source>
        <translation>%1 在同一位置出现两次；只写入一次。</translation>
    </message>
    <message>
        <source>%1 is a mesh, which this format cannot hold; it is left out.</source>
        <translation>%1 是网格，此格式无法保存；已略去。</translation>
    </message>
    <message>
        <source>colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>textures</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>groups of parts</source>
        <translation>零件组</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>无法写入临时目录</translation>
    </message>
    <message>
        <source>the writer failed</source>
        <translation>写入程序出错</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>there is nothing that this format can hold</source>
        <translation>没有此格式可以保存的内容</translation>
    </message>
    <message>
        <source>the writer failed (%1)</source>
        <translation>写入程序出错（%1）</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 names are written with other letters or a number, as names of VRML have no blanks and stand for one thing.</source>
        <translation>%1 个名称在写入时改用了其他字母或加了数字，因为 VRML 的名称不含空格，且只能代表一个对象。</translation>
    </message>
    <message>
        <source>%1 parts of several looks are groups of parts in the file.</source>
        <translation>%1 个具有多种外观的零件在文件中成为零件组。</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>names of parts</source>
        <translation>零件名称</translation>
    </message>
    <message>
        <source>colors of corners</source>
        <translation>顶点颜色</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>physical materials</source>
        <translation>物理材料</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>hidden parts</source>
        <translation>隐藏的零件</translation>
    </message>
    <message>
        <source>%1 knows no exact surfaces; their triangles are written.</source>
        <translation>%1 不支持精确曲面；写入的是其三角形。</translation>
    </message>
    <message>
        <source>These are not in the file, as %1 does not know them: %2.</source>
        <translation>以下内容不在文件中，因为 %1 不支持：%2。</translation>
    </message>
    <message>
        <source>The texture %1 is not there any more; it is left out.</source>
        <translation>纹理 %1 已不存在；已略去。</translation>
    </message>
    <message>
        <source>The texture %1 cannot be written: %2.</source>
        <translation>无法写入纹理 %1：%2。</translation>
    </message>
</context>
<context>
    <name>olFactsPanel</name>
    <message>
        <source>(%1, %2, %3)</source>
        <translation>(%1, %2, %3)</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>尺寸：</translation>
    </message>
    <message>
        <source>Along x, y and z, in millimetres</source>
        <translation>沿 x、y 和 z 方向，单位为毫米</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>包围盒：</translation>
    </message>
    <message>
        <source>Its lowest and its highest corner, in millimetres</source>
        <translation>其最低角点和最高角点，单位为毫米</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>体积：</translation>
    </message>
    <message>
        <source>Of the surfaces themselves; of meshes, of their triangles</source>
        <translation>按曲面本身计算；网格则按其三角形计算</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>面积：</translation>
    </message>
    <message>
        <source>Triangles:</source>
        <translation>三角形：</translation>
    </message>
    <message>
        <source>With which it is drawn and exported</source>
        <translation>绘制和导出时所用的三角形</translation>
    </message>
    <message>
        <source>Parts:</source>
        <translation>零件：</translation>
    </message>
    <message>
        <source>Each as often as it stands in the scene</source>
        <translation>每个零件按其在场景中出现的次数计算</translation>
    </message>
    <message>
        <source>measuring...</source>
        <translation>正在测量...</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>未打开任何内容。</translation>
    </message>
    <message>
        <source>What is selected:</source>
        <translation>所选内容：</translation>
    </message>
    <message>
        <source>The whole scene:</source>
        <translation>整个场景：</translation>
    </message>
    <message>
        <source>%1 × %2 × %3 mm</source>
        <translation>%1 × %2 × %3 mm</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>%1 mm³</source>
        <translation>%1 mm³</translation>
    </message>
    <message>
        <source>none: it is not closed</source>
        <translation>无：未闭合</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n of the parts are not closed and not in it</source>
        <translation>
            <numerusform>%1；有 %n 个零件未闭合，未计入</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 mm²</source>
        <translation>%1 mm²</translation>
    </message>
    <message>
        <source>%1; one of the parts is not closed and not in it</source>
        <translation>%1；其中一个零件未闭合，未计入</translation>
    </message>
</context>
<context>
    <name>olFieldGuard</name>
    <message>
        <source>Only %1 can be entered here.</source>
        <translation>此处只能输入%1。</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
</context>
<context>
    <name>olFoldHeader</name>
    <message>
        <source>Folded</source>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation>已展开</translation>
    </message>
</context>
<context>
    <name>olFoundRows</name>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>olFoundSettings</name>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>找到的设置</translation>
    </message>
</context>
<context>
    <name>olGivenSettings</name>
    <message>
        <source>&quot;%1&quot; is no setting: expected &quot;KEY=VALUE&quot;</source>
        <translation>“%1”不是设置：应为“KEY=VALUE”</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>没有设置“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set where somebody can be asked: %2</source>
        <translation>“%1”只有在能够询问用户时才会设置：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>“%1”%2</translation>
    </message>
</context>
<context>
    <name>olHistoryView</name>
    <message>
        <source>&amp;Go Back...</source>
        <translation>回退(&amp;G)...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>尚未保存过任何内容。</translation>
    </message>
    <message>
        <source>Going back takes back the save that is chosen and all later ones. What that changes is shown first.</source>
        <translation>回退会撤回所选的保存以及之后的所有保存。由此引起的更改会先显示出来。</translation>
    </message>
    <message>
        <source>Saves</source>
        <translation>保存记录</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <comment>setting, old and new value</comment>
        <translation>%1：%2 改为 %3</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1 项设置</translation>
    </message>
</context>
<context>
    <name>olHostStatePanel</name>
    <message>
        <source>%1 (only recorded)</source>
        <translation>%1（仅记录）</translation>
    </message>
    <message>
        <source>Host state</source>
        <translation>主机状态</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter the host state</source>
        <translation>筛选主机状态</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>olImport</name>
    <message>
        <source>the system ended its reader, probably for want of memory</source>
        <translation>系统终止了它的读取程序，可能是因为内存不足</translation>
    </message>
    <message>
        <source>the file is damaged in a way that makes its reader crash</source>
        <translation>文件已损坏，会导致其读取程序崩溃</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>其读取程序出错</translation>
    </message>
    <message>
        <source>its reader cannot be started (%1)</source>
        <translation>无法启动其读取程序（%1）</translation>
    </message>
    <message>
        <source>its reader %1 cannot be started (%2)</source>
        <translation>无法启动其读取程序 %1（%2）</translation>
    </message>
    <message>
        <source>reading it made no progress for %1 seconds</source>
        <translation>读取在 %1 秒内没有进展</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>无法写入临时目录</translation>
    </message>
    <message>
        <source>Cannot read %1: this is a folder.</source>
        <translation>无法读取 %1：这是文件夹。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>其零件超过一百万个</translation>
    </message>
    <message>
        <source>the file is damaged: it has triangles without their points, or points beyond all measure</source>
        <translation>文件已损坏：其中有缺少顶点的三角形，或有大得无法度量的点</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>其中没有几何体</translation>
    </message>
    <message>
        <source>the reader failed (%1)</source>
        <translation>读取程序出错（%1）</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>内存不足，无法读取</translation>
    </message>
    <message>
        <source>in the file</source>
        <translation>文件内</translation>
    </message>
    <message>
        <source>The texture %1 was not found.</source>
        <translation>未找到纹理 %1。</translation>
    </message>
    <message>
        <source>The texture %1 is too large, with %2 by %3 pixels.</source>
        <translation>纹理 %1 太大：%2 × %3 像素。</translation>
    </message>
    <message>
        <source>The texture %1 cannot be read: %2.</source>
        <translation>无法读取纹理 %1：%2。</translation>
    </message>
    <message>
        <source>A part without a name</source>
        <translation>未命名零件</translation>
    </message>
    <message>
        <source>no invisible surfaces are imported</source>
        <translation>不导入不可见的曲面</translation>
    </message>
    <message>
        <source>no surfaces are imported</source>
        <translation>不导入曲面</translation>
    </message>
    <message>
        <source>no invisible meshes are imported</source>
        <translation>不导入不可见的网格</translation>
    </message>
    <message>
        <source>no meshes are imported</source>
        <translation>不导入网格</translation>
    </message>
    <message>
        <source>no invisible curves are imported</source>
        <translation>不导入不可见的曲线</translation>
    </message>
    <message>
        <source>no curves are imported</source>
        <translation>不导入曲线</translation>
    </message>
    <message>
        <source>no invisible instances are imported</source>
        <translation>不导入不可见的实例</translation>
    </message>
    <message>
        <source>Parts with faulty surfaces: %1.</source>
        <translation>曲面有缺陷的零件：%1。</translation>
    </message>
    <message>
        <source>Gaps of up to %1 mm were to be closed, which would distort these; smaller ones are closed: %2.</source>
        <translation>按要求应闭合不大于 %1 mm 的间隙，但这会使以下零件变形，因此只闭合了较小的间隙：%2。</translation>
    </message>
    <message>
        <source>Parts whose faces are not joined, as that would distort them: %1.</source>
        <translation>未接合各面的零件（接合会使其变形）：%1。</translation>
    </message>
    <message>
        <source>Faces that cannot be drawn: %1.</source>
        <translation>无法绘制的面：%1。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中的 %1 个</translation>
    </message>
    <message>
        <source>%1 (%2 mm)</source>
        <translation>%1 (%2 mm)</translation>
    </message>
    <message>
        <source>the import options leave nothing of it (%1)</source>
        <translation>按导入选项，其中没有可导入的内容（%1）</translation>
    </message>
    <message>
        <source>Parts that the import options leave out: %1.</source>
        <translation>导入选项略去的零件：%1。</translation>
    </message>
</context>
<context>
    <name>olImportDialog</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Center to Origin</source>
        <translation>居中到原点</translation>
    </message>
    <message>
        <source>Place Objects on the Ground</source>
        <translation>将对象置于地面</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Edit &gt; Preferences &gt; FileIO decides over these, format by format.</source>
        <translation>这些选项按格式在“编辑 &gt; 首选项 &gt; 文件 I/O”中设定。</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>导入进度</translation>
    </message>
    <message>
        <source>Outcome of the import</source>
        <translation>导入结果</translation>
    </message>
    <message>
        <source>&amp;Replace the scene</source>
        <translation>替换场景(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Add to the scene</source>
        <translation>添加到场景(&amp;A)</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>米</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>z is up</source>
        <translation>z 轴向上</translation>
    </message>
    <message>
        <source>y is up</source>
        <translation>y 轴向上</translation>
    </message>
    <message>
        <source>The file does not say it.</source>
        <translation>文件中未注明。</translation>
    </message>
    <message>
        <source>&amp;Unit of length:</source>
        <translation>长度单位(&amp;U)：</translation>
    </message>
    <message>
        <source>U&amp;p axis:</source>
        <translation>向上轴(&amp;P)：</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>导入失败。</translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>导入已完成，有备注。</translation>
    </message>
    <message>
        <source>The import is done.</source>
        <translation>导入已完成。</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>导入失败</translation>
    </message>
</context>
<context>
    <name>olImportFineness</name>
    <message>
        <source>&amp;Keep These for Later Imports</source>
        <translation>保留这些选项供以后导入使用(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Chord Deviation</source>
        <translation>弦偏差(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation>法线公差(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>缝合(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;titching Tolerance</source>
        <translation>缝合公差(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge Geometries</source>
        <translation>合并几何体(&amp;M)</translation>
    </message>
    <message>
        <source>Remove &amp;Empty Groups</source>
        <translation>移除空组(&amp;E)</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>统一曲面法线(&amp;Y)</translation>
    </message>
    <message>
        <source>Without this they hold for this import alone.</source>
        <translation>不选中时，这些选项仅对本次导入有效。</translation>
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
        <source>Sur&amp;faces</source>
        <translation>曲面(&amp;F)</translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation>曲线和多段线(&amp;L)</translation>
    </message>
    <message>
        <source>Mes&amp;hes</source>
        <translation>网格(&amp;H)</translation>
    </message>
</context>
<context>
    <name>olImportSummary</name>
    <message>
        <source>%1: none</source>
        <translation>%1：无</translation>
    </message>
    <message>
        <source>%1: all</source>
        <translation>%1：全部</translation>
    </message>
    <message>
        <source>%1: visible</source>
        <translation>%1：可见</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>曲面</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>meshes</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Tidied up</source>
        <translation>整理</translation>
    </message>
    <message>
        <source>meshes merged</source>
        <translation>合并网格</translation>
    </message>
    <message>
        <source>empty groups removed</source>
        <translation>移除空组</translation>
    </message>
    <message>
        <source>normals unified</source>
        <translation>统一法线</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>geometry verified</source>
        <translation>验证几何体</translation>
    </message>
    <message>
        <source>faults repaired</source>
        <translation>修复缺陷</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>beside the model</source>
        <translation>模型旁</translation>
    </message>
    <message>
        <source>beside the model, and in %1 directories</source>
        <translation>模型旁以及 %1 个目录中</translation>
    </message>
</context>
<context>
    <name>olInnerParts</name>
    <message>
        <source>%1, %2</source>
        <comment>control, part of it</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>olJournalPanel</name>
    <message>
        <source>Host calls</source>
        <translation>主机调用</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
</context>
<context>
    <name>olJoystickLink</name>
    <message>
        <source>There is no joystick %1: %2: %3.</source>
        <translation>没有操纵杆 %1：%2：%3。</translation>
    </message>
    <message>
        <source>Joystick %1 is in use.</source>
        <translation>正在使用操纵杆 %1。</translation>
    </message>
    <message>
        <source>Joystick %1 has gone.</source>
        <translation>操纵杆 %1 已断开。</translation>
    </message>
</context>
<context>
    <name>olJsonObject</name>
    <message>
        <source>here or just before, this is no JSON</source>
        <translation>此处或紧靠此处之前不是 JSON</translation>
    </message>
    <message>
        <source>an object is expected, as {&quot;key&quot;: {&quot;value&quot;: 1}}</source>
        <translation>应为对象，例如 {&quot;key&quot;: {&quot;value&quot;: 1}}</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here a second time</source>
        <translation>“%1”在此处重复出现</translation>
    </message>
</context>
<context>
    <name>olLibraryCheck</name>
    <message>
        <source>it is no library</source>
        <translation>这不是库</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>其末尾缺失</translation>
    </message>
</context>
<context>
    <name>olListed</name>
    <message>
        <source>%1, %2</source>
        <comment>one name of a list, and the next</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>one sentence, and the next</comment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>olMainWindow</name>
    <message>
        <source>ORLO</source>
        <translation>ORLO</translation>
    </message>
    <message>
        <source>Edit &gt; Preferences changes what you see here.</source>
        <translation>可在“编辑 &gt; 首选项”中更改此处的显示。</translation>
    </message>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL. The preferences work without it.</source>
        <translation>3D 视图需要支持 OpenGL 的 X 显示或 XWayland。没有它也可以使用首选项。</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 帧/秒</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Host State</source>
        <translation>主机状态</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>主机调用</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>显示全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zoom To</source>
        <translation>缩放至(&amp;Z)</translation>
    </message>
    <message>
        <source>Brings what is selected near</source>
        <translation>拉近所选内容</translation>
    </message>
    <message>
        <source>Stereo for &amp;Red and Cyan Glasses</source>
        <translation>红青眼镜立体显示(&amp;R)</translation>
    </message>
    <message>
        <source>Trace Ra&amp;ys</source>
        <translation>光线追踪(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation>边线(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新建场景(&amp;N)</translation>
    </message>
    <message>
        <source>Open the &amp;Sample</source>
        <translation>打开示例(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About ORLO</source>
        <translation>关于 ORLO(&amp;A)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>几何信息</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>%1 - ORLO</source>
        <translation>%1 - ORLO</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 以及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Preferences as a Pa&amp;nel</source>
        <translation>首选项显示为面板(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Support Information</source>
        <translation>复制支持信息(&amp;S)</translation>
    </message>
    <message>
        <source>Versions, changed settings and the end of the log are on the clipboard.</source>
        <translation>版本、已更改的设置和日志末尾已复制到剪贴板。</translation>
    </message>
</context>
<context>
    <name>olMessageLine</name>
    <message>
        <source>Close the message</source>
        <translation>关闭消息</translation>
    </message>
</context>
<context>
    <name>olModelExtent</name>
    <message>
        <source>about %1 % of the model</source>
        <translation>约为模型的 %1%</translation>
    </message>
    <message>
        <source>%1: coarse, round parts show corners</source>
        <translation>%1：粗糙，圆形部分会显出棱角</translation>
    </message>
    <message>
        <source>%1: very fine, the import takes long</source>
        <translation>%1：非常精细，导入耗时较长</translation>
    </message>
</context>
<context>
    <name>olModelFiles</name>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>已读取 %1。</translation>
    </message>
    <message>
        <source>ORLO</source>
        <translation>ORLO</translation>
    </message>
    <message>
        <source>The export failed.</source>
        <translation>导出失败。</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>%1 was written, with remarks.</source>
        <translation>已写入 %1，有备注。</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>导入失败。</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no such file any more.</source>
        <translation>无法读取 %1：该文件已不存在。</translation>
    </message>
    <message numerus="yes">
        <source>%n files were read.</source>
        <translation>
            <numerusform>已读取 %n 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>导入已完成，有备注。</translation>
    </message>
    <message>
        <source>The settings could not be kept.</source>
        <translation>无法保留这些设置。</translation>
    </message>
</context>
<context>
    <name>olModelFormat</name>
    <message>
        <source>files without a suffix</source>
        <translation>无扩展名的文件</translation>
    </message>
    <message>
        <source>.%1 files</source>
        <translation>.%1 文件</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no reader for %2. These can be read: %3.</source>
        <translation>无法读取 %1：%2没有对应的读取程序。可读取的有：%3。</translation>
    </message>
    <message>
        <source>Cannot write %1: there is no writer for %2. These can be written: %3.</source>
        <translation>无法写入 %1：%2没有对应的写入程序。可写入的有：%3。</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>模型 (%1)</translation>
    </message>
</context>
<context>
    <name>olModuleTree</name>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Has changes that are not applied yet</source>
        <translation>有尚未应用的更改</translation>
    </message>
    <message>
        <source>Has settings that differ from their defaults</source>
        <translation>有与默认值不同的设置</translation>
    </message>
</context>
<context>
    <name>olNumberText</name>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a number from %1</source>
        <translation>不小于 %1 的数字</translation>
    </message>
    <message>
        <source>a number up to %1</source>
        <translation>不大于 %1 的数字</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>从 %1 到 %2 的数字</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>从 %1 到 %2 的整数</translation>
    </message>
</context>
<context>
    <name>olOSGWidget</name>
    <message>
        <source>The clipping planes %1 and %2 are refused: expected two numbers above 0, the far one greater than the near one.</source>
        <translation>拒绝裁剪平面 %1 和 %2：应为两个大于 0 的数字，且远裁剪平面的值大于近裁剪平面的值。</translation>
    </message>
</context>
<context>
    <name>olOutsideLine</name>
    <message>
        <source>%1 set %2 to %3.</source>
        <comment>program, setting and value</comment>
        <translation>%1 已将 %2 设置为 %3。</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>另一个程序</translation>
    </message>
    <message>
        <source>%1 more settings were changed.</source>
        <translation>另有 %1 项设置已更改。</translation>
    </message>
    <message>
        <source>Your change to %1 is pending.</source>
        <translation>改为 %1 的更改尚待应用。</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>使用 %1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep %1</source>
        <translation>保留 %1(&amp;K)</translation>
    </message>
</context>
<context>
    <name>olPageFrame</name>
    <message>
        <source>Not chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>立即生效</translation>
    </message>
</context>
<context>
    <name>olPageIndex</name>
    <message>
        <source>%1 controls answer to &quot;%2&quot;: %3</source>
        <translation>有 %1 个控件与“%2”匹配：%3</translation>
    </message>
    <message>
        <source>there is no control &quot;%1&quot;; there is: %2</source>
        <translation>没有控件“%1”；现有：%2</translation>
    </message>
</context>
<context>
    <name>olPluginLoader</name>
    <message>
        <source>Cannot load the preferences plug-in: there is neither %1 nor %2.</source>
        <translation>无法加载首选项插件：%1 和 %2 均不存在。</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>it has no entry function %1</source>
        <translation>它没有入口函数 %1</translation>
    </message>
    <message>
        <source>a module could not be built: %1</source>
        <translation>无法构建某个模块：%1</translation>
    </message>
    <message>
        <source>a module could not be built, and does not say why</source>
        <translation>无法构建某个模块，且未说明原因</translation>
    </message>
    <message>
        <source>Cannot load the preferences plug-in %1: %2.</source>
        <translation>无法加载首选项插件 %1：%2。</translation>
    </message>
</context>
<context>
    <name>olPreferencesDialog</name>
    <message>
        <source>No Changes</source>
        <translation>无更改</translation>
    </message>
    <message>
        <source>1 Chan&amp;ge...</source>
        <translation>1 项更改(&amp;G)...</translation>
    </message>
    <message>
        <source>%1 Chan&amp;ges...</source>
        <translation>%1 项更改(&amp;G)...</translation>
    </message>
    <message>
        <source>Changed only</source>
        <translation>仅显示已更改</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Restore &amp;Page</source>
        <translation>恢复本页(&amp;P)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search all settings</source>
        <translation>搜索所有设置</translation>
    </message>
    <message>
        <source>Finds settings by label, group, tooltip, choice and key (Ctrl+F).</source>
        <translation>按标签、组、工具提示、选项和键查找设置（Ctrl+F）。</translation>
    </message>
    <message>
        <source>Lists the settings that differ from their defaults.</source>
        <translation>列出与默认值不同的设置。</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Restore All Defaults</source>
        <translation>恢复所有默认值(&amp;R)</translation>
    </message>
    <message>
        <source>Shows the defaults of this page. Nothing changes before OK or Apply.</source>
        <translation>显示本页的默认值。在“确定”或“应用”之前不作任何更改。</translation>
    </message>
    <message>
        <source>Lists what OK and Apply will change.</source>
        <translation>列出“确定”和“应用”将更改的内容。</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>留在此处(&amp;S)</translation>
    </message>
    <message>
        <source>All settings have their defaults.</source>
        <translation>所有设置均为默认值。</translation>
    </message>
    <message>
        <source>All pages show their defaults. OK or Apply makes them count, Cancel takes them back.</source>
        <translation>所有页面均显示默认值。“确定”或“应用”使其生效，“取消”则撤回。</translation>
    </message>
    <message>
        <source>%1 Locked</source>
        <translation>%1 项已锁定</translation>
    </message>
    <message>
        <source>Every setting has its default.</source>
        <translation>所有设置均为默认值。</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>没有与“%1”匹配的内容。</translation>
    </message>
    <message>
        <source>1 Setting</source>
        <translation>1 项设置</translation>
    </message>
    <message>
        <source>%1 Settings</source>
        <translation>%1 项设置</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>The documents about the settings are not installed.</source>
        <translation>未安装有关设置的文档。</translation>
    </message>
    <message>
        <source>%1 takes effect at the next import.</source>
        <translation>%1 将在下次导入时生效。</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next import.</source>
        <translation>%1 项设置将在下次导入时生效。</translation>
    </message>
    <message>
        <source>%1 takes effect at the next start.</source>
        <translation>%1 将在下次启动时生效。</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next start.</source>
        <translation>%1 项设置将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>立即重新启动</translation>
    </message>
    <message>
        <source>Shows changes of the view as they are made. Nothing is stored before OK or Apply, and Cancel shows the view as it was.</source>
        <translation>更改视图设置时立即显示效果。单击“确定”或“应用”之前不会保存任何内容，“取消”会使视图恢复原状。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>olPreferencesFile</name>
    <message>
        <source>It is no file of preferences: it names no format.</source>
        <translation>这不是首选项文件：没有指明格式。</translation>
    </message>
    <message>
        <source>It is no file of preferences: its format is not known.</source>
        <translation>这不是首选项文件：其格式未知。</translation>
    </message>
    <message>
        <source>It was written by a newer version.</source>
        <translation>它由较新版本的程序写入。</translation>
    </message>
    <message>
        <source>has no type or no value</source>
        <translation>没有类型或值</translation>
    </message>
    <message>
        <source>is of the unknown type &quot;%1&quot;</source>
        <translation>属于未知类型“%1”</translation>
    </message>
    <message>
        <source>is not %1, as its type %2 asks for</source>
        <translation>不是其类型 %2 所要求的%1</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>第 %1 行：%2。</translation>
    </message>
    <message>
        <source>It lists no settings.</source>
        <translation>其中没有列出设置。</translation>
    </message>
    <message>
        <source>Cannot write the preferences to %1: %2.</source>
        <translation>无法将首选项写入 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot read the preferences from %1: %2.</source>
        <translation>无法从 %1 读取首选项：%2。</translation>
    </message>
    <message>
        <source>Cannot import %1. %2</source>
        <translation>无法导入 %1。%2</translation>
    </message>
</context>
<context>
    <name>olPreferencesSession</name>
    <message>
        <source>The site&apos;s preferences %1 were changed. That counts from the next start of the program.</source>
        <translation>站点的首选项 %1 已更改。更改从程序下次启动起生效。</translation>
    </message>
    <message>
        <source>is locked: %1</source>
        <translation>已锁定：%1</translation>
    </message>
    <message>
        <source>is not known</source>
        <translation>不是已知的设置</translation>
    </message>
    <message>
        <source>All settings of this run were then saved into it.</source>
        <translation>随后已将本次运行的所有设置保存到其中。</translation>
    </message>
    <message>
        <source>The module %1 has failed and does not say why.</source>
        <translation>模块 %1 出错，且未说明原因。</translation>
    </message>
    <message>
        <source>The module %1 has failed: %2.</source>
        <translation>模块 %1 出错：%2。</translation>
    </message>
</context>
<context>
    <name>olPreferencesStore</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>另一个程序正在占用它</translation>
    </message>
    <message>
        <source>it is no preferences file</source>
        <translation>这不是首选项文件</translation>
    </message>
    <message>
        <source>it is gone</source>
        <translation>它已不存在</translation>
    </message>
    <message>
        <source>its folder cannot be created</source>
        <translation>无法创建其文件夹</translation>
    </message>
    <message>
        <source>its header is not what it was</source>
        <translation>其文件头与原来不同</translation>
    </message>
    <message>
        <source>Cannot read the preferences %1: %2.</source>
        <translation>无法读取首选项 %1：%2。</translation>
    </message>
    <message>
        <source>The copy of %1 was loaded; what was changed after that is not in it.</source>
        <translation>已加载 %1 的备份；其后的更改不在其中。</translation>
    </message>
    <message>
        <source>There is no copy of it yet, so all settings are at their defaults.</source>
        <translation>尚无备份，因此所有设置均为默认值。</translation>
    </message>
    <message>
        <source>Its copy cannot be read either (%1), so all settings are at their defaults.</source>
        <translation>其备份也无法读取（%1），因此所有设置均为默认值。</translation>
    </message>
    <message>
        <source>Cannot save the preferences to %1: %2. What it held before is unchanged.</source>
        <translation>无法将首选项保存到 %1：%2。其原有内容未变。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>Use that version. If there is none, the file is damaged: move it away to start with defaults, or rename its copy %1, where there is one, to it.</source>
        <translation>请使用该版本。如果没有该版本，则文件已损坏：请将其移走，以便使用默认值启动；或将其备份 %1（如果有）重命名为该文件的名称。</translation>
    </message>
    <message>
        <source>The preferences file %1 is damaged: %2.</source>
        <translation>首选项文件 %1 已损坏：%2。</translation>
    </message>
    <message>
        <source>It is now kept as %1.</source>
        <translation>该文件现已另存为 %1。</translation>
    </message>
    <message>
        <source>It could not be set aside: %1.</source>
        <translation>无法将其另存：%1。</translation>
    </message>
    <message>
        <source>its folder is read-only or full, or another program keeps it busy</source>
        <translation>其文件夹为只读或已满，或另一个程序正在占用它</translation>
    </message>
</context>
<context>
    <name>olPrefsCommands</name>
    <message>
        <source>all modules with their settings, values and defaults</source>
        <translation>所有模块及其设置、值和默认值</translation>
    </message>
    <message>
        <source>Lists the modules with their settings: key, type, value, and the default where the value is another.
  --json      one array of modules, for programs
  --markdown  the catalogue of the documentation: keys, types, defaults, ranges and choices, when a new
              value counts, and where they are on the pages, with the tooltips there
</source>
        <translation>列出各模块及其设置：键、类型、值，值不同于默认值时还有默认值。
  --json      一个由模块组成的数组，供程序使用
  --markdown  文档中的目录：键、类型、默认值、范围和选项，新值何时
              生效，在页面上的位置，以及那里的工具提示
</translation>
    </message>
    <message>
        <source>prints the value of a setting as JSON</source>
        <translation>以 JSON 输出一个设置的值</translation>
    </message>
    <message>
        <source>Prints the value that is in force: the stored one, else the default.
</source>
        <translation>输出当前生效的值：已存储的值，没有时为默认值。
</translation>
    </message>
    <message>
        <source>stores a value, JSON or plain text</source>
        <translation>存储一个值，JSON 或纯文本</translation>
    </message>
    <message>
        <source>Stores a value. VALUE is JSON of the setting&apos;s type; a text needs no quotes. A value that the control of
the setting could not hold is refused, and so is any value of a locked setting. The viewer may be running.
</source>
        <translation>存储一个值。VALUE 是该设置类型的 JSON；文本不需要引号。设置的控件无法容纳的值会被拒绝，
已锁定设置的任何值也会被拒绝。查看器可以正在运行。
</translation>
    </message>
    <message>
        <source>takes a setting back to its default</source>
        <translation>将一个设置重置为默认值</translation>
    </message>
    <message>
        <source>Takes a setting back to its default, which is the site&apos;s where the site gives one.
  --all       all settings
</source>
        <translation>将一个设置重置为默认值；站点给出默认值时，为站点的默认值。
  --all       所有设置
</translation>
    </message>
    <message>
        <source>what differs from the defaults</source>
        <translation>与默认值不同的设置</translation>
    </message>
    <message>
        <source>Prints a line for each setting that differs from its default: KEY  DEFAULT -&gt; VALUE.
</source>
        <translation>每个与默认值不同的设置输出一行：KEY  DEFAULT -&gt; VALUE。
</translation>
    </message>
    <message>
        <source>writes all settings to a file of preferences</source>
        <translation>将所有设置写入首选项文件</translation>
    </message>
    <message>
        <source>Writes the values in force of all settings, with their types, as JSON to a file, or to the standard output
with - or without a name. An existing file is replaced.
</source>
        <translation>将所有设置当前生效的值及其类型以 JSON 写入文件；给出 - 或不给名称时，
写到标准输出。已有的文件会被替换。
</translation>
    </message>
    <message>
        <source>stores the settings of such a file</source>
        <translation>存储这种文件中的设置</translation>
    </message>
    <message>
        <source>Stores the settings of a file that export wrote, read from the standard input with -. Unknown keys, values
of another type or out of range, and locked settings are named on the standard error stream and skipped.
  --dry-run   prints what would change, KEY  VALUE -&gt; NEW VALUE, and stores nothing
</source>
        <translation>存储由 export 写出的文件中的设置，- 表示从标准输入读取。未知的键、类型不符或超出范围的值，
以及已锁定的设置，会在标准错误流中列出并跳过。
  --dry-run   输出将会更改的内容，KEY  VALUE -&gt; NEW VALUE，不存储任何内容
</translation>
    </message>
    <message>
        <source>keeps settings under a name, and takes them from there</source>
        <translation>以一个名称保存设置，并从中取用</translation>
    </message>
    <message>
        <source>A profile is a set of settings with a name, in a file of preferences. The site may have some too.
  list                             the names
  save NAME [--changed | --module M]
                                   keeps all settings, those that differ from their defaults, or a module&apos;s
  apply NAME [--dry-run]           stores its settings as import does; or only prints what would change
  delete NAME
</source>
        <translation>配置文件是一组有名称的设置，保存在首选项文件中。站点也可以有配置文件。
  list                             列出名称
  save NAME [--changed | --module M]
                                   保存所有设置、与默认值不同的设置，或一个模块的设置
  apply NAME [--dry-run]           像 import 那样存储其中的设置；或只输出将会更改的内容
  delete NAME
</translation>
    </message>
    <message>
        <source>what was changed when, and by which program</source>
        <translation>何时、由哪个程序更改了什么</translation>
    </message>
    <message>
        <source>Lists the last saves, the latest first: how far back it is, when, by which program, and what it changed. Of
confidential settings nothing is told.
  KEY         only the changes of that setting
  --json      one array, for programs
</source>
        <translation>列出最近的保存，最新的在前：是倒数第几次，何时，由哪个程序，更改了什么。
机密设置的内容不会显示。
  KEY         只列出该设置的更改
  --json      一个数组，供程序使用
</translation>
    </message>
    <message>
        <source>takes the last N saves back</source>
        <translation>撤回最近 N 次保存</translation>
    </message>
    <message>
        <source>looks for damage in the store and faults in the site&apos;s files</source>
        <translation>检查存储文件是否损坏、站点文件是否有错误</translation>
    </message>
    <message>
        <source>Prints a line for each thing that is wrong with the store, its copy or the site&apos;s files, also
for keys that no edition has, and changes nothing. The exit status is 0 when nothing is wrong, else 1.
  --site FILE  judges such a file of the site&apos;s before it is installed, and nothing else
</source>
        <translation>对存储文件、其备份或站点文件中的每个问题输出一行，
包括任何版本都没有的键，不更改任何内容。没有问题时退出状态为 0，否则为 1。
  --site FILE  在安装之前检查这样一个站点文件，不检查其他内容
</translation>
    </message>
    <message>
        <source>prints a JSON Schema of the files that name settings</source>
        <translation>输出列有设置的文件的 JSON Schema</translation>
    </message>
    <message>
        <source>Prints a JSON Schema of the file that export writes and import reads, and of a site&apos;s
site.json, for editors to complete and check them by. Settings and ranges are those of the edition.
</source>
        <translation>输出一个 JSON Schema，用于 export 写出、import 读取的文件，以及站点的
site.json，供编辑器补全和检查。设置和范围是该版本的设置和范围。
</translation>
    </message>
    <message>
        <source>runs a script from a file or the standard input</source>
        <translation>运行文件或标准输入中的脚本</translation>
    </message>
    <message>
        <source>Drives the modules operation by operation and prints every host call. A script begins
with empty preferences, or with those of --store, and never writes any.
</source>
        <translation>逐个操作地驱动各模块，并输出每次主机调用。脚本以空的首选项开始，
或以 --store 的首选项开始，从不写入首选项。
</translation>
    </message>
    <message>
        <source>Usage: %1
</source>
        <translation>用法：%1
</translation>
    </message>
    <message>
        <source>Shows and changes ORLO&apos;s preferences, and drives them by script. It needs no display.

Commands; orlo-prefs COMMAND --help tells more of each
</source>
        <translation>显示和更改 ORLO 的首选项，并可用脚本驱动。不需要显示器。

命令；orlo-prefs COMMAND --help 给出每个命令的更多说明
</translation>
    </message>
    <message>
        <source>The exit status is 0, or 2 with a message on the standard error stream; of check 1 when it
finds something, and of undo when it leaves something.
</source>
        <translation>退出状态为 0；为 2 时标准错误流中有一条消息；check 发现问题时为 1，
undo 留下未撤回的设置时也为 1。
</translation>
    </message>
    <message>
        <source>Takes the last save, or the last N, back and prints what that changes, KEY  VALUE -&gt; NEW VALUE. It is a
save itself and can be taken back. Settings that were changed since otherwise, or are locked, are named on the
standard error stream and left; the exit status is then 1.
  --dry-run   tells the same, with the same exit status, but stores nothing
</source>
        <translation>撤回最近一次或最近 N 次保存，并输出由此产生的更改，KEY  VALUE -&gt; NEW VALUE。撤回本身也是一次保存，
可以再撤回。此后又被更改或已锁定的设置会在标准错误流中列出并保持不变；
这时退出状态为 1。
  --dry-run   输出相同的内容，退出状态也相同，但不存储任何内容
</translation>
    </message>
</context>
<context>
    <name>olPrefsOptions</name>
    <message>
        <source>Options, before the command
  --edition NAME     %1 (default professional)
  --app-name NAME    the application&apos;s name (default orlo)
  --store FILE       where the preferences are kept (default the user&apos;s store; a script
                     begins empty without it, and never writes)
  --plugin FILE      the preferences plug-in (default beside the program, then the
                     installed plug-in folder)
  --language NAME    of the messages: en, zh, ja, ko, or user for the one that is stored
                     (default en)
  --yes              agrees to what the page would ask before it takes a value
  --help, --version
</source>
        <translation>选项，写在命令之前
  --edition NAME     %1（默认 professional）
  --app-name NAME    应用程序的名称（默认 orlo）
  --store FILE       保存首选项的文件（默认为用户的存储文件；脚本
                     没有此选项时以空的首选项开始，并且从不写入）
  --plugin FILE      首选项插件（默认为程序旁边的插件，其次为
                     插件安装文件夹中的插件）
  --language NAME    消息的语言：en、zh、ja、ko，或 user 表示已存储的语言
                     （默认 en）
  --yes              同意页面在接受一个值之前会询问的问题
  --help, --version
</translation>
    </message>
</context>
<context>
    <name>olProfiles</name>
    <message>
        <source>&quot;%1&quot; is no name for a profile: it must not be empty, have a slash in it or begin with a dot.</source>
        <translation>“%1”不能用作配置文件的名称：名称不得为空、含有斜杠或以点开头。</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;.</source>
        <translation>没有配置文件“%1”。</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; is the site&apos;s and cannot be deleted.</source>
        <translation>配置文件“%1”属于站点，不能删除。</translation>
    </message>
    <message>
        <source>Cannot delete the profile %1: %2.</source>
        <translation>无法删除配置文件 %1：%2。</translation>
    </message>
</context>
<context>
    <name>olProfilesMenu</name>
    <message>
        <source>&amp;Profiles</source>
        <translation>配置文件(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>%1 (site)</source>
        <translation>%1（站点）</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>另存为(&amp;S)...</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>保存配置文件</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>The settings in force were saved as profile &quot;%1&quot;.</source>
        <translation>当前生效的设置已保存为配置文件“%1”。</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Replace it?</source>
        <translation>已有配置文件“%1”。是否替换？</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>删除配置文件</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>删除配置文件“%1”？</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was deleted.</source>
        <translation>配置文件“%1”已删除。</translation>
    </message>
    <message>
        <source>All Settings</source>
        <translation>所有设置</translation>
    </message>
    <message>
        <source>Changed Settings</source>
        <translation>已更改的设置</translation>
    </message>
    <message>
        <source>&amp;Settings:</source>
        <translation>设置(&amp;S)：</translation>
    </message>
</context>
<context>
    <name>olReason</name>
    <message>
        <source>this is no 3MF file</source>
        <translation>这不是 3MF 文件</translation>
    </message>
    <message>
        <source>this is no COLLADA file</source>
        <translation>这不是 COLLADA 文件</translation>
    </message>
    <message>
        <source>the file is cut off or damaged</source>
        <translation>文件被截断或已损坏</translation>
    </message>
    <message>
        <source>the file is damaged or of another format</source>
        <translation>文件已损坏或属于其他格式</translation>
    </message>
    <message>
        <source>the file %1 that it refers to cannot be read</source>
        <translation>无法读取其引用的文件 %1</translation>
    </message>
    <message>
        <source>the file %1 that it refers to is cut off</source>
        <translation>其引用的文件 %1 被截断</translation>
    </message>
    <message>
        <source>it requires the extension %1, which is not supported</source>
        <translation>它需要扩展 %1，但不支持该扩展</translation>
    </message>
    <message>
        <source>the file is damaged: a node refers to one that is not there</source>
        <translation>文件已损坏：某个节点引用了不存在的节点</translation>
    </message>
    <message>
        <source>its groups are nested too deeply</source>
        <translation>其组嵌套过深</translation>
    </message>
    <message>
        <source>the file is damaged: a part of it lies beyond its end</source>
        <translation>文件已损坏：其中一部分超出了文件末尾</translation>
    </message>
    <message>
        <source>the file is damaged: it announces more than it holds</source>
        <translation>文件已损坏：其声明的内容多于实际内容</translation>
    </message>
    <message>
        <source>this is no glTF file</source>
        <translation>这不是 glTF 文件</translation>
    </message>
    <message>
        <source>this is no IGES file</source>
        <translation>这不是 IGES 文件</translation>
    </message>
    <message>
        <source>the file is damaged in line %1</source>
        <translation>文件在第 %1 行已损坏</translation>
    </message>
    <message>
        <source>its content cannot be taken over</source>
        <translation>其内容无法导入</translation>
    </message>
    <message>
        <source>a point lacks a coordinate</source>
        <translation>某个点缺少坐标</translation>
    </message>
    <message>
        <source>a face has fewer than three corners</source>
        <translation>某个面的顶点少于三个</translation>
    </message>
    <message>
        <source>a face refers to a point that is not there</source>
        <translation>某个面引用了不存在的点</translation>
    </message>
    <message>
        <source>this is no OBJ file</source>
        <translation>这不是 OBJ 文件</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: in line %1 %2</source>
        <translation>文件被截断或已损坏：第 %1 行，%2</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: it ends within its points</source>
        <translation>文件被截断或已损坏：在点数据中间结束</translation>
    </message>
    <message>
        <source>The model ends with points that no face uses; the file may be cut off.</source>
        <translation>模型末尾有未被任何面使用的点；文件可能被截断。</translation>
    </message>
    <message>
        <source>The materials file %1 is not there; the model has no colors.</source>
        <translation>材质文件 %1 不存在；模型没有颜色。</translation>
    </message>
    <message>
        <source>this is no OFF file</source>
        <translation>这不是 OFF 文件</translation>
    </message>
    <message>
        <source>this is no PLY file</source>
        <translation>这不是 PLY 文件</translation>
    </message>
    <message>
        <source>the file is damaged: #%1 refers to #%2, which is not there</source>
        <translation>文件已损坏：#%1 引用了不存在的 #%2</translation>
    </message>
    <message>
        <source>the file is damaged: its parentheses are nested too deeply</source>
        <translation>文件已损坏：括号嵌套过深</translation>
    </message>
    <message>
        <source>this is no STEP file</source>
        <translation>这不是 STEP 文件</translation>
    </message>
    <message>
        <source>%1 bytes behind its end were passed over.</source>
        <translation>已略过文件末尾之后的 %1 个字节。</translation>
    </message>
    <message>
        <source>this is no STL file</source>
        <translation>这不是 STL 文件</translation>
    </message>
    <message>
        <source>The solid %1 is empty.</source>
        <translation>实体 %1 为空。</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>其中没有几何体</translation>
    </message>
    <message>
        <source>this is no VRML file</source>
        <translation>这不是 VRML 文件</translation>
    </message>
    <message>
        <source>the file is damaged (%1)</source>
        <translation>文件已损坏（%1）</translation>
    </message>
    <message>
        <source>the file is damaged: line %1 cannot be understood (%2)</source>
        <translation>文件已损坏：无法理解第 %1 行（%2）</translation>
    </message>
    <message>
        <source>a group in it holds itself</source>
        <translation>其中某个组包含自身</translation>
    </message>
    <message>
        <source>the file is damaged: a face refers to a point that is not there</source>
        <translation>文件已损坏：某个面引用了不存在的点</translation>
    </message>
    <message>
        <source>The file %1 that it refers to was not found.</source>
        <translation>未找到其引用的文件 %1。</translation>
    </message>
    <message>
        <source>it refers to itself through %1</source>
        <translation>它通过 %1 引用自身</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>the file is too large for this machine: %1 GB with %2 GB of memory</source>
        <translation>文件对本机来说太大：文件 %1 GB，内存 %2 GB</translation>
    </message>
    <message>
        <source>the file is too large: %1 GB, of which 2 can be read</source>
        <translation>文件太大：%1 GB，最多可读取 2 GB</translation>
    </message>
    <message>
        <source>%1 parts are one in the file, as binary STL knows no parts.</source>
        <translation>%1 个零件在文件中合为一个，因为二进制 STL 不支持零件。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 个</translation>
    </message>
    <message>
        <source>Bodies that cannot be understood and are left out: %1.</source>
        <translation>无法理解而已略去的实体：%1。</translation>
    </message>
    <message>
        <source>No %1 has the field %2; it is passed over.</source>
        <translation>%1 没有字段 %2；已略过。</translation>
    </message>
    <message>
        <source>%1 lacks what it is made of, or is made of what cannot be understood</source>
        <translation>%1 缺少其组成部分，或其组成部分无法理解</translation>
    </message>
    <message>
        <source>the file is damaged: its entry D%1 refers to another that is not there</source>
        <translation>文件已损坏：其条目 D%1 引用了不存在的条目</translation>
    </message>
    <message>
        <source>Entries of the file that are not as they should be, and may be missing: %1.</source>
        <translation>文件中不完好、可能缺失的条目：%1。</translation>
    </message>
    <message>
        <source>%1 without a name</source>
        <translation>%1 个没有名称</translation>
    </message>
    <message>
        <source>Extensions that are not supported, so that something may be missing: %1.</source>
        <translation>不受支持的扩展，因此可能缺少部分内容：%1。</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>其零件超过一百万个</translation>
    </message>
    <message>
        <source>Faces that cannot be understood and are left out: %1.</source>
        <translation>无法理解而已略去的面：%1。</translation>
    </message>
    <message>
        <source>Free-form curves and surfaces that are left out: %1.</source>
        <translation>已略去的自由曲线和曲面：%1。</translation>
    </message>
    <message>
        <source>Words in the place of numbers, which count as 0: %1.</source>
        <translation>数字位置上的单词，按 0 计：%1。</translation>
    </message>
    <message>
        <source>Files that it refers to and that are left out: %1.</source>
        <translation>其引用但已略去的文件：%1。</translation>
    </message>
    <message>
        <source>Shapes of lines or points that are left out: %1.</source>
        <translation>已略去的线或点的形状：%1。</translation>
    </message>
    <message>
        <source>The texture %1 is a film, which is left out.</source>
        <translation>纹理 %1 是影片，已略去。</translation>
    </message>
    <message>
        <source>Meshes of lines or points that are left out: %1.</source>
        <translation>已略去的线或点的网格：%1。</translation>
    </message>
    <message>
        <source>Textures of kinds that are not drawn here: %1.</source>
        <translation>此处不绘制的类型的纹理：%1。</translation>
    </message>
    <message>
        <source>Invisible surfaces that the import options leave out: %1.</source>
        <translation>导入选项略去的不可见曲面：%1。</translation>
    </message>
    <message>
        <source>Materials that the materials file lacks: %1.</source>
        <translation>材质文件中缺少的材质：%1。</translation>
    </message>
</context>
<context>
    <name>olRecentModels</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>打开最近的文件(&amp;R)</translation>
    </message>
    <message>
        <source>%1  %2 (%3)</source>
        <translation>%1  %2 (%3)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清除(&amp;C)</translation>
    </message>
</context>
<context>
    <name>olRgbFields</name>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>R</source>
        <comment>red</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <comment>green</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>B</source>
        <comment>blue</comment>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>olSandbox</name>
    <message>
        <source>The system has no Landlock; models are read without it.</source>
        <translation>系统没有 Landlock；将在没有它的情况下读取模型。</translation>
    </message>
    <message>
        <source>The system takes no seccomp filter; models are read without it.</source>
        <translation>系统不接受 seccomp 过滤器；将在没有它的情况下读取模型。</translation>
    </message>
</context>
<context>
    <name>olSceneLoaders</name>
    <message>
        <source>OpenSG could not be started.</source>
        <translation>无法启动 OpenSG。</translation>
    </message>
    <message>
        <source>OpenSG has no loader for %1; options for it are not kept.</source>
        <translation>OpenSG 没有用于 %1 的加载器；不保留其选项。</translation>
    </message>
</context>
<context>
    <name>olSceneTree</name>
    <message>
        <source>Level %1</source>
        <translation>细节层次 %1</translation>
    </message>
    <message>
        <source>Unnamed group</source>
        <translation>未命名组</translation>
    </message>
    <message>
        <source>Unnamed part</source>
        <translation>未命名零件</translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation>三角形：%1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>颜色：%1</translation>
    </message>
    <message>
        <source>Opacity: %1 %</source>
        <translation>不透明度：%1%</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>未打开任何内容。</translation>
    </message>
</context>
<context>
    <name>olSceneView</name>
    <message>
        <source>The 3D view needs an X display.</source>
        <translation>3D 视图需要 X 显示。</translation>
    </message>
    <message>
        <source>The OpenGL context of this display cannot be used for the 3D view.</source>
        <translation>此显示的 OpenGL 上下文不能用于 3D 视图。</translation>
    </message>
</context>
<context>
    <name>olSettingDescription</name>
    <message>
        <source>one of %1</source>
        <translation>以下值之一：%1</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>最多 %1 个字符的文本</translation>
    </message>
    <message>
        <source>three numbers from %1 to %2</source>
        <translation>从 %1 到 %2 的三个数字</translation>
    </message>
    <message>
        <source>is of the type %1, not %2</source>
        <translation>类型为 %1，而不是 %2</translation>
    </message>
    <message>
        <source>cannot be %1: expected %2</source>
        <translation>不能为 %1：应为%2</translation>
    </message>
</context>
<context>
    <name>olSettingMarks</name>
    <message>
        <source>Set by the site.</source>
        <translation>由站点设置。</translation>
    </message>
    <message>
        <source>Set by you.</source>
        <translation>由用户设置。</translation>
    </message>
    <message>
        <source>Changed, not applied yet.</source>
        <translation>已更改，尚未应用。</translation>
    </message>
    <message>
        <source>Locked by the site.</source>
        <translation>由站点锁定。</translation>
    </message>
</context>
<context>
    <name>olSettingMenu</name>
    <message>
        <source>Set by the site, and locked</source>
        <translation>由站点设置，且已锁定</translation>
    </message>
    <message>
        <source>Changed, not applied yet</source>
        <translation>已更改，尚未应用</translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation>由用户设置</translation>
    </message>
    <message>
        <source>Set by the site</source>
        <translation>由站点设置</translation>
    </message>
    <message>
        <source>The default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>撤回(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Reset to Default: %1</source>
        <translation>重置为默认值(&amp;R)：%1</translation>
    </message>
    <message>
        <source>Copy &amp;Key &quot;%1&quot;</source>
        <translation>复制键“%1”(&amp;K)</translation>
    </message>
    <message>
        <source>Copy as &amp;JSON</source>
        <translation>复制为 JSON(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Why Is This Locked?</source>
        <translation>为何锁定(&amp;W)？</translation>
    </message>
</context>
<context>
    <name>olSettingTips</name>
    <message>
        <source>Range: %1 to %2</source>
        <translation>范围：%1 到 %2</translation>
    </message>
    <message>
        <source>Range: from %1</source>
        <translation>范围：不小于 %1</translation>
    </message>
    <message>
        <source>Range: up to %1</source>
        <translation>范围：不大于 %1</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>单位：%1</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>下次导入时生效</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>下次启动时生效</translation>
    </message>
    <message>
        <source>Takes effect at once</source>
        <translation>立即生效</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>默认值：%1</translation>
    </message>
</context>
<context>
    <name>olSettingWords</name>
    <message>
        <source>default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>已编辑</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>待应用</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>the site&apos;s</source>
        <translation>站点</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 项</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>module and setting</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>These %1 changes are not applied yet and would be lost:</source>
        <translation>这 %1 项更改尚未应用，将会丢失：</translation>
    </message>
    <message>
        <source>This change is not applied yet and would be lost:</source>
        <translation>此更改尚未应用，将会丢失：</translation>
    </message>
    <message>
        <source>%1 is locked: %2 The lock stands in %3.</source>
        <translation>%1 已锁定：%2 该锁定位于 %3 中。</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>用户</translation>
    </message>
</context>
<context>
    <name>olSettingsCatalogue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>从 %1 起</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>%1, %2 decimals</source>
        <translation>%1，%2 位小数</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>下次导入</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>下次启动</translation>
    </message>
    <message>
        <source>now</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>or any text</source>
        <translation>或任意文本</translation>
    </message>
    <message>
        <source>No settings.</source>
        <translation>没有设置。</translation>
    </message>
    <message>
        <source>key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>range or choices</source>
        <translation>范围或选项</translation>
    </message>
    <message>
        <source>effect</source>
        <translation>何时生效</translation>
    </message>
    <message>
        <source>on the page</source>
        <translation>在页面上</translation>
    </message>
    <message>
        <source>tooltip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source># Settings

All settings of all modules, in the order of registration and of writing, with the defaults of the Professional
edition. Made by `orlo-prefs list --markdown`.
</source>
        <translation># 设置

所有模块的所有设置，按注册和写入的顺序，默认值为 Professional 版本的默认值。
由 `orlo-prefs list --markdown` 生成。
</translation>
    </message>
</context>
<context>
    <name>olSettingsLock</name>
    <message>
        <source>The settings file %1 is busy: %2 (process %3) holds its lock. What is to be kept there waits for it.</source>
        <translation>设置文件 %1 被占用：%2（进程 %3）持有其锁。要保存到其中的内容需等待。</translation>
    </message>
</context>
<context>
    <name>olSettingsTransfer</name>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>The preferences in force were written to %1, without the pending changes.</source>
        <translation>当前生效的首选项已写入 %1，不含待应用的更改。</translation>
    </message>
    <message>
        <source>Export Preferences</source>
        <translation>导出首选项</translation>
    </message>
    <message>
        <source>These settings get new values. They stay pending until OK or Apply.</source>
        <translation>这些设置将得到新值。在“确定”或“应用”之前为待应用状态。</translation>
    </message>
    <message>
        <source>Import Preferences</source>
        <translation>导入首选项</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>回退</translation>
    </message>
    <message>
        <source>Apply Profile %1</source>
        <translation>应用配置文件 %1</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>回退(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>导入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>历史记录(&amp;H)...</translation>
    </message>
    <message>
        <source>The preferences were written to %1.</source>
        <translation>首选项已写入 %1。</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>不会有任何更改。</translation>
    </message>
    <message>
        <source>Preferences (*.json);;All files (*)</source>
        <translation>首选项 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>preferences.json</source>
        <translation>preferences.json</translation>
    </message>
</context>
<context>
    <name>olSiteDefaults</name>
    <message>
        <source>it cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>only root may own and write the file and its folder</source>
        <translation>该文件及其文件夹只能由 root 拥有和写入</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has neither a &quot;value&quot; nor a lock</source>
        <translation>“%1”既没有“value”也没有锁定</translation>
    </message>
    <message>
        <source>takes true or false for &quot;locked&quot;</source>
        <translation>中的“locked”只能是 true 或 false</translation>
    </message>
    <message>
        <source>takes a text for &quot;reason&quot;</source>
        <translation>中的“reason”只能是文本</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, where only &quot;value&quot;, &quot;locked&quot; and &quot;reason&quot; can stand</source>
        <translation>含有“%1”，而此处只能有“value”、“locked”和“reason”</translation>
    </message>
    <message>
        <source>This setting is fixed for your site.</source>
        <translation>此设置由站点固定。</translation>
    </message>
    <message>
        <source>%1, line %2: no module has a setting &quot;%3&quot;.</source>
        <translation>%1，第 %2 行：没有任何模块有设置“%3”。</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1 are ignored: %2.</source>
        <translation>已忽略站点的首选项 %1：%2。</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1, line %2: %3.</source>
        <translation>站点的首选项 %1，第 %2 行：%3。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>“%1”%2</translation>
    </message>
</context>
<context>
    <name>olSpacemouseLink</name>
    <message>
        <source>Cannot look for a 3D mouse: %1</source>
        <translation>无法查找 3D 鼠标：%1</translation>
    </message>
    <message>
        <source>There is no 3D mouse: its daemon, spacenavd, is not running.</source>
        <translation>没有 3D 鼠标：其守护进程 spacenavd 未运行。</translation>
    </message>
    <message>
        <source>Connected to the daemon of the 3D mouse.</source>
        <translation>已连接到 3D 鼠标的守护进程。</translation>
    </message>
    <message>
        <source>The daemon of the 3D mouse has gone.</source>
        <translation>3D 鼠标的守护进程已断开。</translation>
    </message>
</context>
<context>
    <name>olSqlite</name>
    <message>
        <source>no space left on the device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>其文件系统拒绝加锁</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>另一个程序正在占用它</translation>
    </message>
    <message>
        <source>it or its folder is read-only</source>
        <translation>它或其文件夹为只读</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>input or output failed</source>
        <translation>输入或输出失败</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>其结构已损坏</translation>
    </message>
    <message>
        <source>its content is no database</source>
        <translation>其内容不是数据库</translation>
    </message>
    <message>
        <source>a row is not what it was</source>
        <translation>某一行与原来不同</translation>
    </message>
</context>
<context>
    <name>olStartFault</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>The preferences cannot be loaded.</source>
        <translation>无法加载首选项。</translation>
    </message>
    <message>
        <source>The file is left as it is. With the defaults nothing of this run is kept.</source>
        <translation>文件保持原样。使用默认值时，本次运行的内容均不保留。</translation>
    </message>
    <message>
        <source>Another &amp;Store...</source>
        <translation>其他存储文件(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Defaults for This Run</source>
        <translation>本次使用默认值(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Another Store</source>
        <translation>其他存储文件</translation>
    </message>
    <message>
        <source>Preferences (*.db);;All files (*)</source>
        <translation>首选项 (*.db);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The plug-in with the preferences cannot be loaded.</source>
        <translation>无法加载首选项插件。</translation>
    </message>
    <message>
        <source>Another &amp;Plug-In...</source>
        <translation>其他插件(&amp;P)...</translation>
    </message>
    <message>
        <source>Another Plug-In</source>
        <translation>其他插件</translation>
    </message>
    <message>
        <source>Plug-ins (*.so);;All files (*)</source>
        <translation>插件 (*.so);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>olStoreTables</name>
    <message>
        <source>it is another program&apos;s database</source>
        <translation>这是另一个程序的数据库</translation>
    </message>
    <message>
        <source>it was written by a newer version</source>
        <translation>它由较新版本的程序写入</translation>
    </message>
    <message>
        <source>its tables are not what they were</source>
        <translation>其表与原来不同</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>其结构已损坏</translation>
    </message>
    <message>
        <source>rows were changed or are missing</source>
        <translation>有行被更改或缺失</translation>
    </message>
    <message>
        <source>its history was changed</source>
        <translation>其历史记录被更改</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>其中没有内容</translation>
    </message>
</context>
<context>
    <name>olSupport</name>
    <message>
        <source>orlo %1, edition %2</source>
        <translation>orlo %1，版本 %2</translation>
    </message>
    <message>
        <source>Changed settings:</source>
        <translation>已更改的设置：</translation>
    </message>
    <message>
        <source>Changed and left out: %1</source>
        <translation>已更改但未列出：%1</translation>
    </message>
    <message>
        <source>End of the log:</source>
        <translation>日志的末尾：</translation>
    </message>
</context>
<context>
    <name>olTesselationSettings</name>
    <message>
        <source>T&amp;essellation</source>
        <translation>镶嵌(&amp;E)</translation>
    </message>
    <message>
        <source>Chord &amp;Deviation</source>
        <translation>弦偏差(&amp;D)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation>法线公差(&amp;N)</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Ma&amp;x Chord Length</source>
        <translation>最大弦长(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>缝合(&amp;S)</translation>
    </message>
    <message>
        <source>St&amp;itching Tolerance</source>
        <translation>缝合公差(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>质量(&amp;Q)</translation>
    </message>
    <message>
        <source>Sets chord deviation, normal tolerance and max chord length together.</source>
        <translation>同时设置弦偏差、法线公差和最大弦长。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
</context>
<context>
    <name>olToolError</name>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>“%1”不是 UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked: %2</source>
        <translation>“%1”已锁定：%2</translation>
    </message>
    <message>
        <source>Cannot check %1: there is no such file.</source>
        <translation>无法检查 %1：没有这个文件。</translation>
    </message>
    <message>
        <source>%1 cannot be entered: expected %2</source>
        <translation>不能输入 %1：应为%2</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a text or a number</source>
        <translation>文本或数字</translation>
    </message>
    <message>
        <source>a button is not edited but pressed, by click</source>
        <translation>按钮不能编辑，只能用 click 按下</translation>
    </message>
    <message>
        <source>true, as another one must be chosen instead</source>
        <translation>true，因为须另选一项</translation>
    </message>
    <message>
        <source>an item by its number or its text: %1</source>
        <translation>用编号或文本指定的选项：%1</translation>
    </message>
    <message>
        <source>the item &quot;%1&quot; is disabled</source>
        <translation>选项“%1”已禁用</translation>
    </message>
    <message>
        <source>the field is only to be read</source>
        <translation>该字段为只读</translation>
    </message>
    <message>
        <source>what the field&apos;s validator lets through</source>
        <translation>该字段的验证器所接受的内容</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>最多 %1 个字符的文本</translation>
    </message>
    <message>
        <source>%1 with at most %2 decimals</source>
        <translation>%1，最多 %2 位小数</translation>
    </message>
    <message>
        <source>three numbers from 0 to 1, as [1, 0.5, 0]</source>
        <translation>从 0 到 1 的三个数字，例如 [1, 0.5, 0]</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>双引号内的文本</translation>
    </message>
    <message>
        <source>the text is only to be read</source>
        <translation>该文本为只读</translation>
    </message>
    <message>
        <source>a table or tree is not edited; select in it and press its buttons</source>
        <translation>表格或树不能编辑；请在其中选择并按其按钮</translation>
    </message>
    <message>
        <source>a control of its kind is not known</source>
        <translation>未知的控件种类</translation>
    </message>
    <message>
        <source>it is neither a table nor a tree</source>
        <translation>它既不是表格也不是树</translation>
    </message>
    <message>
        <source>nothing can be selected in it</source>
        <translation>其中没有可选择的内容</translation>
    </message>
    <message>
        <source>it is no button</source>
        <translation>它不是按钮</translation>
    </message>
    <message>
        <source>there is no row %1: it has %2</source>
        <translation>没有第 %1 行：共有 %2</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>there is no column %1: it has %2</source>
        <translation>没有第 %1 列：共有 %2</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 列</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 列</translation>
    </message>
    <message>
        <source>Cannot read the standard input: %1.</source>
        <translation>无法读取标准输入：%1。</translation>
    </message>
    <message>
        <source>Cannot import the standard input. %1</source>
        <translation>无法导入标准输入。%1</translation>
    </message>
    <message>
        <source>skipped: &quot;%1&quot; %2</source>
        <translation>已跳过：“%1”%2</translation>
    </message>
    <message>
        <source>%1 saves cannot be taken back: there are only %2</source>
        <translation>无法撤回 %1 次保存：只有 %2 次</translation>
    </message>
    <message>
        <source>left: &quot;%1&quot; %2</source>
        <translation>保持原样：“%1”%2</translation>
    </message>
    <message>
        <source>Some settings were left as they are.</source>
        <translation>某些设置保持原样。</translation>
    </message>
    <message>
        <source>the button &quot;%1&quot;</source>
        <translation>按钮“%1”</translation>
    </message>
    <message>
        <source>a directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>a color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>%1 opened, but the answer queued for it is %2</source>
        <translation>%1已打开，但为其准备的应答是：%2</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot;</source>
        <translation>对话框“%1”</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot; has no button &quot;%2&quot;; it has %3</source>
        <translation>对话框“%1”没有按钮“%2”；现有：%3</translation>
    </message>
    <message>
        <source>a color dialog</source>
        <translation>颜色对话框</translation>
    </message>
    <message>
        <source>the directory chooser &quot;%1&quot;</source>
        <translation>目录选择对话框“%1”</translation>
    </message>
    <message>
        <source>a command is missing: %1; see --help</source>
        <translation>缺少命令：%1；请参阅 --help</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>there is no command %1, only %2; see --help</source>
        <translation>没有命令 %1，只有 %2；请参阅 --help</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise</source>
        <translation>essentials、design、professional 或 enterprise</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要值</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>there is no edition %1, only %2</source>
        <translation>没有版本 %1，只有 %2</translation>
    </message>
    <message>
        <source>usage: orlo-prefs [OPTIONS] %1</source>
        <translation>用法：orlo-prefs [OPTIONS] %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set with --yes: %2</source>
        <translation>“%1”只能用 --yes 设置：%2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>无法写入输出：%1。</translation>
    </message>
    <message>
        <source>Cannot make a directory for scratch settings: %1.</source>
        <translation>无法为临时设置创建目录：%1。</translation>
    </message>
    <message>
        <source>Cannot read the script %1: %2.</source>
        <translation>无法读取脚本 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>a quote stands within the word %1</source>
        <translation>单词 %1 中有引号</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>引号未闭合</translation>
    </message>
    <message>
        <source>a blank is missing behind &quot;%1&quot;</source>
        <translation>“%1”后缺少空格</translation>
    </message>
    <message>
        <source>VALUE is missing</source>
        <translation>缺少 VALUE</translation>
    </message>
    <message>
        <source>%1 is no JSON value</source>
        <translation>%1 不是 JSON 值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much</source>
        <translation>“%1”是多余的</translation>
    </message>
    <message>
        <source>%1; usage: %2</source>
        <translation>%1；用法：%2</translation>
    </message>
    <message>
        <source>there is no type %1, only %2</source>
        <translation>没有类型 %1，只有 %2</translation>
    </message>
    <message>
        <source>%1 is no value of type %2: expected %3</source>
        <translation>%1 不是类型 %2 的值：应为%3</translation>
    </message>
    <message>
        <source>%1 is no number counted from 0</source>
        <translation>%1 不是从 0 开始的编号</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>behind the module only keep may follow</source>
        <translation>模块之后只能跟 keep</translation>
    </message>
    <message>
        <source>%1 is neither put nor get</source>
        <translation>%1 既不是 put 也不是 get</translation>
    </message>
    <message>
        <source>no column goes with none</source>
        <translation>none 不能与列一起使用</translation>
    </message>
    <message>
        <source>%1 is no color</source>
        <translation>%1 不是颜色</translation>
    </message>
    <message>
        <source>%1 does not fit the fact %2: expected %3</source>
        <translation>%1 不适合主机状态项 %2：应为%3</translation>
    </message>
    <message>
        <source>no variable can be called %1</source>
        <translation>变量不能命名为 %1</translation>
    </message>
    <message>
        <source>%1 is no text</source>
        <translation>%1 不是文本</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;; there is: %2</source>
        <translation>没有模块“%1”；现有：%2</translation>
    </message>
    <message>
        <source>the library is unloaded</source>
        <translation>库已卸载</translation>
    </message>
    <message>
        <source>%1 has no page</source>
        <translation>%1 没有页面</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 已隐藏</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 已禁用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a value of a type that settings do not have</source>
        <translation>“%1”的值属于设置所没有的类型</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>“%1”%2</translation>
    </message>
    <message>
        <source>there is no language %1, only %2 or user</source>
        <translation>没有语言 %1，只有 %2 或 user</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;</source>
        <translation>没有模块“%1”</translation>
    </message>
    <message>
        <source>%1  (site)</source>
        <translation>%1  （站点）</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>没有设置“%1”</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1；是否想用“%2”？</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>没有选项 %1</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>没有命令 %1</translation>
    </message>
    <message>
        <source>there is no fact %1</source>
        <translation>没有主机状态项 %1</translation>
    </message>
    <message>
        <source>(default %1)</source>
        <translation>（默认值 %1）</translation>
    </message>
</context>
<context>
    <name>olTour</name>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>the camera has no page in this edition; nothing to show</source>
        <translation>相机在此版本中没有页面；没有可显示的内容</translation>
    </message>
    <message>
        <source>the change could not be applied</source>
        <translation>无法应用更改</translation>
    </message>
    <message>
        <source>Applied: Field of View %1</source>
        <translation>已应用：视野 %1</translation>
    </message>
    <message>
        <source>this display shows no 3D view; there is no picture of it</source>
        <translation>此显示器不显示 3D 视图；没有它的图片</translation>
    </message>
    <message>
        <source>the picture %1 cannot be written</source>
        <translation>无法写入图片 %1</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>图片：%1</translation>
    </message>
</context>
<context>
    <name>olTranslations</name>
    <message>
        <source>There is no usable translation %1.qm in %2: its texts stay English.</source>
        <translation>%2 中没有可用的翻译 %1.qm：其文本保持英文。</translation>
    </message>
</context>
<context>
    <name>olUndo</name>
    <message>
        <source>is locked: %1</source>
        <translation>已锁定：%1</translation>
    </message>
    <message>
        <source>was changed since</source>
        <translation>此后又被更改</translation>
    </message>
</context>
<context>
    <name>olValue</name>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a whole number from -2147483648 to 2147483647</source>
        <translation>从 -2147483648 到 2147483647 的整数</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>从 0 到 4294967295 的整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>双引号内的文本</translation>
    </message>
    <message>
        <source>a list of texts, as [&quot;a&quot;, &quot;b&quot;]</source>
        <translation>文本列表，例如 [&quot;a&quot;, &quot;b&quot;]</translation>
    </message>
    <message>
        <source>a list of numbers, as [1, 0.5]</source>
        <translation>数字列表，例如 [1, 0.5]</translation>
    </message>
    <message>
        <source>three numbers, as [1, 0.5, 0]</source>
        <translation>三个数字，例如 [1, 0.5, 0]</translation>
    </message>
    <message>
        <source>a list of colors, as [[0, 0, 0], [1, 1, 1]]</source>
        <translation>颜色列表，例如 [[0, 0, 0], [1, 1, 1]]</translation>
    </message>
</context>
<context>
    <name>olValueText</name>
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
</context>
<context>
    <name>olViewAids</name>
    <message>
        <source>RIGHT</source>
        <translation>右</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>左</translation>
    </message>
    <message>
        <source>FRONT</source>
        <translation>前</translation>
    </message>
    <message>
        <source>BACK</source>
        <translation>后</translation>
    </message>
    <message>
        <source>TOP</source>
        <translation>上</translation>
    </message>
    <message>
        <source>BOTTOM</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯</translation>
    </message>
</context>
<context>
    <name>olViewport</name>
    <message>
        <source>3D view</source>
        <translation>3D 视图</translation>
    </message>
    <message>
        <source>The 3D view: %1</source>
        <translation>3D 视图：%1</translation>
    </message>
    <message>
        <source>The renderer of the 3D view cannot be started.</source>
        <translation>无法启动 3D 视图的渲染器。</translation>
    </message>
    <message>
        <source>A frame of the 3D view could not be drawn.</source>
        <translation>无法绘制 3D 视图的某一帧。</translation>
    </message>
</context>
<context>
    <name>olWebAccess</name>
    <message>
        <source>The web server does not answer %1: %2</source>
        <translation>Web 服务器不响应来自 %1 的请求：%2</translation>
    </message>
</context>
<context>
    <name>olWebPages</name>
    <message>
        <source>The answer would be too large.</source>
        <translation>应答内容过大。</translation>
    </message>
    <message>
        <source>The application is running.</source>
        <translation>应用程序正在运行。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>State of the host</source>
        <translation>主机状态</translation>
    </message>
    <message>
        <source>Nothing can be changed here; ask with GET.</source>
        <translation>此处不能更改任何内容；请用 GET 请求。</translation>
    </message>
    <message>
        <source>There is no such page.</source>
        <translation>没有这个页面。</translation>
    </message>
    <message>
        <source>This host is not allowed.</source>
        <translation>不允许此主机。</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of the language</comment>
        <translation>zh</translation>
    </message>
</context>
<context>
    <name>olWebServer</name>
    <message>
        <source>it is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>others than its owner can read it</source>
        <translation>除所有者外，其他人也能读取它</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>The web server cannot use %1: %2</source>
        <translation>Web 服务器无法使用 %1：%2</translation>
    </message>
    <message>
        <source>ports are numbered 1 to 65535</source>
        <translation>端口号应为 1 到 65535</translation>
    </message>
    <message>
        <source>port %1 with %2</source>
        <translation>端口 %1（证书 %2）</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>端口 %1</translation>
    </message>
    <message>
        <source>The web server does not listen on %1: %2</source>
        <translation>Web 服务器未监听%1：%2</translation>
    </message>
</context>
<context>
    <name>orlo</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>--%1 needs --render</source>
        <translation>--%1 需要 --render</translation>
    </message>
    <message>
        <source>--set needs --render or --save</source>
        <translation>--set 需要 --render 或 --save</translation>
    </message>
    <message>
        <source>--%1 does not go with --render</source>
        <translation>--%1 不能与 --render 一起使用</translation>
    </message>
    <message>
        <source>--%1 needs a window, which --render and --save do without</source>
        <translation>--%1 需要窗口，而 --render 和 --save 不使用窗口</translation>
    </message>
    <message>
        <source>--render needs --output PICTURE</source>
        <translation>--render 需要 --output PICTURE</translation>
    </message>
    <message>
        <source>%1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192</source>
        <translation>%1 不是尺寸：应为 WIDTHxHEIGHT，两者各从 1 到 8192</translation>
    </message>
    <message>
        <source>--save needs either a model or --sample</source>
        <translation>--save 需要模型或 --sample 之一</translation>
    </message>
    <message>
        <source>%1 does not go with --render</source>
        <translation>%1 不能与 --render 一起使用</translation>
    </message>
    <message>
        <source>there is no edition %1; there are essentials, design, professional and enterprise</source>
        <translation>没有版本 %1；只有 essentials、design、professional 和 enterprise</translation>
    </message>
    <message>
        <source>no page has the setting &quot;%1&quot;</source>
        <translation>没有页面有设置“%1”</translation>
    </message>
    <message>
        <source>%1 has stored this.</source>
        <translation>%1 已存储此项更改。</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>另一个程序</translation>
    </message>
    <message>
        <source>expected --unit mm, cm, m, in or ft, and --up y or z</source>
        <translation>应为 --unit mm、cm、m、in 或 ft，以及 --up y 或 z</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>“%1”不是 UTF-8</translation>
    </message>
    <message>
        <source>only one model can be converted at a time</source>
        <translation>一次只能转换一个模型</translation>
    </message>
    <message>
        <source>Views, renders and converts CAD models.</source>
        <translation>查看、渲染和转换 CAD 模型。</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise.</source>
        <translation>essentials、design、professional 或 enterprise。</translation>
    </message>
    <message>
        <source>The application&apos;s name.</source>
        <translation>应用程序的名称。</translation>
    </message>
    <message>
        <source>The file that keeps the preferences.</source>
        <translation>保存首选项的文件。</translation>
    </message>
    <message>
        <source>The preferences plug-in to load.</source>
        <translation>要加载的首选项插件。</translation>
    </message>
    <message>
        <source>Open a small assembly that the program builds itself.</source>
        <translation>打开程序自身构建的一个小装配体。</translation>
    </message>
    <message>
        <source>Write the model, or the sample, in the format of the suffix, and end.</source>
        <translation>以扩展名所示的格式写出模型或示例，然后结束。</translation>
    </message>
    <message>
        <source>Import a model, write one picture of it to --output, and end.</source>
        <translation>导入一个模型，将它的一张图片写到 --output，然后结束。</translation>
    </message>
    <message>
        <source>Where --render puts its picture.</source>
        <translation>--render 存放图片的位置。</translation>
    </message>
    <message>
        <source>With --render: show cameras, lights and the cube as the window does.</source>
        <translation>与 --render 一起：像窗口中那样显示相机、光源和立方体。</translation>
    </message>
    <message>
        <source>With --render: draw the borders of surfaces.</source>
        <translation>与 --render 一起：绘制曲面的边界。</translation>
    </message>
    <message>
        <source>The unit of a model that does not say it: mm, cm, m, in or ft.</source>
        <translation>未说明单位的模型的单位：mm、cm、m、in 或 ft。</translation>
    </message>
    <message>
        <source>What is up in a model that does not say it: y or z.</source>
        <translation>未说明朝上方向的模型的朝上轴：y 或 z。</translation>
    </message>
    <message>
        <source>How large the picture is, in pixels.</source>
        <translation>图片的大小，以像素为单位。</translation>
    </message>
    <message>
        <source>A setting for --render and --save, as &quot;KEY=VALUE&quot;; nothing is saved.</source>
        <translation>用于 --render 和 --save 的设置，写作“KEY=VALUE”；不保存任何内容。</translation>
    </message>
    <message>
        <source>The model to open.</source>
        <translation>要打开的模型。</translation>
    </message>
    <message>
        <source>Open the preferences beside the view.</source>
        <translation>在视图旁边打开首选项。</translation>
    </message>
    <message>
        <source>Open the preferences at a setting.</source>
        <translation>在某个设置处打开首选项。</translation>
    </message>
    <message>
        <source>Apply a change in the preferences, leave pictures in the folder, and end.</source>
        <translation>在首选项中应用一处更改，将图片留在文件夹中，然后结束。</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --save needs none</source>
        <translation>没有可用于打开窗口的显示；--save 不需要显示</translation>
    </message>
</context>
</TS>

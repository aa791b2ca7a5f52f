<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>olBackgroundTable</name>
    <message>
        <source>Color</source>
        <translation>色</translation>
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
        <translation>フォーム1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Vertical opening angle of the camera, in degrees</source>
        <translation>カメラの垂直方向の視野角 (度)</translation>
    </message>
    <message>
        <source>&amp;Field of View</source>
        <translation>視野角(&amp;F)</translation>
    </message>
    <message>
        <source>Field of View</source>
        <translation>視野角</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>ステレオ</translation>
    </message>
    <message>
        <source>Distance between the two eyes</source>
        <translation>両眼の間の距離</translation>
    </message>
    <message>
        <source>&amp;Eye Separation</source>
        <translation>眼間距離(&amp;E)</translation>
    </message>
    <message>
        <source>Eye Separation</source>
        <translation>眼間距離</translation>
    </message>
    <message>
        <source>Distance at which both eyes see the same picture</source>
        <translation>両眼の像が一致する距離</translation>
    </message>
    <message>
        <source>&amp;Zero Parallax Distance</source>
        <translation>ゼロ視差距離(&amp;Z)</translation>
    </message>
    <message>
        <source>Zero Parallax Distance</source>
        <translation>ゼロ視差距離</translation>
    </message>
    <message>
        <source>Powerwall</source>
        <translation>パワーウォール</translation>
    </message>
    <message>
        <source>Width of the projected picture</source>
        <translation>投影画像の幅</translation>
    </message>
    <message>
        <source>Projection &amp;Width</source>
        <translation>投影幅(&amp;W)</translation>
    </message>
    <message>
        <source>Projection Width</source>
        <translation>投影幅</translation>
    </message>
    <message>
        <source>Height of the projected picture</source>
        <translation>投影画像の高さ</translation>
    </message>
    <message>
        <source>Projection &amp;Height</source>
        <translation>投影高さ(&amp;H)</translation>
    </message>
    <message>
        <source>Projection Height</source>
        <translation>投影高さ</translation>
    </message>
    <message>
        <source>Distance from the viewer to the projected picture</source>
        <translation>観察者から投影画像までの距離</translation>
    </message>
    <message>
        <source>Projection &amp;Distance</source>
        <translation>投影距離(&amp;D)</translation>
    </message>
    <message>
        <source>Projection Distance</source>
        <translation>投影距離</translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUII</name>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
</context>
<context>
    <name>olDevicesPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>フォーム1</translation>
    </message>
    <message>
        <source>Joystick</source>
        <translation>ジョイスティック</translation>
    </message>
    <message>
        <source>Navigates with a joystick</source>
        <translation>ジョイスティックでナビゲーションを行います。</translation>
    </message>
    <message>
        <source>Use &amp;Joystick</source>
        <translation>ジョイスティックを使用(&amp;J)</translation>
    </message>
    <message>
        <source>Number of the joystick; the first is 0</source>
        <translation>ジョイスティックの番号 (最初は0)</translation>
    </message>
    <message>
        <source>Jo&amp;ystick</source>
        <translation>ジョイスティック(&amp;Y)</translation>
    </message>
    <message>
        <source>Don&apos;t forget to enable the analog mode!</source>
        <translation>アナログモードを必ず有効にしてください！</translation>
    </message>
    <message>
        <source>Space Mouse</source>
        <translation>3Dマウス</translation>
    </message>
    <message>
        <source>Searches for a 3D mouse and navigates with it</source>
        <translation>3Dマウスを探し、それでナビゲーションを行います。</translation>
    </message>
    <message>
        <source>Enable &amp;3D Mouse</source>
        <translation>3Dマウスを有効化(&amp;3)</translation>
    </message>
    <message>
        <source>What the 3D mouse moves</source>
        <translation>3Dマウスで動かす対象</translation>
    </message>
    <message>
        <source>&amp;View Mode</source>
        <translation>ビューモード(&amp;V)</translation>
    </message>
    <message>
        <source>View Mode</source>
        <translation>ビューモード</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>What the 3D mouse turns around</source>
        <translation>3Dマウスの回転の中心</translation>
    </message>
    <message>
        <source>&amp;Rotation Pivot</source>
        <translation>回転ピボット(&amp;R)</translation>
    </message>
    <message>
        <source>Rotation Pivot</source>
        <translation>回転ピボット</translation>
    </message>
    <message>
        <source>Selected Object/Origin</source>
        <translation>選択オブジェクト/原点</translation>
    </message>
    <message>
        <source>Focus Distance</source>
        <translation>フォーカス距離</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Keeps the horizon level</source>
        <translation>水平線を水平に保ちます。</translation>
    </message>
    <message>
        <source>Enable &amp;Two-Axis Mode</source>
        <translation>2軸モードを有効化(&amp;T)</translation>
    </message>
    <message>
        <source>Moves up and down only where the device is lifted or pressed</source>
        <translation>デバイスを持ち上げるか押し下げたときだけ上下に移動します。</translation>
    </message>
    <message>
        <source>&amp;Helicopter Mode</source>
        <translation>ヘリコプターモード(&amp;H)</translation>
    </message>
    <message>
        <source>Height of the camera above the ground while a fixed height is used</source>
        <translation>高さを固定している間の、地面からのカメラの高さ</translation>
    </message>
    <message>
        <source>H&amp;eight</source>
        <translation>高さ(&amp;E)</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Keeps the camera at one height above the ground</source>
        <translation>地面からのカメラの高さを一定に保ちます。</translation>
    </message>
    <message>
        <source>Use &amp;Fixed Height</source>
        <translation>高さを固定(&amp;F)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUI</name>
    <message>
        <source>FileIO</source>
        <translation>ファイル入出力</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>&amp;Verify Geometry</source>
        <translation>ジオメトリを検証(&amp;V)</translation>
    </message>
    <message>
        <source>Optimi&amp;ze Geometry</source>
        <translation>ジオメトリを最適化(&amp;Z)</translation>
    </message>
    <message>
        <source>Sets the maximum number of import tasks. Changing this value increases memory usage. </source>
        <translation>インポートタスクの最大数を設定します。この値を変更するとメモリー使用量が増えます。 </translation>
    </message>
    <message>
        <source>Ma&amp;x Parallel Processes</source>
        <translation>最大並列プロセス数(&amp;X)</translation>
    </message>
    <message>
        <source>Max Parallel Processes</source>
        <translation>最大並列プロセス数</translation>
    </message>
    <message>
        <source>This is used for file conversions, should be writable. If you leave this empty a system tmp path will be used.</source>
        <translation>ファイルの変換に使用します。書き込み可能である必要があります。空にすると、システムの一時パスを使用します。</translation>
    </message>
    <message>
        <source>&amp;Temporary Path</source>
        <translation>一時パス(&amp;T)</translation>
    </message>
    <message>
        <source>Temporary Path</source>
        <translation>一時パス</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>一時ファイルのパスを選択</translation>
    </message>
    <message>
        <source>Import Dialog</source>
        <translation>インポートダイアログ</translation>
    </message>
    <message>
        <source>C&amp;enter to Origin</source>
        <translation>原点に中心を合わせる(&amp;E)</translation>
    </message>
    <message>
        <source>Place O&amp;bjects on the Ground</source>
        <translation>オブジェクトを地面に配置(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Show Dialog</source>
        <translation>ダイアログを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Close Dialog on successful &amp;Import</source>
        <translation>インポート成功時にダイアログを閉じる(&amp;I)</translation>
    </message>
    <message>
        <source>Texture Compression</source>
        <translation>テクスチャ圧縮</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>モード(&amp;M)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>Video Memory &amp;Limit</source>
        <translation>ビデオメモリーの上限(&amp;L)</translation>
    </message>
    <message>
        <source>Video Memory Limit</source>
        <translation>ビデオメモリーの上限</translation>
    </message>
    <message>
        <source>Megabyte</source>
        <translation>メガバイト</translation>
    </message>
    <message>
        <source>Texture Search Paths</source>
        <translation>テクスチャ検索パス</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>削除(&amp;E)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>追加(&amp;D)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUIW</name>
    <message>
        <source>Select Texture Search Directory</source>
        <translation>テクスチャ検索ディレクトリを選択</translation>
    </message>
    <message>
        <source>Path already inserted!</source>
        <translation>このパスは既に追加されています！</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>一時ファイルのパスを選択</translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUI</name>
    <message>
        <source>Import Options</source>
        <translation>インポートオプション</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>一般オプション</translation>
    </message>
    <message>
        <source>Keep the surfaces beside their triangles, so that they can be tessellated anew.</source>
        <translation>再テッセレーションできるように、三角形とともにサーフェスも保持します。</translation>
    </message>
    <message>
        <source>&amp;Keep Surface Data</source>
        <translation>サーフェスデータを保持(&amp;K)</translation>
    </message>
    <message>
        <source>Put the parts of each layer into a group of their own.</source>
        <translation>各レイヤーのパーツをそれぞれ専用のグループに入れます。</translation>
    </message>
    <message>
        <source>Create Groups &amp;for Layers</source>
        <translation>レイヤーごとにグループを作成(&amp;F)</translation>
    </message>
    <message>
        <source>Remove groups that hold nothing after the import.</source>
        <translation>インポート後に、何も含まないグループを削除します。</translation>
    </message>
    <message>
        <source>&amp;Remove Empty Groups</source>
        <translation>空のグループを削除(&amp;R)</translation>
    </message>
    <message>
        <source>Give every place that uses a part a copy of its own.</source>
        <translation>パーツを使用する箇所ごとに専用のコピーを作成します。</translation>
    </message>
    <message>
        <source>Uns&amp;hare Nodes</source>
        <translation>ノードの共有を解除(&amp;H)</translation>
    </message>
    <message>
        <source>Apply the transformations to the geometries and remove them from the scene graph.</source>
        <translation>変換をジオメトリに適用し、シーングラフから取り除きます。</translation>
    </message>
    <message>
        <source>Flush &amp;Transformations</source>
        <translation>変換を適用(&amp;T)</translation>
    </message>
    <message>
        <source>Let the normals of adjoining surfaces point to the same side.</source>
        <translation>隣り合うサーフェスの法線を同じ側に向けます。</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>サーフェスの法線を統一(&amp;Y)</translation>
    </message>
    <message>
        <source>Merge geometries of the same material into one.</source>
        <translation>同じマテリアルのジオメトリを1つに結合します。</translation>
    </message>
    <message>
        <source>Merge Geometries</source>
        <translation>ジオメトリを結合</translation>
    </message>
    <message>
        <source>S&amp;urfaces</source>
        <translation>サーフェス(&amp;U)</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>サーフェス</translation>
    </message>
    <message>
        <source>Import none</source>
        <translation>インポートしない</translation>
    </message>
    <message>
        <source>Import visible</source>
        <translation>表示中のみインポート</translation>
    </message>
    <message>
        <source>Import all</source>
        <translation>すべてインポート</translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation>曲線とポリライン(&amp;L)</translation>
    </message>
    <message>
        <source>Curves and Polygon Lines</source>
        <translation>曲線とポリライン</translation>
    </message>
    <message>
        <source>&amp;Meshes</source>
        <translation>メッシュ(&amp;M)</translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation>メッシュ</translation>
    </message>
    <message>
        <source>Tessellation and Stitching</source>
        <translation>テッセレーションとステッチ</translation>
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
        <translation>ファイル固有のオプション</translation>
    </message>
    <message>
        <source>Import variants instead of excluding them. (Only Contura wire files)</source>
        <translation>バリアントを除外せずにインポートします。(Contura wireファイルのみ)</translation>
    </message>
    <message>
        <source>Import &amp;Variants</source>
        <translation>バリアントをインポート(&amp;V)</translation>
    </message>
    <message>
        <source>Import empty layers instead of excluding them. (Only Contura wire files)</source>
        <translation>空のレイヤーを除外せずにインポートします。(Contura wireファイルのみ)</translation>
    </message>
    <message>
        <source>Import Empty Layers</source>
        <translation>空のレイヤーをインポート</translation>
    </message>
    <message>
        <source>Import template geometries instead of excluding them. (Only Contura wire files)</source>
        <translation>テンプレートジオメトリを除外せずにインポートします。(Contura wireファイルのみ)</translation>
    </message>
    <message>
        <source>Import Template Geometries</source>
        <translation>テンプレートジオメトリをインポート</translation>
    </message>
    <message>
        <source>Import lights instead of excluding them. (Only Contura wire files)</source>
        <translation>ライトを除外せずにインポートします。(Contura wireファイルのみ)</translation>
    </message>
    <message>
        <source>Import Lights</source>
        <translation>ライトをインポート</translation>
    </message>
    <message>
        <source>Import associative mesh data instead of excluding it.</source>
        <translation>関連メッシュのデータを除外せずにインポートします。</translation>
    </message>
    <message>
        <source>Import Associative Meshes</source>
        <translation>関連メッシュをインポート</translation>
    </message>
    <message>
        <source>Import cameras instead of excluding them. (Only Contura wire files)</source>
        <translation>カメラを除外せずにインポートします。(Contura wireファイルのみ)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>カメラをインポート</translation>
    </message>
    <message>
        <source>Import parts referenced by an assembly.</source>
        <translation>アセンブリが参照するパーツをインポートします。</translation>
    </message>
    <message>
        <source>Import Referenced Files</source>
        <translation>参照ファイルをインポート</translation>
    </message>
    <message>
        <source>Import coordinate systems from Catia files.</source>
        <translation>Catiaファイルから座標系をインポートします。</translation>
    </message>
    <message>
        <source>Import Coordinate Systems</source>
        <translation>座標系をインポート</translation>
    </message>
    <message>
        <source>Import Mesh LODs</source>
        <translation>メッシュのLODをインポート</translation>
    </message>
    <message>
        <source>Import invisible instance nodes instead of excluding them.</source>
        <translation>非表示のインスタンスノードを除外せずにインポートします。</translation>
    </message>
    <message>
        <source>Import Invisi&amp;ble Instances</source>
        <translation>非表示のインスタンスをインポート(&amp;B)</translation>
    </message>
    <message>
        <source>Legacy Loader</source>
        <translation>旧ローダー</translation>
    </message>
    <message>
        <source>If enabled the legacy jt loader is used for importing jt-files.</source>
        <translation>有効にすると、JTファイルのインポートに旧JTローダーを使用します。</translation>
    </message>
    <message>
        <source>Use legacy &amp;JT loader</source>
        <translation>旧JTローダーを使用(&amp;J)</translation>
    </message>
    <message>
        <source>Use Active Layerfilter</source>
        <translation>アクティブなレイヤーフィルターを使用</translation>
    </message>
    <message>
        <source>Breps Handling</source>
        <translation>B-repの処理</translation>
    </message>
    <message>
        <source>Tesselate All Breps</source>
        <translation>すべてのB-repをテッセレーション</translation>
    </message>
    <message>
        <source>Load JT Breps Only</source>
        <translation>JT B-repのみ読み込み</translation>
    </message>
    <message>
        <source>Load XT Breps Only</source>
        <translation>XT B-repのみ読み込み</translation>
    </message>
    <message>
        <source>Load All Breps</source>
        <translation>すべてのB-repを読み込み</translation>
    </message>
    <message>
        <source>Rhino</source>
        <translation>Rhino</translation>
    </message>
    <message>
        <source>If enabled the legacy rhino loader is used for importing 3dm files.</source>
        <translation>有効にすると、3dmファイルのインポートに旧Rhinoローダーを使用します。</translation>
    </message>
    <message>
        <source>Use legacy Rhino loader</source>
        <translation>旧Rhinoローダーを使用</translation>
    </message>
    <message>
        <source>Import Nurbs</source>
        <translation>NURBSをインポート</translation>
    </message>
    <message>
        <source>STL Export Format</source>
        <translation>STLエクスポート形式</translation>
    </message>
    <message>
        <source>Ascii</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>バイナリ</translation>
    </message>
    <message>
        <source>KBX</source>
        <translation>KBX</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>バージョン(&amp;V)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>形式(&amp;F)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>&amp;Export Vertex Colors</source>
        <translation>頂点カラーをエクスポート(&amp;E)</translation>
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
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Where the help comes from</source>
        <translation>ヘルプの取得元</translation>
    </message>
    <message>
        <source>Help &amp;Location</source>
        <translation>ヘルプの場所(&amp;L)</translation>
    </message>
    <message>
        <source>Help Location</source>
        <translation>ヘルプの場所</translation>
    </message>
    <message>
        <source>Marvane Knowledge Network</source>
        <translation>Marvane Knowledge Network</translation>
    </message>
    <message>
        <source>Installed Help</source>
        <translation>インストール済みヘルプ</translation>
    </message>
    <message>
        <source>Path to Installed Help. If help is installed on intranet, change file:// for http://</source>
        <translation>インストール済みヘルプのパス。ヘルプがイントラネットにインストールされている場合は、file://をhttp://に変更してください。</translation>
    </message>
    <message>
        <source>&amp;Help Path</source>
        <translation>ヘルプのパス(&amp;H)</translation>
    </message>
    <message>
        <source>Help Path</source>
        <translation>ヘルプのパス</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Pop&amp;up Help</source>
        <translation>ポップアップヘルプ(&amp;U)</translation>
    </message>
    <message>
        <source>Popup Help</source>
        <translation>ポップアップヘルプ</translation>
    </message>
    <message>
        <source>Toolclips</source>
        <translation>ツールクリップ</translation>
    </message>
    <message>
        <source>Simple Toolclips</source>
        <translation>簡易ツールクリップ</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUII</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUIW</name>
    <message>
        <source>Controls are explained by a short text.</source>
        <translation>コントロールを短いテキストで説明します。</translation>
    </message>
    <message>
        <source>Controls are explained by text and pictures, with the way to the help.</source>
        <translation>コントロールをテキストと画像で説明し、ヘルプの参照先も示します。</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>フォーム1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>To see any effect while changing this option you need to restart the app!</source>
        <translation>このオプションの変更を反映するには、アプリケーションの再起動が必要です！</translation>
    </message>
    <message>
        <source>Show &amp;Toolbutton Text</source>
        <translation>ツールボタンのテキストを表示(&amp;T)</translation>
    </message>
    <message>
        <source>Shows how many pictures are drawn in a second</source>
        <translation>1秒間に描画される画像の数を表示します。</translation>
    </message>
    <message>
        <source>Show &amp;FPS in Statusbar</source>
        <translation>ステータスバーにFPSを表示(&amp;F)</translation>
    </message>
    <message>
        <source>Changing this setting requires a restart of ORLO.</source>
        <translation>この設定の変更にはORLOの再起動が必要です。</translation>
    </message>
    <message>
        <source>Show &amp;Rendering Log Messages in Terminal</source>
        <translation>レンダリングのログメッセージを端末に表示(&amp;R)</translation>
    </message>
    <message>
        <source>How opaque the main window is; 1 lets nothing shine through</source>
        <translation>メインウィンドウの不透明度 (1では何も透けて見えません)</translation>
    </message>
    <message>
        <source>&amp;Window Opacity</source>
        <translation>ウィンドウの不透明度(&amp;W)</translation>
    </message>
    <message>
        <source>Window Opacity</source>
        <translation>ウィンドウの不透明度</translation>
    </message>
    <message>
        <source>Keeps panels from being docked to the main window</source>
        <translation>パネルがメインウィンドウにドッキングされないようにします。</translation>
    </message>
    <message>
        <source>Disable &amp;Docking</source>
        <translation>ドッキングを無効化(&amp;D)</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>次回の起動時に有効になります</translation>
    </message>
    <message>
        <source>User &amp;Language</source>
        <translation>表示言語(&amp;L)</translation>
    </message>
    <message>
        <source>User Language</source>
        <translation>表示言語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUII</name>
    <message>
        <source>MainWindow</source>
        <translation>メインウィンドウ</translation>
    </message>
    <message>
        <source>Language Preferences Change</source>
        <translation>言語設定の変更</translation>
    </message>
    <message>
        <source>Please restart ORLO so that your language changes can take effect.</source>
        <translation>言語の変更を有効にするには、ORLOを再起動してください。</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUI</name>
    <message>
        <source>Selection</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Sets a scale factor for the marks at the corners of the bounding box of a selection.</source>
        <translation>選択範囲のバウンディングボックスの角に付くマークの倍率を設定します。</translation>
    </message>
    <message>
        <source>Bounding Box Visual Si&amp;ze</source>
        <translation>バウンディングボックスの表示サイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Bounding Box Visual Size</source>
        <translation>バウンディングボックスの表示サイズ</translation>
    </message>
    <message>
        <source>Shows a wireframe on the nodes that would be selected when hovering over the render window.</source>
        <translation>レンダリングウィンドウ上にカーソルを置いたときに、選択されることになるノードをワイヤーフレームで示します。</translation>
    </message>
    <message>
        <source>&amp;Show Preselection Highlight</source>
        <translation>事前選択のハイライトを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Sets the color of the preselection highlight.</source>
        <translation>事前選択のハイライトの色を設定します。</translation>
    </message>
    <message>
        <source>P&amp;reselection Color</source>
        <translation>事前選択の色(&amp;R)</translation>
    </message>
    <message>
        <source>Preselection Color</source>
        <translation>事前選択の色</translation>
    </message>
    <message>
        <source>Selection Modes</source>
        <translation>選択モード</translation>
    </message>
    <message>
        <source>Selects the whole group of levels of detail instead of the level that is shown.</source>
        <translation>表示中の詳細レベルではなく、詳細レベルのグループ全体を選択します。</translation>
    </message>
    <message>
        <source>&amp;LOD Selection</source>
        <translation>LOD選択(&amp;L)</translation>
    </message>
    <message>
        <source>Scrolls the scene graph to the node that was selected in the render window.</source>
        <translation>レンダリングウィンドウで選択したノードまでシーングラフをスクロールします。</translation>
    </message>
    <message>
        <source>Auto Scroll to Selected &amp;Node</source>
        <translation>選択ノードへ自動スクロール(&amp;N)</translation>
    </message>
    <message>
        <source>Enables the selection of objects with a 100% transparent material in the render window.</source>
        <translation>レンダリングウィンドウで、透明度100%のマテリアルを持つオブジェクトを選択できるようにします。</translation>
    </message>
    <message>
        <source>Select 100% &amp;Transparent Objects</source>
        <translation>透明度100%のオブジェクトを選択(&amp;T)</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>ワイヤーフレーム</translation>
    </message>
    <message>
        <source>Shows selected objects with a wireframe.</source>
        <translation>選択したオブジェクトをワイヤーフレームで表示します。</translation>
    </message>
    <message>
        <source>&amp;Enable Wireframe</source>
        <translation>ワイヤーフレームを有効化(&amp;E)</translation>
    </message>
    <message>
        <source>Draws the wireframe over the objects that hide it.</source>
        <translation>ワイヤーフレームを、それを隠すオブジェクトより手前に描画します。</translation>
    </message>
    <message>
        <source>Always in &amp;Front</source>
        <translation>常に手前に表示(&amp;F)</translation>
    </message>
    <message>
        <source>Sets the color of the wireframe.</source>
        <translation>ワイヤーフレームの色を設定します。</translation>
    </message>
    <message>
        <source>&amp;Wireframe Color</source>
        <translation>ワイヤーフレームの色(&amp;W)</translation>
    </message>
    <message>
        <source>Wireframe Color</source>
        <translation>ワイヤーフレームの色</translation>
    </message>
    <message>
        <source>Shows the wireframe in the color that is chosen.</source>
        <translation>選択した色でワイヤーフレームを示します。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUII</name>
    <message>
        <source>Selection</source>
        <translation>選択</translation>
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
        <translation>ローダー</translation>
    </message>
    <message>
        <source>Directory in which Mirra is installed. Leave it empty to do without.</source>
        <translation>Mirraのインストール先ディレクトリ。使用しない場合は空のままにします。</translation>
    </message>
    <message>
        <source>Mirra &amp;Location</source>
        <translation>Mirraの場所(&amp;L)</translation>
    </message>
    <message>
        <source>Mirra Location</source>
        <translation>Mirraの場所</translation>
    </message>
    <message>
        <source>Set Mirra Location</source>
        <translation>Mirraの場所を設定</translation>
    </message>
    <message>
        <source>Reads the shadow textures of a scene as shades of grey</source>
        <translation>シーンのシャドウテクスチャをグレースケールとして読み込みます。</translation>
    </message>
    <message>
        <source>&amp;Force Grayscale Shadow Texture</source>
        <translation>シャドウテクスチャを強制的にグレースケール化(&amp;F)</translation>
    </message>
    <message>
        <source>Takes materials from the library on this computer</source>
        <translation>このコンピューターのライブラリからマテリアルを取得します。</translation>
    </message>
    <message>
        <source>Use Local &amp;Material Library</source>
        <translation>ローカルのマテリアルライブラリを使用(&amp;M)</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Unit that a scene is brought to</source>
        <translation>シーンの変換先の単位</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>単位(&amp;U)</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Unit that the lengths of a file are given in; &apos;ignore&apos; takes them as they are</source>
        <translation>ファイル内の長さの単位。「ignore」では値をそのまま使用します。</translation>
    </message>
    <message>
        <source>&amp;Import Units</source>
        <translation>インポート単位(&amp;I)</translation>
    </message>
    <message>
        <source>Import Units</source>
        <translation>インポート単位</translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUIW</name>
    <message>
        <source>Set Mirra Location</source>
        <translation>Mirraの場所を設定</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUI</name>
    <message>
        <source>Navigator</source>
        <translation>ナビゲーター</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>ナビゲーション</translation>
    </message>
    <message>
        <source>Sets what dragging the mouse does to the camera</source>
        <translation>マウスのドラッグによるカメラの動きを設定します。</translation>
    </message>
    <message>
        <source>&amp;Navigation Mode</source>
        <translation>ナビゲーションモード(&amp;N)</translation>
    </message>
    <message>
        <source>Navigation Mode</source>
        <translation>ナビゲーションモード</translation>
    </message>
    <message>
        <source>Sets whose mouse handling the navigation imitates. Choosing one presets the matching settings of this page.</source>
        <translation>どの製品のマウス操作にならうかを設定します。選択すると、このページの対応する設定が自動的に設定されます。</translation>
    </message>
    <message>
        <source>&amp;Interaction Mode</source>
        <translation>操作モード(&amp;I)</translation>
    </message>
    <message>
        <source>Interaction Mode</source>
        <translation>操作モード</translation>
    </message>
    <message>
        <source>Set the navigation speed mode for Two-Axis and Trackball navigation</source>
        <translation>2軸ナビゲーションとトラックボールナビゲーションの速度モードを設定します。</translation>
    </message>
    <message>
        <source>&amp;Speed Mode</source>
        <translation>速度モード(&amp;S)</translation>
    </message>
    <message>
        <source>Speed Mode</source>
        <translation>速度モード</translation>
    </message>
    <message>
        <source>Unconstrained</source>
        <translation>制限なし</translation>
    </message>
    <message>
        <source>Limited</source>
        <translation>制限あり</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線形</translation>
    </message>
    <message>
        <source>Centers the navigation on the selected objects</source>
        <translation>ナビゲーションの中心を選択オブジェクトに合わせます。</translation>
    </message>
    <message>
        <source>Au&amp;to Center</source>
        <translation>自動センタリング(&amp;T)</translation>
    </message>
    <message>
        <source>Dolly</source>
        <translation>ドリー</translation>
    </message>
    <message>
        <source>Sets a scale factor for the dolly speed.</source>
        <translation>ドリー速度の倍率を設定します。</translation>
    </message>
    <message>
        <source>Dolly Sp&amp;eed</source>
        <translation>ドリー速度(&amp;E)</translation>
    </message>
    <message>
        <source>Dolly Speed</source>
        <translation>ドリー速度</translation>
    </message>
    <message>
        <source>Sets the mouse move direction for dolly operations</source>
        <translation>ドリー操作でのマウスの移動方向を設定します。</translation>
    </message>
    <message>
        <source>Do&amp;lly Axis</source>
        <translation>ドリー軸(&amp;L)</translation>
    </message>
    <message>
        <source>Dolly Axis</source>
        <translation>ドリー軸</translation>
    </message>
    <message>
        <source>Vertical Only</source>
        <translation>垂直のみ</translation>
    </message>
    <message>
        <source>Horizontal Only</source>
        <translation>水平のみ</translation>
    </message>
    <message>
        <source>Horizontal and Vertical</source>
        <translation>水平と垂直</translation>
    </message>
    <message>
        <source>Inverts the Y-Axis for the dolly operations. The X-Axis remains unchanged</source>
        <translation>ドリー操作のY軸を反転します。X軸は変わりません。</translation>
    </message>
    <message>
        <source>Invert Dolly A&amp;xis</source>
        <translation>ドリー軸を反転(&amp;X)</translation>
    </message>
    <message>
        <source>Inverts dolly direction when using the scroll wheel</source>
        <translation>スクロールホイール使用時のドリー方向を反転します。</translation>
    </message>
    <message>
        <source>Invert &amp;Wheel Dolly</source>
        <translation>ホイールのドリーを反転(&amp;W)</translation>
    </message>
    <message>
        <source>Sets the dolly operation to dolly towards the pivot instead of the screen center.</source>
        <translation>ドリー操作を、画面中央ではなくピボットに向かって行うように設定します。</translation>
    </message>
    <message>
        <source>Doll&amp;y To Pivot</source>
        <translation>ピボットへドリー(&amp;Y)</translation>
    </message>
    <message>
        <source>Panning</source>
        <translation>パン</translation>
    </message>
    <message>
        <source>Bases the panning speed on the distance to the pivot instead of using the click position</source>
        <translation>パン速度を、クリック位置ではなくピボットまでの距離に基づいて決めます。</translation>
    </message>
    <message>
        <source>Pi&amp;vot Based Panning</source>
        <translation>ピボット基準のパン(&amp;V)</translation>
    </message>
    <message>
        <source>Sets a scale factor for the panning speed.</source>
        <translation>パン速度の倍率を設定します。</translation>
    </message>
    <message>
        <source>Panning Spee&amp;d</source>
        <translation>パン速度(&amp;D)</translation>
    </message>
    <message>
        <source>Panning Speed</source>
        <translation>パン速度</translation>
    </message>
    <message>
        <source>Orbit</source>
        <translation>オービット</translation>
    </message>
    <message>
        <source>Orbits around the point under the mouse when it rests there before it is dragged</source>
        <translation>ドラッグ前にマウスを静止させると、マウスの下の点を中心にオービットします。</translation>
    </message>
    <message>
        <source>Orbit &amp;Mode</source>
        <translation>オービットモード(&amp;M)</translation>
    </message>
    <message>
        <source>Sets how far the mouse may move, in pixels, and still count as resting</source>
        <translation>静止とみなすマウスの移動量の上限をピクセル単位で設定します。</translation>
    </message>
    <message>
        <source>Or&amp;bit Detection Area</source>
        <translation>オービット検出範囲(&amp;B)</translation>
    </message>
    <message>
        <source>Orbit Detection Area</source>
        <translation>オービット検出範囲</translation>
    </message>
    <message>
        <source>Sets how long the mouse has to rest, in milliseconds</source>
        <translation>マウスを静止させる時間をミリ秒単位で設定します。</translation>
    </message>
    <message>
        <source>O&amp;rbit Detection Time</source>
        <translation>オービット検出時間(&amp;R)</translation>
    </message>
    <message>
        <source>Orbit Detection Time</source>
        <translation>オービット検出時間</translation>
    </message>
    <message>
        <source>Camera Animation</source>
        <translation>カメラアニメーション</translation>
    </message>
    <message>
        <source>Animates the camera change when using Zoom To and Show All</source>
        <translation>「選択部分へズーム」と「すべて表示」の使用時に、カメラの変化をアニメーション表示します。</translation>
    </message>
    <message>
        <source>Animate camera c&amp;hange</source>
        <translation>カメラの変化をアニメーション化(&amp;H)</translation>
    </message>
    <message>
        <source>Length of the animated camera change</source>
        <translation>カメラの変化のアニメーションの長さ</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>継続時間(&amp;U)</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>継続時間</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUII</name>
    <message>
        <source>Navigator</source>
        <translation>ナビゲーター</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUIW</name>
    <message>
        <source>Trackball</source>
        <translation>トラックボール</translation>
    </message>
    <message>
        <source>TwoAxis</source>
        <translation>2軸</translation>
    </message>
    <message>
        <source>Fly</source>
        <translation>フライ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
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
        <translation>このネイティブ形式には設定項目がありません。</translation>
    </message>
</context>
<context>
    <name>olPlainText</name>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
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
        <translation>ファイル入出力</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Tesselation</source>
        <translation>テッセレーション</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUI</name>
    <message>
        <source>Render Options</source>
        <translation>レンダリングオプション</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>レンダリング</translation>
    </message>
    <message>
        <source>Visualization</source>
        <translation>可視化</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>アンチエイリアス</translation>
    </message>
    <message>
        <source>Sets the realtime antialiasing quality</source>
        <translation>リアルタイムアンチエイリアスの品質を設定します。</translation>
    </message>
    <message>
        <source>Antialiasing &amp;Quality</source>
        <translation>アンチエイリアス品質(&amp;Q)</translation>
    </message>
    <message>
        <source>Antialiasing Quality</source>
        <translation>アンチエイリアス品質</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
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
        <translation>ポストプロセスアンチエイリアスを有効化(&amp;N)</translation>
    </message>
    <message>
        <source>Disable &amp;Realtime Antialiasing on Camera movement</source>
        <translation>カメラ移動中はリアルタイムアンチエイリアスを無効化(&amp;R)</translation>
    </message>
    <message>
        <source>Enable &amp;Stillframe Antialiasing</source>
        <translation>静止フレームアンチエイリアスを有効化(&amp;S)</translation>
    </message>
    <message>
        <source>Shows clipping plane and transform handles during interactive stillframe antialiasing</source>
        <translation>インタラクティブな静止フレームアンチエイリアスの間、クリッピング平面と変換のハンドルを表示します。</translation>
    </message>
    <message>
        <source>Show Au&amp;xiliary Nodes during antialiasing</source>
        <translation>アンチエイリアス中に補助ノードを表示(&amp;X)</translation>
    </message>
    <message>
        <source>Interactive &amp;Material Preview</source>
        <translation>インタラクティブマテリアルプレビュー(&amp;M)</translation>
    </message>
    <message>
        <source>Interactive Material Preview: Use OpenGL for Interactive Rendering</source>
        <translation>インタラクティブマテリアルプレビュー：インタラクティブレンダリングにOpenGLを使用</translation>
    </message>
    <message>
        <source>Use OpenGL for &amp;Interactive Rendering</source>
        <translation>インタラクティブレンダリングにOpenGLを使用(&amp;I)</translation>
    </message>
    <message>
        <source>Still&amp;frame AA After</source>
        <translation>静止フレームAA開始までの時間(&amp;F)</translation>
    </message>
    <message>
        <source>Stillframe AA After, in seconds</source>
        <translation>静止フレームAAを開始するまでの秒数</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Antialiasing Distance</source>
        <translation>アンチエイリアス距離</translation>
    </message>
    <message>
        <source>Antialiasing Scale</source>
        <translation>アンチエイリアススケール</translation>
    </message>
    <message>
        <source>High Quality Antialiasing</source>
        <translation>高品質アンチエイリアス</translation>
    </message>
    <message>
        <source>Show Camera &amp;Visualizations</source>
        <translation>カメラを可視化(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Light Visualizations</source>
        <translation>ライトを可視化(&amp;L)</translation>
    </message>
    <message>
        <source>Show &amp;Joint Visualizations</source>
        <translation>ジョイントを可視化(&amp;J)</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>&amp;Transparent Sorting</source>
        <translation>透明オブジェクトのソート(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Z Write Transparency</source>
        <translation>透明オブジェクトのZ書き込み(&amp;Z)</translation>
    </message>
    <message>
        <source>Raytracing</source>
        <translation>レイトレーシング</translation>
    </message>
    <message>
        <source>Enable &amp;Downscale</source>
        <translation>縮小を有効化(&amp;D)</translation>
    </message>
    <message>
        <source>Do&amp;wnscale Quality</source>
        <translation>縮小品質(&amp;W)</translation>
    </message>
    <message>
        <source>Downscale Quality</source>
        <translation>縮小品質</translation>
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
        <translation>レンダリングウィンドウ</translation>
    </message>
    <message>
        <source>If activated ORLO uses a fixed rendering windows resolution</source>
        <translation>有効にすると、レンダリングウィンドウの解像度を固定します。</translation>
    </message>
    <message>
        <source>&amp;Use Fixed Resolution</source>
        <translation>固定解像度を使用(&amp;U)</translation>
    </message>
    <message>
        <source>Pixel R&amp;esolution</source>
        <translation>ピクセル解像度(&amp;E)</translation>
    </message>
    <message>
        <source>Pixel Resolution Width</source>
        <translation>ピクセル解像度の幅</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Pixel Resolution Height</source>
        <translation>ピクセル解像度の高さ</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Advanced Rendering</source>
        <translation>レンダリングの詳細設定</translation>
    </message>
    <message>
        <source>Enables rendering to a 10bit buffer.</source>
        <translation>10ビットバッファーへのレンダリングを有効にします。</translation>
    </message>
    <message>
        <source>Use &amp;10 Bit RGB</source>
        <translation>10ビットRGBを使用(&amp;1)</translation>
    </message>
    <message>
        <source>Enables rendering to a 16bit float buffer</source>
        <translation>16ビット浮動小数点バッファーへのレンダリングを有効にします。</translation>
    </message>
    <message>
        <source>Use 1&amp;6 Bit Float RGB</source>
        <translation>16ビット浮動小数点RGBを使用(&amp;6)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Enables single pass stereo rendering on GPUs supporting the required extensions in order to improve performance.&lt;/p&gt;&lt;p&gt;Single Pass Stereo is not available when Multicast Stereo is active.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;必要な拡張機能をサポートするGPUで、パフォーマンス向上のためにシングルパスステレオレンダリングを有効にします。&lt;/p&gt;&lt;p&gt;マルチキャストステレオが有効な場合、シングルパスステレオは使用できません。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Single Pass Stereo</source>
        <translation>シングルパスステレオ(&amp;S)</translation>
    </message>
    <message>
        <source>Enables occlusion culling by default</source>
        <translation>オクルージョンカリングを既定で有効にします。</translation>
    </message>
    <message>
        <source>Occl&amp;usion Culling</source>
        <translation>オクルージョンカリング(&amp;U)</translation>
    </message>
    <message>
        <source>Occlusion Culling Mode</source>
        <translation>オクルージョンカリングモード</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the occlusion culling mode. Accurate always renders all visible objects while Fast takes the visibility information from the previous frame. Note that the Fast option may cause wrong rendering when there are huge changes between frames.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;オクルージョンカリングのモードを設定します。「正確」では、見えているオブジェクトが常にすべてレンダリングされます。「高速」では、前のフレームの可視情報が使用されます。フレーム間の変化が大きい場合、「高速」ではレンダリングが正しくならないことがあります。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Accurate</source>
        <translation>正確</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Renders the whole scene once with all LOD&apos;s and disabled frustum culling to get rid of jerky rendering.</source>
        <translation>動きの滑らかでないレンダリングを防ぐため、すべてのLODを含めて視錐台カリングなしでシーン全体を一度レンダリングします。</translation>
    </message>
    <message>
        <source>Cac&amp;he Geometry</source>
        <translation>ジオメトリをキャッシュ(&amp;H)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;By default the ORLO process will go to sleep if less than 1 millisecond has passed between two frames to save power. If this option is activated the ORLO process will run in a busy loop and not go to sleep.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;既定では、フレーム間の経過時間が1ミリ秒未満の場合、ORLOのプロセスは省電力のためスリープします。このオプションを有効にすると、ORLOのプロセスはスリープせずにビジーループで動作します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Disable &amp;Main Thread Sleep</source>
        <translation>メインスレッドのスリープを無効化(&amp;M)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Force a glFinish call directly after swap buffers to avoid lag. Enabling reduces performance and scalability for systems running in Alternate Frame SLI mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;遅延を避けるため、バッファーのスワップ直後にglFinishの呼び出しを強制します。有効にすると、オルタネートフレームSLIモードで動作するシステムのパフォーマンスとスケーラビリティが低下します。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Force G&amp;LFinish</source>
        <translation>GLFinishを強制(&amp;L)</translation>
    </message>
    <message>
        <source>SLI</source>
        <translation>SLI</translation>
    </message>
    <message>
        <source>&amp;Enable SLI</source>
        <translation>SLIを有効化(&amp;E)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the SLI mode to use. Alternate Frame only works correctly for mono rendering by rendering a frame on one GPU and the next on the second GPU. This works best for mono rendering and does not work for virtual reality headsets. Multicast Stereo only works for stereo rendering by using one GPU for each eye and therefore is also compatible with virtual reality headsets.&lt;/p&gt;&lt;p&gt;Changing this option requires a restart of ORLO.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;使用するSLIモードを設定します。「オルタネートフレーム」は、あるフレームを1つ目のGPUで、次のフレームを2つ目のGPUでレンダリングするため、モノスコピックレンダリングでのみ正しく動作します。モノスコピックレンダリングに最適で、バーチャルリアリティヘッドセットでは動作しません。「マルチキャストステレオ」は、片目ごとに1つのGPUを使用するため、ステレオレンダリングでのみ動作し、バーチャルリアリティヘッドセットでも使用できます。&lt;/p&gt;&lt;p&gt;このオプションの変更にはORLOの再起動が必要です。&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>SLI Mo&amp;de</source>
        <translation>SLIモード(&amp;D)</translation>
    </message>
    <message>
        <source>SLI Mode</source>
        <translation>SLIモード</translation>
    </message>
    <message>
        <source>Alternate Frame</source>
        <translation>オルタネートフレーム</translation>
    </message>
    <message>
        <source>Multicast Stereo</source>
        <translation>マルチキャストステレオ</translation>
    </message>
    <message>
        <source>Visualization Advanced</source>
        <translation>可視化の詳細設定</translation>
    </message>
    <message>
        <source>L&amp;imit Near and Far Clipping Plane</source>
        <translation>近・遠クリッピング平面を制限(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Near Clipping Plane</source>
        <translation>近クリッピング平面(&amp;N)</translation>
    </message>
    <message>
        <source>Near Clipping Plane</source>
        <translation>近クリッピング平面</translation>
    </message>
    <message>
        <source>&amp;Far Clipping Plane</source>
        <translation>遠クリッピング平面(&amp;F)</translation>
    </message>
    <message>
        <source>Far Clipping Plane</source>
        <translation>遠クリッピング平面</translation>
    </message>
    <message>
        <source>Realtime Antialiasing Presets</source>
        <translation>リアルタイムアンチエイリアスのプリセット</translation>
    </message>
    <message>
        <source>Low Quality Settings</source>
        <translation>低品質の設定</translation>
    </message>
    <message>
        <source>Sets the multisampling factor for opengl realtime antialiasing</source>
        <translation>OpenGLのリアルタイムアンチエイリアスのマルチサンプリング係数を設定します。</translation>
    </message>
    <message>
        <source>Multisampling</source>
        <translation>マルチサンプリング</translation>
    </message>
    <message>
        <source>Low Quality Multisampling</source>
        <translation>低品質のマルチサンプリング</translation>
    </message>
    <message>
        <source>Low Quality Raytracing</source>
        <translation>低品質のレイトレーシング</translation>
    </message>
    <message>
        <source>Enables the use of a pixelfilter to improve multisampling quality</source>
        <translation>ピクセルフィルターを有効にしてマルチサンプリングの品質を向上させます。</translation>
    </message>
    <message>
        <source>Enable Pixelfilter</source>
        <translation>ピクセルフィルターを有効化</translation>
    </message>
    <message>
        <source>Enables 2x supersampling additional to multisampling. This can greatly increase quality but is also very slow to render.</source>
        <translation>マルチサンプリングに加えて2xスーパーサンプリングを有効にします。品質は大きく向上しますが、レンダリングは非常に遅くなります。</translation>
    </message>
    <message>
        <source>Enable Supersampling</source>
        <translation>スーパーサンプリングを有効化</translation>
    </message>
    <message>
        <source>Medium Quality Settings</source>
        <translation>中品質の設定</translation>
    </message>
    <message>
        <source>Medium Quality Multisampling</source>
        <translation>中品質のマルチサンプリング</translation>
    </message>
    <message>
        <source>Medium Quality Raytracing</source>
        <translation>中品質のレイトレーシング</translation>
    </message>
    <message>
        <source>High Quality Settings</source>
        <translation>高品質の設定</translation>
    </message>
    <message>
        <source>High Quality Multisampling</source>
        <translation>高品質のマルチサンプリング</translation>
    </message>
    <message>
        <source>High Quality Raytracing</source>
        <translation>高品質のレイトレーシング</translation>
    </message>
    <message>
        <source>Ultra Quality Settings</source>
        <translation>超高品質の設定</translation>
    </message>
    <message>
        <source>Ultra Quality Multisampling</source>
        <translation>超高品質のマルチサンプリング</translation>
    </message>
    <message>
        <source>Ultra Quality Raytracing</source>
        <translation>超高品質のレイトレーシング</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>ビューポート</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>追加(&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>削除(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;hoose Color</source>
        <translation>色を選択(&amp;H)</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>ライティング</translation>
    </message>
    <message>
        <source>Headlight &amp;Behaviour</source>
        <translation>ヘッドライトの動作(&amp;B)</translation>
    </message>
    <message>
        <source>Headlight Behaviour</source>
        <translation>ヘッドライトの動作</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Always On</source>
        <translation>常にオン</translation>
    </message>
    <message>
        <source>Always Off</source>
        <translation>常にオフ</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>&amp;Use Point Headlight</source>
        <translation>点光源のヘッドライトを使用(&amp;U)</translation>
    </message>
    <message>
        <source>Navigation Help</source>
        <translation>ナビゲーション補助</translation>
    </message>
    <message>
        <source>Show Coo&amp;rdinate System</source>
        <translation>座標系を表示(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;Navigation Cube</source>
        <translation>ナビゲーションキューブを表示(&amp;N)</translation>
    </message>
    <message>
        <source>Use &amp;Z-Up Coordinate System</source>
        <translation>Z軸を上とする座標系を使用(&amp;Z)</translation>
    </message>
    <message>
        <source>Progress Cursor</source>
        <translation>進行状況カーソル</translation>
    </message>
    <message>
        <source>Shows the progress wheel during anti-aliasing.</source>
        <translation>アンチエイリアス中に進行状況ホイールを表示します。</translation>
    </message>
    <message>
        <source>Sho&amp;w Progress</source>
        <translation>進行状況を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Size of the progress wheel</source>
        <translation>進行状況ホイールのサイズ</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>サイズ(&amp;S)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>If enabled, the progress wheel is placed in the lower left corner of the render view. Otherwise it is attached to the cursor.</source>
        <translation>有効にすると、進行状況ホイールはレンダリングビューの左下隅に表示されます。無効にすると、カーソルに付いて表示されます。</translation>
    </message>
    <message>
        <source>S&amp;tatic Position</source>
        <translation>位置を固定(&amp;T)</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUII</name>
    <message>
        <source>Render Options</source>
        <translation>レンダリングオプション</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUIW</name>
    <message>
        <source>1 Sample</source>
        <translation>1サンプル</translation>
    </message>
    <message>
        <source>2 Samples</source>
        <translation>2サンプル</translation>
    </message>
    <message>
        <source>4 Samples</source>
        <translation>4サンプル</translation>
    </message>
    <message>
        <source>8 Samples</source>
        <translation>8サンプル</translation>
    </message>
    <message>
        <source>16 Samples</source>
        <translation>16サンプル</translation>
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
        <translation>テッセレーショントポロジー</translation>
    </message>
    <message>
        <source>Distance up to which edges count as joined, in millimetres</source>
        <translation>エッジがつながっているとみなす距離の上限 (ミリメートル)</translation>
    </message>
    <message>
        <source>&amp;Tolerance</source>
        <translation>公差(&amp;T)</translation>
    </message>
    <message>
        <source>Where the optimizer takes the topology of a model from</source>
        <translation>オプティマイザーがモデルのトポロジーを取得する方法</translation>
    </message>
    <message>
        <source>Topolog&amp;y</source>
        <translation>トポロジー(&amp;Y)</translation>
    </message>
    <message>
        <source>Topology</source>
        <translation>トポロジー</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Reuse Existing (If Any)</source>
        <translation>既存を再利用 (ある場合)</translation>
    </message>
    <message>
        <source>No Topology</source>
        <translation>トポロジーなし</translation>
    </message>
    <message>
        <source>Scales the offset between tessellated surfaces</source>
        <translation>テッセレーションしたサーフェス間のオフセットの倍率を設定します。</translation>
    </message>
    <message>
        <source>Offset &amp;Factor</source>
        <translation>オフセット係数(&amp;F)</translation>
    </message>
    <message>
        <source>Offset Factor</source>
        <translation>オフセット係数</translation>
    </message>
    <message>
        <source>Turns faces that point the wrong way</source>
        <translation>逆向きの面を反転します。</translation>
    </message>
    <message>
        <source>Check O&amp;rientation</source>
        <translation>向きをチェック(&amp;R)</translation>
    </message>
    <message>
        <source>Tesselation Quality</source>
        <translation>テッセレーション品質</translation>
    </message>
    <message>
        <source>Tolerances to choose from, in millimetres. Double-click one to change it.</source>
        <translation>選択できる公差 (ミリメートル)。ダブルクリックすると変更できます。</translation>
    </message>
    <message>
        <source>Tolerance (mm)</source>
        <translation>公差 (mm)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>追加(&amp;D)</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>削除(&amp;E)</translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUIW</name>
    <message>
        <source>Tesselation</source>
        <translation>テッセレーション</translation>
    </message>
    <message>
        <source>Only positive non zero values are allowed!</source>
        <translation>0より大きい値のみ入力できます！</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Teleport</source>
        <translation>テレポート</translation>
    </message>
    <message>
        <source>Ground &amp;Mode</source>
        <translation>地面モード(&amp;M)</translation>
    </message>
    <message>
        <source>Ground Mode</source>
        <translation>地面モード</translation>
    </message>
    <message>
        <source>On Geometry</source>
        <translation>ジオメトリ上</translation>
    </message>
    <message>
        <source>On Ground Plane</source>
        <translation>地平面上</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>範囲(&amp;R)</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Sets how to render controllers when starting a session</source>
        <translation>セッション開始時のコントローラーのレンダリング方法を設定します。</translation>
    </message>
    <message>
        <source>Default &amp;Visualization</source>
        <translation>既定の表示方法(&amp;V)</translation>
    </message>
    <message>
        <source>Default Visualization</source>
        <translation>既定の表示方法</translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation>コントローラー</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>手</translation>
    </message>
    <message>
        <source>Creates collision objects for touch sensors and WebEngines</source>
        <translation>タッチセンサーとWebEngineの衝突オブジェクトを作成します。</translation>
    </message>
    <message>
        <source>Cr&amp;eate Collision Objects</source>
        <translation>衝突オブジェクトを作成(&amp;E)</translation>
    </message>
    <message>
        <source>Show &amp;Tooltips</source>
        <translation>ツールチップを表示(&amp;T)</translation>
    </message>
    <message>
        <source>StarVR</source>
        <translation>StarVR</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>レンダリング</translation>
    </message>
    <message>
        <source>Switch between foveated rendering (with eye-tracked high resolution area) and non-foveated rendering mode (viewports are fixed and not eye-tracked).</source>
        <translation>フォービエイテッドレンダリング (視線を追う高解像度領域あり) と非フォービエイテッドレンダリングモード (ビューポートは固定で、視線を追わない) を切り替えます。</translation>
    </message>
    <message>
        <source>Render &amp;Mode</source>
        <translation>レンダリングモード(&amp;M)</translation>
    </message>
    <message>
        <source>Render Mode</source>
        <translation>レンダリングモード</translation>
    </message>
    <message>
        <source>Foveated Rendering</source>
        <translation>フォービエイテッドレンダリング</translation>
    </message>
    <message>
        <source>Non-Foveated Rendering</source>
        <translation>非フォービエイテッドレンダリング</translation>
    </message>
    <message>
        <source>Defines percentage of the whole FOV per eye that is used for the high resolution area (e.g. FOV factor 0.35 = 35% of whole eye FOV used for eye tracked viewport)</source>
        <translation>片目の視野全体のうち、高解像度領域に使用する割合を指定します (例：FOV係数0.35 = 片目の視野全体の35%を視線追跡ビューポートに使用)。</translation>
    </message>
    <message>
        <source>Foveated FO&amp;V Factor</source>
        <translation>フォービエイテッドFOV係数(&amp;V)</translation>
    </message>
    <message>
        <source>Foveated FOV Factor</source>
        <translation>フォービエイテッドFOV係数</translation>
    </message>
    <message>
        <source>Resolution scale factor for high-resolution (foveated) area.</source>
        <translation>高解像度 (フォービエイテッド) 領域の解像度の倍率</translation>
    </message>
    <message>
        <source>Fov&amp;eated Resolution Scale</source>
        <translation>フォービエイテッド解像度スケール(&amp;E)</translation>
    </message>
    <message>
        <source>Foveated Resolution Scale</source>
        <translation>フォービエイテッド解像度スケール</translation>
    </message>
    <message>
        <source>Resolution scale for low-resolution (full FOV, non-tracked) area.</source>
        <translation>低解像度 (視野全体、視線追跡なし) 領域の解像度の倍率</translation>
    </message>
    <message>
        <source>&amp;Non-Foveated Resolution Scale</source>
        <translation>非フォービエイテッド解像度スケール(&amp;N)</translation>
    </message>
    <message>
        <source>Non-Foveated Resolution Scale</source>
        <translation>非フォービエイテッド解像度スケール</translation>
    </message>
    <message>
        <source>Resolution scale for front viewports in non-foveated rendering mode.</source>
        <translation>非フォービエイテッドレンダリングモードでの正面ビューポートの解像度の倍率</translation>
    </message>
    <message>
        <source>&amp;Front View Resolution Scale</source>
        <translation>正面ビュー解像度スケール(&amp;F)</translation>
    </message>
    <message>
        <source>Front View Resolution Scale</source>
        <translation>正面ビュー解像度スケール</translation>
    </message>
    <message>
        <source>Resolution Scale for side viewports in non-foveated rendering mode.</source>
        <translation>非フォービエイテッドレンダリングモードでの側面ビューポートの解像度の倍率</translation>
    </message>
    <message>
        <source>Side View &amp;Resolution Scale</source>
        <translation>側面ビュー解像度スケール(&amp;R)</translation>
    </message>
    <message>
        <source>Side View Resolution Scale</source>
        <translation>側面ビュー解像度スケール</translation>
    </message>
    <message>
        <source>Use only one texture per eye in non-foveated rendering mode (instead of the two textures “front” and “side”).</source>
        <translation>非フォービエイテッドレンダリングモードで、片目につき1つのテクスチャだけを使用します (「正面」と「側面」の2つのテクスチャの代わりに)。</translation>
    </message>
    <message>
        <source>&amp;Single Texture per Eye</source>
        <translation>片目につき1テクスチャ(&amp;S)</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUII</name>
    <message>
        <source>Virtual Reality</source>
        <translation>バーチャルリアリティ</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>&amp;Enable Web Server</source>
        <translation>Webサーバーを有効化(&amp;E)</translation>
    </message>
    <message>
        <source>Po&amp;rt</source>
        <translation>ポート(&amp;R)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>&amp;SSL Port</source>
        <translation>SSLポート(&amp;S)</translation>
    </message>
    <message>
        <source>SSL Port</source>
        <translation>SSLポート</translation>
    </message>
    <message>
        <source>Restarting the application is mandatory after modifying the localhost only option!</source>
        <translation>「ローカルホストからの要求のみ許可」を変更した後は、アプリケーションを再起動する必要があります！</translation>
    </message>
    <message>
        <source>Allow request from &amp;localhost only</source>
        <translation>ローカルホストからの要求のみ許可(&amp;L)</translation>
    </message>
    <message>
        <source>Allowed &amp;hosts</source>
        <translation>許可するホスト(&amp;H)</translation>
    </message>
    <message>
        <source>Names or addresses of the hosts whose requests are answered, one a line</source>
        <translation>要求に応答するホストの名前またはアドレス (1行に1つ)</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>ホワイトリスト</translation>
    </message>
    <message>
        <source>Enable &amp;Debug Mode</source>
        <translation>デバッグモードを有効化(&amp;D)</translation>
    </message>
    <message>
        <source>Restricted python functionality</source>
        <translation>Pythonの機能を制限します。</translation>
    </message>
    <message>
        <source>Secure P&amp;ython</source>
        <translation>セキュアPython(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUII</name>
    <message>
        <source>WebInterface</source>
        <translation>Webインターフェイス</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUIW</name>
    <message>
        <source>Enable Web Server</source>
        <translation>Webサーバーを有効化</translation>
    </message>
    <message>
        <source>Do you really want to enable the Web Server?
The Web Server allows the execution of Python commands from remote locations!</source>
        <translation>本当にWebサーバーを有効にしますか？
Webサーバーを使用すると、離れた場所からPythonコマンドを実行できるようになります！</translation>
    </message>
    <message>
        <source>Choosing &quot;Enable&quot; enables the Web Server.
You are advised to set up a local firewall to protect yourself from unauthorized access.

Choosing &quot;Do Not Enable&quot; leaves the Web Server disabled.</source>
        <translation>「有効にする」を選択すると、Webサーバーが有効になります。
不正アクセスから身を守るため、ローカルファイアウォールの設定をお勧めします。

「有効にしない」を選択すると、Webサーバーは無効のままになります。</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Do Not Enable</source>
        <translation>有効にしない</translation>
    </message>
</context>
<context>
    <name>olWrlPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Loader</source>
        <translation>ローダー</translation>
    </message>
    <message>
        <source>CAD system that the loader takes a file to come from</source>
        <translation>ローダーがファイルの作成元とみなすCADシステム</translation>
    </message>
    <message>
        <source>Op&amp;timization</source>
        <translation>最適化(&amp;T)</translation>
    </message>
    <message>
        <source>Optimization</source>
        <translation>最適化</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
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
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Writer</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Writes textures into the file instead of beside it</source>
        <translation>テクスチャを別ファイルではなく、ファイル内に書き込みます。</translation>
    </message>
    <message>
        <source>Inline &amp;Textures</source>
        <translation>テクスチャを埋め込む(&amp;T)</translation>
    </message>
</context>
</TS>

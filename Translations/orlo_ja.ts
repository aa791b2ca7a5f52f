<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>コマンドラインオプションのヘルプを表示します。</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Qt固有のオプションも含むヘルプを表示します。</translation>
    </message>
</context>
<context>
    <name>QOLColorDialog</name>
    <message>
        <source>Choose Color</source>
        <translation>色を選択</translation>
    </message>
</context>
<context>
    <name>QOLColorManipulator</name>
    <message>
        <source>Choose Color</source>
        <translation>色を選択</translation>
    </message>
</context>
<context>
    <name>olAbout</name>
    <message>
        <source>About ORLO</source>
        <translation>ORLOについて</translation>
    </message>
    <message>
        <source>A desktop application to view, render and review CAD models in 3D.</source>
        <translation>CADモデルを3Dで表示、レンダリング、レビューするためのデスクトップアプリケーションです。</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>ライセンス表示(&amp;N)</translation>
    </message>
    <message>
        <source>It uses these libraries, all of them linked dynamically, so that they can be replaced:&lt;ul&gt;&lt;li&gt;OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception&lt;/li&gt;&lt;li&gt;Qt %2: LGPL 3&lt;/li&gt;&lt;li&gt;SQLite: public domain&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd: LGPL 2.1 or later&lt;/li&gt;&lt;li&gt;libspnav: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;Boost: Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;minizip: zlib licence&lt;/li&gt;&lt;li&gt;Coin: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;libseccomp: LGPL 2.1&lt;/li&gt;&lt;/ul&gt;Their notices are in &lt;i&gt;third-party.md&lt;/i&gt;, beside the documents of this program.</source>
        <translation>次のライブラリを使用しています。いずれも動的にリンクされているため、置き換えることができます。&lt;ul&gt;&lt;li&gt;OpenCASCADE %1：LGPL 2.1およびOpen CASCADE例外条項&lt;/li&gt;&lt;li&gt;Qt %2：LGPL 3&lt;/li&gt;&lt;li&gt;SQLite：パブリックドメイン&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd：LGPL 2.1以降&lt;/li&gt;&lt;li&gt;libspnav：BSD (3条項)&lt;/li&gt;&lt;li&gt;Boost：Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp：BSD (3条項)&lt;/li&gt;&lt;li&gt;minizip：zlibライセンス&lt;/li&gt;&lt;li&gt;Coin：BSD (3条項)&lt;/li&gt;&lt;li&gt;libseccomp：LGPL 2.1&lt;/li&gt;&lt;/ul&gt;これらのライセンス表示は、このプログラムの文書と同じ場所にある&lt;i&gt;third-party.md&lt;/i&gt;に記載されています。</translation>
    </message>
</context>
<context>
    <name>olBatch</name>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL.</source>
        <translation>3Dビューには、Xディスプレイ (またはXWayland) とOpenGLが必要です。</translation>
    </message>
    <message>
        <source>The model %1 cannot be drawn: %2</source>
        <translation>モデル%1を描画できません：%2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1に書き込めません：%2。</translation>
    </message>
</context>
<context>
    <name>olChangesView</name>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Old Value</source>
        <translation>古い値</translation>
    </message>
    <message>
        <source>New Value</source>
        <translation>新しい値</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>&amp;Skipped:</source>
        <translation>スキップ(&amp;S)：</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation>この設定へ移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>取り消す(&amp;T)</translation>
    </message>
    <message>
        <source>Take &amp;All Back</source>
        <translation>すべて取り消す(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>テキストとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>%1 (%2): %3 -&gt; %4
</source>
        <comment>place, key, old and new value</comment>
        <translation>%1 (%2): %3 -&gt; %4
</translation>
    </message>
</context>
<context>
    <name>olEffectText</name>
    <message>
        <source>only recorded</source>
        <translation>記録のみ</translation>
    </message>
    <message>
        <source>Is only recorded by this host</source>
        <translation>このホストでは記録されるだけです</translation>
    </message>
    <message>
        <source>This host only records these settings: no reader or other part of it goes by them.</source>
        <translation>このホストではこれらの設定は記録されるだけです。形式の読み込み機能など、これらの設定を反映する機能がないためです。</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>次回のインポート時</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>次回のインポート時に有効になります</translation>
    </message>
    <message>
        <source>These settings take effect at the next import.</source>
        <translation>これらの設定は次回のインポート時に有効になります。</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>次回の起動時</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>次回の起動時に有効になります</translation>
    </message>
    <message>
        <source>These settings take effect at the next start.</source>
        <translation>これらの設定は次回の起動時に有効になります。</translation>
    </message>
</context>
<context>
    <name>olExport</name>
    <message>
        <source>%1 stands twice in the same place; it is written once.</source>
        <translation>%1が同じ場所に2つあります。書き出すのは1つだけです。</translation>
    </message>
    <message>
        <source>%1 is a mesh, which this format cannot hold; it is left out.</source>
        <translation>%1はメッシュです。この形式では保持できないため、除外されます。</translation>
    </message>
    <message>
        <source>colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>textures</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>groups of parts</source>
        <translation>パーツのグループ</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>一時ディレクトリに書き込めません</translation>
    </message>
    <message>
        <source>the writer failed</source>
        <translation>書き出しに失敗しました</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>フォルダー%1を作成できません</translation>
    </message>
    <message>
        <source>there is nothing that this format can hold</source>
        <translation>この形式で保持できるものがありません</translation>
    </message>
    <message>
        <source>the writer failed (%1)</source>
        <translation>書き出しに失敗しました (%1)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1に書き込めません：%2。</translation>
    </message>
    <message>
        <source>%1 names are written with other letters or a number, as names of VRML have no blanks and stand for one thing.</source>
        <translation>VRMLの名前には空白を使用できず、1つの名前は1つのものしか表せないため、%1件の名前は文字を変えるか番号を付けて書き出されます。</translation>
    </message>
    <message>
        <source>%1 parts of several looks are groups of parts in the file.</source>
        <translation>外観が複数あるパーツ%1個は、ファイルではパーツのグループになります。</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>曲線</translation>
    </message>
    <message>
        <source>names of parts</source>
        <translation>パーツの名前</translation>
    </message>
    <message>
        <source>colors of corners</source>
        <translation>頂点カラー</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>physical materials</source>
        <translation>物理マテリアル</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>hidden parts</source>
        <translation>非表示のパーツ</translation>
    </message>
    <message>
        <source>%1 knows no exact surfaces; their triangles are written.</source>
        <translation>%1は正確なサーフェスを扱えないため、サーフェスの三角形が書き出されます。</translation>
    </message>
    <message>
        <source>These are not in the file, as %1 does not know them: %2.</source>
        <translation>%1では扱えないため、次のものはファイルに含まれません：%2。</translation>
    </message>
    <message>
        <source>The texture %1 is not there any more; it is left out.</source>
        <translation>テクスチャ%1はなくなっているため、除外されます。</translation>
    </message>
    <message>
        <source>The texture %1 cannot be written: %2.</source>
        <translation>テクスチャ%1を書き込めません：%2。</translation>
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
        <translation>サイズ：</translation>
    </message>
    <message>
        <source>Along x, y and z, in millimetres</source>
        <translation>x、y、z方向の長さ (ミリメートル)</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>バウンディングボックス：</translation>
    </message>
    <message>
        <source>Its lowest and its highest corner, in millimetres</source>
        <translation>最小の角と最大の角の座標 (ミリメートル)</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>体積：</translation>
    </message>
    <message>
        <source>Of the surfaces themselves; of meshes, of their triangles</source>
        <translation>サーフェス自体から求めた値 (メッシュの場合は三角形から求めた値)</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>面積：</translation>
    </message>
    <message>
        <source>Triangles:</source>
        <translation>三角形：</translation>
    </message>
    <message>
        <source>With which it is drawn and exported</source>
        <translation>描画とエクスポートに使用される三角形の数</translation>
    </message>
    <message>
        <source>Parts:</source>
        <translation>パーツ：</translation>
    </message>
    <message>
        <source>Each as often as it stands in the scene</source>
        <translation>シーン内に現れるたびに数えた個数</translation>
    </message>
    <message>
        <source>measuring...</source>
        <translation>測定中...</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>何も開かれていません。</translation>
    </message>
    <message>
        <source>What is selected:</source>
        <translation>選択中のもの：</translation>
    </message>
    <message>
        <source>The whole scene:</source>
        <translation>シーン全体：</translation>
    </message>
    <message>
        <source>%1 × %2 × %3 mm</source>
        <translation>%1 × %2 × %3 mm</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1 mm³</source>
        <translation>%1 mm³</translation>
    </message>
    <message>
        <source>none: it is not closed</source>
        <translation>なし：閉じていません</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n of the parts are not closed and not in it</source>
        <translation>
            <numerusform>%1 (閉じていないパーツ%n個を除く)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 mm²</source>
        <translation>%1 mm²</translation>
    </message>
    <message>
        <source>%1; one of the parts is not closed and not in it</source>
        <translation>%1；パーツの1つは閉じておらず、含まれていません</translation>
    </message>
</context>
<context>
    <name>olFieldGuard</name>
    <message>
        <source>Only %1 can be entered here.</source>
        <translation>ここに入力できるのは%1だけです。</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
</context>
<context>
    <name>olFoldHeader</name>
    <message>
        <source>Folded</source>
        <translation>折りたたみ済み</translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation>展開済み</translation>
    </message>
</context>
<context>
    <name>olFoundRows</name>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>olFoundSettings</name>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>設定元</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>見つかった設定</translation>
    </message>
</context>
<context>
    <name>olGivenSettings</name>
    <message>
        <source>&quot;%1&quot; is no setting: expected &quot;KEY=VALUE&quot;</source>
        <translation>「%1」は設定ではありません：「KEY=VALUE」の形が必要です</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>設定「%1」はありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set where somebody can be asked: %2</source>
        <translation>「%1」は、確認に答えられる人がいる場合にのみ設定されます：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>「%1」は%2</translation>
    </message>
</context>
<context>
    <name>olHistoryView</name>
    <message>
        <source>&amp;Go Back...</source>
        <translation>以前の状態に戻す(&amp;G)...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>まだ何も保存されていません。</translation>
    </message>
    <message>
        <source>Going back takes back the save that is chosen and all later ones. What that changes is shown first.</source>
        <translation>以前の状態に戻すと、選択した保存とそれ以降の保存がすべて取り消されます。それによって変わる内容は、事前に表示されます。</translation>
    </message>
    <message>
        <source>Saves</source>
        <translation>保存の一覧</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>default</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <comment>setting, old and new value</comment>
        <translation>%1：%2 → %3</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>%1件の設定</translation>
    </message>
</context>
<context>
    <name>olHostStatePanel</name>
    <message>
        <source>%1 (only recorded)</source>
        <translation>%1 (記録のみ)</translation>
    </message>
    <message>
        <source>Host state</source>
        <translation>ホストの状態</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Filter the host state</source>
        <translation>ホストの状態をフィルター</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>olImport</name>
    <message>
        <source>the system ended its reader, probably for want of memory</source>
        <translation>読み込みプロセスがシステムによって終了されました (おそらくメモリー不足のため)</translation>
    </message>
    <message>
        <source>the file is damaged in a way that makes its reader crash</source>
        <translation>ファイルの破損により読み込みプロセスが異常終了しました</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>読み込みプロセスが失敗しました</translation>
    </message>
    <message>
        <source>its reader cannot be started (%1)</source>
        <translation>読み込みプロセスを起動できません (%1)</translation>
    </message>
    <message>
        <source>its reader %1 cannot be started (%2)</source>
        <translation>読み込みプロセス%1を起動できません (%2)</translation>
    </message>
    <message>
        <source>reading it made no progress for %1 seconds</source>
        <translation>読み込みが%1秒間進みませんでした</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>一時ディレクトリに書き込めません</translation>
    </message>
    <message>
        <source>Cannot read %1: this is a folder.</source>
        <translation>%1を読み込めません：これはフォルダーです。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1を読み込めません：%2。</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>パーツの数が100万を超えています</translation>
    </message>
    <message>
        <source>the file is damaged: it has triangles without their points, or points beyond all measure</source>
        <translation>ファイルが破損しています：点のない三角形、または座標が異常に大きい点があります</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>ジオメトリがありません</translation>
    </message>
    <message>
        <source>the reader failed (%1)</source>
        <translation>読み込みに失敗しました (%1)</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>in the file</source>
        <translation>(ファイル内)</translation>
    </message>
    <message>
        <source>The texture %1 was not found.</source>
        <translation>テクスチャ%1が見つかりませんでした。</translation>
    </message>
    <message>
        <source>The texture %1 is too large, with %2 by %3 pixels.</source>
        <translation>テクスチャ%1は大きすぎます (%2 × %3ピクセル)。</translation>
    </message>
    <message>
        <source>The texture %1 cannot be read: %2.</source>
        <translation>テクスチャ%1を読み込めません：%2。</translation>
    </message>
    <message>
        <source>A part without a name</source>
        <translation>名前のないパーツ</translation>
    </message>
    <message>
        <source>no invisible surfaces are imported</source>
        <translation>非表示のサーフェスはインポートされません</translation>
    </message>
    <message>
        <source>no surfaces are imported</source>
        <translation>サーフェスはインポートされません</translation>
    </message>
    <message>
        <source>no invisible meshes are imported</source>
        <translation>非表示のメッシュはインポートされません</translation>
    </message>
    <message>
        <source>no meshes are imported</source>
        <translation>メッシュはインポートされません</translation>
    </message>
    <message>
        <source>no invisible curves are imported</source>
        <translation>非表示の曲線はインポートされません</translation>
    </message>
    <message>
        <source>no curves are imported</source>
        <translation>曲線はインポートされません</translation>
    </message>
    <message>
        <source>no invisible instances are imported</source>
        <translation>非表示のインスタンスはインポートされません</translation>
    </message>
    <message>
        <source>Parts with faulty surfaces: %1.</source>
        <translation>サーフェスに不具合のあるパーツ：%1。</translation>
    </message>
    <message>
        <source>Gaps of up to %1 mm were to be closed, which would distort these; smaller ones are closed: %2.</source>
        <translation>%1 mmまでの隙間を閉じる設定ですが、次のパーツは変形してしまうため、より小さい隙間だけを閉じました：%2。</translation>
    </message>
    <message>
        <source>Parts whose faces are not joined, as that would distort them: %1.</source>
        <translation>変形してしまうため、面をつなぎ合わせていないパーツ：%1。</translation>
    </message>
    <message>
        <source>Faces that cannot be drawn: %1.</source>
        <translation>描画できない面：%1。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2の%1個</translation>
    </message>
    <message>
        <source>%1 (%2 mm)</source>
        <translation>%1 (%2 mm)</translation>
    </message>
    <message>
        <source>the import options leave nothing of it (%1)</source>
        <translation>インポートオプションにより、インポートされるものがありません (%1)</translation>
    </message>
    <message>
        <source>Parts that the import options leave out: %1.</source>
        <translation>インポートオプションにより除外されたパーツ：%1。</translation>
    </message>
</context>
<context>
    <name>olImportDialog</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Center to Origin</source>
        <translation>原点に中心を合わせる</translation>
    </message>
    <message>
        <source>Place Objects on the Ground</source>
        <translation>オブジェクトを地面に配置</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Edit &gt; Preferences &gt; FileIO decides over these, format by format.</source>
        <translation>これらは「編集 &gt; 環境設定 &gt; ファイル入出力」で形式ごとに設定します。</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>インポートの進行状況</translation>
    </message>
    <message>
        <source>Outcome of the import</source>
        <translation>インポートの結果</translation>
    </message>
    <message>
        <source>&amp;Replace the scene</source>
        <translation>シーンを置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Add to the scene</source>
        <translation>シーンに追加する(&amp;A)</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>メートル</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>フィート</translation>
    </message>
    <message>
        <source>z is up</source>
        <translation>z軸が上</translation>
    </message>
    <message>
        <source>y is up</source>
        <translation>y軸が上</translation>
    </message>
    <message>
        <source>The file does not say it.</source>
        <translation>ファイルに指定がありません。</translation>
    </message>
    <message>
        <source>&amp;Unit of length:</source>
        <translation>長さの単位(&amp;U)：</translation>
    </message>
    <message>
        <source>U&amp;p axis:</source>
        <translation>上方向の軸(&amp;P)：</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>インポートに失敗しました。</translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>インポートが完了しました (注意事項があります)。</translation>
    </message>
    <message>
        <source>The import is done.</source>
        <translation>インポートが完了しました。</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>インポート失敗</translation>
    </message>
</context>
<context>
    <name>olImportFineness</name>
    <message>
        <source>&amp;Keep These for Later Imports</source>
        <translation>以後のインポートでも使用(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Chord Deviation</source>
        <translation>弦偏差(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation>法線公差(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>ステッチ(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;titching Tolerance</source>
        <translation>ステッチ公差(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge Geometries</source>
        <translation>ジオメトリを結合(&amp;M)</translation>
    </message>
    <message>
        <source>Remove &amp;Empty Groups</source>
        <translation>空のグループを削除(&amp;E)</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>サーフェスの法線を統一(&amp;Y)</translation>
    </message>
    <message>
        <source>Without this they hold for this import alone.</source>
        <translation>オフの場合、これらは今回のインポートでのみ有効です。</translation>
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
        <source>Sur&amp;faces</source>
        <translation>サーフェス(&amp;F)</translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation>曲線とポリライン(&amp;L)</translation>
    </message>
    <message>
        <source>Mes&amp;hes</source>
        <translation>メッシュ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>olImportSummary</name>
    <message>
        <source>%1: none</source>
        <translation>%1：なし</translation>
    </message>
    <message>
        <source>%1: all</source>
        <translation>%1：すべて</translation>
    </message>
    <message>
        <source>%1: visible</source>
        <translation>%1：表示中のみ</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>サーフェス</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>曲線</translation>
    </message>
    <message>
        <source>meshes</source>
        <translation>メッシュ</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Tidied up</source>
        <translation>整理</translation>
    </message>
    <message>
        <source>meshes merged</source>
        <translation>メッシュを結合</translation>
    </message>
    <message>
        <source>empty groups removed</source>
        <translation>空のグループを削除</translation>
    </message>
    <message>
        <source>normals unified</source>
        <translation>法線を統一</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>geometry verified</source>
        <translation>ジオメトリを検証</translation>
    </message>
    <message>
        <source>faults repaired</source>
        <translation>不具合を修復</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>beside the model</source>
        <translation>モデルと同じ場所</translation>
    </message>
    <message>
        <source>beside the model, and in %1 directories</source>
        <translation>モデルと同じ場所、および%1個のディレクトリ</translation>
    </message>
</context>
<context>
    <name>olInnerParts</name>
    <message>
        <source>%1, %2</source>
        <comment>control, part of it</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>olJournalPanel</name>
    <message>
        <source>Host calls</source>
        <translation>ホスト呼び出し</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>クリア(&amp;L)</translation>
    </message>
</context>
<context>
    <name>olJoystickLink</name>
    <message>
        <source>There is no joystick %1: %2: %3.</source>
        <translation>ジョイスティック%1がありません：%2：%3。</translation>
    </message>
    <message>
        <source>Joystick %1 is in use.</source>
        <translation>ジョイスティック%1を使用しています。</translation>
    </message>
    <message>
        <source>Joystick %1 has gone.</source>
        <translation>ジョイスティック%1の接続が切れました。</translation>
    </message>
</context>
<context>
    <name>olJsonObject</name>
    <message>
        <source>here or just before, this is no JSON</source>
        <translation>この位置またはその直前がJSONではありません</translation>
    </message>
    <message>
        <source>an object is expected, as {&quot;key&quot;: {&quot;value&quot;: 1}}</source>
        <translation>{&quot;key&quot;: {&quot;value&quot;: 1}}のようなオブジェクトが必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here a second time</source>
        <translation>「%1」が重複しています</translation>
    </message>
</context>
<context>
    <name>olLibraryCheck</name>
    <message>
        <source>it is no library</source>
        <translation>ライブラリではありません</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>末尾が欠けています</translation>
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
        <translation>「編集 &gt; 環境設定」で、ここに表示される内容を変更できます。</translation>
    </message>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL. The preferences work without it.</source>
        <translation>3Dビューには、Xディスプレイ (またはXWayland) とOpenGLが必要です。環境設定はこれらがなくても使用できます。</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1フレーム/秒</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Host State</source>
        <translation>ホストの状態</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>ホスト呼び出し</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>すべて表示(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zoom To</source>
        <translation>選択部分へズーム(&amp;Z)</translation>
    </message>
    <message>
        <source>Brings what is selected near</source>
        <translation>選択したものを近くに表示します。</translation>
    </message>
    <message>
        <source>Stereo for &amp;Red and Cyan Glasses</source>
        <translation>赤青メガネ用ステレオ(&amp;R)</translation>
    </message>
    <message>
        <source>Trace Ra&amp;ys</source>
        <translation>レイトレーシング(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation>エッジ(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>新しいシーン(&amp;N)</translation>
    </message>
    <message>
        <source>Open the &amp;Sample</source>
        <translation>サンプルを開く(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>環境設定(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About ORLO</source>
        <translation>ORLOについて(&amp;A)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>モデル情報</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>%1 - ORLO</source>
        <translation>%1 - ORLO</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1、ほか%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Preferences as a Pa&amp;nel</source>
        <translation>環境設定をパネルとして表示(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Support Information</source>
        <translation>サポート情報をコピー(&amp;S)</translation>
    </message>
    <message>
        <source>Versions, changed settings and the end of the log are on the clipboard.</source>
        <translation>バージョン、変更済みの設定、ログの末尾をクリップボードにコピーしました。</translation>
    </message>
</context>
<context>
    <name>olMessageLine</name>
    <message>
        <source>Close the message</source>
        <translation>メッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>olModelExtent</name>
    <message>
        <source>about %1 % of the model</source>
        <translation>モデルの約%1 %</translation>
    </message>
    <message>
        <source>%1: coarse, round parts show corners</source>
        <translation>%1：粗く、丸い部分が角張って見えます</translation>
    </message>
    <message>
        <source>%1: very fine, the import takes long</source>
        <translation>%1：非常に細かく、インポートに時間がかかります</translation>
    </message>
</context>
<context>
    <name>olModelFiles</name>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1を読み込みました。</translation>
    </message>
    <message>
        <source>ORLO</source>
        <translation>ORLO</translation>
    </message>
    <message>
        <source>The export failed.</source>
        <translation>エクスポートに失敗しました。</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>%1を書き出しました。</translation>
    </message>
    <message>
        <source>%1 was written, with remarks.</source>
        <translation>%1を書き出しました (注意事項があります)。</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>インポートに失敗しました。</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no such file any more.</source>
        <translation>%1を読み込めません：ファイルがなくなっています。</translation>
    </message>
    <message numerus="yes">
        <source>%n files were read.</source>
        <translation>
            <numerusform>%n個のファイルを読み込みました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>インポートが完了しました (注意事項があります)。</translation>
    </message>
    <message>
        <source>The settings could not be kept.</source>
        <translation>設定を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>olModelFormat</name>
    <message>
        <source>files without a suffix</source>
        <translation>拡張子のないファイル</translation>
    </message>
    <message>
        <source>.%1 files</source>
        <translation>.%1ファイル</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no reader for %2. These can be read: %3.</source>
        <translation>%1を読み込めません：%2の読み込みには対応していません。読み込み可能な形式：%3。</translation>
    </message>
    <message>
        <source>Cannot write %1: there is no writer for %2. These can be written: %3.</source>
        <translation>%1に書き込めません：%2の書き出しには対応していません。書き出し可能な形式：%3。</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>モデル (%1)</translation>
    </message>
</context>
<context>
    <name>olModuleTree</name>
    <message>
        <source>Modules</source>
        <translation>モジュール</translation>
    </message>
    <message>
        <source>Has changes that are not applied yet</source>
        <translation>まだ適用されていない変更があります</translation>
    </message>
    <message>
        <source>Has settings that differ from their defaults</source>
        <translation>既定値と異なる設定があります</translation>
    </message>
</context>
<context>
    <name>olNumberText</name>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a number from %1</source>
        <translation>%1以上の数値</translation>
    </message>
    <message>
        <source>a number up to %1</source>
        <translation>%1以下の数値</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1～%2の数値</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1～%2の整数</translation>
    </message>
</context>
<context>
    <name>olOSGWidget</name>
    <message>
        <source>The clipping planes %1 and %2 are refused: expected two numbers above 0, the far one greater than the near one.</source>
        <translation>クリッピング平面%1と%2は受け付けられません：どちらも0より大きい数値で、遠の値が近の値より大きい必要があります。</translation>
    </message>
</context>
<context>
    <name>olOutsideLine</name>
    <message>
        <source>%1 set %2 to %3.</source>
        <comment>program, setting and value</comment>
        <translation>%1が「%2」を「%3」に設定しました。</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>%1 more settings were changed.</source>
        <translation>ほかに%1件の設定が変更されました。</translation>
    </message>
    <message>
        <source>Your change to %1 is pending.</source>
        <translation>「%1」への変更は保留中です。</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>「%1」を使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep %1</source>
        <translation>「%1」を維持(&amp;K)</translation>
    </message>
</context>
<context>
    <name>olPageFrame</name>
    <message>
        <source>Not chosen</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>すぐに反映</translation>
    </message>
</context>
<context>
    <name>olPageIndex</name>
    <message>
        <source>%1 controls answer to &quot;%2&quot;: %3</source>
        <translation>「%2」に該当するコントロールが%1個あります：%3</translation>
    </message>
    <message>
        <source>there is no control &quot;%1&quot;; there is: %2</source>
        <translation>コントロール「%1」はありません。使用できるのは次のとおりです：%2</translation>
    </message>
</context>
<context>
    <name>olPluginLoader</name>
    <message>
        <source>Cannot load the preferences plug-in: there is neither %1 nor %2.</source>
        <translation>環境設定プラグインを読み込めません：%1も%2もありません。</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it has no entry function %1</source>
        <translation>エントリー関数%1がありません</translation>
    </message>
    <message>
        <source>a module could not be built: %1</source>
        <translation>モジュールを構築できませんでした：%1</translation>
    </message>
    <message>
        <source>a module could not be built, and does not say why</source>
        <translation>モジュールを構築できませんでした (理由は不明です)</translation>
    </message>
    <message>
        <source>Cannot load the preferences plug-in %1: %2.</source>
        <translation>環境設定プラグイン%1を読み込めません：%2。</translation>
    </message>
</context>
<context>
    <name>olPreferencesDialog</name>
    <message>
        <source>No Changes</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>1 Chan&amp;ge...</source>
        <translation>1件の変更(&amp;G)...</translation>
    </message>
    <message>
        <source>%1 Chan&amp;ges...</source>
        <translation>%1件の変更(&amp;G)...</translation>
    </message>
    <message>
        <source>Changed only</source>
        <translation>変更済みのみ</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Restore &amp;Page</source>
        <translation>ページを既定値に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search all settings</source>
        <translation>すべての設定を検索</translation>
    </message>
    <message>
        <source>Finds settings by label, group, tooltip, choice and key (Ctrl+F).</source>
        <translation>ラベル、グループ、ツールチップ、選択肢、キーで設定を検索します (Ctrl+F)。</translation>
    </message>
    <message>
        <source>Lists the settings that differ from their defaults.</source>
        <translation>既定値と異なる設定を一覧表示します。</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Restore All Defaults</source>
        <translation>すべて既定値に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Shows the defaults of this page. Nothing changes before OK or Apply.</source>
        <translation>このページに既定値を表示します。「OK」または「適用」を押すまで何も変わりません。</translation>
    </message>
    <message>
        <source>Lists what OK and Apply will change.</source>
        <translation>「OK」と「適用」で変更される内容を一覧表示します。</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>ダイアログに戻る(&amp;S)</translation>
    </message>
    <message>
        <source>All settings have their defaults.</source>
        <translation>すべての設定が既定値になっています。</translation>
    </message>
    <message>
        <source>All pages show their defaults. OK or Apply makes them count, Cancel takes them back.</source>
        <translation>すべてのページに既定値が表示されています。「OK」または「適用」で有効になり、「キャンセル」で取り消されます。</translation>
    </message>
    <message>
        <source>%1 Locked</source>
        <translation>%1件ロック済み</translation>
    </message>
    <message>
        <source>Every setting has its default.</source>
        <translation>すべての設定が既定値です。</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>「%1」に一致するものはありません。</translation>
    </message>
    <message>
        <source>1 Setting</source>
        <translation>1件の設定</translation>
    </message>
    <message>
        <source>%1 Settings</source>
        <translation>%1件の設定</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>The documents about the settings are not installed.</source>
        <translation>設定に関する文書がインストールされていません。</translation>
    </message>
    <message>
        <source>%1 takes effect at the next import.</source>
        <translation>「%1」は次回のインポート時に有効になります。</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next import.</source>
        <translation>%1件の設定は次回のインポート時に有効になります。</translation>
    </message>
    <message>
        <source>%1 takes effect at the next start.</source>
        <translation>「%1」は次回の起動時に有効になります。</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next start.</source>
        <translation>%1件の設定は次回の起動時に有効になります。</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>Shows changes of the view as they are made. Nothing is stored before OK or Apply, and Cancel shows the view as it was.</source>
        <translation>ビューに関する変更をその場で表示します。「OK」または「適用」を押すまで何も保存されず、「キャンセル」を押すとビューは元に戻ります。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>olPreferencesFile</name>
    <message>
        <source>It is no file of preferences: it names no format.</source>
        <translation>環境設定ファイルではありません：形式が示されていません。</translation>
    </message>
    <message>
        <source>It is no file of preferences: its format is not known.</source>
        <translation>環境設定ファイルではありません：未知の形式です。</translation>
    </message>
    <message>
        <source>It was written by a newer version.</source>
        <translation>より新しいバージョンで書き込まれています。</translation>
    </message>
    <message>
        <source>has no type or no value</source>
        <translation>型または値が欠けています</translation>
    </message>
    <message>
        <source>is of the unknown type &quot;%1&quot;</source>
        <translation>未知の型「%1」です</translation>
    </message>
    <message>
        <source>is not %1, as its type %2 asks for</source>
        <translation>型%2に必要な%1ではありません</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>%1行目：%2。</translation>
    </message>
    <message>
        <source>It lists no settings.</source>
        <translation>設定が1つも含まれていません。</translation>
    </message>
    <message>
        <source>Cannot write the preferences to %1: %2.</source>
        <translation>環境設定を%1に書き出せません：%2。</translation>
    </message>
    <message>
        <source>Cannot read the preferences from %1: %2.</source>
        <translation>%1から環境設定を読み込めません：%2。</translation>
    </message>
    <message>
        <source>Cannot import %1. %2</source>
        <translation>%1をインポートできません。%2</translation>
    </message>
</context>
<context>
    <name>olPreferencesSession</name>
    <message>
        <source>The site&apos;s preferences %1 were changed. That counts from the next start of the program.</source>
        <translation>サイトの環境設定%1が変更されました。変更はプログラムの次回の起動時から有効になります。</translation>
    </message>
    <message>
        <source>is locked: %1</source>
        <translation>ロックされています：%1</translation>
    </message>
    <message>
        <source>is not known</source>
        <translation>不明な設定です</translation>
    </message>
    <message>
        <source>All settings of this run were then saved into it.</source>
        <translation>その後、今回の実行のすべての設定がこのファイルに保存されました。</translation>
    </message>
    <message>
        <source>The module %1 has failed and does not say why.</source>
        <translation>モジュール %1 でエラーが発生しました (理由は不明です)。</translation>
    </message>
    <message>
        <source>The module %1 has failed: %2.</source>
        <translation>モジュール %1 でエラーが発生しました：%2。</translation>
    </message>
</context>
<context>
    <name>olPreferencesStore</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1を読み込めません：%2</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>別のプログラムがファイルを使用中です</translation>
    </message>
    <message>
        <source>it is no preferences file</source>
        <translation>環境設定ファイルではありません</translation>
    </message>
    <message>
        <source>it is gone</source>
        <translation>ファイルがなくなっています</translation>
    </message>
    <message>
        <source>its folder cannot be created</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>its header is not what it was</source>
        <translation>ヘッダーが元の内容と異なります</translation>
    </message>
    <message>
        <source>Cannot read the preferences %1: %2.</source>
        <translation>環境設定%1を読み込めません：%2。</translation>
    </message>
    <message>
        <source>The copy of %1 was loaded; what was changed after that is not in it.</source>
        <translation>%1のバックアップを読み込みました。その後に変更された内容は含まれていません。</translation>
    </message>
    <message>
        <source>There is no copy of it yet, so all settings are at their defaults.</source>
        <translation>バックアップはまだないため、すべての設定が既定値になっています。</translation>
    </message>
    <message>
        <source>Its copy cannot be read either (%1), so all settings are at their defaults.</source>
        <translation>バックアップも読み込めないため (%1)、すべての設定が既定値になっています。</translation>
    </message>
    <message>
        <source>Cannot save the preferences to %1: %2. What it held before is unchanged.</source>
        <translation>環境設定を%1に保存できません：%2。以前の内容は変わっていません。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>Use that version. If there is none, the file is damaged: move it away to start with defaults, or rename its copy %1, where there is one, to it.</source>
        <translation>そのバージョンを使用してください。そのようなバージョンがない場合、ファイルは破損しています：ファイルを別の場所に移動して既定値で開始するか、バックアップ%1があれば、その名前をこのファイルの名前に変更してください。</translation>
    </message>
    <message>
        <source>The preferences file %1 is damaged: %2.</source>
        <translation>環境設定ファイル%1が破損しています：%2。</translation>
    </message>
    <message>
        <source>It is now kept as %1.</source>
        <translation>破損したファイルは%1として残してあります。</translation>
    </message>
    <message>
        <source>It could not be set aside: %1.</source>
        <translation>破損したファイルを退避できませんでした：%1。</translation>
    </message>
    <message>
        <source>its folder is read-only or full, or another program keeps it busy</source>
        <translation>フォルダーが読み取り専用か、空き容量がないか、別のプログラムがファイルを使用中です</translation>
    </message>
</context>
<context>
    <name>olPrefsCommands</name>
    <message>
        <source>all modules with their settings, values and defaults</source>
        <translation>すべてのモジュールとその設定、値、既定値</translation>
    </message>
    <message>
        <source>Lists the modules with their settings: key, type, value, and the default where the value is another.
  --json      one array of modules, for programs
  --markdown  the catalogue of the documentation: keys, types, defaults, ranges and choices, when a new
              value counts, and where they are on the pages, with the tooltips there
</source>
        <translation>モジュールとその設定を一覧にします：キー、型、値、値が既定値と異なるときは既定値も。
  --json      モジュールの配列1つ、プログラム用
  --markdown  ドキュメントのカタログ：キー、型、既定値、範囲と選択肢、新しい値が
              いつ有効になるか、ページ上の場所、そこにあるツールチップ
</translation>
    </message>
    <message>
        <source>prints the value of a setting as JSON</source>
        <translation>設定の値をJSONで出力</translation>
    </message>
    <message>
        <source>Prints the value that is in force: the stored one, else the default.
</source>
        <translation>有効な値を出力します：保存された値、なければ既定値です。
</translation>
    </message>
    <message>
        <source>stores a value, JSON or plain text</source>
        <translation>値を保存、JSONまたは普通のテキスト</translation>
    </message>
    <message>
        <source>Stores a value. VALUE is JSON of the setting&apos;s type; a text needs no quotes. A value that the control of
the setting could not hold is refused, and so is any value of a locked setting. The viewer may be running.
</source>
        <translation>値を保存します。VALUEは設定の型のJSONで、テキストに引用符は要りません。設定のコントロールに入らない値と、
ロック済みの設定の値は拒否されます。ビューアーは実行中でもかまいません。
</translation>
    </message>
    <message>
        <source>takes a setting back to its default</source>
        <translation>設定を既定値に戻す</translation>
    </message>
    <message>
        <source>Takes a setting back to its default, which is the site&apos;s where the site gives one.
  --all       all settings
</source>
        <translation>設定を既定値に戻します。サイトが既定値を定めているときは、その値です。
  --all       すべての設定
</translation>
    </message>
    <message>
        <source>what differs from the defaults</source>
        <translation>既定値と異なる設定</translation>
    </message>
    <message>
        <source>Prints a line for each setting that differs from its default: KEY  DEFAULT -&gt; VALUE.
</source>
        <translation>既定値と異なる設定ごとに1行を出力します：KEY  DEFAULT -&gt; VALUE
</translation>
    </message>
    <message>
        <source>writes all settings to a file of preferences</source>
        <translation>すべての設定を環境設定のファイルに書き込む</translation>
    </message>
    <message>
        <source>Writes the values in force of all settings, with their types, as JSON to a file, or to the standard output
with - or without a name. An existing file is replaced.
</source>
        <translation>すべての設定の有効な値を型とともにJSONでファイルに書き込みます。-のとき、または名前がないときは
標準出力に書き込みます。既存のファイルは置き換えられます。
</translation>
    </message>
    <message>
        <source>stores the settings of such a file</source>
        <translation>そのようなファイルの設定を保存</translation>
    </message>
    <message>
        <source>Stores the settings of a file that export wrote, read from the standard input with -. Unknown keys, values
of another type or out of range, and locked settings are named on the standard error stream and skipped.
  --dry-run   prints what would change, KEY  VALUE -&gt; NEW VALUE, and stores nothing
</source>
        <translation>exportが書き込んだファイルの設定を保存します。-のときは標準入力から読み込みます。不明なキー、型が異なる値や
範囲外の値、ロック済みの設定は、標準エラー出力で知らせてスキップします。
  --dry-run   変わるものをKEY  VALUE -&gt; NEW VALUEの形で出力し、何も保存しない
</translation>
    </message>
    <message>
        <source>keeps settings under a name, and takes them from there</source>
        <translation>設定に名前を付けて保存し、そこから適用</translation>
    </message>
    <message>
        <source>A profile is a set of settings with a name, in a file of preferences. The site may have some too.
  list                             the names
  save NAME [--changed | --module M]
                                   keeps all settings, those that differ from their defaults, or a module&apos;s
  apply NAME [--dry-run]           stores its settings as import does; or only prints what would change
  delete NAME
</source>
        <translation>プロファイルは名前の付いた設定の集まりで、環境設定のファイルに入っています。サイトのものもあり得ます。
  list                             名前の一覧
  save NAME [--changed | --module M]
                                   すべての設定、既定値と異なる設定、またはモジュールの設定を保存
  apply NAME [--dry-run]           importのように設定を保存。または変わるものを出力するだけ
  delete NAME
</translation>
    </message>
    <message>
        <source>what was changed when, and by which program</source>
        <translation>いつ、どのプログラムが何を変更したか</translation>
    </message>
    <message>
        <source>Lists the last saves, the latest first: how far back it is, when, by which program, and what it changed. Of
confidential settings nothing is told.
  KEY         only the changes of that setting
  --json      one array, for programs
</source>
        <translation>最近の保存を新しい順に一覧にします：何回前か、いつか、どのプログラムか、何を変更したか。
機密の設定については何も表示しません。
  KEY         その設定の変更だけ
  --json      配列1つ、プログラム用
</translation>
    </message>
    <message>
        <source>takes the last N saves back</source>
        <translation>最近のN回の保存を取り消す</translation>
    </message>
    <message>
        <source>looks for damage in the store and faults in the site&apos;s files</source>
        <translation>保存ファイルの破損とサイトのファイルの誤りを調べる</translation>
    </message>
    <message>
        <source>Prints a line for each thing that is wrong with the store, its copy or the site&apos;s files, also
for keys that no edition has, and changes nothing. The exit status is 0 when nothing is wrong, else 1.
  --site FILE  judges such a file of the site&apos;s before it is installed, and nothing else
</source>
        <translation>保存ファイル、そのバックアップ、サイトのファイルの問題ごとに1行を出力します。
どのエディションにもないキーも対象で、何も変更しません。問題がなければ終了ステータスは0、あれば1です。
  --site FILE  インストール前のサイトのファイルを調べ、ほかは調べない
</translation>
    </message>
    <message>
        <source>prints a JSON Schema of the files that name settings</source>
        <translation>設定を記すファイルのJSON Schemaを出力</translation>
    </message>
    <message>
        <source>Prints a JSON Schema of the file that export writes and import reads, and of a site&apos;s
site.json, for editors to complete and check them by. Settings and ranges are those of the edition.
</source>
        <translation>exportが書き込みimportが読み込むファイルと、サイトのsite.jsonのJSON Schemaを出力します。
エディターの補完と検査に使えます。設定と範囲はエディションのものです。
</translation>
    </message>
    <message>
        <source>runs a script from a file or the standard input</source>
        <translation>ファイルまたは標準入力のスクリプトを実行</translation>
    </message>
    <message>
        <source>Drives the modules operation by operation and prints every host call. A script begins
with empty preferences, or with those of --store, and never writes any.
</source>
        <translation>モジュールを操作ごとに動かし、すべてのホスト呼び出しを出力します。スクリプトは空の環境設定、
または--storeのもので始まり、書き込みは行いません。
</translation>
    </message>
    <message>
        <source>Usage: %1
</source>
        <translation>使い方：%1
</translation>
    </message>
    <message>
        <source>Shows and changes ORLO&apos;s preferences, and drives them by script. It needs no display.

Commands; orlo-prefs COMMAND --help tells more of each
</source>
        <translation>ORLOの環境設定を表示、変更し、スクリプトで動かします。ディスプレイは要りません。

コマンド。詳しくはorlo-prefs COMMAND --help
</translation>
    </message>
    <message>
        <source>The exit status is 0, or 2 with a message on the standard error stream; of check 1 when it
finds something, and of undo when it leaves something.
</source>
        <translation>終了ステータスは0、または標準エラー出力のメッセージとともに2です。checkは何かを見つけたとき、
undoは何かを残したときに1です。
</translation>
    </message>
    <message>
        <source>Takes the last save, or the last N, back and prints what that changes, KEY  VALUE -&gt; NEW VALUE. It is a
save itself and can be taken back. Settings that were changed since otherwise, or are locked, are named on the
standard error stream and left; the exit status is then 1.
  --dry-run   tells the same, with the same exit status, but stores nothing
</source>
        <translation>最近の保存、または最近のN回の保存を取り消し、それで変わるものをKEY  VALUE -&gt; NEW VALUEの形で出力します。これも
1回の保存であり、取り消せます。その後に変更された設定とロック済みの設定は、標準エラー出力で知らせて
そのまま残します。そのとき終了ステータスは1です。
  --dry-run   同じ内容を同じ終了ステータスで知らせるだけで、何も保存しない
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
        <translation>オプション、コマンドの前に書く
  --edition NAME     %1 (既定はprofessional)
  --app-name NAME    アプリケーションの名前 (既定はorlo)
  --store FILE       環境設定の保存先 (既定はユーザーの保存ファイル。スクリプトは
                     これがなければ空で始まり、書き込みは行わない)
  --plugin FILE      環境設定のプラグイン (既定はプログラムの隣のもの、次に
                     インストール先のプラグインフォルダーのもの)
  --language NAME    メッセージの言語：en、zh、ja、ko、またはuser (保存された言語)
                     (既定はen)
  --yes              値を受け取る前にページが尋ねることに同意する
  --help, --version
</translation>
    </message>
</context>
<context>
    <name>olProfiles</name>
    <message>
        <source>&quot;%1&quot; is no name for a profile: it must not be empty, have a slash in it or begin with a dot.</source>
        <translation>「%1」はプロファイルの名前に使用できません：空であったり、スラッシュを含んだり、ドットで始まったりしてはいけません。</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;.</source>
        <translation>プロファイル「%1」はありません。</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>フォルダー%1を作成できません。</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; is the site&apos;s and cannot be deleted.</source>
        <translation>プロファイル「%1」はサイトのものなので、削除できません。</translation>
    </message>
    <message>
        <source>Cannot delete the profile %1: %2.</source>
        <translation>プロファイル%1を削除できません：%2。</translation>
    </message>
</context>
<context>
    <name>olProfilesMenu</name>
    <message>
        <source>&amp;Profiles</source>
        <translation>プロファイル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>%1 (site)</source>
        <translation>%1 (サイト)</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>名前を付けて保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>プロファイルの保存</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N)：</translation>
    </message>
    <message>
        <source>The settings in force were saved as profile &quot;%1&quot;.</source>
        <translation>現在有効な設定をプロファイル「%1」として保存しました。</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Replace it?</source>
        <translation>プロファイル「%1」は既に存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>プロファイルの削除</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>プロファイル「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was deleted.</source>
        <translation>プロファイル「%1」を削除しました。</translation>
    </message>
    <message>
        <source>All Settings</source>
        <translation>すべての設定</translation>
    </message>
    <message>
        <source>Changed Settings</source>
        <translation>変更済みの設定</translation>
    </message>
    <message>
        <source>&amp;Settings:</source>
        <translation>設定(&amp;S)：</translation>
    </message>
</context>
<context>
    <name>olReason</name>
    <message>
        <source>this is no 3MF file</source>
        <translation>3MFファイルではありません</translation>
    </message>
    <message>
        <source>this is no COLLADA file</source>
        <translation>COLLADAファイルではありません</translation>
    </message>
    <message>
        <source>the file is cut off or damaged</source>
        <translation>ファイルが途中で切れているか、破損しています</translation>
    </message>
    <message>
        <source>the file is damaged or of another format</source>
        <translation>ファイルが破損しているか、別の形式です</translation>
    </message>
    <message>
        <source>the file %1 that it refers to cannot be read</source>
        <translation>参照しているファイル%1を読み込めません</translation>
    </message>
    <message>
        <source>the file %1 that it refers to is cut off</source>
        <translation>参照しているファイル%1が途中で切れています</translation>
    </message>
    <message>
        <source>it requires the extension %1, which is not supported</source>
        <translation>サポートされていない拡張機能%1が必要です</translation>
    </message>
    <message>
        <source>the file is damaged: a node refers to one that is not there</source>
        <translation>ファイルが破損しています：存在しないノードを参照しているノードがあります</translation>
    </message>
    <message>
        <source>its groups are nested too deeply</source>
        <translation>グループの入れ子が深すぎます</translation>
    </message>
    <message>
        <source>the file is damaged: a part of it lies beyond its end</source>
        <translation>ファイルが破損しています：一部がファイルの末尾を超えています</translation>
    </message>
    <message>
        <source>the file is damaged: it announces more than it holds</source>
        <translation>ファイルが破損しています：宣言された内容よりも実際の内容が少なくなっています</translation>
    </message>
    <message>
        <source>this is no glTF file</source>
        <translation>glTFファイルではありません</translation>
    </message>
    <message>
        <source>this is no IGES file</source>
        <translation>IGESファイルではありません</translation>
    </message>
    <message>
        <source>the file is damaged in line %1</source>
        <translation>ファイルの%1行目が破損しています</translation>
    </message>
    <message>
        <source>its content cannot be taken over</source>
        <translation>内容を取り込めません</translation>
    </message>
    <message>
        <source>a point lacks a coordinate</source>
        <translation>座標が欠けている点があります</translation>
    </message>
    <message>
        <source>a face has fewer than three corners</source>
        <translation>頂点が3つ未満の面があります</translation>
    </message>
    <message>
        <source>a face refers to a point that is not there</source>
        <translation>存在しない点を参照している面があります</translation>
    </message>
    <message>
        <source>this is no OBJ file</source>
        <translation>OBJファイルではありません</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: in line %1 %2</source>
        <translation>ファイルが途中で切れているか、破損しています：%1行目：%2</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: it ends within its points</source>
        <translation>ファイルが途中で切れているか、破損しています：点の途中で終わっています</translation>
    </message>
    <message>
        <source>The model ends with points that no face uses; the file may be cut off.</source>
        <translation>モデルの末尾に、どの面にも使用されない点があります。ファイルが途中で切れている可能性があります。</translation>
    </message>
    <message>
        <source>The materials file %1 is not there; the model has no colors.</source>
        <translation>マテリアルファイル%1がありません。モデルには色が付きません。</translation>
    </message>
    <message>
        <source>this is no OFF file</source>
        <translation>OFFファイルではありません</translation>
    </message>
    <message>
        <source>this is no PLY file</source>
        <translation>PLYファイルではありません</translation>
    </message>
    <message>
        <source>the file is damaged: #%1 refers to #%2, which is not there</source>
        <translation>ファイルが破損しています：#%1が、存在しない#%2を参照しています</translation>
    </message>
    <message>
        <source>the file is damaged: its parentheses are nested too deeply</source>
        <translation>ファイルが破損しています：括弧の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>this is no STEP file</source>
        <translation>STEPファイルではありません</translation>
    </message>
    <message>
        <source>%1 bytes behind its end were passed over.</source>
        <translation>末尾より後の%1バイトは無視されました。</translation>
    </message>
    <message>
        <source>this is no STL file</source>
        <translation>STLファイルではありません</translation>
    </message>
    <message>
        <source>The solid %1 is empty.</source>
        <translation>ソリッド%1は空です。</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>ジオメトリがありません</translation>
    </message>
    <message>
        <source>this is no VRML file</source>
        <translation>VRMLファイルではありません</translation>
    </message>
    <message>
        <source>the file is damaged (%1)</source>
        <translation>ファイルが破損しています (%1)</translation>
    </message>
    <message>
        <source>the file is damaged: line %1 cannot be understood (%2)</source>
        <translation>ファイルが破損しています：%1行目を解釈できません (%2)</translation>
    </message>
    <message>
        <source>a group in it holds itself</source>
        <translation>自分自身を含むグループがあります</translation>
    </message>
    <message>
        <source>the file is damaged: a face refers to a point that is not there</source>
        <translation>ファイルが破損しています：存在しない点を参照している面があります</translation>
    </message>
    <message>
        <source>The file %1 that it refers to was not found.</source>
        <translation>参照しているファイル%1が見つかりませんでした。</translation>
    </message>
    <message>
        <source>it refers to itself through %1</source>
        <translation>%1を介して自分自身を参照しています</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the file is too large for this machine: %1 GB with %2 GB of memory</source>
        <translation>このマシンにはファイルが大きすぎます：%1 GB (メモリーは%2 GB)</translation>
    </message>
    <message>
        <source>the file is too large: %1 GB, of which 2 can be read</source>
        <translation>ファイルが大きすぎます：%1 GB (読み込めるのは2 GBまで)</translation>
    </message>
    <message>
        <source>%1 parts are one in the file, as binary STL knows no parts.</source>
        <translation>バイナリSTLではパーツを区別できないため、%1個のパーツはファイルでは1つになります。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか%2件</translation>
    </message>
    <message>
        <source>Bodies that cannot be understood and are left out: %1.</source>
        <translation>解釈できないため除外されるボディ：%1。</translation>
    </message>
    <message>
        <source>No %1 has the field %2; it is passed over.</source>
        <translation>%1にはフィールド%2がありません。このフィールドは無視されます。</translation>
    </message>
    <message>
        <source>%1 lacks what it is made of, or is made of what cannot be understood</source>
        <translation>%1を構成するものが欠けているか、解釈できません</translation>
    </message>
    <message>
        <source>the file is damaged: its entry D%1 refers to another that is not there</source>
        <translation>ファイルが破損しています：項目D%1が、存在しない項目を参照しています</translation>
    </message>
    <message>
        <source>Entries of the file that are not as they should be, and may be missing: %1.</source>
        <translation>ファイル内の不正な項目 (欠けている可能性があります)：%1。</translation>
    </message>
    <message>
        <source>%1 without a name</source>
        <translation>名前のないもの%1個</translation>
    </message>
    <message>
        <source>Extensions that are not supported, so that something may be missing: %1.</source>
        <translation>対応していない拡張（内容の一部が欠けている可能性があります）：%1。</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>パーツが100万個を超えています</translation>
    </message>
    <message>
        <source>Faces that cannot be understood and are left out: %1.</source>
        <translation>解釈できないため除外された面：%1。</translation>
    </message>
    <message>
        <source>Free-form curves and surfaces that are left out: %1.</source>
        <translation>除外された自由曲線と自由曲面：%1。</translation>
    </message>
    <message>
        <source>Words in the place of numbers, which count as 0: %1.</source>
        <translation>数値の位置にあり、0として扱われる単語：%1。</translation>
    </message>
    <message>
        <source>Files that it refers to and that are left out: %1.</source>
        <translation>参照しているが除外されたファイル：%1。</translation>
    </message>
    <message>
        <source>Shapes of lines or points that are left out: %1.</source>
        <translation>除外された線または点の形状：%1。</translation>
    </message>
    <message>
        <source>The texture %1 is a film, which is left out.</source>
        <translation>テクスチャ%1は動画のため、除外されます。</translation>
    </message>
    <message>
        <source>Meshes of lines or points that are left out: %1.</source>
        <translation>除外された線または点のメッシュ：%1。</translation>
    </message>
    <message>
        <source>Textures of kinds that are not drawn here: %1.</source>
        <translation>ここでは描画されない種類のテクスチャ：%1。</translation>
    </message>
    <message>
        <source>Invisible surfaces that the import options leave out: %1.</source>
        <translation>インポートオプションにより除外された非表示の面：%1。</translation>
    </message>
    <message>
        <source>Materials that the materials file lacks: %1.</source>
        <translation>マテリアルファイルにないマテリアル：%1。</translation>
    </message>
</context>
<context>
    <name>olRecentModels</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使用したファイルを開く(&amp;R)</translation>
    </message>
    <message>
        <source>%1  %2 (%3)</source>
        <translation>%1  %2 (%3)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
</context>
<context>
    <name>olRgbFields</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
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
        <translation>このシステムにはLandlockがありません。モデルはLandlockなしで読み込まれます。</translation>
    </message>
    <message>
        <source>The system takes no seccomp filter; models are read without it.</source>
        <translation>このシステムはseccompフィルターを受け付けません。モデルはフィルターなしで読み込まれます。</translation>
    </message>
</context>
<context>
    <name>olSceneLoaders</name>
    <message>
        <source>OpenSG could not be started.</source>
        <translation>OpenSGを起動できませんでした。</translation>
    </message>
    <message>
        <source>OpenSG has no loader for %1; options for it are not kept.</source>
        <translation>OpenSGには%1のローダーがありません。そのオプションは保持されません。</translation>
    </message>
</context>
<context>
    <name>olSceneTree</name>
    <message>
        <source>Level %1</source>
        <translation>レベル%1</translation>
    </message>
    <message>
        <source>Unnamed group</source>
        <translation>名前のないグループ</translation>
    </message>
    <message>
        <source>Unnamed part</source>
        <translation>名前のないパーツ</translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation>三角形：%1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>色：%1</translation>
    </message>
    <message>
        <source>Opacity: %1 %</source>
        <translation>不透明度：%1 %</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>何も開かれていません。</translation>
    </message>
</context>
<context>
    <name>olSceneView</name>
    <message>
        <source>The 3D view needs an X display.</source>
        <translation>3DビューにはXディスプレイが必要です。</translation>
    </message>
    <message>
        <source>The OpenGL context of this display cannot be used for the 3D view.</source>
        <translation>このディスプレイのOpenGLコンテキストは3Dビューに使用できません。</translation>
    </message>
</context>
<context>
    <name>olSettingDescription</name>
    <message>
        <source>one of %1</source>
        <translation>%1のいずれか</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>%1文字以内のテキスト</translation>
    </message>
    <message>
        <source>three numbers from %1 to %2</source>
        <translation>%1～%2の3つの数値</translation>
    </message>
    <message>
        <source>is of the type %1, not %2</source>
        <translation>型%2ではなく型%1です</translation>
    </message>
    <message>
        <source>cannot be %1: expected %2</source>
        <translation>%1にはできません：%2が必要です</translation>
    </message>
</context>
<context>
    <name>olSettingMarks</name>
    <message>
        <source>Set by the site.</source>
        <translation>サイトによる設定です。</translation>
    </message>
    <message>
        <source>Set by you.</source>
        <translation>ユーザーによる設定です。</translation>
    </message>
    <message>
        <source>Changed, not applied yet.</source>
        <translation>変更されていますが、まだ適用されていません。</translation>
    </message>
    <message>
        <source>Locked by the site.</source>
        <translation>サイトによってロックされています。</translation>
    </message>
</context>
<context>
    <name>olSettingMenu</name>
    <message>
        <source>Set by the site, and locked</source>
        <translation>サイトによる設定 (ロック済み)</translation>
    </message>
    <message>
        <source>Changed, not applied yet</source>
        <translation>変更済み (未適用)</translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation>ユーザーによる設定</translation>
    </message>
    <message>
        <source>Set by the site</source>
        <translation>サイトによる設定</translation>
    </message>
    <message>
        <source>The default</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>取り消す(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Reset to Default: %1</source>
        <translation>既定値に戻す(&amp;R)：%1</translation>
    </message>
    <message>
        <source>Copy &amp;Key &quot;%1&quot;</source>
        <translation>キー「%1」をコピー(&amp;K)</translation>
    </message>
    <message>
        <source>Copy as &amp;JSON</source>
        <translation>JSONとしてコピー(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Why Is This Locked?</source>
        <translation>ロックされている理由(&amp;W)</translation>
    </message>
</context>
<context>
    <name>olSettingTips</name>
    <message>
        <source>Range: %1 to %2</source>
        <translation>範囲：%1～%2</translation>
    </message>
    <message>
        <source>Range: from %1</source>
        <translation>範囲：%1以上</translation>
    </message>
    <message>
        <source>Range: up to %1</source>
        <translation>範囲：%1以下</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>単位：%1</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>次回のインポート時に有効になります</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>次回の起動時に有効になります</translation>
    </message>
    <message>
        <source>Takes effect at once</source>
        <translation>すぐに有効になります</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>既定値：%1</translation>
    </message>
</context>
<context>
    <name>olSettingWords</name>
    <message>
        <source>default</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>編集済み</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック済み</translation>
    </message>
    <message>
        <source>the site&apos;s</source>
        <translation>サイト</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか%1件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>module and setting</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>These %1 changes are not applied yet and would be lost:</source>
        <translation>これら%1件の変更はまだ適用されておらず、失われます：</translation>
    </message>
    <message>
        <source>This change is not applied yet and would be lost:</source>
        <translation>この変更はまだ適用されておらず、失われます：</translation>
    </message>
    <message>
        <source>%1 is locked: %2 The lock stands in %3.</source>
        <translation>「%1」は%3でロックされています：%2</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>ユーザー</translation>
    </message>
</context>
<context>
    <name>olSettingsCatalogue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>%1以上</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>%1以下</translation>
    </message>
    <message>
        <source>%1, %2 decimals</source>
        <translation>%1、小数%2桁</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>次回のインポート時</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>次回の起動時</translation>
    </message>
    <message>
        <source>now</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>or any text</source>
        <translation>または任意のテキスト</translation>
    </message>
    <message>
        <source>No settings.</source>
        <translation>設定はありません。</translation>
    </message>
    <message>
        <source>key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>default</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>range or choices</source>
        <translation>範囲または選択肢</translation>
    </message>
    <message>
        <source>effect</source>
        <translation>有効になる時</translation>
    </message>
    <message>
        <source>on the page</source>
        <translation>ページ上の場所</translation>
    </message>
    <message>
        <source>tooltip</source>
        <translation>ツールチップ</translation>
    </message>
    <message>
        <source># Settings

All settings of all modules, in the order of registration and of writing, with the defaults of the Professional
edition. Made by `orlo-prefs list --markdown`.
</source>
        <translation># 設定

すべてのモジュールのすべての設定を、登録と書き込みの順に示します。既定値はProfessionalエディションのものです。
`orlo-prefs list --markdown`で作成しました。
</translation>
    </message>
</context>
<context>
    <name>olSettingsLock</name>
    <message>
        <source>The settings file %1 is busy: %2 (process %3) holds its lock. What is to be kept there waits for it.</source>
        <translation>設定ファイル%1は使用中です：%2 (プロセス%3) がロックを保持しています。保存する内容は、ロックの解除を待っています。</translation>
    </message>
</context>
<context>
    <name>olSettingsTransfer</name>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>The preferences in force were written to %1, without the pending changes.</source>
        <translation>現在有効な環境設定を、保留中の変更を除いて%1に書き出しました。</translation>
    </message>
    <message>
        <source>Export Preferences</source>
        <translation>環境設定のエクスポート</translation>
    </message>
    <message>
        <source>These settings get new values. They stay pending until OK or Apply.</source>
        <translation>これらの設定に新しい値が入ります。「OK」または「適用」を押すまでは保留中です。</translation>
    </message>
    <message>
        <source>Import Preferences</source>
        <translation>環境設定のインポート</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>以前の状態に戻す</translation>
    </message>
    <message>
        <source>Apply Profile %1</source>
        <translation>プロファイル「%1」の適用</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>以前の状態に戻す(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>履歴(&amp;H)...</translation>
    </message>
    <message>
        <source>The preferences were written to %1.</source>
        <translation>環境設定を%1に書き出しました。</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>変更される設定はありません。</translation>
    </message>
    <message>
        <source>Preferences (*.json);;All files (*)</source>
        <translation>環境設定 (*.json);;すべてのファイル (*)</translation>
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
        <translation>読み込めません：%1</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>only root may own and write the file and its folder</source>
        <translation>ファイルとそのフォルダーの所有と書き込みは、rootだけに限られている必要があります</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1行目：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has neither a &quot;value&quot; nor a lock</source>
        <translation>「%1」には「value」もロックもありません</translation>
    </message>
    <message>
        <source>takes true or false for &quot;locked&quot;</source>
        <translation>「locked」の値としてtrueまたはfalseが必要です</translation>
    </message>
    <message>
        <source>takes a text for &quot;reason&quot;</source>
        <translation>「reason」の値としてテキストが必要です</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, where only &quot;value&quot;, &quot;locked&quot; and &quot;reason&quot; can stand</source>
        <translation>「%1」を含んでいますが、指定できるのは「value」、「locked」、「reason」だけです</translation>
    </message>
    <message>
        <source>This setting is fixed for your site.</source>
        <translation>この設定はサイトで固定されています。</translation>
    </message>
    <message>
        <source>%1, line %2: no module has a setting &quot;%3&quot;.</source>
        <translation>%1の%2行目：設定「%3」を持つモジュールはありません。</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1 are ignored: %2.</source>
        <translation>サイトの環境設定%1は無視されます：%2。</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1, line %2: %3.</source>
        <translation>サイトの環境設定%1の%2行目：%3。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>「%1」は%2</translation>
    </message>
</context>
<context>
    <name>olSpacemouseLink</name>
    <message>
        <source>Cannot look for a 3D mouse: %1</source>
        <translation>3Dマウスを探せません：%1</translation>
    </message>
    <message>
        <source>There is no 3D mouse: its daemon, spacenavd, is not running.</source>
        <translation>3Dマウスがありません：デーモンspacenavdが動作していません。</translation>
    </message>
    <message>
        <source>Connected to the daemon of the 3D mouse.</source>
        <translation>3Dマウスのデーモンに接続しました。</translation>
    </message>
    <message>
        <source>The daemon of the 3D mouse has gone.</source>
        <translation>3Dマウスのデーモンとの接続が切れました。</translation>
    </message>
</context>
<context>
    <name>olSqlite</name>
    <message>
        <source>no space left on the device</source>
        <translation>デバイスに空き容量がありません</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>ファイルシステムがロックを受け付けません</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>別のプログラムがファイルを使用中です</translation>
    </message>
    <message>
        <source>it or its folder is read-only</source>
        <translation>ファイルまたはそのフォルダーが読み取り専用です</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>開くことができません</translation>
    </message>
    <message>
        <source>input or output failed</source>
        <translation>入出力に失敗しました</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>構造が壊れています</translation>
    </message>
    <message>
        <source>its content is no database</source>
        <translation>内容がデータベースではありません</translation>
    </message>
    <message>
        <source>a row is not what it was</source>
        <translation>元の内容と異なる行があります</translation>
    </message>
</context>
<context>
    <name>olStartFault</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>The preferences cannot be loaded.</source>
        <translation>環境設定を読み込めません。</translation>
    </message>
    <message>
        <source>The file is left as it is. With the defaults nothing of this run is kept.</source>
        <translation>ファイルはそのまま残されます。既定値を使用する場合、今回の実行の内容は何も保存されません。</translation>
    </message>
    <message>
        <source>Another &amp;Store...</source>
        <translation>別の保存ファイル(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Defaults for This Run</source>
        <translation>今回は既定値を使用(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Another Store</source>
        <translation>別の保存ファイル</translation>
    </message>
    <message>
        <source>Preferences (*.db);;All files (*)</source>
        <translation>環境設定 (*.db);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The plug-in with the preferences cannot be loaded.</source>
        <translation>環境設定のプラグインを読み込めません。</translation>
    </message>
    <message>
        <source>Another &amp;Plug-In...</source>
        <translation>別のプラグイン(&amp;P)...</translation>
    </message>
    <message>
        <source>Another Plug-In</source>
        <translation>別のプラグイン</translation>
    </message>
    <message>
        <source>Plug-ins (*.so);;All files (*)</source>
        <translation>プラグイン (*.so);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>olStoreTables</name>
    <message>
        <source>it is another program&apos;s database</source>
        <translation>別のプログラムのデータベースです</translation>
    </message>
    <message>
        <source>it was written by a newer version</source>
        <translation>より新しいバージョンで書き込まれています</translation>
    </message>
    <message>
        <source>its tables are not what they were</source>
        <translation>テーブルが元の内容と異なります</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>構造が壊れています</translation>
    </message>
    <message>
        <source>rows were changed or are missing</source>
        <translation>変更された行または欠けている行があります</translation>
    </message>
    <message>
        <source>its history was changed</source>
        <translation>履歴が変更されています</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>中身がありません</translation>
    </message>
</context>
<context>
    <name>olSupport</name>
    <message>
        <source>orlo %1, edition %2</source>
        <translation>orlo %1、エディション %2</translation>
    </message>
    <message>
        <source>Changed settings:</source>
        <translation>変更済みの設定：</translation>
    </message>
    <message>
        <source>Changed and left out: %1</source>
        <translation>変更済みで省かれたもの：%1</translation>
    </message>
    <message>
        <source>End of the log:</source>
        <translation>ログの終わり：</translation>
    </message>
</context>
<context>
    <name>olTesselationSettings</name>
    <message>
        <source>T&amp;essellation</source>
        <translation>テッセレーション(&amp;E)</translation>
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
        <translation>法線公差(&amp;N)</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Ma&amp;x Chord Length</source>
        <translation>最大弦長(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>ステッチ(&amp;S)</translation>
    </message>
    <message>
        <source>St&amp;itching Tolerance</source>
        <translation>ステッチ公差(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>品質(&amp;Q)</translation>
    </message>
    <message>
        <source>Sets chord deviation, normal tolerance and max chord length together.</source>
        <translation>弦偏差、法線公差、最大弦長をまとめて設定します。</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
</context>
<context>
    <name>olToolError</name>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>「%1」はUTF-8ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked: %2</source>
        <translation>「%1」はロックされています：%2</translation>
    </message>
    <message>
        <source>Cannot check %1: there is no such file.</source>
        <translation>%1を確認できません：そのようなファイルはありません。</translation>
    </message>
    <message>
        <source>%1 cannot be entered: expected %2</source>
        <translation>%1は入力できません：%2が必要です</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>trueまたはfalse</translation>
    </message>
    <message>
        <source>a text or a number</source>
        <translation>テキストまたは数値</translation>
    </message>
    <message>
        <source>a button is not edited but pressed, by click</source>
        <translation>ボタンは編集できません。clickで押してください</translation>
    </message>
    <message>
        <source>true, as another one must be chosen instead</source>
        <translation>true (代わりに別のものを選択する必要があります)</translation>
    </message>
    <message>
        <source>an item by its number or its text: %1</source>
        <translation>番号またはテキストで指定した項目 (%1)</translation>
    </message>
    <message>
        <source>the item &quot;%1&quot; is disabled</source>
        <translation>項目「%1」は無効になっています</translation>
    </message>
    <message>
        <source>the field is only to be read</source>
        <translation>この入力欄は読み取り専用です</translation>
    </message>
    <message>
        <source>what the field&apos;s validator lets through</source>
        <translation>入力欄の検証を通る値</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>%1文字以内のテキスト</translation>
    </message>
    <message>
        <source>%1 with at most %2 decimals</source>
        <translation>%1 (小数点以下%2桁まで)</translation>
    </message>
    <message>
        <source>three numbers from 0 to 1, as [1, 0.5, 0]</source>
        <translation>0～1の3つの数値 ([1, 0.5, 0]など)</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>二重引用符で囲んだテキスト</translation>
    </message>
    <message>
        <source>the text is only to be read</source>
        <translation>このテキストは読み取り専用です</translation>
    </message>
    <message>
        <source>a table or tree is not edited; select in it and press its buttons</source>
        <translation>表やツリーは編集できません。項目を選択してボタンを押してください</translation>
    </message>
    <message>
        <source>a control of its kind is not known</source>
        <translation>この種類のコントロールには対応していません</translation>
    </message>
    <message>
        <source>it is neither a table nor a tree</source>
        <translation>表でもツリーでもありません</translation>
    </message>
    <message>
        <source>nothing can be selected in it</source>
        <translation>選択できるものがありません</translation>
    </message>
    <message>
        <source>it is no button</source>
        <translation>ボタンではありません</translation>
    </message>
    <message>
        <source>there is no row %1: it has %2</source>
        <translation>行%1はありません：あるのは%2です</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1行</translation>
    </message>
    <message>
        <source>there is no column %1: it has %2</source>
        <translation>列%1はありません：あるのは%2です</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1列</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1列</translation>
    </message>
    <message>
        <source>Cannot read the standard input: %1.</source>
        <translation>標準入力を読み込めません：%1。</translation>
    </message>
    <message>
        <source>Cannot import the standard input. %1</source>
        <translation>標準入力をインポートできません。%1</translation>
    </message>
    <message>
        <source>skipped: &quot;%1&quot; %2</source>
        <translation>スキップしました：「%1」は%2</translation>
    </message>
    <message>
        <source>%1 saves cannot be taken back: there are only %2</source>
        <translation>%1件の保存は取り消せません：%2件しかありません</translation>
    </message>
    <message>
        <source>left: &quot;%1&quot; %2</source>
        <translation>変更しませんでした：「%1」は%2</translation>
    </message>
    <message>
        <source>Some settings were left as they are.</source>
        <translation>一部の設定は変更されませんでした。</translation>
    </message>
    <message>
        <source>the button &quot;%1&quot;</source>
        <translation>ボタン「%1」</translation>
    </message>
    <message>
        <source>a directory</source>
        <translation>ディレクトリ</translation>
    </message>
    <message>
        <source>a color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>%1 opened, but the answer queued for it is %2</source>
        <translation>%1が開きましたが、用意された応答は%2です</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot;</source>
        <translation>ボックス「%1」</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot; has no button &quot;%2&quot;; it has %3</source>
        <translation>ボックス「%1」にボタン「%2」はありません：あるのは%3です</translation>
    </message>
    <message>
        <source>a color dialog</source>
        <translation>色のダイアログ</translation>
    </message>
    <message>
        <source>the directory chooser &quot;%1&quot;</source>
        <translation>ディレクトリの選択「%1」</translation>
    </message>
    <message>
        <source>a command is missing: %1; see --help</source>
        <translation>コマンドがありません：%1。--helpを参照してください</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1または%2</translation>
    </message>
    <message>
        <source>there is no command %1, only %2; see --help</source>
        <translation>コマンド%1はありません：使用できるのは%2です。--helpを参照してください</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1および%2</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise</source>
        <translation>essentials、design、professional、またはenterprise</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1には値が必要です</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1に値は指定できません</translation>
    </message>
    <message>
        <source>there is no edition %1, only %2</source>
        <translation>エディション%1はありません：使用できるのは%2です</translation>
    </message>
    <message>
        <source>usage: orlo-prefs [OPTIONS] %1</source>
        <translation>使い方：orlo-prefs [OPTIONS] %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set with --yes: %2</source>
        <translation>「%1」は--yesを指定した場合にのみ設定されます：%2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>出力を書き込めません：%1。</translation>
    </message>
    <message>
        <source>Cannot make a directory for scratch settings: %1.</source>
        <translation>一時的な設定用のディレクトリを作成できません：%1。</translation>
    </message>
    <message>
        <source>Cannot read the script %1: %2.</source>
        <translation>スクリプト%1を読み込めません：%2。</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1がありません</translation>
    </message>
    <message>
        <source>a quote stands within the word %1</source>
        <translation>単語%1の中に引用符があります</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>引用符が閉じられていません</translation>
    </message>
    <message>
        <source>a blank is missing behind &quot;%1&quot;</source>
        <translation>「%1」の後に空白がありません</translation>
    </message>
    <message>
        <source>VALUE is missing</source>
        <translation>VALUEがありません</translation>
    </message>
    <message>
        <source>%1 is no JSON value</source>
        <translation>%1はJSONの値ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much</source>
        <translation>「%1」は余分です</translation>
    </message>
    <message>
        <source>%1; usage: %2</source>
        <translation>%1。使い方：%2</translation>
    </message>
    <message>
        <source>there is no type %1, only %2</source>
        <translation>型%1はありません：使用できるのは%2です</translation>
    </message>
    <message>
        <source>%1 is no value of type %2: expected %3</source>
        <translation>%1は型%2の値ではありません：%3が必要です</translation>
    </message>
    <message>
        <source>%1 is no number counted from 0</source>
        <translation>%1は0から数える番号ではありません</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1行目：%2</translation>
    </message>
    <message>
        <source>behind the module only keep may follow</source>
        <translation>モジュールの後に指定できるのはkeepだけです</translation>
    </message>
    <message>
        <source>%1 is neither put nor get</source>
        <translation>%1はputでもgetでもありません</translation>
    </message>
    <message>
        <source>no column goes with none</source>
        <translation>noneには列を指定できません</translation>
    </message>
    <message>
        <source>%1 is no color</source>
        <translation>%1は色ではありません</translation>
    </message>
    <message>
        <source>%1 does not fit the fact %2: expected %3</source>
        <translation>%1はホストの状態の項目%2に合いません：%3が必要です</translation>
    </message>
    <message>
        <source>no variable can be called %1</source>
        <translation>%1という変数名は使用できません</translation>
    </message>
    <message>
        <source>%1 is no text</source>
        <translation>%1はテキストではありません</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;; there is: %2</source>
        <translation>モジュール「%1」はありません。使用できるのは次のとおりです：%2</translation>
    </message>
    <message>
        <source>the library is unloaded</source>
        <translation>ライブラリはアンロードされています</translation>
    </message>
    <message>
        <source>%1 has no page</source>
        <translation>%1にはページがありません</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1は非表示です</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1は無効になっています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a value of a type that settings do not have</source>
        <translation>「%1」には、設定で使用しない型の値が入っています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>「%1」は%2</translation>
    </message>
    <message>
        <source>there is no language %1, only %2 or user</source>
        <translation>言語%1はありません：使用できるのは%2、またはuserです</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;</source>
        <translation>モジュール「%1」はありません</translation>
    </message>
    <message>
        <source>%1  (site)</source>
        <translation>%1  (サイト)</translation>
    </message>
    <message>
        <source>default</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>設定「%1」はありません</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1。「%2」のことですか？</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>オプション%1はありません</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>コマンド%1はありません</translation>
    </message>
    <message>
        <source>there is no fact %1</source>
        <translation>ホストの状態に項目%1はありません</translation>
    </message>
    <message>
        <source>(default %1)</source>
        <translation>(既定値 %1)</translation>
    </message>
</context>
<context>
    <name>olTour</name>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>フォルダー%1を作成できません</translation>
    </message>
    <message>
        <source>the camera has no page in this edition; nothing to show</source>
        <translation>このエディションにはカメラのページがありません。表示するものがありません</translation>
    </message>
    <message>
        <source>the change could not be applied</source>
        <translation>変更を適用できませんでした</translation>
    </message>
    <message>
        <source>Applied: Field of View %1</source>
        <translation>適用しました：視野角 %1</translation>
    </message>
    <message>
        <source>this display shows no 3D view; there is no picture of it</source>
        <translation>このディスプレイには3Dビューが表示されず、その画像はありません</translation>
    </message>
    <message>
        <source>the picture %1 cannot be written</source>
        <translation>画像%1に書き込めません</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>画像：%1</translation>
    </message>
</context>
<context>
    <name>olTranslations</name>
    <message>
        <source>There is no usable translation %1.qm in %2: its texts stay English.</source>
        <translation>使用できる翻訳%1.qmが%2にありません：テキストは英語のままです。</translation>
    </message>
</context>
<context>
    <name>olUndo</name>
    <message>
        <source>is locked: %1</source>
        <translation>ロックされています：%1</translation>
    </message>
    <message>
        <source>was changed since</source>
        <translation>その後変更されています</translation>
    </message>
</context>
<context>
    <name>olValue</name>
    <message>
        <source>true or false</source>
        <translation>trueまたはfalse</translation>
    </message>
    <message>
        <source>a whole number from -2147483648 to 2147483647</source>
        <translation>-2147483648～2147483647の整数</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>0～4294967295の整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>二重引用符で囲んだテキスト</translation>
    </message>
    <message>
        <source>a list of texts, as [&quot;a&quot;, &quot;b&quot;]</source>
        <translation>テキストのリスト ([&quot;a&quot;, &quot;b&quot;]など)</translation>
    </message>
    <message>
        <source>a list of numbers, as [1, 0.5]</source>
        <translation>数値のリスト ([1, 0.5]など)</translation>
    </message>
    <message>
        <source>three numbers, as [1, 0.5, 0]</source>
        <translation>3つの数値 ([1, 0.5, 0]など)</translation>
    </message>
    <message>
        <source>a list of colors, as [[0, 0, 0], [1, 1, 1]]</source>
        <translation>色のリスト ([[0, 0, 0], [1, 1, 1]]など)</translation>
    </message>
</context>
<context>
    <name>olValueText</name>
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
        <translation>後</translation>
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
        <translation>ランプ</translation>
    </message>
</context>
<context>
    <name>olViewport</name>
    <message>
        <source>3D view</source>
        <translation>3Dビュー</translation>
    </message>
    <message>
        <source>The 3D view: %1</source>
        <translation>3Dビュー：%1</translation>
    </message>
    <message>
        <source>The renderer of the 3D view cannot be started.</source>
        <translation>3Dビューのレンダラーを起動できません。</translation>
    </message>
    <message>
        <source>A frame of the 3D view could not be drawn.</source>
        <translation>3Dビューのフレームを描画できませんでした。</translation>
    </message>
</context>
<context>
    <name>olWebAccess</name>
    <message>
        <source>The web server does not answer %1: %2</source>
        <translation>Webサーバーは%1に応答しません：%2</translation>
    </message>
</context>
<context>
    <name>olWebPages</name>
    <message>
        <source>The answer would be too large.</source>
        <translation>応答が大きすぎます。</translation>
    </message>
    <message>
        <source>The application is running.</source>
        <translation>アプリケーションは動作中です。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>State of the host</source>
        <translation>ホストの状態</translation>
    </message>
    <message>
        <source>Nothing can be changed here; ask with GET.</source>
        <translation>ここでは何も変更できません。GETで要求してください。</translation>
    </message>
    <message>
        <source>There is no such page.</source>
        <translation>そのようなページはありません。</translation>
    </message>
    <message>
        <source>This host is not allowed.</source>
        <translation>このホストは許可されていません。</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of the language</comment>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>olWebServer</name>
    <message>
        <source>it is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>others than its owner can read it</source>
        <translation>所有者以外も読み取り可能です</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>The web server cannot use %1: %2</source>
        <translation>Webサーバーは%1を使用できません：%2</translation>
    </message>
    <message>
        <source>ports are numbered 1 to 65535</source>
        <translation>ポート番号は1～65535です</translation>
    </message>
    <message>
        <source>port %1 with %2</source>
        <translation>ポート%1 (%2を使用)</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>ポート%1</translation>
    </message>
    <message>
        <source>The web server does not listen on %1: %2</source>
        <translation>Webサーバーは%1で待ち受けできません：%2</translation>
    </message>
</context>
<context>
    <name>orlo</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>--%1 needs --render</source>
        <translation>--%1には--renderが必要です</translation>
    </message>
    <message>
        <source>--set needs --render or --save</source>
        <translation>--setには--renderまたは--saveが必要です</translation>
    </message>
    <message>
        <source>--%1 does not go with --render</source>
        <translation>--%1は--renderと同時に指定できません</translation>
    </message>
    <message>
        <source>--%1 needs a window, which --render and --save do without</source>
        <translation>--%1にはウィンドウが必要です。--renderと--saveはウィンドウを使用しません</translation>
    </message>
    <message>
        <source>--render needs --output PICTURE</source>
        <translation>--renderには--output PICTUREが必要です</translation>
    </message>
    <message>
        <source>%1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192</source>
        <translation>%1はサイズではありません：WIDTHxHEIGHT (それぞれ1～8192) の形が必要です</translation>
    </message>
    <message>
        <source>--save needs either a model or --sample</source>
        <translation>--saveには、モデルまたは--sampleのどちらか一方が必要です</translation>
    </message>
    <message>
        <source>%1 does not go with --render</source>
        <translation>%1は--renderと同時に指定できません</translation>
    </message>
    <message>
        <source>there is no edition %1; there are essentials, design, professional and enterprise</source>
        <translation>エディション%1はありません。使用できるのはessentials、design、professional、enterpriseです</translation>
    </message>
    <message>
        <source>no page has the setting &quot;%1&quot;</source>
        <translation>設定「%1」を持つページはありません</translation>
    </message>
    <message>
        <source>%1 has stored this.</source>
        <translation>%1がこの値を保存しました。</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>expected --unit mm, cm, m, in or ft, and --up y or z</source>
        <translation>--unitにはmm、cm、m、in、ftのいずれか、--upにはyまたはzを指定してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>「%1」はUTF-8ではありません</translation>
    </message>
    <message>
        <source>only one model can be converted at a time</source>
        <translation>一度に変換できるモデルは1つだけです</translation>
    </message>
    <message>
        <source>Views, renders and converts CAD models.</source>
        <translation>CADモデルを表示、レンダリング、変換します。</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise.</source>
        <translation>essentials、design、professional、enterpriseのいずれかです。</translation>
    </message>
    <message>
        <source>The application&apos;s name.</source>
        <translation>アプリケーションの名前です。</translation>
    </message>
    <message>
        <source>The file that keeps the preferences.</source>
        <translation>環境設定を保存するファイルです。</translation>
    </message>
    <message>
        <source>The preferences plug-in to load.</source>
        <translation>読み込む環境設定のプラグインです。</translation>
    </message>
    <message>
        <source>Open a small assembly that the program builds itself.</source>
        <translation>プログラムが自分で作る小さなアセンブリを開きます。</translation>
    </message>
    <message>
        <source>Write the model, or the sample, in the format of the suffix, and end.</source>
        <translation>モデルまたはサンプルを拡張子の形式で書き込み、終了します。</translation>
    </message>
    <message>
        <source>Import a model, write one picture of it to --output, and end.</source>
        <translation>モデルをインポートし、その画像を1枚--outputに書き込み、終了します。</translation>
    </message>
    <message>
        <source>Where --render puts its picture.</source>
        <translation>--renderが画像を置く場所です。</translation>
    </message>
    <message>
        <source>With --render: show cameras, lights and the cube as the window does.</source>
        <translation>--renderとともに：ウィンドウと同じようにカメラ、ライト、キューブを表示します。</translation>
    </message>
    <message>
        <source>With --render: draw the borders of surfaces.</source>
        <translation>--renderとともに：サーフェスの境界を描きます。</translation>
    </message>
    <message>
        <source>The unit of a model that does not say it: mm, cm, m, in or ft.</source>
        <translation>単位を示さないモデルの単位です：mm、cm、m、in、ftのいずれか。</translation>
    </message>
    <message>
        <source>What is up in a model that does not say it: y or z.</source>
        <translation>上の向きを示さないモデルの上の軸です：yまたはz。</translation>
    </message>
    <message>
        <source>How large the picture is, in pixels.</source>
        <translation>画像の大きさ (ピクセル) です。</translation>
    </message>
    <message>
        <source>A setting for --render and --save, as &quot;KEY=VALUE&quot;; nothing is saved.</source>
        <translation>--renderと--saveのための設定で、「KEY=VALUE」の形です。何も保存しません。</translation>
    </message>
    <message>
        <source>The model to open.</source>
        <translation>開くモデルです。</translation>
    </message>
    <message>
        <source>Open the preferences beside the view.</source>
        <translation>ビューの隣に環境設定を開きます。</translation>
    </message>
    <message>
        <source>Open the preferences at a setting.</source>
        <translation>設定の場所で環境設定を開きます。</translation>
    </message>
    <message>
        <source>Apply a change in the preferences, leave pictures in the folder, and end.</source>
        <translation>環境設定で変更を1つ適用し、画像をフォルダーに残して終了します。</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --save needs none</source>
        <translation>ウィンドウを開くためのディスプレイがありません。--saveにはディスプレイは不要です</translation>
    </message>
</context>
</TS>

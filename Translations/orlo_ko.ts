<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>명령행 옵션 도움말을 표시합니다.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Qt 지정 옵션을 포함한 도움말을 표시합니다.</translation>
    </message>
</context>
<context>
    <name>QOLColorDialog</name>
    <message>
        <source>Choose Color</source>
        <translation>색상 선택</translation>
    </message>
</context>
<context>
    <name>QOLColorManipulator</name>
    <message>
        <source>Choose Color</source>
        <translation>색상 선택</translation>
    </message>
</context>
<context>
    <name>olAbout</name>
    <message>
        <source>About ORLO</source>
        <translation>ORLO 정보</translation>
    </message>
    <message>
        <source>A desktop application to view, render and review CAD models in 3D.</source>
        <translation>CAD 모델을 3D로 보고 렌더링하고 검토하는 데스크톱 프로그램입니다.</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>고지 사항(&amp;N)</translation>
    </message>
    <message>
        <source>It uses these libraries, all of them linked dynamically, so that they can be replaced:&lt;ul&gt;&lt;li&gt;OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception&lt;/li&gt;&lt;li&gt;Qt %2: LGPL 3&lt;/li&gt;&lt;li&gt;SQLite: public domain&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd: LGPL 2.1 or later&lt;/li&gt;&lt;li&gt;libspnav: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;Boost: Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;minizip: zlib licence&lt;/li&gt;&lt;li&gt;Coin: BSD, 3 clauses&lt;/li&gt;&lt;li&gt;libseccomp: LGPL 2.1&lt;/li&gt;&lt;/ul&gt;Their notices are in &lt;i&gt;third-party.md&lt;/i&gt;, beside the documents of this program.</source>
        <translation>다음 라이브러리를 사용하며, 모두 동적으로 링크되어 교체할 수 있습니다:&lt;ul&gt;&lt;li&gt;OpenCASCADE %1: Open CASCADE 예외 조항이 있는 LGPL 2.1&lt;/li&gt;&lt;li&gt;Qt %2: LGPL 3&lt;/li&gt;&lt;li&gt;SQLite: 퍼블릭 도메인&lt;/li&gt;&lt;li&gt;GNU libmicrohttpd: LGPL 2.1 이상&lt;/li&gt;&lt;li&gt;libspnav: BSD 3조항&lt;/li&gt;&lt;li&gt;Boost: Boost Software License 1.0&lt;/li&gt;&lt;li&gt;assimp: BSD 3조항&lt;/li&gt;&lt;li&gt;minizip: zlib 라이선스&lt;/li&gt;&lt;li&gt;Coin: BSD 3조항&lt;/li&gt;&lt;li&gt;libseccomp: LGPL 2.1&lt;/li&gt;&lt;/ul&gt;각 라이브러리의 고지 사항은 이 프로그램의 문서와 함께 있는 &lt;i&gt;third-party.md&lt;/i&gt;에 있습니다.</translation>
    </message>
</context>
<context>
    <name>olBatch</name>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL.</source>
        <translation>3D 뷰에는 OpenGL을 지원하는 X 디스플레이 또는 XWayland가 필요합니다.</translation>
    </message>
    <message>
        <source>The model %1 cannot be drawn: %2</source>
        <translation>모델 %1을(를) 그릴 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1에 쓸 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>olChangesView</name>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Old Value</source>
        <translation>이전 값</translation>
    </message>
    <message>
        <source>New Value</source>
        <translation>새 값</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>변경 사항</translation>
    </message>
    <message>
        <source>&amp;Skipped:</source>
        <translation>건너뜀(&amp;S):</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>건너뜀</translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation>해당 위치로 이동(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>되돌리기(&amp;T)</translation>
    </message>
    <message>
        <source>Take &amp;All Back</source>
        <translation>모두 되돌리기(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>텍스트로 복사(&amp;C)</translation>
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
        <translation>기록만 함</translation>
    </message>
    <message>
        <source>Is only recorded by this host</source>
        <translation>이 호스트에서는 기록만 합니다</translation>
    </message>
    <message>
        <source>This host only records these settings: no reader or other part of it goes by them.</source>
        <translation>이 호스트는 이 설정을 기록만 합니다. 이 설정을 사용하는 기능(예: 해당 형식의 읽기 기능)이 없습니다.</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>다음 가져오기</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>다음 가져오기에 적용됩니다</translation>
    </message>
    <message>
        <source>These settings take effect at the next import.</source>
        <translation>이 설정은 다음 가져오기에 적용됩니다.</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>다음 시작</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>다음에 시작할 때 적용됩니다</translation>
    </message>
    <message>
        <source>These settings take effect at the next start.</source>
        <translation>이 설정은 다음에 시작할 때 적용됩니다.</translation>
    </message>
</context>
<context>
    <name>olExport</name>
    <message>
        <source>%1 stands twice in the same place; it is written once.</source>
        <translation>%1이(가) 같은 위치에 두 번 있어 한 번만 저장합니다.</translation>
    </message>
    <message>
        <source>%1 is a mesh, which this format cannot hold; it is left out.</source>
        <translation>%1은(는) 이 형식에 담을 수 없는 메시이므로 제외합니다.</translation>
    </message>
    <message>
        <source>colors</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>textures</source>
        <translation>텍스처</translation>
    </message>
    <message>
        <source>groups of parts</source>
        <translation>부품 그룹</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>임시 디렉터리에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the writer failed</source>
        <translation>쓰기에 실패했습니다</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>there is nothing that this format can hold</source>
        <translation>이 형식에 담을 수 있는 것이 없습니다</translation>
    </message>
    <message>
        <source>the writer failed (%1)</source>
        <translation>쓰기에 실패했습니다(%1)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>%1에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 names are written with other letters or a number, as names of VRML have no blanks and stand for one thing.</source>
        <translation>VRML의 이름에는 공백을 쓸 수 없고 이름은 하나의 대상만 가리키므로, 이름 %1개를 다른 문자나 번호를 넣어 저장합니다.</translation>
    </message>
    <message>
        <source>%1 parts of several looks are groups of parts in the file.</source>
        <translation>모양이 여러 가지인 부품 %1개를 파일에 부품 그룹으로 저장합니다.</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>곡선</translation>
    </message>
    <message>
        <source>names of parts</source>
        <translation>부품 이름</translation>
    </message>
    <message>
        <source>colors of corners</source>
        <translation>정점 색상</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>physical materials</source>
        <translation>물리적 재료</translation>
    </message>
    <message>
        <source>layers</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>hidden parts</source>
        <translation>숨겨진 부품</translation>
    </message>
    <message>
        <source>%1 knows no exact surfaces; their triangles are written.</source>
        <translation>%1 형식은 정확한 곡면을 지원하지 않으므로 삼각형으로 저장합니다.</translation>
    </message>
    <message>
        <source>These are not in the file, as %1 does not know them: %2.</source>
        <translation>%1 형식에서 지원하지 않아 파일에 저장하지 않은 항목: %2.</translation>
    </message>
    <message>
        <source>The texture %1 is not there any more; it is left out.</source>
        <translation>텍스처 %1이(가) 더 이상 없어 제외합니다.</translation>
    </message>
    <message>
        <source>The texture %1 cannot be written: %2.</source>
        <translation>텍스처 %1을(를) 쓸 수 없습니다: %2.</translation>
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
        <translation>크기:</translation>
    </message>
    <message>
        <source>Along x, y and z, in millimetres</source>
        <translation>x, y, z 방향의 길이(밀리미터)</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>경계 상자:</translation>
    </message>
    <message>
        <source>Its lowest and its highest corner, in millimetres</source>
        <translation>가장 낮은 꼭짓점과 가장 높은 꼭짓점(밀리미터)</translation>
    </message>
    <message>
        <source>Volume:</source>
        <translation>부피:</translation>
    </message>
    <message>
        <source>Of the surfaces themselves; of meshes, of their triangles</source>
        <translation>곡면 자체의 값. 메시는 삼각형의 값</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>면적:</translation>
    </message>
    <message>
        <source>Triangles:</source>
        <translation>삼각형:</translation>
    </message>
    <message>
        <source>With which it is drawn and exported</source>
        <translation>표시와 내보내기에 쓰이는 삼각형의 수</translation>
    </message>
    <message>
        <source>Parts:</source>
        <translation>부품:</translation>
    </message>
    <message>
        <source>Each as often as it stands in the scene</source>
        <translation>장면에 나오는 횟수만큼 셉니다</translation>
    </message>
    <message>
        <source>measuring...</source>
        <translation>측정 중...</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>열려 있는 모델이 없습니다.</translation>
    </message>
    <message>
        <source>What is selected:</source>
        <translation>선택 항목:</translation>
    </message>
    <message>
        <source>The whole scene:</source>
        <translation>전체 장면:</translation>
    </message>
    <message>
        <source>%1 × %2 × %3 mm</source>
        <translation>%1 × %2 × %3 mm</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ~ %2</translation>
    </message>
    <message>
        <source>%1 mm³</source>
        <translation>%1 mm³</translation>
    </message>
    <message>
        <source>none: it is not closed</source>
        <translation>없음: 닫혀 있지 않습니다</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n of the parts are not closed and not in it</source>
        <translation>
            <numerusform>%1. 닫히지 않은 부품 %n개 제외</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 mm²</source>
        <translation>%1 mm²</translation>
    </message>
    <message>
        <source>%1; one of the parts is not closed and not in it</source>
        <translation>%1; 부품 하나는 닫혀 있지 않아 포함되지 않았습니다</translation>
    </message>
</context>
<context>
    <name>olFieldGuard</name>
    <message>
        <source>Only %1 can be entered here.</source>
        <translation>여기에는 %1만 입력할 수 있습니다.</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>숫자</translation>
    </message>
</context>
<context>
    <name>olFoldHeader</name>
    <message>
        <source>Folded</source>
        <translation>접힘</translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation>펼쳐짐</translation>
    </message>
</context>
<context>
    <name>olFoundRows</name>
    <message>
        <source>Page</source>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>olFoundSettings</name>
    <message>
        <source>Setting</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>출처</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>찾은 설정</translation>
    </message>
</context>
<context>
    <name>olGivenSettings</name>
    <message>
        <source>&quot;%1&quot; is no setting: expected &quot;KEY=VALUE&quot;</source>
        <translation>&quot;%1&quot;은(는) 설정이 아닙니다. 필요한 형태: &quot;KEY=VALUE&quot;</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>설정 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set where somebody can be asked: %2</source>
        <translation>&quot;%1&quot;은(는) 사용자에게 확인할 수 있는 곳에서만 설정됩니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>&quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>olHistoryView</name>
    <message>
        <source>&amp;Go Back...</source>
        <translation>돌아가기(&amp;G)...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>아직 저장된 것이 없습니다.</translation>
    </message>
    <message>
        <source>Going back takes back the save that is chosen and all later ones. What that changes is shown first.</source>
        <translation>돌아가면 선택한 저장과 그 이후의 모든 저장을 되돌립니다. 변경될 내용이 먼저 표시됩니다.</translation>
    </message>
    <message>
        <source>Saves</source>
        <translation>저장 목록</translation>
    </message>
    <message>
        <source>When</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>변경 사항</translation>
    </message>
    <message>
        <source>default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <comment>setting, old and new value</comment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <translation>설정 %1개</translation>
    </message>
</context>
<context>
    <name>olHostStatePanel</name>
    <message>
        <source>%1 (only recorded)</source>
        <translation>%1 (기록만 함)</translation>
    </message>
    <message>
        <source>Host state</source>
        <translation>호스트 상태</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Filter the host state</source>
        <translation>호스트 상태 필터링</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>olImport</name>
    <message>
        <source>the system ended its reader, probably for want of memory</source>
        <translation>시스템이 읽기 프로그램을 종료했습니다. 메모리가 부족한 것 같습니다</translation>
    </message>
    <message>
        <source>the file is damaged in a way that makes its reader crash</source>
        <translation>읽기 프로그램이 비정상 종료될 만큼 파일이 손상되었습니다</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>읽기 프로그램이 실패했습니다</translation>
    </message>
    <message>
        <source>its reader cannot be started (%1)</source>
        <translation>읽기 프로그램을 시작할 수 없습니다(%1)</translation>
    </message>
    <message>
        <source>its reader %1 cannot be started (%2)</source>
        <translation>읽기 프로그램 %1을(를) 시작할 수 없습니다(%2)</translation>
    </message>
    <message>
        <source>reading it made no progress for %1 seconds</source>
        <translation>%1초 동안 읽기가 진행되지 않았습니다</translation>
    </message>
    <message>
        <source>the temporary directory cannot be written to</source>
        <translation>임시 디렉터리에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Cannot read %1: this is a folder.</source>
        <translation>%1을(를) 읽을 수 없습니다: 폴더입니다.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>부품이 백만 개를 넘습니다</translation>
    </message>
    <message>
        <source>the file is damaged: it has triangles without their points, or points beyond all measure</source>
        <translation>파일이 손상되었습니다: 점이 없는 삼각형 또는 범위를 크게 벗어난 점이 있습니다</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>지오메트리가 없습니다</translation>
    </message>
    <message>
        <source>the reader failed (%1)</source>
        <translation>읽기에 실패했습니다(%1)</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>메모리가 부족합니다</translation>
    </message>
    <message>
        <source>in the file</source>
        <translation>파일 내부</translation>
    </message>
    <message>
        <source>The texture %1 was not found.</source>
        <translation>텍스처를 찾을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The texture %1 is too large, with %2 by %3 pixels.</source>
        <translation>텍스처가 너무 큽니다(%2 × %3픽셀): %1.</translation>
    </message>
    <message>
        <source>The texture %1 cannot be read: %2.</source>
        <translation>텍스처를 읽을 수 없습니다: %1: %2.</translation>
    </message>
    <message>
        <source>A part without a name</source>
        <translation>이름 없는 부품</translation>
    </message>
    <message>
        <source>no invisible surfaces are imported</source>
        <translation>보이지 않는 곡면은 가져오지 않음</translation>
    </message>
    <message>
        <source>no surfaces are imported</source>
        <translation>곡면은 가져오지 않음</translation>
    </message>
    <message>
        <source>no invisible meshes are imported</source>
        <translation>보이지 않는 메시는 가져오지 않음</translation>
    </message>
    <message>
        <source>no meshes are imported</source>
        <translation>메시는 가져오지 않음</translation>
    </message>
    <message>
        <source>no invisible curves are imported</source>
        <translation>보이지 않는 곡선은 가져오지 않음</translation>
    </message>
    <message>
        <source>no curves are imported</source>
        <translation>곡선은 가져오지 않음</translation>
    </message>
    <message>
        <source>no invisible instances are imported</source>
        <translation>보이지 않는 인스턴스는 가져오지 않음</translation>
    </message>
    <message>
        <source>Parts with faulty surfaces: %1.</source>
        <translation>잘못된 곡면이 있는 부품: %1.</translation>
    </message>
    <message>
        <source>Gaps of up to %1 mm were to be closed, which would distort these; smaller ones are closed: %2.</source>
        <translation>%1 mm까지 틈을 메우면 모양이 왜곡되어 더 작은 틈만 메운 부품: %2.</translation>
    </message>
    <message>
        <source>Parts whose faces are not joined, as that would distort them: %1.</source>
        <translation>모양이 왜곡되지 않도록 면을 잇지 않은 부품: %1.</translation>
    </message>
    <message>
        <source>Faces that cannot be drawn: %1.</source>
        <translation>그릴 수 없는 면: %1.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 %1개</translation>
    </message>
    <message>
        <source>%1 (%2 mm)</source>
        <translation>%1 (%2 mm)</translation>
    </message>
    <message>
        <source>the import options leave nothing of it (%1)</source>
        <translation>가져오기 옵션에 따라 모두 제외되었습니다(%1)</translation>
    </message>
    <message>
        <source>Parts that the import options leave out: %1.</source>
        <translation>가져오기 옵션에 따라 제외한 부품: %1.</translation>
    </message>
</context>
<context>
    <name>olImportDialog</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>외 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Center to Origin</source>
        <translation>원점에 중심 맞추기</translation>
    </message>
    <message>
        <source>Place Objects on the Ground</source>
        <translation>개체를 지면에 놓기</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Edit &gt; Preferences &gt; FileIO decides over these, format by format.</source>
        <translation>이 옵션은 &quot;편집 &gt; 환경 설정 &gt; 파일 입출력&quot;에서 형식별로 설정합니다.</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>가져오기 진행률</translation>
    </message>
    <message>
        <source>Outcome of the import</source>
        <translation>가져오기 결과</translation>
    </message>
    <message>
        <source>&amp;Replace the scene</source>
        <translation>장면 바꾸기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Add to the scene</source>
        <translation>장면에 추가(&amp;A)</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>밀리미터</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>센티미터</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>미터</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>인치</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>피트</translation>
    </message>
    <message>
        <source>z is up</source>
        <translation>z가 위</translation>
    </message>
    <message>
        <source>y is up</source>
        <translation>y가 위</translation>
    </message>
    <message>
        <source>The file does not say it.</source>
        <translation>파일에 지정되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Unit of length:</source>
        <translation>길이 단위(&amp;U):</translation>
    </message>
    <message>
        <source>U&amp;p axis:</source>
        <translation>위쪽 축(&amp;P):</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>가져오지 못했습니다.</translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>가져오기를 마쳤습니다. 참고할 내용이 있습니다.</translation>
    </message>
    <message>
        <source>The import is done.</source>
        <translation>가져오기를 마쳤습니다.</translation>
    </message>
    <message>
        <source>Import Failed</source>
        <translation>가져오기 실패</translation>
    </message>
</context>
<context>
    <name>olImportFineness</name>
    <message>
        <source>&amp;Keep These for Later Imports</source>
        <translation>이후 가져오기에도 사용(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Chord Deviation</source>
        <translation>현 편차(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation>법선 공차(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>스티치(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;titching Tolerance</source>
        <translation>스티치 공차(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge Geometries</source>
        <translation>지오메트리 병합(&amp;M)</translation>
    </message>
    <message>
        <source>Remove &amp;Empty Groups</source>
        <translation>빈 그룹 제거(&amp;E)</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>곡면 법선 통일(&amp;Y)</translation>
    </message>
    <message>
        <source>Without this they hold for this import alone.</source>
        <translation>선택하지 않으면 이번 가져오기에만 적용됩니다.</translation>
    </message>
    <message>
        <source>Import none</source>
        <translation>가져오지 않음</translation>
    </message>
    <message>
        <source>Import visible</source>
        <translation>보이는 것만 가져오기</translation>
    </message>
    <message>
        <source>Import all</source>
        <translation>모두 가져오기</translation>
    </message>
    <message>
        <source>Sur&amp;faces</source>
        <translation>곡면(&amp;F)</translation>
    </message>
    <message>
        <source>Curves and Polygon &amp;Lines</source>
        <translation>곡선 및 폴리라인(&amp;L)</translation>
    </message>
    <message>
        <source>Mes&amp;hes</source>
        <translation>메시(&amp;H)</translation>
    </message>
</context>
<context>
    <name>olImportSummary</name>
    <message>
        <source>%1: none</source>
        <translation>%1: 없음</translation>
    </message>
    <message>
        <source>%1: all</source>
        <translation>%1: 모두</translation>
    </message>
    <message>
        <source>%1: visible</source>
        <translation>%1: 보이는 것만</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>곡면</translation>
    </message>
    <message>
        <source>curves</source>
        <translation>곡선</translation>
    </message>
    <message>
        <source>meshes</source>
        <translation>메시</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Tidied up</source>
        <translation>정리</translation>
    </message>
    <message>
        <source>meshes merged</source>
        <translation>메시 병합</translation>
    </message>
    <message>
        <source>empty groups removed</source>
        <translation>빈 그룹 제거</translation>
    </message>
    <message>
        <source>normals unified</source>
        <translation>법선 통일</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>검사</translation>
    </message>
    <message>
        <source>geometry verified</source>
        <translation>지오메트리 검증</translation>
    </message>
    <message>
        <source>faults repaired</source>
        <translation>오류 수정</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>텍스처</translation>
    </message>
    <message>
        <source>beside the model</source>
        <translation>모델과 같은 위치</translation>
    </message>
    <message>
        <source>beside the model, and in %1 directories</source>
        <translation>모델과 같은 위치 및 디렉터리 %1개</translation>
    </message>
</context>
<context>
    <name>olInnerParts</name>
    <message>
        <source>%1, %2</source>
        <comment>control, part of it</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>olJournalPanel</name>
    <message>
        <source>Host calls</source>
        <translation>호스트 호출</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>지우기(&amp;L)</translation>
    </message>
</context>
<context>
    <name>olJoystickLink</name>
    <message>
        <source>There is no joystick %1: %2: %3.</source>
        <translation>조이스틱 %1이(가) 없습니다: %2: %3.</translation>
    </message>
    <message>
        <source>Joystick %1 is in use.</source>
        <translation>조이스틱 %1을(를) 사용 중입니다.</translation>
    </message>
    <message>
        <source>Joystick %1 has gone.</source>
        <translation>조이스틱 %1의 연결이 끊어졌습니다.</translation>
    </message>
</context>
<context>
    <name>olJsonObject</name>
    <message>
        <source>here or just before, this is no JSON</source>
        <translation>이 위치 또는 바로 앞부분이 JSON이 아닙니다</translation>
    </message>
    <message>
        <source>an object is expected, as {&quot;key&quot;: {&quot;value&quot;: 1}}</source>
        <translation>{&quot;key&quot;: {&quot;value&quot;: 1}}과 같은 객체가 필요합니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here a second time</source>
        <translation>&quot;%1&quot;이(가) 여기에 두 번째로 나옵니다</translation>
    </message>
</context>
<context>
    <name>olLibraryCheck</name>
    <message>
        <source>it is no library</source>
        <translation>라이브러리가 아닙니다</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>끝부분이 없습니다</translation>
    </message>
</context>
<context>
    <name>olListed</name>
    <message>
        <source>%1, %2</source>
        <comment>one name of a list, and the next</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>one sentence, and the next</comment>
        <translation>%1 %2</translation>
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
        <translation>&quot;편집 &gt; 환경 설정&quot;에서 여기에 보이는 것을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>The 3D view needs an X display, or XWayland, with OpenGL. The preferences work without it.</source>
        <translation>3D 뷰에는 OpenGL을 지원하는 X 디스플레이 또는 XWayland가 필요합니다. 환경 설정은 이것이 없어도 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1프레임/초</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>장면</translation>
    </message>
    <message>
        <source>Host State</source>
        <translation>호스트 상태</translation>
    </message>
    <message>
        <source>Host Calls</source>
        <translation>호스트 호출</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>모두 표시(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Zoom To</source>
        <translation>선택 항목으로 줌(&amp;Z)</translation>
    </message>
    <message>
        <source>Brings what is selected near</source>
        <translation>선택한 항목을 가까이 보여 줍니다</translation>
    </message>
    <message>
        <source>Stereo for &amp;Red and Cyan Glasses</source>
        <translation>적청 안경용 스테레오(&amp;R)</translation>
    </message>
    <message>
        <source>Trace Ra&amp;ys</source>
        <translation>레이 트레이싱(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation>모서리(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>새 장면(&amp;N)</translation>
    </message>
    <message>
        <source>Open the &amp;Sample</source>
        <translation>샘플 열기(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>환경 설정(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About ORLO</source>
        <translation>ORLO 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>모델 정보</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>샘플</translation>
    </message>
    <message>
        <source>%1 - ORLO</source>
        <translation>%1 - ORLO</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 외 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Preferences as a Pa&amp;nel</source>
        <translation>환경 설정을 패널로 표시(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Support Information</source>
        <translation>지원 정보 복사(&amp;S)</translation>
    </message>
    <message>
        <source>Versions, changed settings and the end of the log are on the clipboard.</source>
        <translation>버전, 변경된 설정 및 로그의 끝부분을 클립보드에 복사했습니다.</translation>
    </message>
</context>
<context>
    <name>olMessageLine</name>
    <message>
        <source>Close the message</source>
        <translation>메시지 닫기</translation>
    </message>
</context>
<context>
    <name>olModelExtent</name>
    <message>
        <source>about %1 % of the model</source>
        <translation>모델의 약 %1%</translation>
    </message>
    <message>
        <source>%1: coarse, round parts show corners</source>
        <translation>%1: 거칠어 둥근 부품이 각져 보입니다</translation>
    </message>
    <message>
        <source>%1: very fine, the import takes long</source>
        <translation>%1: 매우 세밀하여 가져오는 데 오래 걸립니다</translation>
    </message>
</context>
<context>
    <name>olModelFiles</name>
    <message>
        <source>&amp;Import...</source>
        <translation>가져오기(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1을(를) 읽었습니다.</translation>
    </message>
    <message>
        <source>ORLO</source>
        <translation>ORLO</translation>
    </message>
    <message>
        <source>The export failed.</source>
        <translation>내보내지 못했습니다.</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>%1을(를) 저장했습니다.</translation>
    </message>
    <message>
        <source>%1 was written, with remarks.</source>
        <translation>%1을(를) 저장했습니다. 참고할 내용이 있습니다.</translation>
    </message>
    <message>
        <source>The import failed.</source>
        <translation>가져오지 못했습니다.</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no such file any more.</source>
        <translation>%1을(를) 읽을 수 없습니다: 파일이 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>The settings could not be kept.</source>
        <translation>설정을 저장할 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were read.</source>
        <translation>
            <numerusform>파일 %n개를 읽었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The import is done, with remarks.</source>
        <translation>가져오기를 마쳤습니다. 참고할 내용이 있습니다.</translation>
    </message>
</context>
<context>
    <name>olModelFormat</name>
    <message>
        <source>files without a suffix</source>
        <translation>확장자가 없는 파일</translation>
    </message>
    <message>
        <source>.%1 files</source>
        <translation>.%1 파일</translation>
    </message>
    <message>
        <source>Cannot read %1: there is no reader for %2. These can be read: %3.</source>
        <translation>%1을(를) 읽을 수 없습니다: %2을 읽는 기능이 없습니다. 읽을 수 있는 형식: %3.</translation>
    </message>
    <message>
        <source>Cannot write %1: there is no writer for %2. These can be written: %3.</source>
        <translation>%1에 쓸 수 없습니다: %2을 쓰는 기능이 없습니다. 쓸 수 있는 형식: %3.</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>모델 (%1)</translation>
    </message>
</context>
<context>
    <name>olModuleTree</name>
    <message>
        <source>Modules</source>
        <translation>모듈</translation>
    </message>
    <message>
        <source>Has changes that are not applied yet</source>
        <translation>아직 적용되지 않은 변경 사항이 있습니다</translation>
    </message>
    <message>
        <source>Has settings that differ from their defaults</source>
        <translation>기본값과 다른 설정이 있습니다</translation>
    </message>
</context>
<context>
    <name>olNumberText</name>
    <message>
        <source>a number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>a number from %1</source>
        <translation>%1 이상의 숫자</translation>
    </message>
    <message>
        <source>a number up to %1</source>
        <translation>%1 이하의 숫자</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1에서 %2 사이의 숫자</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1에서 %2 사이의 정수</translation>
    </message>
</context>
<context>
    <name>olOSGWidget</name>
    <message>
        <source>The clipping planes %1 and %2 are refused: expected two numbers above 0, the far one greater than the near one.</source>
        <translation>클리핑 평면 %1 및 %2은(는) 사용할 수 없습니다. 0보다 큰 두 숫자가 필요하며 원거리가 근거리보다 커야 합니다.</translation>
    </message>
</context>
<context>
    <name>olOutsideLine</name>
    <message>
        <source>%1 set %2 to %3.</source>
        <comment>program, setting and value</comment>
        <translation>%1에서 %2을(를) %3(으)로 설정했습니다.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>다른 프로그램</translation>
    </message>
    <message>
        <source>%1 more settings were changed.</source>
        <translation>설정 %1개가 더 변경되었습니다.</translation>
    </message>
    <message>
        <source>Your change to %1 is pending.</source>
        <translation>%1(으)로 변경한 내용이 보류 중입니다.</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>%1 사용(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keep %1</source>
        <translation>%1 유지(&amp;K)</translation>
    </message>
</context>
<context>
    <name>olPageFrame</name>
    <message>
        <source>Not chosen</source>
        <translation>선택 안 함</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>즉시 적용</translation>
    </message>
</context>
<context>
    <name>olPageIndex</name>
    <message>
        <source>%1 controls answer to &quot;%2&quot;: %3</source>
        <translation>&quot;%2&quot;에 해당하는 컨트롤이 %1개 있습니다: %3</translation>
    </message>
    <message>
        <source>there is no control &quot;%1&quot;; there is: %2</source>
        <translation>컨트롤 &quot;%1&quot;이(가) 없습니다. 사용 가능: %2</translation>
    </message>
</context>
<context>
    <name>olPluginLoader</name>
    <message>
        <source>Cannot load the preferences plug-in: there is neither %1 nor %2.</source>
        <translation>환경 설정 플러그인을 불러올 수 없습니다: %1도 %2도 없습니다.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it has no entry function %1</source>
        <translation>진입 함수 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>a module could not be built: %1</source>
        <translation>모듈을 만들 수 없습니다: %1</translation>
    </message>
    <message>
        <source>a module could not be built, and does not say why</source>
        <translation>모듈을 만들 수 없으며 이유를 알 수 없습니다</translation>
    </message>
    <message>
        <source>Cannot load the preferences plug-in %1: %2.</source>
        <translation>환경 설정 플러그인 %1을(를) 불러올 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>olPreferencesDialog</name>
    <message>
        <source>No Changes</source>
        <translation>변경 없음</translation>
    </message>
    <message>
        <source>1 Chan&amp;ge...</source>
        <translation>변경 1개(&amp;G)...</translation>
    </message>
    <message>
        <source>%1 Chan&amp;ges...</source>
        <translation>변경 %1개(&amp;G)...</translation>
    </message>
    <message>
        <source>Changed only</source>
        <translation>변경된 항목만</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Restore &amp;Page</source>
        <translation>페이지 복원(&amp;P)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>환경 설정</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search all settings</source>
        <translation>모든 설정 검색</translation>
    </message>
    <message>
        <source>Finds settings by label, group, tooltip, choice and key (Ctrl+F).</source>
        <translation>레이블, 그룹, 도구 설명, 선택 항목 및 키로 설정을 찾습니다(Ctrl+F).</translation>
    </message>
    <message>
        <source>Lists the settings that differ from their defaults.</source>
        <translation>기본값과 다른 설정을 나열합니다.</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Restore All Defaults</source>
        <translation>모든 기본값 복원(&amp;R)</translation>
    </message>
    <message>
        <source>Shows the defaults of this page. Nothing changes before OK or Apply.</source>
        <translation>이 페이지의 기본값을 표시합니다. &quot;확인&quot; 또는 &quot;적용&quot;을 누르기 전에는 아무것도 변경되지 않습니다.</translation>
    </message>
    <message>
        <source>Lists what OK and Apply will change.</source>
        <translation>&quot;확인&quot; 및 &quot;적용&quot;으로 변경될 내용을 나열합니다.</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>확인(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>취소(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>계속 편집(&amp;S)</translation>
    </message>
    <message>
        <source>All settings have their defaults.</source>
        <translation>모든 설정이 기본값입니다.</translation>
    </message>
    <message>
        <source>All pages show their defaults. OK or Apply makes them count, Cancel takes them back.</source>
        <translation>모든 페이지에 기본값이 표시됩니다. &quot;확인&quot; 또는 &quot;적용&quot;을 누르면 적용되고 &quot;취소&quot;를 누르면 되돌립니다.</translation>
    </message>
    <message>
        <source>%1 Locked</source>
        <translation>잠김 %1개</translation>
    </message>
    <message>
        <source>Every setting has its default.</source>
        <translation>모든 설정이 기본값입니다.</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>&quot;%1&quot;와(과) 일치하는 항목이 없습니다.</translation>
    </message>
    <message>
        <source>1 Setting</source>
        <translation>설정 1개</translation>
    </message>
    <message>
        <source>%1 Settings</source>
        <translation>설정 %1개</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>변경 사항</translation>
    </message>
    <message>
        <source>The documents about the settings are not installed.</source>
        <translation>설정에 대한 문서가 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>%1 takes effect at the next import.</source>
        <translation>%1은(는) 다음 가져오기에 적용됩니다.</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next import.</source>
        <translation>설정 %1개가 다음 가져오기에 적용됩니다.</translation>
    </message>
    <message>
        <source>%1 takes effect at the next start.</source>
        <translation>%1은(는) 다음에 시작할 때 적용됩니다.</translation>
    </message>
    <message>
        <source>%1 settings take effect at the next start.</source>
        <translation>설정 %1개가 다음에 시작할 때 적용됩니다.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>지금 다시 시작</translation>
    </message>
    <message>
        <source>Shows changes of the view as they are made. Nothing is stored before OK or Apply, and Cancel shows the view as it was.</source>
        <translation>뷰에 관한 변경을 즉시 보여 줍니다. &quot;확인&quot; 또는 &quot;적용&quot;을 누르기 전에는 아무것도 저장되지 않으며, &quot;취소&quot;를 누르면 뷰가 원래대로 돌아갑니다.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>olPreferencesFile</name>
    <message>
        <source>It is no file of preferences: it names no format.</source>
        <translation>환경 설정 파일이 아닙니다: 형식이 지정되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>It is no file of preferences: its format is not known.</source>
        <translation>환경 설정 파일이 아닙니다: 알 수 없는 형식입니다.</translation>
    </message>
    <message>
        <source>It was written by a newer version.</source>
        <translation>더 새로운 버전에서 저장한 파일입니다.</translation>
    </message>
    <message>
        <source>has no type or no value</source>
        <translation>유형 또는 값이 없습니다</translation>
    </message>
    <message>
        <source>is of the unknown type &quot;%1&quot;</source>
        <translation>유형 &quot;%1&quot;을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>is not %1, as its type %2 asks for</source>
        <translation>유형 %2에 필요한 값이 아닙니다. 필요한 값: %1</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>줄 %1: %2.</translation>
    </message>
    <message>
        <source>It lists no settings.</source>
        <translation>설정이 하나도 없습니다.</translation>
    </message>
    <message>
        <source>Cannot write the preferences to %1: %2.</source>
        <translation>환경 설정을 %1에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Cannot read the preferences from %1: %2.</source>
        <translation>%1에서 환경 설정을 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Cannot import %1. %2</source>
        <translation>%1을(를) 가져올 수 없습니다. %2</translation>
    </message>
</context>
<context>
    <name>olPreferencesSession</name>
    <message>
        <source>The site&apos;s preferences %1 were changed. That counts from the next start of the program.</source>
        <translation>사이트 환경 설정 %1이(가) 변경되었습니다. 프로그램을 다음에 시작할 때부터 적용됩니다.</translation>
    </message>
    <message>
        <source>is locked: %1</source>
        <translation>잠겨 있습니다: %1</translation>
    </message>
    <message>
        <source>is not known</source>
        <translation>알 수 없는 설정입니다</translation>
    </message>
    <message>
        <source>All settings of this run were then saved into it.</source>
        <translation>그런 다음 이번 실행의 모든 설정을 이 파일에 저장했습니다.</translation>
    </message>
    <message>
        <source>The module %1 has failed and does not say why.</source>
        <translation>모듈 %1에서 오류가 발생했으며 이유를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The module %1 has failed: %2.</source>
        <translation>모듈 %1에서 오류가 발생했습니다: %2.</translation>
    </message>
</context>
<context>
    <name>olPreferencesStore</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>다른 프로그램이 사용 중입니다</translation>
    </message>
    <message>
        <source>it is no preferences file</source>
        <translation>환경 설정 파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is gone</source>
        <translation>파일이 없어졌습니다</translation>
    </message>
    <message>
        <source>its folder cannot be created</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>its header is not what it was</source>
        <translation>헤더가 원래와 다릅니다</translation>
    </message>
    <message>
        <source>Cannot read the preferences %1: %2.</source>
        <translation>환경 설정 %1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The copy of %1 was loaded; what was changed after that is not in it.</source>
        <translation>%1의 백업을 불러왔습니다. 그 이후에 변경한 내용은 들어 있지 않습니다.</translation>
    </message>
    <message>
        <source>There is no copy of it yet, so all settings are at their defaults.</source>
        <translation>아직 백업이 없으므로 모든 설정이 기본값입니다.</translation>
    </message>
    <message>
        <source>Its copy cannot be read either (%1), so all settings are at their defaults.</source>
        <translation>백업도 읽을 수 없으므로(%1) 모든 설정이 기본값입니다.</translation>
    </message>
    <message>
        <source>Cannot save the preferences to %1: %2. What it held before is unchanged.</source>
        <translation>환경 설정을 %1에 저장할 수 없습니다: %2. 이전에 들어 있던 내용은 그대로입니다.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Use that version. If there is none, the file is damaged: move it away to start with defaults, or rename its copy %1, where there is one, to it.</source>
        <translation>해당 버전을 사용하십시오. 그런 버전이 없다면 파일이 손상된 것입니다. 기본값으로 시작하려면 파일을 다른 곳으로 옮기고, 백업 %1이(가) 있으면 이름을 이 파일의 이름으로 바꾸어도 됩니다.</translation>
    </message>
    <message>
        <source>The preferences file %1 is damaged: %2.</source>
        <translation>환경 설정 파일 %1이(가) 손상되었습니다: %2.</translation>
    </message>
    <message>
        <source>It is now kept as %1.</source>
        <translation>이 파일은 이제 %1(으)로 보관됩니다.</translation>
    </message>
    <message>
        <source>It could not be set aside: %1.</source>
        <translation>이 파일을 따로 보관할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>its folder is read-only or full, or another program keeps it busy</source>
        <translation>폴더가 읽기 전용이거나 가득 찼거나 다른 프로그램이 사용 중입니다</translation>
    </message>
</context>
<context>
    <name>olPrefsCommands</name>
    <message>
        <source>all modules with their settings, values and defaults</source>
        <translation>모든 모듈과 그 설정, 값, 기본값</translation>
    </message>
    <message>
        <source>Lists the modules with their settings: key, type, value, and the default where the value is another.
  --json      one array of modules, for programs
  --markdown  the catalogue of the documentation: keys, types, defaults, ranges and choices, when a new
              value counts, and where they are on the pages, with the tooltips there
</source>
        <translation>모듈과 그 설정을 나열합니다. 키, 유형, 값, 그리고 값이 기본값과 다르면 기본값도 표시합니다.
  --json      모듈의 배열 하나, 프로그램용
  --markdown  문서의 목록: 키, 유형, 기본값, 범위와 선택 항목, 새 값이 언제
              적용되는지, 페이지에서의 위치와 그곳의 도구 설명
</translation>
    </message>
    <message>
        <source>prints the value of a setting as JSON</source>
        <translation>설정의 값을 JSON으로 출력</translation>
    </message>
    <message>
        <source>Prints the value that is in force: the stored one, else the default.
</source>
        <translation>적용 중인 값을 출력합니다. 저장된 값이며, 없으면 기본값입니다.
</translation>
    </message>
    <message>
        <source>stores a value, JSON or plain text</source>
        <translation>값을 저장, JSON 또는 일반 텍스트</translation>
    </message>
    <message>
        <source>Stores a value. VALUE is JSON of the setting&apos;s type; a text needs no quotes. A value that the control of
the setting could not hold is refused, and so is any value of a locked setting. The viewer may be running.
</source>
        <translation>값을 저장합니다. VALUE는 설정 유형의 JSON이며, 텍스트에는 따옴표가 필요 없습니다. 설정의 컨트롤이 담을 수 없는
값과 잠긴 설정의 값은 모두 거부됩니다. 뷰어가 실행 중이어도 됩니다.
</translation>
    </message>
    <message>
        <source>takes a setting back to its default</source>
        <translation>설정을 기본값으로 재설정</translation>
    </message>
    <message>
        <source>Takes a setting back to its default, which is the site&apos;s where the site gives one.
  --all       all settings
</source>
        <translation>설정을 기본값으로 재설정합니다. 사이트가 기본값을 정한 경우에는 그 값입니다.
  --all       모든 설정
</translation>
    </message>
    <message>
        <source>what differs from the defaults</source>
        <translation>기본값과 다른 설정</translation>
    </message>
    <message>
        <source>Prints a line for each setting that differs from its default: KEY  DEFAULT -&gt; VALUE.
</source>
        <translation>기본값과 다른 설정마다 한 줄을 출력합니다. KEY  DEFAULT -&gt; VALUE
</translation>
    </message>
    <message>
        <source>writes all settings to a file of preferences</source>
        <translation>모든 설정을 환경 설정 파일에 쓰기</translation>
    </message>
    <message>
        <source>Writes the values in force of all settings, with their types, as JSON to a file, or to the standard output
with - or without a name. An existing file is replaced.
</source>
        <translation>모든 설정의 적용 중인 값을 유형과 함께 JSON으로 파일에 씁니다. - 이거나 이름이 없으면
표준 출력에 씁니다. 기존 파일은 바뀝니다.
</translation>
    </message>
    <message>
        <source>stores the settings of such a file</source>
        <translation>그런 파일의 설정을 저장</translation>
    </message>
    <message>
        <source>Stores the settings of a file that export wrote, read from the standard input with -. Unknown keys, values
of another type or out of range, and locked settings are named on the standard error stream and skipped.
  --dry-run   prints what would change, KEY  VALUE -&gt; NEW VALUE, and stores nothing
</source>
        <translation>export가 쓴 파일의 설정을 저장합니다. - 이면 표준 입력에서 읽습니다. 알 수 없는 키, 유형이 다르거나 범위를
벗어난 값, 잠긴 설정은 표준 오류 스트림에 알리고 건너뜁니다.
  --dry-run   바뀔 내용을 KEY  VALUE -&gt; NEW VALUE 로 출력하고 아무것도 저장하지 않음
</translation>
    </message>
    <message>
        <source>keeps settings under a name, and takes them from there</source>
        <translation>설정을 이름으로 보관하고 그곳에서 적용</translation>
    </message>
    <message>
        <source>A profile is a set of settings with a name, in a file of preferences. The site may have some too.
  list                             the names
  save NAME [--changed | --module M]
                                   keeps all settings, those that differ from their defaults, or a module&apos;s
  apply NAME [--dry-run]           stores its settings as import does; or only prints what would change
  delete NAME
</source>
        <translation>프로필은 이름이 있는 설정의 모음이며 환경 설정 파일에 들어 있습니다. 사이트의 프로필도 있을 수 있습니다.
  list                             이름 목록
  save NAME [--changed | --module M]
                                   모든 설정, 기본값과 다른 설정 또는 한 모듈의 설정을 보관
  apply NAME [--dry-run]           import처럼 설정을 저장하거나, 바뀔 내용만 출력
  delete NAME
</translation>
    </message>
    <message>
        <source>what was changed when, and by which program</source>
        <translation>언제 어느 프로그램이 무엇을 변경했는지</translation>
    </message>
    <message>
        <source>Lists the last saves, the latest first: how far back it is, when, by which program, and what it changed. Of
confidential settings nothing is told.
  KEY         only the changes of that setting
  --json      one array, for programs
</source>
        <translation>최근의 저장을 최신순으로 나열합니다. 몇 번째 전인지, 언제인지, 어느 프로그램인지, 무엇을 변경했는지 표시합니다.
기밀 설정은 표시하지 않습니다.
  KEY         그 설정의 변경만
  --json      배열 하나, 프로그램용
</translation>
    </message>
    <message>
        <source>takes the last N saves back</source>
        <translation>최근 N번의 저장을 되돌리기</translation>
    </message>
    <message>
        <source>looks for damage in the store and faults in the site&apos;s files</source>
        <translation>저장 파일의 손상과 사이트 파일의 오류를 검사</translation>
    </message>
    <message>
        <source>Prints a line for each thing that is wrong with the store, its copy or the site&apos;s files, also
for keys that no edition has, and changes nothing. The exit status is 0 when nothing is wrong, else 1.
  --site FILE  judges such a file of the site&apos;s before it is installed, and nothing else
</source>
        <translation>저장 파일, 그 백업 또는 사이트 파일의 문제마다 한 줄을 출력합니다.
어느 에디션에도 없는 키도 포함하며, 아무것도 변경하지 않습니다. 문제가 없으면 종료 상태는 0, 있으면 1입니다.
  --site FILE  설치하기 전에 그런 사이트 파일을 검사하고, 다른 것은 검사하지 않음
</translation>
    </message>
    <message>
        <source>prints a JSON Schema of the files that name settings</source>
        <translation>설정을 담는 파일의 JSON Schema를 출력</translation>
    </message>
    <message>
        <source>Prints a JSON Schema of the file that export writes and import reads, and of a site&apos;s
site.json, for editors to complete and check them by. Settings and ranges are those of the edition.
</source>
        <translation>export가 쓰고 import가 읽는 파일과 사이트의 site.json의 JSON Schema를 출력합니다.
편집기가 자동 완성과 검사에 쓸 수 있습니다. 설정과 범위는 에디션의 것입니다.
</translation>
    </message>
    <message>
        <source>runs a script from a file or the standard input</source>
        <translation>파일이나 표준 입력의 스크립트를 실행</translation>
    </message>
    <message>
        <source>Drives the modules operation by operation and prints every host call. A script begins
with empty preferences, or with those of --store, and never writes any.
</source>
        <translation>모듈을 동작 하나씩 구동하고 모든 호스트 호출을 출력합니다. 스크립트는 빈 환경 설정 또는
--store의 환경 설정으로 시작하며, 아무것도 쓰지 않습니다.
</translation>
    </message>
    <message>
        <source>Usage: %1
</source>
        <translation>사용법: %1
</translation>
    </message>
    <message>
        <source>Shows and changes ORLO&apos;s preferences, and drives them by script. It needs no display.

Commands; orlo-prefs COMMAND --help tells more of each
</source>
        <translation>ORLO의 환경 설정을 표시하고 변경하며 스크립트로 구동합니다. 디스플레이가 필요 없습니다.

명령. 자세한 내용은 orlo-prefs COMMAND --help
</translation>
    </message>
    <message>
        <source>The exit status is 0, or 2 with a message on the standard error stream; of check 1 when it
finds something, and of undo when it leaves something.
</source>
        <translation>종료 상태는 0이거나, 표준 오류 스트림의 메시지와 함께 2입니다. check는 무언가를 찾았을 때,
undo는 무언가를 남겼을 때 1입니다.
</translation>
    </message>
    <message>
        <source>Takes the last save, or the last N, back and prints what that changes, KEY  VALUE -&gt; NEW VALUE. It is a
save itself and can be taken back. Settings that were changed since otherwise, or are locked, are named on the
standard error stream and left; the exit status is then 1.
  --dry-run   tells the same, with the same exit status, but stores nothing
</source>
        <translation>최근의 저장 또는 최근 N번의 저장을 되돌리고, 그로 인해 바뀌는 내용을 KEY  VALUE -&gt; NEW VALUE 로 출력합니다. 이것도
하나의 저장이므로 되돌릴 수 있습니다. 그 뒤에 다시 변경되었거나 잠긴 설정은 표준 오류 스트림에 알리고
그대로 둡니다. 이때 종료 상태는 1입니다.
  --dry-run   같은 내용을 같은 종료 상태로 알리기만 하고 아무것도 저장하지 않음
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
        <translation>옵션, 명령 앞에 씁니다
  --edition NAME     %1 (기본값 professional)
  --app-name NAME    응용 프로그램의 이름 (기본값 orlo)
  --store FILE       환경 설정을 보관하는 파일 (기본값은 사용자의 저장 파일. 스크립트는
                     이것이 없으면 빈 상태로 시작하고 쓰지 않음)
  --plugin FILE      환경 설정 플러그인 (기본값은 프로그램 옆의 것, 그다음
                     설치된 플러그인 폴더의 것)
  --language NAME    메시지의 언어: en, zh, ja, ko 또는 저장된 언어를 뜻하는 user
                     (기본값 en)
  --yes              값을 받기 전에 페이지가 묻는 것에 동의함
  --help, --version
</translation>
    </message>
</context>
<context>
    <name>olProfiles</name>
    <message>
        <source>&quot;%1&quot; is no name for a profile: it must not be empty, have a slash in it or begin with a dot.</source>
        <translation>&quot;%1&quot;은(는) 프로필 이름으로 사용할 수 없습니다. 비어 있거나 슬래시를 포함하거나 점으로 시작하면 안 됩니다.</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;.</source>
        <translation>프로필 &quot;%1&quot;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>폴더 %1을(를) 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; is the site&apos;s and cannot be deleted.</source>
        <translation>프로필 &quot;%1&quot;은(는) 사이트의 프로필이므로 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Cannot delete the profile %1: %2.</source>
        <translation>프로필 %1을(를) 삭제할 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>olProfilesMenu</name>
    <message>
        <source>&amp;Profiles</source>
        <translation>프로필(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>%1 (site)</source>
        <translation>%1 (사이트)</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>다른 이름으로 저장(&amp;S)...</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>프로필 저장</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>이름(&amp;N):</translation>
    </message>
    <message>
        <source>The settings in force were saved as profile &quot;%1&quot;.</source>
        <translation>현재 적용된 설정을 프로필 &quot;%1&quot;(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Replace it?</source>
        <translation>프로필 &quot;%1&quot;이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>프로필 삭제</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>프로필 &quot;%1&quot;을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; was deleted.</source>
        <translation>프로필 &quot;%1&quot;을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>All Settings</source>
        <translation>모든 설정</translation>
    </message>
    <message>
        <source>Changed Settings</source>
        <translation>변경된 설정</translation>
    </message>
    <message>
        <source>&amp;Settings:</source>
        <translation>설정(&amp;S):</translation>
    </message>
</context>
<context>
    <name>olReason</name>
    <message>
        <source>this is no 3MF file</source>
        <translation>3MF 파일이 아닙니다</translation>
    </message>
    <message>
        <source>this is no COLLADA file</source>
        <translation>COLLADA 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is cut off or damaged</source>
        <translation>파일이 잘렸거나 손상되었습니다</translation>
    </message>
    <message>
        <source>the file is damaged or of another format</source>
        <translation>파일이 손상되었거나 다른 형식입니다</translation>
    </message>
    <message>
        <source>the file %1 that it refers to cannot be read</source>
        <translation>참조하는 파일 %1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>the file %1 that it refers to is cut off</source>
        <translation>참조하는 파일 %1이(가) 잘렸습니다</translation>
    </message>
    <message>
        <source>it requires the extension %1, which is not supported</source>
        <translation>지원되지 않는 확장 %1이(가) 필요합니다</translation>
    </message>
    <message>
        <source>the file is damaged: a node refers to one that is not there</source>
        <translation>파일이 손상되었습니다: 노드가 존재하지 않는 노드를 참조합니다</translation>
    </message>
    <message>
        <source>its groups are nested too deeply</source>
        <translation>그룹이 너무 깊이 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>the file is damaged: a part of it lies beyond its end</source>
        <translation>파일이 손상되었습니다: 일부가 파일 끝을 벗어나 있습니다</translation>
    </message>
    <message>
        <source>the file is damaged: it announces more than it holds</source>
        <translation>파일이 손상되었습니다: 실제로 들어 있는 것보다 많은 내용이 있다고 되어 있습니다</translation>
    </message>
    <message>
        <source>this is no glTF file</source>
        <translation>glTF 파일이 아닙니다</translation>
    </message>
    <message>
        <source>this is no IGES file</source>
        <translation>IGES 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is damaged in line %1</source>
        <translation>파일의 %1번째 줄이 손상되었습니다</translation>
    </message>
    <message>
        <source>its content cannot be taken over</source>
        <translation>내용을 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>a point lacks a coordinate</source>
        <translation>점에 좌표가 빠져 있습니다</translation>
    </message>
    <message>
        <source>a face has fewer than three corners</source>
        <translation>면의 꼭짓점이 세 개보다 적습니다</translation>
    </message>
    <message>
        <source>a face refers to a point that is not there</source>
        <translation>면이 존재하지 않는 점을 참조합니다</translation>
    </message>
    <message>
        <source>this is no OBJ file</source>
        <translation>OBJ 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: in line %1 %2</source>
        <translation>파일이 잘렸거나 손상되었습니다: 줄 %1: %2</translation>
    </message>
    <message>
        <source>the file is cut off or damaged: it ends within its points</source>
        <translation>파일이 잘렸거나 손상되었습니다: 점 데이터 도중에 끝납니다</translation>
    </message>
    <message>
        <source>The model ends with points that no face uses; the file may be cut off.</source>
        <translation>모델이 어떤 면에서도 쓰이지 않는 점으로 끝납니다. 파일이 잘렸을 수 있습니다.</translation>
    </message>
    <message>
        <source>The materials file %1 is not there; the model has no colors.</source>
        <translation>재질 파일 %1이(가) 없어 모델에 색상이 없습니다.</translation>
    </message>
    <message>
        <source>this is no OFF file</source>
        <translation>OFF 파일이 아닙니다</translation>
    </message>
    <message>
        <source>this is no PLY file</source>
        <translation>PLY 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is damaged: #%1 refers to #%2, which is not there</source>
        <translation>파일이 손상되었습니다: #%1이(가) 존재하지 않는 #%2을(를) 참조합니다</translation>
    </message>
    <message>
        <source>the file is damaged: its parentheses are nested too deeply</source>
        <translation>파일이 손상되었습니다: 괄호가 너무 깊이 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>this is no STEP file</source>
        <translation>STEP 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1 bytes behind its end were passed over.</source>
        <translation>파일 끝 뒤의 %1바이트를 건너뛰었습니다.</translation>
    </message>
    <message>
        <source>this is no STL file</source>
        <translation>STL 파일이 아닙니다</translation>
    </message>
    <message>
        <source>The solid %1 is empty.</source>
        <translation>솔리드 %1이(가) 비어 있습니다.</translation>
    </message>
    <message>
        <source>there is no geometry in it</source>
        <translation>지오메트리가 없습니다</translation>
    </message>
    <message>
        <source>this is no VRML file</source>
        <translation>VRML 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is damaged (%1)</source>
        <translation>파일이 손상되었습니다(%1)</translation>
    </message>
    <message>
        <source>the file is damaged: line %1 cannot be understood (%2)</source>
        <translation>파일이 손상되었습니다: %1번째 줄을 해석할 수 없습니다(%2)</translation>
    </message>
    <message>
        <source>a group in it holds itself</source>
        <translation>그룹이 자기 자신을 포함합니다</translation>
    </message>
    <message>
        <source>the file is damaged: a face refers to a point that is not there</source>
        <translation>파일이 손상되었습니다: 면이 존재하지 않는 점을 참조합니다</translation>
    </message>
    <message>
        <source>The file %1 that it refers to was not found.</source>
        <translation>참조하는 파일 %1을(를) 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>it refers to itself through %1</source>
        <translation>%1을(를) 통해 자기 자신을 참조합니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>the file is too large for this machine: %1 GB with %2 GB of memory</source>
        <translation>파일이 이 컴퓨터에 비해 너무 큽니다: 파일 %1 GB, 메모리 %2 GB</translation>
    </message>
    <message>
        <source>the file is too large: %1 GB, of which 2 can be read</source>
        <translation>파일이 너무 큽니다: %1 GB 중 2 GB까지 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 외 %2개</translation>
    </message>
    <message>
        <source>Bodies that cannot be understood and are left out: %1.</source>
        <translation>해석할 수 없어 제외한 바디: %1.</translation>
    </message>
    <message>
        <source>%1 parts are one in the file, as binary STL knows no parts.</source>
        <translation>바이너리 STL은 부품을 구분하지 않으므로 부품 %1개를 하나로 저장합니다.</translation>
    </message>
    <message>
        <source>No %1 has the field %2; it is passed over.</source>
        <translation>%1에는 필드 %2이(가) 없어 건너뜁니다.</translation>
    </message>
    <message>
        <source>%1 lacks what it is made of, or is made of what cannot be understood</source>
        <translation>%1을(를) 이루는 것이 빠져 있거나 해석할 수 없습니다</translation>
    </message>
    <message>
        <source>the file is damaged: its entry D%1 refers to another that is not there</source>
        <translation>파일이 손상되었습니다: 항목 D%1이(가) 존재하지 않는 항목을 참조합니다</translation>
    </message>
    <message>
        <source>Entries of the file that are not as they should be, and may be missing: %1.</source>
        <translation>파일에서 올바르지 않아 빠졌을 수 있는 항목: %1.</translation>
    </message>
    <message>
        <source>%1 without a name</source>
        <translation>이름 없는 항목 %1개</translation>
    </message>
    <message>
        <source>Extensions that are not supported, so that something may be missing: %1.</source>
        <translation>지원되지 않아 일부 내용이 빠졌을 수 있는 확장: %1.</translation>
    </message>
    <message>
        <source>it has more than a million parts</source>
        <translation>부품이 백만 개를 넘습니다</translation>
    </message>
    <message>
        <source>Faces that cannot be understood and are left out: %1.</source>
        <translation>해석할 수 없어 제외한 면: %1.</translation>
    </message>
    <message>
        <source>Free-form curves and surfaces that are left out: %1.</source>
        <translation>제외한 자유 곡선과 곡면: %1.</translation>
    </message>
    <message>
        <source>Words in the place of numbers, which count as 0: %1.</source>
        <translation>숫자 자리에 있어 0으로 처리한 단어: %1.</translation>
    </message>
    <message>
        <source>Files that it refers to and that are left out: %1.</source>
        <translation>참조하지만 제외한 파일: %1.</translation>
    </message>
    <message>
        <source>Shapes of lines or points that are left out: %1.</source>
        <translation>제외한 선 또는 점 형상: %1.</translation>
    </message>
    <message>
        <source>The texture %1 is a film, which is left out.</source>
        <translation>텍스처 %1은(는) 동영상이므로 제외합니다.</translation>
    </message>
    <message>
        <source>Meshes of lines or points that are left out: %1.</source>
        <translation>제외한 선 또는 점 메시: %1.</translation>
    </message>
    <message>
        <source>Textures of kinds that are not drawn here: %1.</source>
        <translation>여기에서 그리지 않는 종류의 텍스처: %1.</translation>
    </message>
    <message>
        <source>Invisible surfaces that the import options leave out: %1.</source>
        <translation>가져오기 옵션에 따라 제외한 숨겨진 곡면: %1.</translation>
    </message>
    <message>
        <source>Materials that the materials file lacks: %1.</source>
        <translation>재질 파일에 없는 재질: %1.</translation>
    </message>
</context>
<context>
    <name>olRecentModels</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>최근 파일 열기(&amp;R)</translation>
    </message>
    <message>
        <source>%1  %2 (%3)</source>
        <translation>%1  %2 (%3)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>지우기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>olRgbFields</name>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
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
        <translation>시스템에 Landlock이 없어 Landlock 없이 모델을 읽습니다.</translation>
    </message>
    <message>
        <source>The system takes no seccomp filter; models are read without it.</source>
        <translation>시스템이 seccomp 필터를 허용하지 않아 필터 없이 모델을 읽습니다.</translation>
    </message>
</context>
<context>
    <name>olSceneLoaders</name>
    <message>
        <source>OpenSG could not be started.</source>
        <translation>OpenSG를 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>OpenSG has no loader for %1; options for it are not kept.</source>
        <translation>OpenSG에 %1 로더가 없어 해당 옵션을 보관하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>olSceneTree</name>
    <message>
        <source>Level %1</source>
        <translation>수준 %1</translation>
    </message>
    <message>
        <source>Unnamed group</source>
        <translation>이름 없는 그룹</translation>
    </message>
    <message>
        <source>Unnamed part</source>
        <translation>이름 없는 부품</translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation>삼각형: %1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>색상: %1</translation>
    </message>
    <message>
        <source>Opacity: %1 %</source>
        <translation>불투명도: %1%</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>장면</translation>
    </message>
    <message>
        <source>Nothing is open.</source>
        <translation>열려 있는 모델이 없습니다.</translation>
    </message>
</context>
<context>
    <name>olSceneView</name>
    <message>
        <source>The 3D view needs an X display.</source>
        <translation>3D 뷰에는 X 디스플레이가 필요합니다.</translation>
    </message>
    <message>
        <source>The OpenGL context of this display cannot be used for the 3D view.</source>
        <translation>이 디스플레이의 OpenGL 컨텍스트는 3D 뷰에 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>olSettingDescription</name>
    <message>
        <source>one of %1</source>
        <translation>%1 중 하나</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>최대 %1자</translation>
    </message>
    <message>
        <source>three numbers from %1 to %2</source>
        <translation>%1에서 %2 사이의 숫자 3개</translation>
    </message>
    <message>
        <source>is of the type %1, not %2</source>
        <translation>유형이 %2이(가) 아니라 %1입니다</translation>
    </message>
    <message>
        <source>cannot be %1: expected %2</source>
        <translation>값 %1은(는) 사용할 수 없습니다. 필요한 값: %2</translation>
    </message>
</context>
<context>
    <name>olSettingMarks</name>
    <message>
        <source>Set by the site.</source>
        <translation>사이트에서 설정했습니다.</translation>
    </message>
    <message>
        <source>Set by you.</source>
        <translation>사용자가 설정했습니다.</translation>
    </message>
    <message>
        <source>Changed, not applied yet.</source>
        <translation>변경되었지만 아직 적용되지 않았습니다.</translation>
    </message>
    <message>
        <source>Locked by the site.</source>
        <translation>사이트에서 잠갔습니다.</translation>
    </message>
</context>
<context>
    <name>olSettingMenu</name>
    <message>
        <source>Set by the site, and locked</source>
        <translation>사이트에서 설정하고 잠금</translation>
    </message>
    <message>
        <source>Changed, not applied yet</source>
        <translation>변경됨, 아직 적용되지 않음</translation>
    </message>
    <message>
        <source>Set by you</source>
        <translation>사용자가 설정</translation>
    </message>
    <message>
        <source>Set by the site</source>
        <translation>사이트에서 설정</translation>
    </message>
    <message>
        <source>The default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>&amp;Take Back</source>
        <translation>되돌리기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Reset to Default: %1</source>
        <translation>기본값(%1)으로 재설정(&amp;R)</translation>
    </message>
    <message>
        <source>Copy &amp;Key &quot;%1&quot;</source>
        <translation>키 &quot;%1&quot; 복사(&amp;K)</translation>
    </message>
    <message>
        <source>Copy as &amp;JSON</source>
        <translation>JSON으로 복사(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Why Is This Locked?</source>
        <translation>잠긴 이유(&amp;W)</translation>
    </message>
</context>
<context>
    <name>olSettingTips</name>
    <message>
        <source>Range: %1 to %2</source>
        <translation>범위: %1 ~ %2</translation>
    </message>
    <message>
        <source>Range: from %1</source>
        <translation>범위: %1 이상</translation>
    </message>
    <message>
        <source>Range: up to %1</source>
        <translation>범위: %1 이하</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>단위: %1</translation>
    </message>
    <message>
        <source>Takes effect at the next import</source>
        <translation>다음 가져오기에 적용됩니다</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>다음에 시작할 때 적용됩니다</translation>
    </message>
    <message>
        <source>Takes effect at once</source>
        <translation>바로 적용됩니다</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>기본값: %1</translation>
    </message>
</context>
<context>
    <name>olSettingWords</name>
    <message>
        <source>default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>edited</source>
        <translation>편집됨</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>보류 중</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <source>the site&apos;s</source>
        <translation>사이트</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>module and setting</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>These %1 changes are not applied yet and would be lost:</source>
        <translation>아직 적용되지 않은 다음 변경 사항 %1개가 손실됩니다:</translation>
    </message>
    <message>
        <source>This change is not applied yet and would be lost:</source>
        <translation>아직 적용되지 않은 다음 변경 사항이 손실됩니다:</translation>
    </message>
    <message>
        <source>%1 is locked: %2 The lock stands in %3.</source>
        <translation>%1이(가) 잠겨 있습니다: %2 잠금이 지정된 파일: %3.</translation>
    </message>
    <message>
        <source>yours</source>
        <translation>사용자</translation>
    </message>
</context>
<context>
    <name>olSettingsCatalogue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ~ %2</translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>%1 이하</translation>
    </message>
    <message>
        <source>%1, %2 decimals</source>
        <translation>%1, 소수 %2자리</translation>
    </message>
    <message>
        <source>next import</source>
        <translation>다음 가져오기</translation>
    </message>
    <message>
        <source>next start</source>
        <translation>다음 시작</translation>
    </message>
    <message>
        <source>now</source>
        <translation>즉시</translation>
    </message>
    <message>
        <source>or any text</source>
        <translation>또는 임의의 텍스트</translation>
    </message>
    <message>
        <source>No settings.</source>
        <translation>설정이 없습니다.</translation>
    </message>
    <message>
        <source>key</source>
        <translation>키</translation>
    </message>
    <message>
        <source>type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>range or choices</source>
        <translation>범위 또는 선택 항목</translation>
    </message>
    <message>
        <source>effect</source>
        <translation>적용 시점</translation>
    </message>
    <message>
        <source>on the page</source>
        <translation>페이지의 위치</translation>
    </message>
    <message>
        <source>tooltip</source>
        <translation>도구 설명</translation>
    </message>
    <message>
        <source># Settings

All settings of all modules, in the order of registration and of writing, with the defaults of the Professional
edition. Made by `orlo-prefs list --markdown`.
</source>
        <translation># 설정

모든 모듈의 모든 설정을 등록과 쓰기의 순서대로 보입니다. 기본값은 Professional 에디션의 것입니다.
`orlo-prefs list --markdown`로 만들었습니다.
</translation>
    </message>
</context>
<context>
    <name>olSettingsLock</name>
    <message>
        <source>The settings file %1 is busy: %2 (process %3) holds its lock. What is to be kept there waits for it.</source>
        <translation>설정 파일 %1이(가) 사용 중입니다: %2(프로세스 %3)이(가) 파일을 잠갔습니다. 이 파일에 저장할 내용은 잠금이 풀릴 때까지 기다립니다.</translation>
    </message>
</context>
<context>
    <name>olSettingsTransfer</name>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>The preferences in force were written to %1, without the pending changes.</source>
        <translation>보류 중인 변경을 제외하고 현재 적용된 환경 설정을 %1에 저장했습니다.</translation>
    </message>
    <message>
        <source>Export Preferences</source>
        <translation>환경 설정 내보내기</translation>
    </message>
    <message>
        <source>These settings get new values. They stay pending until OK or Apply.</source>
        <translation>다음 설정의 값이 바뀝니다. &quot;확인&quot; 또는 &quot;적용&quot;을 누를 때까지 보류됩니다.</translation>
    </message>
    <message>
        <source>Import Preferences</source>
        <translation>환경 설정 가져오기</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>돌아가기</translation>
    </message>
    <message>
        <source>Apply Profile %1</source>
        <translation>프로필 %1 적용</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>돌아가기(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>가져오기(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>가져오기(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>기록(&amp;H)...</translation>
    </message>
    <message>
        <source>The preferences were written to %1.</source>
        <translation>환경 설정을 %1에 저장했습니다.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>변경될 내용이 없습니다.</translation>
    </message>
    <message>
        <source>Preferences (*.json);;All files (*)</source>
        <translation>환경 설정 (*.json);;모든 파일 (*)</translation>
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
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>only root may own and write the file and its folder</source>
        <translation>파일과 폴더는 root만 소유하고 쓸 수 있어야 합니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>줄 %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has neither a &quot;value&quot; nor a lock</source>
        <translation>&quot;%1&quot;에 &quot;value&quot;도 잠금도 없습니다</translation>
    </message>
    <message>
        <source>takes true or false for &quot;locked&quot;</source>
        <translation>항목 &quot;locked&quot;에는 true 또는 false가 필요합니다</translation>
    </message>
    <message>
        <source>takes a text for &quot;reason&quot;</source>
        <translation>항목 &quot;reason&quot;에는 텍스트가 필요합니다</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, where only &quot;value&quot;, &quot;locked&quot; and &quot;reason&quot; can stand</source>
        <translation>항목 &quot;%1&quot;이(가) 있으나 &quot;value&quot;, &quot;locked&quot;, &quot;reason&quot;만 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>This setting is fixed for your site.</source>
        <translation>이 설정은 사이트에서 고정했습니다.</translation>
    </message>
    <message>
        <source>%1, line %2: no module has a setting &quot;%3&quot;.</source>
        <translation>%1, 줄 %2: 설정 &quot;%3&quot;이(가) 있는 모듈이 없습니다.</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1 are ignored: %2.</source>
        <translation>사이트 환경 설정 %1을(를) 무시합니다: %2.</translation>
    </message>
    <message>
        <source>The site&apos;s preferences %1, line %2: %3.</source>
        <translation>사이트 환경 설정 %1, 줄 %2: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>&quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>olSpacemouseLink</name>
    <message>
        <source>Cannot look for a 3D mouse: %1</source>
        <translation>3D 마우스를 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>There is no 3D mouse: its daemon, spacenavd, is not running.</source>
        <translation>3D 마우스가 없습니다: 데몬 spacenavd가 실행 중이 아닙니다.</translation>
    </message>
    <message>
        <source>Connected to the daemon of the 3D mouse.</source>
        <translation>3D 마우스 데몬에 연결했습니다.</translation>
    </message>
    <message>
        <source>The daemon of the 3D mouse has gone.</source>
        <translation>3D 마우스 데몬과의 연결이 끊어졌습니다.</translation>
    </message>
</context>
<context>
    <name>olSqlite</name>
    <message>
        <source>no space left on the device</source>
        <translation>장치에 남은 공간이 없습니다</translation>
    </message>
    <message>
        <source>its file system refuses locks</source>
        <translation>파일 시스템에서 잠금을 지원하지 않습니다</translation>
    </message>
    <message>
        <source>another program keeps it busy</source>
        <translation>다른 프로그램이 사용 중입니다</translation>
    </message>
    <message>
        <source>it or its folder is read-only</source>
        <translation>파일 또는 폴더가 읽기 전용입니다</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>열 수 없습니다</translation>
    </message>
    <message>
        <source>input or output failed</source>
        <translation>입력 또는 출력에 실패했습니다</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>구조가 깨졌습니다</translation>
    </message>
    <message>
        <source>its content is no database</source>
        <translation>내용이 데이터베이스가 아닙니다</translation>
    </message>
    <message>
        <source>a row is not what it was</source>
        <translation>행이 원래와 다릅니다</translation>
    </message>
</context>
<context>
    <name>olStartFault</name>
    <message>
        <source>Preferences</source>
        <translation>환경 설정</translation>
    </message>
    <message>
        <source>The preferences cannot be loaded.</source>
        <translation>환경 설정을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>The file is left as it is. With the defaults nothing of this run is kept.</source>
        <translation>파일은 그대로 둡니다. 기본값을 사용하면 이번 실행의 내용은 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>Another &amp;Store...</source>
        <translation>다른 저장 파일(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Defaults for This Run</source>
        <translation>이번 실행에 기본값 사용(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>Another Store</source>
        <translation>다른 저장 파일</translation>
    </message>
    <message>
        <source>Preferences (*.db);;All files (*)</source>
        <translation>환경 설정 (*.db);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>The plug-in with the preferences cannot be loaded.</source>
        <translation>환경 설정 플러그인을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Another &amp;Plug-In...</source>
        <translation>다른 플러그인(&amp;P)...</translation>
    </message>
    <message>
        <source>Another Plug-In</source>
        <translation>다른 플러그인</translation>
    </message>
    <message>
        <source>Plug-ins (*.so);;All files (*)</source>
        <translation>플러그인 (*.so);;모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>olStoreTables</name>
    <message>
        <source>it is another program&apos;s database</source>
        <translation>다른 프로그램의 데이터베이스입니다</translation>
    </message>
    <message>
        <source>it was written by a newer version</source>
        <translation>더 새로운 버전에서 저장한 파일입니다</translation>
    </message>
    <message>
        <source>its tables are not what they were</source>
        <translation>테이블이 원래와 다릅니다</translation>
    </message>
    <message>
        <source>its structure is broken</source>
        <translation>구조가 깨졌습니다</translation>
    </message>
    <message>
        <source>rows were changed or are missing</source>
        <translation>행이 변경되었거나 빠졌습니다</translation>
    </message>
    <message>
        <source>its history was changed</source>
        <translation>기록이 변경되었습니다</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>아무것도 들어 있지 않습니다</translation>
    </message>
</context>
<context>
    <name>olSupport</name>
    <message>
        <source>orlo %1, edition %2</source>
        <translation>orlo %1, 에디션 %2</translation>
    </message>
    <message>
        <source>Changed settings:</source>
        <translation>변경된 설정:</translation>
    </message>
    <message>
        <source>Changed and left out: %1</source>
        <translation>변경되었으나 제외됨: %1</translation>
    </message>
    <message>
        <source>End of the log:</source>
        <translation>로그의 끝:</translation>
    </message>
</context>
<context>
    <name>olTesselationSettings</name>
    <message>
        <source>T&amp;essellation</source>
        <translation>테셀레이션(&amp;E)</translation>
    </message>
    <message>
        <source>Chord &amp;Deviation</source>
        <translation>현 편차(&amp;D)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>&amp;Normal Tolerance</source>
        <translation>법선 공차(&amp;N)</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Ma&amp;x Chord Length</source>
        <translation>최대 현 길이(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Stitching</source>
        <translation>스티치(&amp;S)</translation>
    </message>
    <message>
        <source>St&amp;itching Tolerance</source>
        <translation>스티치 공차(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>품질(&amp;Q)</translation>
    </message>
    <message>
        <source>Sets chord deviation, normal tolerance and max chord length together.</source>
        <translation>현 편차, 법선 공차 및 최대 현 길이를 함께 설정합니다.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
</context>
<context>
    <name>olToolError</name>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>&quot;%1&quot;은(는) UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked: %2</source>
        <translation>&quot;%1&quot;이(가) 잠겨 있습니다: %2</translation>
    </message>
    <message>
        <source>Cannot check %1: there is no such file.</source>
        <translation>%1을(를) 검사할 수 없습니다: 파일이 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be entered: expected %2</source>
        <translation>%1은(는) 입력할 수 없습니다. 필요한 값: %2</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 또는 false</translation>
    </message>
    <message>
        <source>a text or a number</source>
        <translation>텍스트 또는 숫자</translation>
    </message>
    <message>
        <source>a button is not edited but pressed, by click</source>
        <translation>버튼은 편집하지 않고 click으로 누릅니다</translation>
    </message>
    <message>
        <source>true, as another one must be chosen instead</source>
        <translation>true(끄려면 다른 항목을 선택해야 함)</translation>
    </message>
    <message>
        <source>an item by its number or its text: %1</source>
        <translation>항목의 번호 또는 텍스트: %1</translation>
    </message>
    <message>
        <source>the item &quot;%1&quot; is disabled</source>
        <translation>항목 &quot;%1&quot;은(는) 사용할 수 없는 상태입니다</translation>
    </message>
    <message>
        <source>the field is only to be read</source>
        <translation>필드는 읽기 전용입니다</translation>
    </message>
    <message>
        <source>what the field&apos;s validator lets through</source>
        <translation>필드의 검사기를 통과하는 값</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>최대 %1자</translation>
    </message>
    <message>
        <source>%1 with at most %2 decimals</source>
        <translation>%1(소수점 이하 최대 %2자리)</translation>
    </message>
    <message>
        <source>three numbers from 0 to 1, as [1, 0.5, 0]</source>
        <translation>[1, 0.5, 0]과 같은 0에서 1 사이의 숫자 3개</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>큰따옴표로 묶은 텍스트</translation>
    </message>
    <message>
        <source>the text is only to be read</source>
        <translation>텍스트는 읽기 전용입니다</translation>
    </message>
    <message>
        <source>a table or tree is not edited; select in it and press its buttons</source>
        <translation>테이블이나 트리는 편집하지 않습니다. 항목을 선택하고 버튼을 누르십시오</translation>
    </message>
    <message>
        <source>a control of its kind is not known</source>
        <translation>알 수 없는 종류의 컨트롤입니다</translation>
    </message>
    <message>
        <source>it is neither a table nor a tree</source>
        <translation>테이블도 트리도 아닙니다</translation>
    </message>
    <message>
        <source>nothing can be selected in it</source>
        <translation>선택할 수 있는 것이 없습니다</translation>
    </message>
    <message>
        <source>it is no button</source>
        <translation>버튼이 아닙니다</translation>
    </message>
    <message>
        <source>there is no row %1: it has %2</source>
        <translation>행 %1이(가) 없습니다. 전체: %2</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>행 1개</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>행 %1개</translation>
    </message>
    <message>
        <source>there is no column %1: it has %2</source>
        <translation>열 %1이(가) 없습니다. 전체: %2</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>열 1개</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>열 %1개</translation>
    </message>
    <message>
        <source>Cannot read the standard input: %1.</source>
        <translation>표준 입력을 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Cannot import the standard input. %1</source>
        <translation>표준 입력을 가져올 수 없습니다. %1</translation>
    </message>
    <message>
        <source>skipped: &quot;%1&quot; %2</source>
        <translation>건너뜀: &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>%1 saves cannot be taken back: there are only %2</source>
        <translation>저장 %1건을 되돌릴 수 없습니다. 전체: %2건</translation>
    </message>
    <message>
        <source>left: &quot;%1&quot; %2</source>
        <translation>그대로 둠: &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Some settings were left as they are.</source>
        <translation>일부 설정은 그대로 두었습니다.</translation>
    </message>
    <message>
        <source>the button &quot;%1&quot;</source>
        <translation>버튼 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a directory</source>
        <translation>디렉터리</translation>
    </message>
    <message>
        <source>a color</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>%1 opened, but the answer queued for it is %2</source>
        <translation>%1이(가) 열렸지만 준비된 응답은 %2입니다</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot;</source>
        <translation>메시지 상자 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the box &quot;%1&quot; has no button &quot;%2&quot;; it has %3</source>
        <translation>메시지 상자 &quot;%1&quot;에 버튼 &quot;%2&quot;이(가) 없습니다. 있는 버튼: %3</translation>
    </message>
    <message>
        <source>a color dialog</source>
        <translation>색상 대화 상자</translation>
    </message>
    <message>
        <source>the directory chooser &quot;%1&quot;</source>
        <translation>디렉터리 선택기 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a command is missing: %1; see --help</source>
        <translation>명령이 없습니다: %1. --help를 참조하십시오</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 또는 %2</translation>
    </message>
    <message>
        <source>there is no command %1, only %2; see --help</source>
        <translation>명령 %1이(가) 없습니다. 사용 가능: %2. --help를 참조하십시오</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise</source>
        <translation>essentials, design, professional 또는 enterprise</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1에는 값이 필요합니다</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1에는 값을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no edition %1, only %2</source>
        <translation>에디션 %1이(가) 없습니다. 사용 가능: %2</translation>
    </message>
    <message>
        <source>usage: orlo-prefs [OPTIONS] %1</source>
        <translation>사용법: orlo-prefs [OPTIONS] %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only set with --yes: %2</source>
        <translation>&quot;%1&quot;은(는) --yes가 있어야만 설정됩니다: %2</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>출력을 쓸 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Cannot make a directory for scratch settings: %1.</source>
        <translation>임시 설정용 디렉터리를 만들 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>Cannot read the script %1: %2.</source>
        <translation>스크립트 %1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1이(가) 빠졌습니다</translation>
    </message>
    <message>
        <source>a quote stands within the word %1</source>
        <translation>단어 %1 안에 따옴표가 있습니다</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>따옴표가 닫히지 않았습니다</translation>
    </message>
    <message>
        <source>a blank is missing behind &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 뒤에 공백이 빠졌습니다</translation>
    </message>
    <message>
        <source>VALUE is missing</source>
        <translation>VALUE가 빠졌습니다</translation>
    </message>
    <message>
        <source>%1 is no JSON value</source>
        <translation>%1은(는) JSON 값이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much</source>
        <translation>&quot;%1&quot;은(는) 불필요한 내용입니다</translation>
    </message>
    <message>
        <source>%1; usage: %2</source>
        <translation>%1. 사용법: %2</translation>
    </message>
    <message>
        <source>there is no type %1, only %2</source>
        <translation>유형 %1이(가) 없습니다. 사용 가능: %2</translation>
    </message>
    <message>
        <source>%1 is no value of type %2: expected %3</source>
        <translation>%1은(는) 유형 %2의 값이 아닙니다. 필요한 값: %3</translation>
    </message>
    <message>
        <source>%1 is no number counted from 0</source>
        <translation>%1은(는) 0부터 세는 번호가 아닙니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>줄 %1: %2</translation>
    </message>
    <message>
        <source>behind the module only keep may follow</source>
        <translation>모듈 뒤에는 keep만 올 수 있습니다</translation>
    </message>
    <message>
        <source>%1 is neither put nor get</source>
        <translation>%1은(는) put도 get도 아닙니다</translation>
    </message>
    <message>
        <source>no column goes with none</source>
        <translation>none에는 열을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 is no color</source>
        <translation>%1은(는) 색상이 아닙니다</translation>
    </message>
    <message>
        <source>%1 does not fit the fact %2: expected %3</source>
        <translation>%1은(는) 호스트 상태 항목 %2에 맞지 않습니다. 필요한 값: %3</translation>
    </message>
    <message>
        <source>no variable can be called %1</source>
        <translation>변수 이름으로 %1을(를) 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 is no text</source>
        <translation>%1은(는) 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;; there is: %2</source>
        <translation>모듈 &quot;%1&quot;이(가) 없습니다. 사용 가능: %2</translation>
    </message>
    <message>
        <source>the library is unloaded</source>
        <translation>라이브러리가 언로드되었습니다</translation>
    </message>
    <message>
        <source>%1 has no page</source>
        <translation>%1에 페이지가 없습니다</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1이(가) 숨겨져 있습니다</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1은(는) 사용할 수 없는 상태입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a value of a type that settings do not have</source>
        <translation>&quot;%1&quot;의 값은 설정에 없는 유형입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2</source>
        <translation>&quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>there is no language %1, only %2 or user</source>
        <translation>언어 %1은(는) 없습니다. %2 또는 user만 있습니다</translation>
    </message>
    <message>
        <source>there is no module &quot;%1&quot;</source>
        <translation>모듈 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1  (site)</source>
        <translation>%1  (사이트)</translation>
    </message>
    <message>
        <source>default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>설정 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <translation>%1. &quot;%2&quot;을(를) 뜻하셨습니까?</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>옵션 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is no command %1</source>
        <translation>명령 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>there is no fact %1</source>
        <translation>호스트 상태 항목 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>(default %1)</source>
        <translation>(기본값 %1)</translation>
    </message>
</context>
<context>
    <name>olTour</name>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>the camera has no page in this edition; nothing to show</source>
        <translation>이 에디션에는 카메라 페이지가 없어 보여 줄 것이 없습니다</translation>
    </message>
    <message>
        <source>the change could not be applied</source>
        <translation>변경을 적용할 수 없습니다</translation>
    </message>
    <message>
        <source>Applied: Field of View %1</source>
        <translation>적용됨: 시야각 %1</translation>
    </message>
    <message>
        <source>this display shows no 3D view; there is no picture of it</source>
        <translation>이 디스플레이에는 3D 뷰가 표시되지 않아 그 그림이 없습니다</translation>
    </message>
    <message>
        <source>the picture %1 cannot be written</source>
        <translation>그림 %1을(를) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>그림: %1</translation>
    </message>
</context>
<context>
    <name>olTranslations</name>
    <message>
        <source>There is no usable translation %1.qm in %2: its texts stay English.</source>
        <translation>%2에 사용할 수 있는 번역 %1.qm이 없습니다. 해당 텍스트는 영어로 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>olUndo</name>
    <message>
        <source>is locked: %1</source>
        <translation>잠겨 있습니다: %1</translation>
    </message>
    <message>
        <source>was changed since</source>
        <translation>이후에 변경되었습니다</translation>
    </message>
</context>
<context>
    <name>olValue</name>
    <message>
        <source>true or false</source>
        <translation>true 또는 false</translation>
    </message>
    <message>
        <source>a whole number from -2147483648 to 2147483647</source>
        <translation>-2147483648에서 2147483647 사이의 정수</translation>
    </message>
    <message>
        <source>a whole number from 0 to 4294967295</source>
        <translation>0에서 4294967295 사이의 정수</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>a text in double quotes</source>
        <translation>큰따옴표로 묶은 텍스트</translation>
    </message>
    <message>
        <source>a list of texts, as [&quot;a&quot;, &quot;b&quot;]</source>
        <translation>[&quot;a&quot;, &quot;b&quot;]와 같은 텍스트 목록</translation>
    </message>
    <message>
        <source>a list of numbers, as [1, 0.5]</source>
        <translation>[1, 0.5]와 같은 숫자 목록</translation>
    </message>
    <message>
        <source>three numbers, as [1, 0.5, 0]</source>
        <translation>[1, 0.5, 0]과 같은 숫자 3개</translation>
    </message>
    <message>
        <source>a list of colors, as [[0, 0, 0], [1, 1, 1]]</source>
        <translation>[[0, 0, 0], [1, 1, 1]]과 같은 색상 목록</translation>
    </message>
</context>
<context>
    <name>olValueText</name>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>olViewAids</name>
    <message>
        <source>RIGHT</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>FRONT</source>
        <translation>앞</translation>
    </message>
    <message>
        <source>BACK</source>
        <translation>뒤</translation>
    </message>
    <message>
        <source>TOP</source>
        <translation>위</translation>
    </message>
    <message>
        <source>BOTTOM</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>램프</translation>
    </message>
</context>
<context>
    <name>olViewport</name>
    <message>
        <source>3D view</source>
        <translation>3D 뷰</translation>
    </message>
    <message>
        <source>The 3D view: %1</source>
        <translation>3D 뷰: %1</translation>
    </message>
    <message>
        <source>The renderer of the 3D view cannot be started.</source>
        <translation>3D 뷰의 렌더러를 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>A frame of the 3D view could not be drawn.</source>
        <translation>3D 뷰의 프레임을 그릴 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>olWebAccess</name>
    <message>
        <source>The web server does not answer %1: %2</source>
        <translation>웹 서버가 %1에 응답하지 않습니다: %2</translation>
    </message>
</context>
<context>
    <name>olWebPages</name>
    <message>
        <source>The answer would be too large.</source>
        <translation>응답이 너무 큽니다.</translation>
    </message>
    <message>
        <source>The application is running.</source>
        <translation>프로그램이 실행 중입니다.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>State of the host</source>
        <translation>호스트 상태</translation>
    </message>
    <message>
        <source>Nothing can be changed here; ask with GET.</source>
        <translation>여기에서는 아무것도 변경할 수 없습니다. GET으로 요청하십시오.</translation>
    </message>
    <message>
        <source>There is no such page.</source>
        <translation>해당 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>This host is not allowed.</source>
        <translation>이 호스트는 허용되지 않습니다.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of the language</comment>
        <translation>ko</translation>
    </message>
</context>
<context>
    <name>olWebServer</name>
    <message>
        <source>it is no regular file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>others than its owner can read it</source>
        <translation>소유자가 아닌 사용자도 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>The web server cannot use %1: %2</source>
        <translation>웹 서버에서 %1을(를) 사용할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>ports are numbered 1 to 65535</source>
        <translation>포트 번호는 1에서 65535 사이입니다</translation>
    </message>
    <message>
        <source>port %1 with %2</source>
        <translation>%2을(를) 사용하는 포트 %1</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>포트 %1</translation>
    </message>
    <message>
        <source>The web server does not listen on %1: %2</source>
        <translation>웹 서버가 %1에서 수신 대기하지 않습니다: %2</translation>
    </message>
</context>
<context>
    <name>orlo</name>
    <message>
        <source>Preferences</source>
        <translation>환경 설정</translation>
    </message>
    <message>
        <source>--%1 needs --render</source>
        <translation>--%1에는 --render가 필요합니다</translation>
    </message>
    <message>
        <source>--set needs --render or --save</source>
        <translation>--set에는 --render 또는 --save가 필요합니다</translation>
    </message>
    <message>
        <source>--%1 does not go with --render</source>
        <translation>--%1은(는) --render와 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>--%1 needs a window, which --render and --save do without</source>
        <translation>--%1에는 창이 필요하지만 --render와 --save는 창 없이 실행됩니다</translation>
    </message>
    <message>
        <source>--render needs --output PICTURE</source>
        <translation>--render에는 --output PICTURE가 필요합니다</translation>
    </message>
    <message>
        <source>%1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192</source>
        <translation>%1은(는) 크기가 아닙니다. 필요한 형태: WIDTHxHEIGHT, 각각 1에서 8192 사이</translation>
    </message>
    <message>
        <source>--save needs either a model or --sample</source>
        <translation>--save에는 모델 또는 --sample이 필요합니다</translation>
    </message>
    <message>
        <source>%1 does not go with --render</source>
        <translation>%1은(는) --render와 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no edition %1; there are essentials, design, professional and enterprise</source>
        <translation>에디션 %1이(가) 없습니다. essentials, design, professional, enterprise가 있습니다</translation>
    </message>
    <message>
        <source>no page has the setting &quot;%1&quot;</source>
        <translation>설정 &quot;%1&quot;이(가) 있는 페이지가 없습니다</translation>
    </message>
    <message>
        <source>%1 has stored this.</source>
        <translation>%1에서 이 설정을 저장했습니다.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>다른 프로그램</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no UTF-8</source>
        <translation>&quot;%1&quot;은(는) UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>only one model can be converted at a time</source>
        <translation>한 번에 모델 하나만 변환할 수 있습니다</translation>
    </message>
    <message>
        <source>expected --unit mm, cm, m, in or ft, and --up y or z</source>
        <translation>--unit에는 mm, cm, m, in 또는 ft, --up에는 y 또는 z가 필요합니다</translation>
    </message>
    <message>
        <source>Views, renders and converts CAD models.</source>
        <translation>CAD 모델을 보고 렌더링하고 변환합니다.</translation>
    </message>
    <message>
        <source>essentials, design, professional or enterprise.</source>
        <translation>essentials, design, professional 또는 enterprise입니다.</translation>
    </message>
    <message>
        <source>The application&apos;s name.</source>
        <translation>응용 프로그램의 이름입니다.</translation>
    </message>
    <message>
        <source>The file that keeps the preferences.</source>
        <translation>환경 설정을 보관하는 파일입니다.</translation>
    </message>
    <message>
        <source>The preferences plug-in to load.</source>
        <translation>불러올 환경 설정 플러그인입니다.</translation>
    </message>
    <message>
        <source>Open a small assembly that the program builds itself.</source>
        <translation>프로그램이 스스로 만드는 작은 어셈블리를 엽니다.</translation>
    </message>
    <message>
        <source>Write the model, or the sample, in the format of the suffix, and end.</source>
        <translation>모델 또는 샘플을 확장자의 형식으로 쓰고 끝냅니다.</translation>
    </message>
    <message>
        <source>Import a model, write one picture of it to --output, and end.</source>
        <translation>모델을 가져와 그 그림 한 장을 --output에 쓰고 끝냅니다.</translation>
    </message>
    <message>
        <source>Where --render puts its picture.</source>
        <translation>--render가 그림을 두는 곳입니다.</translation>
    </message>
    <message>
        <source>With --render: show cameras, lights and the cube as the window does.</source>
        <translation>--render와 함께: 창에서처럼 카메라, 조명, 큐브를 표시합니다.</translation>
    </message>
    <message>
        <source>With --render: draw the borders of surfaces.</source>
        <translation>--render와 함께: 곡면의 경계를 그립니다.</translation>
    </message>
    <message>
        <source>The unit of a model that does not say it: mm, cm, m, in or ft.</source>
        <translation>단위를 밝히지 않는 모델의 단위입니다: mm, cm, m, in 또는 ft.</translation>
    </message>
    <message>
        <source>What is up in a model that does not say it: y or z.</source>
        <translation>위쪽을 밝히지 않는 모델의 위쪽 축입니다: y 또는 z.</translation>
    </message>
    <message>
        <source>How large the picture is, in pixels.</source>
        <translation>그림의 크기(픽셀)입니다.</translation>
    </message>
    <message>
        <source>A setting for --render and --save, as &quot;KEY=VALUE&quot;; nothing is saved.</source>
        <translation>--render와 --save를 위한 설정이며 &quot;KEY=VALUE&quot; 형태입니다. 아무것도 저장하지 않습니다.</translation>
    </message>
    <message>
        <source>The model to open.</source>
        <translation>열 모델입니다.</translation>
    </message>
    <message>
        <source>Open the preferences beside the view.</source>
        <translation>뷰 옆에 환경 설정을 엽니다.</translation>
    </message>
    <message>
        <source>Open the preferences at a setting.</source>
        <translation>설정 위치에서 환경 설정을 엽니다.</translation>
    </message>
    <message>
        <source>Apply a change in the preferences, leave pictures in the folder, and end.</source>
        <translation>환경 설정에서 변경 하나를 적용하고 그림을 폴더에 남기고 끝냅니다.</translation>
    </message>
    <message>
        <source>there is no display to open a window on; --save needs none</source>
        <translation>창을 열 디스플레이가 없습니다. --save에는 디스플레이가 필요하지 않습니다</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>olBackgroundTable</name>
    <message>
        <source>Color</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>Form1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Vertical opening angle of the camera, in degrees</source>
        <translation>카메라의 세로 시야각(도)</translation>
    </message>
    <message>
        <source>&amp;Field of View</source>
        <translation>시야각(&amp;F)</translation>
    </message>
    <message>
        <source>Field of View</source>
        <translation>시야각</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>스테레오</translation>
    </message>
    <message>
        <source>Distance between the two eyes</source>
        <translation>두 눈 사이의 거리</translation>
    </message>
    <message>
        <source>&amp;Eye Separation</source>
        <translation>양안 간격(&amp;E)</translation>
    </message>
    <message>
        <source>Eye Separation</source>
        <translation>양안 간격</translation>
    </message>
    <message>
        <source>Distance at which both eyes see the same picture</source>
        <translation>두 눈에 같은 그림이 보이는 거리</translation>
    </message>
    <message>
        <source>&amp;Zero Parallax Distance</source>
        <translation>제로 시차 거리(&amp;Z)</translation>
    </message>
    <message>
        <source>Zero Parallax Distance</source>
        <translation>제로 시차 거리</translation>
    </message>
    <message>
        <source>Powerwall</source>
        <translation>파워월</translation>
    </message>
    <message>
        <source>Width of the projected picture</source>
        <translation>투사된 그림의 너비</translation>
    </message>
    <message>
        <source>Projection &amp;Width</source>
        <translation>투사 너비(&amp;W)</translation>
    </message>
    <message>
        <source>Projection Width</source>
        <translation>투사 너비</translation>
    </message>
    <message>
        <source>Height of the projected picture</source>
        <translation>투사된 그림의 높이</translation>
    </message>
    <message>
        <source>Projection &amp;Height</source>
        <translation>투사 높이(&amp;H)</translation>
    </message>
    <message>
        <source>Projection Height</source>
        <translation>투사 높이</translation>
    </message>
    <message>
        <source>Distance from the viewer to the projected picture</source>
        <translation>보는 사람과 투사된 그림 사이의 거리</translation>
    </message>
    <message>
        <source>Projection &amp;Distance</source>
        <translation>투사 거리(&amp;D)</translation>
    </message>
    <message>
        <source>Projection Distance</source>
        <translation>투사 거리</translation>
    </message>
</context>
<context>
    <name>olCameraPreferencesGUII</name>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
</context>
<context>
    <name>olDevicesPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>Form1</translation>
    </message>
    <message>
        <source>Joystick</source>
        <translation>조이스틱</translation>
    </message>
    <message>
        <source>Navigates with a joystick</source>
        <translation>조이스틱으로 탐색합니다</translation>
    </message>
    <message>
        <source>Use &amp;Joystick</source>
        <translation>조이스틱 사용(&amp;J)</translation>
    </message>
    <message>
        <source>Number of the joystick; the first is 0</source>
        <translation>조이스틱 번호. 첫 번째는 0입니다</translation>
    </message>
    <message>
        <source>Jo&amp;ystick</source>
        <translation>조이스틱(&amp;Y)</translation>
    </message>
    <message>
        <source>Don&apos;t forget to enable the analog mode!</source>
        <translation>아날로그 모드를 켜는 것을 잊지 마십시오!</translation>
    </message>
    <message>
        <source>Space Mouse</source>
        <translation>3D 마우스</translation>
    </message>
    <message>
        <source>Searches for a 3D mouse and navigates with it</source>
        <translation>3D 마우스를 찾아 탐색에 사용합니다</translation>
    </message>
    <message>
        <source>Enable &amp;3D Mouse</source>
        <translation>3D 마우스 사용(&amp;3)</translation>
    </message>
    <message>
        <source>What the 3D mouse moves</source>
        <translation>3D 마우스로 움직일 대상</translation>
    </message>
    <message>
        <source>&amp;View Mode</source>
        <translation>뷰 모드(&amp;V)</translation>
    </message>
    <message>
        <source>View Mode</source>
        <translation>뷰 모드</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>개체</translation>
    </message>
    <message>
        <source>What the 3D mouse turns around</source>
        <translation>3D 마우스로 회전할 때의 중심</translation>
    </message>
    <message>
        <source>&amp;Rotation Pivot</source>
        <translation>회전 피벗(&amp;R)</translation>
    </message>
    <message>
        <source>Rotation Pivot</source>
        <translation>회전 피벗</translation>
    </message>
    <message>
        <source>Selected Object/Origin</source>
        <translation>선택한 개체/원점</translation>
    </message>
    <message>
        <source>Focus Distance</source>
        <translation>초점 거리</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Keeps the horizon level</source>
        <translation>수평을 유지합니다</translation>
    </message>
    <message>
        <source>Enable &amp;Two-Axis Mode</source>
        <translation>2축 모드 사용(&amp;T)</translation>
    </message>
    <message>
        <source>Moves up and down only where the device is lifted or pressed</source>
        <translation>장치를 들어 올리거나 누를 때만 위아래로 움직입니다</translation>
    </message>
    <message>
        <source>&amp;Helicopter Mode</source>
        <translation>헬리콥터 모드(&amp;H)</translation>
    </message>
    <message>
        <source>Height of the camera above the ground while a fixed height is used</source>
        <translation>고정 높이를 사용할 때 지면에서 카메라까지의 높이</translation>
    </message>
    <message>
        <source>H&amp;eight</source>
        <translation>높이(&amp;E)</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Keeps the camera at one height above the ground</source>
        <translation>카메라를 지면에서 일정한 높이로 유지합니다</translation>
    </message>
    <message>
        <source>Use &amp;Fixed Height</source>
        <translation>고정 높이 사용(&amp;F)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUI</name>
    <message>
        <source>FileIO</source>
        <translation>파일 입출력</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>&amp;Verify Geometry</source>
        <translation>지오메트리 검증(&amp;V)</translation>
    </message>
    <message>
        <source>Optimi&amp;ze Geometry</source>
        <translation>지오메트리 최적화(&amp;Z)</translation>
    </message>
    <message>
        <source>Sets the maximum number of import tasks. Changing this value increases memory usage. </source>
        <translation>동시에 실행할 가져오기 작업의 최대 수를 설정합니다. 이 값을 늘리면 메모리 사용량이 늘어납니다. </translation>
    </message>
    <message>
        <source>Ma&amp;x Parallel Processes</source>
        <translation>최대 병렬 프로세스(&amp;X)</translation>
    </message>
    <message>
        <source>Max Parallel Processes</source>
        <translation>최대 병렬 프로세스</translation>
    </message>
    <message>
        <source>This is used for file conversions, should be writable. If you leave this empty a system tmp path will be used.</source>
        <translation>파일 변환에 사용되며 쓰기가 가능해야 합니다. 비워 두면 시스템의 임시 경로를 사용합니다.</translation>
    </message>
    <message>
        <source>&amp;Temporary Path</source>
        <translation>임시 경로(&amp;T)</translation>
    </message>
    <message>
        <source>Temporary Path</source>
        <translation>임시 경로</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>임시 파일 경로 선택</translation>
    </message>
    <message>
        <source>Import Dialog</source>
        <translation>가져오기 대화 상자</translation>
    </message>
    <message>
        <source>C&amp;enter to Origin</source>
        <translation>원점에 중심 맞추기(&amp;E)</translation>
    </message>
    <message>
        <source>Place O&amp;bjects on the Ground</source>
        <translation>개체를 지면에 놓기(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Show Dialog</source>
        <translation>대화 상자 표시(&amp;S)</translation>
    </message>
    <message>
        <source>Close Dialog on successful &amp;Import</source>
        <translation>가져오기 성공 시 대화 상자 닫기(&amp;I)</translation>
    </message>
    <message>
        <source>Texture Compression</source>
        <translation>텍스처 압축</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>모드(&amp;M)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>항상</translation>
    </message>
    <message>
        <source>Video Memory &amp;Limit</source>
        <translation>비디오 메모리 한도(&amp;L)</translation>
    </message>
    <message>
        <source>Video Memory Limit</source>
        <translation>비디오 메모리 한도</translation>
    </message>
    <message>
        <source>Megabyte</source>
        <translation>메가바이트</translation>
    </message>
    <message>
        <source>Texture Search Paths</source>
        <translation>텍스처 검색 경로</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>삭제(&amp;E)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>추가(&amp;D)</translation>
    </message>
</context>
<context>
    <name>olFileIOPreferencesGUIW</name>
    <message>
        <source>Select Texture Search Directory</source>
        <translation>텍스처 검색 디렉터리 선택</translation>
    </message>
    <message>
        <source>Path already inserted!</source>
        <translation>이미 추가된 경로입니다!</translation>
    </message>
    <message>
        <source>Select Temporary File Path</source>
        <translation>임시 파일 경로 선택</translation>
    </message>
</context>
<context>
    <name>olFileTypePreferencesGUI</name>
    <message>
        <source>Import Options</source>
        <translation>가져오기 옵션</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>일반 옵션</translation>
    </message>
    <message>
        <source>Keep the surfaces beside their triangles, so that they can be tessellated anew.</source>
        <translation>다시 테셀레이션할 수 있도록 삼각형과 함께 곡면을 유지합니다.</translation>
    </message>
    <message>
        <source>&amp;Keep Surface Data</source>
        <translation>곡면 데이터 유지(&amp;K)</translation>
    </message>
    <message>
        <source>Put the parts of each layer into a group of their own.</source>
        <translation>각 레이어의 부품을 별도의 그룹에 넣습니다.</translation>
    </message>
    <message>
        <source>Create Groups &amp;for Layers</source>
        <translation>레이어별 그룹 생성(&amp;F)</translation>
    </message>
    <message>
        <source>Remove groups that hold nothing after the import.</source>
        <translation>가져온 후 아무것도 들어 있지 않은 그룹을 제거합니다.</translation>
    </message>
    <message>
        <source>&amp;Remove Empty Groups</source>
        <translation>빈 그룹 제거(&amp;R)</translation>
    </message>
    <message>
        <source>Give every place that uses a part a copy of its own.</source>
        <translation>부품이 쓰이는 곳마다 별도의 복사본을 둡니다.</translation>
    </message>
    <message>
        <source>Uns&amp;hare Nodes</source>
        <translation>노드 공유 해제(&amp;H)</translation>
    </message>
    <message>
        <source>Apply the transformations to the geometries and remove them from the scene graph.</source>
        <translation>변환을 지오메트리에 적용하고 장면 그래프에서 제거합니다.</translation>
    </message>
    <message>
        <source>Flush &amp;Transformations</source>
        <translation>변환 적용(&amp;T)</translation>
    </message>
    <message>
        <source>Let the normals of adjoining surfaces point to the same side.</source>
        <translation>인접한 곡면의 법선이 같은 쪽을 향하게 합니다.</translation>
    </message>
    <message>
        <source>Unif&amp;y Surface Normals</source>
        <translation>곡면 법선 통일(&amp;Y)</translation>
    </message>
    <message>
        <source>Merge geometries of the same material into one.</source>
        <translation>재질이 같은 지오메트리를 하나로 병합합니다.</translation>
    </message>
    <message>
        <source>Merge Geometries</source>
        <translation>지오메트리 병합</translation>
    </message>
    <message>
        <source>S&amp;urfaces</source>
        <translation>곡면(&amp;U)</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>곡면</translation>
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
        <source>Curves and Polygon &amp;Lines</source>
        <translation>곡선 및 폴리라인(&amp;L)</translation>
    </message>
    <message>
        <source>Curves and Polygon Lines</source>
        <translation>곡선 및 폴리라인</translation>
    </message>
    <message>
        <source>&amp;Meshes</source>
        <translation>메시(&amp;M)</translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation>메시</translation>
    </message>
    <message>
        <source>Tessellation and Stitching</source>
        <translation>테셀레이션 및 스티치</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>최저</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>File Specific Options</source>
        <translation>파일별 옵션</translation>
    </message>
    <message>
        <source>Import variants instead of excluding them. (Only Contura wire files)</source>
        <translation>변형을 제외하지 않고 가져옵니다. (Contura wire 파일만)</translation>
    </message>
    <message>
        <source>Import &amp;Variants</source>
        <translation>변형 가져오기(&amp;V)</translation>
    </message>
    <message>
        <source>Import empty layers instead of excluding them. (Only Contura wire files)</source>
        <translation>빈 레이어를 제외하지 않고 가져옵니다. (Contura wire 파일만)</translation>
    </message>
    <message>
        <source>Import Empty Layers</source>
        <translation>빈 레이어 가져오기</translation>
    </message>
    <message>
        <source>Import template geometries instead of excluding them. (Only Contura wire files)</source>
        <translation>템플릿 지오메트리를 제외하지 않고 가져옵니다. (Contura wire 파일만)</translation>
    </message>
    <message>
        <source>Import Template Geometries</source>
        <translation>템플릿 지오메트리 가져오기</translation>
    </message>
    <message>
        <source>Import lights instead of excluding them. (Only Contura wire files)</source>
        <translation>조명을 제외하지 않고 가져옵니다. (Contura wire 파일만)</translation>
    </message>
    <message>
        <source>Import Lights</source>
        <translation>조명 가져오기</translation>
    </message>
    <message>
        <source>Import associative mesh data instead of excluding it.</source>
        <translation>연관 메시 데이터를 제외하지 않고 가져옵니다.</translation>
    </message>
    <message>
        <source>Import Associative Meshes</source>
        <translation>연관 메시 가져오기</translation>
    </message>
    <message>
        <source>Import cameras instead of excluding them. (Only Contura wire files)</source>
        <translation>카메라를 제외하지 않고 가져옵니다. (Contura wire 파일만)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>카메라 가져오기</translation>
    </message>
    <message>
        <source>Import parts referenced by an assembly.</source>
        <translation>어셈블리에서 참조하는 부품을 가져옵니다.</translation>
    </message>
    <message>
        <source>Import Referenced Files</source>
        <translation>참조 파일 가져오기</translation>
    </message>
    <message>
        <source>Import coordinate systems from Catia files.</source>
        <translation>Catia 파일에서 좌표계를 가져옵니다.</translation>
    </message>
    <message>
        <source>Import Coordinate Systems</source>
        <translation>좌표계 가져오기</translation>
    </message>
    <message>
        <source>Import Mesh LODs</source>
        <translation>메시 LOD 가져오기</translation>
    </message>
    <message>
        <source>Import invisible instance nodes instead of excluding them.</source>
        <translation>보이지 않는 인스턴스 노드를 제외하지 않고 가져옵니다.</translation>
    </message>
    <message>
        <source>Import Invisi&amp;ble Instances</source>
        <translation>보이지 않는 인스턴스 가져오기(&amp;B)</translation>
    </message>
    <message>
        <source>Legacy Loader</source>
        <translation>레거시 로더</translation>
    </message>
    <message>
        <source>If enabled the legacy jt loader is used for importing jt-files.</source>
        <translation>사용하면 JT 파일을 가져올 때 레거시 JT 로더를 사용합니다.</translation>
    </message>
    <message>
        <source>Use legacy &amp;JT loader</source>
        <translation>레거시 JT 로더 사용(&amp;J)</translation>
    </message>
    <message>
        <source>Use Active Layerfilter</source>
        <translation>활성 레이어 필터 사용</translation>
    </message>
    <message>
        <source>Breps Handling</source>
        <translation>B-rep 처리</translation>
    </message>
    <message>
        <source>Tesselate All Breps</source>
        <translation>모든 B-rep 테셀레이션</translation>
    </message>
    <message>
        <source>Load JT Breps Only</source>
        <translation>JT B-rep만 불러오기</translation>
    </message>
    <message>
        <source>Load XT Breps Only</source>
        <translation>XT B-rep만 불러오기</translation>
    </message>
    <message>
        <source>Load All Breps</source>
        <translation>모든 B-rep 불러오기</translation>
    </message>
    <message>
        <source>Rhino</source>
        <translation>Rhino</translation>
    </message>
    <message>
        <source>If enabled the legacy rhino loader is used for importing 3dm files.</source>
        <translation>사용하면 3dm 파일을 가져올 때 레거시 Rhino 로더를 사용합니다.</translation>
    </message>
    <message>
        <source>Use legacy Rhino loader</source>
        <translation>레거시 Rhino 로더 사용</translation>
    </message>
    <message>
        <source>Import Nurbs</source>
        <translation>NURBS 가져오기</translation>
    </message>
    <message>
        <source>STL Export Format</source>
        <translation>STL 내보내기 형식</translation>
    </message>
    <message>
        <source>Ascii</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>바이너리</translation>
    </message>
    <message>
        <source>KBX</source>
        <translation>KBX</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>버전(&amp;V)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>형식(&amp;F)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>&amp;Export Vertex Colors</source>
        <translation>정점 색상 내보내기(&amp;E)</translation>
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
        <translation>Form</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Where the help comes from</source>
        <translation>도움말을 가져올 곳</translation>
    </message>
    <message>
        <source>Help &amp;Location</source>
        <translation>도움말 위치(&amp;L)</translation>
    </message>
    <message>
        <source>Help Location</source>
        <translation>도움말 위치</translation>
    </message>
    <message>
        <source>Marvane Knowledge Network</source>
        <translation>Marvane Knowledge Network</translation>
    </message>
    <message>
        <source>Installed Help</source>
        <translation>설치된 도움말</translation>
    </message>
    <message>
        <source>Path to Installed Help. If help is installed on intranet, change file:// for http://</source>
        <translation>설치된 도움말의 경로입니다. 도움말이 인트라넷에 설치되어 있으면 file://을 http://로 바꾸십시오</translation>
    </message>
    <message>
        <source>&amp;Help Path</source>
        <translation>도움말 경로(&amp;H)</translation>
    </message>
    <message>
        <source>Help Path</source>
        <translation>도움말 경로</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>찾아보기</translation>
    </message>
    <message>
        <source>Pop&amp;up Help</source>
        <translation>팝업 도움말(&amp;U)</translation>
    </message>
    <message>
        <source>Popup Help</source>
        <translation>팝업 도움말</translation>
    </message>
    <message>
        <source>Toolclips</source>
        <translation>도구 클립</translation>
    </message>
    <message>
        <source>Simple Toolclips</source>
        <translation>단순 도구 클립</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUII</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
</context>
<context>
    <name>olHelpPreferencesGUIW</name>
    <message>
        <source>Controls are explained by a short text.</source>
        <translation>컨트롤을 짧은 텍스트로 설명합니다.</translation>
    </message>
    <message>
        <source>Controls are explained by text and pictures, with the way to the help.</source>
        <translation>컨트롤을 텍스트와 그림으로 설명하고 도움말로 가는 길을 안내합니다.</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUI</name>
    <message>
        <source>Form1</source>
        <translation>Form1</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>To see any effect while changing this option you need to restart the app!</source>
        <translation>이 옵션의 변경 사항을 적용하려면 프로그램을 다시 시작해야 합니다!</translation>
    </message>
    <message>
        <source>Show &amp;Toolbutton Text</source>
        <translation>도구 버튼 텍스트 표시(&amp;T)</translation>
    </message>
    <message>
        <source>Shows how many pictures are drawn in a second</source>
        <translation>1초에 그려지는 그림의 수를 표시합니다</translation>
    </message>
    <message>
        <source>Show &amp;FPS in Statusbar</source>
        <translation>상태 표시줄에 FPS 표시(&amp;F)</translation>
    </message>
    <message>
        <source>Changing this setting requires a restart of ORLO.</source>
        <translation>이 설정을 변경하면 ORLO를 다시 시작해야 합니다.</translation>
    </message>
    <message>
        <source>Show &amp;Rendering Log Messages in Terminal</source>
        <translation>터미널에 렌더링 로그 메시지 표시(&amp;R)</translation>
    </message>
    <message>
        <source>How opaque the main window is; 1 lets nothing shine through</source>
        <translation>메인 창의 불투명한 정도. 1이면 아무것도 비치지 않습니다</translation>
    </message>
    <message>
        <source>&amp;Window Opacity</source>
        <translation>창 불투명도(&amp;W)</translation>
    </message>
    <message>
        <source>Window Opacity</source>
        <translation>창 불투명도</translation>
    </message>
    <message>
        <source>Keeps panels from being docked to the main window</source>
        <translation>패널이 메인 창에 도킹되지 않게 합니다</translation>
    </message>
    <message>
        <source>Disable &amp;Docking</source>
        <translation>도킹 사용 안 함(&amp;D)</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>다음에 시작할 때 적용됩니다</translation>
    </message>
    <message>
        <source>User &amp;Language</source>
        <translation>사용자 언어(&amp;L)</translation>
    </message>
    <message>
        <source>User Language</source>
        <translation>사용자 언어</translation>
    </message>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>중국어</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
</context>
<context>
    <name>olMainWindowPreferencesGUII</name>
    <message>
        <source>MainWindow</source>
        <translation>메인 창</translation>
    </message>
    <message>
        <source>Language Preferences Change</source>
        <translation>언어 환경 설정 변경</translation>
    </message>
    <message>
        <source>Please restart ORLO so that your language changes can take effect.</source>
        <translation>언어 변경 사항을 적용하려면 ORLO를 다시 시작하십시오.</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUI</name>
    <message>
        <source>Selection</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>마커</translation>
    </message>
    <message>
        <source>Sets a scale factor for the marks at the corners of the bounding box of a selection.</source>
        <translation>선택의 경계 상자 꼭짓점에 있는 표시의 배율을 설정합니다.</translation>
    </message>
    <message>
        <source>Bounding Box Visual Si&amp;ze</source>
        <translation>경계 상자 표시 크기(&amp;Z)</translation>
    </message>
    <message>
        <source>Bounding Box Visual Size</source>
        <translation>경계 상자 표시 크기</translation>
    </message>
    <message>
        <source>Shows a wireframe on the nodes that would be selected when hovering over the render window.</source>
        <translation>렌더링 창 위에 마우스를 올렸을 때 선택될 노드를 와이어프레임으로 표시합니다.</translation>
    </message>
    <message>
        <source>&amp;Show Preselection Highlight</source>
        <translation>사전 선택 강조 표시(&amp;S)</translation>
    </message>
    <message>
        <source>Sets the color of the preselection highlight.</source>
        <translation>사전 선택 강조의 색상을 설정합니다.</translation>
    </message>
    <message>
        <source>P&amp;reselection Color</source>
        <translation>사전 선택 색상(&amp;R)</translation>
    </message>
    <message>
        <source>Preselection Color</source>
        <translation>사전 선택 색상</translation>
    </message>
    <message>
        <source>Selection Modes</source>
        <translation>선택 모드</translation>
    </message>
    <message>
        <source>Selects the whole group of levels of detail instead of the level that is shown.</source>
        <translation>표시된 수준 대신 세부 수준 그룹 전체를 선택합니다.</translation>
    </message>
    <message>
        <source>&amp;LOD Selection</source>
        <translation>LOD 선택(&amp;L)</translation>
    </message>
    <message>
        <source>Scrolls the scene graph to the node that was selected in the render window.</source>
        <translation>렌더링 창에서 선택한 노드로 장면 그래프를 스크롤합니다.</translation>
    </message>
    <message>
        <source>Auto Scroll to Selected &amp;Node</source>
        <translation>선택한 노드로 자동 스크롤(&amp;N)</translation>
    </message>
    <message>
        <source>Enables the selection of objects with a 100% transparent material in the render window.</source>
        <translation>렌더링 창에서 재질이 100% 투명한 개체를 선택할 수 있게 합니다.</translation>
    </message>
    <message>
        <source>Select 100% &amp;Transparent Objects</source>
        <translation>100% 투명한 개체 선택(&amp;T)</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>와이어프레임</translation>
    </message>
    <message>
        <source>Shows selected objects with a wireframe.</source>
        <translation>선택한 개체를 와이어프레임으로 표시합니다.</translation>
    </message>
    <message>
        <source>&amp;Enable Wireframe</source>
        <translation>와이어프레임 사용(&amp;E)</translation>
    </message>
    <message>
        <source>Draws the wireframe over the objects that hide it.</source>
        <translation>와이어프레임을 가리는 개체 위에 그립니다.</translation>
    </message>
    <message>
        <source>Always in &amp;Front</source>
        <translation>항상 앞에 표시(&amp;F)</translation>
    </message>
    <message>
        <source>Sets the color of the wireframe.</source>
        <translation>와이어프레임의 색상을 설정합니다.</translation>
    </message>
    <message>
        <source>&amp;Wireframe Color</source>
        <translation>와이어프레임 색상(&amp;W)</translation>
    </message>
    <message>
        <source>Wireframe Color</source>
        <translation>와이어프레임 색상</translation>
    </message>
    <message>
        <source>Shows the wireframe in the color that is chosen.</source>
        <translation>선택한 색상으로 와이어프레임을 표시합니다.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>olMarkerPreferencesGUII</name>
    <message>
        <source>Selection</source>
        <translation>선택</translation>
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
        <translation>로더</translation>
    </message>
    <message>
        <source>Directory in which Mirra is installed. Leave it empty to do without.</source>
        <translation>Mirra가 설치된 디렉터리입니다. 사용하지 않으려면 비워 두십시오.</translation>
    </message>
    <message>
        <source>Mirra &amp;Location</source>
        <translation>Mirra 위치(&amp;L)</translation>
    </message>
    <message>
        <source>Mirra Location</source>
        <translation>Mirra 위치</translation>
    </message>
    <message>
        <source>Set Mirra Location</source>
        <translation>Mirra 위치 설정</translation>
    </message>
    <message>
        <source>Reads the shadow textures of a scene as shades of grey</source>
        <translation>장면의 그림자 텍스처를 회색조로 읽습니다</translation>
    </message>
    <message>
        <source>&amp;Force Grayscale Shadow Texture</source>
        <translation>그림자 텍스처를 회색조로 강제 변환(&amp;F)</translation>
    </message>
    <message>
        <source>Takes materials from the library on this computer</source>
        <translation>이 컴퓨터의 라이브러리에서 재질을 가져옵니다</translation>
    </message>
    <message>
        <source>Use Local &amp;Material Library</source>
        <translation>로컬 재질 라이브러리 사용(&amp;M)</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Unit that a scene is brought to</source>
        <translation>장면을 변환할 단위</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>단위(&amp;U)</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>Unit that the lengths of a file are given in; &apos;ignore&apos; takes them as they are</source>
        <translation>파일의 길이에 사용된 단위. &apos;ignore&apos;를 선택하면 그대로 사용합니다</translation>
    </message>
    <message>
        <source>&amp;Import Units</source>
        <translation>가져오기 단위(&amp;I)</translation>
    </message>
    <message>
        <source>Import Units</source>
        <translation>가져오기 단위</translation>
    </message>
</context>
<context>
    <name>olMirraPreferencesGUIW</name>
    <message>
        <source>Set Mirra Location</source>
        <translation>Mirra 위치 설정</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUI</name>
    <message>
        <source>Navigator</source>
        <translation>탐색기</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>탐색</translation>
    </message>
    <message>
        <source>Sets what dragging the mouse does to the camera</source>
        <translation>마우스를 끌 때 카메라의 동작을 설정합니다</translation>
    </message>
    <message>
        <source>&amp;Navigation Mode</source>
        <translation>탐색 모드(&amp;N)</translation>
    </message>
    <message>
        <source>Navigation Mode</source>
        <translation>탐색 모드</translation>
    </message>
    <message>
        <source>Sets whose mouse handling the navigation imitates. Choosing one presets the matching settings of this page.</source>
        <translation>탐색에서 어떤 프로그램의 마우스 조작을 따를지 설정합니다. 하나를 선택하면 이 페이지의 관련 설정이 그에 맞게 지정됩니다.</translation>
    </message>
    <message>
        <source>&amp;Interaction Mode</source>
        <translation>상호 작용 모드(&amp;I)</translation>
    </message>
    <message>
        <source>Interaction Mode</source>
        <translation>상호 작용 모드</translation>
    </message>
    <message>
        <source>Set the navigation speed mode for Two-Axis and Trackball navigation</source>
        <translation>2축 및 트랙볼 탐색의 속도 모드를 설정합니다</translation>
    </message>
    <message>
        <source>&amp;Speed Mode</source>
        <translation>속도 모드(&amp;S)</translation>
    </message>
    <message>
        <source>Speed Mode</source>
        <translation>속도 모드</translation>
    </message>
    <message>
        <source>Unconstrained</source>
        <translation>제한 없음</translation>
    </message>
    <message>
        <source>Limited</source>
        <translation>제한됨</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>선형</translation>
    </message>
    <message>
        <source>Centers the navigation on the selected objects</source>
        <translation>선택한 개체를 탐색의 중심으로 합니다</translation>
    </message>
    <message>
        <source>Au&amp;to Center</source>
        <translation>자동 중심(&amp;T)</translation>
    </message>
    <message>
        <source>Dolly</source>
        <translation>돌리</translation>
    </message>
    <message>
        <source>Sets a scale factor for the dolly speed.</source>
        <translation>돌리 속도의 배율을 설정합니다.</translation>
    </message>
    <message>
        <source>Dolly Sp&amp;eed</source>
        <translation>돌리 속도(&amp;E)</translation>
    </message>
    <message>
        <source>Dolly Speed</source>
        <translation>돌리 속도</translation>
    </message>
    <message>
        <source>Sets the mouse move direction for dolly operations</source>
        <translation>돌리 조작에 사용할 마우스 이동 방향을 설정합니다</translation>
    </message>
    <message>
        <source>Do&amp;lly Axis</source>
        <translation>돌리 축(&amp;L)</translation>
    </message>
    <message>
        <source>Dolly Axis</source>
        <translation>돌리 축</translation>
    </message>
    <message>
        <source>Vertical Only</source>
        <translation>세로만</translation>
    </message>
    <message>
        <source>Horizontal Only</source>
        <translation>가로만</translation>
    </message>
    <message>
        <source>Horizontal and Vertical</source>
        <translation>가로 및 세로</translation>
    </message>
    <message>
        <source>Inverts the Y-Axis for the dolly operations. The X-Axis remains unchanged</source>
        <translation>돌리 조작의 Y축을 반전합니다. X축은 그대로입니다</translation>
    </message>
    <message>
        <source>Invert Dolly A&amp;xis</source>
        <translation>돌리 축 반전(&amp;X)</translation>
    </message>
    <message>
        <source>Inverts dolly direction when using the scroll wheel</source>
        <translation>스크롤 휠을 사용할 때 돌리 방향을 반전합니다</translation>
    </message>
    <message>
        <source>Invert &amp;Wheel Dolly</source>
        <translation>휠 돌리 반전(&amp;W)</translation>
    </message>
    <message>
        <source>Sets the dolly operation to dolly towards the pivot instead of the screen center.</source>
        <translation>화면 중심 대신 피벗을 향해 돌리 이동하도록 설정합니다.</translation>
    </message>
    <message>
        <source>Doll&amp;y To Pivot</source>
        <translation>피벗으로 돌리 이동(&amp;Y)</translation>
    </message>
    <message>
        <source>Panning</source>
        <translation>팬</translation>
    </message>
    <message>
        <source>Bases the panning speed on the distance to the pivot instead of using the click position</source>
        <translation>클릭 위치 대신 피벗까지의 거리를 기준으로 팬 속도를 정합니다</translation>
    </message>
    <message>
        <source>Pi&amp;vot Based Panning</source>
        <translation>피벗 기준 팬(&amp;V)</translation>
    </message>
    <message>
        <source>Sets a scale factor for the panning speed.</source>
        <translation>팬 속도의 배율을 설정합니다.</translation>
    </message>
    <message>
        <source>Panning Spee&amp;d</source>
        <translation>팬 속도(&amp;D)</translation>
    </message>
    <message>
        <source>Panning Speed</source>
        <translation>팬 속도</translation>
    </message>
    <message>
        <source>Orbit</source>
        <translation>궤도</translation>
    </message>
    <message>
        <source>Orbits around the point under the mouse when it rests there before it is dragged</source>
        <translation>끌기 전에 마우스를 잠시 멈추면 그 아래의 점을 중심으로 궤도를 돕니다</translation>
    </message>
    <message>
        <source>Orbit &amp;Mode</source>
        <translation>궤도 모드(&amp;M)</translation>
    </message>
    <message>
        <source>Sets how far the mouse may move, in pixels, and still count as resting</source>
        <translation>마우스가 멈춘 것으로 보는 최대 이동 거리를 픽셀 단위로 설정합니다</translation>
    </message>
    <message>
        <source>Or&amp;bit Detection Area</source>
        <translation>궤도 감지 영역(&amp;B)</translation>
    </message>
    <message>
        <source>Orbit Detection Area</source>
        <translation>궤도 감지 영역</translation>
    </message>
    <message>
        <source>Sets how long the mouse has to rest, in milliseconds</source>
        <translation>마우스가 멈추어 있어야 하는 시간을 밀리초 단위로 설정합니다</translation>
    </message>
    <message>
        <source>O&amp;rbit Detection Time</source>
        <translation>궤도 감지 시간(&amp;R)</translation>
    </message>
    <message>
        <source>Orbit Detection Time</source>
        <translation>궤도 감지 시간</translation>
    </message>
    <message>
        <source>Camera Animation</source>
        <translation>카메라 애니메이션</translation>
    </message>
    <message>
        <source>Animates the camera change when using Zoom To and Show All</source>
        <translation>&quot;선택 항목으로 줌&quot;과 &quot;모두 표시&quot;를 사용할 때 카메라 변경을 애니메이션으로 보여 줍니다</translation>
    </message>
    <message>
        <source>Animate camera c&amp;hange</source>
        <translation>카메라 변경 애니메이션(&amp;H)</translation>
    </message>
    <message>
        <source>Length of the animated camera change</source>
        <translation>카메라 변경 애니메이션의 길이</translation>
    </message>
    <message>
        <source>D&amp;uration</source>
        <translation>지속 시간(&amp;U)</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>지속 시간</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUII</name>
    <message>
        <source>Navigator</source>
        <translation>탐색기</translation>
    </message>
</context>
<context>
    <name>olNavigatorPreferencesGUIW</name>
    <message>
        <source>Trackball</source>
        <translation>트랙볼</translation>
    </message>
    <message>
        <source>TwoAxis</source>
        <translation>2축</translation>
    </message>
    <message>
        <source>Fly</source>
        <translation>비행</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
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
        <translation>네이티브 형식에는 설정할 항목이 없습니다.</translation>
    </message>
</context>
<context>
    <name>olPlainText</name>
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
    <message>
        <source>%1, %2</source>
        <comment>one value of a list, and the next</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>olPreferences</name>
    <message>
        <source>FileIO</source>
        <translation>파일 입출력</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Tesselation</source>
        <translation>테셀레이션</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>장치</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUI</name>
    <message>
        <source>Render Options</source>
        <translation>렌더링 옵션</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>렌더링</translation>
    </message>
    <message>
        <source>Visualization</source>
        <translation>시각화</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>앤티앨리어싱</translation>
    </message>
    <message>
        <source>Sets the realtime antialiasing quality</source>
        <translation>실시간 앤티앨리어싱 품질을 설정합니다</translation>
    </message>
    <message>
        <source>Antialiasing &amp;Quality</source>
        <translation>앤티앨리어싱 품질(&amp;Q)</translation>
    </message>
    <message>
        <source>Antialiasing Quality</source>
        <translation>앤티앨리어싱 품질</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
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
        <translation>후처리 앤티앨리어싱 사용(&amp;N)</translation>
    </message>
    <message>
        <source>Disable &amp;Realtime Antialiasing on Camera movement</source>
        <translation>카메라 이동 시 실시간 앤티앨리어싱 끄기(&amp;R)</translation>
    </message>
    <message>
        <source>Enable &amp;Stillframe Antialiasing</source>
        <translation>정지 프레임 앤티앨리어싱 사용(&amp;S)</translation>
    </message>
    <message>
        <source>Shows clipping plane and transform handles during interactive stillframe antialiasing</source>
        <translation>대화형 정지 프레임 앤티앨리어싱 중에 클리핑 평면과 변환 핸들을 표시합니다</translation>
    </message>
    <message>
        <source>Show Au&amp;xiliary Nodes during antialiasing</source>
        <translation>앤티앨리어싱 중 보조 노드 표시(&amp;X)</translation>
    </message>
    <message>
        <source>Interactive &amp;Material Preview</source>
        <translation>대화형 재질 미리 보기(&amp;M)</translation>
    </message>
    <message>
        <source>Interactive Material Preview: Use OpenGL for Interactive Rendering</source>
        <translation>대화형 재질 미리 보기: 대화형 렌더링에 OpenGL 사용</translation>
    </message>
    <message>
        <source>Use OpenGL for &amp;Interactive Rendering</source>
        <translation>대화형 렌더링에 OpenGL 사용(&amp;I)</translation>
    </message>
    <message>
        <source>Still&amp;frame AA After</source>
        <translation>정지 프레임 AA 대기(&amp;F)</translation>
    </message>
    <message>
        <source>Stillframe AA After, in seconds</source>
        <translation>정지 프레임 AA 대기 시간(초)</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Antialiasing Distance</source>
        <translation>앤티앨리어싱 거리</translation>
    </message>
    <message>
        <source>Antialiasing Scale</source>
        <translation>앤티앨리어싱 배율</translation>
    </message>
    <message>
        <source>High Quality Antialiasing</source>
        <translation>고품질 앤티앨리어싱</translation>
    </message>
    <message>
        <source>Show Camera &amp;Visualizations</source>
        <translation>카메라 시각화 표시(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;Light Visualizations</source>
        <translation>조명 시각화 표시(&amp;L)</translation>
    </message>
    <message>
        <source>Show &amp;Joint Visualizations</source>
        <translation>조인트 시각화 표시(&amp;J)</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>투명도</translation>
    </message>
    <message>
        <source>&amp;Transparent Sorting</source>
        <translation>투명도 정렬(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Z Write Transparency</source>
        <translation>투명도 Z 쓰기(&amp;Z)</translation>
    </message>
    <message>
        <source>Raytracing</source>
        <translation>레이 트레이싱</translation>
    </message>
    <message>
        <source>Enable &amp;Downscale</source>
        <translation>다운스케일 사용(&amp;D)</translation>
    </message>
    <message>
        <source>Do&amp;wnscale Quality</source>
        <translation>다운스케일 품질(&amp;W)</translation>
    </message>
    <message>
        <source>Downscale Quality</source>
        <translation>다운스케일 품질</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>중간</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Render Window</source>
        <translation>렌더링 창</translation>
    </message>
    <message>
        <source>If activated ORLO uses a fixed rendering windows resolution</source>
        <translation>사용하면 ORLO가 고정된 렌더링 창 해상도를 사용합니다</translation>
    </message>
    <message>
        <source>&amp;Use Fixed Resolution</source>
        <translation>고정 해상도 사용(&amp;U)</translation>
    </message>
    <message>
        <source>Pixel R&amp;esolution</source>
        <translation>픽셀 해상도(&amp;E)</translation>
    </message>
    <message>
        <source>Pixel Resolution Width</source>
        <translation>픽셀 해상도 너비</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Pixel Resolution Height</source>
        <translation>픽셀 해상도 높이</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Advanced Rendering</source>
        <translation>고급 렌더링</translation>
    </message>
    <message>
        <source>Enables rendering to a 10bit buffer.</source>
        <translation>10비트 버퍼에 렌더링합니다.</translation>
    </message>
    <message>
        <source>Use &amp;10 Bit RGB</source>
        <translation>10비트 RGB 사용(&amp;1)</translation>
    </message>
    <message>
        <source>Enables rendering to a 16bit float buffer</source>
        <translation>16비트 부동 소수점 버퍼에 렌더링합니다</translation>
    </message>
    <message>
        <source>Use 1&amp;6 Bit Float RGB</source>
        <translation>16비트 부동 소수점 RGB 사용(&amp;6)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Enables single pass stereo rendering on GPUs supporting the required extensions in order to improve performance.&lt;/p&gt;&lt;p&gt;Single Pass Stereo is not available when Multicast Stereo is active.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;성능을 높이기 위해 필요한 확장을 지원하는 GPU에서 단일 패스 스테레오 렌더링을 사용합니다.&lt;/p&gt;&lt;p&gt;멀티캐스트 스테레오를 사용하는 동안에는 단일 패스 스테레오를 사용할 수 없습니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&amp;Single Pass Stereo</source>
        <translation>단일 패스 스테레오(&amp;S)</translation>
    </message>
    <message>
        <source>Enables occlusion culling by default</source>
        <translation>기본적으로 오클루전 컬링을 사용합니다</translation>
    </message>
    <message>
        <source>Occl&amp;usion Culling</source>
        <translation>오클루전 컬링(&amp;U)</translation>
    </message>
    <message>
        <source>Occlusion Culling Mode</source>
        <translation>오클루전 컬링 모드</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the occlusion culling mode. Accurate always renders all visible objects while Fast takes the visibility information from the previous frame. Note that the Fast option may cause wrong rendering when there are huge changes between frames.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;오클루전 컬링 모드를 설정합니다. &quot;정확&quot;은 보이는 모든 개체를 항상 렌더링하고, &quot;빠름&quot;은 이전 프레임의 가시성 정보를 사용합니다. &quot;빠름&quot; 옵션을 사용하면 프레임 사이의 변화가 클 때 잘못 렌더링될 수 있습니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Accurate</source>
        <translation>정확</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>빠름</translation>
    </message>
    <message>
        <source>Renders the whole scene once with all LOD&apos;s and disabled frustum culling to get rid of jerky rendering.</source>
        <translation>모든 LOD와 함께 절두체 컬링 없이 장면 전체를 한 번 렌더링하여 끊김 현상을 없앱니다.</translation>
    </message>
    <message>
        <source>Cac&amp;he Geometry</source>
        <translation>지오메트리 캐시(&amp;H)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;By default the ORLO process will go to sleep if less than 1 millisecond has passed between two frames to save power. If this option is activated the ORLO process will run in a busy loop and not go to sleep.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;기본적으로 ORLO 프로세스는 두 프레임 사이에 1밀리초가 지나지 않았으면 전력을 아끼기 위해 절전 상태가 됩니다. 이 옵션을 사용하면 ORLO 프로세스가 절전 상태가 되지 않고 계속 반복 실행됩니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Disable &amp;Main Thread Sleep</source>
        <translation>메인 스레드 절전 사용 안 함(&amp;M)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Force a glFinish call directly after swap buffers to avoid lag. Enabling reduces performance and scalability for systems running in Alternate Frame SLI mode.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;지연을 피하기 위해 버퍼를 교환한 직후에 glFinish를 강제로 호출합니다. 사용하면 교대 프레임 SLI 모드로 실행되는 시스템의 성능과 확장성이 떨어집니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Force G&amp;LFinish</source>
        <translation>GLFinish 강제 호출(&amp;L)</translation>
    </message>
    <message>
        <source>SLI</source>
        <translation>SLI</translation>
    </message>
    <message>
        <source>&amp;Enable SLI</source>
        <translation>SLI 사용(&amp;E)</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Sets the SLI mode to use. Alternate Frame only works correctly for mono rendering by rendering a frame on one GPU and the next on the second GPU. This works best for mono rendering and does not work for virtual reality headsets. Multicast Stereo only works for stereo rendering by using one GPU for each eye and therefore is also compatible with virtual reality headsets.&lt;/p&gt;&lt;p&gt;Changing this option requires a restart of ORLO.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;사용할 SLI 모드를 설정합니다. &quot;교대 프레임&quot;은 한 프레임을 한 GPU에서, 다음 프레임을 두 번째 GPU에서 렌더링하므로 모노 렌더링에서만 올바르게 작동합니다. 모노 렌더링에 가장 적합하며 가상 현실 헤드셋에서는 작동하지 않습니다. &quot;멀티캐스트 스테레오&quot;는 눈마다 GPU를 하나씩 사용하므로 스테레오 렌더링에서만 작동하며 가상 현실 헤드셋에서도 사용할 수 있습니다.&lt;/p&gt;&lt;p&gt;이 옵션을 변경하면 ORLO를 다시 시작해야 합니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>SLI Mo&amp;de</source>
        <translation>SLI 모드(&amp;D)</translation>
    </message>
    <message>
        <source>SLI Mode</source>
        <translation>SLI 모드</translation>
    </message>
    <message>
        <source>Alternate Frame</source>
        <translation>교대 프레임</translation>
    </message>
    <message>
        <source>Multicast Stereo</source>
        <translation>멀티캐스트 스테레오</translation>
    </message>
    <message>
        <source>Visualization Advanced</source>
        <translation>고급 시각화</translation>
    </message>
    <message>
        <source>L&amp;imit Near and Far Clipping Plane</source>
        <translation>근거리 및 원거리 클리핑 평면 제한(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Near Clipping Plane</source>
        <translation>근거리 클리핑 평면(&amp;N)</translation>
    </message>
    <message>
        <source>Near Clipping Plane</source>
        <translation>근거리 클리핑 평면</translation>
    </message>
    <message>
        <source>&amp;Far Clipping Plane</source>
        <translation>원거리 클리핑 평면(&amp;F)</translation>
    </message>
    <message>
        <source>Far Clipping Plane</source>
        <translation>원거리 클리핑 평면</translation>
    </message>
    <message>
        <source>Realtime Antialiasing Presets</source>
        <translation>실시간 앤티앨리어싱 사전 설정</translation>
    </message>
    <message>
        <source>Low Quality Settings</source>
        <translation>저품질 설정</translation>
    </message>
    <message>
        <source>Sets the multisampling factor for opengl realtime antialiasing</source>
        <translation>OpenGL 실시간 앤티앨리어싱의 멀티샘플링 계수를 설정합니다</translation>
    </message>
    <message>
        <source>Multisampling</source>
        <translation>멀티샘플링</translation>
    </message>
    <message>
        <source>Low Quality Multisampling</source>
        <translation>저품질 멀티샘플링</translation>
    </message>
    <message>
        <source>Low Quality Raytracing</source>
        <translation>저품질 레이 트레이싱</translation>
    </message>
    <message>
        <source>Enables the use of a pixelfilter to improve multisampling quality</source>
        <translation>픽셀 필터를 사용하여 멀티샘플링 품질을 높입니다</translation>
    </message>
    <message>
        <source>Enable Pixelfilter</source>
        <translation>픽셀 필터 사용</translation>
    </message>
    <message>
        <source>Enables 2x supersampling additional to multisampling. This can greatly increase quality but is also very slow to render.</source>
        <translation>멀티샘플링에 더해 2x 슈퍼샘플링을 사용합니다. 품질이 크게 좋아지지만 렌더링이 매우 느려집니다.</translation>
    </message>
    <message>
        <source>Enable Supersampling</source>
        <translation>슈퍼샘플링 사용</translation>
    </message>
    <message>
        <source>Medium Quality Settings</source>
        <translation>중간 품질 설정</translation>
    </message>
    <message>
        <source>Medium Quality Multisampling</source>
        <translation>중간 품질 멀티샘플링</translation>
    </message>
    <message>
        <source>Medium Quality Raytracing</source>
        <translation>중간 품질 레이 트레이싱</translation>
    </message>
    <message>
        <source>High Quality Settings</source>
        <translation>고품질 설정</translation>
    </message>
    <message>
        <source>High Quality Multisampling</source>
        <translation>고품질 멀티샘플링</translation>
    </message>
    <message>
        <source>High Quality Raytracing</source>
        <translation>고품질 레이 트레이싱</translation>
    </message>
    <message>
        <source>Ultra Quality Settings</source>
        <translation>초고품질 설정</translation>
    </message>
    <message>
        <source>Ultra Quality Multisampling</source>
        <translation>초고품질 멀티샘플링</translation>
    </message>
    <message>
        <source>Ultra Quality Raytracing</source>
        <translation>초고품질 레이 트레이싱</translation>
    </message>
    <message>
        <source>Viewport</source>
        <translation>뷰포트</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>추가(&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>삭제(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;hoose Color</source>
        <translation>색상 선택(&amp;H)</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>조명</translation>
    </message>
    <message>
        <source>Headlight &amp;Behaviour</source>
        <translation>헤드라이트 동작(&amp;B)</translation>
    </message>
    <message>
        <source>Headlight Behaviour</source>
        <translation>헤드라이트 동작</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Always On</source>
        <translation>항상 켜짐</translation>
    </message>
    <message>
        <source>Always Off</source>
        <translation>항상 꺼짐</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>&amp;Use Point Headlight</source>
        <translation>점 헤드라이트 사용(&amp;U)</translation>
    </message>
    <message>
        <source>Navigation Help</source>
        <translation>탐색 도우미</translation>
    </message>
    <message>
        <source>Show Coo&amp;rdinate System</source>
        <translation>좌표계 표시(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;Navigation Cube</source>
        <translation>탐색 큐브 표시(&amp;N)</translation>
    </message>
    <message>
        <source>Use &amp;Z-Up Coordinate System</source>
        <translation>Z축이 위인 좌표계 사용(&amp;Z)</translation>
    </message>
    <message>
        <source>Progress Cursor</source>
        <translation>진행률 커서</translation>
    </message>
    <message>
        <source>Shows the progress wheel during anti-aliasing.</source>
        <translation>앤티앨리어싱 중에 진행률 휠을 표시합니다.</translation>
    </message>
    <message>
        <source>Sho&amp;w Progress</source>
        <translation>진행률 표시(&amp;W)</translation>
    </message>
    <message>
        <source>Size of the progress wheel</source>
        <translation>진행률 휠의 크기</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>크기(&amp;S)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>If enabled, the progress wheel is placed in the lower left corner of the render view. Otherwise it is attached to the cursor.</source>
        <translation>사용하면 진행률 휠이 렌더링 뷰의 왼쪽 아래 모서리에 놓입니다. 그렇지 않으면 커서에 붙습니다.</translation>
    </message>
    <message>
        <source>S&amp;tatic Position</source>
        <translation>고정 위치(&amp;T)</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUII</name>
    <message>
        <source>Render Options</source>
        <translation>렌더링 옵션</translation>
    </message>
</context>
<context>
    <name>olRenderOptionsPreferencesGUIW</name>
    <message>
        <source>1 Sample</source>
        <translation>샘플 1개</translation>
    </message>
    <message>
        <source>2 Samples</source>
        <translation>샘플 2개</translation>
    </message>
    <message>
        <source>4 Samples</source>
        <translation>샘플 4개</translation>
    </message>
    <message>
        <source>8 Samples</source>
        <translation>샘플 8개</translation>
    </message>
    <message>
        <source>16 Samples</source>
        <translation>샘플 16개</translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUI</name>
    <message>
        <source>Tolerance</source>
        <translation>공차</translation>
    </message>
    <message>
        <source>Tesselation Topology</source>
        <translation>테셀레이션 토폴로지</translation>
    </message>
    <message>
        <source>Distance up to which edges count as joined, in millimetres</source>
        <translation>모서리가 이어진 것으로 보는 최대 거리(밀리미터)</translation>
    </message>
    <message>
        <source>&amp;Tolerance</source>
        <translation>공차(&amp;T)</translation>
    </message>
    <message>
        <source>Where the optimizer takes the topology of a model from</source>
        <translation>최적화기가 모델의 토폴로지를 얻는 곳</translation>
    </message>
    <message>
        <source>Topolog&amp;y</source>
        <translation>토폴로지(&amp;Y)</translation>
    </message>
    <message>
        <source>Topology</source>
        <translation>토폴로지</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Reuse Existing (If Any)</source>
        <translation>기존 항목 재사용(있는 경우)</translation>
    </message>
    <message>
        <source>No Topology</source>
        <translation>토폴로지 없음</translation>
    </message>
    <message>
        <source>Scales the offset between tessellated surfaces</source>
        <translation>테셀레이션된 곡면 사이의 오프셋에 배율을 적용합니다</translation>
    </message>
    <message>
        <source>Offset &amp;Factor</source>
        <translation>오프셋 계수(&amp;F)</translation>
    </message>
    <message>
        <source>Offset Factor</source>
        <translation>오프셋 계수</translation>
    </message>
    <message>
        <source>Turns faces that point the wrong way</source>
        <translation>잘못된 쪽을 향하는 면을 뒤집습니다</translation>
    </message>
    <message>
        <source>Check O&amp;rientation</source>
        <translation>방향 검사(&amp;R)</translation>
    </message>
    <message>
        <source>Tesselation Quality</source>
        <translation>테셀레이션 품질</translation>
    </message>
    <message>
        <source>Tolerances to choose from, in millimetres. Double-click one to change it.</source>
        <translation>선택할 수 있는 공차(밀리미터). 변경하려면 두 번 클릭하십시오.</translation>
    </message>
    <message>
        <source>Tolerance (mm)</source>
        <translation>공차(mm)</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>추가(&amp;D)</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>제거(&amp;E)</translation>
    </message>
</context>
<context>
    <name>olTesselationPreferencesGUIW</name>
    <message>
        <source>Tesselation</source>
        <translation>테셀레이션</translation>
    </message>
    <message>
        <source>Only positive non zero values are allowed!</source>
        <translation>0보다 큰 값만 사용할 수 있습니다!</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Teleport</source>
        <translation>텔레포트</translation>
    </message>
    <message>
        <source>Ground &amp;Mode</source>
        <translation>지면 모드(&amp;M)</translation>
    </message>
    <message>
        <source>Ground Mode</source>
        <translation>지면 모드</translation>
    </message>
    <message>
        <source>On Geometry</source>
        <translation>지오메트리 위</translation>
    </message>
    <message>
        <source>On Ground Plane</source>
        <translation>지면 평면 위</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>범위(&amp;R)</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>Sets how to render controllers when starting a session</source>
        <translation>세션을 시작할 때 컨트롤러를 렌더링하는 방식을 설정합니다</translation>
    </message>
    <message>
        <source>Default &amp;Visualization</source>
        <translation>기본 시각화(&amp;V)</translation>
    </message>
    <message>
        <source>Default Visualization</source>
        <translation>기본 시각화</translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation>컨트롤러</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>손</translation>
    </message>
    <message>
        <source>Creates collision objects for touch sensors and WebEngines</source>
        <translation>터치 센서와 WebEngine의 충돌 개체를 생성합니다</translation>
    </message>
    <message>
        <source>Cr&amp;eate Collision Objects</source>
        <translation>충돌 개체 생성(&amp;E)</translation>
    </message>
    <message>
        <source>Show &amp;Tooltips</source>
        <translation>도구 설명 표시(&amp;T)</translation>
    </message>
    <message>
        <source>StarVR</source>
        <translation>StarVR</translation>
    </message>
    <message>
        <source>Rendering</source>
        <translation>렌더링</translation>
    </message>
    <message>
        <source>Switch between foveated rendering (with eye-tracked high resolution area) and non-foveated rendering mode (viewports are fixed and not eye-tracked).</source>
        <translation>포비티드 렌더링(고해상도 영역이 시선을 따라감)과 비포비티드 렌더링 모드(뷰포트가 고정되어 시선을 따라가지 않음) 사이를 전환합니다.</translation>
    </message>
    <message>
        <source>Render &amp;Mode</source>
        <translation>렌더링 모드(&amp;M)</translation>
    </message>
    <message>
        <source>Render Mode</source>
        <translation>렌더링 모드</translation>
    </message>
    <message>
        <source>Foveated Rendering</source>
        <translation>포비티드 렌더링</translation>
    </message>
    <message>
        <source>Non-Foveated Rendering</source>
        <translation>비포비티드 렌더링</translation>
    </message>
    <message>
        <source>Defines percentage of the whole FOV per eye that is used for the high resolution area (e.g. FOV factor 0.35 = 35% of whole eye FOV used for eye tracked viewport)</source>
        <translation>각 눈의 전체 FOV 중 고해상도 영역에 사용할 비율을 정합니다(예: FOV 계수 0.35 = 눈 전체 FOV의 35%를 시선 추적 뷰포트에 사용)</translation>
    </message>
    <message>
        <source>Foveated FO&amp;V Factor</source>
        <translation>포비티드 FOV 계수(&amp;V)</translation>
    </message>
    <message>
        <source>Foveated FOV Factor</source>
        <translation>포비티드 FOV 계수</translation>
    </message>
    <message>
        <source>Resolution scale factor for high-resolution (foveated) area.</source>
        <translation>고해상도(포비티드) 영역의 해상도 배율입니다.</translation>
    </message>
    <message>
        <source>Fov&amp;eated Resolution Scale</source>
        <translation>포비티드 해상도 배율(&amp;E)</translation>
    </message>
    <message>
        <source>Foveated Resolution Scale</source>
        <translation>포비티드 해상도 배율</translation>
    </message>
    <message>
        <source>Resolution scale for low-resolution (full FOV, non-tracked) area.</source>
        <translation>저해상도(전체 FOV, 시선 추적 안 함) 영역의 해상도 배율입니다.</translation>
    </message>
    <message>
        <source>&amp;Non-Foveated Resolution Scale</source>
        <translation>비포비티드 해상도 배율(&amp;N)</translation>
    </message>
    <message>
        <source>Non-Foveated Resolution Scale</source>
        <translation>비포비티드 해상도 배율</translation>
    </message>
    <message>
        <source>Resolution scale for front viewports in non-foveated rendering mode.</source>
        <translation>비포비티드 렌더링 모드에서 정면 뷰포트의 해상도 배율입니다.</translation>
    </message>
    <message>
        <source>&amp;Front View Resolution Scale</source>
        <translation>정면 뷰 해상도 배율(&amp;F)</translation>
    </message>
    <message>
        <source>Front View Resolution Scale</source>
        <translation>정면 뷰 해상도 배율</translation>
    </message>
    <message>
        <source>Resolution Scale for side viewports in non-foveated rendering mode.</source>
        <translation>비포비티드 렌더링 모드에서 측면 뷰포트의 해상도 배율입니다.</translation>
    </message>
    <message>
        <source>Side View &amp;Resolution Scale</source>
        <translation>측면 뷰 해상도 배율(&amp;R)</translation>
    </message>
    <message>
        <source>Side View Resolution Scale</source>
        <translation>측면 뷰 해상도 배율</translation>
    </message>
    <message>
        <source>Use only one texture per eye in non-foveated rendering mode (instead of the two textures “front” and “side”).</source>
        <translation>비포비티드 렌더링 모드에서 눈마다 텍스처를 하나만 사용합니다(&quot;정면&quot;과 &quot;측면&quot; 두 텍스처 대신).</translation>
    </message>
    <message>
        <source>&amp;Single Texture per Eye</source>
        <translation>눈마다 단일 텍스처(&amp;S)</translation>
    </message>
</context>
<context>
    <name>olVirtualRealityPreferencesGUII</name>
    <message>
        <source>Virtual Reality</source>
        <translation>가상 현실</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>&amp;Enable Web Server</source>
        <translation>웹 서버 사용(&amp;E)</translation>
    </message>
    <message>
        <source>Po&amp;rt</source>
        <translation>포트(&amp;R)</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>&amp;SSL Port</source>
        <translation>SSL 포트(&amp;S)</translation>
    </message>
    <message>
        <source>SSL Port</source>
        <translation>SSL 포트</translation>
    </message>
    <message>
        <source>Restarting the application is mandatory after modifying the localhost only option!</source>
        <translation>&quot;localhost의 요청만 허용&quot; 옵션을 변경한 후에는 프로그램을 반드시 다시 시작해야 합니다!</translation>
    </message>
    <message>
        <source>Allow request from &amp;localhost only</source>
        <translation>localhost의 요청만 허용(&amp;L)</translation>
    </message>
    <message>
        <source>Allowed &amp;hosts</source>
        <translation>허용된 호스트(&amp;H)</translation>
    </message>
    <message>
        <source>Names or addresses of the hosts whose requests are answered, one a line</source>
        <translation>요청에 응답할 호스트의 이름 또는 주소. 한 줄에 하나씩</translation>
    </message>
    <message>
        <source>White List</source>
        <translation>허용 목록</translation>
    </message>
    <message>
        <source>Enable &amp;Debug Mode</source>
        <translation>디버그 모드 사용(&amp;D)</translation>
    </message>
    <message>
        <source>Restricted python functionality</source>
        <translation>Python 기능을 제한합니다</translation>
    </message>
    <message>
        <source>Secure P&amp;ython</source>
        <translation>보안 Python(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUII</name>
    <message>
        <source>WebInterface</source>
        <translation>웹 인터페이스</translation>
    </message>
</context>
<context>
    <name>olWebInterfacePreferencesGUIW</name>
    <message>
        <source>Enable Web Server</source>
        <translation>웹 서버 사용</translation>
    </message>
    <message>
        <source>Do you really want to enable the Web Server?
The Web Server allows the execution of Python commands from remote locations!</source>
        <translation>정말 웹 서버를 사용하시겠습니까?
웹 서버를 사용하면 원격 위치에서 Python 명령을 실행할 수 있습니다!</translation>
    </message>
    <message>
        <source>Choosing &quot;Enable&quot; enables the Web Server.
You are advised to set up a local firewall to protect yourself from unauthorized access.

Choosing &quot;Do Not Enable&quot; leaves the Web Server disabled.</source>
        <translation>&quot;사용&quot;을 선택하면 웹 서버가 켜집니다.
무단 액세스로부터 보호하려면 로컬 방화벽을 설정하는 것이 좋습니다.

&quot;사용 안 함&quot;을 선택하면 웹 서버는 꺼진 상태로 유지됩니다.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Do Not Enable</source>
        <translation>사용 안 함</translation>
    </message>
</context>
<context>
    <name>olWrlPreferencesGUI</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Loader</source>
        <translation>로더</translation>
    </message>
    <message>
        <source>CAD system that the loader takes a file to come from</source>
        <translation>로더가 파일의 출처로 간주하는 CAD 시스템</translation>
    </message>
    <message>
        <source>Op&amp;timization</source>
        <translation>최적화(&amp;T)</translation>
    </message>
    <message>
        <source>Optimization</source>
        <translation>최적화</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
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
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Writer</source>
        <translation>작성기</translation>
    </message>
    <message>
        <source>Writes textures into the file instead of beside it</source>
        <translation>텍스처를 파일 옆이 아니라 파일 안에 저장합니다</translation>
    </message>
    <message>
        <source>Inline &amp;Textures</source>
        <translation>텍스처 포함(&amp;T)</translation>
    </message>
</context>
</TS>

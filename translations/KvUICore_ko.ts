<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>알파</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>숨겨진 수준</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>색상환</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, 색조 %2°, 채도 %3 %, 명도 %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>알파</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>그라데이션</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>정지점 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>정지점 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, 정지점 %1 (%2 %): %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>이미지 없음</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 픽셀</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>최근 색</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>색 선택기</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorPicker</name>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>색조(도)</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>채도(%)</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>명도(%)</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>알파</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>화면에서 색 선택(Esc로 취소)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>이 플랫폼에서는 화면에서 색을 선택할 수 없습니다</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>이전 색</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>새 색</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>16진수 색</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>스포이트</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>색 없음</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>토글</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>단추</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>드롭다운</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>텍스트 필드</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>슬라이더</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>트리 드롭다운</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>이미지 없음</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 픽셀</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>파일이 없습니다.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>파일이 %1MiB보다 큽니다.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>파일이 읽을 수 있는 형식의 이미지가 아닙니다.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>이미지 헤더에 크기 정보가 없습니다.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>이미지가 %1 × %2 픽셀로, 견본이 디코딩하는 %3메가픽셀보다 큽니다.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>이 이미지를 디코딩하려면 %1MiB가 필요하며, 허용된 %2MiB보다 큽니다.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>이미지를 디코딩할 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>메시지 닫기</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>크기 조정</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>그룹</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>최근 색</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>검색 필드</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>검색 지우기</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>최근 검색</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>UI 스킨용 QXmlStream</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>XML 파일 열기</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL 파일 (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>파일 %1의 %2행 %3열에서 구문 분석 오류:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>파일 %1을(를) 읽을 수 없습니다:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>일반 파일이 아님</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>파일이 %1바이트보다 큽니다</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>파일이 XBEL 버전 1.0 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>색의 16진수 형식이 잘못되었습니다!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>잘못된 16진수 형식입니다!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>%1의 값은 참조를 확장하면 %2자를 넘습니다.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>파일의 참조를 확장하면 %1자를 넘습니다.</translation>
    </message>
</context>
</TS>

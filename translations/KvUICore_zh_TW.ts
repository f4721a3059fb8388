<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>透明度</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>隱藏的層級</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>色輪</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1，色相 %2°，飽和度 %3 %，明度 %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>漸層</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 個色標</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n 個色標</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>，色標 %1 位於 %2 %：%3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>無影像</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>最近使用的色彩</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>色彩選擇器</translation>
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
        <translation>紅</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>色相（度）</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>飽和度（%）</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>明度（%）</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>從螢幕擷取色彩（按 Esc 取消）</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>此平台不支援從螢幕擷取色彩</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>原色彩</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>新色彩</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>十六進位色彩</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>滴管</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>無色彩</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>切換</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按鈕</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>下拉式清單</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>文字欄位</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>滑桿</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>影像</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>樹狀下拉式清單</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>無影像</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 像素</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>檔案不存在。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>這不是一般檔案。</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>檔案大於 %1 MiB。</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>此檔案不是可讀取格式的影像。</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>影像標頭未提供尺寸。</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>影像為 %1 × %2 像素，超過色票可解碼的 %3 百萬像素。</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>解碼此影像需要 %1 MiB，超過允許的 %2 MiB。</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>無法解碼影像：%1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>關閉訊息</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>訊息</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>調整大小</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群組</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>最近使用的色彩</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>搜尋欄位</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜尋</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>最近搜尋</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>介面外觀的 QXmlStream</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>開啟 XML 檔案</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL 檔案 (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>檔案 %1 第 %2 行第 %3 欄剖析錯誤：
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>無法讀取檔案 %1：
%2。</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>檔案不存在</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>檔案大於 %1 位元組</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>此檔案不是 XBEL 1.0 版檔案。</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>色彩的十六進位格式無效！</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>十六進位格式無效！</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>展開參照後，%1 的值超過 %2 個字元。</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>檔案中的參照展開後超過 %1 個字元。</translation>
    </message>
</context>
</TS>

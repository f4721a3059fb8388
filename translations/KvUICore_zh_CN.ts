<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>隐藏的层级</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>色轮</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1，色相 %2°，饱和度 %3 %，明度 %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 个色标</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n 个色标</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>，色标 %1 位于 %2 %：%3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>无图像</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>最近使用的颜色</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>颜色选择器</translation>
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
        <translation>红</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
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
        <translation>饱和度（%）</translation>
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
        <translation>从屏幕取色（按 Esc 取消）</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>此平台不支持从屏幕取色</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>原颜色</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>新颜色</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>十六进制颜色</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>吸管</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>无颜色</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>下拉列表</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>文本框</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>树形下拉列表</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>无图像</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 像素</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>这不是常规文件。</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>文件大于 %1 MiB。</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>该文件不是可读取格式的图像。</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>图像头部未给出尺寸。</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>图像为 %1 × %2 像素，超过了色板可解码的 %3 百万像素。</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>解码此图像需要 %1 MiB，超过了允许的 %2 MiB。</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>无法解码图像：%1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>关闭消息</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>调整大小</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>最近使用的颜色</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>搜索框</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>最近搜索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>界面皮肤的 QXmlStream</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>打开 XML 文件</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL 文件 (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>文件 %1 第 %2 行第 %3 列解析错误：
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>无法读取文件 %1：
%2。</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>不是常规文件</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>文件大于 %1 字节</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>该文件不是 XBEL 1.0 版文件。</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>颜色的十六进制格式无效！</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>十六进制格式无效！</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>展开引用后，%1 的值超过 %2 个字符。</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>文件中的引用展开后超过 %1 个字符。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>非表示の階層</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>カラーホイール</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1、色相 %2°、彩度 %3 %、明度 %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>グラデーション</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>分岐点 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>分岐点 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>、分岐点 %1 (%2 %): %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 ピクセル</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>最近使った色</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>カラー ピッカー</translation>
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
        <translation>赤</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>色相 (度)</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>彩度 (%)</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>明度 (%)</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>画面から色を取得 (Esc でキャンセル)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>このプラットフォームでは画面から色を取得できません</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>元の色</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>新しい色</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>16 進カラー</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>スポイト</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>色なし</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>トグル</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>ドロップダウン</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>テキスト フィールド</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>ツリー ドロップダウン</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 ピクセル</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>ファイルが %1 MiB を超えています。</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>ファイルは読み取り可能な形式の画像ではありません。</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>画像のヘッダーにサイズが記載されていません。</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>画像は %1 × %2 ピクセルで、スウォッチがデコードできる %3 メガピクセルを超えています。</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>この画像のデコードには %1 MiB が必要で、許容される %2 MiB を超えます。</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>画像をデコードできませんでした: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>メッセージを閉じる</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>サイズ変更</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>最近使った色</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>検索フィールド</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>最近の検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>UI スキンの QXmlStream</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>XML ファイルを開く</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL ファイル (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>ファイル %1 の %2 行 %3 列で解析エラー:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>ファイル %1 を読み込めません:
%2。</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>ファイルが存在しません</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>ファイルが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>ファイルは XBEL バージョン 1.0 のファイルではありません。</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>色の 16 進形式が無効です。</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>16 進形式が無効です。</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>%1 の値は参照を展開すると %2 文字を超えます。</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>ファイルの参照を展開すると %1 文字を超えます。</translation>
    </message>
</context>
</TS>

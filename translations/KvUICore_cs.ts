<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>Skryté úrovně</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Barevné kolo</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, odstín %2°, sytost %3 %, jas %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Přechod</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 barevný bod</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n barevný bod</numerusform>
            <numerusform>%n barevné body</numerusform>
            <numerusform>%n barevných bodů</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, bod %1 na %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Barva</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Žádný obrázek</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixelů</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Nedávné barvy</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Výběr barvy</translation>
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
        <translation>Červená</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zelená</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Modrá</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Odstín ve stupních</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Sytost v procentech</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Jas v procentech</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>Nabrat barvu z obrazovky (Esc zruší)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Nabírání barvy z obrazovky není na této platformě k dispozici</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Původní barva</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nová barva</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Šestnáctková barva</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Kapátko</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>žádná barva</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Přepínač</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Tlačítko</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Rozbalovací seznam</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Textové pole</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Posuvník</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Číslo</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obrázek</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtrovat</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Rozbalovací stromový seznam</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Žádný obrázek</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixelů</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Soubor neexistuje.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Nejde o běžný soubor.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Soubor je větší než %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Soubor není obrázek ve formátu, který lze přečíst.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>Hlavička obrázku neuvádí velikost.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>Obrázek má %1 × %2 pixelů, víc než %3 megapixelů, které vzorník dekóduje.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Dekódování tohoto obrázku by zabralo %1 MiB, víc než povolených %2 MiB.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Obrázek nelze dekódovat: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Zavřít zprávu</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Zprávy</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Změnit velikost</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Nedávné barvy</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Pole hledání</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Vymazat hledání</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Nedávná hledání</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream pro vzhled rozhraní</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Otevřít soubor XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Soubory XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Chyba při zpracování souboru %1 na řádku %2, sloupci %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Soubor %1 nelze přečíst:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Soubor neexistuje</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Není běžný soubor</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Soubor je větší než %1 bajtů</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Soubor není souborem XBEL verze 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Šestnáctkový formát barvy je neplatný!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Neplatný šestnáctkový formát!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>Hodnota %1 po rozvinutí odkazů přesáhne %2 znaků.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Odkazy souboru se rozvinou na více než %1 znaků.</translation>
    </message>
</context>
</TS>

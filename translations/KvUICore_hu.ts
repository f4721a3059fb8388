<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu">
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
        <translation>Rejtett szintek</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Elérési út</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Színkör</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, színárnyalat %2°, telítettség %3 %, világosság %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Színátmenet</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 színpont</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n színpont</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, %1. színpont (%2 %): %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Szín</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Nincs kép</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 képpont</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Legutóbbi színek</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Színválasztó</translation>
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
        <translation>Vörös</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zöld</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Kék</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Színárnyalat fokban</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Telítettség százalékban</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Világosság százalékban</translation>
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
        <translation>Szín felvétele a képernyőről (az Esc megszakítja)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>A képernyőről való színfelvétel ezen a platformon nem érhető el</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Régi szín</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Új szín</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Hexadecimális szín</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipetta</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>nincs szín</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Kapcsoló</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Gomb</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Legördülő lista</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Szövegmező</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Csúszka</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Szám</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Csoport</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Kép</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Szűrés</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Legördülő fa</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Nincs kép</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 képpont</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>A fájl nem létezik.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ez nem szabályos fájl.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>A fájl nagyobb, mint %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>A fájl nem olvasható formátumú kép.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>A kép fejléce nem ad meg méretet.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>A kép %1 × %2 képpontos, több, mint a minta által dekódolt %3 megapixel.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>A kép dekódolása %1 MiB memóriát igényelne, többet a megengedett %2 MiB-nál.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>A képet nem sikerült dekódolni: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Figyelmeztetés</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Üzenet bezárása</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Üzenetek</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Átméretezés</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Tulajdonságok</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Csoport</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Legutóbbi színek</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Keresőmező</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Keresés törlése</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Legutóbbi keresések</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Szöveg</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream a felület témájához</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>XML-fájl megnyitása</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL-fájlok (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Elemzési hiba a(z) %1 fájlban, %2. sor, %3. oszlop:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>A(z) %1 fájl nem olvasható:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>A fájl nem létezik</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Nem szabályos fájl</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>A fájl nagyobb, mint %1 bájt</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>A fájl nem XBEL 1.0-s verziójú fájl.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>A szín hexadecimális formátuma érvénytelen!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Érvénytelen hexadecimális formátum!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>A(z) %1 értéke a hivatkozások kifejtésekor %2 karakternél hosszabb lesz.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>A fájl hivatkozásai kifejtve %1 karakternél hosszabbak.</translation>
    </message>
</context>
</TS>

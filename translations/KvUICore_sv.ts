<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
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
        <translation>Dolda nivåer</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sökväg</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Färghjul</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, nyans %2°, mättnad %3 %, ljushet %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Färgövergång</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 färgstopp</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n färgstopp</numerusform>
            <numerusform>%n färgstopp</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, stopp %1 vid %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Ingen bild</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixlar</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Senaste färger</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Färgväljare</translation>
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
        <translation>Röd</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grön</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blå</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Nyans i grader</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Mättnad i procent</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Ljushet i procent</translation>
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
        <translation>Hämta en färg från skärmen (Esc avbryter)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Att hämta en färg från skärmen är inte tillgängligt på den här plattformen</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Tidigare färg</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Ny färg</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Hexadecimal färg</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipett</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>ingen färg</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Växlingsknapp</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knapp</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Listruta</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Textfält</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Skjutreglage</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Tal</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupp</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtrera</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Rullgardinsträd</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Ingen bild</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixlar</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Filen finns inte.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Detta är inte en vanlig fil.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Filen är större än %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Filen är inte en bild i ett läsbart format.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>Bildens huvud anger ingen storlek.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>Bilden har %1 × %2 pixlar, fler än de %3 megapixlar som ett färgprov avkodar.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Att avkoda den här bilden skulle ta %1 MiB, mer än de tillåtna %2 MiB.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Bilden kunde inte avkodas: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Stäng meddelandet</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meddelanden</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Ändra storlek</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupp</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Senaste färger</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Sökfält</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Rensa sökningen</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Senaste sökningar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
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
        <translation>QXmlStream för gränssnittstema</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Öppna XML-fil</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL-filer (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Tolkningsfel i filen %1 på rad %2, kolumn %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Det går inte att läsa filen %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Filen finns inte</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Inte en vanlig fil</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Filen är större än %1 byte</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Filen är inte en XBEL-fil version 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Färgens hexadecimala format är ogiltigt!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Ogiltigt hexadecimalt format!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>Värdet för %1 blir längre än %2 tecken när dess referenser expanderas.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Filens referenser expanderas till mer än %1 tecken.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
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
        <translation>Verborgen niveaus</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pad</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Kleurenwiel</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, tint %2°, verzadiging %3 %, helderheid %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Kleurverloop</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 kleurpunt</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n kleurpunt</numerusform>
            <numerusform>%n kleurpunten</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, punt %1 op %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Geen afbeelding</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Recente kleuren</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Kleurkiezer</translation>
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
        <translation>Rood</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Tint in graden</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Verzadiging in procenten</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Helderheid in procenten</translation>
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
        <translation>Een kleur van het scherm kiezen (Esc annuleert)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Een kleur van het scherm kiezen is op dit platform niet beschikbaar</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Oude kleur</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nieuwe kleur</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Hexadecimale kleur</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipet</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>geen kleur</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Schakelaar</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Knop</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Vervolgkeuzelijst</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Tekstveld</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schuifregelaar</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Getal</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Afbeelding</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Vervolgkeuzelijst met boomstructuur</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Geen afbeelding</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixels</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Het bestand bestaat niet.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Dit is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Het bestand is groter dan %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Het bestand is geen afbeelding in een leesbare indeling.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>De header van de afbeelding geeft geen grootte op.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>De afbeelding heeft %1 × %2 pixels, meer dan de %3 megapixels die een staal decodeert.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Het decoderen van deze afbeelding zou %1 MiB kosten, meer dan de toegestane %2 MiB.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>De afbeelding kon niet worden gedecodeerd: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Bericht sluiten</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Berichten</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Formaat wijzigen</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groep</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Recente kleuren</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Zoekveld</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Zoekopdracht wissen</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Recente zoekopdrachten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream voor UI-skin</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>XML-bestand openen</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL-bestanden (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Verwerkingsfout in bestand %1 op regel %2, kolom %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Kan bestand %1 niet lezen:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Het bestand bestaat niet</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Geen gewoon bestand</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Het bestand is groter dan %1 bytes</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Het bestand is geen XBEL-bestand versie 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>De hexadecimale notatie van de kleur is ongeldig!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Ongeldige hexadecimale notatie!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>De waarde van %1 wordt langer dan %2 tekens wanneer de verwijzingen worden uitgevouwen.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>De verwijzingen in het bestand worden uitgevouwen tot meer dan %1 tekens.</translation>
    </message>
</context>
</TS>

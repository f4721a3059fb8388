<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
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
        <translation>Ukryte poziomy</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Koło kolorów</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, odcień %2°, nasycenie %3 %, jasność %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Przejście kolorów</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 punkt koloru</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n punkt koloru</numerusform>
            <numerusform>%n punkty koloru</numerusform>
            <numerusform>%n punktów koloru</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, punkt %1 na %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Brak obrazu</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pikseli</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Ostatnie kolory</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Selektor kolorów</translation>
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
        <translation>Czerwony</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Zielony</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Niebieski</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Odcień w stopniach</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Nasycenie w procentach</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Jasność w procentach</translation>
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
        <translation>Pobierz kolor z ekranu (Esc anuluje)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Pobieranie koloru z ekranu nie jest dostępne na tej platformie</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Poprzedni kolor</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nowy kolor</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Kolor szesnastkowy</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipeta</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>brak koloru</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Przełącznik</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Przycisk</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Lista rozwijana</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Pole tekstowe</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Suwak</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Liczba</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtruj</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Rozwijana lista drzewa</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Brak obrazu</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pikseli</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>To nie jest zwykły plik.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Plik jest większy niż %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Plik nie jest obrazem w formacie, który można odczytać.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>Nagłówek obrazu nie podaje rozmiaru.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>Obraz ma %1 × %2 pikseli, więcej niż %3 megapikseli dekodowanych przez próbkę.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Dekodowanie tego obrazu zajęłoby %1 MiB, więcej niż dozwolone %2 MiB.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Nie można zdekodować obrazu: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Zamknij komunikat</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Komunikaty</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Zmień rozmiar</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Ostatnie kolory</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Pole wyszukiwania</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Ostatnie wyszukiwania</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
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
        <translation>QXmlStream dla skórki interfejsu</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Otwórz plik XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Pliki XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Błąd analizy w pliku %1 w wierszu %2, kolumnie %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Nie można odczytać pliku %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Plik nie istnieje</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>To nie jest zwykły plik</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Plik jest większy niż %1 bajtów</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Plik nie jest plikiem XBEL w wersji 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Nieprawidłowy szesnastkowy format koloru!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Nieprawidłowy format szesnastkowy!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>Wartość %1 po rozwinięciu odwołań przekracza %2 znaków.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Odwołania w pliku rozwijają się do ponad %1 znaków.</translation>
    </message>
</context>
</TS>

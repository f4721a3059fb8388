<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
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
        <translation>Livelli nascosti</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Ruota dei colori</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, tonalità %2°, saturazione %3 %, valore %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Sfumatura</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 punto di colore</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n punto di colore</numerusform>
            <numerusform>%n punti di colore</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, punto %1 al %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixel</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Colori recenti</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Selettore colore</translation>
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
        <translation>Rosso</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Tonalità in gradi</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Saturazione in percentuale</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Valore in percentuale</translation>
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
        <translation>Preleva un colore dallo schermo (Esc annulla)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Il prelievo di un colore dallo schermo non è disponibile su questa piattaforma</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Colore precedente</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nuovo colore</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Colore esadecimale</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Contagocce</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>nessun colore</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Interruttore</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Pulsante</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Elenco a discesa</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Campo di testo</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Dispositivo di scorrimento</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Elenco a discesa ad albero</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixel</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Non è un file regolare.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Il file è più grande di %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Il file non è un&apos;immagine in un formato leggibile.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>L&apos;intestazione dell&apos;immagine non indica alcuna dimensione.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>L&apos;immagine ha %1 × %2 pixel, più dei %3 megapixel che un campione decodifica.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>La decodifica di questa immagine richiederebbe %1 MiB, più dei %2 MiB consentiti.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Impossibile decodificare l&apos;immagine: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Chiudi messaggio</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Ridimensiona</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Colori recenti</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Campo di ricerca</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Cancella ricerca</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Ricerche recenti</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream per l&apos;aspetto dell&apos;interfaccia</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Apri file XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>File XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Errore di analisi nel file %1 alla riga %2, colonna %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Impossibile leggere il file %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Il file non esiste</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Non è un file regolare</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Il file è più grande di %1 byte</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Il file non è un file XBEL versione 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Il formato esadecimale del colore non è valido!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Formato esadecimale non valido!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>Il valore di %1 supera i %2 caratteri quando i suoi riferimenti vengono espansi.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>I riferimenti del file si espandono in più di %1 caratteri.</translation>
    </message>
</context>
</TS>

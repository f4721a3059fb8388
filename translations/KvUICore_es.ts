<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>Niveles ocultos</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Rueda de color</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, tono %2°, saturación %3 %, valor %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 parada</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n parada</numerusform>
            <numerusform>%n paradas</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, parada %1 en %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Colores recientes</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Selector de color</translation>
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
        <translation>Rojo</translation>
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
        <translation>Azul</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Tono en grados</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Saturación en porcentaje</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Valor en porcentaje</translation>
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
        <translation>Tomar un color de la pantalla (Esc cancela)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Tomar un color de la pantalla no está disponible en esta plataforma</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Color anterior</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Color nuevo</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Color hexadecimal</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Cuentagotas</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>sin color</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Alternar</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Lista desplegable</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Campo de texto</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Control deslizante</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Lista desplegable en árbol</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 píxeles</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>El archivo ocupa más de %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>El archivo no es una imagen en un formato legible.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>El encabezado de la imagen no indica ningún tamaño.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>La imagen tiene %1 × %2 píxeles, más que los %3 megapíxeles que decodifica una muestra.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Decodificar esta imagen ocuparía %1 MiB, más que los %2 MiB permitidos.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>No se pudo decodificar la imagen: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Cerrar mensaje</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Cambiar tamaño</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Colores recientes</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Campo de búsqueda</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Búsquedas recientes</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream para el aspecto de la interfaz</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Abrir archivo XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Archivos XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Error de análisis en el archivo %1 en la línea %2, columna %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>No se puede leer el archivo %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>El archivo no existe</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>El archivo ocupa más de %1 bytes</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>El archivo no es un archivo XBEL versión 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>¡El formato hexadecimal del color no es válido!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>¡Formato hexadecimal no válido!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>El valor de %1 supera los %2 caracteres al expandir sus referencias.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Las referencias del archivo se expanden a más de %1 caracteres.</translation>
    </message>
</context>
</TS>

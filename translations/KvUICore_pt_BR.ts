<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Níveis ocultos</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Roda de cores</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, matiz %2°, saturação %3 %, valor %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradiente</translation>
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
        <translation>, parada %1 em %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Nenhuma imagem</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Cores recentes</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Seletor de cores</translation>
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
        <translation>Vermelho</translation>
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
        <translation>Matiz em graus</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Saturação em porcentagem</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Valor em porcentagem</translation>
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
        <translation>Capturar uma cor da tela (Esc cancela)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Capturar uma cor da tela não está disponível nesta plataforma</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Cor anterior</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nova cor</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Cor hexadecimal</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Conta-gotas</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>sem cor</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Alternância</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botão</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Lista suspensa</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Campo de texto</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Controle deslizante</translation>
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
        <translation>Progresso</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
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
        <translation>Lista suspensa em árvore</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Nenhuma imagem</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixels</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Não é um arquivo comum.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>O arquivo é maior que %1 MiB.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>O arquivo não é uma imagem em um formato legível.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>O cabeçalho da imagem não informa o tamanho.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>A imagem tem %1 × %2 pixels, mais que os %3 megapixels que uma amostra decodifica.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Decodificar esta imagem ocuparia %1 MiB, mais que os %2 MiB permitidos.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Não foi possível decodificar a imagem: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Fechar mensagem</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
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
        <translation>Cores recentes</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Campo de pesquisa</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Limpar pesquisa</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Pesquisas recentes</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
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
        <translation>QXmlStream para o tema da interface</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Abrir arquivo XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Arquivos XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Erro de análise no arquivo %1 na linha %2, coluna %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Não é possível ler o arquivo %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>O arquivo não existe</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Não é um arquivo comum</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>O arquivo é maior que %1 bytes</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>O arquivo não é um arquivo XBEL versão 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>O formato hexadecimal da cor é inválido!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Formato hexadecimal inválido!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>O valor de %1 ultrapassa %2 caracteres quando suas referências são expandidas.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>As referências do arquivo se expandem para mais de %1 caracteres.</translation>
    </message>
</context>
</TS>

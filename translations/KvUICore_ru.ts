<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>Альфа</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>Скрытые уровни</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Цветовой круг</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, тон %2°, насыщенность %3 %, яркость %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Альфа</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Градиент</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 опорная точка</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n опорная точка</numerusform>
            <numerusform>%n опорные точки</numerusform>
            <numerusform>%n опорных точек</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, точка %1 на %2 %: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Нет изображения</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 пикс.</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Недавние цвета</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Выбор цвета</translation>
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
        <translation>Красный</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Тон в градусах</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Насыщенность в процентах</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Яркость в процентах</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Альфа</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>Взять цвет с экрана (Esc — отмена)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Выбор цвета с экрана на этой платформе недоступен</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Прежний цвет</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Новый цвет</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Цвет в шестнадцатеричном виде</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Пипетка</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>нет цвета</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Переключатель</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Кнопка</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Раскрывающийся список</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Текстовое поле</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Ползунок</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Число</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Раскрывающийся список-дерево</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Нет изображения</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 пикс.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Это не обычный файл.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Файл больше %1 МиБ.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Файл не является изображением в поддерживаемом формате.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>В заголовке изображения не указан размер.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>Изображение имеет размер %1 × %2 пикс. — больше %3 Мпикс., которые декодирует образец.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Для декодирования этого изображения нужно %1 МиБ — больше допустимых %2 МиБ.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Не удалось декодировать изображение: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Закрыть сообщение</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Изменить размер</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Недавние цвета</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Поле поиска</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Недавние запросы</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream для оформления интерфейса</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Открыть XML-файл</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Файлы XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Ошибка разбора в файле %1, строка %2, столбец %3:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Не удаётся прочитать файл %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Файл не существует</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Не обычный файл</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Файл больше %1 байт</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Файл не является файлом XBEL версии 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Недопустимый шестнадцатеричный формат цвета!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Недопустимый шестнадцатеричный формат!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>Значение %1 после раскрытия ссылок превышает %2 символов.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Ссылки файла раскрываются более чем в %1 символов.</translation>
    </message>
</context>
</TS>

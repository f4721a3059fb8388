<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
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
        <translation>Gizli düzeyler</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Renk çarkı</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, ton %2°, doygunluk yüzde %3, parlaklık yüzde %4</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alfa</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Renk geçişi</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 renk durağı</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n renk durağı</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, %1. durak yüzde %2 konumunda: %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Görüntü yok</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 piksel</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Son renkler</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Renk seçici</translation>
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
        <translation>Kırmızı</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Yeşil</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Mavi</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Derece cinsinden ton</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Yüzde cinsinden doygunluk</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Yüzde cinsinden parlaklık</translation>
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
        <translation>Ekrandan renk seç (Esc iptal eder)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Ekrandan renk seçme bu platformda kullanılamıyor</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Eski renk</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Yeni renk</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Onaltılık renk</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Damlalık</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>renk yok</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Geçiş düğmesi</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Düğme</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Açılır liste</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Metin alanı</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Kaydırıcı</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Sayı</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Görüntü</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtrele</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Ağaç açılır listesi</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Görüntü yok</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 piksel</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Dosya mevcut değil.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Bu normal bir dosya değil.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Dosya %1 MiB&apos;tan büyük.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Dosya okunabilir biçimde bir görüntü değil.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>Görüntünün başlığı bir boyut belirtmiyor.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>Görüntü %1 × %2 piksel; bir örneğin çözdüğü %3 megapikselden fazla.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Bu görüntünün çözülmesi %1 MiB gerektirir; izin verilen %2 MiB&apos;tan fazla.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Görüntü çözülemedi: %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Mesajı kapat</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>İletiler</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Yeniden boyutlandır</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Özellikler</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Son renkler</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Arama alanı</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Aramayı temizle</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Son aramalar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>Arayüz teması için QXmlStream</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>XML Dosyası Aç</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>XBEL Dosyaları (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>%1 dosyasında %2. satır, %3. sütunda ayrıştırma hatası:
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>%1 dosyası okunamıyor:
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Dosya mevcut değil</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Normal bir dosya değil</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Dosya %1 bayttan büyük</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Dosya XBEL 1.0 sürümü dosyası değil.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Rengin onaltılık biçimi geçersiz!</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Geçersiz onaltılık biçim!</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>%1 değeri, başvuruları genişletildiğinde %2 karakteri aşıyor.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Dosyanın başvuruları genişletildiğinde %1 karakteri aşıyor.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Kavrel::UICore::AlphaBar</name>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::BreadcrumbBar</name>
    <message>
        <source>Hidden levels</source>
        <translation>Niveaux masqués</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorControlsAccessible</name>
    <message>
        <source>Colour wheel</source>
        <translation>Roue chromatique</translation>
    </message>
    <message>
        <source>%1, hue %2°, saturation %3 %, value %4 %</source>
        <translation>%1, teinte %2°, saturation %3 %, valeur %4 %</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>1 stop</source>
        <translation>1 arrêt de couleur</translation>
    </message>
    <message numerus="yes">
        <source>%n stops</source>
        <translation>
            <numerusform>%n arrêt de couleur</numerusform>
            <numerusform>%n arrêts de couleur</numerusform>
        </translation>
    </message>
    <message>
        <source>, stop %1 at %2 %: %3</source>
        <translation>, arrêt %1 à %2 % : %3</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Recent colours</source>
        <translation>Couleurs récentes</translation>
    </message>
    <message>
        <source>Colour picker</source>
        <translation>Sélecteur de couleur</translation>
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
        <translation>Rouge</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Teinte en degrés</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation in percent</source>
        <translation>Saturation en pourcentage</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value in percent</source>
        <translation>Valeur en pourcentage</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Pick a colour from the screen (Escape cancels)</source>
        <translation>Prélever une couleur à l&apos;écran (Échap pour annuler)</translation>
    </message>
    <message>
        <source>Picking a colour from the screen is not available on this platform</source>
        <translation>Le prélèvement d&apos;une couleur à l&apos;écran n&apos;est pas disponible sur cette plateforme</translation>
    </message>
    <message>
        <source>Old colour</source>
        <translation>Ancienne couleur</translation>
    </message>
    <message>
        <source>New colour</source>
        <translation>Nouvelle couleur</translation>
    </message>
    <message>
        <source>Hex colour</source>
        <translation>Couleur hexadécimale</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>Pipette</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ColorSwatch</name>
    <message>
        <source>no colour</source>
        <translation>aucune couleur</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ControlsAccessible</name>
    <message>
        <source>Toggle</source>
        <translation>Bascule</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Bouton</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Liste déroulante</translation>
    </message>
    <message>
        <source>Text field</source>
        <translation>Champ de texte</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Curseur</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::DropDownTree</name>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Tree drop-down</source>
        <translation>Liste déroulante arborescente</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ImageSwatch</name>
    <message>
        <source>No image</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1
%2 × %3 pixels</source>
        <translation>%1
%2 × %3 pixels</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n&apos;est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB.</source>
        <translation>Le fichier dépasse %1 Mio.</translation>
    </message>
    <message>
        <source>The file is not an image in a format that can be read.</source>
        <translation>Le fichier n&apos;est pas une image dans un format lisible.</translation>
    </message>
    <message>
        <source>The image&apos;s header gives no size.</source>
        <translation>L&apos;en-tête de l&apos;image n&apos;indique aucune taille.</translation>
    </message>
    <message>
        <source>The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.</source>
        <translation>L&apos;image fait %1 × %2 pixels, plus que les %3 mégapixels qu&apos;un échantillon décode.</translation>
    </message>
    <message>
        <source>Decoding this image would take %1 MiB, more than the %2 MiB allowed.</source>
        <translation>Le décodage de cette image occuperait %1 Mio, plus que les %2 Mio autorisés.</translation>
    </message>
    <message>
        <source>The image could not be decoded: %1</source>
        <translation>Impossible de décoder l&apos;image : %1</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::MessageFacility</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close message</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteResizeButton</name>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PaletteTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::PropertyEditor</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::RecentColorsRow</name>
    <message>
        <source>Recent colours</source>
        <translation>Couleurs récentes</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::SearchBox</name>
    <message>
        <source>Search field</source>
        <translation>Champ de recherche</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Recent searches</source>
        <translation>Recherches récentes</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::TextEdit</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManager</name>
    <message>
        <source>QXmlStream for UI Skin</source>
        <translation>QXmlStream pour l&apos;habillage de l&apos;interface</translation>
    </message>
    <message>
        <source>Open xml File</source>
        <translation>Ouvrir un fichier XML</translation>
    </message>
    <message>
        <source>XBEL Files (*.xbel *.xml)</source>
        <translation>Fichiers XBEL (*.xbel *.xml)</translation>
    </message>
</context>
<context>
    <name>Kavrel::UICore::ThemeManagerImp</name>
    <message>
        <source>Parse error in file %1 at line %2, column %3:
%4</source>
        <translation>Erreur d&apos;analyse dans le fichier %1 à la ligne %2, colonne %3 :
%4</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Impossible de lire le fichier %1 :
%2.</translation>
    </message>
</context>
<context>
    <name>ThemeFileReader</name>
    <message>
        <source>The file does not exist</source>
        <translation>Le fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes</source>
        <translation>Le fichier dépasse %1 octets</translation>
    </message>
    <message>
        <source>The file is not an XBEL version 1.0 file.</source>
        <translation>Le fichier n&apos;est pas un fichier XBEL version 1.0.</translation>
    </message>
    <message>
        <source>The hex format of color is invalid!</source>
        <translation>Le format hexadécimal de la couleur n&apos;est pas valide !</translation>
    </message>
    <message>
        <source>Invalid hex format!</source>
        <translation>Format hexadécimal non valide !</translation>
    </message>
    <message>
        <source>The value of %1 grows beyond %2 characters when its references are expanded.</source>
        <translation>La valeur de %1 dépasse %2 caractères une fois ses références développées.</translation>
    </message>
    <message>
        <source>The references of the file expand to more than %1 characters.</source>
        <translation>Les références du fichier se développent en plus de %1 caractères.</translation>
    </message>
</context>
</TS>

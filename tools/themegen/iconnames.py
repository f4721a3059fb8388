"""Resource paths of the icon set.

Glyph icons come in two variants: "<Name>.svg" drawn for light backgrounds
(Light and HIGLight) and "<Name>_Dark.svg" for the Dark theme. Colourful
icons (material types, status signs, the busy and progress animations) read
on any background and exist once.
"""

NEUTRAL = {
    "Alert", "Warning", "Warning32", "MissingFile", "MissingAsset", "MissingImage", "InvalidLibrary",
    "HueWheel", "ColorBook", "Favorite", "Favorites16", "Cloud16", "GradientDiamond",
    "Box16", "Camera16", "Checker16", "Diagonal16", "Gradient16", "Image16", "Lighting16", "Linear16",
    "LinearAsymmetrical16", "Marble16", "Noise16", "Pong16", "Radial16", "Dotted16", "Spiral16", "Sweep16",
    "Tartan16", "Tiles16", "Waves16", "Wood16", "MakeMaterialCopy16", "NewMaterial", "ApplyMaterial",
}
NEUTRAL |= {"Rendering_%02d" % i for i in range(1, 25)}
NEUTRAL |= {"Progress%02d" % i for i in range(22)}


def svg_file(name, dark):
    if name in NEUTRAL or not dark:
        return name + ".svg"
    return name + "_Dark.svg"


def ico_file(name, dark):
    return name + ("_Dark.ico" if dark else ".ico")

"""What every theme key holds, expressed in colour roles (palettes.py).

Value forms:
  ("c", role)                      a colour
  ("c", role, alpha)               a colour with alpha 0-255
  ("g", role_top, role_bottom)     a vertical two-stop gradient
  ("i", n) / ("si", n)             an Int / a ScalableInt (design pixels)
  ("icon", name)                   a String: the resource path of an SVG icon
  ("ico", name)                    an Icon: a multi-size ICO made at build time
  ("s", text)                      a literal String
  ("per", {theme: form})           differs per theme
Keys absent from a theme are listed in ONLY_IN.
"""

K = {}


def c(*keys, role, alpha=None):
    for k in keys:
        K[k] = ("c", role) if alpha is None else ("c", role, alpha)


def g(key, top, bottom):
    K[key] = ("g", top, bottom)


# ---- containers ------------------------------------------------------------
c("Container1", role="bg")
c("Container2", role="bg2")
c("Container3", role="bg3")
c("Container4", role="field")
c("Container5", role="preview")
c("Container6", role="altRow")
g("WidgetContainer1", "btnTop", "btnBottom")          # buttons
c("WidgetContainer2", role="hover")
c("WidgetContainer3", role="field")                    # numeric field, unfocused
c("WidgetContainer4", role="face")                # spin arrows, slider track
c("WidgetContainer5", role="field")                    # slider groove
c("WidgetContainer6", role="bg3")
c("WidgetContainer9", role="field")                    # text box, check box
c("WidgetContainer10", role="field")                   # focused slider groove
c("WidgetContainer11", role="accent")                  # checked check box
c("WidgetContainer12", role="fieldHover")              # hovered / focused field
c("WidgetContainerDisable", role="fieldDisabled")
c("WidgetContainerDisable2", role="fieldDisabled")
c("WidgetContainerDisable3", role="bg2")
c("WidgetContainerDisable4", role="bg")
c("ActiveContainer1", role="sel")                       # focused numeric field, checked tile
c("ActiveContainer2", role="fieldHover")
c("ActiveContainer3", role="sel")
c("ActiveContainer4", role="sel")
c("ActiveContainer5", role="accent")
c("HoverContainer1", role="hover")
c("HoverContainer2", role="hover")
c("HoverContainer3", role="hover")
c("HoverContainer4", role="fieldHover")
c("HoverContainer5", role="accentHover")
c("HoverContainer6", role="hover")
c("HoverContainer7", role="sel")
c("ClickContainer1", role="press")
c("ClickContainer2", role="accentPress")
c("NoImageSelectedContainer", role="preview")
c("PreviewAreaContainer", role="preview")
c("TexturePreviewWindowContainer", role="preview")
c("BrowserBackgroundColor", role="field")
c("InternalShadow", role="shadow")

# ---- outlines ----------------------------------------------------------------
c("Outline1", role="outlineSoft")
c("Outline2", role="outline")
c("Border1", role="outlineSoft")
c("Border2", role="outline")
c("Border3", role="outlineHover")
c("WidgetOutline1", role="outline")
c("WidgetOutline2", role="outlineSoft")
c("WidgetOutline3", role="outline")
c("WidgetOutline4", role="outline")
c("WidgetOutline5", role="outlineSoft")
c("WidgetOutline6", role="accent")
c("WidgetOutline8", role="outline")
c("WidgetOutline9", role="outline")
c("WidgetOutline10", role="accent")
c("WidgetOutline11", role="outlineHover")
c("WidgetOutline12", role="accentPress")
c("WidgetOutlineDisable", role="outlineDisabled")
c("WidgetOutlineDisable2", role="outlineDisabled")
c("WidgetOutlineDisable3", role="outlineDisabled")
c("ActiveOutline1", role="accent")
c("ActiveOutline3", role="accent")
c("ActiveOutline4", role="accent")
c("HoverOutline1", role="hoverTileOutline")
c("HoverOutline2", role="hoverTileOutline")
c("HoverOutline3", role="outlineHover")
c("HoverOutline4", role="outlineHover")
c("HoverOutline5", role="outlineHover")
c("HoverOutline6", role="outlineHover")
c("HoverOutline7", role="outlineHover")
c("ClickOutline1", role="outlineHover")
c("ClickOutline2", role="accentPress")
c("FocusOutline1", role="accent")
c("FocusOutline2", role="halo")
c("FocusOutline5", role="accent")
c("FocusOutline6", role="halo")
# Hover and press rings on check boxes: only the high-contrast theme shows them.
c("FocusOutline3", role="outlineHover")
c("FocusOutline4", role="accent")
c("FocusOutline7", role="accent")
c("Separator1", role="outlineSoft")
c("Separator2", role="outlineSoft")
c("C6PlusTR2", role="outlineSoft")
c("GradientBarOutline", role="outline")
c("GradientBarClickOutline", role="accent")

# ---- marks, glyphs, accents ---------------------------------------------------
c("CheckMark", role="text")
c("CheckMark1", role="onAccent")
c("ControlActive1", role="text")
c("Triangle", role="glyph")
c("Triangle2", role="glyph")
c("GradientNodeColor", role="field")
c("GradientNodeColor2", role="accent")
c("Highlight1", role="sel")
c("Highlight2", role="accent")
c("DimensionLineColor", role="textDim")
c("DimensionTextFontColor", role="text2")
c("SampleHeightLine", role="accent")
c("SampleWidthLine", role="accent")

# ---- text ------------------------------------------------------------------
c("FontNormal1", "FontBold1", "FontBuiltInNormal1", "FontSearch1", "FontSearch2", "HoverTextColor",
  "NormalTextColor", "MsgLabelText", "MBViewFontColor", "MBViewSelectedFontColor", role="text")
c("FontNormal2", "FontNormal3", "FontGroupHeader", role="text2")
c("FontLight1", "FontSearchPrompt", "SearchFilterFont", role="textDim")
c("FontColorDisabled", "FontDisable", "FontBuiltInDisable1", "FontNormalDisabled1",
  "MBMaterialGroupFontColorDisabled", role="disabled")
c("FontActive1", "FontUnderline1", role="accentText")
c("FontActive2", role="onAccent")
c("MissingTextColor", role="error")

# ---- title bar, tool tip, scroll bars -----------------------------------------
c("TitleBarTopColor", role="titleTop")
c("TitleBarBottomColor", role="titleBottom")
c("TitleBarTextColor", role="text")
c("TitleBarCloseButtonColor", role="glyph")
c("ToolTipBackground", role="tooltip")
c("ToolTipBorder", role="tooltipBorder")
c("ScrollBarBackground", role="bg")
c("ScrollBarHandleNormalBackground", role="scrollHandle")
c("ScrollBarHandleHoverBackground", role="scrollHandleHover")
c("HScrollBarSubLine", role="bg")
c("HScrollBarAddLine", role="bg")

# ---- drop-downs and menus ----------------------------------------------------
g("DropDownContainer", "btnTop", "btnBottom")
g("DropDownButtonHoverBackground", "btnHoverTop", "btnHoverBottom")
g("DropDownButtonHoverBackground2", "btnHoverTop", "btnHoverBottom")
c("DropDownButtonClickedBackground", role="press")
c("DropDownButtonClickedBackground2", role="press")
c("DropDownButtonNormalBorderColor", role="outline")
c("DropDownButtonNormalBorderColor2", role="outline")
c("DropDownButtonHoverBorder", role="outlineHover")
c("DropDownButtonHoverBorder2", role="outlineHover")
c("DropDownButtonHoverBorder3", role="outlineHover")
c("DropDownButtonClickedBorder", role="outlineHover")
c("DropDownButtonClickedBorder2", role="outlineHover")
c("DropDownButtonFocusOutline", role="accent")
c("DropDownButtonClickFocusOutline", role="accent")
c("DropDownTriangle", role="glyph")
c("DropDownTriangle2", role="glyph")
c("DropDownTriangleDisable", role="disabled")
c("DropDownTriangleDisable2", role="disabled")
c("DropDownTriangleFocus", role="accent")
c("DropDownGroupLabel", role="bg2")
c("DropDownMenuBackground", role="menuBg")
c("DropDownMenuBorderColor", role="menuBorder")
c("DropDownMenuHoverBackground", role="menuHover")
c("DropDownMenuHoverBorder", role="menuHoverBorder")
c("DropDownMenuClickedBackground", role="menuPress")
c("DropDownMenuClickedBorder", role="accent")
c("DropDownMenuSeparator", role="menuSep")
c("MenuBuiltInBackgroundColor1", role="menuBg")
c("MenuBuiltInBorderColor1", role="menuBorder")
c("MenuBuiltInSeparator1", role="menuSep")
c("MenuBuiltInItemSelectedBackgroundColor1", role="menuHover")
c("MenuBuiltInEnabledItemSelectedBackgroundColor1", role="menuHover")
c("MenuBuiltInDisabledItemSelectedBackgroundColor1", role="bg2")
c("MenuBuiltInItemPressedBackgroundColor1", role="menuPress")

# ---- search box, breadcrumb, rollout ----------------------------------------
c("SearchBoxNormalBackground", role="field")
c("SearchBoxHoverBackground", role="fieldHover")
c("SearchBoxFocusedBackground", role="field")
c("SearchBoxNormalBorder", role="outline")
c("SearchBoxHoverBorder", role="outlineHover")
c("SearchBoxFocusedBorder", role="accent")
c("SearchBoxFocusedBorderHalo", role="halo")
c("BreadcrumbItemBackground", role="bg")
c("BreadcrumbItemFocusBackground", role="hover")
c("BreadcrumbItemFocusOutline", role="accent")
g("RolloutContainerTitleBackgroundColor", "rolloutTop", "rolloutBottom")

# ---- headers, tab bars, gradients ---------------------------------------------
c("HeaderBorderTop", role="outlineSoft")
c("HeaderBorderBottom", role="outlineSoft")
c("HeaderBorderHighlight", role="bg3")
g("AspectTabbarGradient", "bg3", "bg2")
c("AspectTabBottomBorder", role="accent")
c("AspectTabBottomUncheckedBorder", role="outlineSoft")
c("AspectTabButtonHoverBackground", role="hover")
c("AspectTabButtonClickBackground", role="press")
c("AspectTabButtonSelectedBackground", role="bg3")
g("AppearanceEditorHeaderBackgroundGradient", "bg3", "bg2")
g("MBLibraryHeaderBackgroundGradient", "bg3", "bg2")
g("MEFrameBackgroundGradient", "bg3", "bg")
g("C1PlusGradient", "btnTop", "btnBottom")
g("C2PlusGradient", "btnHoverTop", "btnHoverBottom")
g("C3PlusGradient", "hover", "press")
g("C4PlusGradient", "sel", "menuPress")
c("MsgBoderBackground", role="outlineSoft")
c("MsgBottomBackground", role="bg2")

# ---- material browser views ---------------------------------------------------
c("MBHeaderViewBackground", role="bg2")
c("MBHeaderViewBorderColor", role="outlineSoft")
c("MBTreeViewBackground", role="field")
c("MBTreeViewBorderColor", role="outlineSoft")
c("MBTreeViewItemSelectionBackground", role="sel")
c("MBViewBackground", role="field")
c("MBViewItemBackground", role="bg3")
c("MBViewItemHoverBackground", role="hover")
c("MBInSceneMaterialViewItemHoverBackground", role="hover")
c("MBViewItemHoverOutline", role="hoverTileOutline")
c("MBViewItemSelectedGroupBackground", role="sel")
c("MBViewItemSelectionBackground", role="sel")
c("MBViewItemSelectionColor", role="accent")
c("MBViewItemSelectionOutline", role="accent")
c("MBViewSeparator", role="outlineSoft")
c("TreeViewDropIndicatorBackground", role="accent", alpha=48)
c("TreeViewDropIndicatorBorder", role="accent")

# ---- integers ----------------------------------------------------------------
K["FontPixelSizeVal"] = ("i", 12)
K["StaticLabelFontBold"] = ("i", 600)
K["RolloutcontainerTitleHeight"] = ("si", 24)
K["BreadCrumbIconWidth"] = ("si", 16)
K["TreeViewIndentation"] = ("si", 16)
K["ButtonFocusMarginWidth"] = ("per", {"Light": ("i", 1), "Dark": ("i", 1), "HIGLight": ("i", 2)})
K["DropDownFocusMarginWidth"] = ("per", {"Light": ("i", 1), "Dark": ("i", 1), "HIGLight": ("i", 2)})
K["HighLightTopToolbarLine"] = ("per", {"Light": ("i", 0), "Dark": ("i", 0), "HIGLight": ("i", 1)})
K["ShowViewHighlightingOutline"] = ("per", {"Light": ("i", 0), "Dark": ("i", 0), "HIGLight": ("i", 1)})
K["HighlightCurrentSelectedBreadCrumButtom"] = ("i", 1)
K["ShowHomeIcon_BreadCrumb"] = ("i", 1)
K["ShowIconForNonGroupBreadCrumbButton"] = ("i", 0)
K["HighlightCurrentTreeItem"] = ("i", 1)
K["HighlightTreeRootItem"] = ("i", 1)
K["TreeViewShowBranchDotLine"] = ("i", 0)
K["ShowGridLine"] = ("i", 0)
K["ShowMenuStaticLabel"] = ("i", 1)
K["PropertyGroupShowDivider"] = ("i", 1)
K["DrawLockBottomLeft"] = ("i", 0)
K["CurrentTheme"] = ("per", {"Light": ("s", "Light"), "Dark": ("s", "Dark"), "HIGLight": ("s", "HIGLight")})

# ---- icons and images ---------------------------------------------------------
ICONS = {
    "AlertIcon": "Alert", "ApplyMaterialIcon": "ApplyMaterial", "AspectbrowserIcon": "ViewBrowser",
    "box_16Icon": "Box16", "BranchClosed": "BranchClosed", "BranchClosedSelected": "BranchClosedSelected",
    "BranchOpen": "BranchOpen", "BranchOpenSelected": "BranchOpenSelected", "BrowserIcon": "Browser",
    "cameraNormal_16Icon": "Camera16", "checker_16Icon": "Checker16", "CheckMarkIcon": "CheckMark",
    "ClearSearchIcon": "ClearSearch", "ContectMenu": "ContextMenu", "DeleteNodeIcon": "DeleteNode",
    "diagonal_16Icon": "Diagonal16", "DownloadIcon": "Download", "EditMaterialCloseIcon": "EditMaterialClose",
    "EditMaterialIcon": "EditMaterial", "EditMaterialOpenIcon": "EditMaterialOpen",
    "EditorAddIdleIcon": "Add_Idle", "EditorAddHoverIcon": "Add_Hover", "EditorAddPressIcon": "Add_Pressed",
    "EditorDeleteIdleIcon": "Delete_Idle", "EditorDeleteHoverIcon": "Delete_Hover",
    "EditorDeletePressIcon": "Delete_Pressed", "EditorReplaceIdleIcon": "Replace_Idle",
    "EditorReplaceHoverIcon": "Replace_Hover", "EditorReplacePressIcon": "Replace_Pressed",
    "EditorToolbarDeleteIdleIcon": "Delete_Idle", "EditorToolbarDeleteHoverIcon": "Delete_Hover",
    "EditorToolbarDeletePressedIcon": "Delete_Pressed", "EditorToolbarDuplicateIdleIcon": "Duplicate_Idle",
    "EditorToolbarDuplicateHoverIcon": "Duplicate_Hover", "EditorToolbarDuplicatePressedIcon": "Duplicate_Pressed",
    "EditorToolbarReplaceIdleIcon": "Replace_Idle", "EditorToolbarReplaceHoverIcon": "Replace_Hover",
    "EditorToolbarReplacePressedIcon": "Replace_Pressed", "ExchangeIcon": "Exchange", "FavoriteIconIcon": "Favorite",
    "favorites_16Icon": "Favorites16", "gradient_16Icon": "Gradient16", "GradientDiamondIcon": "GradientDiamond",
    "GradientNodeIdleIcon": "GradientNodeIdle", "GradientNodeSelectedIcon": "GradientNodeSelected",
    "help_16Icon": "Help16", "HideLibraryPanelIcon": "HideLibraryPanel", "hide tree": "HideTree",
    "HueWheelIcon": "HueWheel", "image_16Icon": "Image16", "InsceneIcon": "InScene",
    "InvalidLibraryIcon": "InvalidLibrary", "KavrelCloud_16_newIcon": "Cloud16", "LegacyIcon": "Legacy",
    "LibEditingIcon": "LibEditing", "LibraryIcon": "Library", "LibRefreshIcon": "LibRefresh",
    "lightingNormal_16Icon": "Lighting16", "linear_16Icon": "Linear16",
    "linearAsymetrical_16Icon": "LinearAsymmetrical16", "LinkIcon": "Link",
    "makeMaterialCopy_16Icon": "MakeMaterialCopy16", "ManageIcon": "Manage", "marble_16Icon": "Marble16",
    "MaterialLibCollapseIcon": "Collapse", "MaterialLibExpandIcon": "Expand",
    "MaterialPreviewOffIcon": "PreviewOff", "MaterialPreviewOnIcon": "PreviewOn", "MissFile": "MissingFile",
    "MissingAssetIcon": "MissingAsset", "MissingImageIcon": "MissingImage", "New_materialIcon": "NewMaterial",
    "noise_16Icon": "Noise16", "PantoneColorIcon": "ColorBook", "PickerIcon": "Picker", "pong_16Icon": "Pong16",
    "radial_16Icon": "Radial16", "SearchIcon": "Search", "SelectByMaterialIcon": "SelectByMaterial",
    "ShowLibraryPanelIcon": "ShowLibraryPanel", "show tree": "ShowTree", "speckle_16Icon": "Dotted16",
    "spiral_16Icon": "Spiral16", "sweep_16Icon": "Sweep16", "tartan_16Icon": "Tartan16", "tiles_16Icon": "Tiles16",
    "ToolbarExtensionIcon": "ToolbarExtension", "TreeCategoryIcon": "TreeCategory", "TreeHomeIcon": "TreeHome",
    "TreeLibraryIcon": "TreeLibrary", "TreeReadOnlyIcon": "ReadOnly", "Warning32Icon": "Warning32",
    "WarningIcon": "Warning", "waves_16Icon": "Waves16", "wood_16Icon": "Wood16",
}
for action in ("Add", "AddAndEdit", "Delete", "Download", "Edit", "Replace"):
    ICONS["Idle_Hover_" + action] = action + "_Idle"
    ICONS["Hover_Hover_" + action] = action + "_Hover"
    ICONS["Pressed_Hover_" + action] = action + "_Pressed"
for i in range(1, 25):
    ICONS["Rendering_%02d" % i] = "Rendering_%02d" % i
for i in range(22):
    ICONS["Progress%d" % i] = "Progress%02d" % i
for key, name in ICONS.items():
    K[key] = ("icon", name)

# Read with GetImage: multi-size ICO files.
for key in ("MiniButtonToggleOff", "MiniButtonToggleOffHover", "MiniButtonToggleOn", "MiniButtonToggleOnHover"):
    K[key] = ("ico", key)

# Keys that exist only in some themes.
ONLY_IN = {
    "FocusOutline3": {"HIGLight"},
    "FocusOutline4": {"HIGLight"},
    "FocusOutline7": {"HIGLight"},
}

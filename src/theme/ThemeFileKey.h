#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QPoint>
#include <QSize>
#include <QString>

/// The vocabulary of themed values. Theme files define values under these texts;
/// controls and hosts pass the constants to the ThemeManager getters. A few
/// texts differ from their member names on purpose (ContextMenuIcon is
/// "ContectMenu"): theme files use the texts, so they are kept exactly.
class KVUICORE_EXPORT ThemeFileKey
{
public:
    // One constant per theme key, named as in ThemeFileKeys.def.
#define KVUICORE_THEME_KEY(member, use) static const QString member;
#define KVUICORE_THEME_KEY_TEXT(member, text, use) static const QString member;
#include <KvUICore/theme/ThemeFileKeys.def>
#undef KVUICORE_THEME_KEY
#undef KVUICORE_THEME_KEY_TEXT

    /// Fixed metrics at design size, not theme keys.
    static const QSize ButtonDefaultSize;
    /// The size of a normal icon, 16 by 16.
    static const QSize NormalIconSize;
    /// The gap between a button's icon and its border, 2 by 2.
    static const QPoint Button_IconGapToBorder;
    /// The height of a palette title bar, 20.
    static const int TitleBarHeight;
    /// The width of a title bar's close button, 14.
    static const int TitleBarCloseButtonWidth;
    /// The margin around a title bar's close button, 4.
    static const int TitleBarCloseButtonMargin;
    /// The horizontal corner radius of rounded frames, 1.
    static const int xRadius;
    /// The vertical corner radius of rounded frames, 1.
    static const int yRadius;
};

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
    static const QSize NormalIconSize;
    static const QPoint Button_IconGapToBorder;
    static const int TitleBarHeight;
    static const int TitleBarCloseButtonWidth;
    static const int TitleBarCloseButtonMargin;
    static const int xRadius;
    static const int yRadius;
};

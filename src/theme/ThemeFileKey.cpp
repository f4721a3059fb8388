#include <KvUICore/theme/ThemeFileKey.h>

// Constructed when the library is loaded, before any exported function can run.

#define KVUICORE_THEME_KEY(member, use) const QString ThemeFileKey::member = QStringLiteral(#member);
#define KVUICORE_THEME_KEY_TEXT(member, text, use) const QString ThemeFileKey::member = QStringLiteral(text);
#include <KvUICore/theme/ThemeFileKeys.def>
#undef KVUICORE_THEME_KEY
#undef KVUICORE_THEME_KEY_TEXT

const QSize ThemeFileKey::ButtonDefaultSize(24, 24);
const QSize ThemeFileKey::NormalIconSize(16, 16);
const QPoint ThemeFileKey::Button_IconGapToBorder(2, 2);
const int ThemeFileKey::TitleBarHeight = 20;
const int ThemeFileKey::TitleBarCloseButtonWidth = 14;
const int ThemeFileKey::TitleBarCloseButtonMargin = 4;
const int ThemeFileKey::xRadius = 1;
const int ThemeFileKey::yRadius = 1;

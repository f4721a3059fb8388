#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>

#include <cstddef>

namespace Kavrel::UICore {

/// How the library itself reads each key of the ThemeFileKey catalogue, for
/// hosts and tools that walk the whole vocabulary.
enum class ThemeKeyUse
{
    Color,        ///< GetColor
    ColorOrBrush, ///< GetColor and GetBrush: a colour or a vertical gradient
    Brush,        ///< GetBrush: a colour or a vertical gradient
    String,       ///< GetString: mostly a file or resource path
    Int,          ///< GetInt
    Icon,         ///< GetImage: a multi-size icon file
    Exists,       ///< only tested with Exists
    HostOnly,     ///< used only by theme files and hosts
};

struct ThemeKeyEntry
{
    const char* member;
    const char* text;
    ThemeKeyUse use;
};

/// All 389 keys, sorted by member name.
KVUICORE_EXPORT const ThemeKeyEntry* ThemeKeyCatalogue(std::size_t* count);

} // namespace Kavrel::UICore

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

/// One theme key: its ThemeFileKey member name, its text in theme files and how the
/// library reads it.
struct ThemeKeyEntry
{
    /// The name of the ThemeFileKey member.
    const char* member;
    /// The key's text in theme files.
    const char* text;
    /// The getter the library reads the key with.
    ThemeKeyUse use;
};

/// All 389 keys, sorted by member name.
KVUICORE_EXPORT const ThemeKeyEntry* ThemeKeyCatalogue(std::size_t* count);

} // namespace Kavrel::UICore

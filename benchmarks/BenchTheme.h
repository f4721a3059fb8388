#pragma once

// The library started once per benchmark program, with the repository's own
// theme files and the Light theme current.

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>

namespace kvbench {

inline Kavrel::UICore::ThemeManager* UseRepositoryTheme()
{
    using namespace Kavrel::UICore;
    static ThemeManager* const themes = [] {
        CoreUIManager::Initialize();
        ThemeManager* manager = ThemeManager::GetInstance();
        manager->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
        manager->SetCurrentTheme(QStringLiteral("Light"));
        return manager;
    }();
    return themes;
}

} // namespace kvbench

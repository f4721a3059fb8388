#include <KvUICore/theme/ThemeKeyCatalogue.h>

#include <iterator>

namespace Kavrel::UICore {

namespace {
constexpr ThemeKeyEntry kCatalogue[] = {
#define KVUICORE_THEME_KEY(member, use) {#member, #member, ThemeKeyUse::use},
#define KVUICORE_THEME_KEY_TEXT(member, text, use) {#member, text, ThemeKeyUse::use},
#include <KvUICore/theme/ThemeFileKeys.def>
#undef KVUICORE_THEME_KEY
#undef KVUICORE_THEME_KEY_TEXT
};
} // namespace

const ThemeKeyEntry* ThemeKeyCatalogue(std::size_t* count)
{
    if (count)
        *count = std::size(kCatalogue);
    return kCatalogue;
}

} // namespace Kavrel::UICore

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>

namespace Kavrel::UICore {

namespace {

// Keeps the application palette in step with the theme while it lives. A
// child of the theme manager, so it goes when the manager is destroyed.
class ApplicationPaletteFollower final : public QObject
{
public:
    explicit ApplicationPaletteFollower(ThemeManager* themes)
        : QObject(themes)
        , mPreviousPalette(QApplication::palette())
        , mbPreviousPropagation(QCoreApplication::testAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles))
    {
        setObjectName(Name());
        // The library's global style sheet would otherwise pin every widget
        // to the palette it had when it was polished.
        QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, true);
        connect(themes, &ThemeManager::ThemeChanged, this, [themes] { QApplication::setPalette(themes->GetPalette()); });
        QApplication::setPalette(themes->GetPalette());
    }

    // The host gets its own palette back however following ends: turned off,
    // or the theme manager destroyed by Uninitialize.
    ~ApplicationPaletteFollower() override
    {
        QApplication::setPalette(mPreviousPalette);
        QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, mbPreviousPropagation);
    }

    static QString Name() { return QStringLiteral("KvUICore_ApplicationPaletteFollower"); }

private:
    const QPalette mPreviousPalette;
    const bool mbPreviousPropagation;
};

ApplicationPaletteFollower* FindFollower(const ThemeManager* themes)
{
    return themes->findChild<ApplicationPaletteFollower*>(ApplicationPaletteFollower::Name(),
                                                          Qt::FindDirectChildrenOnly);
}

} // namespace

QPalette ThemeManager::GetPalette()
{
    const QColor window = GetColor(ThemeFileKey::Container1);
    const QColor field = GetColor(ThemeFileKey::WidgetContainer9);
    const QColor text = GetColor(ThemeFileKey::FontNormal1);
    const QColor disabled = GetColor(ThemeFileKey::FontColorDisabled);
    const QColor button = GetColor(ThemeFileKey::Container3);
    const QColor outline = GetColor(ThemeFileKey::WidgetOutline3);

    QPalette palette = QApplication::palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor& groupText = group == QPalette::Disabled ? disabled : text;
        palette.setColor(group, QPalette::Window, window);
        palette.setColor(group, QPalette::WindowText, groupText);
        palette.setColor(group, QPalette::Base, field);
        palette.setColor(group, QPalette::AlternateBase, GetColor(ThemeFileKey::Container6));
        palette.setColor(group, QPalette::Text, groupText);
        palette.setColor(group, QPalette::PlaceholderText, GetColor(ThemeFileKey::FontSearchPrompt));
        palette.setColor(group, QPalette::Button, button);
        palette.setColor(group, QPalette::ButtonText, groupText);
        palette.setColor(group, QPalette::BrightText, text);
        palette.setColor(group, QPalette::Highlight, GetColor(ThemeFileKey::MBViewItemSelectionBackground));
        palette.setColor(group, QPalette::HighlightedText, groupText);
        palette.setColor(group, QPalette::Link, GetColor(ThemeFileKey::FontUnderline1));
        palette.setColor(group, QPalette::LinkVisited, GetColor(ThemeFileKey::FontUnderline1));
        palette.setColor(group, QPalette::ToolTipBase, GetColor(ThemeFileKey::ToolTipBackground));
        palette.setColor(group, QPalette::ToolTipText, text);
        palette.setColor(group, QPalette::Light, button);
        palette.setColor(group, QPalette::Midlight, GetColor(ThemeFileKey::Separator1));
        palette.setColor(group, QPalette::Mid, outline);
        palette.setColor(group, QPalette::Dark, outline);
        palette.setColor(group, QPalette::Shadow, GetColor(ThemeFileKey::HoverOutline4));
    }
    return palette;
}

void ThemeManager::SetApplicationPaletteFollowsTheme(bool follow)
{
    ApplicationPaletteFollower* follower = FindFollower(this);
    if (follow == (follower != nullptr))
        return;
    if (follow) {
        new ApplicationPaletteFollower(this);
        return;
    }
    delete follower;
}

bool ThemeManager::IsApplicationPaletteFollowingTheme() const
{
    return FindFollower(this) != nullptr;
}

} // namespace Kavrel::UICore

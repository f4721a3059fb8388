#include <KvUICore/widgets/RadioButton.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

namespace Kavrel::UICore {

namespace {
// The tile's margin around its contents and the gap between icon and text.
constexpr int kTileMargin = 4;
constexpr int kIconTextGap = 4;
} // namespace

class RadioButtonImp
{
public:
    QString msIconThemeKey;
    Internal::ThemedColor* mpColor = nullptr;
};

RadioButton::RadioButton(QWidget* parent)
    : QRadioButton(parent)
    , mpImp(std::make_unique<RadioButtonImp>())
{
    Internal::InstallControlsAccessibility();
    Initialize();
}

RadioButton::RadioButton(const QString& text, QWidget* parent)
    : QRadioButton(text, parent)
    , mpImp(std::make_unique<RadioButtonImp>())
{
    Internal::InstallControlsAccessibility();
    Initialize();
}

RadioButton::~RadioButton() = default;

void RadioButton::Initialize()
{
    new Internal::ThemedFont(this);
    setAttribute(Qt::WA_Hover);
    setStyle(CustomStyle::GetInstance());
    setFocusPolicy(Qt::StrongFocus);
    setIconSize(ThemeFileKey::NormalIconSize);
    // A checked tile's text takes the active colour where the theme has one.
    mpImp->mpColor = new Internal::ThemedColor(this);
    mpImp->mpColor->SetAlternateKey(ThemeFileKey::FontActive1);
    mpImp->mpColor->SetAlternateActive(isChecked());
    mpImp->mpColor->SetThemeChangedHandler([this] { OnThemeChanged(); });
    connect(this, &QAbstractButton::toggled, mpImp->mpColor, &Internal::ThemedColor::SetAlternateActive);
}

QString RadioButton::GetIconThemeKey() const
{
    return mpImp->msIconThemeKey;
}

void RadioButton::SetIconThemeKey(const QString& key)
{
    if (key == mpImp->msIconThemeKey)
        return;
    mpImp->msIconThemeKey = key;
    Internal::ApplyThemedIcon(this, key);
    updateGeometry();
}

QSize RadioButton::sizeHint() const
{
    // The style centres a block of this size in the tile and insets it by 2
    // for the icon, which it draws at the block's top-left.
    const bool hasIcon = !icon().isNull();
    const bool hasText = !text().isEmpty();
    const QSize icon = hasIcon ? iconSize() : QSize(0, 0);
    int width = icon.width() + kTileMargin;
    if (hasText)
        width += fontMetrics().horizontalAdvance(text()) + (hasIcon ? kIconTextGap : 0) + 2 * kTileMargin;
    const int height = std::max(icon.height(), fontMetrics().height()) + kTileMargin;
    return QSize(std::max(width, height), height);
}

QSize RadioButton::minimumSizeHint() const
{
    return sizeHint();
}

bool RadioButton::hitButton(const QPoint& pos) const
{
    // The whole tile is the button, not only an indicator.
    return rect().contains(pos);
}

void RadioButton::OnThemeChanged()
{
    mpImp->mpColor->Apply();
    Internal::ApplyThemedIcon(this, mpImp->msIconThemeKey);
}

} // namespace Kavrel::UICore

#include <KvUICore/widgets/ImageLabel.h>

#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>

#include <QEvent>
#include <QIcon>

namespace Kavrel::UICore {

class ImageLabelImp
{
public:
    QString msImageThemeKey;
    QSize mImageSize = ThemeFileKey::NormalIconSize;
};

ImageLabel::ImageLabel(QWidget* parent)
    : QLabel(parent)
    , mpImp(std::make_unique<ImageLabelImp>())
{
    Internal::InstallControlsAccessibility();
    Initialize();
}

ImageLabel::ImageLabel(const QString& imageThemeKey, const QSize& imageSize, QWidget* parent)
    : QLabel(parent)
    , mpImp(std::make_unique<ImageLabelImp>())
{
    Internal::InstallControlsAccessibility();
    mpImp->msImageThemeKey = imageThemeKey;
    mpImp->mImageSize = imageSize;
    Initialize();
}

ImageLabel::~ImageLabel() = default;

void ImageLabel::Initialize()
{
    setAlignment(Qt::AlignCenter);
    UpdateImage();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ImageLabel::OnThemeChanged);
}

QString ImageLabel::GetImageThemeKey() const
{
    return mpImp->msImageThemeKey;
}

void ImageLabel::SetImageThemeKey(const QString& key)
{
    if (key == mpImp->msImageThemeKey)
        return;
    mpImp->msImageThemeKey = key;
    UpdateImage();
    Q_EMIT ImageThemeKeyChanged(key);
}

QSize ImageLabel::GetImageSize() const
{
    return mpImp->mImageSize;
}

void ImageLabel::SetImageSize(const QSize& size)
{
    if (size == mpImp->mImageSize)
        return;
    mpImp->mImageSize = size;
    UpdateImage();
}

void ImageLabel::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
    UpdateImage();
}

void ImageLabel::UpdateImage()
{
    const QIcon icon = Internal::IconFromTheme(mpImp->msImageThemeKey, mpImp->mImageSize);
    if (icon.isNull()) {
        clear();
        return;
    }
    setPixmap(icon.pixmap(mpImp->mImageSize, devicePixelRatioF(), isEnabled() ? QIcon::Normal : QIcon::Disabled));
}

void ImageLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        UpdateImage();
    QLabel::changeEvent(event);
}

} // namespace Kavrel::UICore

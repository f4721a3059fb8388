#include <KvUICore/widgets/ImageSwatch.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ImageThumbnailCache_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QAccessible>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHelpEvent>
#include <QIcon>
#include <QImageReader>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QUrl>

namespace Kavrel::UICore {

namespace {

constexpr QSize kPreferredSize(64, 64);
constexpr QSize kMinimumSize(24, 24);
constexpr int kRingSpace = 2;
constexpr int kIconSize = 16;

// The local image file a drag carries, or an empty text.
QString DroppedImageFile(const QMimeData* mime)
{
    if (!mime || !mime->hasUrls())
        return QString();
    const QList<QUrl> urls = mime->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return QString();
    const QString path = urls.first().toLocalFile();
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    return QImageReader::supportedImageFormats().contains(suffix) ? path : QString();
}

} // namespace

class ImageSwatchImp
{
public:
    explicit ImageSwatchImp(ImageSwatch* owner)
        : mpOwner(owner)
    {}

    QSize DeviceBox(const QRect& content) const
    {
        const qreal ratio = mpOwner->devicePixelRatioF();
        return QSize(qRound(content.width() * ratio), qRound(content.height() * ratio));
    }

    // The thumbnail for the content area, decoded once per size.
    const QImage& Thumbnail()
    {
        const QSize box = DeviceBox(mpOwner->ContentRect());
        if (box != mThumbnailBox) {
            mThumbnailBox = box;
            mThumbnail = mpOwner->ThumbnailFor(box);
        }
        return mThumbnail;
    }

    ImageSwatch::State State()
    {
        switch (mInfo.status) {
        case Internal::ImageFileInfo::NoFile:
            return ImageSwatch::NoImage;
        case Internal::ImageFileInfo::Missing:
            return ImageSwatch::Missing;
        case Internal::ImageFileInfo::Refused:
            return ImageSwatch::Unreadable;
        case Internal::ImageFileInfo::Readable:
            break;
        }
        Thumbnail();
        return msDecodeError.isEmpty() ? ImageSwatch::Loaded : ImageSwatch::Unreadable;
    }

    QString ToolTip()
    {
        const QString path = QDir::toNativeSeparators(mInfo.path);
        switch (State()) {
        case ImageSwatch::NoImage:
            return ImageSwatch::tr("No image");
        case ImageSwatch::Loaded:
            return ImageSwatch::tr("%1\n%2 × %3 pixels")
                .arg(path)
                .arg(mInfo.pixelSize.width())
                .arg(mInfo.pixelSize.height());
        case ImageSwatch::Missing:
        case ImageSwatch::Unreadable:
            return QStringLiteral("%1\n%2").arg(path, mpOwner->GetStateText());
        }
        return QString();
    }

    void Load(const QString& path)
    {
        msPath = path;
        mInfo = Internal::ProbeImageFile(path);
        msDecodeError.clear();
        mThumbnailBox = QSize();
        mThumbnail = QImage();
        mpOwner->update();
        Q_EMIT mpOwner->FilePathUpdated(path);
        if (QAccessible::isActive()) {
            QAccessibleEvent nameEvent(mpOwner, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&nameEvent);
            QAccessibleEvent valueEvent(mpOwner, QAccessible::ValueChanged);
            QAccessible::updateAccessibility(&valueEvent);
        }
    }

    void UserSetPath(const QString& path)
    {
        if (path == msPath)
            return;
        Load(path);
        Q_EMIT mpOwner->FilePathChanged(path);
    }

    void DrawFrame(QPainter& painter) const;
    void DrawPlaceholder(QPainter& painter, const QRect& content, const QString& iconKey, qreal opacity) const;
    void DrawFocus(QPainter& painter) const;

    ImageSwatch* const mpOwner;
    QString msPath;
    Internal::ImageFileInfo mInfo;
    QString msDecodeError;
    QImage mThumbnail;
    QSize mThumbnailBox;
    bool mbDropEnabled = true;
    bool mbDropHover = false;
};

void ImageSwatchImp::DrawFrame(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QString outline = ThemeFileKey::WidgetOutline3;
    if (!mpOwner->isEnabled())
        outline = ThemeFileKey::WidgetOutlineDisable;
    else if (mbDropHover)
        outline = ThemeFileKey::GradientBarClickOutline;
    else if (mpOwner->underMouse())
        outline = ThemeFileKey::HoverOutline4;
    const QRectF frame = QRectF(mpOwner->rect()).adjusted(kRingSpace, kRingSpace, -kRingSpace, -kRingSpace);
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(mpOwner, &painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    Internal::DrawFramedRect(&painter, Internal::StrokeRect(&painter, frame, grid),
                             themes->GetBrush(ThemeFileKey::NoImageSelectedContainer, frame.toRect()),
                             themes->GetColor(outline), grid);
    painter.restore();
}

void ImageSwatchImp::DrawPlaceholder(QPainter& painter, const QRect& content, const QString& iconKey,
                                     qreal opacity) const
{
    const int side = std::min({kIconSize, content.width(), content.height()});
    if (side <= 0)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity);
    const QRect icon(content.center() - QPoint(side / 2, side / 2), QSize(side, side));
    Internal::IconFromTheme(iconKey, QSize(side, side)).paint(&painter, icon);
    painter.restore();
}

void ImageSwatchImp::DrawFocus(QPainter& painter) const
{
    if (mpOwner->hasFocus() && mpOwner->isEnabled())
        Internal::DrawFocusRing(&painter, mpOwner, mpOwner->rect());
}

ImageSwatch::ImageSwatch(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<ImageSwatchImp>(this))
{
    Internal::InstallColorControlsAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover, true);
    setAcceptDrops(true);
    new Internal::ThemedColor(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ImageSwatch::OnThemeChanged);
}

ImageSwatch::~ImageSwatch() = default;

QString ImageSwatch::GetFilePath() const
{
    return mpImp->msPath;
}

void ImageSwatch::SetFilePath(const QString& path)
{
    if (path == mpImp->msPath)
        return;
    mpImp->Load(path);
}

void ImageSwatch::Reload()
{
    mpImp->Load(mpImp->msPath);
}

ImageSwatch::State ImageSwatch::GetState() const
{
    return mpImp->State();
}

QString ImageSwatch::GetStateText() const
{
    const State state = mpImp->State();
    if (state == Missing || mpImp->mInfo.status == Internal::ImageFileInfo::Refused)
        return mpImp->mInfo.reason;
    return state == Unreadable ? mpImp->msDecodeError : QString();
}

QSize ImageSwatch::GetImageSize() const
{
    return mpImp->mInfo.pixelSize;
}

QImage ImageSwatch::GetThumbnail() const
{
    return mpImp->Thumbnail();
}

bool ImageSwatch::IsDropEnabled() const
{
    return mpImp->mbDropEnabled;
}

void ImageSwatch::SetDropEnabled(bool enabled)
{
    mpImp->mbDropEnabled = enabled;
    setAcceptDrops(enabled);
}

QSize ImageSwatch::sizeHint() const
{
    return kPreferredSize;
}

QSize ImageSwatch::minimumSizeHint() const
{
    return kMinimumSize;
}

void ImageSwatch::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
}

QRect ImageSwatch::ContentRect() const
{
    const int inset = kRingSpace + 2;
    return rect().adjusted(inset, inset, -inset, -inset);
}

void ImageSwatch::DrawImage(QPainter& painter, const QRect& content)
{
    const QImage& image = mpImp->Thumbnail();
    if (image.isNull())
        return;
    const QSizeF logical = QSizeF(image.size()) / devicePixelRatioF();
    const QRectF target(content.left() + (content.width() - logical.width()) / 2.0,
                        content.top() + (content.height() - logical.height()) / 2.0, logical.width(), logical.height());
    if (image.hasAlphaChannel())
        Internal::DrawCheckerboard(&painter, target);
    painter.drawImage(target, image);
}

QImage ImageSwatch::ThumbnailFor(const QSize& box) const
{
    QString error;
    QImage image = Internal::DecodeThumbnail(mpImp->mInfo, box, &error);
    if (image.isNull() && mpImp->mInfo.status == Internal::ImageFileInfo::Readable && !error.isEmpty())
        mpImp->msDecodeError = error;
    return image;
}

bool ImageSwatch::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), mpImp->ToolTip(), this);
        return true;
    }
    return QWidget::event(event);
}

void ImageSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    if (!isEnabled())
        painter.setOpacity(0.4);
    mpImp->DrawFrame(painter);
    const QRect content = ContentRect();
    switch (mpImp->State()) {
    case NoImage:
        mpImp->DrawPlaceholder(painter, content, ThemeFileKey::image_16Icon, 0.5);
        break;
    case Missing:
        mpImp->DrawPlaceholder(painter, content, ThemeFileKey::MissingImageIcon, 1.0);
        break;
    case Unreadable:
        mpImp->DrawPlaceholder(painter, content, ThemeFileKey::MissingAssetIcon, 1.0);
        break;
    case Loaded:
        DrawImage(painter, content);
        break;
    }
    painter.setOpacity(1.0);
    mpImp->DrawFocus(painter);
}

void ImageSwatch::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT Activated();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void ImageSwatch::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT Activated();
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        mpImp->UserSetPath(QString());
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void ImageSwatch::dragEnterEvent(QDragEnterEvent* event)
{
    if (!mpImp->mbDropEnabled || !isEnabled() || DroppedImageFile(event->mimeData()).isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    mpImp->mbDropHover = true;
    update();
}

void ImageSwatch::dragLeaveEvent(QDragLeaveEvent* event)
{
    mpImp->mbDropHover = false;
    update();
    QWidget::dragLeaveEvent(event);
}

void ImageSwatch::dropEvent(QDropEvent* event)
{
    mpImp->mbDropHover = false;
    update();
    const QString path = DroppedImageFile(event->mimeData());
    if (!mpImp->mbDropEnabled || !isEnabled() || path.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    mpImp->UserSetPath(path);
}

void ImageSwatch::focusInEvent(QFocusEvent* event)
{
    update();
    QWidget::focusInEvent(event);
}

void ImageSwatch::focusOutEvent(QFocusEvent* event)
{
    update();
    QWidget::focusOutEvent(event);
}

void ImageSwatch::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace Kavrel::UICore

#include <KvUICore/widgets/TextureSwatch.h>

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <functional>

namespace Kavrel::UICore {

namespace {

constexpr int kPreviewSide = 256;
constexpr int kPreviewBorder = 1;
constexpr int kPreviewGap = 6;
constexpr int kHoverDelayMs = 500;

// Tiles the image across rect, the first tile at its top-left corner.
void DrawTiles(QPainter& painter, const QRect& rect, const QImage& tile)
{
    if (tile.isNull() || rect.isEmpty())
        return;
    if (tile.hasAlphaChannel())
        Internal::DrawCheckerboard(&painter, QRectF(rect));
    // The tile was decoded in device pixels; it tiles at its logical size.
    QPixmap pixmap = QPixmap::fromImage(tile);
    pixmap.setDevicePixelRatio(painter.device() ? painter.device()->devicePixelRatioF() : 1.0);
    painter.drawTiledPixmap(QRectF(rect), pixmap);
}

// The tile of an image for an area: a square of side × scale, in device pixels.
QSize TileBox(const QRect& area, double scale, qreal ratio)
{
    const int side = std::max(1, int(std::lround(std::min(area.width(), area.height()) * scale * ratio)));
    return QSize(side, side);
}

// The larger tiled view beside the swatch.
class TexturePreviewWindow : public QWidget
{
public:
    using TileSource = std::function<QImage(const QSize& box)>;

    TexturePreviewWindow(QWidget* owner, TileSource source)
        : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint)
        , mSource(std::move(source))
    {
        setObjectName(QStringLiteral("texturePreview"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        resize(kPreviewSide, kPreviewSide);
    }

    void SetScale(double scale)
    {
        mdScale = scale;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        ThemeManager* themes = ThemeManager::GetInstance();
        painter.fillRect(rect(), themes->GetBrush(ThemeFileKey::TexturePreviewWindowContainer, rect()));
        const QRect area =
            rect().adjusted(kPreviewBorder + 4, kPreviewBorder + 4, -kPreviewBorder - 4, -kPreviewBorder - 4);
        DrawTiles(painter, area, mSource(TileBox(area, mdScale, devicePixelRatioF())));
        painter.setPen(QPen(themes->GetColor(ThemeFileKey::ToolTipBorder), kPreviewBorder));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }

private:
    TileSource mSource;
    double mdScale = 0.5;
};

} // namespace

class TextureSwatchImp
{
public:
    explicit TextureSwatchImp(TextureSwatch* owner)
        : mpOwner(owner)
    {}

    TextureSwatch* const mpOwner;
    double mdScale = 0.5;
    bool mbPreviewEnabled = false;
    QPointer<TexturePreviewWindow> mpPreview;
    QTimer mHoverTimer;
};

TextureSwatch::TextureSwatch(QWidget* parent)
    : ImageSwatch(parent)
    , mpImp(std::make_unique<TextureSwatchImp>(this))
{
    mpImp->mHoverTimer.setSingleShot(true);
    mpImp->mHoverTimer.setInterval(kHoverDelayMs);
    connect(&mpImp->mHoverTimer, &QTimer::timeout, this, &TextureSwatch::ShowFloatingPreview);
}

TextureSwatch::~TextureSwatch() = default;

double TextureSwatch::GetTileScale() const
{
    return mpImp->mdScale;
}

void TextureSwatch::SetTileScale(double scale)
{
    if (!std::isfinite(scale))
        return;
    scale = std::clamp(scale, kMinimumTileScale, kMaximumTileScale);
    if (scale == mpImp->mdScale)
        return;
    mpImp->mdScale = scale;
    if (mpImp->mpPreview)
        mpImp->mpPreview->SetScale(scale);
    update();
}

bool TextureSwatch::IsFloatingPreviewEnabled() const
{
    return mpImp->mbPreviewEnabled;
}

void TextureSwatch::SetFloatingPreviewEnabled(bool enabled)
{
    mpImp->mbPreviewEnabled = enabled;
    if (!enabled)
        HideFloatingPreview();
}

void TextureSwatch::ShowFloatingPreview()
{
    if (!mpImp->mbPreviewEnabled || GetState() != Loaded || !isVisible())
        return;
    if (!mpImp->mpPreview)
        mpImp->mpPreview = new TexturePreviewWindow(this, [this](const QSize& box) { return ThumbnailFor(box); });
    mpImp->mpPreview->SetScale(mpImp->mdScale);
    // Beside the swatch (before it in a right-to-left layout), inside the screen.
    const QRect global(mapToGlobal(QPoint(0, 0)), size());
    QPoint place = layoutDirection() == Qt::RightToLeft
                       ? QPoint(global.left() - kPreviewGap - kPreviewSide, global.top())
                       : QPoint(global.right() + 1 + kPreviewGap, global.top());
    if (QScreen* screen = QGuiApplication::screenAt(global.center())) {
        const QRect available = screen->availableGeometry();
        place.setX(
            std::clamp(place.x(), available.left(), std::max(available.left(), available.right() - kPreviewSide)));
        place.setY(
            std::clamp(place.y(), available.top(), std::max(available.top(), available.bottom() - kPreviewSide)));
    }
    mpImp->mpPreview->move(place);
    mpImp->mpPreview->show();
}

void TextureSwatch::HideFloatingPreview()
{
    mpImp->mHoverTimer.stop();
    if (mpImp->mpPreview)
        mpImp->mpPreview->hide();
}

QWidget* TextureSwatch::GetFloatingPreview() const
{
    return mpImp->mpPreview && mpImp->mpPreview->isVisible() ? mpImp->mpPreview.data() : nullptr;
}

void TextureSwatch::DrawImage(QPainter& painter, const QRect& content)
{
    DrawTiles(painter, content, ThumbnailFor(TileBox(content, mpImp->mdScale, devicePixelRatioF())));
}

void TextureSwatch::enterEvent(QEnterEvent* event)
{
    if (mpImp->mbPreviewEnabled)
        mpImp->mHoverTimer.start();
    ImageSwatch::enterEvent(event);
}

void TextureSwatch::leaveEvent(QEvent* event)
{
    HideFloatingPreview();
    ImageSwatch::leaveEvent(event);
}

void TextureSwatch::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && (event->modifiers() & Qt::ShiftModifier)) {
        if (GetFloatingPreview())
            HideFloatingPreview();
        else
            ShowFloatingPreview();
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Escape && GetFloatingPreview()) {
        HideFloatingPreview();
        event->accept();
        return;
    }
    ImageSwatch::keyPressEvent(event);
}

void TextureSwatch::hideEvent(QHideEvent* event)
{
    HideFloatingPreview();
    ImageSwatch::hideEvent(event);
}

} // namespace Kavrel::UICore

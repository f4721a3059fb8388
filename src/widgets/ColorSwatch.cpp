#include <KvUICore/widgets/ColorSwatch.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QAccessible>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace Kavrel::UICore {

namespace {

constexpr QSize kPreferredSize(48, 24);
constexpr QSize kMinimumSize(24, 20);
constexpr int kRingSpace = 2;
constexpr int kColorInset = 2;
constexpr int kIconSize = 16;

} // namespace

class ColorSwatchImp
{
public:
    explicit ColorSwatchImp(ColorSwatch* owner)
        : mpOwner(owner)
    {}

    QRectF FrameRect() const
    {
        return QRectF(mpOwner->rect()).adjusted(kRingSpace, kRingSpace, -kRingSpace, -kRingSpace);
    }
    QRectF ColorRect() const { return FrameRect().adjusted(kColorInset, kColorInset, -kColorInset, -kColorInset); }

    void Show(const QColor& color)
    {
        if (color == mColor)
            return;
        mColor = color;
        mpOwner->update();
        Q_EMIT mpOwner->ColorUpdated(color);
        if (QAccessible::isActive()) {
            QAccessibleEvent event(mpOwner, QAccessible::ValueChanged);
            QAccessible::updateAccessibility(&event);
        }
    }

    void DrawFrame(QPainter& painter) const;
    void DrawColor(QPainter& painter) const;
    void DrawFocus(QPainter& painter) const;

    ColorSwatch* const mpOwner;
    QColor mColor = QColor(Qt::white);
    bool mbAlphaEnabled = false;
    bool mbPressed = false;
    bool mbHovered = false;
    QPointer<ColorPickerPopup> mpPopup;
};

void ColorSwatchImp::DrawFrame(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const bool enabled = mpOwner->isEnabled();
    const bool open = mpPopup && mpPopup->IsOpen();
    QString outlineKey = ThemeFileKey::WidgetOutline3;
    if (!enabled)
        outlineKey = ThemeFileKey::WidgetOutlineDisable;
    else if (mbPressed || open)
        outlineKey = ThemeFileKey::ClickOutline1;
    else if (mbHovered)
        outlineKey = ThemeFileKey::HoverOutline4;
    const QRectF frame = FrameRect();
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(mpOwner, &painter);
    const QString fillKey = enabled ? ThemeFileKey::WidgetContainer9 : ThemeFileKey::WidgetContainerDisable;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    Internal::DrawFramedRect(&painter, Internal::StrokeRect(&painter, frame, grid),
                             themes->GetBrush(fillKey, frame.toRect()), themes->GetColor(outlineKey), grid);
    painter.restore();
}

void ColorSwatchImp::DrawColor(QPainter& painter) const
{
    const QRectF box = ColorRect();
    if (box.isEmpty())
        return;
    painter.save();
    if (!mpOwner->isEnabled())
        painter.setOpacity(0.4);
    if (!mColor.isValid()) {
        painter.fillRect(box, ThemeManager::GetInstance()->GetColor(ThemeFileKey::NoImageSelectedContainer));
        const QIcon icon = Internal::IconFromTheme(ThemeFileKey::HueWheelIcon, QSize(kIconSize, kIconSize));
        const int side = int(std::min<qreal>(kIconSize, std::min(box.width(), box.height())));
        icon.paint(&painter, QRect(box.center().toPoint() - QPoint(side / 2, side / 2), QSize(side, side)));
        painter.restore();
        return;
    }
    if (mColor.alpha() == 255) {
        painter.fillRect(box, mColor);
        painter.restore();
        return;
    }
    // The leading half shows the colour as it would be opaque, the other half as it is.
    QColor opaque = mColor;
    opaque.setAlpha(255);
    const qreal half = std::round(box.width() / 2.0);
    QRectF leading(box.left(), box.top(), half, box.height());
    QRectF trailing(box.left() + half, box.top(), box.width() - half, box.height());
    if (mpOwner->layoutDirection() == Qt::RightToLeft) {
        trailing = QRectF(box.left(), box.top(), box.width() - half, box.height());
        leading = QRectF(trailing.right(), box.top(), half, box.height());
    }
    painter.fillRect(leading, opaque);
    Internal::DrawCheckerboard(&painter, trailing);
    painter.fillRect(trailing, mColor);
    painter.restore();
}

void ColorSwatchImp::DrawFocus(QPainter& painter) const
{
    if (mpOwner->hasFocus() && mpOwner->isEnabled())
        Internal::DrawFocusRing(&painter, mpOwner, mpOwner->rect());
}

ColorSwatch::ColorSwatch(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<ColorSwatchImp>(this))
{
    Internal::InstallColorControlsAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover, true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    new Internal::ThemedColor(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ColorSwatch::OnThemeChanged);
}

ColorSwatch::~ColorSwatch() = default;

QColor ColorSwatch::GetColor() const
{
    return mpImp->mColor;
}

void ColorSwatch::SetColor(const QColor& color)
{
    QColor next = color.isValid() ? color.toRgb() : QColor();
    if (next.isValid() && !mpImp->mbAlphaEnabled)
        next.setAlpha(255);
    mpImp->Show(next);
    if (mpImp->mpPopup && mpImp->mpPopup->IsOpen() && next.isValid())
        mpImp->mpPopup->GetPicker()->SetColor(next);
}

bool ColorSwatch::IsAlphaEnabled() const
{
    return mpImp->mbAlphaEnabled;
}

void ColorSwatch::SetAlphaEnabled(bool enabled)
{
    if (enabled == mpImp->mbAlphaEnabled)
        return;
    mpImp->mbAlphaEnabled = enabled;
    if (!enabled && mpImp->mColor.isValid() && mpImp->mColor.alpha() != 255) {
        QColor opaque = mpImp->mColor;
        opaque.setAlpha(255);
        mpImp->Show(opaque);
    }
}

void ColorSwatch::OpenPicker()
{
    if (!isEnabled() || IsPickerOpen())
        return;
    if (!mpImp->mpPopup) {
        mpImp->mpPopup = new ColorPickerPopup(this);
        connect(mpImp->mpPopup, &ColorPickerPopup::ColorChanged, this, [this](const QColor& color) {
            if (color == mpImp->mColor)
                return;
            mpImp->Show(color);
            Q_EMIT ColorChanged(color);
        });
        connect(mpImp->mpPopup, &ColorPickerPopup::Finished, this, [this](bool accepted, const QColor& color) {
            const QColor old = mpImp->mpPopup ? mpImp->mpPopup->GetPicker()->GetOldColor() : QColor();
            update();
            if (accepted && color != old)
                Q_EMIT ColorCommitted(color);
        });
    }
    const QColor start = mpImp->mColor.isValid() ? mpImp->mColor : QColor(Qt::white);
    mpImp->mpPopup->Open(start, mpImp->mbAlphaEnabled, QRect(mapToGlobal(QPoint(0, 0)), size()));
    update();
}

bool ColorSwatch::IsPickerOpen() const
{
    return mpImp->mpPopup && mpImp->mpPopup->IsOpen();
}

ColorPicker* ColorSwatch::GetPicker() const
{
    return IsPickerOpen() ? mpImp->mpPopup->GetPicker() : nullptr;
}

QSize ColorSwatch::sizeHint() const
{
    return kPreferredSize;
}

QSize ColorSwatch::minimumSizeHint() const
{
    return kMinimumSize;
}

void ColorSwatch::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    mpImp->DrawFrame(painter);
    mpImp->DrawColor(painter);
    mpImp->DrawFocus(painter);
}

void ColorSwatch::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    mpImp->mbPressed = true;
    update();
}

void ColorSwatch::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !mpImp->mbPressed) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    mpImp->mbPressed = false;
    update();
    if (rect().contains(event->position().toPoint()))
        OpenPicker();
}

void ColorSwatch::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool altDown = key == Qt::Key_Down && (event->modifiers() & Qt::AltModifier);
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F4 || altDown) {
        OpenPicker();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void ColorSwatch::enterEvent(QEnterEvent* event)
{
    mpImp->mbHovered = true;
    update();
    QWidget::enterEvent(event);
}

void ColorSwatch::leaveEvent(QEvent* event)
{
    mpImp->mbHovered = false;
    mpImp->mbPressed = false;
    update();
    QWidget::leaveEvent(event);
}

void ColorSwatch::focusInEvent(QFocusEvent* event)
{
    update();
    QWidget::focusInEvent(event);
}

void ColorSwatch::focusOutEvent(QFocusEvent* event)
{
    update();
    QWidget::focusOutEvent(event);
}

void ColorSwatch::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LayoutDirectionChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace Kavrel::UICore

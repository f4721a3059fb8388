#include <KvUICore/widgets/ColorPickerParts_p.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorWheel.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace Kavrel::UICore {

namespace {

constexpr int kAlphaBarHeight = 16;
constexpr int kAlphaMarkerHalfWidth = 3;
constexpr int kRecentCell = 16;
constexpr int kRecentGap = 4;
constexpr int kPopupMargin = 8;

struct RecentStore
{
    QList<QColor> colors;
    const void* lastRecorder = nullptr;
    QList<RecentColorsRow*> rows;
};

RecentStore& Store()
{
    static RecentStore store;
    return store;
}

void RefreshRows()
{
    for (RecentColorsRow* row : std::as_const(Store().rows))
        row->Refresh();
}

// The frame the picker's small parts share: the field outline of the theme.
void DrawPartFrame(QPainter& painter, const QRectF& rect, const QWidget* widget)
{
    const float factor = Internal::DeviceScaleFactor(widget);
    const qreal unit = Internal::StrokeUnit(factor);
    QColor outline = ThemeManager::GetInstance()->GetColor(ThemeFileKey::WidgetOutline3);
    if (!widget->isEnabled())
        outline = Internal::DimmedColor(outline);
    painter.save();
    painter.setPen(QPen(outline, unit));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(unit / 2, unit / 2, -unit / 2, -unit / 2));
    painter.restore();
}

} // namespace

namespace Internal {

void RecordRecentColor(const QColor& color, const void* recorder)
{
    if (!color.isValid())
        return;
    RecentStore& store = Store();
    if (recorder && recorder == store.lastRecorder && !store.colors.isEmpty())
        store.colors.removeFirst();
    store.colors.removeAll(color);
    store.colors.prepend(color);
    while (store.colors.size() > ColorPicker::kMaxRecentColors)
        store.colors.removeLast();
    store.lastRecorder = recorder;
    RefreshRows();
}

QList<QColor> RecentColors()
{
    return Store().colors;
}

void ClearRecentColors()
{
    Store().colors.clear();
    Store().lastRecorder = nullptr;
    RefreshRows();
}

} // namespace Internal

// ---- AlphaBar --------------------------------------------------------------

AlphaBar::AlphaBar(QWidget* parent)
    : QWidget(parent)
{
    Internal::InstallColorControlsAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Alpha"));
}

int AlphaBar::GetAlpha() const
{
    return miAlpha;
}

void AlphaBar::SetAlpha(int alpha)
{
    alpha = std::clamp(alpha, 0, 255);
    if (alpha == miAlpha)
        return;
    miAlpha = alpha;
    update();
}

void AlphaBar::SetColor(const QColor& color)
{
    if (!color.isValid())
        return;
    QColor opaque = color;
    opaque.setAlpha(255);
    if (opaque == mColor)
        return;
    mColor = opaque;
    update();
}

QRectF AlphaBar::TrackRect() const
{
    return QRectF(rect()).adjusted(kAlphaMarkerHalfWidth + 1, 3, -kAlphaMarkerHalfWidth - 1, -3);
}

QSize AlphaBar::sizeHint() const
{
    return QSize(160, kAlphaBarHeight);
}

QSize AlphaBar::minimumSizeHint() const
{
    return QSize(48, kAlphaBarHeight);
}

int AlphaBar::AlphaAt(qreal x) const
{
    const QRectF track = TrackRect();
    qreal f = track.width() > 0 ? (x - track.left()) / track.width() : 0.0;
    if (layoutDirection() == Qt::RightToLeft)
        f = 1.0 - f;
    return std::clamp(int(std::lround(f * 255.0)), 0, 255);
}

void AlphaBar::Change(int alpha)
{
    alpha = std::clamp(alpha, 0, 255);
    if (alpha == miAlpha)
        return;
    miAlpha = alpha;
    mbPendingCommit = true;
    update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, miAlpha);
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT AlphaChanged(alpha);
}

void AlphaBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF track = TrackRect();
    if (!isEnabled())
        painter.setOpacity(0.4);
    Internal::DrawCheckerboard(&painter, track);
    QColor clear = mColor;
    clear.setAlpha(0);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    QLinearGradient ramp(track.topLeft(), track.topRight());
    ramp.setColorAt(mirrored ? 1.0 : 0.0, clear);
    ramp.setColorAt(mirrored ? 0.0 : 1.0, mColor);
    painter.fillRect(track, ramp);
    DrawPartFrame(painter, track.adjusted(-1, -1, 1, 1), this);

    // The marker: a bar across the track, dark and light so it shows on any colour.
    qreal f = miAlpha / 255.0;
    if (mirrored)
        f = 1.0 - f;
    const qreal x = track.left() + f * track.width();
    const QRectF marker(x - kAlphaMarkerHalfWidth, 0.5, 2 * kAlphaMarkerHalfWidth, height() - 1.0);
    painter.setPen(QPen(QColor(Qt::black), 1.0));
    painter.setBrush(QColor(Qt::white));
    painter.drawRect(marker);
    painter.setOpacity(1.0);
    if (hasFocus())
        Internal::DrawFocusRing(&painter, this, rect());
}

void AlphaBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    mbDragging = true;
    Change(AlphaAt(event->position().x()));
}

void AlphaBar::mouseMoveEvent(QMouseEvent* event)
{
    if (mbDragging)
        Change(AlphaAt(event->position().x()));
}

void AlphaBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (!mbDragging || event->button() != Qt::LeftButton)
        return;
    Change(AlphaAt(event->position().x()));
    mbDragging = false;
    if (mbPendingCommit) {
        mbPendingCommit = false;
        Q_EMIT AlphaCommitted(miAlpha);
    }
}

void AlphaBar::keyPressEvent(QKeyEvent* event)
{
    const int step = (event->modifiers() & Qt::ShiftModifier) ? 16 : 1;
    const int towardsRight = layoutDirection() == Qt::RightToLeft ? -step : step;
    switch (event->key()) {
    case Qt::Key_Left:
        Change(miAlpha - towardsRight);
        break;
    case Qt::Key_Right:
        Change(miAlpha + towardsRight);
        break;
    case Qt::Key_Down:
        Change(miAlpha - step);
        break;
    case Qt::Key_Up:
        Change(miAlpha + step);
        break;
    case Qt::Key_Home:
        Change(0);
        break;
    case Qt::Key_End:
        Change(255);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
}

void AlphaBar::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat() && mbPendingCommit) {
        mbPendingCommit = false;
        Q_EMIT AlphaCommitted(miAlpha);
    }
    QWidget::keyReleaseEvent(event);
}

// ---- ColorChip -------------------------------------------------------------

ColorChip::ColorChip(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QColor ColorChip::GetColor() const
{
    return mColor;
}

void ColorChip::SetColor(const QColor& color)
{
    if (color == mColor)
        return;
    mColor = color;
    setToolTip(Internal::AccessibleColorText(color));
    update();
}

QSize ColorChip::sizeHint() const
{
    return QSize(48, 28);
}

void ColorChip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (!isEnabled())
        painter.setOpacity(0.4);
    if (mColor.isValid() && mColor.alpha() < 255)
        Internal::DrawCheckerboard(&painter, box);
    if (mColor.isValid())
        painter.fillRect(box, mColor);
    painter.setOpacity(1.0);
    DrawPartFrame(painter, QRectF(rect()), this);
}

void ColorChip::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT Clicked();
}

// ---- RecentColorsRow -------------------------------------------------------

RecentColorsRow::RecentColorsRow(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Recent colours"));
    Store().rows.append(this);
    Refresh();
}

RecentColorsRow::~RecentColorsRow()
{
    Store().rows.removeAll(this);
}

QRect RecentColorsRow::CellRect(int index) const
{
    if (index < 0 || index >= ColorPicker::kMaxRecentColors)
        return QRect();
    const int x = index * (kRecentCell + kRecentGap);
    QRect cell(x, (height() - kRecentCell) / 2, kRecentCell, kRecentCell);
    if (layoutDirection() == Qt::RightToLeft)
        cell.moveLeft(width() - x - kRecentCell);
    return cell;
}

int RecentColorsRow::CellAt(const QPoint& point) const
{
    for (int i = 0; i < mColors.size(); ++i) {
        if (CellRect(i).contains(point))
            return i;
    }
    return -1;
}

void RecentColorsRow::Refresh()
{
    const QList<QColor> colors = Internal::RecentColors();
    if (colors == mColors)
        return;
    mColors = colors;
    update();
}

QSize RecentColorsRow::sizeHint() const
{
    return QSize(ColorPicker::kMaxRecentColors * (kRecentCell + kRecentGap), kRecentCell + 4);
}

void RecentColorsRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    for (int i = 0; i < ColorPicker::kMaxRecentColors; ++i) {
        const QRectF cell = CellRect(i);
        if (cell.right() > width())
            break;
        if (i < mColors.size()) {
            const QColor& color = mColors.at(i);
            if (color.alpha() < 255)
                Internal::DrawCheckerboard(&painter, cell.adjusted(1, 1, -1, -1), 3.0);
            painter.fillRect(cell.adjusted(1, 1, -1, -1), color);
            DrawPartFrame(painter, cell, this);
        } else {
            // An empty slot: a faint frame only.
            painter.save();
            painter.setOpacity(painter.opacity() * 0.4);
            DrawPartFrame(painter, cell, this);
            painter.restore();
        }
    }
}

void RecentColorsRow::mouseReleaseEvent(QMouseEvent* event)
{
    const int index = CellAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0)
        Q_EMIT ColorChosen(mColors.at(index));
}

bool RecentColorsRow::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = CellAt(help->pos());
        if (index >= 0)
            QToolTip::showText(help->globalPos(), Internal::AccessibleColorText(mColors.at(index)), this,
                               CellRect(index));
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

// ---- ColorPickerPopup ------------------------------------------------------

ColorPickerPopup::ColorPickerPopup(QWidget* anchor)
    : QFrame(anchor, Qt::Popup)
{
    setAttribute(Qt::WA_WindowPropagation);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPopupMargin, kPopupMargin, kPopupMargin, kPopupMargin);
    mpPicker = new ColorPicker(this);
    mpPicker->SetRecordsOnCommit(false);
    layout->addWidget(mpPicker);
    connect(mpPicker, &ColorPicker::ColorChanged, this, &ColorPickerPopup::ColorChanged);
}

ColorPickerPopup::~ColorPickerPopup() = default;

ColorPicker* ColorPickerPopup::GetPicker() const
{
    return mpPicker;
}

void ColorPickerPopup::Open(const QColor& color, bool alphaEnabled, const QRect& anchorRect)
{
    mOldColor = color;
    mbRejected = false;
    mpPicker->SetAlphaEnabled(alphaEnabled);
    mpPicker->SetColor(color);
    mpPicker->SetOldColor(color);
    adjustSize();
    // Below the anchor, or above it where the screen ends; inside the screen.
    QScreen* screen = QGuiApplication::screenAt(anchorRect.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect(anchorRect.bottomLeft(), size());
    QPoint place(layoutDirection() == Qt::RightToLeft ? anchorRect.right() - width() + 1 : anchorRect.left(),
                 anchorRect.bottom() + 1);
    if (place.y() + height() > available.bottom() && anchorRect.top() - height() >= available.top())
        place.setY(anchorRect.top() - height());
    place.setX(std::clamp(place.x(), available.left(), std::max(available.left(), available.right() - width() + 1)));
    place.setY(std::clamp(place.y(), available.top(), std::max(available.top(), available.bottom() - height() + 1)));
    move(place);
    mbOpen = true;
    show();
    mpPicker->GetWheel()->setFocus(Qt::PopupFocusReason);
}

void ColorPickerPopup::Accept()
{
    Finish(true);
}

void ColorPickerPopup::Reject()
{
    Finish(false);
}

bool ColorPickerPopup::IsOpen() const
{
    return mbOpen;
}

void ColorPickerPopup::Finish(bool accepted)
{
    if (!mbOpen)
        return;
    mbOpen = false;
    mpPicker->CancelEyedropper();
    if (!accepted && mpPicker->GetColor() != mOldColor) {
        mpPicker->SetColor(mOldColor);
        Q_EMIT ColorChanged(mOldColor);
    }
    const QColor result = accepted ? mpPicker->GetColor() : mOldColor;
    if (accepted && result != mOldColor)
        Internal::RecordRecentColor(result, nullptr);
    hide();
    Q_EMIT Finished(accepted, result);
}

void ColorPickerPopup::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (mpPicker->IsPicking())
            mpPicker->CancelEyedropper();
        else
            Reject();
        event->accept();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Accept();
        event->accept();
        return;
    default:
        QFrame::keyPressEvent(event);
    }
}

void ColorPickerPopup::hideEvent(QHideEvent* event)
{
    // Closed by a click outside: the new colour stays.
    Finish(true);
    QFrame::hideEvent(event);
}

void ColorPickerPopup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ThemeManager* themes = ThemeManager::GetInstance();
    painter.fillRect(rect(), themes->GetBrush(ThemeFileKey::DropDownMenuBackground, rect()));
    painter.setPen(QPen(themes->GetColor(ThemeFileKey::DropDownMenuBorderColor), 1.0));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace Kavrel::UICore

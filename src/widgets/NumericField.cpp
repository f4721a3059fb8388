#include <KvUICore/widgets/NumericField.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/EditAnnouncer_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace Kavrel::UICore {

class NumericFieldImp
{
public:
    explicit NumericFieldImp(NumericField* owner)
        : mpOwner(owner)
    {}

    // Strokes rect one stroke unit wide, inside its edges.
    static void StrokeInside(QPainter& painter, const QRectF& rect, const QColor& color, qreal unit)
    {
        if (!color.isValid() || rect.width() <= unit || rect.height() <= unit)
            return;
        QPen pen(color, unit, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(unit / 2, unit / 2, -unit / 2, -unit / 2));
    }

    void PaintFrame(QPainter& painter) const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const qreal unit = Internal::StrokeUnit(Internal::DeviceScaleFactor(mpOwner));
        const QRectF outer = QRectF(mpOwner->rect());
        const QRect fillRect = mpOwner->rect().adjusted(1, 1, -1, -1);
        QColor outline;
        QBrush background;
        if (!mpOwner->isEnabled()) {
            outline = themes->GetColor(ThemeFileKey::WidgetOutlineDisable);
            background = themes->GetBrush(ThemeFileKey::WidgetContainerDisable, fillRect);
        } else if (mpOwner->hasFocus()) {
            outline = themes->GetColor(ThemeFileKey::WidgetOutline6);
            background = themes->GetBrush(ThemeFileKey::WidgetContainer12, fillRect);
        } else if (miHoverState != 0) {
            outline = themes->GetColor(ThemeFileKey::HoverOutline4);
            background = themes->GetBrush(ThemeFileKey::WidgetContainer12, fillRect);
        } else {
            outline = themes->GetColor(ThemeFileKey::WidgetOutline3);
            background = themes->GetBrush(ThemeFileKey::WidgetContainer9, fillRect);
        }
        painter.fillRect(fillRect, background);
        StrokeInside(painter, outer, outline, unit);
        if (mpOwner->isEnabled() && mpOwner->hasFocus())
            StrokeInside(painter, outer.adjusted(unit, unit, -unit, -unit),
                         themes->GetColor(ThemeFileKey::FocusOutline2), unit);
    }

    NumericField* const mpOwner;
    int miHoverState = 0;
    bool mbSelectedOnClick = false;
    bool mbModified = false;
    Internal::EditAnnouncer* mpAnnouncer = nullptr;
};

NumericField::NumericField(QWidget* parent)
    : QLineEdit(parent)
    , mpImp(std::make_unique<NumericFieldImp>(this))
{
    Internal::InstallControlsAccessibility();
    new Internal::ThemedFont(this);
    mpImp->mpAnnouncer = new Internal::EditAnnouncer(this);
    setFocusPolicy(Qt::StrongFocus);
    setStyle(CustomStyle::GetInstance());
    setAttribute(Qt::WA_Hover, true);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    new Internal::ThemedColor(this);
}

NumericField::~NumericField() = default;

bool NumericField::IsModified() const
{
    return mpImp->mbModified;
}

void NumericField::ClearModified()
{
    mpImp->mbModified = false;
}

int NumericField::HoverState() const
{
    return mpImp->miHoverState;
}

void NumericField::UpdateModified()
{
    mpImp->mbModified |= isModified();
}

void NumericField::mousePressEvent(QMouseEvent* event)
{
    QPointer<NumericField> self(this);
    QLineEdit::mousePressEvent(event);
    if (!self)
        return;
    mpImp->miHoverState = 2;
    if (!mpImp->mbSelectedOnClick) {
        selectAll();
        mpImp->mbSelectedOnClick = true;
    }
    update();
}

void NumericField::enterEvent(QEnterEvent* event)
{
    mpImp->miHoverState = 1;
    QLineEdit::enterEvent(event);
    update();
}

void NumericField::leaveEvent(QEvent* event)
{
    mpImp->miHoverState = 0;
    QLineEdit::leaveEvent(event);
    update();
}

void NumericField::focusInEvent(QFocusEvent* event)
{
    mpImp->mbModified = false;
    QLineEdit::focusInEvent(event);
}

void NumericField::focusOutEvent(QFocusEvent* event)
{
    UpdateModified();
    // editingFinished() handlers may delete the field.
    if (!mpImp->mpAnnouncer->FocusOut(event, [this, event] { QLineEdit::focusOutEvent(event); }))
        return;
    mpImp->mbSelectedOnClick = false;
    Q_EMIT FocusOut();
}

void NumericField::keyPressEvent(QKeyEvent* event)
{
    // returnPressed() and editingFinished() handlers may delete the field.
    QPointer<NumericField> self(this);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!mpImp->mpAnnouncer->KeyPress(event, [this, event] { QLineEdit::keyPressEvent(event); }))
            return;
        selectAll();
        break;
    case Qt::Key_PageUp:
        home(false);
        event->accept();
        break;
    case Qt::Key_PageDown:
        end(false);
        event->accept();
        break;
    default:
        QLineEdit::keyPressEvent(event);
        break;
    }
    if (self)
        UpdateModified();
}

void NumericField::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        mpImp->PaintFrame(painter);
    }
    QLineEdit::paintEvent(event);
}

} // namespace Kavrel::UICore

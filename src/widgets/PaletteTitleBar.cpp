#include <KvUICore/widgets/PaletteTitleBar.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace Kavrel::UICore {

namespace {
constexpr int kTextLeft = 6;
}

class PaletteTitleBarImp
{
public:
    QRect CloseRect(const QWidget* bar) const
    {
        const int side = ThemeFileKey::TitleBarCloseButtonWidth;
        const int margin = ThemeFileKey::TitleBarCloseButtonMargin;
        const QRect r(bar->width() - margin - side, (bar->height() - side) / 2, side, side);
        return QStyle::visualRect(bar->layoutDirection(), bar->rect(), r);
    }

    QString msTitle;
    Internal::GlyphButton* mpClose = nullptr;
    Internal::ThemedColor* mpTextColor = nullptr;
    QPoint mDragOffset;
    bool mbDragging = false;
};

PaletteTitleBar::PaletteTitleBar(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<PaletteTitleBarImp>())
{
    Internal::InstallNavigationAccessibility();
    setFixedHeight(ThemeFileKey::TitleBarHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    new Internal::ThemedFont(this);
    mpImp->mpTextColor = new Internal::ThemedColor(this, ThemeFileKey::TitleBarTextColor);
    mpImp->mpClose = new Internal::GlyphButton(ThemeFileKey::TitleBarCloseButtonColor, QString(), this);
    mpImp->mpClose->setObjectName(QStringLiteral("PaletteCloseButton"));
    mpImp->mpClose->SetGlyphSize(ThemeFileKey::TitleBarCloseButtonWidth - 6);
    mpImp->mpClose->setToolTip(tr("Close"));
    mpImp->mpClose->setAccessibleName(tr("Close"));
    connect(mpImp->mpClose, &QAbstractButton::clicked, this, &PaletteTitleBar::CloseClicked);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &PaletteTitleBar::OnThemeChanged);
}

PaletteTitleBar::~PaletteTitleBar() = default;

QString PaletteTitleBar::GetTitle() const
{
    return mpImp->msTitle;
}

void PaletteTitleBar::SetTitle(const QString& title)
{
    if (title == mpImp->msTitle)
        return;
    mpImp->msTitle = title;
    setAccessibleName(title);
    updateGeometry();
    update();
}

void PaletteTitleBar::SetCloseButtonVisible(bool visible)
{
    mpImp->mpClose->setVisible(visible);
}

bool PaletteTitleBar::IsCloseButtonVisible() const
{
    return !mpImp->mpClose->isHidden();
}

QAbstractButton* PaletteTitleBar::GetCloseButton() const
{
    return mpImp->mpClose;
}

QSize PaletteTitleBar::sizeHint() const
{
    const int closePart = ThemeFileKey::TitleBarCloseButtonWidth + 2 * ThemeFileKey::TitleBarCloseButtonMargin;
    return QSize(fontMetrics().horizontalAdvance(mpImp->msTitle) + kTextLeft + closePart, ThemeFileKey::TitleBarHeight);
}

QSize PaletteTitleBar::minimumSizeHint() const
{
    const int closePart = ThemeFileKey::TitleBarCloseButtonWidth + 2 * ThemeFileKey::TitleBarCloseButtonMargin;
    return QSize(kTextLeft + closePart + 24, ThemeFileKey::TitleBarHeight);
}

void PaletteTitleBar::OnThemeChanged()
{
    update();
}

void PaletteTitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ThemeManager* themes = ThemeManager::GetInstance();
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, themes->GetColor(ThemeFileKey::TitleBarTopColor));
    gradient.setColorAt(1, themes->GetColor(ThemeFileKey::TitleBarBottomColor));
    painter.fillRect(rect(), gradient);

    const QRect close = mpImp->CloseRect(this);
    QRect text = rect().adjusted(kTextLeft, 0, -kTextLeft, 0);
    if (IsCloseButtonVisible()) {
        if (layoutDirection() == Qt::RightToLeft)
            text.setLeft(close.right() + ThemeFileKey::TitleBarCloseButtonMargin);
        else
            text.setRight(close.left() - ThemeFileKey::TitleBarCloseButtonMargin);
    }
    QColor color = palette().color(QPalette::WindowText);
    if (!isEnabled())
        color = Internal::DimmedColor(color);
    painter.setPen(color);
    // AlignLeading is AlignLeft to QPainter: the layout's leading edge is asked for.
    painter.drawText(
        text, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignVCenter | Qt::AlignLeading)) | Qt::TextSingleLine,
        fontMetrics().elidedText(mpImp->msTitle, Qt::ElideRight, text.width()));
}

void PaletteTitleBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    mpImp->mpClose->setGeometry(mpImp->CloseRect(this));
}

void PaletteTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    QWidget* palette = parentWidget() ? parentWidget() : this;
    mpImp->mDragOffset = event->globalPosition().toPoint() - palette->mapToGlobal(QPoint(0, 0));
    mpImp->mbDragging = true;
    event->accept();
}

void PaletteTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!mpImp->mbDragging || !(event->buttons() & Qt::LeftButton))
        return QWidget::mouseMoveEvent(event);
    Q_EMIT DragMoved(event->globalPosition().toPoint() - mpImp->mDragOffset);
    event->accept();
}

void PaletteTitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (mpImp->mbDragging && event->button() == Qt::LeftButton) {
        mpImp->mbDragging = false;
        Q_EMIT DragFinished();
        event->accept();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void PaletteTitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mouseDoubleClickEvent(event);
    mpImp->mbDragging = false;
    Q_EMIT DoubleClicked();
    event->accept();
}

void PaletteTitleBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        mpImp->mpClose->setGeometry(mpImp->CloseRect(this));
}

} // namespace Kavrel::UICore

#include <KvUICore/widgets/PaletteWindow.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/platform/NativeParent_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/PaletteResizeButton.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QHideEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace Kavrel::UICore {

namespace {

const QString kX = QStringLiteral("X");
const QString kY = QStringLiteral("Y");
const QString kWidth = QStringLiteral("Width");
const QString kHeight = QStringLiteral("Height");
const QString kCollapsed = QStringLiteral("Collapsed");

constexpr Qt::WindowFlags kFloatingFlags = Qt::Tool | Qt::FramelessWindowHint;
constexpr int kBorder = 1;
constexpr int kMinimumContentHeight = 40;

} // namespace

class PaletteWindowImp
{
public:
    explicit PaletteWindowImp(PaletteWindow* owner)
        : mpOwner(owner)
    {}

    int CollapsedHeight() const { return ThemeFileKey::TitleBarHeight + 2 * kBorder; }

    QSize MinimumSize() const
    {
        return QSize(mpTitleBar->minimumSizeHint().width() + 2 * kBorder,
                     mbCollapsed ? CollapsedHeight() : CollapsedHeight() + kMinimumContentHeight);
    }

    void PlaceGrip()
    {
        const QSize grip = mpGrip->sizeHint();
        const QRect r(mpOwner->width() - kBorder - grip.width(), mpOwner->height() - kBorder - grip.height(),
                      grip.width(), grip.height());
        mpGrip->setGeometry(QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), r));
        mpGrip->raise();
    }

    void MoveTo(const QPoint& globalTopLeft)
    {
        if (mpOwner->isWindow()) {
            mpOwner->move(globalTopLeft);
            return;
        }
        // Docked: moves within the parent and stays inside it.
        QWidget* parent = mpOwner->parentWidget();
        QPoint local = parent->mapFromGlobal(globalTopLeft);
        local.setX(qBound(0, local.x(), qMax(0, parent->width() - mpOwner->width())));
        local.setY(qBound(0, local.y(), qMax(0, parent->height() - mpOwner->height())));
        mpOwner->move(local);
    }

    void ResizeTo(QSize size)
    {
        size = size.expandedTo(MinimumSize())
                   .boundedTo(QSize(PaletteWindow::MaximumStateExtent, PaletteWindow::MaximumStateExtent));
        if (mbCollapsed)
            size.setHeight(CollapsedHeight());
        if (mpOwner->layoutDirection() == Qt::RightToLeft && mpOwner->isWindow()) {
            // The grip is at the bottom left: the right edge stays where it is.
            const QRect g = mpOwner->geometry();
            mpOwner->setGeometry(g.right() + 1 - size.width(), g.top(), size.width(), size.height());
        } else {
            mpOwner->resize(size);
        }
    }

    // A geometry from a state file, kept on a screen: at least the title bar
    // must be reachable, or the palette could never be dragged back.
    QRect Reachable(const QRect& wanted) const
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        if (screens.isEmpty() || !mpOwner->isWindow())
            return wanted;
        const QRect bar(wanted.topLeft(), QSize(wanted.width(), ThemeFileKey::TitleBarHeight));
        for (QScreen* screen : screens) {
            const QRect overlap = screen->availableGeometry().intersected(bar);
            if (overlap.width() >= 32 && overlap.height() >= ThemeFileKey::TitleBarHeight / 2)
                return wanted;
        }
        QScreen* screen = mpOwner->screen() ? mpOwner->screen() : QGuiApplication::primaryScreen();
        QRect placed = wanted;
        placed.moveCenter(screen->availableGeometry().center());
        return placed;
    }

    void SaveToLocation() const
    {
        if (!msStateFile.isEmpty())
            mpOwner->SaveState(msStateFile, msStateNode);
    }

    PaletteWindow* const mpOwner;
    PaletteTitleBar* mpTitleBar = nullptr;
    PaletteResizeButton* mpGrip = nullptr;
    QVBoxLayout* mpLayout = nullptr;
    QPointer<QWidget> mpContent;
    QString msStateFile;
    QString msStateNode;
    int miExpandedHeight = 0;
    bool mbCollapsed = false;
};

PaletteWindow::PaletteWindow(QWidget* parent)
    : WidgetImp(static_cast<QWidget*>(nullptr))
    , mpImp(std::make_unique<PaletteWindowImp>(this))
{
    Initialize(parent);
}

PaletteWindow::PaletteWindow(HWND hostWindow)
    : WidgetImp(static_cast<QWidget*>(nullptr))
    , mpImp(std::make_unique<PaletteWindowImp>(this))
{
    // Over a native host the parent is a stand-in for the host's window that
    // keeps our window above it.
    Initialize(Internal::ParentWidgetForNativeHandle(hostWindow));
}

void PaletteWindow::Initialize(QWidget* parent)
{
    Internal::InstallNavigationAccessibility();
    PaletteWindowImp& d = *mpImp;
    setParent(parent, kFloatingFlags);
    setAttribute(Qt::WA_Hover);
    new Internal::ThemedFont(this);
    d.mpLayout = new QVBoxLayout(this);
    d.mpLayout->setContentsMargins(kBorder, kBorder, kBorder, kBorder);
    d.mpLayout->setSpacing(0);
    d.mpTitleBar = new PaletteTitleBar(this);
    d.mpLayout->addWidget(d.mpTitleBar);
    d.mpLayout->addStretch(1);
    d.mpGrip = new PaletteResizeButton(this);

    connect(d.mpTitleBar, &PaletteTitleBar::DragMoved, this, [this](const QPoint& topLeft) { mpImp->MoveTo(topLeft); });
    connect(d.mpTitleBar, &PaletteTitleBar::DoubleClicked, this, [this] { SetCollapsed(!IsCollapsed()); });
    connect(d.mpTitleBar, &PaletteTitleBar::CloseClicked, this, [this] {
        QPointer<PaletteWindow> guard(this);
        hide();
        if (guard)
            Q_EMIT Closed();
    });
    connect(d.mpGrip, &PaletteResizeButton::ResizeRequested, this,
            [this](const QSize& size) { mpImp->ResizeTo(size); });
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &PaletteWindow::OnThemeChanged);
    resize(sizeHint());
    d.miExpandedHeight = height();
}

PaletteWindow::~PaletteWindow()
{
    if (isVisible())
        mpImp->SaveToLocation();
}

QString PaletteWindow::GetTitle() const
{
    return mpImp->mpTitleBar->GetTitle();
}

void PaletteWindow::SetTitle(const QString& title)
{
    if (title == GetTitle())
        return;
    mpImp->mpTitleBar->SetTitle(title);
    setWindowTitle(title);
    Q_EMIT TitleChanged(title);
}

void PaletteWindow::SetContentWidget(QWidget* content)
{
    PaletteWindowImp& d = *mpImp;
    if (content == d.mpContent)
        return;
    delete d.mpContent.data();
    // The stretch after the title bar holds the place of a missing content.
    if (QLayoutItem* stretch = d.mpLayout->count() > 1 ? d.mpLayout->itemAt(1) : nullptr;
        stretch && stretch->spacerItem())
        delete d.mpLayout->takeAt(1);
    d.mpContent = content;
    if (content) {
        d.mpLayout->addWidget(content, 1);
        content->setVisible(!d.mbCollapsed);
    } else {
        d.mpLayout->addStretch(1);
    }
    d.mpGrip->raise();
}

QWidget* PaletteWindow::GetContentWidget() const
{
    return mpImp->mpContent;
}

bool PaletteWindow::IsCollapsed() const
{
    return mpImp->mbCollapsed;
}

void PaletteWindow::SetCollapsed(bool collapsed)
{
    PaletteWindowImp& d = *mpImp;
    if (collapsed == d.mbCollapsed)
        return;
    if (collapsed)
        d.miExpandedHeight = height();
    d.mbCollapsed = collapsed;
    if (d.mpContent)
        d.mpContent->setVisible(!collapsed);
    d.mpGrip->setVisible(!collapsed);
    if (collapsed) {
        setFixedHeight(d.CollapsedHeight());
    } else {
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
        resize(width(), qMax(d.miExpandedHeight, d.MinimumSize().height()));
    }
    Q_EMIT CollapsedChanged(collapsed);
}

bool PaletteWindow::IsFloating() const
{
    return isWindow();
}

void PaletteWindow::SetFloating(bool floating)
{
    if (floating == IsFloating() || (!floating && !parentWidget()))
        return;
    const bool visible = isVisible();
    const QPoint global = mapToGlobal(QPoint(0, 0));
    setWindowFlags(floating ? kFloatingFlags : Qt::Widget);
    if (floating)
        move(global);
    if (visible)
        show();
}

void PaletteWindow::SetStateLocation(const QString& filePath, const QString& nodePath)
{
    mpImp->msStateFile = filePath;
    mpImp->msStateNode = nodePath;
    if (!filePath.isEmpty() && QFileInfo::exists(filePath))
        LoadState(filePath, nodePath);
}

QSize PaletteWindow::GetExpandedSize() const
{
    return QSize(width(), mpImp->mbCollapsed ? mpImp->miExpandedHeight : height());
}

PaletteTitleBar* PaletteWindow::GetTitleBar() const
{
    return mpImp->mpTitleBar;
}

PaletteResizeButton* PaletteWindow::GetResizeButton() const
{
    return mpImp->mpGrip;
}

QSize PaletteWindow::sizeHint() const
{
    const QSize content = mpImp->mpContent ? mpImp->mpContent->sizeHint() : QSize(160, 120);
    const int width = qMax(content.width() + 2 * kBorder, mpImp->mpTitleBar->sizeHint().width() + 2 * kBorder);
    if (mpImp->mbCollapsed)
        return QSize(width, mpImp->CollapsedHeight());
    return QSize(width, mpImp->CollapsedHeight() + qMax(content.height(), kMinimumContentHeight));
}

void PaletteWindow::OnThemeChanged()
{
    update();
}

void PaletteWindow::LoadState(QDomElement& element)
{
    PaletteWindowImp& d = *mpImp;
    const QSize expanded = GetExpandedSize();
    int width = GetIntAttribute(element, kWidth, expanded.width());
    int height = GetIntAttribute(element, kHeight, expanded.height());
    const QSize minimum = d.MinimumSize();
    // Sizes outside reason (hand-edited or damaged files) are brought back into it.
    width = qBound(minimum.width(), width, MaximumStateExtent);
    height = qBound(ThemeFileKey::TitleBarHeight + 2 * kBorder + kMinimumContentHeight, height, MaximumStateExtent);
    const QPoint position(GetIntAttribute(element, kX, pos().x()), GetIntAttribute(element, kY, pos().y()));
    const bool collapsed = GetBoolAttribute(element, kCollapsed, d.mbCollapsed);

    SetCollapsed(false);
    const QRect placed = d.Reachable(QRect(position, QSize(width, height)));
    move(placed.topLeft());
    resize(placed.size());
    d.miExpandedHeight = placed.height();
    SetCollapsed(collapsed);
}

void PaletteWindow::SaveState(QDomElement& element) const
{
    const QSize expanded = GetExpandedSize();
    SetIntAttribute(element, kX, pos().x());
    SetIntAttribute(element, kY, pos().y());
    SetIntAttribute(element, kWidth, expanded.width());
    SetIntAttribute(element, kHeight, expanded.height());
    SetBoolAttribute(element, kCollapsed, mpImp->mbCollapsed);
}

QString PaletteWindow::StateNodeId() const
{
    return QStringLiteral("PaletteWindow");
}

void PaletteWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ThemeManager* themes = ThemeManager::GetInstance();
    painter.fillRect(rect(), themes->GetBrush(ThemeFileKey::Container1, rect()));
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(this, &painter);
    painter.setRenderHint(QPainter::Antialiasing, true);
    Internal::StrokeOutline(&painter, Internal::StrokeRect(&painter, rect(), grid),
                            themes->GetColor(ThemeFileKey::DropDownMenuBorderColor), grid);
}

void PaletteWindow::resizeEvent(QResizeEvent* event)
{
    WidgetImp::resizeEvent(event);
    mpImp->PlaceGrip();
}

void PaletteWindow::hideEvent(QHideEvent* event)
{
    WidgetImp::hideEvent(event);
    if (!event->spontaneous())
        mpImp->SaveToLocation();
}

void PaletteWindow::changeEvent(QEvent* event)
{
    WidgetImp::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        mpImp->PlaceGrip();
}

} // namespace Kavrel::UICore

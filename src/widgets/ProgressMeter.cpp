#include <KvUICore/widgets/ProgressMeter.h>

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/Label.h>

#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QTimer>

namespace Kavrel::UICore {

namespace {
constexpr int kFrameSide = 16;
constexpr int kTextOffset = 18;
constexpr int kWidthBesideText = 33;
// About 24 frames a second.
constexpr int kFrameInterval = 41;

void AnnounceBusyChange(QObject* meter)
{
    QAccessible::State changed;
    changed.busy = changed.animated = true;
    Internal::AnnounceStateChange(meter, changed);
}
} // namespace

ProgressMeter::ProgressMeter(QWidget* parent)
    : QWidget(parent)
{
    Internal::InstallControlsAccessibility();
    mpImageLabel = new QLabel(this);
    mpTextLabel = new Label(this);
    // The meter sets the text label's geometry itself.
    mpTextLabel->setMinimumHeight(0);
    InitializeDefaultImageFrameList();
    mpTimer = new QTimer(this);
    mpTimer->setInterval(kFrameInterval);
    connect(mpTimer, &QTimer::timeout, this, &ProgressMeter::UpdateProgressMeter);
}

ProgressMeter::~ProgressMeter()
{
    delete mpTimer;
}

void ProgressMeter::InitializeDefaultImageFrameList()
{
    static const QString* const keys[] = {
        &ThemeFileKey::Rendering_01, &ThemeFileKey::Rendering_02, &ThemeFileKey::Rendering_03,
        &ThemeFileKey::Rendering_04, &ThemeFileKey::Rendering_05, &ThemeFileKey::Rendering_06,
        &ThemeFileKey::Rendering_07, &ThemeFileKey::Rendering_08, &ThemeFileKey::Rendering_09,
        &ThemeFileKey::Rendering_10, &ThemeFileKey::Rendering_11, &ThemeFileKey::Rendering_12,
        &ThemeFileKey::Rendering_13, &ThemeFileKey::Rendering_14, &ThemeFileKey::Rendering_15,
        &ThemeFileKey::Rendering_16, &ThemeFileKey::Rendering_17, &ThemeFileKey::Rendering_18,
        &ThemeFileKey::Rendering_19, &ThemeFileKey::Rendering_20, &ThemeFileKey::Rendering_21,
        &ThemeFileKey::Rendering_22, &ThemeFileKey::Rendering_23, &ThemeFileKey::Rendering_24,
    };
    ThemeManager* themes = ThemeManager::GetInstance();
    mFrames.clear();
    for (const QString* key : keys) {
        const QIcon icon(themes->GetString(*key));
        mFrames.append(icon.pixmap(QSize(kFrameSide, kFrameSide), QIcon::Normal, QIcon::Off));
    }
}

void ProgressMeter::Start()
{
    const bool wasRunning = IsRunning();
    mpTimer->start();
    if (!wasRunning)
        AnnounceBusyChange(this);
}

void ProgressMeter::End()
{
    const bool wasRunning = IsRunning();
    mCurrentFrame = 0;
    mpTimer->stop();
    if (wasRunning)
        AnnounceBusyChange(this);
}

bool ProgressMeter::IsRunning() const
{
    return mpTimer->isActive();
}

void ProgressMeter::SetText(QString const& text)
{
    if (text == mpTextLabel->text())
        return;
    mpTextLabel->setText(text);
    if (!text.isEmpty())
        resize(fontMetrics().horizontalAdvance(text) + kWidthBesideText, height());
    updateGeometry();
    update();
    Q_EMIT TextChanged(text);
}

QString ProgressMeter::GetText() const
{
    return mpTextLabel ? mpTextLabel->text() : QString();
}

void ProgressMeter::SetImageFrameList(QList<QPixmap> frames)
{
    mFrames = frames;
    if (!mFrames.isEmpty())
        mpImageLabel->setPixmap(mFrames.first());
}

QList<QPixmap> ProgressMeter::GetImageFrameList() const
{
    return mFrames;
}

void ProgressMeter::setGeometry(QRect const& rect)
{
    QWidget::setGeometry(rect);
    updateGeometry();
}

void ProgressMeter::updateGeometry()
{
    const QRect r = rect();
    if (!GetText().isEmpty()) {
        // The frames lead the text: on the right in a right-to-left layout.
        const Qt::LayoutDirection direction = layoutDirection();
        mpImageLabel->setGeometry(QStyle::visualRect(
            direction, r, QRect(r.left(), r.top() + (r.height() - kFrameSide) / 2, kFrameSide, kFrameSide)));
        mpTextLabel->setGeometry(QStyle::visualRect(
            direction, r, QRect(r.left() + kTextOffset, r.top(), r.width() - kTextOffset, r.height())));
    } else {
        mpImageLabel->setGeometry(r.left() + (r.width() - kFrameSide) / 2, r.top() + (r.height() - kFrameSide) / 2,
                                  kFrameSide, kFrameSide);
    }
    QWidget::updateGeometry();
}

void ProgressMeter::UpdateProgressMeter()
{
    if (mFrames.isEmpty())
        return;
    mCurrentFrame = (mCurrentFrame + 1) % int(mFrames.size());
    mpImageLabel->setPixmap(mFrames.at(mCurrentFrame));
    update();
}

void ProgressMeter::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void ProgressMeter::resizeEvent(QResizeEvent* event)
{
    updateGeometry();
    QWidget::resizeEvent(event);
}

void ProgressMeter::paintEvent(QPaintEvent* event)
{
    if (!GetText().isEmpty()) {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        // Computed and left unused: the backdrop stays invisible, as the meter
        // has always looked.
        QColor backdrop = ThemeManager::GetInstance()->GetColor(ThemeFileKey::Container1);
        backdrop.setAlpha(200);
        Q_UNUSED(backdrop)
        const int backdropHeight = mpTextLabel->height() - 12;
        painter.setPen(Qt::transparent);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRect(1, (height() - backdropHeight) / 2, width() - 2, backdropHeight), 3, 3,
                                Qt::AbsoluteSize);
    }
    QWidget::paintEvent(event);
}

} // namespace Kavrel::UICore

#include <KvUICore/widgets/MessageFacility.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/MessageFacilityRow_p.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <deque>

namespace Kavrel::UICore {

namespace {

constexpr int kIconSize = 16;

QString SeverityIconKey(MessageFacility::Severity severity)
{
    switch (severity) {
    case MessageFacility::Severity::Error:
        return ThemeFileKey::AlertIcon;
    case MessageFacility::Severity::Warning:
        return ThemeFileKey::WarningIcon;
    case MessageFacility::Severity::Information:
        break;
    }
    return ThemeFileKey::help_16Icon;
}

QString SeverityName(MessageFacility::Severity severity)
{
    switch (severity) {
    case MessageFacility::Severity::Error:
        return MessageFacility::tr("Error");
    case MessageFacility::Severity::Warning:
        return MessageFacility::tr("Warning");
    case MessageFacility::Severity::Information:
        break;
    }
    return MessageFacility::tr("Information");
}

// Severity icons are drawn from SVG once per theme and pixel ratio: every
// message shows one, and a burst of messages would draw them again and again.
QHash<QString, QPixmap>& SeverityPixmaps()
{
    static QHash<QString, QPixmap> pixmaps;
    return pixmaps;
}

QPixmap SeverityPixmap(MessageFacility::Severity severity, qreal ratio)
{
    const QString key =
        QStringLiteral("%1/%2/%3").arg(ThemeManager::GetInstance()->GetCurrentTheme()).arg(int(severity)).arg(ratio);
    auto it = SeverityPixmaps().constFind(key);
    if (it != SeverityPixmaps().constEnd())
        return *it;
    const QSize size(kIconSize, kIconSize);
    const QPixmap pixmap = Internal::IconFromTheme(SeverityIconKey(severity), size).pixmap(size, ratio);
    SeverityPixmaps().insert(key, pixmap);
    return pixmap;
}

} // namespace

// ---- One shown message ------------------------------------------------------

namespace Internal {

MessageFacilityRow::MessageFacilityRow(int id, const MessageFacility::Message& message, QWidget* parent)
    : QFrame(parent)
    , miId(id)
    , mMessage(message)
{
    setObjectName(QStringLiteral("MessageFacilityRow"));
    setAttribute(Qt::WA_Hover);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 3, 3);
    layout->setSpacing(6);

    mpIcon = new QLabel(this);
    mpIcon->setFixedSize(kIconSize, kIconSize);
    layout->addWidget(mpIcon, 0, Qt::AlignTop);

    mpText = new LinkMessage(message.text, this);
    mpText->SetTextColorThemeKey(ThemeFileKey::MsgLabelText);
    mpText->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    layout->addWidget(mpText, 1);
    connect(mpText, &LinkMessage::LinkActivated, this,
            [this](const QString& target) { Q_EMIT LinkActivated(miId, target); });

    for (int i = 0; i < message.actions.size(); ++i) {
        auto* button = new PushButton(this);
        button->setText(message.actions.at(i));
        layout->addWidget(button, 0, Qt::AlignVCenter);
        connect(button, &QAbstractButton::clicked, this, [this, i] { Q_EMIT ActionTriggered(miId, i); });
    }

    if (message.closable) {
        mpClose = new GlyphButton(ThemeFileKey::MsgLabelText, QString(), this);
        mpClose->setToolTip(MessageFacility::tr("Close"));
        mpClose->setAccessibleName(MessageFacility::tr("Close message"));
        layout->addWidget(mpClose, 0, Qt::AlignTop);
        connect(mpClose, &QAbstractButton::clicked, this, [this] { Q_EMIT CloseRequested(miId); });
    }

    if (message.timeout > 0) {
        mpTimer = new QTimer(this);
        mpTimer->setSingleShot(true);
        mpTimer->setInterval(message.timeout);
        connect(mpTimer, &QTimer::timeout, this, [this] { Q_EMIT CloseRequested(miId); });
    }
    setAccessibleName(GetAccessibleText());
    ApplyTheme();
}

MessageFacilityRow::~MessageFacilityRow() = default;

QString MessageFacilityRow::GetAccessibleText() const
{
    return SeverityName(mMessage.severity) + QStringLiteral(": ") + mpText->GetPlainText();
}

void MessageFacilityRow::Announce()
{
    if (mpTimer)
        mpTimer->start();
    AnnounceAlert(this);
}

void MessageFacilityRow::ApplyTheme()
{
    mpIcon->setPixmap(SeverityPixmap(mMessage.severity, devicePixelRatio()));
    update();
}

void MessageFacilityRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ThemeManager* themes = ThemeManager::GetInstance();
    const StrokeGrid grid = StrokeGridOf(this, &painter);
    painter.setRenderHint(QPainter::Antialiasing, true);
    DrawFramedRect(&painter, StrokeRect(&painter, rect(), grid),
                   themes->GetBrush(ThemeFileKey::MsgBottomBackground, rect()),
                   themes->GetColor(ThemeFileKey::MsgBoderBackground), grid);
}

void MessageFacilityRow::enterEvent(QEnterEvent* event)
{
    QFrame::enterEvent(event);
    // A message being read does not close under the pointer.
    if (mpTimer)
        mpTimer->stop();
}

void MessageFacilityRow::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    if (mpTimer)
        mpTimer->start();
}

} // namespace Internal

// ---- The facility -----------------------------------------------------------

class MessageFacilityImp
{
public:
    explicit MessageFacilityImp(MessageFacility* owner)
        : mpOwner(owner)
    {}

    struct Queued
    {
        int id;
        MessageFacility::Message message;
    };

    Internal::MessageFacilityRow* RowOf(int id) const
    {
        for (Internal::MessageFacilityRow* row : mRows) {
            if (row->GetId() == id)
                return row;
        }
        return nullptr;
    }

    void ShowRow(int id, const MessageFacility::Message& message, int position)
    {
        auto* row = new Internal::MessageFacilityRow(id, message, mpOwner);
        QObject::connect(row, &Internal::MessageFacilityRow::CloseRequested, mpOwner,
                         [this](int closing) { mpOwner->CloseMessage(closing); });
        QObject::connect(row, &Internal::MessageFacilityRow::LinkActivated, mpOwner, &MessageFacility::LinkActivated);
        QObject::connect(row, &Internal::MessageFacilityRow::ActionTriggered, mpOwner,
                         &MessageFacility::ActionTriggered);
        mRows.insert(position, row);
        mpLayout->insertWidget(position, row);
        row->show();
        row->Announce();
        Q_EMIT mpOwner->MessageShown(id);
    }

    // Fills free places from the queue's front.
    void Promote()
    {
        while (mRows.size() < miMaxVisible && !mQueue.empty()) {
            Queued next = std::move(mQueue.front());
            mQueue.pop_front();
            QPointer<MessageFacility> guard(mpOwner);
            ShowRow(next.id, next.message, int(mRows.size()));
            if (!guard)
                return;
        }
        mpOwner->updateGeometry();
    }

    MessageFacility* const mpOwner;
    QVBoxLayout* mpLayout = nullptr;
    QList<Internal::MessageFacilityRow*> mRows;
    std::deque<Queued> mQueue;
    int miMaxVisible = MessageFacility::DefaultMaximumVisible;
    int miNextId = 1;
};

MessageFacility::MessageFacility(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<MessageFacilityImp>(this))
{
    Internal::InstallNavigationAccessibility();
    new Internal::ThemedFont(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    mpImp->mpLayout = new QVBoxLayout(this);
    mpImp->mpLayout->setContentsMargins(0, 0, 0, 0);
    mpImp->mpLayout->setSpacing(2);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &MessageFacility::OnThemeChanged);
}

MessageFacility::~MessageFacility() = default;

int MessageFacility::ShowMessage(const Message& message)
{
    MessageFacilityImp& d = *mpImp;
    const int id = d.miNextId++;
    if (d.miNextId <= 0)
        d.miNextId = 1;
    if (d.mRows.size() < d.miMaxVisible) {
        d.ShowRow(id, message, int(d.mRows.size()));
        updateGeometry();
    } else {
        d.mQueue.push_back({id, message});
        if (int(d.mQueue.size()) > MaximumQueued) {
            const int dropped = d.mQueue.front().id;
            d.mQueue.pop_front();
            Q_EMIT MessageClosed(dropped);
        }
    }
    return id;
}

int MessageFacility::ShowMessage(Severity severity, const QString& text, int timeout)
{
    Message message;
    message.severity = severity;
    message.text = text;
    message.timeout = timeout;
    return ShowMessage(message);
}

bool MessageFacility::CloseMessage(int id)
{
    MessageFacilityImp& d = *mpImp;
    if (Internal::MessageFacilityRow* row = d.RowOf(id)) {
        d.mRows.removeOne(row);
        d.mpLayout->removeWidget(row);
        row->hide();
        // The row may be inside its own close button's signal.
        row->disconnect(this);
        row->deleteLater();
        QPointer<MessageFacility> guard(this);
        Q_EMIT MessageClosed(id);
        if (guard)
            d.Promote();
        return true;
    }
    for (auto it = d.mQueue.begin(); it != d.mQueue.end(); ++it) {
        if (it->id == id) {
            d.mQueue.erase(it);
            Q_EMIT MessageClosed(id);
            return true;
        }
    }
    return false;
}

void MessageFacility::Clear()
{
    MessageFacilityImp& d = *mpImp;
    QList<int> ids;
    for (const auto& queued : d.mQueue)
        ids.append(queued.id);
    d.mQueue.clear();
    for (int id : GetVisibleIds())
        CloseMessage(id);
    for (int id : std::as_const(ids))
        Q_EMIT MessageClosed(id);
}

int MessageFacility::GetMaximumVisible() const
{
    return mpImp->miMaxVisible;
}

void MessageFacility::SetMaximumVisible(int count)
{
    MessageFacilityImp& d = *mpImp;
    count = qMax(1, count);
    if (count == d.miMaxVisible)
        return;
    d.miMaxVisible = count;
    // The newest shown messages go back to wait, in their order.
    while (d.mRows.size() > count) {
        Internal::MessageFacilityRow* row = d.mRows.takeLast();
        d.mQueue.push_front({row->GetId(), row->GetMessage()});
        d.mpLayout->removeWidget(row);
        row->hide();
        row->disconnect(this);
        row->deleteLater();
    }
    d.Promote();
    Q_EMIT MaximumVisibleChanged(count);
}

int MessageFacility::GetVisibleCount() const
{
    return int(mpImp->mRows.size());
}

int MessageFacility::GetQueuedCount() const
{
    return int(mpImp->mQueue.size());
}

QList<int> MessageFacility::GetVisibleIds() const
{
    QList<int> ids;
    for (Internal::MessageFacilityRow* row : mpImp->mRows)
        ids.append(row->GetId());
    return ids;
}

bool MessageFacility::IsShown(int id) const
{
    return mpImp->RowOf(id) != nullptr;
}

QWidget* MessageFacility::GetMessageWidget(int id) const
{
    return mpImp->RowOf(id);
}

QSize MessageFacility::sizeHint() const
{
    const QSize hint = QWidget::sizeHint();
    return mpImp->mRows.isEmpty() ? QSize(hint.width(), 0) : hint;
}

void MessageFacility::OnThemeChanged()
{
    // A theme file loaded again under the same name may bring other icons.
    SeverityPixmaps().clear();
    for (Internal::MessageFacilityRow* row : mpImp->mRows)
        row->ApplyTheme();
}

} // namespace Kavrel::UICore

#include <KvUICore/widgets/SearchBox.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/ScalableValues.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QTimer>

namespace Kavrel::UICore {

namespace {

constexpr int kStandardControlHeight = 24;
constexpr int kIconSize = 16;
constexpr int kIconLeft = 5;
constexpr int kRecentArrowWidth = 7;
constexpr int kClearButtonWidth = 20;
constexpr int kMaximumRecentSearchesLimit = 100;

} // namespace

class SearchBoxImp
{
public:
    explicit SearchBoxImp(SearchBox* owner)
        : mpOwner(owner)
    {}

    // The rectangles in left-to-right terms; Visual() mirrors them.
    QRect IconRect() const { return QRect(kIconLeft, (mpOwner->height() - kIconSize) / 2, kIconSize, kIconSize); }
    int EditorLeft() const { return IconRect().right() + 5 + (mbRecentEnabled ? kRecentArrowWidth : 0); }
    QRect Visual(const QRect& r) const { return QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), r); }

    void LayoutChildren()
    {
        const int h = mpOwner->height();
        const int clearWidth = kClearButtonWidth;
        const QRect clear(mpOwner->width() - clearWidth - 2, 2, clearWidth, h - 4);
        mpClear->setGeometry(Visual(clear));
        const int left = EditorLeft();
        const int right = mpOwner->width() - clearWidth - 4;
        mpEditor->setGeometry(Visual(QRect(left, 2, qMax(0, right - left), h - 4)));
    }

    void OnEditorTextChanged(const QString& text)
    {
        mpClear->setVisible(!text.isEmpty() && mpEditor->isEnabled() && !mpEditor->isReadOnly());
        Q_EMIT mpOwner->TextChanged(text);
        if (miDelay <= 0 || mbHostSetting)
            Announce();
        else
            mpTimer->start(miDelay);
    }

    void Announce()
    {
        mpTimer->stop();
        const QString text = mpEditor->text();
        if (mbAnnounced && text == msAnnounced)
            return;
        msAnnounced = text;
        mbAnnounced = true;
        Q_EMIT mpOwner->SearchChanged(text);
    }

    void Submit()
    {
        QPointer<SearchBox> guard(mpOwner);
        Announce();
        if (!guard)
            return;
        const QString text = mpEditor->text();
        Remember(text);
        Q_EMIT mpOwner->SearchSubmitted(text);
    }

    void Remember(const QString& text)
    {
        if (!mbRecentEnabled || text.trimmed().isEmpty())
            return;
        mRecent.removeAll(text);
        mRecent.prepend(text);
        while (mRecent.size() > miMaxRecent)
            mRecent.removeLast();
    }

    void ApplyPromptColor()
    {
        QPalette palette = mpEditor->palette();
        QColor prompt =
            Internal::ThemeColorOr(ThemeFileKey::FontSearchPrompt, palette.color(QPalette::PlaceholderText));
        if (!mpOwner->isEnabled())
            prompt = Internal::DimmedColor(prompt);
        // The editor shows the box's own background through.
        palette.setColor(QPalette::Base, Qt::transparent);
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, QPalette::PlaceholderText, prompt);
        if (palette != mpEditor->palette())
            mpEditor->setPalette(palette);
    }

    void DrawFrame(QPainter& painter) const;
    void DrawIcon(QPainter& painter) const;

    SearchBox* const mpOwner;
    QLineEdit* mpEditor = nullptr;
    Internal::GlyphButton* mpClear = nullptr;
    Internal::ThemedColor* mpTextColor = nullptr;
    QTimer* mpTimer = nullptr;
    DropDownMenu* mpRecentMenu = nullptr;
    QIcon mSearchIcon;
    QString msAnnounced;
    QStringList mRecent;
    int miDelay = SearchBox::DefaultSearchDelay;
    int miMaxRecent = SearchBox::DefaultMaximumRecentSearches;
    bool mbAnnounced = false;
    bool mbHostSetting = false;
    bool mbRecentEnabled = false;
};

void SearchBoxImp::DrawFrame(QPainter& painter) const
{
    const bool enabled = mpOwner->isEnabled();
    const bool focused = enabled && mpOwner->hasFocus();
    const bool hovered = enabled && mpOwner->underMouse();
    const Internal::StateFrameKeys keys{ThemeFileKey::SearchBoxNormalBackground,  ThemeFileKey::SearchBoxNormalBorder,
                                        ThemeFileKey::SearchBoxHoverBackground,   ThemeFileKey::SearchBoxHoverBorder,
                                        ThemeFileKey::SearchBoxFocusedBackground, ThemeFileKey::SearchBoxFocusedBorder};
    const Internal::FrameState state = focused   ? Internal::FrameState::Active
                                       : hovered ? Internal::FrameState::Hover
                                                 : Internal::FrameState::Normal;
    // One pixel all round is kept for the focus halo.
    const Internal::StrokeGrid grid =
        Internal::DrawStateFrame(&painter, mpOwner, mpOwner->rect().adjusted(1, 1, -1, -1), keys, state);
    if (!focused)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    Internal::StrokeOutline(&painter, Internal::StrokeRect(&painter, mpOwner->rect(), grid),
                            ThemeManager::GetInstance()->GetColor(ThemeFileKey::SearchBoxFocusedBorderHalo), grid);
    painter.restore();
}

void SearchBoxImp::DrawIcon(QPainter& painter) const
{
    const QRect icon = Visual(IconRect());
    if (!mSearchIcon.isNull())
        mSearchIcon.paint(&painter, icon, Qt::AlignCenter, mpOwner->isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!mbRecentEnabled)
        return;
    // A small arrow beside the icon says that it opens the recent searches.
    QColor color = Internal::ThemeColorOr(ThemeFileKey::DropDownTriangle, mpOwner->palette().color(QPalette::Text));
    if (!mpOwner->isEnabled())
        color = Internal::DimmedColor(color);
    const QRect arrow = Visual(QRect(IconRect().right() + 2, mpOwner->height() / 2 - 1, 5, 3));
    const QPointF points[3] = {QPointF(arrow.left(), arrow.top()), QPointF(arrow.left() + 5, arrow.top()),
                               QPointF(arrow.left() + 2.5, arrow.top() + 3)};
    Internal::FillAntialiasedTriangle(&painter, points, color);
}

SearchBox::SearchBox(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<SearchBoxImp>(this))
{
    Internal::InstallNavigationAccessibility();
    SearchBoxImp& d = *mpImp;
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFixedHeight(ScalableIntY(kStandardControlHeight));
    new Internal::ThemedFont(this);

    d.mpEditor = new QLineEdit(this);
    d.mpEditor->setObjectName(QStringLiteral("SearchBoxEditor"));
    d.mpEditor->setFrame(false);
    d.mpEditor->setAttribute(Qt::WA_MacShowFocusRect, false);
    // The box paints the background of every state; a disabled editor would
    // otherwise paint its own over it.
    d.mpEditor->setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; }"));
    new Internal::ThemedFont(d.mpEditor);
    d.mpEditor->installEventFilter(this);
    d.mpTextColor = new Internal::ThemedColor(d.mpEditor, ThemeFileKey::FontSearch1);
    setFocusProxy(d.mpEditor);

    d.mpClear = new Internal::GlyphButton(ThemeFileKey::FontSearch1, ThemeFileKey::ClearSearchIcon, this);
    d.mpClear->setObjectName(QStringLiteral("SearchBoxClear"));
    // Escape clears from the keyboard; the button is for the mouse.
    d.mpClear->setFocusPolicy(Qt::NoFocus);
    d.mpClear->setToolTip(tr("Clear"));
    d.mpClear->setAccessibleName(tr("Clear search"));
    d.mpClear->hide();
    connect(d.mpClear, &QAbstractButton::clicked, this, [this] {
        Clear();
        mpImp->mpEditor->setFocus(Qt::OtherFocusReason);
    });

    d.mpTimer = new QTimer(this);
    d.mpTimer->setSingleShot(true);
    connect(d.mpTimer, &QTimer::timeout, this, [this] { mpImp->Announce(); });
    connect(d.mpEditor, &QLineEdit::textChanged, this,
            [this](const QString& text) { mpImp->OnEditorTextChanged(text); });
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &SearchBox::OnThemeChanged);
    OnThemeChanged();
}

SearchBox::~SearchBox() = default;

QString SearchBox::GetText() const
{
    return mpImp->mpEditor->text();
}

void SearchBox::SetText(const QString& text)
{
    if (text == mpImp->mpEditor->text())
        return;
    mpImp->mbHostSetting = true;
    mpImp->mpEditor->setText(text);
    mpImp->mbHostSetting = false;
}

void SearchBox::Clear()
{
    // Clearing is a deliberate act: the empty search runs at once.
    SetText(QString());
}

QString SearchBox::GetPrompt() const
{
    return mpImp->mpEditor->placeholderText();
}

void SearchBox::SetPrompt(const QString& prompt)
{
    if (prompt == GetPrompt())
        return;
    mpImp->mpEditor->setPlaceholderText(prompt);
}

int SearchBox::GetSearchDelay() const
{
    return mpImp->miDelay;
}

void SearchBox::SetSearchDelay(int milliseconds)
{
    mpImp->miDelay = qMax(0, milliseconds);
    if (mpImp->miDelay == 0 && mpImp->mpTimer->isActive())
        mpImp->Announce();
}

bool SearchBox::IsSearchPending() const
{
    return mpImp->mpTimer->isActive();
}

bool SearchBox::IsRecentSearchesEnabled() const
{
    return mpImp->mbRecentEnabled;
}

void SearchBox::SetRecentSearchesEnabled(bool enabled)
{
    if (enabled == mpImp->mbRecentEnabled)
        return;
    mpImp->mbRecentEnabled = enabled;
    mpImp->LayoutChildren();
    update();
}

QStringList SearchBox::GetRecentSearches() const
{
    return mpImp->mRecent;
}

void SearchBox::SetRecentSearches(const QStringList& searches)
{
    mpImp->mRecent.clear();
    for (const QString& search : searches) {
        if (!search.trimmed().isEmpty() && !mpImp->mRecent.contains(search))
            mpImp->mRecent.append(search);
        if (mpImp->mRecent.size() >= mpImp->miMaxRecent)
            break;
    }
}

void SearchBox::ClearRecentSearches()
{
    mpImp->mRecent.clear();
}

int SearchBox::GetMaximumRecentSearches() const
{
    return mpImp->miMaxRecent;
}

void SearchBox::SetMaximumRecentSearches(int count)
{
    mpImp->miMaxRecent = qBound(1, count, kMaximumRecentSearchesLimit);
    while (mpImp->mRecent.size() > mpImp->miMaxRecent)
        mpImp->mRecent.removeLast();
}

void SearchBox::ShowRecentSearches()
{
    SearchBoxImp& d = *mpImp;
    if (!d.mbRecentEnabled || d.mRecent.isEmpty())
        return;
    if (!d.mpRecentMenu) {
        d.mpRecentMenu = new DropDownMenu(this);
        d.mpRecentMenu->setObjectName(QStringLiteral("SearchBoxRecentSearches"));
        connect(d.mpRecentMenu, &QMenu::triggered, this, [this](QAction* action) {
            SetText(action->data().toString());
            mpImp->Submit();
        });
    }
    d.mpRecentMenu->clear();
    QAction* header = d.mpRecentMenu->addAction(tr("Recent searches"));
    header->setProperty(DropDownMenu::GroupLabelProperty, true);
    header->setEnabled(false);
    for (const QString& search : std::as_const(d.mRecent)) {
        QAction* action = d.mpRecentMenu->addAction(search);
        action->setData(search);
    }
    d.mpRecentMenu->SetMinimumListWidth(width());
    d.mpRecentMenu->UpdateWidth();
    const QPoint corner = layoutDirection() == Qt::RightToLeft
                              ? QPoint(width() - d.mpRecentMenu->sizeHint().width(), height())
                              : QPoint(0, height());
    d.mpRecentMenu->popup(mapToGlobal(corner), d.mpRecentMenu->actions().value(1));
}

QLineEdit* SearchBox::GetLineEdit() const
{
    return mpImp->mpEditor;
}

QSize SearchBox::sizeHint() const
{
    return QSize(180, ScalableIntY(kStandardControlHeight));
}

QSize SearchBox::minimumSizeHint() const
{
    return QSize(mpImp->EditorLeft() + kClearButtonWidth + 40, ScalableIntY(kStandardControlHeight));
}

void SearchBox::OnThemeChanged()
{
    mpImp->mSearchIcon = Internal::IconFromTheme(ThemeFileKey::SearchIcon, QSize(kIconSize, kIconSize));
    mpImp->ApplyPromptColor();
    mpImp->mpTextColor->Apply();
    update();
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event)
{
    SearchBoxImp& d = *mpImp;
    if (watched != d.mpEditor)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        // The frame shows the editor's focus.
        update();
        break;
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape && key->modifiers() == Qt::NoModifier) {
            if (d.mpEditor->text().isEmpty())
                return false; // the window may close on it
            Clear();
            return true;
        }
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            d.Submit();
            return true;
        }
        if (key->key() == Qt::Key_Down && d.mbRecentEnabled && !d.mRecent.isEmpty() &&
            (key->modifiers() & Qt::AltModifier || d.mpEditor->text().isEmpty())) {
            ShowRecentSearches();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void SearchBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    mpImp->DrawFrame(painter);
    mpImp->DrawIcon(painter);
}

void SearchBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    mpImp->LayoutChildren();
}

void SearchBox::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        mpImp->ApplyPromptColor();
        mpImp->mpClear->setVisible(isEnabled() && !GetText().isEmpty());
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        mpImp->LayoutChildren();
    }
}

void SearchBox::mousePressEvent(QMouseEvent* event)
{
    if (mpImp->Visual(mpImp->IconRect().adjusted(-3, -3, 3 + kRecentArrowWidth, 3)).contains(event->pos()) &&
        mpImp->mbRecentEnabled) {
        ShowRecentSearches();
        return;
    }
    mpImp->mpEditor->setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}

} // namespace Kavrel::UICore

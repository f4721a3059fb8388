#include <KvUICore/widgets/DropDownTree.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/ScalableValues.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAbstractItemModel>
#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace Kavrel::UICore {

namespace {

constexpr int kStandardControlHeight = 24;
constexpr int kArrowColumnWidth = 16;
constexpr int kTextLeft = 6;
constexpr int kPopupMinimumWidth = 240;
constexpr int kPopupHeight = 320;
constexpr int kDefaultFilterDelay = 150;
constexpr int kBranchIconSize = 16;

// The tree of the popup, with the theme's branch icons instead of the style's.
class BranchTreeView : public QTreeView
{
public:
    explicit BranchTreeView(QWidget* parent)
        : QTreeView(parent)
    {}

    void LoadIcons()
    {
        const QSize size(kBranchIconSize, kBranchIconSize);
        mOpen = Internal::IconFromTheme(ThemeFileKey::BranchOpen, size);
        mClosed = Internal::IconFromTheme(ThemeFileKey::BranchClosed, size);
        mOpenSelected = Internal::IconFromTheme(ThemeFileKey::BranchOpenSelected, size);
        mClosedSelected = Internal::IconFromTheme(ThemeFileKey::BranchClosedSelected, size);
        const int indentation = ThemeManager::GetInstance()->GetInt(ThemeFileKey::TreeViewIndentation);
        setIndentation(indentation > 0 ? indentation : kBranchIconSize);
    }

protected:
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override
    {
        if (!model() || !model()->hasChildren(index))
            return;
        const bool selected = selectionModel() && selectionModel()->isSelected(index);
        const bool expanded = isExpanded(index);
        QIcon icon = expanded ? (selected ? mOpenSelected : mOpen) : (selected ? mClosedSelected : mClosed);
        if (icon.isNull())
            icon = expanded ? mOpen : mClosed;
        if (icon.isNull())
            return QTreeView::drawBranches(painter, rect, index);
        // The icon sits in the indentation step next to the item.
        const int step = indentation();
        const QRect cell = layoutDirection() == Qt::RightToLeft
                               ? QRect(rect.left(), rect.top(), step, rect.height())
                               : QRect(rect.right() - step + 1, rect.top(), step, rect.height());
        icon.paint(painter, cell, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

private:
    QIcon mOpen;
    QIcon mClosed;
    QIcon mOpenSelected;
    QIcon mClosedSelected;
};

class DropDownTreePopup : public QFrame
{
public:
    explicit DropDownTreePopup(DropDownTree* owner)
        : QFrame(owner, Qt::Popup)
        , mpOwner(owner)
    {
        setObjectName(QStringLiteral("DropDownTreePopup"));
        setFrameShape(QFrame::NoFrame);
        setAttribute(Qt::WA_WindowPropagation);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        ThemeManager* themes = ThemeManager::GetInstance();
        painter.fillRect(rect(), themes->GetBrush(ThemeFileKey::DropDownMenuBackground, rect()));
        painter.setPen(themes->GetColor(ThemeFileKey::DropDownMenuBorderColor));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

    void hideEvent(QHideEvent* event) override
    {
        QFrame::hideEvent(event);
        QPointer<DropDownTree> owner(mpOwner);
        Q_EMIT owner->PopupHidden();
        if (owner)
            owner->update();
    }

private:
    DropDownTree* const mpOwner;
};

} // namespace

class DropDownTreeImp : public QObject
{
public:
    explicit DropDownTreeImp(DropDownTree* owner)
        : mpOwner(owner)
    {}

    void EnsurePopup();
    void ApplyFilter(const QString& text);
    void ChooseViewIndex(const QModelIndex& viewIndex);
    QModelIndex ToView(const QModelIndex& sourceIndex) const;
    void SelectInView(const QModelIndex& sourceIndex);
    void ApplyPopupTheme();
    void PlacePopup();
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool IsFiltering() const { return mpView && mpView->model() == mpProxy; }

    // The current item went with its rows (or the whole model): say so once.
    void ForgetLostCurrent()
    {
        if (!mbHasCurrent || mCurrent.isValid())
            return;
        mbHasCurrent = false;
        mpOwner->update();
        Q_EMIT mpOwner->CurrentIndexChanged(QModelIndex());
    }

    QString DisplayText(const QModelIndex& index) const
    {
        return index.siblingAtColumn(miColumn).data(Qt::DisplayRole).toString();
    }

    QRect ArrowColumn() const
    {
        const QRect column(mpOwner->width() - kArrowColumnWidth, 0, kArrowColumnWidth, mpOwner->height());
        return QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), column);
    }

    void DrawFrame(QPainter& painter) const;
    void DrawText(QPainter& painter) const;
    void DrawArrow(QPainter& painter) const;

    DropDownTree* const mpOwner;
    QPointer<QAbstractItemModel> mpModel;
    QPersistentModelIndex mCurrent;
    bool mbHasCurrent = false;
    QString msSeparator = QStringLiteral(" > ");
    QString msPrompt;
    int miColumn = 0;
    int miFilterDelay = kDefaultFilterDelay;
    Internal::ThemedColor* mpTextColor = nullptr;
    DropDownTreePopup* mpPopup = nullptr;
    SearchBox* mpSearch = nullptr;
    BranchTreeView* mpView = nullptr;
    QSortFilterProxyModel* mpProxy = nullptr;
};

void DropDownTreeImp::EnsurePopup()
{
    if (mpPopup)
        return;
    mpPopup = new DropDownTreePopup(mpOwner);
    auto* layout = new QVBoxLayout(mpPopup);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(3);
    mpSearch = new SearchBox(mpPopup);
    mpSearch->setObjectName(QStringLiteral("DropDownTreeFilter"));
    mpSearch->SetPrompt(DropDownTree::tr("Filter"));
    mpSearch->SetSearchDelay(miFilterDelay);
    mpSearch->GetLineEdit()->installEventFilter(this);
    layout->addWidget(mpSearch);

    mpView = new BranchTreeView(mpPopup);
    mpView->setObjectName(QStringLiteral("DropDownTreeView"));
    mpView->setHeaderHidden(true);
    // One row height for all rows: the view never measures the whole model.
    mpView->setUniformRowHeights(true);
    mpView->setRootIsDecorated(true);
    mpView->setFrameShape(QFrame::NoFrame);
    mpView->setSelectionMode(QAbstractItemView::SingleSelection);
    mpView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mpView->setFocusPolicy(Qt::NoFocus);
    new Internal::ThemedFont(mpView);
    mpView->setModel(mpModel);
    layout->addWidget(mpView, 1);

    mpProxy = new QSortFilterProxyModel(mpPopup);
    mpProxy->setRecursiveFilteringEnabled(true);
    mpProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    mpProxy->setFilterKeyColumn(miColumn);

    QObject::connect(mpSearch, &SearchBox::SearchChanged, this, [this](const QString& text) { ApplyFilter(text); });
    QObject::connect(mpView, &QAbstractItemView::clicked, this,
                     [this](const QModelIndex& index) { ChooseViewIndex(index); });
    new Internal::ThemedColor(mpView, ThemeFileKey::FontNormal1);
    ApplyPopupTheme();
}

void DropDownTreeImp::ApplyPopupTheme()
{
    if (!mpView)
        return;
    ThemeManager* themes = ThemeManager::GetInstance();
    QPalette palette = mpView->palette();
    palette.setColor(QPalette::Base, themes->GetColor(ThemeFileKey::DropDownMenuBackground));
    palette.setColor(QPalette::Highlight, themes->GetColor(ThemeFileKey::DropDownMenuHoverBackground));
    palette.setColor(QPalette::HighlightedText, themes->GetColor(ThemeFileKey::FontNormal1));
    mpView->setPalette(palette);
    mpView->LoadIcons();
    mpPopup->update();
}

void DropDownTreeImp::ApplyFilter(const QString& text)
{
    if (!mpView || !mpModel)
        return;
    const QModelIndex keep = mCurrent;
    if (text.isEmpty()) {
        if (mpView->model() != mpModel)
            mpView->setModel(mpModel);
        mpProxy->setSourceModel(nullptr);
    } else {
        if (mpProxy->sourceModel() != mpModel)
            mpProxy->setSourceModel(mpModel);
        mpProxy->setFilterFixedString(text);
        if (mpView->model() != mpProxy)
            mpView->setModel(mpProxy);
        // Every match is shown in its place: the ancestors kept by the filter are opened.
        mpView->expandAll();
    }
    QModelIndex viewCurrent = ToView(keep);
    if (!viewCurrent.isValid() && !text.isEmpty()) {
        // The first match: down the first branch to a row that matches itself.
        QModelIndex candidate = mpView->model()->index(0, 0);
        while (candidate.isValid() && !DisplayText(mpOwner->MapFromView(candidate)).contains(text, Qt::CaseInsensitive))
            candidate = mpView->model()->index(0, 0, candidate);
        viewCurrent = candidate;
    }
    if (viewCurrent.isValid()) {
        mpView->setCurrentIndex(viewCurrent);
        mpView->scrollTo(viewCurrent);
    }
}

QModelIndex DropDownTreeImp::ToView(const QModelIndex& sourceIndex) const
{
    if (!sourceIndex.isValid() || !mpView)
        return QModelIndex();
    const QModelIndex index = sourceIndex.siblingAtColumn(0);
    return IsFiltering() ? mpProxy->mapFromSource(index) : index;
}

void DropDownTreeImp::SelectInView(const QModelIndex& sourceIndex)
{
    const QModelIndex viewIndex = ToView(sourceIndex);
    if (!viewIndex.isValid()) {
        mpView->clearSelection();
        return;
    }
    mpView->setCurrentIndex(viewIndex);
    mpView->scrollTo(viewIndex, QAbstractItemView::PositionAtCenter);
}

void DropDownTreeImp::ChooseViewIndex(const QModelIndex& viewIndex)
{
    if (!viewIndex.isValid() || !(viewIndex.flags() & Qt::ItemIsSelectable) || !(viewIndex.flags() & Qt::ItemIsEnabled))
        return;
    const QModelIndex source = mpOwner->MapFromView(viewIndex);
    QPointer<DropDownTree> guard(mpOwner);
    mpOwner->HidePopup();
    if (!guard)
        return;
    mpOwner->SetCurrentIndex(source);
    if (guard)
        mpOwner->setFocus(Qt::PopupFocusReason);
}

void DropDownTreeImp::PlacePopup()
{
    const int width = qMax(mpOwner->width(), kPopupMinimumWidth);
    QSize size(width, kPopupHeight);
    QPoint below = mpOwner->mapToGlobal(QPoint(0, mpOwner->height()));
    if (mpOwner->layoutDirection() == Qt::RightToLeft)
        below.rx() += mpOwner->width() - width;
    QRect geometry(below, size);
    if (QScreen* screen = mpOwner->screen()) {
        const QRect available = screen->availableGeometry();
        if (geometry.bottom() > available.bottom()) {
            const QPoint above = mpOwner->mapToGlobal(QPoint(0, 0));
            if (above.y() - available.top() > available.bottom() - below.y())
                geometry.moveBottom(above.y() - 1);
            else
                geometry.setBottom(available.bottom());
        }
        if (geometry.right() > available.right())
            geometry.moveRight(available.right());
        if (geometry.left() < available.left())
            geometry.moveLeft(available.left());
    }
    mpPopup->setGeometry(geometry);
}

bool DropDownTreeImp::eventFilter(QObject* watched, QEvent* event)
{
    if (!mpSearch || watched != mpSearch->GetLineEdit() || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(mpView, event);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        // Open and close branches while there is no filter text to move in.
        if (!mpSearch->GetText().isEmpty())
            return false;
        QCoreApplication::sendEvent(mpView, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (mpSearch->IsSearchPending())
            ApplyFilter(mpSearch->GetText());
        ChooseViewIndex(mpView->currentIndex());
        return true;
    case Qt::Key_Escape:
        if (mpSearch->GetText().isEmpty()) {
            mpOwner->HidePopup();
            mpOwner->setFocus(Qt::PopupFocusReason);
            return true;
        }
        return false; // the search box clears its text
    default:
        return false;
    }
}

void DropDownTreeImp::DrawFrame(QPainter& painter) const
{
    const bool enabled = mpOwner->isEnabled();
    const bool open = mpOwner->IsPopupVisible();
    const bool hovered = enabled && mpOwner->underMouse();
    const Internal::StateFrameKeys keys{ThemeFileKey::DropDownContainer,
                                        ThemeFileKey::DropDownButtonNormalBorderColor,
                                        ThemeFileKey::DropDownButtonHoverBackground,
                                        ThemeFileKey::DropDownButtonHoverBorder2,
                                        ThemeFileKey::DropDownButtonClickedBackground,
                                        ThemeFileKey::DropDownButtonClickedBorder};
    const Internal::FrameState state = open      ? Internal::FrameState::Active
                                       : hovered ? Internal::FrameState::Hover
                                                 : Internal::FrameState::Normal;
    Internal::DrawStateFrame(&painter, mpOwner, mpOwner->rect().adjusted(1, 1, -1, -1), keys, state);
    if (enabled && mpOwner->hasFocus() && !open)
        Internal::DrawFocusRing(&painter, mpOwner, mpOwner->rect(), 0.0,
                                ThemeManager::GetInstance()->GetColor(ThemeFileKey::DropDownButtonFocusOutline));
}

void DropDownTreeImp::DrawText(QPainter& painter) const
{
    const QRect arrow = ArrowColumn();
    QRect textRect = mpOwner->rect().adjusted(kTextLeft, 0, -kTextLeft, 0);
    if (mpOwner->layoutDirection() == Qt::RightToLeft)
        textRect.setLeft(arrow.right() + 1);
    else
        textRect.setRight(arrow.left() - 1);
    const bool hasCurrent = mCurrent.isValid();
    const QString text = hasCurrent ? mpOwner->GetCurrentPathText() : msPrompt;
    if (text.isEmpty())
        return;
    QColor color = mpOwner->palette().color(QPalette::ButtonText);
    if (!hasCurrent)
        color = Internal::ThemeColorOr(ThemeFileKey::FontSearchPrompt, color);
    painter.setPen(color);
    painter.setFont(mpOwner->font());
    // The path is cut at its start: the current item is the part that counts.
    const Qt::Alignment leading =
        QStyle::visualAlignment(mpOwner->layoutDirection(), Qt::AlignVCenter | Qt::AlignLeading);
    painter.drawText(textRect, int(leading) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideLeft, textRect.width()));
}

void DropDownTreeImp::DrawArrow(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QColor color =
        themes->GetColor(mpOwner->IsPopupVisible() ? ThemeFileKey::DropDownTriangle2 : ThemeFileKey::DropDownTriangle);
    if (!color.isValid())
        color = themes->GetColor(ThemeFileKey::DropDownTriangle);
    if (!mpOwner->isEnabled())
        color = Internal::DimmedColor(color);
    const QRect column = ArrowColumn();
    const qreal x = column.left() + (column.width() - 8) / 2;
    const qreal y = column.top() + (column.height() - 4) / 2;
    const QPointF points[3] = {QPointF(x, y), QPointF(x + 8, y), QPointF(x + 4, y + 4)};
    Internal::FillAntialiasedTriangle(&painter, points, color);
}

DropDownTree::DropDownTree(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<DropDownTreeImp>(this))
{
    Internal::InstallNavigationAccessibility();
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setFixedHeight(ScalableIntY(kStandardControlHeight));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    new Internal::ThemedFont(this);
    mpImp->mpTextColor = new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &DropDownTree::OnThemeChanged);
}

DropDownTree::~DropDownTree() = default;

void DropDownTree::SetModel(QAbstractItemModel* model)
{
    DropDownTreeImp& d = *mpImp;
    if (model == d.mpModel)
        return;
    if (d.mpModel)
        d.mpModel->disconnect(this);
    const bool hadCurrent = d.mCurrent.isValid();
    d.mpModel = model;
    d.mCurrent = QPersistentModelIndex();
    d.mbHasCurrent = false;
    if (d.mpView) {
        d.mpProxy->setSourceModel(nullptr);
        d.mpView->setModel(model);
        d.mpSearch->SetText(QString());
    }
    if (model) {
        // A current item removed from the model leaves no current item.
        connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { mpImp->ForgetLostCurrent(); });
        connect(model, &QAbstractItemModel::modelReset, this, [this] {
            mpImp->mCurrent = QPersistentModelIndex();
            mpImp->ForgetLostCurrent();
        });
        connect(model, &QAbstractItemModel::dataChanged, this, qOverload<>(&QWidget::update));
    }
    updateGeometry();
    update();
    if (hadCurrent)
        Q_EMIT CurrentIndexChanged(QModelIndex());
}

QAbstractItemModel* DropDownTree::GetModel() const
{
    return mpImp->mpModel;
}

void DropDownTree::SetDisplayColumn(int column)
{
    if (column < 0 || column == mpImp->miColumn)
        return;
    mpImp->miColumn = column;
    if (mpImp->mpProxy)
        mpImp->mpProxy->setFilterKeyColumn(column);
    update();
}

int DropDownTree::GetDisplayColumn() const
{
    return mpImp->miColumn;
}

void DropDownTree::SetCurrentIndex(const QModelIndex& index)
{
    DropDownTreeImp& d = *mpImp;
    // Indexes of other models are refused.
    if (index.isValid() && index.model() != d.mpModel)
        return;
    const QModelIndex wanted = index.isValid() ? index.siblingAtColumn(0) : QModelIndex();
    if (wanted == QModelIndex(d.mCurrent))
        return;
    d.mCurrent = wanted;
    d.mbHasCurrent = wanted.isValid();
    update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, GetCurrentPathText());
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT CurrentIndexChanged(wanted);
}

QModelIndex DropDownTree::GetCurrentIndex() const
{
    return mpImp->mCurrent;
}

QStringList DropDownTree::GetCurrentPath() const
{
    QStringList path;
    for (QModelIndex index = mpImp->mCurrent; index.isValid(); index = index.parent())
        path.prepend(mpImp->DisplayText(index));
    return path;
}

QString DropDownTree::GetCurrentPathText() const
{
    return GetCurrentPath().join(mpImp->msSeparator);
}

QString DropDownTree::GetPathSeparator() const
{
    return mpImp->msSeparator;
}

void DropDownTree::SetPathSeparator(const QString& separator)
{
    if (separator == mpImp->msSeparator)
        return;
    mpImp->msSeparator = separator;
    updateGeometry();
    update();
}

QString DropDownTree::GetPrompt() const
{
    return mpImp->msPrompt;
}

void DropDownTree::SetPrompt(const QString& prompt)
{
    if (prompt == mpImp->msPrompt)
        return;
    mpImp->msPrompt = prompt;
    update();
}

void DropDownTree::SetFilterText(const QString& text)
{
    mpImp->EnsurePopup();
    mpImp->mpSearch->SetText(text);
}

QString DropDownTree::GetFilterText() const
{
    return mpImp->mpSearch ? mpImp->mpSearch->GetText() : QString();
}

void DropDownTree::SetFilterDelay(int milliseconds)
{
    mpImp->miFilterDelay = qMax(0, milliseconds);
    if (mpImp->mpSearch)
        mpImp->mpSearch->SetSearchDelay(mpImp->miFilterDelay);
}

int DropDownTree::GetFilterDelay() const
{
    return mpImp->miFilterDelay;
}

void DropDownTree::ShowPopup()
{
    DropDownTreeImp& d = *mpImp;
    if (!d.mpModel || IsPopupVisible())
        return;
    d.EnsurePopup();
    Q_EMIT PopupAboutToShow();
    d.PlacePopup();
    d.mpPopup->show();
    d.SelectInView(d.mCurrent);
    d.mpSearch->GetLineEdit()->setFocus(Qt::PopupFocusReason);
    update();
}

void DropDownTree::HidePopup()
{
    if (mpImp->mpPopup && mpImp->mpPopup->isVisible())
        mpImp->mpPopup->hide();
}

bool DropDownTree::IsPopupVisible() const
{
    return mpImp->mpPopup && mpImp->mpPopup->isVisible();
}

QTreeView* DropDownTree::GetPopupView() const
{
    return mpImp->mpView;
}

SearchBox* DropDownTree::GetPopupSearchBox() const
{
    return mpImp->mpSearch;
}

QModelIndex DropDownTree::MapFromView(const QModelIndex& viewIndex) const
{
    if (!viewIndex.isValid())
        return QModelIndex();
    if (mpImp->IsFiltering() && viewIndex.model() == mpImp->mpProxy)
        return mpImp->mpProxy->mapToSource(viewIndex);
    return viewIndex.model() == mpImp->mpModel ? viewIndex : QModelIndex();
}

QSize DropDownTree::sizeHint() const
{
    const int text =
        fontMetrics().horizontalAdvance(mpImp->mCurrent.isValid() ? GetCurrentPathText() : mpImp->msPrompt);
    return QSize(qBound(120, text + 2 * kTextLeft + kArrowColumnWidth, 320), ScalableIntY(kStandardControlHeight));
}

QSize DropDownTree::minimumSizeHint() const
{
    return QSize(kArrowColumnWidth + 2 * kTextLeft + 24, ScalableIntY(kStandardControlHeight));
}

void DropDownTree::OnThemeChanged()
{
    mpImp->ApplyPopupTheme();
    update();
}

void DropDownTree::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    mpImp->DrawFrame(painter);
    mpImp->DrawText(painter);
    mpImp->DrawArrow(painter);
}

void DropDownTree::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    setFocus(Qt::MouseFocusReason);
    if (IsPopupVisible())
        HidePopup();
    else
        ShowPopup();
}

void DropDownTree::keyPressEvent(QKeyEvent* event)
{
    DropDownTreeImp& d = *mpImp;
    const int key = event->key();
    const bool alt = event->modifiers() & Qt::AltModifier;
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F4 ||
        (alt && (key == Qt::Key_Down || key == Qt::Key_Up))) {
        ShowPopup();
        return;
    }
    if ((key == Qt::Key_Up || key == Qt::Key_Down) && d.mCurrent.isValid()) {
        const QModelIndex current = d.mCurrent;
        const QModelIndex next = current.sibling(current.row() + (key == Qt::Key_Down ? 1 : -1), 0);
        if (next.isValid())
            SetCurrentIndex(next);
        return;
    }
    const QString text = event->text();
    if (!text.isEmpty() && text.at(0).isPrint() && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        // Type-ahead: the typed text becomes the popup's filter.
        ShowPopup();
        if (IsPopupVisible()) {
            d.mpSearch->GetLineEdit()->setText(text);
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void DropDownTree::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        HidePopup();
}

void DropDownTree::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void DropDownTree::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QAbstractButton>

#include <memory>

namespace Kavrel::UICore {

class BreadcrumbItemImp;

/// One level of a BreadcrumbBar: its text (or only its icon), and after it a
/// separator arrow that opens the menu of the next level's choices. Clicking
/// the text activates the level; clicking the arrow, or Down on the keyboard,
/// asks for the menu. The current level can be highlighted.
class KVUICORE_EXPORT BreadcrumbItem : public QAbstractButton
{
    Q_OBJECT

public:
    /// An item showing text.
    explicit BreadcrumbItem(const QString& text = QString(), QWidget* parent = nullptr);
    ~BreadcrumbItem() override;

    /// The item's level in the path, set by the bar.
    int GetLevel() const;
    /// Sets the item's level in the path.
    void SetLevel(int level);

    /// Whether the item is the path's last, current, item.
    bool IsCurrent() const;
    /// Marks the item as the path's current item, or not.
    void SetCurrent(bool current);
    /// Whether the item is highlighted.
    bool IsHighlighted() const;
    /// Highlights the item, or not.
    void SetHighlighted(bool highlighted);

    /// Shows the icon without the text (the text stays the tool tip and name).
    bool IsIconOnly() const;
    /// Shows the icon without the text, or both.
    void SetIconOnly(bool iconOnly);

    /// Whether the separator after the item shows.
    bool IsSeparatorVisible() const;
    /// Shows or hides the separator after the item.
    void SetSeparatorVisible(bool visible);
    /// The separator's rectangle in the item, mirrored right to left.
    QRect SeparatorRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The separator was clicked; the bar opens the level's choices.
    void SeparatorActivated();
    /// Left/Right (-1/+1 in reading order), Home (INT_MIN), End (INT_MAX).
    void NavigateRequested(int step);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    bool event(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(BreadcrumbItem)
    friend class BreadcrumbItemImp;
    std::unique_ptr<BreadcrumbItemImp> const mpImp;
};

} // namespace Kavrel::UICore

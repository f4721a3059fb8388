#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QIcon>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class BreadcrumbBarImp;
class BreadcrumbItem;

/// A path shown as a row of BreadcrumbItems, the top level first ("Library >
/// Materials > Wood"), reversed right to left. The top level can show the
/// theme's home icon; the current (last) level can be highlighted; the
/// separator after a level opens a menu of the next level's choices. When the
/// row is too narrow, levels fold into an overflow menu from the top level on;
/// the current level always stays. Each level takes keyboard focus; Left and
/// Right move between levels, Return activates, Down opens the separator menu.
class KVUICORE_EXPORT BreadcrumbBar : public QWidget
{
    Q_OBJECT
    /// The levels shown, from the root down.
    Q_PROPERTY(QStringList path READ GetPath WRITE SetPath NOTIFY PathChanged)

public:
    /// More levels are cut from the top: a path is a place, not a list.
    static constexpr int MaximumLevels = 256;

    /// An empty bar.
    explicit BreadcrumbBar(QWidget* parent = nullptr);
    ~BreadcrumbBar() override;

    /// Shows a path, top level first; beyond MaximumLevels the top levels are cut.
    void SetPath(const QStringList& texts);
    /// The path shown, top level first.
    QStringList GetPath() const;
    /// The number of levels of the path.
    int GetLevelCount() const;

    /// The choices at `level` (the entries of the menu of the separator before
    /// that level); an empty list hides that separator. The level after the
    /// last one holds the current level's children.
    void SetChoices(int level, const QStringList& choices);
    /// The choices at level; empty when none are set.
    QStringList GetChoices(int level) const;
    /// Sets the icon of the item at level; a level out of range is ignored.
    void SetItemIcon(int level, const QIcon& icon);

    /// The item of a level; null for a level out of range.
    BreadcrumbItem* GetItem(int level) const;
    /// The levels folded into the overflow menu, top level first.
    QList<int> GetOverflowLevels() const;
    /// The button of the overflow menu.
    QWidget* GetOverflowButton() const;
    /// Opens the separator menu before `level`; null when it has no choices.
    QWidget* ShowChoicesMenu(int level);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A level was activated (clicked, Return, or picked from the overflow menu).
    void PathActivated(int level);
    /// A choice of `level` was picked from a separator menu.
    void ChoiceActivated(int level, const QString& text);
    /// Sent before a separator menu opens: a host may fill the choices now.
    void ChoicesRequested(int level);
    /// Emitted when SetPath changes the path.
    void PathChanged(const QStringList& path);

public Q_SLOTS:
    /// Applies the theme to the items and lays them out again.
    void OnThemeChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(BreadcrumbBar)
    friend class BreadcrumbBarImp;
    std::unique_ptr<BreadcrumbBarImp> const mpImp;
};

} // namespace Kavrel::UICore

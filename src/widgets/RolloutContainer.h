#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class RolloutContainerImp;

/// A collapsible group: a title bar with a disclosure triangle and an optional
/// check box that enables or disables the content below it. Clicking the title,
/// or Up and Down, collapses and expands it. A container inside a container is
/// indented one step further.
class KVUICORE_EXPORT RolloutContainer : public QWidget
{
    Q_OBJECT
    /// The text of the header.
    Q_PROPERTY(QString title READ GetTitle WRITE SetTitle NOTIFY TitleChanged)
    /// Whether the contents are folded away.
    Q_PROPERTY(bool collapsed READ IsCollapsed WRITE SetIsCollapsed NOTIFY Collapsed)
    /// Whether the header has a check box.
    Q_PROPERTY(bool checkable READ IsCheckable WRITE SetIsCheckable)
    /// Whether the header's check box is checked.
    Q_PROPERTY(bool checked READ IsChecked WRITE SetChecked NOTIFY CheckBoxToggled)

public:
    /// An expanded container without title, not checkable.
    explicit RolloutContainer(QWidget* parent = nullptr);
    ~RolloutContainer() override;

    /// Setting the title does not repaint by itself.
    void SetTitle(QString const& title);
    /// The title.
    QString GetTitle() const;
    /// The tooltip of the title bar while the title is shown whole; a cut title
    /// shows the full title instead.
    void SetTitleToolTip(QString const& toolTip);
    /// Where a title that does not fit is cut.
    void SetElideMode(Qt::TextElideMode mode);
    /// Where a title that does not fit is cut.
    Qt::TextElideMode GetElideMode() const;

    /// Shows or hides the check box in the title bar.
    void SetIsCheckable(bool checkable);
    /// Whether the title bar has a check box.
    bool IsCheckable() const;
    /// Whether the title's check box is checked.
    bool IsChecked() const;
    /// Enables or disables the title's check box.
    void SetCheckboxEnabled(bool enabled);
    /// Sets the tool tip of the title's check box.
    void SetCheckboxToolTip(QString const& toolTip);

    /// Collapses or expands the content; emits Collapsed when that changes.
    void SetIsCollapsed(bool collapsed);
    /// Whether the content is collapsed.
    bool IsCollapsed() const;
    /// Without the expand button the container stays expanded.
    void SetExpandButtonVisible(bool visible);
    /// Whether the expand button shows.
    bool IsExpandButtonVisible() const;
    /// A disabled container still collapses and expands from its title.
    void SetIsExpandableWhenDisabled(bool expandable);
    /// Whether a disabled container still collapses and expands.
    bool IsExpandableWhenDisabled() const;
    /// How many rollout containers hold this one; the title is indented by it.
    int IndentLevel() const;

    /// The title bar as measured for hit tests and size hints.
    QRect GetTitleRect() const;
    /// The height of the title bar, from the theme.
    int TitleHeight() const;

    /// top is kept as extra space below the title bar, also across theme
    /// changes. It and the theme's title height are taken within 0..4096.
    void setContentsMargins(int left, int top, int right, int bottom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The content was collapsed or expanded.
    void Collapsed(bool collapsed);
    /// The title's check box changed state.
    void CheckBoxToggled(bool checked);
    /// The user clicked the title's check box.
    void CheckBoxClicked(bool checked);
    /// Emitted when SetTitle changes the title.
    void TitleChanged(const QString& title);

public Q_SLOTS:
    /// Checked enables the content, unchecked disables it; children the host
    /// disabled itself stay disabled either way.
    void SetChecked(bool checked);
    /// Takes the theme's title height and colours again.
    void OnThemeChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(RolloutContainer)
    friend class RolloutContainerImp;
    std::unique_ptr<RolloutContainerImp> const mpImp;
};

} // namespace Kavrel::UICore

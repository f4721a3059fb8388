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

public:
    explicit RolloutContainer(QWidget* parent = nullptr);
    ~RolloutContainer() override;

    /// Setting the title does not repaint by itself.
    void SetTitle(QString const& title);
    QString GetTitle() const;
    /// The tooltip of the title bar while the title is shown whole; a cut title
    /// shows the full title instead.
    void SetTitleToolTip(QString const& toolTip);
    void SetElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode GetElideMode() const;

    void SetIsCheckable(bool checkable);
    bool IsCheckable() const;
    bool IsChecked() const;
    void SetCheckboxEnabled(bool enabled);
    void SetCheckboxToolTip(QString const& toolTip);

    void SetIsCollapsed(bool collapsed);
    bool IsCollapsed() const;
    /// Without the expand button the container stays expanded.
    void SetExpandButtonVisible(bool visible);
    bool IsExpandButtonVisible() const;
    /// A disabled container still collapses and expands from its title.
    void SetIsExpandableWhenDisabled(bool expandable);
    bool IsExpandableWhenDisabled() const;
    int IndentLevel() const;

    /// The title bar as measured for hit tests and size hints.
    QRect GetTitleRect() const;
    int TitleHeight() const;

    /// top is kept as extra space below the title bar, also across theme
    /// changes. It and the theme's title height are taken within 0..4096.
    void setContentsMargins(int left, int top, int right, int bottom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Collapsed(bool collapsed);
    void CheckBoxToggled(bool checked);
    void CheckBoxClicked(bool checked);

public Q_SLOTS:
    /// Checked enables the content, unchecked disables it; children the host
    /// disabled itself stay disabled either way.
    void SetChecked(bool checked);
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

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QWidget>

#include <memory>

class QAbstractButton;

namespace Kavrel::UICore {

class PaletteTitleBarImp;

/// The title bar of a PaletteWindow: the title text and a close button over the
/// theme's title-bar gradient, ThemeFileKey::TitleBarHeight high. Dragging it
/// moves the palette; double-clicking it asks the palette to collapse or expand.
class KVUICORE_EXPORT PaletteTitleBar : public QWidget
{
    Q_OBJECT
    /// The title shown.
    Q_PROPERTY(QString title READ GetTitle WRITE SetTitle)

public:
    /// A title bar without a title, with a close button.
    explicit PaletteTitleBar(QWidget* parent = nullptr);
    ~PaletteTitleBar() override;

    /// The title shown.
    QString GetTitle() const;
    /// Sets the title shown and the accessible name.
    void SetTitle(const QString& title);
    /// Shows or hides the close button.
    void SetCloseButtonVisible(bool visible);
    /// Whether the close button shows.
    bool IsCloseButtonVisible() const;
    /// The close button.
    QAbstractButton* GetCloseButton() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The close button was clicked.
    void CloseClicked();
    /// The title bar was double-clicked.
    void DoubleClicked();
    /// The palette's new top-left corner in global coordinates while dragging.
    void DragMoved(const QPoint& globalTopLeft);
    /// A drag of the title bar ended.
    void DragFinished();

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(PaletteTitleBar)
    friend class PaletteTitleBarImp;
    std::unique_ptr<PaletteTitleBarImp> const mpImp;
};

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/WidgetImp.h>

#include <memory>

namespace Kavrel::UICore {

class PaletteTitleBar;
class PaletteResizeButton;
class PaletteWindowImp;

/// A floating tool window for a host's panels: a title bar (drag it to move the
/// palette, double-click it to collapse the palette to the bar and back, a close
/// button that hides it), the host's content, and a resize grip in the bottom
/// corner. It stays above its parent's window, or above the native window of a
/// host that is not a Qt application.
///
/// The palette is a WidgetImp: its geometry and collapsed state go into widget
/// state files (SaveState/LoadState with a file and a node path, or the string
/// form under "PaletteWindow"), and SetStateLocation() makes it remember them
/// by itself. A saved geometry that lies off every screen, or is absurdly
/// large, is not taken as it is: the palette keeps a place on a screen.
///
/// SetFloating(false) docks the palette into its parent as a plain child widget
/// (same title bar, dragging moves it within the parent).
class KVUICORE_EXPORT PaletteWindow : public WidgetImp
{
    Q_OBJECT
    /// The title shown in the title bar.
    Q_PROPERTY(QString title READ GetTitle WRITE SetTitle NOTIFY TitleChanged)
    /// Whether only the title bar shows.
    Q_PROPERTY(bool collapsed READ IsCollapsed WRITE SetCollapsed NOTIFY CollapsedChanged)

public:
    /// The largest width or height a state file may give.
    static constexpr int MaximumStateExtent = 16384;

    /// Floats over the window of `parent` (a top-level palette without one).
    explicit PaletteWindow(QWidget* parent = nullptr);
    /// Floats over a native window of a host that is not a Qt application.
    explicit PaletteWindow(HWND hostWindow);
    ~PaletteWindow() override;

    using WidgetImp::LoadState;
    using WidgetImp::SaveState;

    /// The title shown in the title bar.
    QString GetTitle() const;
    /// Sets the title of the title bar and the window.
    void SetTitle(const QString& title);

    /// The palette takes ownership; a previous content widget is deleted.
    void SetContentWidget(QWidget* content);
    /// The content widget; null when none is set.
    QWidget* GetContentWidget() const;

    /// Whether only the title bar shows.
    bool IsCollapsed() const;
    /// Collapses the palette to its title bar or expands it to its remembered height;
    /// emits CollapsedChanged when that changes.
    void SetCollapsed(bool collapsed);

    /// Whether the palette is a window of its own.
    bool IsFloating() const;
    /// Makes the palette a window of its own at the same place on screen, or docks it
    /// back into its parent; docking without a parent is ignored.
    void SetFloating(bool floating);

    /// Loads the state at once when the file holds it, and saves it whenever
    /// the palette hides and when it goes. An empty path stops remembering.
    void SetStateLocation(const QString& filePath, const QString& nodePath);

    /// The size when expanded (the height the palette returns to).
    QSize GetExpandedSize() const;

    /// The title bar.
    PaletteTitleBar* GetTitleBar() const;
    /// The resize grip in the corner.
    PaletteResizeButton* GetResizeButton() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The palette was collapsed or expanded.
    void CollapsedChanged(bool collapsed);
    /// The close button hid the palette.
    void Closed();
    /// Emitted when SetTitle changes the title.
    void TitleChanged(const QString& title);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void LoadState(QDomElement& element) override;
    void SaveState(QDomElement& element) const override;
    QString StateNodeId() const override;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(PaletteWindow)
    void Initialize(QWidget* parent);
    friend class PaletteWindowImp;
    std::unique_ptr<PaletteWindowImp> const mpImp;
};

} // namespace Kavrel::UICore

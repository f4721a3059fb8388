#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

#include <QDomElement>
#include <QDomNode>
#include <QPoint>
#include <QString>
#include <QWidget>

/// The implementation behind the Widget handle, and the base class of the
/// pieces of library UI a host places through that handle.
///
/// A WidgetImp sits in one of three settings, fixed at construction: top-level
/// (no parent), filling a Qt parent widget, or inside a native window of a host
/// that is not a Qt application, where a wrapper (the host widget) carries it.
/// Placement always acts on the host widget.
///
/// Subclasses decide what their state is by overriding LoadState(QDomElement&),
/// SaveState(QDomElement&) and, for the string form, StateNodeId().
class KVUICORE_EXPORT WidgetImp : public QWidget
{
    Q_OBJECT

public:
    /// Inside a native window; a null handle gives a top-level widget, the
    /// handle of a Qt widget of this process fills that widget through a
    /// margin-less layout. A Qt widget holds one layout only, so a layout the
    /// widget had is deleted to make room (its widgets stay its children);
    /// keeping it would leave the new layout uninstalled and this widget
    /// floating unplaced.
    explicit WidgetImp(HWND parentWindow);
    /// Fills `parent` through a margin-less layout that replaces its old one.
    explicit WidgetImp(QWidget* parent = nullptr);
    ~WidgetImp() override;

    /// The position in the host's pixels: native pixels of the parent window
    /// when the widget sits in a native window.
    int GetX() const;
    /// The vertical position, as GetX.
    int GetY() const;
    /// The width of the host widget; 0 without one.
    int GetWidth() const;
    /// The height of the host widget; 0 without one.
    int GetHeight() const;
    /// The widget's minimum height.
    int GetMinimumHeight();
    /// The native handle of the host widget's window; null without a host widget.
    HWND GetWinId() const;
    /// Whether the host widget is enabled.
    bool IsEnabled() const;
    /// Whether the host widget is visible.
    bool IsVisible() const;

    /// Moves the host widget; the position is used as given.
    void Move(int x, int y);
    /// Emits Resizing, then resizes the host widget.
    void Resize(int width, int height);
    /// In a native window on a scaled screen the position is taken as native
    /// pixels and scaled down, the size is used as given: intended.
    void Resize(int x, int y, int width, int height);
    /// Shows the host widget.
    void Show();
    /// Hides the host widget.
    void Hide();

    /// Calls BorderVisibleChanged() every time, also when nothing changed.
    void ShowBorder(bool show);
    /// Whether the border is shown (see ShowBorder).
    bool IsBorderVisible();
    /// True when the widget sits in a native window through a wrapper.
    bool IsParentWindowsNativeWindow();

    // State files are read and written through XmlFiler and share its limits
    // (a regular file of at most XmlFiler::kMaxFileSize bytes, elements
    // nested at most XmlFiler::kMaxDepth levels, at most
    // XmlFiler::kMaxAttributes attributes per element and XmlFiler::kMaxNodes
    // nodes); a file beyond them reads as one without the element, and a
    // diagnostic names the file and the limit. The string form has the same
    // limits.

    /// Reads the element at `nodePath` of a state file.
    bool LoadState(const QString& filePath, const QString& nodePath);
    /// Reads the string form written by SaveState().
    bool LoadState(const QString& xml);
    /// The string form, or a null string when StateNodeId() is empty.
    QString SaveState();
    /// Replaces the element at `nodePath` of a state file; the rest of the file
    /// is kept. The file is replaced as a whole, never left half written, and
    /// never written in place. The save holds the file's lock and reads the
    /// file afresh under it, so processes saving into one file keep each
    /// other's states. A missing or empty file is created with a "Root"
    /// element; a file that exists but can't be read, isn't XML or is beyond a
    /// limit is not replaced: false, and the file keeps the states it holds.
    /// So is a state that would not read back as written (a tag that is no
    /// XML name, for one).
    bool SaveState(const QString& filePath, const QString& nodePath) const;

public Q_SLOTS:
    /// Shows or hides the host widget.
    virtual void SetVisible(bool visible);
    /// Enables or disables the host widget.
    virtual void SetEnabled(bool enabled);

Q_SIGNALS:
    /// Emitted by both Resize forms before the size changes.
    void Resizing(int width, int height);

protected:
    /// Reads the subclass's state from its element; the default reads nothing.
    virtual void LoadState(QDomElement& element);
    /// Writes the subclass's state into its element; the default writes nothing.
    virtual void SaveState(QDomElement& element) const;
    /// The tag of the string form; empty switches the string form off.
    virtual QString StateNodeId() const;
    /// Called by ShowBorder; a subclass shows or hides its border. The default does
    /// nothing.
    virtual void BorderVisibleChanged();

    /// Absent or empty gives the default; text that is not a number reads as 0.
    bool GetBoolAttribute(QDomElement& element, const QString& name, bool defaultValue);
    /// An integer attribute; absent or empty gives the default, text that is not a number
    /// reads as 0.
    int GetIntAttribute(QDomElement& element, const QString& name, int defaultValue);
    /// Writes a bool attribute as "1" or "0".
    void SetBoolAttribute(QDomElement& element, const QString& name, bool value) const;
    /// Writes an integer attribute in decimal.
    void SetIntAttribute(QDomElement& element, const QString& name, int value) const;

private:
    static QDomElement CreateChildElement(QDomNode& parent, const QString& name);
    static QDomElement GetElement(QDomNode node, const QString& path, bool create);
    static QDomElement GetElement(QDomNode node, const QString& path);
    static QDomElement CreateElementIfNotExists(QDomNode node, const QString& path);
    static void RemoveAllAttributes(QDomElement element);
    static void RemoveAllChildNodes(QDomNode node);

    QPoint GetPosition() const;

    QWidget* mpHostWidget = nullptr;
    bool mbBorderVisible = false;
};

#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/theme/ThemeFileKey.h>

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace Kavrel::UICore::Internal {

// The one place a control's themed text colour lives.
//
// A control keeps one ThemedColor per widget whose text it colours (normally
// itself; a composite control one per part). It holds the key followed while
// enabled, the key followed while disabled, and an optional custom colour that
// replaces the enabled key until it is cleared. The colour is applied when the
// control is built, when it is polished, after every theme switch, when the
// enabled state changes, and after a style sheet's repolish replaced the
// palette. The palette is only written when the colour really differs, and
// the repolish of a theme switch waits for the switch's own notice, so a
// switch costs one palette change per widget.
//
// A control with a second look (a line edit showing its prompting text, a
// checked tile) gives it an alternate key and custom colour and switches it on
// and off; the disabled key still wins while the widget is disabled. A key the
// theme lacks falls back to the enabled look, so a theme without a disabled
// or alternate colour keeps the text readable.
//
// After a theme switch the object repaints its widget, then runs the control's
// handler, so the control's own per-switch work (icons, widths) sits beside
// the colour instead of in a second connection.
//
// A palette the host sets on the widget with a text colour of its own (any
// of the text roles in the active or inactive group, explicitly set) wins
// like a custom colour: it outlives theme switches and is written back after
// a style's repolish, until the host clears it (setPalette(QPalette()) or a
// palette without text roles), when the themed colour returns. Between a host
// palette and a custom colour, the one set last wins. The host's colour
// replaces every enabled look (the alternate one too); the disabled key still
// wins while the widget is disabled. A palette change that brings back a
// themed colour this object wrote before is what a style sheet's
// repolish does: it is settled by the StyleChange that follows, or, when none
// follows, taken as the host's once control returns to the event loop.
//
// The object is a child of the widget and goes with it.
class KVUICORE_EXPORT ThemedColor final : public QObject
{
    Q_OBJECT

public:
    explicit ThemedColor(QWidget* widget, const QString& key = ThemeFileKey::FontNormal1,
                         const QString& disabledKey = ThemeFileKey::FontColorDisabled);
    ~ThemedColor() override;

    // The object colouring widget's text, or null.
    static ThemedColor* Of(const QWidget* widget);

    QWidget* GetWidget() const;

    const QString& GetKey() const;
    void SetKey(const QString& key);
    const QString& GetDisabledKey() const;
    void SetDisabledKey(const QString& key);

    // A custom colour wins over the enabled key until cleared with an invalid
    // colour; the disabled key still applies while the widget is disabled.
    // Setting one ends a host palette's colour.
    void SetCustomColor(const QColor& color);
    const QColor& GetCustomColor() const;
    bool IsDefault() const;
    // The text colour of the palette the host set, or invalid.
    const QColor& GetHostColor() const;
    // Ends the host palette's colour: the host asked for a key explicitly.
    void DropHostColor();

    // The second look: its key (none by default) and custom colour.
    const QString& GetAlternateKey() const;
    void SetAlternateKey(const QString& key);
    void SetAlternateCustomColor(const QColor& color);
    const QColor& GetAlternateCustomColor() const;
    bool IsAlternateActive() const;
    void SetAlternateActive(bool active);

    // The colour for the widget's present state in the current theme; invalid
    // when the theme has no such key.
    QColor GetColor() const;
    // The colour of one look for the present enabled state, whichever look
    // is active.
    QColor GetColor(bool alternate) const;
    // The colour of one look while the widget is enabled.
    QColor GetEnabledColor(bool alternate) const;

    // Writes the colour into the widget's palette when it differs from what
    // the palette holds. Safe to call as often as a control likes.
    void Apply();

    // Work a control does once per theme switch after the colour is applied
    // (icons, widths that depend on the theme).
    void SetThemeChangedHandler(std::function<void()> handler);

    // How many times the palette was actually written (tests count it).
    int GetApplyCount() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnThemeChanged();
    void OnPaletteChanged();
    void AdoptPendingHostColor();

    QWidget* mpWidget;
    QString msKey;
    QString msDisabledKey;
    QColor mCustomColor;
    QString msAlternateKey;
    QColor mAlternateCustomColor;
    QColor mHostColor;
    // What the palette was last given, and the themed colours given before:
    // a palette change back to one of those is a restore, not the host's.
    QRgb mLastWritten = 0;
    QList<QRgb> mThemed;
    QColor mPendingHostColor;
    // The theme of the last ThemeChanged seen: while the current theme
    // differs, a switch is under way and its notice still to come.
    QString msTheme;
    std::function<void()> mThemeChangedHandler;
    int miApplyCount = 0;
    bool mbApplying = false;
    bool mbAlternateActive = false;
};

} // namespace Kavrel::UICore::Internal

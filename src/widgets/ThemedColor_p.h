#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/theme/ThemeFileKey.h>

#include <QColor>
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
    void SetCustomColor(const QColor& color);
    const QColor& GetCustomColor() const;
    bool IsDefault() const;

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

    QWidget* mpWidget;
    QString msKey;
    QString msDisabledKey;
    QColor mCustomColor;
    QString msAlternateKey;
    QColor mAlternateCustomColor;
    // The theme of the last ThemeChanged seen: while the current theme
    // differs, a switch is under way and its notice still to come.
    QString msTheme;
    std::function<void()> mThemeChangedHandler;
    int miApplyCount = 0;
    bool mbApplying = false;
    bool mbAlternateActive = false;
};

} // namespace Kavrel::UICore::Internal

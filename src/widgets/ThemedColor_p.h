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
// control is built, after every theme switch, when the enabled state changes,
// and after a style sheet's repolish replaced the palette. The palette is only
// written when the colour really differs, so a theme switch costs one palette
// change per control however many of those reactions arrive.
//
// The object is a child of the widget and goes with it.
class KVUICORE_EXPORT ThemedColor final : public QObject
{
public:
    explicit ThemedColor(QWidget* widget, const QString& key = ThemeFileKey::FontNormal1,
                         const QString& disabledKey = ThemeFileKey::FontColorDisabled);
    ~ThemedColor() override;

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

    // The colour for the widget's present state in the current theme; invalid
    // when the theme has no such key.
    QColor GetColor() const;

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
    std::function<void()> mThemeChangedHandler;
    int miApplyCount = 0;
    bool mbApplying = false;
};

} // namespace Kavrel::UICore::Internal

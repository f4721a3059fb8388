#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QCheckBox>

#include <memory>

namespace Kavrel::UICore {

class CheckBoxImp;

/// A check box in the library's look (painted by CustomStyle), with its text
/// colour from the theme. A label that does not fit is cut and shows its full
/// text as a tool tip, unless the always-show-tool-tip flag keeps the tool tip
/// the host set. A theme switch returns the text colour to "FontNormal1"
/// ("FontColorDisabled" while disabled), whatever key was set before.
class KVUICORE_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT
    /// The theme key of the text colour.
    Q_PROPERTY(QString textColorThemeKey READ GetTextColorThemeKey WRITE SetTextColorThemeKey)
    /// Read by name by the style that paints the label.
    Q_PROPERTY(bool alwaysShowTooltip READ IsAlwaysShowTooltip WRITE SetAlwaysShowTooltip)

public:
    /// A check box without text.
    explicit CheckBox(QWidget* parent = nullptr);
    /// A check box labelled text.
    explicit CheckBox(const QString& text, QWidget* parent = nullptr);
    ~CheckBox() override;

    /// The theme key of the text colour.
    QString GetTextColorThemeKey() const;
    /// Takes the text colour from another theme key (until the next theme switch).
    void SetTextColorThemeKey(const QString& key);

    /// When true the whole label is drawn and the tool tip is left alone.
    bool IsAlwaysShowTooltip() const;
    /// Draws the whole label and leaves the tool tip alone, or not.
    void SetAlwaysShowTooltip(bool alwaysShow);

Q_SIGNALS:
    /// The check box's tool tip changed.
    void ToolTipChanged();

public Q_SLOTS:
    /// Returns the text colour to "FontNormal1" and applies it.
    void OnThemeChanged();

protected:
    bool event(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(CheckBox)
    void Initialize();
    void UpdateLabelToolTip();

    std::unique_ptr<CheckBoxImp> const mpImp;
};

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLabel>

#include <memory>

namespace Kavrel::UICore {

class TextLabelImp;

/// A static text (captions, headers, wrapped notes) in a theme colour. The bold
/// variant is bold only when the theme says static labels are bold
/// ("StaticLabelFontBold"). Unlike Label it never cuts its text.
class KVUICORE_EXPORT TextLabel : public QLabel
{
    Q_OBJECT
    /// The text shown.
    Q_PROPERTY(QString text READ text WRITE SetText NOTIFY TextChanged)
    /// The theme key of the text colour.
    Q_PROPERTY(QString textColorThemeKey READ GetTextColorThemeKey WRITE SetTextColorThemeKey)
    /// Whether the text is bold.
    Q_PROPERTY(bool bold READ IsBold WRITE SetBold)

public:
    /// An empty label in the theme's text colour.
    explicit TextLabel(QWidget* parent = nullptr);
    /// A label showing text in the theme's text colour.
    explicit TextLabel(const QString& text, QWidget* parent = nullptr);
    ~TextLabel() override;
    /// Sets the text; emits TextChanged when it differs from the current text.
    void SetText(const QString& text);

    /// The theme key of the text colour.
    QString GetTextColorThemeKey() const;
    /// Ignored for a key the theme lacks.
    void SetTextColorThemeKey(const QString& key);
    /// Whether the text is bold.
    bool IsBold() const;
    /// Makes the text bold, or not.
    void SetBold(bool bold);

Q_SIGNALS:
    /// Emitted when SetText changes the text.
    void TextChanged(const QString& text);

public Q_SLOTS:
    /// Applies the theme's text colour and font again.
    void OnThemeChanged();

protected:
    /// Paints plain text aligned for the label's layout direction, so that it mirrors in a right-to-left layout.
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(TextLabel)
    void Initialize();
    void ApplyFont();

    std::unique_ptr<TextLabelImp> const mpImp;
};

} // namespace Kavrel::UICore

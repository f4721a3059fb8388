#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLabel>

#include <memory>

namespace Kavrel::UICore {

class TextLabelImp;

// A static text (captions, headers, wrapped notes) in a theme colour. The bold
// variant is bold only when the theme says static labels are bold
// ("StaticLabelFontBold"). Unlike Label it never cuts its text.
class KVUICORE_EXPORT TextLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString textColorThemeKey READ GetTextColorThemeKey WRITE SetTextColorThemeKey)
    Q_PROPERTY(bool bold READ IsBold WRITE SetBold)

public:
    explicit TextLabel(QWidget* parent = nullptr);
    explicit TextLabel(const QString& text, QWidget* parent = nullptr);
    ~TextLabel() override;

    QString GetTextColorThemeKey() const;
    // Ignored for a key the theme lacks.
    void SetTextColorThemeKey(const QString& key);
    bool IsBold() const;
    void SetBold(bool bold);

public Q_SLOTS:
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

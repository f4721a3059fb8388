#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QRadioButton>

#include <memory>

namespace Kavrel::UICore {

class RadioButtonImp;

/// A flat toggle tile with an icon and an optional text, painted by
/// CustomStyle: highlighted when hovered, filled when checked. Tiles of one
/// parent are exclusive like radio buttons.
class KVUICORE_EXPORT RadioButton : public QRadioButton
{
    Q_OBJECT
    /// The theme key of the icon shown.
    Q_PROPERTY(QString iconThemeKey READ GetIconThemeKey WRITE SetIconThemeKey)

public:
    /// A radio button without text, painted from the theme.
    explicit RadioButton(QWidget* parent = nullptr);
    /// A radio button labelled text, painted from the theme.
    explicit RadioButton(const QString& text, QWidget* parent = nullptr);
    ~RadioButton() override;

    /// The theme key of the icon shown; empty when none.
    QString GetIconThemeKey() const;
    /// An "Icon" entry or a "String" entry holding an icon path.
    void SetIconThemeKey(const QString& key);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Applies the theme's colour and the key's icon again.
    void OnThemeChanged();

protected:
    bool hitButton(const QPoint& pos) const override;

private:
    Q_DISABLE_COPY_MOVE(RadioButton)
    void Initialize();

    std::unique_ptr<RadioButtonImp> const mpImp;
};

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QToolButton>

#include <memory>

namespace Kavrel::UICore {

class ToolButtonImp;

/// A small flat tool button (28 by 24) painted by CustomStyle: invisible until
/// hovered, pressed or checked. Its icon comes from a theme key and follows
/// theme switches.
class KVUICORE_EXPORT ToolButton : public QToolButton
{
    Q_OBJECT
    /// The theme key of the icon shown.
    Q_PROPERTY(QString iconThemeKey READ GetIconThemeKey WRITE SetIconThemeKey)

public:
    /// A tool button painted from the theme.
    explicit ToolButton(QWidget* parent = nullptr);
    ~ToolButton() override;

    /// The theme key of the icon shown; empty when none.
    QString GetIconThemeKey() const;
    /// An "Icon" entry or a "String" entry holding an icon path.
    void SetIconThemeKey(const QString& key);

public Q_SLOTS:
    /// Applies the theme's colour and the key's icon again.
    void OnThemeChanged();

private:
    Q_DISABLE_COPY_MOVE(ToolButton)

    std::unique_ptr<ToolButtonImp> const mpImp;
};

} // namespace Kavrel::UICore

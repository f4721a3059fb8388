#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QAbstractButton>
#include <QColor>
#include <QString>

#include <functional>

class QPainter;

// Pieces shared by the navigation and message controls (search box, drop-down
// tree, breadcrumb, message facility, palette window).
namespace Kavrel::UICore::Internal {

// Registers the accessible interfaces of these controls with Qt, once; every
// control calls it from its constructor.
KVUICORE_EXPORT void InstallNavigationAccessibility();

// Announces the widget to assistive technology as an alert. The observer
// (tests) sees every alert, also when no assistive technology listens.
KVUICORE_EXPORT void AnnounceAlert(QWidget* widget);
KVUICORE_EXPORT void SetAlertObserver(std::function<void(QWidget*)> observer);

// A theme colour, or `fallback` when the theme has no such key.
KVUICORE_EXPORT QColor ThemeColorOr(const QString& key, const QColor& fallback = QColor());

// A small flat button drawn as a cross (close buttons) or as a theme icon
// (clear buttons): a hover and pressed background, and a focus ring when it
// takes keyboard focus. Its colours follow the theme.
class KVUICORE_EXPORT GlyphButton : public QAbstractButton
{
    Q_OBJECT

public:
    // An empty iconKey draws the cross in the colour of colorKey.
    GlyphButton(const QString& colorKey, const QString& iconKey, QWidget* parent);
    ~GlyphButton() override;

    void SetColorKey(const QString& key);
    void SetGlyphSize(int size);
    QSize sizeHint() const override;

public Q_SLOTS:
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString msColorKey;
    QString msIconKey;
    QIcon mIcon;
    int miGlyphSize = 8;
};

} // namespace Kavrel::UICore::Internal

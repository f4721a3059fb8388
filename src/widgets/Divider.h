#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class DividerImp;

/// A thin separating line in a theme colour ("Separator1" unless set),
/// horizontal or vertical, one stroke wide on whole device pixels.
class KVUICORE_EXPORT Divider : public QWidget
{
    Q_OBJECT
    /// Whether the line runs horizontally or vertically.
    Q_PROPERTY(Qt::Orientation orientation READ GetOrientation WRITE SetOrientation NOTIFY OrientationChanged)
    /// The theme key of the line colour.
    Q_PROPERTY(QString colorThemeKey READ GetColorThemeKey WRITE SetColorThemeKey)

public:
    /// A line in the theme's divider colour.
    explicit Divider(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);
    /// A horizontal divider, the form Designer forms and uic create.
    explicit Divider(QWidget* parent);
    ~Divider() override;

    /// Whether the line runs horizontally or vertically.
    Qt::Orientation GetOrientation() const;
    /// Turns the line horizontal or vertical.
    void SetOrientation(Qt::Orientation orientation);
    /// The theme key of the line colour.
    QString GetColorThemeKey() const;
    /// Takes the line colour from another theme key.
    void SetColorThemeKey(const QString& key);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted when the orientation changes.
    void OrientationChanged(Qt::Orientation orientation);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(Divider)
    void ApplyOrientation();

    std::unique_ptr<DividerImp> const mpImp;
};

} // namespace Kavrel::UICore

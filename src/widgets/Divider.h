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
    Q_PROPERTY(Qt::Orientation orientation READ GetOrientation WRITE SetOrientation)
    Q_PROPERTY(QString colorThemeKey READ GetColorThemeKey WRITE SetColorThemeKey)

public:
    explicit Divider(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);
    ~Divider() override;

    Qt::Orientation GetOrientation() const;
    void SetOrientation(Qt::Orientation orientation);
    QString GetColorThemeKey() const;
    void SetColorThemeKey(const QString& key);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(Divider)
    void ApplyOrientation();

    std::unique_ptr<DividerImp> const mpImp;
};

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLabel>

#include <memory>

namespace Kavrel::UICore {

class ImageLabelImp;

/// A label that shows a themed image: an "Icon" entry of the theme, or the
/// image file a "String" entry names, at a fixed size. The image follows theme
/// switches and is drawn greyed while the label is disabled.
class KVUICORE_EXPORT ImageLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString imageThemeKey READ GetImageThemeKey WRITE SetImageThemeKey)
    Q_PROPERTY(QSize imageSize READ GetImageSize WRITE SetImageSize)

public:
    explicit ImageLabel(QWidget* parent = nullptr);
    explicit ImageLabel(const QString& imageThemeKey, const QSize& imageSize = QSize(16, 16),
                        QWidget* parent = nullptr);
    ~ImageLabel() override;

    QString GetImageThemeKey() const;
    void SetImageThemeKey(const QString& key);
    QSize GetImageSize() const;
    void SetImageSize(const QSize& size);

public Q_SLOTS:
    void OnThemeChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(ImageLabel)
    void Initialize();
    void UpdateImage();

    std::unique_ptr<ImageLabelImp> const mpImp;
};

} // namespace Kavrel::UICore

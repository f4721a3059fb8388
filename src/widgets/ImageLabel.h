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
    /// The theme key of the image shown.
    Q_PROPERTY(QString imageThemeKey READ GetImageThemeKey WRITE SetImageThemeKey NOTIFY ImageThemeKeyChanged)
    /// The size the image is shown at.
    Q_PROPERTY(QSize imageSize READ GetImageSize WRITE SetImageSize)

public:
    /// A label without an image.
    explicit ImageLabel(QWidget* parent = nullptr);
    /// A label showing the theme's image of a key at a size.
    explicit ImageLabel(const QString& imageThemeKey, const QSize& imageSize = QSize(16, 16),
                        QWidget* parent = nullptr);
    ~ImageLabel() override;

    /// The theme key of the image shown.
    QString GetImageThemeKey() const;
    /// Shows the theme's image of another key.
    void SetImageThemeKey(const QString& key);
    /// The size the image is shown at.
    QSize GetImageSize() const;
    /// Shows the image at another size.
    void SetImageSize(const QSize& size);

Q_SIGNALS:
    /// Emitted when the image's theme key changes.
    void ImageThemeKeyChanged(const QString& key);

public Q_SLOTS:
    /// Takes the key's image from the new theme.
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

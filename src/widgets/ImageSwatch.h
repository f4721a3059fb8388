#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QImage>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class ImageSwatchImp;

/// A thumbnail of an image file (any format the Qt image readers know, SVG
/// too), scaled into the swatch with its aspect ratio kept (pixels are never
/// enlarged; drawings fill the swatch). The file is decoded
/// at thumbnail size where its reader can (JPEG, SVG), so that a large photo is
/// never held at full size; decoded thumbnails are shared through a bounded
/// cache keyed by path, modification time, file size and thumbnail size.
///
/// Decoding runs on the GUI thread and is bounded: a header claiming more than
/// 16384 × 16384 pixels, an image whose reader would decode it whole into more
/// than 256 MiB, a file larger than 1 GiB or anything that is not a regular
/// file is not decoded; the swatch then shows the unreadable state and its
/// tool tip says why. Other states: no image (empty path), missing file. The
/// tool tip of a shown image gives its path and pixel size.
///
/// An image file dropped onto the swatch becomes its file (FilePathChanged()).
/// A click, Space or Return emits Activated(), for the host to offer a file
/// browser; Delete or Backspace clears the image. SetFilePath() changes the
/// file silently.
class KVUICORE_EXPORT ImageSwatch : public QWidget
{
    Q_OBJECT
    /// The image file shown.
    Q_PROPERTY(QString filePath READ GetFilePath WRITE SetFilePath NOTIFY FilePathUpdated)

public:
    /// What the swatch shows.
    enum State
    {
        NoImage,
        Loaded,
        Missing,
        Unreadable,
    };
    Q_ENUM(State)

    /// A swatch without an image that accepts dropped files.
    explicit ImageSwatch(QWidget* parent = nullptr);
    ~ImageSwatch() override;

    /// The image file; empty when none.
    QString GetFilePath() const;
    /// Shows the image file; the state tells whether it could be read.
    void SetFilePath(const QString& path);
    /// Reads the file again (after it changed on disk).
    void Reload();

    /// Whether the swatch shows an image, or why not.
    State GetState() const;
    /// Why the file is missing or unreadable; empty otherwise.
    QString GetStateText() const;
    /// The image's size in pixels as its file gives it; invalid without one.
    QSize GetImageSize() const;
    /// The thumbnail for the swatch's present size and screen scale.
    QImage GetThumbnail() const;

    /// Whether files can be dropped on the swatch; true by default.
    bool IsDropEnabled() const;
    /// Lets files be dropped on the swatch, or not.
    void SetDropEnabled(bool enabled);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The file shown changed, by a drop, a key or in code.
    void FilePathChanged(const QString& path);
    /// The swatch was clicked, or Space or Return was pressed on it.
    void Activated();
    /// Emitted whenever the file path changes, in code or by the user; FilePathChanged reports the user's choices only.
    void FilePathUpdated(const QString& path);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    /// The area the image is shown in.
    QRect ContentRect() const;
    /// Paints the loaded image into the content area; the texture swatch tiles it.
    virtual void DrawImage(QPainter& painter, const QRect& content);
    /// The thumbnail of the file fitting box (device pixels), or null.
    QImage ThumbnailFor(const QSize& box) const;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(ImageSwatch)
    friend class ImageSwatchImp;
    std::unique_ptr<ImageSwatchImp> const mpImp;
};

} // namespace Kavrel::UICore

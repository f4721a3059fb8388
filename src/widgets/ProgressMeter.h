#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QList>
#include <QPixmap>
#include <QWidget>

class QLabel;
class QTimer;

namespace Kavrel::UICore {

class Label;

/// A small busy indicator: a 16 by 16 animation cycling through the theme's
/// busy frames about 24 times a second, optionally followed by a text. It is
/// idle until Start(); End() stops it and rewinds to the first frame.
class KVUICORE_EXPORT ProgressMeter : public QWidget
{
    Q_OBJECT
    /// The text shown beside the indicator.
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY TextChanged)

public:
    /// A stopped meter with the default frames and no text.
    explicit ProgressMeter(QWidget* parent = nullptr);
    ~ProgressMeter() override;

    /// Starts cycling through the frames.
    void Start();
    /// Stops cycling and returns to the first frame.
    void End();
    /// Tells whether the meter is animating: true between Start() and End().
    bool IsRunning() const;

    /// A non-empty text makes the meter as wide as the text's advance plus 33.
    void SetText(QString const& text);
    /// The text beside the frames.
    QString GetText() const;

    /// Replaces the frames; a non-empty list shows its first frame at once.
    void SetImageFrameList(QList<QPixmap> frames);
    /// The frames cycled through.
    QList<QPixmap> GetImageFrameList() const;

    ///@{
    /// Both lay out the frame and the text in the meter's rectangle.
    void setGeometry(QRect const& rect);
    void updateGeometry();
    ///@}

Q_SIGNALS:
    /// Emitted when SetText changes the text.
    void TextChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Lays the frames and the text out again when the layout direction changes.
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void UpdateProgressMeter();

private:
    Q_DISABLE_COPY_MOVE(ProgressMeter)
    void InitializeDefaultImageFrameList();

    QLabel* mpImageLabel = nullptr;
    Label* mpTextLabel = nullptr;
    QTimer* mpTimer = nullptr;
    QList<QPixmap> mFrames;
    int mCurrentFrame = 0;
};

} // namespace Kavrel::UICore

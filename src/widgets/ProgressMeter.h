#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QList>
#include <QPixmap>
#include <QWidget>

class QLabel;
class QTimer;

namespace Kavrel::UICore {

class Label;

// A small busy indicator: a 16 by 16 animation cycling through the theme's
// busy frames about 24 times a second, optionally followed by a text. It is
// idle until Start(); End() stops it and rewinds to the first frame.
class KVUICORE_EXPORT ProgressMeter : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressMeter(QWidget* parent = nullptr);
    ~ProgressMeter() override;

    void Start();
    void End();

    // A non-empty text makes the meter as wide as the text's advance plus 33.
    void SetText(QString const& text);
    QString GetText() const;

    // Replaces the frames; a non-empty list shows its first frame at once.
    void SetImageFrameList(QList<QPixmap> frames);
    QList<QPixmap> GetImageFrameList() const;

    void setGeometry(QRect const& rect);
    void updateGeometry();

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

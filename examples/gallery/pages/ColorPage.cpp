// The colour and image controls in their states: the colour picker with its
// wheel, colour swatches (opaque, translucent, no colour, disabled, focused,
// right to left), gradient swatches, and image and texture swatches showing an
// image, no image, a missing file and a file that cannot be read.
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/TextureSwatch.h>

#include <QCoreApplication>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

using namespace Kavrel::UICore;

namespace {

constexpr double kTwoPi = 6.283185307179586;

QString Tr(const char* text)
{
    return QCoreApplication::translate("ColorPage", text);
}

// A marbled tile made on the spot, so the page needs no image files of its own.
QImage MarbleImage(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double u = kTwoPi * x / side;
            const double v = kTwoPi * y / side;
            const double vein = 0.5 + 0.5 * std::sin(3 * u + 2.0 * std::sin(2 * v) + std::cos(u + v));
            const int shade = int(150 + 90 * vein);
            image.setPixel(x, y, qRgb(shade, int(shade * 0.92), int(shade * 0.82)));
        }
    }
    return image;
}

class ColorPage : public QWidget
{
public:
    explicit ColorPage(QWidget* parent)
        : QWidget(parent)
    {
        WriteSampleFiles();
        auto* layout = new QVBoxLayout(this);
        AddDividedSection(layout, Tr("Colour picker and wheel"), [this] { return Pickers(); });
        AddDividedSection(layout, Tr("Colour swatches"), [this] { return Swatches(); });
        AddDividedSection(layout, Tr("Gradient swatches"), [this] { return Gradients(); });
        AddDividedSection(layout, Tr("Image and texture swatches"), [this] { return Images(); });
        layout->addStretch(1);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        QWidget::showEvent(event);
        if (mpFocusTarget)
            QTimer::singleShot(0, mpFocusTarget, [target = mpFocusTarget] { target->setFocus(Qt::OtherFocusReason); });
    }

private:
    QString SamplePath(const char* name) const { return mFiles.filePath(QString::fromLatin1(name)); }

    void WriteSampleFiles()
    {
        MarbleImage(128).save(SamplePath("marble.png"));
        QFile broken(SamplePath("broken.png"));
        if (broken.open(QIODevice::WriteOnly))
            broken.write("these bytes are not an image");
    }

    QWidget* Captioned(QWidget* control, const QString& caption)
    {
        auto* box = new QWidget(this);
        auto* column = new QVBoxLayout(box);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(2);
        control->setParent(box);
        column->addWidget(control, 0, Qt::AlignLeft);
        auto* label = new TextLabel(caption, box);
        label->SetTextColorThemeKey(ThemeFileKey::FontNormal3);
        column->addWidget(label);
        return box;
    }

    QHBoxLayout* Pickers()
    {
        auto* row = new QHBoxLayout;
        auto* picker = new ColorPicker(this);
        picker->SetAlphaEnabled(true);
        picker->SetColor(QColor(46, 139, 87, 200));
        picker->SetOldColor(QColor(205, 92, 92));
        for (const QColor& recent : {QColor(0x1f, 0x77, 0xb4), QColor(0xff, 0x7f, 0x0e), QColor(0x2c, 0xa0, 0x2c),
                                     QColor(0xd6, 0x27, 0x28, 160), QColor(0x94, 0x67, 0xbd)})
            ColorPicker::AddRecentColor(recent);
        row->addWidget(Captioned(picker, Tr("Embedded picker with alpha; recent colours below")));

        auto* disabled = new ColorWheel(this);
        disabled->setFixedSize(120, 120);
        disabled->SetColor(QColor(70, 130, 180));
        disabled->setEnabled(false);
        row->addWidget(Captioned(disabled, Tr("Disabled wheel")), 0, Qt::AlignTop);

        auto* mirrored = new ColorWheel(this);
        mirrored->setFixedSize(120, 120);
        mirrored->SetColor(QColor(218, 165, 32));
        mirrored->setLayoutDirection(Qt::RightToLeft);
        row->addWidget(Captioned(mirrored, Tr("Right to left")), 0, Qt::AlignTop);
        row->addStretch(1);
        return row;
    }

    QHBoxLayout* Swatches()
    {
        auto* row = new QHBoxLayout;
        struct Sample
        {
            const char* caption;
            QColor color;
            bool enabled;
            bool focused;
            bool rightToLeft;
        };
        const Sample samples[] = {
            {QT_TRANSLATE_NOOP("ColorPage", "Opaque"), QColor(220, 20, 60), true, false, false},
            {QT_TRANSLATE_NOOP("ColorPage", "Translucent"), QColor(30, 144, 255, 110), true, false, false},
            {QT_TRANSLATE_NOOP("ColorPage", "No colour"), QColor(), true, false, false},
            {QT_TRANSLATE_NOOP("ColorPage", "Disabled"), QColor(60, 179, 113), false, false, false},
            {QT_TRANSLATE_NOOP("ColorPage", "Focused"), QColor(255, 165, 0), true, true, false},
            {QT_TRANSLATE_NOOP("ColorPage", "Right to left"), QColor(138, 43, 226, 110), true, false, true},
        };
        for (const Sample& sample : samples) {
            auto* swatch = new ColorSwatch(this);
            swatch->SetAlphaEnabled(true);
            swatch->SetColor(sample.color);
            swatch->setFixedSize(64, 24);
            swatch->setEnabled(sample.enabled);
            if (sample.rightToLeft)
                swatch->setLayoutDirection(Qt::RightToLeft);
            if (sample.focused) {
                mpFocusTarget = swatch;
                ShowFocusedInScreenshots(swatch);
            }
            row->addWidget(Captioned(swatch, Tr(sample.caption)));
        }
        row->addStretch(1);
        return row;
    }

    QHBoxLayout* Gradients()
    {
        auto* row = new QHBoxLayout;
        const QGradientStops sunset = {{0.0, QColor(25, 25, 112)},
                                       {0.4, QColor(199, 21, 133)},
                                       {0.7, QColor(255, 140, 0, 200)},
                                       {1.0, QColor(255, 215, 0, 60)}};
        for (int i = 0; i < 3; ++i) {
            auto* gradient = new GradientSwatch(this);
            gradient->SetStops(sunset);
            gradient->SetSelectedStop(2);
            gradient->setFixedWidth(230);
            const char* caption = QT_TRANSLATE_NOOP("ColorPage", "Click adds a stop, Delete removes one");
            if (i == 1) {
                gradient->setEnabled(false);
                caption = QT_TRANSLATE_NOOP("ColorPage", "Disabled");
            } else if (i == 2) {
                gradient->setLayoutDirection(Qt::RightToLeft);
                caption = QT_TRANSLATE_NOOP("ColorPage", "Right to left");
            }
            row->addWidget(Captioned(gradient, Tr(caption)));
        }
        row->addStretch(1);
        return row;
    }

    QHBoxLayout* Images()
    {
        auto* row = new QHBoxLayout;
        struct Sample
        {
            const char* caption;
            QString path;
            bool enabled;
        };
        const Sample samples[] = {
            {QT_TRANSLATE_NOOP("ColorPage", "Image"), SamplePath("marble.png"), true},
            {QT_TRANSLATE_NOOP("ColorPage", "SVG"), QStringLiteral(":/icons/HueWheel.svg"), true},
            {QT_TRANSLATE_NOOP("ColorPage", "No image"), QString(), true},
            {QT_TRANSLATE_NOOP("ColorPage", "Missing file"), SamplePath("moved-away.png"), true},
            {QT_TRANSLATE_NOOP("ColorPage", "Unreadable"), SamplePath("broken.png"), true},
            {QT_TRANSLATE_NOOP("ColorPage", "Disabled"), SamplePath("marble.png"), false},
        };
        for (const Sample& sample : samples) {
            auto* swatch = new ImageSwatch(this);
            swatch->setFixedSize(64, 64);
            swatch->SetFilePath(sample.path);
            swatch->setEnabled(sample.enabled);
            row->addWidget(Captioned(swatch, Tr(sample.caption)));
        }
        row->addWidget(new Divider(Qt::Vertical, this));
        for (const double scale : {0.5, 0.25}) {
            auto* texture = new TextureSwatch(this);
            texture->setFixedSize(64, 64);
            texture->SetTileScale(scale);
            texture->SetFloatingPreviewEnabled(true);
            texture->SetFilePath(SamplePath("marble.png"));
            row->addWidget(Captioned(texture, Tr("Texture, tiles of %1 %").arg(qRound(scale * 100))));
        }
        row->addStretch(1);
        return row;
    }

    QTemporaryDir mFiles;
    QWidget* mpFocusTarget = nullptr;
};

GalleryPageRegistration registration(450, QStringLiteral("Colour and images"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    area->setWidget(new ColorPage(area));
    return area;
});

} // namespace

#include <KvUICore/widgets/ColorPicker.h>

#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <functional>

namespace Kavrel::UICore {

namespace {

enum Field
{
    Red,
    Green,
    Blue,
    Hue,
    Saturation,
    Value,
    Alpha,
    FieldCount
};

struct FieldInfo
{
    const char* name;
    const char* label;
    const char* accessibleName;
    double maximum;
};

const FieldInfo kFields[FieldCount] = {
    {"red", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "R"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Red"), 255},
    {"green", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "G"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Green"), 255},
    {"blue", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "B"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Blue"), 255},
    {"hue", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "H"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Hue in degrees"), 359},
    {"saturation", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "S"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Saturation in percent"), 100},
    {"value", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "V"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Value in percent"), 100},
    {"alpha", QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "A"),
     QT_TRANSLATE_NOOP("Kavrel::UICore::ColorPicker", "Alpha"), 255},
};

constexpr int kFieldWidth = 56;

// While the eyedropper runs, every pointer and key event of the application
// comes here first: the pointer may be over any window, the picker's own
// children included.
class EyedropperFilter : public QObject
{
public:
    explicit EyedropperFilter(QObject* parent)
        : QObject(parent)
    {}

    std::function<void(const QPoint&, bool)> mPick;
    std::function<void()> mCancel;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseMove:
            mPick(static_cast<QMouseEvent*>(event)->globalPosition().toPoint(), false);
            return true;
        case QEvent::MouseButtonPress:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
                mPick(static_cast<QMouseEvent*>(event)->globalPosition().toPoint(), true);
            else
                mCancel();
            return true;
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return true;
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
                mCancel();
            return true;
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
            return true;
        default:
            return false;
        }
    }
};

} // namespace

class ColorPickerImp
{
public:
    explicit ColorPickerImp(ColorPicker* owner)
        : mpOwner(owner)
    {}

    enum class Source
    {
        Code,
        Wheel,
        Rgb,
        Hsv,
        AlphaInput,
        Hex,
        Other
    };

    void Build();
    DoubleSpinBox* NewField(Field field);

    // Shows color everywhere except in the part it came from, then announces it.
    void Apply(const QColor& color, Source source, bool announce, bool commit)
    {
        const QColor before = mColor;
        mColor = color;
        mbSyncing = true;
        if (source != Source::Wheel && source != Source::Hsv)
            mpWheel->SetColor(color);
        else if (source == Source::Hsv)
            mpWheel->SetColor(color), mpWheel->SetHsv(mHsvFromFields.h, mHsvFromFields.s, mHsvFromFields.v);
        SetField(Red, color.red());
        SetField(Green, color.green());
        SetField(Blue, color.blue());
        SetField(Hue, std::fmod(std::round(mpWheel->GetHue()), 360.0));
        SetField(Saturation, std::round(mpWheel->GetSaturation() * 100.0));
        SetField(Value, std::round(mpWheel->GetValue() * 100.0));
        SetField(Alpha, color.alpha());
        mpAlphaBar->SetColor(color);
        mpAlphaBar->SetAlpha(color.alpha());
        ShowHex();
        mpNewChip->SetColor(color);
        mbSyncing = false;
        if (color != before)
            Q_EMIT mpOwner->ColorUpdated(color);
        if (announce && color != before)
            Q_EMIT mpOwner->ColorChanged(color);
        if (commit)
            Commit();
    }

    void Commit()
    {
        if (mbRecordOnCommit)
            Internal::RecordRecentColor(mColor, this);
        Q_EMIT mpOwner->ColorCommitted(mColor);
    }

    void SetField(Field field, double value)
    {
        DoubleSpinBox* spin = mFields[field];
        if (spin->value() != value)
            spin->setValue(value);
    }

    void ShowAlphaIcon()
    {
        const QIcon icon = Internal::IconFromTheme(ThemeFileKey::checker_16Icon, QSize(16, 16));
        mpAlphaIcon->setPixmap(icon.pixmap(QSize(16, 16), mpOwner->devicePixelRatioF()));
    }

    void ShowHex() { mpHex->setText(Internal::HexColorText(mColor, mbAlphaEnabled)); }

    void OnFieldChanged(Field field)
    {
        if (mbSyncing)
            return;
        QColor color = mColor;
        switch (field) {
        case Red:
            color.setRed(int(mFields[Red]->value()));
            break;
        case Green:
            color.setGreen(int(mFields[Green]->value()));
            break;
        case Blue:
            color.setBlue(int(mFields[Blue]->value()));
            break;
        case Alpha:
            color.setAlpha(int(mFields[Alpha]->value()));
            break;
        case Hue:
        case Saturation:
        case Value: {
            // The field edited takes its new number; the others keep the wheel's full precision.
            mHsvFromFields = {mpWheel->GetHue(), mpWheel->GetSaturation(), mpWheel->GetValue()};
            if (field == Hue)
                mHsvFromFields.h = mFields[Hue]->value();
            else if (field == Saturation)
                mHsvFromFields.s = mFields[Saturation]->value() / 100.0;
            else
                mHsvFromFields.v = mFields[Value]->value() / 100.0;
            Apply(Internal::RgbOf(mHsvFromFields, mColor.alpha()), Source::Hsv, true, true);
            return;
        }
        default:
            return;
        }
        Apply(color, field == Alpha ? Source::AlphaInput : Source::Rgb, true, true);
    }

    void OnHexEdited()
    {
        QColor parsed;
        bool hasAlpha = false;
        if (!Internal::ParseHexColor(mpHex->text(), &parsed, &hasAlpha)) {
            ShowHex();
            return;
        }
        if (!hasAlpha || !mbAlphaEnabled)
            parsed.setAlpha(mColor.alpha());
        if (parsed == mColor) {
            ShowHex();
            return;
        }
        Apply(parsed, Source::Hex, true, true);
    }

    void UpdateEyedropperState()
    {
        const bool supported = ColorPicker::IsEyedropperSupported();
        mpEyedropper->setEnabled(supported && mpOwner->isEnabled());
        mpEyedropper->setToolTip(supported ? ColorPicker::tr("Pick a colour from the screen (Escape cancels)")
                                           : ColorPicker::tr("Picking a colour from the screen is not available "
                                                             "on this platform"));
    }

    void StopPicking()
    {
        if (!mbPicking)
            return;
        mbPicking = false;
        qApp->removeEventFilter(mpFilter);
        if (QWidget::mouseGrabber() == mpOwner)
            mpOwner->releaseMouse();
        if (QWidget::keyboardGrabber() == mpOwner)
            mpOwner->releaseKeyboard();
        mpOwner->unsetCursor();
    }

    ColorPicker* const mpOwner;
    ColorWheel* mpWheel = nullptr;
    AlphaBar* mpAlphaBar = nullptr;
    ColorChip* mpOldChip = nullptr;
    ColorChip* mpNewChip = nullptr;
    std::array<DoubleSpinBox*, FieldCount> mFields = {};
    Label* mpAlphaLabel = nullptr;
    QLabel* mpAlphaIcon = nullptr;
    NumericField* mpHex = nullptr;
    ToolButton* mpEyedropper = nullptr;
    RecentColorsRow* mpRecent = nullptr;
    EyedropperFilter* mpFilter = nullptr;
    QColor mColor = QColor(255, 0, 0);
    QColor mPickStartColor;
    Internal::Hsv mHsvFromFields;
    bool mbAlphaEnabled = false;
    bool mbSyncing = false;
    bool mbPicking = false;
    bool mbRecordOnCommit = true;
};

DoubleSpinBox* ColorPickerImp::NewField(Field field)
{
    auto* spin = new DoubleSpinBox(mpOwner, true);
    spin->setObjectName(QString::fromLatin1(kFields[field].name));
    spin->setAccessibleName(ColorPicker::tr(kFields[field].accessibleName));
    spin->SetDecimalPrecision(0);
    spin->setRange(0, kFields[field].maximum);
    spin->setWrapping(field == Hue);
    spin->setFixedWidth(kFieldWidth);
    QObject::connect(spin, &QDoubleSpinBox::valueChanged, mpOwner, [this, field] { OnFieldChanged(field); });
    return spin;
}

void ColorPickerImp::Build()
{
    mpWheel = new ColorWheel(mpOwner);
    mpWheel->setObjectName(QStringLiteral("wheel"));
    mpAlphaBar = new AlphaBar(mpOwner);
    mpAlphaBar->setObjectName(QStringLiteral("alphaBar"));
    mpOldChip = new ColorChip(mpOwner);
    mpOldChip->setObjectName(QStringLiteral("oldColor"));
    mpOldChip->setAccessibleName(ColorPicker::tr("Old colour"));
    mpOldChip->setCursor(Qt::PointingHandCursor);
    mpNewChip = new ColorChip(mpOwner);
    mpNewChip->setObjectName(QStringLiteral("newColor"));
    mpNewChip->setAccessibleName(ColorPicker::tr("New colour"));
    mpHex = new NumericField(mpOwner);
    mpHex->setObjectName(QStringLiteral("hex"));
    mpHex->setAccessibleName(ColorPicker::tr("Hex colour"));
    mpHex->setMaxLength(16);
    mpHex->setFixedWidth(2 * kFieldWidth + 20);
    mpEyedropper = new ToolButton(mpOwner);
    mpEyedropper->setObjectName(QStringLiteral("eyedropper"));
    mpEyedropper->setAccessibleName(ColorPicker::tr("Eyedropper"));
    mpEyedropper->SetIconThemeKey(ThemeFileKey::PickerIcon);
    mpRecent = new RecentColorsRow(mpOwner);
    mpRecent->setObjectName(QStringLiteral("recentColors"));
    for (int f = 0; f < FieldCount; ++f)
        mFields[f] = NewField(Field(f));

    auto* chips = new QHBoxLayout;
    chips->setSpacing(0);
    chips->addWidget(mpOldChip);
    chips->addWidget(mpNewChip);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    grid->addLayout(chips, 0, 0, 1, 4);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 2; ++column) {
            const Field field = Field(column * 3 + row);
            auto* label = new Label(ColorPicker::tr(kFields[field].label), mpOwner);
            label->setBuddy(mFields[field]);
            grid->addWidget(label, row + 1, column * 2);
            grid->addWidget(mFields[field], row + 1, column * 2 + 1);
        }
    }
    mpAlphaLabel = new Label(ColorPicker::tr(kFields[Alpha].label), mpOwner);
    mpAlphaLabel->setBuddy(mFields[Alpha]);
    grid->addWidget(mpAlphaLabel, 4, 0);
    grid->addWidget(mFields[Alpha], 4, 1);
    // The theme's transparency icon beside the alpha field.
    mpAlphaIcon = new QLabel(mpOwner);
    mpAlphaIcon->setObjectName(QStringLiteral("alphaIcon"));
    mpAlphaIcon->setToolTip(ColorPicker::tr(kFields[Alpha].accessibleName));
    grid->addWidget(mpAlphaIcon, 4, 2);
    ShowAlphaIcon();
    auto* hexRow = new QHBoxLayout;
    auto* hexLabel = new Label(QStringLiteral("#"), mpOwner);
    hexLabel->setBuddy(mpHex);
    hexRow->addWidget(hexLabel);
    hexRow->addWidget(mpHex);
    hexRow->addWidget(mpEyedropper);
    hexRow->addStretch(1);
    grid->addLayout(hexRow, 5, 0, 1, 4);
    grid->setRowStretch(6, 1);

    auto* left = new QVBoxLayout;
    left->addWidget(mpWheel, 1);
    left->addWidget(mpAlphaBar);

    auto* top = new QHBoxLayout;
    top->addLayout(left, 1);
    top->addLayout(grid);

    auto* layout = new QVBoxLayout(mpOwner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top, 1);
    layout->addWidget(mpRecent);

    QObject::connect(mpWheel, &ColorWheel::ColorChanged, mpOwner,
                     [this](const QColor& color) { Apply(color, Source::Wheel, true, false); });
    QObject::connect(mpWheel, &ColorWheel::ColorCommitted, mpOwner, [this] { Commit(); });
    QObject::connect(mpAlphaBar, &AlphaBar::AlphaChanged, mpOwner, [this](int alpha) {
        QColor color = mColor;
        color.setAlpha(alpha);
        Apply(color, Source::AlphaInput, true, false);
    });
    QObject::connect(mpAlphaBar, &AlphaBar::AlphaCommitted, mpOwner, [this] { Commit(); });
    QObject::connect(mpHex, &QLineEdit::editingFinished, mpOwner, [this] { OnHexEdited(); });
    QObject::connect(mpOldChip, &ColorChip::Clicked, mpOwner, [this] {
        if (mpOldChip->GetColor().isValid() && mpOldChip->GetColor() != mColor)
            Apply(mpOldChip->GetColor(), Source::Other, true, true);
    });
    QObject::connect(mpRecent, &RecentColorsRow::ColorChosen, mpOwner, [this](const QColor& color) {
        QColor chosen = color;
        if (!mbAlphaEnabled)
            chosen.setAlpha(255);
        Apply(chosen, Source::Other, true, true);
    });
    QObject::connect(mpEyedropper, &QToolButton::clicked, mpOwner, [this] { mpOwner->StartEyedropper(); });

    mpFilter = new EyedropperFilter(mpOwner);
    mpFilter->mPick = [this](const QPoint& global, bool take) { mpOwner->PickAt(global, take); };
    mpFilter->mCancel = [this] { mpOwner->CancelEyedropper(); };
}

ColorPicker::ColorPicker(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<ColorPickerImp>(this))
{
    Internal::InstallColorControlsAccessibility();
    new Internal::ThemedColor(this);
    mpImp->Build();
    SetAlphaEnabled(false);
    mpImp->Apply(mpImp->mColor, ColorPickerImp::Source::Code, false, false);
    mpImp->mpOldChip->SetColor(mpImp->mColor);
    mpImp->UpdateEyedropperState();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ColorPicker::OnThemeChanged);
}

ColorPicker::~ColorPicker()
{
    mpImp->StopPicking();
}

QColor ColorPicker::GetColor() const
{
    return mpImp->mColor;
}

void ColorPicker::SetColor(const QColor& color)
{
    if (!color.isValid())
        return;
    QColor next = color.toRgb();
    if (!mpImp->mbAlphaEnabled)
        next.setAlpha(255);
    mpImp->mpOldChip->SetColor(next);
    if (next == mpImp->mColor)
        return;
    mpImp->Apply(next, ColorPickerImp::Source::Code, false, false);
}

QColor ColorPicker::GetOldColor() const
{
    return mpImp->mpOldChip->GetColor();
}

void ColorPicker::SetOldColor(const QColor& color)
{
    mpImp->mpOldChip->SetColor(color);
}

bool ColorPicker::IsAlphaEnabled() const
{
    return mpImp->mbAlphaEnabled;
}

void ColorPicker::SetAlphaEnabled(bool enabled)
{
    mpImp->mbAlphaEnabled = enabled;
    mpImp->mpAlphaBar->setVisible(enabled);
    mpImp->mFields[Alpha]->setVisible(enabled);
    mpImp->mpAlphaLabel->setVisible(enabled);
    mpImp->mpAlphaIcon->setVisible(enabled);
    if (!enabled && mpImp->mColor.alpha() != 255) {
        QColor opaque = mpImp->mColor;
        opaque.setAlpha(255);
        mpImp->Apply(opaque, ColorPickerImp::Source::Code, false, false);
    }
    mpImp->ShowHex();
}

ColorWheel* ColorPicker::GetWheel() const
{
    return mpImp->mpWheel;
}

bool ColorPicker::IsEyedropperSupported()
{
    // Reading the screen needs a windowing system that allows it: X11,
    // Windows and macOS do; offscreen has no screen, and Wayland refuses.
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform == QLatin1String("windows") ||
           platform == QLatin1String("cocoa");
}

bool ColorPicker::IsPicking() const
{
    return mpImp->mbPicking;
}

void ColorPicker::StartEyedropper()
{
    if (mpImp->mbPicking || !IsEyedropperSupported() || !isEnabled())
        return;
    mpImp->mbPicking = true;
    mpImp->mPickStartColor = mpImp->mColor;
    qApp->installEventFilter(mpImp->mpFilter);
    // A pop-up holds the pointer already; elsewhere the picker takes it so that
    // the pointer is followed over other applications' windows too.
    if (!QApplication::activePopupWidget()) {
        grabMouse(Qt::CrossCursor);
        grabKeyboard();
    } else {
        setCursor(Qt::CrossCursor);
    }
}

void ColorPicker::CancelEyedropper()
{
    if (!mpImp->mbPicking)
        return;
    mpImp->StopPicking();
    if (mpImp->mPickStartColor.isValid() && mpImp->mPickStartColor != mpImp->mColor)
        mpImp->Apply(mpImp->mPickStartColor, ColorPickerImp::Source::Other, true, false);
}

void ColorPicker::PickAt(const QPoint& globalPosition, bool take)
{
    if (!mpImp->mbPicking)
        return;
    QScreen* screen = QGuiApplication::screenAt(globalPosition);
    QColor color;
    if (screen) {
        const QPoint local = globalPosition - screen->geometry().topLeft();
        const QImage pixel = screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage();
        if (!pixel.isNull())
            color = pixel.pixelColor(0, 0);
    }
    if (color.isValid()) {
        color.setAlpha(mpImp->mColor.alpha());
        if (color != mpImp->mColor)
            mpImp->Apply(color, ColorPickerImp::Source::Other, true, false);
    }
    if (take) {
        mpImp->StopPicking();
        mpImp->Commit();
    }
}

QList<QColor> ColorPicker::GetRecentColors()
{
    return Internal::RecentColors();
}

void ColorPicker::AddRecentColor(const QColor& color)
{
    Internal::RecordRecentColor(color, nullptr);
}

void ColorPicker::ClearRecentColors()
{
    Internal::ClearRecentColors();
}

void ColorPicker::OnThemeChanged()
{
    mpImp->ShowAlphaIcon();
    Internal::RepaintAfterThemeChange(this);
}

void ColorPicker::SetRecordsOnCommit(bool records)
{
    mpImp->mbRecordOnCommit = records;
}

void ColorPicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && mpImp->mbPicking) {
        CancelEyedropper();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void ColorPicker::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (!isEnabled())
            CancelEyedropper();
        mpImp->UpdateEyedropperState();
    }
    QWidget::changeEvent(event);
}

} // namespace Kavrel::UICore

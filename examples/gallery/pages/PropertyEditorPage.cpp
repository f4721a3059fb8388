// A property editor built from the UI definition data/MaterialEditor.xml and
// bound to a sample material. Editing a control changes the material (its
// properties are listed at the right); the buttons change the material from
// code and the controls follow. The labels come from XLIFF tables, one per
// language of the switcher.
#include "GalleryPage.h"

#include <KvUICore/propertyeditor/ButtonElement.h>
#include <KvUICore/propertyeditor/ComboBoxElement.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/SliderElement.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/Slider.h>

#include <KvCoreUnits/UnitsTypes.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QMetaProperty>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Kavrel::UICore;
namespace units = kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

namespace {

QString PageText(const char* text)
{
    return QCoreApplication::translate("PropertyEditorPage", text);
}

// The object the page edits. Every property notifies through Changed, as
// many hosts' objects do; the summary is derived from the others.
class Material : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name READ GetName WRITE SetName NOTIFY Changed)
    Q_PROPERTY(int ColourMode READ GetColourMode WRITE SetColourMode NOTIFY Changed)
    Q_PROPERTY(QColor Colour READ GetColour WRITE SetColour NOTIFY Changed)
    Q_PROPERTY(QStringList Finishes READ GetFinishes CONSTANT)
    Q_PROPERTY(QString Finish READ GetFinish WRITE SetFinish NOTIFY Changed)
    Q_PROPERTY(double Roughness READ GetRoughness WRITE SetRoughness NOTIFY Changed)
    Q_PROPERTY(double Metalness READ GetMetalness WRITE SetMetalness NOTIFY Changed)
    Q_PROPERTY(bool ThicknessEnabled READ IsThicknessEnabled WRITE SetThicknessEnabled NOTIFY Changed)
    Q_PROPERTY(double Thickness READ GetThickness WRITE SetThickness NOTIFY Changed)
    Q_PROPERTY(bool CoatingEnabled READ IsCoatingEnabled WRITE SetCoatingEnabled NOTIFY Changed)
    Q_PROPERTY(double CoatingAngle READ GetCoatingAngle WRITE SetCoatingAngle NOTIFY Changed)
    Q_PROPERTY(bool CoatingGlossy READ IsCoatingGlossy WRITE SetCoatingGlossy NOTIFY Changed)
    Q_PROPERTY(QString Summary READ GetSummary NOTIFY Changed)

public:
    explicit Material(QObject* parent)
        : QObject(parent)
    {
        Reset();
    }

    void Reset()
    {
        msName = QStringLiteral("Brushed steel");
        miColourMode = 0;
        mColour = QColor(0xb4, 0xb4, 0xb9);
        msFinish = QStringLiteral("Satin");
        mdRoughness = 0.35;
        mdMetalness = 0.9;
        mbThicknessEnabled = true;
        mdThickness = 2.5;
        mbCoatingEnabled = false;
        mdCoatingAngle = 45.5041666666667;
        mbCoatingGlossy = true;
        emit Changed();
    }

    void ApplyCopperPreset()
    {
        msName = QStringLiteral("Brushed copper");
        miColourMode = 2;
        mColour = QColor(0xb8, 0x73, 0x33);
        msFinish = QStringLiteral("Gloss");
        mdRoughness = 0.18;
        mdMetalness = 1.0;
        mbThicknessEnabled = false;
        mdThickness = 12.7;
        mbCoatingEnabled = true;
        mdCoatingAngle = 30.25;
        mbCoatingGlossy = false;
        emit Changed();
    }

    QString GetName() const { return msName; }
    void SetName(const QString& name) { Set(msName, name); }
    int GetColourMode() const { return miColourMode; }
    void SetColourMode(int mode) { Set(miColourMode, mode); }
    QColor GetColour() const { return mColour; }
    void SetColour(const QColor& colour) { Set(mColour, colour); }
    QStringList GetFinishes() const
    {
        return {QStringLiteral("Matte"), QStringLiteral("Satin"), QStringLiteral("Gloss")};
    }
    QString GetFinish() const { return msFinish; }
    void SetFinish(const QString& finish) { Set(msFinish, finish); }
    double GetRoughness() const { return mdRoughness; }
    void SetRoughness(double value) { Set(mdRoughness, value); }
    double GetMetalness() const { return mdMetalness; }
    void SetMetalness(double value) { Set(mdMetalness, value); }
    bool IsThicknessEnabled() const { return mbThicknessEnabled; }
    void SetThicknessEnabled(bool enabled) { Set(mbThicknessEnabled, enabled); }
    double GetThickness() const { return mdThickness; }
    void SetThickness(double millimetres) { Set(mdThickness, millimetres); }
    bool IsCoatingEnabled() const { return mbCoatingEnabled; }
    void SetCoatingEnabled(bool enabled) { Set(mbCoatingEnabled, enabled); }
    double GetCoatingAngle() const { return mdCoatingAngle; }
    void SetCoatingAngle(double degrees) { Set(mdCoatingAngle, degrees); }
    bool IsCoatingGlossy() const { return mbCoatingGlossy; }
    void SetCoatingGlossy(bool glossy) { Set(mbCoatingGlossy, glossy); }

    QString GetSummary() const
    {
        static const char* const modes[] = {QT_TRANSLATE_NOOP("PropertyEditorPage", "solid"),
                                            QT_TRANSLATE_NOOP("PropertyEditorPage", "gradient"),
                                            QT_TRANSLATE_NOOP("PropertyEditorPage", "texture")};
        const QString mode =
            miColourMode >= 0 && miColourMode < 3 ? PageText(modes[miColourMode]) : QStringLiteral("?");
        return PageText("%1, %2 colour, %3 finish, %4 % rough")
            .arg(msName, mode, msFinish.toLower())
            .arg(qRound(mdRoughness * 100));
    }

    // The properties as the host sees them, one per line.
    QString Describe() const
    {
        QString text;
        const QMetaObject* meta = metaObject();
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (QLatin1String(property.name()) == QLatin1String("Summary") ||
                QLatin1String(property.name()) == QLatin1String("Finishes"))
                continue;
            const QVariant value = property.read(this);
            const QString shown =
                value.typeId() == QMetaType::Double ? QString::number(value.toDouble(), 'g', 6) : value.toString();
            text += QStringLiteral("%1 = %2\n").arg(QLatin1String(property.name()), shown);
        }
        return text.trimmed();
    }

Q_SIGNALS:
    void Changed();

private:
    template <typename T> void Set(T& field, const T& value)
    {
        if (field == value)
            return;
        field = value;
        emit Changed();
    }

    QString msName;
    int miColourMode = 0;
    QColor mColour;
    QString msFinish;
    double mdRoughness = 0.0;
    double mdMetalness = 0.0;
    bool mbThicknessEnabled = false;
    double mdThickness = 0.0;
    bool mbCoatingEnabled = false;
    double mdCoatingAngle = 0.0;
    bool mbCoatingGlossy = false;
};

struct Language
{
    const char* title;
    const char* table;
};

const Language kLanguages[] = {
    {"English", ":/gallery/MaterialEditor_en.xlf"},
    {"Deutsch", ":/gallery/MaterialEditor_de.xlf"},
    {"Français", ":/gallery/MaterialEditor_fr.xlf"},
};

// Units the definition doesn't describe: the two thickness sliders show the
// one value in millimetres and in inches, the angle in degrees, minutes and
// seconds.
void SetUpUnits(const QString& id, QWidget* widget)
{
    auto* slider = qobject_cast<Slider*>(widget);
    if (!slider)
        return;
    slider->SetDeferUpdateForUnits(true);
    if (id == QLatin1String("thicknessMm") || id == QLatin1String("thicknessIn")) {
        slider->SetUnitType(Units::eMillimeter);
        slider->SetNumberFormatId(units::kNumberFormatDecimal);
        const bool inches = id == QLatin1String("thicknessIn");
        slider->SetDecimalPrecision(inches ? 3 : 2);
        slider->SetUnitSymbolType(inches ? units::kSymbolInch : units::kSymbolMillimeter);
        slider->SetUnitSymbolDisplayEnabled(true);
    } else if (id == QLatin1String("angle")) {
        slider->SetUnitType(Units::eDegree);
        slider->SetNumberFormatId(units::kNumberFormatDecimal);
        slider->SetDecimalPrecision(4);
        slider->SetUnitSymbolType(units::kSymbolDegreesMinutesSeconds);
        slider->SetUnitSymbolDisplayEnabled(true);
    }
    slider->SetDeferUpdateForUnits(false);
    slider->UpdateForUnits();
}

class PropertyEditorPage : public QWidget
{
public:
    explicit PropertyEditorPage(QWidget* parent)
        : QWidget(parent)
        , mpMaterial(new Material(this))
    {
        auto* layout = new QVBoxLayout(this);

        auto* bar = new QHBoxLayout();
        bar->addWidget(new Label(PageText("Language of the labels:"), this));
        mpLanguages = new QComboBox(this);
        for (const Language& language : kLanguages)
            mpLanguages->addItem(QString::fromUtf8(language.title), QString::fromLatin1(language.table));
        bar->addWidget(mpLanguages);
        bar->addStretch(1);
        layout->addLayout(bar);

        auto* columns = new QHBoxLayout();
        mpScroll = new QScrollArea(this);
        mpScroll->setWidgetResizable(true);
        mpScroll->setFrameShape(QFrame::NoFrame);
        columns->addWidget(mpScroll, 3);

        auto* side = new QVBoxLayout();
        auto* heading = new Label(PageText("The material object"), this);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        side->addWidget(heading);
        mpState = new Label(this);
        mpState->setWordWrap(true);
        mpState->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        side->addWidget(mpState);
        mpLastEdit = new Label(this);
        mpLastEdit->setWordWrap(true);
        side->addWidget(mpLastEdit);
        side->addStretch(1);
        columns->addLayout(side, 2);
        layout->addLayout(columns, 1);

        connect(mpMaterial, &Material::Changed, this, [this] { mpState->setText(mpMaterial->Describe()); });
        mpState->setText(mpMaterial->Describe());
        mpLastEdit->setText(PageText("Edit a control, or press a button in Actions."));

        // The system's language when the gallery has its table.
        const QString language = QLocale().name().left(2);
        for (int i = 0; i < mpLanguages->count(); ++i) {
            if (mpLanguages->itemData(i).toString().contains(QStringLiteral("_%1.").arg(language)))
                mpLanguages->setCurrentIndex(i);
        }
        connect(mpLanguages, &QComboBox::currentIndexChanged, this, [this] { BuildEditor(); });
        BuildEditor();
    }

private:
    // Labels are read when a definition loads, so another language loads the
    // definition again into a new editor.
    void BuildEditor()
    {
        auto* editor = new PropertyEditor();
        editor->SetContextObject(mpMaterial);
        const QString table = mpLanguages->currentData().toString();
        if (!editor->LoadUIFile(QStringLiteral(":/gallery/MaterialEditor.xml"), QString(), table))
            mpLastEdit->setText(PageText("The UI definition could not be loaded completely."));

        for (const char* id : {"thicknessMm", "thicknessIn", "angle"}) {
            auto* slider = qobject_cast<SliderElement*>(editor->FindElement(QString::fromLatin1(id)));
            if (slider) {
                connect(slider, &PropertyEditorElement::WidgetCreated, this,
                        [id](QWidget* widget) { SetUpUnits(QString::fromLatin1(id), widget); });
            }
        }
        // The colour mode is an index: the combo box matches the items' values.
        if (auto* mode = qobject_cast<ComboBoxElement*>(editor->FindElement(QStringLiteral("colourMode"))))
            mode->SetCurrentRole(Qt::UserRole);
        if (auto* reset = qobject_cast<ButtonElement*>(editor->FindElement(QStringLiteral("reset"))))
            connect(reset, &ButtonElement::ButtonClicked, mpMaterial, &Material::Reset);
        if (auto* preset = qobject_cast<ButtonElement*>(editor->FindElement(QStringLiteral("preset"))))
            connect(preset, &ButtonElement::ButtonClicked, mpMaterial, &Material::ApplyCopperPreset);
        connect(editor, &PropertyEditor::PropertyModified, this,
                [this](PropertyEditorElement* element, const QString& attribute) {
                    mpLastEdit->setText(PageText("Last edit: %1 of element \"%2\"").arg(attribute, element->GetId()));
                });

        delete mpScroll->takeWidget();
        mpScroll->setWidget(editor);
        mpEditor = editor;
    }

    Material* mpMaterial;
    QComboBox* mpLanguages = nullptr;
    QScrollArea* mpScroll = nullptr;
    QPointer<PropertyEditor> mpEditor;
    Label* mpState = nullptr;
    Label* mpLastEdit = nullptr;
};

const GalleryPageRegistration registration(500, QStringLiteral("Property editor"),
                                           [](QWidget* parent) { return new PropertyEditorPage(parent); });

} // namespace

#include "PropertyEditorPage.moc"

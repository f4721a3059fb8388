#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/ButtonElement.h>
#include <KvUICore/propertyeditor/CheckBoxElement.h>
#include <KvUICore/propertyeditor/ComboBoxElement.h>
#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/LabelElement.h>
#include <KvUICore/propertyeditor/ListModel.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PanelElement.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/RadioButtonGroupElement.h>
#include <KvUICore/propertyeditor/SliderElement.h>
#include <KvUICore/propertyeditor/TextBoxElement.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

// The object a page is bound to; every property notifies.
class Material : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name READ GetName WRITE SetName NOTIFY Changed)
    Q_PROPERTY(bool Enabled READ IsEnabled WRITE SetEnabled NOTIFY Changed)
    Q_PROPERTY(bool Collapsed READ IsCollapsed WRITE SetCollapsed NOTIFY Changed)
    Q_PROPERTY(double Roughness READ GetRoughness WRITE SetRoughness NOTIFY Changed)
    Q_PROPERTY(int Mode READ GetMode WRITE SetMode NOTIFY Changed)
    Q_PROPERTY(QString ModeName READ GetModeName WRITE SetModeName NOTIFY Changed)
    Q_PROPERTY(QStringList Choices READ GetChoices WRITE SetChoices NOTIFY Changed)
    Q_PROPERTY(QString Hint READ GetHint WRITE SetHint NOTIFY Changed)
    Q_PROPERTY(int Precision READ GetPrecision WRITE SetPrecision NOTIFY Changed)
    Q_PROPERTY(double Clamped READ GetClamped WRITE SetClamped NOTIFY Changed)

public:
    QString GetName() const { return msName; }
    void SetName(const QString& name) { Set(msName, name); }
    bool IsEnabled() const { return mbEnabled; }
    void SetEnabled(bool enabled) { Set(mbEnabled, enabled); }
    bool IsCollapsed() const { return mbCollapsed; }
    void SetCollapsed(bool collapsed) { Set(mbCollapsed, collapsed); }
    double GetRoughness() const { return mdRoughness; }
    void SetRoughness(double roughness) { Set(mdRoughness, roughness); }
    int GetMode() const { return miMode; }
    void SetMode(int mode) { Set(miMode, mode); }
    QString GetModeName() const { return msModeName; }
    void SetModeName(const QString& name) { Set(msModeName, name); }
    QStringList GetChoices() const { return mChoices; }
    void SetChoices(const QStringList& choices) { Set(mChoices, choices); }
    QString GetHint() const { return msHint; }
    void SetHint(const QString& hint) { Set(msHint, hint); }
    int GetPrecision() const { return miPrecision; }
    void SetPrecision(int precision) { Set(miPrecision, precision); }
    double GetClamped() const { return mdClamped; }
    // Refuses values above 10.
    void SetClamped(double value) { Set(mdClamped, qMin(value, 10.0)); }

    int miWrites = 0;

Q_SIGNALS:
    void Changed();

private:
    template <typename T> void Set(T& field, const T& value)
    {
        ++miWrites;
        if (field == value)
            return;
        field = value;
        emit Changed();
    }

    QString msName = QStringLiteral("Steel");
    bool mbEnabled = true;
    bool mbCollapsed = false;
    double mdRoughness = 0.25;
    int miMode = 1;
    QString msModeName = QStringLiteral("Metal");
    QStringList mChoices{QStringLiteral("Matte"), QStringLiteral("Satin"), QStringLiteral("Gloss")};
    QString msHint = QStringLiteral("A hint");
    int miPrecision = 3;
    double mdClamped = 5.0;
};

class tst_Elements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CoreUIManager::Initialize(nullptr);
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void init()
    {
        mMessages.clear();
        Internal::SetDiagnosticHook([this](const QString& text) { mMessages.append(text); });
        mpMaterial = std::make_unique<Material>();
        mpEditor = std::make_unique<PropertyEditor>();
        mpEditor->resize(500, 600);
        mpEditor->SetContextObject(mpMaterial.get());
    }

    void cleanup()
    {
        mpEditor.reset();
        mpMaterial.reset();
        Internal::SetDiagnosticHook({});
    }

    void checkBoxBothWays()
    {
        Load(QStringLiteral("<CheckBoxElement Id=\"c\" Label=\"Enabled\" IsChecked=\"Binding(Enabled)\"/>"));
        auto* element = Find<CheckBoxElement>("c");
        auto* box = qobject_cast<CheckBox*>(element->GetWidget());
        QVERIFY(box);
        QCOMPARE(box->text(), QStringLiteral("Enabled"));
        QVERIFY(box->isChecked());

        QSignalSpy valueSpy(element, &PropertyEditorElement::ValueChanged);
        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        mpMaterial->SetEnabled(false);
        QVERIFY(!box->isChecked());
        QVERIFY(!element->IsChecked());
        // A change from the source is no edit.
        QCOMPARE(valueSpy.count(), 0);
        QCOMPARE(modifiedSpy.count(), 0);

        box->click();
        QVERIFY(mpMaterial->IsEnabled());
        QCOMPARE(valueSpy.count(), 1);
        QCOMPARE(modifiedSpy.count(), 1);
        QCOMPARE(modifiedSpy.first().at(0).value<PropertyEditorElement*>(), element);
        QCOMPARE(modifiedSpy.first().at(1).toString(), QStringLiteral("IsChecked"));

        // The source setting the value it has changes nothing.
        const int writes = mpMaterial->miWrites;
        mpMaterial->SetEnabled(true);
        QCOMPARE(valueSpy.count(), 1);
        QCOMPARE(mpMaterial->miWrites, writes + 1);
    }

    void textBoxBothWays()
    {
        Load(
            QStringLiteral("<TextBoxElement Id=\"t\" LabelPlacement=\"Left\" Label=\"Name\" Text=\"Binding(Name)\"/>"));
        auto* element = Find<TextBoxElement>("t");
        auto* box = qobject_cast<TextBox*>(element->GetWidget());
        QVERIFY(box);
        QCOMPARE(box->GetText(), QStringLiteral("Steel"));
        QCOMPARE(element->GetLabelWidget()->text(), QStringLiteral("Name"));

        mpMaterial->SetName(QStringLiteral("Copper"));
        QCOMPARE(box->GetText(), QStringLiteral("Copper"));
        QCOMPARE(element->GetText(), QStringLiteral("Copper"));

        QSignalSpy valueSpy(element, &PropertyEditorElement::ValueChanged);
        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        box->GetLineEdit()->setFocus();
        box->GetLineEdit()->end(false);
        QTest::keyClicks(box->GetLineEdit(), QStringLiteral(" 2"));
        QCOMPARE(mpMaterial->GetName(), QStringLiteral("Copper 2"));
        QCOMPARE(valueSpy.count(), 2);
        QCOMPARE(modifiedSpy.count(), 2);
        // Writing back doesn't disturb the typing.
        QCOMPARE(box->GetLineEdit()->cursorPosition(), 8);
    }

    void labelFollowsSource()
    {
        Load(QStringLiteral(
            "<LabelElement Id=\"l\" Text=\"Binding(Name)\"/><LabelElement Id=\"fixed\" Text=\"Plain\"/>"));
        auto* label = qobject_cast<Label*>(Find<LabelElement>("l")->GetWidget());
        QVERIFY(label);
        QVERIFY(label->wordWrap());
        QCOMPARE(label->text(), QStringLiteral("Steel"));
        mpMaterial->SetName(QStringLiteral("Brass"));
        QCOMPARE(label->text(), QStringLiteral("Brass"));
        QCOMPARE(qobject_cast<Label*>(Find<LabelElement>("fixed")->GetWidget())->text(), QStringLiteral("Plain"));
    }

    void sliderBothWaysWithinItsRange()
    {
        Load(QStringLiteral("<SliderElement Id=\"s\" Minimum=\"0\" Maximum=\"1\" Number=\"Binding(Roughness)\"/>"));
        auto* element = Find<SliderElement>("s");
        auto* slider = qobject_cast<Slider*>(element->GetWidget());
        QVERIFY(slider);
        QCOMPARE(slider->GetMinimum(), 0.0);
        QCOMPARE(slider->GetMaximum(), 1.0);
        QCOMPARE(slider->WidgetUnits::GetValue(), 0.25);

        mpMaterial->SetRoughness(0.5);
        QCOMPARE(slider->WidgetUnits::GetValue(), 0.5);
        QCOMPARE(element->GetValue(), 0.5);

        QSignalSpy valueSpy(element, &PropertyEditorElement::ValueChanged);
        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        slider->GetSliderControl()->setFocus();
        QTest::keyClick(slider->GetSliderControl(), Qt::Key_Right);
        QCOMPARE(mpMaterial->GetRoughness(), 0.51);
        QCOMPARE(valueSpy.count(), 1);
        QCOMPARE(modifiedSpy.count(), 1);
        QCOMPARE(modifiedSpy.first().at(1).toString(), QStringLiteral("Number"));

        // Precision can only come from a binding.
        element->SetPrecision(new Binding(mpMaterial.get(), QStringLiteral("Precision")));
        QCOMPARE(slider->GetDecimalPrecision(), 3);
        mpMaterial->SetPrecision(1);
        QCOMPARE(slider->GetDecimalPrecision(), 1);

        // A value outside the slider's initial 0..100 must survive the build.
        Load(QStringLiteral("<SliderElement Id=\"r\" Number=\"250\" Minimum=\"100\" Maximum=\"500\"/>"));
        auto* ranged = qobject_cast<Slider*>(Find<SliderElement>("r")->GetWidget());
        QCOMPARE(ranged->GetMinimum(), 100.0);
        QCOMPARE(ranged->WidgetUnits::GetValue(), 250.0);
        QCOMPARE(Find<SliderElement>("r")->GetValue(), 250.0);

        // A value the source refuses is replaced by the one it kept (10 at most).
        Load(QStringLiteral("<SliderElement Id=\"c\" Minimum=\"0\" Maximum=\"20\" Number=\"Binding(Clamped)\"/>"));
        auto* clamped = qobject_cast<Slider*>(Find<SliderElement>("c")->GetWidget());
        QCOMPARE(clamped->WidgetUnits::GetValue(), 5.0);
        clamped->SetDecimalPrecision(0);
        clamped->GetSliderControl()->setFocus();
        clamped->GetSliderControl()->setValue(15);
        QCOMPARE(mpMaterial->GetClamped(), 10.0);
        QCOMPARE(clamped->WidgetUnits::GetValue(), 10.0);
    }

    void comboBoxFixedItemsByValue()
    {
        Load(QStringLiteral("<ComboBoxElement Id=\"c\" Current=\"Binding(Mode)\">"
                            "<Item Text=\"Dielectric\" Value=\"0\"/><Item Text=\"Metal\" Value=\"1\"/>"
                            "<Item Text=\"Glass\" Value=\"2\"/></ComboBoxElement>"));
        auto* element = Find<ComboBoxElement>("c");
        element->SetCurrentRole(Qt::UserRole);
        auto* combo = qobject_cast<QComboBox*>(element->GetWidget());
        QVERIFY(combo);
        QCOMPARE(combo->count(), 3);
        QVERIFY(qobject_cast<ListModel*>(element->GetItems()));
        QCOMPARE(combo->itemText(2), QStringLiteral("Glass"));
        QCOMPARE(combo->currentIndex(), 1);

        mpMaterial->SetMode(2);
        QCOMPARE(combo->currentIndex(), 2);
        mpMaterial->SetMode(7);
        QCOMPARE(combo->currentIndex(), -1);

        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        combo->setCurrentIndex(0);
        QCOMPARE(mpMaterial->GetMode(), 0);
        QCOMPARE(modifiedSpy.count(), 1);
        QCOMPARE(element->GetCurrentIndex(), 0);
    }

    void comboBoxItemsFromSourceList()
    {
        Load(QStringLiteral("<ComboBoxElement Id=\"c\" Items=\"Binding(Choices)\" Current=\"Binding(ModeName)\"/>"));
        mpMaterial->SetModeName(QStringLiteral("Satin"));
        auto* combo = qobject_cast<QComboBox*>(Find<ComboBoxElement>("c")->GetWidget());
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->currentText(), QStringLiteral("Satin"));

        // New items keep the current item chosen and write nothing back.
        QSignalSpy valueSpy(Find<ComboBoxElement>("c"), &PropertyEditorElement::ValueChanged);
        mpMaterial->SetChoices({QStringLiteral("Rough"), QStringLiteral("Satin")});
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->currentText(), QStringLiteral("Satin"));
        QCOMPARE(valueSpy.count(), 0);
        QCOMPARE(mpMaterial->GetModeName(), QStringLiteral("Satin"));

        combo->setCurrentIndex(0);
        QCOMPARE(mpMaterial->GetModeName(), QStringLiteral("Rough"));

        // A literal list of items separated by semicolons.
        Load(QStringLiteral("<ComboBoxElement Id=\"d\" Items=\"One; Two;Three\" Current=\"Two\"/>"));
        auto* literal = qobject_cast<QComboBox*>(Find<ComboBoxElement>("d")->GetWidget());
        QCOMPARE(literal->count(), 3);
        QCOMPARE(literal->currentText(), QStringLiteral("Two"));
    }

    void radioButtonsBothWays()
    {
        Load(QStringLiteral(
            "<RadioButtonGroupElement Id=\"r\" Items=\"Binding(Choices)\" Current=\"Binding(ModeName)\"/>"));
        auto* element = Find<RadioButtonGroupElement>("r");
        QButtonGroup* group = element->GetButtonGroup();
        QVERIFY(group);
        QCOMPARE(group->buttons().size(), 3);
        QCOMPARE(group->button(2)->text(), QStringLiteral("Gloss"));
        QCOMPARE(group->checkedId(), -1);

        mpMaterial->SetModeName(QStringLiteral("Gloss"));
        QCOMPARE(group->checkedId(), 2);

        QSignalSpy valueSpy(element, &PropertyEditorElement::ValueChanged);
        group->button(0)->click();
        QCOMPARE(mpMaterial->GetModeName(), QStringLiteral("Matte"));
        // Only the newly checked button reports.
        QCOMPARE(valueSpy.count(), 1);

        mpMaterial->SetChoices({QStringLiteral("Matte"), QStringLiteral("Mirror")});
        QCOMPARE(group->buttons().size(), 2);
        QCOMPARE(group->checkedId(), 0);
        mpMaterial->SetModeName(QStringLiteral("None of them"));
        QCOMPARE(group->checkedId(), -1);
    }

    void buttonBothWays()
    {
        Load(QStringLiteral(
            "<ButtonElement Id=\"b\" Label=\"Lock\" IsCheckable=\"True\" IsChecked=\"Binding(Enabled)\"/>"
            "<ButtonElement Id=\"plain\" Label=\"Reset\"/>"));
        auto* element = Find<ButtonElement>("b");
        auto* button = qobject_cast<PushButton*>(element->GetWidget());
        QVERIFY(button);
        QCOMPARE(button->text(), QStringLiteral("Lock"));
        QVERIFY(button->isCheckable());
        QVERIFY(button->isChecked());

        mpMaterial->SetEnabled(false);
        QVERIFY(!button->isChecked());

        QSignalSpy clickSpy(element, &ButtonElement::ButtonClicked);
        button->click();
        QVERIFY(mpMaterial->IsEnabled());
        QCOMPARE(clickSpy.count(), 1);

        auto* plain = Find<ButtonElement>("plain");
        QSignalSpy plainSpy(plain, &ButtonElement::ButtonClicked);
        QSignalSpy plainValueSpy(plain, &PropertyEditorElement::ValueChanged);
        qobject_cast<PushButton*>(plain->GetWidget())->click();
        QCOMPARE(plainSpy.count(), 1);
        QVERIFY(!plain->GetWidget()->property("checkable").toBool());
        QCOMPARE(plainValueSpy.count(), 0);
    }

    void groupBothWays()
    {
        const QString document = QStringLiteral(
            "<E><PageElement><GroupElement Id=\"g\" Label=\"Coating\" IsCheckable=\"True\" "
            "IsChecked=\"Binding(Enabled)\" "
            "IsCollapsed=\"Binding(Collapsed)\"><TextBoxElement Id=\"t\"/></GroupElement></PageElement></E>");
        QVERIFY(mpEditor->LoadUI(document));
        mpEditor->grab();
        auto* group = Find<GroupElement>("g");
        RolloutContainer* rollout = group->GetRolloutContainer();
        QVERIFY(rollout);
        QCOMPARE(rollout->GetTitle(), QStringLiteral("Coating"));
        QVERIFY(rollout->IsCheckable());
        QVERIFY(rollout->IsChecked());
        QVERIFY(!rollout->IsCollapsed());

        mpMaterial->SetEnabled(false);
        QVERIFY(!rollout->IsChecked());
        mpMaterial->SetCollapsed(true);
        QVERIFY(rollout->IsCollapsed());

        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        rollout->SetIsCollapsed(false);
        QVERIFY(!mpMaterial->IsCollapsed());
        rollout->SetChecked(true);
        QVERIFY(mpMaterial->IsEnabled());
        QCOMPARE(modifiedSpy.count(), 2);
        QCOMPARE(modifiedSpy.at(0).at(1).toString(), QStringLiteral("IsCollapsed"));
        QCOMPARE(modifiedSpy.at(1).at(1).toString(), QStringLiteral("IsChecked"));
    }

    void collapsedGroupHidesItsGrid()
    {
        mpMaterial->SetCollapsed(true);
        QVERIFY(
            mpEditor->LoadUI(QStringLiteral("<E><PageElement><GroupElement Id=\"g\" IsCollapsed=\"Binding(Collapsed)\">"
                                            "<TextBoxElement Id=\"t\"/></GroupElement></PageElement></E>")));
        QSignalSpy valueSpy(Find<GroupElement>("g"), &PropertyEditorElement::ValueChanged);
        mpEditor->show();
        QVERIFY(QTest::qWaitForWindowExposed(mpEditor.get()));
        QTRY_VERIFY(Find<GroupElement>("g")->GetGridLayout());
        QWidget* grid = Find<GroupElement>("g")->GetGridLayout()->parentWidget();
        QVERIFY(Find<GroupElement>("g")->GetRolloutContainer()->IsCollapsed());
        QVERIFY(grid->isHidden());
        // Building is no edit.
        QCOMPARE(valueSpy.count(), 0);
        mpMaterial->SetCollapsed(false);
        QTRY_VERIFY(grid->isVisible());
        QVERIFY(Find<TextBoxElement>("t")->GetWidget()->isVisible());
    }

    void commonAttributesFollowSource()
    {
        Load(QStringLiteral(
            "<TextBoxElement Id=\"t\" Label=\"Name\" LabelPlacement=\"Left\" IsEnabled=\"Binding(Enabled)\" "
            "IsVisible=\"Binding(Collapsed)\" Tooltip=\"Binding(Hint)\"/>"));
        mpEditor->show();
        auto* element = Find<TextBoxElement>("t");
        QWidget* widget = element->GetWidget();
        Label* label = element->GetLabelWidget();
        QVERIFY(widget->isEnabled());
        QVERIFY(widget->isHidden());
        QVERIFY(label->isHidden());
        QCOMPARE(widget->toolTip(), QStringLiteral("A hint"));

        mpMaterial->SetEnabled(false);
        QVERIFY(!widget->isEnabled());
        QVERIFY(!label->isEnabled());
        mpMaterial->SetCollapsed(true);
        QVERIFY(!widget->isHidden());
        QVERIFY(!label->isHidden());
        mpMaterial->SetHint(QStringLiteral("Another hint"));
        QCOMPARE(widget->toolTip(), QStringLiteral("Another hint"));
        QCOMPARE(label->GetReservedToolTip(), QStringLiteral("Another hint"));
    }

    void elementsBindToOtherElements()
    {
        // The group names a check box that is defined after it.
        const QString document = QStringLiteral(
            "<E><PageElement><GroupElement Id=\"details\" IsEnabled=\"Binding(useDetails.IsChecked)\">"
            "<TextBoxElement Id=\"t\"/></GroupElement>"
            "<GroupElement Id=\"switches\"><CheckBoxElement Id=\"useDetails\" IsChecked=\"Binding(Enabled)\"/>"
            "</GroupElement></PageElement></E>");
        QVERIFY(mpEditor->LoadUI(document));
        mpEditor->grab();
        auto* details = Find<GroupElement>("details");
        QCOMPARE(details->GetBinding(QStringLiteral("IsEnabled"))->GetSource(),
                 mpEditor->FindElement(QStringLiteral("USEDETAILS")));
        QVERIFY(details->GetWidget()->isEnabled());

        // Through the check box from its source, and from a click.
        mpMaterial->SetEnabled(false);
        QVERIFY(!details->IsEnabled());
        QVERIFY(!details->GetWidget()->isEnabled());
        qobject_cast<CheckBox*>(Find<CheckBoxElement>("useDetails")->GetWidget())->click();
        QVERIFY(mpMaterial->IsEnabled());
        QVERIFY(details->GetWidget()->isEnabled());
    }

    void literalEditsAreNotReportedAsModified()
    {
        Load(QStringLiteral("<CheckBoxElement Id=\"c\" IsChecked=\"True\"/>"));
        auto* element = Find<CheckBoxElement>("c");
        QSignalSpy valueSpy(element, &PropertyEditorElement::ValueChanged);
        QSignalSpy attributeSpy(element, &PropertyEditorElement::AttributeChanged);
        QSignalSpy modifiedSpy(mpEditor.get(), &PropertyEditor::PropertyModified);
        qobject_cast<CheckBox*>(element->GetWidget())->click();
        QVERIFY(!element->IsChecked());
        QCOMPARE(valueSpy.count(), 1);
        QCOMPARE(attributeSpy.count(), 1);
        QCOMPARE(modifiedSpy.count(), 0);

        // Setting from code reaches the widget and is no edit.
        element->SetCheck(true);
        QVERIFY(qobject_cast<CheckBox*>(element->GetWidget())->isChecked());
        QCOMPARE(valueSpy.count(), 1);
        QCOMPARE(attributeSpy.count(), 2);
    }

    void settersWithoutEditor()
    {
        CheckBoxElement check;
        check.SetCheck(true);
        QVERIFY(check.IsChecked());
        QCOMPARE(check.GetBinding(QStringLiteral("IsChecked"))->GetValueMetaType(), QMetaType::Bool);

        ComboBoxElement combo;
        combo.SetItems(QList<QString>{QStringLiteral("a"), QStringLiteral("b")});
        combo.SetCurrent(QStringLiteral("b"));
        QCOMPARE(combo.GetItems()->rowCount(), 2);
        QCOMPARE(combo.GetCurrentIndex(), 1);
        ListModel model;
        model.Add(QStringLiteral("x"));
        combo.SetItems(&model);
        QCOMPARE(combo.GetItems(), &model);
        QCOMPARE(combo.GetCurrentIndex(), -1);

        // Children: only containers take them, and never a page or an ancestor.
        GroupElement group;
        auto* inner = new GroupElement();
        QVERIFY(group.AddChild(inner));
        QVERIFY(!inner->AddChild(&group));
        QVERIFY(!check.AddChild(new LabelElement(&check)));
        PageElement page;
        QVERIFY(!group.AddChild(&page));
        QVERIFY(!group.AddChild(inner));
        auto* label = new LabelElement();
        label->SetId(QStringLiteral("Inside"));
        QVERIFY(group.InsertChild(0, label));
        QCOMPARE(group.IndexOfChild(label), 0);
        QCOMPARE(group.FindChild(QStringLiteral("inside"), false), label);
        inner->AddChild(new LabelElement());
        inner->GetChild(0)->SetId(QStringLiteral("deep"));
        QVERIFY(!group.FindChild(QStringLiteral("deep"), false));
        QCOMPARE(group.FindChild(QStringLiteral("deep"), true), inner->GetChild(0));
        QPointer<LabelElement> watched = label;
        group.DeleteChild(0);
        QVERIFY(watched.isNull());
        QCOMPARE(group.GetChildCount(), 1);

        // A group takes only the attributes it knows; other elements take any.
        QVERIFY(
            !group.SetBinding(QStringLiteral("Text"), new Binding(QVariant(QStringLiteral("x")), QMetaType::QString)));
        QVERIFY(!group.GetBinding(QStringLiteral("Text")));
        QVERIFY(group.SetBinding(QStringLiteral("IsCollapsed"), new Binding(QVariant(true), QMetaType::Bool)));
        QVERIFY(group.IsCollapsed());
        TextBoxElement text;
        QVERIFY(text.SetBinding(QStringLiteral("Custom"), new Binding(QVariant(1), QMetaType::Int)));
    }

    void debugTexts()
    {
        Load(QStringLiteral("<CheckBoxElement Id=\"c\" IsChecked=\"Binding(Enabled)\"/>"));
        QVERIFY(
            mMessages.contains(QStringLiteral("Updating widget property for element: c, target property:IsChecked\n")));
        mMessages.clear();
        mpMaterial->SetEnabled(false);
        QVERIFY(
            mMessages.contains(QStringLiteral("Updating widget property for element: c, target property:IsChecked\n")));

        const QString text = mpEditor->GetPage()->GetDebugText();
        QVERIFY(text.contains(QStringLiteral("Kavrel::UICore::GroupElement Id=\"g\"")));
        QVERIFY(text.contains(QStringLiteral("IsChecked = Binding(Enabled) -> Material::Enabled")));
        QVERIFY(text.contains(QStringLiteral("LabelAlignment=0x82")));
    }

    void panelPlacesChildrenSideBySide()
    {
        Load(QStringLiteral("<PanelElement Id=\"p\" ControlPlacement=\"FullRow\"><ButtonElement Id=\"a\" Label=\"A\"/>"
                            "<ButtonElement Id=\"b\" Label=\"B\"/></PanelElement>"));
        auto* panel = Find<PanelElement>("p");
        auto* layout = qobject_cast<QHBoxLayout*>(panel->GetWidget()->layout());
        QVERIFY(layout);
        QCOMPARE(layout->indexOf(Find<ButtonElement>("a")->GetWidget()), 0);
        QCOMPARE(layout->indexOf(Find<ButtonElement>("b")->GetWidget()), 1);
    }

private:
    // Loads the elements into a group of a built editor bound to mpMaterial.
    void Load(const QString& elements)
    {
        const QString document =
            QStringLiteral("<Editor><ColumnWidths><W Width=\"100\"/><W Width=\"0\"/></ColumnWidths><PageElement>"
                           "<GroupElement Id=\"g\" Label=\"Group\">%1</GroupElement></PageElement></Editor>")
                .arg(elements);
        QVERIFY(mpEditor->LoadUI(document));
        mpEditor->grab();
    }

    template <typename T> T* Find(const char* id) const
    {
        return qobject_cast<T*>(mpEditor->FindElement(QString::fromLatin1(id)));
    }

    std::unique_ptr<PropertyEditor> mpEditor;
    std::unique_ptr<Material> mpMaterial;
    QStringList mMessages;
};

QTEST_MAIN(tst_Elements)
#include "tst_elements.moc"

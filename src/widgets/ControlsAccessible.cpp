// The accessible interfaces of the labels, buttons, numeric, text, drop-down,
// rollout and progress controls: what a screen reader is told (role, name,
// value, states) and what it can do.
#include <KvUICore/widgets/ControlsAccessible_p.h>

#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/ImageLabel.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/ProgressMeter.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextBoxImp.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QAccessibleWidget>
#include <QAction>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QFormLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPointer>
#include <QTextDocumentFragment>

#include <cmath>

namespace Kavrel::UICore::Internal {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Kavrel::UICore::ControlsAccessible)
};

// Names the library gives its own parts so that hosts can find them; they
// mean nothing to a listener.
bool IsPartName(const QString& name)
{
    return name == QLatin1String("mpTextBoxControl") || name == QLatin1String("mpImageControl") ||
           name == QLatin1String("RolloutContainer_CheckBox");
}

// A label's or button's text as it is read: no mnemonic markers, no markup.
QString Spoken(const QString& text)
{
    QString plain = Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    for (int i = 0; i < plain.size(); ++i) {
        if (plain.at(i) == QLatin1Char('&'))
            plain.remove(i, 1);
    }
    return plain.simplified();
}

// "DeleteNodeIcon" reads "Delete node": an icon-only control is named after its picture.
QString KeyWords(QString key)
{
    if (key.endsWith(QLatin1String("Icon")))
        key.chop(4);
    QStringList words;
    QString word;
    const auto flush = [&] {
        if (!word.isEmpty() && !word.front().isDigit())
            words << (words.isEmpty() ? word : word.toLower());
        word.clear();
    };
    for (int i = 0; i < key.size(); ++i) {
        const QChar c = key.at(i);
        if (!c.isLetterOrNumber()) {
            flush();
            continue;
        }
        if (c.isUpper() && i > 0 && key.at(i - 1).isLower())
            flush();
        word += c;
    }
    flush();
    return words.join(QLatin1Char(' '));
}

bool LayoutHolds(QLayoutItem* item, const QWidget* widget)
{
    if (!item)
        return false;
    if (item->widget() == widget)
        return true;
    if (QLayout* layout = item->layout()) {
        for (int i = 0; i < layout->count(); ++i) {
            if (LayoutHolds(layout->itemAt(i), widget))
                return true;
        }
    }
    return false;
}

} // namespace

QString NameOf(const QWidget* widget, const QString& prompt, const QString& fallback)
{
    for (const QString& name : {widget->accessibleName(), AccessibleLabelText(widget), prompt, widget->toolTip()}) {
        if (!name.isEmpty())
            return name;
    }
    return fallback;
}

NamedAccessible::NamedAccessible(QWidget* widget, QAccessible::Role role, std::function<QString()> fallback)
    : QAccessibleWidget(widget, role)
    , mFallback(std::move(fallback))
{}

QString NamedAccessible::text(QAccessible::Text t) const
{
    return t == QAccessible::Name ? NameOf(widget(), QString(), mFallback()) : QAccessibleWidget::text(t);
}

QString AccessibleLabelText(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    if (!parent)
        return QString();
    for (const QLabel* label : parent->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (label->buddy() == widget)
            return Spoken(label->text());
    }
    for (const QFormLayout* form : parent->findChildren<QFormLayout*>()) {
        for (int row = 0; row < form->rowCount(); ++row) {
            if (!LayoutHolds(form->itemAt(row, QFormLayout::FieldRole), widget))
                continue;
            QLayoutItem* labelItem = form->itemAt(row, QFormLayout::LabelRole);
            if (const auto* label = qobject_cast<const QLabel*>(labelItem ? labelItem->widget() : nullptr))
                return Spoken(label->text());
        }
    }
    return QString();
}

namespace {

// The name of the control widget is a part of, when it is one.
QString OwnerName(const QWidget* widget)
{
    QWidget* owner = widget->parentWidget();
    if (!qobject_cast<TextBox*>(owner) && !qobject_cast<Slider*>(owner) && !qobject_cast<DoubleSpinBox*>(owner) &&
        !qobject_cast<RolloutContainer*>(owner))
        return QString();
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(owner);
    return iface ? iface->text(QAccessible::Name) : QString();
}

// The common ground: the name comes from the host's accessible name, the
// control's own text or title, its label, the control it is a part of, its
// tool tip and last a control-specific fallback, in that order.
class ControlAccessible : public QAccessibleWidget
{
public:
    ControlAccessible(QWidget* widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {}

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value)
            return ValueText();
        if (t != QAccessible::Name)
            return QAccessibleWidget::text(t);
        const QString own = widget()->accessibleName();
        if (!own.isEmpty() && !IsPartName(own))
            return own;
        for (const QString& name :
             {OwnText(), AccessibleLabelText(widget()), OwnerName(widget()), widget()->toolTip()}) {
            if (!name.isEmpty())
                return name;
        }
        return FallbackName();
    }

protected:
    virtual QString OwnText() const { return QString(); }
    virtual QString FallbackName() const { return QString(); }
    virtual QString ValueText() const { return QString(); }
};

// A control with a value a screen reader can read and set.
class ValueControlAccessible : public ControlAccessible, public QAccessibleValueInterface
{
public:
    using ControlAccessible::ControlAccessible;

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return ControlAccessible::interface_cast(type);
    }

    QVariant minimumStepSize() const override { return 0; }
};

QAccessible::Role ButtonRole(const QAbstractButton* button)
{
    if (qobject_cast<const QCheckBox*>(button))
        return QAccessible::CheckBox;
    if (qobject_cast<const QRadioButton*>(button))
        return QAccessible::RadioButton;
    if (const auto* tool = qobject_cast<const QToolButton*>(button); tool && tool->menu())
        return QAccessible::ButtonMenu;
    return QAccessible::Button;
}

// Push, tool, check and radio buttons, the mini toggles and the tiles.
class ButtonAccessible : public ControlAccessible
{
public:
    explicit ButtonAccessible(QAbstractButton* button)
        : ControlAccessible(button, ButtonRole(button))
    {}

    QAbstractButton* Button() const { return static_cast<QAbstractButton*>(widget()); }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Accelerator)
            return QKeySequence::mnemonic(Button()->text()).toString(QKeySequence::NativeText);
        return ControlAccessible::text(t);
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.checkable = Button()->isCheckable();
        s.checked = Button()->isChecked();
        s.pressed = Button()->isDown();
        if (const auto* check = qobject_cast<QCheckBox*>(Button()); check && check->isTristate())
            s.checkStateMixed = check->checkState() == Qt::PartiallyChecked;
        if (const auto* push = qobject_cast<QPushButton*>(Button()))
            s.defaultButton = push->isDefault();
        return s;
    }

    QStringList actionNames() const override
    {
        QStringList names = ControlAccessible::actionNames();
        if (Button()->isEnabled())
            names.prepend(Button()->isCheckable() ? toggleAction() : pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (Button()->isEnabled() && (name == pressAction() || name == toggleAction()))
            Button()->click();
        else
            ControlAccessible::doAction(name);
    }

protected:
    QString OwnText() const override { return Spoken(Button()->text()); }

    QString FallbackName() const override
    {
        // Icon-only buttons are named after their picture.
        QString key = Button()->property("iconThemeKey").toString();
        if (const auto* push = qobject_cast<PushButton*>(Button())) {
            if (push->IsMiniIcon())
                return Text::tr("Toggle");
            if (ThemeManager::GetInstance()->Exists(push->objectName()))
                key = push->objectName();
        }
        const QString words = KeyWords(key);
        return words.isEmpty() ? Text::tr("Button") : words;
    }
};

// A drop-down of choices is a combo box whose value is the current choice; one
// of commands or check items is a menu button named by its text.
class DropDownAccessible : public ControlAccessible
{
public:
    explicit DropDownAccessible(DropDown* dropDown)
        : ControlAccessible(dropDown, QAccessible::ComboBox)
    {}

    DropDown* Box() const { return static_cast<DropDown*>(widget()); }

    bool OffersChoices() const
    {
        for (int index = 0; index < Box()->Count(); ++index) {
            if (Box()->GetItemType(Box()->GetGroupId(index)) == DropDown::NormalItem &&
                !Box()->GetItemText(index).isEmpty())
                return true;
        }
        return false;
    }

    QAccessible::Role role() const override
    {
        return OffersChoices() ? QAccessible::ComboBox : QAccessible::ButtonMenu;
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.hasPopup = true;
        s.expandable = true;
        s.expanded = Box()->GetDropDownMenu() && Box()->GetDropDownMenu()->isVisible();
        s.collapsed = !s.expanded;
        return s;
    }

    QStringList actionNames() const override
    {
        QStringList names = ControlAccessible::actionNames();
        if (Box()->isEnabled())
            names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (Box()->isEnabled() && (name == showMenuAction() || name == pressAction()))
            Box()->click();
        else
            ControlAccessible::doAction(name);
    }

protected:
    QString OwnText() const override { return OffersChoices() ? QString() : Spoken(Box()->text()); }
    QString FallbackName() const override { return Text::tr("Drop-down"); }
    QString ValueText() const override { return OffersChoices() ? Spoken(Box()->GetCurrentText()) : QString(); }
};

// Single-line editors: the text box's editor, the stand-alone line edit and
// the numeric fields of sliders and spin boxes. The text interfaces read the
// text as shown; a prompt is no text.
class LineEditAccessible : public ControlAccessible,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    explicit LineEditAccessible(QLineEdit* edit)
        : ControlAccessible(edit, QAccessible::EditableText)
    {}

    QLineEdit* Edit() const { return static_cast<QLineEdit*>(widget()); }
    LineEdit* Prompting() const { return qobject_cast<LineEdit*>(widget()); }

    QString Shown() const
    {
        if (Prompting() && Prompting()->IsPrompting())
            return QString();
        if (Edit()->echoMode() == QLineEdit::Normal)
            return Edit()->text();
        return Edit()->echoMode() == QLineEdit::NoEcho ? QString() : QString(Edit()->text().size(), QLatin1Char('*'));
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return ControlAccessible::interface_cast(type);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Description && widget()->accessibleDescription().isEmpty() && Prompting())
            return Prompting()->GetPrompting();
        return ControlAccessible::text(t);
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.readOnly = Edit()->isReadOnly();
        s.editable = !s.readOnly;
        s.selectableText = true;
        s.passwordEdit = Edit()->echoMode() != QLineEdit::Normal;
        return s;
    }

    // QAccessibleTextInterface
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override
    {
        *startOffset = *endOffset = 0;
        if (selectionIndex == 0 && Edit()->hasSelectedText()) {
            *startOffset = Edit()->selectionStart();
            *endOffset = *startOffset + Edit()->selectionLength();
        }
    }
    int selectionCount() const override { return Edit()->hasSelectedText() ? 1 : 0; }
    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }
    void removeSelection(int) override { Edit()->deselect(); }
    void setSelection(int, int startOffset, int endOffset) override
    {
        Edit()->setSelection(startOffset, endOffset - startOffset);
    }
    int cursorPosition() const override { return Shown().isEmpty() ? 0 : Edit()->cursorPosition(); }
    void setCursorPosition(int position) override { Edit()->setCursorPosition(position); }
    QString text(int startOffset, int endOffset) const override
    {
        return Shown().mid(startOffset, endOffset - startOffset);
    }
    int characterCount() const override { return int(Shown().size()); }
    QRect characterRect(int offset) const override
    {
        // Measured from the cursor, the one position the line edit tells.
        const QString shown = Shown();
        if (offset < 0 || offset >= shown.size())
            return QRect();
        const QFontMetrics metrics(Edit()->font());
        const QRect cursor = Edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int x = cursor.x() + metrics.horizontalAdvance(shown.left(offset)) -
                      metrics.horizontalAdvance(shown.left(Edit()->cursorPosition()));
        const QRect rect(x, cursor.y(), metrics.horizontalAdvance(shown.at(offset)), cursor.height());
        return QRect(Edit()->mapToGlobal(rect.topLeft()), rect.size());
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        const QPointF local = Edit()->mapFromGlobal(point);
        if (!Edit()->rect().contains(local.toPoint()))
            return -1;
        return Edit()->inputMethodQuery(Qt::ImCursorPosition, local).toInt();
    }
    void scrollToSubstring(int startIndex, int endIndex) override
    {
        Edit()->setCursorPosition(endIndex);
        Edit()->setCursorPosition(startIndex);
    }
    QString attributes(int offset, int* startOffset, int* endOffset) const override
    {
        *startOffset = *endOffset = offset;
        return QString();
    }

    // QAccessibleEditableTextInterface
    void deleteText(int startOffset, int endOffset) override { replaceText(startOffset, endOffset, QString()); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int startOffset, int endOffset, const QString& text) override
    {
        if (Edit()->isReadOnly() || !Edit()->isEnabled())
            return;
        if (Prompting() && Prompting()->IsPrompting())
            Prompting()->UnsetPrompting();
        Edit()->setSelection(startOffset, endOffset - startOffset);
        Edit()->insert(text);
    }

protected:
    QString FallbackName() const override
    {
        if (Prompting() && !Prompting()->GetPrompting().isEmpty())
            return Prompting()->GetPrompting();
        return Edit()->placeholderText().isEmpty() ? Text::tr("Text field") : Edit()->placeholderText();
    }
    QString ValueText() const override { return Prompting() ? Prompting()->GetText() : Shown(); }
};

// The framed text box answers for its editor as a whole: the editor inside it
// carries its name.
class TextBoxAccessible : public ControlAccessible
{
public:
    explicit TextBoxAccessible(TextBox* box)
        : ControlAccessible(box, QAccessible::EditableText)
    {}

    TextBox* Box() const { return static_cast<TextBox*>(widget()); }

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.readOnly = Box()->IsReadOnly();
        s.editable = !s.readOnly;
        s.focusable = true;
        s.focused = Box()->GetLineEdit()->hasFocus();
        return s;
    }

protected:
    QString FallbackName() const override
    {
        const QString prompt = Box()->GetLineEdit()->GetPrompting();
        return prompt.isEmpty() ? Text::tr("Text field") : prompt;
    }
    QString ValueText() const override { return Box()->GetText(); }
};

// The text box's icon: a button when it runs the box's image action.
class TextBoxIconAccessible : public ControlAccessible
{
public:
    explicit TextBoxIconAccessible(TextBoxIcon* icon)
        : ControlAccessible(icon, QAccessible::Graphic)
    {}

    QAction* Action() const
    {
        auto* box = qobject_cast<TextBox*>(widget()->parentWidget());
        return box ? box->GetImageAction() : nullptr;
    }

    QAccessible::Role role() const override { return Action() ? QAccessible::Button : QAccessible::Graphic; }

    QStringList actionNames() const override
    {
        QStringList names = ControlAccessible::actionNames();
        if (Action() && Action()->isEnabled() && widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        auto* box = qobject_cast<TextBox*>(widget()->parentWidget());
        if (name == pressAction() && Action() && widget()->isEnabled()) {
            Q_EMIT box->ImageClicked();
            Action()->trigger();
        } else {
            ControlAccessible::doAction(name);
        }
    }

protected:
    QString OwnText() const override
    {
        // The tool tip says what clicking does; the action's text, what it is.
        if (!widget()->toolTip().isEmpty())
            return widget()->toolTip();
        return Action() ? Spoken(Action()->text()) : QString();
    }
};

// The composite slider: a slider with a numeric field beside it, both of
// which take its name.
class SliderAccessible : public ValueControlAccessible
{
public:
    explicit SliderAccessible(Slider* slider)
        : ValueControlAccessible(slider, QAccessible::Slider)
    {}

    Slider* Control() const { return static_cast<Slider*>(widget()); }

    QVariant currentValue() const override { return Control()->GetValue(); }
    QVariant minimumValue() const override { return Control()->GetMinimum(); }
    QVariant maximumValue() const override { return Control()->GetMaximum(); }
    void setCurrentValue(const QVariant& value) override
    {
        bool ok = false;
        const double number = value.toDouble(&ok);
        if (!ok || !std::isfinite(number) || !Control()->isEnabled())
            return;
        // Committed as a typed value is: the host validates, the signals follow.
        // Each handler may delete the slider.
        Slider* slider = Control();
        QPointer<Slider> self(slider);
        double committed = number;
        bool valid = true;
        Q_EMIT slider->ValidateChangingValue(committed, valid);
        if (!self || !valid || !std::isfinite(committed))
            return;
        committed = qBound(slider->GetMinimum(), committed, slider->GetMaximum());
        if (qFuzzyCompare(committed + 1.0, slider->GetValue() + 1.0))
            return;
        slider->SetValue(committed);
        Q_EMIT slider->SliderPressed();
        if (self)
            Q_EMIT slider->ValueChanged(slider->GetValue());
        if (self)
            Q_EMIT slider->SliderReleased();
    }

protected:
    QString OwnText() const override { return Spoken(Control()->GetSliderControl()->GetDisplayText()); }
    QString FallbackName() const override { return Text::tr("Slider"); }
    QString ValueText() const override { return Control()->GetNumericField()->text(); }
};

// The bare slider bar; inside the composite slider it reads the composite's value.
class SliderControlAccessible : public ValueControlAccessible
{
public:
    explicit SliderControlAccessible(SliderControl* control)
        : ValueControlAccessible(control, QAccessible::Slider)
    {}

    SliderControl* Control() const { return static_cast<SliderControl*>(widget()); }

    QVariant currentValue() const override { return Control()->value(); }
    QVariant minimumValue() const override { return Control()->minimum(); }
    QVariant maximumValue() const override { return Control()->maximum(); }
    QVariant minimumStepSize() const override { return Control()->singleStep(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (Control()->isEnabled())
            Control()->setValue(value.toInt());
    }

protected:
    QString OwnText() const override { return Spoken(Control()->GetDisplayText()); }
    QString FallbackName() const override { return Text::tr("Slider"); }
    QString ValueText() const override
    {
        const auto* slider = qobject_cast<Slider*>(widget()->parentWidget());
        return slider ? slider->GetNumericField()->text() : QString::number(Control()->value());
    }
};

class SpinBoxAccessible : public ValueControlAccessible
{
public:
    explicit SpinBoxAccessible(DoubleSpinBox* spin)
        : ValueControlAccessible(spin, QAccessible::SpinBox)
    {}

    DoubleSpinBox* Spin() const { return static_cast<DoubleSpinBox*>(widget()); }

    QVariant currentValue() const override { return Spin()->value(); }
    QVariant minimumValue() const override { return Spin()->minimum(); }
    QVariant maximumValue() const override { return Spin()->maximum(); }
    QVariant minimumStepSize() const override { return Spin()->singleStep(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (Spin()->isEnabled() && !Spin()->isReadOnly())
            Spin()->setValue(value.toDouble());
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = ValueControlAccessible::state();
        s.readOnly = Spin()->isReadOnly();
        return s;
    }

    QStringList actionNames() const override
    {
        QStringList names = ValueControlAccessible::actionNames();
        if (Spin()->isEnabled() && !Spin()->isReadOnly())
            names = QStringList{increaseAction(), decreaseAction()} + names;
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == increaseAction())
            Spin()->stepUp();
        else if (name == decreaseAction())
            Spin()->stepDown();
        else
            ValueControlAccessible::doAction(name);
    }

protected:
    QString FallbackName() const override { return Text::tr("Number"); }
    QString ValueText() const override { return Spin()->text(); }
};

// A collapsible group, named by its title; its check box takes the same name.
class RolloutAccessible : public ControlAccessible
{
public:
    explicit RolloutAccessible(RolloutContainer* container)
        : ControlAccessible(container, QAccessible::Grouping)
    {}

    RolloutContainer* Container() const { return static_cast<RolloutContainer*>(widget()); }

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.expandable = Container()->IsExpandButtonVisible();
        s.expanded = s.expandable && !Container()->IsCollapsed();
        s.collapsed = s.expandable && Container()->IsCollapsed();
        return s;
    }

    QStringList actionNames() const override
    {
        QStringList names = ControlAccessible::actionNames();
        if (Container()->IsExpandButtonVisible() &&
            (Container()->isEnabled() || Container()->IsExpandableWhenDisabled()))
            names.prepend(toggleAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == toggleAction())
            Container()->SetIsCollapsed(!Container()->IsCollapsed());
        else
            ControlAccessible::doAction(name);
    }

protected:
    QString OwnText() const override { return Spoken(Container()->GetTitle()); }
    QString FallbackName() const override { return Text::tr("Group"); }
};

class ProgressBarAccessible : public ValueControlAccessible
{
public:
    explicit ProgressBarAccessible(ProgressBar* bar)
        : ValueControlAccessible(bar, QAccessible::ProgressBar)
    {}

    ProgressBar* Bar() const { return static_cast<ProgressBar*>(widget()); }
    bool Indeterminate() const { return Bar()->minimum() == Bar()->maximum(); }

    QVariant currentValue() const override { return Bar()->value(); }
    QVariant minimumValue() const override { return Bar()->minimum(); }
    QVariant maximumValue() const override { return Bar()->maximum(); }
    // The user does not set progress.
    void setCurrentValue(const QVariant&) override {}

    QAccessible::State state() const override
    {
        QAccessible::State s = ValueControlAccessible::state();
        s.readOnly = true;
        s.busy = Indeterminate();
        return s;
    }

protected:
    QString FallbackName() const override { return Text::tr("Progress"); }
    QString ValueText() const override
    {
        if (Indeterminate() || Bar()->value() < Bar()->minimum())
            return QString();
        const double share = double(Bar()->value() - Bar()->minimum()) / (double(Bar()->maximum()) - Bar()->minimum());
        return Text::tr("%1 %").arg(std::lround(share * 100));
    }
};

// The busy indicator: an animation, busy while it runs.
class ProgressMeterAccessible : public ControlAccessible
{
public:
    explicit ProgressMeterAccessible(ProgressMeter* meter)
        : ControlAccessible(meter, QAccessible::Animation)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State s = ControlAccessible::state();
        s.busy = static_cast<ProgressMeter*>(widget())->IsRunning();
        s.animated = s.busy;
        return s;
    }

protected:
    QString OwnText() const override { return Spoken(static_cast<ProgressMeter*>(widget())->GetText()); }
    QString FallbackName() const override { return Text::tr("Progress"); }
};

class ImageLabelAccessible : public ControlAccessible
{
public:
    explicit ImageLabelAccessible(ImageLabel* label)
        : ControlAccessible(label, QAccessible::Graphic)
    {}

protected:
    QString OwnText() const override { return Spoken(static_cast<QLabel*>(widget())->text()); }
    QString FallbackName() const override
    {
        const QString words = KeyWords(static_cast<ImageLabel*>(widget())->GetImageThemeKey());
        return words.isEmpty() ? Text::tr("Image") : words;
    }
};

QAccessibleInterface* ControlsFactory(const QString&, QObject* object)
{
    // Asked first for the object's own class, before Qt's interfaces for the
    // Qt base classes; host subclasses of the controls are answered too.
    if (!object || !object->isWidgetType())
        return nullptr;
    if (auto* dropDown = qobject_cast<DropDown*>(object))
        return new DropDownAccessible(dropDown);
    if (auto* button = qobject_cast<QAbstractButton*>(object)) {
        if (qobject_cast<PushButton*>(object) || qobject_cast<ToolButton*>(object) || qobject_cast<CheckBox*>(object) ||
            qobject_cast<RadioButton*>(object))
            return new ButtonAccessible(button);
        return nullptr;
    }
    if (qobject_cast<LineEdit*>(object) || qobject_cast<NumericField*>(object))
        return new LineEditAccessible(static_cast<QLineEdit*>(object));
    if (auto* box = qobject_cast<TextBox*>(object))
        return new TextBoxAccessible(box);
    if (auto* icon = qobject_cast<TextBoxIcon*>(object))
        return new TextBoxIconAccessible(icon);
    if (auto* slider = qobject_cast<Slider*>(object))
        return new SliderAccessible(slider);
    if (auto* control = qobject_cast<SliderControl*>(object))
        return new SliderControlAccessible(control);
    if (auto* spin = qobject_cast<DoubleSpinBox*>(object))
        return new SpinBoxAccessible(spin);
    if (auto* container = qobject_cast<RolloutContainer*>(object))
        return new RolloutAccessible(container);
    if (auto* bar = qobject_cast<ProgressBar*>(object))
        return new ProgressBarAccessible(bar);
    if (auto* meter = qobject_cast<ProgressMeter*>(object))
        return new ProgressMeterAccessible(meter);
    if (auto* image = qobject_cast<ImageLabel*>(object))
        return new ImageLabelAccessible(image);
    if (auto* divider = qobject_cast<Divider*>(object))
        return new ControlAccessible(divider, QAccessible::Separator);
    return nullptr;
}

} // namespace

void InstallControlsAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(&ControlsFactory);
        return true;
    }();
    (void)installed;
}

void AnnounceValueChange(QObject* object, const QVariant& value)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(object, value);
    QAccessible::updateAccessibility(&event);
}

void AnnounceStateChange(QObject* object, const QAccessible::State& changed)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleStateChangeEvent event(object, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace Kavrel::UICore::Internal

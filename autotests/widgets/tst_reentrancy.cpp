// test-options: TIMEOUT 300
// Every control survives being deleted by a handler of one of its own
// signals, driven by real mouse and key events, and being deleted while it
// has the focus. Under the sanitizer build a control that touches itself
// after such an emit fails here.
#include "../PaintProbe.h"

#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

namespace {

enum class Input
{
    Click,           // a left click in the middle of the control
    ClickTitle,      // a left click on a container's title bar
    SpaceOnCheckBox, // Space on a container's check box
    TypeReturn,      // focus, two digits, Return
    TypeLeave,       // focus, two digits, then the focus goes to another widget
    KeyRight,        // focus on the slider's track, Right
    Drag,            // press, move, release on the slider's track
    DragEscape,      // press on the slider's track, Escape
    Focus,           // focus only; the control is then deleted directly
};

// Deletes the control once, from whichever signal it is connected to.
class Deleter : public QObject
{
    Q_OBJECT

public:
    QPointer<QWidget> mpTarget;
    int miCalls = 0;

public Q_SLOTS:
    void DeleteTarget()
    {
        ++miCalls;
        delete mpTarget.data();
    }
};

QWidget* MakeControl(const QString& kind, QWidget* parent)
{
    if (kind == QLatin1String("PushButton")) {
        auto* button = new PushButton(parent);
        button->setText(QStringLiteral("Apply"));
        button->setCheckable(true);
        return button;
    }

    if (kind == QLatin1String("CheckBox"))
        return new CheckBox(QStringLiteral("Visible"), parent);
    if (kind == QLatin1String("LineEdit"))
        return new LineEdit(parent);
    if (kind == QLatin1String("NumericField"))
        return new NumericField(parent);
    if (kind == QLatin1String("TextBox"))
        return new TextBox(parent);
    if (kind == QLatin1String("DoubleSpinBox")) {
        auto* spinBox = new DoubleSpinBox(parent);
        spinBox->setRange(0, 1000);
        spinBox->setValue(5);
        return spinBox;
    }

    if (kind == QLatin1String("Slider")) {
        auto* slider = new Slider(parent);
        slider->SetRange(0, 100);
        slider->WidgetUnits::SetValue(50.0);
        slider->setMinimumWidth(240);
        return slider;
    }

    if (kind == QLatin1String("RolloutContainer")) {
        auto* container = new RolloutContainer(parent);
        container->SetTitle(QStringLiteral("Surface"));
        container->SetIsCheckable(true);
        auto* layout = new QVBoxLayout(container);
        layout->addWidget(new QLineEdit(container));
        return container;
    }

    return nullptr;
}

// The widget that receives the input: the slider's track or field, else the control.
QWidget* InputWidget(QWidget* control, Input input)
{
    if (auto* slider = qobject_cast<Slider*>(control)) {
        if (input == Input::TypeReturn || input == Input::TypeLeave || input == Input::Focus)
            return slider->GetNumericField();
        return slider->GetSliderControl();
    }

    return control;
}

} // namespace

Q_DECLARE_METATYPE(Input)

class tst_Reentrancy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void controlDeletedFromItsOwnSignal_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<Input>("input");

        // Not in the table: signals that Qt emits in the middle of its own work
        // and then goes on using the widget: the line edit's textEdited and
        // cursorPositionChanged, a button's toggled (and what follows from it:
        // stateChanged, a container's CheckBoxToggled), after which
        // QAbstractButton::setChecked still reports to accessibility, and a
        // slider's SliderFocusOut, which deletes the focus widget's parent while
        // QWidget::setFocus is still walking it. And
        // ValidateChangingValue, which asks the listeners a question while a
        // value is being read.
        const auto row = [](const char* control, const char* signal, Input input, const char* how) {
            QTest::addRow("%s %s %s", control, signal[0] ? signal : "(none)", how)
                << QString::fromLatin1(control) << QByteArray(signal) << input;
        };
        row("PushButton", "pressed()", Input::Click, "click");
        row("PushButton", "released()", Input::Click, "click");
        row("PushButton", "clicked(bool)", Input::Click, "click");
        row("CheckBox", "clicked(bool)", Input::Click, "click");
        row("LineEdit", "returnPressed()", Input::TypeReturn, "Return");
        row("LineEdit", "editingFinished()", Input::TypeReturn, "Return");
        row("LineEdit", "editingFinished()", Input::TypeLeave, "focus loss");
        row("LineEdit", "", Input::Focus, "while focused");
        row("NumericField", "returnPressed()", Input::TypeReturn, "Return");
        row("NumericField", "editingFinished()", Input::TypeReturn, "Return");
        row("NumericField", "editingFinished()", Input::TypeLeave, "focus loss");
        row("NumericField", "FocusOut()", Input::TypeLeave, "focus loss");
        row("TextBox", "ReturnPressed()", Input::TypeReturn, "Return");
        row("TextBox", "EditingFinished()", Input::TypeReturn, "Return");
        row("TextBox", "EditingFinished()", Input::TypeLeave, "focus loss");
        row("TextBox", "FocusOut()", Input::TypeLeave, "focus loss");
        row("TextBox", "", Input::Focus, "while focused");
        row("DoubleSpinBox", "editingFinished()", Input::TypeReturn, "Return");
        row("DoubleSpinBox", "editingFinished()", Input::TypeLeave, "focus loss");
        row("DoubleSpinBox", "valueChanged(double)", Input::TypeReturn, "Return");
        row("DoubleSpinBox", "", Input::Focus, "while focused");
        row("Slider", "SliderPressed()", Input::Drag, "drag");
        row("Slider", "SliderMoved(int)", Input::Drag, "drag");
        row("Slider", "ValueChanged(double)", Input::Drag, "drag");
        row("Slider", "SliderReleased()", Input::Drag, "drag");
        row("Slider", "SliderChangeCancelled()", Input::DragEscape, "Escape");
        row("Slider", "ValueChanged(double)", Input::KeyRight, "Right");
        row("Slider", "ValueChanged(double)", Input::TypeReturn, "Return");
        row("Slider", "SliderReleased()", Input::TypeReturn, "Return");
        row("Slider", "", Input::Focus, "while focused");
        row("RolloutContainer", "Collapsed(bool)", Input::ClickTitle, "click");
        row("RolloutContainer", "CheckBoxClicked(bool)", Input::SpaceOnCheckBox, "Space");
    }

    void controlDeletedFromItsOwnSignal()
    {
        QFETCH(QString, control);
        QFETCH(QByteArray, signal);
        QFETCH(Input, input);

        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        QWidget* made = MakeControl(control, &window);
        QVERIFY(made);
        layout->addWidget(made);
        auto* other = new QLineEdit(&window);
        layout->addWidget(other);
        window.resize(320, 160);
        QVERIFY(Probe::ShowActive(&window));

        Deleter deleter;
        deleter.mpTarget = made;
        if (!signal.isEmpty()) {
            const QMetaObject* meta = made->metaObject();
            const int index = meta->indexOfSignal(QMetaObject::normalizedSignature(signal.constData()));
            QVERIFY2(index >= 0, signal.constData());
            const QMetaMethod slot = deleter.metaObject()->method(deleter.metaObject()->indexOfSlot("DeleteTarget()"));
            QVERIFY(QObject::connect(made, meta->method(index), &deleter, slot));
        }

        QWidget* target = InputWidget(made, input);
        const QPointer<QWidget> alive(target);
        // Events go on only while what they are sent to is still there.
        const auto key = [&alive](Qt::Key k) {
            if (alive && QApplication::focusWidget())
                QTest::keyClick(QApplication::focusWidget(), k);
        };
        switch (input) {
        case Input::Click:
        case Input::ClickTitle: {
            QPoint point = target->rect().center();
            if (input == Input::ClickTitle) {
                point = static_cast<RolloutContainer*>(target)->GetTitleRect().center();
            } else if (auto* box = qobject_cast<QCheckBox*>(target)) {
                QStyleOptionButton option;
                option.initFrom(box);
                option.text = box->text();
                point = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
            }
            // Press and release apart: the press may already delete.
            QTest::mousePress(target, Qt::LeftButton, {}, point);
            if (alive)
                QTest::mouseRelease(target, Qt::LeftButton, {}, point);
            break;
        }
        case Input::SpaceOnCheckBox: {
            auto* box = target->findChild<QCheckBox*>();
            QVERIFY(box);
            QVERIFY(Probe::Focus(box));
            QTest::keyClick(box, Qt::Key_Space);
            break;
        }
        case Input::TypeReturn:
        case Input::TypeLeave:
            QVERIFY(Probe::Focus(target, Qt::TabFocusReason));
            key(Qt::Key_1);
            key(Qt::Key_2);
            if (input == Input::TypeReturn)
                key(Qt::Key_Return);
            else if (alive)
                QVERIFY(Probe::Focus(other, Qt::TabFocusReason));
            break;
        case Input::KeyRight:
            QVERIFY(Probe::Focus(target, Qt::TabFocusReason));
            key(Qt::Key_Right);
            break;
        case Input::Drag:
        case Input::DragEscape: {
            const QPoint start = target->rect().center();
            QTest::mousePress(target, Qt::LeftButton, {}, start);
            if (input == Input::DragEscape) {
                QVERIFY(Probe::Focus(target, Qt::MouseFocusReason));
                key(Qt::Key_Escape);
                break;
            }
            // A real drag moves in steps; each step may be the one that deletes.
            for (int dx = 4; dx <= 40 && alive; dx += 4) {
                QMouseEvent move(QEvent::MouseMove, QPointF(start + QPoint(dx, 0)),
                                 target->mapToGlobal(QPointF(start + QPoint(dx, 0))), Qt::NoButton, Qt::LeftButton,
                                 Qt::NoModifier);
                QApplication::sendEvent(target, &move);
            }
            if (alive)
                QTest::mouseRelease(target, Qt::LeftButton, {}, start + QPoint(40, 0));
            break;
        }
        case Input::Focus:
            QVERIFY(Probe::Focus(target, Qt::TabFocusReason));
            delete made;
            break;
        }

        QTRY_VERIFY(deleter.mpTarget.isNull());
        if (!signal.isEmpty())
            QCOMPARE(deleter.miCalls, 1);
        // The window goes on working after the control has gone.
        QVERIFY(Probe::Focus(other, Qt::TabFocusReason));
        QTest::keyClick(other, Qt::Key_A);
        QCOMPARE(other->text(), QStringLiteral("a"));
    }
};

QTEST_MAIN(tst_Reentrancy)
#include "tst_reentrancy.moc"

// test-options: LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/DoubleSpinBoxNumericField.h>
#include <KvUICore/widgets/NumericField.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

class tst_NumericField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void firstClickSelectsAllOncePerFocusAndFocusOutIsAnnounced()
    {
        NumericField* field = shownField();
        QVERIFY(field);
        QSignalSpy focusOut(field, &NumericField::FocusOut);
        const QPoint inside = field->rect().center();
        QTest::mouseClick(field, Qt::LeftButton, {}, inside);
        QTRY_VERIFY(field->hasFocus());
        QCOMPARE(field->selectedText(), QStringLiteral("1234.5"));
        QTest::mouseClick(field, Qt::LeftButton, {}, inside);
        QVERIFY(!field->hasSelectedText());
        QCOMPARE(focusOut.count(), 0);

        // A new focus period starts over.
        moveFocusAway(field);
        QCOMPARE(focusOut.count(), 1);
        QTest::mouseClick(field, Qt::LeftButton, {}, inside);
        QCOMPARE(field->selectedText(), QStringLiteral("1234.5"));
    }

    void modifiedFlagIsStickyFromFocusInUntilCleared()
    {
        NumericField* field = shownField(true);
        QVERIFY(field);
        QTest::keyClick(field, Qt::Key_End);
        QVERIFY(!field->IsModified());
        QTest::keyClick(field, Qt::Key_0);
        QVERIFY(field->IsModified());
        // Text written by the owner resets Qt's flag, not the sticky one.
        field->setText(QStringLiteral("5"));
        QVERIFY(!field->isModified());
        QVERIFY(field->IsModified());
        field->ClearModified();
        QVERIFY(!field->IsModified());

        // Focus-in starts clean even when the line edit still counts as modified.
        QTest::keyClick(field, Qt::Key_1);
        moveFocusAway(field);
        QVERIFY(field->IsModified());
        QVERIFY(Probe::Focus(field));
        QVERIFY(!field->IsModified());
    }

    void pageKeysReachTheOwnerInTheSpinBoxField()
    {
        // The spin box's field leaves page keys unhandled so that they propagate.
        QWidget owner;
        auto* field = new DoubleSpinBoxNumericField(&owner);
        field->setText(QStringLiteral("12"));
        field->setCursorPosition(1);
        QKeyEvent page(QEvent::KeyPress, Qt::Key_PageUp, Qt::NoModifier);
        page.setAccepted(true);
        QApplication::sendEvent(field, &page);
        QVERIFY(!page.isAccepted());
        QCOMPARE(field->cursorPosition(), 1);
        QTest::keyClick(field, Qt::Key_5);
        QCOMPARE(field->text(), QStringLiteral("152"));
        QVERIFY(field->IsModified());
    }

    void pageKeysMoveTheCursorAndReturnSelectsAllAndFinishesEditing()
    {
        NumericField* field = shownField(true);
        QVERIFY(field);
        QSignalSpy finished(field, &QLineEdit::editingFinished);
        field->setCursorPosition(3);
        QTest::keyClick(field, Qt::Key_PageUp);
        QCOMPARE(field->cursorPosition(), 0);
        QTest::keyClick(field, Qt::Key_PageDown);
        QCOMPARE(field->cursorPosition(), 6);
        QVERIFY(!field->IsModified());
        QTest::keyClick(field, Qt::Key_7);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(field->selectedText(), QStringLiteral("1234.57"));
    }

    void hoverStateFollowsThePointer()
    {
        NumericField* field = shownField();
        QVERIFY(field);
        QCOMPARE(field->HoverState(), 0);
        enter(field);
        QCOMPARE(field->HoverState(), 1);
        QTest::mousePress(field, Qt::LeftButton, {}, field->rect().center());
        QCOMPARE(field->HoverState(), 2);
        QTest::mouseRelease(field, Qt::LeftButton, {}, field->rect().center());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(field, &leave);
        QCOMPARE(field->HoverState(), 0);
    }

    void frameIsPaintedFromTheTheme_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("outline");
        QTest::addColumn<QString>("inner");
        QTest::addColumn<QString>("background");

        using K = ThemeFileKey;
        for (const char* t : {"Light", "Dark"}) {
            QTest::addRow("%s, normal", t) << t << "normal" << K::WidgetOutline3 << QString() << K::WidgetContainer9;
            QTest::addRow("%s, hovered", t) << t << "hovered" << K::HoverOutline4 << QString() << K::WidgetContainer12;
            QTest::addRow("%s, focused", t)
                << t << "focused" << K::WidgetOutline6 << K::FocusOutline2 << K::WidgetContainer12;
        }
    }

    void frameIsPaintedFromTheTheme()
    {
        QFETCH(QString, theme);
        QFETCH(QString, state);
        QFETCH(QString, outline);
        QFETCH(QString, inner);
        QFETCH(QString, background);

        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
        NumericField* field = shownField(state == QLatin1String("focused"));
        QVERIFY(field);
        field->clear();
        field->resize(120, 24);
        if (state == QLatin1String("hovered"))
            enter(field);
        const QImage image = Probe::Grab(field);
        const auto at = [&](int x, int y) { return Probe::PixelAt(image, QPoint(x, y)).rgb(); };
        const int middle = field->height() / 2;
        // Right of the (empty) text the interior is plain background.
        QCOMPARE(at(field->width() - 6, middle), Probe::ThemeColor(background).rgb());
        QCOMPARE(at(field->width() / 2, 0), Probe::ThemeColor(outline).rgb());
        QCOMPARE(at(0, middle), Probe::ThemeColor(outline).rgb());
        if (!inner.isEmpty())
            QCOMPARE(at(field->width() / 2, 1), Probe::ThemeColor(inner).rgb());
    }

private:
    // A shown window holding a field with "1234.5" and a second line edit that has the focus.
    NumericField* shownField(bool focused = false)
    {
        NumericField* field = Probe::ShownWithOther<NumericField>(mWidgets, QSize(200, 80));
        if (!field)
            return nullptr;
        field->setText(QStringLiteral("1234.5"));
        if (focused) {
            field->setFocus();
            if (!QTest::qWaitFor([field] { return field->hasFocus(); }))
                return nullptr;
        }
        return field;
    }

    static void moveFocusAway(NumericField* field)
    {
        field->window()->findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
        QTRY_VERIFY(!field->hasFocus());
    }
    static void enter(QWidget* widget)
    {
        QEnterEvent event(QPointF(2, 2), QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)));
        QApplication::sendEvent(widget, &event);
    }
    QList<QWidget*> mWidgets;
};

QTEST_MAIN(tst_NumericField)
#include "tst_numericfield.moc"

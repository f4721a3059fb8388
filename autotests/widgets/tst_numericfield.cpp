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
    void init() { QVERIFY(mField = shownField()); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void firstClickSelectsAllOncePerFocusAndFocusOutIsAnnounced()
    {
        QSignalSpy focusOut(mField, &NumericField::FocusOut);
        const QPoint inside = mField->rect().center();
        QTest::mouseClick(mField, Qt::LeftButton, {}, inside);
        QTRY_VERIFY(mField->hasFocus());
        QCOMPARE(mField->selectedText(), QStringLiteral("1234.5"));
        QTest::mouseClick(mField, Qt::LeftButton, {}, inside);
        QVERIFY(!mField->hasSelectedText());
        QCOMPARE(focusOut.count(), 0);

        // A new focus period starts over.
        QVERIFY(Probe::Focus(mField->window()->findChild<QLineEdit*>(QStringLiteral("other"))));
        QCOMPARE(focusOut.count(), 1);
        QTest::mouseClick(mField, Qt::LeftButton, {}, inside);
        QCOMPARE(mField->selectedText(), QStringLiteral("1234.5"));
    }

    void modifiedFlagIsStickyFromFocusInUntilCleared()
    {
        QVERIFY(Probe::Focus(mField));
        QTest::keyClick(mField, Qt::Key_End);
        QVERIFY(!mField->IsModified());
        QTest::keyClick(mField, Qt::Key_0);
        QVERIFY(mField->IsModified());
        // Text written by the owner resets Qt's flag, not the sticky one.
        mField->setText(QStringLiteral("5"));
        QVERIFY(!mField->isModified());
        QVERIFY(mField->IsModified());
        mField->ClearModified();
        QVERIFY(!mField->IsModified());

        // Focus-in starts clean even when the line edit still counts as modified.
        QTest::keyClick(mField, Qt::Key_1);
        QVERIFY(Probe::Focus(mField->window()->findChild<QLineEdit*>(QStringLiteral("other"))));
        QVERIFY(mField->IsModified());
        QVERIFY(Probe::Focus(mField));
        QVERIFY(!mField->IsModified());
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
        QVERIFY(Probe::Focus(mField));
        QSignalSpy finished(mField, &QLineEdit::editingFinished);
        mField->setCursorPosition(3);
        QTest::keyClick(mField, Qt::Key_PageUp);
        QCOMPARE(mField->cursorPosition(), 0);
        QTest::keyClick(mField, Qt::Key_PageDown);
        QCOMPARE(mField->cursorPosition(), 6);
        QVERIFY(!mField->IsModified());
        QTest::keyClick(mField, Qt::Key_7);
        QTest::keyClick(mField, Qt::Key_Return);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(mField->selectedText(), QStringLiteral("1234.57"));
    }

    void hoverStateFollowsThePointer()
    {
        QCOMPARE(mField->HoverState(), 0);
        enter(mField);
        QCOMPARE(mField->HoverState(), 1);
        QTest::mousePress(mField, Qt::LeftButton, {}, mField->rect().center());
        QCOMPARE(mField->HoverState(), 2);
        QTest::mouseRelease(mField, Qt::LeftButton, {}, mField->rect().center());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(mField, &leave);
        QCOMPARE(mField->HoverState(), 0);
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
        if (state == QLatin1String("focused"))
            QVERIFY(Probe::Focus(mField));
        mField->clear();
        mField->resize(120, 24);
        if (state == QLatin1String("hovered"))
            enter(mField);
        const QImage image = Probe::Grab(mField);
        const auto at = [&](int x, int y) { return Probe::PixelAt(image, QPoint(x, y)).rgb(); };
        const int middle = mField->height() / 2;
        // Right of the (empty) text the interior is plain background.
        QCOMPARE(at(mField->width() - 6, middle), Probe::ThemeColor(background).rgb());
        QCOMPARE(at(mField->width() / 2, 0), Probe::ThemeColor(outline).rgb());
        QCOMPARE(at(0, middle), Probe::ThemeColor(outline).rgb());
        if (!inner.isEmpty())
            QCOMPARE(at(mField->width() / 2, 1), Probe::ThemeColor(inner).rgb());
    }

private:
    // A shown window holding a field with "1234.5" and a second line edit that has the focus.
    NumericField* shownField()
    {
        NumericField* field = Probe::ShownWithOther<NumericField>(mWidgets, QSize(200, 80));
        if (field)
            field->setText(QStringLiteral("1234.5"));
        return field;
    }

    static void enter(QWidget* widget)
    {
        QEnterEvent event(QPointF(2, 2), QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)));
        QApplication::sendEvent(widget, &event);
    }
    QList<QWidget*> mWidgets;
    NumericField* mField = nullptr;
};

QTEST_MAIN(tst_NumericField)
#include "tst_numericfield.moc"

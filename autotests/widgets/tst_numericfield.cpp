#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DoubleSpinBoxNumericField.h>
#include <KvUICore/widgets/NumericField.h>

#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

class tst_NumericField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void constructionDefaults();
    void firstClickSelectsAllOnlyOncePerFocus();
    void modifiedFlagIsStickyFromFocusInUntilCleared();
    void pageKeysMoveTheCursorInThePlainField();
    void pageKeysReachTheOwnerInTheSpinBoxField();
    void returnSelectsAllAndFinishesEditing();
    void hoverStateFollowsThePointer();
    void focusOutIsAnnounced();
    void frameIsPaintedFromTheTheme_data();
    void frameIsPaintedFromTheTheme();
    void textColourFollowsEnabledStateAndTheme();

private:
    NumericField* shownField();
    QList<QWidget*> mWidgets;
};

void tst_NumericField::initTestCase()
{
    Internal::SetWarningHook([](const QString&, const QString&) { return true; });
    ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

void tst_NumericField::cleanup()
{
    qDeleteAll(mWidgets);
    mWidgets.clear();
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

NumericField* tst_NumericField::shownField()
{
    auto* window = new QWidget;
    mWidgets << window;
    auto* layout = new QVBoxLayout(window);
    auto* field = new NumericField(window);
    field->setText(QStringLiteral("1234.5"));
    layout->addWidget(field);
    auto* other = new QLineEdit(window);
    other->setObjectName(QStringLiteral("other"));
    layout->addWidget(other);
    window->resize(200, 80);
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        return nullptr;
    other->setFocus();
    return field;
}

void tst_NumericField::constructionDefaults()
{
    NumericField field;
    QCOMPARE(field.focusPolicy(), Qt::StrongFocus);
    QVERIFY(field.testAttribute(Qt::WA_Hover));
    QVERIFY(!field.testAttribute(Qt::WA_MacShowFocusRect));
    QCOMPARE(field.alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    QCOMPARE(field.font(), Internal::ItemViewFont());
    QCOMPARE(field.HoverState(), 0);
    QVERIFY(!field.IsModified());
}

void tst_NumericField::firstClickSelectsAllOnlyOncePerFocus()
{
    NumericField* field = shownField();
    QVERIFY(field);
    const QPoint inside = field->rect().center();
    QTest::mouseClick(field, Qt::LeftButton, {}, inside);
    QTRY_VERIFY(field->hasFocus());
    QCOMPARE(field->selectedText(), QStringLiteral("1234.5"));
    QTest::mouseClick(field, Qt::LeftButton, {}, inside);
    QVERIFY(!field->hasSelectedText());

    // A new focus period starts over.
    field->window()->findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
    QTRY_VERIFY(!field->hasFocus());
    QTest::mouseClick(field, Qt::LeftButton, {}, inside);
    QCOMPARE(field->selectedText(), QStringLiteral("1234.5"));
}

void tst_NumericField::modifiedFlagIsStickyFromFocusInUntilCleared()
{
    NumericField* field = shownField();
    QVERIFY(field);
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
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
    QLineEdit* other = field->window()->findChild<QLineEdit*>(QStringLiteral("other"));
    other->setFocus();
    QTRY_VERIFY(!field->hasFocus());
    QVERIFY(field->IsModified());
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QVERIFY(!field->IsModified());
}

void tst_NumericField::pageKeysMoveTheCursorInThePlainField()
{
    NumericField* field = shownField();
    QVERIFY(field);
    field->setFocus();
    field->setCursorPosition(3);
    QTest::keyClick(field, Qt::Key_PageUp);
    QCOMPARE(field->cursorPosition(), 0);
    QTest::keyClick(field, Qt::Key_PageDown);
    QCOMPARE(field->cursorPosition(), 6);
    QVERIFY(!field->IsModified());
}

void tst_NumericField::pageKeysReachTheOwnerInTheSpinBoxField()
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

void tst_NumericField::returnSelectsAllAndFinishesEditing()
{
    NumericField* field = shownField();
    QVERIFY(field);
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QSignalSpy finished(field, &QLineEdit::editingFinished);
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClick(field, Qt::Key_7);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(field->selectedText(), QStringLiteral("1234.57"));
}

void tst_NumericField::hoverStateFollowsThePointer()
{
    NumericField* field = shownField();
    QVERIFY(field);
    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), field->mapToGlobal(QPointF(2, 2)));
    QApplication::sendEvent(field, &enter);
    QCOMPARE(field->HoverState(), 1);
    QTest::mousePress(field, Qt::LeftButton, {}, field->rect().center());
    QCOMPARE(field->HoverState(), 2);
    QTest::mouseRelease(field, Qt::LeftButton, {}, field->rect().center());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(field, &leave);
    QCOMPARE(field->HoverState(), 0);
}

void tst_NumericField::focusOutIsAnnounced()
{
    NumericField* field = shownField();
    QVERIFY(field);
    QSignalSpy focusOut(field, &NumericField::FocusOut);
    field->setFocus();
    QTRY_VERIFY(field->hasFocus());
    QCOMPARE(focusOut.count(), 0);
    field->window()->findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
    QTRY_COMPARE(focusOut.count(), 1);
}

void tst_NumericField::frameIsPaintedFromTheTheme_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("outline");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QString>("background");

    for (const QString& theme : {QStringLiteral("Light"), QStringLiteral("Dark")}) {
        QTest::addRow("%s, normal", qPrintable(theme))
            << theme << "normal" << ThemeFileKey::WidgetOutline3 << QString() << ThemeFileKey::WidgetContainer9;
        QTest::addRow("%s, hovered", qPrintable(theme))
            << theme << "hovered" << ThemeFileKey::HoverOutline4 << QString() << ThemeFileKey::WidgetContainer12;
        QTest::addRow("%s, focused", qPrintable(theme))
            << theme << "focused" << ThemeFileKey::WidgetOutline6 << ThemeFileKey::FocusOutline2
            << ThemeFileKey::WidgetContainer12;
    }
}

void tst_NumericField::frameIsPaintedFromTheTheme()
{
    QFETCH(QString, theme);
    QFETCH(QString, state);
    QFETCH(QString, outline);
    QFETCH(QString, inner);
    QFETCH(QString, background);

    ThemeManager* themes = ThemeManager::GetInstance();
    QVERIFY(themes->SetCurrentTheme(theme));
    NumericField* field = shownField();
    QVERIFY(field);
    field->clear();
    field->resize(120, 24);
    if (state == QLatin1String("focused")) {
        field->setFocus();
        QTRY_VERIFY(field->hasFocus());
    } else if (state == QLatin1String("hovered")) {
        QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), field->mapToGlobal(QPointF(2, 2)));
        QApplication::sendEvent(field, &enter);
    }
    const QImage image = field->grab().toImage();
    const qreal ratio = image.devicePixelRatio();
    const auto at = [&](int x, int y) { return image.pixelColor(QPoint(int(x * ratio), int(y * ratio))).rgb(); };
    const int middle = field->height() / 2;
    // Right of the (empty) text, left of nothing: the interior is plain background.
    QCOMPARE(at(field->width() - 6, middle), themes->GetColor(background).rgb());
    QCOMPARE(at(field->width() / 2, 0), themes->GetColor(outline).rgb());
    QCOMPARE(at(0, middle), themes->GetColor(outline).rgb());
    if (!inner.isEmpty())
        QCOMPARE(at(field->width() / 2, 1), themes->GetColor(inner).rgb());
}

void tst_NumericField::textColourFollowsEnabledStateAndTheme()
{
    NumericField field;
    ThemeManager* themes = ThemeManager::GetInstance();
    QCOMPARE(field.palette().color(QPalette::Text), themes->GetColor(ThemeFileKey::FontNormal1));
    field.setEnabled(false);
    QCOMPARE(field.palette().color(QPalette::Text), themes->GetColor(ThemeFileKey::FontColorDisabled));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("HIGLight")));
    QCOMPARE(field.palette().color(QPalette::Text), themes->GetColor(ThemeFileKey::FontColorDisabled));
    field.setEnabled(true);
    QCOMPARE(field.palette().color(QPalette::Text), themes->GetColor(ThemeFileKey::FontNormal1));
}

QTEST_MAIN(tst_NumericField)
#include "tst_numericfield.moc"

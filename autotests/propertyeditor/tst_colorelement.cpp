#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/propertyeditor/ColorElement.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/NumericField.h>

#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

class Paint : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor Tint READ GetTint WRITE SetTint NOTIFY Changed)

public:
    QColor GetTint() const { return mTint; }
    void SetTint(const QColor& tint)
    {
        ++miWrites;
        if (tint == mTint)
            return;
        mTint = tint;
        emit Changed();
    }

    int miWrites = 0;

Q_SIGNALS:
    void Changed();

private:
    QColor mTint = QColor(10, 20, 30);
};

class tst_ColorElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CoreUIManager::Initialize(nullptr);
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
        Internal::SetDiagnosticHook([](const QString&) {});
    }

    void literalColours_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("alpha");
        QTest::newRow("opaque") << "Color=\"#ff8000\"" << QColor(255, 128, 0) << false;
        QTest::newRow("alpha last") << "Color=\"#ff800040\" IsAlphaEnabled=\"True\"" << QColor(255, 128, 0, 64) << true;
        QTest::newRow("alpha without permission") << "Color=\"#ff800040\"" << QColor(255, 128, 0) << false;
        QTest::newRow("garbage") << "Color=\"#zz\"" << QColor() << false;
    }

    void literalColours()
    {
        QFETCH(QString, attributes);
        PropertyEditor editor;
        QVERIFY(
            editor.LoadUI(Definition(QStringLiteral("<ColorElement Id=\"c\" Label=\"Tint\" %1/>").arg(attributes))));
        editor.resize(400, 300);
        editor.grab();
        auto* element = qobject_cast<ColorElement*>(editor.FindElement(QStringLiteral("c")));
        QVERIFY(element);
        auto* swatch = qobject_cast<ColorSwatch*>(element->GetWidget());
        QVERIFY(swatch);
        QTEST(swatch->IsAlphaEnabled(), "alpha");
        QTEST(swatch->GetColor(), "color");
    }

    void bindsBothWays()
    {
        Paint paint;
        PropertyEditor editor;
        editor.SetContextObject(&paint);
        QVERIFY(editor.LoadUI(
            Definition(QStringLiteral("<ColorElement Id=\"c\" Label=\"Tint\" Color=\"Binding(Tint)\"/>"))));
        editor.resize(400, 300);
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        auto* element = qobject_cast<ColorElement*>(editor.FindElement(QStringLiteral("c")));
        auto* swatch = qobject_cast<ColorSwatch*>(element->GetWidget());
        QVERIFY(swatch);
        QCOMPARE(swatch->GetColor(), QColor(10, 20, 30));

        // From the source to the swatch, reported as no edit.
        QSignalSpy modified(&editor, &PropertyEditor::PropertyModified);
        paint.SetTint(QColor(Qt::yellow));
        QCOMPARE(swatch->GetColor(), QColor(Qt::yellow));
        QCOMPARE(element->GetColor(), QColor(Qt::yellow));
        QCOMPARE(modified.count(), 0);

        // From the picker to the source, live; Escape writes the old colour back.
        swatch->OpenPicker();
        auto* hex = swatch->GetPicker()->findChild<NumericField*>("hex");
        hex->setFocus();
        hex->selectAll();
        QTest::keyClicks(hex, QStringLiteral("#336699"));
        QTest::keyClick(hex, Qt::Key_Tab);
        QCOMPARE(paint.GetTint(), QColor(0x33, 0x66, 0x99));
        QCOMPARE(modified.count(), 1);
        QCOMPARE(modified.first().at(1).toString(), QStringLiteral("Color"));
        QTest::keyClick(swatch->findChild<ColorPickerPopup*>(), Qt::Key_Escape);
        QCOMPARE(paint.GetTint(), QColor(Qt::yellow));
    }

private:
    static QString Definition(const QString& elements)
    {
        return QStringLiteral("<Editor><PageElement><GroupElement Id=\"g\" Label=\"Group\">%1</GroupElement>"
                              "</PageElement></Editor>")
            .arg(elements);
    }
};

QTEST_MAIN(tst_ColorElement)
#include "tst_colorelement.moc"

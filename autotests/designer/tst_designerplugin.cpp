#include "../PaintProbe.h"

#include <KvUICore/widgets/RolloutContainer.h>

#include <QFile>
#include <QSignalSpy>
#include <QUiLoader>
#include <QtTest>

#include <memory>

using namespace Kavrel::UICore;

// The controls as the Designer plugin makes them through QUiLoader: each
// one's main property notifies once per real change, and the gallery's
// Designer form builds the library's classes (not stand-in QWidgets) with
// their properties, a rollout container keeping the controls dropped into it.
class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Probe::UseRepositoryThemes();
        mLoader.addPluginPath(QStringLiteral(KVUICORE_DESIGNER_PLUGIN_DIR));
        QFile file(QStringLiteral(KVUICORE_SOURCE_DIR "/examples/gallery/pages/DesignerPage.ui"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        mpForm.reset(mLoader.load(&file));
        QVERIFY2(mpForm, qPrintable(mLoader.errorString()));
    }

    void notifiesOncePerChange_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value"); // none: read-only, only the signal is checked
        QTest::addColumn<QVariantMap>("setup");
        const auto row = [](const char* control, const char* property, const QVariant& value,
                            const QVariantMap& setup = {}) {
            QTest::addRow("%s.%s", control, property)
                << QString::fromLatin1(control) << QByteArray(property) << value << setup;
        };
        const QVariantMap checkable{{"checkable", true}};
        const QColor color(10, 200, 30);
        row("Label", "text", QStringLiteral("Name"));
        row("TextLabel", "text", QStringLiteral("Caption"));
        row("PushButton", "checked", true, checkable);
        row("ToolButton", "checked", true, checkable);
        row("CheckBox", "checked", true);
        row("RadioButton", "checked", true);
        row("DropDown", "currentIndex", 1);
        row("DropDown", "items", QStringList{"A", "B", "C"});
        row("DropDownTree", "currentPath", QVariant());
        row("Slider", "value", 42.0);
        row("Slider", "unitSymbol", QStringLiteral("mm"));
        row("Slider", "decimalPrecision", 4);
        row("DoubleSpinBox", "value", 3.5);
        row("DoubleSpinBox", "unitSymbol", QStringLiteral("mm"));
        row("DoubleSpinBox", "decimalPrecision", 4);
        row("NumericField", "text", QStringLiteral("12"));
        row("LineEdit", "text", QStringLiteral("abc"));
        row("TextBox", "text", QStringLiteral("abc"));
        row("TextEdit", "text", QStringLiteral("abc"));
        row("SearchBox", "text", QStringLiteral("abc"));
        row("RolloutContainer", "title", QStringLiteral("Options"));
        row("RolloutContainer", "collapsed", true);
        row("RolloutContainer", "checked", false, checkable);
        row("ProgressBar", "value", 40);
        row("ProgressMeter", "text", QStringLiteral("Busy"));
        row("Divider", "orientation", QVariant::fromValue(Qt::Vertical));
        row("ImageLabel", "imageThemeKey", QStringLiteral("CheckMarkIcon"));
        row("ColorWheel", "color", color);
        row("ColorPicker", "color", color);
        row("ColorSwatch", "color", color);
        row("GradientSwatch", "stops", QVariant::fromValue(QGradientStops{{0.0, Qt::red}, {1.0, Qt::blue}}));
        row("ImageSwatch", "filePath", QStringLiteral("/missing/a.png"));
        row("TextureSwatch", "filePath", QStringLiteral("/missing/b.png"));
        row("BreadcrumbBar", "path", QStringList{"Home", "Docs"});
        row("LinkMessage", "message", QStringLiteral("See [more](more)"));
        row("MessageFacility", "maximumVisible", 5);
    }

    void notifiesOncePerChange()
    {
        QFETCH(QString, control);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        QFETCH(QVariantMap, setup);
        const std::unique_ptr<QWidget> widget(mLoader.createWidget(QStringLiteral("Kavrel::UICore::") + control));
        QVERIFY(widget);
        for (auto it = setup.cbegin(); it != setup.cend(); ++it)
            QVERIFY(widget->setProperty(it.key().toLatin1(), it.value()));
        const QMetaProperty meta = widget->metaObject()->property(widget->metaObject()->indexOfProperty(property));
        QVERIFY(meta.hasNotifySignal());
        if (!value.isValid())
            return;
        QVERIFY(widget->property(property) != value);
        QSignalSpy notified(widget.get(), meta.notifySignal());
        QVERIFY(widget->setProperty(property, value));
        QCOMPARE(widget->property(property), value);
        QCOMPARE(notified.count(), 1);
        QVERIFY(widget->setProperty(property, value));
        QCOMPARE(notified.count(), 1);
    }

    void formBuildsControlsWithProperties_data()
    {
        QTest::addColumn<QString>("object");
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char* object, const char* className, const char* property, const QVariant& value) {
            QTest::addRow("%s.%s", object, property)
                << QString::fromLatin1(object) << QByteArray("Kavrel::UICore::") + className << QByteArray(property)
                << value;
        };
        row("outputGroup", "RolloutContainer", "title", QStringLiteral("Output"));
        row("nameEdit", "TextBox", "text", QStringLiteral("Living room"));
        row("formatDropDown", "DropDown", "items", QStringList{"PNG", "JPEG", "OpenEXR"});
        row("formatDropDown", "DropDown", "text", QStringLiteral("OpenEXR"));
        row("qualitySlider", "Slider", "value", 75.0);
        row("exposureSpinBox", "DoubleSpinBox", "value", 1.5);
        row("backgroundSwatch", "ColorSwatch", "color", QColor(70, 130, 180));
    }

    void formBuildsControlsWithProperties()
    {
        QFETCH(QString, object);
        QFETCH(QByteArray, className);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        const QWidget* widget = mpForm->findChild<QWidget*>(object);
        QVERIFY(widget);
        QCOMPARE(QByteArray(widget->metaObject()->className()), className);
        QCOMPARE(widget->property(property), value);
    }

    void formContainerKeepsItsChildren()
    {
        const auto* group = mpForm->findChild<RolloutContainer*>(QStringLiteral("outputGroup"));
        QVERIFY(group && group->layout());
        for (const char* child : {"nameEdit", "formatDropDown", "qualitySlider", "exposureSpinBox"})
            QCOMPARE(mpForm->findChild<QWidget*>(QString::fromLatin1(child))->parentWidget(), group);
        // Its layout starts below the title bar.
        QVERIFY(group->contentsRect().top() >= group->TitleHeight());
    }

private:
    QUiLoader mLoader;
    std::unique_ptr<QWidget> mpForm;
};

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"

// test-options: LIBS gallery_pages NEEDS KVUICORE_BUILD_EXAMPLES
#include "../PaintProbe.h"

#include "GalleryPage.h"

#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/ProgressMeter.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/TextBox.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleValueInterface>
#include <QLabel>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

// What a screen reader may be told a control is, by the kind of Qt widget it is.
bool RoleSuits(QAccessible::Role role)
{
    return role != QAccessible::NoRole && role != QAccessible::Client;
}

// Whether the control carries a value: a drop-down once something is chosen.
bool HasValue(QAccessible::Role role, const QWidget* widget)
{
    if (const auto* dropDown = qobject_cast<const DropDown*>(widget))
        return role == QAccessible::ComboBox && dropDown->GetCurrentIndex() >= 0;
    if (const auto* tree = qobject_cast<const DropDownTree*>(widget))
        return tree->GetCurrentIndex().isValid();
    return role == QAccessible::Slider || role == QAccessible::SpinBox || role == QAccessible::ProgressBar ||
           role == QAccessible::ColorChooser;
}

// A member variable's or a part's object-like name is no name for a listener.
bool LooksLikeObjectName(const QString& name, const QObject* object)
{
    static const QRegularExpression identifier(QStringLiteral("^(m[a-z]{0,2}[A-Z]\\w*|\\w+_\\w+)$"));
    return name == object->objectName() || identifier.match(name).hasMatch();
}

QString RoleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void everyGalleryControlTellsRoleNameAndValue_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<int>("page");
        for (const char* theme : {"Light", "Dark", "HIGLight"}) {
            for (int page = 0; page < int(GalleryPages().size()); ++page)
                QTest::addRow("%s in %s", qPrintable(GalleryPages()[page].title), theme) << theme << page;
        }
    }

    void everyGalleryControlTellsRoleNameAndValue()
    {
        QFETCH(QString, theme);
        QFETCH(int, page);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
        QWidget window;
        window.resize(1200, 900);
        GalleryPages()[page].create(&window)->resize(window.size());
        window.show();
        QCoreApplication::processEvents();

        QSet<QByteArray> printed;
        int walked = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const QByteArray className = widget->metaObject()->className();
            // Closed menus and pop-ups are checked when they open.
            if (!className.startsWith("Kavrel::UICore::") || (widget->isWindow() && !widget->isVisible()))
                continue;
            ++walked;
            QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(iface, className);
            const QAccessible::Role role = iface->role();
            const QString name = iface->text(QAccessible::Name);
            const QString value = iface->text(QAccessible::Value);
            const QByteArray what = className + " \"" + name.toUtf8() + "\" " + RoleName(role).toUtf8();
            QVERIFY2(RoleSuits(role), what);
            // A divider and an empty label have nothing to say.
            const auto* label = qobject_cast<QLabel*>(widget);
            if (role != QAccessible::Separator &&
                !(role == QAccessible::StaticText && label && label->text().isEmpty()))
                QVERIFY2(!name.trimmed().isEmpty(), what);
            QVERIFY2(name.isEmpty() || !LooksLikeObjectName(name, widget), what);
            if (HasValue(role, widget) && !iface->state().busy)
                QVERIFY2(!value.isEmpty(), what);
            if (role == QAccessible::Slider || role == QAccessible::SpinBox || role == QAccessible::ProgressBar)
                QVERIFY2(iface->valueInterface() && iface->valueInterface()->currentValue().isValid(), what);
            const QAccessible::State state = iface->state();
            if (const auto* button = qobject_cast<QAbstractButton*>(widget))
                QVERIFY2(bool(state.checked) == button->isChecked(), what);
            if (const auto* rollout = qobject_cast<RolloutContainer*>(widget)) {
                QVERIFY2(bool(state.expandable) == rollout->IsExpandButtonVisible(), what);
                QVERIFY2(bool(state.collapsed) == (state.expandable && rollout->IsCollapsed()), what);
                QVERIFY2(bool(state.expanded) == (state.expandable && !rollout->IsCollapsed()), what);
            }
            if (const auto* meter = qobject_cast<ProgressMeter*>(widget))
                QVERIFY2(bool(state.busy) == meter->IsRunning(), what);
            if (const auto* box = qobject_cast<TextBox*>(widget))
                QVERIFY2(bool(state.readOnly) == box->IsReadOnly(), what);
            // The parts a control is built from never leak their object names either.
            for (int index = 0; index < iface->childCount(); ++index) {
                QAccessibleInterface* child = iface->child(index);
                const QString childName = child ? child->text(QAccessible::Name) : QString();
                QVERIFY2(childName.isEmpty() || !LooksLikeObjectName(childName, child->object()),
                         what + " child " + childName.toUtf8());
            }
            // One line per kind of control and role, for the record.
            const QByteArray kind = className + '|' + RoleName(role).toLatin1();
            if (!printed.contains(kind)) {
                printed.insert(kind);
                qInfo().noquote() << QStringLiteral("A11Y|%1|%2|%3|%4")
                                         .arg(QString::fromLatin1(className.mid(16)), RoleName(role), name, value);
            }
        }
        if (walked == 0)
            QSKIP("The page shows no control of the library.");
    }

    void screenReadersOperateTheControls()
    {
        Slider slider;
        slider.SetRange(0, 10);
        QSignalSpy changed(&slider, &Slider::ValueChanged);
        QAccessible::queryAccessibleInterface(&slider)->valueInterface()->setCurrentValue(7.5);
        QCOMPARE(slider.GetValue(), 7.5);
        QCOMPARE(changed.count(), 1);

        RolloutContainer rollout;
        QAccessibleInterface* group = QAccessible::queryAccessibleInterface(&rollout);
        group->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(rollout.IsCollapsed());
        QVERIFY(group->state().collapsed && !group->state().expanded);

        DropDown dropDown;
        dropDown.AddItem(QStringLiteral("Oak"));
        dropDown.AddItem(QStringLiteral("Walnut"));
        dropDown.SetCurrentIndex(1);
        QCOMPARE(QAccessible::queryAccessibleInterface(&dropDown)->text(QAccessible::Value), QStringLiteral("Walnut"));
    }
};

QTEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"

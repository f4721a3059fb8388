// test-options: SCALES 1.25 1.5 2 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/ItemGroup.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QtMath>

#include <functional>

using namespace Kavrel::UICore;

namespace {

QIcon solidIcon(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

class tst_DropDown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { QVERIFY(mDropDown = shownDropDown()); }
    void cleanup()
    {
        if (mpPopupTimer)
            delete mpPopupTimer.data();
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void currentIndexIsAnnouncedAndKeptAcrossInsertAndRemove()
    {
        DropDown dropDown;
        dropDown.AddItem(QStringLiteral("One"));
        dropDown.AddItem(QStringLiteral("Two"));
        QSignalSpy changed(&dropDown, &DropDown::CurrentIndexChanged);
        QCOMPARE(dropDown.GetCurrentIndex(), -1);

        dropDown.SetCurrentIndex(1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.last(), (QList<QVariant>{1, -1}));
        QCOMPARE(dropDown.text(), QStringLiteral("Two"));

        dropDown.SetCurrentIndex(1);
        QCOMPARE(changed.count(), 1);

        // No range check: any other value is stored and announced.
        dropDown.SetCurrentIndex(42);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last(), (QList<QVariant>{42, 1}));
        QCOMPARE(dropDown.GetCurrentIndex(), 42);
        QCOMPARE(dropDown.GetCurrentText(), QString());

        // Inserting and removing other items keeps the current one, silently.
        dropDown.SetCurrentIndex(1);
        changed.clear();
        QAction* two = dropDown.GetActions().at(1);
        QVERIFY(dropDown.InsertItem(0, QStringLiteral("first"), 7));
        QCOMPARE(dropDown.GetCurrentIndex(), 2);
        QCOMPARE(dropDown.GetCurrentText(), QStringLiteral("Two"));
        QCOMPARE(dropDown.ItemData(0), QVariant(7));
        QAction external(QStringLiteral("external"));
        QVERIFY(dropDown.InsertAction(two, &external));
        QCOMPARE(dropDown.GetItemText(2), QStringLiteral("external"));
        QCOMPARE(dropDown.GetCurrentText(), QStringLiteral("Two"));
        dropDown.RemoveAction(&external);
        QCOMPARE(dropDown.GetCurrentIndex(), 2);
        QCOMPARE(changed.count(), 0);
        // Removing the current item leaves none.
        dropDown.RemoveAction(two);
        QCOMPARE(dropDown.GetCurrentIndex(), -1);
        QCOMPARE(changed.count(), 1);

        dropDown.ClearItems();
        QCOMPARE(dropDown.Count(), 0);
        QCOMPARE(dropDown.text(), QString());
        // The host's action survives.
        QCOMPARE(external.text(), QStringLiteral("external"));
    }

    void itemsJoinNumberedGroupsWithSeparators()
    {
        DropDown dropDown;
        QVERIFY(!dropDown.AddItem(1, QStringLiteral("no group 0 yet")));
        QVERIFY(!dropDown.AddItem(-1, QStringLiteral("negative")));
        QCOMPARE(dropDown.Count(), 0);
        QVERIFY(dropDown.AddItem(0, QStringLiteral("a")));
        QVERIFY(dropDown.AddItem(0, QStringLiteral("b")));
        QVERIFY(dropDown.AddItem(1, QStringLiteral("c")));
        // a, b, separator, c
        QCOMPARE(dropDown.Count(), 4);
        QVERIFY(dropDown.GetActions().at(2)->isSeparator());
        QCOMPARE(dropDown.ItemIndexInMenu(1, 0), 3);
        QCOMPARE(dropDown.GetGroupId(0), 0);
        QCOMPARE(dropDown.GetGroupId(3), 1);
        QCOMPARE(dropDown.GetGroupId(-1), -1);
        QCOMPARE(dropDown.GetGroupId(4), -1);
        // Two groups: id 2 would make a third; anything above adds nothing.
        QVERIFY(!dropDown.AddItem(4, QStringLiteral("x")));
        QAction action(QStringLiteral("x"));
        QVERIFY(!dropDown.AddAction(&action, 3));
        QVERIFY(!dropDown.AddSeparator(5));
        QCOMPARE(dropDown.AddMenu(7, QIcon(), QStringLiteral("sub")), -1);
        QCOMPARE(dropDown.Count(), 4);

        // An item added to an earlier group goes before that group's separator.
        QVERIFY(dropDown.AddItem(0, QStringLiteral("d")));
        QCOMPARE(dropDown.GetItemText(2), QStringLiteral("d"));
        QVERIFY(dropDown.GetActions().at(3)->isSeparator());
        QCOMPARE(dropDown.GetItemText(4), QStringLiteral("c"));

        // The group-less forms add to the last group.
        QVERIFY(dropDown.AddItem(QStringLiteral("e")));
        QCOMPARE(dropDown.GetGroupId(5), 1);
        QCOMPARE(dropDown.GetActionGroup(1)->actions().size(), 2);
        QVERIFY(!dropDown.GetActionGroup(2));

        dropDown.SetGroupSeparatorVisible(false, 0);
        QVERIFY(!dropDown.IsGroupSeparatorVisible(0));
        QVERIFY(!dropDown.GetActions().at(3)->isVisible());
        dropDown.SetGroupSeparatorVisible(true, 0);
        QVERIFY(dropDown.GetActions().at(3)->isVisible());

        // A group of labels needs no separator after it.
        dropDown.SetItemType(DropDown::GroupLabelItem, 0);
        QVERIFY(!dropDown.GetActions().at(3)->isVisible());
        QVERIFY(DropDownMenu::IsGroupLabel(dropDown.GetActions().at(0)));
        QVERIFY(!dropDown.GetActions().at(0)->isEnabled());
    }

    void labelTextRules_data()
    {
        QTest::addColumn<int>("itemType");
        QTest::addColumn<bool>("forceDisplay");
        QTest::addColumn<bool>("iconOnly");
        QTest::addColumn<QString>("shown");

        QTest::newRow("normal item") << int(DropDown::NormalItem) << false << false << "Second";
        QTest::newRow("checkable item") << int(DropDown::CheckableItem) << false << false << "Options";
        QTest::newRow("command item") << int(DropDown::CommandItem) << false << false << "Options";
        QTest::newRow("forced text") << int(DropDown::NormalItem) << true << false << "Options";
        QTest::newRow("icon only") << int(DropDown::NormalItem) << false << true << "Options";
        QTest::newRow("type above the known ones") << 5 << false << false << "Second";
    }

    void labelTextRules()
    {
        QFETCH(int, itemType);
        QFETCH(bool, forceDisplay);
        QFETCH(bool, iconOnly);
        QFETCH(QString, shown);

        DropDown dropDown;
        dropDown.AddItem(0, QStringLiteral("First"));
        dropDown.AddItem(0, solidIcon(Qt::red), QStringLiteral("Second"));
        dropDown.SetItemType(DropDown::ItemType(itemType), 0);
        dropDown.SetDisplayedText(QStringLiteral("Options"));
        dropDown.EnableForceDisplayText(forceDisplay);
        dropDown.SetIconOnly(iconOnly);
        dropDown.SetCurrentIndex(1);
        QCOMPARE(dropDown.text(), shown);
        if (iconOnly)
            QVERIFY(dropDown.IsDropDownWithIcon());
    }

    void groupExclusiveness()
    {
        DropDown dropDown;
        QVERIFY(!dropDown.GetGroupItemExclusive(0));
        dropDown.AddItem(0, QStringLiteral("a"));
        dropDown.AddItem(0, QStringLiteral("b"));
        QVERIFY(dropDown.GetGroupItemExclusive(0));
        dropDown.SetItemType(DropDown::CheckableItem, 0);
        QVERIFY(dropDown.GetGroupItemExclusive(0));
        dropDown.SetGroupItemExclusive(0, false);
        QVERIFY(!dropDown.GetGroupItemExclusive(0));
        dropDown.SetGroupItemExclusive(true);
        QVERIFY(dropDown.GetGroupItemExclusive(0));
        QVERIFY(!dropDown.GetGroupItemExclusive(1));
        // Only checkable groups read their action group.
        dropDown.SetItemType(DropDown::CommandItem, 0);
        dropDown.SetGroupItemExclusive(0, false);
        QVERIFY(dropDown.GetGroupItemExclusive(0));
    }

    void checkedItemsAndHiddenGroups()
    {
        DropDown dropDown;
        dropDown.AddItem(0, QStringLiteral("a"));
        dropDown.AddItem(1, QStringLiteral("b"));
        dropDown.AddItem(1, QStringLiteral("c"));
        dropDown.SetItemType(DropDown::CheckableItem, 1);
        dropDown.SetCheckedItem(1, 0);
        QVERIFY(dropDown.GetActions().at(2)->isChecked());
        dropDown.SetCheckedItemByIndex(3);
        QVERIFY(dropDown.GetActions().at(3)->isChecked());
        QVERIFY(!dropDown.GetActions().at(2)->isChecked());

        // An unchecked action joins unchecked and non-checkable; a checked one stays checked.
        QAction checked(QStringLiteral("checked"));
        checked.setCheckable(true);
        checked.setChecked(true);
        QAction plain(QStringLiteral("plain"));
        plain.setCheckable(true);
        dropDown.AddAction(&checked, 2);
        dropDown.AddAction(&plain, 2);
        QVERIFY(checked.isChecked());
        QVERIFY(!plain.isCheckable());

        dropDown.HideOrShowItemGroup(1, false);
        QVERIFY(!dropDown.GetActions().at(2)->isVisible());
        QVERIFY(!dropDown.GetActions().at(3)->isVisible());
        // The hidden group's separator goes too; the first group's stays.
        QVERIFY(!dropDown.GetActions().at(4)->isVisible());
        QVERIFY(dropDown.GetActions().at(1)->isVisible());
        dropDown.HideOrShowItemGroup(1, true);
        QVERIFY(dropDown.GetActions().at(2)->isVisible());
        QVERIFY(dropDown.GetActions().at(4)->isVisible());
    }

    void findAndData()
    {
        DropDown dropDown;
        dropDown.AddItem(QStringLiteral("Metre"), QStringLiteral("m"));
        dropDown.AddItem(solidIcon(Qt::blue), QStringLiteral("Foot"), QStringLiteral("ft"));
        QCOMPARE(dropDown.FindData(QStringLiteral("ft")), 1);
        QCOMPARE(dropDown.FindData(QStringLiteral("Metre"), Qt::DisplayRole), 0);
        QCOMPARE(dropDown.FindData(QStringLiteral("in")), -1);
        QCOMPARE(dropDown.FindText(QStringLiteral("foot")), -1);
        QCOMPARE(dropDown.FindText(QStringLiteral("foot"), Qt::CaseInsensitive), 1);
        dropDown.SetItemData(0, 3);
        QCOMPARE(dropDown.FindData(3), 0);
        dropDown.SetCurrentIndex(0);
        dropDown.SetItemText(0, QStringLiteral("Metres"));
        QCOMPARE(dropDown.text(), QStringLiteral("Metres"));
        QCOMPARE(dropDown.ItemData(9), QVariant());
    }

    void subMenus()
    {
        DropDown dropDown;
        dropDown.AddItem(0, QStringLiteral("a"));
        const int menuIndex = dropDown.AddMenu(1, QIcon(), QStringLiteral("More"));
        QCOMPARE(menuIndex, 2);
        QAction* x = dropDown.AddSubMenuItem(menuIndex, QStringLiteral("x"), 1);
        QAction* y = dropDown.AddSubMenuItem(menuIndex, solidIcon(Qt::green), QStringLiteral("y"), 2);
        QVERIFY(x && y);
        QVERIFY(!dropDown.AddSubMenuItem(0, QStringLiteral("not a sub-menu")));
        QCOMPARE(x->data(), QVariant(1));
        auto* subMenu = qobject_cast<DropDownMenu*>(dropDown.GetActions().at(menuIndex)->menu());
        QVERIFY(subMenu);

        dropDown.HideOrShowSubMenuItem(menuIndex, 0, false);
        QVERIFY(!x->isVisible());
        dropDown.HideOrShowSubMenuItem(menuIndex, QVariant(2), false);
        QVERIFY(!y->isVisible());
        dropDown.HideOrShowSubMenuItem(menuIndex, 0, true);
        QVERIFY(x->isVisible());
        dropDown.EnableSubMenu(menuIndex, false);
        QVERIFY(!subMenu->menuAction()->isEnabled());

        // A sub-menu item announces itself but is no item of the drop-down.
        dropDown.SetCurrentIndex(0);
        QSignalSpy triggered(&dropDown, &DropDown::Triggered);
        QSignalSpy changed(&dropDown, &DropDown::CurrentIndexChanged);
        dropDown.ActionTriggered(x);
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(dropDown.GetCurrentIndex(), 0);
    }

    void choosingFromTheMenu_data()
    {
        QTest::addColumn<bool>("checkable");
        QTest::addColumn<bool>("byMouse");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("label");

        // Items: First, Second, separator, Third; First is current.
        QTest::newRow("current item only triggers") << false << false << QList<int>{Qt::Key_Return} << 0 << "First";
        QTest::newRow("down skips the separator")
            << false << true << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Return} << 3 << "Third";
        QTest::newRow("check item toggles and keeps the label")
            << true << false << QList<int>{Qt::Key_Down, Qt::Key_Return} << 1 << "View";
    }

    void choosingFromTheMenu()
    {
        QFETCH(bool, checkable);
        QFETCH(bool, byMouse);
        QFETCH(QList<int>, keys);
        QFETCH(int, chosen);
        QFETCH(QString, label);

        mDropDown->AddItem(0, QStringLiteral("First"));
        mDropDown->AddItem(0, QStringLiteral("Second"));
        mDropDown->AddItem(1, QStringLiteral("Third"));
        if (checkable) {
            mDropDown->SetItemType(DropDown::CheckableItem, 0);
            mDropDown->SetGroupItemExclusive(0, false);
            mDropDown->SetCheckedItem(0, 0);
            mDropDown->SetDisplayedText(QStringLiteral("View"));
        }
        mDropDown->SetCurrentIndex(0);
        QAction* const expected = mDropDown->GetActions().at(chosen);
        QSignalSpy aboutToShow(mDropDown, &DropDown::DropDownListAboutToShow);
        QStringList order;
        connect(mDropDown, &DropDown::CurrentIndexChanged, this,
                [&order](int now, int before) { order << QStringLiteral("changed %1 %2").arg(now).arg(before); });
        connect(mDropDown, &DropDown::Triggered, this, [&order, expected](QAction* action) {
            order << (action == expected ? QStringLiteral("triggered") : QStringLiteral("triggered another"));
        });

        QAction* active = nullptr;
        whenPopupShows([&active, keys](QMenu* menu) {
            active = menu->activeAction();
            for (int key : keys)
                QTest::keyClick(menu, Qt::Key(key));
        });
        if (byMouse)
            QTest::mouseClick(mDropDown, Qt::LeftButton);
        else
            QTest::keyClick(mDropDown, Qt::Key_Down);
        QTRY_VERIFY_WITH_TIMEOUT(order.contains(QStringLiteral("triggered")) ||
                                     order.contains(QStringLiteral("triggered another")),
                                 Probe::kTimeoutMs);
        // The menu opens on the current item; a change is announced before the trigger.
        QCOMPARE(active, mDropDown->GetActions().at(0));
        QStringList expectedOrder{QStringLiteral("triggered")};
        if (chosen != 0)
            expectedOrder.prepend(QStringLiteral("changed %1 0").arg(chosen));
        QCOMPARE(order, expectedOrder);
        QCOMPARE(mDropDown->GetCurrentIndex(), chosen);
        QCOMPARE(mDropDown->text(), label);
        QCOMPARE(aboutToShow.count(), 1);
        QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), Probe::kTimeoutMs);
        // Giving the window back its activation after a popup is the platform's
        // part, late on a busy machine; the drop-down's part is to be the
        // window's focus widget again.
        QTRY_COMPARE_WITH_TIMEOUT(mDropDown->window()->focusWidget(), mDropDown, Probe::kTimeoutMs);
        QVERIFY(!mDropDown->isDown());
        if (checkable)
            QVERIFY(expected->isChecked() && mDropDown->GetActions().at(0)->isChecked());
    }

    void menuOpensAlignedToTheButton_data()
    {
        QTest::addColumn<DropDown::AlignmentMode>("alignment");
        QTest::newRow("right") << DropDown::AlignRight;
        QTest::newRow("left") << DropDown::AlignLeft;
    }

    void menuOpensAlignedToTheButton()
    {
        QFETCH(DropDown::AlignmentMode, alignment);
        mDropDown->setFixedWidth(90);
        mDropDown->AddItem(QStringLiteral("Longer than the button"));
        mDropDown->AddItem(QStringLiteral("B"));
        mDropDown->SetAlignment(alignment);
        QCOMPARE(mDropDown->property("alignment").value<DropDown::AlignmentMode>(), alignment);
        QTRY_COMPARE(mDropDown->width(), 90);

        QRect geometry;
        whenPopupShows([&geometry](QMenu* menu) {
            geometry = menu->geometry();
            QTest::keyClick(menu, Qt::Key_Escape);
        });
        QTest::keyClick(mDropDown, Qt::Key_Down);
        QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), Probe::kTimeoutMs);
        QVERIFY(geometry.isValid());
        const QPoint bottomLeft = mDropDown->mapToGlobal(QPoint(0, mDropDown->height()));
        QCOMPARE(geometry.top(), bottomLeft.y());
        QVERIFY(geometry.width() > mDropDown->width());
        if (alignment == DropDown::AlignLeft)
            QCOMPARE(geometry.left(), bottomLeft.x());
        else // x is the button's right coordinate less the menu's width
            QCOMPARE(geometry.left(), bottomLeft.x() + mDropDown->width() - 1 - geometry.width());
    }

    void deletingFromTriggeredSlotWhileMenuOpen_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("opened with the keyboard") << false;
        QTest::newRow("opened with the mouse") << true;
    }

    void deletingFromTriggeredSlotWhileMenuOpen()
    {
        QFETCH(bool, byMouse);
        DropDown* shown = shownDropDown();
        QVERIFY(shown);
        QPointer<DropDown> dropDown(shown);
        dropDown->AddItem(QStringLiteral("Keep"));
        dropDown->AddItem(QStringLiteral("Delete me"));
        QPointer<DropDownMenu> menu(dropDown->GetDropDownMenu());
        int triggered = 0;
        connect(dropDown, &DropDown::Triggered, this, [&triggered, dropDown] {
            ++triggered;
            delete dropDown.data();
        });

        whenPopupShows([](QMenu* popup) {
            QTest::keyClick(popup, Qt::Key_Down);
            QTest::keyClick(popup, Qt::Key_Return);
        });
        // Press only: the drop-down is gone before a release could be sent to it.
        if (byMouse)
            QTest::mousePress(shown, Qt::LeftButton, Qt::NoModifier, shown->rect().center());
        else
            QTest::keyClick(shown, Qt::Key_Down);
        QTRY_VERIFY_WITH_TIMEOUT(dropDown.isNull(), Probe::kTimeoutMs);
        QCOMPARE(triggered, 1);
        // The menu goes once control is back in the event loop.
        QTRY_VERIFY_WITH_TIMEOUT(menu.isNull(), Probe::kTimeoutMs);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void sizeHints()
    {
        DropDown dropDown;
        QCOMPARE(dropDown.minimumSizeHint(), QSize(13, 24));
        dropDown.AddItem(QStringLiteral("Millimetres"));
        dropDown.SetCurrentIndex(0);
        const int advance = dropDown.fontMetrics().horizontalAdvance(QStringLiteral("Millimetres"));
        QCOMPARE(dropDown.sizeHint(), QSize(advance + 16 + 5, 24));
        dropDown.SetItemIcon(0, solidIcon(Qt::red));
        QCOMPARE(dropDown.sizeHint(), QSize(advance + 16 + dropDown.iconSize().width() + 5, 24));
        dropDown.SetIconOnly(true);
        QCOMPARE(dropDown.sizeHint(), QSize(36, 24));
    }

    void paintsButtonAndMenuFromTheme_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::newRow("Light") << "Light";
        QTest::newRow("Dark") << "Dark";
        QTest::newRow("HIGLight") << "HIGLight";
    }

    void paintsButtonAndMenuFromTheme()
    {
        QFETCH(QString, theme);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
        QVERIFY(Probe::Unfocus(mDropDown));
        mDropDown->AddItem(0, QStringLiteral("Header"));
        mDropDown->SetItemType(DropDown::GroupLabelItem, 0);
        mDropDown->AddItem(1, QStringLiteral("First"));
        mDropDown->AddItem(1, QStringLiteral("Second"));
        mDropDown->AddItem(2, QStringLiteral("Third"));

        const auto expect = [](const QImage& image, QPoint logical, const QString& key) {
            QVERIFY2(Probe::ThemeColor(key).isValid(), qPrintable(key));
            QVERIFY2(Probe::PixelAt(image, logical).rgb() == Probe::ThemeColor(key).rgb(), qPrintable(key));
        };
        const QImage button = Probe::Grab(mDropDown);
        expect(button, QPoint(mDropDown->width() / 2, 1), ThemeFileKey::DropDownButtonNormalBorderColor);
        // Inside the arrow, in the 16-pixel column at the right.
        expect(button, QPoint(mDropDown->width() - 16 + 6, mDropDown->height() / 2 - 1),
               ThemeFileKey::DropDownTriangle);

        DropDownMenu* menu = mDropDown->GetDropDownMenu();
        menu->popup(mDropDown->mapToGlobal(QPoint(0, mDropDown->height())));
        QTRY_VERIFY(menu->isVisible());
        const QImage image = Probe::Grab(menu);
        menu->close();
        QTRY_VERIFY(!menu->isVisible());

        const QList<QAction*> actions = menu->actions();
        const auto rightEnd = [&](int index) {
            const QRect item = menu->actionGeometry(actions.at(index));
            return QPoint(item.right() - 3, item.center().y());
        };
        expect(image, rightEnd(0), ThemeFileKey::DropDownGroupLabel);
        expect(image, rightEnd(2), ThemeFileKey::DropDownMenuBackground);
        const QRect separator = menu->actionGeometry(actions.at(4));
        QVERIFY(actions.at(4)->isSeparator());
        const QColor separatorColor = Probe::ThemeColor(ThemeFileKey::DropDownMenuSeparator);
        // The line is one device pixel thick: look for it among the separator's device rows.
        bool lineFound = false;
        const qreal ratio = image.devicePixelRatio();
        for (int y = qFloor(separator.top() * ratio); y < qCeil((separator.bottom() + 1) * ratio); ++y)
            lineFound =
                lineFound || image.pixelColor(qRound(separator.center().x() * ratio), y).rgb() == separatorColor.rgb();
        QVERIFY(lineFound);
    }

private:
    DropDown* shownDropDown()
    {
        auto* window = new QWidget;
        mWidgets << window;
        auto* layout = new QVBoxLayout(window);
        auto* dropDown = new DropDown(window);
        layout->addWidget(dropDown);
        layout->addStretch();
        // Room for the menus on either side, also on the small screen of a scaled run.
        window->setGeometry(150, 20, 220, 120);
        if (!Probe::ShowActive(window) || !Probe::Focus(dropDown))
            return nullptr;
        return dropDown;
    }

    // Runs step on the active popup once it is up, from inside the menu's modal loop.
    void whenPopupShows(std::function<void(QMenu*)> step)
    {
        auto* timer = new QTimer(this);
        mpPopupTimer = timer;
        timer->setInterval(10);
        connect(timer, &QTimer::timeout, this, [timer, step] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu || !menu->isVisible())
                return;
            timer->stop();
            timer->deleteLater();
            step(menu);
        });
        timer->start();
    }

    QList<QWidget*> mWidgets;
    QPointer<QTimer> mpPopupTimer;
    DropDown* mDropDown = nullptr;
};

QTEST_MAIN(tst_DropDown)
#include "tst_dropdown.moc"

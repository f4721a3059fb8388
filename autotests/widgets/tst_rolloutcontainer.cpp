// test-options: SCALES 1.25 1.5 2
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/RolloutContainer.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <limits>

using namespace Kavrel::UICore;

namespace {

QAbstractButton* checkBoxOf(RolloutContainer* container)
{
    for (QAbstractButton* button : container->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly)) {
        if (button->accessibleName() == QStringLiteral("RolloutContainer_CheckBox"))
            return button;
    }
    return nullptr;
}

// The first column of the row whose pixel has exactly the colour, or -1.
int firstColumnWithColor(const QImage& image, int logicalY, const QColor& color)
{
    const qreal ratio = image.devicePixelRatio();
    const int y = qRound(logicalY * ratio);
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y).rgb() == color.rgb())
            return qRound(x / ratio);
    }
    return -1;
}

bool sendToolTip(QWidget* widget, QPoint pos)
{
    QHelpEvent help(QEvent::ToolTip, pos, widget->mapToGlobal(pos));
    return QApplication::sendEvent(widget, &help);
}

} // namespace

class tst_RolloutContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { QVERIFY(mContainer = shownContainer()); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QToolTip::hideText();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void nestedContainersIndentOneStepPerLevel()
    {
        // A standalone container to compare with: a parent's grab would show its children on top.
        RolloutContainer alone;
        RolloutContainer top;
        RolloutContainer level1(&top);
        RolloutContainer level2(&level1);
        QCOMPARE(top.IndentLevel(), 0);
        QCOMPARE(level1.IndentLevel(), 1);
        QCOMPARE(level2.IndentLevel(), 2);
        // Containers placed through a layout learn their level when reparented.
        auto* later = new RolloutContainer;
        (new QVBoxLayout(&top))->addWidget(later);
        QCOMPARE(later->IndentLevel(), 1);

        // Same title, same width: the disclosure triangle starts 32 pixels further right.
        const QColor triangle = Probe::ThemeColor(ThemeFileKey::Triangle);
        QVERIFY(triangle.isValid());
        for (RolloutContainer* c : {&alone, &level2}) {
            c->SetTitle(QStringLiteral("Title"));
            c->resize(200, c->TitleHeight() + 10);
        }
        const int row = alone.TitleHeight() / 2;
        const int x0 = firstColumnWithColor(Probe::Grab(&alone), row, triangle);
        QVERIFY(x0 >= 0);
        QCOMPARE(firstColumnWithColor(Probe::Grab(&level2), row, triangle) - x0, 32);
    }

    void collapsingRemembersWhatItHid()
    {
        RolloutContainer* outer = shownContainer();
        QVERIFY(outer);
        auto* inner = new RolloutContainer(outer);
        inner->SetTitle(QStringLiteral("Inner"));
        auto* innerChild = new QLabel(QStringLiteral("inside"), inner);
        auto* hiddenByHost = new QLabel(QStringLiteral("hidden"), outer);
        outer->layout()->addWidget(inner);
        outer->layout()->addWidget(hiddenByHost);
        hiddenByHost->hide();
        QLabel* label = outer->findChild<QLabel*>();
        QSignalSpy collapsed(outer, &RolloutContainer::Collapsed);
        QSignalSpy innerCollapsed(inner, &RolloutContainer::Collapsed);

        inner->SetIsCollapsed(true);
        QVERIFY(innerChild->isHidden());
        outer->SetIsCollapsed(true);
        QCOMPARE(collapsed.count(), 1);
        QCOMPARE(collapsed.last().at(0).toBool(), true);
        QVERIFY(label->isHidden());
        QVERIFY(inner->isHidden());
        QVERIFY(!checkBoxOf(outer)->isVisible());
        outer->SetIsCollapsed(true);
        QCOMPARE(collapsed.count(), 1);

        outer->SetIsCollapsed(false);
        QCOMPARE(collapsed.count(), 2);
        QCOMPARE(collapsed.last().at(0).toBool(), false);
        QVERIFY(label->isVisible());
        QVERIFY(inner->isVisible());
        QVERIFY(hiddenByHost->isHidden());
        // The inner container keeps its own state.
        QVERIFY(inner->IsCollapsed());
        QVERIFY(innerChild->isHidden());
        inner->SetIsCollapsed(false);
        QVERIFY(innerChild->isVisible());
        QCOMPARE(innerCollapsed.count(), 2);
    }

    void userInputToggles_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("startCollapsed");
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("toggles");

        QTest::newRow("left click in title collapses") << "left" << false << "" << true;
        QTest::newRow("left click in title expands") << "left" << true << "" << true;
        QTest::newRow("right click in title") << "right" << false << "" << false;
        QTest::newRow("left click below title") << "below" << false << "" << false;
        QTest::newRow("up collapses") << "up" << false << "" << true;
        QTest::newRow("up while collapsed") << "up" << true << "" << false;
        QTest::newRow("down expands") << "down" << true << "" << true;
        QTest::newRow("down while expanded") << "down" << false << "" << false;
        QTest::newRow("disabled, expandable") << "left" << false << "disabled expandable" << true;
        QTest::newRow("disabled, frozen") << "left" << false << "disabled" << false;
        QTest::newRow("no expand button, click") << "left" << false << "no button" << false;
        QTest::newRow("no expand button, up") << "up" << false << "no button" << false;
        QTest::newRow("space collapses") << "space" << false << "" << true;
        QTest::newRow("space expands") << "space" << true << "" << true;
        QTest::newRow("return collapses") << "return" << false << "" << true;
        QTest::newRow("no expand button, space") << "space" << false << "no button" << false;
        QTest::newRow("ctrl+space checks, no fold") << "ctrl+space" << false << "" << false;
    }

    void userInputToggles()
    {
        QFETCH(QString, input);
        QFETCH(bool, startCollapsed);
        QFETCH(QString, state);
        QFETCH(bool, toggles);

        mContainer->SetIsCollapsed(startCollapsed);
        mContainer->SetIsExpandableWhenDisabled(state == QLatin1String("disabled expandable"));
        mContainer->setEnabled(!state.startsWith(QLatin1String("disabled")));
        mContainer->SetExpandButtonVisible(state != QLatin1String("no button"));
        QSignalSpy collapsed(mContainer, &RolloutContainer::Collapsed);
        // Checkable, so that the check box's own key is told apart.
        mContainer->SetIsCheckable(true);

        const QRect title = mContainer->GetTitleRect();
        const QHash<QString, Qt::Key> keys{{"up", Qt::Key_Up},
                                           {"down", Qt::Key_Down},
                                           {"space", Qt::Key_Space},
                                           {"ctrl+space", Qt::Key_Space},
                                           {"return", Qt::Key_Return}};
        if (keys.contains(input) && Probe::Focus(mContainer))
            QTest::keyClick(mContainer, keys.value(input),
                            input.startsWith(QLatin1String("ctrl")) ? Qt::ControlModifier : Qt::NoModifier);
        else
            QTest::mouseClick(mContainer, input == QLatin1String("right") ? Qt::RightButton : Qt::LeftButton,
                              Qt::NoModifier,
                              input == QLatin1String("below") ? QPoint(title.center().x(), mContainer->height() - 3)
                                                              : title.center());
        QCOMPARE(mContainer->IsCollapsed(), startCollapsed != toggles);
        QCOMPARE(collapsed.count(), toggles ? 1 : 0);
        if (toggles)
            QCOMPARE(collapsed.last().at(0).toBool(), !startCollapsed);
        QCOMPARE(mContainer->IsChecked(), input != QLatin1String("ctrl+space"));
        QVERIFY(!QWidget::mouseGrabber());
    }

    void hiddenExpandButtonFreezesTheState()
    {
        mContainer->SetIsCollapsed(true);
        QSignalSpy collapsed(mContainer, &RolloutContainer::Collapsed);
        mContainer->SetExpandButtonVisible(false);
        // Hiding the button expands first.
        QCOMPARE(collapsed.count(), 1);
        QCOMPARE(collapsed.last().at(0).toBool(), false);
        QVERIFY(!mContainer->IsCollapsed());
        // Nor can code collapse it now.
        mContainer->SetIsCollapsed(true);
        QVERIFY(!mContainer->IsCollapsed());
        QCOMPARE(collapsed.count(), 1);

        // No triangle is painted.
        const QColor triangle = Probe::ThemeColor(ThemeFileKey::Triangle);
        QVERIFY(triangle.isValid());
        QCOMPARE(firstColumnWithColor(Probe::Grab(mContainer), mContainer->TitleHeight() / 2, triangle), -1);
    }

    void checkBoxEnablesContentButKeepsHostDisabledChildren()
    {
        QLineEdit* edit = mContainer->findChild<QLineEdit*>();
        QLabel* label = mContainer->findChild<QLabel*>();
        label->setEnabled(false);
        QAbstractButton* checkBox = checkBoxOf(mContainer);
        QVERIFY(qobject_cast<CheckBox*>(checkBox));
        QVERIFY(checkBox->isHidden());
        QVERIFY(mContainer->IsChecked());

        // Not checkable: SetChecked is ignored.
        mContainer->SetChecked(false);
        QVERIFY(mContainer->IsChecked());
        QVERIFY(edit->isEnabled());

        mContainer->SetIsCheckable(true);
        QTRY_VERIFY(checkBox->isVisible());
        mContainer->repaint();
        QSignalSpy toggled(mContainer, &RolloutContainer::CheckBoxToggled);
        QSignalSpy clicked(mContainer, &RolloutContainer::CheckBoxClicked);
        // The check box sits in the title bar, right of the triangle column.
        QVERIFY(mContainer->GetTitleRect().contains(checkBox->geometry().center()));

        QTest::mouseClick(checkBox, Qt::LeftButton, Qt::NoModifier, checkBox->rect().center());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(toggled.count(), 1);
        QCOMPARE(toggled.last().at(0).toBool(), false);
        QVERIFY(!mContainer->IsChecked());
        QVERIFY(!edit->isEnabled());
        QVERIFY(!label->isEnabled());
        QVERIFY(checkBox->isEnabled());

        QTest::mouseClick(checkBox, Qt::LeftButton, Qt::NoModifier, checkBox->rect().center());
        QVERIFY(mContainer->IsChecked());
        QVERIFY(edit->isEnabled());
        QVERIFY(!label->isEnabled());
        QCOMPARE(toggled.last().at(0).toBool(), true);

        // Through the slot as well; enabling the container again re-applies the check state.
        mContainer->SetChecked(false);
        QVERIFY(!edit->isEnabled());
        mContainer->setEnabled(false);
        mContainer->setEnabled(true);
        QVERIFY(!edit->isEnabled());
        mContainer->SetChecked(true);
        QVERIFY(edit->isEnabled());
        QVERIFY(!label->isEnabled());
    }

    void titleTooltips()
    {
        RolloutContainer* container = shownContainer(300);
        QVERIFY(container);
        container->SetElideMode(Qt::ElideRight);
        container->repaint();
        const QPoint inTitle = container->GetTitleRect().center();

        QVERIFY(sendToolTip(container, inTitle));
        QVERIFY(!QToolTip::isVisible());

        container->SetTitleToolTip(QStringLiteral("The part's size"));
        QVERIFY(sendToolTip(container, inTitle));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("The part's size"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());

        // Outside the title the container does not handle the event and shows nothing.
        container->setToolTip(QStringLiteral("container's own"));
        QVERIFY(!sendToolTip(container, QPoint(container->width() / 2, container->height() - 3)));
        QVERIFY(!QToolTip::isVisible());
        // Inside, a title that fits without a title tooltip hides any tooltip.
        container->SetTitleToolTip(QString());
        QToolTip::showText(container->mapToGlobal(QPoint(0, 0)), QStringLiteral("stale"), container);
        QVERIFY(sendToolTip(container, inTitle));
        QTRY_VERIFY(!QToolTip::isVisible());

        const QString longTitle = QStringLiteral("Geometry of the selected part, its bounding box and its pivot point");
        container->SetTitle(longTitle);
        container->repaint();
        QVERIFY(sendToolTip(container, container->GetTitleRect().center()));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), longTitle);
    }

    void extraTopMarginSurvivesThemeChangesAndSizeHints()
    {
        RolloutContainer container;
        const int lightTitle = container.TitleHeight();
        QVERIFY(lightTitle > 0);
        QCOMPARE(container.contentsMargins(), QMargins(0, lightTitle, 0, 0));
        container.setContentsMargins(4, 5, 4, 4);
        QCOMPARE(container.contentsMargins(), QMargins(4, lightTitle + 5, 4, 4));

        for (const char* theme : {"Dark", "HIGLight", "Light"}) {
            QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QString::fromLatin1(theme)));
            const int expected = ThemeManager::GetInstance()->GetInt(ThemeFileKey::RolloutcontainerTitleHeight);
            QVERIFY(expected > 0);
            QCOMPARE(container.TitleHeight(), expected);
            QCOMPARE(container.contentsMargins(), QMargins(4, expected + 5, 4, 4));
        }

        container.setContentsMargins(0, 0, 0, 0);
        container.SetTitle(QStringLiteral("Material"));
        auto* layout = new QVBoxLayout(&container);
        auto* child = new QLabel(QStringLiteral("A label in the container"), &container);
        layout->addWidget(child);
        QCOMPARE(container.sizeHint(), layout->totalSizeHint().expandedTo(QSize(container.GetTitleRect().width(), 0)));
        container.SetIsCollapsed(true);
        QCOMPARE(container.sizeHint().height(), container.TitleHeight());
        QCOMPARE(container.minimumSizeHint().height(), container.TitleHeight());

        // The check box widens the title.
        const int titleWidth = container.GetTitleRect().width();
        container.SetIsCheckable(true);
        QCOMPARE(container.GetTitleRect().width(), titleWidth + 18);

        // Without a layout, the children's extent.
        RolloutContainer bare;
        auto* loose = new QLabel(QStringLiteral("x"), &bare);
        loose->setGeometry(10, 40, 300, 20);
        loose->show();
        QCOMPARE(bare.sizeHint(), QSize(309, 59));
    }

    void outOfRangeMetricsAreBounded_data()
    {
        QTest::addColumn<QString>("titleHeight");
        QTest::addColumn<int>("hostTop");
        QTest::addColumn<int>("expectedTitle");
        QTest::addColumn<int>("expectedTop");

        QTest::newRow("smallest int") << "-2147483648" << 5 << 0 << 5;
        QTest::newRow("largest int") << "2147483647" << 0 << 4096 << 4096;
        QTest::newRow("host margin at the extremes") << "24" << std::numeric_limits<int>::max() << 24 << 24 + 4096;
        QTest::newRow("negative host margin") << "24" << std::numeric_limits<int>::min() << 24 << 24;
    }

    void outOfRangeMetricsAreBounded()
    {
        QFETCH(QString, titleHeight);
        QFETCH(int, hostTop);
        QFETCH(int, expectedTitle);

        // The cleanup reloads the light theme over the value merged into the dark one.
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Dark")));
        QTemporaryDir dir;
        const QString metric = dir.filePath(QStringLiteral("metric.xbel"));
        QVERIFY(Probe::WriteFile(metric,
                                 QStringLiteral("<xbel version=\"1.0\"><ScalableInt name=\"%1\" value=\"%2\"/></xbel>")
                                     .arg(ThemeFileKey::RolloutcontainerTitleHeight, titleHeight)
                                     .toUtf8()));
        QVERIFY(ThemeManager::GetInstance()->LoadThemeFile(metric, true));

        RolloutContainer container;
        container.SetTitle(QStringLiteral("Geometry"));
        container.SetIsCheckable(true);
        container.setContentsMargins(0, hostTop, 0, 0);
        QCOMPARE(container.TitleHeight(), expectedTitle);
        QCOMPARE(container.GetTitleRect().height(), expectedTitle);
        QTEST(container.contentsMargins().top(), "expectedTop");
        container.resize(200, 60);
        QVERIFY(!container.grab().isNull());
    }

private:
    RolloutContainer* shownContainer(int width = 240)
    {
        auto* container = new RolloutContainer;
        mWidgets << container;
        container->SetTitle(QStringLiteral("Geometry"));
        auto* layout = new QVBoxLayout(container);
        layout->addWidget(new QLabel(QStringLiteral("Width"), container));
        layout->addWidget(new QLineEdit(container));
        container->resize(width, 120);
        container->show();
        if (!QTest::qWaitForWindowExposed(container))
            return nullptr;
        return container;
    }

    QList<QWidget*> mWidgets;
    RolloutContainer* mContainer = nullptr;
};

QTEST_MAIN(tst_RolloutContainer)
#include "tst_rolloutcontainer.moc"

#include "../PaintProbe.h"

#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/SearchBox.h>

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

using namespace Kavrel::UICore;

namespace {

// Wood > Oak, Walnut; Metal > Steel > Brushed steel; Glass
std::unique_ptr<QStandardItemModel> Library()
{
    auto model = std::make_unique<QStandardItemModel>();
    auto* wood = new QStandardItem(QStringLiteral("Wood"));
    wood->appendRow(new QStandardItem(QStringLiteral("Oak")));
    wood->appendRow(new QStandardItem(QStringLiteral("Walnut")));
    auto* metal = new QStandardItem(QStringLiteral("Metal"));
    auto* steel = new QStandardItem(QStringLiteral("Steel"));
    steel->appendRow(new QStandardItem(QStringLiteral("Brushed steel")));
    metal->appendRow(steel);
    model->appendRow(wood);
    model->appendRow(metal);
    model->appendRow(new QStandardItem(QStringLiteral("Glass")));
    return model;
}

// The rows the popup's tree shows, as paths, in order.
void CollectShown(const QTreeView* view, const QModelIndex& parent, const QString& prefix, QStringList& out)
{
    const QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        const QString path =
            prefix.isEmpty() ? index.data().toString() : prefix + QLatin1Char('/') + index.data().toString();
        out.append(path);
        if (view->isExpanded(index))
            CollectShown(view, index, path, out);
    }
}

QStringList Shown(const QTreeView* view)
{
    QStringList shown;
    CollectShown(view, QModelIndex(), QString(), shown);
    return shown;
}

} // namespace

class tst_DropDownTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init()
    {
        mpModel = Library();
        mpTree = std::make_unique<DropDownTree>();
        mpTree->SetModel(mpModel.get());
        mpTree->SetFilterDelay(0);
        mpTree->resize(220, mpTree->sizeHint().height());
    }

    void cleanup()
    {
        mpTree.reset();
        mpModel.reset();
    }

    void filterKeepsAncestorsOfMatches_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("leaf keeps its group") << QStringLiteral("oak") << QStringList{"Wood", "Wood/Oak"};
        QTest::newRow("deep leaf keeps every ancestor")
            << QStringLiteral("brushed") << QStringList{"Metal", "Metal/Steel", "Metal/Steel/Brushed steel"};
        QTest::newRow("group and its matching child")
            << QStringLiteral("STEEL") << QStringList{"Metal", "Metal/Steel", "Metal/Steel/Brushed steel"};
        QTest::newRow("top-level match alone") << QStringLiteral("gla") << QStringList{"Glass"};
        QTest::newRow("nothing matches") << QStringLiteral("zinc") << QStringList{};
        QTest::newRow("no filter shows the closed top level") << QString() << QStringList{"Wood", "Metal", "Glass"};
    }

    void filterKeepsAncestorsOfMatches()
    {
        QFETCH(QString, filter);
        mpTree->SetFilterText(QStringLiteral("something first"));
        mpTree->SetFilterText(filter);
        QTEST(Shown(mpTree->GetPopupView()), "shown");
    }

    void currentPathIsShownAndAnnouncedOnce()
    {
        QSignalSpy changed(mpTree.get(), &DropDownTree::CurrentIndexChanged);
        const QModelIndex brushed = mpModel->index(0, 0, mpModel->index(0, 0, mpModel->index(1, 0)));
        mpTree->SetCurrentIndex(brushed);
        QCOMPARE(mpTree->GetCurrentPathText(), QStringLiteral("Metal > Steel > Brushed steel"));
        QCOMPARE(changed.count(), 1);
        mpTree->SetCurrentIndex(brushed);
        QCOMPARE(changed.count(), 1);
        QStandardItemModel other;
        other.appendRow(new QStandardItem(QStringLiteral("Elsewhere")));
        mpTree->SetCurrentIndex(other.index(0, 0));
        QCOMPARE(mpTree->GetCurrentIndex(), QModelIndex(brushed));
        mpTree->SetPathSeparator(QStringLiteral(" / "));
        QCOMPARE(mpTree->GetCurrentPathText(), QStringLiteral("Metal / Steel / Brushed steel"));
    }

    void returnInThePopupChoosesTheFilteredItem()
    {
        QVERIFY(Probe::Shown(mpTree.get()));
        QSignalSpy changed(mpTree.get(), &DropDownTree::CurrentIndexChanged);
        mpTree->ShowPopup();
        QVERIFY(mpTree->IsPopupVisible());
        QLineEdit* filter = mpTree->GetPopupSearchBox()->GetLineEdit();
        QTest::keyClicks(filter, QStringLiteral("wal"));
        QTest::keyClick(filter, Qt::Key_Return);
        QVERIFY(!mpTree->IsPopupVisible());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(mpTree->GetCurrentPath(), (QStringList{"Wood", "Walnut"}));
    }

    void typingOnTheButtonOpensTheFilteredPopup()
    {
        QVERIFY(Probe::Shown(mpTree.get()));
        mpTree->setFocus();
        QTest::keyClick(mpTree.get(), Qt::Key_G);
        QVERIFY(mpTree->IsPopupVisible());
        QCOMPARE(mpTree->GetFilterText(), QStringLiteral("g"));
        QCOMPARE(Shown(mpTree->GetPopupView()), QStringList{"Glass"});
        // Escape clears the filter first, then closes.
        QLineEdit* filter = mpTree->GetPopupSearchBox()->GetLineEdit();
        QTest::keyClick(filter, Qt::Key_Escape);
        QVERIFY(mpTree->IsPopupVisible());
        QCOMPARE(mpTree->GetFilterText(), QString());
        QTest::keyClick(filter, Qt::Key_Escape);
        QVERIFY(!mpTree->IsPopupVisible());
    }

    void arrowKeysStepThroughSiblings()
    {
        mpTree->SetCurrentIndex(mpModel->index(0, 0, mpModel->index(0, 0)));
        QTest::keyClick(mpTree.get(), Qt::Key_Down);
        QCOMPARE(mpTree->GetCurrentPath(), (QStringList{"Wood", "Walnut"}));
        QTest::keyClick(mpTree.get(), Qt::Key_Down);
        QCOMPARE(mpTree->GetCurrentPath(), (QStringList{"Wood", "Walnut"}));
        QTest::keyClick(mpTree.get(), Qt::Key_Up);
        QCOMPARE(mpTree->GetCurrentPath(), (QStringList{"Wood", "Oak"}));
    }

    void popupIsMadeLazilyWithoutWidgetsPerItem()
    {
        QStandardItemModel big;
        for (int group = 0; group < 20; ++group) {
            auto* item = new QStandardItem(QStringLiteral("Group %1").arg(group));
            for (int leaf = 0; leaf < 100; ++leaf)
                item->appendRow(new QStandardItem(QStringLiteral("Item %1.%2").arg(group).arg(leaf)));
            big.appendRow(item);
        }
        mpTree->SetModel(&big);
        QVERIFY(!mpTree->GetPopupView());
        QVERIFY(Probe::Shown(mpTree.get()));
        mpTree->ShowPopup();
        QVERIFY(mpTree->GetPopupView());
        const int widgets = int(mpTree->GetPopupView()->window()->findChildren<QWidget*>().size());
        mpTree->SetFilterText(QStringLiteral("Item"));
        QCOMPARE(mpTree->GetPopupView()->window()->findChildren<QWidget*>().size(), widgets);
        QVERIFY2(widgets < 30, qPrintable(QString::number(widgets)));
        mpTree->HidePopup();
    }

    void modelResetLeavesNoCurrentItem()
    {
        mpTree->SetCurrentIndex(mpModel->index(2, 0));
        QSignalSpy changed(mpTree.get(), &DropDownTree::CurrentIndexChanged);
        mpModel->removeRow(0); // another row: the current item stays
        QCOMPARE(changed.count(), 0);
        QCOMPARE(mpTree->GetCurrentPathText(), QStringLiteral("Glass"));
        mpModel->clear();
        QCOMPARE(changed.count(), 1);
        QVERIFY(!mpTree->GetCurrentIndex().isValid());
        QCOMPARE(mpTree->GetCurrentPathText(), QString());
    }

    void accessibleAsComboBoxWithPathValue()
    {
        mpTree->SetCurrentIndex(mpModel->index(1, 0, mpModel->index(0, 0)));
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(mpTree.get());
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::ComboBox);
        QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("Wood > Walnut"));
    }

private:
    std::unique_ptr<QStandardItemModel> mpModel;
    std::unique_ptr<DropDownTree> mpTree;
};

QTEST_MAIN(tst_DropDownTree)
#include "tst_dropdowntree.moc"

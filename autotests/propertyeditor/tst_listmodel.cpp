#include <KvUICore/propertyeditor/ListItem.h>
#include <KvUICore/propertyeditor/ListModel.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

QImage swatch(const QColor& color)
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

// Reaches rows that index() refuses to make.
class ProbeModel : public ListModel
{
public:
    QModelIndex AnyRow(int row) const { return createIndex(row, 0); }
};

} // namespace

class tst_ListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void data_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("text") << 1 << int(Qt::DisplayRole) << QVariant(QStringLiteral("Red"));
        QTest::newRow("image") << 1 << int(Qt::DecorationRole) << QVariant(swatch(Qt::red));
        QTest::newRow("value") << 1 << int(Qt::UserRole) << QVariant(0xff0000);
        QTest::newRow("edit role") << 1 << int(Qt::EditRole) << QVariant();
        QTest::newRow("user role + 1") << 1 << int(Qt::UserRole + 1) << QVariant();
        QTest::newRow("row -1") << -1 << int(Qt::DisplayRole) << QVariant();
        QTest::newRow("row count") << 3 << int(Qt::DisplayRole) << QVariant();
        QTest::newRow("text only: image") << 0 << int(Qt::DecorationRole) << QVariant(QImage());
        QTest::newRow("text only: value") << 0 << int(Qt::UserRole) << QVariant();
        QTest::newRow("item added by pointer") << 2 << int(Qt::UserRole) << QVariant(QStringLiteral("blue"));
    }

    void data()
    {
        QFETCH(int, row);
        QFETCH(int, role);
        QFETCH(QVariant, expected);

        ProbeModel model;
        model.Add(QStringLiteral("Plain"));
        model.Add(QStringLiteral("Red"), swatch(Qt::red), 0xff0000);
        model.Add(new ListItem(QStringLiteral("Blue"), swatch(Qt::blue), QStringLiteral("blue")));
        const QVariant actual = model.data(model.AnyRow(row), role);
        QCOMPARE(actual.isValid(), expected.isValid());
        if (expected.isValid()) {
            QCOMPARE(actual.metaType(), expected.metaType());
            QCOMPARE(actual, expected);
        }
    }

    void appendInsertsExactlyOneRowAtTheEnd()
    {
        ListModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        // The tester checks that each insertion announces what it does.
        QSignalSpy aboutToInsert(&model, &QAbstractItemModel::rowsAboutToBeInserted);
        for (int i = 0; i < 4; ++i) {
            if (i % 2)
                model.Add(QStringLiteral("item %1").arg(i), QImage(), i);
            else
                model.Add(QStringLiteral("item %1").arg(i));
            QCOMPARE(aboutToInsert.count(), i + 1);
            QCOMPARE(aboutToInsert.last().at(1).toInt(), i);
            QCOMPARE(aboutToInsert.last().at(2).toInt(), i);
        }
        QCOMPARE(model.GetCount(), 4);
        // A null item changes nothing.
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.Add(static_cast<ListItem*>(nullptr));
        QCOMPARE(model.GetCount(), 4);
        QCOMPARE(aboutToInsert.count(), 4);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(model.GetItem(3)->GetValue(), QVariant(3));
        QCOMPARE(model.GetItem(4), nullptr);
        QCOMPARE(model.GetItem(-1), nullptr);
        QCOMPARE(model.rowCount(model.index(0)), 0);
    }
};

QTEST_MAIN(tst_ListModel)
#include "tst_listmodel.moc"

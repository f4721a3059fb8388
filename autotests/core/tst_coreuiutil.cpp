#include <KvUICore/core/CoreUIUtil.h>
#include <KvUICore/core/CoreUIUtil_p.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

using namespace Kavrel::UICore;

class tst_CoreUIUtil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneBits_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<QList<int>>("bits");
        QTest::newRow("0") << 0 << QList<int>();
        QTest::newRow("0x29") << 0x29 << QList<int>{1, 8, 32};
        QTest::newRow("sign bit") << int(0x80000001u) << QList<int>{1, int(0x80000000u)};
    }

    void oneBits()
    {
        QFETCH(int, flags);
        QTEST(CoreUIUtil::GetOneBits(flags), "bits");
        QCOMPARE(CoreUIUtil::GetOneBits(-1).size(), 32);
    }

    void symbolicLinks_data()
    {
        QTest::addColumn<QString>("linkName");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("expected"); // relative to the temporary folder; empty: unchanged

        QTest::newRow("relative target") << "a/link" << QStringLiteral("../b/f.txt") << "b/f.txt";
        QTest::newRow("relative dotted") << "a/link2" << QStringLiteral("./../b/./f.txt") << "b/f.txt";
        QTest::newRow("absolute target") << "a/abs" << QStringLiteral("@/b/f.txt") << "b/f.txt";
        QTest::newRow("plain file unchanged") << "b/f.txt" << QString() << QString();
        QTest::newRow("missing path unchanged") << "a/missing" << QString() << QString();
    }

    void symbolicLinks()
    {
#ifdef Q_OS_WIN
        QSKIP("creating symbolic links needs a privilege that test machines do not have");
#endif
        QFETCH(QString, linkName);
        QFETCH(QString, target);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString root = QDir(dir.path()).canonicalPath();
        QVERIFY(QDir(root).mkpath(QStringLiteral("a")));
        QVERIFY(QDir(root).mkpath(QStringLiteral("b")));
        QFile file(root + QStringLiteral("/b/f.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();

        const QString link = root + QLatin1Char('/') + linkName;
        if (!target.isEmpty()) {
            const QString linkTarget = target.startsWith(QLatin1Char('@')) ? root + target.mid(1) : target;
            QVERIFY(QFile::link(linkTarget, link));
        }
        const QString result = CoreUIUtil::GetSymbolicLinkTarget(link);
        QCOMPARE(result, expected.isEmpty() ? link : root + QLatin1Char('/') + expected);
    }

    void dimmedColor()
    {
        QCOMPARE(Internal::DimmedColor(QColor(10, 20, 30)).alpha(), 102);
        QCOMPARE(Internal::DimmedColor(QColor(10, 20, 30)).red(), 10);
        QCOMPARE(Internal::DimmedColor(QColor(10, 20, 30, 0)).alpha(), 0);
    }

    void textColorSetsThreeRolesInEveryGroup()
    {
        QLabel label;
        const QColor color(12, 34, 56);
        const QColor base = label.palette().color(QPalette::Base);
        Internal::SetTextColor(&label, color);
        Internal::SetTextColor(nullptr, color); // ignored
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
                QCOMPARE(label.palette().brush(group, role).color(), color);
                QCOMPARE(label.palette().brush(group, role).style(), Qt::SolidPattern);
            }
        }
        QCOMPARE(label.palette().color(QPalette::Base), base);
    }
};

QTEST_MAIN(tst_CoreUIUtil)
#include "tst_coreuiutil.moc"

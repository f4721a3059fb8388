// test-options: TIMEOUT 300
// A process killed while it saves a state file never leaves a file that is
// broken or has lost the other widgets' states. The test runs itself again as
// the saving process.
#include <KvUICore/widgets/WidgetImp.h>

#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cstdio>

namespace {

const char* const kLoopVariable = "KVUICORE_STATE_SAVE_LOOP";

// Writes a state whose consistency can be checked: `count` items, each
// carrying the same round number as the element itself.
class BusyWidget : public WidgetImp
{
public:
    using WidgetImp::SaveState;

    int miRound = 0;
    int miCount = 0;

protected:
    void SaveState(QDomElement& element) const override
    {
        SetIntAttribute(element, QStringLiteral("round"), miRound);
        SetIntAttribute(element, QStringLiteral("count"), miCount);
        QDomDocument document = element.ownerDocument();
        for (int i = 0; i < miCount; ++i) {
            QDomElement item = document.createElement(QStringLiteral("Item"));
            SetIntAttribute(item, QStringLiteral("round"), miRound);
            item.appendChild(document.createTextNode(QStringLiteral("payload %1 of round %2").arg(i).arg(miRound)));
            element.appendChild(item);
        }
    }
};

[[noreturn]] void runSaveLoop(const QString& path)
{
    BusyWidget widget;
    for (int round = 1;; ++round) {
        widget.miRound = round;
        // Sizes change from round to round, so a torn write would show.
        widget.miCount = 200 + (round % 7) * 150;
        widget.SaveState(path, QStringLiteral("Busy/Widget"));
        if (round == 1) {
            std::fputs("ready\n", stdout);
            std::fflush(stdout);
        }
    }
}

} // namespace

class tst_WidgetStateFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void killedWhileSavingKeepsAWholeFile();
};

void tst_WidgetStateFile::initTestCase()
{
    const QString loopPath = qEnvironmentVariable(kLoopVariable);
    if (!loopPath.isEmpty())
        runSaveLoop(loopPath);
}

void tst_WidgetStateFile::killedWhileSavingKeepsAWholeFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<Root>\n"
                   "    <Other>\n"
                   "        <A value=\"1\" flag=\"1\"/>\n"
                   "        <B><Note>keep me</Note></B>\n"
                   "    </Other>\n"
                   "</Root>\n");
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kLoopVariable), path);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    int lastRound = 0;
    constexpr int kKills = 30;
    for (int kill = 0; kill < kKills; ++kill) {
        QProcess saver;
        saver.setProcessEnvironment(environment);
        saver.start(QCoreApplication::applicationFilePath(), {QStringLiteral("-silent")});
        QVERIFY2(saver.waitForStarted(), qPrintable(saver.errorString()));
        // Anything else the child prints comes before its first complete save.
        bool ready = false;
        while (!ready) {
            while (!saver.canReadLine())
                QVERIFY2(saver.waitForReadyRead(30000), "the saving process did not start saving");
            ready = saver.readLine().trimmed() == "ready";
        }
        // Somewhere inside a save, or between two.
        QThread::usleep(QRandomGenerator::global()->bounded(40000));
        saver.kill();
        QVERIFY(saver.waitForFinished(30000));

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument document;
        QString error;
        QVERIFY2(document.setContent(&file, &error), qPrintable(QStringLiteral("kill %1: %2").arg(kill).arg(error)));
        const QDomElement root = document.documentElement();
        QCOMPARE(root.tagName(), QStringLiteral("Root"));
        const QDomElement other = root.firstChildElement(QStringLiteral("Other"));
        QCOMPARE(other.firstChildElement(QStringLiteral("A")).attribute(QStringLiteral("value")), QStringLiteral("1"));
        QCOMPARE(other.firstChildElement(QStringLiteral("A")).attribute(QStringLiteral("flag")), QStringLiteral("1"));
        QCOMPARE(other.firstChildElement(QStringLiteral("B")).firstChildElement(QStringLiteral("Note")).text(),
                 QStringLiteral("keep me"));

        // The busy element holds one complete write.
        const QDomElement busy =
            root.firstChildElement(QStringLiteral("Busy")).firstChildElement(QStringLiteral("Widget"));
        QVERIFY(!busy.isNull());
        const int round = busy.attribute(QStringLiteral("round")).toInt();
        QVERIFY(round >= 1);
        const QDomNodeList items = busy.elementsByTagName(QStringLiteral("Item"));
        QCOMPARE(items.count(), busy.attribute(QStringLiteral("count")).toInt());
        for (int i = 0; i < items.count(); ++i)
            QCOMPARE(items.at(i).toElement().attribute(QStringLiteral("round")).toInt(), round);
        QCOMPARE(root.elementsByTagName(QStringLiteral("Widget")).count(), 1);
        lastRound = round;
    }
    QVERIFY(lastRound >= 1);
}

QTEST_MAIN(tst_WidgetStateFile)
#include "tst_widgetstatefile.moc"

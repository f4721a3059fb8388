// test-options: TIMEOUT 300 LABELS slow
// Processes that save into one state file at the same time keep each other's
// states. The test runs itself again as the saving processes.
#include <KvUICore/widgets/WidgetImp.h>

#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <memory>
#include <vector>

namespace {

const char* const kFileVariable = "KVUICORE_STATE_SAVE_FILE";
const char* const kNameVariable = "KVUICORE_STATE_SAVE_NAME";
constexpr int kRounds = 150;

class RoundWidget : public WidgetImp
{
public:
    using WidgetImp::SaveState;
    int miRound = 0;

protected:
    void SaveState(QDomElement& element) const override { SetIntAttribute(element, QStringLiteral("round"), miRound); }
};

// Every round saves under a node of its own: an update that another process
// overwrote shows as a node that is missing at the end.
[[noreturn]] void runSaver(const QString& path, const QString& name)
{
    RoundWidget widget;
    for (int round = 1; round <= kRounds; ++round) {
        widget.miRound = round;
        if (!widget.SaveState(path, QStringLiteral("Runs/%1%2").arg(name).arg(round)))
            std::exit(1);
    }
    std::exit(0);
}

} // namespace

class tst_WidgetStateFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString path = qEnvironmentVariable(kFileVariable);
        if (!path.isEmpty())
            runSaver(path, qEnvironmentVariable(kNameVariable));
    }

    void concurrentSavesLoseNoState()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("state.xml"));
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("<Root><Other><Note>keep me</Note></Other></Root>\n");
        }
        const QStringList names = {QStringLiteral("a"), QStringLiteral("b")};
        std::vector<std::unique_ptr<QProcess>> savers;
        for (const QString& name : names) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QString::fromLatin1(kFileVariable), path);
            environment.insert(QString::fromLatin1(kNameVariable), name);
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
            auto saver = std::make_unique<QProcess>();
            saver->setProcessEnvironment(environment);
            saver->start(QCoreApplication::applicationFilePath(), {QStringLiteral("-silent")});
            QVERIFY2(saver->waitForStarted(), qPrintable(saver->errorString()));
            savers.push_back(std::move(saver));
        }
        for (const auto& saver : savers) {
            QVERIFY(saver->waitForFinished(240000));
            QCOMPARE(saver->exitStatus(), QProcess::NormalExit);
            QCOMPARE(saver->exitCode(), 0);
        }

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(document.setContent(&file));
        const QDomElement root = document.documentElement();
        QCOMPARE(root.firstChildElement(QStringLiteral("Other")).text(), QStringLiteral("keep me"));
        const QDomElement runs = root.firstChildElement(QStringLiteral("Runs"));
        for (const QString& name : names) {
            for (int round = 1; round <= kRounds; ++round) {
                const QDomElement element = runs.firstChildElement(QStringLiteral("%1%2").arg(name).arg(round));
                QVERIFY2(!element.isNull(), qPrintable(QStringLiteral("lost %1%2").arg(name).arg(round)));
                QCOMPARE(element.attribute(QStringLiteral("round")).toInt(), round);
            }
        }
        QVERIFY(!QFile::exists(path + QStringLiteral(".lock")));
    }
};

QTEST_MAIN(tst_WidgetStateFile)
#include "tst_widgetstatefile.moc"

// Includes point down only: units <- core <- theme <- widgets <- propertyeditor,
// util below the controls, platform at the side. A higher layer that start-up
// needs registers itself with core (CoreUIManager_p.h) instead.

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

class tst_Layering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void includesPointDown()
    {
        const QHash<QString, QStringList> allowed = {
            {QStringLiteral("units"), {"units"}},
            {QStringLiteral("platform"), {"platform"}},
            {QStringLiteral("core"), {"units", "platform", "core"}},
            {QStringLiteral("util"), {"units", "platform", "core", "util"}},
            {QStringLiteral("theme"), {"units", "platform", "core", "util", "theme"}},
            {QStringLiteral("widgets"), {"units", "platform", "core", "util", "theme", "widgets"}},
            {QStringLiteral("propertyeditor"),
             {"units", "platform", "core", "util", "theme", "widgets", "propertyeditor"}},
        };
        // Removed by the change that gives check boxes their own painter.
        const QSet<QString> known = {QStringLiteral("theme/CustomStyle.cpp -> widgets/CheckBox.h")};

        static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*<(KvCoreUnits|KvUICore/(\\w+))/"),
                                                QRegularExpression::MultilineOption);
        const QString root = QStringLiteral(KVUICORE_SOURCE_DIR "/src/");
        QStringList faults;
        int files = 0;
        QDirIterator it(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const QString relative = path.mid(root.size());
            const QString folder = relative.section(QLatin1Char('/'), 0, 0);
            QVERIFY2(allowed.contains(folder), qPrintable(relative));
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
            ++files;
            const QString text = QString::fromUtf8(file.readAll());
            for (auto match = include.globalMatch(text); match.hasNext();) {
                const QRegularExpressionMatch m = match.next();
                const QString target =
                    m.captured(1) == QLatin1String("KvCoreUnits") ? QStringLiteral("units") : m.captured(2);
                const int end = text.indexOf(QLatin1Char('>'), m.capturedEnd());
                const QString header = text.mid(m.capturedStart(1), end - m.capturedStart(1));
                const QString arrow = relative + QStringLiteral(" -> ") + header.section(QLatin1Char('/'), -2);
                if (!allowed.value(folder).contains(target) && !known.contains(arrow))
                    faults << arrow;
            }
        }
        QVERIFY(files > 100);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }
};

QTEST_GUILESS_MAIN(tst_Layering)
#include "tst_layering.moc"

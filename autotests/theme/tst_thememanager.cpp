#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <numeric>

using namespace Kavrel::UICore;

namespace {

// An ICO container holding one PNG per size, in the order given.
QByteArray icoWithSizes(const QList<int>& sizes)
{
    QList<QByteArray> payloads;
    for (int size : sizes) {
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(QColor(size, 0, 0));
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        payloads << png;
    }
    QByteArray data;
    auto put16 = [&data](quint16 v) { data.append(char(v & 0xff)).append(char(v >> 8)); };
    auto put32 = [&](quint32 v) {
        put16(quint16(v & 0xffff));
        put16(quint16(v >> 16));
    };
    put16(0);
    put16(1);
    put16(quint16(sizes.size()));
    quint32 offset = 6 + 16 * quint32(sizes.size());
    for (int i = 0; i < sizes.size(); ++i) {
        data.append(char(sizes[i] & 0xff)).append(char(sizes[i] & 0xff)).append(char(0)).append(char(0));
        put16(1);
        put16(32);
        put32(quint32(payloads[i].size()));
        put32(offset);
        offset += quint32(payloads[i].size());
    }
    for (const QByteArray& payload : payloads)
        data += payload;
    return data;
}

// Files loaded by hand go over the current theme, so that must be loaded first:
// the first query would otherwise replace them.
ThemeManager* loadedThemeManager()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    themes->Exists(QStringLiteral("FontNormal1"));
    return themes;
}

// n style sheets, each holding count references to the one before.
QByteArray multiplyingStyleSheets(int n, int count, const QByteArray& first)
{
    QByteArray xml = "<xbel version=\"1.0\"><StyleSheet name=\"s0\">" + first + "</StyleSheet>";
    for (int i = 1; i < n; ++i) {
        xml += "<StyleSheet name=\"s" + QByteArray::number(i) + "\">";
        for (int k = 0; k < count; ++k)
            xml += "$(s" + QByteArray::number(i - 1) + ")";
        xml += "</StyleSheet>";
    }
    return xml + "</xbel>";
}

QByteArray deepNesting(int depth)
{
    return "<xbel version=\"1.0\">" + QByteArray("<Folder>").repeated(depth) + QByteArray("</Folder>").repeated(depth) +
           "<Int name=\"After\" value=\"5\"/></xbel>";
}

QByteArray laughingEntities()
{
    QByteArray dtd = "<!DOCTYPE xbel [<!ENTITY e0 \"lol\">";
    for (int i = 1; i < 10; ++i) {
        dtd += "<!ENTITY e" + QByteArray::number(i) + " \"";
        for (int k = 0; k < 10; ++k)
            dtd += "&e" + QByteArray::number(i - 1) + ";";
        dtd += "\">";
    }
    return dtd + "]><xbel version=\"1.0\"><String name=\"After\">&e9;</String></xbel>";
}

} // namespace

class tst_ThemeManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Internal::SetWarningHook([this](const QString& title, const QString& text) {
            mWarnings << title + QLatin1Char('|') + text;
            return true;
        });
    }

    void init()
    {
        mWarnings.clear();
        CoreUIManager::Initialize();
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void cleanup()
    {
        CoreUIManager::Uninitialize();
        qApp->setStyleSheet(QString());
    }

    void firstQueryLoadsLight()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        QCOMPARE(themes->GetCurrentTheme(), QString());
        QVERIFY(themes->GetColor(ThemeFileKey::FontNormal1).isValid());
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
        QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Light"));
    }

    void missingKeysGiveEmptyValues()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const QString missing = QStringLiteral("NoSuchKey");
        QVERIFY(!themes->Exists(missing));
        QVERIFY(!themes->GetColor(missing).isValid());
        QCOMPARE(themes->GetBrush(missing, QRect(0, 0, 4, 4)).style(), Qt::NoBrush);
        QVERIFY(themes->GetImage(missing, QSize(16, 16)).isNull());
        QVERIFY(themes->GetImage(QString(), QSize(16, 16)).isNull());
        QCOMPARE(themes->GetInt(missing), 0);
        QCOMPARE(themes->GetSize(missing), QSize());
        QCOMPARE(themes->GetString(missing), QString());
        // A value of another kind is not a colour.
        QVERIFY(!themes->GetColor(QStringLiteral("CurrentTheme")).isValid());
        QVERIFY(mWarnings.isEmpty());
    }

    void switchingIsCaseInsensitiveButRecordsTheName()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        themes->GetCurrentTheme();
        QSignalSpy spy(themes, &ThemeManager::ThemeChanged);
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("dark")));
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("dark"));
        QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Dark"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QString());
        QCOMPARE(spy.at(0).at(1).toString(), QStringLiteral("dark"));

        QVERIFY(themes->SetCurrentTheme(QStringLiteral("dark")));
        QCOMPARE(spy.count(), 1); // same name: nothing happens

        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(spy.count(), 2); // the comparison is case-sensitive, so it reloads
        QCOMPARE(spy.at(1).at(0).toString(), QStringLiteral("dark"));
        QCOMPARE(spy.at(1).at(1).toString(), QStringLiteral("Dark"));
    }

    void unknownThemeChangesNothing()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("HIGLight")));
        const QColor before = themes->GetColor(ThemeFileKey::FontNormal1);
        QSignalSpy spy(themes, &ThemeManager::ThemeChanged);
        QVERIFY(!themes->SetCurrentTheme(QStringLiteral("Solarized")));
        QVERIFY(!themes->SetCurrentTheme(QString()));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("HIGLight"));
        QCOMPARE(themes->GetColor(ThemeFileKey::FontNormal1), before);
    }

    void switchRestoresGlobalStyleSheets()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        // The first query applies the global style sheets.
        QCOMPARE(qApp->styleSheet(), QString());
        QVERIFY(themes->Exists(QStringLiteral("ToolTipGlobal")));
        const QString lightSheet = qApp->styleSheet();
        QVERIFY(lightSheet.contains(QLatin1String("QToolTip")));
        const QString lightBackground = themes->GetColor(QStringLiteral("ScrollBarBackground")).name(QColor::HexArgb);
        QVERIFY(lightSheet.contains(lightBackground));

        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        const QString darkBackground = themes->GetColor(QStringLiteral("ScrollBarBackground")).name(QColor::HexArgb);
        QVERIFY(darkBackground != lightBackground);
        QVERIFY2(qApp->styleSheet().contains(darkBackground), "the global style sheet follows the theme");
        QVERIFY(!qApp->styleSheet().contains(QLatin1String("$(")));
    }

    void brushSpansTheRectangle()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("t.xbel"));
        QVERIFY(Probe::WriteFile(path, "<xbel version=\"1.0\"><Color name=\"G\"><hex value=\"#000000\" anchor=\"0\"/>"
                                       "<hex value=\"#ffffff\" anchor=\"1\"/></Color>"
                                       "<Color name=\"S\"><hex value=\"#123456\"/></Color></xbel>"));
        ThemeManager* themes = loadedThemeManager();
        QVERIFY(themes->LoadThemeFile(path, true));

        const QBrush solid = themes->GetBrush(QStringLiteral("S"), QRect(0, 0, 5, 5));
        QCOMPARE(solid.style(), Qt::SolidPattern);
        QCOMPARE(solid.color(), QColor(0x12, 0x34, 0x56));
        QCOMPARE(themes->GetColor(QStringLiteral("G")), QColor()); // a gradient is not a colour

        const QBrush brush = themes->GetBrush(QStringLiteral("G"), QRect(10, 20, 30, 40));
        QVERIFY(brush.gradient());
        const auto* gradient = static_cast<const QLinearGradient*>(brush.gradient());
        QCOMPARE(gradient->start(), QPointF(10, 21));
        QCOMPARE(gradient->finalStop(), QPointF(10, 59));
        QCOMPARE(gradient->stops().size(), 2);
    }

    void imageSelection_data()
    {
        QTest::addColumn<QList<int>>("sizes");
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<int>("expected");

        QTest::newRow("exact size") << QList<int>{16, 32, 24} << QSize(24, 24) << 24;
        QTest::newRow("no match gives the narrowest") << QList<int>{16, 32, 24} << QSize(20, 20) << 16;
        QTest::newRow("narrowest not first") << QList<int>{32, 24, 16} << QSize(20, 20) << 16;
        QTest::newRow("single image whatever its size") << QList<int>{48} << QSize(16, 16) << 48;
        QList<int> many(100);
        std::iota(many.begin(), many.end(), 1);
        QTest::newRow("images past 64 are dropped") << many << QSize(100, 100) << 1;
    }

    void imageSelection()
    {
        QFETCH(QList<int>, sizes);
        QFETCH(QSize, asked);
        QFETCH(int, expected);
        QTemporaryDir dir;
        const QString ico = dir.filePath(QStringLiteral("icon.ico"));
        QVERIFY(Probe::WriteFile(ico, icoWithSizes(sizes)));
        const QString theme = dir.filePath(QStringLiteral("t.xbel"));
        QVERIFY(Probe::WriteFile(
            theme, QStringLiteral("<xbel version=\"1.0\"><Icon name=\"I\" file=\"%1\"/></xbel>").arg(ico).toUtf8()));

        ThemeManager* themes = loadedThemeManager();
        QVERIFY(themes->LoadThemeFile(theme, true));
        const QImage image = themes->GetImage(QStringLiteral("I"), asked);
        QCOMPARE(image.width(), expected);
        QCOMPARE(image.pixelColor(0, 0).red(), expected); // the right image, not a rescaled one
    }

    void themeEntryHidesBaseEntry()
    {
        QTemporaryDir dir;
        const QString base = dir.filePath(QStringLiteral("base.xbel"));
        const QString theme = dir.filePath(QStringLiteral("theme.xbel"));
        QVERIFY(Probe::WriteFile(
            base,
            "<xbel version=\"1.0\"><Int name=\"Shared\" value=\"1\"/><Int name=\"BaseOnly\" value=\"2\"/></xbel>"));
        QVERIFY(Probe::WriteFile(theme, "<xbel version=\"1.0\"><Int name=\"Shared\" value=\"3\"/></xbel>"));
        ThemeManager* themes = loadedThemeManager();
        QVERIFY(themes->LoadThemeFile(base, false));
        QVERIFY(themes->LoadThemeFile(theme, true));
        QCOMPARE(themes->GetInt(QStringLiteral("Shared")), 3);
        QCOMPARE(themes->GetInt(QStringLiteral("BaseOnly")), 2);
    }

    void hostileFiles_data()
    {
        // kind: "file" writes content, "missing" writes nothing, "fifo" and
        // "directory" make one of those under the file's name, "fifo icon" names
        // a FIFO as an icon file.
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("warning"); // empty: the file loads
        QTest::addColumn<QString>("after");   // a key the load stores when it succeeds, else a part of the warning

        const QString cannotRead = QStringLiteral("Cannot read file ");
        const QString parseError = QStringLiteral("Parse error in file ");
        QTest::newRow("missing") << "missing" << QByteArray() << cannotRead << "does not exist";
        QTest::newRow("not xbel") << "file" << QByteArray("<html/>") << parseError << QString();
        QTest::newRow("empty") << "file" << QByteArray() << parseError << QString();
        QTest::newRow("truncated") << "file" << QByteArray("<xbel version=\"1.0\"><StyleSheet name=\"s\">a { b")
                                   << parseError << QString();
        QTest::newRow("fifo") << "fifo" << QByteArray() << cannotRead << "Not a regular file";
        QTest::newRow("fifo icon") << "fifo icon" << QByteArray() << QString() << QStringLiteral("After");
        QTest::newRow("icon decoding past 64 MiB") << "huge icon" << QByteArray() << QString() << QStringLiteral("After");
        QTest::newRow("directory") << "directory" << QByteArray() << cannotRead << "Not a regular file";
        QTest::newRow("over 8 MiB") << "file" << QByteArray(8 * 1024 * 1024 + 1, ' ') << cannotRead << "larger than";
        // 64 x 64 x 64 x 16 characters: the fourth value passes 1 Mi characters.
        QTest::newRow("multiplying references")
            << "file" << multiplyingStyleSheets(6, 64, "0123456789abcdef") << parseError << "value of s3 grows beyond";
        // Each value stays below 1 Mi characters; together they pass 16 Mi.
        QByteArray spread = multiplyingStyleSheets(3, 32, QByteArray(512, 'x'));
        for (int i = 0; i < 40; ++i)
            spread.insert(spread.size() - 7, "<StyleSheet name=\"c" + QByteArray::number(i) + "\">$(s2)</StyleSheet>");
        QTest::newRow("references spread over values") << "file" << spread << parseError << "expand to more than";
        QTest::newRow("deep nesting") << "file" << deepNesting(100000) << QString() << QStringLiteral("After");
        QTest::newRow("entity expansion") << "file" << laughingEntities() << parseError << "entity";
        QTest::newRow("external entity") << "file"
                                         << QByteArray(
                                                "<!DOCTYPE xbel [<!ENTITY x SYSTEM \"/etc/passwd\">]>"
                                                "<xbel version=\"1.0\"><String name=\"After\">&x;</String></xbel>")
                                         << QString() << QStringLiteral("After");
    }

    void hostileFiles()
    {
        QFETCH(QString, kind);
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);
        QFETCH(QString, after);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("hostile.xbel"));
        if (kind == QLatin1String("file")) {
            QVERIFY(Probe::WriteFile(path, content));
        } else if (kind == QLatin1String("directory")) {
            QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("hostile.xbel")));
        } else if (kind == QLatin1String("huge icon")) {
            // A few KiB of file that would decode to 256 MiB.
            QImage image(8192, 8192, QImage::Format_Mono);
            image.fill(0);
            const QString icon = dir.filePath(QStringLiteral("huge.png"));
            QVERIFY(image.save(icon, "PNG"));
            QVERIFY(Probe::WriteFile(
                path, QStringLiteral("<xbel version=\"1.0\"><Icon name=\"After\" file=\"%1\"/></xbel>").arg(icon).toUtf8()));
        } else if (kind.startsWith(QLatin1String("fifo"))) {
#ifdef Q_OS_UNIX
            const QString fifo = kind == QLatin1String("fifo") ? path : dir.filePath(QStringLiteral("icon.ico"));
            QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
            if (fifo != path)
                QVERIFY(Probe::WriteFile(
                    path, QStringLiteral("<xbel version=\"1.0\"><Icon name=\"After\" file=\"%1\"/></xbel>")
                              .arg(fifo)
                              .toUtf8()));
#else
            QSKIP("FIFOs are a POSIX file type");
#endif
        }
        ThemeManager* themes = loadedThemeManager();
        mWarnings.clear();
        QCOMPARE(themes->LoadThemeFile(path, false), warning.isEmpty());
        if (warning.isEmpty()) {
            QVERIFY2(mWarnings.isEmpty(), qPrintable(mWarnings.join(QLatin1Char('\n'))));
            QVERIFY(themes->Exists(after));
            QVERIFY(!themes->GetString(after).contains(QLatin1String("root:")));
            if (kind.endsWith(QLatin1String("icon")))
                QVERIFY(themes->GetImage(after, QSize(16, 16)).isNull());
            return;
        }
        QCOMPARE(mWarnings.size(), 1);
        const QString title = mWarnings.first().section(QLatin1Char('|'), 0, 0);
        const QString text = mWarnings.first().section(QLatin1Char('|'), 1);
        QCOMPARE(title, QStringLiteral("QXmlStream for UI Skin"));
        QVERIFY2(text.startsWith(warning + path), qPrintable(text));
        QVERIFY2(text.contains(after), qPrintable(text));
        if (warning == QLatin1String("Parse error in file "))
            QVERIFY2(text.contains(QRegularExpression(QStringLiteral(" at line \\d+, column \\d+:\n."))),
                     qPrintable(text));
        else
            QVERIFY(text.endsWith(QLatin1Char('.')));
        // The current theme is untouched.
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
    }

    void failedSwitchKeepsTheCurrentTheme()
    {
        QTemporaryDir dir;
        QVERIFY(Probe::WriteFile(dir.filePath(QStringLiteral("DarkTheme.xbel")),
                                 "<xbel version=\"1.0\"><Color name=\"FontNormal1\"><hex value=\"#0"));
        ThemeManager* themes = loadedThemeManager();
        themes->SetThemeFilesPath(dir.path().toStdWString().c_str());
        const QColor light = themes->GetColor(ThemeFileKey::FontNormal1);
        QVERIFY(light.isValid());
        QSignalSpy spy(themes, &ThemeManager::ThemeChanged);
        mWarnings.clear();

        QVERIFY(!themes->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(mWarnings.size(), 1);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
        QCOMPARE(themes->GetColor(ThemeFileKey::FontNormal1), light);
        QVERIFY(themes->Exists(QStringLiteral("ScrollBarGlobal"))); // the base values stay too
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("HIGLight")));
        QVERIFY(themes->GetColor(ThemeFileKey::FontNormal1).isValid());
    }

    void failedAutomaticLoadIsRetried()
    {
        QTemporaryDir dir;
        const QString light = dir.filePath(QStringLiteral("LightTheme.xbel"));
        QVERIFY(Probe::WriteFile(light, "<xbel version=\"1.0\"><Int"));
        ThemeManager* themes = ThemeManager::GetInstance();
        themes->SetThemeFilesPath(dir.path().toStdWString().c_str());
        QVERIFY(!themes->Exists(ThemeFileKey::FontNormal1));
        QVERIFY(!themes->Exists(ThemeFileKey::FontNormal1));
        QCOMPARE(mWarnings.size(), 2); // every query while no theme is current tries again
        QCOMPARE(themes->GetCurrentTheme(), QString());

        QVERIFY(
            Probe::WriteFile(light, "<xbel version=\"1.0\"><String name=\"CurrentTheme\" value=\"Fixed\"/></xbel>"));
        QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Fixed"));
        QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
        QCOMPARE(mWarnings.size(), 2);
    }

    void searchDirectories()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        wchar_t buffer[512];
        const QString first = QStringLiteral(KVUICORE_THEMES_DIR);
        QCOMPARE(themes->GetThemeFilesPath(buffer, 512), int(first.size()));
        QCOMPARE(QString::fromWCharArray(buffer), first);

        QTemporaryDir dir;
        const std::wstring added = (dir.path() + QStringLiteral("/sub/..")).toStdWString();
        themes->SetThemeFilesPath(added.c_str());
        themes->SetThemeFilesPath(added.c_str());
        themes->GetThemeFilesPath(buffer, 512);
        QCOMPARE(QString::fromWCharArray(buffer), dir.path()); // cleaned, and added once

        // A short buffer gets a terminated prefix.
        QCOMPARE(themes->GetThemeFilesPath(buffer, 4), 3);
        QCOMPARE(QString::fromWCharArray(buffer), dir.path().left(3));

        // Theme files in the folder added last win.
        QVERIFY(Probe::WriteFile(dir.filePath(QStringLiteral("LightTheme.xbel")),
                                 "<xbel version=\"1.0\"><String name=\"CurrentTheme\" value=\"Mine\"/></xbel>"));
        QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Mine"));

        // An empty folder is added like any other.
        themes->SetThemeFilesPath(L"");
        QCOMPARE(themes->GetThemeFilesPath(buffer, 512), 0);
    }

private:
    QStringList mWarnings;
};

QTEST_MAIN(tst_ThemeManager)
#include "tst_thememanager.moc"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

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
    auto put32 = [&](quint32 v) { put16(quint16(v & 0xffff)); put16(quint16(v >> 16)); };
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

bool writeFile(const QString& path, const QByteArray& data)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size();
}

} // namespace

class tst_ThemeManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void firstQueryLoadsLight();
    void missingKeysGiveEmptyValues();
    void switchingIsCaseInsensitiveButRecordsTheName();
    void unknownThemeChangesNothing();
    void switchRestoresGlobalStyleSheets();
    void brushSpansTheRectangle();
    void imageSelection_data();
    void imageSelection();
    void themeEntryHidesBaseEntry();
    void brokenFilesWarn_data();
    void brokenFilesWarn();
    void searchDirectories();

private:
    QStringList mWarnings;
};

void tst_ThemeManager::initTestCase()
{
    Internal::SetWarningHook([this](const QString& title, const QString& text) {
        mWarnings << title + QLatin1Char('|') + text;
        return true;
    });
}

void tst_ThemeManager::init()
{
    mWarnings.clear();
    CoreUIManager::Initialize();
    ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
}

// Files loaded by hand go over the current theme, so that must be loaded first:
// the first query would otherwise replace them.
static ThemeManager* loadedThemeManager()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    themes->Exists(QStringLiteral("FontNormal1"));
    return themes;
}

void tst_ThemeManager::cleanup()
{
    CoreUIManager::Uninitialize();
    qApp->setStyleSheet(QString());
}

void tst_ThemeManager::firstQueryLoadsLight()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QCOMPARE(themes->GetCurrentTheme(), QString());
    QVERIFY(themes->GetColor(ThemeFileKey::FontNormal1).isValid());
    QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
    QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Light"));
}

void tst_ThemeManager::missingKeysGiveEmptyValues()
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

void tst_ThemeManager::switchingIsCaseInsensitiveButRecordsTheName()
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

void tst_ThemeManager::unknownThemeChangesNothing()
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

void tst_ThemeManager::switchRestoresGlobalStyleSheets()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QVERIFY(themes->Exists(QStringLiteral("ScrollBarGlobal")));
    QVERIFY(themes->Exists(QStringLiteral("ToolTipGlobal")));
    QVERIFY(qApp->styleSheet().contains(QLatin1String("QScrollBar")));
    const QString lightSheet = qApp->styleSheet();
    const QString lightBackground = themes->GetColor(QStringLiteral("ScrollBarBackground")).name(QColor::HexArgb);
    QVERIFY(lightSheet.contains(lightBackground));

    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
    QVERIFY(themes->Exists(QStringLiteral("ScrollBarGlobal")));
    QVERIFY(themes->Exists(QStringLiteral("ToolTipGlobal")));
    const QString darkBackground = themes->GetColor(QStringLiteral("ScrollBarBackground")).name(QColor::HexArgb);
    QVERIFY(darkBackground != lightBackground);
    QVERIFY2(qApp->styleSheet().contains(darkBackground), "the global style sheet follows the theme");
    QVERIFY(!qApp->styleSheet().contains(QLatin1String("$(")));
}

void tst_ThemeManager::brushSpansTheRectangle()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("t.xbel"));
    QVERIFY(writeFile(path, "<xbel version=\"1.0\"><Color name=\"G\"><hex value=\"#000000\" anchor=\"0\"/>"
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

void tst_ThemeManager::imageSelection_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<int>("expected");

    QTest::newRow("exact size") << QList<int>{16, 32, 24} << QSize(24, 24) << 24;
    QTest::newRow("no match gives the narrowest") << QList<int>{16, 32, 24} << QSize(20, 20) << 16;
    QTest::newRow("narrowest not first") << QList<int>{32, 24, 16} << QSize(20, 20) << 16;
    QTest::newRow("single image whatever its size") << QList<int>{48} << QSize(16, 16) << 48;
    QTest::newRow("four sizes, exact") << QList<int>{16, 24, 32, 64} << QSize(64, 64) << 64;
}

void tst_ThemeManager::imageSelection()
{
    QFETCH(QList<int>, sizes);
    QFETCH(QSize, asked);
    QFETCH(int, expected);
    QTemporaryDir dir;
    const QString ico = dir.filePath(QStringLiteral("icon.ico"));
    QVERIFY(writeFile(ico, icoWithSizes(sizes)));
    const QString theme = dir.filePath(QStringLiteral("t.xbel"));
    QVERIFY(writeFile(theme, QStringLiteral("<xbel version=\"1.0\"><Icon name=\"I\" file=\"%1\"/></xbel>").arg(ico).toUtf8()));

    ThemeManager* themes = loadedThemeManager();
    QVERIFY(themes->LoadThemeFile(theme, true));
    const QImage image = themes->GetImage(QStringLiteral("I"), asked);
    QCOMPARE(image.width(), expected);
    QCOMPARE(image.pixelColor(0, 0).red(), expected); // the right image, not a rescaled one
}

void tst_ThemeManager::themeEntryHidesBaseEntry()
{
    QTemporaryDir dir;
    const QString base = dir.filePath(QStringLiteral("base.xbel"));
    const QString theme = dir.filePath(QStringLiteral("theme.xbel"));
    QVERIFY(writeFile(base, "<xbel version=\"1.0\"><Int name=\"Shared\" value=\"1\"/><Int name=\"BaseOnly\" value=\"2\"/></xbel>"));
    QVERIFY(writeFile(theme, "<xbel version=\"1.0\"><Int name=\"Shared\" value=\"3\"/></xbel>"));
    ThemeManager* themes = loadedThemeManager();
    QVERIFY(themes->LoadThemeFile(base, false));
    QVERIFY(themes->LoadThemeFile(theme, true));
    QCOMPARE(themes->GetInt(QStringLiteral("Shared")), 3);
    QCOMPARE(themes->GetInt(QStringLiteral("BaseOnly")), 2);
}

void tst_ThemeManager::brokenFilesWarn_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expectedStart");

    QTest::newRow("missing file") << QByteArray() << QStringLiteral("Cannot read file ");
    QTest::newRow("malformed xml") << QByteArray("<xbel version=\"1.0\">\n<Int name=\"a\" value=\"1\"/>\n<Int")
                                   << QStringLiteral("Parse error in file ");
    QTest::newRow("not xbel") << QByteArray("<html/>") << QStringLiteral("Parse error in file ");
}

void tst_ThemeManager::brokenFilesWarn()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expectedStart);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("broken.xbel"));
    if (!content.isEmpty())
        QVERIFY(writeFile(path, content));
    ThemeManager* themes = loadedThemeManager();
    mWarnings.clear();
    QVERIFY(!themes->LoadThemeFile(path, true));
    QCOMPARE(mWarnings.size(), 1);
    const QString title = mWarnings.first().section(QLatin1Char('|'), 0, 0);
    const QString text = mWarnings.first().section(QLatin1Char('|'), 1);
    QCOMPARE(title, QStringLiteral("QXmlStream for UI Skin"));
    QVERIFY2(text.startsWith(expectedStart + path), qPrintable(text));
    if (expectedStart.startsWith(QLatin1String("Parse")))
        QVERIFY2(text.contains(QRegularExpression(QStringLiteral(" at line \\d+, column \\d+:\n."))), qPrintable(text));
    else
        QVERIFY(text.endsWith(QLatin1Char('.')));
    // The current theme is untouched.
    QCOMPARE(themes->GetCurrentTheme(), QStringLiteral("Light"));
}

void tst_ThemeManager::searchDirectories()
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
    QVERIFY(writeFile(dir.filePath(QStringLiteral("LightTheme.xbel")),
                      "<xbel version=\"1.0\"><String name=\"CurrentTheme\" value=\"Mine\"/></xbel>"));
    QCOMPARE(themes->GetString(QStringLiteral("CurrentTheme")), QStringLiteral("Mine"));
}

QTEST_MAIN(tst_ThemeManager)
#include "tst_thememanager.moc"

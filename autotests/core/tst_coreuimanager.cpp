#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/core/CoreUIManagerImp.h>
#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/theme/ThemeManagerImp.h>
#include <KvUICore/widgets/IMessageBoxProvider.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/UIMessageBox_p.h>

#include <KvCoreUnits/LocaleUtil.h>
#include <KvCoreUnits/UnitsManager.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using namespace Kavrel::UICore;
using kavrel::platform::core::locale::LocaleUtil;
using kavrel::platform::core::units::UnitsManager;

namespace {

QString qtTranslations()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

QString currentLocale()
{
    wchar_t buffer[64];
    CoreUIManager::GetInstance()->GetCurrentLocale(buffer, 64);
    return QString::fromWCharArray(buffer);
}

QStringList translatorKeys()
{
    return CoreUIManagerImp::Get(CoreUIManager::GetInstance())->mTranslators.keys();
}

QString cancelText()
{
    return QCoreApplication::translate("QProgressDialog", "Cancel");
}

} // namespace

namespace {
class CountingProvider : public IMessageBoxProvider
{
public:
    explicit CountingProvider(int* destroyed)
        : mpDestroyed(destroyed)
    {}
    ~CountingProvider() override { ++*mpDestroyed; }
    IMessageBox* CreateMessageBox() override { return nullptr; }
    void DestroyMessageBox(IMessageBox*) override {}

private:
    int* mpDestroyed;
};
} // namespace

class tst_CoreUIManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        CoreUIManager::Initialize();
        Internal::SetWarningHook([](const QString&, const QString&) { return true; });
    }

    void cleanup()
    {
        CoreUIManager::Uninitialize();
        qApp->setStyleSheet(QString());
    }

    void themeNames_data()
    {
        QTest::addColumn<int>("theme");
        QTest::addColumn<QString>("name");
        QTest::newRow("1") << 1 << QStringLiteral("Dark");
        QTest::newRow("2") << 2 << QStringLiteral("Light");
        QTest::newRow("3") << 3 << QStringLiteral("HIGLight");
        QTest::newRow("0 falls back to Dark") << 0 << QStringLiteral("Dark");
        QTest::newRow("7 falls back to Dark") << 7 << QStringLiteral("Dark");
    }

    void themeNames()
    {
        QFETCH(int, theme);
        const Theme value = Theme(theme);
        QTEST(QString::fromWCharArray(CoreUIManager::GetInstance()->GetThemeName(value)), "name");
    }

    void emptyLocaleSelectsSystemLocale()
    {
        CoreUIManager* core = CoreUIManager::GetInstance();
        QCOMPARE(currentLocale(), LocaleUtil::GetCurrentSystemLocale());
        QVERIFY(!currentLocale().contains(QLatin1Char('_')));
        QVERIFY(core->SetCurrentLocale(L"fr_FR"));
        QVERIFY(core->SetCurrentLocale(L""));
        QCOMPARE(currentLocale(), LocaleUtil::GetCurrentSystemLocale());
    }

    void localeInstallsQtTranslators()
    {
        CoreUIManager* core = CoreUIManager::GetInstance();
        QVERIFY(core->SetTranslatorFilesPath(wide(qtTranslations()).c_str()));
        QCOMPARE(cancelText(), QStringLiteral("Cancel"));

        QVERIFY(core->SetCurrentLocale(L"de_DE"));
        QCOMPARE(currentLocale(), QStringLiteral("de-DE"));
        QCOMPARE(QByteArray(core->GetCurrentLocaleThreeLetterISOLanguageName()), QByteArray("deu"));
        QCOMPARE(core->GetCurrentLCID(), 0x0407u);
        QCOMPARE(QLocale().name(), QStringLiteral("de_DE"));
        QVERIFY(translatorKeys().contains(QStringLiteral("qt_de")));
        QVERIFY(translatorKeys().contains(QStringLiteral("qtbase_de")));
        QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));

        // A locale without a row in the language table installs nothing more.
        const int before = translatorKeys().size();
        QVERIFY(core->SetCurrentLocale(L"xx-YY"));
        QCOMPARE(translatorKeys().size(), before);
        QCOMPARE(QLocale().language(), QLocale::C);
    }

    // Without a folder named by the host, the library's own texts come from
    // the translations built beside it and Qt's from Qt's translations folder.
    void defaultFoldersTranslateLibraryAndQt_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("warningTitle");
        QTest::addColumn<QString>("clearToolTip");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("German") << QStringLiteral("de-DE") << QStringLiteral("QXmlStream für UI-Skin")
                                << QStringLiteral("Leeren") << QStringLiteral("Abbrechen");
        QTest::newRow("French") << QStringLiteral("fr-FR")
                                << QStringLiteral("QXmlStream pour l'habillage de l'interface")
                                << QStringLiteral("Effacer") << QStringLiteral("Annuler");
    }

    void defaultFoldersTranslateLibraryAndQt()
    {
        QFETCH(QString, locale);
        QVERIFY(CoreUIManager::GetInstance()->SetCurrentLocale(wide(locale).c_str()));

        QString title;
        Internal::SetWarningHook([&title](const QString& shown, const QString&) {
            title = shown;
            return true;
        });
        QVERIFY(!ThemeManager::GetInstance()->LoadThemeFile(QStringLiteral("/nonexistent/Theme.xbel"), false));
        QTEST(title, "warningTitle");

        SearchBox search;
        auto* clear = search.findChild<QAbstractButton*>(QStringLiteral("SearchBoxClear"));
        QVERIFY(clear);
        QTEST(clear->toolTip(), "clearToolTip");

        UIMessageBox box;
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        QTEST(box.button(QMessageBox::Cancel)->text().remove(QLatin1Char('&')), "cancel");
    }

    void sameLocaleTwiceReachesUnitsOnly()
    {
        CoreUIManager* core = CoreUIManager::GetInstance();
        QVERIFY(core->SetCurrentLocale(L"de-DE"));
        UnitsManager::GetInstance()->SetCurrentLocale(L"fr-FR");
        const QStringList keys = translatorKeys();
        QVERIFY(core->SetCurrentLocale(L"de-DE"));
        QCOMPARE(UnitsManager::GetInstance()->GetCurrentLocale(), QStringLiteral("de-DE"));
        QCOMPARE(translatorKeys(), keys);
    }

    void translatorBaseNamesIgnoreCase()
    {
        CoreUIManager* core = CoreUIManager::GetInstance();
        const int before = translatorKeys().size();
        QVERIFY(translatorKeys().contains(QStringLiteral("kvuicore")));
        QVERIFY(core->InstallTranslator(L"KvUICore"));
        QVERIFY(core->InstallTranslator(L"kvuicore"));
        QCOMPARE(translatorKeys().size(), before);
        QVERIFY(core->InstallTranslator(L"MyApp"));
        QCOMPARE(translatorKeys().size(), before + 1);
    }

    void translatorFoundLaterIsLoaded()
    {
        QTemporaryDir empty;
        QTemporaryDir filled;
        CoreUIManager* core = CoreUIManager::GetInstance();
        QVERIFY(core->SetTranslatorFilesPath(wide(empty.path()).c_str()));
        QVERIFY(core->SetCurrentLocale(L"fr-FR"));
        QVERIFY(core->InstallTranslator(L"MyApp"));
        QCOMPARE(cancelText(), QStringLiteral("Cancel"));

        // Any .qm file of Qt's own serves as the application's translation here.
        QVERIFY(QFile::copy(qtTranslations() + QStringLiteral("/qtbase_de.qm"),
                            filled.filePath(QStringLiteral("MyApp_de.qm"))));
        QVERIFY(core->SetTranslatorFilesPath(wide(filled.path()).c_str()));
        QCOMPARE(cancelText(), QStringLiteral("Cancel")); // MyApp_de.qm is not French
        QVERIFY(core->SetCurrentLocale(L"de-DE"));
        QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));

        wchar_t buffer[512];
        QCOMPARE(core->GetTranslatorFilesPath(buffer, 512), int(filled.path().size()));
        QCOMPARE(QString::fromWCharArray(buffer), filled.path());
    }

    void translationFileThatFailsToLoadCountsAsLoaded()
    {
        QTemporaryDir broken;
        for (const char* name : {"qt_de.qm", "qtbase_de.qm"}) {
            QFile file(broken.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.write("not a translation file") > 0);
        }
        CoreUIManager* core = CoreUIManager::GetInstance();
        QVERIFY(core->SetTranslatorFilesPath(wide(qtTranslations()).c_str()));
        QVERIFY(core->SetCurrentLocale(L"de-DE"));
        QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));
        // The broken files become the loaded ones, so the translators are empty ...
        QVERIFY(core->SetTranslatorFilesPath(wide(broken.path()).c_str()));
        QCOMPARE(cancelText(), QStringLiteral("Cancel"));
        // ... and the good files count as different again.
        QVERIFY(core->SetTranslatorFilesPath(wide(qtTranslations()).c_str()));
        QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));
    }

    void globalStyleSheetDisabledIsMarkedApplied()
    {
        CoreUIManager::EnableGlobalStyleSheet(false);
        QVERIFY(!CoreUIManager::IsGlobalStyleSheetEnabled());
        CoreUIManager* core = CoreUIManager::GetInstance();
        core->SetThemeFilesPath(wide(QStringLiteral(KVUICORE_THEMES_DIR)).c_str());
        core->OverrideApplicationStyleSheet();
        QVERIFY(CoreUIManagerImp::Get(core)->mbGlobalStyleSheetApplied);
        QCOMPARE(qApp->styleSheet(), QString());

        CoreUIManager::EnableGlobalStyleSheet(true);
        core->OverrideApplicationStyleSheet();
        QCOMPARE(qApp->styleSheet(), QString()); // applied once means done
    }

    void initializeUseUninitializeRepeats()
    {
        for (int round = 0; round < 3; ++round) {
            QVERIFY(CoreUIManager::Initialize());
            QVERIFY(CoreUIManager::Initialize());                    // idempotent
            QVERIFY(QMetaType::fromName("SliderElement").isValid()); // the property editor registered its kinds
            CoreUIManager* core = CoreUIManager::GetInstance();
            QVERIFY(core->SetTranslatorFilesPath(wide(qtTranslations()).c_str()));
            QVERIFY(core->SetCurrentLocale(L"de-DE"));
            core->SetThemeFilesPath(wide(QStringLiteral(KVUICORE_THEMES_DIR)).c_str());
            QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Dark")));
            QCOMPARE(cancelText(), QStringLiteral("Abbrechen"));

            QVERIFY(CoreUIManager::Uninitialize());
            QVERIFY(CoreUIManager::Uninitialize());
            QVERIFY(!Internal::CoreUIManagerExists());
            QVERIFY(!ThemeManagerInstanceExists());
            QCOMPARE(cancelText(), QStringLiteral("Cancel")); // translators removed
            QVERIFY(CoreUIManager::IsGlobalStyleSheetEnabled());
        }
        // A fresh singleton after shut-down starts with no theme.
        QCOMPARE(ThemeManager::GetInstance()->GetCurrentTheme(), QString());
    }

    void providerOwnership()
    {
        int destroyed = 0;
        CoreUIManager* core = CoreUIManager::GetInstance();
        auto* first = new CountingProvider(&destroyed);
        core->SetMessageBoxProvider(first);
        QCOMPARE(core->GetMessageBoxProvider(), first);
        core->SetMessageBoxProvider(new CountingProvider(&destroyed));
        QCOMPARE(destroyed, 1); // the replaced provider is released
        CoreUIManager::Uninitialize();
        QCOMPARE(destroyed, 2); // shut-down releases the installed one
    }

    void localeNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<uint>("lcid");
        QTest::addColumn<QByteArray>("iso3");
        QTest::addColumn<QString>("qtName");

        QTest::newRow("cs-CZ") << "cs-CZ" << 0x0405u << QByteArray("ces") << "cs_CZ";
        QTest::newRow("en-US") << "en-US" << 0x0409u << QByteArray("eng") << "en_US";
        QTest::newRow("de_DE underscore") << "de_DE" << 0x0407u << QByteArray("deu") << "de_DE";
        QTest::newRow("es-ES") << "es-ES" << 0x0C0Au << QByteArray("spa") << "es_ES";
        QTest::newRow("fr-FR") << "fr-FR" << 0x040Cu << QByteArray("fra") << "fr_FR";
        QTest::newRow("hu-HU") << "hu-HU" << 0x040Eu << QByteArray("hun") << "hu_HU";
        QTest::newRow("it-IT") << "it-IT" << 0x0410u << QByteArray("ita") << "it_IT";
        QTest::newRow("ja-JP") << "ja-JP" << 0x0411u << QByteArray("jpn") << "ja_JP";
        QTest::newRow("ko-KR") << "ko-KR" << 0x0412u << QByteArray("kor") << "ko_KR";
        QTest::newRow("pl-PL") << "pl-PL" << 0x0415u << QByteArray("pol") << "pl_PL";
        QTest::newRow("pt-BR") << "pt-BR" << 0x0416u << QByteArray("por") << "pt_BR";
        QTest::newRow("ru-RU") << "ru-RU" << 0x0419u << QByteArray("rus") << "ru_RU";
        QTest::newRow("zh-CN") << "zh-CN" << 0x0804u << QByteArray("zho") << "zh_CN";
        QTest::newRow("zh-TW") << "zh-TW" << 0x0404u << QByteArray("zho") << "zh_TW";
        QTest::newRow("tr-TR") << "tr-TR" << 0x041Fu << QByteArray("tur") << "tr_TR";
        QTest::newRow("unknown") << "xx-YY" << 0u << QByteArray() << "";
    }

    void localeNames()
    {
        QFETCH(QString, name);
        QFETCH(uint, lcid);
        QCOMPARE(uint(LocaleUtil::LocaleNameToLCID(name)), lcid);
        QTEST(QByteArray(LocaleUtil::LocaleNameToThreeLetterISOLanguageName(name)), "iso3");
        QTEST(LocaleUtil::LocaleNameToQtLocaleName(name), "qtName");
        if (lcid != 0)
            QCOMPARE(LocaleUtil::LCIDToLocaleName(lcid).isEmpty(), false);
    }

    void translatorFileNaming()
    {
        QTemporaryDir dir;
        auto touch = [&dir](const QString& name) {
            QFile file(dir.filePath(name));
            return file.open(QIODevice::WriteOnly);
        };
        // Nothing there: the most specific candidate, which may not exist.
        QCOMPARE(LocaleUtil::ResolveTranslatorFile("App", "App", "de-DE", dir.path()), dir.filePath("App_de_DE.qm"));
        QVERIFY(touch(QStringLiteral("App_de.qm")));
        QCOMPARE(LocaleUtil::ResolveTranslatorFile("App", "App", "de-AT", dir.path()), dir.filePath("App_de.qm"));
        QVERIFY(touch(QStringLiteral("App_de_AT.qm")));
        QCOMPARE(LocaleUtil::ResolveTranslatorFile("App", "App", "de-AT", dir.path()), dir.filePath("App_de_AT.qm"));
        // Base names that carry their language are found as they are.
        QVERIFY(touch(QStringLiteral("qt_de.qm")));
        QCOMPARE(LocaleUtil::ResolveTranslatorFile("qt_de", "qt_de", "de-DE", dir.path()), dir.filePath("qt_de.qm"));
        // The second base name is the fallback.
        QCOMPARE(LocaleUtil::ResolveTranslatorFile("Other", "App", "de-AT", dir.path()), dir.filePath("App_de_AT.qm"));
    }
};

QTEST_MAIN(tst_CoreUIManager)
#include "tst_coreuimanager.moc"

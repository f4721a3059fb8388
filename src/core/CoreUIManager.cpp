#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/core/CoreUIManagerImp.h>
#include <KvUICore/core/CoreUIManager_p.h>

#include <KvUICore/platform/PlatformFiles_p.h>

#include <KvCoreUnits/LocaleUtil.h>
#include <KvCoreUnits/StringUtil.h>
#include <KvCoreUnits/UnitsManager.h>

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Kavrel::UICore {

using kavrel::platform::core::locale::LocaleUtil;
using kavrel::platform::core::units::StringUtil;
using kavrel::platform::core::units::UnitsManager;

namespace {

bool gInitialized = false;
bool gGlobalStyleSheetEnabled = true;
CoreUIManager* gInstance = nullptr;

// Filled in by the layers above when the library loads.
Internal::ThemeLayer gThemeLayer;
Internal::MessageBoxLayer gMessageBoxLayer;
Internal::PropertyEditorLayer gPropertyEditorLayer;

// Locale → (Qt translation base, Qt base-module translation base).
const QHash<QString, QPair<QString, QString>>& languageTable()
{
    static const QHash<QString, QPair<QString, QString>> table = {
        {QStringLiteral("cs-CZ"), {QStringLiteral("qt_cs"), QStringLiteral("qtbase_cs")}},
        {QStringLiteral("en-US"), {QStringLiteral("qt_en"), QStringLiteral("qtbase_en")}},
        {QStringLiteral("de-DE"), {QStringLiteral("qt_de"), QStringLiteral("qtbase_de")}},
        {QStringLiteral("es-ES"), {QStringLiteral("qt_es"), QStringLiteral("qtbase_es")}},
        {QStringLiteral("fr-FR"), {QStringLiteral("qt_fr"), QStringLiteral("qtbase_fr")}},
        {QStringLiteral("hu-HU"), {QStringLiteral("qt_hu"), QStringLiteral("qtbase_hu")}},
        {QStringLiteral("it-IT"), {QStringLiteral("qt_it"), QStringLiteral("qtbase_it")}},
        {QStringLiteral("ja-JP"), {QStringLiteral("qt_ja"), QStringLiteral("qtbase_ja")}},
        {QStringLiteral("ko-KR"), {QStringLiteral("qt_ko"), QStringLiteral("qtbase_ko")}},
        {QStringLiteral("pl-PL"), {QStringLiteral("qt_pl"), QStringLiteral("qtbase_pl")}},
        {QStringLiteral("pt-BR"), {QStringLiteral("qt_pt_BR"), QStringLiteral("qtbase_pt_BR")}},
        {QStringLiteral("ru-RU"), {QStringLiteral("qt_ru"), QStringLiteral("qtbase_ru")}},
        {QStringLiteral("zh-CN"), {QStringLiteral("qt_zh_CN"), QStringLiteral("qtbase_zh_CN")}},
        {QStringLiteral("zh-TW"), {QStringLiteral("qt_zh_TW"), QStringLiteral("qtbase_zh_TW")}},
        {QStringLiteral("tr-TR"), {QStringLiteral("qt_tr"), QStringLiteral("qtbase_tr")}},
    };
    return table;
}

// The folders searched for translation files. A folder the host named is the
// only one; without it the library's own files come from the translations
// folder beside the library, Qt's from Qt's translations folder, and a host's
// from the working folder.
QStringList translatorDirectories(const QString& hostPath)
{
    if (!hostPath.isEmpty())
        return {hostPath};
    QStringList directories;
    const QString library = Platform::LibraryModuleDirectory();
    if (!library.isEmpty())
        directories << library + QLatin1String("/translations");
    directories << QLibraryInfo::path(QLibraryInfo::TranslationsPath) << QStringLiteral(".");
    return directories;
}

std::uint32_t userDefaultLCID()
{
#ifdef _WIN32
    return GetUserDefaultLCID();
#else
    return LocaleUtil::LocaleNameToLCID(LocaleUtil::GetCurrentSystemLocale());
#endif
}

} // namespace

// ---- Translator ----------------------------------------------------------

Translator::Translator(const QString& baseName)
    : QTranslator(nullptr)
    , msBaseName(baseName)
    , msSecondBaseName(baseName)
{
}

Translator::~Translator() = default;

// ---- CoreUIManagerImp ----------------------------------------------------

CoreUIManagerImp::CoreUIManagerImp(CoreUIManager* owner)
    : mpOwner(owner)
    , muLCID(userDefaultLCID())
    , mLanguageTable(languageTable())
{
}

CoreUIManagerImp::~CoreUIManagerImp()
{
    for (Translator* translator : std::as_const(mTranslators)) {
        if (QCoreApplication::instance())
            QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    mTranslators.clear();
    mLanguageTable.clear();
    if (gThemeLayer.mpDestroy)
        gThemeLayer.mpDestroy();
    ReleaseProvider();
}

CoreUIManagerImp* CoreUIManagerImp::Get(CoreUIManager* manager)
{
    return manager ? manager->mpImp.get() : nullptr;
}

void CoreUIManagerImp::ReleaseProvider()
{
    IMessageBoxProvider* provider = mpMessageBoxProvider;
    mpMessageBoxProvider = nullptr;
    if (provider && gMessageBoxLayer.mpReleaseProvider)
        gMessageBoxLayer.mpReleaseProvider(provider);
}

void CoreUIManagerImp::InstallQtTranslators()
{
    const auto row = mLanguageTable.constFind(msCurrentLocale);
    if (row == mLanguageTable.constEnd())
        return;
    const std::wstring qtBase = row->first.toStdWString();
    mpOwner->InstallTranslator(qtBase.c_str());
    if (!row->second.isEmpty()) {
        const std::wstring baseModule = row->second.toStdWString();
        mpOwner->InstallTranslator(baseModule.c_str());
    }
}

void CoreUIManagerImp::ReloadTranslator(Translator* translator)
{
    if (!QCoreApplication::instance() || !gInstance || !translator)
        return;
    const QString locale = translator->msSecondBaseName.compare(QLatin1String("qt_en_us"), Qt::CaseSensitive) == 0
                               ? QStringLiteral("en-US")
                               : msCurrentLocale;
    QString file;
    for (const QString& directory : translatorDirectories(msTranslatorFilesPath)) {
        file =
            LocaleUtil::ResolveTranslatorFile(translator->msBaseName, translator->msSecondBaseName, locale, directory);
        if (!file.isEmpty() && QFileInfo::exists(file))
            break;
        file.clear();
    }
    if (file.isEmpty())
        return;
    file = QDir::cleanPath(file);
    if (translator->mbLoaded && translator->msLoadedFile == file)
        return;
    // A file that fails to load still counts as the loaded one: the translator
    // is then empty, and a later change of path or locale tries again.
    static_cast<void>(translator->load(file, QString(), QString(), QString()));
    // Reinstalled so that it is the most recent translator and wins lookups.
    QCoreApplication::removeTranslator(translator);
    QCoreApplication::installTranslator(translator);
    translator->msLoadedFile = file;
    translator->mbLoaded = true;
}

void CoreUIManagerImp::ReloadTranslators()
{
    for (Translator* translator : std::as_const(mTranslators))
        ReloadTranslator(translator);
}

namespace Internal {

void RegisterThemeLayer(const ThemeLayer& layer)
{
    gThemeLayer = layer;
}

void RegisterMessageBoxLayer(const MessageBoxLayer& layer)
{
    gMessageBoxLayer = layer;
}

void RegisterPropertyEditorLayer(const PropertyEditorLayer& layer)
{
    gPropertyEditorLayer = layer;
}

bool CoreUIManagerExists()
{
    return gInstance != nullptr;
}

QString CurrentLocaleName()
{
    return CoreUIManagerImp::Get(CoreUIManager::GetInstance())->msCurrentLocale;
}

QString TranslatorFilesPath()
{
    return CoreUIManagerImp::Get(CoreUIManager::GetInstance())->msTranslatorFilesPath;
}

int MessageBoxStyle()
{
    return CoreUIManagerImp::Get(CoreUIManager::GetInstance())->miMessageBoxStyle;
}

void SetMessageBoxStyle(int style)
{
    CoreUIManagerImp* manager = CoreUIManagerImp::Get(CoreUIManager::GetInstance());
    if (manager->miMessageBoxStyle == style)
        return;
    manager->miMessageBoxStyle = style;
    // A host provider is dropped too: the next box comes from a fresh default one.
    manager->ReleaseProvider();
}

void ReapplyGlobalStyleSheet()
{
    CoreUIManager* core = CoreUIManager::GetInstance();
    CoreUIManagerImp::Get(core)->mbGlobalStyleSheetApplied = false;
    core->OverrideApplicationStyleSheet();
}

} // namespace Internal

// ---- CoreUIManager -------------------------------------------------------

CoreUIManager::CoreUIManager()
    : mpImp(std::make_unique<CoreUIManagerImp>(this))
{
}

CoreUIManager::~CoreUIManager() = default;

bool CoreUIManager::Initialize(void*)
{
    if (gInitialized)
        return true;
    gInitialized = true;
    gGlobalStyleSheetEnabled = true;
    if (gPropertyEditorLayer.mpRegisterElementTypes)
        gPropertyEditorLayer.mpRegisterElementTypes();
    UnitsManager::Initialize();
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
    return true;
}

bool CoreUIManager::Uninitialize()
{
    if (!gInitialized)
        return true;
    UnitsManager::Uninitialize();
    CoreUIManager* instance = gInstance;
    gInstance = nullptr;
    delete instance;
    if (gPropertyEditorLayer.mpClearRememberedColumnWidths)
        gPropertyEditorLayer.mpClearRememberedColumnWidths();
    gInitialized = false;
    gGlobalStyleSheetEnabled = true;
    return true;
}

namespace {
struct DiagnosticHandlerSlot
{
    QMutex mMutex;
    CoreUIManager::DiagnosticHandler mHandler;
};

DiagnosticHandlerSlot& diagnosticHandlerSlot()
{
    static DiagnosticHandlerSlot slot;
    return slot;
}
} // namespace

void CoreUIManager::SetDiagnosticHandler(DiagnosticHandler handler)
{
    DiagnosticHandlerSlot& slot = diagnosticHandlerSlot();
    const QMutexLocker lock(&slot.mMutex);
    slot.mHandler = std::move(handler);
}

void Internal::CallDiagnosticHandler(const char* category, CoreUIManager::DiagnosticSeverity severity,
                                     const QString& text)
{
    // Called on a copy, so that the handler may replace itself meanwhile.
    CoreUIManager::DiagnosticHandler handler;
    {
        DiagnosticHandlerSlot& slot = diagnosticHandlerSlot();
        const QMutexLocker lock(&slot.mMutex);
        handler = slot.mHandler;
    }
    if (handler)
        handler(category, severity, text.toStdWString().c_str());
}

CoreUIManager* CoreUIManager::GetInstance()
{
    if (!gInstance) {
        gInstance = new CoreUIManager;
        gInstance->SetCurrentLocale(L"");
        gInstance->InstallTranslator(L"KvUICore");
        gInstance->mpImp->InstallQtTranslators();
    }
    return gInstance;
}

void CoreUIManager::EnableGlobalStyleSheet(bool enable)
{
    gGlobalStyleSheetEnabled = enable;
}

bool CoreUIManager::IsGlobalStyleSheetEnabled()
{
    return gGlobalStyleSheetEnabled;
}

bool CoreUIManager::SetCurrentLocale(const wchar_t* localeName)
{
    UnitsManager::GetInstance()->SetCurrentLocale(localeName);
    QString name = StringUtil::WcharToQString(localeName);
    if (mpImp->mbLocaleSet && mpImp->msCurrentLocale == name)
        return true;
    if (name.isEmpty())
        name = LocaleUtil::GetCurrentSystemLocale();
    name.replace(QLatin1Char('_'), QLatin1Char('-'));
    mpImp->msCurrentLocale = name;
    mpImp->muLCID = LocaleUtil::LocaleNameToLCID(name);
    mpImp->mpThreeLetterLanguageName = LocaleUtil::LocaleNameToThreeLetterISOLanguageName(name);
    const QString qtName = LocaleUtil::LocaleNameToQtLocaleName(name);
    QLocale::setDefault(qtName.isEmpty() ? QLocale::c() : QLocale(qtName));
    mpImp->mbLocaleSet = true;
    mpImp->InstallQtTranslators();
    mpImp->ReloadTranslators();
    return true;
}

int CoreUIManager::GetCurrentLocale(wchar_t* buffer, int capacity)
{
    return StringUtil::QStringToWchar(mpImp->msCurrentLocale, buffer, capacity);
}

const char* CoreUIManager::GetCurrentLocaleThreeLetterISOLanguageName()
{
    return mpImp->mpThreeLetterLanguageName;
}

unsigned int CoreUIManager::GetCurrentLCID() const
{
    return mpImp->muLCID;
}

bool CoreUIManager::InstallTranslator(const wchar_t* baseName)
{
    const QString name = StringUtil::WcharToQString(baseName);
    const QString key = name.toLower();
    Translator* existing = mpImp->mTranslators.value(key, nullptr);
    if (existing)
        return true;
    auto* translator = new Translator(name);
    mpImp->mTranslators.insert(key, translator);
    mpImp->ReloadTranslator(translator);
    return true;
}

bool CoreUIManager::SetTranslatorFilesPath(const wchar_t* path)
{
    const QString directory = StringUtil::WcharToQString(path);
    if (directory == mpImp->msTranslatorFilesPath)
        return true;
    if (!QCoreApplication::instance())
        return false;
    mpImp->msTranslatorFilesPath = directory;
    mpImp->ReloadTranslators();
    return true;
}

int CoreUIManager::GetTranslatorFilesPath(wchar_t* buffer, int capacity)
{
    return StringUtil::QStringToWchar(mpImp->msTranslatorFilesPath, buffer, capacity);
}

void CoreUIManager::SetThemeFilesPath(const wchar_t* path)
{
    if (gThemeLayer.mpSetThemeFilesPath)
        gThemeLayer.mpSetThemeFilesPath(path);
}

int CoreUIManager::GetThemeFilesPath(wchar_t* buffer, int capacity)
{
    return gThemeLayer.mpGetThemeFilesPath ? gThemeLayer.mpGetThemeFilesPath(buffer, capacity) : 0;
}

const wchar_t* CoreUIManager::GetThemeName(const Theme& theme)
{
    switch (theme) {
    case Light:
        return L"Light";
    case HIGLight:
        return L"HIGLight";
    case Dark:
    default:
        return L"Dark";
    }
}

void CoreUIManager::SetMessageBoxProvider(IMessageBoxProvider* provider)
{
    if (provider == mpImp->mpMessageBoxProvider)
        return;
    mpImp->ReleaseProvider();
    mpImp->mpMessageBoxProvider = provider;
}

IMessageBoxProvider* CoreUIManager::GetMessageBoxProvider()
{
    if (!mpImp->mpMessageBoxProvider && gMessageBoxLayer.mpCreateDefaultProvider)
        mpImp->mpMessageBoxProvider = gMessageBoxLayer.mpCreateDefaultProvider();
    return mpImp->mpMessageBoxProvider;
}

void CoreUIManager::OverrideApplicationStyleSheet()
{
    if (mpImp->mbGlobalStyleSheetApplied || !qobject_cast<QApplication*>(QCoreApplication::instance()) ||
        !gThemeLayer.mpGlobalStyleSheet)
        return;
    const QString styleSheet = gThemeLayer.mpGlobalStyleSheet();
    // Empty: nothing to apply yet, a later call may succeed.
    if (styleSheet.isEmpty())
        return;
    if (gGlobalStyleSheetEnabled)
        qApp->setStyleSheet(styleSheet);
    mpImp->mbGlobalStyleSheetApplied = true;
}

} // namespace Kavrel::UICore

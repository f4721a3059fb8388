#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/theme/ThemeManagerImp.h>

#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/platform/PlatformFiles_p.h>
#include <KvUICore/util/Diagnostics_p.h>

#include <KvCoreUnits/StringUtil.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLinearGradient>
#include <QWidget>

namespace Kavrel::UICore {

using kavrel::platform::core::units::StringUtil;

namespace {

ThemeManager* gInstance = nullptr;

QString warningTitle()
{
    return ThemeManager::tr("QXmlStream for UI Skin");
}

} // namespace

bool ThemeManagerInstanceExists()
{
    return gInstance != nullptr;
}

void DestroyThemeManagerInstance()
{
    ThemeManager* instance = gInstance;
    gInstance = nullptr;
    delete instance;
}

namespace {

QString globalStyleSheet()
{
    if (!gInstance)
        return QString();
    const QString scrollBarKey = QStringLiteral("ScrollBarGlobal");
    const QString toolTipKey = QStringLiteral("ToolTipGlobal");
    if (!gInstance->Exists(scrollBarKey) || !gInstance->Exists(toolTipKey)) {
        QFile file(QStringLiteral(":/AppStyle.xbel"));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text) || !gInstance->LoadThemeFile(file, false))
            return QString();
    }
    return gInstance->GetStyleSheet(scrollBarKey) + gInstance->GetStyleSheet(toolTipKey);
}

void registerThemeLayer()
{
    Internal::ThemeLayer layer;
    layer.mpGlobalStyleSheet = &globalStyleSheet;
    layer.mpSetThemeFilesPath = [](const wchar_t* directory) {
        ThemeManager::GetInstance()->SetThemeFilesPath(directory);
    };
    layer.mpGetThemeFilesPath = [](wchar_t* buffer, int capacity) {
        return ThemeManager::GetInstance()->GetThemeFilesPath(buffer, capacity);
    };
    layer.mpDestroy = &DestroyThemeManagerInstance;
    Internal::RegisterThemeLayer(layer);
}
Q_CONSTRUCTOR_FUNCTION(registerThemeLayer)

} // namespace

// ---- ThemeManagerImp -----------------------------------------------------

const std::map<QString, QString>& ThemeManagerImp::BuiltInThemes()
{
    static const std::map<QString, QString> themes = {
        {QStringLiteral("Dark"), QStringLiteral("DarkTheme.xbel")},
        {QStringLiteral("HIGLight"), QStringLiteral("HIGLightTheme.xbel")},
        {QStringLiteral("Light"), QStringLiteral("LightTheme.xbel")},
    };
    return themes;
}

ThemeManagerImp::ThemeManagerImp(ThemeManager* owner)
    : mpOwner(owner)
{
    for (const auto& [name, file] : BuiltInThemes())
        mThemeRegistry.emplace(name.toLower(), file);

    const QString application = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
    if (!application.isEmpty()) {
        mSearchDirectories << QDir::cleanPath(application + QLatin1String("/Themes"))
                           << QDir::cleanPath(application);
    }
    const QString module = Platform::LibraryModuleDirectory();
    if (!module.isEmpty() && module != application) {
        mSearchDirectories << QDir::cleanPath(module + QLatin1String("/Themes")) << QDir::cleanPath(module);
    }
}

ThemeManagerImp::~ThemeManagerImp()
{
    ClearTables();
    Internal::ClearIconCache();
}

void ThemeManagerImp::ClearTables()
{
    mSolidBrushes.clear();
    qDeleteAll(mThemeValues);
    mThemeValues.clear();
    qDeleteAll(mBaseValues);
    mBaseValues.clear();
}

const QVariant* ThemeManagerImp::Find(const QString& key)
{
    if (msCurrentTheme.isEmpty())
        EnsureTheme();
    // A theme entry hides a base entry of the same name.
    if (const QVariant* value = mThemeValues.value(key, nullptr))
        return value;
    return mBaseValues.value(key, nullptr);
}

void ThemeManagerImp::EnsureTheme()
{
    // While a switch loads its file, the theme being loaded is not current yet.
    if (!msCurrentTheme.isEmpty() || mbSwitching)
        return;
    QString theme;
    const QString light = QStringLiteral("Light");
    if (!LocateThemeFile(BuiltInThemes().at(light)).isEmpty()) {
        theme = light;
    } else {
        for (const auto& [name, file] : BuiltInThemes()) {
            if (!LocateThemeFile(file).isEmpty()) {
                theme = name;
                break;
            }
        }
    }
    // A file that fails to load is tried (and reported) again on the next query.
    if (!theme.isEmpty())
        SetCurrentTheme(theme);
}

QString ThemeManagerImp::LocateThemeFile(const QString& fileName) const
{
    for (const QString& directory : mSearchDirectories) {
        const QString path = directory + QLatin1Char('/') + fileName;
        // Opening a FIFO would block: only regular files are tried.
        if (!QFileInfo(path).isFile())
            continue;
        QFile file(path);
        if (file.open(QIODevice::ReadOnly | QIODevice::Text))
            return path;
    }
    return QString();
}

bool ThemeManagerImp::SetCurrentTheme(const QString& name)
{
    if (name == msCurrentTheme)
        return true;
    const auto entry = mThemeRegistry.find(name.toLower());
    if (entry == mThemeRegistry.end())
        return false;
    const QString path = LocateThemeFile(entry->second);
    if (path.isEmpty())
        return false;
    // The new theme loads into empty tables; the current ones are kept aside
    // so that a file that fails to load leaves the host with a whole theme.
    Internal::ThemeValueTable previousTheme;
    Internal::ThemeValueTable previousBase;
    mSolidBrushes.clear();
    mThemeValues.swap(previousTheme);
    mBaseValues.swap(previousBase);
    mbSwitching = true;
    const bool loaded = LoadThemeFile(path, true);
    mbSwitching = false;
    if (!loaded) {
        ClearTables();
        mThemeValues.swap(previousTheme);
        mBaseValues.swap(previousBase);
        return false;
    }
    qDeleteAll(previousTheme);
    qDeleteAll(previousBase);
    const QString old = msCurrentTheme;
    msCurrentTheme = name;
    Internal::ReapplyGlobalStyleSheet();
    Q_EMIT ThemeChanged(old, name);
    return true;
}

bool ThemeManagerImp::LoadThemeFile(QFile& file, bool asTheme)
{
    // Entries may be replaced, and a new value may reuse an old one's address.
    mSolidBrushes.clear();
    Internal::ThemeFileReader reader(asTheme ? mThemeValues : mBaseValues,
                                     [this](const QString& name) { return Internal::ThemeValueText(Find(name)); });
    if (reader.Read(&file))
        return true;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Theme, QtWarningMsg,
                              QStringLiteral("Theme: parse error in file %1 at line %2, column %3: %4\n")
                                  .arg(file.fileName())
                                  .arg(reader.LineNumber())
                                  .arg(reader.ColumnNumber())
                                  .arg(reader.ErrorString()));
    Internal::ShowWarning(warningTitle(), tr("Parse error in file %1 at line %2, column %3:\n%4")
                                              .arg(file.fileName())
                                              .arg(reader.LineNumber())
                                              .arg(reader.ColumnNumber())
                                              .arg(reader.ErrorString()));
    return false;
}

bool ThemeManagerImp::LoadThemeFile(const QString& path, bool asTheme)
{
    QFile file(path);
    // Checked before opening: opening a FIFO blocks.
    QString reason = Internal::UnreadableFileReason(path);
    if (reason.isEmpty() && !file.open(QIODevice::ReadOnly | QIODevice::Text))
        reason = file.errorString();
    if (!reason.isEmpty()) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Theme, QtWarningMsg,
                                  QStringLiteral("Theme: cannot read file %1: %2\n").arg(path, reason));
        Internal::ShowWarning(warningTitle(), tr("Cannot read file %1:\n%2.").arg(path, reason));
        return false;
    }
    return LoadThemeFile(file, asTheme);
}

// ---- ThemeManager --------------------------------------------------------

ThemeManager::ThemeManager()
    : mpImp(std::make_unique<ThemeManagerImp>(this))
{
    connect(mpImp.get(), &ThemeManagerImp::ThemeChanged, this, &ThemeManager::ThemeChanged);
}

ThemeManager::~ThemeManager() = default;

ThemeManager* ThemeManager::GetInstance()
{
    if (!gInstance)
        gInstance = new ThemeManager;
    return gInstance;
}

bool ThemeManager::Exists(const QString& key)
{
    return mpImp->Find(key) != nullptr;
}

QColor ThemeManager::GetColor(const QString& key)
{
    const QVariant* value = mpImp->Find(key);
    if (!value || value->metaType() != QMetaType::fromType<QColor>())
        return QColor();
    return *static_cast<const QColor*>(value->constData());
}

QBrush ThemeManager::GetBrush(const QString& key, const QRect& rect)
{
    const QVariant* value = mpImp->Find(key);
    if (!value)
        return QBrush();
    if (value->metaType() == QMetaType::fromType<QColor>()) {
        // A solid brush allocates; controls ask for the same ones on every paint.
        auto brush = mpImp->mSolidBrushes.constFind(value);
        if (brush == mpImp->mSolidBrushes.constEnd())
            brush = mpImp->mSolidBrushes.insert(
                value, QBrush(*static_cast<const QColor*>(value->constData()), Qt::SolidPattern));
        return *brush;
    }
    if (value->metaType() == QMetaType::fromType<QLinearGradient>()) {
        QLinearGradient gradient = value->value<QLinearGradient>();
        gradient.setStart(rect.left(), rect.top() + 1);
        gradient.setFinalStop(rect.left(), rect.bottom());
        return QBrush(gradient);
    }
    return QBrush();
}

QImage ThemeManager::GetImage(const QString& key, const QSize& size)
{
    if (key.isEmpty())
        return QImage();
    const QVariant* value = mpImp->Find(key);
    if (!value || value->metaType() != QMetaType::fromType<QList<QImage>>())
        return QImage();
    const QList<QImage> images = value->value<QList<QImage>>();
    if (images.isEmpty())
        return QImage();
    if (images.size() == 1)
        return images.first();
    const QImage* narrowest = &images.first();
    for (const QImage& image : images) {
        if (image.width() == size.width() && image.height() == size.height())
            return image;
        if (image.width() < narrowest->width())
            narrowest = &image;
    }
    return *narrowest;
}

int ThemeManager::GetInt(const QString& key)
{
    const QVariant* value = mpImp->Find(key);
    return value ? value->toInt() : 0;
}

QSize ThemeManager::GetSize(const QString& key)
{
    const QVariant* value = mpImp->Find(key);
    return value ? value->toSize() : QSize();
}

QString ThemeManager::GetString(const QString& key)
{
    const QVariant* value = mpImp->Find(key);
    return value ? value->toString() : QString();
}

QString ThemeManager::GetStyleSheet(const QString& key)
{
    return GetString(key);
}

QString ThemeManager::GetCurrentTheme()
{
    return mpImp->msCurrentTheme;
}

bool ThemeManager::SetCurrentTheme(const QString& name)
{
    return mpImp->SetCurrentTheme(name);
}

bool ThemeManager::LoadThemeFile(QFile& file, bool asTheme)
{
    return mpImp->LoadThemeFile(file, asTheme);
}

bool ThemeManager::LoadThemeFile(const QString& path, bool asTheme)
{
    return mpImp->LoadThemeFile(path, asTheme);
}

void ThemeManager::LoadTheme(QWidget* widget)
{
    const QString path = QFileDialog::getOpenFileName(widget, tr("Open xml File"), QDir::currentPath(),
                                                      tr("XBEL Files (*.xbel *.xml)"));
    if (path.isEmpty() || !mpImp->LoadThemeFile(path, true))
        return;
    mpImp->mbRepaintInProgress = true;
    if (widget)
        widget->repaint();
    mpImp->mbRepaintInProgress = false;
}

bool ThemeManager::UpdateSkinNeeded()
{
    return mpImp->mbRepaintInProgress;
}

void ThemeManager::SetThemeFilesPath(const wchar_t* directory)
{
    // An empty path is a directory like any other: it is added, and its theme
    // files are looked for at the root.
    const QString path = QDir::cleanPath(StringUtil::WcharToQString(directory));
    if (mpImp->mSearchDirectories.contains(path))
        return;
    mpImp->mSearchDirectories.prepend(path);
}

int ThemeManager::GetThemeFilesPath(wchar_t* buffer, int capacity)
{
    const QString first = mpImp->mSearchDirectories.value(0);
    return StringUtil::QStringToWchar(first, buffer, capacity);
}

} // namespace Kavrel::UICore

#include <KvCoreUnits/UnitsManager.h>

#include <KvCoreUnits/LocaleUtil.h>
#include <KvCoreUnits/StringUtil.h>

#include <QLocale>

namespace kavrel::platform::core::units {

class UnitsManagerImp
{
public:
    void SetLocale(const QString& name)
    {
        msLocale = name;
        const QString qtName = locale::LocaleUtil::LocaleNameToQtLocaleName(name);
        const QLocale locale = qtName.isEmpty() ? QLocale::c() : QLocale(qtName);
        msDecimalSeparator = locale.decimalPoint();
        msGroupSeparator = locale.groupSeparator();
    }

    QString msLocale;
    QString msDecimalSeparator;
    QString msGroupSeparator;
};

namespace {
bool gInitialized = false;
UnitsManager* gInstance = nullptr;
} // namespace

UnitsManager::UnitsManager()
    : mpImp(std::make_unique<UnitsManagerImp>())
{
    mpImp->SetLocale(locale::LocaleUtil::GetCurrentSystemLocale());
}

UnitsManager::~UnitsManager() = default;

bool UnitsManager::Initialize()
{
    gInitialized = true;
    return true;
}

bool UnitsManager::Uninitialize()
{
    delete gInstance;
    gInstance = nullptr;
    gInitialized = false;
    return true;
}

bool UnitsManager::IsInitialized()
{
    return gInitialized;
}

UnitsManager* UnitsManager::GetInstance()
{
    if (!gInstance)
        gInstance = new UnitsManager;
    return gInstance;
}

void UnitsManager::SetCurrentLocale(const wchar_t* localeName)
{
    QString name = StringUtil::WcharToQString(localeName).trimmed();
    if (name.isEmpty())
        name = locale::LocaleUtil::GetCurrentSystemLocale();
    name.replace(QLatin1Char('_'), QLatin1Char('-'));
    mpImp->SetLocale(name);
}

QString UnitsManager::GetCurrentLocale() const
{
    return mpImp->msLocale;
}

QString UnitsManager::GetDecimalSeparator() const
{
    return mpImp->msDecimalSeparator;
}

QString UnitsManager::GetGroupSeparator() const
{
    return mpImp->msGroupSeparator;
}

} // namespace kavrel::platform::core::units

#include <KvCoreUnits/UnitsManager.h>

#include <KvCoreUnits/LocaleUtil.h>
#include <KvCoreUnits/StringUtil.h>

namespace kavrel::platform::core::units {

class UnitsManagerImp
{
public:
    QString msLocale;
};

namespace {
bool gInitialized = false;
UnitsManager* gInstance = nullptr;
} // namespace

UnitsManager::UnitsManager()
    : mpImp(std::make_unique<UnitsManagerImp>())
{
    mpImp->msLocale = locale::LocaleUtil::GetCurrentSystemLocale();
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
    mpImp->msLocale = name;
}

QString UnitsManager::GetCurrentLocale() const
{
    return mpImp->msLocale;
}

} // namespace kavrel::platform::core::units

#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>

#include <QString>

#include <memory>

namespace kavrel::platform::core::units {

class UnitsManagerImp;

/// The process-wide state of the units component: whether it is initialised and
/// the locale whose separators and names formatting uses by default.
class KVCOREUNITS_EXPORT UnitsManager
{
public:
    /// Idempotent; returns true.
    static bool Initialize();
    /// Destroys the instance; a later GetInstance() builds a fresh one.
    static bool Uninitialize();
    /// Whether Initialize was called and Uninitialize not since.
    static bool IsInitialized();
    /// The instance, created on first use with the system locale.
    static UnitsManager* GetInstance();

    /// The name in the form "en-US" or "en_US"; empty selects the system locale.
    void SetCurrentLocale(const wchar_t* localeName);
    /// The locale in use in the form "en-US": the one set, or the system's.
    QString GetCurrentLocale() const;
    /// The current locale's decimal point and group separator; new formatters
    /// start with them.
    QString GetDecimalSeparator() const;
    /// The current locale's group separator; new formatters start with it.
    QString GetGroupSeparator() const;

    ~UnitsManager();

private:
    UnitsManager();
    UnitsManager(const UnitsManager&) = delete;
    UnitsManager& operator=(const UnitsManager&) = delete;

    std::unique_ptr<UnitsManagerImp> const mpImp;
};

} // namespace kavrel::platform::core::units

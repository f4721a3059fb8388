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
    static bool IsInitialized();
    static UnitsManager* GetInstance();

    /// The name in the form "en-US" or "en_US"; empty selects the system locale.
    void SetCurrentLocale(const wchar_t* localeName);
    QString GetCurrentLocale() const;
    /// The current locale's decimal point and group separator; new formatters
    /// start with them.
    QString GetDecimalSeparator() const;
    QString GetGroupSeparator() const;

    ~UnitsManager();

private:
    UnitsManager();
    UnitsManager(const UnitsManager&) = delete;
    UnitsManager& operator=(const UnitsManager&) = delete;

    std::unique_ptr<UnitsManagerImp> const mpImp;
};

} // namespace kavrel::platform::core::units

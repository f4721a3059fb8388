#include <KvCoreUnits/StringUtil.h>

#include <KvCoreUnits/UnitTable_p.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace kavrel::platform::core::units {

int StringUtil::QStringToWchar(const QString& text, wchar_t* buffer, int capacity)
{
    if (!buffer || capacity < 1)
        return 0;
    // toWCharArray writes whole code points; convert fully, then cut.
    const std::wstring wide = text.toStdWString();
    const int count = std::min<int>(int(wide.size()), capacity - 1);
    std::copy_n(wide.data(), count, buffer);
    buffer[count] = L'\0';
    return count;
}

QString StringUtil::WcharToQString(const wchar_t* text)
{
    if (!text)
        return QString();
    return QString::fromWCharArray(text, int(std::wcslen(text)));
}

namespace {

const char* const kNumberFormatNames[] = {
    "Scientific", "Engineering", "Decimal", "DecimalGrouped", "General", "GeneralGrouped", "Fractional",
};
static_assert(std::size(kNumberFormatNames) == kNumberFormatCount);

template <typename Row>
const Row* FindByName(const Row* rows, std::size_t count, const QString& name)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (name == QLatin1String(rows[i].globalName))
            return &rows[i];
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (name.compare(QLatin1String(rows[i].globalName), Qt::CaseInsensitive) == 0)
            return &rows[i];
    }
    return nullptr;
}

} // namespace

QString StringUtil::GetUnitGlobalName(int unitOrSymbol)
{
    if (unitOrSymbol > 0xFFFF) {
        if (const detail::SymbolRow* row = detail::FindSymbol(unitOrSymbol))
            return QLatin1String(row->globalName);
        return QString();
    }
    if (const detail::TypeRow* row = detail::FindType(unitOrSymbol))
        return QLatin1String(row->globalName);
    return QString();
}

QString StringUtil::GetGlobalName(NumberFormat format)
{
    if (format < 0 || format >= kNumberFormatCount)
        return QString();
    return QLatin1String(kNumberFormatNames[format]);
}

ErrorCode StringUtil::GetUnitSymbol(const QString& name, UnitSymbol& symbol)
{
    std::size_t count = 0;
    const detail::SymbolRow* rows = detail::SymbolRows(count);
    const detail::SymbolRow* row = FindByName(rows, count, name.trimmed());
    if (!row)
        return kUnknownName;
    symbol = UnitSymbol(row->symbol);
    return kSuccess;
}

ErrorCode StringUtil::GetUnitType(const QString& name, kvp::IDesignPropertyUnits::teType& type)
{
    std::size_t count = 0;
    const detail::TypeRow* rows = detail::TypeRows(count);
    const detail::TypeRow* row = FindByName(rows, count, name.trimmed());
    if (!row)
        return kUnknownName;
    type = kvp::IDesignPropertyUnits::teType(row->type);
    return kSuccess;
}

ErrorCode StringUtil::GetNumberFormatId(const QString& name, NumberFormat& format)
{
    const QString trimmed = name.trimmed();
    for (int i = 0; i < kNumberFormatCount; ++i) {
        if (trimmed.compare(QLatin1String(kNumberFormatNames[i]), Qt::CaseInsensitive) == 0) {
            format = NumberFormat(i);
            return kSuccess;
        }
    }
    return kUnknownName;
}

} // namespace kavrel::platform::core::units

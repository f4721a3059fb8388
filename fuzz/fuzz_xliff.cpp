// Arbitrary bytes as an XLIFF translation file, loaded and looked up.
#include "FuzzSupport.h"

#include <KvUICore/util/TranslationTable.h>

using namespace Kavrel::UICore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = KvFuzz::WriteScratchFile(QStringLiteral("Table.xlf"), data, size);
    TranslationTable table(QStringLiteral("Table"));
    if (!table.LoadFile(path))
        return 0;
    table.GetCount();
    table.GetText(QStringLiteral("name"));
    table.Contains(QString());
    return 0;
}

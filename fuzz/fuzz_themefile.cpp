// Arbitrary bytes as a theme file: the reader must end, without a crash or a
// hang, whatever it is given.
#include <KvUICore/theme/ThemeFileReader_p.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>

using namespace Kavrel::UICore::Internal;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char*>(data), int(size));
    buffer.open(QIODevice::ReadOnly);
    ThemeValueTable table;
    ThemeFileReader reader(table, [&table](const QString& name) { return ThemeValueText(table.value(name)); });
    reader.Read(&buffer);
    qDeleteAll(table);
    // Icons are cached by file name for the process; inputs naming ever new
    // files would otherwise keep every decoded image of the run.
    ClearIconCache();
    return 0;
}

// Arbitrary bytes as a settings file: opened, every element visited and read
// in every form, written to, saved, and opened again. A document the filer
// saved must open again.
#include "FuzzSupport.h"

#include <KvUICore/util/XmlFiler.h>


using namespace Kavrel::UICore;

namespace {

constexpr int kMaximumVisits = 2000;

void ReadEverything(XmlFiler& filer)
{
    static const XmlWordTable words{
        {1, QStringLiteral("One")}, {2, QStringLiteral("Two")}, {4, QStringLiteral("Four")}};
    for (const QString& name : filer.GetAttributeNames()) {
        filer.ReadString(name);
        filer.ReadInt(name);
        filer.ReadULongLong(name);
        filer.ReadDouble(name);
        filer.ReadBool(name);
        filer.ReadDateTime(name);
        filer.ReadRect(name);
        filer.ReadSize(name);
        filer.ReadPoint(name);
        filer.ReadEnum(name, words, -1);
        filer.ReadFlags(name, words, -1);
    }
    filer.ReadElementText();
    filer.ReadBinary();
    filer.GetChildElementCount();
}

// Depth first over the elements from the cursor, with a bound on the work.
void Visit(XmlFiler& filer, int& visits)
{
    if (++visits > kMaximumVisits)
        return;
    ReadEverything(filer);
    if (!filer.GoToFirstChild())
        return;
    do {
        filer.RememberPosition();
        Visit(filer, visits);
        filer.RestorePosition();
    } while (visits <= kMaximumVisits && filer.GoToNextSibling());
    filer.GoToParent();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = KvFuzz::WriteScratchFile(QStringLiteral("settings.xml"), data, size);
    XmlFiler filer;
    if (!filer.Open(path))
        return 0;
    int visits = 0;
    Visit(filer, visits);
    filer.GoToDocumentElement();
    filer.ReadOuterXml();
    filer.GoToPath(QStringLiteral("a/../b/./c"));
    // Writes through a path of the document, then a save and a reopen.
    filer.CreatePath(QStringLiteral("Fuzz/Written"));
    filer.WriteString(QStringLiteral("Text"), QStringLiteral("\u00e9\u4e2d<&>\""));
    filer.WriteDateTime(QStringLiteral("When"), QDateTime::fromMSecsSinceEpoch(0, Qt::UTC));
    filer.WriteElementText(QStringLiteral("]]> text"), true);
    const QString saved = KvFuzz::ScratchPath(QStringLiteral("saved.xml"));
    if (filer.Save(saved)) {
        XmlFiler reopened;
        if (!reopened.Open(saved))
            KvFuzz::Fail("a document the filer saved opens again");
        int revisits = 0;
        Visit(reopened, revisits);
    }
    XmlFiler parsed;
    parsed.Parse(QString::fromUtf8(KvFuzz::Bytes(data, size)));
    return 0;
}

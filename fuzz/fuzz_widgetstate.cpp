// Arbitrary bytes as a widget state file: a widget loads its state from it,
// saves into it, and loads again; a file the widget saved must load again.
// The same bytes also go through the string form of the state.
#include "FuzzSupport.h"

#include <KvUICore/widgets/WidgetImp.h>

#include <QDomDocument>
#include <QRect>

#include <array>

namespace {

// State like a host's panel keeps it: a geometry, a flag and a list of named
// items read from child elements.
class StateWidget : public WidgetImp
{
public:
    using WidgetImp::LoadState;
    using WidgetImp::SaveState;

    QRect mGeometry;
    bool mbPinned = false;
    QStringList mItems;

protected:
    void LoadState(QDomElement& element) override
    {
        mGeometry =
            QRect(GetIntAttribute(element, QStringLiteral("x"), 0), GetIntAttribute(element, QStringLiteral("y"), 0),
                  GetIntAttribute(element, QStringLiteral("width"), 100),
                  GetIntAttribute(element, QStringLiteral("height"), 100));
        mbPinned = GetBoolAttribute(element, QStringLiteral("pinned"), false);
        mItems.clear();
        for (QDomElement item = element.firstChildElement(QStringLiteral("Item")); !item.isNull();
             item = item.nextSiblingElement(QStringLiteral("Item"))) {
            mItems.append(item.attribute(QStringLiteral("name")));
        }
    }

    void SaveState(QDomElement& element) const override
    {
        SetIntAttribute(element, QStringLiteral("x"), mGeometry.x());
        SetIntAttribute(element, QStringLiteral("y"), mGeometry.y());
        SetIntAttribute(element, QStringLiteral("width"), mGeometry.width());
        SetIntAttribute(element, QStringLiteral("height"), mGeometry.height());
        SetBoolAttribute(element, QStringLiteral("pinned"), mbPinned);
        QDomDocument document = element.ownerDocument();
        for (const QString& name : mItems) {
            QDomElement item = document.createElement(QStringLiteral("Item"));
            item.setAttribute(QStringLiteral("name"), name);
            element.appendChild(item);
        }
    }

    QString StateNodeId() const override { return QStringLiteral("Panel"); }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KvFuzz::EnsureApplication();
    // The host names the element; the file is what can't be trusted.
    static const std::array<QString, 3> paths{QStringLiteral("Panel"), QStringLiteral("Dialogs/Options"),
                                              QStringLiteral("a/b/c/d")};
    const QString path = paths[size % paths.size()];
    const QString file = KvFuzz::WriteScratchFile(QStringLiteral("state.xml"), data, size);
    StateWidget widget;
    widget.LoadState(file, path);
    widget.mItems.append(QStringLiteral("added \u00e9"));
    if (widget.SaveState(file, path)) {
        StateWidget reloaded;
        if (!reloaded.LoadState(file, path) || reloaded.mItems.size() != widget.mItems.size())
            KvFuzz::Fail("a saved state file loads again with the saved state");
    }
    StateWidget fromString;
    if (fromString.LoadState(QString::fromUtf8(KvFuzz::Bytes(data, size)))) {
        const QString saved = fromString.SaveState();
        StateWidget again;
        if (!again.LoadState(saved) || again.mItems.size() != fromString.mItems.size())
            KvFuzz::Fail("the string form of a state loads again");
    }
    return 0;
}

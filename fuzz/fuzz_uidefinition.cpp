// Arbitrary bytes as a UI definition, loaded into a property editor bound to
// a source object, built, painted and edited through its bindings.
#include "FuzzSupport.h"

#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>

#include <QImage>
#include <QPainter>
#include <QStringList>

using namespace Kavrel::UICore;

namespace {

// The properties the seed definitions bind to, one of each kind of value.
class Source : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name MEMBER msName NOTIFY Changed)
    Q_PROPERTY(double Roughness MEMBER mdRoughness NOTIFY Changed)
    Q_PROPERTY(int ColourMode MEMBER miColourMode NOTIFY Changed)
    Q_PROPERTY(bool Enabled MEMBER mbEnabled NOTIFY Changed)
    Q_PROPERTY(QStringList Finishes MEMBER mFinishes NOTIFY Changed)

public:
    QString msName = QStringLiteral("copper");
    double mdRoughness = 0.25;
    int miColourMode = 1;
    bool mbEnabled = true;
    QStringList mFinishes{QStringLiteral("Matte"), QStringLiteral("Satin")};

Q_SIGNALS:
    void Changed();
};

void RunOne(const std::uint8_t* data, std::size_t size);

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KvFuzz::EnsureApplication();
    RunOne(data, size);
    // Objects the editor let go of with deleteLater go now, not at the end
    // of the run.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}

namespace {

void RunOne(const std::uint8_t* data, std::size_t size)
{
    Source source;
    Source named;
    PropertyEditor editor;
    editor.SetContextObject(&source);
    editor.SetContextObject(QStringLiteral("other"), &named);
    editor.resize(320, 480);
    if (!editor.LoadUI(QString::fromUtf8(KvFuzz::Bytes(data, size))))
        return;
    editor.BuildNow();
    QImage image(editor.size(), QImage::Format_ARGB32_Premultiplied);
    {
        QPainter painter(&image);
        editor.render(&painter);
    }
    // The source changing under the bindings, then the page built again.
    source.msName = QStringLiteral("steel");
    source.mdRoughness = 0.75;
    source.mbEnabled = false;
    Q_EMIT source.Changed();
    editor.Invalidate();
    editor.BuildNow();
}

} // namespace

#include "fuzz_uidefinition.moc"

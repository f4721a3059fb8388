#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>

#include <memory>

namespace Kavrel::UICore {

class PropertyEditorSourceContextImp;

/// A context built around one source object, which is its default object.
/// Names that were not set explicitly are read as paths into the source: each
/// dotted component is an object-valued property (QObject*) of the object
/// reached so far, or else a direct child with that object name. So with a
/// source that has a property "camera", Binding(camera.Zoom) binds Zoom of the
/// object the property holds. When such a property's notify signal fires, the
/// context reports a change and the bindings resolve again.
class KVUICORE_EXPORT PropertyEditorSourceContext : public PropertyEditorContext
{
    Q_OBJECT

public:
    /// A context around source (may be null), asking parentContext for what it doesn't
    /// know.
    explicit PropertyEditorSourceContext(QObject* source = nullptr, BindingContext* parentContext = nullptr,
                                         QObject* parent = nullptr);
    ~PropertyEditorSourceContext() override;

    /// Makes source the default object and the start of name paths, and reports a change.
    void SetSourceObject(QObject* source);
    /// The source object; null when none.
    QObject* GetSourceObject() const;

    QObject* GetContextObject() const override;
    QObject* GetContextObject(const QString& name) const override;

private:
    Q_DISABLE_COPY_MOVE(PropertyEditorSourceContext)
    friend class PropertyEditorSourceContextImp;
    std::unique_ptr<PropertyEditorSourceContextImp> const mpImp;
};

} // namespace Kavrel::UICore

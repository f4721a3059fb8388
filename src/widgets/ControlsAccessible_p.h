#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

#include <functional>

class QObject;
class QWidget;

// The accessible interfaces of the labels, buttons, numeric, text, drop-down,
// rollout and progress controls.
namespace Kavrel::UICore::Internal {

// Registers these controls' accessible interfaces with Qt, once; every such
// control calls it from its constructor.
KVUICORE_EXPORT void InstallControlsAccessibility();

// The text of the label that names widget: its buddy label, or the label of
// the form row it sits in, also when it sits in a row layout of its own.
KVUICORE_EXPORT QString AccessibleLabelText(const QWidget* widget);

// The host's name, else the label, the prompt, the tool tip, the fallback.
KVUICORE_EXPORT QString NameOf(const QWidget* widget, const QString& prompt, const QString& fallback);

// A widget named by the host, its label or tool tip, or else by fallback().
class KVUICORE_EXPORT NamedAccessible : public QAccessibleWidget
{
public:
    NamedAccessible(QWidget* widget, QAccessible::Role role, std::function<QString()> fallback);
    QString text(QAccessible::Text t) const override;

private:
    std::function<QString()> mFallback;
};

// Tells assistive technology that object's value is now value.
KVUICORE_EXPORT void AnnounceValueChange(QObject* object, const QVariant& value);

// Tells assistive technology which of object's states changed.
KVUICORE_EXPORT void AnnounceStateChange(QObject* object, const QAccessible::State& changed);

} // namespace Kavrel::UICore::Internal

#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QFont>
#include <QString>

#include <functional>

class QWidget;

namespace Kavrel::UICore::Internal {

// The colour with its alpha multiplied by 0.4.
KVUICORE_EXPORT QColor DimmedColor(const QColor& color);

// Sets WindowText, Text and ButtonText of every colour group to a solid brush.
KVUICORE_EXPORT void SetTextColor(QWidget* widget, const QColor& color);

KVUICORE_EXPORT QFont ItemViewFont();

// Every warning box the library raises on its own (unreadable or broken theme
// files) goes through here, so that a test or a host can take the texts
// instead of a modal box. The hook returns true when it handled the warning.
using WarningHook = std::function<bool(const QString& title, const QString& text)>;
KVUICORE_EXPORT void SetWarningHook(WarningHook hook);
KVUICORE_EXPORT void ShowWarning(const QString& title, const QString& text);

} // namespace Kavrel::UICore::Internal

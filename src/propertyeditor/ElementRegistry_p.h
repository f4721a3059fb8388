#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QHash>
#include <QString>

namespace Kavrel::UICore::Internal {

// Column widths remembered across property editors, by definition path.
KVUICORE_EXPORT QHash<QString, int>& RememberedColumnWidths();

} // namespace Kavrel::UICore::Internal

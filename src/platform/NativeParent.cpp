#include <KvUICore/platform/NativeParent_p.h>
#include <KvUICore/platform/WinWidget_p.h>

#include <QWidget>

namespace Kavrel::UICore::Internal {

QWidget* ParentWidgetForNativeHandle(HWND handle)
{
    if (!handle)
        return nullptr;
    if (QWidget* owner = QWidget::find(Platform::WIdFromHandle(handle)))
        return owner;
    // Library UI parented here is dialogs: they centre on the host window and
    // stay above it.
    return new Platform::WinWidget(handle, Qt::WindowFlags(), Platform::WinWidget::Role::DialogOwner);
}

} // namespace Kavrel::UICore::Internal

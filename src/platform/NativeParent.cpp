#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/platform/WinWidget_p.h>

#include <QWidget>

namespace Kavrel::UICore::Internal {

QWidget* ParentWidgetForNativeHandle(HWND handle)
{
    if (!handle)
        return nullptr;
    if (QWidget* owner = QWidget::find(Platform::WIdFromHandle(handle)))
        return owner;
    auto* wrapper = new Platform::WinWidget(handle);
    // Covering the host window lets a dialog centre itself on the host; the
    // wrapper is never shown, so it hides nothing.
    const QSize nativeSize = wrapper->ParentWindowSize();
    if (nativeSize.isValid()) {
        const qreal ratio = wrapper->devicePixelRatioF() > 0 ? wrapper->devicePixelRatioF() : 1.0;
        wrapper->resize(qMax(1, qRound(nativeSize.width() / ratio)), qMax(1, qRound(nativeSize.height() / ratio)));
    }
    return wrapper;
}

} // namespace Kavrel::UICore::Internal

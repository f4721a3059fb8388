#include <KvUICore/widgets/WinWidgetImp.h>

#include <QCoreApplication>
#include <QEvent>

namespace {

// The wrapper of a WidgetImp deleted earlier may still wait for its deferred
// deletion; flushing here keeps old wrappers from piling up in hosts whose
// event loop rarely reaches Qt.
HWND flushDeferredDeletions(HWND parentWindow)
{
    if (QCoreApplication::instance())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return parentWindow;
}

} // namespace

WinWidgetImp::WinWidgetImp(HWND parentWindow)
    : Kavrel::UICore::Platform::WinWidget(flushDeferredDeletions(parentWindow))
{
#ifdef Q_OS_WIN
    JoinNativeTabOrder();
#endif
}

WinWidgetImp::~WinWidgetImp() = default;

bool WinWidgetImp::focusNextPrevChild(bool next)
{
    if (!focusWidget())
        return false;
    return WinWidget::focusNextPrevChild(next);
}

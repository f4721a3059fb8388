#include <KvUICore/core/CoreUIUtil.h>
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/platform/PlatformFiles_p.h>

#include <QApplication>
#include <QMessageBox>
#include <QPalette>
#include <QWidget>

namespace Kavrel::UICore {

QList<int> CoreUIUtil::GetOneBits(int flags)
{
    QList<int> bits;
    const quint32 value = quint32(flags);
    for (int i = 0; i < 32; ++i) {
        const quint32 bit = quint32(1) << i;
        if (value & bit)
            bits.append(int(bit));
    }
    return bits;
}

QString CoreUIUtil::GetSymbolicLinkTarget(const QString& path)
{
    return Platform::SymbolicLinkTarget(path);
}

void CoreUIUtil::OutputDebugQString(const QString&)
{
}

namespace Internal {

namespace {
WarningHook& warningHook()
{
    static WarningHook hook;
    return hook;
}
} // namespace

QColor DimmedColor(const QColor& color)
{
    QColor dimmed = color;
    dimmed.setAlphaF(color.alphaF() * 0.4f);
    return dimmed;
}

void SetTextColor(QWidget* widget, const QColor& color)
{
    if (!widget)
        return;
    QPalette palette = widget->palette();
    const QBrush brush(color, Qt::SolidPattern);
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setBrush(group, QPalette::WindowText, brush);
        palette.setBrush(group, QPalette::Text, brush);
        palette.setBrush(group, QPalette::ButtonText, brush);
    }
    widget->setPalette(palette);
}

QFont ItemViewFont()
{
    return QApplication::font("QAbstractItemView");
}

void SetWarningHook(WarningHook hook)
{
    warningHook() = std::move(hook);
}

void ShowWarning(const QString& title, const QString& text)
{
    if (warningHook() && warningHook()(title, text))
        return;
    QMessageBox::warning(nullptr, title, text, QMessageBox::Ok);
}

} // namespace Internal
} // namespace Kavrel::UICore

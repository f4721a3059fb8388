#include <KvUICore/widgets/Widget.h>
#include <KvUICore/widgets/WidgetImp.h>

#include <KvCoreUnits/StringUtil.h>

#include <QPointer>

using kavrel::platform::core::units::StringUtil;

namespace Kavrel::UICore {

// Each handle, copies included, holds its own guarded reference, so a view
// outliving the owning handle finds no implementation instead of a dangling one.
struct Widget::ImpRef
{
    QPointer<WidgetImp> mpObject;
};

Widget::Widget()
    : mpImp(std::make_unique<ImpRef>())
{
    mpImp->mpObject = new WidgetImp(static_cast<QWidget*>(nullptr));
}

Widget::Widget(void* imp)
    : mpImp(std::make_unique<ImpRef>())
{
    mpImp->mpObject = static_cast<WidgetImp*>(imp);
}

Widget::Widget(const Widget& other)
    : mpImp(std::make_unique<ImpRef>(*other.mpImp))
{
}

Widget& Widget::operator=(const Widget& other)
{
    // Shallow by definition: what this handle held before is not released.
    mpImp->mpObject = other.mpImp->mpObject;
    return *this;
}

Widget::~Widget()
{
    delete mpImp->mpObject.data();
    mpImp->mpObject = nullptr;
}

void* Widget::GetImpObj()
{
    return mpImp->mpObject.data();
}

const void* Widget::GetConstImpObj() const
{
    return mpImp->mpObject.data();
}

void Widget::SetImpObj(void* imp)
{
    WidgetImp* previous = mpImp->mpObject.data();
    mpImp->mpObject = static_cast<WidgetImp*>(imp);
    if (previous != imp)
        delete previous;
}

int Widget::GetX() const
{
    return mpImp->mpObject ? mpImp->mpObject->GetX() : 0;
}

int Widget::GetY() const
{
    return mpImp->mpObject ? mpImp->mpObject->GetY() : 0;
}

int Widget::GetWidth() const
{
    return mpImp->mpObject ? mpImp->mpObject->GetWidth() : 0;
}

int Widget::GetHeight() const
{
    return mpImp->mpObject ? mpImp->mpObject->GetHeight() : 0;
}

int Widget::GetMinimumHeight()
{
    return mpImp->mpObject ? mpImp->mpObject->GetMinimumHeight() : 0;
}

HWND Widget::GetWinId() const
{
    return mpImp->mpObject ? mpImp->mpObject->GetWinId() : nullptr;
}

bool Widget::IsEnabled() const
{
    return mpImp->mpObject && mpImp->mpObject->IsEnabled();
}

bool Widget::IsVisible() const
{
    return mpImp->mpObject && mpImp->mpObject->IsVisible();
}

void Widget::Move(int x, int y)
{
    if (mpImp->mpObject)
        mpImp->mpObject->Move(x, y);
}

void Widget::Resize(int width, int height)
{
    if (mpImp->mpObject)
        mpImp->mpObject->Resize(width, height);
}

void Widget::Resize(int x, int y, int width, int height)
{
    if (mpImp->mpObject)
        mpImp->mpObject->Resize(x, y, width, height);
}

void Widget::Show()
{
    if (mpImp->mpObject)
        mpImp->mpObject->Show();
}

void Widget::Hide()
{
    if (mpImp->mpObject)
        mpImp->mpObject->Hide();
}

void Widget::SetVisible(bool visible)
{
    if (mpImp->mpObject)
        mpImp->mpObject->SetVisible(visible);
}

void Widget::SetEnabled(bool enabled)
{
    if (mpImp->mpObject)
        mpImp->mpObject->SetEnabled(enabled);
}

void Widget::ShowBorder(bool show)
{
    if (mpImp->mpObject)
        mpImp->mpObject->ShowBorder(show);
}

void Widget::SetFocus()
{
    if (mpImp->mpObject)
        mpImp->mpObject->setFocus(Qt::OtherFocusReason);
}

bool Widget::LoadState(const wchar_t* filePath, const wchar_t* nodePath)
{
    return mpImp->mpObject
        && mpImp->mpObject->LoadState(StringUtil::WcharToQString(filePath), StringUtil::WcharToQString(nodePath));
}

bool Widget::SaveState(const wchar_t* filePath, const wchar_t* nodePath) const
{
    return mpImp->mpObject
        && mpImp->mpObject->SaveState(StringUtil::WcharToQString(filePath), StringUtil::WcharToQString(nodePath));
}

bool Widget::LoadState(const wchar_t* xml)
{
    return mpImp->mpObject && mpImp->mpObject->LoadState(StringUtil::WcharToQString(xml));
}

int Widget::SaveState(wchar_t* buffer, int size) const
{
    const QString text = mpImp->mpObject ? mpImp->mpObject->SaveState() : QString();
    return StringUtil::QStringToWchar(text, buffer, size);
}

} // namespace Kavrel::UICore

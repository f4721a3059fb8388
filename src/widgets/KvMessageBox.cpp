#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/widgets/IMessageBox.h>
#include <KvUICore/widgets/IMessageBoxProvider.h>
#include <KvUICore/widgets/KvMessageBox.h>
#include <KvUICore/widgets/MessageBoxProvider.h>

namespace Kavrel::UICore {

namespace {

IMessageBox* createFromProvider()
{
    IMessageBoxProvider* provider = CoreUIManager::GetInstance()->GetMessageBoxProvider();
    return provider ? provider->CreateMessageBox() : nullptr;
}

// The core manager holds the provider; the default one and the interface's
// destructor live here.
void registerMessageBoxLayer()
{
    Internal::MessageBoxLayer layer;
    layer.mpCreateDefaultProvider = []() -> IMessageBoxProvider* { return new MessageBoxProvider; };
    layer.mpReleaseProvider = [](IMessageBoxProvider* provider) { delete provider; };
    Internal::RegisterMessageBoxLayer(layer);
}
Q_CONSTRUCTOR_FUNCTION(registerMessageBoxLayer)

} // namespace

KvMessageBox::KvMessageBox()
    : mpMessageBox(createFromProvider())
{
}

KvMessageBox::~KvMessageBox()
{
    if (!mpMessageBox)
        return;
    if (IMessageBoxProvider* provider = CoreUIManager::GetInstance()->GetMessageBoxProvider())
        provider->DestroyMessageBox(mpMessageBox);
}

void KvMessageBox::SetStyle(Style style)
{
    // A different style drops the provider, a host's too: the next box comes
    // from a fresh default one.
    Internal::SetMessageBoxStyle(style);
}

KvMessageBox::Style KvMessageBox::GetStyle()
{
    return Style(Internal::MessageBoxStyle());
}

// A host provider that hands out no box leaves every member at its default.
int KvMessageBox::GetWindowTitle(wchar_t* buffer, int capacity) const
{
    return mpMessageBox ? mpMessageBox->GetWindowTitle(buffer, capacity) : 0;
}

void KvMessageBox::SetWindowTitle(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetWindowTitle(text);
}

KvMessageBox::Icon KvMessageBox::GetIcon() const
{
    return mpMessageBox ? mpMessageBox->GetIcon() : IconNone;
}

void KvMessageBox::SetIcon(Icon icon)
{
    if (mpMessageBox)
        mpMessageBox->SetIcon(icon);
}

int KvMessageBox::GetMainInstruction(wchar_t* buffer, int capacity) const
{
    return mpMessageBox ? mpMessageBox->GetMainInstruction(buffer, capacity) : 0;
}

void KvMessageBox::SetMainInstruction(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetMainInstruction(text);
}

int KvMessageBox::GetContentText(wchar_t* buffer, int capacity) const
{
    return mpMessageBox ? mpMessageBox->GetContentText(buffer, capacity) : 0;
}

void KvMessageBox::SetContentText(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetContentText(text);
}

int KvMessageBox::GetExpandedText(wchar_t* buffer, int capacity) const
{
    return mpMessageBox ? mpMessageBox->GetExpandedText(buffer, capacity) : 0;
}

void KvMessageBox::SetExpandedText(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetExpandedText(text);
}

KvMessageBox::StandardButton KvMessageBox::GetStandardButtons() const
{
    return mpMessageBox ? mpMessageBox->GetStandardButtons() : ButtonNone;
}

void KvMessageBox::SetStandardButtons(StandardButton buttons)
{
    if (mpMessageBox)
        mpMessageBox->SetStandardButtons(buttons);
}

void KvMessageBox::AddButton(const wchar_t* text, int id)
{
    if (mpMessageBox)
        mpMessageBox->AddButton(text, id);
}

int KvMessageBox::GetDefaultButton() const
{
    return mpMessageBox ? mpMessageBox->GetDefaultButton() : 0;
}

void KvMessageBox::SetDefaultButton(int id)
{
    if (mpMessageBox)
        mpMessageBox->SetDefaultButton(id);
}

int KvMessageBox::GetEscapeButton() const
{
    return mpMessageBox ? mpMessageBox->GetEscapeButton() : 0;
}

void KvMessageBox::SetEscapeButton(int id)
{
    if (mpMessageBox)
        mpMessageBox->SetEscapeButton(id);
}

int KvMessageBox::GetWidth() const
{
    return mpMessageBox ? mpMessageBox->GetWidth() : 0;
}

void KvMessageBox::SetWidth(int width)
{
    if (mpMessageBox)
        mpMessageBox->SetWidth(width);
}

void KvMessageBox::SetFooterText(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetFooterText(text);
}

void KvMessageBox::SetFlags(int flags)
{
    if (mpMessageBox)
        mpMessageBox->SetFlags(flags);
}

int KvMessageBox::GetFlags()
{
    return mpMessageBox ? mpMessageBox->GetFlags() : 0;
}

int KvMessageBox::SetCallback(KvMessageBoxCallback callback)
{
    return mpMessageBox ? mpMessageBox->SetCallback(callback) : 0;
}

int KvMessageBox::SetCallbackData(void* data)
{
    return mpMessageBox ? mpMessageBox->SetCallbackData(data) : 0;
}

int KvMessageBox::GetCheckBoxText(wchar_t* buffer, int capacity) const
{
    return mpMessageBox ? mpMessageBox->GetCheckBoxText(buffer, capacity) : 0;
}

void KvMessageBox::SetCheckBoxText(const wchar_t* text)
{
    if (mpMessageBox)
        mpMessageBox->SetCheckBoxText(text);
}

int KvMessageBox::Show(HWND parent, bool& checked)
{
    if (!mpMessageBox) {
        checked = false;
        return ButtonCancel;
    }
    return mpMessageBox->Show(parent, checked);
}

int KvMessageBox::Show(HWND parent)
{
    return mpMessageBox ? mpMessageBox->Show(parent) : int(ButtonCancel);
}

} // namespace Kavrel::UICore

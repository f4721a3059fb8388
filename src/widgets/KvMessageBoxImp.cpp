#include <KvUICore/core/CoreUIUtil.h>
#include <KvUICore/platform/NativeParent_p.h>
#include <KvUICore/widgets/KvMessageBoxImp.h>
#include <KvUICore/widgets/UIMessageBox_p.h>

#include <KvCoreUnits/StringUtil.h>

#include <QPushButton>

namespace Kavrel::UICore {

using kavrel::platform::core::units::StringUtil;

namespace {

constexpr int kCancelResult = KvMessageBox::ButtonCancel;

QMessageBox::StandardButton qtButton(int value)
{
    switch (value) {
    case KvMessageBox::ButtonOk:
        return QMessageBox::Ok;
    case KvMessageBox::ButtonYes:
        return QMessageBox::Yes;
    case KvMessageBox::ButtonNo:
        return QMessageBox::No;
    case KvMessageBox::ButtonCancel:
        return QMessageBox::Cancel;
    case KvMessageBox::ButtonRetry:
        return QMessageBox::Retry;
    case KvMessageBox::ButtonClose:
        return QMessageBox::Close;
    default:
        return QMessageBox::NoButton;
    }
}

int resultOf(int qtResult)
{
    switch (qtResult) {
    case QMessageBox::Ok:
        return KvMessageBox::ButtonOk;
    case QMessageBox::Yes:
        return KvMessageBox::ButtonYes;
    case QMessageBox::No:
        return KvMessageBox::ButtonNo;
    case QMessageBox::Retry:
        return KvMessageBox::ButtonRetry;
    case QMessageBox::Close:
        return KvMessageBox::ButtonClose;
    case QMessageBox::Cancel:
        return KvMessageBox::ButtonCancel;
    default:
        return 0;
    }
}

// There is deliberately no critical icon: 4 and above show none.
QMessageBox::Icon qtIcon(int icon)
{
    switch (icon) {
    case KvMessageBox::IconQuestion:
        return QMessageBox::Question;
    case KvMessageBox::IconInformation:
        return QMessageBox::Information;
    case KvMessageBox::IconWarning:
        return QMessageBox::Warning;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

KvMessageBoxImp::KvMessageBoxImp() = default;

KvMessageBoxImp::~KvMessageBoxImp() = default;

int KvMessageBoxImp::GetWindowTitle(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msWindowTitle, buffer, capacity);
}

void KvMessageBoxImp::SetWindowTitle(const wchar_t* text)
{
    msWindowTitle = StringUtil::WcharToQString(text);
}

KvMessageBox::Icon KvMessageBoxImp::GetIcon() const
{
    return KvMessageBox::Icon(miIcon);
}

void KvMessageBoxImp::SetIcon(KvMessageBox::Icon icon)
{
    miIcon = icon;
}

int KvMessageBoxImp::GetMainInstruction(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msMainInstruction, buffer, capacity);
}

void KvMessageBoxImp::SetMainInstruction(const wchar_t* text)
{
    msMainInstruction = StringUtil::WcharToQString(text);
}

int KvMessageBoxImp::GetContentText(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msContentText, buffer, capacity);
}

void KvMessageBoxImp::SetContentText(const wchar_t* text)
{
    msContentText = StringUtil::WcharToQString(text);
}

int KvMessageBoxImp::GetExpandedText(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msExpandedText, buffer, capacity);
}

void KvMessageBoxImp::SetExpandedText(const wchar_t* text)
{
    msExpandedText = StringUtil::WcharToQString(text);
}

KvMessageBox::StandardButton KvMessageBoxImp::GetStandardButtons() const
{
    return KvMessageBox::StandardButton(miStandardButtons);
}

void KvMessageBoxImp::SetStandardButtons(KvMessageBox::StandardButton buttons)
{
    miStandardButtons = buttons;
}

void KvMessageBoxImp::AddButton(const wchar_t* text, int id)
{
    mCustomButtons[id] = StringUtil::WcharToQString(text);
}

int KvMessageBoxImp::GetDefaultButton() const
{
    return miDefaultButton;
}

void KvMessageBoxImp::SetDefaultButton(int id)
{
    miDefaultButton = id;
}

int KvMessageBoxImp::GetEscapeButton() const
{
    return miEscapeButton;
}

void KvMessageBoxImp::SetEscapeButton(int id)
{
    miEscapeButton = id;
}

int KvMessageBoxImp::GetWidth() const
{
    return miWidth;
}

void KvMessageBoxImp::SetWidth(int width)
{
    miWidth = width;
}

void KvMessageBoxImp::SetFooterText(const wchar_t* text)
{
    msFooterText = StringUtil::WcharToQString(text);
}

int KvMessageBoxImp::GetFooterText(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msFooterText, buffer, capacity);
}

void KvMessageBoxImp::SetFlags(int flags)
{
    miFlags = flags;
}

int KvMessageBoxImp::GetFlags()
{
    return miFlags;
}

int KvMessageBoxImp::SetCallback(KvMessageBoxCallback)
{
    return 0;
}

int KvMessageBoxImp::SetCallbackData(void*)
{
    return 0;
}

int KvMessageBoxImp::GetCheckBoxText(wchar_t* buffer, int capacity) const
{
    return StringUtil::QStringToWchar(msCheckBoxText, buffer, capacity);
}

void KvMessageBoxImp::SetCheckBoxText(const wchar_t* text)
{
    msCheckBoxText = StringUtil::WcharToQString(text);
}

int KvMessageBoxImp::Show(HWND parent, bool& checked)
{
    checked = false;
    UIMessageBox box(Internal::ParentWidgetForNativeHandle(parent));
    box.setWindowTitle(msWindowTitle);
    box.setText(msMainInstruction);
    box.setInformativeText(msContentText);
    box.setDetailedText(msExpandedText);
    box.setIcon(qtIcon(miIcon));
    if (miWidth > 0)
        box.SetRequestedWidth(miWidth);

    int flags = miStandardButtons;
    if (flags == 0 && mCustomButtons.empty())
        flags = KvMessageBox::ButtonOk;
    QMessageBox::StandardButtons standardButtons;
    for (int bit : CoreUIUtil::GetOneBits(flags))
        standardButtons |= qtButton(bit);
    box.setStandardButtons(standardButtons);

    std::map<int, QPushButton*> customButtons;
    for (const auto& [id, text] : mCustomButtons)
        customButtons[id] = box.addButton(text, QMessageBox::AcceptRole);

    if (miDefaultButton != 0) {
        const auto custom = customButtons.find(miDefaultButton);
        if (custom != customButtons.end())
            box.setDefaultButton(custom->second);
        else
            box.setDefaultButton(qtButton(miDefaultButton));
    }
    if (miEscapeButton != 0) {
        const auto custom = customButtons.find(miEscapeButton);
        if (custom != customButtons.end())
            box.setEscapeButton(custom->second);
        else
            box.setEscapeButton(qtButton(miEscapeButton));
    }

    const int result = box.exec();
    QAbstractButton* clicked = box.clickedButton();
    if (!clicked)
        return kCancelResult;
    for (const auto& [id, button] : customButtons) {
        if (button == clicked)
            return id;
    }
    return resultOf(result);
}

int KvMessageBoxImp::Show(HWND parent)
{
    bool checked = false;
    return Show(parent, checked);
}

} // namespace Kavrel::UICore

#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/IMessageBox.h>

#include <QString>

#include <cstdint>
#include <map>

namespace Kavrel::UICore {

// The library's own message box: keeps the settings and shows them with a
// UIMessageBox. Flags, footer and check-box text are kept for host
// providers but not shown.
class KVUICORE_EXPORT KvMessageBoxImp : public IMessageBox
{
public:
    KvMessageBoxImp();
    ~KvMessageBoxImp() override;

    int GetWindowTitle(wchar_t* buffer, int capacity) const override;
    void SetWindowTitle(const wchar_t* text) override;
    KvMessageBox::Icon GetIcon() const override;
    void SetIcon(KvMessageBox::Icon icon) override;
    int GetMainInstruction(wchar_t* buffer, int capacity) const override;
    void SetMainInstruction(const wchar_t* text) override;
    int GetContentText(wchar_t* buffer, int capacity) const override;
    void SetContentText(const wchar_t* text) override;
    int GetExpandedText(wchar_t* buffer, int capacity) const override;
    void SetExpandedText(const wchar_t* text) override;
    KvMessageBox::StandardButton GetStandardButtons() const override;
    void SetStandardButtons(KvMessageBox::StandardButton buttons) override;
    void AddButton(const wchar_t* text, int id) override;
    int GetDefaultButton() const override;
    void SetDefaultButton(int id) override;
    int GetEscapeButton() const override;
    void SetEscapeButton(int id) override;
    int GetWidth() const override;
    void SetWidth(int width) override;
    void SetFooterText(const wchar_t* text) override;
    int GetFooterText(wchar_t* buffer, int capacity) const override;
    void SetFlags(int flags) override;
    int GetFlags() override;
    int SetCallback(KvMessageBoxCallback callback) override;
    int SetCallbackData(void* data) override;
    int GetCheckBoxText(wchar_t* buffer, int capacity) const override;
    void SetCheckBoxText(const wchar_t* text) override;
    int Show(HWND parent, bool& checked) override;
    int Show(HWND parent) override;

private:
    QString msWindowTitle;
    QString msMainInstruction;
    QString msContentText;
    QString msExpandedText;
    QString msCheckBoxText;
    QString msFooterText;
    std::int32_t miStandardButtons = 0;
    std::map<int, QString> mCustomButtons;
    std::int32_t miIcon = 0;
    std::int32_t miDefaultButton = 0;
    std::int32_t miEscapeButton = 0;
    std::int32_t miWidth = 0;
    std::int32_t miFlags = 9;
};

} // namespace Kavrel::UICore

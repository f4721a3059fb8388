#pragma once

// The host's own top-level window, written against xcb only: no Qt here.

#include <cstdint>
#include <functional>
#include <string>

struct xcb_connection_t;

class HostWindow
{
public:
    HostWindow(const std::string& title, int width, int height);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    bool IsOpen() const;
    std::uint32_t Window() const;
    int Width() const;
    int Height() const;
    // For the host's poll() loop.
    int FileDescriptor() const;

    // The embedded window that Tab in the host's own area hands focus to.
    void SetTabTarget(std::uint32_t window);
    // Called with the new client size whenever the window is resized.
    void SetResizeHandler(std::function<void(int width, int height)> handler);
    void SetStatusText(const std::string& text);

    // Handles what has arrived; false once the user closed the window.
    bool ProcessEvents();

private:
    void Paint();
    void FocusSelf();
    std::uint8_t FindTabKeycode();

    xcb_connection_t* mpConnection = nullptr;
    std::uint32_t mWindow = 0;
    std::uint32_t mGraphics = 0;
    std::uint32_t mFont = 0;
    std::uint32_t mDeleteAtom = 0;
    std::uint32_t mTabTarget = 0;
    std::uint8_t mTabKeycode = 0;
    int miWidth;
    int miHeight;
    bool mbOpen = false;
    std::string msStatus;
    std::function<void(int, int)> mResizeHandler;
};

// A host that is not a Qt application. Its window is plain xcb (HostWindow);
// it reaches the library through the exported Widget handle only: it hosts a
// panel in its window, keeps it placed when the window is resized, and keeps
// the panel's state in a state file between runs.
//
//   native-host [--state FILE] [--quit-after MILLISECONDS] [--move X Y]
//
// The only Qt contact besides the handle is the application object the
// library needs and the host loop giving Qt a turn.

#include "HostWindow.h"
#include "NotesPanel.h"

#include <KvUICore/core/CoreUIManager.h>

#include <QApplication>

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int kMargin = 12;
constexpr int kHeader = 44;
const wchar_t* const kNodePath = L"NativeHost/NotesPanel";

std::wstring defaultStatePath()
{
    const char* config = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    std::filesystem::path folder = config && *config ? std::filesystem::path(config)
        : home                                       ? std::filesystem::path(home) / ".config"
                                                     : std::filesystem::temp_directory_path();
    folder /= "kvuicore-native-host";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return (folder / "state.xml").wstring();
}

HWND handleOf(std::uint32_t window)
{
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));
}

// The panel fills the window below the host's header; the host works in its
// own (native) pixels, so it uses the Resize form that takes a position.
void place(NotesPanel& panel, int width, int height)
{
    panel.Resize(kMargin, kHeader, std::max(1, width - 2 * kMargin), std::max(1, height - kHeader - kMargin));
}

} // namespace

int main(int argc, char* argv[])
{
    std::wstring statePath;
    long quitAfter = -1;
    int moveX = -1;
    int moveY = -1;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--state") && i + 1 < argc) {
            const std::string path = argv[++i];
            statePath = std::filesystem::path(path).wstring();
        } else if (!std::strcmp(argv[i], "--quit-after") && i + 1 < argc) {
            quitAfter = std::strtol(argv[++i], nullptr, 10);
        } else if (!std::strcmp(argv[i], "--move") && i + 2 < argc) {
            moveX = std::atoi(argv[++i]);
            moveY = std::atoi(argv[++i]);
        }
    }
    if (statePath.empty())
        statePath = defaultStatePath();

    // The panel needs X11 windows to live in the host's window.
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "xcb", 1);
    QApplication application(argc, argv);
    Kavrel::UICore::CoreUIManager::Initialize();

    int status = 0;
    {
        HostWindow host("KvUICore native host", 560, 260);
        if (!host.IsOpen()) {
            std::fprintf(stderr, "native-host: cannot open a window on the X display\n");
            return 1;
        }

        NotesPanel panel(handleOf(host.Window()));
        if (panel.LoadState(statePath.c_str(), kNodePath))
            std::printf("Restored the panel's state from %ls\n", statePath.c_str());
        place(panel, host.Width(), host.Height());
        if (moveX >= 0)
            panel.Move(moveX, moveY);
        panel.Show();
        host.SetTabTarget(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(panel.GetWinId())));
        host.SetResizeHandler([&panel](int width, int height) { place(panel, width, height); });
        QCoreApplication::processEvents();
        std::printf("Panel at %d,%d, %dx%d in the host window\n", panel.GetX(), panel.GetY(), panel.GetWidth(),
                    panel.GetHeight());
        host.SetStatusText("State file: " + std::filesystem::path(statePath).string());
        std::fflush(stdout);

        const auto start = std::chrono::steady_clock::now();
        pollfd descriptor = {host.FileDescriptor(), POLLIN, 0};
        while (host.ProcessEvents()) {
            // Qt's own connection has its own descriptor: wake up often enough to give it a turn.
            ::poll(&descriptor, 1, 10);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            const auto elapsed =
                std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
            if (quitAfter >= 0 && elapsed.count() >= quitAfter)
                break;
        }

        if (panel.SaveState(statePath.c_str(), kNodePath)) {
            std::printf("Saved the panel's state to %ls\n", statePath.c_str());
        } else {
            std::fprintf(stderr, "native-host: could not save the panel's state to %ls\n", statePath.c_str());
            status = 2;
        }
        std::vector<wchar_t> buffer(4096);
        if (panel.SaveState(buffer.data(), int(buffer.size())) > 0)
            std::printf("The same state as a string:\n%ls\n", buffer.data());
    }
    // The panel's wrapper goes with the next pass of deferred deletions.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Kavrel::UICore::CoreUIManager::Uninitialize();
    std::fflush(stdout);
    // quit() would ask every window to close, foreign ones included; leave directly.
    std::exit(status);
}

#include "HostWindow.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace {

constexpr std::uint32_t kTabKeysym = 0xff09;
constexpr std::uint32_t kBackground = 0xe8ecf0;
constexpr std::uint32_t kText = 0x202830;

std::uint32_t internAtom(xcb_connection_t* connection, const char* name)
{
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, std::uint16_t(std::strlen(name)), name), nullptr);
    const std::uint32_t atom = reply ? reply->atom : std::uint32_t(XCB_ATOM_NONE);
    std::free(reply);
    return atom;
}

} // namespace

HostWindow::HostWindow(const std::string& title, int width, int height)
    : miWidth(width)
    , miHeight(height)
{
    mpConnection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(mpConnection))
        return;
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(mpConnection)).data;

    mWindow = xcb_generate_id(mpConnection);
    const std::uint32_t values[] = {kBackground,
                                    XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_KEY_PRESS
                                        | XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(mpConnection, XCB_COPY_FROM_PARENT, mWindow, screen->root, 0, 0, std::uint16_t(width),
                      std::uint16_t(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_change_property(mpConnection, XCB_PROP_MODE_REPLACE, mWindow, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        std::uint32_t(title.size()), title.data());

    // Closing by the title bar arrives as a message instead of killing the connection.
    const std::uint32_t protocols = internAtom(mpConnection, "WM_PROTOCOLS");
    mDeleteAtom = internAtom(mpConnection, "WM_DELETE_WINDOW");
    xcb_change_property(mpConnection, XCB_PROP_MODE_REPLACE, mWindow, protocols, XCB_ATOM_ATOM, 32, 1, &mDeleteAtom);

    mFont = xcb_generate_id(mpConnection);
    xcb_open_font(mpConnection, mFont, 5, "fixed");
    mGraphics = xcb_generate_id(mpConnection);
    const std::uint32_t gcValues[] = {kText, kBackground, mFont};
    xcb_create_gc(mpConnection, mGraphics, mWindow, XCB_GC_FOREGROUND | XCB_GC_BACKGROUND | XCB_GC_FONT, gcValues);

    mTabKeycode = FindTabKeycode();
    xcb_map_window(mpConnection, mWindow);
    xcb_flush(mpConnection);
    mbOpen = true;
}

HostWindow::~HostWindow()
{
    if (mpConnection && !xcb_connection_has_error(mpConnection)) {
        if (mGraphics)
            xcb_free_gc(mpConnection, mGraphics);
        if (mFont)
            xcb_close_font(mpConnection, mFont);
        if (mWindow)
            xcb_destroy_window(mpConnection, mWindow);
        xcb_flush(mpConnection);
    }
    if (mpConnection)
        xcb_disconnect(mpConnection);
}

bool HostWindow::IsOpen() const
{
    return mbOpen;
}

std::uint32_t HostWindow::Window() const
{
    return mWindow;
}

int HostWindow::Width() const
{
    return miWidth;
}

int HostWindow::Height() const
{
    return miHeight;
}

int HostWindow::FileDescriptor() const
{
    return mpConnection ? xcb_get_file_descriptor(mpConnection) : -1;
}

void HostWindow::SetTabTarget(std::uint32_t window)
{
    mTabTarget = window;
}

void HostWindow::SetResizeHandler(std::function<void(int, int)> handler)
{
    mResizeHandler = std::move(handler);
}

void HostWindow::SetStatusText(const std::string& text)
{
    msStatus = text;
    Paint();
}

bool HostWindow::ProcessEvents()
{
    if (!mbOpen)
        return false;
    while (xcb_generic_event_t* event = xcb_poll_for_event(mpConnection)) {
        switch (event->response_type & 0x7f) {
        case XCB_EXPOSE:
            if (reinterpret_cast<xcb_expose_event_t*>(event)->count == 0)
                Paint();
            break;
        case XCB_CONFIGURE_NOTIFY: {
            const auto* configure = reinterpret_cast<xcb_configure_notify_event_t*>(event);
            if (configure->window == mWindow && (configure->width != miWidth || configure->height != miHeight)) {
                miWidth = configure->width;
                miHeight = configure->height;
                if (mResizeHandler)
                    mResizeHandler(miWidth, miHeight);
                Paint();
            }
            break;
        }
        case XCB_BUTTON_PRESS:
            // A click on the host's own area takes focus back from the embedded panel.
            FocusSelf();
            break;
        case XCB_KEY_PRESS: {
            const auto* key = reinterpret_cast<xcb_key_press_event_t*>(event);
            if (key->detail == mTabKeycode && mTabTarget) {
                xcb_set_input_focus(mpConnection, XCB_INPUT_FOCUS_PARENT, mTabTarget, XCB_CURRENT_TIME);
                xcb_flush(mpConnection);
            }
            break;
        }
        case XCB_CLIENT_MESSAGE: {
            const auto* message = reinterpret_cast<xcb_client_message_event_t*>(event);
            if (message->data.data32[0] == mDeleteAtom)
                mbOpen = false;
            break;
        }
        default:
            break;
        }
        std::free(event);
    }
    if (xcb_connection_has_error(mpConnection))
        mbOpen = false;
    return mbOpen;
}

void HostWindow::Paint()
{
    if (!mpConnection || !mWindow)
        return;
    const std::string heading = "Native host window (xcb). Tab here moves into the panel.";
    xcb_clear_area(mpConnection, 0, mWindow, 0, 0, 0, 40);
    xcb_image_text_8(mpConnection, std::uint8_t(heading.size()), mWindow, mGraphics, 12, 18, heading.c_str());
    const std::string status = msStatus.substr(0, 255);
    xcb_image_text_8(mpConnection, std::uint8_t(status.size()), mWindow, mGraphics, 12, 34, status.c_str());
    xcb_flush(mpConnection);
}

void HostWindow::FocusSelf()
{
    xcb_set_input_focus(mpConnection, XCB_INPUT_FOCUS_PARENT, mWindow, XCB_CURRENT_TIME);
    xcb_flush(mpConnection);
}

std::uint8_t HostWindow::FindTabKeycode()
{
    const xcb_setup_t* setup = xcb_get_setup(mpConnection);
    const int first = setup->min_keycode;
    const int count = setup->max_keycode - setup->min_keycode + 1;
    xcb_get_keyboard_mapping_reply_t* mapping = xcb_get_keyboard_mapping_reply(
        mpConnection, xcb_get_keyboard_mapping(mpConnection, xcb_keycode_t(first), std::uint8_t(count)), nullptr);
    if (!mapping)
        return 0;
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping);
    const int perCode = mapping->keysyms_per_keycode;
    std::uint8_t keycode = 0;
    for (int code = 0; code < count && !keycode; ++code) {
        for (int i = 0; i < perCode; ++i) {
            if (symbols[code * perCode + i] == kTabKeysym) {
                keycode = std::uint8_t(first + code);
                break;
            }
        }
    }
    std::free(mapping);
    return keycode;
}

#pragma once

// The piece of library UI the host places: to the host it is a Widget handle
// like any other, with no Qt type in sight.

#include <KvUICore/widgets/Widget.h>

class NotesPanel : public Kavrel::UICore::Widget
{
public:
    explicit NotesPanel(HWND parentWindow);
};

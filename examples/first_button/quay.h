#pragma once

#include "tgx/tgx.h"

#include <string>

/// The screen that the script calls "QUAY". It gets every click inside it, with the id of the window.
class QuayScreen : public AScreen {
public:
    using AScreen::AScreen;

    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        if (AScreen::handleMouseAction(subject, wnd, x, y, action))
            return 1; // the base has handled the click
        if (action != MA_LBUTTONUP || subject != "RING")
            return 0;
        ++strokes;
        const std::string story =
            "It has rung " + std::to_string(strokes) + (strokes == 1 ? " time." : " times.");
        if (AWnd* shown = getWnd("STORY", 1))
            shown->setWindowText(CString(story.c_str()));
        return 1;
    }

private:
    int strokes = 0;
};

/// The main window, which makes the windows of the game's own classes.
class QuayWindow : public AMainWin {
public:
    using AMainWin::AMainWin;

    AWnd* createNewWindow(const CString& id, int x, int y, int width, int height,
                          const CString& type) override
    {
        return type == "QUAY" ? new QuayScreen(id, x, y, width, height) : nullptr;
    }
};

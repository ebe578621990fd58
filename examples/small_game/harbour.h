#pragma once

#include "tgx/tgx.h"

/// The screen "HARBOUR": leads to the other screens, and shows how the last day went.
class HarbourScreen : public AScreen {
public:
    using AScreen::AScreen;

    void startup() override;
    void returned() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    void showDay();
};

/// The screen "OPTIONS". Its controls hold the options, and leaving the screen stores them.
class OptionsScreen : public AScreen {
public:
    using AScreen::AScreen;

    void startup() override;
    void draw(int frameStep) override;
    void close() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
};

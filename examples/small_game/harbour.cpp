#include "harbour.h"

#include "game.h"
#include "platform/display/host.h"

#include <string>

namespace {

LobsterWindow& game()
{
    return *static_cast<LobsterWindow*>(getMainWin());
}

void showText(AWnd& screen, const char* id, const std::string& text)
{
    if (AWnd* wnd = screen.getWnd(id, 1))
        wnd->setWindowText(CString(text.c_str()));
}

} // namespace

void HarbourScreen::startup()
{
    AScreen::startup();
    showDay();
}

void HarbourScreen::returned()
{
    AScreen::returned();
    showDay();
}

void HarbourScreen::showDay()
{
    const LobsterWindow& today = game();
    const std::string name = today.getSkipper().str();
    showText(*this, "GREETING", "Good morning, " + (name.empty() ? "skipper" : name) + ".");
    showText(*this, "LAST",
             today.getDay() == 0
                 ? "The boat is ready."
                 : "The last day brought " + std::to_string(today.getLastPence()) + " pence.");
    showText(*this, "BEST", "The best day so far: " + std::to_string(today.getBestPence()) + " pence.");
}

int HarbourScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (AScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    if (action != MA_LBUTTONUP)
        return 0;
    if (subject == "GO")
        game().changeScreen("BAY", 0, bayScript, "bay.tgx");
    else if (subject == "TO_OPTIONS")
        game().changeScreen("OPTIONS", 0, mainScript, "script.tgx");
    else if (subject == "LEAVE")
        game().exitProgram();
    else
        return 0;
    return 1;
}

void OptionsScreen::startup()
{
    AScreen::startup();
    showText(*this, "NAME", game().getSkipper().str());
    if (auto* name = windowAs<AEditBox>(getWnd("NAME", 1)))
        name->setMaxLength(16);
    if (auto* weather = windowAs<AComboBox>(getWnd("WEATHER", 1)))
        weather->setSelectedItem(game().getWeather());
    if (auto* volume = windowAs<AScrollBar>(getWnd("VOLUME", 1)))
        volume->setPercentage(ZnFixed::fromInt(game().getVolume()));
    if (AButton* full = getButton("FULL", 1))
        full->setSelected(game().fullScreen);
}

void OptionsScreen::draw(int frameStep)
{
    // A bar does not report that it has moved, so its value is read in each frame.
    if (const auto* volume = windowAs<AScrollBar>(getWnd("VOLUME", 1)))
        showText(*this, "LOUD", std::to_string(volume->getPercentage().toInt()) + " %");
    AScreen::draw(frameStep);
}

/// Stores the options: the screen is deleted when the user leaves it, together with its controls.
void OptionsScreen::close()
{
    if (AWnd* name = getWnd("NAME", 1))
        game().setSkipper(name->getText());
    if (const auto* weather = windowAs<AComboBox>(getWnd("WEATHER", 1)))
        game().setWeather(weather->getSelectedItem());
    if (const auto* volume = windowAs<AScrollBar>(getWnd("VOLUME", 1)))
        game().setVolume(volume->getPercentage().toInt());
    AScreen::close();
}

int OptionsScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (AScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    AButton* full = getButton("FULL", 1);
    if (action != MA_LBUTTONUP || subject != "FULL" || !full)
        return 0;
    game().fullScreen = full->isSelected(); // stored when the program ends
    displayhost::current().followFullScreen(game());
    return 1;
}

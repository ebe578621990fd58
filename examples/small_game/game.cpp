#include "game.h"

#include "bay.h"
#include "harbour.h"
#include "platform/display/settings.h"

#include <algorithm>

LobsterWindow::LobsterWindow(int width, int height, int depth) : AMainWin(width, height, depth)
{
    // On the first run nothing is stored, and the values keep their defaults.
    getregistry("BestPence", &bestPence);
    getregistry("Weather", &weather);
    getregistry("Volume", &volume);
    weather = std::min(weather, 2ul);
    volume = std::min(volume, 100ul);
}

AWnd* LobsterWindow::createNewWindow(const CString& id, int x, int y, int width, int height,
                                     const CString& type)
{
    if (type == "HARBOUR")
        return new HarbourScreen(id, x, y, width, height);
    if (type == "OPTIONS")
        return new OptionsScreen(id, x, y, width, height);
    if (type == "BAY")
        return new BayScreen(id, x, y, width, height);
    if (type == "BayMap")
        return new BayMap(id, x, y, width, height);
    return nullptr;
}

/// Reads the windows of boxes, which the toolkit expects in the file "common.tgx", from the program.
AWnd* LobsterWindow::readScriptFile(const CString& name, HINSTANCE instance, unsigned resource,
                                    const CString& toWindow, int finalRead)
{
    return AMainWin::readScriptFile(name, instance, name == "common.tgx" ? commonScript : resource, toWindow,
                                    finalRead);
}

void LobsterWindow::endDay(int pence)
{
    ++day;
    lastPence = pence;
    if (pence > getBestPence()) {
        bestPence = static_cast<unsigned long>(pence);
        setregistry("BestPence", &bestPence);
    }
    if (AScreen* bay = getActiveScreen())
        bay->exitScreen(); // closes the screen; the next day reads a new one
}

int LobsterWindow::getPots() const
{
    constexpr int pots[] = {12, 9, 6};
    return pots[weather];
}

void LobsterWindow::setWeather(int chosen)
{
    weather = static_cast<unsigned long>(std::clamp(chosen, 0, 2));
    setregistry("Weather", &weather);
}

void LobsterWindow::setVolume(int percent)
{
    volume = static_cast<unsigned long>(std::clamp(percent, 0, 100));
    setregistry("Volume", &volume);
}

#pragma once

#include "tgx/tgx.h"

// Resource numbers of the scripts that the build puts into the program.
constexpr unsigned mainScript = 141;
constexpr unsigned bayScript = 142;
constexpr unsigned commonScript = 143;

/// The main window. It makes the game's own classes and keeps what outlives a screen.
class LobsterWindow : public AMainWin {
public:
    LobsterWindow(int width, int height, int depth);

    AWnd* createNewWindow(const CString& id, int x, int y, int width, int height,
                          const CString& type) override;
    AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resource, const CString& toWindow,
                         int finalRead) override;

    /// Returns the number of days that have ended.
    int getDay() const { return day; }
    void endDay(int pence);
    int getLastPence() const { return lastPence; }
    int getBestPence() const { return static_cast<int>(bestPence); }
    /// Returns the number of pots in the boat, which is smaller in rough weather.
    int getPots() const;

    const CString& getSkipper() const { return skipper; }
    void setSkipper(const CString& name) { skipper = name; }
    /// Returns 0 for calm, 1 for a breeze, 2 for a gale.
    int getWeather() const { return static_cast<int>(weather); }
    void setWeather(int chosen);
    /// Returns the volume in percent.
    int getVolume() const { return static_cast<int>(volume); }
    void setVolume(int percent);

private:
    int day = 0;
    int lastPence = 0;
    CString skipper;
    // Stored between runs.
    unsigned long bestPence = 0;
    unsigned long weather = 0;
    unsigned long volume = 70;
};

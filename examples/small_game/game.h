#pragma once

#include "tgx/tgx.h"

// The scripts that the build puts into the program.
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

    /// Days that have ended.
    int getDay() const { return day; }
    void endDay(int pence);
    int getLastPence() const { return lastPence; }
    int getBestPence() const { return static_cast<int>(bestPence); }
    /// Pots in the boat: rough weather leaves room for fewer.
    int getPots() const;

    const CString& getSkipper() const { return skipper; }
    void setSkipper(const CString& name) { skipper = name; }
    /// 0 calm, 1 breeze, 2 gale.
    int getWeather() const { return static_cast<int>(weather); }
    void setWeather(int chosen);
    /// Percent.
    int getVolume() const { return static_cast<int>(volume); }
    void setVolume(int percent);

private:
    int day = 0;
    int lastPence = 0;
    CString skipper;
    // Kept from run to run.
    unsigned long bestPence = 0;
    unsigned long weather = 0;
    unsigned long volume = 70;
};

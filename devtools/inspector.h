#pragma once

#include "devtools/devtools.h"
#include "devtools/overlay.h"

#include <string>
#include <vector>

class AMainWin;
class AWnd;
class Origins;

/// What the last frame cost.
struct FrameCost {
    long micros = 0;        // the frame without waiting
    long averageMicros = 0; // over about a second
    int commands = 0;       // of the display list
    long changedPixels = 0; // that went to the window
};
/// screenPixels: of the whole screen.
std::vector<PanelLine> describeCost(const FrameCost& cost, long screenPixels);
/// Which key does what, of those that are set.
std::string describeKeys(const DevToolsOptions& keys);

/// Names what is under the pointer. Three settings, one behind the other: off, the window under the pointer,
/// and that with the outline of every window and the ids that stand twice.
class Inspector {
public:
    /// Neither game nor origins is owned. keys: for the help.
    Inspector(AMainWin& game, const Origins& origins, const DevToolsOptions& keys = {});
    void next(); // setting
    bool isOn() const { return setting != Off; }
    void paint(Overlay& overlay, const FrameCost& cost) const;

private:
    enum Setting { Off, Pointed, All };

    void paintPointed(Overlay& overlay, const AWnd& wnd) const;

    AMainWin& game;
    const Origins& origins;
    std::string keyHelp;
    Setting setting = Off;
};

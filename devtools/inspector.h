#pragma once

#include "devtools/devtools.h"
#include "devtools/overlay.h"

#include <string>
#include <vector>

class AMainWin;
class AWnd;

namespace tgx {

class Origins;

/// The cost of the last frame.
struct FrameCost {
    long micros = 0;        // duration of the frame without waiting
    long averageMicros = 0; // average over about a second
    int commands = 0;       // commands in the display list
    long changedPixels = 0; // pixels sent to the window
};
/// Returns lines about the cost. screenPixels is the number of pixels of the whole screen.
std::vector<PanelLine> describeCost(const FrameCost& cost, long screenPixels);
/// Returns a help line for the keys that are set.
std::string describeKeys(const DevToolsOptions& keys);

/// Describes the window under the pointer. It has three settings in turn: off, the window under the pointer,
/// and the same with the outlines of all windows and the duplicate ids.
class Inspector {
public:
    /// Owns neither game nor origins. keys is for the help line.
    Inspector(AMainWin& game, const Origins& origins, const DevToolsOptions& keys = {});
    void next(); // switches to the next setting
    bool isOn() const { return setting != Off; }
    void paint(Overlay& overlay, const FrameCost& cost) const;

private:
    enum Setting { Off, Hovered, All };

    void paintHovered(Overlay& overlay, const AWnd& wnd) const;

    AMainWin& game;
    const Origins& origins;
    std::string keyHelp;
    Setting setting = Off;
};

} // namespace tgx

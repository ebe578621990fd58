#pragma once

#include "devtools/overlay.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

/// What the devtools have to say over the game's picture: faults, which stay until they are mended, and
/// notices, which go by themselves.
class Notices {
public:
    /// Each a line. Replaces those before; none: all is well.
    void setFaults(std::vector<std::string> texts) { faults = std::move(texts); }
    const std::vector<std::string>& getFaults() const { return faults; }
    /// Stays for some seconds.
    void tell(std::string text);
    /// Those that stand there now, the oldest first.
    std::vector<std::string> getNotices() const;
    /// A small mark that stays, such as that a recording runs; empty: none.
    void setStatus(std::string text) { status = std::move(text); }

    /// Whether there is something to paint; drops what has stood for long enough.
    bool isShowing();
    void paint(Overlay& overlay) const;

private:
    struct Notice {
        std::string text;
        std::uint32_t since; // milliseconds of timeGetTime
    };
    std::vector<std::string> faults;
    std::deque<Notice> notices;
    std::string status;
};

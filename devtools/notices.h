#pragma once

#include "devtools/overlay.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace tgx {

/// The messages of the devtools over the game's picture: faults, which stay until they are fixed, and
/// notices, which disappear by themselves.
class Notices {
public:
    /// Replaces the faults, one line each. An empty list removes them.
    void setFaults(std::vector<std::string> texts) { faults = std::move(texts); }
    const std::vector<std::string>& getFaults() const { return faults; }
    /// Shows a notice for some seconds.
    void tell(std::string text);
    /// Returns the present notices, oldest first.
    std::vector<std::string> getNotices() const;
    /// Sets a permanent line, for example while a recording runs; empty: none.
    void setStatus(std::string text) { status = std::move(text); }

    /// Returns whether there is something to paint. Removes notices that have been shown long enough.
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

} // namespace tgx

#pragma once

#include "tgx/export.h"

#include <string>
#include <string_view>

/// The contents of a list cell, decoded from its string. An icon is a mark after the text.
struct ListCell {
    enum Picture {
        None,
        Frame,    // a frame of the icon; frame -1: the whole icon
        Progress, // number percent of the icon; -1: frame 0
    };

    std::string_view text; // text that is drawn
    Picture picture = None;
    int icon = 0;   // index in the list's icon table
    int number = 0; // frame or percentage

    /// Decodes stored, which must end in a 0 as a CString does. The result's text points into it.
    static TGX_API ListCell decode(std::string_view stored);

    static std::string withFrame(int icon, int frame);
    static std::string withProgress(int icon, int percentage);
    static bool hasIcon(std::string_view stored) { return stored.find(iconMark) != std::string_view::npos; }
    static bool isOnlyIcon(std::string_view stored) { return stored.starts_with(iconMark); }

private:
    static constexpr std::string_view iconMark = "##ICON##";
    static constexpr std::string_view frameMark = "##FRAME##";
    static constexpr std::string_view progressMark = "##PROGRESS##";
};

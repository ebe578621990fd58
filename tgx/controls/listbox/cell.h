#pragma once

#include "tgx/export.h"

#include <string>
#include <string_view>

/// What the string of a list cell says. Icons stand in it as marks behind the text.
struct ListCell {
    enum Picture {
        None,
        Frame,    // a frame of the icon; frame -1: the whole icon
        Progress, // a part of the icon, number percent of it; -1: frame 0
    };

    std::string_view text; // what is printed
    Picture picture = None;
    int icon = 0; // place in the list's icon table
    int number = 0;

    /// stored ends in a 0, as that of a CString does. The parts point into it.
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

#include "tgx/base/numtext.h"

#include <cstdlib>
#include <string>

namespace {

bool endsWith(const std::string& text, std::string_view end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

const char* ordinalSuffix(const std::string& text)
{
    if (endsWith(text, "11") || endsWith(text, "12") || endsWith(text, "13"))
        return "th";
    switch (text.back()) {
    case '1':
        return "st";
    case '2':
        return "nd";
    case '3':
        return "rd";
    default:
        return "th";
    }
}

} // namespace

CString intToString(int value, int grouped, int ordinal)
{
    std::string text = std::to_string(value);
    if (grouped) {
        const int firstDigit = value < 0 ? 1 : 0;
        for (int at = static_cast<int>(text.size()) - 3; at > firstDigit; at -= 3)
            text.insert(static_cast<std::size_t>(at), 1, ',');
    }
    if (ordinal)
        text += ordinalSuffix(text);
    return CString(std::move(text));
}

CString floatToString(ZnFixed value)
{
    if (value.raw == 0)
        return "  0.0";

    // Adding just under half a hundredth rounds the second decimal. The sum is limited to the range's
    // maximum.
    constexpr int nearlyHalfAHundredth = 20;
    int raised = 0;
    if (__builtin_add_overflow(value.raw, nearlyHalfAHundredth, &raised))
        raised = value.raw;
    const int hundredths = (ZnFixed::fromRaw(raised) * ZnFixed::fromInt(100)).toInt();

    std::string text = std::to_string(std::abs(hundredths));
    if (text.size() < 3)
        text.insert(0, 3 - text.size(), '0');
    text.insert(text.size() - 2, 1, '.');
    return CString(std::move(text));
}

CString minutesToString(int minutes)
{
    if (minutes <= 60)
        return intToString(minutes, 0, 0) + " mins";
    return intToString(minutes / 60, 0, 0) + "hr " + intToString(minutes % 60, 0, 0);
}

#include "tgx/controls/listbox/cell.h"

#include <cstdlib>

namespace {

/// Returns the number after the mark at place; it ends at the first character that is not a digit.
int numberAfter(std::string_view mark, std::string_view stored, std::size_t place)
{
    return static_cast<int>(std::strtol(stored.data() + place + mark.size(), nullptr, 10));
}

} // namespace

ListCell ListCell::decode(std::string_view stored)
{
    constexpr std::size_t nowhere = std::string_view::npos;
    ListCell cell;
    const std::size_t mark = stored.find(iconMark);
    cell.text = stored.substr(0, mark);
    if (mark == nowhere)
        return cell;

    if (const std::size_t frame = stored.find(frameMark); frame != nowhere) {
        cell.picture = Frame;
        cell.number = numberAfter(frameMark, stored, frame);
    } else if (const std::size_t progress = stored.find(progressMark); progress != nowhere) {
        cell.picture = Progress;
        cell.number = numberAfter(progressMark, stored, progress);
    }
    cell.icon = numberAfter(iconMark, stored, mark);
    return cell;
}

std::string ListCell::withFrame(int icon, int frame)
{
    return std::string(iconMark) + std::to_string(icon) + std::string(frameMark) + std::to_string(frame);
}

std::string ListCell::withProgress(int icon, int percentage)
{
    return std::string(iconMark) + std::to_string(icon) + std::string(progressMark) +
           std::to_string(percentage);
}

#include "player/calls.h"

namespace tgx {

namespace {

constexpr Operation rows[] = {
    operation<&ddwin::restoresurfaces>("restoresurfaces"),
    operation<&ddwin::reloadsurfaces>("reloadsurfaces"),

    operation<&ddwin::drawbackdrop>("drawbackdrop"),
    operation<&ddwin::redrawScreen>("redrawScreen"),
    operation<&ddwin::fillrect>("fillrect"),
    operation<&ddwin::rectangle>("rectangle"),
    operation<&ddwin::getcol>("getcol"),
    operation<&ddwin::drawLine>("drawLine"),

    overload<void (ddwin::*)(unsigned long), &ddwin::setbackdrop>("setbackdrop"),
    overload<void (ddwin::*)(const char*, long), &ddwin::setbackdrop>("setbackdrop"),
    operation<&ddwin::createspecific>("createspecific"),
    operation<&ddwin::getSurfaceCount>("getSurfaceCount"),

    operation<&ddwin::addNewFont>("addNewFont"),
    operation<&ddwin::getFontCount>("getFontCount"),

    operation<&ddwin::flushMessages>("flushMessages"),
    operation<&ddwin::key>("key"),
    operation<&ddwin::getAppactive>("getAppactive"),
    operation<&ddwin::restorepalette>("restorepalette"),
};

} // namespace

const std::span<const Operation> ddwinOperations = rows;

} // namespace tgx

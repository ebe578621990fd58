#include "player/calls.h"

namespace tgx {

namespace {

constexpr Operation rows[] = {
    operation<&AScreen::setCaller>("setCaller"),
    operation<&AScreen::getCaller>("getCaller"),
    operation<&AScreen::exitScreen>("exitScreen"),
    operation<&AScreen::setBackdropName>("setBackdropName"),
    operation<&AScreen::getBackdropName>("getBackdropName"),
    operation<&AScreen::setExtraString>("setExtraString"),
    operation<&AScreen::getExtraString>("getExtraString"),
    operation<&AScreen::isOpen>("isOpen"),
    operation<&AScreen::setOpen>("setOpen"),
    operation<&AScreen::getCanExit>("getCanExit"),
    operation<&AScreen::setCanExit>("setCanExit"),

    operation<&AScreenList::getActiveScreen>("getActiveScreen"),
    operation<&AScreenList::getActiveScreenIndex>("getActiveScreenIndex"),
    operation<&AScreenList::setActiveScreen>("setActiveScreen"),
    operation<&AScreenList::addWndToDelete>("addWndToDelete"),
    operation<&AScreenList::isWndToBeDeleted>("isWndToBeDeleted"),
    operation<&AScreenList::deleteWndsPendingDelete>("deleteWndsPendingDelete"),
    operation<&AScreenList::getWndsToDeleteCount>("getWndsToDeleteCount"),
};

} // namespace

const std::span<const Operation> screenOperations = rows;

} // namespace tgx

#include "player/calls.h"

namespace tgx {

namespace {

using Popup = AWnd* (AMainWin::*)(AWnd*, AWnd*, int);
using NamedPopup = AWnd* (AMainWin::*)(const CString&, AWnd*, unsigned, const CString&);

// runTick and runFrame are left out: the events tick, draw and frame run them, because the clock, the end of
// the run and exceptions need care there.
constexpr Operation rows[] = {
    operation<&AMainWin::startup>("startup"),
    operation<&AMainWin::drawscreen>("drawscreen"),
    operation<&AMainWin::OnMouseAction>("OnMouseAction"),
    operation<&AMainWin::OnKeyInput>("OnKeyInput"),
    operation<&AMainWin::createNewWindow>("createNewWindow"),
    operation<&AMainWin::addScreen>("addScreen"),

    operation<&AMainWin::exitProgram>("exitProgram"),
    operation<&AMainWin::recreateScreenList>("recreateScreenList"),
    operation<&AMainWin::waitForNextDraw>("waitForNextDraw"),
    operation<&AMainWin::nextDrawDone>("nextDrawDone"),
    operation<&AMainWin::getScreenList>("getScreenList"),
    operation<&AMainWin::getActiveScreen>("getActiveScreen"),
    operation<&AMainWin::getActiveWnd>("getActiveWnd"),
    operation<&AMainWin::getWnd>("getWnd"),
    operation<&AMainWin::getWndFromIndex>("getWndFromIndex"),
    operation<&AMainWin::getFrameStep>("getFrameStep"),
    operation<&AMainWin::getCurrentFPS>("getCurrentFPS"),
    operation<&AMainWin::getTargetFPS>("getTargetFPS"),

    operation<&AMainWin::changeScreen>("changeScreen"),
    operation<&AMainWin::closeAllScreensExceptCurrent>("closeAllScreensExceptCurrent"),
    operation<&AMainWin::getPendingScreen>("getPendingScreen"),

    operation<&AMainWin::getCurFocusWnd>("getCurFocusWnd"),
    operation<&AMainWin::getMouseDownWnd>("getMouseDownWnd"),
    operation<&AMainWin::getFocusWndHotTime>("getFocusWndHotTime"),
    operation<&AMainWin::getMouseCaptureWnd>("getMouseCaptureWnd"),
    operation<&AMainWin::getMouseCaptureWndCount>("getMouseCaptureWndCount"),
    operation<&AMainWin::setMouseCaptureWnd>("setMouseCaptureWnd"),
    operation<&AMainWin::isMouseDownInterval>("isMouseDownInterval"),
    operation<&AMainWin::setMousePos>("setMousePos"),
    operation<&AMainWin::setMousePosOnWnd>("setMousePosOnWnd"),
    operation<&AMainWin::setMousePosOnNextTabStop>("setMousePosOnNextTabStop"),
    operation<&AMainWin::getKeepListSelection>("getKeepListSelection"),
    operation<&AMainWin::setKeepListSelection>("setKeepListSelection"),

    overload<Popup, &AMainWin::setPopupWnd>("setPopupWnd"),
    overload<NamedPopup, &AMainWin::setPopupWnd>("setPopupWnd"),
    operation<&AMainWin::deletePopupWnd>("deletePopupWnd"),
    operation<&AMainWin::getPopupWnd>("getPopupWnd"),
    operation<&AMainWin::getPopupWndCount>("getPopupWndCount"),
    operation<&AMainWin::isInPopupList>("isInPopupList"),
    operation<&AMainWin::messageBox>("messageBox"),
    operation<&AMainWin::queryBox>("queryBox"),
};

} // namespace

const std::span<const Operation> mainWinOperations = rows;

} // namespace tgx

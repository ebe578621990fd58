#include "tgx/base/swapped.h"
#include "tgx/wnd/child_walk.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

template<std::size_t N>
bool isOneOf(const std::string_view (&ids)[N], std::string_view id)
{
    return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

/// Esc moves the pointer to the first of these that exists and is enabled.
constexpr const char* escTargets[] = {"TGX_BACK", "TGX_OK", "TGX_YES", "TGX_CLOSE", "continue"};

/// Set while Esc searches for its target: a search that reaches an edit box clicks it, which sends the key
/// down the tree again, and must not start another search.
bool isEscSearchRunning = false;

} // namespace

bool escPointsAt(std::string_view id)
{
    return std::any_of(std::begin(escTargets), std::end(escTargets),
                       [id](const char* name) { return CString::equalNoCase(name, id); });
}

bool tgx::part::isOfScript(std::string_view id)
{
    constexpr std::string_view ids[] = {checkboxState, radioState, comboMenu, comboNext, comboPrev};
    return std::any_of(std::begin(ids), std::end(ids),
                       [id](std::string_view part) { return CString::equalNoCase(part, id); });
}

bool leavesScreen(std::string_view id)
{
    static constexpr std::string_view ids[] = {"TGX_EXIT", "TGX_CANCEL", "TGX_BACK", "TGX_CLOSE"};
    return isOneOf(ids, id);
}

bool closesPopup(std::string_view id)
{
    static constexpr std::string_view ids[] = {"TGX_CLOSE", "TGX_YES", "TGX_NO", "TGX_OK", "TGX_CANCEL"};
    return isOneOf(ids, id);
}

void AWnd::initialise()
{
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->initialise();
}

void AWnd::startup()
{
    if (anim)
        anim->reset();
    tgx::Stage* stage = tgx::stage();
    // A window made before the main window exists has no font yet.
    if (!font && stage)
        font = parent && parent->font ? parent->font : stage->getFont(0);
    if (bkgnd && stage)
        createBkgnd(stage->getBackdrop(), 0);
    setBmp(bmpFilename);
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->startup();
}

void AWnd::close()
{
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->close();
}

void AWnd::returned()
{
    setBmp(bmpFilename);
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->returned();
}

void AWnd::finishAnims()
{
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->finishAnims();
}

void AWnd::update() {}

int AWnd::handleLostFocus()
{
    return 0;
}

int AWnd::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (!isVisible(1))
        return 0;

    const ActionRefs handling(this, wnd);
    int result = 0;
    const tgx::Stage* stage = tgx::stage();
    const bool esc = stage && stage->keyCode == VK_ESCAPE;
    if (action != MA_KEY && !esc) {
        if (children.GetSize() > 0)
            if (AWnd* hit = getWndAtPos(x, y, 0))
                result = hit->handleMouseAction(about, wnd, x, y, action);
    } else {
        for (ChildWalk walk(children); handling.canContinue() && walk.canContinue();)
            if (AWnd* next = walk.next())
                next->handleMouseAction(about, wnd, x, y, action);
        // Checked again, because a handler may have consumed or changed the key.
        if (handling.isHandlerAlive() && stage && stage->keyCode == VK_ESCAPE)
            putPointerOnCancel();
    }

    // A handler may have hidden, disabled or deleted this window.
    return handling.isHandlerAlive() && isEnabled() ? result : 0;
}

void AWnd::putPointerOnCancel()
{
    if (isEscSearchRunning)
        return;
    AWnd* target = nullptr;
    for (const char* name : escTargets) {
        target = getWnd(name, 1);
        if (target && target->isEnabled())
            break;
    }
    if (!target || !target->isEnabled())
        return;
    const Swapped<bool> running(isEscSearchRunning, true);
    tgx::stage()->setMousePosOnWnd(target, 0);
}

int AWnd::handleKeyInput(char key)
{
    const WndRef self = this; // handling the key may delete the window
    for (ChildWalk walk(children); walk.canContinue();)
        if (AWnd* next = walk.next())
            next->handleKeyInput(key);
    return self ? handleMouseAction(id, this, -1, -1, MA_KEY) : 0;
}

int AWnd::handlePopupAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const WndRef self = this; // handling the action may delete the window
    if (AWnd* holder = getParent())
        holder->handlePopupAction(about, wnd, x, y, action);
    if (self && action == MA_LBUTTONUP && closesPopup(about.view()) && getPopupWnd())
        tgx::stage()->deletePopupWnd();
    return 0;
}

AWnd* AWnd::getPopupWnd() const
{
    const tgx::Stage* stage = tgx::stage();
    AWnd* front = stage && stage->getPopupWndCount() > 0 ? stage->getPopupWnd(0) : nullptr;
    return front && front->getParent() == this ? front : nullptr;
}

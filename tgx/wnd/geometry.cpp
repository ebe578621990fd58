#include "tgx/base/fixed.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/wnd.h"

namespace {

/// Returns position - origin, which wraps around on overflow: position may have any value.
int difference(int position, int origin)
{
    return static_cast<int>(static_cast<unsigned>(position) - static_cast<unsigned>(origin));
}

} // namespace

std::uint64_t LayoutVersion::value = 1;
std::uint64_t TreeVersion::value = 1;

const Layout& AWnd::refreshedLayout() const
{
    Layout fresh{LayoutVersion::get(), wndX_ + animX(), wndY_ + animY(), visible != 0, visible && enabled};
    if (const AWnd* holder = getParent()) {
        const Layout& above = holder->layout();
        fresh.left += above.left;
        fresh.top += above.top;
        fresh.visible = fresh.visible && above.visible;
        fresh.enabled = fresh.enabled && above.enabled;
    }
    place = fresh;
    return place;
}

int AWnd::posX(int noAnim) const
{
    if (!noAnim)
        return left();
    int x = 0;
    for (const AWnd* wnd = this; wnd; wnd = wnd->getParent())
        x += wnd->wndX_;
    return x;
}

int AWnd::posY(int noAnim) const
{
    if (!noAnim)
        return top();
    int y = 0;
    for (const AWnd* wnd = this; wnd; wnd = wnd->getParent())
        y += wnd->wndY_;
    return y;
}

int AWnd::width() const
{
    return anim ? scaledSize(wndWidth, anim->getScaleW()) : wndWidth;
}

int AWnd::height() const
{
    return anim ? scaledSize(wndHeight, anim->getScaleH()) : wndHeight;
}

int AWnd::getWndX(int screenX) const
{
    return difference(screenX, left());
}

int AWnd::getWndY(int screenY) const
{
    return difference(screenY, top());
}

void AWnd::setWndPos(int x, int y, int w, int h)
{
    wndX_ = to16(x);
    wndY_ = to16(y);
    if (w >= 0)
        wndWidth = to16(w);
    if (h >= 0)
        wndHeight = to16(h);
    LayoutVersion::bump();
}

void AWnd::setWndPosCentred(int horizontal, int vertical, int inParent)
{
    const AWnd* holder = getParent();
    int x = wndX_;
    int y = wndY_;
    if (inParent) {
        if (windowType == WND_SCREEN || !holder)
            return;
        if (horizontal)
            x = (holder->width() - width()) / 2;
        if (vertical)
            y = (holder->height() - height()) / 2;
    } else {
        const tgx::Stage* stage = tgx::stage();
        if (!stage)
            return;
        if (horizontal)
            x = (stage->screenWidth - width()) / 2 - (holder ? holder->posX(0) : 0);
        if (vertical)
            y = (stage->screenHeight - height()) / 2 - (holder ? holder->posY(0) : 0);
    }
    setWndPos(x, y, -1, -1);
}

int AWnd::pointInside(int x, int y) const
{
    const Layout& at = layout();
    return at.left <= x && x <= at.left + width() && at.top <= y && y <= at.top + height();
}

AWnd* AWnd::getWndAtPos(int x, int y, int recursive)
{
    for (int i = children.GetSize() - 1; i >= 0; --i) {
        AWnd* candidate = child(i);
        if (!candidate)
            continue;
        const Layout& at = candidate->layout();
        if (x < at.left || y < at.top || !at.visible)
            continue;
        const bool scaled = candidate->anim != nullptr;
        if (x > at.left + (scaled ? candidate->width() : candidate->wndWidth) ||
            y > at.top + (scaled ? candidate->height() : candidate->wndHeight))
            continue;
        if (recursive && candidate->children.GetSize() > 0)
            if (AWnd* deeper = candidate->getWndAtPos(x, y, recursive))
                return deeper;
        if (at.enabled)
            return candidate;
    }
    return nullptr;
}

int AWnd::isVisible(int withParents) const
{
    return withParents ? layout().visible : visible != 0;
}

void AWnd::setVisible(int show)
{
    const bool wanted = show > 0;
    if (visible == wanted)
        return; // the cached layouts stay valid
    visible = wanted;
    LayoutVersion::bump();
}

int AWnd::isEnabled() const
{
    return layout().enabled;
}

void AWnd::setEnabled(int set)
{
    const bool wanted = (set & 1) != 0;
    if (enabled == wanted)
        return;
    enabled = wanted;
    LayoutVersion::bump();
}

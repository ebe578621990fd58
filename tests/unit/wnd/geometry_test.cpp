#include "tests/unit/support/tgx_test.h"

namespace {

class GeometryTest : public TgxTest {
protected:
    void SetUp() override
    {
        start("SCREEN \"S\" 0 0 640 480 \"\"\n"
              "BEGIN\n"
              "  WINDOW \"PANEL\" 100 100 200 200\n"
              "  BEGIN\n"
              "    WINDOW \"UNDER\" 10 20 80 80\n"
              "    WINDOW \"TOP\" 50 50 100 100\n"
              "    BEGIN\n"
              "      WINDOW \"LEAF\" 10 10 20 20\n"
              "      WINDOW \"STICKSOUT\" 90 0 50 20\n"
              "    END\n"
              "  END\n"
              "END\n");
    }
};

TEST_F(GeometryTest, AnOffsetMovesTheWindowAndItsChildrenButNotItsRestingPlace)
{
    wnd("PANEL")->setMoveAnimation(5, -7, 5, -7, {}, {}, 0);
    AWnd* leaf = wnd("LEAF");
    EXPECT_EQ(leaf->left(), 165);
    EXPECT_EQ(leaf->top(), 153);
    EXPECT_EQ(leaf->posX(1), 160);
    EXPECT_EQ(leaf->posY(1), 160);
    EXPECT_EQ(leaf->wndX(), 10);
    EXPECT_EQ(leaf->getWndX(leaf->left()), 0);
    EXPECT_EQ(leaf->getWndY(INT_MIN), INT_MAX - leaf->top() + 1) << "wraps around";
    EXPECT_EQ(leaf->getWndY(200), 47);
    EXPECT_EQ(leaf->right(), 185);
    EXPECT_EQ(leaf->centreY(), 163);
}

TEST_F(GeometryTest, TheDeepestUsableWindowUnderThePointIsHit)
{
    const struct {
        const char* name;
        int x, y;
        const char* disabled;
        const char* hidden;
        const char* hit;
    } rows[] = {
        {"a later window is on top", 170, 170, nullptr, nullptr, "LEAF"},
        {"the point passes through a disabled window to its parent", 170, 170, "LEAF", nullptr, "TOP"},
        {"and through that one to the window below", 170, 170, "TOP", nullptr, "UNDER"},
        {"a hidden window is not hit", 170, 170, nullptr, "TOP", "UNDER"},
        {"the far edges are inside", 250, 250, nullptr, nullptr, "TOP"},
        {"one pixel past the edges is outside", 251, 250, nullptr, nullptr, "PANEL"},
        {"the part of a window outside its parent cannot be hit", 255, 155, nullptr, nullptr, "PANEL"},
        {"the part inside can", 245, 155, nullptr, nullptr, "STICKSOUT"},
        {"nothing below a hidden parent", 170, 170, nullptr, "PANEL", nullptr},
        {"nothing outside all windows", 50, 50, nullptr, nullptr, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        if (row.disabled)
            wnd(row.disabled)->setEnabled(2); // only the lowest bit counts
        if (row.hidden)
            wnd(row.hidden)->setVisible(-1);
        EXPECT_STREQ(idAt(row.x, row.y), row.hit);
        if (row.disabled)
            wnd(row.disabled)->setEnabled(1);
        if (row.hidden)
            wnd(row.hidden)->setVisible(1);
    }
    EXPECT_STREQ(screen("S")->getWndAtPos(170, 170, 0)->getID(), "PANEL") << "direct children only";
}

TEST_F(GeometryTest, AWindowIsEnabledIfEveryLevelIsVisibleAndEnabled)
{
    wnd("PANEL")->setVisible(0);
    EXPECT_FALSE(wnd("LEAF")->isEnabled());
    EXPECT_TRUE(wnd("LEAF")->isVisible(0));
    EXPECT_FALSE(wnd("LEAF")->isVisible(1));
    wnd("PANEL")->setVisible(1);
    wnd("PANEL")->setEnabled(0);
    EXPECT_FALSE(wnd("LEAF")->isEnabled());
    EXPECT_TRUE(wnd("LEAF")->getEnabled());
}

TEST_F(GeometryTest, Centring)
{
    AWnd* leaf = wnd("LEAF"); // 20 x 20, in TOP, which is 100 x 100 at 150, 150
    const struct {
        const char* name;
        int width, horizontal, vertical, inParent;
        int x, y;
    } rows[] = {
        {"on the screen, wherever the parent is", 20, 1, 1, 0, 160, 80},
        {"one axis does not change the other", 20, 1, 0, 0, 160, 10},
        {"in the parent", 20, 1, 1, 1, 40, 40},
        {"a window wider than the parent gets a negative position, truncated towards zero", 121, 1, 0, 1, -10,
         10},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        leaf->setWndPos(10, 10, row.width, -1);
        leaf->setWndPosCentred(row.horizontal, row.vertical, row.inParent);
        EXPECT_EQ(leaf->wndX(), row.x);
        EXPECT_EQ(leaf->wndY(), row.y);
    }
    screen("S")->setWndPos(3, 4, -1, -1);
    screen("S")->setWndPosCentred(1, 1, 1);
    EXPECT_EQ(screen("S")->wndX(), 3) << "a screen does not move";
}

// A row has start, end and increment (raw) on x, then the offsets, frame by frame.
TEST_F(GeometryTest, AMovementAdvancesWhileItIsDrawn)
{
    const struct {
        const char* name;
        int from, to, increment, step, whenDone;
        std::vector<int> offsets; // of the frames after the start
        bool recordStays;
    } rows[] = {
        {"whole steps, and the record is deleted", -30, 0, 40960, 1, 1, {-20, -10, 0}, false},
        {"a large step stops at the end", -50, 0, 40960, 3, 1, {-20, 0}, false},
        {"half a pixel moves nothing", -30, 0, 2048, 1, 1, {-30, -30}, true},
        {"a wrong direction jumps to the end", 10, 0, 40960, 1, 1, {0}, false},
        {"without deletion it stays at the end", 0, 25, 40960, 1, 0, {10, 20, 25, 25}, true},
    };
    AWnd* panel = wnd("PANEL");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        panel->setMoveAnimation(row.from, 0, row.to, 0, ZnFixed::fromRaw(row.increment), {}, row.whenDone);
        for (int offset : row.offsets) {
            win().getScreenList()->draw(row.step);
            EXPECT_EQ(panel->left() - 100, offset);
        }
        EXPECT_EQ(panel->hasWndAnimData(), row.recordStays);
        panel->startup();
        EXPECT_EQ(panel->left(), 100) << "startup resets the movement";
        win().getScreenList()->draw(1);
        EXPECT_FALSE(panel->hasWndAnimData());
    }
}

TEST_F(GeometryTest, AFinishedMovementThatIsKeptDoesNotChangeTheLayout)
{
    APhysicalAnim movement;
    movement.setMoveAnimation(0, 0, 8, 0, ZnFixed::fromInt(5), ZnFixed(), 0);
    for (const bool moves : {true, true, false, false}) {
        const auto before = LayoutVersion::get();
        movement.updatePos(1);
        EXPECT_EQ(LayoutVersion::get() != before, moves) << movement.getAnimOffsetX();
    }
}

TEST_F(GeometryTest, GrowAndShrinkSlideByHalfTheSize)
{
    AWnd* under = wnd("UNDER"); // 80 x 80 at 110, 120
    under->setShrinkAnimation(ZnFixed::fromInt(15));
    win().getScreenList()->draw(1);
    EXPECT_EQ(under->left(), 125);
    win().getScreenList()->draw(2);
    EXPECT_EQ(under->left(), 110) << "at the end the record is deleted, and the window is at rest";
    under->setGrowAnimation(ZnFixed::fromInt(15));
    EXPECT_EQ(under->left(), 150);
    win().getScreenList()->draw(1);
    EXPECT_EQ(under->top(), 145);
    win().getScreenList()->draw(2);
    EXPECT_EQ(under->left(), 110);
}

TEST_F(GeometryTest, AHiddenParentStopsMovementsOfItsChildren)
{
    wnd("LEAF")->setMoveAnimation(-30, 0, 0, 0, ZnFixed::fromInt(10), {}, 1);
    wnd("TOP")->setVisible(0);
    play("frame 2");
    EXPECT_EQ(wnd("LEAF")->left(), 130);
    wnd("TOP")->setVisible(1);
    play("frame 2");
    EXPECT_EQ(wnd("LEAF")->left(), 150);
}

} // namespace

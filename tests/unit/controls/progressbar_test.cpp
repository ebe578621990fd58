#include "tests/unit/support/tgx_test.h"

namespace {

class ProgressBarTest : public TgxTest {};

TEST_F(ProgressBarTest, ThePercentageIsAPartOfTheBitmapAboveEverythingElse)
{
    bitmap("two.bmp", 200, 80); // twice the frame's width is enough for two frames
    bitmap("one.bmp", 199, 80);
    start("SCREEN \"S\" 0 0 640 480 \"\"\n"
          "BEGIN\n"
          "  PROGRESSBAR \"H\" 10 20 150 100 \"two.bmp\" 100 80\n"
          "  VPROGRESSBAR \"V\" 10 20 150 100 \"two.bmp\" 100 80\n"
          "  PROGRESSBAR \"ONE\" 10 20 150 100 \"one.bmp\" 100 80\n"
          "  PROGRESSBAR \"BARE\" 10 20 150 100 \"\" 100 80\n"
          "END\n");
    play("frame 6");
    const struct {
        const char *name, *call, *bmp;
        int emptyHeight;   // height drawn of frame 1; -1: no frame 1
        int srcY, y, w, h; // part drawn of frame 0
    } rows[] = {
        {"the default of three quarters", "H getPercentage", "two.bmp", 80, 0, 20, 75, 80},
        {"fractions of a pixel are cut", "H setPercentage 33.9", "two.bmp", 80, 0, 20, 33, 80},
        {"limited to empty", "H setPercentage -3.0", "two.bmp", 80, 0, 20, 0, 80},
        {"limited to full", "H setPercentage 250.5", "two.bmp", 80, 0, 20, 100, 80},
        {"vertical, from the window's bottom", "V setPercentage 25.0", "two.bmp", 60, 60, 100, 100, 20},
        {"no empty picture", "ONE setPercentage 50.0", "one.bmp", -1, 0, 20, 50, 80},
        {"vertical without an empty picture", "ONE setHorizontal 0", "one.bmp", -1, 40, 80, 100, 40},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string call = row.call;
        const std::string id = call.substr(0, call.find(' '));
        play("call " + call, "call " + id + " setWindowText \"a\"");
        const Drawn empty = blit(row.bmp).from(101, 0).to(10, 20, 100, row.emptyHeight).mode(-1);
        const Drawn full = blit(row.bmp).from(0, row.srcY).to(10, row.y, row.w, row.h).mode(-1);
        EXPECT_EQ(drawn(id).operations("blit"), row.emptyHeight < 0 ? Trace{full} : Trace({empty, full}));
    }
    measureFont(0);
    play("call BARE setWindowText \"a\"");
    EXPECT_EQ(drawn("ONE"),
              (Trace{text("a").at(10, 64), blit("one.bmp").from(0, 40).to(10, 80, 100, 40).mode(-1)}));
    EXPECT_EQ(drawn("BARE"), Trace{text("a").at(10, 64)});
    play("call ONE setVisible 0");
    EXPECT_EQ(drawn("ONE"), Trace{});
}

} // namespace

#include "player/operation.h"
#include "tests/unit/support/tgx_test.h"

namespace {

/// A game's window, with operations of its own.
class Dial : public AWnd {
public:
    using AWnd::AWnd;
    int measure(int scale, int& width, CString& name, ZnFixed& share)
    {
        width = this->width() * scale;
        name = id;
        share = ZnFixed::fromInt(1) / ZnFixed::fromInt(4);
        return 1;
    }
    void overloaded(int) { chosen = "int"; }
    void overloaded(ZnFixed) { chosen = "fixed"; }
    void overloaded(const CString&) { chosen = "text"; }
    ZnFixed keep(ZnFixed value) { return value; }
    const char* choice() const { return chosen; }
    unsigned char narrow(unsigned char value) { return value; }
    int getWindowCount() const { return 99; } // hides that of the base

private:
    const char* chosen = nullptr;
};

constexpr Operation dialOperations[] = {
    operation<&Dial::measure>("measure"),
    overload<void (Dial::*)(const CString&), &Dial::overloaded>("overloaded"),
    overload<void (Dial::*)(ZnFixed), &Dial::overloaded>("overloaded"),
    overload<void (Dial::*)(int), &Dial::overloaded>("overloaded"),
    operation<&Dial::keep>("keep"),
    operation<&Dial::choice>("choice"),
    operation<&Dial::narrow>("narrow"),
    operation<&Dial::getWindowCount>("getWindowCount"),
};

class CallsTest : public TgxTest {
protected:
    static void SetUpTestSuite() { addOperations(dialOperations); }

    void SetUp() override
    {
        start(R"(SCREEN 'MENU' 0 0 640 480 '' 'notes' {
              WINDOW 'BOX' 10 20 100 50 { TEXTWND '12' 5 5 50 20 'caf\xE9 \"x\"\\n' 0 0 }
            })");
        wnd("MENU")->addChildWindow(new Dial(AWnd::WND_PLAIN, "DIAL", 200, 200, 30, 30));
    }
    /// Makes the calls, separated by semicolons.
    std::string lastValue(const std::string& calls)
    {
        std::string value;
        for (const std::string& each : parts(calls, ';'))
            value = call(each);
        return value;
    }
};

TEST_F(CallsTest, ArgumentsAndResultsOfEachKind)
{
    const char* const rows[][2] = {
        {"BOX left", "10"},
        {"box left", "10"}, // look-ups ignore case
        {"BOX setWndPos -5 0x10 -1 +40", "null"},
        {"BOX wndY", "16"},
        {"BOX getWndWidth", "100"},
        {"BOX getID", R"("BOX")"},
        {"BOX getParent", R"("MENU")"},
        {"main getWnd \"nothing\" 1", "null"},
        {"main getActiveScreen", R"("MENU")"},
        {"main getScreenList", R"("ScreenList")"},
        {"ScreenList getActiveScreen", R"("MENU")"},
        {"MENU isOpen", "1"},
        {"MENU getExtraString", R"("notes")"},
        {"12 getWindowText", R"("caf\u00e9 \"x\"\\n")"},
        {"BOX setWindowText 17;BOX getText", R"("17")"},
        {"BOX setWindowText \"017\";BOX getText", R"("017")"},
        {"BOX setWindowText 1.5;BOX getText", R"("1.5")"}, // not a raw number, so it is text
        {"BOX setWindowText null;BOX getText", R"("null")"},
        {"BOX setID 12x", "null"},
        {"12x setID 34", "null"}, // only text fits
        {"34 setID BOX", "null"},
        {"BOX setTextJustify 2;BOX getTextJustify", "2"},
        {"MENU getWndOfType 0 1 0", R"("DIAL")"},
        {"main setMousePosOnWnd 12 0", "1"}, // a number is an id where a window is expected
        {"main getMouseCaptureWnd 0", R"("MENU")"},
        {"main setMouseCaptureWnd BOX;main getMouseCaptureWnd 0", R"("BOX")"},
        {"main setMouseCaptureWnd null", "null"},
        {"main getcol 0x0000FF", "16711680"},
        {"main fillrect 0 0 1 1 0xFFFFFFFF", "1"},
        {"main getPopupWnd 3", "null"},
        {"main getPopupWnd -1", R"({"error": "invalid argument"})"},
        {"DIAL measure 3", R"([1,90,"DIAL",1024])"},
        {"DIAL choice", "null"},
        {"DIAL overloaded 5;DIAL choice", R"("int")"},
        {"DIAL overloaded 5.0;DIAL choice", R"("fixed")"},
        {"DIAL overloaded 3000000000;DIAL choice", R"("text")"}, // too large for int and for fixed point
        {"DIAL overloaded \"5\";DIAL choice", R"("text")"},
        {"DIAL overloaded five;DIAL choice", R"("text")"},
        {"DIAL keep 4096", "4096"},
        {"DIAL keep 12.5", "51200"},
        {"DIAL keep -0.0003", "-1"}, // -1.2288 raw, truncated towards zero
        {"DIAL keep 0.00024", "0"},
        {"DIAL keep .5", "2048"},
        {"DIAL keep 524287.99999", "2147483647"},
        {"DIAL narrow 255", "255"},
        {"DIAL getWindowCount", "99"}, // the class's own, not that of its base
    };
    for (const auto& [line, value] : rows)
        EXPECT_EQ(lastValue(line), value) << line;
}

TEST_F(CallsTest, AWrongCallIsRefusedWithTheReason)
{
    const char* const rows[][2] = {
        {"call OKAY left", "no window \"OKAY\"; the screen \"MENU\" has BOX, 12 and DIAL"},
        {"call \"\" left", "no window \"\"; the screen \"MENU\" has BOX, 12 and DIAL"},
        {"call BOX", "expected call TARGET OPERATION ARG ..., found 1 word after call"},
        {"call BOX lefft", "\"BOX\" has no operation \"lefft\"; did you mean left?"},
        {"call BOX isOpen", "\"BOX\" has no operation \"isOpen\""}, // only screens have it
        {"call main left", "\"main\" has no operation \"left\""},
        {"call BOX measure 3", "\"BOX\" has no operation \"measure\""},
        {"call BOX screenWipe", "\"BOX\" has no operation \"screenWipe\""},
        {"call BOX left 1", "arguments do not fit: left takes (), found 1"},
        {"call BOX setEnabled", "arguments do not fit: setEnabled takes (number), found none"},
        {"call BOX setEnabled \"1\"", "arguments do not fit: setEnabled takes (number), found \"1\""},
        {"call BOX setEnabled 1.0", "arguments do not fit: setEnabled takes (number), found 1.0"},
        {"call BOX setEnabled 2147483648",
         "arguments do not fit: setEnabled takes (number), found 2147483648"},
        {"call BOX setTextJustify 3",
         "arguments do not fit: setTextJustify takes (number from 0 to 2), found 3"},
        {"call BOX setShrinkAnimation 524288.0",
         "arguments do not fit: setShrinkAnimation takes (fixed-point number), found 524288.0"},
        {"call BOX setOwner GONE", "arguments do not fit: setOwner takes (window or null), found GONE"},
        {"call ScreenList setActiveScreen BOX",
         "arguments do not fit: setActiveScreen takes (window or null), found BOX"},
        {"call DIAL narrow 256", "arguments do not fit: narrow takes (number), found 256"},
        {"call BOX setWindowText a b",
         "arguments do not fit: setWindowText takes (number) and (text), found a b"},
    };
    for (const auto& [line, reason] : rows)
        EXPECT_EQ(playWrong(line), reason) << line;
    EXPECT_EQ(out.str(), "") << "a wrong line prints no value";
}

TEST_F(CallsTest, NullWithoutQuotesIsANullPointerAndNotText)
{
    bitmap("b.bmp", 8, 8);
    call("BOX setBmp \"b.bmp\"");
    ASSERT_NE(wnd("BOX")->getBmp(), nullptr);
    call("BOX setBmp null");
    EXPECT_EQ(wnd("BOX")->getBmp(), nullptr);
    EXPECT_EQ(call("BOX getBmpFilename"), R"("b.bmp")") << "the name is kept";
    expectMessage("cannot load null");
    call("BOX setBmp \"null\"");
}

TEST_F(CallsTest, AnEmptyIdFindsTheFirstWindowWithoutAnId)
{
    wnd("MENU")->addChildWindow(new AWnd(AWnd::WND_PLAIN, "static", 77, 0, 5, 5));
    EXPECT_EQ(call("\"\" left"), "77");
    EXPECT_EQ(call("main setMouseCaptureWnd \"\""), "null");
    EXPECT_EQ(call("main getMouseCaptureWnd 0"), R"("")");
}

TEST_F(CallsTest, CallsAreVirtual)
{
    struct Loud : AWnd {
        using AWnd::AWnd;
        using AWnd::setWindowText;
        void setWindowText(const CString& text) override { AWnd::setWindowText(text + "!"); }
    };
    wnd("MENU")->addChildWindow(new Loud(AWnd::WND_PLAIN, "LOUD", 0, 0, 5, 5));
    call("LOUD setWindowText 7");
    EXPECT_EQ(call("LOUD getText"), R"("7!")");
}

} // namespace

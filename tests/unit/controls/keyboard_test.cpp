#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/keyboard.h"

namespace {

/// A popup called BOX with the windows NAME and ECHO, an edit box EDIT and the keyboard KEYS.
class KeyboardTest : public TgxTest {
protected:
    static constexpr const char* box = R"(
WINDOW "BOX" 100 50 300 300
BEGIN
  TEXTWND "NAME" 0 0 200 20 "old"
  TEXTWND "ECHO" 0 20 200 20 "echo"
  EDITBOX "EDIT" 0 40 200 20 "old"
  KEYBOARD "KEYS" 0 100 200 120
  BEGIN
    COLUMNS 40 CENTRE 40 CENTRE 40 CENTRE
    ITEM "A" "B" "7"
    ITEM "XY" "Sp" "<"
    ITEM "." "C" "OK"
    LISTLOOK 24 0 1
  END
  TABORDER "KEYS"
END
)";

    void openBox(const std::string& initialise = "KEYS initialise NAME ECHO 20")
    {
        start("SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\nEND\n" + std::string(box));
        play("frame 6");
        ASSERT_NE(win().setPopupWnd("BOX", wnd("S"), 141, "script.tgx"), nullptr);
        if (!initialise.empty())
            call(initialise);
    }
    AKeyboard* keys() { return static_cast<AKeyboard*>(wnd("KEYS")); }
    void press(const std::string& key)
    {
        for (int row = 0; row < keys()->getItemCount(); ++row)
            for (int column = 0; column < keys()->getColumnCount(); ++column)
                if (keys()->getItemText(row, column) == key.c_str())
                    return play("row KEYS " + std::to_string(row) + ' ' + std::to_string(column));
        FAIL() << "no key " << key;
    }
    std::string textOf(const std::string& id) { return wnd(id)->getText().str(); }
    bool isOpen() { return win().isInPopupList("BOX"); }
};

TEST_F(KeyboardTest, TypesByMouse)
{
    const struct {
        const char* name;
        const char* before;
        int maxChars;
        std::vector<const char*> keys;
        const char* after;
    } rows[] = {
        {"the first key replaces the text", "old", 20, {"A"}, "A"},
        {"even a blank", "old", 20, {"Sp"}, " "},
        {"lower case after a letter", "old", 20, {"A", "B", "B"}, "Abb"},
        {"upper case after a blank", "old", 20, {"A", "Sp", "B", "A"}, "A Ba"},
        {"a digit has no case", "old", 20, {"7", "A", "7"}, "7a7"},
        {"several characters", "old", 20, {"XY", ".", "XY", "Sp", "XY"}, "XY.xy XY"},
        {"several characters may exceed the maximum", "old", 3, {"A", "A", "XY", "A", "Sp"}, "Aaxy"},
        {"the maximum", "old", 2, {"A", "B", "C"}, "Ab"},
        {"room again", "old", 2, {"A", "B", "C", "<", "C"}, "Ac"},
        {"a maximum of 0: only the flag changes", "old", 0, {"A", "A"}, "old"},
        {"a removal keeps the rest, and the next key is appended", "old", 20, {"<", "A"}, "ola"},
        {"nothing to remove, and upper case in an empty text", "", 20, {"<", "A"}, "A"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        openBox("");
        wnd("NAME")->setWindowText(row.before);
        call("KEYS initialise NAME ECHO " + std::to_string(row.maxChars));
        EXPECT_EQ(textOf("ECHO"), row.before);
        for (const char* key : row.keys) {
            wnd("ECHO")->setWindowText("?");
            press(key);
            EXPECT_EQ(keys()->getSelectedItem(), -1);
            EXPECT_EQ(keys()->getSelectedColumn(), -1);
            EXPECT_EQ(textOf("ECHO"), textOf("NAME")) << "after " << key;
        }
        EXPECT_EQ(textOf("NAME"), row.after);
        EXPECT_EQ(keys()->getReplaceText(), 0);
        EXPECT_TRUE(isOpen());
    }
}

TEST_F(KeyboardTest, TypesByArrowsAndReturn)
{
    openBox();
    const struct {
        const char* name;
        std::vector<const char*> keys;
        const char* text;
    } rows[] = {
        {"from OK, the last cell, one up", {"up", "return"}, "ol"},
        {"the hot cell stays: again", {"return"}, "o"},
        {"blank, twice", {"left", "return", "return"}, "o  "},
        {"to the first cell, but no further", {"up", "left", "left", "return"}, "o  A"},
        {"down and right", {"down", "return", "right", "down", "return"}, "o  Axyc"},
    };
    play("tick 2");
    EXPECT_EQ(keys()->getHotItem(), 2) << "the pointer has not moved since";
    EXPECT_EQ(keys()->getHotColumn(), 2);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const char* key : row.keys)
            play("key " + std::string(key), "frame");
        EXPECT_EQ(textOf("NAME"), row.text);
        EXPECT_EQ(textOf("ECHO"), row.text);
    }
    play("key right", "frame", "key return", "tick");
    EXPECT_FALSE(isOpen()) << "OK";
    EXPECT_EQ(win().getWnd("KEYS", 1), nullptr) << "deleted with its popup";
}

TEST_F(KeyboardTest, TheCaretOfAnActiveEditBoxMovesToTheEnd)
{
    openBox("KEYS initialise EDIT null 20");
    play("call main setMouseCaptureWnd EDIT", "key home", "tick", "key delete", "tick", "key b", "tick");
    ASSERT_EQ(textOf("EDIT") + call("EDIT getCursorPos"), "bld1");
    // Pointer actions are sent to the box while it is typed into; the game passes one on to the keyboard.
    play("call KEYS setHotItem 1", "call KEYS setHotColumn 0", "call KEYS setReplaceText 0",
         "call KEYS handleMouseAction KEYS KEYS 0 0 " + std::to_string(AWnd::MA_LBUTTONUP));
    play("key 7", "tick");
    EXPECT_EQ(textOf("EDIT"), "bldxy7");
}

TEST_F(KeyboardTest, WithoutTargetOrEcho)
{
    const char* const both = "KEYS initialise NAME ECHO 20";
    const struct {
        const char* name;
        const char* initialise;
        const char* gone;
        const char *key, *text, *echo; // "" for a deleted window
        bool open;
    } rows[] = {
        {"no initialise: no key", "", "", "A", "old", "echo", true},
        {"nor OK", "", "", "OK", "old", "echo", true},
        {"no echo", "KEYS initialise NAME null 20", "", "A", "A", "echo", true},
        {"the echo deleted", both, "ECHO", "A", "A", "", true},
        {"no target", "KEYS initialise null ECHO 20", "", "A", "old", "echo", true},
        {"the target deleted", both, "NAME", "A", "", "old", true},
        {"nothing to remove from", both, "NAME", "<", "", "old", true},
        {"OK still closes", both, "NAME", "OK", "", "", false},
    };
    const auto textIfThere = [this](const char* id) { return win().getWnd(id, 1) ? textOf(id) : ""; };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        openBox(row.initialise);
        delete win().getWnd(row.gone, 1);
        press(row.key);
        EXPECT_EQ(isOpen(), row.open);
        EXPECT_EQ(textIfThere("NAME"), row.text);
        EXPECT_EQ(textIfThere("ECHO"), row.echo);
    }
}

TEST_F(KeyboardTest, TheTargetOrEchoMayBeAWindowOfTheGame)
{
    struct Heard : AWnd {
        explicit Heard(std::function<void(const CString&)> hearer)
            : AWnd(WND_PLAIN, "HEARD", 0, 0, 9, 9), hear(std::move(hearer))
        {}
        void setWindowText(const CString& text) override { hear(text); }
        std::function<void(const CString&)> hear;
    };
    openBox();
    std::string heard;
    keys()->initialise(wnd("NAME"), wnd("S")->addChildWindow(new Heard([&](auto& text) { heard = text; })),
                       20);
    press("A");
    EXPECT_EQ(std::exchange(heard, ""), "A");
    press("OK");
    EXPECT_EQ(heard, "A") << "the keyboard exists until the end of the tick";
    EXPECT_FALSE(isOpen());

    openBox("");
    keys()->initialise(wnd("BOX")->addChildWindow(new Heard([&](auto&) { delete keys(); })), wnd("ECHO"), 20);
    press("A");
    EXPECT_EQ(win().getWnd("KEYS", 1), nullptr) << "the target has deleted it";
    EXPECT_EQ(textOf("ECHO"), "");
    EXPECT_TRUE(isOpen());
}

} // namespace

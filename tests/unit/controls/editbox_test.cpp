#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/button.h"
#include "tgx/controls/editbox.h"

#include <algorithm>

namespace {

class EditBoxTest : public TgxTest {
protected:
    void SetUp() override
    {
        start(R"(SCREEN 'S' 0 0 640 480 '' {
              EDITBOX 'NAME' 100 100 100 20 ''; EDITBOX 'PassWord1' 100 150 200 20 ''
              EDITBOX 'NOTES' 100 200 215 100 '' { TEXTWRAP 1 }; BUTTON 'OTHER' 400 100 50 50 ''
              TABORDER 'NAME' 'PassWord1' 'OTHER'
            })");
        play("frame 6");
        ASSERT_TRUE(isBeingEdited("NAME")) << "the first tab stop of a new screen";
        play("call main setMouseCaptureWnd null");
        measureFont(0);
    }
    AEditBox* box(const std::string& id) { return static_cast<AEditBox*>(wnd(id)); }
    bool isBeingEdited(const std::string& id) { return win().getMouseCaptureWnd(0) == wnd(id); }
    void type(const std::string& keys)
    {
        play("type \"" + keys + "\"", "tick " + std::to_string(keys.size()));
    }
    /// The text with the caret, such as "ab|c".
    std::string state(const std::string& id)
    {
        std::string shown = box(id)->getWindowText();
        return shown.insert(static_cast<std::size_t>(box(id)->getCursorPos()), "|");
    }
    /// Where the caret is drawn; "" if it is not.
    std::string caret(const std::string& id)
    {
        box(id)->setBmpInfo(0, 0, 400, 1); // visible for a long time
        win().runFrame();
        for (const DrawCommand& command : win().getLastFrame().commands())
            if (command.op == DrawOp::Rectangle)
                return std::to_string(command.x) + " " + std::to_string(command.y);
        return "";
    }
};

TEST_F(EditBoxTest, TypedCharactersAreInsertedAtTheCaret)
{
    click(110, 110);
    ASSERT_TRUE(isBeingEdited("NAME"));
    const char* const rows[][2] = {
        {"key a", "a|"},       {"key b", "ab|"},          {"key left", "a|b"},   {"key x", "ax|b"},
        {"key home", "|axb"},  {"key backspace", "|axb"}, {"key delete", "|xb"}, {"key end", "xb|"},
        {"key delete", "xb|"}, {"key backspace", "x|"},   {"key right", "x|"},   {"key up", "x|"},
        {"key 0xBE", "x|"},    {"key space", "x |"},
    };
    for (const auto& [event, expected] : rows) {
        play(event, "tick");
        EXPECT_EQ(state("NAME"), expected) << event;
    }
}

TEST_F(EditBoxTest, AcceptedCharactersAndLengths)
{
    click(110, 110);
    type("abcdefghijkl");
    EXPECT_EQ(state("NAME"), "abcdefghij|") << "a box of one line accepts what it can show";
    box("NAME")->setWindowText(CString("é"));
    type("\\xE9\\xBEz");
    play("tick 4");
    EXPECT_EQ(std::string(box("NAME")->getWindowText()), std::string("é") + "\xBEz")
        << "above 0x7E only 0xBE";

    box("NAME")->setWindowText(CString("ab"));
    box("NAME")->setForceUpper(1);
    box("NAME")->setMaxLength(3);
    box("NAME")->setFullWnd(wnd("OTHER"));
    type("c");
    EXPECT_EQ(state("NAME"), "ABC|") << "the whole text";
    EXPECT_EQ(win().mouseX, 425) << "full: the pointer moves on";
    type("d");
    EXPECT_EQ(state("NAME"), "ABC|");
}

TEST_F(EditBoxTest, StartAndEndOfTyping)
{
    play("move 110 110", "tick", "key tab", "tick", "tick");
    EXPECT_TRUE(isBeingEdited("PassWord1")) << "moving there with Tab starts the typing";
    type("ab");
    play("key tab", "tick", "tick");
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0) << "Tab ends the typing";
    EXPECT_EQ(win().getCurFocusWnd(), wnd("OTHER"));

    click(110, 110);
    EXPECT_TRUE(isBeingEdited("NAME"));
    click(410, 110);
    EXPECT_FALSE(isBeingEdited("NAME")) << "a click elsewhere ends the typing and is handled there";
    EXPECT_TRUE(clicks().ends_with("OTHER"));

    click(110, 110);
    box("NAME")->setOnEnterWnd(wnd("OTHER"));
    play("key return", "tick");
    EXPECT_FALSE(isBeingEdited("NAME"));
    EXPECT_TRUE(clicks().ends_with("OTHER")) << "the end of typing presses the button";
    EXPECT_EQ(win().mouseX, 425);
}

TEST_F(EditBoxTest, WindowsPressedAtTheEndOfTyping)
{
    const struct {
        const char* name;
        const char *leave, *enter;             // of NAME
        const char *secondLeave, *secondEnter; // of PassWord1
        const char *clicked, *typedIn; // after Return in NAME; typedIn is the capture stack, top first
        const char* text;
    } rows[] = {
        {"a box that is its own enter window is emptied and typed into again", "", "NAME", "", "", "NAME",
         "NAME", ""},
        {"a box that is both of its windows", "NAME", "NAME", "", "", "NAME NAME", "", ""},
        {"the next box", "", "PassWord1", "", "", "PassWord1", "PassWord1", "abc"},
        {"the leave window comes first", "OTHER", "PassWord1", "", "", "OTHER PassWord1", "PassWord1", "abc"},
        {"a second click on a box also ends its typing", "PassWord1", "PassWord1", "", "OTHER",
         "PassWord1 PassWord1 OTHER", "", "abc"},
        {"and may lead back", "PassWord1", "PassWord1", "OTHER", "NAME", "PassWord1 PassWord1 OTHER NAME",
         "NAME", "abc"},
        {"one box captures above another", "PassWord1", "NAME", "", "NAME", "PassWord1 NAME",
         "NAME PassWord1", ""},
    };
    box("NAME")->getParent()->getButton("OTHER", 1)->setCheckBox(1);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        while (win().getMouseCaptureWndCount() > 0)
            win().setMouseCaptureWnd(nullptr);
        static_cast<AButton*>(wnd("OTHER"))->setSelected(0);
        const auto find = [this](const char* id) { return *id ? wnd(id) : nullptr; };
        box("NAME")->setLeaveWnd(find(row.leave));
        box("NAME")->setOnEnterWnd(find(row.enter));
        box("PassWord1")->setLeaveWnd(find(row.secondLeave));
        box("PassWord1")->setOnEnterWnd(find(row.secondEnter));
        box("NAME")->setWindowText(CString("abc"));
        click(110, 110);
        clicks();
        play("key return", "tick");
        const std::string clicked = clicks();
        EXPECT_EQ(clicked, row.clicked);
        std::vector<std::string> typedIn;
        for (int i = 0; i < win().getMouseCaptureWndCount(); ++i)
            typedIn.push_back(win().getMouseCaptureWnd(i)->getID().str());
        EXPECT_EQ(joined(typedIn), row.typedIn);
        EXPECT_STREQ(box("NAME")->getWindowText(), row.text);
        const bool isPressed = clicked.find("OTHER") != clicked.npos;
        EXPECT_EQ(static_cast<AButton*>(wnd("OTHER"))->isSelected(), isPressed);
    }
    play("key return", "tick");
    EXPECT_EQ(clicks(), "PassWord1 NAME NAME");
    EXPECT_EQ(win().getMouseCaptureWndCount(), 0) << "a second end of NAME within the first has no effect";
}

TEST_F(EditBoxTest, APasswordShowsStarsAndKeepsItsText)
{
    click(110, 160);
    type("key");
    EXPECT_EQ(drawn("PassWord1").operations("textout"), (Trace{text("***").at(100, 154)}));
    EXPECT_STREQ(box("PassWord1")->getWindowText(), "key");
    EXPECT_EQ(drawn("PassWord1").operations("adddirtyrect"), (Trace{dirty(100, 150, 300, 170)}));
}

TEST_F(EditBoxTest, CaretPositions)
{
    click(110, 110);
    EXPECT_EQ(caret("NAME"), "100 104") << "an empty box";
    type("abc");
    EXPECT_EQ(caret("NAME"), "130 104");
    play("key left", "tick");
    EXPECT_EQ(caret("NAME"), "120 104");
    box("NAME")->setTextJustify(AWnd::TJ_RIGHT);
    EXPECT_EQ(caret("NAME"), "190 104");
    box("NAME")->setTextOffset(4, 2);
    box("NAME")->setTextJustify(AWnd::TJ_CENTRE);
    EXPECT_EQ(caret("NAME"), "159 106");
    play("key return", "tick");
    EXPECT_EQ(caret("NAME"), "") << "only drawn while typing";
}

TEST_F(EditBoxTest, TheCaretInSeveralLines)
{
    // Lines of the text are broken 60 pixels before the edge and are spaced by 25.6 pixels.
    click(110, 210);
    type("aaaa bbbb cccc dddd eeee");
    EXPECT_EQ(caret("NOTES"), "190 225") << "at the end of dddd eeee, without its last character";
    play("key home", "tick");
    EXPECT_EQ(caret("NOTES"), "100 200");
    for (int i = 0; i < 4; ++i)
        play("key right", "tick");
    EXPECT_EQ(caret("NOTES"), "140 200");
}

TEST_F(EditBoxTest, TheCaretBlinks)
{
    click(110, 110);
    std::string shown;
    for (int i = 0; i < 80; ++i) {
        win().runFrame();
        bool on = false;
        for (const DrawCommand& command : win().getLastFrame().commands())
            on = on || command.op == DrawOp::Rectangle;
        shown += on ? '1' : '0';
    }
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '1'), 40);
    EXPECT_NE(shown.find(std::string(20, '1')), std::string::npos) << shown;
    EXPECT_NE(shown.find(std::string(20, '0')), std::string::npos) << shown;
}

} // namespace

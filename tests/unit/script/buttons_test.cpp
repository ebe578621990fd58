#include "tests/unit/script/script_fixture.h"

#include "tgx/controls/radiobutton.h"

namespace {

class ButtonStatements : public ScriptTest {
protected:
    AButton* button(const char* id) { return static_cast<AButton*>(get(id)); }
    std::string radios(const std::string& prefix, int count)
    {
        std::string lines;
        for (int i = 0; i < count; ++i)
            lines += line("RADIOBUTTON", prefix + std::to_string(i), 0, 0, 9, 9, "");
        return lines;
    }
};

TEST_F(ButtonStatements, FormsAndTokenCounts)
{
    const auto button4 = [](auto... more) {
        return line("BUTTON", "B", 0, 0, 50, 20, "", 0, 0, "b.bmp", more...);
    };
    const struct {
        const char* name;
        std::string lines;
        int width, height, delay, frames;
    } rows[] = {
        {"the shortest form takes the window's size", line("BUTTON", "B", 0, 0, 50, 20, ""), 50, 20, 1, 1},
        {"as does a form without frame sizes", button4(), 50, 20, 1, 1},
        {"-1 is the window's size and a delay of 1", button4(-1, -1, -1), 50, 20, 1, 1},
        {"sizes, and a delay of 0", button4(7, 8, 0), 7, 8, 0, 1},
        {"the opening run comes first", button4(7, 8, 3, 4, 2, 1, 1), 7, 8, 3, 4},
        {"without an opening run the normal one", button4(7, 8, 3, 0, 2, 1, 1, 1), 7, 8, 3, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.lines);
        ASSERT_EQ(messages, Messages{});
        EXPECT_EQ(button("B")->getFrameWidth(), row.width);
        EXPECT_EQ(button("B")->getFrameHeight(), row.height);
        EXPECT_EQ(button("B")->getFrameDelay(), row.delay);
        EXPECT_EQ(button("B")->getFrameCount(), row.frames);
        if (row.delay == 1) {
            button("B")->setButtonState(AButton::BS_HOT);
            EXPECT_EQ(button("B")->getFrameDelay(), 1) << "in all states";
        }
    }

    newWindow();
    const std::vector<std::string> wrong = {
        line("BUTTON", "X", 0, 0, 9, 9),
        line("BUTTON", "X", 0, 0, 9, 9, "", 0, 0),
        line("CHECKBOX", "X", 0, 0, 9, 9, "", 0, 0, "b.bmp", 1, 1, 1, 1, 1, 1),
        line("RADIOBUTTON", "X", 0, 0, 9, 9, "", 0, 0, "b.bmp", 1, 1, 1, 1, 1, 1, 1, 1, 1),
        line("TABCONTROL", "X", 0, 0, 9, 9, ""),
        line("EDITBOX", "X", 0, 0, 9, 9, "", 1),
        line("HSCROLLBAR", "X", 0, 0, 9, 9, "", 1),
        line("VSCROLLBAR", "X", 0, 0, 9, 9, "", 1, 1, 1)};
    std::string lines;
    Messages reported;
    for (std::size_t i = 0; i < wrong.size(); ++i) {
        lines += wrong[i];
        reported.push_back(lineError(static_cast<int>(i) + 1, "t.tgx"));
    }
    runScript(lines);
    EXPECT_EQ(messages, reported);
    EXPECT_EQ(tree(), "");
}

TEST_F(ButtonStatements, StateButtonsAcceptOneKindOfTarget)
{
    const std::string tick = line("CHECKBOXSTATE", 1, 2, 3, 4, "t.bmp");
    const std::string dot = line("RADIOSTATE", 1, 2, 3, 4, "t.bmp", 5, 6, 7, 1, 2, 3, 4);
    const auto check = line("CHECKBOX", "C", 0, 0, 9, 9, "");
    const auto radio = line("RADIOBUTTON", "R", 0, 0, 9, 9, "");
    const struct {
        const char* name;
        std::string lines, tree;
        Messages reported;
    } rows[] = {
        {"a check box", check + block(tick), "C(CheckboxState)", {}},
        {"a plain button", line("BUTTON", "B", 0, 0, 9, 9, "") + block(tick), "B(CheckboxState)", {}},
        {"a radio button", radio + block(dot), "R(RadioState)", {}},
        {"a tick in a radio button", radio + block(tick + block(wnd("A"))), "R A", {}},
        {"a dot in a check box", check + block(dot), "C", {}},
        {"in a plain window", wnd("A") + block(tick + dot), "A", {}},
        {"wrong counts",
         check + block(line("CHECKBOXSTATE", 1, 2, 3, 4) + line("RADIOSTATE", 1, 2, 3, 4, "", 5)),
         "C",
         {lineError(3, "t.tgx"), lineError(4, "t.tgx")}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        newWindow();
        runScript(row.lines);
        EXPECT_EQ(tree(), row.tree);
        EXPECT_EQ(messages, row.reported);
    }
}

TEST_F(ButtonStatements, ADisabledRunMayBeLeftOut)
{
    const auto frames = [](auto... values) {
        return line("BUTTON", "B", 0, 0, 9, 9, "") + block(line("BUTTONFRAMES", values...));
    };
    for (const bool isGiven : {true, false}) {
        newWindow();
        runScript(isGiven ? frames(1, 2, 3, 4, 5) : frames(1, 2, 3, 4));
        EXPECT_EQ(messages, Messages{});
        button("B")->setButtonState(AButton::BS_PRESSED);
        EXPECT_EQ(button("B")->getFirstFrame(), 6);
        button("B")->setButtonState(AButton::BS_DISABLED);
        EXPECT_EQ(button("B")->getFirstFrame(), isGiven ? 10 : 6)
            << "without frames the picture does not change";
        EXPECT_EQ(button("B")->getFrameCount(), isGiven ? 5 : 4);
    }
    newWindow();
    runScript(wnd("A") + block(line("BUTTONFRAMES", 1, 2, 3, 4)) + line("BUTTONFPS", 1, 2, 3));
    EXPECT_EQ(messages, (Messages{lineError(3, "t.tgx"), lineError(5, "t.tgx")}))
        << "not a button, and a wrong count";
}

TEST_F(ButtonStatements, AThousandRadioButtonsAreLinkedWithOneAnother)
{
    runScript(radios("R", 1001) + wnd("A") + radios("S", 1));
    EXPECT_EQ(messages, Messages{lineError(1001, "t.tgx")});
    EXPECT_EQ(get("R1000"), nullptr);
    for (const char* id : {"R0", "R500", "R999"}) {
        auto* member = static_cast<ARadioButton*>(get(id));
        EXPECT_EQ(member->getLinkedButtonsCount(0), 1000) << id;
        EXPECT_EQ(member->getLinkedButton(0), member) << id;
    }
    EXPECT_EQ(static_cast<ARadioButton*>(get("R500"))->getLinkedButton(1), get("R499"));
    EXPECT_EQ(static_cast<ARadioButton*>(get("R500"))->getLinkedButton(999), get("R999"));
    delete get("R250");
    EXPECT_EQ(static_cast<ARadioButton*>(get("R0"))->getLinkedButtonsCount(0), 999);
    EXPECT_EQ(static_cast<ARadioButton*>(get("S0"))->getLinkedButtonsCount(0), 1);

    newWindow();
    window->scriptWork = 1'000'000;
    runScript(repeat(10, radios("R", 50) + wnd("A")));
    EXPECT_EQ(messages, Messages{"t.tgx runs too long"}) << "linking buttons counts as work";
}

} // namespace

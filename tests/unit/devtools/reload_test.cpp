// Scripts and pictures that change while a game runs.

#include "devtools/workbench.h"
#include "platform/display/ddwin.h"
#include "platform/host/headless/headless_host.h"
#include "platform/media/image_file.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/button.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>

namespace {

/// Long enough for a check of the files, and for screens to open one after the other.
constexpr const char* aWhile = "frame 40";

class ReloadTest : public TgxTest {
protected:
    ~ReloadTest() override { tools.reset(); }

    /// Saves UIG/name in text form, as an author would. text may be in the form of scriptLines.
    void save(const std::string& text, const std::string& name = "script.tgs")
    {
        write("UIG/" + name, scriptLines(text));
        isNewer("UIG/" + name);
    }
    /// Sets a file time that is a second later than all before, because two quick writes may get the same
    /// time.
    void isNewer(const std::string& name)
    {
        std::filesystem::last_write_time(data / name, time += std::chrono::seconds(1));
    }

    /// Starts with a compiled script and lets the devtools find the text.
    void startWithTools(const std::string& text)
    {
        start("SCREEN 'FIRST' 0 0 640 480 ''");
        tools.emplace(win(), DevToolsOptions{.readsScript = true, .outDirectory = data.string()});
        saveAndWait(text);
    }
    void saveAndWait(const std::string& text)
    {
        save(text);
        play(aWhile);
    }
    std::string faults() const
    {
        std::string all;
        for (const std::string& each : tools->getNotices().getFaults())
            all += each + '\n';
        return all;
    }
    bool hasNotice(const std::string& notice) const
    {
        const std::vector<std::string> notices = tools->getNotices().getNotices();
        return std::find(notices.begin(), notices.end(), notice) != notices.end();
    }
    std::string textOf(const std::string& id) { return wnd(id)->getWindowText(); }
    /// Returns the path of a file in UIG as messages write it, relative if it is below the working directory.
    std::string inUig(const std::string& text) const
    {
        const std::filesystem::path folder = std::filesystem::proximate(data / "UIG");
        return ((*folder.begin() == ".." ? data / "UIG" : folder) / text).string();
    }
    template<class Control>
    Control& control(const std::string& id)
    {
        return *static_cast<Control*>(wnd(id));
    }

    /// What the user has selected in the script "everything" and typed into its popup.
    std::string selections()
    {
        auto& list = control<AListBox>("LOG");
        std::ostringstream all;
        all << "on " << win().getActiveScreen()->getID().str() << " from "
            << win().getActiveScreen()->getCaller().str() << ", ticks "
            << control<AButton>("TICK").getSelected() << control<AButton>("UNTOUCHED").getSelected()
            << ", radio " << control<AButton>("ONE").getSelected() << control<AButton>("TWO").getSelected()
            << ", bar " << control<AScrollBar>("BAR").getPercentage().toInt() << ", " << textOf("GOODS")
            << ' ' << control<AComboBox>("GOODS").getSelectedItem() << ", row " << list.getSelectedItem()
            << ' ' << list.getSelectedColumn() << " from " << list.getFirstVisibleItem() << ", "
            << control<ATabControl>("PAGES").getActiveWnd()->getID().str() << ", "
            << win().getPopupWnd(0)->getID().str() << ' ' << textOf("ANSWER") << ", " << pointer();
        return all.str();
    }

    std::optional<Workbench> tools;

private:
    std::filesystem::file_time_type time = std::filesystem::file_time_type::clock::now();
};

constexpr const char* note = "SCREEN 'MENU' 0 0 640 480 '' { TEXTWND 'NOTE' 10 10 200 20 'before' }";

TEST_F(ReloadTest, ATextReplacesTheCompiledScript)
{
    startWithTools(note);
    EXPECT_EQ(textOf("NOTE"), "before");
    EXPECT_EQ(tools->getOrigins().placeOf(*wnd("NOTE")), inUig("script.tgs:3"));

    saveAndWait("# a line more\nSCREEN \"MENU\" 0 0 640 480 \"\"\nBEGIN\n    TEXTWND \"NOTE\" 10 10 90 20 "
                "\"after\"\nEND\n");
    EXPECT_EQ(textOf("NOTE"), "after");
    EXPECT_EQ(wnd("NOTE")->width(), 90);
    EXPECT_EQ(tools->getOrigins().placeOf(*wnd("NOTE")), inUig("script.tgs:4"));
}

TEST_F(ReloadTest, ATextWithAnErrorDoesNotChangeTheInterface)
{
    startWithTools(note);
    saveAndWait("SCREEN 'MENU' 0 0 640 480 '' { TEXTWMD 'NOTE' 10 10 200 20 'after' }");
    EXPECT_EQ(faults(), inUig("script.tgs:3:1: error: unknown keyword TEXTWMD; did you mean TEXTWND?\n"));
    EXPECT_EQ(textOf("NOTE"), "before");

    saveAndWait(note);
    EXPECT_EQ(faults(), "");
}

TEST_F(ReloadTest, ATextWithAnErrorDoesNotBlockTheOthers)
{
    startWithTools("SCREEN 'MENU' 0 0 640 480 '' { GOTO 'PART' 'part.tgx' }");
    save("SUBROUTINE 'PART'; TEXTWND 'NOTE' 0 0 90 20 'one'", "part.tgs");
    save("BUTTOM\n", "unused.tgs");
    saveAndWait("SCREEN 'MENU' 0 0 640 480 '' { GOTO 'PART' 'part.tgx'; FONT 0 }");
    EXPECT_EQ(textOf("NOTE"), "one");
    EXPECT_EQ(faults(), inUig("unused.tgs:1:1: error: unknown keyword BUTTOM; did you mean BUTTON?\n"));
    save("SUBROUTINE 'PART'; TEXTWMD 'NOTE' 0 0 90 20 'two'", "part.tgs");
    saveAndWait("SCREEN 'MENU' 0 0 640 480 '' { GOTO 'PART' 'part.tgx' }");
    EXPECT_EQ(textOf("NOTE"), "one") << "the last good form of the script";
}

TEST_F(ReloadTest, AnEditorMayEmptyOrReplaceTheFileFirst)
{
    startWithTools("SCREEN 'MENU' 0 0 640 480 '' { EDITBOX 'NAME' 0 0 90 20 '' }");
    control<AEditBox>("NAME").setWindowText("Ann");
    saveAndWait("");
    EXPECT_EQ(textOf("NAME"), "Ann");
    EXPECT_EQ(faults(), inUig("script.tgs: error: there is no statement in it any more\n"));
    std::filesystem::remove(inUig("script.tgs"));
    std::filesystem::remove(inUig("script.tgx"));
    play(aWhile);
    EXPECT_EQ(textOf("NAME"), "Ann");
    EXPECT_EQ(faults(), "the text of script.tgx is gone; the interface stays until it is back\n");
    saveAndWait("SCREEN 'MENU' 0 0 640 480 '' { EDITBOX 'NAME' 0 0 60 20 '' }");
    EXPECT_EQ(textOf("NAME"), "Ann");
    EXPECT_EQ(wnd("NAME")->width(), 60);
    EXPECT_EQ(faults(), "");
}

TEST_F(ReloadTest, AMissingPictureRemainsAFault)
{
    startWithTools("SCREEN 'MENU' 0 0 640 480 '' { BITMAP 'PLATE' 0 0 20 20 'plate.bmp' }");
    EXPECT_EQ(faults(), inUig("script.tgs:3: cannot load plate.bmp\n"));
    bitmap("other.bmp", 20, 20, 0xFF0000);
    isNewer("other.bmp");
    play(aWhile);
    EXPECT_EQ(faults(), inUig("script.tgs:3: cannot load plate.bmp\n"))
        << "the game has not requested that picture";
    bitmap("plate.bmp", 20, 20, 0xFF0000);
    isNewer("plate.bmp");
    play(aWhile);
    EXPECT_EQ(faults(), "");
}

TEST_F(ReloadTest, AMissingFolderOrScriptIsOneFault)
{
    startWithTools("SCREEN \"MENU\" 0 0 640 480 \"\"\nBEGIN\n    BITMAP \"A\" 0 0 9 9 \"art\\\\a.bmp\"\n"
                   "    BITMAP \"B\" 0 0 9 9 \"art\\\\b.bmp\"\n    GOTO \"PART\" \"part.tgx\"\nEND\n");
    EXPECT_EQ(faults(), inUig("script.tgs:5: GOTO failed\n") + inUig("script.tgs:5: no file part.tgx in ") +
                            data.string() + "/UIG\n" + inUig("script.tgs:3: no folder art in ") +
                            data.string() + '\n');
}

TEST_F(ReloadTest, ALineThatFailsIsNamed)
{
    startWithTools("SCREEN 'MENU' 0 0 640 480 '' { BUTTONLOOP 1 1 1 1 }");
    EXPECT_EQ(faults(), inUig("script.tgs:3: BUTTONLOOP does not go with a ScreenSpy\n"));
}

TEST_F(ReloadTest, ALineMayDeleteTheWindowOfItsBlock)
{
    start("SCREEN 'FIRST' 0 0 640 480 ''");
    win().classes["KILLER"] = [this](const CString& id, int x, int y, int w, int h) {
        delete win().getWnd("P", 1);
        return new AWnd(AWnd::WND_PLAIN, id, x, y, w, h);
    };
    tools.emplace(win(), DevToolsOptions{.readsScript = true});
    saveAndWait("SCREEN 'MENU' 0 0 640 480 '' { WINDOW 'P' 0 0 50 50 { USERDEF 'K' 0 0 9 9 'KILLER' } }");
    EXPECT_EQ(win().getWnd("P", 1), nullptr);
    EXPECT_EQ(faults(), inUig("script.tgs:5: USERDEF failed\n"));
}

TEST_F(ReloadTest, AMapGivesTheLinesOfACompiledScript)
{
    start("SCREEN 'MENU' 0 0 640 480 '' { TEXTWND 'NOTE' 10 10 200 20 'x' }");
    write("UIG/script.tgx.map", "0 7 menu.tgs\n22 8 menu.tgs\n24 12 parts/notes.tgs\n47 9 menu.tgs\n");
    isNewer("UIG/script.tgx.map");
    tools.emplace(win(), DevToolsOptions{.readsScript = true});
    script("SCREEN 'MENU' 0 0 640 480 '' { TEXTWND 'NOTE' 10 10 200 20 'again' }");
    isNewer("UIG/script.tgx");
    write("UIG/script.tgx.map", "0 7 menu.tgs\n22 8 menu.tgs\n24 12 parts/notes.tgs\n47 9 menu.tgs\n");
    isNewer("UIG/script.tgx.map");
    play(aWhile);
    EXPECT_EQ(textOf("NOTE"), "again");
    EXPECT_EQ(tools->getOrigins().placeOf(*wnd("MENU")), "menu.tgs:7");
    EXPECT_EQ(tools->getOrigins().placeOf(*wnd("NOTE")), "parts/notes.tgs:12");

    script("SCREEN 'MENU' 0 0 640 480 '' { TEXTWND 'NOTE' 10 10 200 20 'once more' }");
    isNewer("UIG/script.tgx");
    play(aWhile);
    EXPECT_EQ(tools->getOrigins().placeOf(*wnd("MENU")), "script.tgx, byte 0")
        << "the map is older than the script";
}

TEST_F(ReloadTest, AChangedPictureIsReloaded)
{
    bitmap("plate.bmp", 20, 20, 0xFF0000);
    isNewer("plate.bmp");
    startWithTools("SCREEN 'MENU' 0 0 640 480 '' { BITMAP 'PLATE' 0 0 20 20 'plate.bmp' }");
    EXPECT_EQ(win().getScreenImage().row(5)[5] & 0xFFFFFF, 0xFF0000u);
    bitmap("plate.bmp", 20, 20, 0x00FF00);
    isNewer("plate.bmp");
    play(aWhile);
    EXPECT_EQ(win().getScreenImage().row(5)[5] & 0xFFFFFF, 0x00FF00u);
}

constexpr const char* everything = R"(SCREEN 'MENU' 0 0 640 480 '' { TEXTWND 'TITLE' 0 0 100 20 'Menu' }
    SCREEN 'FORM' 0 0 640 480 '' {
      CHECKBOX 'TICK' 0 0 50 20 'Tick'; CHECKBOX 'UNTOUCHED' 0 20 50 20 'Tock'
      RADIOBUTTON 'ONE' 60 0 50 20 'One'; RADIOBUTTON 'TWO' 60 20 50 20 'Two'; TEXTWND 'BREAK' 0 0 1 1 ''
      EDITBOX 'NAME' 0 50 100 20 'nobody'; EDITBOX 'HOME' 0 70 100 20 'nowhere'
      VSCROLLBAR 'BAR' 120 0 10 100 '' 10 10
      COMBOBOX 'GOODS' 0 100 100 20 '' { ITEM 'tea'; ITEM 'salt'; ITEM 'rum' }
      LISTBOX 'LOG' 200 0 100 60 {
        COLUMNS 80; LISTLOOK 20; ITEM 'a'; ITEM 'b'; ITEM 'c'; ITEM 'd'; ITEM 'e'; ITEM 'f'; ITEM 'g'
      }
      TABCONTROL 'PAGES' 320 0 200 200 {
        RADIOBUTTON 'TAB1' 0 0 50 20 '1'; RADIOBUTTON 'TAB2' 50 0 50 20 '2'; WINDOW 'PAGE1' 0 20 200 180
        WINDOW 'PAGE2' 0 20 200 180
      }
    }
    WINDOW 'ASK' 0 0 100 100 { VISIBLE 0; EDITBOX 'ANSWER' 0 0 80 20 '' })";

TEST_F(ReloadTest, SelectionsAndTypedTextAreRestored)
{
    startWithTools(everything);
    play("change FORM", "frame 10");
    ASSERT_STREQ(win().getActiveScreen()->getID(), "FORM");
    control<AButton>("TICK").setSelected(1);
    control<ARadioButton>("TWO").setSelectedButton(&control<ARadioButton>("TWO"));
    control<AEditBox>("NAME").setWindowText("Ann");
    control<AScrollBar>("BAR").setPercentage(ZnFixed::fromInt(40));
    control<AComboBox>("GOODS").setSelectedItem(2);
    control<AListBox>("LOG").setSelectedItem(5);
    control<AListBox>("LOG").setSelectedColumn(0);
    control<AListBox>("LOG").scrollTo(ZnFixed::fromInt(100));
    control<ATabControl>("PAGES").setActiveWnd(&control<AButton>("TAB2"), 0);
    win().setMousePos(77, 88, 1);
    win().setPopupWnd("ASK", win().getActiveScreen(), 0, "script.tgx");
    play("frame");
    control<AEditBox>("ANSWER").setWindowText("yes");
    win().setMousePos(77, 88, 1);
    const char* const state =
        "on FORM from MENU, ticks 10, radio 01, bar 40, rum 2, row 5 0 from 4, PAGE2, ASK yes, 77 88";
    ASSERT_EQ(selections(), state);

    std::string changed = everything;
    changed.replace(changed.find("nowhere"), 7, "harbour");
    changed.replace(changed.find("nobody"), 6, "anyone");
    saveAndWait(changed);

    EXPECT_EQ(selections(), state);
    EXPECT_EQ(textOf("NAME"), "Ann") << "typed text takes precedence over the new script";
    EXPECT_EQ(textOf("HOME"), "harbour") << "nothing was typed here";
}

TEST_F(ReloadTest, SuspendedScreensKeepTypedTextToo)
{
    startWithTools(everything);
    play("change FORM", "frame 10");
    control<AEditBox>("NAME").setWindowText("Ann");
    play("change MENU", "frame 10");
    std::string changed = everything;
    changed.replace(changed.find("nowhere"), 7, "harbour");
    saveAndWait(changed);
    EXPECT_STREQ(win().getActiveScreen()->getID(), "MENU");
    EXPECT_EQ(textOf("NAME"), "Ann");
}

TEST_F(ReloadTest, AScreenThatNoLongerExistsIsReported)
{
    startWithTools(everything);
    play("change FORM", "frame 10");
    saveAndWait(note);
    EXPECT_TRUE(hasNotice("the screen FORM could not be opened again"));
    EXPECT_STREQ(win().getActiveScreen()->getID(), "MENU");
    EXPECT_EQ(textOf("NOTE"), "before");
}

TEST_F(ReloadTest, FontsAreReplacedAndNotAppended)
{
    startWithTools("ADDFONT 'none.ttf' '' 20\n" + std::string(note));
    EXPECT_EQ(win().getFontCount(), 2);
    saveAndWait("ADDFONT 'none.ttf' '' 24\n" + std::string(note));
    EXPECT_EQ(win().getFontCount(), 2);
}

TEST_F(ReloadTest, TheKeysOfTheDevtoolsDoNotReachTheGame)
{
    startWithTools(note);
    const ImageRef screen = copyImage(win().getScreenImage());
    bool reachedGame = false;
    win().duringFrame = [&] { reachedGame = reachedGame || (win().keyCode != 0 && win().keyCode != 'A'); };
    for (const int key : std::initializer_list<int>{VK_F12, VK_F10, VK_F9, 'A', VK_F9, VK_F11}) {
        getPlayer().getHost().input().key(static_cast<std::uint8_t>(key), key == 'A' ? 'a' : '\0');
        play("frame 2");
    }
    EXPECT_FALSE(reachedGame);
    const ImageRef picture = loadImageFile("picture-1.png");
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, screen->width);
    for (int y = 0; y < picture->height; ++y)
        for (int x = 0; x < picture->width; ++x)
            ASSERT_EQ(picture->row(y)[x], screen->row(y)[x])
                << "the inspector is not in the picture: " << x << ", " << y;
    const std::string events = fileContents(data / "recording-1.events");
    EXPECT_NE(events.find("\nkey a\n"), std::string::npos) << events;
    EXPECT_EQ(win().fullScreen, 0) << "it began in full screen";
    tools.reset();
    EXPECT_EQ(win().fullScreen, 1) << "the game's own setting is restored";
}

TEST_F(ReloadTest, TheListOfScreensOpensAScreenOfAnyScript)
{
    save("SCREEN 'CELLAR' 0 0 640 480 ''", "cellar.tgs");
    startWithTools("SCREEN 'HALL' 0 0 640 480 ''; SCREEN 'LOFT' 0 0 640 480 ''; WINDOW 'NOTE' 0 0 9 9");
    const struct {
        const char* name;
        std::vector<int> keys;
        const char* screen;
    } rows[] = {
        {"the list begins on the active screen", {VK_F8, VK_RETURN}, "HALL"},
        {"the next screen of the same script", {VK_F8, VK_DOWN, VK_RETURN}, "LOFT"},
        {"a screen of another script, which has not been read yet", {VK_F8, VK_END, VK_RETURN}, "CELLAR"},
        {"the first letter of a name", {VK_F8, 'L', VK_RETURN}, "LOFT"},
        {"a letter with which no name begins", {VK_F8, 'X', VK_HOME, VK_RETURN}, "HALL"},
        {"closed without a selection", {VK_F8, VK_DOWN, VK_ESCAPE}, "HALL"},
    };
    bool reachedGame = false;
    win().duringFrame = [&] { reachedGame = reachedGame || win().keyCode != 0; };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const int key : row.keys)
            getPlayer().getHost().input().key(static_cast<std::uint8_t>(key), '\0');
        play(aWhile);
        ASSERT_TRUE(win().getActiveScreen());
        EXPECT_STREQ(win().getActiveScreen()->getID(), row.screen);
    }
    EXPECT_FALSE(reachedGame) << "keys only go to the open list";
}

} // namespace

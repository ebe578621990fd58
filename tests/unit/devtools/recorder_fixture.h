#pragma once

#include "devtools/recorder.h"
#include "platform/host/headless/headless_host.h"
#include "platform/system/clock.h"
#include "player/reports.h"
#include "tests/unit/support/input_words.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"

/// A host that passes each tick to a recorder.
class ListeningHost : public HeadlessHost {
public:
    void tickBegins(ddwin&, bool takesInput) override
    {
        if (recorder)
            recorder->tickBegins(input(), takesInput);
    }
    std::optional<Recorder> recorder;
};

/// The result of a run: clicks in order, and the tree without the pointer's position.
struct Outcome {
    std::vector<std::string> clicks;
    std::vector<std::string> popupClicks;
    std::string tree;
    bool operator==(const Outcome&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
{
    for (const std::string& id : outcome.clicks)
        out << id << ' ';
    out << '|';
    for (const std::string& id : outcome.popupClicks)
        out << ' ' << id;
    return out << '\n' << outcome.tree;
}

/// A simulated user uses an interface while a recorder runs; the recording is then played on a fresh
/// interface.
class RecorderTest : public TgxTest {
protected:
    RecorderTest()
    {
        options.frameMs = 17;
        strip("UIG/scroll1.bmp", 16, 16, 6);
        script(R"(SCREEN 'MENU' 0 0 640 480 '' {
              WINDOW 'PANEL' 10 10 200 200 {
                BUTTON 'OK' 10 10 101 50 ''; BUTTON 'OPEN' 10 70 100 50 ''
                BUTTON 'TWO WORDS' 10 130 100 50 ''
              }
              BUTTON 'GO' 220 10 60 30 ''; BUTTON '' 220 50 60 30 ''; BUTTON 'TWIN' 220 90 60 30 ''
              BUTTON 'TWIN' 220 130 60 30 ''; EDITBOX 'NAME' 300 100 200 20 '' 0 0
              LISTBOX 'LIST' 300 200 200 120 { COLUMNS 50 LEFT 80 LEFT; TITLES 'a' 'b' }
              COMBOBOX 'PORT' 300 20 120 24 ''; BUTTON 'COVERED' 580 20 60 30 ''
              BUTTON 'HALF' 300 440 100 30 ''; WINDOW 'LID' 340 430 20 40; BUTTON 'SHADE' 590 0 40 100 ''
            }
            SCREEN 'CHART' 0 0 640 480 '' {
              BUTTON 'OK' 400 400 100 50 ''; EDITBOX 'NAME' 10 300 200 20 '' 0 0
            }
            WINDOW 'QUERY' 100 300 200 100 { BUTTON 'TGX_YES' 10 10 100 50 '' })");
        begin();
    }
    ~RecorderTest() override { stopListening(); }

    void begin()
    {
        start();
        auto* list = static_cast<AListBox*>(wnd("LIST"));
        for (int i = 0; i < 9; ++i)
            list->setItemData(list->addItem(), 0, i);
        list->setRowHeight(20);
        list->createScrollBar();
        wnd("MENU")->addChildWindow(new AScrollBar("BAR", 520, 200, 16, 200));
        for (const char* port : {"Elbow", "Farsund", "Gjoa"})
            static_cast<AComboBox*>(wnd("PORT"))->addItem(port);
        for (int i = 0; i < win().getFontCount(); ++i)
            measureFont(i);
        wnd("SHADE")->setVisible(0);
        answered = 0;
        win().duringFrame = [this] { answerClicks(); };
    }
    /// The game's reactions to clicks.
    void answerClicks()
    {
        for (; answered < win().clicks.size(); ++answered) {
            if (win().clicks[answered] == "OPEN")
                win().setPopupWnd(CString("QUERY"), win().getActiveScreen(), mainScriptResource,
                                  "script.tgx");
            if (win().clicks[answered] == "COVERED")
                wnd("SHADE")->setVisible(1);
            if (win().clicks[answered] == "GO")
                win().changeScreen("CHART", 0, 0, "");
        }
    }

    /// Begins to record at the present state.
    void record()
    {
        auto made = std::make_unique<ListeningHost>();
        listening = made.get();
        host = displayhost::use(std::move(made));
        listening->recorder.emplace(win(), "# recorded");
        win().clicks.clear();
        answered = 0;
    }
    void stopListening()
    {
        if (listening)
            displayhost::use(std::move(host));
        listening = nullptr;
    }

    /// Carries out the user's actions, separated by ";": input in words, or a number of ticks to wait.
    void doAsUser(const std::string& actions)
    {
        for (const std::string& action : parts(actions, ';'))
            if (!action.empty() && !queueInput(listening->input(), action))
                pass(std::stoi(action));
    }
    void pass(int ticks)
    {
        for (; ticks > 0; --ticks) {
            win().runTick();
            advanceVirtualTime(17);
            if (ticks % ticksPerFrame == 0)
                win().runFrame();
        }
    }

    std::string events() { return listening->recorder->events(); }
    /// Returns the lines after the heading and the opening.
    std::string lines()
    {
        const std::string text = events();
        const std::string_view opening = "frame 60\n";
        return text.substr(text.find(opening) + opening.size());
    }
    Outcome outcome()
    {
        std::string tree = treeReport(win());
        const std::size_t from = tree.find("\"pointer\"");
        return {win().clicks, win().popupClicks, tree.erase(from, tree.find("\"root\"") - from)};
    }
    /// Returns what a user can see of the state.
    std::string values()
    {
        std::string all;
        for (const std::string& id : win().clicks)
            all += id + ' ';
        const auto* list = static_cast<AListBox*>(wnd("LIST"));
        all += "| list " + std::to_string(list->getSelectedItem()) + ' ' +
               std::to_string(list->getSelectedColumn()) + " from " +
               std::to_string(list->getFirstVisibleItem());
        all += " bar " + std::to_string(static_cast<AScrollBar*>(wnd("BAR"))->getPercentage().raw);
        all += " port " + wnd("PORT")->getText().str() + " name " + wnd("NAME")->getText().str();
        all += " on " + win().getActiveScreen()->getID().str();
        return all + (win().getPopupWnd(0) ? " in " + win().getPopupWnd(0)->getID().str() : "");
    }
    /// Plays the recording on a fresh interface and returns the outcome.
    Outcome playBack()
    {
        const std::string text = events();
        stopListening();
        begin();
        std::istringstream all(text);
        for (std::string line; std::getline(all, line);)
            play(line);
        return outcome();
    }

    std::unique_ptr<displayhost> host; // the player's
    ListeningHost* listening = nullptr;
    std::size_t answered = 0;
    int ticksPerFrame = 1;
};

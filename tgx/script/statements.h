#pragma once

#include "tgx/controls/combobox.h"
#include "tgx/controls/graph.h"
#include "tgx/script/script_stage.h"
#include "tgx/script/vocabulary.h"
#include "tgx/wnd/window_cast.h"

#include <type_traits>

class ScriptRun;

/// A line and its context, as passed to a handler.
struct ScriptLine {
    tgx::ScriptStage& window;
    ScriptRun& run;
    CFile* stream;            // the line's stream, used only to search for subroutines
    const TOKEN_INFO* tokens; // entries after the line's end are 0 and empty
    int count;
    AWnd* current; // window of the block; null at the top level of a script
    int depth;
    CArray<CFile*, CFile*>& gotoFiles;

    int number(int token) const { return tokens[token].value; }
    const CString& text(int token) const { return tokens[token].text; }
};

/// Makes a table entry from a handler. A handler is one of
///     void f(Target&, const ScriptLine&)     cannot fail
///     bool f(Target&, const ScriptLine&)     false: the line fails
///     AWnd* f(AWnd& target, const ScriptLine&)   the window that it made; null: the line fails
///     bool f(const ScriptLine&)              a command, which has no target
/// The row's target rule has checked the window's type; a line for a window of another class fails.
template<auto handler>
struct HandlerOf;

template<class Target, class Result, Result (*handler)(Target&, const ScriptLine&)>
struct HandlerOf<handler> {
    static bool run(AWnd& target, const ScriptLine& line, AWnd*& made)
    {
        if constexpr (std::is_same_v<Target, AWnd>) {
            return runOn(target, line, made);
        } else {
            // The row has checked the window's type, but a game's class may use any type.
            auto* typed = windowAs<Target>(&target);
            return typed && runOn(*typed, line, made);
        }
    }
    static bool runOn(Target& target, const ScriptLine& line, AWnd*& made)
    {
        if constexpr (std::is_void_v<Result>) {
            handler(target, line);
            return true;
        } else if constexpr (std::is_same_v<Result, bool>) {
            return handler(target, line);
        } else {
            made = handler(target, line);
            return made != nullptr;
        }
    }
};

template<bool (*handler)(const ScriptLine&)>
struct HandlerOf<handler> {
    static bool run(AWnd&, const ScriptLine& line, AWnd*&) { return handler(line); }
};

template<auto handler>
constexpr StatementHandler on = &HandlerOf<handler>::run;

// Commands (commands.cpp).
bool addFont(const ScriptLine& line);
bool goTo(const ScriptLine& line);

// Windows (windows.cpp).
AWnd* bitmap(AWnd& target, const ScriptLine& line);
AWnd* pointer(AWnd& target, const ScriptLine& line);
AWnd* screen(AWnd& target, const ScriptLine& line);
AWnd* textWnd(AWnd& target, const ScriptLine& line);
AWnd* userDef(AWnd& target, const ScriptLine& line);
AWnd* window(AWnd& target, const ScriptLine& line);

// Attributes of any window (attributes.cpp).
void bmpFile(AWnd& target, const ScriptLine& line);
void bmpFrame(AWnd& target, const ScriptLine& line);
void bmpInfo(AWnd& target, const ScriptLine& line);
void bmpOffset(AWnd& target, const ScriptLine& line);
void bmpSource(AWnd& target, const ScriptLine& line);
void bmpStretch(AWnd& target, const ScriptLine& line);
void bmpTile(AWnd& target, const ScriptLine& line);
void bmpBlitMode(AWnd& target, const ScriptLine& line);
void border(AWnd& target, const ScriptLine& line);
void easyClose(AWnd& target, const ScriptLine& line);
void enabled(AWnd& target, const ScriptLine& line);
bool font(AWnd& target, const ScriptLine& line);
void justify(AWnd& target, const ScriptLine& line);
bool tabList1(AWnd& target, const ScriptLine& line);
bool tabList2(AWnd& target, const ScriptLine& line);
bool tabOrder(AWnd& target, const ScriptLine& line);
void text(AWnd& target, const ScriptLine& line);
void textCentreV(AWnd& target, const ScriptLine& line);
void textOffset(AWnd& target, const ScriptLine& line);
void textRaw(AWnd& target, const ScriptLine& line);
void textWrap(AWnd& target, const ScriptLine& line);
void visible(AWnd& target, const ScriptLine& line);
void wndPos(AWnd& target, const ScriptLine& line);

// Forms shared by statements of several families: the tokens after id and box.
/// Adds a control with the line's id and box to target and returns it.
template<class Control>
Control* addControl(AWnd& target, const ScriptLine& line)
{
    auto* made = new Control(line.text(1), line.number(2), line.number(3), line.number(4), line.number(5));
    target.addChildWindow(made);
    return made;
}
void applyTextForm(AWnd& wnd, const ScriptLine& line);
void applyBarForm(AWnd& bar, const ScriptLine& line);
/// Stores the justification that token names. Returns false if it names none.
bool justificationOf(const TOKEN_INFO& token, AWnd::E_TEXTJUSTIFY& justify);

// Buttons, combo boxes, tabs, edit boxes and scroll bars (buttons.cpp).
AWnd* button(AWnd& target, const ScriptLine& line);
AWnd* checkBox(AWnd& target, const ScriptLine& line);
AWnd* checkBoxState(AWnd& target, const ScriptLine& line);
AWnd* editBox(AWnd& target, const ScriptLine& line);
AWnd* hScrollBar(AWnd& target, const ScriptLine& line);
AWnd* radioButton(AWnd& target, const ScriptLine& line);
AWnd* radioState(AWnd& target, const ScriptLine& line);
AWnd* tabControl(AWnd& target, const ScriptLine& line);
AWnd* vScrollBar(AWnd& target, const ScriptLine& line);
AWnd* comboBox(AWnd& target, const ScriptLine& line);
AWnd* comboMenu(AWnd& target, const ScriptLine& line);
AWnd* comboNext(AWnd& target, const ScriptLine& line);
AWnd* comboPrev(AWnd& target, const ScriptLine& line);
void comboBelow(AComboBox& target, const ScriptLine& line);
void comboDrops(AComboBox& target, const ScriptLine& line);
void comboWrap(AComboBox& target, const ScriptLine& line);
void buttonCheck(AButton& target, const ScriptLine& line);
void buttonFps(AButton& target, const ScriptLine& line);
void buttonFrames(AButton& target, const ScriptLine& line);
void buttonLoop(AButton& target, const ScriptLine& line);
void buttonTextShift(AButton& target, const ScriptLine& line);

// Progress bars, vidiprinters and graphs (displays.cpp).
AWnd* graphWnd(AWnd& target, const ScriptLine& line);
AWnd* lineGraph(AWnd& target, const ScriptLine& line);
AWnd* progressBar(AWnd& target, const ScriptLine& line);
AWnd* vidiPrinter(AWnd& target, const ScriptLine& line);
AWnd* vProgressBar(AWnd& target, const ScriptLine& line);
void graphInfo(AGraph& target, const ScriptLine& line);

// List boxes, keyboards, and the items of combo boxes (lists.cpp).
AWnd* keyboard(AWnd& target, const ScriptLine& line);
AWnd* listBox(AWnd& target, const ScriptLine& line);
bool item(AWnd& target, const ScriptLine& line);
void columns(AListBox& list, const ScriptLine& line);
void listFixedColumns(AListBox& list, const ScriptLine& line);
void listFixedRows(AListBox& list, const ScriptLine& line);
bool listFonts(AListBox& list, const ScriptLine& line);
void listHighlight(AListBox& list, const ScriptLine& line);
void listIcons(AListBox& list, const ScriptLine& line);
void listLook(AListBox& list, const ScriptLine& line);
void listOptions(AListBox& list, const ScriptLine& line);
void scrollBarInfo(AListBox& list, const ScriptLine& line);
void titleBmp(AListBox& list, const ScriptLine& line);
void titles(AListBox& list, const ScriptLine& line);

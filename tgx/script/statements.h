#pragma once

#include "tgx/controls/button.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/vocabulary.h"

#include <type_traits>

/// A line on its way through the interpreter: what a handler sees.
struct ScriptLine {
    AMainWin& window;
    ScriptRun& run;
    CFile* stream;            // the line's; only the search for subroutines asks
    const TOKEN_INFO* tokens; // those behind the line's end read as 0 and empty
    int count;
    AWnd* current; // the window of the block; null at the top of a script
    int depth;
    CArray<CFile*, CFile*>& gotoFiles;

    int number(int token) const { return tokens[token].value; }
    const CString& text(int token) const { return tokens[token].text; }
};

/// Makes a table entry of a handler. A handler is one of
///     void f(Target&, const ScriptLine&)     cannot fail
///     bool f(Target&, const ScriptLine&)     false: the line fails
///     AWnd* f(AWnd& target, const ScriptLine&)   the window that it made; null: the line fails
///     bool f(const ScriptLine&)              a command, which has no target
/// where the row's target rule has made sure that the window is a Target.
template<auto handler>
struct HandlerOf;

template<class Target, class Result, Result (*handler)(Target&, const ScriptLine&)>
struct HandlerOf<handler> {
    static bool run(AWnd& target, const ScriptLine& line, AWnd*& made)
    {
        auto& typed = static_cast<Target&>(target);
        if constexpr (std::is_void_v<Result>) {
            handler(typed, line);
            return true;
        } else if constexpr (std::is_same_v<Result, bool>) {
            return handler(typed, line);
        } else {
            made = handler(typed, line);
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

// Forms that statements of several families share: what stands behind id and box.
void applyTextForm(AWnd& wnd, const ScriptLine& line);
void applyBarForm(AWnd& bar, const ScriptLine& line);

// Buttons, tabs, edit boxes and scroll bars (buttons.cpp).
AWnd* button(AWnd& target, const ScriptLine& line);
AWnd* checkBox(AWnd& target, const ScriptLine& line);
AWnd* checkBoxState(AWnd& target, const ScriptLine& line);
AWnd* editBox(AWnd& target, const ScriptLine& line);
AWnd* hScrollBar(AWnd& target, const ScriptLine& line);
AWnd* radioButton(AWnd& target, const ScriptLine& line);
AWnd* radioState(AWnd& target, const ScriptLine& line);
AWnd* tabControl(AWnd& target, const ScriptLine& line);
AWnd* vScrollBar(AWnd& target, const ScriptLine& line);
void buttonCheck(AButton& target, const ScriptLine& line);
void buttonFps(AButton& target, const ScriptLine& line);
void buttonFrames(AButton& target, const ScriptLine& line);
void buttonLoop(AButton& target, const ScriptLine& line);
void buttonTextShift(AButton& target, const ScriptLine& line);

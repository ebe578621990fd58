#pragma once

#include "demo/game.h"

class AGraph;
class AProgressBar;

/// The level of something that fills and empties, in thousandths. It approaches the wanted level, fast at
/// first.
struct Level {
    int now = 0;
    int wanted = 0;

    void follow(int ticks);
};

/// The market: prices as lines and bars, the stock in the warehouse and in the oil tanks, the news from the
/// telegraph, and the new ship, whose name the user types on an on-screen keyboard.
class MarketScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void draw(int frameStep) override;
    /// Called after a selection in the combo box.
    void update() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    static constexpr int goodsCount = 4;
    static constexpr int tankCount = 4;

    void fillLines();
    void fillBars();
    void click(const CString& subject);
    void unload();
    void sendOut();
    void turnValves();
    /// Sells some of the next kind of goods, each kind in turn.
    void sell();
    /// Advances levels and news by that many ticks.
    void advance(int ticks);
    void showLevel(const char* bar, const char* value, const Level& level, int most, const char* unit);
    void print(const CString& news);
    void openNaming();
    void endNaming();
    AGraph& graph(const char* name);

    int year = 0;
    int goods = 0; // the kind whose prices the bars show
    Level stock[goodsCount];
    Level tanks[tankCount];
    bool valvesOpen = false;
    int ticksToSale = 0;
    int nextSale = 0;
    int ticksToNews = 0;
    int nextNews = 0;
    CString shipName;      // as painted on the stern
    bool naming = false;   // the keyboard is open
    bool nameKept = false; // closing the keyboard keeps the new name
};

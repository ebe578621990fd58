#pragma once

#include "demo/game.h"

class AGraph;
class AProgressBar;

/// Something that fills and empties, in thousandths. It follows what is wanted of it, fast at first.
struct Level {
    int now = 0;
    int wanted = 0;

    void follow(int ticks);
};

/// The market: prices as lines and bars, what lies in the warehouse and in the oil tanks, the news as it
/// comes over the wire, and the new ship, who gets her name on a keyboard of its own.
class MarketScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void draw(int frameStep) override;
    /// After a choice in the combo box.
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
    /// A good goes over the counter, each in its turn.
    void sell();
    /// Levels and news go on by so many ticks.
    void goOn(int ticks);
    void showLevel(const char* bar, const char* value, const Level& level, int most, const char* unit);
    void print(const CString& news);
    void openNaming();
    void endNaming();
    AGraph& graph(const char* name);

    int year = 0;
    int goods = 0; // whose prices the bars show
    Level stock[goodsCount];
    Level tanks[tankCount];
    bool valvesOpen = false;
    int ticksToSale = 0;
    int nextSale = 0;
    int ticksToNews = 0;
    int nextNews = 0;
    CString shipName;    // as it is painted on the stern
    bool naming = false; // the keyboard is open
    bool nameKept = false;
};

#include "demo/market.h"

#include "demo/palette.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/graph.h"
#include "tgx/controls/keyboard.h"
#include "tgx/controls/progressbar.h"
#include "tgx/controls/vidiprinter.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr int months = 12;
constexpr int years = 2;
constexpr int fullLevel = 1000;

const struct Goods {
    const char* name;
    std::uint32_t colour;
    const char* bar;         // progress bar in the warehouse
    const char* tons;        // window that shows the tons
    int stock;               // initial stock, thousandths
    int newYear[years];      // price at the start of the year, crowns per ton
    int rise[years][months]; // price above that at the end of each month
} market[] = {
    {"Coal",
     palette::cream,
     "STOCK_COAL",
     "COAL_TONS",
     720,
     {14, 12},
     {{1, 2, 2, 4, 6, 5, 4, 6, 9, 12, 11, 8}, {2, 5, 7, 9, 8, 6, 4, 3, 5, 9, 14, 16}}},
    {"Slate",
     palette::lagoon,
     "STOCK_SLATE",
     "SLATE_TONS",
     460,
     {22, 20},
     {{0, 1, 3, 6, 8, 11, 13, 12, 10, 7, 6, 5}, {1, 2, 2, 4, 5, 7, 8, 10, 9, 8, 8, 9}}},
    {"Wool",
     palette::amber,
     "STOCK_WOOL",
     "WOOL_TONS",
     310,
     {46, 41},
     {{2, 3, 5, 9, 14, 18, 22, 20, 16, 15, 17, 19}, {0, 2, 4, 5, 9, 12, 11, 8, 6, 9, 12, 15}}},
    {"Herring",
     palette::rose,
     "STOCK_HERRING",
     "HERRING_TONS",
     880,
     {9, 8},
     {{3, 8, 13, 17, 24, 30, 27, 19, 12, 10, 14, 22}, {5, 9, 6, 11, 16, 21, 28, 24, 17, 9, 8, 11}}},
};

/// A remark at a month of a line: a word, or a mark: "|" for ice in the Sound, "^" for an auction.
constexpr struct Remark {
    int year, goods, month;
    const char* text;
} remarks[] = {
    {0, 0, 2, "|"},    {0, 3, 1, "|"},    {0, 0, 9, "strike"}, {0, 1, 6, "mole"}, {0, 1, 9, "^"},
    {0, 2, 6, "fair"}, {0, 2, 10, "^"},   {0, 3, 5, "gale"},   {1, 0, 1, "|"},    {1, 3, 2, "|"},
    {1, 2, 5, "fair"}, {1, 3, 6, "calm"}, {1, 1, 7, "^"},      {1, 2, 8, "^"},    {1, 0, 11, "frost"},
};

constexpr struct Tank {
    const char* bar;
    const char* value;
    int pumped; // level after pumping, thousandths
} oil[] = {
    {"TANK_1", "TANK_1_NOW", 960},
    {"TANK_2", "TANK_2_NOW", 740},
    {"TANK_3", "TANK_3_NOW", 420},
    {"TANK_4", "TANK_4_NOW", 160},
};

constexpr int warehouseTons = 400;
constexpr int lighterLoad = 150, cartLoad = 120, sale = 30; // thousandths
constexpr int ticksPerSale = 150;
constexpr int ticksPerNews = 120;
constexpr int longestName = 12;

constexpr const char* news[] = {
    "Wool firm at the Quill Haven sales. The sheep were not asked.",
    "Herring easier after a quiet night off Farholm; the cats of that island report no shortage.",
    "North Sound: ice to the second beacon. Timber ships wait outside and play cards.",
    "Slate wanted for the new mole, any size, as long as it is flat.",
    "Coal steady. The strike at Gullane is over; the men have asked for shorter shovels, and got them.",
    "Glass 1009 and falling. Those who have washing out know what to do.",
    "St Brannoc: the second piano has been heard, and answered.",
};

/// Converts 0xRRGGBB to red in the low byte, as graphs and getcol expect.
unsigned redLow(std::uint32_t rgb)
{
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

/// Blends percent of the colour over the dark of a panel.
std::uint32_t dimmed(std::uint32_t rgb, int percent)
{
    std::uint32_t result = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int colour = static_cast<int>(rgb >> shift & 0xFF);
        const int ground = static_cast<int>(palette::night >> shift & 0xFF);
        result |= static_cast<std::uint32_t>(ground + (colour - ground) * percent / 100) << shift;
    }
    return result;
}

const char* remarkAt(int year, int goods, int month)
{
    for (const Remark& remark : remarks)
        if (remark.year == year && remark.goods == goods && remark.month == month)
            return remark.text;
    return "";
}

} // namespace

void Level::follow(int ticks)
{
    constexpr int share = 12, least = 2;
    for (; ticks > 0 && now != wanted; --ticks) {
        const int left = wanted - now;
        const int step = std::max(std::abs(left) / share, least);
        now = std::abs(left) <= step ? wanted : now + (left > 0 ? step : -step);
    }
}

AGraph& MarketScreen::graph(const char* name)
{
    return part<AGraph>(name);
}

void MarketScreen::startup()
{
    HarbourScreen::startup();
    for (const char* name : {"LINES", "BARS"}) {
        graph(name).setGridColour(redLow(dimmed(palette::slate, 55)));
        graph(name).setAxisColour(redLow(palette::brass));
    }
    for (int i = 0; i < goodsCount; ++i) {
        graph("LINES").setLineColour(i, redLow(market[i].colour));
        stock[i] = {0, market[i].stock};
    }
    for (int i = 0; i < tankCount; ++i)
        tanks[i] = {0, oil[i].pumped};
    fillLines();
    fillBars();
    ticksToSale = ticksPerSale;
    shipName = getWnd("PLATE", 1)->getWindowText();
}

void MarketScreen::fillLines()
{
    AGraph& lines = graph("LINES");
    lines.removeAll(1);
    for (int i = 0; i < goodsCount; ++i)
        for (int month = 0; month < months; ++month)
            lines.addData(market[i].rise[year][month], CString(remarkAt(year, i, month)), 0, i);
}

/// The dearest month is shown in the full colour of the goods, the others dimmed.
void MarketScreen::fillBars()
{
    AGraph& bars = graph("BARS");
    const Goods& shown = market[goods];
    const auto& rise = shown.rise[year];
    const int dearest = *std::max_element(std::begin(rise), std::end(rise));
    bars.removeAll(1);
    for (const int each : rise) {
        const int price = shown.newYear[year] + each;
        const std::uint32_t colour = dimmed(shown.colour, each == dearest ? 100 : 58);
        bars.addData(price, CString(std::to_string(price)), getMainWin()->getcol(redLow(colour)), 0);
    }
    showText("BARS_OF", year == 0 ? "crowns in 1882" : "crowns in 1881");
}

void MarketScreen::draw(int frameStep)
{
    if (naming)
        endNaming();
    advance(frameStep);
    HarbourScreen::draw(frameStep);
}

void MarketScreen::advance(int ticks)
{
    ticksToSale -= ticks;
    if (ticksToSale <= 0) {
        ticksToSale = ticksPerSale;
        sell();
    }
    ticksToNews -= ticks;
    if (ticksToNews <= 0) {
        print(news[nextNews]);
        nextNews = (nextNews + 1) % static_cast<int>(std::size(news));
    }
    for (int i = 0; i < goodsCount; ++i) {
        stock[i].follow(ticks);
        showLevel(market[i].bar, market[i].tons, stock[i], warehouseTons, " t");
    }
    for (int i = 0; i < tankCount; ++i) {
        tanks[i].follow(ticks);
        showLevel(oil[i].bar, oil[i].value, tanks[i], 100, " %");
    }
}

void MarketScreen::showLevel(const char* bar, const char* value, const Level& level, int most,
                             const char* unit)
{
    if (auto* shown = windowAs<AProgressBar>(getWnd(bar, 1)))
        shown->setPercentage(ZnFixed::fromInt(level.now) / ZnFixed::fromInt(fullLevel / 100));
    showText(value, (std::to_string(level.now * most / fullLevel) + unit).c_str());
}

/// Prints news. This may happen at any time and postpones the next regular news.
void MarketScreen::print(const CString& text)
{
    if (AWnd* wire = getWnd("WIRE", 1))
        wire->setWindowText(text);
    ticksToNews = ticksPerNews;
}

void MarketScreen::sell()
{
    stock[nextSale].wanted = std::max(stock[nextSale].wanted - sale, 0);
    nextSale = (nextSale + 1) % goodsCount;
}

void MarketScreen::unload()
{
    bool room = false;
    for (Level& each : stock) {
        room = room || each.wanted < fullLevel;
        each.wanted = std::min(each.wanted + lighterLoad, fullLevel);
    }
    print(room ? "A lighter alongside: something of everything, and a cat that is on no list."
               : "The warehouse is full to the rafters. The lighter has to wait.");
}

void MarketScreen::sendOut()
{
    int most = 0;
    for (int i = 1; i < goodsCount; ++i)
        if (stock[i].wanted > stock[most].wanted)
            most = i;
    stock[most].wanted = std::max(stock[most].wanted - cartLoad, 0);
    print(CString(
        (std::string(market[most].name) + " goes out by cart. The horse has seen the hill, and sighs.")
            .c_str()));
}

/// Open valves level the tanks out; closing them starts the pump, which restores the levels.
void MarketScreen::turnValves()
{
    valvesOpen = !valvesOpen;
    int sum = 0;
    for (const Tank& each : oil)
        sum += each.pumped;
    for (int i = 0; i < tankCount; ++i)
        tanks[i].wanted = valvesOpen ? sum / tankCount : oil[i].pumped;
    showText("VALVES", valvesOpen ? "Pump it up" : "Open valves");
    print(valvesOpen ? "Valves open: the oil finds its level, as oil and rumours do."
                     : "Two men at the pump, and one who counts.");
}

void MarketScreen::update()
{
    auto* box = windowAs<AComboBox>(getWnd("GOODS", 1));
    if (!box || box->getSelectedItem() == goods)
        return;
    goods = box->getSelectedItem();
    fillBars();
}

int MarketScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (HarbourScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    if (action == MA_LBUTTONUP)
        click(subject);
    return 0;
}

void MarketScreen::click(const CString& subject)
{
    if (subject == "YEAR_1882" || subject == "YEAR_1881") {
        year = subject == "YEAR_1882" ? 0 : 1;
        fillLines();
        fillBars();
    } else if (subject == "UNLOAD") {
        unload();
    } else if (subject == "SEND_OUT") {
        sendOut();
    } else if (subject == "VALVES") {
        turnValves();
    } else if (subject == "NAME_HER") {
        openNaming();
    }
}

// The name of the new ship

/// Opens the keyboard. Its box does not cover the ship's stern, where the name appears while it is typed.
void MarketScreen::openNaming()
{
    AMainWin* main = getMainWin();
    if (main->isInPopupList("NAMING"))
        return;
    AWnd* box = main->readScriptFile("market.tgx", GetModuleHandleA(nullptr), 141, "NAMING", 0);
    if (!box || !main->setPopupWnd(box, this, 0))
        return;
    AWnd* field = box->getWnd("NEW_NAME", 1);
    auto* keys = windowAs<AKeyboard>(box->getWnd("KEYS", 1));
    if (!field || !keys)
        return;
    field->setWindowText(shipName);
    keys->initialise(field, getWnd("PLATE", 1), longestName);
    naming = true;
    nameKept = true;
}

/// Called in each frame while naming, because "OK" on the keyboard closes its box without calling the screen.
void MarketScreen::endNaming()
{
    if (getMainWin()->isInPopupList("NAMING"))
        return;
    naming = false;
    const CString written = getWnd("PLATE", 1)->getWindowText();
    const bool blank = written.str().find_first_not_of(' ') == std::string::npos;
    if (!nameKept || blank || written == shipName) {
        showText("PLATE", shipName);
        return;
    }
    shipName = written;
    print(CString(
        ("The new ship is to be the " + written.str() + ". Her stern has taken the paint well.").c_str()));
}

int MarketScreen::handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (subject == "TGX_CLOSE" && action == MA_LBUTTONUP)
        nameKept = false;
    return HarbourScreen::handlePopupAction(subject, wnd, x, y, action);
}

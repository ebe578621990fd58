#include "tests/unit/support/tgx_test.h"

#include "player/reports.h"
#include "player/words.h"
#include "tests/unit/support/bmp.h"
#include "tests/unit/support/invariants.h"
#include "tgx/script/reader.h"
#include "tgx/script/vocabulary.h"

#include <algorithm>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Records the clicks that it receives in the main window.
class ScreenSpy : public AScreen {
public:
    using AScreen::AScreen;

    int handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        if (action == MA_LBUTTONUP)
            win().clicks.push_back(about.str());
        return AScreen::handleMouseAction(about, wnd, x, y, action);
    }
    int handlePopupAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action) override
    {
        if (action == MA_LBUTTONUP)
            win().popupClicks.push_back(about.str());
        return AScreen::handlePopupAction(about, wnd, x, y, action);
    }

private:
    static TestMainWin& win() { return static_cast<TestMainWin&>(*getMainWin()); }
};

/// Makes a BMP. colourAt(x) returns the colour of a column, 0xRRGGBB.
template<class ColourAt>
std::string makeBmp(int width, int height, ColourAt colourAt)
{
    std::string row, rows;
    for (int x = 0; x < width; ++x)
        row += le(colourAt(x), 3); // blue first
    row.resize((row.size() + 3) / 4 * 4);
    for (int y = 0; y < height; ++y)
        rows += row;
    return bmpFile(width, height, 24, rows);
}

} // namespace

std::string joined(const std::vector<std::string>& texts, const std::string& separator)
{
    std::string all;
    for (const std::string& text : texts)
        all += (&text == &texts.front() ? "" : separator) + text;
    return all;
}

std::vector<std::string> parts(const std::string& text, char separator)
{
    std::vector<std::string> all;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        all.push_back(part);
    return all;
}

std::string fileContents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << "cannot read " << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string without(std::string text, const std::string& part)
{
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos;)
        text.erase(at, part.size());
    return text;
}

std::string scriptLines(const std::string& text)
{
    std::string lines = "\n";
    const auto endLine = [&] {
        if (lines.back() != '\n')
            lines += '\n';
    };
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char each = text[i];
        if (quote ? each == quote : each == '"' || each == '\'') {
            quote = quote ? 0 : each;
            lines += '"';
        } else if (quote) {
            lines += each;
            if (each == '\\' && i + 1 < text.size())
                lines += text[++i];
        } else if (each == '{' || each == '}') {
            endLine();
            lines += each == '{' ? "BEGIN\n" : "END\n";
        } else if (each == ';' || each == '\n') {
            endLine();
        } else if (each != ' ' || lines.back() != '\n') {
            lines += each;
        }
    }
    return lines.substr(1);
}

std::string assembleScript(const std::string& text)
{
    std::string bytes;
    std::istringstream lines(scriptLines(text));
    for (std::string line; std::getline(lines, line);) {
        std::vector<Word> words = splitWords(line);
        if (words.empty())
            continue;
        for (const Word& word : words) {
            const Statement* statement = statementByKeyword(word.text);
            if (auto number = parseNumber(word)) {
                bytes += static_cast<char>(numberToken);
                bytes += le(static_cast<unsigned>(*number), 2);
            } else if (word.quoted) {
                bytes += static_cast<char>(stringToken) + word.text + '\0';
            } else if (statement) {
                bytes += static_cast<char>(statement->id);
            } else {
                ADD_FAILURE() << "unknown keyword " << word.text;
            }
        }
        bytes += static_cast<char>(endOfLineToken);
    }
    return bytes;
}

void TestMainWin::drawscreen()
{
    if (auto alone = std::exchange(drawnAlone, std::nullopt)) {
        if (*alone)
            (*alone)->draw(0);
        ddwin::drawscreen();
        return;
    }
    AMainWin::drawscreen();
    if (duringFrame)
        duringFrame();
}

void TestMainWin::OnMouseAction()
{
    AMainWin::OnMouseAction();
    EXPECT_EQ(checkInvariants(*this), "") << "after a tick";
}

AWnd* TestMainWin::createNewWindow(const CString& id, int x, int y, int w, int h, const CString& className)
{
    if (auto maker = classes.find(className.str()); maker != classes.end())
        return maker->second(id, x, y, w, h);
    return addsScreen ? new ScreenSpy(id, x, y, w, h) : nullptr;
}

AScreen* TestMainWin::addScreen(const CString& id, int x, int y, int w, int h)
{
    addsScreen = true;
    AScreen* screen = AMainWin::addScreen(id, x, y, w, h);
    addsScreen = false;
    return screen;
}

TgxTest::TgxTest()
{
    static int count = 0;
    fs::path folder =
        fs::temp_directory_path() / ("tgx-test-" + std::to_string(getpid()) + '-' + std::to_string(++count));
    data = folder / "data";
    outputs = folder / "out";
    fs::create_directories(data / "UIG");
    options.dataDirectory = data.string();
    options.script = "script.tgx";
    options.outDirectory = outputs.string();
}

TgxTest::~TgxTest()
{
    player.reset();
    std::error_code ignored;
    fs::remove_all(data.parent_path(), ignored);
    for (const std::string& text : announced)
        ADD_FAILURE() << "expected message was not reported: " << text;
}

void TgxTest::write(const std::string& name, const std::string& bytes)
{
    fs::path path = data / name;
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    ASSERT_TRUE(file.flush()) << path;
}

void TgxTest::script(const std::string& text, const std::string& name)
{
    write("UIG/" + name, assembleScript(text));
}

void TgxTest::bitmap(const std::string& name, int width, int height, unsigned colour)
{
    write(name, makeBmp(width, height, [&](int) { return colour; }));
}

void TgxTest::strip(const std::string& name, int frameWidth, int frameHeight, int frames)
{
    int width = (frameWidth + 1) * frames - 1;
    write(name, makeBmp(width, frameHeight, [&](int x) {
              unsigned grey = static_cast<unsigned>(x / (frameWidth + 1) * 16 + 32) & 0xFF;
              return x % (frameWidth + 1) == frameWidth ? 0u : grey * 0x010101u;
          }));
}

void TgxTest::start(const std::string& scriptText, int width, int height)
{
    if (!scriptText.empty())
        script(scriptText);
    options.width = width;
    options.height = height;
    player.reset(); // from an earlier start, because there can be only one main window
    auto makeWindow = [this](int w, int h, int depth) {
        auto made = std::make_unique<TestMainWin>(w, h, depth);
        mainWin = made.get();
        return made;
    };
    player = std::make_unique<Player>(options, makeWindow, out, err);
    player->onMessage = [this](const CString& message) { hear(message); };
    player->start();
}

void TgxTest::hear(const CString& message)
{
    auto expected = std::find(announced.begin(), announced.end(), message.str());
    if (expected != announced.end())
        announced.erase(expected);
    else
        ADD_FAILURE() << "unexpected message: " << message.str();
}

void TgxTest::playLine(const std::string& line)
{
    EXPECT_EQ(playWrong(line), "") << "in the events line: " << line;
}

void TgxTest::playEach(const std::string& lines, const std::string& step)
{
    for (const std::string& line : parts(lines, ','))
        play(line, step);
}

void TgxTest::click(int x, int y)
{
    play("move " + std::to_string(x) + " " + std::to_string(y));
    click();
}

std::string TgxTest::playWrong(const std::string& line)
{
    return player->runLine(line).value_or("");
}

std::string TgxTest::call(const std::string& line)
{
    out.str("");
    playLine("call " + line);
    std::string value = out.str();
    value.erase(0, value.find(": ") + 2);
    return value.substr(0, value.find('\n'));
}

AWnd* TgxTest::wnd(const std::string& id)
{
    AWnd* found = win().getWnd(CString(id), 1);
    if (!found)
        throw std::runtime_error("no window " + id); // ends the test
    return found;
}

const char* TgxTest::idAt(int x, int y)
{
    AWnd* active = win().getActiveWnd();
    AWnd* hit = active ? active->getWndAtPos(x, y, 1) : nullptr;
    return hit ? static_cast<const char*>(hit->getID()) : nullptr;
}

Trace TgxTest::drawn(const std::string& id)
{
    win().drawnAlone = nullptr; // draws nothing, to finish what was recorded since the last frame
    win().runFrame();
    win().drawnAlone = wnd(id);
    win().runFrame();
    std::string lines = traceReport(win());
    return Trace::parse(lines.substr(0, lines.rfind("{\"op\":\"drawscreen\"}")));
}

Trace TgxTest::frameDrawn()
{
    return Trace::parse(traceReport(win()));
}

void TgxTest::measureFont(int index, int advance, int lineHeight, int charHeight)
{
    bmpfont* font = win().getFont(index);
    ASSERT_NE(font, nullptr);
    font->advances.fill(static_cast<std::int16_t>(advance));
    font->lineHeight = static_cast<signed char>(lineHeight);
    font->charHeight = static_cast<signed char>(charHeight);
}

std::string TgxTest::readOutput(const std::string& name)
{
    return fileContents(outputs / name);
}

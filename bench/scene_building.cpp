// S4, building: reads S2 as a compiled script, and a megabyte of attribute lines.

#include "bench/many.h"
#include "bench/measure.h"
#include "bench/stage.h"

#include <string>

namespace {

/// Writes the lines of a compiled script.
class ScriptBytes {
public:
    ScriptBytes& word(int id)
    {
        bytes += static_cast<char>(id);
        return *this;
    }
    ScriptBytes& text(const std::string& characters)
    {
        bytes += '\4' + characters + '\0';
        return *this;
    }
    template<class... Number>
    ScriptBytes& numbers(Number... each)
    {
        (number(each), ...);
        return *this;
    }
    void end()
    {
        bytes += '\7';
        ++lines;
    }

    std::string bytes;
    int lines = 0;

private:
    void number(int value)
    {
        bytes += '\3';
        bytes += static_cast<char>(value);
        bytes += static_cast<char>(value >> 8);
    }
};

constexpr int BEGIN = 14, END = 15, BITMAP = 37, BMPFRAME = 39, BMPOFFSET = 41, ENABLED = 60,
              TEXTOFFSET = 104, TEXT = 105, VISIBLE = 110, WINDOW = 113, WNDPOS = 114;

ScriptBytes scriptOf(const ManyWindows& many)
{
    ScriptBytes script;
    script.word(90).text("SCENE").numbers(0, 0, manyWidth, manyHeight).text("").end();
    script.word(BEGIN).end();
    int serial = 0;
    walk(
        many,
        [&](Level level, int x, int y, int w, int h) {
            const std::string id = "W" + std::to_string(serial++);
            if (level == Level::Leaf) {
                script.word(BITMAP).text(id).numbers(x, y, w, h).text("leaf.bmp").end();
                return;
            }
            script.word(WINDOW).text(id).numbers(x, y, w, h).end();
            script.word(BEGIN).end();
        },
        [&](Level level) {
            if (level != Level::Leaf)
                script.word(END).end();
        });
    script.word(END).end();
    return script;
}

void read(Stage& stage)
{
    stage.window().readScriptFile("scene.tgx", GetModuleHandleA(nullptr), 0, "", 0);
}

/// Times repeated reads of the script, each into an empty tree.
void timeReads(benchmark::State& state, Stage& stage, int items)
{
    for (auto _ : state) {
        state.PauseTiming();
        stage.window().recreateScreenList();
        state.ResumeTiming();
        read(stage);
    }
    state.SetItemsProcessed(state.iterations() * items);
}

void windows(benchmark::State& state)
{
    Stage stage(manyWidth, manyHeight);
    const int count = many10k.count() + 1; // plus the screen
    stage.files.script("scene.tgx", scriptOf(many10k).bytes);
    const std::size_t before = heapBytes();
    read(stage);
    state.counters["bytes/window"] = static_cast<double>(heapBytes() - before) / count;
    timeReads(state, stage, count);
}

void lines(benchmark::State& state)
{
    ScriptBytes script;
    script.word(WINDOW).text("W").numbers(0, 0, 100, 100).end();
    script.word(BEGIN).end();
    for (int i = 0; script.bytes.size() < 1'000'000; ++i) {
        script.word(VISIBLE).numbers(1).end();
        script.word(ENABLED).numbers(i & 1).end();
        script.word(BMPFRAME).numbers(i & 7).end();
        script.word(BMPOFFSET).numbers(i & 15, 3).end();
        script.word(TEXTOFFSET).numbers(2, i & 15).end();
        script.word(WNDPOS).numbers(i & 255, 0, 100, 100).end();
        script.word(TEXT).text("Cargo").end();
    }
    script.word(END).end();

    Stage stage(manyWidth, manyHeight);
    stage.files.script("scene.tgx", script.bytes);
    timeReads(state, stage, script.lines);
}

BENCHMARK(windows)->Name("S4/windows")->Unit(benchmark::kMicrosecond);
BENCHMARK(lines)->Name("S4/lines")->Unit(benchmark::kMicrosecond);

} // namespace

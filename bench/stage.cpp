#include "bench/stage.h"

#include "platform/framework/datadir.h"
#include "platform/host/headless/headless_host.h"
#include "platform/system/clock.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace {

constexpr const char* fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr int headerBytes = 54;

void put32(std::vector<unsigned char>& bytes, std::size_t at, unsigned value)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
}

void write(const std::filesystem::path& file, const void* bytes, std::size_t size)
{
    std::ofstream out(file, std::ios::binary);
    out.write(static_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    if (!out)
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

Files::Files()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tgx-bench-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot make a folder like " + pattern);
    path = pattern;
    std::filesystem::create_directory(path / "UIG");
    setDataDirectory(path.string());
}

Files::~Files()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

void Files::picture(const std::string& name, int width, int height, const PixelAt& pixel) const
{
    const int rowBytes = (width * 3 + 3) / 4 * 4;
    std::vector<unsigned char> bytes(static_cast<std::size_t>(headerBytes + rowBytes * height));
    bytes[0] = 'B';
    bytes[1] = 'M';
    put32(bytes, 2, static_cast<unsigned>(bytes.size()));
    put32(bytes, 10, headerBytes);
    put32(bytes, 14, 40); // size of the info header
    put32(bytes, 18, static_cast<unsigned>(width));
    put32(bytes, 22, static_cast<unsigned>(height));
    put32(bytes, 26, 1 | 24u << 16); // one plane, 24 bits
    for (int y = 0; y < height; ++y) {
        unsigned char* row =
            bytes.data() + headerBytes + static_cast<std::ptrdiff_t>(height - 1 - y) * rowBytes;
        for (int x = 0; x < width; ++x) {
            const unsigned colour = pixel(x, y);
            *row++ = static_cast<unsigned char>(colour);
            *row++ = static_cast<unsigned char>(colour >> 8);
            *row++ = static_cast<unsigned char>(colour >> 16);
        }
    }
    write(path / name, bytes.data(), bytes.size());
}

void Files::font() const
{
    std::filesystem::copy_file(fontFile, path / "DejaVuSans.ttf");
}

void Files::script(const std::string& name, const std::string& bytes) const
{
    write(path / "UIG" / name, bytes.data(), bytes.size());
}

Stage::Stage(int width, int height)
{
    auto host = std::make_unique<HeadlessHost>();
    host->onMessage = [](const CString& text) {
        // A scene without its pictures would be fast but meaningless.
        std::fprintf(stderr, "tgx_bench: message: %s\n", static_cast<const char*>(text));
        std::exit(1);
    };
    displayhost::use(std::move(host));
    setVirtualTime(0);
    mainWin = std::make_unique<AMainWin>(width, height, 32);
    app.mainWin = mainWin.get();
    mainWin->startup();
}

Stage::~Stage()
{
    mainWin.reset();
    app.mainWin = nullptr;
    displayhost::use(nullptr);
}

AScreen* Stage::addScreen(const char* backdrop)
{
    AScreen* screen = mainWin->addScreen("SCENE", 0, 0, mainWin->screenWidth, mainWin->screenHeight);
    screen->setBackdropName(backdrop);
    return screen;
}

void Stage::show()
{
    mainWin->changeScreen("SCENE", 0, 0, "");
    for (int i = 0; i < 8; ++i) // the screen changes after the fifth frame
        frame();
    if (!mainWin->getActiveScreen())
        throw std::runtime_error("the scene's screen did not open");
}

void Stage::frame()
{
    advanceVirtualTime(41);
    mainWin->runFrame();
}

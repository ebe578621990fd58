#include "tests/unit/support/trace.h"

#include "player/json.h"

#include <algorithm>
#include <ostream>
#include <sstream>

using namespace tgx;

namespace {

Drawn operationCalled(const std::string& op)
{
    Drawn drawn;
    drawn.setRaw("op", jsonString(op));
    return drawn;
}

Drawn corners(const std::string& op, int x1, int y1, int x2, int y2, const std::string& colour)
{
    return operationCalled(op).set("x1", x1).set("y1", y1).set("x2", x2).set("y2", y2).setRaw(
        "colour", jsonString(colour));
}

} // namespace

std::string Drawn::json() const
{
    std::string line;
    for (const auto& [name, value] : fields) {
        line += line.empty() ? '{' : ',';
        line.append(jsonString(name)).append(1, ':').append(value);
    }
    return line + '}';
}

Drawn& Drawn::setRaw(const std::string& name, const std::string& jsonValue)
{
    for (auto& [present, value] : fields) {
        if (present == name) {
            value = jsonValue;
            return *this;
        }
    }
    fields.emplace_back(name, jsonValue);
    return *this;
}

Drawn& Drawn::from(int x, int y, int w, int h)
{
    return set("sx", x).set("sy", y).set("sw", w).set("sh", h);
}

Drawn& Drawn::to(int x, int y, int w, int h)
{
    return at(x, y).set("w", w).set("h", h);
}

Drawn& Drawn::at(int x, int y)
{
    return set("x", x).set("y", y);
}

Drawn blit(const std::string& image)
{
    return operationCalled("blit").setRaw("image", jsonString(image)).to(0, 0, 0, 0).from(0, 0).mode(0);
}

Drawn text(const std::string& text)
{
    return operationCalled("textout")
        .at(0, 0)
        .setRaw("text", jsonString(text))
        .font(0)
        .raw(0)
        .scale(4096)
        .mode(0);
}

Drawn fill(int x1, int y1, int x2, int y2, const std::string& colour)
{
    return corners("fillrect", x1, y1, x2, y2, colour);
}

Drawn outline(int x1, int y1, int x2, int y2, const std::string& colour)
{
    return corners("rectangle", x1, y1, x2, y2, colour);
}

Drawn dirty(int left, int top, int right, int bottom)
{
    return operationCalled("adddirtyrect")
        .set("left", left)
        .set("top", top)
        .set("right", right)
        .set("bottom", bottom);
}

Drawn backdropNamed(const std::string& image)
{
    return operationCalled("setbackdrop").setRaw("image", jsonString(image));
}

Drawn only(const std::string& op)
{
    return operationCalled(op);
}

Trace::Trace(std::initializer_list<Drawn> drawn)
{
    for (const Drawn& one : drawn)
        lines.push_back(one.json());
}

Trace Trace::parse(const std::string& fileLines)
{
    Trace trace{};
    std::istringstream stream(fileLines);
    for (std::string line; std::getline(stream, line);)
        trace.lines.push_back(line);
    return trace;
}

Trace Trace::operations(const std::string& op) const
{
    Trace chosen{};
    std::string start = "{\"op\":" + jsonString(op);
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(chosen.lines),
                 [&](const std::string& line) { return line.starts_with(start); });
    return chosen;
}

bool Trace::operator==(const Trace& other) const
{
    auto [mine, theirs] = std::mismatch(lines.begin(), lines.end(), other.lines.begin(), other.lines.end());
    firstDifference = other.firstDifference = static_cast<std::size_t>(mine - lines.begin());
    return mine == lines.end() && theirs == other.lines.end();
}

std::ostream& operator<<(std::ostream& stream, const Trace& trace)
{
    stream << trace.lines.size() << " operations\n";
    for (std::size_t i = 0; i < trace.lines.size(); ++i)
        stream << (i == trace.firstDifference ? "  => " : "     ") << trace.lines[i] << '\n';
    if (trace.firstDifference == trace.lines.size())
        stream << "  => (end)\n";
    return stream;
}

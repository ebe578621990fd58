#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// A drawing operation as printed in a trace. Tests build it like blit("bar.bmp").from(0, 60).to(10, 80, 100,
/// 20).
class Drawn {
public:
    std::string json() const;

    /// Sets the source rectangle. A size of -1 means the target's size.
    Drawn& from(int x, int y, int w = -1, int h = -1);
    /// Sets the target rectangle.
    Drawn& to(int x, int y, int w, int h);
    Drawn& at(int x, int y);
    Drawn& font(int index) { return set("font", index); }
    Drawn& raw(int flag) { return set("raw", flag); }
    Drawn& scale(int value) { return set("scale", value); }
    Drawn& mode(int value) { return set("mode", value); }

    Drawn& set(const std::string& name, int value) { return setRaw(name, std::to_string(value)); }
    Drawn& setRaw(const std::string& name, const std::string& jsonValue);

private:
    std::vector<std::pair<std::string, std::string>> fields;
};

/// Returns a blit in mode 0 whose source has the target's size.
Drawn blit(const std::string& image);
/// Returns a line of unscaled text in the default font, in mode 0.
Drawn text(const std::string& text);
Drawn fill(int x1, int y1, int x2, int y2, const std::string& colour);
Drawn outline(int x1, int y1, int x2, int y2, const std::string& colour);
Drawn dirty(int left, int top, int right, int bottom);
Drawn backdropNamed(const std::string& image);
/// Returns an operation without arguments, such as "drawscreen".
Drawn only(const std::string& op);

/// A list of drawing operations, in order. A failed comparison prints both lists with the first difference
/// marked.
class Trace {
public:
    Trace(std::initializer_list<Drawn> drawn);
    /// Parses the lines of a trace file.
    static Trace parse(const std::string& lines);
    /// Returns only the lines of this operation.
    Trace operations(const std::string& op) const;

    bool operator==(const Trace& other) const;
    friend std::ostream& operator<<(std::ostream& stream, const Trace& trace);

private:
    std::vector<std::string> lines;
    mutable std::size_t firstDifference = ~std::size_t(0); // in the last comparison, for printing
};

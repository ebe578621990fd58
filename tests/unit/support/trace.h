#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// A drawing operation as the trace prints it, built with the words of a test: blit("bar.bmp").from(0,
/// 60).to(10, 80, 100, 20).
class Drawn {
public:
    std::string json() const;

    /// Source corner; the size -1 says that it is the target's.
    Drawn& from(int x, int y, int w = -1, int h = -1);
    /// Target rectangle.
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

/// A blit in mode 0 of a source with the target's size.
Drawn blit(const std::string& image);
/// A line of text in the default font, whole, in mode 0.
Drawn text(const std::string& text);
Drawn fill(int x1, int y1, int x2, int y2, const std::string& colour);
Drawn outline(int x1, int y1, int x2, int y2, const std::string& colour);
Drawn dirty(int left, int top, int right, int bottom);
Drawn backdropNamed(const std::string& image);
/// One without arguments: "drawscreen".
Drawn only(const std::string& op);

/// What was drawn, in order. A comparison that fails prints both lists with the first difference marked.
class Trace {
public:
    Trace(std::initializer_list<Drawn> drawn);
    /// The lines of a trace file.
    static Trace parse(const std::string& lines);
    /// Those lines that name this operation.
    Trace operations(const std::string& op) const;

    bool operator==(const Trace& other) const;
    friend std::ostream& operator<<(std::ostream& stream, const Trace& trace);

private:
    std::vector<std::string> lines;
    mutable std::size_t firstDifference =
        ~std::size_t(0); // of the last comparison, for the print that follows it
};

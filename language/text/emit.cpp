// Compiles statements to bytes, and writes the map and the depfile.

#include "language/text/emit.h"

#include "tgx/script/reader.h"

namespace tgx::script_text {

namespace {

void append(std::string& bytes, const Token& token)
{
    bytes += static_cast<char>(token.id);
    if (token.id == numberToken) {
        bytes += static_cast<char>(token.value & 0xFF);
        bytes += static_cast<char>(token.value >> 8 & 0xFF);
    } else if (token.id == stringToken) {
        bytes += token.text;
        bytes += '\0';
    }
}

/// Returns a file name escaped for make and ninja.
std::string escaped(const std::string& path)
{
    std::string out;
    for (char c : path) {
        if (c == ' ' || c == '#')
            out += '\\';
        else if (c == '$')
            out += '$';
        out += c;
    }
    return out;
}

} // namespace

Emitted emit(const ParsedScript& script)
{
    Emitted out;
    for (const StatementLine& line : script.lines) {
        out.offsets.push_back(out.bytes.size());
        for (const Token& token : line.tokens)
            append(out.bytes, token);
        out.bytes += static_cast<char>(endOfLineToken);
    }
    out.bytes += script.unfinished;
    return out;
}

std::string sideMap(const ParsedScript& script, const Emitted& emitted)
{
    std::string out;
    for (std::size_t i = 0; i < script.lines.size(); ++i)
        out += std::to_string(emitted.offsets[i]) + ' ' + std::to_string(script.lines[i].number) + ' ' +
               script.lines[i].in->file->name + '\n';
    return out;
}

std::string dependencies(const std::string& output, const std::string& input, const ParsedScript& script)
{
    std::string out = escaped(output) + ": " + escaped(input);
    for (const std::string& each : script.included)
        out += " \\\n  " + escaped(each);
    return out + '\n';
}

} // namespace tgx::script_text

#include "player/json.h"
#include "player/reports.h"
#include "tgx/frame/mainwin.h"

#include <cstdio>

namespace tgx {

namespace {

std::string hexColour(std::uint32_t colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", colour & 0xFFFFFF);
    return text;
}

const char* operationName(DrawOp op)
{
    switch (op) {
    case DrawOp::Blit:
    case DrawOp::BlitRow: // written as its pieces
        return "blit";
    case DrawOp::FillRect:
        return "fillrect";
    case DrawOp::Rectangle:
        return "rectangle";
    case DrawOp::Line:
        return "line";
    case DrawOp::TextOut:
        return "textout";
    case DrawOp::AddDirtyRect:
        return "adddirtyrect";
    case DrawOp::SetBackdropName:
    case DrawOp::SetBackdropColour:
        return "setbackdrop";
    case DrawOp::DrawBackdrop:
        return "drawbackdrop";
    case DrawOp::RedrawScreen:
        return "redrawScreen";
    case DrawOp::DrawScreen:
        return "drawscreen";
    }
    return "";
}

void writeArguments(JsonWriter& json, const DisplayList& list, const DrawCommand& command)
{
    switch (command.op) {
    case DrawOp::Blit:
    case DrawOp::BlitRow:
        json.field("image", std::string_view(command.image ? command.image->name : ""))
            .field("x", command.x)
            .field("y", command.y)
            .field("w", command.w)
            .field("h", command.h)
            .field("sx", command.sx)
            .field("sy", command.sy)
            .field("sw", command.sw)
            .field("sh", command.sh)
            .field("mode", command.mode);
        break;
    case DrawOp::FillRect:
    case DrawOp::Rectangle:
    case DrawOp::Line:
        json.field("x1", command.x)
            .field("y1", command.y)
            .field("x2", command.w)
            .field("y2", command.h)
            .field("colour", hexColour(command.colour));
        if (command.op == DrawOp::Line)
            json.field("width", command.mode);
        break;
    case DrawOp::TextOut:
        json.field("x", command.x)
            .field("y", command.y)
            .field("text", list.text(command))
            .field("font", static_cast<std::int32_t>(command.subject) - 1)
            .field("raw", command.flags & 1)
            .field("scale", command.scale)
            .field("mode", command.mode);
        break;
    case DrawOp::AddDirtyRect:
        json.field("left", command.x)
            .field("top", command.y)
            .field("right", command.w)
            .field("bottom", command.h);
        break;
    case DrawOp::SetBackdropName:
        json.field("image", list.text(command));
        break;
    case DrawOp::SetBackdropColour:
        json.field("colour", hexColour(command.colour));
        break;
    case DrawOp::DrawBackdrop:
    case DrawOp::RedrawScreen:
    case DrawOp::DrawScreen:
        break;
    }
}

void writeCommand(std::string& lines, const DisplayList& list, const DrawCommand& command)
{
    JsonWriter json;
    json.open('{').field("op", std::string_view(operationName(command.op)));
    writeArguments(json, list, command);
    lines += json.close('}').text() + '\n';
}

/// Writes each piece of a row as a blit. other is the row whose pieces were drawn alternately with these, or
/// null.
void writePieces(std::string& lines, const DisplayList& list, const DrawCommand& row,
                 const DrawCommand* other)
{
    for (int i = 0; i < pieceCount(row); ++i) {
        writeCommand(lines, list, pieceOf(row, i));
        if (other)
            writeCommand(lines, list, pieceOf(*other, i));
    }
}

} // namespace

std::string traceReport(const AMainWin& win)
{
    std::string lines;
    const DisplayList& list = win.getLastFrame();
    const auto commands = list.commands();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const DrawCommand& command = commands[i];
        if (command.op == DrawOp::BlitRow)
            writePieces(lines, list, command, command.flags & pieceAlternates ? &commands[++i] : nullptr);
        else
            writeCommand(lines, list, command);
    }
    return lines;
}

std::string fontsReport(AMainWin& win)
{
    JsonWriter json;
    json.open('[');
    for (int i = 0; i < win.getFontCount(); ++i) {
        const bmpfont& font = *win.getFont(i);
        json.open('{').field("lineHeight", font.lineHeight).field("charHeight", font.charHeight);
        json.key("advance").open('[');
        for (int character = 0; character < 256; ++character)
            json.value(font.advance(static_cast<unsigned char>(character)));
        json.close(']').close('}');
    }
    return json.close(']').text() + '\n';
}

} // namespace tgx

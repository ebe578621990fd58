#include "player/json.h"

#include "platform/framework/text.h"

namespace tgx {

std::string jsonString(std::string_view bytes)
{
    std::string text = "\"";
    for (const char c : bytes) {
        if (c < 0x20 || c > 0x7E) {
            text += unicodeEscape(c);
            continue;
        }
        if (c == '"' || c == '\\')
            text += '\\';
        text += c;
    }
    return text + '"';
}

JsonWriter& JsonWriter::open(char bracket)
{
    item(std::string_view(&bracket, 1));
    needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket)
{
    written += bracket;
    needsComma = true;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name)
{
    item(jsonString(name));
    written += ':';
    needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::value(std::int64_t number)
{
    return item(std::to_string(number));
}

JsonWriter& JsonWriter::value(std::string_view text)
{
    return item(jsonString(text));
}

JsonWriter& JsonWriter::null()
{
    return item("null");
}

JsonWriter& JsonWriter::item(std::string_view text)
{
    if (needsComma)
        written += ',';
    written += text;
    needsComma = true;
    return *this;
}

} // namespace tgx

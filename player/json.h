#pragma once

#include "player/export.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tgx {

/// Returns bytes as a JSON string. Bytes outside 0x20 to 0x7E become \u00NN.
TGX_PLAYER_API std::string jsonString(std::string_view bytes);

/// Writes JSON without blanks, in the order of the calls. Adds the commas itself.
class TGX_PLAYER_API JsonWriter {
public:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    JsonWriter& key(std::string_view name);
    JsonWriter& value(std::int64_t number);
    JsonWriter& value(std::string_view text);
    JsonWriter& null();

    template<class T>
    JsonWriter& field(std::string_view name, const T& content)
    {
        return key(name).value(content);
    }
    const std::string& text() const { return written; }

private:
    JsonWriter& item(std::string_view text);
    std::string written;
    bool needsComma = false;
};

} // namespace tgx

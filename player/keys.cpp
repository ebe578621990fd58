#include "player/keys.h"

#include "platform/display/keys.h"

namespace tgx {

namespace {

const struct {
    std::string_view name;
    std::uint8_t code;
} namedKeys[] = {
    {"tab", VK_TAB},     {"return", VK_RETURN}, {"esc", VK_ESCAPE},    {"left", VK_LEFT},
    {"right", VK_RIGHT}, {"up", VK_UP},         {"down", VK_DOWN},     {"home", VK_HOME},
    {"end", VK_END},     {"insert", VK_INSERT}, {"delete", VK_DELETE}, {"backspace", VK_BACK},
    {"space", VK_SPACE}, {"shift", VK_SHIFT},   {"f1", VK_F1},         {"f2", VK_F1 + 1},
    {"f3", VK_F1 + 2},   {"f4", VK_F1 + 3},     {"f5", VK_F1 + 4},     {"f6", VK_F1 + 5},
    {"f7", VK_F1 + 6},   {"f8", VK_F1 + 7},     {"f9", VK_F1 + 8},     {"f10", VK_F1 + 9},
    {"f11", VK_F1 + 10}, {"f12", VK_F1 + 11},
};

bool isDigit(int c)
{
    return c >= '0' && c <= '9';
}

bool isCapital(int c)
{
    return c >= 'A' && c <= 'Z';
}

/// Returns a letter as a capital, any other character unchanged.
char capital(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::uint8_t parseKey(const Word& word)
{
    const std::string& name = word.text;
    if (name.size() == 1 && (isDigit(name[0]) || isCapital(capital(name[0]))))
        return static_cast<std::uint8_t>(capital(name[0]));
    for (const auto& key : namedKeys) {
        if (key.name == name)
            return key.code;
    }
    if (auto code = parseNumber(word)) {
        if (*code < 1 || *code > 255)
            throw WrongLine("a key code runs from 01 to 255, found " + name);
        return static_cast<std::uint8_t>(*code);
    }
    std::vector<std::string> names;
    for (const auto& key : namedKeys)
        names.emplace_back(key.name);
    throw WrongLine("no key " + quote(name) + "; keys are letters, digits, codes of two digits or more, " +
                    listNames(names, names.size()));
}

std::string keyName(std::uint8_t code)
{
    if (isDigit(code) || isCapital(code))
        return {static_cast<char>(isDigit(code) ? code : code - 'A' + 'a')};
    for (const auto& key : namedKeys) {
        if (key.code == code)
            return std::string(key.name);
    }
    return (code < 10 ? "0" : "") + std::to_string(code);
}

char characterOf(std::uint8_t code, bool shift)
{
    if (isCapital(code))
        return static_cast<char>(shift ? code : code + ('a' - 'A'));
    bool types = isDigit(code) || code == VK_SPACE || code == VK_TAB || code == VK_RETURN ||
                 code == VK_ESCAPE || code == VK_BACK;
    return types ? static_cast<char>(code) : '\0';
}

std::uint8_t keyThatTypes(char character)
{
    auto code = static_cast<std::uint8_t>(capital(character));
    bool hasKey = isCapital(code) || characterOf(code, false) != '\0';
    return hasKey ? code : std::uint8_t(VK_PACKET);
}

const char* buttonName(MouseButton button)
{
    switch (button) {
    case MouseButton::Left:
        return "left";
    case MouseButton::Right:
        return "right";
    case MouseButton::Middle:
        break;
    }
    return "middle";
}

} // namespace tgx

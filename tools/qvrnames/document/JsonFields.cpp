#include "document/JsonFields.h"

#include <charconv>
#include <limits>

namespace {

const char* Told(JsonKind kind) {
    switch (kind) {
    case JsonKind::Object:
        return "an object";
    case JsonKind::Array:
        return "a list";
    case JsonKind::String:
        return "a text in quotes";
    case JsonKind::Number:
        return "a number";
    case JsonKind::Boolean:
        return "true or false";
    case JsonKind::Null:
        break;
    }
    return "null";
}

std::string ReadNarrow(JsonValue value) {
    ExpectKind(value, JsonKind::String);
    std::string text = value.Text();
    if (text.find('\0') != std::string::npos) // a narrow text ends there
        value.Refuse("expected a text without the character U+0000");
    return text;
}

} // namespace

void ExpectKind(JsonValue value, JsonKind kind) {
    if (value.Kind() != kind)
        value.Refuse(std::string("expected ") + Told(kind) + ", found " + Told(value.Kind()));
}

ZFXUnicodeString ReadText(JsonValue value) { return ReadNarrow(value).c_str(); }

std::string ReadWord(JsonValue value) {
    std::string word = ReadNarrow(value);
    if (word.empty())
        value.Refuse("expected a text that is not empty");
    return word;
}

bool ReadBool(JsonValue value) {
    ExpectKind(value, JsonKind::Boolean);
    return value.Literal() == "true";
}

int ReadInt(JsonValue value) {
    ExpectKind(value, JsonKind::Number);
    const std::string_view digits = value.Literal();
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        value.Refuse("expected a whole number from " + std::to_string(std::numeric_limits<int>::min()) + " to " +
                     std::to_string(std::numeric_limits<int>::max()) + ", found " + std::string(digits.substr(0, 40)));
    return number;
}

#include "document/JsonText.h"

#include "ExitCode.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string Escaped(std::string token) {
    for (std::size_t at = 0; (at = token.find_first_of("~/", at)) != std::string::npos; at += 2)
        token.replace(at, 1, token[at] == '~' ? "~0" : "~1");
    return token;
}

std::string Unescaped(std::string token) {
    for (std::size_t at = 0; (at = token.find('~', at)) != std::string::npos; ++at)
        token.replace(at, 2, token.compare(at, 2, "~1") == 0 ? "/" : "~");
    return token;
}

} // namespace

JsonText::JsonText(std::string text) : m_bytes(std::move(text)) {
    if (SkipBlank(m_bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0) == m_bytes.size())
        throw BadInput("the file is empty; a JSON object was expected");
    RefuseUnlessJson();
}

JsonValue JsonText::Root() const {
    return {this, SkipBlank(m_bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0)};
}

JsonValue JsonText::BeginningAt(std::size_t place) const { return {this, place}; }

std::size_t JsonText::SkipBlank(std::size_t place) const noexcept {
    return std::min(m_bytes.find_first_not_of(" \t\r\n", place), m_bytes.size());
}

std::size_t JsonText::EndOfString(std::size_t place) const noexcept {
    ++place;
    while (m_bytes[place] != '"')
        place += m_bytes[place] == '\\' ? 2 : 1;
    return place + 1;
}

std::size_t JsonText::EndOfValue(std::size_t place) const noexcept {
    if (m_bytes[place] == '"')
        return EndOfString(place);
    if (m_bytes[place] != '{' && m_bytes[place] != '[')
        return std::min(m_bytes.find_first_of(" \t\r\n,]}", place), m_bytes.size());
    int depth = 0;
    do {
        const char c = m_bytes[place];
        if (c == '"') {
            place = EndOfString(place);
            continue;
        }
        depth += c == '{' || c == '[' ? 1 : c == '}' || c == ']' ? -1 : 0;
        ++place;
    } while (depth > 0);
    return place;
}

/// Where the first bracket beyond the deepest level stands. The text is JSON up to there.
std::size_t JsonText::PlaceTooDeep() const {
    std::size_t place = 0;
    for (int depth = 0; place < m_bytes.size();) {
        const char c = m_bytes[place];
        if ((c == '{' || c == '[') && ++depth > kDeepest)
            break;
        if (c == '}' || c == ']')
            --depth;
        place = c == '"' ? EndOfString(place) : place + 1;
    }
    return place;
}

JsonValue JsonText::At(std::string_view pointer) const {
    JsonValue value = Root();
    while (value && !pointer.empty()) {
        if (pointer.front() != '/')
            return {};
        const auto next = std::min(pointer.find('/', 1), pointer.size());
        const std::string token = Unescaped(std::string(pointer.substr(1, next - 1)));
        pointer.remove_prefix(next);
        JsonValue found;
        value.ForEachMember([&](JsonValue key, JsonValue member) {
            if (key.Text() == token)
                found = member;
        });
        value.ForEachElement([&](std::size_t index, JsonValue element) {
            if (std::to_string(index) == token)
                found = element;
        });
        value = found;
    }
    return value;
}

std::string JsonText::PointerTo(std::size_t place) const {
    std::string pointer;
    JsonValue inside = Root();
    while (inside) {
        JsonValue next;
        const auto step = [&](JsonValue value, const std::string& token) {
            if (value.Begin() > place || place >= value.End())
                return;
            next = value;
            pointer += '/' + token;
        };
        inside.ForEachMember([&](JsonValue key, JsonValue value) { step(value, Escaped(key.Text())); });
        inside.ForEachElement([&](std::size_t index, JsonValue value) { step(value, std::to_string(index)); });
        inside = next && next.Begin() != place ? next : JsonValue();
    }
    return pointer;
}

std::string JsonText::LineAndColumn(std::size_t place) const {
    const std::string_view before = std::string_view(m_bytes).substr(0, place);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    std::string_view line = before.substr(before.rfind('\n') + 1); // npos + 1 is the beginning
    if (line.starts_with(kByteOrderMark))
        line.remove_prefix(kByteOrderMark.size());
    const auto characters = std::count_if(line.begin(), line.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; // what goes on with a character has 10 in front
    });
    return "line " + std::to_string(lines + 1) + ", column " + std::to_string(characters + 1);
}

JsonKind JsonValue::Kind() const {
    switch (m_text->m_bytes[m_begin]) {
    case '{':
        return JsonKind::Object;
    case '[':
        return JsonKind::Array;
    case '"':
        return JsonKind::String;
    case 't':
    case 'f':
        return JsonKind::Boolean;
    case 'n':
        return JsonKind::Null;
    default:
        return JsonKind::Number;
    }
}

std::size_t JsonValue::End() const { return m_text->EndOfValue(m_begin); }

std::string_view JsonValue::Literal() const {
    return std::string_view(m_text->m_bytes).substr(m_begin, End() - m_begin);
}

std::string JsonValue::Text() const {
    const std::string_view literal = Literal();
    if (literal.find('\\') != std::string_view::npos)
        return nlohmann::json::parse(literal).get<std::string>();
    return std::string(literal.substr(1, literal.size() - 2));
}

void JsonValue::ForEachMember(const MemberVisitor& visit) const {
    if (Kind() != JsonKind::Object)
        return;
    const JsonText& text = *m_text;
    std::size_t place = text.SkipBlank(m_begin + 1);
    while (text.m_bytes[place] != '}') {
        const JsonValue key(m_text, place);
        const std::size_t colon = text.SkipBlank(text.EndOfString(place));
        const JsonValue value(m_text, text.SkipBlank(colon + 1));
        place = text.SkipBlank(value.End());
        visit(key, value);
        if (text.m_bytes[place] == ',')
            place = text.SkipBlank(place + 1);
    }
}

void JsonValue::ForEachElement(const ElementVisitor& visit) const {
    if (Kind() != JsonKind::Array)
        return;
    const JsonText& text = *m_text;
    std::size_t place = text.SkipBlank(m_begin + 1);
    for (std::size_t index = 0; text.m_bytes[place] != ']'; ++index) {
        const JsonValue element(m_text, place);
        place = text.SkipBlank(element.End());
        visit(index, element);
        if (text.m_bytes[place] == ',')
            place = text.SkipBlank(place + 1);
    }
}

void JsonValue::Refuse(const std::string& message) const {
    const std::string pointer = m_text->PointerTo(m_begin);
    const std::string place = m_text->LineAndColumn(m_begin);
    throw BadInput((pointer.empty() ? place : pointer + " (" + place + ")") + ": " + message);
}

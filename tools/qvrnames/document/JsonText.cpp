#include "document/JsonText.h"

#include "BadInput.h"
#include "files/Utf8Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cassert>

namespace {

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
    if (Root().Begin() == m_bytes.size())
        throw BadInput("the file is empty; a JSON object was expected");
    CheckSyntax();
}

JsonValue JsonText::Root() const {
    return {this, SkipSpace(m_bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0)};
}

JsonValue JsonText::ValueAt(std::size_t offset) const {
    assert(offset < m_bytes.size());
    return {this, offset};
}

std::size_t JsonText::SkipSpace(std::size_t offset) const noexcept {
    return std::min(m_bytes.find_first_not_of(" \t\r\n", offset), m_bytes.size());
}

std::size_t JsonText::EndOfString(std::size_t offset) const noexcept {
    assert(m_bytes[offset] == '"');
    ++offset;
    while (m_bytes[offset] != '"')
        offset += m_bytes[offset] == '\\' ? 2 : 1;
    return offset + 1;
}

std::size_t JsonText::EndOfValue(std::size_t offset) const noexcept {
    if (m_bytes[offset] == '"')
        return EndOfString(offset);
    if (m_bytes[offset] != '{' && m_bytes[offset] != '[')
        return std::min(m_bytes.find_first_of(" \t\r\n,]}", offset), m_bytes.size());
    int depth = 0;
    do {
        const char c = m_bytes[offset];
        if (c == '"') {
            offset = EndOfString(offset);
            continue;
        }
        depth += c == '{' || c == '[' ? 1 : c == '}' || c == ']' ? -1 : 0;
        ++offset;
    } while (depth > 0);
    return offset;
}

/// Returns the offset of the first bracket that is nested too deeply.
/// @pre the text is JSON up to that bracket
std::size_t JsonText::OffsetBeyondMaxDepth() const {
    std::size_t offset = 0;
    for (int depth = 0; offset < m_bytes.size();) {
        const char c = m_bytes[offset];
        if ((c == '{' || c == '[') && ++depth > kMaxDepth)
            break;
        if (c == '}' || c == ']')
            --depth;
        offset = c == '"' ? EndOfString(offset) : offset + 1;
    }
    return offset;
}

JsonValue JsonText::Find(std::string_view pointer) const {
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

std::string JsonText::PointerTo(std::size_t offset) const {
    std::string pointer;
    JsonValue inside = Root();
    while (inside) {
        JsonValue next;
        const auto step = [&](JsonValue value, const std::string& token) {
            if (value.Begin() > offset || offset >= value.End())
                return;
            next = value;
            pointer += '/' + token;
        };
        inside.ForEachMember([&](JsonValue key, JsonValue value) { step(value, Escaped(key.Text())); });
        inside.ForEachElement([&](std::size_t index, JsonValue value) { step(value, std::to_string(index)); });
        inside = next && next.Begin() != offset ? next : JsonValue();
    }
    return pointer;
}

std::string JsonText::LineAndColumn(std::size_t offset) const {
    const TextPosition position = PositionFinder(m_bytes).Find(offset);
    return "line " + std::to_string(position.line) + ", column " + std::to_string(position.column);
}

PositionFinder::PositionFinder(std::string_view text)
    : m_text(text), m_offset(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0) {}

TextPosition PositionFinder::Find(std::size_t offset) {
    if (offset < m_offset)
        *this = PositionFinder(m_text);
    for (; m_offset < offset && m_offset < m_text.size(); ++m_offset) {
        const auto byte = static_cast<unsigned char>(m_text[m_offset]);
        if (byte == '\n')
            m_position = {m_position.line + 1, 1};
        else if ((byte & 0xC0U) != 0x80U) // the bits 10 mark a continuation byte
            ++m_position.column;
    }
    return m_position;
}

JsonKind JsonValue::Kind() const {
    assert(m_text != nullptr);
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
    assert(Kind() == JsonKind::String);
    const std::string_view literal = Literal();
    if (literal.find('\\') != std::string_view::npos)
        return nlohmann::json::parse(literal).get<std::string>();
    return std::string(literal.substr(1, literal.size() - 2));
}

void JsonValue::ForEachMember(const MemberVisitor& visit) const {
    if (Kind() != JsonKind::Object)
        return;
    const JsonText& text = *m_text;
    std::size_t offset = text.SkipSpace(m_begin + 1);
    while (text.m_bytes[offset] != '}') {
        const JsonValue key(m_text, offset);
        const std::size_t colon = text.SkipSpace(text.EndOfString(offset));
        const JsonValue value(m_text, text.SkipSpace(colon + 1));
        offset = text.SkipSpace(value.End());
        visit(key, value);
        if (text.m_bytes[offset] == ',')
            offset = text.SkipSpace(offset + 1);
    }
}

void JsonValue::ForEachElement(const ElementVisitor& visit) const {
    if (Kind() != JsonKind::Array)
        return;
    const JsonText& text = *m_text;
    std::size_t offset = text.SkipSpace(m_begin + 1);
    for (std::size_t index = 0; text.m_bytes[offset] != ']'; ++index) {
        const JsonValue element(m_text, offset);
        offset = text.SkipSpace(element.End());
        visit(index, element);
        if (text.m_bytes[offset] == ',')
            offset = text.SkipSpace(offset + 1);
    }
}

void JsonValue::ThrowError(const std::string& message) const {
    const std::string pointer = m_text->PointerTo(m_begin);
    const std::string position = m_text->LineAndColumn(m_begin);
    throw BadInput((pointer.empty() ? position : pointer + " (" + position + ")") + ": " + message);
}

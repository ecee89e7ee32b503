#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

// JSON without a tree. A document of many megabytes is parsed once, and one name in it is replaced. A value is
// therefore only an offset into the text: errors can report the position, and all other bytes of the file are
// unchanged. Offsets are in bytes from the beginning of the text.

class JsonText;

/// A position in a text. Both numbers are 1-based; a column is a character.
struct TextPosition {
    std::size_t line = 1;
    std::size_t column = 1;
};

/// Finds the positions of offsets in a text. Finding many ascending offsets takes linear time in total.
class PositionFinder {
public:
    explicit PositionFinder(std::string_view text);
    [[nodiscard]] TextPosition Find(std::size_t offset);

private:
    std::string_view m_text;
    std::size_t m_offset = 0;
    TextPosition m_position; // of m_offset
};

enum class JsonKind { Object, Array, String, Number, Boolean, Null };

/// A value in a JSON text, or no value if default-constructed. Valid as long as the text exists. Except for the
/// conversion to bool and for Begin, the members require a value.
class JsonValue {
public:
    JsonValue() = default;

    explicit operator bool() const noexcept { return m_text != nullptr; }
    JsonKind Kind() const;
    /// Returns the offset of the first character.
    std::size_t Begin() const noexcept { return m_begin; }
    /// Returns the offset after the last character.
    std::size_t End() const;
    /// Returns the value as it is written in the text, including the quotes of a string.
    std::string_view Literal() const;
    /// Returns the content of a string without quotes and escapes, in UTF-8.
    /// @pre the kind is String
    std::string Text() const;

    using MemberVisitor = std::function<void(JsonValue key, JsonValue value)>;
    using ElementVisitor = std::function<void(std::size_t index, JsonValue element)>;
    /// Visits the members of an object in order. Other values have none.
    void ForEachMember(const MemberVisitor& visit) const;
    /// Visits the elements of an array in order. `index` is 0-based. Other values have none.
    void ForEachElement(const ElementVisitor& visit) const;
    /// Throws BadInput with the JSON pointer, line and column of this value before the message.
    [[noreturn]] void ThrowError(const std::string& message) const;

private:
    friend class JsonText;
    JsonValue(const JsonText* text, std::size_t begin) : m_text(text), m_begin(begin) {}

    const JsonText* m_text = nullptr;
    std::size_t m_begin = 0;
};

/// A text that is valid JSON.
class JsonText {
public:
    /// Throws BadInput with line and column if the text is not JSON or is nested more deeply than kMaxDepth.
    explicit JsonText(std::string text);
    JsonText(const JsonText&) = delete;
    JsonText& operator=(const JsonText&) = delete;

    static constexpr int kMaxDepth = 100;

    const std::string& Bytes() const noexcept { return m_bytes; }
    JsonValue Root() const;
    /// Returns the value that begins at the offset.
    /// @pre a value begins there
    JsonValue ValueAt(std::size_t offset) const;
    /// Returns the value to which a JSON pointer leads, or no value.
    [[nodiscard]] JsonValue Find(std::string_view pointer) const;
    /// Returns the JSON pointer of the value that begins at the offset, or of the innermost value around it.
    [[nodiscard]] std::string PointerTo(std::size_t offset) const;
    /// Returns the position as "line 3, column 17". Both are 1-based; a column is a character.
    [[nodiscard]] std::string LineAndColumn(std::size_t offset) const;

private:
    friend class JsonValue;
    /// Throws BadInput as the constructor does. Defined in JsonSyntax.cpp.
    void CheckSyntax() const;
    std::size_t OffsetBeyondMaxDepth() const;
    /// Returns the offset of the first character that is not white space, or the length of the text.
    std::size_t SkipSpace(std::size_t offset) const noexcept;
    std::size_t EndOfString(std::size_t offset) const noexcept;
    std::size_t EndOfValue(std::size_t offset) const noexcept;

    std::string m_bytes;
};

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class JsonText;

enum class JsonKind { Object, Array, String, Number, Boolean, Null };

/// A value in a JSON text: no more than the offset where it begins, so that a document of many megabytes needs
/// no tree beside its text, and so that every value knows where to blame and what to patch. An empty one
/// stands for a value that is not there.
class JsonValue {
public:
    JsonValue() = default;

    explicit operator bool() const noexcept { return m_text != nullptr; }
    JsonKind Kind() const;
    /// Where its first character stands, and where the next one after its last.
    std::size_t Begin() const noexcept { return m_begin; }
    std::size_t End() const;
    /// As it is written, the quotes of a string included.
    std::string_view Literal() const;
    /// The text of a string, in UTF-8.
    std::string Text() const;

    using MemberVisitor = std::function<void(JsonValue key, JsonValue value)>;
    using ElementVisitor = std::function<void(std::size_t index, JsonValue element)>;
    /// The members of an object and the elements of an array, in order; of anything else, none.
    void ForEachMember(const MemberVisitor& visit) const;
    void ForEachElement(const ElementVisitor& visit) const;
    /// Ends the reading: BadInput with the JSON pointer of this value, its line and its column.
    [[noreturn]] void ThrowError(const std::string& message) const;

private:
    friend class JsonText;
    JsonValue(const JsonText* text, std::size_t begin) : m_text(text), m_begin(begin) {}

    const JsonText* m_text = nullptr;
    std::size_t m_begin = 0;
};

/// A text that is JSON, made sure of when it is built.
class JsonText {
public:
    /// BadInput with line and column when it is none, or when it is nested more deeply than kMaxDepth.
    explicit JsonText(std::string text);
    JsonText(const JsonText&) = delete;
    JsonText& operator=(const JsonText&) = delete;

    static constexpr int kMaxDepth = 100;

    const std::string& Bytes() const noexcept { return m_bytes; }
    JsonValue Root() const;
    /// The value that is known to begin there.
    JsonValue ValueAt(std::size_t offset) const;
    /// The value that a JSON pointer leads to; empty when it leads nowhere.
    JsonValue At(std::string_view pointer) const;
    /// The way to the value that begins at this offset, or to the innermost one around it.
    std::string PointerTo(std::size_t offset) const;
    /// "line 3, column 17"; a column counts characters.
    std::string LineAndColumn(std::size_t offset) const;

private:
    friend class JsonValue;
    void CheckSyntax() const;
    std::size_t OffsetBeyondMaxDepth() const;
    /// The first offset from here on that is no white space.
    std::size_t SkipSpace(std::size_t offset) const noexcept;
    std::size_t EndOfString(std::size_t offset) const noexcept;
    std::size_t EndOfValue(std::size_t offset) const noexcept;

    std::string m_bytes;
};

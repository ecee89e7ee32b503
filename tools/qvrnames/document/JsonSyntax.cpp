// Checks that a text is JSON. The check builds no tree and does not recurse, so that a hostile text can exhaust neither
// memory nor stack.

#include "BadInput.h"
#include "document/JsonText.h"

#include <nlohmann/json.hpp>

namespace {

class SyntaxCheck final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool key(string_t&) override { return true; }
    bool start_object(std::size_t) override { return Enter(); }
    bool start_array(std::size_t) override { return Enter(); }
    bool end_object() override { return Leave(); }
    bool end_array() override { return Leave(); }
    bool parse_error(std::size_t position, const std::string& lastRead,
                     const nlohmann::detail::exception& error) override {
        offset = position == 0 ? 0 : position - 1;
        message = Reason(error.what(), lastRead);
        return false;
    }

    std::size_t offset = 0;
    std::string message;

private:
    bool Enter() { return ++m_depth <= JsonText::kMaxDepth; }
    bool Leave() {
        --m_depth;
        return true;
    }

    /// Returns the reason in a message of the library. Removes the location, which the caller reports as line and
    /// column, the state of the parser, and the text read last, which may be half the file or ill-formed.
    static std::string Reason(std::string reason, const std::string& lastRead) {
        if (const auto column = reason.find("column "); column != std::string::npos)
            reason.erase(0, reason.find(": ", column) + 2);
        else if (const auto id = reason.find("] "); id != std::string::npos)
            reason.erase(0, id + 2);
        const std::string read = "; last read: '" + lastRead + "'";
        if (const auto begin = reason.find(read); begin != std::string::npos)
            reason.erase(begin, read.size());
        if (const auto end = reason.find(" - "); end != std::string::npos && reason.starts_with("syntax error"))
            reason.replace(0, end + 3, "the text is not JSON: ");
        return reason;
    }

    int m_depth = 0;
};

} // namespace

void JsonText::CheckSyntax() const {
    SyntaxCheck check;
    if (nlohmann::json::sax_parse(m_bytes, &check))
        return;
    if (check.message.empty())
        throw BadInput(LineAndColumn(OffsetBeyondMaxDepth()) + ": nested more deeply than " +
                       std::to_string(kMaxDepth) + " levels");
    throw BadInput(LineAndColumn(check.offset) + ": " + check.message);
}

#include "document/CsvTable.h"

#include "BadInput.h"
#include "files/Utf8Text.h"

#include <algorithm>

namespace {

class CsvParser {
public:
    explicit CsvParser(std::string_view text) : m_rest(text) { Skip(kByteOrderMark); }

    std::vector<CsvRow> Parse() {
        std::vector<CsvRow> rows;
        while (!m_rest.empty()) {
            if (SkipLineEnd())
                continue;
            CsvRow row{m_line, {}};
            do
                row.fields.push_back(ReadField());
            while (Skip(","));
            if (!m_rest.empty() && !SkipLineEnd())
                ThrowLineError(m_line, "text follows the closing quote of a field; write a quote in a field twice");
            if (std::ranges::all_of(row.fields, &std::string::empty))
                continue;
            if (!rows.empty() && row.fields.size() != rows.front().fields.size())
                ThrowLineError(row.line, "the header has " + std::to_string(rows.front().fields.size()) +
                                             " fields, this row has " + std::to_string(row.fields.size()));
            rows.push_back(std::move(row));
        }
        return rows;
    }

private:
    bool Skip(std::string_view expected) {
        const bool isThere = m_rest.starts_with(expected);
        m_rest.remove_prefix(isThere ? expected.size() : 0);
        return isThere;
    }
    bool SkipLineEnd() {
        const bool isThere = Skip("\n") || Skip("\r\n");
        m_line += isThere ? 1 : 0;
        return isThere;
    }
    std::string ReadField() {
        const std::size_t line = m_line;
        std::string value = Skip("\"") ? ReadQuoted() : ReadUnquoted();
        if (!IsUtf8(value))
            ThrowLineError(line, kNotUtf8);
        return value;
    }
    std::string ReadQuoted() {
        const std::size_t line = m_line;
        std::string value;
        do {
            const std::size_t quote = m_rest.find('"');
            if (quote == std::string_view::npos)
                ThrowLineError(line, "the closing quote of a field is missing");
            value += m_rest.substr(0, quote + 1);
            m_rest.remove_prefix(quote + 1);
        } while (Skip("\"")); // a doubled quote is a quote of the value
        value.pop_back();
        m_line += static_cast<std::size_t>(std::count(value.begin(), value.end(), '\n'));
        return value;
    }
    std::string ReadUnquoted() {
        std::string_view value = m_rest.substr(0, m_rest.find_first_of(",\n"));
        if (value.ends_with('\r') && m_rest.substr(value.size()).starts_with('\n'))
            value.remove_suffix(1);
        if (value.find('"') != std::string_view::npos)
            ThrowLineError(m_line, "a field that contains a quote must be quoted, and the quote written twice");
        if (value.find('\r') != std::string_view::npos)
            ThrowLineError(m_line, "a field that contains a carriage return must be quoted");
        m_rest.remove_prefix(value.size());
        return std::string(value);
    }

    std::string_view m_rest; // the text that has not been read
    std::size_t m_line = 1;
};

} // namespace

std::vector<CsvRow> ParseCsv(std::string_view text) { return CsvParser(text).Parse(); }

void ThrowLineError(std::size_t line, const std::string& message) {
    throw BadInput("line " + std::to_string(line) + ": " + message);
}

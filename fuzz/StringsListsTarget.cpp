// Calls random sequences of operations on strings and lists, and compares the results with the reference implementation
// and the standard library. An argument is often the object itself.

#include "Expectations.h"
#include "FuzzInput.h"
#include "ReferenceText.h"

#include "collections/ZFXListVal.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

using Reference::Text;

constexpr std::size_t kSlotCount = 4;
constexpr std::size_t kMaxLength = 400;

/// Selects one of the strings or lists.
std::size_t Slot(FuzzInput& input) { return static_cast<std::size_t>(input.Below(kSlotCount)); }

/// Applies each operation to a string and to its reference text, and compares all strings afterwards.
class Strings {
public:
    explicit Strings(FuzzInput& input) : m_input(input) {}

    void Step() {
        const std::size_t at = Slot(m_input);
        const std::size_t other = Slot(m_input);
        switch (m_input.Below(4)) {
        case 0:
            Replace(at, other);
            break;
        case 1:
            Change(at, other);
            break;
        case 2:
            Derive(at, other);
            break;
        default:
            Query(at, other);
            break;
        }
        if (m_reference[at].size() > kMaxLength) {
            m_strings[at].Resize(static_cast<int>(kMaxLength));
            m_reference[at].resize(kMaxLength);
        }
        CountOperations(1);
        for (std::size_t i = 0; i < kSlotCount; ++i)
            ExpectEqual(m_strings[i], m_reference[i], "a string after an operation");
    }

private:
    /// Assigns another text to a string.
    void Replace(std::size_t at, std::size_t other) {
        ZFXUnicodeString& string = m_strings[at];
        switch (m_input.Below(9)) {
        case 0:
            m_reference[at] = m_input.Text();
            string = ZFXUnicodeString(m_reference[at]);
            break;
        case 1:
            string = m_strings[other];
            m_reference[at] = m_reference[other];
            break;
        case 2:
            string = std::move(m_strings[other]);
            if (at != other)
                m_reference[at] = std::exchange(m_reference[other], Text());
            break;
        case 3: { // up to the first U+0000
            const std::string narrow = m_input.Bytes();
            string = narrow.c_str();
            m_reference[at] = Reference::FromUtf8(narrow.c_str());
            break;
        }
        case 4: // possibly its own UTF-8 form
            string = m_strings[other].ConvertToChar();
            m_reference[at] = Reference::FromUtf8(Reference::Utf8Of(m_reference[other]).c_str());
            break;
        case 5: {
            const int number = m_input.Number();
            string.BuildFromNum(number, m_input.Flag() ? "%d" : "%5d");
            string.BuildFromNum(number, "%d");
            m_reference[at] = Reference::ToDecimal(number);
            break;
        }
        case 6: { // possibly its own buffer
            std::vector<unsigned short> units(m_reference[other].begin(), m_reference[other].end());
            const int count = m_input.Below(static_cast<int>(std::min(units.size() + 1, std::size_t{256})));
            const auto* own = reinterpret_cast<const unsigned short*>(m_strings[other].Units().data());
            string.BuildFromUCChar(m_input.Flag() ? own : units.data(), count);
            m_reference[at] = Reference::Substring(m_reference[other], 0, count);
            break;
        }
        case 7: {
            const Text unit = m_input.Text().substr(0, 1);
            const auto count = static_cast<std::size_t>(m_input.Below(80));
            string = ZFXUnicodeString(ZFXUnicodeChar::FromUnit(unit.empty() ? char16_t{0} : unit[0]), count);
            m_reference[at] = Text(count, unit.empty() ? char16_t{0} : unit[0]);
            break;
        }
        default: {
            ZFXUnicodeString copy(m_strings[other]);
            ZFXUnicodeString moved(std::move(copy));
            copy = moved; // a moved-from string can be assigned
            std::swap(string, copy);
            m_reference[at] = m_reference[other];
            break;
        }
        }
    }

    /// Modifies a string in place.
    void Change(std::size_t at, std::size_t other) {
        ZFXUnicodeString& string = m_strings[at];
        const ZFXUnicodeString& argument = m_strings[other];
        const std::size_t third = Slot(m_input);
        const Text before = m_reference[at];
        const Text text = m_reference[other];
        switch (m_input.Below(9)) {
        case 0:
            ExpectTrue(&string.Append(argument) == &string, "Append returns the string itself");
            m_reference[at] = before + text;
            break;
        case 1:
            string.ReplaceAll(argument, m_strings[third]);
            m_reference[at] = Reference::Replaced(before, text, m_reference[third]);
            break;
        case 2: {
            const int position = text.empty() ? -1 : Reference::FindFirst(before, text, 0);
            ExpectEqual(string.ReplaceSubString(argument, m_strings[third]), position >= 0 ? 1 : 0, "ReplaceSubString");
            if (position >= 0)
                m_reference[at] =
                    Reference::Replaced(before, position, static_cast<int>(text.size()), Text(m_reference[third]));
            break;
        }
        case 3: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            string.ReplaceSubString(start, count, argument);
            m_reference[at] = Reference::Replaced(before, start, count, text);
            break;
        }
        case 4: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            string.Remove(start, count);
            m_reference[at] = Reference::Replaced(before, start, count, u"");
            break;
        }
        case 5: {
            const int length = m_input.Number();
            string.Resize(length);
            m_reference[at] = length < 0 ? before : Reference::Substring(before, 0, length);
            break;
        }
        case 6:
        case 7: {
            const bool up = m_input.Flag();
            up ? string.ToUpper() : string.ToLower();
            m_reference[at].clear();
            for (const Text& character : Reference::Characters(before))
                m_reference[at] += Mapped(character, up);
            break;
        }
        default: {
            string = ZFXUnicodeString(string.Units().substr(before.size() / 2)); // a part of the string itself
            m_reference[at] = before.substr(before.size() / 2);
            break;
        }
        }
    }

    /// Returns the case mapping of one character. Checks that the length is unchanged, and the result for ASCII.
    static Text Mapped(const Text& character, bool up) {
        ZFXUnicodeString mapped(character);
        up ? mapped.ToUpper() : mapped.ToLower();
        const char16_t unit = character[0];
        const bool changes = up ? unit >= u'a' && unit <= u'z' : unit >= u'A' && unit <= u'Z';
        if (unit < 0x80)
            ExpectEqual(mapped, Text(1, static_cast<char16_t>(changes ? unit ^ 0x20 : unit)), "the case of ASCII");
        ExpectEqual(mapped.GetLengthInChar(), static_cast<long>(character.size()), "a case mapping keeps the length");
        return Text(mapped.Units());
    }

    /// Assigns the result of an operation on other strings.
    void Derive(std::size_t at, std::size_t other) {
        const ZFXUnicodeString& string = m_strings[other];
        const Text text = m_reference[other];
        switch (m_input.Below(3)) {
        case 0: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            m_strings[at] = string.SubString(start, count);
            m_reference[at] = Reference::Substring(text, start, count);
            break;
        }
        case 1: {
            const std::size_t third = Slot(m_input);
            const Text sum = text + m_reference[third];
            m_strings[at] = string + m_strings[third];
            m_reference[at] = sum;
            break;
        }
        default: {
            const int end = 1 + m_input.Below(4);
            const auto mode = static_cast<ZFXUnicodeString::ZFXStripMode>(end);
            const bool isBlank = m_input.Flag();
            const char16_t unit = isBlank || text.empty() ? u' ' : text[text.size() / 2];
            m_strings[at] = isBlank ? string.Strip(mode) : string.Strip(mode, ZFXUnicodeChar::FromUnit(unit));
            m_reference[at] = Reference::Stripped(text, unit, static_cast<Reference::End>(end));
            break;
        }
        }
    }

    void Query(std::size_t at, std::size_t other) {
        const ZFXUnicodeString& string = m_strings[at];
        const ZFXUnicodeString& argument = m_strings[other];
        const Text& text = m_reference[at];
        const Text& sub = m_reference[other];
        ExpectEqual(string.GetLengthInChar(), static_cast<long>(text.size()), "GetLengthInChar");
        ExpectTrue((string.IsNull() != 0) == text.empty(), "IsNull");
        ExpectTrue((string == argument) == (text == sub), "operator==");
        switch (m_input.Below(5)) {
        case 0: {
            const int start = m_input.Number();
            ExpectEqual(string.SearchSubString(argument, start, ZFXUnicodeString::SearchForward),
                        Reference::FindFirst(text, sub, start), "SearchSubString forward");
            ExpectEqual(string.SearchSubString(argument, start, ZFXUnicodeString::SearchBackward),
                        Reference::FindLast(text, sub, start), "SearchSubString backward");
            break;
        }
        case 1: {
            const std::string narrow = Reference::Utf8Of(text);
            const char* result = string.ConvertToChar();
            ExpectEqual(std::string_view(result, narrow.size() + 1),
                        std::string_view(narrow.c_str(), narrow.size() + 1), "ConvertToChar");
            ExpectTrue(string.ConvertToChar() == result, "ConvertToChar returns the same buffer again");
            const std::string bytes = m_input.Flag() ? narrow : m_input.Bytes();
            ExpectTrue((string == bytes.c_str()) == (text == Reference::FromUtf8(bytes.c_str())),
                       "operator== with UTF-8");
            break;
        }
        case 2: {
            const std::optional<int> expected = Reference::NumberAtFront(text);
            int number = 7;
            ExpectEqual(string.ConvertToNum(&number, "%d"), expected ? 1 : 0, "ConvertToNum");
            ExpectEqual(number, expected.value_or(7), "ConvertToNum");
            break;
        }
        case 3: {
            const auto position = static_cast<std::size_t>(static_cast<unsigned>(m_input.Number()));
            ExpectTrue(string[position].ConvertToUC2Bytes() == (position < text.size() ? text[position] : 0),
                       "operator[]");
            break;
        }
        default:
            Compare(string, argument, text, sub);
            break;
        }
    }

    /// Checks that two texts compare as their characters do one by one.
    void Compare(const ZFXUnicodeString& string, const ZFXUnicodeString& argument, const Text& text, const Text& sub) {
        ExpectEqual(string.Compare(argument), argument.Compare(string), "Compare in both directions");
        ExpectEqual(string.Compare(argument), Expected(text, sub), "Compare");
        ZFXUnicodeString swapped(string);
        m_input.Flag() ? swapped.ToUpper() : swapped.ToLower();
        ExpectEqual(string.Compare(swapped), Expected(text, Text(swapped.Units())), "Compare with another case");
        const bool isAscii = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
        ExpectTrue(!isAscii || string.Compare(swapped) != 0, "ASCII compares equal in any case");
    }

    static int Expected(const Text& text, const Text& sub) {
        if (text == sub)
            return 2;
        const std::vector<Text> left = Reference::Characters(text);
        const std::vector<Text> right = Reference::Characters(sub);
        if (left.size() != right.size())
            return 0;
        for (std::size_t i = 0; i < left.size(); ++i)
            if (ZFXUnicodeString(left[i]).Compare(ZFXUnicodeString(right[i])) == 0)
                return 0;
        return 1;
    }

    FuzzInput& m_input;
    std::array<ZFXUnicodeString, kSlotCount> m_strings;
    std::array<Text, kSlotCount> m_reference;
};

/// An object that counts the existing instances.
class CountedObject final : public ZFXBaseUnknown {
public:
    CountedObject() { ++liveCount; }
    ~CountedObject() override { --liveCount; }

    static long liveCount;
};
long CountedObject::liveCount = 0;

/// Reads an element of the given type from the input.
template <class Element>
Element Make(FuzzInput& input);
template <>
int Make(FuzzInput& input) {
    return input.Number();
}
template <>
ZFXUnicodeString Make(FuzzInput& input) {
    return ZFXUnicodeString(input.Text());
}
template <>
ZFXBaseUnknown_var Make(FuzzInput& input) {
    return input.Flag() ? ZFXBaseUnknown_var::Attach(new CountedObject) : ZFXBaseUnknown_var();
}

/// Applies each operation to a list and to its reference vector, and compares all lists afterwards.
template <class Element>
class Lists {
public:
    explicit Lists(FuzzInput& input) : m_input(input) {}

    void Step() {
        const std::size_t at = Slot(m_input);
        const std::size_t other = Slot(m_input);
        Change(at, other);
        CountOperations(1);
        for (std::size_t i = 0; i < kSlotCount; ++i) {
            ExpectEqual(m_lists[i].Size(), static_cast<long>(m_reference[i].size()), "the size of a list");
            const ZFXListVal<Element>& list = m_lists[i];
            for (int index = 1; index <= list.Size(); ++index)
                ExpectTrue(list[index] == At(i, index), "an element of a list");
        }
    }

private:
    Element& At(std::size_t list, int index) { return m_reference[list][static_cast<std::size_t>(index) - 1]; }
    bool IsValidIndex(std::size_t list, int index) {
        return index >= 1 && index <= static_cast<int>(m_reference[list].size());
    }

    void Change(std::size_t at, std::size_t other) {
        ZFXListVal<Element>& list = m_lists[at];
        std::vector<Element>& reference = m_reference[at];
        const int index = m_input.Number();
        switch (m_input.Below(8)) {
        case 0:
            reference.push_back(Make<Element>(m_input));
            list.Append(reference.back());
            break;
        case 1: // an element of a list, possibly of this list
            if (reference.size() >= 40)
                break;
            reference.push_back(IsValidIndex(other, index) ? Element(At(other, index)) : Element());
            list.Append(m_lists[other][index]);
            break;
        case 2:
            if (IsValidIndex(at, index))
                reference.erase(reference.begin() + (index - 1));
            list.RemovePosition(index);
            break;
        case 3: {
            const Element wanted = IsValidIndex(other, index) ? At(other, index) : Make<Element>(m_input);
            const int from = m_input.Number();
            ExpectEqual(list.Locate(wanted, from), Located(reference, wanted, from), "Locate");
            ExpectEqual(list.NbOccur(wanted), std::count(reference.begin(), reference.end(), wanted), "NbOccur");
            break;
        }
        case 4:
            list = m_lists[other];
            reference = std::vector<Element>(m_reference[other]);
            break;
        case 5: {
            ZFXListVal<Element> copy(m_lists[other]);
            list = std::move(copy);
            reference = std::vector<Element>(m_reference[other]);
            break;
        }
        case 6:
            list.RemoveAll(ZFXCollec::ReleaseAllocation);
            reference.clear();
            break;
        default:
            list.Reserve(index % 1000);
            ExpectTrue(IsValidIndex(at, index) || list[index] == Element{},
                       "an index outside the list returns an empty element");
            break;
        }
    }

    static long Located(const std::vector<Element>& reference, const Element& wanted, int from) {
        for (std::size_t i = 0; i < reference.size(); ++i)
            if (static_cast<long>(i) + 1 >= from && reference[i] == wanted)
                return static_cast<long>(i) + 1;
        return 0;
    }

    FuzzInput& m_input;
    std::array<ZFXListVal<Element>, kSlotCount> m_lists;
    std::array<std::vector<Element>, kSlotCount> m_reference;
};

template <class Scenario>
void Run(FuzzInput& input) {
    Scenario scenario(input);
    while (!input.IsEmpty())
        scenario.Step();
}

constexpr void (*kScenarios[])(FuzzInput&) = {Run<Strings>,
                                              Run<Strings>,
                                              Run<Strings>,
                                              Run<Lists<int>>,
                                              Run<Lists<ZFXUnicodeString>>,
                                              Run<Lists<ZFXBaseUnknown_var>>};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    kScenarios[input.Below(std::size(kScenarios))](input);
    ExpectEqual(CountedObject::liveCount, 0, "a reference was not released");
    return 0;
}

// Strings and lists against those of the standard library, through any sequence of operations. An argument is often
// the object itself.

#include "FuzzInput.h"
#include "Operations.h"
#include "PlainText.h"

#include "collections/ZFXRawCollint.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace {

using Plain::Text;

constexpr std::size_t kSlots = 4;
constexpr std::size_t kLongest = 400;

std::size_t Slot(FuzzInput& input) { return static_cast<std::size_t>(input.Below(kSlots)); }

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
            Ask(at, other);
            break;
        }
        if (m_plain[at].size() > kLongest) {
            m_strings[at].Resize(static_cast<int>(kLongest));
            m_plain[at].resize(kLongest);
        }
        CountOperations(1);
        for (std::size_t i = 0; i < kSlots; ++i)
            ExpectSame(m_strings[i], m_plain[i], "a string after an operation");
    }

private:
    /// The string gets another text.
    void Replace(std::size_t at, std::size_t other) {
        ZFXUnicodeString& string = m_strings[at];
        switch (m_input.Below(9)) {
        case 0:
            m_plain[at] = m_input.Text();
            string = ZFXUnicodeString(m_plain[at]);
            break;
        case 1:
            string = m_strings[other];
            m_plain[at] = m_plain[other];
            break;
        case 2:
            string = std::move(m_strings[other]);
            if (at != other)
                m_plain[at] = std::exchange(m_plain[other], Text());
            break;
        case 3: { // up to the first U+0000
            const std::string narrow = m_input.Narrow();
            string = narrow.c_str();
            m_plain[at] = Plain::FromUtf8(narrow.c_str());
            break;
        }
        case 4: // possibly its own narrow form
            string = m_strings[other].ConvertToChar();
            m_plain[at] = Plain::FromUtf8(Plain::Utf8Of(m_plain[other]).c_str());
            break;
        case 5: {
            const int number = m_input.Number();
            string.BuildFromNum(number, m_input.Flag() ? "%d" : "%5d");
            string.BuildFromNum(number, "%d");
            m_plain[at] = Plain::Decimal(number);
            break;
        }
        case 6: { // possibly its own units
            std::vector<unsigned short> units(m_plain[other].begin(), m_plain[other].end());
            const int count = m_input.Below(static_cast<int>(std::min(units.size() + 1, std::size_t{256})));
            const auto* own = reinterpret_cast<const unsigned short*>(m_strings[other].Units().data());
            string.BuildFromUCChar(m_input.Flag() ? own : units.data(), count);
            m_plain[at] = Plain::Part(m_plain[other], 0, count);
            break;
        }
        case 7: {
            const Text unit = m_input.Text().substr(0, 1);
            const auto count = static_cast<std::size_t>(m_input.Below(80));
            string = ZFXUnicodeString(ZFXUnicodeChar::FromUnit(unit.empty() ? char16_t{0} : unit[0]), count);
            m_plain[at] = Text(count, unit.empty() ? char16_t{0} : unit[0]);
            break;
        }
        default: {
            ZFXUnicodeString copy(m_strings[other]);
            ZFXUnicodeString moved(std::move(copy));
            copy = moved; // a string that was moved from can be used again
            std::swap(string, copy);
            m_plain[at] = m_plain[other];
            break;
        }
        }
    }

    /// In place.
    void Change(std::size_t at, std::size_t other) {
        ZFXUnicodeString& string = m_strings[at];
        const ZFXUnicodeString& argument = m_strings[other];
        const std::size_t third = Slot(m_input);
        const Text before = m_plain[at];
        const Text text = m_plain[other];
        switch (m_input.Below(9)) {
        case 0:
            ExpectThat(&string.Append(argument) == &string, "Append gives the string itself");
            m_plain[at] = before + text;
            break;
        case 1:
            string.ReplaceAll(argument, m_strings[third]);
            m_plain[at] = Plain::Replaced(before, text, m_plain[third]);
            break;
        case 2: {
            const int place = text.empty() ? -1 : Plain::FirstPlace(before, text, 0);
            ExpectSame(string.ReplaceSubString(argument, m_strings[third]), place >= 0 ? 1 : 0, "ReplaceSubString");
            if (place >= 0)
                m_plain[at] = Plain::Replaced(before, place, static_cast<int>(text.size()), Text(m_plain[third]));
            break;
        }
        case 3: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            string.ReplaceSubString(start, count, argument);
            m_plain[at] = Plain::Replaced(before, start, count, text);
            break;
        }
        case 4: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            string.Remove(start, count);
            m_plain[at] = Plain::Replaced(before, start, count, u"");
            break;
        }
        case 5: {
            const int length = m_input.Number();
            string.Resize(length);
            m_plain[at] = length < 0 ? before : Plain::Part(before, 0, length);
            break;
        }
        case 6:
        case 7: {
            const bool up = m_input.Flag();
            up ? string.ToUpper() : string.ToLower();
            m_plain[at].clear();
            for (const Text& character : Plain::Characters(before))
                m_plain[at] += Mapped(character, up);
            break;
        }
        default: {
            string = ZFXUnicodeString(string.Units().substr(before.size() / 2)); // a part of itself
            m_plain[at] = before.substr(before.size() / 2);
            break;
        }
        }
    }

    /// One character alone: with ASCII the answer is known, and no length changes.
    static Text Mapped(const Text& character, bool up) {
        ZFXUnicodeString mapped(character);
        up ? mapped.ToUpper() : mapped.ToLower();
        const char16_t unit = character[0];
        const bool changes = up ? unit >= u'a' && unit <= u'z' : unit >= u'A' && unit <= u'Z';
        if (unit < 0x80)
            ExpectSame(mapped, Text(1, static_cast<char16_t>(changes ? unit ^ 0x20 : unit)), "the case of ASCII");
        ExpectSame(mapped.GetLengthInChar(), static_cast<long>(character.size()), "a case mapping keeps the length");
        return Text(mapped.Units());
    }

    /// A new string from others.
    void Derive(std::size_t at, std::size_t other) {
        const ZFXUnicodeString& string = m_strings[other];
        const Text text = m_plain[other];
        switch (m_input.Below(3)) {
        case 0: {
            const int start = m_input.Number();
            const int count = m_input.Number();
            m_strings[at] = string.SubString(start, count);
            m_plain[at] = Plain::Part(text, start, count);
            break;
        }
        case 1: {
            const std::size_t third = Slot(m_input);
            const Text sum = text + m_plain[third];
            m_strings[at] = string + m_strings[third];
            m_plain[at] = sum;
            break;
        }
        default: {
            const int end = 1 + m_input.Below(4);
            const auto mode = static_cast<ZFXUnicodeString::ZFXStripMode>(end);
            const bool isBlank = m_input.Flag();
            const char16_t unit = isBlank || text.empty() ? u' ' : text[text.size() / 2];
            m_strings[at] = isBlank ? string.Strip(mode) : string.Strip(mode, ZFXUnicodeChar::FromUnit(unit));
            m_plain[at] = Plain::Stripped(text, unit, static_cast<Plain::End>(end));
            break;
        }
        }
    }

    void Ask(std::size_t at, std::size_t other) {
        const ZFXUnicodeString& string = m_strings[at];
        const ZFXUnicodeString& argument = m_strings[other];
        const Text& text = m_plain[at];
        const Text& sub = m_plain[other];
        ExpectSame(string.GetLengthInChar(), static_cast<long>(text.size()), "GetLengthInChar");
        ExpectThat((string.IsNull() != 0) == text.empty(), "IsNull");
        ExpectThat((string == argument) == (text == sub), "operator==");
        switch (m_input.Below(5)) {
        case 0: {
            const int start = m_input.Number();
            ExpectSame(string.SearchSubString(argument, start, ZFXUnicodeString::SearchForward),
                       Plain::FirstPlace(text, sub, start), "SearchSubString forward");
            ExpectSame(string.SearchSubString(argument, start, ZFXUnicodeString::SearchBackward),
                       Plain::LastPlace(text, sub, start), "SearchSubString backward");
            break;
        }
        case 1: {
            const std::string narrow = Plain::Utf8Of(text);
            const char* answer = string.ConvertToChar();
            ExpectSame(std::string_view(answer, narrow.size() + 1), std::string_view(narrow.c_str(), narrow.size() + 1),
                       "ConvertToChar");
            ExpectThat(string.ConvertToChar() == answer, "the narrow form stays where it is");
            const std::string told = m_input.Flag() ? narrow : m_input.Narrow();
            ExpectThat((string == told.c_str()) == (text == Plain::FromUtf8(told.c_str())), "operator== with UTF-8");
            break;
        }
        case 2: {
            const std::optional<int> expected = Plain::NumberAtFront(text);
            int number = 7;
            ExpectSame(string.ConvertToNum(&number, "%d"), expected ? 1 : 0, "ConvertToNum");
            ExpectSame(number, expected.value_or(7), "ConvertToNum");
            break;
        }
        case 3: {
            const auto place = static_cast<std::size_t>(static_cast<unsigned>(m_input.Number()));
            ExpectThat(string[place].ConvertToUC2Bytes() == (place < text.size() ? text[place] : 0), "operator[]");
            break;
        }
        default:
            Compare(string, argument, text, sub);
            break;
        }
    }

    /// Names clash as a whole when their characters do one by one.
    void Compare(const ZFXUnicodeString& string, const ZFXUnicodeString& argument, const Text& text, const Text& sub) {
        ExpectSame(string.Compare(argument), argument.Compare(string), "Compare in both directions");
        ExpectSame(string.Compare(argument), Expected(text, sub), "Compare");
        ZFXUnicodeString swapped(string);
        m_input.Flag() ? swapped.ToUpper() : swapped.ToLower();
        ExpectSame(string.Compare(swapped), Expected(text, Text(swapped.Units())), "Compare with another case");
        const bool isAscii = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
        ExpectThat(!isAscii || string.Compare(swapped) != 0, "ASCII compares equal in any case");
    }

    static int Expected(const Text& text, const Text& sub) {
        if (text == sub)
            return 2;
        const std::vector<Text> left = Plain::Characters(text);
        const std::vector<Text> right = Plain::Characters(sub);
        if (left.size() != right.size())
            return 0;
        for (std::size_t i = 0; i < left.size(); ++i)
            if (ZFXUnicodeString(left[i]).Compare(ZFXUnicodeString(right[i])) == 0)
                return 0;
        return 1;
    }

    FuzzInput& m_input;
    std::array<ZFXUnicodeString, kSlots> m_strings;
    std::array<Text, kSlots> m_plain;
};

/// An object of which it is known whether it lives.
class Thing final : public ZFXBaseUnknown {
public:
    Thing() { ++living; }
    ~Thing() override { --living; }

    static long living;
};
long Thing::living = 0;

/// How to make an element from the input, for each type of element.
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
    return input.Flag() ? ZFXBaseUnknown_var::TakeOver(new Thing) : ZFXBaseUnknown_var();
}

template <class Element>
class Lists {
public:
    explicit Lists(FuzzInput& input) : m_input(input) {}

    void Step() {
        const std::size_t at = Slot(m_input);
        const std::size_t other = Slot(m_input);
        Change(at, other);
        CountOperations(1);
        for (std::size_t i = 0; i < kSlots; ++i) {
            ExpectSame(m_lists[i].Size(), static_cast<long>(m_plain[i].size()), "the size of a list");
            const ZFXListVal<Element>& list = m_lists[i];
            for (int place = 1; place <= list.Size(); ++place)
                ExpectThat(list[place] == At(i, place), "an element of a list");
        }
    }

private:
    Element& At(std::size_t list, int place) { return m_plain[list][static_cast<std::size_t>(place) - 1]; }
    bool Holds(std::size_t list, int place) { return place >= 1 && place <= static_cast<int>(m_plain[list].size()); }

    void Change(std::size_t at, std::size_t other) {
        ZFXListVal<Element>& list = m_lists[at];
        std::vector<Element>& plain = m_plain[at];
        const int place = m_input.Number();
        switch (m_input.Below(8)) {
        case 0:
            plain.push_back(Make<Element>(m_input));
            list.Append(plain.back());
            break;
        case 1: // an element of a list, possibly of the same one
            if (plain.size() >= 40)
                break;
            plain.push_back(Holds(other, place) ? Element(At(other, place)) : Element());
            list.Append(m_lists[other][place]);
            break;
        case 2:
            if (Holds(at, place))
                plain.erase(plain.begin() + (place - 1));
            list.RemovePosition(place);
            break;
        case 3: {
            const Element wanted = Holds(other, place) ? At(other, place) : Make<Element>(m_input);
            const int from = m_input.Number();
            ExpectSame(list.Locate(wanted, from), Located(plain, wanted, from), "Locate");
            ExpectSame(list.NbOccur(wanted), std::count(plain.begin(), plain.end(), wanted), "NbOccur");
            break;
        }
        case 4:
            list = m_lists[other];
            plain = std::vector<Element>(m_plain[other]);
            break;
        case 5: {
            ZFXListVal<Element> copy(m_lists[other]);
            list = std::move(copy);
            plain = std::vector<Element>(m_plain[other]);
            break;
        }
        case 6:
            list.RemoveAll(ZFXCollec::ReleaseAllocation);
            plain.clear();
            break;
        default:
            list.Reserve(place % 1000);
            ExpectThat(Holds(at, place) || list[place] == Element{}, "outside a list there is nothing");
            break;
        }
    }

    static long Located(const std::vector<Element>& plain, const Element& wanted, int from) {
        for (std::size_t i = 0; i < plain.size(); ++i)
            if (static_cast<long>(i) + 1 >= from && plain[i] == wanted)
                return static_cast<long>(i) + 1;
        return 0;
    }

    FuzzInput& m_input;
    std::array<ZFXListVal<Element>, kSlots> m_lists;
    std::array<std::vector<Element>, kSlots> m_plain;
};

template <class Story>
void Tell(FuzzInput& input) {
    Story story(input);
    while (!input.IsSpent())
        story.Step();
}

constexpr void (*kStories[])(FuzzInput&) = {Tell<Strings>,
                                            Tell<Strings>,
                                            Tell<Strings>,
                                            Tell<Lists<int>>,
                                            Tell<Lists<ZFXUnicodeString>>,
                                            Tell<Lists<ZFXBaseUnknown_var>>};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    kStories[input.Below(std::size(kStories))](input);
    ExpectSame(Thing::living, 0, "a reference was not released");
    return 0;
}

#include "ReferenceRules.h"

#include <limits>
#include <set>

namespace Reference {
namespace {

constexpr View kReserved = uR"(".\)"; // in file names: the first two
constexpr View kIllegal = uR"($*?,#!&~()[]{}|:;'`/><)";

bool IsSpace(char16_t unit) {
    constexpr View kSpaces = u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008"
                             u"\u2009\u200A\u2028\u2029\u202F\u205F\u3000";
    return ContainsAny(kSpaces, View(&unit, 1));
}

} // namespace

std::string NameResult(View name, bool checkStart) {
    if (name.empty())
        return "NameLengthERR_02";
    if (name.size() > 72)
        return "NameLengthERR_01";
    if (checkStart && name[0] >= u'0' && name[0] <= u'9')
        return "LeadingDigitERR_01";
    return ContainsAny(name, kReserved) ? "IllegalCharERR_01 -100" : "S_OK";
}

std::string FileNameResult(View name) {
    if (ContainsAny(name, kReserved.substr(0, 2)))
        return "IllegalCharERR_01 -100";
    return HasIllegalCharacter(name) || ContainsAny(name, u" ") ? "IllegalCharERR_02 -100" : "S_OK";
}

std::string FeatureNameResult(View name, bool checkStart) {
    const std::string result = NameResult(name, checkStart);
    return result == "S_OK" && !UnitsAbove(name, 0xFF).empty() ? "DoubleByteCharErr_01" : result;
}

bool HasIllegalCharacter(View name) { return ContainsAny(name, kIllegal); }

Text UnitsAbove(View name, char16_t limit) {
    Text listed;
    for (const char16_t unit : name)
        if (unit > limit)
            (listed += unit) += u"  ";
    if (!listed.empty())
        listed.pop_back();
    return listed;
}

Text WithoutIllegalCharacters(View name) {
    Text clean = Stripped(name, u' ', Everywhere);
    for (const char16_t unit : kIllegal)
        clean = Stripped(clean, unit, Everywhere);
    return clean;
}

Text Quoted(View name) {
    const bool must = ContainsAny(name, u" ") && name.front() != u'"';
    return must ? Text(u"\"").append(name) + u"\"" : Text(name);
}

Text Padded(View name, View suffix, View prefix) {
    const std::string narrow = Utf8Of(suffix);
    const Text whole = Text(prefix).append(name) + u"_" + FromUtf8(narrow.c_str());
    return Substring(Stripped(whole, u' ', Everywhere), 0, 80);
}

Text Trimmed(View name) { return Stripped(Stripped(name, u' ', Both), u'_', Both); }

Integers IntegersOf(View text, View separator) {
    Integers found{{}, Text(text)};
    for (;;) {
        const int at = separator.empty() ? -1 : FindLast(found.rest, separator, 0);
        const Text token = at == -1 ? found.rest : Substring(found.rest, at + 1, -1);
        if (const std::optional<int> number = NumberAtFront(token))
            found.numbers.push_back(*number);
        if (at == -1)
            return found;
        found.rest = Substring(found.rest, 0, at);
    }
}

Text NextName(View base, std::vector<Text>& names, bool ignoreCase) {
    const Text wanted = ignoreCase ? LoweredAscii(base) : Text(base);
    std::set<int> inUse{0};
    for (const Text& stored : names) {
        const Text name = ignoreCase ? LoweredAscii(stored) : stored;
        if (BeginsWith(name, wanted))
            inUse.insert(NumberAtFront(Substring(name, static_cast<int>(wanted.size()), -1)).value_or(0));
    }
    int next = 1;
    if (*inUse.rbegin() < std::numeric_limits<int>::max())
        next = *inUse.rbegin() + 1;
    else
        while (inUse.contains(next))
            ++next;
    return names.emplace_back(Text(base) + ToDecimal(next));
}

Text DeckNameBase(View display) {
    const int colon = FindLast(display, u":", 0);
    Text base(display);
    if (colon >= 0 && colon + 1 < static_cast<int>(display.size()))
        base = Substring(display, colon + 1, -1);
    if (colon > 0)
        base = Substring(base, 1, -1);
    base = Stripped(Stripped(base, u'"', Everywhere), u'_', Leading);
    for (Text before = base + u"?"; before != base;) {
        before = base;
        base = Stripped(Stripped(Stripped(base, u' ', Leading), u' ', Trailing), u'_', Trailing);
        if (base.empty() || !(IsSpace(base.back()) || base.back() == u'_'))
            break;
    }
    return Replaced(Replaced(base, u".", u"-"), u"\\", u"/");
}

Text DeckName(View word, int tag, View base) {
    const Text front = Text(word) + ToDecimal(tag);
    return Substring(base.empty() ? front : (front + u"-").append(base), 0, 72);
}

Text WithoutTypePrefix(View name) {
    // U+017F is the one character beyond ASCII whose upper case is a letter of these prefixes.
    const Text prefix = LoweredAscii(Replaced(Substring(name, 0, 3), u"\u017F", u"s"));
    return prefix == u"qvr" || prefix == u"sam" || prefix == u"lms" ? Substring(name, 3, -1) : Text(name);
}

} // namespace Reference

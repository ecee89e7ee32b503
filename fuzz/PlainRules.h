#pragma once

#include "PlainText.h"

/// The rules about names by their words, on plain texts.
namespace Plain {

/// The result of a check, in the format of ResultText.
/// @{
std::string NameVerdict(View name, bool checkStart);
std::string FileNameVerdict(View name);
/// NameVerdict, then the units above U+00FF.
std::string TextVerdict(View name, bool checkStart);
/// @}
bool IsQuietlyIllegal(View name);
/// The units above the limit as they are listed for the user; empty when there is none.
Text Offending(View name, char16_t limit);
Text WithoutIllegal(View name);
Text Quoted(View name);
/// `suffix` as it is left by the call.
Text Padded(View name, View suffix, View prefix);
/// As the guard of new names stores it.
Text Trimmed(View name);

struct Integers {
    std::vector<int> numbers;
    Text rest;
};
Integers IntegersOf(View text, View separator);

/// The next number behind the base, and the one that follows when the first is taken: `names` gets it.
Text NextName(View base, std::vector<Text>& names, bool ignoreCase = false);

/// What stands behind the word and the tag in the deck's name of a mesh part; not for orphan meshes.
Text DeckBase(View display);
Text DeckName(View word, int tag, View base);
/// Without "QVR", "SAM" or "LMS" in front.
Text WithoutTypePrefix(View name);

} // namespace Plain

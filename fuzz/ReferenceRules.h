#pragma once

#include "ReferenceText.h"

/// Reference implementations of the rules about names, written from their definitions and without code of the library.
namespace Reference {

/// Return the result of a check, in the format of ResultText.
/// @{
std::string NameResult(View name, bool checkStart);
std::string FileNameResult(View name);
/// Checks like NameResult, then for units above U+00FF.
std::string FeatureNameResult(View name, bool checkStart);
/// @}
bool HasIllegalCharacter(View name);
/// Returns the units above the limit in the format of the error's parameter, or an empty text if there are none.
Text UnitsAbove(View name, char16_t limit);
Text WithoutIllegalCharacters(View name);
Text Quoted(View name);
/// Expects `suffix` without illegal characters.
Text Padded(View name, View suffix, View prefix);
/// Returns the form of a new name that the guarded alias stores.
Text Trimmed(View name);

struct Integers {
    std::vector<int> numbers;
    Text rest;
};
Integers IntegersOf(View text, View separator);

/// Returns the base followed by the next number, and appends this name to `names`, so that the next call returns
/// another one.
Text NextName(View base, std::vector<Text>& names, bool ignoreCase = false);

/// Returns the last part of a mesh part's name in the deck, after the word and the tag. Not for orphan meshes.
Text DeckNameBase(View display);
Text DeckName(View word, int tag, View base);
/// Returns the name without a leading "QVR", "SAM" or "LMS", in any letter case.
Text WithoutTypePrefix(View name);

} // namespace Reference

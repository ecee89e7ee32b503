#pragma once

#include "document/JsonText.h"
#include "text/ZFXUnicodeString.h"

// Values of a document file as what the document needs. Each ends the reading, with the place, for a value
// that is something else.

void ExpectKind(JsonValue value, JsonKind kind);
ZFXUnicodeString ReadText(JsonValue value);
/// A text that is not empty, such as a late type.
std::string ReadWord(JsonValue value);
bool ReadBool(JsonValue value);
int ReadInt(JsonValue value);

#pragma once

#include "document/DocumentKeys.h"
#include "document/JsonText.h"
#include "text/ZFXUnicodeString.h"

#include <array>

/// What an object of the file says, by key; empty where it says nothing.
class ObjectFields {
public:
    /// BadInput for a key that objects of this kind do not take, and for one that stands twice.
    ObjectFields(JsonValue object, MemoryKind kind);

    JsonValue operator[](DocumentKey key) const { return m_values[static_cast<std::size_t>(key)]; }

    /// Tells the feature what the object says of itself, but for what names other objects.
    void ApplyTo(MemoryFeature feature) const;

private:
    void ApplyAttributes(MemoryFeature feature) const;
    template <class Visit>
    void ForEachInterface(DocumentKey key, Visit visit) const;

    std::array<JsonValue, kDocumentKeys> m_values;
};

// Values of a document file as what the document needs. Each ends the reading, with the place, for a value
// that is something else.

void ExpectKind(JsonValue value, JsonKind kind);
ZFXUnicodeString ReadText(JsonValue value);
/// A text that is not empty, such as a late type.
std::string ReadNonEmptyText(JsonValue value);
bool ReadBool(JsonValue value);
int ReadInt(JsonValue value);

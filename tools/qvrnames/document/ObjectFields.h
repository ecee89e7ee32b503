#pragma once

#include "document/DocumentKeys.h"
#include "document/JsonText.h"
#include "text/ZFXUnicodeString.h"

#include <array>

/// The values of one JSON object of a document file by key, without a search per access.
class ObjectFields {
public:
    /// Throws BadInput for a key that objects of the kind do not take, and for a duplicate key.
    ObjectFields(JsonValue object, MemoryKind kind);

    /// Returns the value of the key, or no value if the object does not contain the key.
    JsonValue operator[](DocumentKey key) const { return m_values[static_cast<std::size_t>(key)]; }

    /// Sets the flags, texts, attributes and interfaces of the feature. References to other objects are not handled
    /// here. Throws BadInput for a value of the wrong kind.
    void ApplyTo(MemoryFeature feature) const;

private:
    void ApplyAttributes(MemoryFeature feature) const;
    template <class Visit>
    void ForEachInterface(DocumentKey key, Visit visit) const;

    std::array<JsonValue, kDocumentKeyCount> m_values;
};

// Typed values. Each function throws BadInput with the position of a value that has another type or is out of range.

void ExpectKind(JsonValue value, JsonKind kind);
[[nodiscard]] ZFXUnicodeString ReadText(JsonValue value);
[[nodiscard]] std::string ReadNonEmptyText(JsonValue value);
[[nodiscard]] bool ReadBool(JsonValue value);
[[nodiscard]] int ReadInt(JsonValue value);

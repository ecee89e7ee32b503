#include "document/ObjectFields.h"

#include "document/EditDistance.h"

#include <charconv>
#include <limits>
#include <set>

ObjectFields::ObjectFields(JsonValue object, MemoryKind kind) {
    ExpectKind(object, JsonKind::Object);
    object.ForEachMember([&](JsonValue key, JsonValue value) {
        const std::string spelling = key.Text();
        const std::optional<DocumentKey> known = FindDocumentKey(spelling, kind);
        if (!known)
            key.ThrowError("unknown key \"" + spelling + "\"; " + Suggestion(spelling, KeysFor(kind)));
        JsonValue& slot = m_values[static_cast<std::size_t>(*known)];
        if (slot)
            key.ThrowError("duplicate key \"" + spelling + "\"");
        slot = value;
    });
}

void ObjectFields::ApplyTo(MemoryFeature feature) const {
    const ObjectFields& fields = *this;
    for (const DocumentKey ignored : {DocumentKey::Comment, DocumentKey::Schema})
        if (const JsonValue text = fields[ignored])
            ExpectKind(text, JsonKind::String);
    if (const JsonValue propagated = fields[DocumentKey::Propagated])
        feature.Propagated(ReadBool(propagated));
    if (const JsonValue property = fields[DocumentKey::Property])
        feature.Property(ReadBool(property));
    if (const JsonValue amplitude = fields[DocumentKey::Amplitude])
        feature.Amplitude(ReadBool(amplitude));
    if (const JsonValue solver = fields[DocumentKey::SolverCase])
        feature.SolverCase(ReadBool(solver));
    if (const JsonValue tag = fields[DocumentKey::Tag])
        feature.Tag(ReadInt(tag));
    if (const JsonValue material = fields[DocumentKey::MaterialName])
        feature.MaterialName(ReadText(material));
    ApplyAttributes(feature);
    ForEachInterface(DocumentKey::Offers, [&](const IID& iid) { feature.With(iid); });
    ForEachInterface(DocumentKey::Withholds, [&](const IID& iid) { feature.Without(iid); });
}

void ObjectFields::ApplyAttributes(MemoryFeature feature) const {
    const JsonValue attributes = (*this)[DocumentKey::Attributes];
    if (!attributes)
        return;
    ExpectKind(attributes, JsonKind::Object);
    std::set<std::string> known;
    attributes.ForEachMember([&](JsonValue key, JsonValue value) {
        const std::string name = ReadNonEmptyText(key);
        if (name == "Alias")
            key.ThrowError(R"(the attribute "Alias" is not allowed here; use the key "name" of the object)");
        if (!known.insert(name).second)
            key.ThrowError("duplicate key \"" + name + "\"");
        feature.Attribute(name.c_str(), ReadText(value));
    });
}

template <class Visit>
void ObjectFields::ForEachInterface(DocumentKey key, Visit visit) const {
    static const std::vector<std::string> known = {
#define ZFX_INTERFACE(name) #name,
#include "object-model/ZFXInterfaces.def"
#undef ZFX_INTERFACE
    };
    const JsonValue names = (*this)[key];
    if (!names)
        return;
    ExpectKind(names, JsonKind::Array);
    names.ForEachElement([&](std::size_t, JsonValue element) {
        const std::string name = ReadNonEmptyText(element);
        const IID* iid = ZFXFindInterface(name.c_str());
        if (iid == nullptr || *iid == IID_ZFXBaseUnknown)
            element.ThrowError("unknown interface \"" + name + "\"; " + Suggestion(name, known));
        visit(*iid);
    });
}

namespace {

const char* KindName(JsonKind kind) {
    switch (kind) {
    case JsonKind::Object:
        return "an object";
    case JsonKind::Array:
        return "a list";
    case JsonKind::String:
        return "a string";
    case JsonKind::Number:
        return "a number";
    case JsonKind::Boolean:
        return "true or false";
    case JsonKind::Null:
        break;
    }
    return "null";
}

std::string ReadUtf8(JsonValue value) {
    ExpectKind(value, JsonKind::String);
    std::string text = value.Text();
    if (text.find('\0') != std::string::npos) // would end a narrow string
        value.ThrowError("expected a string without the character U+0000");
    return text;
}

} // namespace

void ExpectKind(JsonValue value, JsonKind kind) {
    if (value.Kind() != kind)
        value.ThrowError(std::string("expected ") + KindName(kind) + ", found " + KindName(value.Kind()));
}

ZFXUnicodeString ReadText(JsonValue value) { return ReadUtf8(value).c_str(); }

std::string ReadNonEmptyText(JsonValue value) {
    std::string text = ReadUtf8(value);
    if (text.empty())
        value.ThrowError("expected a string that is not empty");
    return text;
}

bool ReadBool(JsonValue value) {
    ExpectKind(value, JsonKind::Boolean);
    return value.Literal() == "true";
}

int ReadInt(JsonValue value) {
    ExpectKind(value, JsonKind::Number);
    const std::string_view digits = value.Literal();
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        value.ThrowError("expected an integer from " + std::to_string(std::numeric_limits<int>::min()) + " to " +
                         std::to_string(std::numeric_limits<int>::max()) + ", found " +
                         std::string(digits.substr(0, 40)));
    return number;
}

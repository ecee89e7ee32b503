#include "document/ObjectFields.h"

#include "document/EditDistance.h"
#include "document/JsonFields.h"

#include <set>

ObjectFields::ObjectFields(JsonValue object, MemoryKind kind) {
    ExpectKind(object, JsonKind::Object);
    object.ForEachMember([&](JsonValue key, JsonValue value) {
        const std::string spelling = key.Text();
        const std::optional<DocumentKey> known = FindDocumentKey(spelling, kind);
        if (!known)
            key.Refuse("unknown key \"" + spelling + "\"; " + Suggestion(spelling, KeysOf(kind)));
        JsonValue& taken = m_values[static_cast<std::size_t>(*known)];
        if (taken)
            key.Refuse("the key \"" + spelling + "\" stands here twice");
        taken = value;
    });
}

void ObjectFields::Describe(MemoryFeature feature) const {
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
    ReadAttributes(feature);
    ForEachInterface(DocumentKey::Offers, [&](const IID& iid) { feature.With(iid); });
    ForEachInterface(DocumentKey::Withholds, [&](const IID& iid) { feature.Without(iid); });
}

void ObjectFields::ReadAttributes(MemoryFeature feature) const {
    const JsonValue attributes = (*this)[DocumentKey::Attributes];
    if (!attributes)
        return;
    ExpectKind(attributes, JsonKind::Object);
    std::set<std::string> known;
    attributes.ForEachMember([&](JsonValue key, JsonValue value) {
        const std::string name = ReadWord(key);
        if (name == "Alias")
            key.Refuse(R"(the attribute "Alias" is written as the key "name" of the object)");
        if (!known.insert(name).second)
            key.Refuse("the key \"" + name + "\" stands here twice");
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
        const std::string name = ReadWord(element);
        const IID* iid = ZFXFindInterface(name.c_str());
        if (iid == nullptr || *iid == IID_ZFXBaseUnknown)
            element.Refuse("unknown interface \"" + name + "\"; " + Suggestion(name, known));
        visit(*iid);
    });
}

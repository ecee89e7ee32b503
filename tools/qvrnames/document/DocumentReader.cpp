#include "document/DocumentLinks.h"
#include "document/LoadedDocument.h"
#include "document/ObjectFields.h"

#include "LateTypes.h"

#include <optional>
#include <utility>

// How a document file becomes an analysis document: one pass over the objects of the file, then one over
// their references. The order of the keys in an object means nothing.

namespace {

class DocumentReader {
public:
    explicit DocumentReader(LoadedDocument& loaded) : m_loaded(loaded) {}

    void Read() {
        const JsonValue root = m_loaded.text.Root();
        const ObjectFields fields(root, MemoryKind::Model);
        m_loaded.entries.push_back({.feature = m_loaded.document.Model(), .begin = Offset(root)});
        Describe(0, fields);
        ReadChildren(0, MemoryKind::Model, fields);
        m_links.ResolveLinks(m_loaded);
        if (m_firstIsCurrent)
            m_loaded.document.MakeCurrent(m_firstCase);
    }

private:
    static std::uint32_t Offset(JsonValue value) { return static_cast<std::uint32_t>(value.Begin()); }

    /// The object and all below it.
    void ReadObject(JsonValue object, const ChildKey& place, std::uint32_t parent, std::uint32_t index) {
        const ObjectFields fields(object, place.kind);
        const JsonValue type = fields[DocumentKey::Type];
        if (!type && place.defaultType == nullptr)
            object.ThrowError("expected the key \"type\", the late type of the object");
        const std::string lateType = type ? ReadNonEmptyText(type) : place.defaultType;
        const JsonValue name = fields[DocumentKey::Name];
        const MemoryFeature made =
            CreateObject(place, parent, lateType.c_str(), name ? ReadText(name) : ZFXUnicodeString());
        const auto entry = static_cast<std::uint32_t>(m_loaded.entries.size());
        m_loaded.entries.push_back({made, Offset(object), parent, index, place.key, static_cast<bool>(name)});
        Describe(entry, fields);
        if (place.kind == MemoryKind::Case)
            DescribeCase(made, fields);
        ReadChildren(entry, place.kind, fields);
    }

    MemoryFeature CreateObject(const ChildKey& place, std::uint32_t parent, const char* type,
                               const ZFXUnicodeString& name) {
        MemoryFeature above = m_loaded.entries[parent].feature;
        if (place.key == DocumentKey::MeshManager)
            return m_loaded.document.MeshManager().Alias(name);
        if (place.key == DocumentKey::Steps)
            above = above.History();
        if (place.key == DocumentKey::Jobs && m_loaded.entries[parent].key == DocumentKey::Cases)
            above = m_jobs;
        MemoryFeature made = above.Add(place.kind, type, name);
        if (place.kind == MemoryKind::Material)
            made.MaterialName(name); // the usual case
        return made;
    }

    void ReadChildren(std::uint32_t entry, MemoryKind kind, const ObjectFields& fields) {
        for (const ChildKey& place : kChildKeys) {
            const JsonValue value = fields[place.key];
            if (!value || IsNullHistory(place.key, value))
                continue;
            if (!place.isList) {
                ReadObject(value, place, entry, DocumentEntry::kNone);
                continue;
            }
            ExpectKind(value, JsonKind::Array);
            value.ForEachElement([&](std::size_t index, JsonValue element) {
                ReadElement(element, place, entry, static_cast<std::uint32_t>(index), kind);
            });
        }
    }

    /// An element of a list: an object that is made here or, on a side of a connection, one that is told by
    /// its id.
    void ReadElement(JsonValue element, const ChildKey& place, std::uint32_t entry, std::uint32_t index,
                     MemoryKind kind) {
        const std::optional<LinkKind> side = SideOf(place.key, kind);
        if (side && element.Kind() == JsonKind::String) {
            m_links.Add(*side, entry, element);
            return;
        }
        const auto made = static_cast<std::uint32_t>(m_loaded.entries.size());
        ReadObject(element, place, entry, index);
        if (side)
            m_links.Add(*side, entry, made);
    }

    /// Returns how the elements of the list are linked to the owner of the list; nothing if they are only below it.
    static std::optional<LinkKind> SideOf(DocumentKey key, MemoryKind owner) {
        if (key == DocumentKey::Master)
            return LinkKind::MasterConnector;
        if (key == DocumentKey::Slave)
            return LinkKind::SlaveConnector;
        if (key == DocumentKey::Connectors && owner == MemoryKind::Support)
            return LinkKind::Connector;
        return std::nullopt;
    }

    void Describe(std::uint32_t entry, const ObjectFields& fields) {
        fields.ApplyTo(m_loaded.entries[entry].feature);
        if (const JsonValue id = fields[DocumentKey::Id])
            RegisterId(id, entry);
        if (const JsonValue father = fields[DocumentKey::Father])
            AddLink(LinkKind::Father, entry, father, father.Kind() == JsonKind::Null);
        if (const JsonValue group = fields[DocumentKey::Group])
            AddLink(LinkKind::Group, entry, group);
        AddLinks(LinkKind::PointedAtBy, entry, fields[DocumentKey::PointedAtBy]);
        AddLinks(LinkKind::Member, entry, fields[DocumentKey::Holds]);
    }

    void RegisterId(JsonValue value, std::uint32_t entry) {
        const std::string id = ReadNonEmptyText(value);
        if (id.front() == '/')
            value.ThrowError("expected an id that does not begin with \"/\", as JSON pointers do");
        const auto [known, isNew] = m_loaded.ids.emplace(id, entry);
        if (!isNew)
            value.ThrowError("the id \"" + id + "\" is that of another object, at " +
                             m_loaded.text.LineAndColumn(m_loaded.entries[known->second].begin));
    }

    void AddLinks(LinkKind kind, std::uint32_t entry, JsonValue list) {
        if (!list)
            return;
        ExpectKind(list, JsonKind::Array);
        list.ForEachElement([&](std::size_t, JsonValue reference) { AddLink(kind, entry, reference); });
    }

    void AddLink(LinkKind kind, std::uint32_t entry, JsonValue reference, bool isNone = false) {
        if (!isNone)
            ExpectKind(reference, JsonKind::String);
        m_links.Add(kind, entry, reference);
    }

    void DescribeCase(MemoryFeature made, const ObjectFields& fields) {
        ReadCurrent(made, fields[DocumentKey::Current]);
        const JsonValue history = fields[DocumentKey::History];
        const JsonValue steps = fields[DocumentKey::Steps];
        if (steps && IsNullHistory(DocumentKey::History, history))
            steps.ThrowError("expected no steps in a case whose \"history\" is null");
        if (!history)
            made.Add(MemoryKind::History, LateTypes::QVROruSimHistLT, {});
        m_jobs = {};
        if (fields[DocumentKey::Jobs])
            m_jobs = made.Add(MemoryKind::JobContainer, LateTypes::QVRJobContainerLT, {});
    }

    /// The first case is current unless it says that it is not, or another says that it is.
    void ReadCurrent(MemoryFeature made, JsonValue current) {
        if (!std::exchange(m_hasCase, true)) {
            m_firstCase = made;
            m_firstIsCurrent = !current;
        }
        if (!current || !ReadBool(current))
            return;
        if (std::exchange(m_hasCurrent, true))
            current.ThrowError("another case is current already");
        m_firstIsCurrent = false;
        m_loaded.document.MakeCurrent(made);
    }

    static bool IsNullHistory(DocumentKey key, JsonValue value) {
        return key == DocumentKey::History && value && value.Kind() == JsonKind::Null;
    }

    LoadedDocument& m_loaded;
    DocumentLinks m_links;
    MemoryFeature m_firstCase;
    MemoryFeature m_jobs; // the container of the jobs that a case tells without one
    bool m_hasCase = false;
    bool m_firstIsCurrent = false;
    bool m_hasCurrent = false;
};

} // namespace

LoadedDocument::LoadedDocument(std::string bytes) : text(std::move(bytes)), document(model.NewDocument()) {
    DocumentReader(*this).Read();
}

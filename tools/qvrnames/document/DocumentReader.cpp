// Builds the analysis document from a document file: one pass over the objects, then one over their references. The
// order of the keys in a JSON object is not significant.

#include "document/DocumentLinks.h"
#include "document/LoadedDocument.h"
#include "document/ObjectFields.h"

#include "LateTypes.h"

#include <optional>
#include <utility>

namespace {

class DocumentReader {
public:
    explicit DocumentReader(LoadedDocument& loaded) : m_loaded(loaded) {}

    void Read() {
        const JsonValue root = m_loaded.text.Root();
        const ObjectFields fields(root, MemoryKind::Model);
        m_loaded.entries.push_back({.feature = m_loaded.document.Model(), .offset = Offset(root)});
        ApplyFields(0, fields);
        ReadChildren(0, MemoryKind::Model, fields);
        m_links.ResolveLinks(m_loaded);
        m_loaded.document.MakeCurrent(m_currentCase);
    }

private:
    static std::uint32_t Offset(JsonValue value) { return static_cast<std::uint32_t>(value.Begin()); }

    /// Creates the object and all objects below it.
    void ReadObject(JsonValue object, const ChildKey& child, EntryIndex parent, std::uint32_t index) {
        const ObjectFields fields(object, child.kind);
        const JsonValue type = fields[DocumentKey::Type];
        if (!type && child.defaultType == nullptr)
            object.ThrowError("the key \"type\", the late type of the object, is missing");
        const std::string lateType = type ? ReadNonEmptyText(type) : child.defaultType;
        const JsonValue name = fields[DocumentKey::Name];
        const MemoryFeature created =
            CreateObject(child, parent, lateType.c_str(), name ? ReadText(name) : ZFXUnicodeString());
        const auto entry = static_cast<EntryIndex>(m_loaded.entries.size());
        m_loaded.entries.push_back({created, Offset(object), parent, index, child.key, static_cast<bool>(name)});
        ApplyFields(entry, fields);
        if (child.kind == MemoryKind::Case) {
            ReadCurrent(created, fields[DocumentKey::Current]);
            AddHistoryAndJobs(created, fields);
        }
        ReadChildren(entry, child.kind, fields);
    }

    MemoryFeature CreateObject(const ChildKey& child, EntryIndex parent, const char* type,
                               const ZFXUnicodeString& name) {
        MemoryFeature above = m_loaded.entries[parent].feature;
        if (child.key == DocumentKey::MeshManager)
            return m_loaded.document.MeshManager().Alias(name);
        if (child.key == DocumentKey::Steps)
            above = above.History();
        if (child.key == DocumentKey::Jobs && m_loaded.entries[parent].key == DocumentKey::Cases)
            above = m_jobs;
        MemoryFeature created = above.Add(child.kind, type, name);
        if (child.kind == MemoryKind::Material)
            created.MaterialName(name); // default, which the key "materialName" replaces
        return created;
    }

    void ReadChildren(EntryIndex entry, MemoryKind kind, const ObjectFields& fields) {
        for (const ChildKey& child : kChildKeys) {
            const JsonValue value = fields[child.key];
            if (!value || IsNullHistory(child.key, value))
                continue;
            if (!child.isList) {
                ReadObject(value, child, entry, DocumentEntry::kNone);
                continue;
            }
            ExpectKind(value, JsonKind::Array);
            value.ForEachElement([&](std::size_t index, JsonValue element) {
                ReadElement(element, child, entry, static_cast<std::uint32_t>(index), kind);
            });
        }
    }

    /// Creates the object of a list element. On a side of a connection, the element may instead be the id of an object.
    void ReadElement(JsonValue element, const ChildKey& child, EntryIndex entry, std::uint32_t index, MemoryKind kind) {
        const std::optional<LinkKind> side = SideOf(child.key, kind);
        if (side && element.Kind() == JsonKind::String) {
            m_links.Add(*side, entry, element);
            return;
        }
        const auto created = static_cast<EntryIndex>(m_loaded.entries.size());
        ReadObject(element, child, entry, index);
        if (side)
            m_links.Add(*side, entry, created);
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

    /// Applies the keys that do not lead to objects below this one. Keeps the references until all objects exist.
    void ApplyFields(EntryIndex entry, const ObjectFields& fields) {
        fields.ApplyTo(m_loaded.entries[entry].feature);
        if (const JsonValue id = fields[DocumentKey::Id])
            RegisterId(id, entry);
        const JsonValue father = fields[DocumentKey::Father];
        if (father && father.Kind() == JsonKind::Null)
            m_links.Add(LinkKind::Father, entry, DocumentEntry::kNone);
        else if (father)
            AddLink(LinkKind::Father, entry, father);
        if (const JsonValue group = fields[DocumentKey::Group])
            AddLink(LinkKind::Group, entry, group);
        AddLinks(LinkKind::PointedAtBy, entry, fields[DocumentKey::PointedAtBy]);
        AddLinks(LinkKind::Member, entry, fields[DocumentKey::Holds]);
    }

    void RegisterId(JsonValue value, EntryIndex entry) {
        const std::string id = ReadNonEmptyText(value);
        if (id.front() == '/')
            value.ThrowError("an id must not begin with \"/\", which marks a JSON pointer");
        const auto [known, isNew] = m_loaded.ids.emplace(id, entry);
        if (!isNew)
            value.ThrowError("duplicate id \"" + id + "\", first used at " +
                             m_loaded.text.LineAndColumn(m_loaded.entries[known->second].offset));
    }

    void AddLinks(LinkKind kind, EntryIndex entry, JsonValue list) {
        if (!list)
            return;
        ExpectKind(list, JsonKind::Array);
        list.ForEachElement([&](std::size_t, JsonValue reference) { AddLink(kind, entry, reference); });
    }

    void AddLink(LinkKind kind, EntryIndex entry, JsonValue reference) {
        ExpectKind(reference, JsonKind::String);
        m_links.Add(kind, entry, reference);
    }

    /// Adds the history that a case has by default, and the job container for its key "jobs".
    void AddHistoryAndJobs(MemoryFeature analysisCase, const ObjectFields& fields) {
        const JsonValue history = fields[DocumentKey::History];
        const JsonValue steps = fields[DocumentKey::Steps];
        if (steps && IsNullHistory(DocumentKey::History, history))
            steps.ThrowError("a case with \"history\": null cannot have steps");
        if (!history)
            analysisCase.Add(MemoryKind::History, LateTypes::QVROruSimHistLT, {});
        m_jobs = {};
        if (fields[DocumentKey::Jobs])
            m_jobs = analysisCase.Add(MemoryKind::JobContainer, LateTypes::QVRJobContainerLT, {});
    }

    /// Applies the key "current". By default the first case is current.
    void ReadCurrent(MemoryFeature analysisCase, JsonValue current) {
        const bool isFirst = !std::exchange(m_hasCase, true);
        const bool isCurrent = current && ReadBool(current);
        if (isCurrent && std::exchange(m_hasCurrent, true))
            current.ThrowError("another case is already current; only one case can have \"current\": true");
        if (isCurrent || (isFirst && !current))
            m_currentCase = analysisCase;
    }

    static bool IsNullHistory(DocumentKey key, JsonValue value) {
        return key == DocumentKey::History && value && value.Kind() == JsonKind::Null;
    }

    LoadedDocument& m_loaded;
    DocumentLinks m_links;
    MemoryFeature m_jobs;        // the container for the key "jobs" of the case that is being read
    MemoryFeature m_currentCase; // empty: none
    bool m_hasCase = false;
    bool m_hasCurrent = false; // a case has the key "current" with the value true
};

} // namespace

LoadedDocument::LoadedDocument(std::string bytes) : text(std::move(bytes)), document(model.NewDocument()) {
    DocumentReader(*this).Read();
}

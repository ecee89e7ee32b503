#pragma once

#include "document/LoadedDocument.h"

/// What the target of a reference is to the object with the reference.
enum class LinkKind { Father, PointedAtBy, Member, Group, Connector, MasterConnector, SlaveConnector };

/// The references of a document file. An object may refer to one that comes later in the file, so references are
/// collected while the objects are created and resolved, in the order of the file, when all objects exist.
class DocumentLinks {
public:
    /// Adds a reference by id, which is a string.
    void Add(LinkKind kind, EntryIndex from, JsonValue id) { m_links.push_back({kind, from, id}); }
    /// Adds a reference to an entry, or to no object if `target` is kNone.
    void Add(LinkKind kind, EntryIndex from, EntryIndex target) { m_links.push_back({kind, from, {}, target}); }
    /// Connects the objects of the document. Throws BadInput for an unknown id, for a set that contains itself, and for
    /// fathers that form a cycle.
    void ResolveLinks(LoadedDocument& loaded) const;

private:
    struct Link {
        LinkKind kind;
        EntryIndex from;
        JsonValue id;                             ///< no value: the reference has a target
        EntryIndex target = DocumentEntry::kNone; ///< if there is no id; kNone: no object
    };
    static EntryIndex TargetOf(const LoadedDocument& loaded, const Link& link);

    std::vector<Link> m_links;
};

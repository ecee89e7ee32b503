#pragma once

#include "document/LoadedDocument.h"

/// The references of a document file. An object may point at one that comes later, so they are gathered while
/// the objects are made and settled, in the order of the file, when all are there.
class DocumentLinks {
public:
    /// `what` of the entry is the object whose id is in the string `to`; for a father also null.
    void Add(DocumentKey what, std::uint32_t from, JsonValue to) { m_links.push_back({what, from, to}); }
    /// ... is this entry.
    void Add(DocumentKey what, std::uint32_t from, std::uint32_t target) {
        m_links.push_back({what, from, {}, target});
    }
    /// BadInput for a reference that leads nowhere or, from father to father, in a circle.
    void Settle(LoadedDocument& loaded) const;

private:
    struct Link {
        DocumentKey what;
        std::uint32_t from;
        JsonValue to;
        std::uint32_t target = DocumentEntry::kNone;
    };
    static std::uint32_t TargetOf(const LoadedDocument& loaded, const Link& link);

    std::vector<Link> m_links;
};

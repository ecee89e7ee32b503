#pragma once

#include "document/DocumentKeys.h"
#include "document/JsonText.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

/// An object of the document and the place of it in the file.
struct DocumentEntry {
    static constexpr std::uint32_t kNone = ~0U;

    MemoryFeature feature;
    std::uint32_t begin = 0;      ///< where its text begins
    std::uint32_t parent = kNone; ///< the entry that it lies below
    std::uint32_t index = kNone;  ///< its place in the parent's list; kNone when the key leads to it alone
    DocumentKey key = DocumentKey::Count;
    bool isNamed = false; ///< the file gives it a name
};

/// A document file and the analysis document that it describes, installed as the document of this process for
/// as long as this lives. Entry 0 is the analysis model; a parent stands before what lies below it.
struct LoadedDocument {
    /// BadInput for a text that describes no document.
    explicit LoadedDocument(std::string bytes);

    JsonText text;
    MemoryModel model;
    MemoryDocument document;
    std::vector<DocumentEntry> entries;
    std::unordered_map<std::string, std::uint32_t> ids;
};

/// The entries to which the file gives a name, in document order.
std::vector<std::uint32_t> NamedEntries(const LoadedDocument& loaded);

/// The document's file with another name for one object. Nothing but the bytes of that name differs; an
/// object that had no name gets the key "name" in front of its others.
std::string TextWithName(const LoadedDocument& loaded, std::uint32_t entry, const std::string& name);

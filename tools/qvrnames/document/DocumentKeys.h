#pragma once

#include "LateTypes.h"
#include "memory-model/MemoryModel.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The words of a document file: which keys an object of each kind takes, and what they lead to.

enum class DocumentKey : unsigned char {
    Schema,
    Comment,
    Id,
    Type,
    Name,
    Father,
    Attributes,
    Offers,
    Withholds,
    PointedAtBy,
    Current,
    SolverCase,
    Propagated,
    Property,
    Amplitude,
    Holds,
    Tag,
    MaterialName,
    Group,
    // What follows leads to objects below this one, which are made in this order.
    MeshManager,
    PropertySet,
    Cases,
    History,
    Steps,
    Jobs,
    JobContainers,
    Sets,
    Features,
    Materials,
    Groups,
    Supports,
    Connectors,
    Master,
    Slave,
    ConnectionDesigns,
    MeshParts,
    Count,
};

inline constexpr std::size_t kDocumentKeys = static_cast<std::size_t>(DocumentKey::Count);

/// The key of this spelling among those that an object of the kind takes.
std::optional<DocumentKey> FindDocumentKey(std::string_view spelling, MemoryKind kind);
const char* SpellingOf(DocumentKey key);
std::vector<std::string> KeysOf(MemoryKind kind);

/// A key that leads to objects below: one object, or a list of them.
struct ChildKey {
    DocumentKey key;
    MemoryKind kind;
    /// The late type of an object that tells none; null when it must.
    const char* defaultType;
    bool isList = true;
};

inline constexpr ChildKey kChildKeys[] = {
    {DocumentKey::MeshManager, MemoryKind::MeshManager, "MSHMeshManager", false},
    {DocumentKey::PropertySet, MemoryKind::Set, LateTypes::QVRTarnisPropertySetLT, false},
    {DocumentKey::Cases, MemoryKind::Case, "QVRAnalysisCaseLT"},
    {DocumentKey::History, MemoryKind::History, LateTypes::QVROruSimHistLT, false},
    {DocumentKey::Steps, MemoryKind::Step, nullptr},
    {DocumentKey::Jobs, MemoryKind::Feature, LateTypes::QVRJobLT},
    {DocumentKey::JobContainers, MemoryKind::JobContainer, LateTypes::QVRJobContainerLT},
    {DocumentKey::Sets, MemoryKind::Set, nullptr},
    {DocumentKey::Features, MemoryKind::Feature, nullptr},
    {DocumentKey::Materials, MemoryKind::Material, "SAMUserMaterial"},
    {DocumentKey::Groups, MemoryKind::Group, "QVRGroupLT"},
    {DocumentKey::Supports, MemoryKind::Support, "SAMConnection"},
    {DocumentKey::Connectors, MemoryKind::Connector, "SAMPointForGeneConn"},
    {DocumentKey::Master, MemoryKind::Connector, "SAMPointForGeneConn"},
    {DocumentKey::Slave, MemoryKind::Connector, "SAMPointForGeneConn"},
    {DocumentKey::ConnectionDesigns, MemoryKind::ConnectionDesign, "SAMGenericConnDesign"},
    {DocumentKey::MeshParts, MemoryKind::MeshPart, "MSHPartOctree3D"},
};

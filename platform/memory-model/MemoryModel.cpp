#include "memory-model/MemoryModel.h"

#include "LateTypes.h"
#include "memory-model/MemorySession.h"

#include <cassert>
#include <string_view>

namespace {

MemoryObject* FirstChildOf(const MemoryObject* object, MemoryKind kind) {
    if (object != nullptr)
        for (MemoryObject* child : object->ExtrasOrNone().children)
            if (child->kind == kind)
                return child;
    return nullptr;
}

/// Returns `target`. Both objects must be in documents of one model: its end removes the links of all its objects, so
/// that no link outlives its target.
MemoryObject* LinkTarget([[maybe_unused]] const MemoryObject& object, MemoryObject* target) {
    assert((target == nullptr || (object.document != nullptr && target->document != nullptr &&
                                  &object.document->session == &target->document->session)) &&
           "MemoryFeature: the objects of a link are in documents of different models");
    return target;
}

/// Returns the name of a request, or "" for MemoryRequest::Any.
const char* NameOf(MemoryRequest request) noexcept {
    constexpr const char* kNames[] = {
        "",
#define MEMORY_REQUEST(name) #name,
#include "memory-model/MemoryRequests.def"
#undef MEMORY_REQUEST
    };
    return kNames[static_cast<std::size_t>(request)];
}

} // namespace

MemoryFeature MemoryFeature::Add(MemoryKind kind, const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias) {
    if (m_object == nullptr || m_object->document == nullptr)
        return {};
    return MemoryFeature(m_object->document->Make(kind, lateType, alias, m_object));
}

MemoryFeature MemoryFeature::Step(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias) {
    MemoryFeature history = m_object != nullptr && m_object->kind == MemoryKind::Case ? History() : *this;
    return history.Add(MemoryKind::Step, lateType, alias);
}

MemoryFeature MemoryFeature::Set(const ZFXUnicodeString& lateType) { return Add(MemoryKind::Set, lateType, {}); }

MemoryFeature MemoryFeature::Feature(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias) {
    return Add(MemoryKind::Feature, lateType, alias);
}

MemoryFeature MemoryFeature::Job(const ZFXUnicodeString& alias) {
    MemoryFeature container(FirstChildOf(m_object, MemoryKind::JobContainer));
    if (!container)
        container = Add(MemoryKind::JobContainer, LateTypes::QVRJobContainerLT, {});
    return container.Feature(LateTypes::QVRJobLT, alias);
}

MemoryFeature MemoryFeature::History() const { return MemoryFeature(FirstChildOf(m_object, MemoryKind::History)); }

template <class Action>
MemoryFeature& MemoryFeature::Change(Action action) {
    if (m_object != nullptr)
        action(*m_object);
    return *this;
}

MemoryFeature& MemoryFeature::Alias(const ZFXUnicodeString& alias) {
    return Change([&](MemoryObject& object) { object.alias = alias; });
}
MemoryFeature& MemoryFeature::Unnamed() { return Alias({}); }
MemoryFeature& MemoryFeature::Attribute(const char* name, const ZFXUnicodeString& value) {
    return Change([&](MemoryObject& object) {
        const bool isAlias = std::string_view(name) == "Alias";
        object.aliasKey = object.aliasKey || isAlias;
        (isAlias ? object.alias : object.Extras().attributes[name]) = value;
    });
}
MemoryFeature& MemoryFeature::WithoutAttribute(const char* name) {
    return Change([&](MemoryObject& object) {
        if (std::string_view(name) == "Alias")
            object.aliasKey = false;
        else
            object.Extras().attributes.erase(name);
    });
}
MemoryFeature& MemoryFeature::With(const IID& interfaceId) {
    return Change([&](MemoryObject& object) { object.Offer(interfaceId); });
}
MemoryFeature& MemoryFeature::Without(const IID& interfaceId) {
    return Change([&](MemoryObject& object) { object.Withhold(interfaceId); });
}
MemoryFeature& MemoryFeature::Father(MemoryFeature father) {
    return Change([&](MemoryObject& object) { object.father = LinkTarget(object, father.m_object); });
}
MemoryFeature& MemoryFeature::Propagated(bool propagated) {
    return Change([&](MemoryObject& object) { object.propagated = propagated; });
}
MemoryFeature& MemoryFeature::Property(bool property) {
    return Change([&](MemoryObject& object) { object.Extras().property = property; });
}
MemoryFeature& MemoryFeature::Amplitude(bool amplitude) {
    return Change([&](MemoryObject& object) { object.Extras().amplitude = amplitude; });
}
MemoryFeature& MemoryFeature::SolverCase(bool solver) {
    return Change([&](MemoryObject& object) { object.Extras().solverCase = solver; });
}
MemoryFeature& MemoryFeature::Tag(int tag) {
    return Change([&](MemoryObject& object) { object.Extras().tag = tag; });
}
MemoryFeature& MemoryFeature::MaterialName(const ZFXUnicodeString& name) {
    return Change([&](MemoryObject& object) { object.Extras().materialName = name; });
}
MemoryFeature& MemoryFeature::AddMember(MemoryFeature member) {
    return Change([&](MemoryObject& set) {
        MemoryObject* added = LinkTarget(set, member.m_object);
        if (added == nullptr)
            return;
        added->parentSets.push_back(&set);
        if (!added->withheld.test(static_cast<std::size_t>(ZFXNumberOf(IID_ZFXISamAnalysisEntity))))
            added->Offer(IID_ZFXISamAnalysisEntity);
        set.Extras().members.push_back(added);
    });
}
MemoryFeature& MemoryFeature::PointedAtBy(MemoryFeature owner) {
    return Change([&](MemoryObject& object) {
        if (MemoryObject* pointing = LinkTarget(object, owner.m_object))
            object.AddPointing(pointing);
    });
}
MemoryFeature& MemoryFeature::AddConnector(MemoryFeature connector) {
    return Change(
        [&](MemoryObject& support) { support.Extras().connectors.push_back(LinkTarget(support, connector.m_object)); });
}
MemoryFeature& MemoryFeature::SetGroup(MemoryFeature group) {
    return Change([&](MemoryObject& connector) { connector.Extras().group = LinkTarget(connector, group.m_object); });
}
MemoryFeature& MemoryFeature::AddMaster(MemoryFeature connector) {
    return Change(
        [&](MemoryObject& design) { design.Extras().master.push_back(LinkTarget(design, connector.m_object)); });
}
MemoryFeature& MemoryFeature::AddSlave(MemoryFeature connector) {
    return Change(
        [&](MemoryObject& design) { design.Extras().slave.push_back(LinkTarget(design, connector.m_object)); });
}
MemoryFeature& MemoryFeature::FailAlways(MemoryRequest request, MemoryResponse response) {
    return Change([&](MemoryObject& object) {
        assert(object.document != nullptr && "MemoryFeature::FailAlways: the document is closed");
        object.document->session.faults.Add(request, &object, MemoryFaults::kAlways, response);
    });
}

ZFXUnicodeString MemoryFeature::StoredAlias() const {
    return m_object == nullptr ? ZFXUnicodeString() : m_object->alias;
}
ZFXUnicodeString MemoryFeature::LateType() const {
    return m_object == nullptr ? ZFXUnicodeString() : m_object->lateType->name;
}
long MemoryFeature::References() const { return m_object == nullptr ? 0 : m_object->References(); }
ZFXBaseUnknown* MemoryFeature::Object() const { return static_cast<ZFXObject*>(m_object); }

MemoryFeature MemoryDocument::Model() const { return MemoryFeature(m_document->model); }

MemoryFeature MemoryDocument::Case(const ZFXUnicodeString& alias) {
    MemoryFeature made = Model().Add(MemoryKind::Case, "QVRAnalysisCaseLT", alias);
    made.Add(MemoryKind::History, LateTypes::QVROruSimHistLT, {});
    if (m_document->currentCase == nullptr)
        MakeCurrent(made);
    return made;
}

MemoryFeature MemoryDocument::PropertySet() {
    for (MemoryObject* child : m_document->model->ExtrasOrNone().children)
        if (child->lateType->name == LateTypes::QVRTarnisPropertySetLT)
            return MemoryFeature(child);
    return Model().Set(LateTypes::QVRTarnisPropertySetLT);
}

MemoryFeature MemoryDocument::MeshManager() { return MemoryFeature(m_document->meshManager); }

MemoryFeature MemoryDocument::MeshPart(const ZFXUnicodeString& alias, int tag) {
    return MeshManager().Add(MemoryKind::MeshPart, "MSHPartOctree3D", alias).Tag(tag);
}

void MemoryDocument::MakeCurrent(MemoryFeature analysisCase) { m_document->currentCase = analysisCase.m_object; }

ZFXDocument* MemoryDocument::Document() const { return m_document; }

MemoryModel::MemoryModel() : m_session(std::make_unique<MemorySession>()) {}
MemoryModel::~MemoryModel() = default;

MemoryDocument MemoryModel::NewDocument() {
    auto* document = new MemoryDocumentObject(*m_session);
    m_session->documents.push_back(document);
    if (m_session->documents.size() == 1)
        m_session->current = document;
    return MemoryDocument(document);
}

void MemoryModel::MakeCurrent(MemoryDocument document) { m_session->current = document.m_document; }
void MemoryModel::CloseCurrent() { m_session->current = nullptr; }
long MemoryModel::Requests() const noexcept { return m_session->faults.Requests(); }

const char* MemoryModel::LastFault() const noexcept { return NameOf(m_session->faults.LastFault()); }
const char* MemoryModel::FirstUnexpectedArgument() const noexcept {
    return NameOf(m_session->faults.FirstUnexpectedArgument());
}

void MemoryModel::FailNth(MemoryRequest request, long n, MemoryResponse response) {
    assert(n >= 1 && "MemoryModel::FailNth: n starts at 1");
    m_session->faults.Add(request, nullptr, n, response);
}

void MemoryModel::FailAlways(MemoryRequest request, MemoryResponse response) {
    m_session->faults.Add(request, nullptr, MemoryFaults::kAlways, response);
}

void MemoryModel::ClearFaults() { m_session->faults.Clear(); }
long MemoryModel::LiveObjects() noexcept { return MemoryObject::live; }

long MemoryModel::References() const {
    long references = -1; // the session has a second reference on the key of "Alias"
    for (MemoryDocumentObject* document : m_session->documents)
        references += document->References();
    for (const auto& [name, key] : m_session->keys)
        references += key->References();
    return references;
}

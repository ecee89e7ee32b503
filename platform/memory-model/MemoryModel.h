#pragma once

#include "analysis/AnalysisInterfaces.h"
#include "analysis/ZFXDocument.h"

#include <memory>

/// Marks what the model offers to programs.
#if !defined(_WIN32)
#define ZFX_MEMORY_EXPORT __attribute__((visibility("default")))
#elif defined(ZFXMemoryModel_EXPORTS) // its own sources are compiled
#define ZFX_MEMORY_EXPORT __declspec(dllexport)
#else
#define ZFX_MEMORY_EXPORT __declspec(dllimport)
#endif

class MemoryDocument;
class MemoryModel;
class MemoryObject;

/// What an object of a document is. The kind gives the interfaces that it offers at first; `With` and
/// `Without` change them. All offer ZFXISpecObject, ZFXIAlias, ZFXISpecAttrAccess and ZFXILinkableObject.
enum class MemoryKind {
    Feature,          ///< in a set also an entity; in a set of a step also a propagating feature
    Model,            ///< the analysis model: scan
    Case,             ///< an analysis case: scan
    History,          ///< a simulation history: scan; points at each step that is added to it
    Step,             ///< a step: scan
    Set,              ///< an analysis set: scan
    JobContainer,     ///< an analysis set whose father is the model although it lies under a case
    MeshManager,      ///< an analysis set: scan
    MeshPart,         ///< with explicit data
    Material,         ///< a material feature
    Group,            ///< a group
    Support,          ///< a support
    Connector,        ///< a connector
    ConnectionDesign, ///< a connection design
    Count             ///< the number of kinds
};

/// A request that a document can be told to answer otherwise.
enum class MemoryRequest {
    Any,
#define MEMORY_REQUEST(name) name,
#include "memory-model/MemoryRequests.def"
#undef MEMORY_REQUEST
};

/// How a request answers that was told to: with this code, and with its outputs filled or left as they were.
/// A request without a code reads only `filled`: unfilled gives null, zero, an empty string or an empty
/// handle, and makes SetAlias and SetString store nothing.
struct MemoryResponse {
    /// The code; nothing to a request without one.
    HRESULT code = E_UNEXPECTED;
    /// Whether its outputs are filled.
    bool filled = false;
};

/// One object of a document, to be built sentence by sentence. A value that holds no reference: good for as
/// long as the model lives. An empty one answers every question with nothing and changes nothing.
class ZFX_MEMORY_EXPORT MemoryFeature {
public:
    MemoryFeature() = default;
    /// For the model's own use.
    explicit MemoryFeature(MemoryObject* object) : m_object(object) {}

    /// @name Objects below this one, in order; each returns what it made.
    /// @{

    /// An object of any kind.
    MemoryFeature Add(MemoryKind kind, const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// On a case (in its history) or on a history.
    MemoryFeature Step(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// A new analysis set.
    MemoryFeature Set(const ZFXUnicodeString& lateType);
    /// A feature; in a set, a member of it.
    MemoryFeature Feature(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// On a case: a job in its first job container, which is made when there is none.
    MemoryFeature Job(const ZFXUnicodeString& alias);
    /// On a case: its simulation history; empty when it has none.
    MemoryFeature History() const;
    /// @}

    /// @name What the object says of itself; each returns the object.
    /// @{

    /// The stored name, past all checks.
    MemoryFeature& Alias(const ZFXUnicodeString& alias);
    /// As if the alias was never written: empty.
    MemoryFeature& Unnamed();
    /// A string attribute; a feature has the attribute "Alias" from the start.
    MemoryFeature& Attribute(const char* name, const ZFXUnicodeString& value);
    /// There is no key for the attribute any more.
    MemoryFeature& WithoutAttribute(const char* name);
    /// It offers the interface from now on.
    MemoryFeature& With(const IID& interfaceId);
    /// It offers the interface no more, nor do extensions of it.
    MemoryFeature& Without(const IID& interfaceId);
    /// Empty for none. The place in the tree stays: the father is what GetFather answers, no more.
    MemoryFeature& Father(MemoryFeature father);
    /// It only came into its step from an earlier one.
    MemoryFeature& Propagated(bool propagated = true);
    /// A property, or none; a feature of the property set that is no amplitude is one by itself.
    MemoryFeature& Property(bool property = true);
    /// An amplitude, or none; the two amplitude types are by themselves.
    MemoryFeature& Amplitude(bool amplitude = true);
    /// On a case: one of the solver's own (the default) or not.
    MemoryFeature& SolverCase(bool solver);
    /// The integer tag of explicit data.
    MemoryFeature& Tag(int tag);
    /// What ZFXIMaterialFeature answers.
    MemoryFeature& MaterialName(const ZFXUnicodeString& name);
    /// Makes `member` a member of this set as well; the sets that hold it keep their order.
    MemoryFeature& AddMember(MemoryFeature member);
    /// `owner` gets an attribute that points at this object.
    MemoryFeature& PointedAtBy(MemoryFeature owner);
    /// On a support: one more connector.
    MemoryFeature& AddConnector(MemoryFeature connector);
    /// On a connector: its group.
    MemoryFeature& SetGroup(MemoryFeature group);
    /// On a connection design: one more connector of that side.
    MemoryFeature& AddMaster(MemoryFeature connector);
    /// The same of the other side.
    MemoryFeature& AddSlave(MemoryFeature connector);
    /// Every such request on this object answers so from now on.
    MemoryFeature& FailAlways(MemoryRequest request, MemoryResponse response = {});
    /// @}

    /// @name Looking back, past all faults and without a request.
    /// @{

    /// The stored name.
    ZFXUnicodeString StoredAlias() const;
    /// The late type.
    ZFXUnicodeString LateType() const;
    /// References that others hold on the object.
    long References() const;
    /// [borrowed]
    ZFXBaseUnknown* Object() const;
    /// Whether there is an object.
    explicit operator bool() const noexcept { return m_object != nullptr; }
    /// Whether both are one object; two empty ones are equal.
    friend bool operator==(MemoryFeature a, MemoryFeature b) noexcept { return a.m_object == b.m_object; }
    /// @}

    /// The object as a handle of any type: the interface cast.
    template <class Interface>
    operator ZFXHandle<Interface>() const {
        return ZFXHandle<Interface>(Object());
    }

private:
    friend class MemoryDocument;
    /// Calls `action` with the object, if there is one. Returns this feature.
    template <class Action>
    MemoryFeature& Change(Action action);

    MemoryObject* m_object = nullptr;
};

/// One document: an analysis model with its cases, a property set and a mesh manager. A value like a feature.
class ZFX_MEMORY_EXPORT MemoryDocument {
public:
    /// The analysis model, there from the start.
    MemoryFeature Model() const;
    /// A new case with a simulation history. The first one is current.
    MemoryFeature Case(const ZFXUnicodeString& alias);
    /// The first of the document, made when there is none.
    MemoryFeature PropertySet();
    /// There from the start.
    MemoryFeature MeshManager();
    /// A new part of the mesh manager.
    MemoryFeature MeshPart(const ZFXUnicodeString& alias, int tag);
    /// Empty for none.
    void MakeCurrent(MemoryFeature analysisCase);
    ZFXDocument* Document() const; ///< [borrowed]

private:
    friend class MemoryModel;
    explicit MemoryDocument(class MemoryDocumentObject* document) : m_document(document) {}
    class MemoryDocumentObject* m_document;
};

/// Analysis documents in memory, installed as the analysis services for as long as the model lives: one model
/// at a time. It owns every object with one reference; an object that others still hold when the model goes
/// stays, alone, until they let go.
///
///     MemoryModel model;
///     MemoryFeature step = model.NewDocument().Case("Static").Step("QVRStaticLPStepLT", "Step-1");
///     MemoryFeature load = step.Set("QVRLoadContainerLT").Feature("QVRPressure", "Pressure-1");
class ZFX_MEMORY_EXPORT MemoryModel {
public:
    MemoryModel();
    MemoryModel(const MemoryModel&) = delete;
    MemoryModel& operator=(const MemoryModel&) = delete;
    ~MemoryModel();

    /// The first one is current.
    MemoryDocument NewDocument();
    /// The document is current from now on.
    void MakeCurrent(MemoryDocument document);
    /// No document is current from now on.
    void CloseCurrent();

    /// @name Requests and faults. A request is one operation of an interface or of the services, or one cast.
    /// @{

    /// How many were made so far.
    long Requests() const noexcept;
    /// The n-th request from now on (n from 1) answers so, once; earlier ones of its kind are passed.
    void FailNth(MemoryRequest request, long n = 1, MemoryResponse response = {});
    /// Every such request, of any object, answers so.
    void FailAlways(MemoryRequest request, MemoryResponse response = {});
    /// The name of the request that was last told what to answer; empty when none was since ClearFaults.
    const char* LastFault() const noexcept;
    /// Returns the name of the first request that was rejected because of an argument, or "" if there is none. The
    /// model supports only the arguments that the module passes: scan mode 3, member flag 0 without a filter, all
    /// pointing attributes, explicit child flag 1 and string index 0. With any other value a request returns
    /// E_INVALIDARG or nothing. ClearFaults does not reset the name.
    const char* FirstUnexpectedArgument() const noexcept;
    /// All faults are forgotten, those of single objects too.
    void ClearFaults();
    /// @}

    /// Objects of documents that exist in this process, those that outlived their model included.
    static long LiveObjects() noexcept;
    /// References on the model's objects that others hold.
    long References() const;

private:
    std::unique_ptr<class MemorySession> m_session;
};

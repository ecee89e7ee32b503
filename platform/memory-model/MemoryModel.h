#pragma once

#include "analysis/AnalysisInterfaces.h"
#include "analysis/ZFXDocument.h"
#include "base/CompilerExtensions.h"

#include <memory>

/// Exports a class from the library of the in-memory model. Everything else is hidden.
#ifdef ZFXMemoryModel_EXPORTS // defined while the library itself is compiled
#define ZFX_MEMORY_EXPORT ZFX_EXPORT
#else
#define ZFX_MEMORY_EXPORT ZFX_IMPORT
#endif

class MemoryDocument;
class MemoryModel;
class MemoryObject;

/// The kind of an object. It determines the interfaces that the object offers at first; `With` and `Without` change
/// them. Every object offers ZFXISpecObject, ZFXIAlias, ZFXISpecAttrAccess and ZFXILinkableObject. A member of a set
/// also offers ZFXISamAnalysisEntity. Searchable kinds also offer ZFXISamAnalysisScan.
enum class MemoryKind {
    Feature,          ///< a plain feature; in a set of a step it also offers QVRIPropagatingFeature
    Model,            ///< the analysis model: searchable
    Case,             ///< an analysis case: searchable
    History,          ///< a simulation history: searchable; an attribute of it points at each child
    Step,             ///< a step: searchable
    Set,              ///< an analysis set: searchable
    JobContainer,     ///< an analysis set of jobs: searchable; its father is the model, not its parent
    MeshManager,      ///< the mesh manager, an analysis set: searchable
    MeshPart,         ///< a mesh part, with explicit data
    Material,         ///< a material feature
    Group,            ///< a group
    Support,          ///< a support
    Connector,        ///< a connector
    ConnectionDesign, ///< a connection design
    Count             ///< the number of kinds
};

/// A request that can be made to fail. `Any` matches all requests.
enum class MemoryRequest {
    Any,
#define MEMORY_REQUEST(name) name,
#include "memory-model/MemoryRequests.def"
#undef MEMORY_REQUEST
};

/// The response injected for a request. By default the request fails with E_UNEXPECTED.
struct MemoryResponse {
    /// The result code. Requests that return none ignore it.
    HRESULT code = E_UNEXPECTED;
    /// True if the request fills its outputs. Otherwise it leaves them unchanged; if it returns a value, the value is
    /// null, zero or an empty string; a cast gives an empty handle; SetAlias and SetString store nothing.
    bool filled = false;
};

/// One object of a document, or none. The operations that change it return *this, so that calls can be chained.
///
/// It has the size of a pointer, owns no reference, and is valid for as long as the model exists. If there is no
/// object, all operations do nothing and return empty values.
class ZFX_MEMORY_EXPORT MemoryFeature {
public:
    /// Creates an empty feature.
    MemoryFeature() = default;
    /// Used by the model only.
    explicit MemoryFeature(MemoryObject* object) : m_object(object) {}

    /// @name Adding objects
    /// Each operation adds an object as the last child of this one and returns it.
    /// @{

    /// Adds an object of any kind. Below a set, an object that is not itself a set becomes a member of the set.
    MemoryFeature Add(MemoryKind kind, const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// Adds a step. If this object is a case, adds it to the case's simulation history.
    MemoryFeature Step(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// Adds an analysis set without an alias.
    MemoryFeature Set(const ZFXUnicodeString& lateType);
    /// Adds an object of kind MemoryKind::Feature.
    MemoryFeature Feature(const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias);
    /// Adds a job to the first job container of this case. Creates the container if there is none.
    MemoryFeature Job(const ZFXUnicodeString& alias);
    /// Returns the first simulation history of this case, or an empty feature. Adds nothing.
    MemoryFeature History() const;
    /// @}

    /// @name Changing the object
    /// These operations make no request, so that no fault and no check of names applies to them.
    /// @{

    /// Sets the stored alias.
    MemoryFeature& Alias(const ZFXUnicodeString& alias);
    /// Makes the stored alias empty.
    MemoryFeature& Unnamed();
    /// Sets a string attribute. "Alias" is the stored alias; every object has this attribute at first.
    MemoryFeature& Attribute(const char* name, const ZFXUnicodeString& value);
    /// Removes an attribute: GetAttrKey returns null for it. The stored alias is kept.
    MemoryFeature& WithoutAttribute(const char* name);
    /// Offers an interface. No object can offer ZFXISpecAttribute.
    MemoryFeature& With(const IID& interfaceId);
    /// Offers an interface no longer, not even through an extension of the late type.
    MemoryFeature& Without(const IID& interfaceId);
    /// Sets the father, which GetFather returns. An empty feature means none. The parent in the tree does not change.
    MemoryFeature& Father(MemoryFeature father);
    /// Sets the result of IsPropagated. Default: false.
    MemoryFeature& Propagated(bool propagated = true);
    /// Sets the result of IsObjectAProperty. Default: true if the object's first set is the property set and the object
    /// is not an amplitude.
    MemoryFeature& Property(bool property = true);
    /// Sets the result of IsObjectAnAmplitude. Default: true for the late types of amplitudes.
    MemoryFeature& Amplitude(bool amplitude = true);
    /// Sets the result of IsTarnisAnalysisCase for this case. Default: true.
    MemoryFeature& SolverCase(bool solver);
    /// Sets the tag of the explicit data. Without a tag, GetTag returns E_FAIL.
    MemoryFeature& Tag(int tag);
    /// Sets the result of GetMaterialFeatureName.
    MemoryFeature& MaterialName(const ZFXUnicodeString& name);
    /// Makes `member` also a member of this set. It then offers ZFXISamAnalysisEntity, unless Without removed
    /// it. This set becomes the last of the sets that GetParentSets returns for it.
    MemoryFeature& AddMember(MemoryFeature member);
    /// Adds an attribute of `owner` that points at this object.
    MemoryFeature& PointedAtBy(MemoryFeature owner);
    /// Adds a connector to this support.
    MemoryFeature& AddConnector(MemoryFeature connector);
    /// Sets the group of this connector.
    MemoryFeature& SetGroup(MemoryFeature group);
    /// Adds a connector to the master side of this connection design.
    MemoryFeature& AddMaster(MemoryFeature connector);
    /// Adds a connector to the slave side of this connection design.
    MemoryFeature& AddSlave(MemoryFeature connector);
    /// Injects `response` into all requests of this kind on this object, until MemoryModel::ClearFaults.
    MemoryFeature& FailAlways(MemoryRequest request, MemoryResponse response = {});
    /// @}

    /// @name Reading the object
    /// These operations make no request, so that no fault applies to them.
    /// @{

    /// Returns the stored alias.
    ZFXUnicodeString StoredAlias() const;
    /// Returns the late type.
    ZFXUnicodeString LateType() const;
    /// Returns the number of references on the object and on the attributes that point at it, without the model's own.
    long References() const;
    /// Returns the object, or null. [borrowed]
    ZFXBaseUnknown* Object() const;
    /// Returns true if there is an object.
    explicit operator bool() const noexcept { return m_object != nullptr; }
    /// Returns true if both refer to one object or both are empty.
    friend bool operator==(MemoryFeature a, MemoryFeature b) noexcept { return a.m_object == b.m_object; }
    /// @}

    /// Casts the object to an interface. The cast is a request. The handle is empty if the object does not offer the
    /// interface or there is no object.
    template <class Interface>
    operator ZFXHandle<Interface>() const {
        return ZFXHandle<Interface>(Object());
    }

private:
    friend class MemoryDocument;
    /// Calls `action` with the object, if there is one. Returns *this.
    template <class Action>
    MemoryFeature& Change(Action action);

    MemoryObject* m_object = nullptr;
};

/// One document: an analysis model with its cases, a property set and a mesh manager. It owns no reference and is valid
/// for as long as the model exists.
class ZFX_MEMORY_EXPORT MemoryDocument {
public:
    /// Returns the analysis model, which every document has.
    MemoryFeature Model() const;
    /// Adds a case with a simulation history. The case becomes the current case if there is none.
    MemoryFeature Case(const ZFXUnicodeString& alias);
    /// Returns the first property set of the model. Adds one if there is none.
    MemoryFeature PropertySet();
    /// Returns the mesh manager, which every document has.
    MemoryFeature MeshManager();
    /// Adds a part with this tag to the mesh manager.
    MemoryFeature MeshPart(const ZFXUnicodeString& alias, int tag);
    /// Makes a case the current case. An empty feature means that no case is current.
    void MakeCurrent(MemoryFeature analysisCase);
    /// Returns the document as the services and GetOwningDocument use it. [borrowed]
    ZFXDocument* Document() const;

private:
    friend class MemoryModel;
    explicit MemoryDocument(class MemoryDocumentObject* document) : m_document(document) {}
    class MemoryDocumentObject* m_document;
};

/// Analysis documents in memory. The constructor installs them as the AnalysisServices, the destructor uninstalls them;
/// use one model at a time.
///
/// The model owns one reference on each object. An object that is still referenced when the model is destroyed keeps
/// its own data, such as its alias, but its links to other objects and to the document are removed.
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

    /// Adds a document. The first one becomes the current document.
    MemoryDocument NewDocument();
    /// Makes a document the current one.
    void MakeCurrent(MemoryDocument document);
    /// Leaves no document current. The documents and their objects remain.
    void CloseCurrent();

    /// @name Requests and faults
    /// A request is one call of an operation of an interface or of the services, or one cast. Each fault counts the
    /// requests that it matches. If several faults are due for one request, the one that was added first applies.
    /// @{

    /// Returns the number of requests made so far.
    long Requests() const noexcept;
    /// Injects `response` into the n-th matching request from now on, once. n starts at 1.
    void FailNth(MemoryRequest request, long n = 1, MemoryResponse response = {});
    /// Injects `response` into all matching requests, on any object, until ClearFaults.
    void FailAlways(MemoryRequest request, MemoryResponse response = {});
    /// Returns the name of the last request into which a response was injected, or "" if there was none since
    /// ClearFaults. [borrowed]
    const char* LastFault() const noexcept;
    /// Removes all faults, including those of single objects, and resets LastFault.
    void ClearFaults();
    /// Returns the name of the first request that was rejected because of an argument, or "" if there is none.
    /// ClearFaults does not reset it. [borrowed]
    ///
    /// Some arguments have one supported value, which the naming module always passes: scan mode 3; filter
    /// CLSID_ZFXBaseUnknown and member flag 0; "ZFXISpecObject" and two empty strings for pointing attributes; explicit
    /// child flag 1; string index 0. For any other value a request fills nothing and returns E_INVALIDARG, if it
    /// returns a code.
    const char* FirstUnexpectedArgument() const noexcept;
    /// @}

    /// Returns the number of objects in this process, including those that outlived their model.
    static long LiveObjects() noexcept;
    /// Returns the number of references on the objects, documents and attribute keys of this model, without its own.
    long References() const;

private:
    std::unique_ptr<class MemorySession> m_session;
};

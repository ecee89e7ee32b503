#pragma once

#include "analysis/AnalysisServices.h"
#include "memory-model/MemoryObject.h"

/// A document and the objects that it owns.
class MemoryDocumentObject final : public ZFXDocument {
public:
    explicit MemoryDocumentObject(MemorySession& owner);

    /// Detaches and releases all objects. Objects that are still referenced remain, without links.
    void Close();

    /// Adds an object of a kind as the last child of `parent`. Below a set, an object that is not a set becomes a
    /// member.
    MemoryObject* Make(MemoryKind kind, const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias,
                       MemoryObject* parent);
    /// Returns the number of references on the document and its objects, without its own.
    long References();

    MemorySession& session;
    MemoryObjects objects;
    MemoryObject* model = nullptr;
    MemoryObject* meshManager = nullptr;
    MemoryObject* currentCase = nullptr;
};

/// The contents of a model: its documents, faults and attribute keys, and the services that use them.
class MemorySession final : public AnalysisServices {
public:
    MemorySession();
    ~MemorySession() override;

    HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) override;
    HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) override;
    HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) override;
    HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) override;
    unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) override;
    HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) override;
    HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) override;
    unsigned char IsObjectAProperty(ZFXISpecObject_var& feature) override;
    unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature) override;
    HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) override;

    /// Returns the key of an attribute name. There is one for each name. [new reference]
    MemoryAttrKey* KeyOf(const std::string& name);
    /// Returns the key of "Alias" without a search. [new reference]
    MemoryAttrKey* AliasKey();
    /// Returns the object that implements an interface pointer, or null if it is not in a document of this session.
    MemoryObject* Find(const ZFXBaseUnknown* interfacePointer) const;
    /// Returns `document` if it belongs to this session, and the current document for null. Otherwise returns null.
    MemoryDocumentObject* DocumentOr(const ZFXDocument* document) const;

    MemoryFaults faults;
    std::vector<MemoryDocumentObject*> documents;
    MemoryDocumentObject* current = nullptr;
    std::map<std::string, MemoryAttrKey*> keys;

private:
    MemoryAttrKey* m_aliasKey = KeyOf("Alias"); // a second reference of the session
};

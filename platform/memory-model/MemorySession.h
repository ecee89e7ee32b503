#pragma once

#include "analysis/AnalysisServices.h"
#include "memory-model/MemoryObject.h"

/// A document and the objects that it owns.
class MemoryDocumentObject final : public ZFXDocument {
public:
    explicit MemoryDocumentObject(MemorySession& owner);

    /// The model goes: every object is let go, and what others still hold stands alone.
    void Close();

    /// A new object below `parent`, with what its kind brings.
    MemoryObject* Make(MemoryKind kind, const ZFXUnicodeString& lateType, const ZFXUnicodeString& alias,
                       MemoryObject* parent);
    long References();

    MemorySession& session;
    MemoryObjects objects;
    MemoryObject* model = nullptr;
    MemoryObject* meshManager = nullptr;
    MemoryObject* currentCase = nullptr;
};

/// What a model holds: its documents, its faults, its attribute keys, and the services on them.
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

    /// The key of an attribute name. [new reference]
    MemoryAttrKey* KeyOf(const std::string& name);
    MemoryAttrKey* AliasKey();
    /// The object behind a face, or null when it is none of this session's.
    MemoryObject* Find(const ZFXBaseUnknown* face) const;
    /// A document by its pointer; the current one for null. Null when there is none.
    MemoryDocumentObject* DocumentOr(const ZFXDocument* document) const;

    MemoryFaults faults;
    std::vector<MemoryDocumentObject*> documents;
    MemoryDocumentObject* current = nullptr;
    std::map<std::string, MemoryAttrKey*> keys;

private:
    MemoryAttrKey* m_aliasKey = KeyOf("Alias"); // one reference of its own
};

// A minimal host: a document that supports one guarded rename and one name proposal. docs/bind-a-host.md explains it.
#include "QVRNameUtil.h"
#include "analysis/AnalysisInterfaces.h"
#include "object-model/ZFXMetaClass.h"
#include <iostream>
#include <vector>

namespace {

enum class Kind { Case, History, Step, Set, Load };

/// An object of the document, which is a tree of nodes.
class Node final : public ZFXBaseUnknown {
public:
    Node(Kind nodeKind, const char* nodeLateType, const char* nodeName, Node* parent)
        : kind(nodeKind), lateType(nodeLateType), name(nodeName), father(parent) {
        for (const InterfaceEntry& entry : m_interfaces)
            entry.object->SetImpl(this);
        if (father != nullptr)
            father->children.push_back(this);
        if (kind == Kind::Step) // The history has an attribute that points at each of its steps.
            pointingAttributes.Append(&father->m_attribute);
    }

    using ZFXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** result) override {
        // The base class returns the root interface, rejects a null pointer, and sets *result to null otherwise.
        const HRESULT rootCode = ZFXBaseUnknown::QueryInterface(iid, result);
        if (!Failed(rootCode) || result == nullptr)
            return rootCode;
        // An extension that a library declares for the late type replaces the interface of the node.
        if (const ZFXAdaptorFactory factory = fct_FindMetaObject(lateType)->FindAdaptorFactory(iid))
            *result = factory(this, nullptr);
        else
            for (const InterfaceEntry& entry : m_interfaces)
                if (entry.iid == iid && entry.isOffered) {
                    AddRef();
                    *result = entry.object; // a valid pointer to the interface, whose first base is ZFXBaseUnknown
                }
        return *result == nullptr ? E_NOINTERFACE : S_OK;
    }

    const Kind kind;
    const char* const lateType;
    ZFXUnicodeString name;
    Node* const father;
    std::vector<Node*> children;
    ZFXListValZFXISpecAttribute_var pointingAttributes;

private:
    /// An interface of a node. The node counts the references; the base class forwards interface casts to the node.
    template <class Interface>
    struct NodeInterface : Interface {
        ULONG AddRef() override { return GetNode().AddRef(); }
        ULONG Release() override { return GetNode().Release(); }
        Node& GetNode() { return static_cast<Node&>(*this->Implementation()); }
    };
    struct Feature : NodeInterface<ZFXISpecObject> {
        ZFXUnicodeString GetLateType() override { return GetNode().lateType; }
        ZFXBaseUnknown* GetFather() override { return ZFXBaseUnknown_var(GetNode().father).Detach(); }
        ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                                const ZFXUnicodeString&) override {
            return &GetNode().pointingAttributes;
        }
    } m_feature;
    struct AttributeAccess : NodeInterface<ZFXISpecAttrAccess> { // "Alias" is the only attribute
        ZFXISpecAttrKey* GetAttrKey(const char* attribute) override {
            return ZFXUnicodeString(attribute) == "Alias" ? new ZFXISpecAttrKey : nullptr;
        }
        void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString& value, int) override { GetNode().name = value; }
        ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return GetNode().name; }
    } m_attributeAccess;
    struct Alias : NodeInterface<ZFXIAlias> { // for late types without a guarded alias
        void SetAlias(const ZFXUnicodeString& alias) override { GetNode().name = alias; }
        ZFXUnicodeString GetAlias() override { return GetNode().name; }
    } m_alias;
    struct Attribute : NodeInterface<ZFXISpecAttribute> { // of a history, pointing at its steps
        ZFXBaseUnknown* GetOwner() override { return ZFXBaseUnknown_var(&GetNode()).Detach(); }
    } m_attribute;
    struct Scan : NodeInterface<ZFXISamAnalysisScan> {
        HRESULT FindObjectsOfType(const ZFXUnicodeString& type, ZFXListValZFXBaseUnknown_var& all, int mode) override {
            for (Node* child : GetNode().children) {
                if (type == child->lateType)
                    all.Append(child);
                child->m_scan.FindObjectsOfType(type, all, mode);
            }
            return S_OK;
        }
        HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& found, int) override {
            for (Node* child : GetNode().children)
                found.Append(child);
            return S_OK;
        }
    } m_scan;
    struct Set : NodeInterface<ZFXISamAnalysisSet> {
        HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
            for (Node* child : GetNode().children)
                members.Append(child);
            return S_OK;
        }
    } m_set;
    struct Entity : NodeInterface<ZFXISamAnalysisEntity> {
        HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override {
            sets = new ZFXListValZFXBaseUnknown_var;
            sets->Append(GetNode().father);
            return S_OK;
        }
    } m_entity;
    NodeInterface<QVRIStep> m_step;
    NodeInterface<ZFXISamAnalysisCase> m_case;

    struct InterfaceEntry {
        IID iid;
        ZFXBaseUnknown* object;
        bool isOffered = true;
    };
    const InterfaceEntry m_interfaces[9] = {{IID_ZFXISpecObject, &m_feature},
                                            {IID_ZFXISpecAttrAccess, &m_attributeAccess},
                                            {IID_ZFXIAlias, &m_alias},
                                            {IID_ZFXISamAnalysisScan, &m_scan},
                                            {IID_ZFXISpecAttribute, &m_attribute, kind == Kind::History},
                                            {IID_ZFXISamAnalysisSet, &m_set, kind == Kind::Set},
                                            {IID_ZFXISamAnalysisEntity, &m_entity, kind == Kind::Load},
                                            {IID_QVRIStep, &m_step, kind == Kind::Step},
                                            {IID_ZFXISamAnalysisCase, &m_case, kind == Kind::Case}};
};

} // namespace

int main() {
    Node analysisCase(Kind::Case, "QVRAnalysisCaseLT", "Static", nullptr);
    Node history(Kind::History, "QVROruSimHistLT", "", &analysisCase);
    Node preload(Kind::Step, "QVRGeneralStaticStepLT", "Preload", &history);
    Node operation(Kind::Step, "QVRGeneralStaticStepLT", "Operation", &history);
    Node loads(Kind::Set, "QVRLoadContainerLT", "", &preload);
    Node pressure(Kind::Load, "QVRPressure", "Pressure-1", &loads);
    Node load(Kind::Load, "QVRPressure", "", &loads);

    for (const char* newName : {" PRELOAD_ ", " Bolt Load "}) { // the first one clashes with "Preload"
        ZFXIAlias_var(&operation)->SetAlias(newName);
        std::cout << "The step is called " << operation.name.ConvertToChar() << "\n";
    }
    ZFXISpecObject_var feature(&load);
    ZFXISamAnalysisCase_var scope(&analysisCase);
    ZFXUnicodeString name;
    QVRNameUtil::CreateBaseName(feature, name);
    QVRNameUtil::GetUniqueName(name, feature, scope);
    std::cout << "The load may be called " << name.ConvertToChar() << "\n";
}

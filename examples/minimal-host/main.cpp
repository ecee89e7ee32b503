// A document of its own, with what one guarded renaming and one proposal ask for: see docs/bind-a-host.md.
#include "QVRNameUtil.h"
#include "analysis/AnalysisInterfaces.h"
#include "object-model/ZFXMetaClass.h"
#include <iostream>
#include <vector>

namespace {

/// One face of a node: it counts on its node, and questions for other interfaces go there by themselves.
template <class Node, class Interface>
struct Face : Interface {
    ULONG AddRef() override { return Self().AddRef(); }
    ULONG Release() override { return Self().Release(); }
    Node& Self() { return static_cast<Node&>(*this->Implementation()); }
};

enum class Kind { Case, History, Step, Set, Load };

/// The one structure of this document, which is a tree of them. A node knows those above and below it.
class Node final : public ZFXBaseUnknown {
public:
    Node(Kind nodeKind, const char* nodeType, const char* text, Node* above)
        : kind(nodeKind), lateType(nodeType), name(text), father(above) {
        for (const Offer& offer : m_offers)
            offer.face->SetImpl(this);
        if (father != nullptr)
            father->children.push_back(this);
        if (kind == Kind::Step) // a history points at each of its steps
            pointing.Append(&father->m_owner);
    }

    using ZFXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** face) override {
        const HRESULT asRoot = ZFXBaseUnknown::QueryInterface(iid, face);
        if (!Failed(asRoot) || face == nullptr)
            return asRoot;
        // What a module offers on objects of the late type comes before the node's own.
        if (const ZFXAdaptorFactory factory = fct_FindMetaObject(lateType)->FindAdaptorFactory(iid))
            *face = factory(this, nullptr);
        else
            for (const Offer& offer : m_offers)
                if (offer.iid == iid && offer.stands) {
                    AddRef();
                    *face = offer.face; // the root is the first base of every face: the addresses are the same
                }
        return *face == nullptr ? E_NOINTERFACE : S_OK;
    }

    const Kind kind;
    const char* const lateType;
    ZFXUnicodeString name;
    Node* const father;
    std::vector<Node*> children;
    ZFXListValZFXISpecAttribute_var pointing;

private:
    struct Feature : Face<Node, ZFXISpecObject> {
        ZFXUnicodeString GetLateType() override { return Self().lateType; }
        ZFXBaseUnknown* GetFather() override { return ZFXBaseUnknown_var(Self().father).Detach(); }
        ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                                const ZFXUnicodeString&) override {
            return &Self().pointing;
        }
    } m_feature;
    struct Attributes : Face<Node, ZFXISpecAttrAccess> { // the name is the only one
        ZFXISpecAttrKey* GetAttrKey(const char* attribute) override {
            return ZFXUnicodeString(attribute) == "Alias" ? new ZFXISpecAttrKey : nullptr;
        }
        void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString& value, int) override { Self().name = value; }
        ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return Self().name; }
    } m_attributes;
    struct Alias : Face<Node, ZFXIAlias> { // where no module guards the name
        void SetAlias(const ZFXUnicodeString& alias) override { Self().name = alias; }
        ZFXUnicodeString GetAlias() override { return Self().name; }
    } m_alias;
    struct Scan : Face<Node, ZFXISamAnalysisScan> {
        HRESULT FindObjectsOfType(const ZFXUnicodeString& type, ZFXListValZFXBaseUnknown_var& all, int mode) override {
            for (Node* child : Self().children) {
                if (type == child->lateType)
                    all.Append(child);
                child->m_scan.FindObjectsOfType(type, all, mode);
            }
            return S_OK;
        }
        HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& found, int) override {
            for (Node* child : Self().children)
                found.Append(child);
            return S_OK;
        }
    } m_scan;
    struct Set : Face<Node, ZFXISamAnalysisSet> {
        HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
            for (Node* child : Self().children)
                members.Append(child);
            return S_OK;
        }
    } m_set;
    struct Entity : Face<Node, ZFXISamAnalysisEntity> {
        HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override {
            sets = new ZFXListValZFXBaseUnknown_var;
            sets->Append(Self().father);
            return S_OK;
        }
    } m_entity;
    struct Owner : Face<Node, ZFXISpecAttribute> {
        ZFXBaseUnknown* GetOwner() override { return ZFXBaseUnknown_var(&Self()).Detach(); }
    } m_owner;
    Face<Node, QVRIStep> m_step;
    Face<Node, ZFXISamAnalysisCase> m_case;

    struct Offer {
        IID iid;
        ZFXBaseUnknown* face;
        bool stands = true;
    };
    const Offer m_offers[9] = {{IID_ZFXISpecObject, &m_feature},
                               {IID_ZFXISpecAttrAccess, &m_attributes},
                               {IID_ZFXIAlias, &m_alias},
                               {IID_ZFXISamAnalysisScan, &m_scan},
                               {IID_ZFXISpecAttribute, &m_owner, kind == Kind::History},
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

    for (const char* wish : {" PRELOAD_ ", " Bolt Load "}) {
        ZFXIAlias_var(&operation)->SetAlias(wish);
        std::cout << "The step is called " << operation.name.ConvertToChar() << "\n";
    }
    ZFXISpecObject_var feature(&load);
    ZFXISamAnalysisCase_var scope(&analysisCase);
    ZFXUnicodeString name;
    QVRNameUtil::CreateBaseName(feature, name);
    QVRNameUtil::GetUniqueName(name, feature, scope);
    std::cout << "The load may be called " << name.ConvertToChar() << "\n";
}

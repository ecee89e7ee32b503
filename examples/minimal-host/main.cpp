// A minimal host: a document that supports one guarded rename and one name proposal. docs/bind-a-host.md explains it.
#include "QVREFeatureAlias.h"
#include "QVRNameUtil.h"
#include "analysis/AnalysisInterfaces.h"
#include "binding-check/ZFXBindingCheck.h"
#include "object-model/ZFXImplements.h"
#include <iostream>
#include <vector>

namespace {

/// An object of the document, which is a tree of nodes.
class Node : public ZFXObject {
public:
    Node(const char* lateType, const char* nodeName, Node* parent)
        : ZFXObject(fct_FindMetaObject(lateType)), name(nodeName), father(parent) {
        if (father != nullptr)
            father->children.push_back(this);
    }
    void AppendDescendants(const ZFXUnicodeString& type, ZFXListValZFXBaseUnknown_var& found) const {
        for (Node* child : children) {
            if (type == child->LateType())
                found.Append(child);
            child->AppendDescendants(type, found);
        }
    }

    ZFXUnicodeString name;
    Node* const father;
    std::vector<Node*> children;
    ZFXListValZFXISpecAttribute_var pointingAttributes;
};

class Feature : public ZFXImplements<Node, ZFXISpecObject, ZFXISpecAttrAccess, ZFXIAlias, ZFXISamAnalysisScan> {
public:
    using ZFXImplements::ZFXImplements;

    ZFXUnicodeString GetLateType() override { return LateType(); }
    ZFXBaseUnknown* GetFather() override { return ZFXNewReference(father); }
    ZFXListValZFXISpecAttribute_var* ListPointingAttributes(const char*, const ZFXUnicodeString&,
                                                            const ZFXUnicodeString&) override {
        return &pointingAttributes;
    }

    ZFXISpecAttrKey* GetAttrKey(const char* attribute) override { // "Alias" is the only attribute
        return ZFXUnicodeString(attribute) == "Alias" ? new ZFXISpecAttrKey : nullptr;
    }
    void SetString(ZFXISpecAttrKey*, const ZFXUnicodeString& value, int) override { name = value; }
    ZFXUnicodeString GetString(ZFXISpecAttrKey*, int) override { return name; }

    void SetAlias(const ZFXUnicodeString& alias) override { name = alias; } // for late types without a guarded alias
    ZFXUnicodeString GetAlias() override { return name; }

    HRESULT FindObjectsOfType(const ZFXUnicodeString& type, ZFXListValZFXBaseUnknown_var& found, int) override {
        AppendDescendants(type, found);
        return S_OK;
    }
    HRESULT ListChildren(ZFXListValZFXBaseUnknown_var& found, int) override {
        for (Node* child : children)
            found.Append(child);
        return S_OK;
    }
};

class Case final : public ZFXImplements<Feature, ZFXISamAnalysisCase> {
public:
    using ZFXImplements::ZFXImplements;
};

class History final : public ZFXImplements<Feature, ZFXISpecAttribute> { // the attribute that points at its steps
public:
    using ZFXImplements::ZFXImplements;
    ZFXBaseUnknown* GetOwner() override { return ZFXNewReference(this); }
};

class Step final : public ZFXImplements<Feature, QVRIStep> {
public:
    Step(const char* lateType, const char* nodeName, History* history) : ZFXImplements(lateType, nodeName, history) {
        pointingAttributes.Append(history);
    }
};

class Set final : public ZFXImplements<Feature, ZFXISamAnalysisSet> {
public:
    using ZFXImplements::ZFXImplements;
    void SetAlias(const ZFXUnicodeString& alias) override { // the type of the set is not guarded
        QVRBaseFeatureAlias guard;
        guard.SetImpl(Root());
        guard.SetAlias(alias);
    }
    HRESULT ListMembers(ZFXListValZFXISpecObject_var& members, const IID&, int) override {
        for (Node* child : children)
            members.Append(child);
        return S_OK;
    }
};

class Load final : public ZFXImplements<Feature, ZFXISamAnalysisEntity> {
public:
    using ZFXImplements::ZFXImplements;
    HRESULT GetParentSets(ZFXListValZFXBaseUnknown_var*& sets) override {
        sets = new ZFXListValZFXBaseUnknown_var;
        sets->Append(father);
        return S_OK;
    }
};

} // namespace

int main() {
    Case analysisCase("QVRAnalysisCaseLT", "Static", nullptr);
    History history("QVROruSimHistLT", "", &analysisCase);
    Step preload("QVRGeneralStaticStepLT", "Preload", &history);
    Step operation("QVRGeneralStaticStepLT", "Operation", &history);
    Set loads("QVRLoadContainerLT", "", &preload);
    Load pressure("QVRPressure", "Pressure-1", &loads);
    Load load("QVRPressure", "", &loads);

    std::vector<std::string> faults; // of this binding: there should be none
    ZFXCheckModule(faults);
    for (Node* node : std::vector<Node*>{&analysisCase, &history, &preload, &operation, &loads, &pressure, &load})
        ZFXCheckBinding(node, faults);
    for (const std::string& fault : faults)
        std::cout << fault << "\n";

    for (const char* newName : {" PRELOAD_ ", " Bolt Load "}) { // the first one clashes with "Preload"
        ZFXIAlias_var(&operation)->SetAlias(newName);
        std::cout << "The step is called " << operation.name.ConvertToChar() << "\n";
    }
    ZFXIAlias_var(&loads)->SetAlias("Loads.1");                                        // a full stop is not allowed
    QVREFeatureAlias::MetaObject()->SetExtensionOf(fct_FindMetaObject("QVRPressure")); // guards this type too
    ZFXIAlias_var(&load)->SetAlias("PRESSURE-1");

    ZFXISpecObject_var feature(&load);
    ZFXISamAnalysisCase_var scope(&analysisCase);
    ZFXUnicodeString name;
    QVRNameUtil::CreateBaseName(feature, name);
    QVRNameUtil::GetUniqueName(name, feature, scope);
    std::cout << "The load may be called " << name.ConvertToChar() << "\n";
}

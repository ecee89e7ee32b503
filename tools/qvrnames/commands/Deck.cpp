#include "commands/Deck.h"

#include "LateTypes.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

namespace {

using Names = std::vector<std::optional<std::string>>;

/// The text when the operation that gave it succeeded.
std::optional<std::string> If(HRESULT code, const ZFXUnicodeString& text) {
    return Failed(code) ? std::nullopt : std::optional<std::string>(text.ConvertToChar());
}

std::optional<std::string> DisplayName(const ZFXISpecObject_var& feature) {
    ZFXUnicodeString name;
    return If(QVRNameUtil::GetObjectName(feature, name), name);
}

Names FeatureNames(const ZFXISpecObject_var& feature) {
    QVRGenI18NUtils* english = QVRGenI18NUtils::Instance();
    ZFXUnicodeString generic;
    ZFXUnicodeString compliant;
    ZFXUnicodeString display;
    const HRESULT named = QVRNameUtil::GetObjectName(feature, display);
    const HRESULT generated = english->GetGenericEnglishFeatureName(feature, generic);
    if (!Failed(named))
        english->GetTARNISCompliantFeatureName(display, generic, compliant);
    return {If(named, display), If(named, compliant), If(generated, generic)};
}

/// The tag in an instance name as the deck shows it, in capitals; nothing when none can be read, which leaves the value
/// that was passed.
std::optional<std::string> TagIn(const ZFXUnicodeString& instance) {
    ZFXUnicodeString capitals(instance);
    capitals.ToUpper();
    int tag = 0;
    int again = 1;
    if (Failed(QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, capitals)) ||
        Failed(QVRGenInstanceName::GetUniqueLegalInstanceTag(again, capitals)) || tag != again)
        return std::nullopt;
    return std::to_string(tag);
}

Names MeshPartNames(const ZFXISpecObject_var& feature) {
    ZFXUnicodeString instance;
    ZFXUnicodeString part;
    const HRESULT named = QVRGenInstanceName::GetUniqueLegalInstanceName(feature, instance, part);
    return {DisplayName(feature), If(named, instance), If(named, part), Failed(named) ? std::nullopt : TagIn(instance)};
}

Names MaterialNames(const ZFXISpecObject_var& feature) {
    QVRGenI18NUtils* english = QVRGenI18NUtils::Instance();
    ZFXUnicodeString name;
    ZFXUnicodeString generic;
    const HRESULT named = english->GetMaterialName(feature, name);
    const HRESULT generated = english->GetGenericEnglishMaterialName(feature, generic);
    return {DisplayName(feature), If(named, name), If(generated, generic)};
}

/// An ambiguous or unusable group has an empty name, which is none.
std::optional<std::string> GroupName(HRESULT code, const ZFXUnicodeString& name) {
    return name.IsNull() != 0 ? std::nullopt : If(code, name);
}

Names SupportNames(ZFXISpecObject_var feature) {
    ZFXUnicodeString group;
    const HRESULT code = QVRNameUtil::GetSupportGroupName(feature, group);
    return {DisplayName(feature), GroupName(code, group)};
}

Names DesignNames(const ZFXISpecObject_var& feature) {
    QVRISamAnalysisConnectionDesign_var design(feature);
    ZFXUnicodeString master;
    ZFXUnicodeString slave;
    const HRESULT code = QVRNameUtil::GetGrpNameofMasterAndSlave(design, master, slave);
    return {DisplayName(feature), GroupName(code, master), GroupName(code, slave)};
}

Names JobNames(const ZFXISpecObject_var& feature) { return {DisplayName(feature)}; }

enum Section { kFeatures, kMeshParts, kMaterials, kSupports, kDesigns, kJobs };

/// Recognised as a host does: by the interfaces that the object offers and by its late type.
Section SectionOf(const ZFXISpecObject_var& feature) {
    if (ZFXIMSHMeshPart_var(feature) != nullptr)
        return kMeshParts;
    if (ZFXIMaterialFeature_var(feature) != nullptr)
        return kMaterials;
    if (ZFXISamAnalysisSupport_var(feature) != nullptr)
        return kSupports;
    if (QVRISamAnalysisConnectionDesign_var(feature) != nullptr)
        return kDesigns;
    return feature->GetLateType() == LateTypes::QVRJobLT ? kJobs : kFeatures;
}

/// Whether the deck would hold the object: what has a name, and what lies in a set or is a step and may still get one.
bool IsInDeck(const DocumentEntry& entry, const ZFXISpecObject_var& feature) {
    return feature != nullptr && (entry.isNamed || SectionOf(feature) != kFeatures ||
                                  QVRIStep_var(feature) != nullptr || ZFXISamAnalysisEntity_var(feature) != nullptr);
}

constexpr DeckColumn kDisplay{"DISPLAY NAME", "displayName", false};

} // namespace

std::vector<DeckSection> DeckOf(const LoadedDocument& loaded) {
    std::vector<DeckSection> deck{
        {"FEATURE",
         "features",
         {kDisplay, {"SOLVER NAME", "solverName", true}, {"GENERIC NAME", "genericName", false}},
         {}},
        {"MESH PART",
         "meshParts",
         {kDisplay, {"INSTANCE", "instanceName", true}, {"PART", "partName", true}, {"TAG", "tag", false}},
         {}},
        {"MATERIAL",
         "materials",
         {kDisplay, {"NAME", "materialName", true}, {"GENERIC NAME", "genericName", false}},
         {}},
        {"SUPPORT", "supports", {kDisplay, {"GROUP", "group", false}}, {}},
        {"CONNECTION DESIGN",
         "connectionDesigns",
         {kDisplay, {"MASTER GROUP", "masterGroup", false}, {"SLAVE GROUP", "slaveGroup", false}},
         {}},
        {"JOB", "jobs", {{"NAME", "name", true}}, {}},
    };
    using Namer = Names (*)(const ZFXISpecObject_var&);
    static constexpr Namer kNamers[] = {
        FeatureNames,  MeshPartNames,
        MaterialNames, [](const ZFXISpecObject_var& feature) { return SupportNames(feature); },
        DesignNames,   JobNames};
    QVRGenI18NUtils::Instance()->ResetAllLists();
    for (std::uint32_t entry = 0; entry < loaded.entries.size(); ++entry) {
        const ZFXISpecObject_var feature = loaded.entries[entry].feature;
        if (!IsInDeck(loaded.entries[entry], feature))
            continue;
        const Section section = SectionOf(feature);
        deck[section].rows.push_back({entry, kNamers[section](feature)});
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    return deck;
}

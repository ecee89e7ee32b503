#include "Deck.h"

#include "FeaturePaths.h"

#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

#include <map>

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

/// The tag is read from the instance name as the deck shows it, in capitals.
Names MeshPartNames(const ZFXISpecObject_var& feature) {
    ZFXUnicodeString instance;
    ZFXUnicodeString part;
    const HRESULT named = QVRGenInstanceName::GetUniqueLegalInstanceName(feature, instance, part);
    ZFXUnicodeString capitals(instance);
    capitals.ToUpper();
    int tag = 0;
    const HRESULT tagged = Failed(named) ? named : QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, capitals);
    return {DisplayName(feature), If(named, instance), If(named, part),
            Failed(tagged) ? std::nullopt : std::optional(std::to_string(tag))};
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
    return feature->GetLateType() == "QVRJobLT" ? kJobs : kFeatures;
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
        if (!loaded.entries[entry].isNamed || feature == nullptr)
            continue;
        const Section section = SectionOf(feature);
        deck[section].rows.push_back({entry, kNamers[section](feature)});
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    return deck;
}

namespace {

/// The letters of a name as its comparison with others sees them: near enough to find candidates.
std::string Lowered(const std::string& name) {
    ZFXUnicodeString text(name.c_str());
    text.ToUpper();
    text.ToLower();
    return text.ConvertToChar();
}

} // namespace

std::vector<DeckFinding> FindingsOf(const std::vector<DeckSection>& deck, const LoadedDocument& loaded) {
    std::vector<DeckFinding> findings;
    for (const DeckSection& section : deck) {
        for (std::size_t c = 0; c < section.columns.size(); ++c) {
            if (!section.columns[c].isDeckName)
                continue;
            std::map<std::string, std::uint32_t> given; // the first of each name
            for (const DeckRow& row : section.rows) {
                if (!row.names[c])
                    continue;
                const std::string& name = *row.names[c];
                const auto found = [&](Verdict verdict) {
                    findings.push_back({row.entry, section.columns[c].title, name, std::move(verdict)});
                };
                if (Verdict broken = JudgeText(name.c_str()); broken.IsRefusal())
                    found(std::move(broken));
                const auto [first, isNew] = given.emplace(Lowered(name), row.entry);
                if (!isNew)
                    found(
                        {E_FAIL, {}, "The deck gives this name to " + TellingOf(loaded, first->second) + " as well."});
            }
        }
    }
    return findings;
}

#include "commands/Deck.h"

#include "document/FeaturePaths.h"

#include "LateTypes.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

#include <map>
#include <string_view>
#include <utility>

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

namespace {

/// The letters of a name as its comparison with others sees them, or nearly so: equal names have one such form.
std::string Lowered(const std::string& name) {
    ZFXUnicodeString text(name.c_str());
    text.ToUpper();
    text.ToLower();
    return text.ConvertToChar();
}

/// The case that an object lies under; the model for one that lies under none.
std::uint32_t CaseOf(const LoadedDocument& loaded, std::uint32_t entry) {
    while (entry != 0 && ZFXISamAnalysisCase_var(loaded.entries[entry].feature) == nullptr)
        entry = loaded.entries[entry].parent;
    return entry;
}

/// The first object of each name in one column. Features of different cases do not meet: each case has its deck.
class Given {
public:
    explicit Given(const LoadedDocument& loaded) : m_loaded(loaded) {}

    /// Another object that has the name already, as it is told beside `entry`; nothing for a new name.
    std::optional<std::string> Take(const DeckSection& section, std::uint32_t entry, const std::string& name) {
        const std::uint32_t analysisCase = std::string_view(section.key) == "features" ? CaseOf(m_loaded, entry) : 0;
        for (const auto& [other, otherName] : m_first[{analysisCase, Lowered(name)}])
            if (ZFXUnicodeString(otherName.c_str()).Compare(name.c_str()) != 0) {
                const std::string telling = TellingOf(m_loaded, other);
                return telling == TellingOf(m_loaded, entry) ? PointerOf(m_loaded, other) : telling;
            }
        m_first[{analysisCase, Lowered(name)}].emplace_back(entry, name);
        return std::nullopt;
    }

private:
    const LoadedDocument& m_loaded;
    std::map<std::pair<std::uint32_t, std::string>, std::vector<std::pair<std::uint32_t, std::string>>> m_first;
};

/// What is wrong with the names of one column.
void FindIn(const DeckSection& section, std::size_t column, const LoadedDocument& loaded,
            std::vector<DeckFinding>& findings) {
    Given given(loaded);
    for (const DeckRow& row : section.rows) {
        if (!row.names[column])
            continue;
        const std::string& name = *row.names[column];
        const auto found = [&](Verdict verdict) {
            findings.push_back({row.entry, section.columns[column].title, name, std::move(verdict)});
        };
        if (Verdict broken = JudgeText(name.c_str()); broken.IsRefusal())
            found(std::move(broken));
        if (const auto other = given.Take(section, row.entry, name))
            found({E_FAIL, {}, "The deck gives this name to " + *other + " as well."});
    }
}

} // namespace

std::vector<DeckFinding> FindingsOf(const std::vector<DeckSection>& deck, const LoadedDocument& loaded) {
    std::vector<DeckFinding> findings;
    for (const DeckSection& section : deck)
        for (std::size_t column = 0; column < section.columns.size(); ++column)
            if (section.columns[column].isDeckName)
                FindIn(section, column, loaded, findings);
    return findings;
}

#include "commands/Deck.h"

#include "commands/BaseNames.h"

#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"

#include <tuple>
#include <utility>

namespace {

using Features = ZFXListValZFXISpecObject_var;
/// The names of one object, in the order of the columns of its section.
using Names = std::vector<std::optional<std::string>>;

/// Returns the text if the operation that set it succeeded, else nothing.
std::optional<std::string> ValueIf(HRESULT code, const ZFXUnicodeString& text) {
    return Failed(code) ? std::nullopt : std::optional<std::string>(text.ConvertToChar());
}

std::optional<std::string> DisplayName(const ZFXISpecObject_var& feature) {
    ZFXUnicodeString name;
    return ValueIf(QVRNameUtil::GetObjectName(feature, name), name);
}

Names FeatureNames(const ZFXISpecObject_var& feature) {
    QVRGenI18NUtils* english = QVRGenI18NUtils::Instance();
    ZFXUnicodeString generic;
    ZFXUnicodeString compliant;
    ZFXUnicodeString display;
    const HRESULT named = QVRNameUtil::GetObjectName(feature, display);
    const HRESULT generated = english->GetGenericEnglishFeatureName(feature, generic);
    if (!Failed(named))
        std::ignore = english->GetTARNISCompliantFeatureName(display, generic, compliant);
    return {ValueIf(named, display), ValueIf(named, compliant), ValueIf(generated, generic)};
}

/// Returns the tag in an instance name, read from its upper-case form as it is written in the deck; nothing if there is
/// none. The digits of a tag end at the first "-", so no tag that can be read is negative.
std::optional<std::string> TagIn(const ZFXUnicodeString& instance) {
    constexpr int kNoTag = -1;
    ZFXUnicodeString capitals(instance);
    capitals.ToUpper();
    int tag = kNoTag;
    if (Failed(QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, capitals)) || tag == kNoTag)
        return std::nullopt;
    return std::to_string(tag);
}

std::vector<Names> MeshPartNames(const Features& features) {
    ZFXListVal<ZFXIMSHMeshPart_var> meshParts;
    for (const ZFXISpecObject_var& feature : features)
        meshParts.Append(ZFXIMSHMeshPart_var(feature));
    ZFXListVal<QVRMeshPartNames> names;
    std::ignore = QVRGenInstanceName::GetUniqueLegalInstanceNames(meshParts, names); // always S_OK
    std::vector<Names> rows;
    for (int i = 1; i <= features.Size(); ++i) {
        const auto& [code, instance, part] = names[i];
        rows.push_back({DisplayName(features[i]), ValueIf(code, instance), ValueIf(code, part),
                        Failed(code) ? std::nullopt : TagIn(instance)});
    }
    return rows;
}

std::vector<Names> MaterialNames(const Features& materials) {
    QVRGenI18NUtils* english = QVRGenI18NUtils::Instance();
    ZFXListValZFXUnicodeString names;
    const HRESULT named = english->GetMaterialNames(materials, names); // each object of the section has a name
    std::vector<Names> rows;
    for (int i = 1; i <= materials.Size(); ++i) {
        ZFXUnicodeString generic;
        const HRESULT generated = english->GetGenericEnglishMaterialName(materials[i], generic);
        rows.push_back({DisplayName(materials[i]), ValueIf(named, names[i]), ValueIf(generated, generic)});
    }
    return rows;
}

/// Returns nothing if the name is empty: the group is ambiguous or has no legal name.
std::optional<std::string> GroupName(HRESULT code, const ZFXUnicodeString& name) {
    return name.IsNull() != 0 ? std::nullopt : ValueIf(code, name);
}

Names SupportNames(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var support(feature);
    ZFXUnicodeString group;
    const HRESULT code = QVRNameUtil::GetSupportGroupName(support, group);
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

/// Names the objects of a section one after the other.
template <Names (*namesOf)(const ZFXISpecObject_var& feature)>
std::vector<Names> Each(const Features& features) {
    std::vector<Names> rows;
    for (const ZFXISpecObject_var& feature : features)
        rows.push_back(namesOf(feature));
    return rows;
}

template <class Interface>
bool Offers(const ZFXISpecObject_var& feature) {
    return Interface(feature) != nullptr;
}

/// A section of the deck: how its objects are recognised, and the names that they get.
struct SectionType {
    const char* title;
    const char* key;
    bool isPerCase;
    bool (*matches)(const ZFXISpecObject_var& feature); ///< null for kFeatureSection
    std::vector<Names> (*namesOf)(const Features& features);
    std::vector<DeckColumn> columns;
};

constexpr DeckColumn kDisplay{"DISPLAY NAME", "displayName", false};

/// The section of the objects that match no other section.
constexpr std::size_t kFeatureSection = 0;

/// In the order of the output. An object belongs to the first section that matches it.
const std::vector<SectionType>& SectionTypes() {
    static const std::vector<SectionType> types{
        {"FEATURE",
         "features",
         true,
         nullptr,
         Each<FeatureNames>,
         {kDisplay, {"SOLVER NAME", "solverName", true}, {"GENERIC NAME", "genericName", false}}},
        {"MESH PART",
         "meshParts",
         false,
         Offers<ZFXIMSHMeshPart_var>,
         MeshPartNames,
         {kDisplay, {"INSTANCE", "instanceName", true}, {"PART", "partName", true}, {"TAG", "tag", false}}},
        {"MATERIAL",
         "materials",
         false,
         Offers<ZFXIMaterialFeature_var>,
         MaterialNames,
         {kDisplay, {"NAME", "materialName", true}, {"GENERIC NAME", "genericName", false}}},
        {"SUPPORT",
         "supports",
         false,
         Offers<ZFXISamAnalysisSupport_var>,
         Each<SupportNames>,
         {kDisplay, {"GROUP", "group", false}}},
        {"CONNECTION DESIGN",
         "connectionDesigns",
         false,
         Offers<QVRISamAnalysisConnectionDesign_var>,
         Each<DesignNames>,
         {kDisplay, {"MASTER GROUP", "masterGroup", false}, {"SLAVE GROUP", "slaveGroup", false}}},
        {"JOB", "jobs", false, IsJob, Each<JobNames>, {{"NAME", "name", true}}},
    };
    return types;
}

/// Returns the index of the section of an object. Recognises objects as a host does: by the interfaces that they offer
/// and by their late types.
std::size_t SectionOf(const ZFXISpecObject_var& feature) {
    const std::vector<SectionType>& types = SectionTypes();
    for (std::size_t i = 0; i < types.size(); ++i)
        if (types[i].matches != nullptr && types[i].matches(feature))
            return i;
    return kFeatureSection;
}

/// Returns true if the object is written into the section: it has a name, or the section is not that of the features. A
/// step or a member of a set is written without a name too, because it gets a generic name.
bool IsInDeck(const DocumentEntry& entry, const ZFXISpecObject_var& feature, const SectionType& section) {
    return entry.isNamed || section.matches != nullptr || Offers<QVRIStep_var>(feature) ||
           Offers<ZFXISamAnalysisEntity_var>(feature);
}

} // namespace

std::vector<DeckSection> BuildDeck(const LoadedDocument& loaded) {
    std::vector<DeckSection> deck;
    for (const SectionType& type : SectionTypes())
        deck.push_back({type.title, type.key, type.isPerCase, type.columns, {}});
    std::vector<Features> featuresOf(deck.size());
    for (EntryIndex entry = 0; entry < loaded.entries.size(); ++entry) {
        const ZFXISpecObject_var feature = loaded.entries[entry].feature;
        if (feature == nullptr)
            continue;
        const std::size_t section = SectionOf(feature);
        if (!IsInDeck(loaded.entries[entry], feature, SectionTypes()[section]))
            continue;
        deck[section].rows.push_back({entry, {}});
        featuresOf[section].Append(feature);
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    for (std::size_t section = 0; section < deck.size(); ++section) {
        std::vector<Names> names = SectionTypes()[section].namesOf(featuresOf[section]);
        for (std::size_t row = 0; row < names.size(); ++row)
            deck[section].rows[row].names = std::move(names[row]);
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
    return deck;
}

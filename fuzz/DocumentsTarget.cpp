// Builds random documents and calls random operations on them, with injected faults of the platform.
//
// Checked always:
// - No reference is leaked; only the caches of the singleton keep references.
// - A rename stores the new name or keeps the old one, unless the old one could not be read.
// - A feature keeps its first English name.
//
// Checked if no fault was injected:
// - A name that the guarded alias stores passes its check.
// - In a regular document, for which the target can compute all scopes, a name that passes a check is unused in its
//   scope, and so is a proposed name.

#include "Expectations.h"
#include "FuzzInput.h"
#include "ReferenceRules.h"

#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRNameUtil.h"
#include "analysis/ZFXIAlias.h"
#include "memory-model/MemoryModel.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <set>

namespace {

using Reference::Text;
using Util = QVRNameUtil;

enum class Role { Step, Load, Property, Job, MeshPart, Material, Bolt, Other, None };

/// A feature of the document, with what the target needs to compute the scope of its name.
struct Entry {
    MemoryFeature feature;
    Role role;
    int caseNumber = 0;        ///< from 1; 0 outside the cases
    MemoryFeature set = {};    ///< the set that contains the feature
    bool isGuarded = false;    ///< whether the alias extension guards its name
    bool isPropagated = false; ///< whether GetObjectsInStep skips it
};
using Entries = std::vector<Entry>;

struct FeatureType {
    const char* name;
    bool isGuarded;
};
constexpr FeatureType kStepTypes[] = {
    {"QVRGeneralStaticStepLT", true}, {"QVRStaticLPStepLT", true}, {"QVRInitializationStepLT", false}};
constexpr FeatureType kLoadTypes[] = {
    {"QVRPressure", false}, {"QVRInitialTemperatureLT", false}, {"QVRInteractionLT", true}, {"SAMLoad", false}};
constexpr FeatureType kPropertyTypes[] = {
    {"QVRShellSectionEnhLT", true}, {"QVRTabularAmplitudeLT", true}, {"SAMThickness", false}, {"QVRLayupLT", true}};
constexpr const char* kSetTypes[] = {"QVRLoadContainerLT", "QVRBCContainerLT"};
constexpr const char* kBases[] = {"p-", "Job-", "JOB-", "", "OrphanMesh-", "a:b", "_ ", "1"};

constexpr int kRequestCount = static_cast<int>(MemoryRequest::GetCurrentAnalysisCaseSP) + 1;
constexpr MemoryResponse kResponses[] = {{E_UNEXPECTED, false}, {E_UNEXPECTED, true}, {S_OK, false}, {3, true}};

/// One random document, and the operations on it.
class Scenario {
public:
    explicit Scenario(FuzzInput& input) {
        const std::string expanded = Expand(input.Below(256) * 256 + input.Below(256));
        FuzzInput shape(reinterpret_cast<const std::uint8_t*>(expanded.data()), expanded.size());
        m_input = &shape;
        Build();
        m_input = &input;
    }
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;
    ~Scenario() { m_utils->ResetAllLists(); }
    void Step() {
        if (m_input->Below(3) == 0)
            m_model.FailNth(static_cast<MemoryRequest>(m_input->Below(kRequestCount)), 1 + m_input->Below(40),
                            OneOf(kResponses));
        (this->*OneOf(kOperations))();
        m_model.ClearFaults();
        CountOperations(1);
        ExpectEqual(m_model.References(), static_cast<long>(m_names.size() + m_materials.size()),
                    "references, except those of the caches");
    }

private:
    template <class Element, std::size_t n>
    const Element& OneOf(const Element (&elements)[n]) {
        return elements[m_input->Below(static_cast<int>(n))];
    }

    /// Returns mostly one of a few similar names, sometimes any text.
    ZFXUnicodeString Name() {
        const int kind = m_input->Below(16);
        if (kind == 0)
            return Wide(m_input->Text());
        ZFXUnicodeString name = Base();
        if (kind > 1)
            name.Append(Wide(Reference::ToDecimal(kind > 10 ? m_input->Number() : kind - 1)));
        return name;
    }
    /// Returns "P-" in half of the calls, so that names clash often.
    ZFXUnicodeString Base() { return m_input->Flag() ? "P-" : OneOf(kBases); }

    Entry& AddFeature(MemoryFeature parent, const FeatureType& type, Role role, int caseNumber) {
        m_entries.push_back({parent.Feature(type.name, Name()), role, caseNumber, parent, type.isGuarded});
        return m_entries.back();
    }

    /// Returns the pseudo-random bytes from which the document is built. Two bytes of the input are the seed, so that
    /// the other bytes select operations.
    static std::string Expand(int seed) {
        std::minstd_rand random(static_cast<unsigned>(seed) + 1);
        std::string expanded(512, '\0');
        for (char& byte : expanded)
            byte = static_cast<char>(random() >> 8U);
        return expanded;
    }

    void Build() {
        const int cases = 1 + m_input->Below(3);
        for (int caseNumber = 1; caseNumber <= cases; ++caseNumber)
            BuildCase(caseNumber);
        for (int left = m_input->Below(5); left > 0; --left) {
            const FeatureType& type = OneOf(kPropertyTypes);
            AddFeature(m_document.PropertySet(), type, Role::Property, 0);
        }
        for (int left = m_input->Below(4); left > 0; --left)
            m_entries.push_back({m_document.MeshPart(Name(), m_input->Number()), Role::MeshPart});
        for (int left = m_input->Below(4); left > 0; --left)
            m_entries.push_back(
                {m_root.Add(MemoryKind::Material, "QVRMaterialLT", Name()).MaterialName(Name()), Role::Material});
        MemoryFeature father = m_root.Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
        for (int left = m_input->Below(4); left > 0; --left)
            AddFeature(father, {"SAMBoltTightening", false}, Role::Bolt, 0);
        BuildConnection();
        for (int left = m_input->Flag() ? m_input->Below(4) : 0; left > 0; --left)
            MakeIrregular();
    }

    void BuildCase(int caseNumber) {
        MemoryFeature analysisCase = m_document.Case(Name());
        m_cases.push_back(analysisCase);
        for (int steps = m_input->Below(4); steps > 0; --steps) {
            const FeatureType& stepType = OneOf(kStepTypes);
            MemoryFeature step = analysisCase.Step(stepType.name, Name());
            m_entries.push_back({step, Role::Step, caseNumber, {}, stepType.isGuarded});
            for (int sets = m_input->Below(3); sets > 0; --sets) {
                MemoryFeature set = step.Set(OneOf(kSetTypes));
                for (int loads = m_input->Below(4); loads > 0; --loads) {
                    const FeatureType& type = OneOf(kLoadTypes);
                    Entry& load = AddFeature(set, type, Role::Load, caseNumber);
                    const bool propagated = m_input->Flag();
                    load.feature.Propagated(propagated);
                    load.isPropagated = propagated && type.name != kLoadTypes[1].name;
                }
            }
        }
        for (int jobs = m_input->Below(3); jobs > 0; --jobs)
            m_entries.push_back({analysisCase.Job(Name()), Role::Job, caseNumber, {}, true});
    }

    void BuildConnection() {
        MemoryFeature group = m_root.Add(MemoryKind::Group, "G", Name());
        MemoryFeature connector = m_root.Add(MemoryKind::Connector, "C", "c").SetGroup(group);
        m_support = m_root.Add(MemoryKind::Support, "S", "s").AddConnector(connector);
        m_design = m_root.Add(MemoryKind::ConnectionDesign, "D", "d").AddMaster(connector).AddSlave(connector);
        m_entries.push_back({m_support, Role::Other});
    }

    /// Changes the document so that the target cannot compute scopes any more.
    void MakeIrregular() {
        static constexpr IID kInterfaces[] = {
            IID_ZFXISpecObject,        IID_ZFXIAlias,          IID_ZFXISpecAttrAccess, IID_ZFXILinkableObject,
            IID_ZFXISamAnalysisScan,   IID_ZFXISamAnalysisSet, IID_QVRIStep,           IID_ZFXISamAnalysisEntity,
            IID_QVRIPropagatingFeature};
        m_isIrregular = true;
        MemoryFeature one = Any().feature;
        MemoryFeature other = Any().feature;
        switch (m_input->Below(8)) {
        case 0:
            one.Without(OneOf(kInterfaces));
            break;
        case 1:
            one.With(OneOf(kInterfaces));
            break;
        case 2:
            one.Father(other);
            break;
        case 3:
            one.AddMember(other);
            break;
        case 4:
            one.PointedAtBy(other);
            break;
        case 5:
            one.WithoutAttribute("Alias");
            break;
        case 6:
            m_document.MakeCurrent({});
            break;
        default:
            m_cases.front().SolverCase(false);
            break;
        }
    }

    Entry& Any() { return m_entries[static_cast<std::size_t>(m_input->Below(256)) % m_entries.size()]; }
    MemoryFeature AnyCase() { return m_cases[static_cast<std::size_t>(m_input->Below(3)) % m_cases.size()]; }

    bool HadFault() const { return *m_model.LastFault() != '\0'; }
    /// Returns true if the expected scopes are known and no fault was injected.
    bool IsRegular() const { return !m_isIrregular && !HadFault(); }

    // ---- Scopes, computed from the entries ----

    template <class Test>
    std::vector<MemoryFeature> Features(Test test) const {
        std::vector<MemoryFeature> features;
        for (const Entry& entry : m_entries)
            if (test(entry))
                features.push_back(entry.feature);
        return features;
    }
    std::vector<MemoryFeature> OfRole(Role role) const {
        return Features([&](const Entry& other) { return other.role == role; });
    }
    /// Returns the other loads that are numbered or compared with `load`: those in sets of the type of its set, in the
    /// steps of a case.
    std::vector<MemoryFeature> OtherLoads(const Entry& load, int caseNumber) const {
        return Features([&](const Entry& other) {
            return other.role == Role::Load && other.caseNumber == caseNumber &&
                   other.set.LateType() == load.set.LateType() && !other.isPropagated &&
                   !(other.feature == load.feature);
        });
    }
    std::vector<MemoryFeature> StepsOfCase(int caseNumber) const {
        return Features([&](const Entry& other) { return other.role == Role::Step && other.caseNumber == caseNumber; });
    }
    std::vector<MemoryFeature> ScopeOf(const Entry& entry) const {
        switch (entry.role) {
        case Role::Step:
            return StepsOfCase(entry.caseNumber);
        case Role::Load:
            return OtherLoads(entry, entry.caseNumber);
        case Role::Job:
            return Features(
                [&](const Entry& other) { return other.role == Role::Job && other.caseNumber == entry.caseNumber; });
        case Role::Property:
        case Role::MeshPart:
            return OfRole(entry.role);
        default:
            return {};
        }
    }

    /// Checks that a proposal has the next number of its scope, and thus is unused there.
    static void ExpectNext(const ZFXUnicodeString& name, const ZFXUnicodeString& base,
                           const std::vector<MemoryFeature>& scope, bool ignoreCase = false) {
        std::vector<Text> names;
        for (const MemoryFeature& other : scope)
            names.emplace_back(other.StoredAlias().Units());
        ExpectEqual(name, Reference::NextName(base.Units(), names, ignoreCase),
                    "a proposal has the next number of its scope");
    }

    // ---- Operations ----

    void Propose() {
        const Entry entry = Any();
        const int given = m_input->Below(4);
        const auto caseNumber = given == 0 ? 1 : 1 + (static_cast<std::size_t>(given) - 1) % m_cases.size();
        ZFXISpecObject_var feature(entry.feature);
        ZFXISamAnalysisCase_var analysisCase(given == 0 ? MemoryFeature() : m_cases[caseNumber - 1]);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        Util::GetUniqueName(name, feature, analysisCase);
        ExpectNumbered(name, base);
        if (!IsRegular() || name == base)
            return;
        std::vector<MemoryFeature> scope = OfRole(Role::Property);
        if (entry.role == Role::Step) {
            scope = StepsOfCase(static_cast<int>(caseNumber));
            if (!scope.empty())
                scope.erase(scope.begin()); // the first step is not numbered
        } else if (entry.role != Role::Property) {
            scope = OtherLoads(entry, static_cast<int>(caseNumber));
        }
        ExpectNext(name, base, scope);
    }

    static void ExpectNumbered(const ZFXUnicodeString& name, const ZFXUnicodeString& base) {
        const Text units(name.Units());
        ExpectTrue(Reference::BeginsWith(units, base.Units()), "a proposal begins with its base");
        for (const char16_t unit : units.substr(base.Units().size()))
            ExpectTrue((unit >= u'0' && unit <= u'9') || unit == u'-',
                       "the base of a proposal is followed by a number");
    }

    void ProposeInSet() {
        const MemoryFeature chosen[] = {m_document.PropertySet(), m_document.MeshManager(), Any().set};
        const MemoryFeature from = OneOf(chosen);
        const ZFXISamAnalysisSet_var set(from);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        const HRESULT code = Util::GetNextUniqueName(name, set);
        ExpectNumbered(name, base);
        ExpectTrue(!Failed(code) || name == base, "without members there is no proposal");
        if (!IsRegular() || set == nullptr)
            return;
        const auto members = Features([&](const Entry& entry) {
            return entry.set == from || (entry.role == Role::MeshPart && from == m_document.MeshManager());
        });
        ExpectNext(name, base, members);
    }

    void ProposeSeveral() {
        ZFXListValZFXBaseUnknown_var scope;
        std::vector<MemoryFeature> listed;
        for (int left = m_input->Below(8); left > 0; --left) {
            listed.push_back(m_input->Below(8) == 0 ? MemoryFeature() : Any().feature);
            scope.Append(ZFXBaseUnknown_var(listed.back()));
        }
        ZFXUnicodeString base = Base();
        const ZFXUnicodeString before = base;
        ZFXListValZFXUnicodeString names;
        const int count = m_input->Below(5);
        ExpectTrue(Failed(Util::GetNextUniqueNames(base, scope, count, names)) == (count < 1), "GetNextUniqueNames");
        ExpectEqual(names.Size(), std::max(count, 0), "the number of proposals is the requested one");
        ExpectTrue(base == before, "the base is unchanged");
        std::set<Text> distinct;
        for (const ZFXUnicodeString& name : names) {
            ExpectTrue(distinct.emplace(name.Units()).second, "proposals differ");
            if (IsRegular() && distinct.size() == 1)
                ExpectNext(name, base, listed);
        }
    }

    void ProposeJob() {
        ZFXUnicodeString name = Name();
        ExpectEqual(Util::GetUniqueNameForJob(name), S_OK, "GetUniqueNameForJob");
        ExpectNumbered(name, "Job-");
        if (IsRegular())
            ExpectNext(name, "Job-", OfRole(Role::Job), true);
    }

    void ProposeMeshPart() {
        ZFXISpecObject_var part(Any().feature);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        const HRESULT code = Util::GetUniqueNameForMeshPart(part, name);
        ExpectNumbered(name, base);
        ExpectTrue(!Failed(code) || name == base, "a failure leaves the base");
        if (IsRegular() && !Failed(code))
            ExpectNext(name, base, OfRole(Role::MeshPart));
    }

    static HRESULT CheckOf(MemoryFeature feature, const ZFXUnicodeString& name) {
        ZFXISpecObject_var handle(feature);
        const ZFXUnicodeString lateType = feature.LateType();
        if (lateType == "QVRJobLT")
            return Util::IsNameUniqueAcrossCases(handle, name);
        return Util::CheckName(handle, name, lateType == "QVRShellSectionEnhLT" ? 0 : 1);
    }

    void Rename() {
        Entry entry = Any();
        const ZFXUnicodeString before = entry.feature.StoredAlias();
        const ZFXUnicodeString wanted = Name();
        const ZFXIAlias_var alias(entry.feature);
        if (alias != nullptr)
            alias->SetAlias(wanted);
        const bool isRegular = IsRegular();
        const bool hadFault = HadFault();
        m_model.ClearFaults();
        const ZFXUnicodeString stored = entry.feature.StoredAlias();
        if (!entry.isGuarded) {
            ExpectTrue(stored == wanted || ((hadFault || m_isIrregular) && stored == before),
                       "the platform's alias stores the name");
            return;
        }
        const ZFXUnicodeString candidate = Wide(Reference::Trimmed(Text(wanted.Units())));
        const bool readFailed =
            hadFault && stored.IsNull() != 0; // a failed read of the former alias returns an empty text
        ExpectTrue(stored == before || stored == candidate || readFailed,
                   "a rename stores the new name or keeps the old one");
        if (isRegular) { // like the guarded alias, check while the new name is stored
            entry.feature.Alias(candidate);
            const HRESULT code = CheckOf(entry.feature, candidate);
            entry.feature.Alias(stored);
            ExpectEqual(stored, (Failed(code) ? before : candidate).Units(),
                        "the guarded alias stores a name exactly if its check passes");
        } else if (!hadFault && stored != before) {
            ExpectTrue(!Failed(CheckOf(entry.feature, stored)), "a stored name passes its check");
        }
    }

    void Check() {
        const Entry entry = Any();
        ZFXISpecObject_var feature(entry.feature);
        const ZFXUnicodeString own = entry.feature.StoredAlias();
        ZFXUnicodeString name = Name();
        std::vector<MemoryFeature> scope = ScopeOf(entry);
        HRESULT code = S_OK;
        switch (m_input->Below(6)) {
        case 0:
            code = Util::CheckName(feature, name, static_cast<unsigned char>(m_input->Below(2)));
            break;
        case 1:
            code = Util::IsNameUnique(feature, name);
            break;
        case 2:
            code = Util::CheckFileName(feature, name);
            name = own;
            break;
        case 3:
            code = Util::IsNameUniqueAcrossCases(feature, name);
            scope = entry.role == Role::Job ? OfRole(Role::Job) : std::vector<MemoryFeature>();
            break;
        case 4:
            code = Util::IsUniqueNameForJob(feature, name);
            scope = OfRole(Role::Job);
            break;
        default:
            code = Util::GetMorvelObjectName(feature, name);
            scope = OfRole(entry.role == Role::Bolt ? Role::Bolt : Role::None);
            break;
        }
        ExpectTrue(entry.feature.StoredAlias() == own, "a check changes nothing");
        if (!Failed(code) && IsRegular())
            ExpectNoClash(entry, name.IsNull() != 0 ? own : name, scope);
    }

    static void ExpectNoClash(const Entry& entry, const ZFXUnicodeString& name,
                              const std::vector<MemoryFeature>& scope) {
        for (const MemoryFeature& other : scope)
            ExpectTrue(other == entry.feature || name.IsNull() != 0 || name.Compare(other.StoredAlias()) == 0,
                       "a name that passes a check is unused");
    }

    void NameFeature() {
        const Entry entry = Any();
        ZFXISpecObject_var feature(entry.feature);
        ZFXUnicodeString name("before");
        const bool generic = m_input->Below(3) != 0;
        const HRESULT code =
            generic ? m_utils->GetGenericEnglishFeatureName(feature, name) : m_utils->GetFeatureName(feature, name);
        if (Failed(code)) {
            ExpectTrue(name == "before", "a failure leaves the name");
            return;
        }
        const auto [known, isNew] = m_names.try_emplace(entry.feature.Object(), name.Units());
        ExpectEqual(name, known->second, "a feature keeps its first name");
        m_onlyGeneric = m_onlyGeneric && generic && !HadFault();
        if (isNew && m_onlyGeneric)
            for (const auto& [object, other] : m_names)
                ExpectTrue(object == entry.feature.Object() || name.Units() != other,
                           "different features, different names");
    }

    void NameMaterial() {
        MemoryFeature material = Any().feature;
        const ZFXISpecObject_var handle(material);
        ZFXUnicodeString name("before");
        const bool generic = m_input->Flag();
        const HRESULT code =
            generic ? m_utils->GetGenericEnglishMaterialName(handle, name) : m_utils->GetMaterialName(handle, name);
        const bool known = m_materials.contains(material.Object());
        if (!Failed(code))
            m_materials.insert(material.Object());
        ExpectTrue(!Failed(code) || known || name == "before", "a failure leaves the name");
    }

    void NameForDeck() {
        const Entry entry = Any();
        ZFXISpecObject_var feature(entry.feature);
        ZFXUnicodeString first("first");
        ZFXUnicodeString second("second");
        if (m_input->Flag()) {
            if (feature != nullptr && Failed(Util::GenerateUniqueName(*feature.Get(), first)))
                ExpectTrue(first == "first", "a failure leaves the name");
            if (Failed(m_utils->GetGenericEnglishName(feature, second)))
                ExpectTrue(second == "second", "a failure leaves the name");
            return;
        }
        const ZFXIMSHMeshPart_var part(entry.feature);
        const HRESULT code = QVRGenInstanceName::GetUniqueLegalInstanceName(part, first, second);
        if (Failed(code))
            ExpectTrue(first == "first" && second == "second", "a failure leaves both names");
        else
            ExpectTrue(first.Units().size() <= 72 ||
                           Reference::BeginsWith(entry.feature.StoredAlias().Units(), u"OrphanMesh-"),
                       "a deck name is not longer than 72 units");
    }

    void RequestOtherNames() {
        ZFXISpecObject_var feature(Any().feature);
        ZFXUnicodeString name = Name();
        const ZFXUnicodeString before = name;
        switch (m_input->Below(4)) {
        case 0:
            ExpectTrue(!Failed(Util::GetObjectName(feature, name)) || name == before || name.IsNull() != 0,
                       "GetObjectName");
            break;
        case 1:
            static_cast<void>(Util::GetParentStepName(feature, name));
            break;
        case 2:
            ExpectTrue(!Failed(Util::CreateBaseName(feature, name)) || name == before, "CreateBaseName");
            break;
        default:
            if (Failed(Util::GetSupportGroupName(feature, name)))
                ExpectTrue(feature == nullptr || name.IsNull() != 0, "GetSupportGroupName");
            break;
        }
    }

    void NameGroups() {
        QVRISamAnalysisConnectionDesign_var design(m_design);
        ZFXUnicodeString master("m");
        ZFXUnicodeString slave("s");
        const bool hasDesign = design != nullptr;
        ExpectTrue(Failed(Util::GetGrpNameofMasterAndSlave(design, master, slave)) != hasDesign,
                   "GetGrpNameofMasterAndSlave");
        if (IsRegular() && hasDesign)
            ExpectTrue(master == slave, "one connector, one group");
    }

    void ResetCaches() {
        m_utils->ResetAllLists();
        m_names.clear();
        m_materials.clear();
        m_onlyGeneric = true;
    }

    /// Stores a name without a check, as other code of a host may do.
    void BypassGuard() { Any().feature.Alias(Name()); }

    static constexpr void (Scenario::*kOperations[])() = {
        &Scenario::Propose,        &Scenario::Propose,     &Scenario::ProposeInSet,
        &Scenario::ProposeSeveral, &Scenario::ProposeJob,  &Scenario::ProposeMeshPart,
        &Scenario::Rename,         &Scenario::Rename,      &Scenario::Check,
        &Scenario::Check,          &Scenario::NameFeature, &Scenario::NameFeature,
        &Scenario::NameMaterial,   &Scenario::NameForDeck, &Scenario::RequestOtherNames,
        &Scenario::NameGroups,     &Scenario::ResetCaches, &Scenario::BypassGuard};

    FuzzInput* m_input = nullptr;
    QVRGenI18NUtils* m_utils = QVRGenI18NUtils::Instance();
    MemoryModel m_model;
    MemoryDocument m_document = m_model.NewDocument();
    MemoryFeature m_root = m_document.Model();
    MemoryFeature m_support;
    MemoryFeature m_design;
    std::vector<MemoryFeature> m_cases;
    Entries m_entries;
    bool m_isIrregular = false;
    /// Expected content of the caches: features with their names, and materials.
    std::map<const ZFXBaseUnknown*, Text> m_names;
    std::set<const ZFXBaseUnknown*> m_materials;
    bool m_onlyGeneric = true; ///< only generic names were requested since ResetCaches, without a fault
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    {
        Scenario scenario(input);
        while (!input.IsEmpty())
            scenario.Step();
    }
    ExpectEqual(MemoryModel::LiveObjects(), 0, "an object outlived its document");
    OverwriteRegisteredErrors();
    return 0;
}

// Documents of any shape, and any requests on them, some of which the platform does not answer as it should. What must
// hold whatever happens: no reference is left behind but those that the caches keep, a refused renaming changes
// nothing, a name once given stays. And where the platform did answer: what is stored passes its check, what passes a
// check is free, and so is what is proposed.

#include "FuzzInput.h"
#include "Operations.h"
#include "PlainRules.h"

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

using Plain::Text;
using Util = QVRNameUtil;

enum class Role { Step, Load, Property, Job, MeshPart, Material, Bolt, Other, Nobody };

struct Thing {
    MemoryFeature feature;
    Role role;
    int place = 0;          // of its case, from 1
    MemoryFeature set = {}; // that holds it
    bool guarded = false;   // renamed through the module's alias
    bool inherited = false; // counts as propagated
};
using Things = std::vector<Thing>;

struct Type {
    const char* name;
    bool guarded;
};
constexpr Type kStepTypes[] = {
    {"QVRGeneralStaticStepLT", true}, {"QVRStaticLPStepLT", true}, {"QVRInitializationStepLT", false}};
constexpr Type kLoadTypes[] = {
    {"QVRPressure", false}, {"QVRInitialTemperatureLT", false}, {"QVRInteractionLT", true}, {"SAMLoad", false}};
constexpr Type kPropertyTypes[] = {
    {"QVRShellSectionEnhLT", true}, {"QVRTabularAmplitudeLT", true}, {"SAMThickness", false}, {"QVRLayupLT", true}};
constexpr const char* kSetTypes[] = {"QVRLoadContainerLT", "QVRBCContainerLT"};
constexpr const char* kBases[] = {"p-", "Job-", "JOB-", "", "OrphanMesh-", "a:b", "_ ", "1"};

constexpr int kRequests = static_cast<int>(MemoryRequest::GetCurrentAnalysisCaseSP) + 1;
constexpr MemoryResponse kAnswers[] = {{E_UNEXPECTED, false}, {E_UNEXPECTED, true}, {S_OK, false}, {3, true}};

class Story {
public:
    explicit Story(FuzzInput& input) {
        const std::string grown = GrownFrom(input.Below(256) * 256 + input.Below(256));
        FuzzInput shape(reinterpret_cast<const std::uint8_t*>(grown.data()), grown.size());
        m_input = &shape;
        Build();
        m_input = &input;
    }
    Story(const Story&) = delete;
    Story& operator=(const Story&) = delete;
    ~Story() { m_utils->ResetAllLists(); }
    void Step() {
        if (m_input->Below(3) == 0)
            m_model.FailNth(static_cast<MemoryRequest>(m_input->Below(kRequests)), 1 + m_input->Below(40),
                            OneOf(kAnswers));
        (this->*OneOf(kRequestsOfAll))();
        m_model.ClearFaults();
        CountOperations(1);
        ExpectSame(m_model.References(), static_cast<long>(m_names.size() + m_materials.size()),
                   "references, beside those of the caches");
    }

private:
    template <class Element, std::size_t n>
    const Element& OneOf(const Element (&elements)[n]) {
        return elements[m_input->Below(static_cast<int>(n))];
    }

    /// Names that are close to each other, and any others.
    ZFXUnicodeString Name() {
        const int kind = m_input->Below(16);
        if (kind == 0)
            return Wide(m_input->Text());
        ZFXUnicodeString name = Base();
        if (kind > 1)
            name.Append(Wide(Plain::Decimal(kind > 10 ? m_input->Number() : kind - 1)));
        return name;
    }
    /// Mostly the same one, so that names meet.
    ZFXUnicodeString Base() { return m_input->Flag() ? "P-" : OneOf(kBases); }

    Thing& Keep(MemoryFeature parent, const Type& type, Role role, int place) {
        m_things.push_back({parent.Feature(type.name, Name()), role, place, parent, type.guarded});
        return m_things.back();
    }

    /// The bytes of an input are for the requests: two of them stand for the whole document.
    static std::string GrownFrom(int seed) {
        std::minstd_rand random(static_cast<unsigned>(seed) + 1);
        std::string grown(512, '\0');
        for (char& byte : grown)
            byte = static_cast<char>(random() >> 8U);
        return grown;
    }

    void Build() {
        const int cases = 1 + m_input->Below(3);
        for (int place = 1; place <= cases; ++place)
            BuildCase(place);
        for (int left = m_input->Below(5); left > 0; --left) {
            const Type& type = OneOf(kPropertyTypes);
            Keep(m_document.PropertySet(), type, Role::Property, 0);
        }
        for (int left = m_input->Below(4); left > 0; --left)
            m_things.push_back({m_document.MeshPart(Name(), m_input->Number()), Role::MeshPart});
        for (int left = m_input->Below(4); left > 0; --left)
            m_things.push_back(
                {m_root.Add(MemoryKind::Material, "QVRMaterialLT", Name()).MaterialName(Name()), Role::Material});
        MemoryFeature father = m_root.Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
        for (int left = m_input->Below(4); left > 0; --left)
            Keep(father, {"SAMBoltTightening", false}, Role::Bolt, 0);
        BuildConnection();
        for (int left = m_input->Flag() ? m_input->Below(4) : 0; left > 0; --left)
            MakeStrange();
    }

    void BuildCase(int place) {
        MemoryFeature analysisCase = m_document.Case(Name());
        m_cases.push_back(analysisCase);
        for (int steps = m_input->Below(4); steps > 0; --steps) {
            const Type& stepType = OneOf(kStepTypes);
            MemoryFeature step = analysisCase.Step(stepType.name, Name());
            m_things.push_back({step, Role::Step, place, {}, stepType.guarded});
            for (int sets = m_input->Below(3); sets > 0; --sets) {
                MemoryFeature set = step.Set(OneOf(kSetTypes));
                for (int loads = m_input->Below(4); loads > 0; --loads) {
                    const Type& type = OneOf(kLoadTypes);
                    Thing& load = Keep(set, type, Role::Load, place);
                    const bool propagated = m_input->Flag();
                    load.feature.Propagated(propagated);
                    load.inherited = propagated && type.name != kLoadTypes[1].name;
                }
            }
        }
        for (int jobs = m_input->Below(3); jobs > 0; --jobs)
            m_things.push_back({analysisCase.Job(Name()), Role::Job, place, {}, true});
    }

    void BuildConnection() {
        MemoryFeature group = m_root.Add(MemoryKind::Group, "G", Name());
        MemoryFeature connector = m_root.Add(MemoryKind::Connector, "C", "c").SetGroup(group);
        m_support = m_root.Add(MemoryKind::Support, "S", "s").AddConnector(connector);
        m_design = m_root.Add(MemoryKind::ConnectionDesign, "D", "d").AddMaster(connector).AddSlave(connector);
        m_things.push_back({m_support, Role::Other});
    }

    /// From here on nobody can say beforehand who is in whose scope.
    void MakeStrange() {
        static constexpr IID kInterfaces[] = {
            IID_ZFXISpecObject,        IID_ZFXIAlias,          IID_ZFXISpecAttrAccess, IID_ZFXILinkableObject,
            IID_ZFXISamAnalysisScan,   IID_ZFXISamAnalysisSet, IID_QVRIStep,           IID_ZFXISamAnalysisEntity,
            IID_QVRIPropagatingFeature};
        m_strange = true;
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

    Thing& Any() { return m_things[static_cast<std::size_t>(m_input->Below(256)) % m_things.size()]; }
    MemoryFeature AnyCase() { return m_cases[static_cast<std::size_t>(m_input->Below(3)) % m_cases.size()]; }

    bool WasTold() const { return *m_model.LastFault() != '\0'; }
    /// Whether every request was answered on a document without surprises.
    bool IsPlain() const { return !m_strange && !WasTold(); }

    // ---- Scopes, as the document was built ----

    template <class Test>
    std::vector<MemoryFeature> Those(Test test) const {
        std::vector<MemoryFeature> those;
        for (const Thing& thing : m_things)
            if (test(thing))
                those.push_back(thing.feature);
        return those;
    }
    std::vector<MemoryFeature> OfRole(Role role) const {
        return Those([&](const Thing& other) { return other.role == role; });
    }
    /// Features of the kind in the sets of one type in the steps of a case.
    std::vector<MemoryFeature> LoadsBeside(const Thing& load, int place) const {
        return Those([&](const Thing& other) {
            return other.role == Role::Load && other.place == place && other.set.LateType() == load.set.LateType() &&
                   !other.inherited && !(other.feature == load.feature);
        });
    }
    std::vector<MemoryFeature> StepsOf(int place) const {
        return Those([&](const Thing& other) { return other.role == Role::Step && other.place == place; });
    }
    std::vector<MemoryFeature> CheckedAgainst(const Thing& thing) const {
        switch (thing.role) {
        case Role::Step:
            return StepsOf(thing.place);
        case Role::Load:
            return LoadsBeside(thing, thing.place);
        case Role::Job:
            return Those([&](const Thing& other) { return other.role == Role::Job && other.place == thing.place; });
        case Role::Property:
        case Role::MeshPart:
            return OfRole(thing.role);
        default:
            return {};
        }
    }

    /// A proposal goes one further than its scope, so that it is free there.
    static void ExpectNext(const ZFXUnicodeString& name, const ZFXUnicodeString& base,
                           const std::vector<MemoryFeature>& scope, bool ignoreCase = false) {
        std::vector<Text> names;
        for (const MemoryFeature& other : scope)
            names.emplace_back(other.StoredAlias().Units());
        ExpectSame(name, Plain::NextName(base.Units(), names, ignoreCase),
                   "a proposal goes one further than its scope");
    }

    // ---- Requests ----

    void Propose() {
        const Thing thing = Any();
        const int given = m_input->Below(4);
        const auto place = given == 0 ? 1 : 1 + (static_cast<std::size_t>(given) - 1) % m_cases.size();
        ZFXISpecObject_var feature(thing.feature);
        ZFXISamAnalysisCase_var analysisCase(given == 0 ? MemoryFeature() : m_cases[place - 1]);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        Util::GetUniqueName(name, feature, analysisCase);
        ExpectNumbered(name, base);
        if (!IsPlain() || name == base)
            return;
        std::vector<MemoryFeature> scope = OfRole(Role::Property);
        if (thing.role == Role::Step) {
            scope = StepsOf(static_cast<int>(place));
            if (!scope.empty())
                scope.erase(scope.begin()); // the first one takes no part
        } else if (thing.role != Role::Property) {
            scope = LoadsBeside(thing, static_cast<int>(place));
        }
        ExpectNext(name, base, scope);
    }

    static void ExpectNumbered(const ZFXUnicodeString& name, const ZFXUnicodeString& base) {
        const Text units(name.Units());
        ExpectThat(Plain::BeginsWith(units, base.Units()), "a proposal begins with its base");
        for (const char16_t unit : units.substr(base.Units().size()))
            ExpectThat((unit >= u'0' && unit <= u'9') || unit == u'-', "behind the base of a proposal stands a number");
    }

    void ProposeInSet() {
        const MemoryFeature chosen[] = {m_document.PropertySet(), m_document.MeshManager(), Any().set};
        const MemoryFeature from = OneOf(chosen);
        const ZFXISamAnalysisSet_var set(from);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        const HRESULT code = Util::GetNextUniqueName(name, set);
        ExpectNumbered(name, base);
        ExpectThat(!Failed(code) || name == base, "without members there is no proposal");
        if (!IsPlain() || set == nullptr)
            return;
        const auto members = Those([&](const Thing& thing) {
            return thing.set == from || (thing.role == Role::MeshPart && from == m_document.MeshManager());
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
        ExpectThat(Failed(Util::GetNextUniqueNames(base, scope, count, names)) == (count < 1), "GetNextUniqueNames");
        ExpectSame(names.Size(), std::max(count, 0), "as many proposals as were asked for");
        ExpectThat(base == before, "the base stays");
        std::set<Text> distinct;
        for (const ZFXUnicodeString& name : names) {
            ExpectThat(distinct.emplace(name.Units()).second, "proposals differ");
            if (IsPlain() && distinct.size() == 1)
                ExpectNext(name, base, listed);
        }
    }

    void ProposeAJob() {
        ZFXUnicodeString name = Name();
        ExpectSame(Util::GetUniqueNameForJob(name), S_OK, "GetUniqueNameForJob");
        ExpectNumbered(name, "Job-");
        if (IsPlain())
            ExpectNext(name, "Job-", OfRole(Role::Job), true);
    }

    void ProposeAMeshPart() {
        ZFXISpecObject_var part(Any().feature);
        const ZFXUnicodeString base = m_input->Below(4) == 0 ? Name() : Base();
        ZFXUnicodeString name = base;
        const HRESULT code = Util::GetUniqueNameForMeshPart(part, name);
        ExpectNumbered(name, base);
        ExpectThat(!Failed(code) || name == base, "a refusal leaves the base");
        if (IsPlain() && !Failed(code))
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
        Thing thing = Any();
        const ZFXUnicodeString before = thing.feature.StoredAlias();
        const ZFXUnicodeString wanted = Name();
        const ZFXIAlias_var alias(thing.feature);
        if (alias != nullptr)
            alias->SetAlias(wanted);
        const bool plain = IsPlain();
        const bool told = WasTold();
        m_model.ClearFaults();
        const ZFXUnicodeString stored = thing.feature.StoredAlias();
        if (!thing.guarded) {
            ExpectThat(stored == wanted || ((told || m_strange) && stored == before), "the platform's alias stores");
            return;
        }
        const ZFXUnicodeString candidate = Wide(Plain::Trimmed(Text(wanted.Units())));
        const bool unread = told && stored.IsNull() != 0; // a failed read of the former alias gives an empty one
        ExpectThat(stored == before || stored == candidate || unread,
                   "a renaming stores the new name or leaves the old one");
        if (plain) { // judged as the guard judges: under the new name
            thing.feature.Alias(candidate);
            const HRESULT code = CheckOf(thing.feature, candidate);
            thing.feature.Alias(stored);
            ExpectSame(stored, (Failed(code) ? before : candidate).Units(), "the guard does what its check says");
        } else if (!told && stored != before) {
            ExpectThat(!Failed(CheckOf(thing.feature, stored)), "what was stored passes its check");
        }
    }

    void Check() {
        const Thing thing = Any();
        ZFXISpecObject_var feature(thing.feature);
        const ZFXUnicodeString own = thing.feature.StoredAlias();
        ZFXUnicodeString name = Name();
        std::vector<MemoryFeature> scope = CheckedAgainst(thing);
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
            scope = thing.role == Role::Job ? OfRole(Role::Job) : std::vector<MemoryFeature>();
            break;
        case 4:
            code = Util::IsUniqueNameForJob(feature, name);
            scope = OfRole(Role::Job);
            break;
        default:
            code = Util::GetMorvelObjectName(feature, name);
            scope = OfRole(thing.role == Role::Bolt ? Role::Bolt : Role::Nobody);
            break;
        }
        ExpectThat(thing.feature.StoredAlias() == own, "a check changes nothing");
        if (!Failed(code) && IsPlain())
            ExpectNoClash(thing, name.IsNull() != 0 ? own : name, scope);
    }

    static void ExpectNoClash(const Thing& thing, const ZFXUnicodeString& name,
                              const std::vector<MemoryFeature>& scope) {
        for (const MemoryFeature& other : scope)
            ExpectThat(other == thing.feature || name.IsNull() != 0 || name.Compare(other.StoredAlias()) == 0,
                       "what passes a check is free");
    }

    void NameInEnglish() {
        const Thing thing = Any();
        ZFXISpecObject_var feature(thing.feature);
        ZFXUnicodeString name("before");
        const bool generic = m_input->Below(3) != 0;
        const HRESULT code =
            generic ? m_utils->GetGenericEnglishFeatureName(feature, name) : m_utils->GetFeatureName(feature, name);
        if (Failed(code)) {
            ExpectThat(name == "before", "a failure leaves the name");
            return;
        }
        const auto [known, isNew] = m_names.try_emplace(thing.feature.Object(), name.Units());
        ExpectSame(name, known->second, "a name once given stays");
        m_onlyGeneric = m_onlyGeneric && generic && !WasTold();
        if (isNew && m_onlyGeneric)
            for (const auto& [object, other] : m_names)
                ExpectThat(object == thing.feature.Object() || name.Units() != other,
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
        ExpectThat(!Failed(code) || known || name == "before", "a failure leaves the name");
    }

    void NameForTheDeck() {
        const Thing thing = Any();
        ZFXISpecObject_var feature(thing.feature);
        ZFXUnicodeString first("first");
        ZFXUnicodeString second("second");
        if (m_input->Flag()) {
            if (feature != nullptr && Failed(Util::GenerateUniqueName(*feature.Get(), first)))
                ExpectThat(first == "first", "a failure leaves the name");
            if (Failed(m_utils->GetGenericEnglishName(feature, second)))
                ExpectThat(second == "second", "a refusal leaves the name");
            return;
        }
        const ZFXIMSHMeshPart_var part(thing.feature);
        const HRESULT code = QVRGenInstanceName::GetUniqueLegalInstanceName(part, first, second);
        if (Failed(code))
            ExpectThat(first == "first" && second == "second", "a failure leaves both names");
        else
            ExpectThat(first.Units().size() <= 72 ||
                           Plain::BeginsWith(thing.feature.StoredAlias().Units(), u"OrphanMesh-"),
                       "a deck name is not longer than 72 units");
    }

    void AskAround() {
        ZFXISpecObject_var feature(Any().feature);
        ZFXUnicodeString name = Name();
        const ZFXUnicodeString before = name;
        switch (m_input->Below(4)) {
        case 0:
            ExpectThat(!Failed(Util::GetObjectName(feature, name)) || name == before || name.IsNull() != 0,
                       "GetObjectName");
            break;
        case 1:
            static_cast<void>(Util::GetParentStepName(feature, name));
            break;
        case 2:
            ExpectThat(!Failed(Util::CreateBaseName(feature, name)) || name == before, "CreateBaseName");
            break;
        default:
            if (Failed(Util::GetSupportGroupName(feature, name)))
                ExpectThat(feature == nullptr || name.IsNull() != 0, "GetSupportGroupName");
            break;
        }
    }

    void NameGroups() {
        QVRISamAnalysisConnectionDesign_var design(m_design);
        ZFXUnicodeString master("m");
        ZFXUnicodeString slave("s");
        const bool there = design != nullptr;
        ExpectThat(Failed(Util::GetGrpNameofMasterAndSlave(design, master, slave)) != there,
                   "GetGrpNameofMasterAndSlave");
        if (IsPlain() && there)
            ExpectThat(master == slave, "one connector, one group");
    }

    void Forget() {
        m_utils->ResetAllLists();
        m_names.clear();
        m_materials.clear();
        m_onlyGeneric = true;
    }

    /// Somebody else stores a name without asking.
    void StoreUnasked() { Any().feature.Alias(Name()); }

    static constexpr void (Story::*kRequestsOfAll[])() = {
        &Story::Propose,        &Story::Propose,        &Story::ProposeInSet,
        &Story::ProposeSeveral, &Story::ProposeAJob,    &Story::ProposeAMeshPart,
        &Story::Rename,         &Story::Rename,         &Story::Check,
        &Story::Check,          &Story::NameInEnglish,  &Story::NameInEnglish,
        &Story::NameMaterial,   &Story::NameForTheDeck, &Story::AskAround,
        &Story::NameGroups,     &Story::Forget,         &Story::StoreUnasked};

    FuzzInput* m_input = nullptr;
    QVRGenI18NUtils* m_utils = QVRGenI18NUtils::Instance();
    MemoryModel m_model;
    MemoryDocument m_document = m_model.NewDocument();
    MemoryFeature m_root = m_document.Model();
    MemoryFeature m_support;
    MemoryFeature m_design;
    std::vector<MemoryFeature> m_cases;
    Things m_things;
    bool m_strange = false;
    /// What the caches keep: features with their names, and materials.
    std::map<const ZFXBaseUnknown*, Text> m_names;
    std::set<const ZFXBaseUnknown*> m_materials;
    bool m_onlyGeneric = true; // since Forget, each name was a generic one and every request answered
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    {
        Story story(input);
        while (!input.IsSpent())
            story.Step();
    }
    ExpectSame(MemoryModel::LiveObjects(), 0, "an object outlived its document");
    ForgetErrors();
    return 0;
}

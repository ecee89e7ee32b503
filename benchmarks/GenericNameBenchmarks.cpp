#include "Benchmarks.h"
#include "QVRGenI18NUtils.h"
#include "Scopes.h"

#include <vector>

namespace {

using Objects = std::vector<ZFXISpecObject_var>;
using NamingOperation = HRESULT (QVRGenI18NUtils::*)(const ZFXISpecObject_var&, ZFXUnicodeString&) noexcept;

constexpr NamingOperation kGenericName = &QVRGenI18NUtils::GetGenericEnglishFeatureName;
constexpr NamingOperation kMaterialName = &QVRGenI18NUtils::GetGenericEnglishMaterialName;

Objects FirstObjects(int n) {
    const ZFXListValZFXBaseUnknown_var features = Scopes::FirstFeatures(Scopes::AliasSource::Platform, n);
    return {features.begin(), features.end()};
}

/// Names all objects, which adds them to the lists of the singleton. Returns true if all have a name.
bool NameAll(NamingOperation naming, const Objects& objects) {
    ZFXUnicodeString name;
    bool areNamed = true;
    for (const ZFXISpecObject_var& object : objects)
        areNamed = !Failed((QVRGenI18NUtils::Instance()->*naming)(object, name)) && areNamed;
    return areNamed;
}

/// Names ten of n known objects. Before that, `first` names all n objects. For features, `first` is
/// GetGenericEnglishFeatureName, because GetFeatureName compares each display name with those of all known features.
Operation NameKnown(NamingOperation naming, NamingOperation first, int n) {
    const Objects objects = FirstObjects(n);
    QVRGenI18NUtils::Instance()->ResetAllLists();
    NameAll(first, objects);
    Objects ten;
    for (std::size_t i = 0; i < 10; ++i)
        ten.push_back(objects[i * (objects.size() / 10)]);
    return [naming, ten] { return NameAll(naming, ten); };
}

/// Names n objects that are not in the lists of the singleton.
Operation NameNew(int n) {
    return [objects = FirstObjects(n)] {
        QVRGenI18NUtils::Instance()->ResetAllLists();
        return NameAll(kGenericName, objects);
    };
}

/// Returns n materials, which all have one name.
ZFXListValZFXISpecObject_var MakeMaterials(int n) {
    ZFXListValZFXISpecObject_var materials;
    MemoryFeature model = Scopes::NewDocument().Model();
    for (int i = 0; i < n; ++i)
        materials.Append(model.Add(MemoryKind::Material, "SAMUserMaterial", "Steel").MaterialName("Steel"));
    return materials;
}

Operation NameMaterials(int n) {
    return [materials = Scopes::Cached(MakeMaterials, n)] {
        ZFXListValZFXUnicodeString names;
        QVRGenI18NUtils::Instance()->ResetAllLists();
        return !Failed(QVRGenI18NUtils::Instance()->GetMaterialNames(materials, names));
    };
}

void RegisterKnown(const std::string& operation, NamingOperation naming, NamingOperation first) {
    for (const int n : {100, Scopes::kLargest})
        RegisterOperation(BenchmarkName(operation + "/known", n), [=] { return NameKnown(naming, first, n); });
}

} // namespace

void RegisterGenericNameBenchmarks() {
    RegisterKnown("GetFeatureName", &QVRGenI18NUtils::GetFeatureName, kGenericName);
    RegisterKnown("GetGenericEnglishFeatureName", kGenericName, kGenericName);
    RegisterKnown("GetGenericEnglishMaterialName", kMaterialName, kMaterialName);
    for (const int n : {2000, 4000, Scopes::kLargest / 2, Scopes::kLargest})
        RegisterOperation(BenchmarkName("GetGenericEnglishFeatureName/new", n), [n] { return NameNew(n); });
    for (const int n : {Scopes::kLargest / 2, Scopes::kLargest})
        RegisterOperation(BenchmarkName("GetMaterialNames", n), [n] { return NameMaterials(n); });
}

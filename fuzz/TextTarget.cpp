// Compares each rule about texts with its reference implementation.

#include "Expectations.h"
#include "FuzzInput.h"
#include "ReferenceRules.h"

#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"
#include "memory-model/MemoryModel.h"

#include <algorithm>
#include <iterator>

namespace {

using Reference::Text;
using Utils = QVRGenZFXUnicodeStringUtils;

void NameChecks(FuzzInput& input) {
    CountOperations(3);
    const Text text = input.Text();
    const bool checkStart = input.Flag();
    ZFXUnicodeString name = Wide(text);
    ExpectEqual(ResultText(QVRNameUtil::IsNameValid(name, checkStart ? 1 : 0)), Reference::NameResult(text, checkStart),
                "IsNameValid");
    ExpectEqual(ResultText(QVRNameUtil::IsFileNameValid(name)), Reference::FileNameResult(text), "IsFileNameValid");
    ExpectEqual(ResultText(QVRNameUtil::CheckForIllegalCharacters(name)),
                Reference::HasIllegalCharacter(text) ? "E_FAIL" : "S_OK", "CheckForIllegalCharacters");
    ExpectEqual(name, text, "a check changes no name");
}

void CharacterSets(FuzzInput& input) {
    CountOperations(4);
    const Text text = input.Text();
    const Text before = input.Text();
    for (const char16_t limit : {u'\u00FF', u'\u007F'}) {
        const auto check =
            limit == 0xFF ? QVRNameUtil::DoesNameContainDoubleByteChar : QVRNameUtil::DoesNameContainSignedChar;
        const Text listed = Reference::UnitsAbove(text, limit);
        const ZFXUnicodeString name = Wide(text);
        ZFXUnicodeString offending = Wide(before);
        const HRESULT code = check(name, offending);
        ExpectEqual(ResultText(code), listed.empty() ? "S_OK" : "DoubleByteCharErr_01", "the character sets");
        ExpectEqual(offending, before + listed, "the offending characters");
        if (Failed(code))
            ExpectEqual(ZFXError::ZFXGetLastError(code, nullptr)->DiagnosticParameters().at(0), before + listed,
                        "the diagnostic parameter");
        ZFXUnicodeString both = Wide(text);
        check(both, both);
        ExpectEqual(both, text + listed, "the list is the name itself");
    }
}

void FileNames(FuzzInput& input) {
    CountOperations(2);
    const Text text = input.Text();
    ZFXUnicodeString name = Wide(text);
    ExpectEqual(ResultText(QVRNameUtil::StripIllegalCharsFromFileName(name)), "S_OK", "StripIllegalCharsFromFileName");
    ExpectEqual(name, Reference::WithoutIllegalCharacters(text), "StripIllegalCharsFromFileName");
    name = Wide(text);
    QVRNameUtil::QuoteIfNeeded(name);
    ExpectEqual(name, Reference::Quoted(text), "QuoteIfNeeded");
}

void JoinedTags(FuzzInput& input) {
    CountOperations(1);
    const Text texts[] = {input.Text(), input.Text(), input.Text()};
    ZFXUnicodeString strings[] = {Wide(texts[0]), Wide(texts[1]), Wide(texts[2])};
    const auto name = static_cast<std::size_t>(input.Below(3)); // one string may be passed as several arguments
    const auto suffix = static_cast<std::size_t>(input.Below(3));
    const auto prefix = static_cast<std::size_t>(input.Below(3));
    QVRNameUtil::PadStrings(strings[name], strings[suffix], strings[prefix]);
    const Text clean = Reference::WithoutIllegalCharacters(texts[suffix]);
    ExpectEqual(strings[name], Reference::Padded(texts[name], clean, texts[prefix]), "PadStrings");
    if (suffix != name)
        ExpectEqual(strings[suffix], clean, "PadStrings, the suffix");
    if (prefix != name && prefix != suffix)
        ExpectEqual(strings[prefix], texts[prefix], "PadStrings, the prefix");
}

void Cleaning(FuzzInput& input) {
    CountOperations(11);
    const Text text = input.Text();
    const ZFXUnicodeString in = Wide(text);
    using Reference::Stripped;
    ExpectEqual(Utils::RemoveSpaces(in), Stripped(text, u' ', Reference::Everywhere), "RemoveSpaces");
    ExpectEqual(Utils::RemoveDoubleQuotes(in), Stripped(text, u'"', Reference::Everywhere), "RemoveDoubleQuotes");
    ExpectEqual(Utils::RemoveBackSlashes(in), Stripped(text, u'\\', Reference::Everywhere), "RemoveBackSlashes");
    ExpectEqual(Utils::RemovePeriods(in), Stripped(text, u'.', Reference::Everywhere), "RemovePeriods");
    ExpectEqual(Utils::RemoveLeadingSpaces(in), Stripped(text, u' ', Reference::Leading), "RemoveLeadingSpaces");
    ExpectEqual(Utils::RemoveLeadingUnderscores(in), Stripped(text, u'_', Reference::Leading),
                "RemoveLeadingUnderscores");
    ExpectEqual(Utils::RemoveTrailingSpaces(in), Stripped(text, u' ', Reference::Trailing), "RemoveTrailingSpaces");
    ExpectEqual(Utils::RemoveTrailingUnderscores(in), Stripped(text, u'_', Reference::Trailing),
                "RemoveTrailingUnderscores");
    ExpectEqual(Utils::ReplaceBackslashWithForwardslash(in), Reference::Replaced(text, u"\\", u"/"),
                "ReplaceBackslashWithForwardslash");
    ExpectEqual(Utils::ReplacePeriodWithDash(in), Reference::Replaced(text, u".", u"-"), "ReplacePeriodWithDash");
    ExpectEqual(Utils::TrucateToLegalLength(in), Reference::Substring(text, 0, 72), "TrucateToLegalLength");
    ExpectEqual(in, text, "cleaning leaves its argument");
}

void Integers(FuzzInput& input) {
    CountOperations(1);
    const Text text = input.Text();
    const Text separator = input.Flag() ? Text(u",") : input.Text();
    ZFXUnicodeString list = Wide(text);
    ZFXRawCollint numbers;
    numbers.Append(7);
    ExpectEqual(ResultText(Utils::GetIntegerListFromString(list, numbers, Wide(separator))), "S_OK",
                "the list of integers");
    const Reference::Integers expected = Reference::IntegersOf(text, separator);
    ExpectEqual(list, expected.rest, "the rest of the list of integers");
    ExpectEqual(numbers.Size(), static_cast<long>(expected.numbers.size()) + 1, "the number of integers");
    for (int i = 2; i <= numbers.Size(); ++i)
        ExpectEqual(numbers[i], expected.numbers[static_cast<std::size_t>(i) - 2], "an integer of the list");
}

void InstanceNames(FuzzInput& input) {
    MemoryModel model;
    MemoryDocument document = model.NewDocument();
    const int count = 1 + input.Below(3);
    for (int position = 1; position <= count; ++position) {
        const Text display = input.Text();
        const int tag = input.Number();
        CountOperations(1);
        const ZFXIMSHMeshPart_var part = document.MeshPart(Wide(display), tag);
        ZFXUnicodeString instanceName;
        ZFXUnicodeString partName;
        ExpectEqual(ResultText(QVRGenInstanceName::GetUniqueLegalInstanceName(part, instanceName, partName)), "S_OK",
                    "GetUniqueLegalInstanceName");
        const Text orphan = u"OrphanMesh-";
        if (Reference::BeginsWith(display, orphan)) {
            const Text rest = Reference::Substring(display, static_cast<int>(orphan.size()), -1);
            ExpectEqual(instanceName, rest, "the instance of an orphan mesh");
            ExpectEqual(partName, rest, "the part of an orphan mesh");
            continue;
        }
        const bool isGeneric = !Reference::UnitsAbove(display, 0xFF).empty();
        const Text base =
            Reference::DeckNameBase(isGeneric ? u"MSHPartOctree3D-" + Reference::ToDecimal(position) : display);
        ExpectEqual(instanceName, Reference::DeckName(u"Instance", tag, base), "the instance name");
        ExpectEqual(partName, Reference::DeckName(u"Part", tag, base), "the part name");
    }
}

void InstanceTags(FuzzInput& input) {
    CountOperations(1);
    const Text name = (input.Flag() ? Text(u"INSTANCE") : Text()) + input.Text();
    const int before = input.Number();
    int tag = before;
    const bool found = QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, Wide(name)) == S_OK;
    const int marker = Reference::FindFirst(name, u"INSTANCE", 0);
    ExpectTrue(found == (marker >= 0), "GetUniqueLegalInstanceTag");
    const Text rest = Reference::Substring(name, marker + 8, -1);
    const Text digits = Reference::Substring(rest, 0, Reference::FindFirst(rest, u"-", 0));
    ExpectEqual(tag, found ? Reference::NumberAtFront(digits).value_or(before) : -1, "the tag");
}

void NumberedNames(FuzzInput& input) {
    CountOperations(3);
    MemoryModel model;
    MemoryDocument document = model.NewDocument();
    MemoryFeature analysisCase = document.Case("Static");
    MemoryFeature set = analysisCase.Set("QVRLoadContainerLT");
    const Text base = input.Text();
    std::vector<Text> names;
    std::vector<Text> jobs;
    ZFXListValZFXBaseUnknown_var scope;
    for (int left = input.Below(8); left > 0; --left) {
        const Text tail = input.Text();
        names.push_back(input.Flag() ? base + tail : tail);
        scope.Append(ZFXBaseUnknown_var(set.Feature("QVRPressure", Wide(names.back()))));
        jobs.push_back(input.Flag() ? u"jOb-" + tail : tail);
        analysisCase.Job(Wide(jobs.back()));
    }
    ZFXUnicodeString job;
    QVRNameUtil::GetUniqueNameForJob(job);
    ExpectEqual(job, Reference::NextName(u"Job-", jobs, true), "GetUniqueNameForJob");
    ZFXUnicodeString next = Wide(base);
    QVRNameUtil::GetNextUniqueName(next, ZFXISamAnalysisSet_var(set));
    ZFXListValZFXUnicodeString several;
    ZFXUnicodeString kept = Wide(base);
    const int count = 1 + input.Below(4);
    ExpectEqual(QVRNameUtil::GetNextUniqueNames(kept, scope, count, several), S_OK, "GetNextUniqueNames");
    ExpectEqual(kept, base, "the base of several names");
    for (int i = 1; i <= count; ++i) {
        const Text expected = Reference::NextName(base, names);
        if (i == 1)
            ExpectEqual(next, expected, "GetNextUniqueName");
        ExpectEqual(several[i], expected, "GetNextUniqueNames");
    }
    ExpectEqual(several.Size(), count, "GetNextUniqueNames");
}

/// The feature is in no set, so every name is unused and only the rules about texts apply.
void FeatureNames(FuzzInput& input) {
    CountOperations(4);
    static constexpr const char* kTypes[] = {"QVRSpringLT", "QVRShellSectionEnhLT", "QVRPressure"};
    MemoryModel model;
    const auto type = static_cast<std::size_t>(input.Below(3));
    const Text former = input.Text();
    const Text wanted = input.Text();
    const bool checkStart = input.Flag();
    MemoryFeature feature = model.NewDocument().Model().Feature(kTypes[type], Wide(former));
    ZFXISpecObject_var object = feature;
    const Text tested = wanted.empty() ? former : wanted;
    ExpectEqual(ResultText(QVRNameUtil::CheckName(object, Wide(wanted), checkStart ? 1 : 0)),
                Reference::FeatureNameResult(tested, checkStart), "CheckName");
    ExpectEqual(ResultText(QVRNameUtil::CheckFileName(object, Wide(wanted))), Reference::FileNameResult(tested),
                "CheckFileName");
    const Text legal = Reference::Replaced(former, u".", u"-");
    ZFXUnicodeString name;
    ExpectEqual(ResultText(QVRNameUtil::GetMorvelObjectName(object, name)), Reference::NameResult(legal, true),
                "GetMorvelObjectName");
    ExpectEqual(name, legal, "GetMorvelObjectName");
    ExpectEqual(feature.StoredAlias(), former, "a check does not rename");

    ZFXIAlias_var(feature)->SetAlias(Wide(wanted));
    const Text trimmed = Reference::Trimmed(wanted);
    const bool guarded = type != 2; // the alias of a pressure belongs to the platform
    const bool accepted = Reference::FeatureNameResult(trimmed, type != 1) == "S_OK";
    ExpectEqual(feature.StoredAlias(), !guarded ? wanted : accepted ? trimmed : former, "SetAlias");
}

void GroupNames(FuzzInput& input) {
    CountOperations(1);
    const Text text = input.Text();
    MemoryModel model;
    MemoryFeature analysisCase = model.NewDocument().Case("Static");
    MemoryFeature group = analysisCase.Add(MemoryKind::Group, "QVRGroupLT", Wide(text));
    MemoryFeature connector = analysisCase.Add(MemoryKind::Connector, "SAMPointForGeneConn", "").SetGroup(group);
    ZFXISpecObject_var support = analysisCase.Add(MemoryKind::Support, "SAMConnection", "").AddConnector(connector);
    ZFXUnicodeString name("before");
    ExpectEqual(ResultText(QVRNameUtil::GetSupportGroupName(support, name)), "S_OK", "GetSupportGroupName");
    ExpectEqual(name, Reference::UnitsAbove(text, 0xFF).empty() ? Reference::Replaced(text, u".", u"-") : Text(),
                "GetSupportGroupName");
}

/// Generic names depend on the names issued before, so each input calls several operations in sequence.
void GenericNames(FuzzInput& input) {
    static constexpr const char* kTypes[] = {"SAMShell", "SAMBeam", "QVRPressure"};
    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    utils->ResetAllLists();
    MemoryModel model;
    MemoryFeature set = model.NewDocument().PropertySet();
    std::vector<Text> issued;
    const auto numbered = [&](const Text& generic) {
        const auto before = std::count(issued.begin(), issued.end(), generic);
        issued.push_back(generic);
        return before == 0 ? generic : generic + u"-" + Reference::ToDecimal(static_cast<int>(before));
    };
    for (int left = 1 + input.Below(6); left > 0; --left) {
        CountOperations(1);
        const Text name = input.Text();
        const bool isLatin = Reference::UnitsAbove(name, 0xFF).empty();
        const Text type = Reference::FromUtf8(kTypes[input.Below(3)]);
        ZFXUnicodeString result;
        if (input.Flag()) {
            const ZFXISpecObject_var feature = set.Feature(Wide(type), Wide(name));
            ExpectEqual(ResultText(QVRNameUtil::GenerateUniqueName(*feature.Get(), result)), "S_OK",
                        "GenerateUniqueName");
            ExpectEqual(result, isLatin || type[0] != u'S' ? name : numbered(type), "GenerateUniqueName");
            continue;
        }
        const Text generic = input.Flag() ? type : input.Text();
        ExpectEqual(ResultText(utils->GetTARNISCompliantFeatureName(Wide(name), Wide(generic), result)), "S_OK",
                    "GetTARNISCompliantFeatureName");
        Text expected = Reference::Replaced(name, u".", u"-");
        if (!isLatin)
            expected = Reference::WithoutTypePrefix(Reference::BeginsWith(generic, u"QVR") ? name : numbered(generic));
        ExpectEqual(result, expected, "GetTARNISCompliantFeatureName");
    }
    utils->ResetAllLists();
    ExpectEqual(model.References(), 0, "a reference was not released");
}

constexpr void (*kScenarios[])(FuzzInput&) = {
    NameChecks,    CharacterSets, FileNames,     JoinedTags,   Cleaning,   Integers,
    InstanceNames, InstanceTags,  NumberedNames, FeatureNames, GroupNames, GenericNames,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    while (!input.IsEmpty())
        kScenarios[input.Below(std::size(kScenarios))](input);
    OverwriteRegisteredErrors();
    return 0;
}

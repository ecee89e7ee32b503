// The rules about texts, each against its plain form.

#include "FuzzInput.h"
#include "Operations.h"
#include "PlainRules.h"

#include "QVRGenI18NUtils.h"
#include "QVRGenInstanceName.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"
#include "memory-model/MemoryModel.h"

#include <algorithm>
#include <iterator>

namespace {

using Plain::Text;
using Utils = QVRGenZFXUnicodeStringUtils;

void NameChecks(FuzzInput& input) {
    CountOperations(3);
    const Text text = input.Text();
    const bool checkStart = input.Flag();
    ZFXUnicodeString name = Wide(text);
    ExpectSame(ResultText(QVRNameUtil::IsNameValid(name, checkStart ? 1 : 0)), Plain::NameVerdict(text, checkStart),
               "IsNameValid");
    ExpectSame(ResultText(QVRNameUtil::IsFileNameValid(name)), Plain::FileNameVerdict(text), "IsFileNameValid");
    ExpectSame(ResultText(QVRNameUtil::CheckForIllegalCharacters(name)),
               Plain::IsQuietlyIllegal(text) ? "E_FAIL" : "S_OK", "CheckForIllegalCharacters");
    ExpectSame(name, text, "a check changes no name");
}

void CharacterSets(FuzzInput& input) {
    CountOperations(4);
    const Text text = input.Text();
    const Text before = input.Text();
    for (const char16_t limit : {u'\u00FF', u'\u007F'}) {
        const auto check =
            limit == 0xFF ? QVRNameUtil::DoesNameContainDoubleByteChar : QVRNameUtil::DoesNameContainSignedChar;
        const Text listed = Plain::Offending(text, limit);
        const ZFXUnicodeString name = Wide(text);
        ZFXUnicodeString offending = Wide(before);
        const HRESULT code = check(name, offending);
        ExpectSame(ResultText(code), listed.empty() ? "S_OK" : "DoubleByteCharErr_01", "the character sets");
        ExpectSame(offending, before + listed, "the offending characters");
        if (Failed(code))
            ExpectSame(ZFXError::ZFXGetLastError(code, nullptr)->DiagnosticParameters().at(0), before + listed,
                       "the diagnostic parameter");
        ZFXUnicodeString both = Wide(text);
        check(both, both);
        ExpectSame(both, text + listed, "the list is the name itself");
    }
}

void FileNames(FuzzInput& input) {
    CountOperations(2);
    const Text text = input.Text();
    ZFXUnicodeString name = Wide(text);
    ExpectSame(ResultText(QVRNameUtil::StripIllegalCharsFromFileName(name)), "S_OK", "StripIllegalCharsFromFileName");
    ExpectSame(name, Plain::WithoutIllegal(text), "StripIllegalCharsFromFileName");
    name = Wide(text);
    QVRNameUtil::QuoteIfNeeded(name);
    ExpectSame(name, Plain::Quoted(text), "QuoteIfNeeded");
}

void JoinedTags(FuzzInput& input) {
    CountOperations(1);
    const Text texts[] = {input.Text(), input.Text(), input.Text()};
    ZFXUnicodeString strings[] = {Wide(texts[0]), Wide(texts[1]), Wide(texts[2])};
    const auto name = static_cast<std::size_t>(input.Below(3)); // one string may stand at several places
    const auto suffix = static_cast<std::size_t>(input.Below(3));
    const auto prefix = static_cast<std::size_t>(input.Below(3));
    QVRNameUtil::PadStrings(strings[name], strings[suffix], strings[prefix]);
    const Text clean = Plain::WithoutIllegal(texts[suffix]);
    ExpectSame(strings[name], Plain::Padded(texts[name], clean, texts[prefix]), "PadStrings");
    if (suffix != name)
        ExpectSame(strings[suffix], clean, "PadStrings, the suffix");
    if (prefix != name && prefix != suffix)
        ExpectSame(strings[prefix], texts[prefix], "PadStrings, the prefix");
}

void Cleaning(FuzzInput& input) {
    CountOperations(11);
    const Text text = input.Text();
    const ZFXUnicodeString in = Wide(text);
    using Plain::Stripped;
    ExpectSame(Utils::RemoveSpaces(in), Stripped(text, u' ', Plain::Everywhere), "RemoveSpaces");
    ExpectSame(Utils::RemoveDoubleQuotes(in), Stripped(text, u'"', Plain::Everywhere), "RemoveDoubleQuotes");
    ExpectSame(Utils::RemoveBackSlashes(in), Stripped(text, u'\\', Plain::Everywhere), "RemoveBackSlashes");
    ExpectSame(Utils::RemovePeriods(in), Stripped(text, u'.', Plain::Everywhere), "RemovePeriods");
    ExpectSame(Utils::RemoveLeadingSpaces(in), Stripped(text, u' ', Plain::Leading), "RemoveLeadingSpaces");
    ExpectSame(Utils::RemoveLeadingUnderscores(in), Stripped(text, u'_', Plain::Leading), "RemoveLeadingUnderscores");
    ExpectSame(Utils::RemoveTrailingSpaces(in), Stripped(text, u' ', Plain::Trailing), "RemoveTrailingSpaces");
    ExpectSame(Utils::RemoveTrailingUnderscores(in), Stripped(text, u'_', Plain::Trailing),
               "RemoveTrailingUnderscores");
    ExpectSame(Utils::ReplaceBackslashWithForwardslash(in), Plain::Replaced(text, u"\\", u"/"),
               "ReplaceBackslashWithForwardslash");
    ExpectSame(Utils::ReplacePeriodWithDash(in), Plain::Replaced(text, u".", u"-"), "ReplacePeriodWithDash");
    ExpectSame(Utils::TrucateToLegalLength(in), Plain::Part(text, 0, 72), "TrucateToLegalLength");
    ExpectSame(in, text, "cleaning leaves its argument");
}

void Integers(FuzzInput& input) {
    CountOperations(1);
    const Text text = input.Text();
    const Text separator = input.Flag() ? Text(u",") : input.Text();
    ZFXUnicodeString list = Wide(text);
    ZFXRawCollint numbers;
    numbers.Append(7);
    ExpectSame(ResultText(Utils::GetIntegerListFromString(list, numbers, Wide(separator))), "S_OK",
               "the list of integers");
    const Plain::Integers expected = Plain::IntegersOf(text, separator);
    ExpectSame(list, expected.rest, "what is left of the list of integers");
    ExpectSame(numbers.Size(), static_cast<long>(expected.numbers.size()) + 1, "how many integers");
    for (int i = 2; i <= numbers.Size(); ++i)
        ExpectSame(numbers[i], expected.numbers[static_cast<std::size_t>(i) - 2], "an integer of the list");
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
        ExpectSame(ResultText(QVRGenInstanceName::GetUniqueLegalInstanceName(part, instanceName, partName)), "S_OK",
                   "GetUniqueLegalInstanceName");
        const Text orphan = u"OrphanMesh-";
        if (Plain::BeginsWith(display, orphan)) {
            const Text rest = Plain::Part(display, static_cast<int>(orphan.size()), -1);
            ExpectSame(instanceName, rest, "the instance of an orphan mesh");
            ExpectSame(partName, rest, "the part of an orphan mesh");
            continue;
        }
        const bool isGeneric = !Plain::Offending(display, 0xFF).empty();
        const Text base = Plain::DeckBase(isGeneric ? u"MSHPartOctree3D-" + Plain::Decimal(position) : display);
        ExpectSame(instanceName, Plain::DeckName(u"Instance", tag, base), "the instance name");
        ExpectSame(partName, Plain::DeckName(u"Part", tag, base), "the part name");
    }
}

void InstanceTags(FuzzInput& input) {
    CountOperations(1);
    const Text name = (input.Flag() ? Text(u"INSTANCE") : Text()) + input.Text();
    const int before = input.Number();
    int tag = before;
    const bool found = QVRGenInstanceName::GetUniqueLegalInstanceTag(tag, Wide(name)) == S_OK;
    const int marker = Plain::FirstPlace(name, u"INSTANCE", 0);
    ExpectThat(found == (marker >= 0), "GetUniqueLegalInstanceTag");
    const Text rest = Plain::Part(name, marker + 8, -1);
    const Text digits = Plain::Part(rest, 0, Plain::FirstPlace(rest, u"-", 0));
    ExpectSame(tag, found ? Plain::NumberAtFront(digits).value_or(before) : -1, "the tag");
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
    ExpectSame(job, Plain::NextName(u"Job-", jobs, true), "GetUniqueNameForJob");
    ZFXUnicodeString next = Wide(base);
    QVRNameUtil::GetNextUniqueName(next, ZFXISamAnalysisSet_var(set));
    ZFXListValZFXUnicodeString several;
    ZFXUnicodeString kept = Wide(base);
    const int count = 1 + input.Below(4);
    ExpectSame(QVRNameUtil::GetNextUniqueNames(kept, scope, count, several), S_OK, "GetNextUniqueNames");
    ExpectSame(kept, base, "the base of several names");
    for (int i = 1; i <= count; ++i) {
        const Text expected = Plain::NextName(base, names);
        if (i == 1)
            ExpectSame(next, expected, "GetNextUniqueName");
        ExpectSame(several[i], expected, "GetNextUniqueNames");
    }
    ExpectSame(several.Size(), count, "GetNextUniqueNames");
}

/// A feature that no set holds: every name is free, so the text decides.
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
    ExpectSame(ResultText(QVRNameUtil::CheckName(object, Wide(wanted), checkStart ? 1 : 0)),
               Plain::TextVerdict(tested, checkStart), "CheckName");
    ExpectSame(ResultText(QVRNameUtil::CheckFileName(object, Wide(wanted))), Plain::FileNameVerdict(tested),
               "CheckFileName");
    const Text legal = Plain::Replaced(former, u".", u"-");
    ZFXUnicodeString name;
    ExpectSame(ResultText(QVRNameUtil::GetMorvelObjectName(object, name)), Plain::NameVerdict(legal, true),
               "GetMorvelObjectName");
    ExpectSame(name, legal, "GetMorvelObjectName");
    ExpectSame(feature.StoredAlias(), former, "a check renames nothing");

    ZFXIAlias_var(feature)->SetAlias(Wide(wanted));
    const Text trimmed = Plain::Trimmed(wanted);
    const bool guarded = type != 2; // a pressure has the document's own alias
    const bool accepted = Plain::TextVerdict(trimmed, type != 1) == "S_OK";
    ExpectSame(feature.StoredAlias(), !guarded ? wanted : accepted ? trimmed : former, "SetAlias");
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
    ExpectSame(ResultText(QVRNameUtil::GetSupportGroupName(support, name)), "S_OK", "GetSupportGroupName");
    ExpectSame(name, Plain::Offending(text, 0xFF).empty() ? Plain::Replaced(text, u".", u"-") : Text(),
               "GetSupportGroupName");
}

/// Names that stand in for those that the solver cannot take: one story with what was handed out before.
void StandIns(FuzzInput& input) {
    static constexpr const char* kTypes[] = {"SAMShell", "SAMBeam", "QVRPressure"};
    QVRGenI18NUtils* utils = QVRGenI18NUtils::Instance();
    utils->ResetAllLists();
    MemoryModel model;
    MemoryFeature set = model.NewDocument().PropertySet();
    std::vector<Text> handedOut;
    const auto numbered = [&](const Text& generic) {
        const auto before = std::count(handedOut.begin(), handedOut.end(), generic);
        handedOut.push_back(generic);
        return before == 0 ? generic : generic + u"-" + Plain::Decimal(static_cast<int>(before));
    };
    for (int left = 1 + input.Below(6); left > 0; --left) {
        CountOperations(1);
        const Text name = input.Text();
        const bool isLatin = Plain::Offending(name, 0xFF).empty();
        const Text type = Plain::FromUtf8(kTypes[input.Below(3)]);
        ZFXUnicodeString answer;
        if (input.Flag()) {
            const ZFXISpecObject_var feature = set.Feature(Wide(type), Wide(name));
            ExpectSame(ResultText(QVRNameUtil::GenerateUniqueName(*feature.Get(), answer)), "S_OK",
                       "GenerateUniqueName");
            ExpectSame(answer, isLatin || type[0] != u'S' ? name : numbered(type), "GenerateUniqueName");
            continue;
        }
        const Text generic = input.Flag() ? type : input.Text();
        ExpectSame(ResultText(utils->GetTARNISCompliantFeatureName(Wide(name), Wide(generic), answer)), "S_OK",
                   "GetTARNISCompliantFeatureName");
        Text expected = Plain::Replaced(name, u".", u"-");
        if (!isLatin)
            expected = Plain::WithoutTypePrefix(Plain::BeginsWith(generic, u"QVR") ? name : numbered(generic));
        ExpectSame(answer, expected, "GetTARNISCompliantFeatureName");
    }
    utils->ResetAllLists();
    ExpectSame(model.References(), 0, "a reference was not released");
}

constexpr void (*kStories[])(FuzzInput&) = {
    NameChecks,    CharacterSets, FileNames,     JoinedTags,   Cleaning,   Integers,
    InstanceNames, InstanceTags,  NumberedNames, FeatureNames, GroupNames, StandIns,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    FuzzInput input(bytes, count);
    while (!input.IsSpent())
        kStories[input.Below(std::size(kStories))](input);
    ForgetErrors();
    return 0;
}

#include "LateTypes.h"
#include "QVRBaseFeatureAlias.h"
#include "QVRNameUtil.h"

#include "support/DocumentTest.h"

#include <algorithm>
#include <random>

namespace {

using Util = QVRNameUtil;

/// A random document with few different names, so that many names clash.
class RandomDocument : public DocumentTest, public ::testing::WithParamInterface<unsigned> {
protected:
    template <class Element, std::size_t n>
    const Element& OneOf(const Element (&elements)[n]) {
        return elements[m_random() % n];
    }
    MemoryFeature Add(MemoryFeature feature) {
        static const std::string kLong(73, 'x');
        static const char* const kNames[] = {"A", "a", "B", "b", "Ä", "ä", "", "1", "a.b", "厚", kLong.c_str(), "C-1"};
        feature.Alias(OneOf(kNames));
        if (m_random() % 16 == 0)
            feature.Without(IID_ZFXIAlias);
        if (m_random() % 16 == 0)
            feature.Propagated();
        list.Append(feature);
        return features.emplace_back(feature);
    }
    void SetUp() override {
        MemoryFeature father = document.Model().Feature("Connection", "Father").With(IID_ZFXISamAnalysisScan);
        for (int i = 0; i < 2; ++i) {
            MemoryFeature analysisCase = document.Case("Case");
            for (int j = 0; j < 3; ++j) {
                MemoryFeature step = Add(analysisCase.Step("QVRStaticLPStepLT", ""));
                for (int k = 0; k < 2; ++k) {
                    MemoryFeature set = step.Set(OneOf({"QVRLoadContainerLT", "QVRBCContainerLT"}));
                    Add(set.Feature("QVRPressure", ""));
                    Add(set.Feature("QVRInitialTemperatureLT", ""));
                }
                Add(document.PropertySet().Feature(OneOf({"QVRShellSectionEnhLT", "QVRTabularAmplitudeLT"}), ""));
                Add(document.MeshPart("", j));
                Add(father.Feature("SAMBoltTightening", ""));
            }
            Add(analysisCase.Job(""));
            Add(analysisCase.Job(""));
        }
        Add(document.Model().Feature("Orphan", ""));
    }

    void TearDown() override {
        list.RemoveAll();
        DocumentTest::TearDown();
    }

    static std::string IdOrCode(HRESULT code) {
        const std::string text = ResultText(code);
        return Failed(code) ? text.substr(0, text.find(' ')) : "";
    }
    /// Returns the results of the single checks that reject the stored name of a feature, in their order.
    static std::vector<std::string> SingleChecks(ZFXISpecObject_var feature) {
        std::vector<std::string> results;
        const ZFXUnicodeString type = feature->GetLateType();
        ZFXUnicodeString name;
        const bool isNamed = !Failed(Util::GetObjectName(feature, name));
        if (type == LateTypes::QVRJobLT) {
            results = {IdOrCode(Util::IsNameUniqueAcrossCases(feature, "")),
                       isNamed ? IdOrCode(Util::IsUniqueNameForJob(feature, name)) : ""};
        } else {
            results = {IdOrCode(Util::CheckName(feature, "", type == LateTypes::QVRShellSectionEnhLT ? 0 : 1))};
            if (isNamed && LateTypes::IsOfKind(type, LateTypes::Kind::BoltTightening))
                results.push_back(IdOrCode(Util::GetMorvelObjectName(feature, name)));
        }
        std::erase(results, "");
        return results;
    }
    /// Compares the findings about all features with the single checks. Returns the first difference.
    std::string Compared() {
        ZFXListVal<QVRNameFinding> findings;
        Util::CheckNames(list, findings);
        int next = 1;
        for (const ZFXISpecObject_var& feature : list) {
            const std::vector<std::string> expected = SingleChecks(feature);
            std::vector<std::string> found;
            for (; next <= findings.Size() && findings[next].feature == feature; ++next)
                found.push_back(IdOrCode(findings[next].code) + Narrow(findings[next].messageId));
            const auto isFound = [&](const std::string& id) { return std::ranges::count(found, id) == 1; };
            if (found.empty() != expected.empty() || !std::ranges::all_of(expected, isFound) ||
                (!found.empty() && found[0] != expected[0]))
                return ::testing::PrintToString(found) + " instead of " + ::testing::PrintToString(expected);
        }
        return next == findings.Size() + 1 ? "" : "findings of no feature";
    }

    std::vector<MemoryFeature> features;
    ZFXListValZFXISpecObject_var list; // the same features

private:
    std::minstd_rand m_random{GetParam()};
};

TEST_P(RandomDocument, HasTheFindingsOfTheSingleChecks) {
    EXPECT_EQ(Compared(), "");
    constexpr int kRequests = static_cast<int>(MemoryRequest::GetCurrentAnalysisCaseSP) + 1;
    for (int request = 0; request < kRequests; ++request)
        for (const MemoryResponse& response : {kFailure, kFailureWithOutput, kSuccessWithoutOutput}) {
            model.FailAlways(static_cast<MemoryRequest>(request), response);
            EXPECT_EQ(Compared(), "") << "request " << request << " with code " << response.code;
            model.ClearFaults();
            const std::size_t victim = (static_cast<std::size_t>(request) * 7 + GetParam()) % features.size();
            features[victim].FailAlways(static_cast<MemoryRequest>(request), response);
            EXPECT_EQ(Compared(), "") << "request " << request << " of feature " << victim;
            model.ClearFaults();
        }
}

TEST_P(RandomDocument, CheckAliasReturnsWhatSetAliasDoes) {
    for (MemoryFeature& feature : features) {
        const ZFXIAlias_var alias(feature);
        if (alias == nullptr || !LateTypes::IsGuarded(feature.LateType()))
            continue;
        for (const char* text : {" a_", "B", "", "1", "C-2", "a.b", "厚"}) {
            const ZFXUnicodeString old = feature.StoredAlias();
            QVRNameFinding finding;
            const HRESULT code = QVRBaseFeatureAlias::CheckAlias(feature, text, &finding);
            EXPECT_EQ(feature.StoredAlias(), old) << "CheckAlias stores nothing";
            const std::string printed = CapturedOutput([&] { alias->SetAlias(text); });
            EXPECT_EQ(feature.StoredAlias(), Failed(code) ? old : QVRBaseFeatureAlias::Trimmed(text)) << text;
            const std::string message = Narrow(finding.Message());
            EXPECT_EQ(printed, message.empty() ? "" : "NAME ERROR: " + message + "\n") << text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDocument, ::testing::Range(1U, 4U));

} // namespace

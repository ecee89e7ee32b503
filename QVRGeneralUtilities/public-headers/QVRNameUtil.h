#pragma once

#include "QVRNameFinding.h"
#include "QVRNameUtilityExport.h"

#include "analysis/QVRISamAnalysisConnectionDesign.h"
#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

/// Checks whether the names of features are legal and unique, and finds the next unused name.
/// ARCHITECTURE.md defines the terms. In the contracts of the module:
/// - The name of a feature is its alias: without ZFXIAlias it has none. Late types are compared exactly.
/// - The simulation history of a case is the first object of late type "QVROruSimHistLT" below it.
/// - The features of a kind in a step are the members of those sets of the step that have the kind as their late type.
/// - Two names clash if they are identical or differ only in letter case (Unicode simple case folding).
/// - Lengths are in UTF-16 code units ("units"). String positions start at 0, list indexes at 1.
///
/// All operations are static and throw no exceptions. Unless an operation documents something else:
/// - The result is S_OK, or a negative code for a failure. Callers test only the sign.
/// - The first failure that applies determines the result. A failure listed with a message id registers a ZFXInputError
///   for the calling thread: this id, catalog "QVRNameUtility", error type 2, return code 0. The result is the code for
///   ZFXError::ZFXGetLastError. A failure listed with E_FAIL, or with the code of a request, registers no error.
/// - On failure, arguments that receive a result are unchanged. Lists that receive results are appended to. Other
///   arguments are never changed. The caller keeps the ownership of the handles and lists that it passes.
/// - An empty handle offers no interface. CheckName, CheckFileName and the IsNameUnique operations use the current name
///   of the feature in place of an empty name. They do not compare the feature with itself.
/// - If no memory is available for an error object, the result is E_FAIL. For anything else, the process ends.
/// - One thread at a time uses the library. Operations that read only texts may run on several threads at a time.
class QVR_NAME_UTILITY_EXPORT QVRNameUtil {
public:
    QVRNameUtil();                                    ///< Creates an object. No operation needs one.
    QVRNameUtil(const QVRNameUtil& other);            ///< Copies the members. No operation reads them.
    QVRNameUtil& operator=(const QVRNameUtil& other); ///< Copies the members. No operation reads them.
    virtual ~QVRNameUtil();

    // ---- Name validation: is a text legal as a name? ----

    /// Checks the text of a feature name.
    /// - "NameLengthERR_02": the name is empty.
    /// - "NameLengthERR_01": the name has more than 72 units.
    /// - "LeadingDigitERR_01": `checkStartAndEnd` is nonzero, and the first unit is a digit '0' to '9'.
    /// - "IllegalCharERR_01", return code -100: the name contains a double quote, full stop or backslash.
    static HRESULT IsNameValid(ZFXUnicodeString& name, unsigned char checkStartAndEnd) noexcept;

    /// Checks a file name of any length. A backslash is legal.
    /// - "IllegalCharERR_01", return code -100: the name contains a double quote or full stop.
    /// - "IllegalCharERR_02", return code -100: the name contains a space or one of $*?,#!&~()[]{}|:;'`/><.
    static HRESULT IsFileNameValid(ZFXUnicodeString& name) noexcept;

    /// Returns E_FAIL, without registering an error, if `name` contains one of $*?,#!&~()[]{}|:;'`/><. Otherwise S_OK.
    static HRESULT CheckForIllegalCharacters(const ZFXUnicodeString& name) noexcept;

    // ---- Character sets, file names, quoting, joined tags ----

    /// Checks that no unit of `name` is above U+00FF. The halves of a surrogate pair are two units above it.
    /// - "DoubleByteCharErr_01": a unit is above it. Appends all such units in order to `offending`, with two spaces
    ///   between them and one at the end. The whole text of `offending` is the diagnostic parameter of the error.
    static HRESULT DoesNameContainDoubleByteChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;

    /// Performs the check of DoesNameContainDoubleByteChar with the limit U+007F.
    static HRESULT DoesNameContainSignedChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;

    /// Removes spaces and $*?,#!&~()[]{}|:;'`/>< from `name`. Keeps every double quote, full stop and backslash.
    static HRESULT StripIllegalCharsFromFileName(ZFXUnicodeString& name) noexcept;

    /// Encloses `name` in double quotes if it contains a space and does not begin with a double quote.
    static void QuoteIfNeeded(ZFXUnicodeString& name) noexcept;

    /// Applies StripIllegalCharsFromFileName to `suffix`. Then sets `name` to prefix + name + "_" + suffix, without
    /// spaces, cut to 80 units. In the result the suffix is converted to UTF-8 and back. Always returns S_OK. The
    /// arguments may be one object: each contributes the text that it had on entry.
    static HRESULT PadStrings(ZFXUnicodeString& name, ZFXUnicodeString& suffix, ZFXUnicodeString& prefix) noexcept;

    // ---- Object names ----

    /// Sets `name` to the stored name of the feature.
    /// - E_FAIL: the handle is empty, or the feature has no name. In the second case `name` becomes empty.
    static HRESULT GetObjectName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    /// Sets `name` to the feature's name with hyphens for full stops, then checks this text. The stored name of a bolt
    /// tightening (docs/types.md lists the late types) must also be unique among the children of its father.
    /// - E_FAIL: the handle is empty.
    /// - "ZFXIAliasERR_01": the feature has no name.
    /// - An id of IsNameValid with `checkStartAndEnd` 1. After this and the following failures `name` is the new text.
    /// - "ParentERR_01": the bolt tightening has no father, or its father does not offer ZFXISamAnalysisScan.
    /// - "DuplicateZFXNameERR_01": IsNameUniqueInSet failed for the children. It registers its own error first.
    static HRESULT GetMorvelObjectName(ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    /// Sets `name` to the feature's name if no unit of it is above U+00FF or if the late type does not begin with
    /// "SAM". Otherwise sets `name` to the late type, followed by "-" and the number of its earlier uses if there are
    /// any, and adds a use (QVRGenI18NUtils::PushNameToList). A unit above U+00FF registers "DoubleByteCharErr_01".
    /// - E_FAIL: the feature has no name.
    static HRESULT GenerateUniqueName(const ZFXISpecObject& feature, ZFXUnicodeString& name) noexcept;

    // ---- Step membership ----

    /// Sets `stepName` to the name of the step that contains the object, or to "" if the request for the step fails or
    /// returns no step. In all these cases returns the code of the request.
    /// - E_FAIL: the handle is empty, or the step has no name. In the second case `stepName` becomes empty.
    static HRESULT GetParentStepName(const ZFXISpecObject_var& object, ZFXUnicodeString& stepName) noexcept;

    // ---- Support and connection group names ----

    /// Sets `groupName` to the name of the group of the support's only connector, with hyphens for full stops.
    /// In each of these cases `groupName` becomes empty:
    /// - S_OK: the feature does not offer ZFXISamAnalysisSupport, or it does not list exactly one object.
    /// - S_OK: the listed object does not offer ZFXISamAnalysisConnector, or its group has no name.
    /// - S_OK: the name contains a unit above U+00FF. Registers "DoubleByteCharErr_01".
    /// - E_FAIL: the connector has no group that offers QVRISamGroupExt.
    static HRESULT GetSupportGroupName(ZFXISpecObject_var& support, ZFXUnicodeString& groupName) noexcept;

    /// Sets `groupName` as the overload for a support does, with `connectors` as the objects that the support lists.
    static HRESULT GetSupportGroupName(ZFXListValZFXBaseUnknown_var connectors, ZFXUnicodeString& groupName) noexcept;

    /// If each side of a connection design lists exactly one connector, sets each name to the group name of one side,
    /// as GetSupportGroupName does. Otherwise leaves both names unchanged. Returns S_OK in all these cases.
    /// - E_FAIL: the handle is empty.
    static HRESULT GetGrpNameofMasterAndSlave(QVRISamAnalysisConnectionDesign_var& design, ZFXUnicodeString& masterName,
                                              ZFXUnicodeString& slaveName) noexcept;

    // ---- Numbered names ----

    /// Appends the next number in `scope` to the base in `name`, such as "Pressure-". Always returns S_OK.
    /// The next number is one more than the highest in use, and at least 1. Gaps are not filled. A number is in use if
    /// the name of an element begins with exactly the base (letter case counts) and continues with an int as "%d" reads
    /// it. Elements without a name are ignored. If the largest int is in use, the lowest unused number is next.
    static HRESULT GetNextUniqueName(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope) noexcept;

    /// Appends the next number to the base in `name`, as the overload for a list does, over the members of `set`.
    /// - E_FAIL: the handle is empty, or the members cannot be listed.
    static HRESULT GetNextUniqueName(ZFXUnicodeString& name, const ZFXISamAnalysisSet_var& set) noexcept;

    /// Appends to `names` the results of `count` calls of GetNextUniqueName with the base in `name`, as if each result
    /// were added to the scope. Reads the scope once. `name` is unchanged.
    /// - E_FAIL: `count` is below 1.
    static HRESULT GetNextUniqueNames(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope, int count,
                                      ZFXListValZFXUnicodeString& names) noexcept;

    /// Sets `baseName` to the English base name of the feature's late type. If there is none, changes nothing.
    /// - E_FAIL: the handle is empty.
    static HRESULT CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept;

    // ---- Uniqueness in a list and across cases ----

    /// Checks a name against the names of the elements of `scope`.
    /// - "ZFXIAliasERR_01": an element has no name, or `name` is empty and the feature has no name.
    /// - "DuplicateNameERR_02", return code -100: the name of an element clashes.
    static HRESULT IsNameUniqueInSet(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& scope,
                                     const ZFXUnicodeString& name) noexcept;

    /// Checks a job's name against the other jobs of one analysis model: the members of the first job container (late
    /// type "QVRJobContainerLT") of every case that has one. The model is the father of the first set that contains the
    /// job. Returns S_OK without a comparison if the feature does not offer ZFXISamAnalysisEntity.
    /// - The code of a request: its sets (also a success without a list) or the jobs of a case cannot be listed.
    /// - E_FAIL: no set contains the job, or the first one has no father that offers ZFXISamAnalysisModel.
    /// - E_FAIL: a case does not offer ZFXISamAnalysisScan, or its first job container not ZFXISamAnalysisSet.
    /// - An id of IsNameUniqueInSet: the comparison with the jobs of a case failed.
    static HRESULT IsNameUniqueAcrossCases(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;

    // ---- Job and mesh part names ----

    /// Sets `name` to "Job-" and the next number over all jobs of all cases of the current document. Counts as
    /// GetNextUniqueName does, but ignores letter case. Ignores jobs that cannot be listed. Always returns S_OK.
    static HRESULT GetUniqueNameForJob(ZFXUnicodeString& name) noexcept;

    /// Checks a job's name against all other jobs of all cases of the current document, in any container. Ignores jobs
    /// that cannot be listed. An empty `name` clashes with a job whose name is empty or missing.
    /// - "DuplicateNameERR_03": the name of another job clashes.
    static HRESULT IsUniqueNameForJob(const ZFXISpecObject_var& job, const ZFXUnicodeString& name) noexcept;

    /// Appends the next number to the base in `name`. Counts as GetNextUniqueName does, over the members of the mesh
    /// manager of the part's document, including the part if it is a member.
    /// - "MeshPartUniqueNameERR": the handle is empty, or the part has no document whose mesh manager lists members.
    static HRESULT GetUniqueNameForMeshPart(ZFXISpecObject_var& meshPart, ZFXUnicodeString& name) noexcept;

    // ---- General entry points: the feature's interfaces select the scope ----

    /// Checks a name in the feature's scope. If the feature is not a step, also fails as IsNameUniqueInSet does.
    /// - Step (QVRIStep): the scope is the children of its simulation history.
    ///   - "StepParentERR_01": no attribute of a simulation history points at the step.
    ///   - "StepParentERR_02": the children of the history cannot be listed.
    ///   - "DuplicateNameERR_01" for a clash, "ZFXIAliasERR_01" for a missing name: registered after the error of the
    ///     comparison. If that error could not be registered, the result is 1, a success.
    /// - Other propagating feature: the scope is the features of its kind in all steps of its case or, outside every
    ///   case, of the current case of its document. Without a current case, returns the code of the request for it.
    ///   Skips propagated features except initial temperatures, and steps that cannot be searched except the last.
    ///   - "ObjectParentERR_01": the case or its simulation history does not offer ZFXISamAnalysisScan.
    ///   - "AnalysisCaseERR_03": the simulation history is not found.
    ///   - E_FAIL: there are steps, but no set of the feature, or the last step does not offer ZFXISamAnalysisScan.
    ///   - The code of a request: no case is available, its steps cannot be listed, or its last one cannot be searched.
    /// - Any other feature: the scope is the members of the first set that contains it. Returns S_OK if no set contains
    ///   it or if it does not offer ZFXISamAnalysisEntity.
    ///   - E_FAIL: the first set does not offer ZFXISamAnalysisSet.
    ///   - The code of a request: its sets (also a success without a list) or the scope cannot be listed.
    static HRESULT IsNameUnique(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;

    /// Checks a feature's name with IsNameUnique, then with IsNameValid and `checkStartAndEnd`. Fails as these do.
    /// - "ZFXIAliasERR_01": the feature has no name.
    /// - "DoubleByteCharErr_01": a unit of the name is above U+00FF. Checked last.
    static HRESULT CheckName(ZFXISpecObject_var& feature, const ZFXUnicodeString& name,
                             unsigned char checkStartAndEnd) noexcept;

    /// Appends a finding for each rule that the current name of a feature breaks, feature by feature in the order of
    /// the list. Registers no error. Always returns S_OK. The time is linear in the number of features and in the sizes
    /// of their scopes: each scope is listed once, and each name is requested once.
    ///
    /// A feature without findings passes its single check. Otherwise, the first finding is what the single check
    /// returns. The single check is
    /// - IsNameUniqueAcrossCases, then IsUniqueNameForJob, for the late type "QVRJobLT";
    /// - CheckName without the test of the first character for "QVRShellSectionEnhLT";
    /// - CheckName, then GetMorvelObjectName, for a bolt tightening;
    /// - CheckName for every other late type.
    static HRESULT CheckNames(const ZFXListValZFXISpecObject_var& features,
                              ZFXListVal<QVRNameFinding>& findings) noexcept;

    /// Checks the feature's current name with IsNameUnique, then `fileName` with IsFileNameValid. Fails as these do.
    /// - "ZFXIAliasERR_01": the feature has no name.
    static HRESULT CheckFileName(ZFXISpecObject_var& feature, const ZFXUnicodeString& fileName) noexcept;

    /// Appends the next number to the base in `name`, as GetNextUniqueName does. An empty `analysisCase` means the
    /// current case; the handle is unchanged. `name` is unchanged if the feature is empty, if there is no case, or if
    /// the scope is not available; GetUniqueNames returns a code for this. Only a failure in this list registers an
    /// error:
    /// - Step (QVRIStep): the scope is the steps of the case except the first.
    ///   - "AnalysisCaseERR_02": the case does not belong to the solver (IsTarnisAnalysisCase returns 0).
    ///   - "AnalysisCaseERR_03": the case has no simulation history that can be searched.
    /// - Property or amplitude: the scope is the property set ("QVRTarnisPropertySetLT") of the model of the document.
    ///   - "AnalysisCaseERR_01": the case does not offer ZFXILinkableObject.
    ///   - "DocumentERR_01": the case has no document.
    ///   - "ErrorAnalysisModelErr_0004": the request for the document's model failed.
    ///   - "PropertySetERR_01": the model has no property set whose members can be listed.
    /// - Any other feature: the scope, and its errors, are those of IsNameUnique for a propagating feature of the case.
    static void GetUniqueName(ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                              ZFXISamAnalysisCase_var& analysisCase) noexcept;

    /// Appends to `names` the results of `count` calls of GetUniqueName with the base in `name`, as if each result were
    /// added to the scope. Reads the scope once. If GetUniqueName would register an error, registers this error and
    /// returns its code. After a failure, `names` is unchanged.
    /// - E_FAIL: `count` is below 1, the feature is empty, or there is no case.
    /// - The code of a request: the scope cannot be listed.
    static HRESULT GetUniqueNames(const ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                                  ZFXISamAnalysisCase_var& analysisCase, int count,
                                  ZFXListValZFXUnicodeString& names) noexcept;

private:
    static HRESULT NameCheckUserLength(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept;

    static HRESULT GetObjectsInStep(ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& objects,
                                    const ZFXISpecObject_var& object) noexcept;

    // ---- Propagating objects ----

    static HRESULT GetAllPropagatingObjects(ZFXISamAnalysisCase_var& analysisCase,
                                            ZFXListValZFXBaseUnknown_var& objects, ZFXISpecObject_var& object) noexcept;
    static HRESULT GetUniqueNameForPropagatingObject(ZFXUnicodeString& name, ZFXISpecObject_var& object,
                                                     ZFXISamAnalysisCase_var& analysisCase) noexcept;
    static HRESULT IsUniqueNameForPropagatingObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept;

    // ---- Step and property names within an analysis case ----

    static HRESULT GetUniqueNameForStep(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept;
    static HRESULT IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept;
    static HRESULT GetUniqueNameForProperty(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept;
    static HRESULT IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept;

    ZFXUnicodeString m_name; // this and the next two are unused
    ZFXUnicodeString m_baseName;
    ZFXUnicodeString m_suffix;
};

#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/QVRISamAnalysisConnectionDesign.h"
#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

/// Checks whether the names of features are legal and unique, and finds the next unused name.
///
/// Terms:
/// - A **feature** is an object of an analysis document that can have a name, such as a load, a step, a job or a case.
/// - The **name** of a feature is its alias. A feature that does not offer ZFXIAlias has no name.
/// - The **late type** of a feature is the name of its type, such as "QVRPressure". Late types are compared exactly.
/// - A **set** has features as members (ZFXISamAnalysisSet). Members of sets of one late type are of one **kind**.
/// - The **simulation history** of an analysis case is the first object of late type "QVROruSimHistLT" under the case.
///   Its children are the **steps** of the case. The sets of a step contain its loads and other features.
/// - A **propagating** feature (QVRIPropagatingFeature) can take effect in several steps. A **propagated** one came
///   into its step from an earlier step (IsPropagated is nonzero).
/// - The **scope** of a name consists of the features that it is compared with or numbered among.
///
/// All operations are static. Unless documented otherwise:
/// - The result is S_OK, or a negative code for a failure. Callers test the sign only.
/// - A failure listed with a message id registers a ZFXInputError for the calling thread: this id, catalog
///   "QVRNameUtility", error type 2, return code 0. The result is the code for ZFXError::ZFXGetLastError.
/// - A failure listed with E_FAIL, or with the code of a request to the host, registers no error.
/// - Arguments that receive a result are unchanged on failure. Lists that receive results are appended to. Other
///   arguments are never changed.
/// - The caller keeps the ownership of the handles and lists that it passes. An empty handle offers no interface.
/// - Lengths are in UTF-16 code units ("units"). String positions start at 0, list indexes at 1.
/// - Two names clash if they are identical or differ only in letter case (Unicode simple case folding).
/// - No operation throws an exception. Without memory for an error object the result is E_FAIL; without memory for
///   anything else the process ends.
/// - One thread at a time uses the library. Operations that read only texts may run on any thread.
class QVR_NAME_UTILITY_EXPORT QVRNameUtil {
public:
    /// Creates an object. No operation needs one.
    QVRNameUtil();

    /// Copies the members. No operation reads them.
    QVRNameUtil(const QVRNameUtil& other);

    /// Copies the members. No operation reads them.
    QVRNameUtil& operator=(const QVRNameUtil& other);
    virtual ~QVRNameUtil();

    // ---- Name validation: is a text legal as a name? ----

    /// Checks the text of a feature name. The first rule that fails determines the error.
    /// - "NameLengthERR_02": the name is empty.
    /// - "NameLengthERR_01": the name has more than 72 units.
    /// - "LeadingDigitERR_01": `checkStartAndEnd` is nonzero, and the first unit is a digit '0' to '9'.
    /// - "IllegalCharERR_01", return code -100: the name contains a double quote, full stop or backslash.
    static HRESULT IsNameValid(ZFXUnicodeString& name, unsigned char checkStartAndEnd) noexcept;

    /// Checks a file name of any length. A backslash is legal. The first rule that fails determines the error.
    /// - "IllegalCharERR_01", return code -100: the name contains a double quote or full stop.
    /// - "IllegalCharERR_02", return code -100: the name contains a space or one of $*?,#!&~()[]{}|:;'`/><.
    static HRESULT IsFileNameValid(ZFXUnicodeString& name) noexcept;

    /// Returns E_FAIL, without registering an error, if `name` contains one of $*?,#!&~()[]{}|:;'`/><. Otherwise S_OK.
    static HRESULT CheckForIllegalCharacters(const ZFXUnicodeString& name) noexcept;

    // ---- Character sets, file names, quoting, joined tags ----

    /// Returns S_OK if no unit of `name` is above U+00FF. The halves of a surrogate pair are two units above it.
    /// - "DoubleByteCharErr_01": a unit is above U+00FF. Appends all such units in order to `offending`, with two
    ///   spaces between them and one at the end. The whole text of `offending` becomes the error's diagnostic
    ///   parameter.
    static HRESULT DoesNameContainDoubleByteChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;

    /// Performs the check of DoesNameContainDoubleByteChar with the limit U+007F.
    static HRESULT DoesNameContainSignedChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;

    /// Removes spaces and $*?,#!&~()[]{}|:;'`/>< from `name`. Keeps every double quote, full stop and backslash.
    static HRESULT StripIllegalCharsFromFileName(ZFXUnicodeString& name) noexcept;

    /// Encloses `name` in double quotes if it contains a space and does not begin with a double quote.
    static void QuoteIfNeeded(ZFXUnicodeString& name) noexcept;

    /// Sets `name` to prefix + name + "_" + suffix, without spaces, cut to 80 units. Always returns S_OK. Before that,
    /// applies StripIllegalCharsFromFileName to `suffix`. In the result the suffix is converted to UTF-8 and back.
    /// `prefix` is unchanged. The arguments may be one object; each contributes the text that it had on entry.
    static HRESULT PadStrings(ZFXUnicodeString& name, ZFXUnicodeString& suffix, ZFXUnicodeString& prefix) noexcept;

    // ---- Object names ----

    /// Sets `name` to the stored name of the feature.
    /// - E_FAIL: the handle is empty. `name` is unchanged.
    /// - E_FAIL: the feature has no name. `name` becomes empty.
    static HRESULT GetObjectName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    /// Sets `name` to the feature's name with hyphens for full stops and checks this text as IsNameValid does,
    /// including the first character. For a bolt tightening, also compares its stored name with the stored names of the
    /// other children that its father lists. Bolt tightenings are the late types "SAMBoltTightening",
    /// "SAMVirtBoltTightening" and "SAMVirtSpringBoltTigh".
    /// - E_FAIL: the handle is empty. `name` is unchanged.
    /// - "ZFXIAliasERR_01": the feature has no name. `name` is unchanged.
    /// - An id of IsNameValid: the new text is not legal. From here on `name` contains the new text.
    /// - "ParentERR_01": the bolt tightening has no father, or its father does not offer ZFXISamAnalysisScan.
    /// - "DuplicateZFXNameERR_01": IsNameUniqueInSet failed for these children. Its error is registered first.
    static HRESULT GetMorvelObjectName(ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    // ---- Step membership ----

    /// Sets `stepName` to the name of the step that contains the object, or to "" if no step contains it. In both cases
    /// returns the code of the request for the step, a success.
    /// - E_FAIL: the handle is empty. `stepName` is unchanged.
    /// - The code of the request for the step: the request failed. `stepName` becomes empty.
    /// - E_FAIL: the step has no name. `stepName` becomes empty.
    static HRESULT GetParentStepName(const ZFXISpecObject_var& object, ZFXUnicodeString& stepName) noexcept;

    // ---- Support and connection group names ----

    /// Sets `groupName` to the name of the group of the support's only connector, with hyphens for full stops.
    /// - S_OK, `groupName` empty: the feature is not a support, or it does not list exactly one object.
    /// - S_OK, `groupName` empty: the listed object does not offer ZFXISamAnalysisConnector, or its group has no name.
    /// - S_OK, `groupName` empty: the group's name contains a unit above U+00FF. Registers "DoubleByteCharErr_01".
    /// - E_FAIL, `groupName` empty: the connector has no group that offers QVRISamGroupExt.
    static HRESULT GetSupportGroupName(ZFXISpecObject_var& support, ZFXUnicodeString& groupName) noexcept;

    /// Sets `groupName` as the overload for a support does, with `connectors` as the connectors of the support.
    static HRESULT GetSupportGroupName(ZFXListValZFXBaseUnknown_var connectors, ZFXUnicodeString& groupName) noexcept;

    /// Sets each name to the group name of one side of a connection design, as GetSupportGroupName does. Leaves both
    /// unchanged unless each side lists exactly one connector. In all these cases returns S_OK, also if a side has no
    /// usable group.
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

    /// Appends the next `count` names for the base in `name` to `names`. They are the results of `count` calls of
    /// GetNextUniqueName if each result were added to the scope. Reads the scope once. `name` is unchanged.
    /// - E_FAIL: `count` is below 1.
    static HRESULT GetNextUniqueNames(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope, int count,
                                      ZFXListValZFXUnicodeString& names) noexcept;

    /// Sets `name` to the feature's name if no unit of it is above U+00FF or if the late type does not begin with
    /// "SAM". Otherwise sets `name` to the late type, followed by "-" and the number of its earlier uses if there are
    /// any, and adds a use (QVRGenI18NUtils::PushNameToList). A unit above U+00FF registers "DoubleByteCharErr_01".
    /// - E_FAIL: the feature has no name.
    static HRESULT GenerateUniqueName(const ZFXISpecObject& feature, ZFXUnicodeString& name) noexcept;

    // ---- Base names ----

    /// Sets `baseName` to the English base name of the feature's late type, such as "Point Load-". Leaves it unchanged,
    /// and returns S_OK, if the type has no base name.
    /// - E_FAIL: the handle is empty.
    static HRESULT CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept;

    // ---- Uniqueness in a list and across cases ----

    /// Checks a name against the names of the elements of the list `scope`. Skips the feature itself. An empty `name`
    /// means the feature's current name. The first element that fails determines the error.
    /// - "ZFXIAliasERR_01": an element has no name, or `name` is empty and the feature has no name.
    /// - "DuplicateNameERR_02", return code -100: the name of an element clashes.
    static HRESULT IsNameUniqueInSet(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& scope,
                                     const ZFXUnicodeString& name) noexcept;

    /// Checks a job's name against the other jobs of one analysis model: the members of the first job container (late
    /// type "QVRJobContainerLT") of every case. The model is the father of the first set that contains the job. An
    /// empty `name` means the job's current name. Skips cases without a job container.
    /// - S_OK without a comparison: the handle is empty, or the feature does not offer ZFXISamAnalysisEntity.
    /// - The code of the request for the containing sets, a success, without a comparison: it returned no list.
    /// - The code of a request: the containing sets, or the members of a job container, cannot be listed.
    /// - E_FAIL: no set contains the job, or the first one has no father that offers ZFXISamAnalysisModel.
    /// - E_FAIL: a case does not offer ZFXISamAnalysisScan, or its first job container not ZFXISamAnalysisSet.
    /// - An id of IsNameUniqueInSet: the comparison with the jobs of a case failed.
    static HRESULT IsNameUniqueAcrossCases(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;

    // ---- Job names ----

    /// Sets `name` to "Job-" and the next number over all jobs of all cases of the current document. Counts as
    /// GetNextUniqueName does, but ignores letter case. Ignores jobs that cannot be listed and the former text of
    /// `name`.
    static HRESULT GetUniqueNameForJob(ZFXUnicodeString& name) noexcept;

    /// Checks a job's name against all other jobs of all cases of the current document, in any container. Ignores jobs
    /// that cannot be listed. An empty `name` clashes with a job that has no name or an empty one.
    /// - "DuplicateNameERR_03": the name of another job clashes.
    static HRESULT IsUniqueNameForJob(const ZFXISpecObject_var& job, const ZFXUnicodeString& name) noexcept;

    // ---- Mesh part names ----

    /// Appends the next number to the base in `name`. The scope is the members of the mesh manager of the part's
    /// document, including the part if it is a member. Counts as GetNextUniqueName does.
    /// - "MeshPartUniqueNameERR": the handle is empty, or the part has no document whose mesh manager lists members.
    static HRESULT GetUniqueNameForMeshPart(ZFXISpecObject_var& meshPart, ZFXUnicodeString& name) noexcept;

    // ---- General entry points: the scope by kind of feature ----

    /// Checks a name in the scope that follows from the feature's interfaces. An empty `name` means the current name of
    /// the feature, which is not compared with itself. The scope is the first of these that applies:
    /// - A step (QVRIStep): the children of its simulation history.
    /// - A propagating feature: the features of its kind in all steps of its case, or, if it is in none, of its
    ///   document's current case. Skips propagated features other than initial temperatures, and steps that cannot be
    ///   searched if they are not the last.
    /// - Any other feature: the members of the first set that contains it.
    ///
    /// Successes without a comparison:
    /// - S_OK: any other feature is in no set or does not offer ZFXISamAnalysisEntity, or the handle is empty.
    /// - The code of the request for the containing sets of any other feature: it returned no list.
    /// - The code of the request for the current case: it returned none, and a propagating feature is in no case.
    ///
    /// Failures:
    /// - An id of IsNameUniqueInSet: the comparison failed. For a step, a second error determines the result:
    ///   "DuplicateNameERR_01", return code 0, for a clash, otherwise with the id of the first. The result is 1, a
    ///   success, if the first error could not be registered.
    /// - "StepParentERR_01", a step: no attribute of a simulation history points at it.
    /// - "StepParentERR_02", a step: the children of its simulation history cannot be listed.
    /// - "ObjectParentERR_01", a propagating feature: its case or the history does not offer ZFXISamAnalysisScan.
    /// - "AnalysisCaseERR_03", a propagating feature: the simulation history is not found.
    /// - E_FAIL, a propagating feature: no set is listed for it, or the last step does not offer ZFXISamAnalysisScan.
    /// - The code of a request, a propagating feature: neither its case nor a current one is available, the steps
    ///   cannot be listed, or the last step cannot be searched for sets.
    /// - E_FAIL, any other feature: its first set does not offer ZFXISamAnalysisSet.
    /// - The code of a request, any other feature: its sets or the members of the first one cannot be listed.
    static HRESULT IsNameUnique(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;

    /// Checks a feature's name: first whether it is unique, then its text. An empty `name` means the feature's current
    /// name. The first failure determines the result.
    /// - "ZFXIAliasERR_01": the feature has no name.
    /// - A failure of IsNameUnique: the name is not unique in its scope, or the scope is not available.
    /// - An id of IsNameValid with `checkStartAndEnd`: the text is not legal.
    /// - "DoubleByteCharErr_01": a unit of the name is above U+00FF.
    static HRESULT CheckName(ZFXISpecObject_var& feature, const ZFXUnicodeString& name,
                             unsigned char checkStartAndEnd) noexcept;

    /// Checks that the feature's current name is unique, then that `fileName` is a legal file name. An empty `fileName`
    /// means the current name. The first failure determines the result.
    /// - "ZFXIAliasERR_01": the feature has no name.
    /// - A failure of IsNameUnique: the current name is not unique in its scope, or the scope is not available.
    /// - An id of IsFileNameValid: the file name is not legal.
    static HRESULT CheckFileName(ZFXISpecObject_var& feature, const ZFXUnicodeString& fileName) noexcept;

    /// Appends the next number to the base in `name`. Counts as GetNextUniqueName does. An empty `analysisCase` means
    /// the current case; the handle is unchanged. The scope is the first of these that applies:
    /// - A step (QVRIStep): the steps of the case except the first.
    /// - A property or an amplitude: the property set ("QVRTarnisPropertySetLT") of the model of the case's document.
    /// - Any other feature: the features of its kind in all steps of the case. Skips as IsNameUnique does.
    ///
    /// `name` is unchanged if the feature is empty, if there is no case, or if the scope is not available. The latter
    /// may register an error:
    /// - "AnalysisCaseERR_02", a step: the case is none of the solver's own (IsTarnisAnalysisCase returns 0).
    /// - "AnalysisCaseERR_03", a step: the case has no simulation history that can be searched.
    /// - "AnalysisCaseERR_01", a property or an amplitude: the case does not offer ZFXILinkableObject.
    /// - "DocumentERR_01", a property or an amplitude: the case has no document.
    /// - "ErrorAnalysisModelErr_0004", a property or an amplitude: the request for the document's model failed.
    /// - "PropertySetERR_01", a property or an amplitude: the model has no property set whose members can be listed.
    /// - "ObjectParentERR_01" and "AnalysisCaseERR_03", any other feature: as for IsNameUnique.
    static void GetUniqueName(ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                              ZFXISamAnalysisCase_var& analysisCase) noexcept;

private:
    static HRESULT NameCheckUserLength(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept;

    /// Appends the members of those sets of the step that have the late type of the first set that contains `object`.
    /// Skips propagated features except initial temperatures.
    /// - E_FAIL: no set contains `object`, or the step does not offer ZFXISamAnalysisScan.
    /// - The code of the search for the sets: the search failed.
    static HRESULT GetObjectsInStep(ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& objects,
                                    const ZFXISpecObject_var& object) noexcept;

    // ---- Propagating objects ----

    /// Appends the results of GetObjectsInStep for each step of the case, except `object`. Steps that fail contribute
    /// nothing. Returns the code of the last step, or of the request for the steps if there are none.
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

    // Unused. Copied member by member.
    ZFXUnicodeString m_name;
    ZFXUnicodeString m_baseName;
    ZFXUnicodeString m_suffix;
};

#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/QVRISamAnalysisConnectionDesign.h"
#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXHandle.h"
#include "text/ZFXUnicodeString.h"

/// Whether the name of an analysis feature is legal, whether it is unique, and what the next free one is.
///
/// All operations are static. What holds for each of them unless it says otherwise:
/// - A result code is negative for failure; callers test the sign only.
/// - "Refuses with ID" means: a ZFXInputError of that message id in the catalog "QVRNameUtility", of error type 2, is
///   registered for the calling thread, and the code under which `ZFXError::ZFXGetLastError` finds it is returned. A
///   plain E_FAIL registers nothing.
/// - An argument that receives a result is untouched on failure. Handles and lists that are passed in stay the
///   caller's; lists that receive results are appended to.
/// - Lengths are in UTF-16 code units, positions count from 0, list indexes from 1.
/// - Names clash when they are identical or differ in letter case only.
/// - No exception leaves an operation; the process ends when there is no memory for it.
/// - A handle may be empty: it offers no interface.
/// - The library is used by one thread at a time; the operations on texts alone may run on any thread.
class QVR_NAME_UTILITY_EXPORT QVRNameUtil {
public:
    QVRNameUtil();
    /// No operation reads what an object holds; a copy holds the same.
    QVRNameUtil(const QVRNameUtil& other);
    /// As the copy.
    QVRNameUtil& operator=(const QVRNameUtil& other);
    virtual ~QVRNameUtil();

    // ---- Name validation: is a text legal as a name? ----

    /// The test of a feature name; the first rule that fails decides. In this order: 1 to 72 units long
    /// (refuses with "NameLengthERR_02" when empty, "NameLengthERR_01" when longer); no leading digit '0' to
    /// '9', asked only when `checkStartAndEnd` is nonzero ("LeadingDigitERR_01"); no double quote, full stop or
    /// backslash ("IllegalCharERR_01", with the return code -100 on the error). The name is not changed.
    static HRESULT IsNameValid(ZFXUnicodeString& name, unsigned char checkStartAndEnd) noexcept;

    /// The test of a file name, of any length: no double quote or full stop ("IllegalCharERR_01"), then no
    /// space and none of $*?,#!&~()[]{}|:;'`/>< ("IllegalCharERR_02"); both with the return code -100 on the
    /// error. A backslash is legal. The name is not changed.
    static HRESULT IsFileNameValid(ZFXUnicodeString& name) noexcept;

    /// Asks quietly for the characters $*?,#!&~()[]{}|:;'`/><: S_OK when there is none, else E_FAIL, no
    /// message.
    static HRESULT CheckForIllegalCharacters(const ZFXUnicodeString& name) noexcept;

    // ---- Character sets, file names, quoting, joined tags ----

    /// S_OK when every unit is at most U+00FF. Otherwise each unit above it (half a surrogate pair counts by
    /// itself) is appended to `offending`, two spaces between them and one at the end, repeats included, and
    /// the name is refused with "DoubleByteCharErr_01", `offending` being the error's diagnostic parameter.
    static HRESULT DoesNameContainDoubleByteChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;
    /// The same with U+007F as the limit.
    static HRESULT DoesNameContainSignedChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept;
    /// Removes the space and $*?,#!&~()[]{}|:;'`/>< wherever they stand. Double quotes, full stops and
    /// backslashes stay. Always S_OK.
    static HRESULT StripIllegalCharsFromFileName(ZFXUnicodeString& name) noexcept;
    /// Puts a name that holds a space in double quotes, unless it begins with one.
    static void QuoteIfNeeded(ZFXUnicodeString& name) noexcept;
    /// `suffix` loses its characters that are illegal in file names; `name` becomes prefix + name + "_" +
    /// suffix without spaces, cut to 80 units; the suffix goes in by its narrow form. Always S_OK. The arguments may be
    /// one object: each counts with the text it had on entry.
    static HRESULT PadStrings(ZFXUnicodeString& name, ZFXUnicodeString& suffix, ZFXUnicodeString& prefix) noexcept;

    // ---- Object names ----

    /// The name as it is stored. E_FAIL for an empty handle, with `name` untouched, or for a feature without a name,
    /// with `name` empty.
    static HRESULT GetObjectName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;
    /// The name made legal: full stops become hyphens, and the result is judged as IsNameValid does with the leading
    /// character. A bolt tightening ("SAMBoltTightening", "SAMVirtBoltTightening", "SAMVirtSpringBoltTigh") must also
    /// differ from the other children of its father, by their stored names. Refuses with "ZFXIAliasERR_01" (no name,
    /// `name` untouched); from here on `name` holds the legal form, also on failure: the text rules, "ParentERR_01" (no
    /// father, or one that cannot be searched), "DuplicateZFXNameERR_01" (the comparison failed; its own error is
    /// registered before). E_FAIL for an empty handle.
    static HRESULT GetMorvelObjectName(ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    // ---- Step membership ----

    /// The name of the step that holds the object; empty when it lies in no step (a success). E_FAIL for an
    /// empty handle, with `stepName` untouched; the code of the failed request, or E_FAIL for a step without
    /// a name, with `stepName` empty.
    static HRESULT GetParentStepName(const ZFXISpecObject_var& object, ZFXUnicodeString& stepName) noexcept;

    // ---- Support and connection group names ----

    /// The name of the group that the one connector of a support leads to, full stops replaced by hyphens. Empty, and
    /// a success, when the feature is no support, has no connector or several, when the group has no name, or when
    /// that holds a unit above U+00FF (whose test registers "DoubleByteCharErr_01"). E_FAIL, with an empty name, when
    /// the connector leads to no group. No message of its own.
    static HRESULT GetSupportGroupName(ZFXISpecObject_var& support, ZFXUnicodeString& groupName) noexcept;
    /// The same for a list that holds exactly one connector.
    static HRESULT GetSupportGroupName(ZFXListValZFXBaseUnknown_var connectors, ZFXUnicodeString& groupName) noexcept;
    /// The same for both sides of a connection design, if each has exactly one connector; otherwise both names are
    /// untouched. S_OK whatever was found; E_FAIL for an empty handle.
    static HRESULT GetGrpNameofMasterAndSlave(QVRISamAnalysisConnectionDesign_var& design, ZFXUnicodeString& masterName,
                                              ZFXUnicodeString& slaveName) noexcept;

    // ---- Numbered names ----

    /// `name` is a base, such as "Pressure-", on entry, and the base followed by the next number on return:
    /// one more than the highest in use, from 1, gaps not refilled. A number is in use when the name of an
    /// element begins with exactly the base and goes on with a number as "%d" reads it; an element without a
    /// name counts for nothing. When the largest int is in use, the lowest number that is not. Always S_OK.
    static HRESULT GetNextUniqueName(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope) noexcept;
    /// The same over the members of a set. E_FAIL for an empty handle or when the members cannot be listed.
    static HRESULT GetNextUniqueName(ZFXUnicodeString& name, const ZFXISamAnalysisSet_var& set) noexcept;
    /// The next `count` names behind the base in `name`, appended to `names` after one reading of the scope: exactly
    /// those that as many calls of GetNextUniqueName would give if each proposal were taken at once. The base stays.
    /// E_FAIL, and nothing appended, for a count below 1.
    static HRESULT GetNextUniqueNames(ZFXUnicodeString& name, const ZFXListValZFXBaseUnknown_var& scope, int count,
                                      ZFXListValZFXUnicodeString& names) noexcept;
    /// A name that a feature can go by: its own when no unit of it is above U+00FF (else the test registers
    /// its "DoubleByteCharErr_01", which is not returned) or when its late type does not begin with "SAM";
    /// else its late type, followed by "-" and a number from the second time on, until
    /// QVRGenI18NUtils::ResetAllLists. E_FAIL for a feature without ZFXIAlias.
    static HRESULT GenerateUniqueName(const ZFXISpecObject& feature, ZFXUnicodeString& name) noexcept;

    // ---- Base names ----

    /// The English base name of the feature's late type, such as "Point Load-"; `baseName` is untouched when
    /// the type has none, which is a success. E_FAIL for an empty handle.
    static HRESULT CreateBaseName(ZFXISpecObject_var& feature, ZFXUnicodeString& baseName) noexcept;

    // ---- Uniqueness in a list and across cases ----

    /// S_OK when no element of the list but the feature itself has a name that clashes with `name`; an empty
    /// `name` stands for the feature's own. The first element that fails decides: refuses with
    /// "ZFXIAliasERR_01" for an element without a name (or for the feature, when its own name is asked for),
    /// with "DuplicateNameERR_02" and the return code -100 on the error for a clash.
    static HRESULT IsNameUniqueInSet(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& scope,
                                     const ZFXUnicodeString& name) noexcept;
    /// The test of a job's name against the first job container of every case of its analysis model, the
    /// father of the first set that holds the job. S_OK for a feature that lives in no sets by its nature;
    /// E_FAIL when no set holds it or when the model, a case or a container is not what it should be; the
    /// code of a failed request (a success when the sets were asked for and none came); else as
    /// IsNameUniqueInSet.
    static HRESULT IsNameUniqueAcrossCases(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;

    // ---- Job names ----

    /// "Job-" and the next number among all jobs of the current document, as GetNextUniqueName counts but without
    /// regard to letter case. What `name` held is not read. Always S_OK; jobs that cannot be listed do not count.
    static HRESULT GetUniqueNameForJob(ZFXUnicodeString& name) noexcept;
    /// Whether no job of the current document but `job` itself has a name that clashes. An empty name is compared as
    /// it is: it clashes with a job without a name. Refuses with "DuplicateNameERR_03".
    static HRESULT IsUniqueNameForJob(const ZFXISpecObject_var& job, const ZFXUnicodeString& name) noexcept;

    // ---- Mesh part names ----

    /// The base in `name` numbered over the members of the mesh manager of the part's document, as GetNextUniqueName
    /// does; the part counts when it is among them. Refuses with "MeshPartUniqueNameERR" when there is no part, no
    /// document, no mesh manager or no list of its members.
    static HRESULT GetUniqueNameForMeshPart(ZFXISpecObject_var& meshPart, ZFXUnicodeString& name) noexcept;

    // ---- General entry points: the scope by kind of feature ----

    /// Whether a name is free in the scope that the feature's kind has: a step among the steps of its
    /// simulation history; a propagating feature among those of its kind in all steps of its case; any other
    /// among the members of the first set that holds it (free when there is none). Refuses as the check of
    /// that kind does: steps with "DuplicateNameERR_01", "StepParentERR_01" or "StepParentERR_02";
    /// propagating features with "ObjectParentERR_01" or "AnalysisCaseERR_03"; all with what
    /// IsNameUniqueInSet says.
    static HRESULT IsNameUnique(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept;
    /// The whole check of a feature's name; an empty `name` stands for its current one. The first failure
    /// decides: "ZFXIAliasERR_01" for a feature without a name; then IsNameUnique; the length; the leading
    /// digit, asked only when `checkStartAndEnd` is nonzero; the illegal characters; last the units above U+00FF
    /// ("DoubleByteCharErr_01").
    static HRESULT CheckName(ZFXISpecObject_var& feature, const ZFXUnicodeString& name,
                             unsigned char checkStartAndEnd) noexcept;
    /// Checks that the feature's current name is unique, whatever `fileName` is, then that `fileName` (the
    /// current name when it is empty) is legal as a file name. "ZFXIAliasERR_01" for a feature without a
    /// name.
    static HRESULT CheckFileName(ZFXISpecObject_var& feature, const ZFXUnicodeString& fileName) noexcept;
    /// `name` is a base on entry and the next free numbered name on return, in the scope of the feature's
    /// kind: steps of the case without its first; the property set for properties and amplitudes; features of
    /// the same kind in all steps of the case for any other. An empty case stands for the current one. The
    /// name is unchanged when the feature is empty, when there is no case, or when the scope cannot be listed
    /// (refusals of the listing are registered).
    static void GetUniqueName(ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                              ZFXISamAnalysisCase_var& analysisCase) noexcept;

private:
    static HRESULT NameCheckUserLength(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept;
    static HRESULT NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept;

    /// Appends the features that the step holds in sets of the late type of the set holding `object`;
    /// propagated ones are left out, initial temperatures never.
    static HRESULT GetObjectsInStep(ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& objects,
                                    const ZFXISpecObject_var& object) noexcept;

    // ---- Propagating objects ----

    /// Appends what GetObjectsInStep finds in each step of the case, without `object`; the code is that of
    /// the last step. Refuses with "ObjectParentERR_01" or "AnalysisCaseERR_03".
    static HRESULT GetAllPropagatingObjects(ZFXISamAnalysisCase_var& analysisCase,
                                            ZFXListValZFXBaseUnknown_var& objects, ZFXISpecObject_var& object) noexcept;
    static HRESULT GetUniqueNameForPropagatingObject(ZFXUnicodeString& name, ZFXISpecObject_var& object,
                                                     ZFXISamAnalysisCase_var& analysisCase) noexcept;
    static HRESULT IsUniqueNameForPropagatingObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept;

    // ---- Step and property names within an analysis case ----

    /// Refuses with "AnalysisCaseERR_01", "AnalysisCaseERR_02" or "AnalysisCaseERR_03".
    static HRESULT GetUniqueNameForStep(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept;
    /// 1 when the comparison failed without a registered error.
    static HRESULT IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept;
    /// Refuses with "AnalysisCaseERR_01", "DocumentERR_01", "ErrorAnalysisModelErr_0004" or
    /// "PropertySetERR_01".
    static HRESULT GetUniqueNameForProperty(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept;
    static HRESULT IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept;

    // Not used by any operation; copied member by member.
    ZFXUnicodeString m_name;
    ZFXUnicodeString m_baseName;
    ZFXUnicodeString m_suffix;
};

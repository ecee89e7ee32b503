#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXISpecObject.h"
#include "text/ZFXUnicodeString.h"

#include <memory>

/// Detects whether the workbench runs in English mode, and issues the names of features and materials that need a
/// different name in the solver deck.
///
/// There is one object. It has three lists: of features with the names issued to them, of materials, and of used
/// generic names. Until ResetAllLists, a feature or material keeps its place in the list, and a feature its name. The
/// lists own references: call ResetAllLists when a document is closed.
///
/// ARCHITECTURE.md defines the terms. Unless documented otherwise:
/// - Byte booleans are 0 or 1. Result codes are S_OK, or negative for a failure.
/// - A failure with E_FAIL registers no error. `name` and the lists are unchanged on failure.
/// - The caller keeps the ownership of the handles that it passes.
/// - Names are compared exactly, including letter case. Numbers are written in decimal.
/// - No operation throws an exception. The process ends if no memory is available.
/// - One thread at a time uses the object.
class QVR_NAME_UTILITY_EXPORT QVRGenI18NUtils {
public:
    /// Returns the one object. Creates it on the first call and never destroys it. [borrowed]
    static QVRGenI18NUtils* Instance() noexcept;
    /// Copies the lists and the locale results. Later changes of the two objects are independent.
    QVRGenI18NUtils(const QVRGenI18NUtils& other);
    QVRGenI18NUtils& operator=(const QVRGenI18NUtils&) = delete;
    virtual ~QVRGenI18NUtils();

    // ---- Locales ----

    /// Calls IsEnglishMode and ignores the result.
    void GetInitialLocales() noexcept;
    /// Returns 1 if the default locale of the user and the input (keyboard) locale of the calling thread were both
    /// English on the first call, otherwise 0. Only the first call examines the locales. It writes one line for each on
    /// standard output, first for the user: "The initial user locale is English." or "The initial input locale is NOT
    /// English."
    ///
    /// A locale is English if its identifier is one of the 13 values 0x0409, 0x0809, 0x0C09 and so on to 0x3409. The
    /// whole user locale is compared, and the low 16 bits of the input locale.
    unsigned char IsEnglishMode() noexcept;
    /// Returns whether the user locale was English on the first call of IsEnglishMode; 0 before that call.
    unsigned char IsInitialUserLocaleEnglish() noexcept;
    /// Returns whether the input locale was English on the first call of IsEnglishMode; 0 before that call.
    unsigned char IsInitialInputLocaleEnglish() noexcept;
    /// Returns whether the default locale of the user is English now. Stores nothing.
    unsigned char IsEnglishUserLocale() noexcept;
    /// Returns whether the input locale of the calling thread is English now. Stores nothing.
    unsigned char IsEnglishInputLocale() noexcept;

    // ---- The lists ----

    /// Empties all lists and releases the references on features and materials. The locale results are unchanged.
    void ResetAllLists() noexcept;
    /// Appends `name` to the list of generic names. Always returns S_OK.
    HRESULT PushNameToList(const ZFXUnicodeString& name) noexcept;
    /// Sets `nextId` to the number of times that the list of generic names contains `name`. Returns 1 if it is above 0,
    /// otherwise 0.
    unsigned char FindNameAndNextID(const ZFXUnicodeString& name, int& nextId) noexcept;

    // ---- Generic English names ----

    /// Sets `name` to the late type, "-" and the index (from 1) of the feature among the members of the set that is its
    /// father. Uses no list: if the order of the members changes, so does the name.
    /// - "GetGenericEnglishNameERR_01": the handle is empty, the father is missing or not a set, its members cannot be
    ///   listed, or the feature is not among them. Registers an error of this id, as at QVRNameUtil.
    HRESULT GetGenericEnglishName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;
    /// Sets `name` to the name of the feature in the list of features. Before that, appends a feature that is not in
    /// the list. Its name is the late type, "-" and one more than the number of listed features of this late type, with
    /// full stops removed.
    /// - E_FAIL: the handle is empty.
    HRESULT GetGenericEnglishFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;
    /// Sets `name` to the name of the feature in the list of features. Before that, appends a feature that is not in
    /// the list. Its name is its alias, followed by "-n" if n > 0 listed features have this alias now, with full stops
    /// removed.
    /// - E_FAIL: the handle is empty, or the feature has no name now, even if it is listed.
    /// - E_FAIL: the feature is not listed, and a listed feature has no name now.
    HRESULT GetFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    // ---- Material names: the feature's material name, else its alias ----

    /// Sets `name` to the current name of the material, followed by "-n" if n > 0 materials before it in the list of
    /// materials have this name now, with hyphens for full stops. Appends a material that is not listed. The name of a
    /// material is that of ZFXIMaterialFeature. Without this interface it is the alias.
    /// - E_FAIL: the handle is empty, or the material has no name.
    /// - E_FAIL: a material before it in the list has no name now. If the material is listed, `name` becomes its
    ///   current name without a number, with full stops.
    HRESULT GetMaterialName(const ZFXISpecObject_var& material, ZFXUnicodeString& name) noexcept;
    /// Appends to `names` one text for each of the materials, in their order: what GetMaterialName would set an empty
    /// text to. The time is linear in the number of these and of the listed materials, because each name is requested
    /// only once.
    /// - E_FAIL: GetMaterialName would fail for at least one material. The texts of the others are their names.
    HRESULT GetMaterialNames(const ZFXListValZFXISpecObject_var& materials, ZFXListValZFXUnicodeString& names) noexcept;
    /// Sets `name` to the late type, "-" and the index (from 1) of the material in the list of materials, with hyphens
    /// for full stops. Appends a material that is not listed.
    /// - E_FAIL: the handle is empty.
    HRESULT GetGenericEnglishMaterialName(const ZFXISpecObject_var& material, ZFXUnicodeString& name) noexcept;

    // ---- Solver-compliant names ----

    /// Sets `compliantName` to a name for the solver deck. Always returns S_OK. The first of these that applies:
    /// - No unit of `name` is above U+00FF: `name` with hyphens for full stops.
    /// - `genericName` begins with "QVR": `name` without its type prefix.
    /// - Otherwise: `genericName` without its type prefix, followed by "-n" if the list of generic names of Instance()
    ///   contains `genericName` n > 0 times. Appends `genericName` to that list.
    ///
    /// A type prefix is "QVR", "SAM" or "LMS" in any letter case. In the last two cases full stops are kept, and the
    /// check registers "DoubleByteCharErr_01". The arguments may be one object.
    HRESULT GetTARNISCompliantFeatureName(const ZFXUnicodeString& name, const ZFXUnicodeString& genericName,
                                          ZFXUnicodeString& compliantName) noexcept;

protected:
    QVRGenI18NUtils();

private:
    unsigned char IsLCIDInEnglishIDs(int lcid) noexcept;

    static QVRGenI18NUtils* m_genI18NSingletonObj;

    unsigned char m_localesChecked = 0;
    unsigned char m_englishMode = 0;
    unsigned char m_initialUserLocaleEnglish = 0;
    unsigned char m_initialInputLocaleEnglish = 0;
    /// The generic names used, without their numbers. A name that was used twice is listed twice.
    ZFXListValZFXUnicodeString m_usedGenericNames;
    /// The materials in the order in which they were first named.
    ZFXListValZFXISpecObject_var m_materialObjects;
    /// The name of each feature of m_featureObjects, position by position.
    ZFXListValZFXUnicodeString m_featureNames;
    /// The features in the order in which they were first named.
    ZFXListValZFXISpecObject_var m_featureObjects;
    /// The late type of each feature of m_featureObjects, position by position.
    ZFXListValZFXUnicodeString m_featureLateTypes;
    /// Index over the lists; replaces linear searches.
    struct Index;
    std::unique_ptr<Index> m_index;
};

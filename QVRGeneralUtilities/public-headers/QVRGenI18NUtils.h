#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXISpecObject.h"
#include "text/ZFXUnicodeString.h"

#include <memory>

/// Whether the workbench runs in English mode, and which English names stand in for those that the solver
/// cannot take. There is one object, and its caches keep names steady: what a feature was called once it is
/// called again, until ResetAllLists.
///
/// Byte booleans are 0 or 1. Used by one thread at a time.
class QVR_NAME_UTILITY_EXPORT QVRGenI18NUtils {
public:
    /// The one object, made by the first call and never destroyed. [borrowed]
    static QVRGenI18NUtils* Instance() noexcept;
    /// What `other` knows by now; from then on each goes its own way.
    QVRGenI18NUtils(const QVRGenI18NUtils& other);
    QVRGenI18NUtils& operator=(const QVRGenI18NUtils&) = delete;
    virtual ~QVRGenI18NUtils();

    // ---- Locales ----

    /// Runs IsEnglishMode.
    void GetInitialLocales() noexcept;
    /// Whether the user's default locale and the calling thread's input locale were both English when this
    /// was first asked. The first call writes one line on standard output for each of the two; later calls
    /// write nothing and answer the same, whatever the locales are by then. English are the 13 locale
    /// identifiers 0x0409, 0x0809 and so on to 0x3409, compared whole; of the input locale the low 16 bits.
    unsigned char IsEnglishMode() noexcept;
    /// What IsEnglishMode found out; 0 before its first call.
    unsigned char IsInitialUserLocaleEnglish() noexcept;
    /// The same of the input locale.
    unsigned char IsInitialInputLocaleEnglish() noexcept;
    /// The locales as they are now; nothing is stored.
    unsigned char IsEnglishUserLocale() noexcept;
    /// The same of the input locale.
    unsigned char IsEnglishInputLocale() noexcept;

    // ---- Names handed out ----

    /// Forgets every name handed out and every object met; references on them are released. The locales stay.
    void ResetAllLists() noexcept;
    /// Notes that a generic name was handed out once more. Always S_OK.
    HRESULT PushNameToList(const ZFXUnicodeString& name) noexcept;
    /// How often exactly this name was handed out, in `nextId`; 1 when at all.
    unsigned char FindNameAndNextID(const ZFXUnicodeString& name, int& nextId) noexcept;

    // ---- Generic English names ----

    /// The late type, "-" and the position of the feature among the members of the set that is its father. Nothing is
    /// remembered. Refuses with "GetGenericEnglishNameERR_01" when there is no feature, no such set or no such member.
    HRESULT GetGenericEnglishName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;
    /// The late type, "-" and how many features of the type were met, this one included; without full stops. A feature
    /// that was met before, by this operation or by GetFeatureName, keeps the name it got then. E_FAIL for an empty
    /// handle.
    HRESULT GetGenericEnglishFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;
    /// The display name, followed by "-" and a number when features met before are displayed under it now; without full
    /// stops. A feature that was met before keeps the name it got then. E_FAIL, and nothing remembered, for an empty
    /// handle, for a feature without a name, or when one met before has lost its name.
    HRESULT GetFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept;

    // ---- Material names: the feature's material name, else its alias ----

    /// The material's name, followed by "-" and the number of materials met before it that have the same name now;
    /// full stops become hyphens. E_FAIL for an empty handle or for a material without a name (nothing remembered,
    /// `name` untouched), or when one met before has lost its name (nothing remembered; `name` is the bare name when
    /// the material itself was met before, else untouched).
    HRESULT GetMaterialName(const ZFXISpecObject_var& material, ZFXUnicodeString& name) noexcept;
    /// The late type, "-" and the material's position among those met; full stops become hyphens. E_FAIL for an empty
    /// handle.
    HRESULT GetGenericEnglishMaterialName(const ZFXISpecObject_var& material, ZFXUnicodeString& name) noexcept;

    // ---- Solver-compliant names ----

    /// `name` with hyphens for full stops when no unit of it is above U+00FF (else the test registers
    /// "DoubleByteCharErr_01"). Otherwise `name` itself when `genericName` begins with "QVR", else `genericName`,
    /// numbered from its second hand-out on ("-1"), in the list of Instance(); of the result "QVR", "SAM" or "LMS" in
    /// front, in any letter case, is taken away. Always S_OK. The arguments may be one object.
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
    /// The generic names issued, without their numbers. A name that was issued twice is listed twice.
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

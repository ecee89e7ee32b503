#pragma once

#include "QVRNameUtilityExport.h"

#include "analysis/ZFXISpecObject.h"
#include "text/ZFXUnicodeString.h"

/// Whether the workbench runs in English mode, and which English names stand in for those that the solver
/// cannot take. There is one object, and its caches keep names steady: what a feature was called once it is
/// called again, until ResetAllLists.
///
/// Byte booleans are 0 or 1. Used by one thread at a time.
class QVR_NAME_UTILITY_EXPORT QVRGenI18NUtils {
public:
    /// The one object, made by the first call and never destroyed. [borrowed]
    static QVRGenI18NUtils* Instance();
    QVRGenI18NUtils(const QVRGenI18NUtils& other);
    QVRGenI18NUtils& operator=(const QVRGenI18NUtils&) = delete;
    virtual ~QVRGenI18NUtils();

    // ---- Locales
    // -----------------------------------------------------------------------------------------------

    /// Runs IsEnglishMode.
    void GetInitialLocales();
    /// Whether the user's default locale and the calling thread's input locale were both English when this
    /// was first asked. The first call writes one line on standard output for each of the two; later calls
    /// write nothing and answer the same, whatever the locales are by then. English are the 13 locale
    /// identifiers 0x0409, 0x0809 and so on to 0x3409, compared whole; of the input locale the low 16 bits.
    unsigned char IsEnglishMode();
    /// What IsEnglishMode found out; 0 before its first call.
    unsigned char IsInitialUserLocaleEnglish();
    unsigned char IsInitialInputLocaleEnglish();
    /// The locales as they are now; nothing is stored.
    unsigned char IsEnglishUserLocale();
    unsigned char IsEnglishInputLocale();

    // ---- Names handed out
    // --------------------------------------------------------------------------------------

    /// Forgets every name handed out and every object met; references on them are released. The locales stay.
    void ResetAllLists();
    /// Notes that a generic name was handed out once more. Always S_OK.
    HRESULT PushNameToList(const ZFXUnicodeString& name);
    /// How often exactly this name was handed out, in `nextId`; 1 when at all.
    unsigned char FindNameAndNextID(const ZFXUnicodeString& name, int& nextId);

    // ---- Generic English names, material names, solver-compliant names
    // -----------------------------------------

protected:
    QVRGenI18NUtils();

private:
    unsigned char IsLCIDInEnglishIDs(int lcid);

    static QVRGenI18NUtils* m_genI18NSingletonObj;

    unsigned char m_localesChecked = 0;
    unsigned char m_englishMode = 0;
    unsigned char m_initialUserLocaleEnglish = 0;
    unsigned char m_initialInputLocaleEnglish = 0;
    /// One entry a hand-out, without its number.
    ZFXListValZFXUnicodeString m_usedGenericNames;
    /// Materials in the order in which they were first named.
    ZFXListValZFXISpecObject_var m_materialObjects;
    /// The name of each feature of m_featureObjects, position by position.
    ZFXListValZFXUnicodeString m_featureNames;
    ZFXListValZFXISpecObject_var m_featureObjects;
};

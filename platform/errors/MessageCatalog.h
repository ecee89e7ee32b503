#pragma once

#include "base/ZFXPlatformExport.h"
#include "text/ZFXUnicodeString.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The texts behind message ids: one UTF-8 file a catalog, named after it with the ending ".msg", and beside it
/// its translations, such as "QVRNameUtility_de.msg"; a catalog's own name has no underscore.
///
/// A line is `key = text`, where a key is a message id followed by ".Request", ".Diagnostic" or ".Advice";
/// lines that are blank or begin with "#" are skipped. The files lie in the folder "msgcatalog" beside the
/// platform's shared library unless a host names another one. A file is read once, when its first text is
/// asked for. Errors keep no texts: one that was raised before the language changed speaks the new one.
namespace MessageCatalog {

/// The text of a key in the language that was set, or in English where the translation lacks it; nothing
/// when the English catalog lacks it too.
ZFX_PLATFORM_EXPORT std::optional<ZFXUnicodeString> Find(const std::string& catalog, std::string_view key);

/// Where the catalogs lie from now on, in UTF-8; those read already are forgotten. To be called before other
/// threads run.
ZFX_PLATFORM_EXPORT void SetFolder(const std::string& folder);

/// The language of all texts of this process from now on, as its code alone or with a region, an encoding or
/// both: "de", "de_AT", "de-AT.UTF-8". Empty, "en", "C" and "POSIX" stand for English, and so does a language
/// that no catalog in the folder is translated into: then false. Until it is called texts are English; the
/// process locale is never asked.
ZFX_PLATFORM_EXPORT bool SetLanguage(const std::string& language);

/// The codes of the languages that there are texts in, in alphabetic order, "en" among them.
ZFX_PLATFORM_EXPORT std::vector<std::string> Languages();

} // namespace MessageCatalog

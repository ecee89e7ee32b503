#pragma once

#include "base/ZFXPlatformExport.h"
#include "text/ZFXUnicodeString.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The texts of messages, by message id.
///
/// A catalog is one UTF-8 file: its name with the ending ".msg". A translation is another file in that folder, with the
/// language in its name, such as "QVRNameUtility_de.msg". The name of a catalog contains no underscore.
///
/// A line is `key = text`. A key is a message id followed by ".Request", ".Diagnostic" or ".Advice", the parts of an
/// error's text, or by another word, such as ".Example". Blank lines and lines that start with "#" are skipped. A file
/// that does not exist or cannot be read has no texts.
///
/// The files are in the folder "share/QVRGeneralUtilities/msgcatalog" of the installation, unless a host sets another
/// folder. Its path is relative to that of the platform's shared library, so the installation can be moved.
/// Each file is read once, at the first request for one of its texts.
namespace MessageCatalog {

/// Returns the text of a key in the language that is set, or in English if the translation lacks it. Returns nothing if
/// the English catalog lacks it too.
[[nodiscard]] ZFX_PLATFORM_EXPORT std::optional<ZFXUnicodeString> Find(const std::string& catalog,
                                                                       std::string_view key);

/// Sets the folder of the catalogs. `folder` is UTF-8. Discards all texts that have been read.
/// Call it before other threads run.
ZFX_PLATFORM_EXPORT void SetFolder(const std::string& folder);

/// Sets the language of all texts of the process. Texts are English until the first call; the process locale has no
/// effect. Errors raised before the call are reported in the new language too.
/// `language` is a language code, alone or with a region, an encoding or both: "de", "de_AT", "de-AT.UTF-8". Letter
/// case has no effect. An empty text, "en", "C" and "POSIX" mean English. Returns true if the language is English or a
/// catalog in the folder is translated into it. Otherwise returns false, and the language is English.
ZFX_PLATFORM_EXPORT bool SetLanguage(const std::string& language);

/// Returns the codes of all languages that a catalog in the folder is translated into, and "en", in alphabetical order.
[[nodiscard]] ZFX_PLATFORM_EXPORT std::vector<std::string> Languages();

} // namespace MessageCatalog

#pragma once

#include "base/ZFXPlatformExport.h"
#include "text/ZFXUnicodeString.h"

#include <optional>
#include <string>
#include <string_view>

/// The texts behind message ids: one UTF-8 file a catalog, named after it with the ending ".catalog".
///
/// A line is `key = text`, where a key is a message id followed by ".Request", ".Diagnostic" or ".Advice";
/// lines that are blank or begin with "#" are skipped. The files lie in the folder "msgcatalog" beside the
/// platform's shared library unless a host names another one. A catalog is read once, when its first text is
/// asked for.
namespace MessageCatalog {

/// The text of a key, or nothing when the catalog or the key is missing.
ZFX_PLATFORM_EXPORT std::optional<ZFXUnicodeString> Find(const std::string& catalog, std::string_view key);

/// Where the catalogs lie from now on, in UTF-8; those read already are forgotten. To be called before other
/// threads run.
ZFX_PLATFORM_EXPORT void SetFolder(const std::string& folder);

} // namespace MessageCatalog

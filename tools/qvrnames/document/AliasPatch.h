#pragma once

#include "document/LoadedDocument.h"

#include <string>

/// The document's file with another name for one object. Nothing but the bytes of that name differs; an
/// object that had no name gets the key "name" in front of its others.
std::string WithName(const LoadedDocument& loaded, std::uint32_t entry, const std::string& name);

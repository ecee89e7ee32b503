#pragma once

#include "base/ZFXPlatformExport.h"

#include <string>
#include <vector>

class ZFXBaseUnknown;

// Checks of a host's binding, for its start-up, its tests, or a debugger. They make the requests that the naming module
// makes, so call them on the thread of the document. They change no document.
//
// Each function appends one sentence to `report` for each fault: the operation, what is wrong, and the section of
// docs/bind-a-host.md that explains the rule. It returns the number of sentences that it appended; 0 means no fault.
// Exceptions from the host are caught and reported.

/// Checks an object of a document: its interface casts, its identity, its reference count, the ownership of what its
/// operations return, and whether they lead to the objects that the name rules need: the sets, the history or the case.
/// Checks objects of one kind at a time: call it for a step, a set, a load, a history, and so on.
///
/// If a cast is faulty, the other operations are not checked, because they need casts. The check compares addresses
/// through the type information of the compiler; a host that is built without it cannot be checked.
/// @param object  any interface pointer of the object; not null
ZFX_PLATFORM_EXPORT int ZFXCheckBinding(ZFXBaseUnknown* object, std::vector<std::string>& report);

/// Checks that AnalysisServices are installed, and what they return for the current document.
ZFX_PLATFORM_EXPORT int ZFXCheckServices(std::vector<std::string>& report);

/// Checks that the naming module is loaded, that it guards all late types that it should, and that its message catalog
/// is found.
ZFX_PLATFORM_EXPORT int ZFXCheckModule(std::vector<std::string>& report);

/// Checks that an object has no other references than those of the host, before the host closes its document. The
/// caches of the naming module keep references until `QVRGenI18NUtils::ResetAllLists`.
/// @param object      any interface pointer of the object; not null
/// @param references  the number of references that the host has on the object
ZFX_PLATFORM_EXPORT int ZFXCheckReleased(ZFXBaseUnknown* object, unsigned references, std::vector<std::string>& report);

/// Prints the report of ZFXCheckBinding for an object to standard error, one sentence per line. Returns their number.
/// It is meant for a debugger, which can call a function that takes one pointer.
ZFX_PLATFORM_EXPORT int ZFXPrintBindingFaults(ZFXBaseUnknown* object);

#pragma once

#include "base/ZFXPlatformExport.h"

#include <string>
#include <vector>

class ZFXBaseUnknown;

// Checks of a host's binding. Call them when the host starts, in its tests, or from a debugger. They make the requests
// that the naming module makes, so call them on the thread of the document. They change no document.
//
// Each function appends one sentence to `report` for each fault. The sentence names the operation, what is wrong, the
// late type of the checked object, and the section of docs/bind-a-host.md that explains the rule. Returns the number of
// appended sentences; 0 means no fault. Exceptions from the host are caught and reported.
//
// An object of a class with several interfaces does not convert to `ZFXBaseUnknown*`: pass a ZFXBaseUnknown_var or a
// pointer to ZFXObject.

/// Checks an object of a document: its interface casts, its identity, its reference count, the ownership of what its
/// operations return, and whether these results lead to the objects that the name rules need: the sets, the history or
/// the case. Call it for one object of each kind: a case, a history, a step, a set, a load, a job.
///
/// For the late types in docs/types.md, also checks the interface that selects the scope of a name: QVRIStep on a step,
/// and ZFXISamAnalysisEntity on any other feature except a history, a property set or a job container.
///
/// If a cast is faulty, the other operations are not checked, because they need casts. The check compares addresses
/// through the type information of the compiler; a host that is built without it cannot be checked.
/// @param object  any interface pointer of the object; not null
ZFX_PLATFORM_EXPORT int ZFXCheckBinding(ZFXBaseUnknown* object, std::vector<std::string>& report);

/// Checks that AnalysisServices are installed, and that their results for the current document are complete.
ZFX_PLATFORM_EXPORT int ZFXCheckServices(std::vector<std::string>& report);

/// Checks that the naming module is loaded, that it guards each guarded late type, and that its message catalog is
/// found.
ZFX_PLATFORM_EXPORT int ZFXCheckModule(std::vector<std::string>& report);

/// Checks that an object has no references except those of the host. Call it before the host closes the document. The
/// caches of the naming module keep references until `QVRGenI18NUtils::ResetAllLists` is called.
/// @param object      any interface pointer of the object; not null
/// @param references  the number of references that the host has on the object, with those of handles in its own lists
ZFX_PLATFORM_EXPORT int ZFXCheckReleased(ZFXBaseUnknown* object, unsigned references, std::vector<std::string>& report);

/// Prints the report of ZFXCheckBinding for an object to standard error, one sentence per line. Returns the number of
/// sentences. A debugger can call this function easily, because its only parameter is a pointer.
ZFX_PLATFORM_EXPORT int ZFXPrintBindingFaults(ZFXBaseUnknown* object);

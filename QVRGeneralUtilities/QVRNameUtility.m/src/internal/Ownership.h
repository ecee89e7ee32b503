#pragma once

#include "object-model/ZFXHandle.h"

#include <memory>

/// Wraps what a platform operation handed back with one reference for the caller.
template <class Object>
ZFXHandle<Object> TakeOver(Object* object) noexcept {
    return ZFXHandle<Object>::TakeOver(object);
}

struct EmptyAndDelete {
    void operator()(ZFXListValZFXBaseUnknown_var* list) const {
        list->RemoveAll(ZFXCollec::ReleaseAllocation);
        delete list;
    }
};

/// A list that a platform operation handed back for the caller to empty and delete.
using OwnedList = std::unique_ptr<ZFXListValZFXBaseUnknown_var, EmptyAndDelete>;

// The steps of a replacing write and the fault tests inject into them, and the attributes tests
// give a path, shared by both file-access implementations.
#pragma once

#include "platform/file_access.h"

namespace cv2 {

// True when the injected fault is at `step`; `failure` is then filled in.
bool InjectedFaultAt(WriteStep step, WriteFailure& failure);

// InjectFileAttributes (file_access.h), for tests: FileAttributes answers the given attributes
// for exactly the given path, as a storage card's folder answers, which a test machine has none
// of; an empty path ends it. True when `path` was given its attributes; `attributes` is then
// filled in.
bool InjectedAttributesOf(const std::wstring& path, uint32_t& attributes);

// Runs one step of a write: false, with `failure` filled in, when a fault was injected there or
// `call` fails (then `lastError` gives the platform's error number).
template <class Call, class LastError>
bool RunWriteStep(WriteStep step, WriteFailure& failure, Call call, LastError lastError) {
    if (InjectedFaultAt(step, failure))
        return false;
    if (call())
        return true;
    failure = WriteFailure{step, lastError()};
    return false;
}

} // namespace cv2

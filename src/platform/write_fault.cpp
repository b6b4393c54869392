#include "platform/write_fault.h"

namespace cv2 {
namespace {

WriteFailure g_fault; // one thread: the program has no other

} // namespace

void InjectWriteFault(WriteStep step, unsigned long error) {
    g_fault = WriteFailure{step, error};
}

bool InjectedFaultAt(WriteStep step, WriteFailure& failure) {
    if (g_fault.step != step)
        return false;
    failure = g_fault;
    return true;
}

} // namespace cv2

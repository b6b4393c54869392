#include "platform/write_fault.h"

namespace cv2 {
namespace {

// One thread: the program has no other.
WriteFailure g_fault;
std::wstring g_attributesPath;
uint32_t g_attributes = 0;

} // namespace

void InjectFileAttributes(const std::wstring& path, uint32_t attributes) {
    g_attributesPath = path;
    g_attributes = attributes;
}

bool InjectedAttributesOf(const std::wstring& path, uint32_t& attributes) {
    if (g_attributesPath.empty() || path != g_attributesPath)
        return false;
    attributes = g_attributes;
    return true;
}

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

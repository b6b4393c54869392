// Fills the "%s" places of a localised text. Texts come from a language module, where "%s"
// means a wide string whatever the C runtime's printf would make of it, so they are filled here
// rather than through printf.
#pragma once

#include <initializer_list>
#include <string>

namespace cv2 {

// Each "%s" takes the next argument in order ("" once they run out); "%%" gives "%"; any other
// "%" stays as it is.
std::wstring FormatText(const std::wstring& pattern, std::initializer_list<std::wstring> args);

} // namespace cv2

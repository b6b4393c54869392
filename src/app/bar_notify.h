// Telling the running bar to reload its settings.
#pragma once

namespace cv2 {

// Where the search for the bar's window starts: the theme switch walks the windows that follow
// "HHTaskbar" (starting with that window itself); Apply walks the children of "HHTaskbar".
// Both walks are kept as they are.
enum class BarWalk { FromTaskbar, FromFirstChild };

// Sends "CVResetConfig" (242, 0) to the first "Corvane_FullBar" window of the walk.
// False when the bar was not found.
bool NotifyBar(BarWalk walk);

// The two walks as plain functions, for callers that take a function pointer.
void NotifyBarFromTaskbar();
void NotifyBarFromFirstChild();

} // namespace cv2

// The three rule list pages of the main window.
#pragma once

#include "pages/behaviour/rule_list_page.h"

namespace cv2 {

// "Task Management": windows the bar's task handling hides, minimises or closes.
class TaskManagementPage : public RuleListPage {
  public:
    TaskManagementPage();
};

// "SIP Panel": windows for which the bar shows or hides the input panel.
class SipPanelPage : public RuleListPage {
  public:
    SipPanelPage();
};

// "Skinned Applications": programs whose windows the bar leaves unskinned.
class SkinnedApplicationsPage : public RuleListPage {
  public:
    SkinnedApplicationsPage();
};

} // namespace cv2

#include "pages/behaviour/rule_pages.h"

#include "store/config_sections.h"

namespace cv2 {
namespace {

const RulePageInfo kTaskManagement = {IDS_TASK_MANAGEMENT_TITLE,
                                      &kCustomTasksFormat,
                                      StringId(0),
                                      StringId(0),
                                      nullptr,
                                      nullptr,
                                      false};

const RulePageInfo kSipPanel = {
    IDS_SIP_PANEL_TITLE, &kCustomSipFormat, StringId(0), StringId(0), nullptr, nullptr, false};

const RulePageInfo kSkinnedApplications = {IDS_SKINNED_APPS_TITLE,
                                           &kDontSkinFormat,
                                           IDS_SKINNED_APPS_LABEL,
                                           IDS_IGNORE_ALL_APPS,
                                           config::kGeneralSettings,
                                           L"Ignore All Apps",
                                           false};

} // namespace

TaskManagementPage::TaskManagementPage() : RuleListPage(kTaskManagement) {}

SipPanelPage::SipPanelPage() : RuleListPage(kSipPanel) {}

SkinnedApplicationsPage::SkinnedApplicationsPage() : RuleListPage(kSkinnedApplications) {}

} // namespace cv2

// The custom notifications of a theme: a list of titles in section "Custom Notifications"
// (keys "0", "1", ... from 0 without a gap) and, for each title, the two pictures of its button
// in a section "Notify." followed by the title.
#pragma once

#include <string>
#include <vector>

#include "store/ini_document.h"

namespace cv2 {

// Longest title kept: a buffer of 260 with its terminator.
constexpr size_t kNotificationTitleChars = 259;

struct CustomNotification {
    std::wstring title;
    std::wstring normalImage;
    std::wstring pressedImage;
};

// The names in section "Custom Notifications": keys "0", "1", ... up to the first one that is
// missing or empty.
std::vector<std::wstring> CustomNotificationNames(const IniDocument& doc);

// The section that holds the pictures of a notification titled `title`.
std::wstring NotifySectionOf(const std::wstring& title);

// Cuts the title and both paths to their buffers.
CustomNotification CutToBuffers(const CustomNotification& entry);

// The listed notifications in list order, read up to the first missing or empty key.
std::vector<CustomNotification> ReadCustomNotifications(const IniDocument& doc);

// Replaces the list in `doc`: first deletes the picture sections of the titles listed there now
// (up to the first gap) and the list itself, then writes each entry's pictures and its title
// under the next number. Entries that share a title share one picture section; the later one's
// pictures stay. An empty list leaves neither the list section nor any picture section. A title
// may hold any character: one with "]" reads back with its pictures (see the source).
void WriteCustomNotifications(IniDocument& doc, const std::vector<CustomNotification>& entries);

} // namespace cv2

// The Plugins page on a real host window, with real plug-ins registered in the registry.
#include "pages/behaviour/plugins/plugins_page.h"

#include <commctrl.h>

#include "check_pages_host.h"
#include "plugin_test_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

class PluginsPageTest : public PageTest {
  protected:
    // The value's text now, or "<missing>".
    std::wstring Stored(const std::wstring& name) const {
        for (const UserValue& v : key.Values()) {
            if (v.name == name)
                return v.text;
        }
        return L"<missing>";
    }

    PluginsKeyScope key;
    TempFolder dir;
    PluginRegistry registry;
    IniDocument doc;
};

} // namespace

TEST_F(PluginsPageTest, ValueEndingInCommaZeroListsThePluginUnchecked) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    key.Set(L"Sample", sample + L",0");
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    host.ShowPage();
    ASSERT_EQ(1, ListView_GetItemCount(page.List()));
    EXPECT_FALSE(RowChecked(page.List(), 0));
    EXPECT_EQ(3u, registry.ButtonTotal()); // the library was loaded all the same
}

TEST_F(PluginsPageTest, SavingWithTheBoxCheckedWritesThePathWithoutCommaZero) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    key.Set(L"Sample", sample + L",0");
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    SetRowChecked(page.List(), 0, true);
    page.Save(nullptr);
    EXPECT_EQ(sample, Stored(L"Sample"));
}

TEST_F(PluginsPageTest, SavingAnUncheckedRowAppendsCommaZero) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    key.Set(L"Sample", sample);
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    EXPECT_TRUE(RowChecked(page.List(), 0));
    SetRowChecked(page.List(), 0, false);
    page.Save(nullptr);
    EXPECT_EQ(sample + L",0", Stored(L"Sample"));
}

TEST_F(PluginsPageTest, TwoValuesWithTheSamePathBothSaveUnderTheFirstName) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    key.Set(L"First", sample);
    key.Set(L"Second", sample + L",0");
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    ASSERT_EQ(2, ListView_GetItemCount(page.List()));
    SetRowChecked(page.List(), 0, true);
    SetRowChecked(page.List(), 1, false);
    page.Save(nullptr);
    // Rows are written in order under "First": the second row's state is the last written.
    EXPECT_EQ(sample + L",0", Stored(L"First"));
    EXPECT_EQ(sample + L",0", Stored(L"Second"));
}

TEST_F(PluginsPageTest, WithNoPluginsKeyThePageIsEmptyAndSaveWritesNothing) {
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ(0, ListView_GetItemCount(page.List()));
    page.Save(nullptr);
    EXPECT_FALSE(key.KeyExists());
}

TEST_F(PluginsPageTest, KeyRemovedBeforeSaveIsNotMadeAgain) {
    key.Set(L"Sample", CopyPlugin(dir, L"SamplePlugin.dll"));
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    key.RemoveKey();
    page.Save(nullptr);
    EXPECT_FALSE(key.KeyExists());
}

TEST_F(PluginsPageTest, BrokenPluginsAreListedUncheckedAndWrittenBackDisabled) {
    dir.Write(L"notes.dll", "not a library");
    key.Set(L"Notes", dir.File(L"notes.dll"));
    key.SetDword(L"Number", 3);
    key.Set(L"Fails", CopyPlugin(dir, L"FailingInitPlugin.dll"));
    registry.LoadFromRegistry();
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    ASSERT_EQ(3, ListView_GetItemCount(page.List()));
    for (int row = 0; row < 3; ++row)
        EXPECT_FALSE(RowChecked(page.List(), row)) << row;
    page.Save(nullptr);
    EXPECT_EQ(dir.File(L"notes.dll") + L",0", Stored(L"Notes"));
    EXPECT_EQ(L",0", Stored(L"Number"));
}

TEST_F(PluginsPageTest, ListSitsUnderTheHeaderAcrossThePage) {
    PluginsPage page(registry);
    PageHostWindow host(page, doc);
    host.ShowPage();
    RECT list, client;
    GetWindowRect(page.List(), &list);
    MapWindowPoints(nullptr, host.hwnd(), reinterpret_cast<POINT*>(&list), 2);
    GetClientRect(host.hwnd(), &client);
    EXPECT_EQ(0, list.left);
    EXPECT_EQ(client.right, list.right);
    EXPECT_EQ(client.bottom, list.bottom);
    EXPECT_GT(list.top, 0);
}

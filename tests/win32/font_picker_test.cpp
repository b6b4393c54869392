// The font picker dialog on a real window: its controls, the colour picker inside it, and what
// OK and Cancel do to the record.
#include "ui/pickers/font_picker.h"

#include <commctrl.h>

#include <set>
#include <string>
#include <vector>

#include "color_dialog_driver.h"
#include "ids_ui.h"
#include "store/strings.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::PickColourThrough;

namespace {

class FontPickerTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        record.Create(L"Tahoma", 8, kFontItalic | kFontShadow, true);
        record.color = 0x00FFFFFF;
        record.shadowColor = 0x00000080;
    }
    FontRecord record;
};

std::wstring TextOf(HWND dlg, int id) {
    wchar_t text[128] = {};
    GetDlgItemTextW(dlg, id, text, 128);
    return text;
}

bool Checked(HWND dlg, int id) {
    return IsDlgButtonChecked(dlg, id) == BST_CHECKED;
}

// Types into the edit part of a combo box the way the user's keys end up there.
void TypeInCombo(HWND dlg, int id, const wchar_t* text) {
    SetDlgItemTextW(dlg, id, text);
    SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(id, CBN_EDITCHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(dlg, id)));
}

} // namespace

TEST_F(FontPickerTest, OpensWithTheRecordsValues) {
    bool seen = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            seen = true;
            EXPECT_EQ(TextOf(dlg, IDC_FONT_FACE), L"Tahoma");
            EXPECT_EQ(TextOf(dlg, IDC_FONT_SIZE), L"8");
            EXPECT_FALSE(Checked(dlg, IDC_FONT_BOLD));
            EXPECT_TRUE(Checked(dlg, IDC_FONT_ITALIC));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_UNDERLINE));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_STRIKEOUT));
            EXPECT_TRUE(Checked(dlg, IDC_FONT_SHADOW));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_GLOW));
        },
        IDCANCEL);
    EXPECT_FALSE(PickFont(record, host));
    EXPECT_TRUE(seen);
}

TEST_F(FontPickerTest, SizeListHoldsTheOfferedSizesInOrder) {
    std::wstring sizes;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            HWND box = GetDlgItem(dlg, IDC_FONT_SIZE);
            const int count = static_cast<int>(SendMessageW(box, CB_GETCOUNT, 0, 0));
            for (int i = 0; i < count; ++i) {
                wchar_t item[16] = {};
                SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(i),
                             reinterpret_cast<LPARAM>(item));
                sizes += std::wstring(item) + L" ";
            }
        },
        IDCANCEL);
    PickFont(record, host);
    EXPECT_EQ(sizes, L"6 7 8 9 10 11 12 14 16 20 24 28 36 ");
}

TEST_F(FontPickerTest, FaceListHoldsEachInstalledFamilyOnce) {
    std::vector<std::wstring> faces;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            HWND box = GetDlgItem(dlg, IDC_FONT_FACE);
            const int count = static_cast<int>(SendMessageW(box, CB_GETCOUNT, 0, 0));
            for (int i = 0; i < count; ++i) {
                wchar_t item[LF_FACESIZE] = {};
                SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(i),
                             reinterpret_cast<LPARAM>(item));
                faces.push_back(item);
            }
        },
        IDCANCEL);
    PickFont(record, host);
    ASSERT_GT(faces.size(), 1u);
    std::set<std::wstring> unique(faces.begin(), faces.end());
    EXPECT_EQ(unique.size(), faces.size());
    for (const std::wstring& face : faces)
        EXPECT_NE(face[0], L'@') << "vertical variants are left out";
}

TEST_F(FontPickerTest, AFaceThatIsNotInstalledStillShowsInTheFaceBox) {
    record.Create(L"No Such Face Here", 8, 0, false);
    std::wstring shown;
    DialogDriver::OnNextDialog([&](HWND dlg) { shown = TextOf(dlg, IDC_FONT_FACE); }, IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(shown, L"No Such Face Here");
    EXPECT_STREQ(record.face, L"No Such Face Here");
}

TEST_F(FontPickerTest, LabelsAreLocalisedAndInTheBoldFont) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            EXPECT_EQ(TextOf(dlg, IDC_FONT_NAME_LABEL), Localized(IDS_FONT_NAME));
            EXPECT_EQ(TextOf(dlg, IDC_FONT_SIZE_LABEL), Localized(IDS_FONT_SIZE));
            EXPECT_EQ(TextOf(dlg, IDC_FONT_STYLE_LABEL), Localized(IDS_FONT_STYLE));
            EXPECT_EQ(TextOf(dlg, IDC_FONT_SHADOW_COLOR), Localized(IDS_FONT_SHADOW_COLOR));
            EXPECT_EQ(TextOf(dlg, IDC_FONT_GLOW), Localized(IDS_FONT_GLOW));
            for (int id : {IDC_FONT_NAME_LABEL, IDC_FONT_SIZE_LABEL, IDC_FONT_STYLE_LABEL})
                EXPECT_EQ(SendDlgItemMessageW(dlg, id, WM_GETFONT, 0, 0),
                          reinterpret_cast<LRESULT>(CaptionFont()));
            EXPECT_EQ(SendDlgItemMessageW(dlg, IDC_FONT_BOLD, WM_GETFONT, 0, 0),
                      reinterpret_cast<LRESULT>(TextFont()));
        },
        IDCANCEL);
    PickFont(record, host);
}

TEST_F(FontPickerTest, CheckingShadowUnchecksGlowAndCheckingGlowUnchecksShadow) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            ASSERT_TRUE(Checked(dlg, IDC_FONT_SHADOW));
            SendDlgItemMessageW(dlg, IDC_FONT_GLOW, BM_CLICK, 0, 0);
            EXPECT_TRUE(Checked(dlg, IDC_FONT_GLOW));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_SHADOW));
            SendDlgItemMessageW(dlg, IDC_FONT_SHADOW, BM_CLICK, 0, 0);
            EXPECT_TRUE(Checked(dlg, IDC_FONT_SHADOW));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_GLOW));
            SendDlgItemMessageW(dlg, IDC_FONT_SHADOW, BM_CLICK, 0, 0);
            EXPECT_FALSE(Checked(dlg, IDC_FONT_SHADOW));
            EXPECT_FALSE(Checked(dlg, IDC_FONT_GLOW)) << "unchecking brings nothing back";
        },
        IDOK);
    EXPECT_TRUE(PickFont(record, host));
    EXPECT_EQ(record.style, kFontItalic);
}

TEST_F(FontPickerTest, OkRecreatesTheRecordFromTheChoiceWithoutClearType) {
    HFONT before = record.font;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            TypeInCombo(dlg, IDC_FONT_SIZE, L"12");
            SendDlgItemMessageW(dlg, IDC_FONT_BOLD, BM_CLICK, 0, 0);
            SendDlgItemMessageW(dlg, IDC_FONT_ITALIC, BM_CLICK, 0, 0);
            SendDlgItemMessageW(dlg, IDC_FONT_UNDERLINE, BM_CLICK, 0, 0);
            SendDlgItemMessageW(dlg, IDC_FONT_STRIKEOUT, BM_CLICK, 0, 0);
            SendDlgItemMessageW(dlg, IDC_FONT_GLOW, BM_CLICK, 0, 0);
        },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_STREQ(record.face, L"Tahoma");
    EXPECT_EQ(record.size, 12);
    EXPECT_EQ(record.style, kFontBold | kFontUnderline | kFontStrikeout | kFontGlow);
    EXPECT_EQ(record.clearType, 0u);
    EXPECT_NE(record.font, before);
    LOGFONTW lf = {};
    GetObjectW(record.font, sizeof lf, &lf);
    EXPECT_EQ(lf.lfQuality, DEFAULT_QUALITY);
    EXPECT_EQ(lf.lfWeight, 700);
    EXPECT_EQ(record.color, 0x00FFFFFFu);
    EXPECT_EQ(record.shadowColor, 0x00000080u);
}

TEST_F(FontPickerTest, AFaceChosenFromTheListIsTaken) {
    std::wstring chosen;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            HWND box = GetDlgItem(dlg, IDC_FONT_FACE);
            const LRESULT tahoma = SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                                reinterpret_cast<LPARAM>(L"Tahoma"));
            const WPARAM other = tahoma == 0 ? 1 : 0;
            wchar_t item[LF_FACESIZE] = {};
            SendMessageW(box, CB_GETLBTEXT, other, reinterpret_cast<LPARAM>(item));
            chosen = item;
            SendMessageW(box, CB_SETCURSEL, other, 0);
            SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(IDC_FONT_FACE, CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(box));
        },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    ASSERT_FALSE(chosen.empty());
    EXPECT_EQ(std::wstring(record.face), chosen.substr(0, kFaceChars));
}

TEST_F(FontPickerTest, ATypedFaceLongerThan31CharactersIsCut) {
    const std::wstring longFace(60, L'F');
    DialogDriver::OnNextDialog([&](HWND dlg) { TypeInCombo(dlg, IDC_FONT_FACE, longFace.c_str()); },
                               IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(std::wstring(record.face), longFace.substr(0, 31));
}

TEST_F(FontPickerTest, TheSizeIsReadAsADecimalNumber) {
    DialogDriver::OnNextDialog([&](HWND dlg) { TypeInCombo(dlg, IDC_FONT_SIZE, L"14pt"); }, IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(record.size, 14);
}

TEST_F(FontPickerTest, ASizeOfLettersIsZero) {
    DialogDriver::OnNextDialog([&](HWND dlg) { TypeInCombo(dlg, IDC_FONT_SIZE, L"big"); }, IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(record.size, 0);
}

TEST_F(FontPickerTest, ColourButtonOpensThePickerOnTheCopysColourAndKeepsAConfirmedChoice) {
    ColorRef shown = 1;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_FONT_COLOR, MakeColor(10, 20, 30), IDOK, &shown);
            EXPECT_EQ(record.color, 0x00FFFFFFu) << "the record waits for OK";
        },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(shown, 0x00FFFFFFu);
    EXPECT_EQ(record.color, MakeColor(10, 20, 30));
    EXPECT_EQ(record.shadowColor, 0x00000080u);
}

TEST_F(FontPickerTest, ShadowColourButtonOpensThePickerOnTheShadowColour) {
    ColorRef shown = 1;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_FONT_SHADOW_COLOR, MakeColor(1, 2, 3), IDOK, &shown);
        },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(shown, 0x00000080u);
    EXPECT_EQ(record.shadowColor, MakeColor(1, 2, 3));
    EXPECT_EQ(record.color, 0x00FFFFFFu);
}

TEST_F(FontPickerTest, ACancelledColourPickerChangesNothing) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) { PickColourThrough(dlg, IDC_FONT_COLOR, MakeColor(9, 9, 9), IDCANCEL); },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(record.color, 0x00FFFFFFu);
}

TEST_F(FontPickerTest, TwoColourChoicesKeepTheLaterOne) {
    ColorRef shownSecond = 1;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_FONT_COLOR, MakeColor(50, 60, 70), IDOK);
            PickColourThrough(dlg, IDC_FONT_COLOR, MakeColor(80, 90, 100), IDOK, &shownSecond);
        },
        IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(shownSecond, MakeColor(50, 60, 70)) << "the second opening shows the first choice";
    EXPECT_EQ(record.color, MakeColor(80, 90, 100));
}

TEST_F(FontPickerTest, CancelLeavesTheRecordUntouchedEvenAfterChangesInside) {
    HFONT before = record.font;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_FONT_COLOR, MakeColor(10, 20, 30), IDOK);
            PickColourThrough(dlg, IDC_FONT_SHADOW_COLOR, MakeColor(40, 50, 60), IDOK);
            TypeInCombo(dlg, IDC_FONT_SIZE, L"20");
            TypeInCombo(dlg, IDC_FONT_FACE, L"Courier New");
            SendDlgItemMessageW(dlg, IDC_FONT_BOLD, BM_CLICK, 0, 0);
        },
        IDCANCEL);
    EXPECT_FALSE(PickFont(record, host));
    EXPECT_EQ(record.font, before);
    EXPECT_STREQ(record.face, L"Tahoma");
    EXPECT_EQ(record.size, 8);
    EXPECT_EQ(record.style, kFontItalic | kFontShadow);
    EXPECT_EQ(record.clearType, 1u);
    EXPECT_EQ(record.color, 0x00FFFFFFu);
    EXPECT_EQ(record.shadowColor, 0x00000080u);
}

TEST_F(FontPickerTest, ShadowOffsetsSurviveAPick) {
    record.shadowX = 2;
    record.shadowY = 3;
    DialogDriver::OnNextDialog([](HWND) {}, IDOK);
    ASSERT_TRUE(PickFont(record, host));
    EXPECT_EQ(record.shadowX, 2);
    EXPECT_EQ(record.shadowY, 3);
}

TEST_F(FontPickerTest, ControlsStayInsideTheDialogAndApart) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            RECT client;
            GetClientRect(dlg, &client);
            const int ids[] = {IDC_FONT_NAME_LABEL,  IDC_FONT_FACE,      IDC_FONT_SIZE_LABEL,
                               IDC_FONT_SIZE,        IDC_FONT_COLOR,     IDC_FONT_SHADOW_COLOR,
                               IDC_FONT_STYLE_LABEL, IDC_FONT_BOLD,      IDC_FONT_ITALIC,
                               IDC_FONT_UNDERLINE,   IDC_FONT_STRIKEOUT, IDC_FONT_SHADOW,
                               IDC_FONT_GLOW};
            RECT rects[13];
            for (int i = 0; i < 13; ++i) {
                GetWindowRect(GetDlgItem(dlg, ids[i]), &rects[i]);
                MapWindowPoints(nullptr, dlg, reinterpret_cast<POINT*>(&rects[i]), 2);
                EXPECT_GE(rects[i].left, 0) << ids[i];
                EXPECT_LE(rects[i].right, client.right) << ids[i];
                EXPECT_LE(rects[i].bottom, client.bottom) << ids[i];
            }
            for (int i = 0; i < 13; ++i) {
                for (int j = i + 1; j < 13; ++j) {
                    RECT overlap;
                    EXPECT_FALSE(IntersectRect(&overlap, &rects[i], &rects[j]))
                        << ids[i] << " overlaps " << ids[j];
                }
            }
        },
        IDCANCEL);
    PickFont(record, host);
}

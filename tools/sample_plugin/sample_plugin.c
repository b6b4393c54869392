/* A plug-in for the bar, built by the project to exercise the editor's plug-in loading: it
 * offers a few top-bar buttons and actions and appends one line per call it receives to a log
 * file beside itself ("<library path>.log"), so tests can see which calls were made.
 *
 * Compile definitions make the misbehaving variants the tests load:
 *   SAMPLE_NO_BUTTONS    no CRRegisterButtons export
 *   SAMPLE_INIT_FAILS    CRInit reports failure
 *   SAMPLE_MANY_BUTTONS  announces and names 10,000 buttons
 *   SAMPLE_UNTERMINATED  fills every name buffer to its end without a terminator
 *   SAMPLE_GAPS          declines to name the middle button and the middle action
 *   SAMPLE_EMPTY_NAMES   accepts every registration call but leaves every name empty
 *   SAMPLE_HUGE_COUNT    announces 4,294,967,295 buttons and actions, names only three of each
 */
#include <windows.h>

#include <stdio.h>
#include <wchar.h>

#define EXPORT __declspec(dllexport)

static HMODULE g_self;

struct Button {
    const wchar_t* name;
    const wchar_t* third;
    const wchar_t* key;
};
struct Action {
    const wchar_t* value;
    const wchar_t* name;
};

#ifndef SAMPLE_MANY_BUTTONS
static const struct Button kButtons[] = {
    {L"Sample Weather", L"Weather", L"weather"},
    {L"Sample Mail", L"Mail", L"mailcheck"},
    {L"Sample Torch", L"Torch", L"torch"},
};
#endif
static const struct Action kActions[] = {
    {L"smp.weather", L"Sample: Show Weather"},
    {L"smp.mail", L"Sample: Check Mail"},
    {L"smp.torch", L"Sample: Toggle Torch"},
};
#define COUNT(a) (sizeof(a) / sizeof((a)[0]))

#ifdef SAMPLE_MANY_BUTTONS
#define BUTTON_COUNT 10000
#else
#define BUTTON_COUNT COUNT(kButtons)
#endif

static void Log(const char* line) {
    wchar_t path[MAX_PATH + 8];
    DWORD n = GetModuleFileNameW(g_self, path, MAX_PATH);
    if (n == 0 || n >= MAX_PATH)
        return;
    wcscpy(path + n, L".log");
    HANDLE file = CreateFileW(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, NULL,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, NULL);
    if (file == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    WriteFile(file, line, (DWORD)strlen(line), &written, NULL);
    WriteFile(file, "\r\n", 2, &written, NULL);
    CloseHandle(file);
}

/* Whether a registration call is logged: a line per call would take seconds when a variant is
 * asked for thousands of names. */
static int Logged(int index) {
#ifdef SAMPLE_MANY_BUTTONS
    return index == 0 || index == BUTTON_COUNT - 1;
#else
    return index < (int)COUNT(kActions);
#endif
}

/* Fills a buffer of `chars` characters: the text cut to fit and ended, or in the unterminated
 * variant a run of letters over the whole buffer. */
static void Fill(wchar_t* buffer, int chars, const wchar_t* text) {
    if (!buffer || chars <= 0)
        return;
#if defined(SAMPLE_EMPTY_NAMES)
    (void)text;
    buffer[0] = L'\0';
    (void)chars;
#elif defined(SAMPLE_UNTERMINATED)
    (void)text;
    for (int i = 0; i < chars; ++i)
        buffer[i] = L'A' + (wchar_t)(i % 26);
#else
    int i = 0;
    for (; i + 1 < chars && text[i]; ++i)
        buffer[i] = text[i];
    buffer[i] = L'\0';
#endif
}

BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, LPVOID reserved) {
    (void)reserved;
    if (reason == DLL_PROCESS_ATTACH)
        g_self = self;
    return TRUE;
}

EXPORT int CRInit(DWORD* info, int reserved) {
    (void)reserved;
    Log("CRInit");
#ifdef SAMPLE_INIT_FAILS
    (void)info;
    return 0;
#else
#ifdef SAMPLE_HUGE_COUNT
    info[1] = 0xFFFFFFFFu;
    info[2] = 0xFFFFFFFFu;
#else
    info[1] = BUTTON_COUNT;
    info[2] = COUNT(kActions);
#endif
    return 1;
#endif
}

EXPORT void CRDeInit(void) {
    Log("CRDeInit");
}

#ifndef SAMPLE_NO_BUTTONS
EXPORT int CRRegisterButtons(int index, wchar_t* name, int nameChars, wchar_t* third,
                             int thirdChars, wchar_t* key, int keyChars) {
    char line[64];
    snprintf(line, sizeof line, "CRRegisterButtons %d", index);
    if (Logged(index))
        Log(line);
#ifdef SAMPLE_GAPS
    if (index == 1)
        return 0;
#endif
    if (index < 0 || index >= (int)BUTTON_COUNT)
        return 0;
#ifdef SAMPLE_MANY_BUTTONS
    wchar_t text[32], word[32];
    swprintf(text, 32, L"Button %d", index);
    swprintf(word, 32, L"many%d", index);
    Fill(name, nameChars, text);
    Fill(third, thirdChars, text);
    Fill(key, keyChars, word);
#else
    Fill(name, nameChars, kButtons[index].name);
    Fill(third, thirdChars, kButtons[index].third);
    Fill(key, keyChars, kButtons[index].key);
#endif
    return 1;
}
#endif

EXPORT int CRRegisterActions(int index, wchar_t* value, int valueChars, wchar_t* name,
                             int nameChars) {
    char line[64];
    snprintf(line, sizeof line, "CRRegisterActions %d", index);
    if (Logged(index))
        Log(line);
#ifdef SAMPLE_GAPS
    if (index == 1)
        return 0;
#endif
    if (index < 0 || index >= (int)COUNT(kActions))
        return 0;
    Fill(value, valueChars, kActions[index].value);
    Fill(name, nameChars, kActions[index].name);
    return 1;
}

/* Called by the bar only; the editor looks them up and never calls them. */
EXPORT int CRDraw(void) {
    Log("CRDraw");
    return 0;
}
EXPORT int CRUpdate(void) {
    Log("CRUpdate");
    return 0;
}
EXPORT int CRExecuteTap(int button) {
    (void)button;
    Log("CRExecuteTap");
    return 0;
}
EXPORT int CRExecuteHold(int button) {
    (void)button;
    Log("CRExecuteHold");
    return 0;
}

// Text by number from the localisation module "language.dll", else the built-in default.
#pragma once

namespace cv2 {

class LanguageStrings {
  public:
    static constexpr int kBufferChars = 1024;

    explicit LanguageStrings(const wchar_t* moduleName = L"language.dll");
    ~LanguageStrings();
    LanguageStrings(const LanguageStrings&) = delete;
    LanguageStrings& operator=(const LanguageStrings&) = delete;

    // The module's text of `id` in the one shared buffer, or the `def` pointer itself when there
    // is no module or it lacks the number. The next call that finds a text overwrites the buffer.
    const wchar_t* Get(unsigned id, const wchar_t* def);
    bool HasModule() const { return m_module != nullptr; }

  private:
    void* m_module;
    wchar_t m_buffer[kBufferChars];
};

// The process-wide instance, made on first use (before any window).
LanguageStrings& Strings();

} // namespace cv2

// Small helpers of the platform layer's COM code (desktop imaging): an interface pointer that
// releases itself, and COM for the length of one call unless the thread already has it.
#pragma once

#include <objbase.h>

namespace cv2 {

template <class T> class ComPtr {
  public:
    ComPtr() = default;
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() {
        if (m_p)
            m_p->Release();
    }
    T** operator&() { return &m_p; }
    T* operator->() const { return m_p; }
    T* get() const { return m_p; }

  private:
    T* m_p = nullptr;
};

class ComScope {
  public:
    ComScope() : m_hr(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_hr))
            CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

  private:
    HRESULT m_hr;
};

} // namespace cv2

#include "ui/preview/scene.h"

#include "store/ini_document.h"

namespace cv2 {

const SceneElement* Scene::Find(SceneKind kind, const std::wstring& name) const {
    for (const SceneElement& e : elements) {
        if (e.kind == kind && (name.empty() || e.name == name))
            return &e;
    }
    return nullptr;
}

std::vector<const SceneElement*> Scene::All(SceneKind kind) const {
    std::vector<const SceneElement*> found;
    for (const SceneElement& e : elements) {
        if (e.kind == kind)
            found.push_back(&e);
    }
    return found;
}

bool Scene::Used(const wchar_t* section, const wchar_t* key) const {
    for (const SceneKey& k : usedKeys) {
        if (EqualsNoCase(k.section.c_str(), section) && EqualsNoCase(k.key.c_str(), key))
            return true;
    }
    return false;
}

const SceneElement* Scene::At(int x, int y) const {
    for (auto e = elements.rbegin(); e != elements.rend(); ++e) {
        if (e->rect.Contains(x, y))
            return &*e;
    }
    return nullptr;
}

SceneRect Scene::FreeBelowParts(size_t index) const {
    SceneRect free = elements[index].rect;
    for (const SceneElement& e : elements) {
        if (e.parent == static_cast<int>(index) && !e.popup && e.rect.bottom > free.top)
            free.top = e.rect.bottom < free.bottom ? e.rect.bottom : free.bottom;
    }
    return free;
}

} // namespace cv2

#ifndef ZV_CFG_OWNER_H
#define ZV_CFG_OWNER_H

#include <algorithm>
#include <vector>

/// Entry `i` of a list of pointers; null if `i` is out of range.
template <class T>
T* zvCfgEntryAt(const std::vector<T*>& list, int i) {
    return i >= 0 && i < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(i)] : nullptr;
}

/// Owns objects in insertion order and deletes them in its destructor, each once even if it was added several
/// times.
template <class T>
class zvCfgOwner {
public:
    zvCfgOwner() = default;
    zvCfgOwner(const zvCfgOwner&) = delete;
    zvCfgOwner& operator=(const zvCfgOwner&) = delete;
    ~zvCfgOwner() {
        std::sort(m_objects.begin(), m_objects.end());
        m_objects.erase(std::unique(m_objects.begin(), m_objects.end()), m_objects.end());
        for (T* const object : m_objects) {
            delete object;
        }
    }

    /// Takes ownership of the object, which is not null.
    void add(T* object) { m_objects.push_back(object); }
    int size() const { return static_cast<int>(m_objects.size()); }
    /// Null if `i` is out of range.
    T* at(int i) const { return zvCfgEntryAt(m_objects, i); }

private:
    std::vector<T*> m_objects;
};

#endif

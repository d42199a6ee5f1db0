#ifndef ZV_MAP_CURSOR_H
#define ZV_MAP_CURSOR_H

#include <atomic>
#include <cstdlib>
#include <iterator>

/// Finds the entries of an ordered map by their index, from where it last was or from an end of the map,
/// whichever is nearer. Threads that read one map may share it: one that finds it in use starts from an end.
template <typename Map>
class zvMapCursor {
public:
    zvMapCursor() = default;
    zvMapCursor(const zvMapCursor&) noexcept {}  // the copy of a map has entries of its own
    zvMapCursor& operator=(const zvMapCursor& other) noexcept {
        if (this != &other) {
            forget();
        }
        return *this;
    }
    ~zvMapCursor() = default;

    /// To be called when the map's keys have changed.
    void forget() noexcept { m_index = nowhere; }

    /// Null for an index out of range.
    const typename Map::value_type* entryAt(const Map& map, int i) const {
        const int size = static_cast<int>(map.size());
        if (i < 0 || i >= size) {
            return nullptr;
        }
        const bool isNearEnd = size - i < i;
        int from = isNearEnd ? size : 0;
        auto at = isNearEnd ? map.end() : map.begin();
        const bool isMine = !m_bInUse.exchange(true, std::memory_order_acquire);
        if (isMine && m_index != nowhere && std::abs(i - m_index) < std::abs(i - from)) {
            from = m_index;
            at = m_at;
        }
        std::advance(at, i - from);
        if (isMine) {
            m_index = i;
            m_at = at;
            m_bInUse.store(false, std::memory_order_release);
        }
        return &*at;
    }

private:
    static constexpr int nowhere = -1;

    mutable std::atomic<bool> m_bInUse{false};
    mutable int m_index = nowhere;
    mutable typename Map::const_iterator m_at;
};

#endif

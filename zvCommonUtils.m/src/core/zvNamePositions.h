#ifndef ZV_NAME_POSITIONS_H
#define ZV_NAME_POSITIONS_H

#include <cstdint>
#include <memory>

#include "zvString.h"

/// Names with a position each, hashed once for all who have values under them, by position.
class ZV_EXPORT zvNamePositions {
public:
    zvNamePositions();
    zvNamePositions(const zvNamePositions&) = delete;
    zvNamePositions& operator=(const zvNamePositions&) = delete;
    ~zvNamePositions();

    /// Shares the name, which may be null. False, with nothing changed, for an empty name and for one that
    /// has a position already. Precondition: `position` is not negative.
    bool add(std::shared_ptr<const zvString> name, int position);
    /// -1 for a name without a position.
    int find(const zvString& name) const;

private:
    friend class zvStringToAttrMapImpl;

    int find(const zvString& name, std::uint32_t hash) const;

    struct Implementation;
    std::unique_ptr<Implementation> m_pImplementation;
};

#endif

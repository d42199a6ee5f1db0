#ifndef ZV_CFG_TRANSITION_PATH_H
#define ZV_CFG_TRANSITION_PATH_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgLcmState;
class zvCfgTransition;

/// A path through a lifecycle. Its states and transitions are owned by the configuration manager.
class ZV_EXPORT zvCfgTransitionPath : public zvCoreObjectCfg {
public:
    /// The empty path, which leads from `start` to itself.
    explicit zvCfgTransitionPath(const zvCfgLcmState* start);
    zvCfgTransitionPath(const zvCfgTransitionPath& other);
    zvCfgTransitionPath(zvCfgTransitionPath&& other) noexcept;
    ~zvCfgTransitionPath() override;

    zvCfgTransitionPath& operator=(const zvCfgTransitionPath& other);

    /// Appends `transition` and its target `state`.
    void add(const zvCfgTransition* transition, const zvCfgLcmState* state);

    /// The number of transitions; there is one more state.
    int size() const;
    /// State `i`, from the start, 0, to the end, size(); null if `i` is out of range.
    const zvCfgLcmState* getStateAt(int i) const;
    /// The transition from state `i` to state `i` + 1; null if `i` is out of range.
    const zvCfgTransition* getTransitionAt(int i) const;

private:
    std::vector<const zvCfgLcmState*> m_states;
    std::vector<const zvCfgTransition*> m_transitions;
};

#endif
